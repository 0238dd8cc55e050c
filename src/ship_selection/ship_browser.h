#pragma once

#include "ship_selection/ship_lists.h"

#include <QStringList>

#include <vector>

namespace torvane {

/// What stands in the first column of a row whose ship is picked.
inline constexpr QLatin1StringView pickedMark{"  *   --->"};

/// The ship grid's contents and the rules of filter, sort, search and marks. Rows count from 0, the row of
/// headers not among them. A fill takes the marks away.
class ShipBrowser
{
public:
    /// Shows nothing until the first fill, and the lists from then on.
    void setLists(ShipLists lists);
    bool hasLists() const { return m_hasLists; }

    /// Code of the navy whose list is filtered, sorted and searched; none of the four before the first match.
    const QString& currentNavy() const { return m_currentNavy; }

    int rowCount() const { return static_cast<int>(m_marks.size()); }
    const ShipRow& ship(int row) const;
    bool isMarked(int row) const { return m_marks[static_cast<std::size_t>(row)]; }
    /// What a cell shows.
    QString text(int row, ShipColumn column) const;

    /// Filters by the navy of a force, as the division dialog names it, and fills the grid. Null, with
    /// everything as it was, for any other text.
    const ListedNavy* selectForceNavy(QStringView force, Language language);
    /// Filters by a navy and fills the grid; the force that picks has no say.
    void filterNavy(const QString& code);
    /// Fills the grid from a list. See `ShipLists` for its name.
    void fillShipGrid(const QString& navy);
    /// Sorts the filtered list for good and fills the grid from it. Throws as `ShipLists::sortShips` does.
    void sortShips(ShipColumn column);
    /// What a press on the row of headers does: sorts by the current column, then fills from the list of all.
    void pressHeaderRow(ShipColumn currentColumn);

    /// Marks the row of each of these ships.
    void markSelectedShips(const QStringList& names);
    void mark(int row) { m_marks[static_cast<std::size_t>(row)] = true; }
    /// Takes the mark from the first row of that name, upper and lower case alike, among so many rows from
    /// the first. False if there is none.
    bool unmark(const QString& name, int rows);

    /// The row of the ship that a search finds.
    std::optional<int> find(const QString& answer) const { return m_lists.find(m_currentNavy, answer); }

private:
    ShipLists m_lists;
    bool m_hasLists = false;
    QString m_currentNavy;
    QString m_shownNavy;       ///< whose list the grid was filled from
    std::vector<bool> m_marks; ///< one a row of the grid
};

} // namespace torvane
