#pragma once

#include "store/force_sizes.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>

namespace torvane {

class ShipCatalogue;

/// Speed limits in knots: a row a sea state from 1, a column a ship type.
inline constexpr std::array<std::array<int, shipTypes.size()>, 8> seaStateSpeedTable{{
    {55, 55, 55, 55, 55, 40},
    {50, 50, 50, 50, 50, 35},
    {40, 40, 40, 40, 40, 30},
    {35, 35, 35, 35, 35, 25},
    {32, 32, 30, 30, 30, 20},
    {29, 29, 27, 26, 25, 15},
    {24, 24, 22, 21, 20, 10},
    {20, 20, 17, 16, 15, 10},
}};

/// The table's limit in knots. Throws SubscriptOutOfRange for a sea state outside 1 to 8 or another type.
int seaStateSpeed(double seaState, const QString& type);

/// What the limit of a division's speed follows from.
struct DivisionSpeeds
{
    int listedShips = 0; ///< lines of the Division file
    QStringList ships{}; ///< rows of the grid: type of two letters, blank, name
    QString seaState{};  ///< as the environment dialog shows it
};

/// The highest speed of a division in knots: at most 50, its ships' top speeds, and what the sea allows,
/// which is looked up only for a ship that is slower than those before it. Throws NoCurrentRecord for a ship
/// or a class that the catalogue lacks, and as `seaStateSpeed` does.
double highestSpeed(const DivisionSpeeds& division, ShipCatalogue& catalogue);

/// The speed box after a step: above the limit comes 1, below 1 the limit, and 8 in a division without ships.
/// Throws as `highestSpeed` does.
QString limitSpeed(const QString& speed, const DivisionSpeeds& division, ShipCatalogue& catalogue);

/// The speed box after a step of 1 knot either way, before the limit.
QString steppedSpeed(const QString& speed, int step);

} // namespace torvane
