#include "ship_selection/ship_lists.h"

#include "platform/capitals.h"
#include "platform/number_text.h"
#include "platform/runtime_error.h"

#include <functional>
#include <utility>

namespace torvane {

namespace {

/// The list whose numbers are sorted in place of those of all.
constexpr QStringView hitPointNavyOfAll(u"KM");

ShipRow currentShip(const RecordSource& ships)
{
    ShipRow row;
    for (std::size_t i = 0; i < row.fields.size(); ++i) {
        row.fields[i] = ships.value(QLatin1StringView(shipGridColumns[i + 1].field).toString());
    }
    return row;
}

void requireRoom(const ShipLists::List& list, int rows, QStringView what)
{
    if (list.size() >= static_cast<std::size_t>(rows)) {
        throw RuntimeError(
            RuntimeError::SubscriptOutOfRange,
            QStringLiteral("The ship catalogue has more than %1 ships of %2, which is what the list takes. "
                           "Put a sound copy of ShipDatabase.mdb in its place or install the editor again.")
                .arg(rows)
                .arg(what));
    }
}

/// Puts the rows in an order of their indices.
void arrange(ShipLists::List& rows, const std::vector<std::size_t>& order)
{
    ShipLists::List arranged;
    arranged.reserve(rows.size());
    for (const std::size_t from : order) {
        arranged.push_back(std::move(rows[from]));
    }
    rows = std::move(arranged);
}

template <typename Key, typename IsAfter>
void sortBy(ShipLists::List& rows, Key (*keyOf)(const QString&), ShipColumn column, IsAfter isAfter)
{
    std::vector<Key> keys;
    keys.reserve(rows.size());
    for (const ShipRow& row : rows) {
        keys.push_back(keyOf(row[column]));
    }
    arrange(rows, shellSorted(std::span<const Key>(keys), isAfter));
}

} // namespace

const ListedNavy* listedNavy(QStringView code)
{
    for (const ListedNavy& navy : listedNavies) {
        if (code == navy.code) {
            return &navy;
        }
    }
    return nullptr;
}

const ListedNavy* navyOfForce(QStringView force, Language language)
{
    for (const ListedNavy& navy : listedNavies) {
        if (force == navy.force.in(language)) {
            return &navy;
        }
    }
    return nullptr;
}

ShipLists::ShipLists(RecordSource& ships)
{
    for (ships.MoveFirst(); !ships.isEOF(); ships.MoveNext()) {
        add(currentShip(ships));
    }
}

std::size_t ShipLists::place(QStringView navy)
{
    const ListedNavy* const listed = listedNavy(navy);
    return static_cast<std::size_t>(listed ? listed - listedNavies.data() : std::ssize(listedNavies));
}

void ShipLists::add(ShipRow ship)
{
    const QString& code = ship[ShipColumn::Navy];
    if (const ListedNavy* const navy = listedNavy(code)) {
        List& ofNavy = m_lists[place(code)];
        requireRoom(ofNavy, navy->rows, QStringLiteral("the navy ") + code);
        ofNavy.push_back(ship);
    }
    requireRoom(m_lists.back(), listedShips, u"all navies together");
    m_lists.back().push_back(std::move(ship));
}

void ShipLists::sortShips(QStringView navy, ShipColumn column)
{
    if (column == ShipColumn::Selected) {
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           QStringLiteral("The first column of the ship list is no field to sort by."));
    }
    if (column != ShipColumn::HitPts) {
        sortBy<QString>(
            m_lists[place(navy)], [](const QString& text) { return text; }, column, std::greater<>());
        return;
    }
    // The list of all has no sort by number of its own: it is the KM list that is sorted. Kept.
    sortBy<double>(
        m_lists[place(listedNavy(navy) ? navy : hitPointNavyOfAll)],
        [](const QString& text) { return numberValue(text); }, column, std::less<>());
}

std::optional<int> ShipLists::find(QStringView navy, const QString& name) const
{
    const List& rows = list(navy);
    const QString wanted = inCapitals(name.trimmed());
    // The walk stops before the last row: the last ship of a list is not found. Kept.
    for (std::size_t row = 0; row + 1 < rows.size(); ++row) {
        if (inCapitals(rows[row][ShipColumn::Name].trimmed()) == wanted) {
            return static_cast<int>(row);
        }
    }
    return std::nullopt;
}

} // namespace torvane
