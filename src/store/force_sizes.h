#pragma once

#include <QLatin1StringView>

#include <array>

namespace torvane {

/// The divisions that have a place in the menus, and the files of their ships.
inline constexpr int divisionsPerSide = 6;
/// The most ships that a division, a force and a scenario can have.
inline constexpr int shipsPerDivision = 10;
inline constexpr int shipsPerForce = 28;
inline constexpr int shipsPerScenario = 32;

/// The types of ship, in the order of the columns of every table that goes by type.
inline constexpr std::array<QLatin1StringView, 6> shipTypes{QLatin1StringView{"BB"}, QLatin1StringView{"BC"},
                                                            QLatin1StringView{"CA"}, QLatin1StringView{"CL"},
                                                            QLatin1StringView{"DD"}, QLatin1StringView{"TR"}};

} // namespace torvane
