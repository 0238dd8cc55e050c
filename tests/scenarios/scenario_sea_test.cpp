#include "divisions/formation_placement.h"
#include "scenarios/kept_scenarios.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <limits>

namespace torvane::testing {
namespace {

struct ShipAtSea
{
    QString name;
    QString shipClass;
    Side side;
    Yards at;
};

double distance(Yards from, Yards to)
{
    return std::hypot(from.x - to.x, from.z - to.z);
}

/// Where the scenarios put their ships.
class ScenarioSea : public KeptScenario
{
protected:
    std::vector<ShipAtSea> ships() const
    {
        std::vector<ShipAtSea> all;
        for (std::size_t n = 0; n < plan().divisions.size(); ++n) {
            const DivisionPlan& division = plan().divisions.at(n);
            for (int m = 0; m < division.ships.size(); ++m) {
                all.push_back({division.ships.at(m), value(shipSection(static_cast<int>(n), m), u"CLASS"),
                               division.side, place(static_cast<int>(n), m)});
            }
        }
        return all;
    }
    double scaleAt(int level) const
    {
        const ZoomLevel& zoom = zoomLevels.at(static_cast<std::size_t>(level));
        const auto minutesOf = [](ClockTime time) { return 60 * time.hour + time.minute; };
        const int start = minutesOf(plan().environment.start);
        const bool day =
            start >= minutesOf(plan().environment.sunrise) && start < minutesOf(plan().environment.sunset);
        return day ? zoom.dayScale : zoom.nightScale;
    }
};
INSTANTIATE_TEST_SUITE_P(All, ScenarioSea, everyKeptScenario(), scenarioName);

// A click hits whole pixels, of which each is many yards.
TEST_P(ScenarioSea, HasEachDivisionWhereItsPlanPutsIt)
{
    for (std::size_t n = 0; n < plan().divisions.size(); ++n) {
        const DivisionPlan& division = plan().divisions.at(n);
        const double pixel = scaleAt(division.level);
        Yards wanted = division.anchor;
        if (formationOf(division.formation) == Formation::Convoy) {
            const QStringList offset =
                QString(convoyOffset(static_cast<int>(division.ships.size()), 1)).split(u',');
            wanted.x += static_cast<int>(offset.at(0).toDouble() * division.spacing);
            wanted.z += static_cast<int>(offset.at(1).toDouble() * division.spacing);
        }
        const Yards first = place(static_cast<int>(n), 0);
        EXPECT_LE(std::abs(first.x - wanted.x), pixel) << n;
        EXPECT_LE(std::abs(first.z - wanted.z), pixel) << n;
    }
}

TEST_P(ScenarioSea, HasColumnsAsternAndLinesOfBearingToTheRight)
{
    constexpr double radians = 3.14159265358979 / 180;
    for (std::size_t n = 0; n < plan().divisions.size(); ++n) {
        const DivisionPlan& division = plan().divisions.at(n);
        const std::optional<Formation> formation = formationOf(division.formation);
        if (formation == Formation::Convoy) {
            continue;
        }
        // From ship to ship: against the course, or square to it.
        const double bearing = (division.heading + (formation == Formation::Column ? 180 : 90)) * radians;
        for (int m = 1; m < division.ships.size(); ++m) {
            const Yards first = place(static_cast<int>(n), 0);
            const Yards ship = place(static_cast<int>(n), m);
            const double pixel = scaleAt(division.level);
            // The spacing is rounded to pixels, once a ship.
            EXPECT_NEAR(ship.x - first.x, m * division.spacing * std::sin(bearing),
                        pixel * (m + 1) / 2.0 + pixel);
            EXPECT_NEAR(ship.z - first.z, -m * division.spacing * std::cos(bearing),
                        pixel * (m + 1) / 2.0 + pixel);
        }
    }
}

TEST_P(ScenarioSea, HasNoShipOnTopOfAnother)
{
    constexpr double clear = 400; // yards: more than any ship is long
    const std::vector<ShipAtSea> all = ships();
    for (std::size_t i = 0; i < all.size(); ++i) {
        for (std::size_t j = i + 1; j < all.size(); ++j) {
            EXPECT_GE(distance(all[i].at, all[j].at), clear)
                << all[i].name.toStdString() << " and " << all[j].name.toStdString();
        }
    }
}

TEST_P(ScenarioSea, ShowsAllShipsAtItsLevelOfZoom)
{
    // In the window's normal state, with the flag above a ship and the name below it.
    constexpr int above = 170;
    constexpr int below = 196;
    constexpr int aside = 305;
    const double scale = scaleAt(plan().level);
    for (const ShipAtSea& ship : ships()) {
        EXPECT_LE(std::abs(ship.at.x), aside * scale) << ship.name.toStdString();
        EXPECT_GE(ship.at.z, -above * scale) << ship.name.toStdString();
        EXPECT_LE(ship.at.z, below * scale) << ship.name.toStdString();
    }
}

QHash<QString, int> gunRanges()
{
    QHash<QString, int> ranges;
    for (const GunRange& range : catalogue().ranges.rows) {
        ranges.insert(range.className, range.yards);
    }
    return ranges;
}

TEST_P(ScenarioSea, HasForcesThatReachEachOtherNowOrAfterTenMinutes)
{
    constexpr double closing = 10 * 2 * 25 * 2025.4 / 60; // both at 25 knots
    const QHash<QString, int> ranges = gunRanges();
    const std::vector<ShipAtSea> all = ships();
    double nearest = std::numeric_limits<double>::max();
    double beyondGuns = std::numeric_limits<double>::max();
    for (const ShipAtSea& blue : all) {
        for (const ShipAtSea& red : all) {
            if (blue.side == Side::Blue && red.side == Side::Red) {
                const double yards = distance(blue.at, red.at);
                const int reach = std::max(ranges.value(blue.shipClass), ranges.value(red.shipClass));
                nearest = std::min(nearest, yards);
                beyondGuns = std::min(beyondGuns, yards - reach);
            }
        }
    }
    EXPECT_LE(beyondGuns, closing);
    EXPECT_GE(nearest, 1500) << "nobody starts alongside the enemy";
}

} // namespace
} // namespace torvane::testing
