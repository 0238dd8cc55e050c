#include "platform/name_index.h"

#include <QHashFunctions>
#include <QVarLengthArray>

#include <algorithm>

namespace torvane {

static constexpr std::size_t fewestPlaces = 16;

bool sameName(QByteArrayView a, QByteArrayView b)
{
    // Mostly they are written alike, which is quickly seen.
    return a.size() == b.size() && (a == b || std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
                                        return foldedCase(x) == foldedCase(y);
                                    }));
}

std::uint32_t nameHash(QByteArrayView name, std::size_t salt)
{
    if (name.isEmpty()) {
        return static_cast<std::uint32_t>(salt);
    }
    QVarLengthArray<char, 128> text(name.size());
    std::transform(name.begin(), name.end(), text.begin(), foldedCase);
    const auto size = static_cast<std::size_t>(text.size());
    const std::uint64_t hash = qHashBits(text.data(), size, QHashSeed::globalSeed() + salt);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

void NameIndex::reserve(std::size_t entries)
{
    std::size_t places = fewestPlaces;
    while (places < 2 * entries) {
        places *= 2;
    }
    if (places > m_places.size()) {
        resize(places);
    }
}

void NameIndex::insert(std::uint32_t hash, Entry entry)
{
    if (2 * (m_used + 1) > m_places.size()) {
        resize(std::max(fewestPlaces, 2 * m_places.size()));
    }
    put({hash, entry});
    ++m_used;
}

void NameIndex::resize(std::size_t places)
{
    std::vector<Place> old(places);
    m_places.swap(old);
    for (const Place& place : old) {
        if (place.entry != none) {
            put(place);
        }
    }
}

void NameIndex::put(Place place)
{
    const std::size_t mask = m_places.size() - 1;
    std::size_t i = place.hash & mask;
    while (m_places[i].entry != none) {
        i = (i + 1) & mask;
    }
    m_places[i] = place;
}

} // namespace torvane
