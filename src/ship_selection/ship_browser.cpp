#include "ship_selection/ship_browser.h"

#include "platform/capitals.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace torvane {

void ShipBrowser::setLists(ShipLists lists)
{
    m_lists = std::move(lists);
    m_hasLists = true;
    m_marks.clear();
}

const ShipRow& ShipBrowser::ship(int row) const
{
    return m_lists.list(m_shownNavy)[static_cast<std::size_t>(row)];
}

QString ShipBrowser::text(int row, ShipColumn column) const
{
    if (column == ShipColumn::Selected) {
        return isMarked(row) ? QString(pickedMark) : QString();
    }
    return ship(row)[column];
}

const ListedNavy* ShipBrowser::selectForceNavy(QStringView force, Language language)
{
    const ListedNavy* const navy = navyOfForce(force, language);
    if (navy) {
        filterNavy(navy->code);
    }
    return navy;
}

void ShipBrowser::filterNavy(const QString& code)
{
    m_currentNavy = code;
    fillShipGrid(code);
}

void ShipBrowser::fillShipGrid(const QString& navy)
{
    m_shownNavy = navy;
    m_marks.assign(m_lists.list(navy).size(), false);
}

void ShipBrowser::sortShips(ShipColumn column)
{
    m_lists.sortShips(m_currentNavy, column);
    fillShipGrid(m_currentNavy);
}

void ShipBrowser::pressHeaderRow(ShipColumn currentColumn)
{
    sortShips(currentColumn);
    fillShipGrid(QString());
}

void ShipBrowser::markSelectedShips(const QStringList& names)
{
    QHash<QStringView, int> rows;
    const int last = std::min(rowCount(), static_cast<int>(m_lists.list(m_currentNavy).size())) - 1;
    for (int row = last; row >= 0; --row) {
        rows.insert(ship(row)[ShipColumn::Name], row); // backwards, so that the first row of a name stays
    }
    for (const QString& name : names) {
        if (const auto found = rows.constFind(name); found != rows.constEnd()) {
            mark(*found);
        }
    }
}

bool ShipBrowser::unmark(const QString& name, int rows)
{
    const QString wanted = inCapitals(name.trimmed());
    const int end = std::min(rows, rowCount());
    for (int row = 0; row < end; ++row) {
        if (inCapitals(ship(row)[ShipColumn::Name].trimmed()) == wanted) {
            m_marks[static_cast<std::size_t>(row)] = false;
            return true;
        }
    }
    return false;
}

} // namespace torvane
