#include "shell/main_menu.h"

#include "platform/runtime_error.h"
#include "shell/captions.h"
#include "shell/commands.h"
#include "store/force_sizes.h"
#include "store/side.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace torvane {

namespace {

constexpr int hiddenDivisions = 4; // the Edit Ship divisions that each plot hides
constexpr bool sides[] = {true, false};

QAction* addEntry(QWidget* parent, const MenuRow& row)
{
    if (row.kind == MenuRow::Kind::Menu) {
        auto* menu = new QMenu(row.designCaption, parent);
        menu->setObjectName(row.name);
        parent->addAction(menu->menuAction());
        return menu->menuAction();
    }
    auto* action = new QAction(row.designCaption, parent);
    parent->addAction(action);
    if (row.kind == MenuRow::Kind::Separator) {
        action->setText(QString());
        action->setSeparator(true);
    }
    return action;
}

} // namespace

MainMenu::MainMenu(QMenuBar* bar) : QObject(bar), m_bar(bar)
{
    for (const MenuRow& row : menuRows()) {
        QWidget* parent =
            row.parent.isEmpty() ? static_cast<QWidget*>(m_bar) : action(row.parent)->menu<QMenu*>();
        QAction* entry = addEntry(parent, row);
        entry->setObjectName(row.name);
        entry->setEnabled(row.enabled);
        entry->setVisible(row.visible);
        if (row.checkable) {
            entry->setCheckable(true);
            entry->setChecked(true);
        }
        if (!row.shortcut.isEmpty()) {
            entry->setShortcut(QKeySequence::fromString(row.shortcut, QKeySequence::PortableText));
        }
        m_actions.insert(row.name, entry);
    }
}

void MainMenu::setCaptions(Language language)
{
    m_divisionWord = mainText(MainText::Division, language);
    for (const MenuRow& row : menuRows()) {
        const QString& caption = language == Language::German ? row.germanCaption : row.englishCaption;
        if (!caption.isNull()) {
            action(row.name)->setText(caption);
        }
    }
}

static QString shipForceName(bool forceA)
{
    return forceA ? QStringLiteral("mnuEditShipForceA") : QStringLiteral("mnuEditShipForceB");
}

QAction* MainMenu::action(const QString& name) const
{
    QAction* found = m_actions.value(name);
    if (!found) {
        throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("No menu entry %1").arg(name));
    }
    return found;
}

void MainMenu::setEnabled(const QString& name, bool enabled) const
{
    action(name)->setEnabled(enabled);
}

void MainMenu::setVisible(const QString& name, bool visible) const
{
    action(name)->setVisible(visible);
}

void MainMenu::resetForceMenus()
{
    for (const bool forceA : sides) {
        for (int division = 1; division <= divisionsPerSide; ++division) {
            setVisible(editEntryName(forceA, division), division == 1);
            setVisible(QLatin1StringView(repositionRow(forceA, division).entry), division == 1);
        }
    }
    for (const char* menu : {"editForceA", "editForceB", "mnuRepoForceA", "mnuRepoForceB"}) {
        setEnabled(QLatin1StringView(menu), false);
    }
    m_blueDivisionCount = 0;
    m_redDivisionCount = 0;
}

void MainMenu::addRepositionMenuEntry(const QString& /*name*/, const QString& side)
{
    const bool forceA = sideOfWord(side) == Side::Blue;
    int& count = forceA ? m_blueDivisionCount : m_redDivisionCount;
    ++count;
    if (count <= divisionsPerSide) {
        showRepositionEntry(forceA, count);
    }
}

void MainMenu::enableForceMenus(int blueDivisions, int redDivisions)
{
    for (const bool forceA : sides) {
        const int count = forceA ? blueDivisions : redDivisions;
        if (count < 1 || count > divisionsPerSide) {
            continue;
        }
        showRepositionEntry(forceA, count);
        setVisible(editEntryName(forceA, count), true);
    }
}

// With its number, which the captions of the German program don't have right for Force B.
void MainMenu::showRepositionEntry(bool forceA, int count)
{
    QAction* entry = action(QLatin1StringView(repositionRow(forceA, count).entry));
    entry->setText(QStringLiteral("%1 %2").arg(m_divisionWord).arg(count));
    entry->setVisible(true);
    if (!forceA && count == 1) {
        setVisible(QStringLiteral("mnuSeperator3"), true);
    }
}

void MainMenu::hideEditShipMenus()
{
    showEditShips({});
}

void MainMenu::showEditShips(const std::vector<EditShipEntry>& ships)
{
    QHash<QString, QString> captions; // of what is shown; the menus of divisions have their own
    for (const EditShipEntry& ship : ships) {
        const bool forceA = ship.side == Side::Blue;
        captions.insert(shipForceName(forceA), QString());
        if (ship.division == 0) {
            continue;
        }
        captions.insert(shipDivisionName(forceA, ship.division), QString());
        if (ship.ship <= shipEntries(ship.division)) {
            captions.insert(shipEntryName(forceA, ship.division, ship.ship), ship.caption);
        }
    }
    // What stays shown is not hidden in between, so that an open menu doesn't flicker.
    for (const bool forceA : sides) {
        setEnabled(shipForceName(forceA), captions.contains(shipForceName(forceA)));
        for (int division = 1; division <= hiddenDivisions; ++division) {
            const QString menu = shipDivisionName(forceA, division);
            setVisible(menu, captions.contains(menu));
            for (int ship = 2; ship <= shipEntries(division); ++ship) {
                const QString entry = shipEntryName(forceA, division, ship);
                setVisible(entry, captions.contains(entry));
            }
        }
    }
    for (auto shown = captions.cbegin(); shown != captions.cend(); ++shown) {
        setVisible(shown.key(), true);
        if (!shown.value().isEmpty()) {
            action(shown.key())->setText(shown.value());
        }
    }
}

} // namespace torvane
