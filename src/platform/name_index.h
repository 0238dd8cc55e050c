#pragma once

#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace torvane {

constexpr char foldedCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

/// Whether two names are the same but for ASCII case.
bool sameName(QByteArrayView a, QByteArrayView b);

/// A hash alike for names that are the same. It differs from run to run, so that no file can be made to
/// collide. `salt` keeps names of different owners apart.
std::uint32_t nameHash(QByteArrayView name, std::size_t salt);

/// Finds entries, numbered by their owner, through a hash of their names. Open addressing, linear probing.
class NameIndex
{
public:
    using Entry = std::uint32_t;
    static constexpr Entry none = 0xffffffff;

    /// Room for so many entries.
    void reserve(std::size_t entries);

    /// The entry inserted with this hash for which `matches(entry)` holds, or `none`.
    template <typename Matches>
    Entry find(std::uint32_t hash, Matches matches) const
    {
        if (m_places.empty()) {
            return none;
        }
        const std::size_t mask = m_places.size() - 1;
        for (std::size_t i = hash & mask; m_places[i].entry != none; i = (i + 1) & mask) {
            if (m_places[i].hash == hash && matches(m_places[i].entry)) {
                return m_places[i].entry;
            }
        }
        return none;
    }

    /// Adds an entry that isn't there yet.
    void insert(std::uint32_t hash, Entry entry);

private:
    struct Place
    {
        std::uint32_t hash = 0;
        Entry entry = none;
    };
    void resize(std::size_t places);
    void put(Place place);

    std::vector<Place> m_places; ///< a power of two of them, at most half taken
    std::size_t m_used = 0;
};

} // namespace torvane
