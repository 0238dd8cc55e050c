#pragma once

#include "catalogue/ship_data.h"

#include <array>

namespace torvane {

/// What the catalogue's database says of a class beyond the facts. All formulas stand in derived_values.cpp
/// and are explained in docs/catalogue.md.

struct Rounds
{
    int highExplosive = 0;
    int armourPiercing = 0;
    int common = 0;

    int all() const { return highExplosive + armourPiercing + common; }
    bool operator==(const Rounds&) const = default;
};

/// How much shellfire a ship of the class takes: her size, times her armour. At least 1.
int hitPoints(const ShipClass& shipClass);

/// How much flooding a ship of the class takes: her volume, times her waterline armour. At least 1.
int floatPoints(const ShipClass& shipClass);

/// Rounds for the main guns of one magazine; none if no turret draws on it.
Rounds mainMagazine(const ShipClass& shipClass, Magazine magazine);

Rounds secondaryMagazine(const ShipClass& shipClass);

/// Torpedoes of mounts 1 to 4: those in the tubes and the mount's share of the reloads, in proportion to its
/// tubes. They add up to the number carried.
std::array<int, 4> torpedoesOfMounts(const ShipClass& shipClass);

/// A number of rounds by kind; they add up to the number. The bigger the gun, the more armour-piercing.
Rounds roundsByKind(int rounds, double calibreInches);

} // namespace torvane
