#include "shell/main_menu.h"

#include "platform/runtime_error.h"
#include "shell/captions.h"
#include "shell/commands.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include <span>

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
    findShipMenus();
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

void MainMenu::findShipMenus()
{
    for (const bool forceA : sides) {
        ShipMenus& force = shipMenus(forceA ? Side::Blue : Side::Red);
        force.menu =
            action(forceA ? QStringLiteral("mnuEditShipForceA") : QStringLiteral("mnuEditShipForceB"));
        for (int number = 1; number <= divisionsPerSide; ++number) {
            ShipMenus::Division& division = force.divisions.at(static_cast<std::size_t>(number - 1));
            division.menu = action(shipDivisionName(forceA, number));
            for (int ship = 1; ship <= shipEntries(number); ++ship) {
                division.ships.push_back(action(shipEntryName(forceA, number, ship)));
            }
        }
    }
}

void MainMenu::showEditShips(const std::vector<EditShipEntry>& ships)
{
    QHash<QAction*, QString> captions; // of what is shown; the menus of divisions have their own
    for (const EditShipEntry& ship : ships) {
        const ShipMenus& force = shipMenus(ship.side);
        captions.insert(force.menu, QString());
        if (ship.division == 0) {
            continue;
        }
        const ShipMenus::Division& division = force.divisions.at(static_cast<std::size_t>(ship.division - 1));
        captions.insert(division.menu, QString());
        if (ship.ship <= shipEntries(ship.division)) {
            captions.insert(division.ships.at(static_cast<std::size_t>(ship.ship - 1)), ship.caption);
        }
    }
    // What stays shown is not hidden in between, so that an open menu doesn't flicker.
    for (const ShipMenus& force : m_shipMenus) {
        force.menu->setEnabled(captions.contains(force.menu));
        for (const ShipMenus::Division& division : std::span(force.divisions).first<hiddenDivisions>()) {
            division.menu->setVisible(captions.contains(division.menu));
            for (QAction* entry : std::span(division.ships).subspan(1)) {
                entry->setVisible(captions.contains(entry));
            }
        }
    }
    for (auto shown = captions.cbegin(); shown != captions.cend(); ++shown) {
        shown.key()->setVisible(true);
        if (!shown.value().isEmpty()) {
            shown.key()->setText(shown.value());
        }
    }
}

} // namespace torvane
