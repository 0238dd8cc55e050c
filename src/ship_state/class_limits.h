#pragma once

#include "ship_state/gunnery.h"
#include "store/ship_catalogue.h"

#include <array>
#include <cstdint>

namespace torvane {

/// What a class has when it is whole: points, rounds and guns. The torpedoes have no control.
struct ClassLimits
{
    std::int32_t hull = 0;
    std::int32_t floatation = 0;
    std::array<std::int32_t, magazines.size()> rounds{};
    std::array<std::int16_t, secondaryGuns.size()> secondaryGunCounts{};
    std::array<std::int32_t, torpedoMounts.size()> torpedoes{};
    std::array<bool, turrets.size()> hasTurret{};
};

/// Scans all classes for one and copies its fields, the last of several of that name; an unknown class leaves
/// the limits as they are. Moves `ShipDaClass`. Throws Overflow for a field beyond its size and RuntimeError
/// if the catalogue can't be read; the limits then stay as they are.
void loadClassLimits(ClassLimits& limits, ShipCatalogue& catalogue, const QString& shipClass);

} // namespace torvane
