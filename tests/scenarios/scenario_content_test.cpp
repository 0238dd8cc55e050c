#include "divisions/speed_limits.h"
#include "overview/scenario_coding.h"
#include "scenarios/kept_scenarios.h"

#include <algorithm>
#include <array>

namespace torvane::testing {
namespace {

/// What the files say, held against their plans and the catalogue.
class ScenarioContent : public KeptScenario
{
};
INSTANTIATE_TEST_SUITE_P(All, ScenarioContent, everyKeptScenario(), scenarioName);

template <typename Record>
const Record* findRecord(const Records<Record>& records, QString Record::*name, const QString& wanted)
{
    const auto found = std::ranges::find(records.rows, wanted, name);
    return found == records.rows.end() ? nullptr : &*found;
}

const Ship* catalogueShip(const QString& name)
{
    return findRecord(catalogue().ships, &Ship::name, name);
}

TEST_P(ScenarioContent, IsDescribedInItsLanguage)
{
    EXPECT_EQ(data(u"TITLE"), plan().title.in(language()));
    EXPECT_EQ(data(u"DESCRIPTION_LINE0"), plan().description.in(language()));
    EXPECT_NE(plan().description.english, plan().description.german);
}

TEST_P(ScenarioContent, HasTheMissionAndTheForcesOfItsPlan)
{
    EXPECT_EQ(data(u"BATTLETYPE"), storedMission(plan().mission, Language::English));
    EXPECT_EQ(data(u"MOVIE"), QString::number(plan().movie));
    EXPECT_EQ(data(u"BLUE_NAVY"), plan().forceA.navy);
    EXPECT_EQ(data(u"RED_NAVY"), plan().forceB.navy);
    EXPECT_EQ(data(u"BLUE_DISENGAGE_HEADING"), QString::number(plan().forceA.disengageHeading));
    EXPECT_EQ(data(u"RED_DISENGAGE_HEADING"), QString::number(plan().forceB.disengageHeading));
    EXPECT_EQ(data(u"BLUE_FORCE_TYPE"), QStringLiteral("0")) << "Force A holds the first role";
    EXPECT_EQ(value(QStringLiteral("SCENARIOINFO"), u"DIVISIONCNT"),
              QString::number(plan().divisions.size()));
}

TEST_P(ScenarioContent, HasTheTimeAndTheWeatherOfItsPlan)
{
    const EnvironmentPlan& planned = plan().environment;
    EXPECT_EQ(data(u"MONTH"), planned.month);
    EXPECT_EQ(data(u"YEAR"), QString::number(planned.year));
    EXPECT_EQ(data(u"START_TIME"), clockCaption(planned.start));
    EXPECT_EQ(data(u"SUNRISE"), clockCaption(planned.sunrise));
    EXPECT_EQ(data(u"SUNSET"), clockCaption(planned.sunset));
    EXPECT_EQ(data(u"GAMELENGTH_HOUR").toInt(), planned.length.hour);
    EXPECT_EQ(data(u"GAMELENGTH_MINUTE").toInt(), planned.length.minute);
    EXPECT_EQ(data(u"WIND_SPEED"), QString::number(planned.wind));
    EXPECT_EQ(data(u"WIND_DIRECTION"), QString::number(planned.windDirection));
    EXPECT_EQ(data(u"SEASTATE").toInt(), seaStateOfWind(planned.wind));
    EXPECT_EQ(data(u"VISIBILITY"), QString::number(planned.visibility));
    EXPECT_EQ(data(u"RADARCONDITIONS"), QString::number(planned.radar));
    EXPECT_EQ(data(u"RAIN"), planned.rain ? QStringLiteral("1") : QStringLiteral("0"));
    EXPECT_EQ(data(u"LOCATION"), planned.location);
}

TEST_P(ScenarioContent, HasTheDivisionsOfItsPlanInTheirOrder)
{
    std::array<int, 2> numbers{};
    for (std::size_t n = 0; n < plan().divisions.size(); ++n) {
        const DivisionPlan& planned = plan().divisions.at(n);
        const QString section = divisionSection(static_cast<int>(n));
        SCOPED_TRACE(section.toStdString());
        const int number = ++numbers.at(planned.side == Side::Blue ? 0 : 1);
        EXPECT_EQ(value(section, u"DIVISIONNAME"), QStringLiteral("Division %1").arg(number));
        EXPECT_EQ(value(section, u"SIDE"), QString(wordOf(planned.side)));
        EXPECT_EQ(value(section, u"FORMATION"), planned.formation);
        EXPECT_EQ(value(section, u"FORMATIONHEADING"), QString::number(planned.heading));
        EXPECT_EQ(spacingInYards(value(section, u"FORMATIONSPACING")), QString::number(planned.spacing));
        EXPECT_EQ(value(section, u"SPEED"), QString::number(planned.speed));
        EXPECT_EQ(value(section, u"FLAGSHIPINDEX").toInt(), planned.flagship);
        EXPECT_EQ(value(section, u"ENCUMBERED"),
                  planned.encumbered ? QStringLiteral("1") : QStringLiteral("0"));
        EXPECT_EQ(value(section, u"SHIPCNT").toInt(), planned.ships.size());
    }
}

TEST_P(ScenarioContent, HasTheShipsOfItsPlanAsTheCatalogueKnowsThem)
{
    for (std::size_t n = 0; n < plan().divisions.size(); ++n) {
        const QStringList& planned = plan().divisions.at(n).ships;
        for (int m = 0; m < planned.size(); ++m) {
            const QString section = shipSection(static_cast<int>(n), m);
            const Ship* found = catalogueShip(planned.at(m));
            ASSERT_NE(found, nullptr) << planned.at(m).toStdString();
            const Ship& ship = *found;
            EXPECT_EQ(value(section, u"NAME"), ship.name);
            EXPECT_EQ(value(section, u"SHORTNAME"), ship.shortName);
            EXPECT_EQ(value(section, u"TYPE"), ship.type);
            EXPECT_EQ(value(section, u"CLASS"), ship.className);
            EXPECT_EQ(value(section, u"NAVY"), ship.navy);
        }
    }
}

// A ship that was commissioned later can't have been there.
TEST_P(ScenarioContent, HasShipsOfItsTimeAlone)
{
    for (const DivisionPlan& division : plan().divisions) {
        for (const QString& name : division.ships) {
            EXPECT_LE(catalogueShip(name)->commissioned, plan().environment.year) << name.toStdString();
        }
    }
}

// A typed speed is taken as it is: the limits are the author's to keep.
TEST_P(ScenarioContent, HasSpeedsThatShipsAndSeaAllow)
{
    for (const DivisionPlan& division : plan().divisions) {
        for (const QString& name : division.ships) {
            const Ship& ship = *catalogueShip(name);
            const ShipClass* shipClass = findRecord(catalogue().classes, &ShipClass::name, ship.className);
            ASSERT_NE(shipClass, nullptr);
            EXPECT_LE(division.speed, shipClass->speedKnots) << name.toStdString();
            EXPECT_LE(division.speed, seaStateSpeed(data(u"SEASTATE").toInt(), ship.type))
                << name.toStdString();
        }
    }
}

} // namespace
} // namespace torvane::testing
