#include "overview/overview_texts.h"
#include "overview/scenario_data.h"
#include "stored_scenario.h"
#include "support/printers.h"

#include <gtest/gtest.h>

namespace torvane {

using namespace Qt::StringLiterals;

namespace {

constexpr Language languages[] = {Language::English, Language::German};

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// Every field holds a text of its own, so that a change shows.
ScenarioValues marked()
{
    ScenarioValues values;
    int number = 0;
    for (QString OverviewValues::*field :
         {&OverviewValues::title, &OverviewValues::description, &OverviewValues::mission,
          &OverviewValues::blueNavy, &OverviewValues::redNavy, &OverviewValues::movie,
          &OverviewValues::disengageA, &OverviewValues::disengageB, &OverviewValues::modifierA,
          &OverviewValues::modifierB, &OverviewValues::forceA, &OverviewValues::forceB,
          &OverviewValues::blueCondition, &OverviewValues::redCondition, &OverviewValues::victoryMods}) {
        values.overview.*field = u"mark %1"_s.arg(++number);
    }
    for (QString EnvironmentValues::*field :
         {&EnvironmentValues::startTime, &EnvironmentValues::sunrise, &EnvironmentValues::sunset,
          &EnvironmentValues::month, &EnvironmentValues::year, &EnvironmentValues::airControl,
          &EnvironmentValues::location, &EnvironmentValues::visibility, &EnvironmentValues::radar,
          &EnvironmentValues::windSpeed, &EnvironmentValues::windDirection, &EnvironmentValues::moon,
          &EnvironmentValues::seaState, &EnvironmentValues::gameLength, &EnvironmentValues::gameLengthHour,
          &EnvironmentValues::gameLengthMinutes, &EnvironmentValues::rain}) {
        values.environment.*field = u"mark %1"_s.arg(++number);
    }
    return values;
}

/// The overview takes the value into this field, and into no other.
void expectOverview(const char* key, const char* stored, QString OverviewValues::*field, const QString& shown,
                    Language language)
{
    ScenarioValues expected = marked();
    expected.overview.*field = shown;
    ScenarioValues values = marked();
    applyOverviewKey(text(key), text(stored), values, language);
    EXPECT_EQ(values.overview.*field, shown) << key << '=' << stored;
    EXPECT_TRUE(values == expected) << key << " changed another field";
    EnvironmentValues environment = marked().environment;
    applyEnvironmentKey(text(key), text(stored), environment, language);
    EXPECT_TRUE(environment == marked().environment) << key << " changed the environment";
}

/// Both dialogs take the value into this field, and into no other.
void expectBoth(const char* key, const char* stored, QString EnvironmentValues::*field, const QString& shown,
                Language language)
{
    ScenarioValues expected = marked();
    expected.environment.*field = shown;
    ScenarioValues values = marked();
    applyOverviewKey(text(key), text(stored), values, language);
    EXPECT_EQ(values.environment.*field, shown) << key << '=' << stored;
    EXPECT_TRUE(values == expected) << key << " changed another field";
    EnvironmentValues environment = marked().environment;
    applyEnvironmentKey(text(key), text(stored), environment, language);
    EXPECT_EQ(environment.*field, shown) << key << '=' << stored;
    EXPECT_TRUE(environment == expected.environment) << key << " changed another field";
}

TEST(LoadedTexts, ArePassedThroughAsTheyStand)
{
    for (const Language language : languages) {
        for (const char* stored : {"some text", "INVALID", "-1E999", "🚢"}) {
            const QString shown = text(stored);
            expectOverview("TITLE", stored, &OverviewValues::title, shown, language);
            expectOverview("DESCRIPTION_LINE0", stored, &OverviewValues::description, shown, language);
            expectOverview("V.CONDITION_BLUE", stored, &OverviewValues::blueCondition, shown, language);
            expectOverview("V.CONDITION_RED", stored, &OverviewValues::redCondition, shown, language);
            expectOverview("BLUE_DISENGAGE_HEADING", stored, &OverviewValues::disengageA, shown, language);
            expectOverview("RED_DISENGAGE_HEADING", stored, &OverviewValues::disengageB, shown, language);
            expectOverview("BLUE_VICTORY_MODS", stored, &OverviewValues::modifierA, shown, language);
            expectOverview("RED_VICTORY_MODS", stored, &OverviewValues::modifierB, shown, language);
        }
    }
}

TEST(LoadedTexts, OfTheEnvironmentGoToBothDialogs)
{
    for (const Language language : languages) {
        for (const char* stored : {"12:05", "INVALID", "2.25"}) {
            const QString shown = text(stored);
            expectBoth("START_TIME", stored, &EnvironmentValues::startTime, shown, language);
            expectBoth("SUNRISE", stored, &EnvironmentValues::sunrise, shown, language);
            expectBoth("SUNSET", stored, &EnvironmentValues::sunset, shown, language);
            expectBoth("YEAR", stored, &EnvironmentValues::year, shown, language);
            expectBoth("WIND_SPEED", stored, &EnvironmentValues::windSpeed, shown, language);
            expectBoth("WIND_DIRECTION", stored, &EnvironmentValues::windDirection, shown, language);
            expectBoth("SEASTATE", stored, &EnvironmentValues::seaState, shown, language);
            expectBoth("GAMELENGTH", stored, &EnvironmentValues::gameLength, shown, language);
            expectBoth("GAMELENGTH_HOUR", stored, &EnvironmentValues::gameLengthHour, shown, language);
            expectBoth("GAMELENGTH_MINUTE", stored, &EnvironmentValues::gameLengthMinutes, shown, language);
        }
    }
}

TEST(LoadedPercents, GetABlankAndThePercentSign)
{
    expectBoth("VISIBILITY", "55", &EnvironmentValues::visibility, u"55 %"_s, Language::English);
    expectBoth("RADARCONDITIONS", "0", &EnvironmentValues::radar, u"0 %"_s, Language::German);
    expectBoth("VISIBILITY", "INVALID", &EnvironmentValues::visibility, u"INVALID %"_s, Language::German);
    expectBoth("RADARCONDITIONS", "INVALID", &EnvironmentValues::radar, u"INVALID %"_s, Language::English);
}

TEST(LoadedMonth, IsShownInTheLanguageAndFallsThroughWithoutAMatch)
{
    const char* const months[][2] = {
        {"January", "Januar"},      {"February", "Februar"},  {"March", "März"},
        {"April", "April"},         {"May", "Mai"},           {"June", "Juni"},
        {"July", "Juli"},           {"August", "August"},     {"October", "Oktober"},
        {"September", "September"}, {"November", "November"}, {"December", "Dezember"},
        {"INVALID", "INVALID"},     {"Januar", "Januar"},     {"march", "march"}};
    for (const auto& month : months) {
        expectBoth("MONTH", month[0], &EnvironmentValues::month, text(month[0]), Language::English);
        expectBoth("MONTH", month[0], &EnvironmentValues::month, text(month[1]), Language::German);
    }
}

TEST(LoadedAirControl, IsTheCaptionOfTheCodeAndFallsThroughWithoutAMatch)
{
    const char* const controls[][3] = {{"2", "None", "Keine"},
                                       {"3", "Force A", "Streitkraft A"},
                                       {"5", "Force B", "Streitkraft B"},
                                       {"4", "Contested", "Umstritten"},
                                       {"INVALID", "INVALID", "INVALID"},
                                       {"1", "1", "1"}};
    for (const auto& control : controls) {
        expectBoth("AIR_SUPERIORITY", control[0], &EnvironmentValues::airControl, text(control[1]),
                   Language::English);
        expectBoth("AIR_SUPERIORITY", control[0], &EnvironmentValues::airControl, text(control[2]),
                   Language::German);
    }
}

TEST(LoadedLocation, IsShownInTheLanguageAndFallsThroughWithoutAMatch)
{
    const char* const places[][2] = {{"North Atlantic", "Nordatlantik"},
                                     {"South Pacific", "Südpazifik"},
                                     {"INVALID", "INVALID"},
                                     {"Baltic", "Baltic"}};
    for (const auto& place : places) {
        expectBoth("LOCATION", place[0], &EnvironmentValues::location, text(place[0]), Language::English);
        expectBoth("LOCATION", place[0], &EnvironmentValues::location, text(place[1]), Language::German);
    }
}

TEST(LoadedRain, OneIsRainAndAnythingElseIsNot)
{
    expectBoth("RAIN", "1", &EnvironmentValues::rain, u"On"_s, Language::English);
    expectBoth("RAIN", "1", &EnvironmentValues::rain, u"Ein"_s, Language::German);
    for (const char* stored : {"0", "INVALID", "2", "On", ""}) {
        expectBoth("RAIN", stored, &EnvironmentValues::rain, u"Off"_s, Language::English);
        expectBoth("RAIN", stored, &EnvironmentValues::rain, u"Aus"_s, Language::German);
    }
}

TEST(LoadedMission, IsTheCaptionOfTheCodeAndOtherValuesLeaveTheListAlone)
{
    const char* const missions[][3] = {{"0", "Meeting Engagement", "Begegnungsgefecht"},
                                       {"1", "Bombardment", "Bombardieren"},
                                       {"2", "Convoy", "Konvoi"},
                                       {"3", "Intercept", "Abfangen"},
                                       {"4", "Tactical Transport", "Taktischer Transport"}};
    for (const auto& mission : missions) {
        expectOverview("BATTLETYPE", mission[0], &OverviewValues::mission, text(mission[1]),
                       Language::English);
        expectOverview("BATTLETYPE", mission[0], &OverviewValues::mission, text(mission[2]),
                       Language::German);
    }
    for (const char* stored : {"5", "INVALID", "", "-1", "Convoy"}) {
        for (const Language language : languages) {
            expectOverview("BATTLETYPE", stored, &OverviewValues::mission, marked().overview.mission,
                           language);
        }
    }
}

TEST(LoadedNavy, IsTheCaptionOfTheAbbreviationAndOtherValuesLeaveTheListAlone)
{
    const char* const rows[][3] = {{"KM", "Kriegsmarine (KM)", "Kriegsmarine (KM)"},
                                   {"USN", "United States Navy (USN)", "United States Navy (USN)"},
                                   {"IJN", "Imperial Japanese Navy (IJN)", "Japanische Marine (IJN)"},
                                   {"RN", "Royal Navy (RN)", "Royal Navy (RN)"}};
    for (const auto& row : rows) {
        expectOverview("BLUE_NAVY", row[0], &OverviewValues::blueNavy, text(row[1]), Language::English);
        expectOverview("RED_NAVY", row[0], &OverviewValues::redNavy, text(row[2]), Language::German);
    }
    for (const char* stored : {"INVALID", "", "km", "USSR"}) {
        expectOverview("BLUE_NAVY", stored, &OverviewValues::blueNavy, marked().overview.blueNavy,
                       Language::English);
        expectOverview("RED_NAVY", stored, &OverviewValues::redNavy, marked().overview.redNavy,
                       Language::German);
    }
}

TEST(LoadedMovie, TheCaptionsHaveOneBlankWhereTheListHasTwo)
{
    const char* const rows[][3] = {{"0", "None - 0", "Keine - 0"},
                                   {"1", "Barents Sea - 1", "Barents Sea - 1"},
                                   {"2", "Denmark - 2", "Denmark - 2"},
                                   {"3", "Guadalcanal - 3", "Guadalcanal - 3"},
                                   {"4", "River Plate - 4", "River Plate - 4"}};
    for (const auto& row : rows) {
        expectOverview("MOVIE", row[0], &OverviewValues::movie, text(row[1]), Language::English);
        expectOverview("MOVIE", row[0], &OverviewValues::movie, text(row[2]), Language::German);
    }
    EXPECT_EQ(listContents(u"cmbMovie", Language::English)[1], u"Barents Sea  - 1"_s);
    EXPECT_EQ(listContents(u"cmbMovie", Language::English)[3], u"Guadalcanal  - 3"_s);
}

TEST(LoadedMovie, GoesByTheNumberSoThatInvalidIsNone)
{
    expectOverview("MOVIE", "INVALID", &OverviewValues::movie, u"None - 0"_s, Language::English);
    expectOverview("MOVIE", "INVALID", &OverviewValues::movie, u"Keine - 0"_s, Language::German);
    expectOverview("MOVIE", "02", &OverviewValues::movie, u"Denmark - 2"_s, Language::English);
    for (const char* stored : {"5", "-1", "1.5", "1E999"}) {
        expectOverview("MOVIE", stored, &OverviewValues::movie, text(stored), Language::German);
    }
}

TEST(LoadedVictoryMods, TheStoredValueIsIgnored)
{
    for (const char* stored : {"Trans 2X VP", "INVALID", "None"}) {
        expectOverview("VP_MODS", stored, &OverviewValues::victoryMods, u"None"_s, Language::German);
    }
}

TEST(LoadedMoon, TheOverviewShowsNoneTheEnvironmentTheStoredPhase)
{
    for (const char* stored : {"Half", "INVALID"}) {
        ScenarioValues expected = marked();
        expected.environment.moon = u"None"_s;
        ScenarioValues values = marked();
        applyOverviewKey(u"MOONPHASE", text(stored), values, Language::German);
        EXPECT_TRUE(values == expected) << stored;
        EnvironmentValues environment = marked().environment;
        applyEnvironmentKey(u"MOONPHASE", text(stored), environment, Language::German);
        EXPECT_EQ(environment.moon, text(stored));
    }
}

TEST(LoadedForces, ZeroIsThePlainOrderAndAnythingElseTheSwappedOne)
{
    const auto forces = [](const char* stored, Language language) {
        ScenarioValues values = marked();
        applyOverviewKey(u"BLUE_FORCE_TYPE", text(stored), values, language);
        ScenarioValues rest = marked();
        rest.overview.forceA = values.overview.forceA;
        rest.overview.forceB = values.overview.forceB;
        EXPECT_TRUE(values == rest) << "changed another field";
        return values.overview.forceA + u'/' + values.overview.forceB;
    };
    EXPECT_EQ(forces("0", Language::English), u"Force A/Force B"_s);
    EXPECT_EQ(forces("0", Language::German), u"Streitkraft A/Streitkraft B"_s);
    for (const char* stored : {"1", "2", "INVALID"}) {
        EXPECT_EQ(forces(stored, Language::English), u"Force B/Force A"_s);
        EXPECT_EQ(forces(stored, Language::German), u"Streitkraft B/Streitkraft A"_s);
    }
}

TEST(SwappedRoles, OnlyAOneSaysSoWhenTheOverviewComesToTheFront)
{
    EXPECT_TRUE(rolesSwapped(u"1"));
    for (const char16_t* stored : {u"0", u"INVALID", u"", u"2", u"11"}) {
        EXPECT_FALSE(rolesSwapped(stored));
    }
}

TEST(UnreadKeys, ChangeNothing)
{
    for (const char* key : {"DESCRIPTION_LINECNT", "START_TIME_HOUR",      "START_TIME_MINUTE",
                            "SUNRISE_HOUR",        "SUNRISE_MINUTE",       "SUNSET_HOUR",
                            "SUNSET_MINUTE",       "BLUEBRIEFING_LINECNT", "BLUEBRIEFING_LINE0",
                            "REDBRIEFING_LINECNT", "REDBRIEFING_LINE0",    "DDTRANSPORTS",
                            "BLUE_TARGETBOX_X",    "BLUE_TARGETBOX_Z",     "BLUE_TARGETBOXDIM",
                            "RED_TARGETBOX_X",     "RED_TARGETBOX_Z",      "RED_TARGETBOX_DIM",
                            "RED_FORCE_TYPE",      "NO_SUCH_KEY",          ""}) {
        ScenarioValues values = marked();
        applyOverviewKey(text(key), u"7"_s, values, Language::English);
        EXPECT_TRUE(values == marked()) << key;
        EnvironmentValues environment = marked().environment;
        applyEnvironmentKey(text(key), u"7"_s, environment, Language::English);
        EXPECT_TRUE(environment == marked().environment) << key;
    }
}

/// One choice for each list, by position.
ScenarioValues scenarioOf(int choice, Language language)
{
    const auto pick = [&](const char16_t* control) {
        const QStringList list = listContents(control, language);
        return list[choice % list.size()];
    };
    ScenarioValues values = scenarioDefaults(language);
    values.overview.title = text("Südlich der Bäreninsel");
    values.overview.mission = pick(u"cmbMission");
    values.overview.blueNavy = pick(u"CmbBlueSide");
    values.overview.redNavy = pick(u"CmbRedSide");
    values.overview.movie = pick(u"cmbMovie");
    values.environment.month = pick(u"ComboMonth");
    values.environment.year = pick(u"ComboYear");
    values.environment.location = pick(u"ComboLocation");
    values.environment.airControl = pick(u"ComboAirSup");
    values.environment.seaState = pick(u"ComboSeaState");
    values.environment.rain = pick(u"cmbRain");
    values.environment.sunrise = u"06:05"_s;
    values.environment.gameLength = u"2.25"_s;
    if (choice % 2 == 1) {
        std::swap(values.overview.forceA, values.overview.forceB);
    }
    return values;
}

TEST(WholeSection, SurvivesTheOtherLanguageByteForByte)
{
    for (const Language language : languages) {
        const Language other = language == Language::German ? Language::English : Language::German;
        for (int choice = 0; choice < 60; ++choice) {
            const std::vector<KeyValue> first = encodeScenario(scenarioOf(choice, language), language);
            EXPECT_EQ(encodeScenario(loadedScenario(first, other), other), first) << choice;
            EXPECT_EQ(encodeScenario(loadedScenario(first, language), language), first) << choice;
        }
    }
}

TEST(WholeSection, IsTheSameFromBothLanguages)
{
    for (int choice = 0; choice < 60; ++choice) {
        ScenarioValues german = scenarioOf(choice, Language::German);
        german.overview.description = text("None");
        EXPECT_EQ(encodeScenario(scenarioOf(choice, Language::English), Language::English),
                  encodeScenario(german, Language::German));
    }
}

TEST(WholeSection, OfMissingKeysOnlyIsShownAndWrittenAgainWithoutHarm)
{
    for (const Language language : languages) {
        ScenarioValues values;
        for (const LoadedKey& key : overviewKeys()) {
            applyOverviewKey(key.name, u"INVALID"_s, values, language);
        }
        EXPECT_EQ(values.overview.title, u"INVALID"_s);
        EXPECT_EQ(values.overview.mission, QString());
        const std::vector<KeyValue> stored = encodeScenario(values, language);
        EXPECT_EQ(valueOf(stored, "TITLE"), u"INVALID"_s);
        EXPECT_EQ(valueOf(stored, "MONTH"), u"INVALID"_s);
        EXPECT_EQ(valueOf(stored, "VISIBILITY"), u"0"_s);
        EXPECT_EQ(valueOf(stored, "BATTLETYPE"), QString());
    }
}

} // namespace
} // namespace torvane
