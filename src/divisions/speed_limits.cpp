#include "divisions/speed_limits.h"

#include "overview/typed_values.h"
#include "platform/number_text.h"
#include "platform/runtime_error.h"
#include "ship_selection/ship_line.h"
#include "store/force_sizes.h"
#include "store/ship_catalogue.h"

#include <algorithm>

namespace torvane {

namespace {

constexpr double startLimit = 50;

/// Beyond a million one number is as good as another: it wraps all the same.
double wholeNumber(const QString& text)
{
    constexpr double bound = 1'000'000;
    return roundEven(std::clamp(boundedValue(text), -bound, bound));
}

double topSpeed(const QString& line, ShipCatalogue& catalogue)
{
    catalogue.shipToClass(line.mid(shipLineTypeLength).trimmed());
    return wholeNumber(catalogue.ShipDaClass().value(u"e"));
}

} // namespace

int seaStateSpeed(double seaState, const QString& type)
{
    const auto* const column = std::ranges::find(shipTypes, type);
    if (!(seaState >= 1 && seaState <= static_cast<double>(seaStateSpeedTable.size()))) {
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           QStringLiteral("Subscript out of range: sea state %1").arg(textOf(seaState)));
    }
    if (column == shipTypes.end()) {
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           QStringLiteral("Subscript out of range: ship type \"%1\"").arg(type));
    }
    const auto row = static_cast<std::size_t>(seaState) - 1;
    return seaStateSpeedTable.at(row).at(static_cast<std::size_t>(column - shipTypes.begin()));
}

double highestSpeed(const DivisionSpeeds& division, ShipCatalogue& catalogue)
{
    double limit = startLimit;
    for (const QString& ship : division.ships) {
        const double speed = topSpeed(ship, catalogue);
        // The sea slows only a ship that is slower than the division so far. Kept.
        if (speed >= limit) {
            continue;
        }
        const double atSea =
            seaStateSpeed(wholeNumber(division.seaState), catalogue.ShipDataB().value(u"Type"));
        limit = std::min(speed, atSea);
    }
    return limit;
}

QString limitSpeed(const QString& speed, const DivisionSpeeds& division, ShipCatalogue& catalogue)
{
    if (division.listedShips == 0) {
        return QStringLiteral("8");
    }
    const double limit = highestSpeed(division, catalogue);
    double knots = wholeNumber(speed);
    if (knots > limit) {
        knots = 1;
    }
    if (knots < 1) {
        knots = limit;
    }
    return textOf(knots);
}

QString steppedSpeed(const QString& speed, int step)
{
    return textOf(wholeNumber(speed) + step);
}

} // namespace torvane
