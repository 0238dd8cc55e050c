#pragma once

#include "overview/force_navies.h"
#include "platform/bilingual.h"
#include "store/record_source.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace torvane {

/// Columns of the ship grid, in order.
enum class ShipColumn { Selected, Type, Name, Class, Navy, HitPts, FloatPts, Torps, ShortName };

struct ShipGridColumn
{
    const char* field; ///< of `ShipDataB`; none for the first
    Bilingual header;
    int twips; ///< width; 1440 to the inch
};

inline constexpr std::array<ShipGridColumn, 9> shipGridColumns{{
    {nullptr, {"Selected", "Gewählt"}, 750},
    {"Type", {"Type", "Typ"}, 500},
    {"Name", inBoth("Name"), 1700},
    {"Class", {"Class", "Klasse"}, 1350},
    {"Navy", {"Navy", "Marine"}, 500},
    {"HitPts", {"HitPts", "Pkt-R"}, 650},
    {"FloatPts", {"FloatPts", "Pkt-W"}, 650},
    {"Torps?", inBoth("Torps?"), 650},
    {"ShortName", {"ShrtName", "Kurzer Name"}, 1100},
}};

/// A navy with a list of its own.
struct ListedNavy
{
    QLatin1StringView code; ///< what `Navy` of a ship holds
    int rows;               ///< ships that its list takes
    int removalRows;        ///< rows that Remove looks through for the ship's mark, from the first
    Bilingual force;        ///< how the division dialog names it
};

inline constexpr std::array<ListedNavy, 4> listedNavies{{
    {QLatin1StringView("RN"), 424, 424, navyRN},
    {QLatin1StringView("USN"), 399, 399, navyUSN},
    // The removal stops short of the list's end: the mark of a ship beyond stays until the next fill. Kept.
    {QLatin1StringView("KM"), 198, 129, navyKM},
    {QLatin1StringView("IJN"), 245, 245, navyIJN},
}};
/// Ships that the list of all takes.
inline constexpr int listedShips = 1266;

/// The navy of a code, or null.
const ListedNavy* listedNavy(QStringView code);
/// The navy of a force, by the name that the division dialog shows, or null.
const ListedNavy* navyOfForce(QStringView force, Language language);

/// A ship as the catalogue lists it: the fields of the grid's columns from the second on.
struct ShipRow
{
    std::array<QString, shipGridColumns.size() - 1> fields;

    const QString& operator[](ShipColumn column) const
    {
        return fields[static_cast<std::size_t>(column) - 1];
    }
};

/// The ships of the catalogue in memory: a list a navy and one of all, in stored order until they are sorted.
/// A list is named by its navy's code; any other text means the list of all.
class ShipLists
{
public:
    using List = std::vector<ShipRow>;

    /// Empty lists.
    ShipLists() = default;
    /// Walks `ships` from its first row to its end. A ship of a navy that has no list is in the list of all
    /// alone. Throws SubscriptOutOfRange, naming navy and size, for one ship more than a list takes, and what
    /// the record source throws.
    explicit ShipLists(RecordSource& ships);

    const List& list(QStringView navy) const { return m_lists[place(navy)]; }

    /// Sorts a list for good by a column: text ascending by its code points, `HitPts` by number, the greatest
    /// first, with `FloatPts` having no say. Of the list of all, `HitPts` sorts the KM list in its stead.
    /// Throws SubscriptOutOfRange for the first column, and Overflow for a number beyond all bounds, with the
    /// list as it was.
    void sortShips(QStringView navy, ShipColumn column);

    /// The row of the ship of that name, upper and lower case alike, in a list without its last row.
    std::optional<int> find(QStringView navy, const QString& name) const;

private:
    static std::size_t place(QStringView navy);
    void add(ShipRow ship);

    std::array<List, listedNavies.size() + 1> m_lists; ///< of each navy, and of all
};

/// The order in which a Shell sort leaves rows with these keys: gaps halved from half the number, passes
/// repeated until one exchanges nothing. Rows with equal keys end where the gaps bring them.
template <typename Key, typename IsAfter>
std::vector<std::size_t> shellSorted(std::span<const Key> keys, IsAfter isAfter)
{
    std::vector<std::size_t> order(keys.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i] = i;
    }
    for (std::size_t gap = keys.size() / 2; gap >= 1; gap /= 2) {
        for (bool exchanged = true; exchanged;) {
            exchanged = false;
            for (std::size_t i = 0; i + gap < order.size(); ++i) {
                if (isAfter(keys[order[i]], keys[order[i + gap]])) {
                    std::swap(order[i], order[i + gap]);
                    exchanged = true;
                }
            }
        }
    }
    return order;
}

} // namespace torvane
