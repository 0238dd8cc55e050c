#pragma once

#include <QList>
#include <QString>

#include <cstdint>

namespace torvane::testing {

/// Numbers from a seed, the same on every machine: all that a run of the monkey decides comes from one of
/// these.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t next()
    {
        m_state += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }
    /// From 0 below `limit`, which is above 0.
    int below(int limit) { return static_cast<int>(next() % static_cast<std::uint64_t>(limit)); }
    /// In `percent` of a hundred cases.
    bool chance(int percent) { return below(100) < percent; }
    /// Once in so many cases.
    bool oneIn(int cases) { return below(cases) == 0; }
    /// In [0, 1).
    double fraction() { return static_cast<double>(next() >> 11U) * 0x1.0p-53; }
    /// One of a list that is not empty.
    template <typename List>
    decltype(auto) oneOf(List&& list)
    {
        return list[static_cast<decltype(std::size(list))>(below(static_cast<int>(std::size(list))))];
    }

private:
    std::uint64_t m_state;
};

} // namespace torvane::testing
