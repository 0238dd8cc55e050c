#include "scenarios/scenario_plan.h"

#include "support/printers.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <stdexcept>

namespace torvane::testing {
namespace {

using ::testing::HasSubstr;

const QByteArray narvik = R"({
    "title": {"english": "Narvik", "german": "Narvik 1940"},
    "description": {"english": "Snow.", "german": "Schnee."},
    "mission": "Intercept", "movie": 2,
    "forceA": {"navy": "RN", "disengage": 270}, "forceB": {"navy": "KM", "disengage": 80},
    "environment": {
        "month": "April", "year": 1940, "start": "04:30", "sunrise": "05:10", "sunset": "19:40",
        "length": "1:30", "wind": 12, "from": 225, "visibility": 30, "radar": 90, "rain": true,
        "location": "North Atlantic"},
    "level": 4,
    "divisions": [
        {"force": "A", "ships": ["Hardy", "Hunter"], "flagship": 1, "formation": "Column", "heading": 70,
         "spacing": 500, "speed": 12, "at": {"east": -1000, "south": 250}},
        {"force": "B", "ships": ["Wilhelm Heidkamp"], "formation": "Convoy", "heading": 0, "encumbered": true,
         "spacing": 600, "speed": 1, "at": {"east": 3000, "south": -500}, "level": 2}],
    "target": {"east": 10, "south": -20}
})";

class ScenarioPlans : public ::testing::Test
{
protected:
    QString put(const QByteArray& bytes) const
    {
        const QString path = folder.filePath(QStringLiteral("narvik.json"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }
    /// What the reader says of a plan with one text replaced; "read" if it takes it.
    std::string faultOf(const char* text, const char* by) const
    {
        QByteArray bytes = narvik;
        EXPECT_TRUE(bytes.contains(text)) << text;
        bytes.replace(text, by);
        try {
            readScenarioPlan(put(bytes));
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "read";
    }

    QTemporaryDir folder;
};

TEST_F(ScenarioPlans, AreReadWhole)
{
    const ScenarioPlan plan = readScenarioPlan(put(narvik));
    EXPECT_EQ(plan.name, QStringLiteral("narvik"));
    EXPECT_EQ(plan.title.in(Language::English), QStringLiteral("Narvik"));
    EXPECT_EQ(plan.title.in(Language::German), QStringLiteral("Narvik 1940"));
    EXPECT_EQ(plan.description.german, QStringLiteral("Schnee."));
    EXPECT_EQ(plan.mission, QStringLiteral("Intercept"));
    EXPECT_EQ(plan.movie, 2);
    EXPECT_EQ(plan.forceA.navy, QStringLiteral("RN"));
    EXPECT_EQ(plan.forceB.disengageHeading, 80);
    EXPECT_EQ(plan.environment.month, QStringLiteral("April"));
    EXPECT_EQ(plan.environment.year, 1940);
    EXPECT_EQ(plan.environment.start, (ClockTime{4, 30}));
    EXPECT_EQ(plan.environment.sunrise, (ClockTime{5, 10}));
    EXPECT_EQ(plan.environment.sunset, (ClockTime{19, 40}));
    EXPECT_EQ(plan.environment.length, (ClockTime{1, 30}));
    EXPECT_EQ(plan.environment.wind, 12);
    EXPECT_EQ(plan.environment.windDirection, 225);
    EXPECT_EQ(plan.environment.visibility, 30);
    EXPECT_EQ(plan.environment.radar, 90);
    EXPECT_TRUE(plan.environment.rain);
    EXPECT_EQ(plan.environment.location, QStringLiteral("North Atlantic"));
    EXPECT_EQ(plan.target, (Yards{10, -20}));
}

TEST_F(ScenarioPlans, HaveDivisionsWithTheUsualUnlessTheySayOtherwise)
{
    const ScenarioPlan plan = readScenarioPlan(put(narvik));
    ASSERT_EQ(plan.divisions.size(), 2U);
    const DivisionPlan& first = plan.divisions[0];
    EXPECT_EQ(first.side, Side::Blue);
    EXPECT_EQ(first.ships, QStringList({QStringLiteral("Hardy"), QStringLiteral("Hunter")}));
    EXPECT_EQ(first.flagship, 1);
    EXPECT_EQ(first.formation, QStringLiteral("Column"));
    EXPECT_EQ(first.heading, 70);
    EXPECT_EQ(first.spacing, 500);
    EXPECT_EQ(first.speed, 12);
    EXPECT_FALSE(first.encumbered);
    EXPECT_EQ(first.anchor, (Yards{-1000, 250}));
    EXPECT_EQ(first.level, 4) << "the scenario's";
    const DivisionPlan& second = plan.divisions[1];
    EXPECT_EQ(second.side, Side::Red);
    EXPECT_EQ(second.flagship, 0);
    EXPECT_TRUE(second.encumbered);
    EXPECT_EQ(second.level, 2);
}

TEST_F(ScenarioPlans, AreRefusedForAKeyThatIsMissingMisspeltOrOfAnotherKind)
{
    EXPECT_THAT(faultOf("\"mission\": \"Intercept\", ", ""), HasSubstr("narvik.json: mission is missing"));
    EXPECT_THAT(faultOf("\"flagship\"", "\"flagshp\""),
                HasSubstr("narvik.json, divisions 0: nothing reads flagshp"));
    EXPECT_THAT(faultOf("\"movie\": 2", "\"movie\": \"2\""),
                HasSubstr("movie is missing or of another kind"));
    EXPECT_THAT(faultOf("\"movie\": 2", "\"movie\": 2.5"), HasSubstr("movie is no whole number"));
    EXPECT_THAT(faultOf("\"04:30\"", "\"half past four\""), HasSubstr("environment: start is no time"));
    EXPECT_THAT(faultOf("\"force\": \"B\"", "\"force\": \"C\""),
                HasSubstr("divisions 1: force is neither A nor B"));
    EXPECT_THAT(faultOf("\"title\": {", "\"title\": ["), HasSubstr("at byte"));
}

TEST_F(ScenarioPlans, OfAFolderAreThere)
{
    EXPECT_THROW(readScenarioPlans(folder.path()), std::runtime_error);
    put(narvik);
    EXPECT_EQ(readScenarioPlans(folder.path()).size(), 1U);
    EXPECT_THROW(readScenarioPlan(folder.filePath(QStringLiteral("none.json"))), std::runtime_error);
}

} // namespace
} // namespace torvane::testing
