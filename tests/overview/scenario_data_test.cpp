#include "overview/scenario_data.h"

#include "store/profile_keys.h"
#include "support/printers.h"

#include <gtest/gtest.h>

namespace torvane {
namespace {

using Source = ScenarioKeySource;

struct KeyCells
{
    const char* name;
    const char* english;
    const char* german;
    Source source;
};

const KeyCells cells[] = {
    {"TITLE", "Title", "Titel", Source::Overview},
    {"DESCRIPTION_LINECNT", "1", "1", Source::Fixed},
    {"DESCRIPTION_LINE0", "None", "Keine", Source::Overview},
    {"START_TIME", "12:30", "12:30", Source::Environment},
    {"START_TIME_HOUR", "12", "12", Source::Environment},
    {"START_TIME_MINUTE", "30", "30", Source::Environment},
    {"SUNRISE", "06:30", "06:30", Source::Environment},
    {"SUNSET", "19:30", "19:30", Source::Environment},
    {"SUNRISE_HOUR", "6", "6", Source::Environment},
    {"SUNRISE_MINUTE", "30", "30", Source::Environment},
    {"SUNSET_HOUR", "19", "19", Source::Environment},
    {"SUNSET_MINUTE", "30", "30", Source::Environment},
    {"MONTH", "January", "January", Source::Environment},
    {"YEAR", "1939", "1939", Source::Environment},
    {"BLUEBRIEFING_LINECNT", "1", "1", Source::Fixed},
    {"BLUEBRIEFING_LINE0", "Unavailable", "Unavailable", Source::Fixed},
    {"REDBRIEFING_LINECNT", "1", "1", Source::Fixed},
    {"REDBRIEFING_LINE0", "Unavailable", "Unavailable", Source::Fixed},
    {"V.CONDITION_BLUE", "None", "None", Source::Fixed},
    {"V.CONDITION_RED", "None", "None", Source::Fixed},
    {"AIR_SUPERIORITY", "2", "2", Source::Environment},
    {"LOCATION", "North Atlantic", "North Atlantic", Source::Environment},
    {"VISIBILITY", "100", "100", Source::Environment},
    {"RADARCONDITIONS", "100", "100", Source::Environment},
    {"WIND_SPEED", "1", "1", Source::Environment},
    {"WIND_DIRECTION", "360", "360", Source::Environment},
    {"VP_MODS", "None", "None", Source::Fixed},
    {"MOONPHASE", "None", "None", Source::FixedUnlessEnvironment},
    {"SEASTATE", "1", "1", Source::Environment},
    {"GAMELENGTH", "2:00", "2:00", Source::Environment},
    {"GAMELENGTH_HOUR", "2", "2", Source::Environment},
    {"GAMELENGTH_MINUTE", "00", "00", Source::Environment},
    {"BLUE_NAVY", "KM", "KM", Source::Overview},
    {"RED_NAVY", "RN", "RN", Source::Overview},
    {"RAIN", "0", "0", Source::Environment},
    {"DDTRANSPORTS", "0", "0", Source::Overview},
    {"BLUE_TARGETBOX_X", "0", "0", Source::Fixed},
    {"BLUE_TARGETBOX_Z", "0", "0", Source::Fixed},
    {"BLUE_TARGETBOXDIM", "0", "0", Source::Fixed},
    {"RED_TARGETBOX_X", "0", "0", Source::Fixed},
    {"RED_TARGETBOX_Z", "0", "0", Source::Fixed},
    {"RED_TARGETBOX_DIM", "0", "0", Source::Fixed},
    {"BLUE_DISENGAGE_HEADING", "180", "180", Source::Overview},
    {"RED_DISENGAGE_HEADING", "180", "180", Source::Overview},
    {"BATTLETYPE", "0", "0", Source::Overview},
    {"BLUE_VICTORY_MODS", "1.00", "1.00", Source::Overview},
    {"RED_VICTORY_MODS", "1.00", "1.00", Source::Overview},
    {"BLUE_FORCE_TYPE", "0", "0", Source::Overview},
    {"RED_FORCE_TYPE", "1", "1", Source::Overview},
    {"MOVIE", "0", "0", Source::Overview},
};

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

TEST(ScenarioKeys, TheTableHoldsThe50KeysWithDefaultAndSource)
{
    ASSERT_EQ(scenarioKeys.size(), std::size(cells));
    for (std::size_t i = 0; i < std::size(cells); ++i) {
        EXPECT_EQ(scenarioKeys[i].name.toString(), text(cells[i].name));
        EXPECT_EQ(scenarioKeys[i].defaultValue.in(Language::English), text(cells[i].english))
            << cells[i].name;
        EXPECT_EQ(scenarioKeys[i].defaultValue.in(Language::German), text(cells[i].german)) << cells[i].name;
        EXPECT_EQ(scenarioKeys[i].source, cells[i].source) << cells[i].name;
    }
}

TEST(ScenarioKeys, TheStoreKnowsTheSameKeysInTheSameOrder)
{
    ASSERT_EQ(scenarioKeys.size(), scenarioDataKeys.size());
    for (std::size_t i = 0; i < scenarioKeys.size(); ++i) {
        EXPECT_EQ(scenarioKeys[i].name.toString(), scenarioDataKeys[i].toString());
    }
}

QStringList namesOf(std::span<const LoadedKey> keys)
{
    QStringList names;
    for (const LoadedKey& key : keys) {
        names.append(key.name.toString());
    }
    return names;
}

TEST(ScenarioKeys, TheOverviewReads31InOrderAndTheEnvironmentTheFirst30)
{
    const QStringList names =
        text("TITLE DESCRIPTION_LINE0 START_TIME SUNRISE SUNSET MONTH YEAR V.CONDITION_BLUE "
             "V.CONDITION_RED AIR_SUPERIORITY LOCATION VISIBILITY RADARCONDITIONS WIND_SPEED "
             "WIND_DIRECTION VP_MODS MOONPHASE SEASTATE GAMELENGTH GAMELENGTH_HOUR "
             "GAMELENGTH_MINUTE BLUE_NAVY RED_NAVY RAIN BLUE_DISENGAGE_HEADING "
             "RED_DISENGAGE_HEADING BATTLETYPE BLUE_VICTORY_MODS RED_VICTORY_MODS "
             "BLUE_FORCE_TYPE MOVIE")
            .split(u' ');
    ASSERT_EQ(names.size(), 31);
    EXPECT_EQ(namesOf(overviewKeys()), names);
    EXPECT_EQ(namesOf(environmentKeys()), names.first(30));
}

void expectDefaults(Language language, const OverviewValues& overview, const EnvironmentValues& environment)
{
    const ScenarioValues defaults = scenarioDefaults(language);
    EXPECT_EQ(defaults.overview, overview);
    EXPECT_EQ(defaults.environment, environment);
}

TEST(ScenarioDefaults, AreWhatTheEnglishControlsShow)
{
    expectDefaults(Language::English,
                   {.title = text("Title"),
                    .description = text("None"),
                    .mission = text("Meeting Engagement"),
                    .blueNavy = text("Kriegsmarine (KM)"),
                    .redNavy = text("Royal Navy (RN)"),
                    .movie = text("None - 0"),
                    .disengageA = text("180"),
                    .disengageB = text("180"),
                    .modifierA = text("1.00"),
                    .modifierB = text("1.00"),
                    .forceA = text("Force A"),
                    .forceB = text("Force B"),
                    .blueCondition = text("None"),
                    .redCondition = text("None"),
                    .victoryMods = text("None")},
                   {.startTime = text("12:30"),
                    .sunrise = text("06:30"),
                    .sunset = text("19:30"),
                    .month = text("January"),
                    .year = text("1939"),
                    .airControl = text("None"),
                    .location = text("North Atlantic"),
                    .visibility = text("100 %"),
                    .radar = text("100 %"),
                    .windSpeed = text("1"),
                    .windDirection = text("360"),
                    .moon = text("None"),
                    .seaState = text("1"),
                    .gameLength = text("2:00"),
                    .gameLengthHour = text("2"),
                    .gameLengthMinutes = text("00"),
                    .rain = text("Off")});
}

TEST(ScenarioDefaults, AreWhatTheGermanControlsShow)
{
    expectDefaults(Language::German,
                   {.title = text("Titel"),
                    .description = text("Keine"),
                    .mission = text("Begegnungsgefecht"),
                    .blueNavy = text("Kriegsmarine (KM)"),
                    .redNavy = text("Royal Navy (RN)"),
                    .movie = text("Keine - 0"),
                    .disengageA = text("180"),
                    .disengageB = text("180"),
                    .modifierA = text("1.00"),
                    .modifierB = text("1.00"),
                    .forceA = text("Streitkraft A"),
                    .forceB = text("Streitkraft B"),
                    .blueCondition = text("None"),
                    .redCondition = text("None"),
                    .victoryMods = text("None")},
                   {.startTime = text("12:30"),
                    .sunrise = text("06:30"),
                    .sunset = text("19:30"),
                    .month = text("Januar"),
                    .year = text("1939"),
                    .airControl = text("Keine"),
                    .location = text("Nordatlantik"),
                    .visibility = text("100 %"),
                    .radar = text("100 %"),
                    .windSpeed = text("1"),
                    .windDirection = text("360"),
                    .moon = text("None"),
                    .seaState = text("1"),
                    .gameLength = text("2:00"),
                    .gameLengthHour = text("2"),
                    .gameLengthMinutes = text("00"),
                    .rain = text("Aus")});
}

TEST(ScenarioDefaults, AreStoredAsTheTableSays)
{
    for (const Language language : {Language::English, Language::German}) {
        const std::vector<KeyValue> stored = encodeScenario(scenarioDefaults(language), language);
        ASSERT_EQ(stored.size(), std::size(cells));
        for (std::size_t i = 0; i < stored.size(); ++i) {
            EXPECT_EQ(stored[i].first, text(cells[i].name));
            EXPECT_EQ(stored[i].second,
                      text(language == Language::German ? cells[i].german : cells[i].english))
                << cells[i].name;
        }
    }
}

} // namespace
} // namespace torvane
