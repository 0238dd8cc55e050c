#include "e2e/division_dialog.h"

namespace torvane::testing {

namespace {

const QString tab = QStringLiteral("Tab");
const QString backTab = QStringLiteral("shift+Tab");
const QString space = QStringLiteral("space");
const QString enter = QStringLiteral("Return");

/// Within the first row of the ship dialog's list, below its header.
constexpr QPoint topRow(100, 138);

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

DivisionDialog::DivisionDialog(const EditorRun& run, const QString& title, bool forceA, int number)
    : m_run(run), m_title(title), m_name((forceA ? QStringLiteral("A%1") : QStringLiteral("B%1")).arg(number))
{
    m_run.expectWindow(m_title);
}

QString DivisionDialog::file(const QString& kind) const
{
    return kind + m_name + QStringLiteral(".txt");
}

bool DivisionDialog::isTracked(const QString& ship) const
{
    return m_run.lines(QStringLiteral("ShipTrack.bmm")).contains(quoted(ship));
}

// What comes next has the focus: the ships of a new division, the save of an old one.
void DivisionDialog::openShipsOfNewDivision() const
{
    m_run.press({enter});
    m_run.expectWindow(m_run.names().ships);
}

void DivisionDialog::openShipsOfEdit() const
{
    m_run.press(backTab, 4);
    m_run.press({space});
    m_run.expectWindow(m_run.names().ships);
}

// The search puts the ship's row on top.
void DivisionDialog::goToShip(const QString& name) const
{
    m_run.press({backTab, space});
    m_run.expectWindow(QStringLiteral("Ship Search"));
    m_run.desktop().type(name);
    m_run.press({enter});
    m_run.expectWindow(m_run.names().ships);
}

void DivisionDialog::expectPicked(const QString& name) const
{
    m_run.expect(name + QStringLiteral(" among the picked ships"), [&] { return isTracked(name); });
}

void DivisionDialog::pickShip(const QString& name) const
{
    goToShip(name);
    m_run.press({enter});
    expectPicked(name);
}

void DivisionDialog::pickShipByClick(const QString& name) const
{
    goToShip(name);
    m_run.desktop().clickActive(topRow);
    expectPicked(name);
}

void DivisionDialog::pickShipByTyping(const QString& name) const
{
    m_run.desktop().type(name);
    m_run.press({enter});
    expectPicked(name);
}

void DivisionDialog::removeFirstShip() const
{
    const qsizetype before = m_run.lines(QStringLiteral("ShipTrack.bmm")).size();
    m_run.press(tab, 2);
    m_run.press({QStringLiteral("Home"), QStringLiteral("space"), QStringLiteral("Delete")});
    m_run.expect(QStringLiteral("one picked ship less"),
                 [&] { return m_run.lines(QStringLiteral("ShipTrack.bmm")).size() == before - 1; });
    m_run.press(backTab, 2);
}

void DivisionDialog::keepShips(int count) const
{
    m_run.press(tab, 5);
    m_run.press({space});
    m_run.expectWindow(m_title);
    m_run.expect(QStringLiteral("the division's list of ships"),
                 [&] { return m_run.lines(file(QStringLiteral("Division"))).size() == count; });
}

void DivisionDialog::change(const DivisionSettings& settings) const
{
    m_run.press(tab, 2); // from the save to the lock
    m_run.press({space});
    m_run.replaceText(settings.heading);
    m_run.press(tab, 2);
    m_run.pickEntry(settings.formation);
    m_run.press({tab});
    m_run.pickEntry(settings.spacing);
    m_run.press(tab, 2);
    m_run.replaceText(settings.speed);
    m_run.press({enter}); // locks them again
    m_run.expect(QStringLiteral("the division's settings"), [&] {
        const QStringList lines = m_run.lines(file(QStringLiteral("DivData")));
        return lines.value(3) == quoted(settings.heading) && lines.value(5) == quoted(settings.speed);
    });
}

void DivisionDialog::save() const
{
    m_run.press({enter});
    m_run.expectWindow(m_run.names().mainWindow);
}

} // namespace torvane::testing
