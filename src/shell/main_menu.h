#pragma once

#include "map/map_plotting.h"
#include "platform/language.h"
#include "store/force_sizes.h"
#include "store/side.h"

#include <QHash>
#include <QObject>
#include <QString>

#include <array>
#include <vector>

class QAction;
class QMenuBar;

namespace torvane {

/// The main window's menu tree, made from its table, and what is done to entries by name.
class MainMenu : public QObject
{
    Q_OBJECT

public:
    explicit MainMenu(QMenuBar* bar);

    /// Gives each entry the caption that it has in a language; entries without one stay as they are.
    void setCaptions(Language language);

    /// The action of an entry or menu by its design name. Throws SubscriptOutOfRange for an unknown name.
    QAction* action(const QString& name) const;

    void setEnabled(const QString& name, bool enabled) const;
    void setVisible(const QString& name, bool visible) const;

    /// Back to a scenario without divisions: the first entry of each side alone, and the side's menus greyed.
    void resetForceMenus();

    /// Counts a division in and shows its Reposition entry, captioned with the word for a division and its
    /// number within its side. `name` is not used. Anything but "Blue" counts for Force B.
    void addRepositionMenuEntry(const QString& name, const QString& side);

    /// Shows the Edit and Reposition entries of the newest division of each side, the latter captioned with
    /// its number. What was shown stays shown; a count of 0 or beyond 6 shows nothing.
    void enableForceMenus(int blueDivisions, int redDivisions);

    /// Before each plot: greys the Edit Ship menus and hides their entries of divisions 1 to 4, but for the
    /// first ships. Divisions 5 and 6 stay as they are.
    void hideEditShipMenus();
    /// The same, and then the plotted ships: their force greyed no longer, their division and their own entry
    /// shown. A division without a number, and a ship without an entry, show none.
    void showEditShips(const std::vector<EditShipEntry>& ships);

    /// Divisions counted in since the last reset.
    int blueDivisionCount() const { return m_blueDivisionCount; }
    int redDivisionCount() const { return m_redDivisionCount; }

private:
    /// The menus of a force's ships, found once: each plot goes over all of them.
    struct ShipMenus
    {
        struct Division
        {
            QAction* menu = nullptr;
            std::vector<QAction*> ships; ///< in order
        };
        QAction* menu = nullptr;
        std::array<Division, divisionsPerSide> divisions; ///< by number, from 1
    };

    void findShipMenus();
    ShipMenus& shipMenus(Side side) { return m_shipMenus.at(side == Side::Blue ? 0 : 1); }
    void showRepositionEntry(bool forceA, int count);

    QMenuBar* m_bar;
    QHash<QString, QAction*> m_actions;
    std::array<ShipMenus, 2> m_shipMenus;
    QString m_divisionWord;
    int m_blueDivisionCount = 0;
    int m_redDivisionCount = 0;
};

} // namespace torvane
