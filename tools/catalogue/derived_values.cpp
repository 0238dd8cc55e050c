#include "catalogue/derived_values.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace torvane {

namespace {

// Surface goes with the power 2/3 of the displacement. Flooding is a matter of volume, yet a larger ship's
// spaces are larger too, so that she gains less than in proportion.
constexpr double hitExponent = 2.0 / 3.0;
constexpr double floatExponent = 3.0 / 4.0;
constexpr double floatScale = 0.5;

// Sixteen inches of belt, or eight of deck, are worth as much again as the bare hull. The belt keeps the
// waterline, the deck doesn't.
constexpr double beltToDouble = 16.0;
constexpr double deckToDouble = 8.0;
constexpr double beltToDoubleFloat = 24.0;

// Few large holds.
constexpr double merchantHull = 0.5;

double hullFactor(Hull hull)
{
    return hull == Hull::Merchant ? merchantHull : 1.0;
}

int wholePoints(double points)
{
    return std::max(1, static_cast<int>(std::lround(points)));
}

// Of the rounds of a 4-inch gun none is armour-piercing, of those of a 16-inch gun seven tenths.
double armourPiercingShare(double calibre)
{
    return 0.7 * std::clamp((calibre - 4) / 12, 0.0, 1.0);
}

// High explosive falls from six tenths to one tenth over the same calibres. The rest is common.
double highExplosiveShare(double calibre)
{
    return 0.6 - 0.5 * std::clamp((calibre - 4) / 12, 0.0, 1.0);
}

// Outfits of the time: light guns fire at aircraft too and carry more.
int secondaryShellsPerGun(double calibre)
{
    if (calibre >= 5.5) {
        return 150;
    }
    return calibre >= 4 ? 250 : 300;
}

} // namespace

int hitPoints(const ShipClass& shipClass)
{
    const double armour = 1 + shipClass.beltInches / beltToDouble + shipClass.deckInches / deckToDouble;
    return wholePoints(hullFactor(shipClass.hull) * std::pow(shipClass.standardTons, hitExponent) * armour);
}

int floatPoints(const ShipClass& shipClass)
{
    const double armour = 1 + shipClass.beltInches / beltToDoubleFloat;
    const double volume = floatScale * std::pow(shipClass.standardTons, floatExponent);
    return wholePoints(hullFactor(shipClass.hull) * volume * armour);
}

Rounds mainMagazine(const ShipClass& shipClass, Magazine magazine)
{
    int guns = 0;
    for (std::size_t i = 0; i < turretPlaces.size(); ++i) {
        guns += turretPlaces.at(i).magazine == magazine ? shipClass.gunsAtPlace.at(i) : 0;
    }
    return roundsByKind(guns * shipClass.shellsPerGun, shipClass.mainCalibreInches);
}

Rounds secondaryMagazine(const ShipClass& shipClass)
{
    const int guns = std::accumulate(shipClass.secondaryGuns.begin(), shipClass.secondaryGuns.end(), 0);
    const double calibre = shipClass.secondaryCalibreInches;
    return roundsByKind(guns * secondaryShellsPerGun(calibre), calibre);
}

std::array<int, 4> torpedoesOfMounts(const ShipClass& shipClass)
{
    std::array<int, 4> torpedoes{};
    int tubesLeft = std::accumulate(shipClass.tubesInMount.begin(), shipClass.tubesInMount.end(), 0);
    int left = shipClass.torpedoesCarried;
    // Each mount takes its part of what is left, rounded up: an odd torpedo lies at the foremost mount.
    for (std::size_t i = 0; i < torpedoes.size() && tubesLeft > 0; ++i) {
        const int tubes = shipClass.tubesInMount.at(i);
        torpedoes.at(i) = (left * tubes + tubesLeft - 1) / tubesLeft;
        left -= torpedoes.at(i);
        tubesLeft -= tubes;
    }
    return torpedoes;
}

Rounds roundsByKind(int rounds, double calibreInches)
{
    const int highExplosive = static_cast<int>(std::lround(rounds * highExplosiveShare(calibreInches)));
    const int armourPiercing = static_cast<int>(std::lround(rounds * armourPiercingShare(calibreInches)));
    return {.highExplosive = highExplosive,
            .armourPiercing = armourPiercing,
            .common = rounds - highExplosive - armourPiercing};
}

} // namespace torvane
