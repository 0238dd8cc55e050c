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

QString storedOverview(QString OverviewValues::*field, const QString& shown, const char* key,
                       Language language)
{
    ScenarioValues values = scenarioDefaults(language);
    values.overview.*field = shown;
    return valueOf(encodeScenario(values, language), key);
}

/// What both writers store; they agree on the key.
QString stored(QString EnvironmentValues::*field, const QString& shown, const char* key,
               Language language = Language::English)
{
    ScenarioValues values = scenarioDefaults(language);
    values.environment.*field = shown;
    const QString byOverview = valueOf(encodeScenario(values, language), key);
    EXPECT_EQ(byOverview, valueOf(encodeEnvironment(values.environment, language), key));
    return byOverview;
}

struct Pair
{
    const char* english;
    const char* german;
    const char* stored;
};

TEST(StoredMonth, IsTheEnglishNameInBothLanguages)
{
    const Pair months[] = {
        {"January", "Januar", "January"},
        {"February", "Februar", "February"},
        {"March", "März", "March"},
        {"April", "April", "April"},
        {"May", "Mai", "May"},
        {"June", "Juni", "June"},
        {"July", "Juli", "July"},
        {"August", "August", "August"},
        {"September", "September", "September"},
        {"October", "Oktober", "October"},
        {"November", "November", "November"},
        {"December", "Dezember", "December"},
    };
    for (const Pair& month : months) {
        EXPECT_EQ(stored(&EnvironmentValues::month, text(month.english), "MONTH"), text(month.stored));
        EXPECT_EQ(stored(&EnvironmentValues::month, text(month.german), "MONTH", Language::German),
                  text(month.stored));
    }
}

TEST(StoredMonth, ATextThatIsNoMonthOfTheLanguageIsStoredAsItStands)
{
    EXPECT_EQ(stored(&EnvironmentValues::month, u"INVALID"_s, "MONTH", Language::German), u"INVALID"_s);
    EXPECT_EQ(stored(&EnvironmentValues::month, u"March"_s, "MONTH", Language::German), u"March"_s);
    EXPECT_EQ(stored(&EnvironmentValues::month, text("März"), "MONTH", Language::English), text("März"));
}

TEST(StoredLocation, IsTheEnglishNameInBothLanguages)
{
    const Pair locations[] = {{"North Atlantic", "Nordatlantik", "North Atlantic"},
                              {"South Pacific", "Südpazifik", "South Pacific"}};
    for (const Pair& place : locations) {
        EXPECT_EQ(stored(&EnvironmentValues::location, text(place.english), "LOCATION"), text(place.stored));
        EXPECT_EQ(stored(&EnvironmentValues::location, text(place.german), "LOCATION", Language::German),
                  text(place.stored));
    }
    EXPECT_EQ(stored(&EnvironmentValues::location, u"INVALID"_s, "LOCATION", Language::German), u"INVALID"_s);
}

TEST(StoredAirControl, IsTheCodeThatDoesNotFollowTheList)
{
    const Pair controls[] = {{"None", "Keine", "2"},
                             {"Force A", "Streitkraft A", "3"},
                             {"Force B", "Streitkraft B", "5"},
                             {"Contested", "Umstritten", "4"}};
    for (const Pair& control : controls) {
        EXPECT_EQ(stored(&EnvironmentValues::airControl, text(control.english), "AIR_SUPERIORITY"),
                  text(control.stored));
        EXPECT_EQ(
            stored(&EnvironmentValues::airControl, text(control.german), "AIR_SUPERIORITY", Language::German),
            text(control.stored));
    }
}

TEST(StoredAirControl, ACaptionWithoutAMatchIsStoredTrimmed)
{
    EXPECT_EQ(stored(&EnvironmentValues::airControl, u" INVALID "_s, "AIR_SUPERIORITY"), u"INVALID"_s);
    EXPECT_EQ(stored(&EnvironmentValues::airControl, u" Force B "_s, "AIR_SUPERIORITY"), u"5"_s);
    EXPECT_EQ(stored(&EnvironmentValues::airControl, u"Force B"_s, "AIR_SUPERIORITY", Language::German),
              u"Force B"_s);
}

TEST(StoredRain, IsAFlagForTheLanguagesOwnWord)
{
    const auto rain = [](const char* shown, Language language) {
        return stored(&EnvironmentValues::rain, text(shown), "RAIN", language);
    };
    EXPECT_EQ(rain("On", Language::English), u"1"_s);
    EXPECT_EQ(rain(" On ", Language::English), u"1"_s);
    EXPECT_EQ(rain("Off", Language::English), u"0"_s);
    EXPECT_EQ(rain("Ein", Language::German), u"1"_s);
    EXPECT_EQ(rain("Aus", Language::German), u"0"_s);
    EXPECT_EQ(rain("On", Language::German), u"0"_s);
    EXPECT_EQ(rain("INVALID", Language::English), u"0"_s);
    EXPECT_EQ(rain("", Language::English), u"0"_s);
}

TEST(StoredMission, FollowsTheCodesAndNotTheList)
{
    const Pair missions[] = {{"Meeting Engagement", "Begegnungsgefecht", "0"},
                             {"Intercept", "Abfangen", "3"},
                             {"Bombardment", "Bombardieren", "1"},
                             {"Convoy", "Konvoi", "2"},
                             {"Tactical Transport", "Taktischer Transport", "4"}};
    for (const Pair& row : missions) {
        for (const Language language : languages) {
            const QString shown = text(language == Language::German ? row.german : row.english);
            EXPECT_EQ(storedOverview(&OverviewValues::mission, shown, "BATTLETYPE", language),
                      text(row.stored));
            EXPECT_EQ(storedOverview(&OverviewValues::mission, shown, "DDTRANSPORTS", language),
                      text(row.stored) == u"4"_s ? u"1"_s : u"0"_s);
        }
    }
}

TEST(StoredMission, NoneIsStoredForAnEmptyList)
{
    EXPECT_EQ(storedOverview(&OverviewValues::mission, QString(), "BATTLETYPE", Language::English),
              QString());
    EXPECT_EQ(storedOverview(&OverviewValues::mission, QString(), "DDTRANSPORTS", Language::English), u"0"_s);
    EXPECT_EQ(storedOverview(&OverviewValues::mission, u"4"_s, "DDTRANSPORTS", Language::English), u"0"_s);
}

TEST(StoredNavy, IsWhatStandsInTheBrackets)
{
    for (const Language language : languages) {
        const QStringList shown = listContents(u"CmbBlueSide", language);
        const QStringList abbreviations = u"KM USN IJN RN"_s.split(u' ');
        for (qsizetype i = 0; i < 4; ++i) {
            EXPECT_EQ(storedOverview(&OverviewValues::blueNavy, shown[i], "BLUE_NAVY", language),
                      abbreviations[i]);
            EXPECT_EQ(storedOverview(&OverviewValues::redNavy, u' ' + shown[i] + u' ', "RED_NAVY", language),
                      abbreviations[i]);
        }
    }
}

TEST(StoredNavy, AnEmptyOrDamagedListDoesNoHarm)
{
    for (const char* shown : {"", "   ", "(", "()"}) {
        EXPECT_EQ(storedOverview(&OverviewValues::blueNavy, text(shown), "BLUE_NAVY", Language::English),
                  QString());
    }
    EXPECT_EQ(storedOverview(&OverviewValues::blueNavy, u"a (b (c)"_s, "BLUE_NAVY", Language::English),
              u"b (c"_s);
}

TEST(StoredClock, IsTheCaptionAndTwoNumbersWithoutLeadingZeros)
{
    const auto clock = [](QString EnvironmentValues::*field, const char* shown, const char* key) {
        return stored(field, text(shown), key);
    };
    EXPECT_EQ(clock(&EnvironmentValues::sunrise, "06:05", "SUNRISE"), u"06:05"_s);
    EXPECT_EQ(clock(&EnvironmentValues::sunrise, "06:05", "SUNRISE_HOUR"), u"6"_s);
    EXPECT_EQ(clock(&EnvironmentValues::sunrise, "06:05", "SUNRISE_MINUTE"), u"5"_s);
    EXPECT_EQ(clock(&EnvironmentValues::sunset, "20:09", "SUNSET"), u"20:09"_s);
    EXPECT_EQ(clock(&EnvironmentValues::sunset, "20:09", "SUNSET_HOUR"), u"20"_s);
    EXPECT_EQ(clock(&EnvironmentValues::sunset, "20:09", "SUNSET_MINUTE"), u"9"_s);
    for (int h = 0; h < 24; ++h) {
        for (int m = 0; m < 60; ++m) {
            const QString caption = QString::asprintf("%02d:%02d", h, m);
            ASSERT_EQ(stored(&EnvironmentValues::startTime, caption, "START_TIME"), caption);
            ASSERT_EQ(stored(&EnvironmentValues::startTime, caption, "START_TIME_HOUR"), QString::number(h));
            ASSERT_EQ(stored(&EnvironmentValues::startTime, caption, "START_TIME_MINUTE"),
                      QString::number(m));
        }
    }
}

TEST(StoredClock, ADamagedCaptionIsStoredAsItStandsAndCountsAs0)
{
    EXPECT_EQ(stored(&EnvironmentValues::startTime, u"INVALID"_s, "START_TIME"), u"INVALID"_s);
    EXPECT_EQ(stored(&EnvironmentValues::startTime, u"INVALID"_s, "START_TIME_HOUR"), u"0"_s);
    EXPECT_EQ(stored(&EnvironmentValues::startTime, u"INVALID"_s, "START_TIME_MINUTE"), u"0"_s);
}

TEST(StoredPercent, IsTheNumberWithoutTheSign)
{
    EXPECT_EQ(stored(&EnvironmentValues::visibility, u"55 %"_s, "VISIBILITY"), u"55"_s);
    EXPECT_EQ(stored(&EnvironmentValues::visibility, u"1000 %"_s, "VISIBILITY"), u"1000"_s);
    EXPECT_EQ(stored(&EnvironmentValues::visibility, u"007"_s, "VISIBILITY"), u"7"_s);
    EXPECT_EQ(stored(&EnvironmentValues::visibility, u"INVALID %"_s, "VISIBILITY"), u"0"_s);
    EXPECT_EQ(stored(&EnvironmentValues::visibility, QString(), "VISIBILITY"), u"0"_s);
    EXPECT_EQ(stored(&EnvironmentValues::radar, u"5 %"_s, "RADARCONDITIONS"), u"5"_s);
    EXPECT_EQ(stored(&EnvironmentValues::radar, u"100 %"_s, "RADARCONDITIONS"), u"100"_s);
    EXPECT_EQ(stored(&EnvironmentValues::radar, u"1000 %"_s, "RADARCONDITIONS"), u"100"_s);
    EXPECT_EQ(stored(&EnvironmentValues::radar, u"INVALID %"_s, "RADARCONDITIONS"), u"0"_s);
}

TEST(StoredPercent, ANumberBeyondAllBoundsIsStoredAsItStands)
{
    const QString digits(400, u'9');
    EXPECT_EQ(stored(&EnvironmentValues::visibility, digits + u" %"_s, "VISIBILITY"), digits);
    EXPECT_EQ(stored(&EnvironmentValues::radar, digits + u" %"_s, "RADARCONDITIONS"), u"999"_s);
}

TEST(StoredTexts, AreTrimmed)
{
    EXPECT_EQ(storedOverview(&OverviewValues::title, u"  Cape Saint George "_s, "TITLE", Language::English),
              u"Cape Saint George"_s);
    EXPECT_EQ(storedOverview(&OverviewValues::description, u" Two lines. "_s, "DESCRIPTION_LINE0",
                             Language::English),
              u"Two lines."_s);
    EXPECT_EQ(
        storedOverview(&OverviewValues::disengageA, u" 90 "_s, "BLUE_DISENGAGE_HEADING", Language::English),
        u"90"_s);
    EXPECT_EQ(
        storedOverview(&OverviewValues::disengageB, u" 270 "_s, "RED_DISENGAGE_HEADING", Language::English),
        u"270"_s);
    EXPECT_EQ(storedOverview(&OverviewValues::modifierA, u" 2 "_s, "BLUE_VICTORY_MODS", Language::English),
              u"2"_s);
    EXPECT_EQ(storedOverview(&OverviewValues::modifierB, u" 0.5 "_s, "RED_VICTORY_MODS", Language::English),
              u"0.5"_s);
    EXPECT_EQ(stored(&EnvironmentValues::windSpeed, u" 12 "_s, "WIND_SPEED"), u"12"_s);
    EXPECT_EQ(stored(&EnvironmentValues::windSpeed, QString(), "WIND_SPEED"), u"1"_s)
        << "no wind counts as 1";
    EXPECT_EQ(stored(&EnvironmentValues::windDirection, u" 45 "_s, "WIND_DIRECTION"), u"45"_s);
    EXPECT_EQ(stored(&EnvironmentValues::seaState, u" 8 "_s, "SEASTATE"), u"8"_s);
    EXPECT_EQ(stored(&EnvironmentValues::year, u"1943"_s, "YEAR"), u"1943"_s);
}

TEST(StoredTexts, ALineBreakNeverReachesTheFile)
{
    const QString broken = u"At dawn\r\n[DIVISION0]\nSHIPCNT=9"_s;
    EXPECT_EQ(storedOverview(&OverviewValues::description, broken, "DESCRIPTION_LINE0", Language::English),
              u"At dawn [DIVISION0] SHIPCNT=9"_s);
    ScenarioValues values;
    for (QString EnvironmentValues::*field :
         {&EnvironmentValues::startTime, &EnvironmentValues::month, &EnvironmentValues::moon}) {
        values.environment.*field = u"a\nb"_s;
    }
    for (const auto& [key, value] : encodeScenario(values, Language::German)) {
        EXPECT_FALSE(value.contains(u'\n')) << key.toStdString();
    }
    for (const auto& [key, value] : encodeEnvironment(values.environment, Language::German)) {
        EXPECT_FALSE(value.contains(u'\n')) << key.toStdString();
    }
}

TEST(StoredTexts, CharactersBeyondTheBasicPlaneAreKept)
{
    EXPECT_EQ(storedOverview(&OverviewValues::title, text("🚢 Åse"), "TITLE", Language::German),
              text("🚢 Åse"));
}

TEST(StoredLength, ColonAndPointAreBothStoredAsShown)
{
    const char* const lengths[][4] = {{"2:00", "2:00", "2", "00"},    {"2.00", "2.00", "2", "00"},
                                      {"2.25", "2.25", "2", "15"},    {"0.50", "0.50", "0", "30"},
                                      {"3.75", "3.75", "3", "45"},    {"1.07", "1.07", "1", "07"},
                                      {"INVALID", "INVA", "I", "ID"}, {"", "", "", ""}};
    for (const auto& row : lengths) {
        EXPECT_EQ(stored(&EnvironmentValues::gameLength, text(row[0]), "GAMELENGTH"), text(row[1]));
        EXPECT_EQ(stored(&EnvironmentValues::gameLength, text(row[0]), "GAMELENGTH_HOUR"), text(row[2]));
        EXPECT_EQ(stored(&EnvironmentValues::gameLength, text(row[0]), "GAMELENGTH_MINUTE"), text(row[3]));
    }
}

TEST(StoredForces, TheTwoFlagsAreAlwaysOpposite)
{
    const auto flags = [](const char* shown, Language language) {
        return storedOverview(&OverviewValues::forceA, text(shown), "BLUE_FORCE_TYPE", language) + u' ' +
               storedOverview(&OverviewValues::forceA, text(shown), "RED_FORCE_TYPE", language);
    };
    EXPECT_EQ(flags("Force A", Language::English), u"0 1"_s);
    EXPECT_EQ(flags("Force B", Language::English), u"1 0"_s);
    EXPECT_EQ(flags("Streitkraft A", Language::German), u"0 1"_s);
    EXPECT_EQ(flags("Streitkraft B", Language::German), u"1 0"_s);
}

TEST(StoredMovie, IsTheLastDigitOfEitherCaption)
{
    const char* const captions[][2] = {{"None - 0", "0"},         {"Keine - 0", "0"},
                                       {"Barents Sea  - 1", "1"}, {"Barents Sea - 1", "1"},
                                       {"Denmark - 2", "2"},      {"Guadalcanal  - 3", "3"},
                                       {"Guadalcanal - 3", "3"},  {"River Plate - 4", "4"},
                                       {"River Plate - 4 ", "4"}, {"", ""}};
    for (const auto& row : captions) {
        for (const Language language : languages) {
            EXPECT_EQ(storedOverview(&OverviewValues::movie, text(row[0]), "MOVIE", language), text(row[1]));
        }
    }
}

TEST(StoredMoon, TheOverviewResetsItToNoneTheEnvironmentStoresTheControl)
{
    ScenarioValues values = scenarioDefaults(Language::English);
    values.environment.moon = u" Half "_s;
    EXPECT_EQ(valueOf(encodeScenario(values, Language::English), "MOONPHASE"), u"None"_s);
    EXPECT_EQ(valueOf(encodeEnvironment(values.environment, Language::English), "MOONPHASE"), u"Half"_s);
}

TEST(FixedKeys, StayConstantWhateverTheDialogsShow)
{
    ScenarioValues values;
    values.overview.blueCondition = values.overview.redCondition = u"Disengage North"_s;
    values.overview.victoryMods = u"Trans 2X VP"_s;
    const std::vector<KeyValue> written = encodeScenario(values, Language::German);
    const char* const fixed[][2] = {{"DESCRIPTION_LINECNT", "1"},
                                    {"BLUEBRIEFING_LINECNT", "1"},
                                    {"REDBRIEFING_LINECNT", "1"},
                                    {"V.CONDITION_BLUE", "None"},
                                    {"BLUEBRIEFING_LINE0", "Unavailable"},
                                    {"REDBRIEFING_LINE0", "Unavailable"},
                                    {"V.CONDITION_RED", "None"},
                                    {"VP_MODS", "None"},
                                    {"MOONPHASE", "None"},
                                    {"BLUE_TARGETBOX_X", "0"},
                                    {"BLUE_TARGETBOX_Z", "0"},
                                    {"BLUE_TARGETBOXDIM", "0"},
                                    {"RED_TARGETBOX_X", "0"},
                                    {"RED_TARGETBOX_Z", "0"},
                                    {"RED_TARGETBOX_DIM", "0"}};
    for (const auto& row : fixed) {
        EXPECT_EQ(valueOf(written, row[0]), text(row[1])) << row[0];
    }
}

TEST(EnvironmentKeys, TheDialogWrites23InOrder)
{
    const QStringList names =
        u"START_TIME START_TIME_HOUR START_TIME_MINUTE SUNRISE SUNSET SUNRISE_HOUR SUNRISE_MINUTE "
        u"SUNSET_HOUR "
        "SUNSET_MINUTE MONTH YEAR AIR_SUPERIORITY LOCATION VISIBILITY RADARCONDITIONS WIND_SPEED "
        "WIND_DIRECTION "
        "MOONPHASE SEASTATE GAMELENGTH GAMELENGTH_HOUR GAMELENGTH_MINUTE RAIN"_s.split(u' ');
    ASSERT_EQ(names.size(), 23);
    QStringList written;
    for (const auto& [key, value] : encodeEnvironment(EnvironmentValues(), Language::German)) {
        written.append(key);
    }
    EXPECT_EQ(written, names);
}

TEST(EmptyDialogs, AreWrittenWithoutHarm)
{
    for (const Language language : languages) {
        EXPECT_EQ(encodeScenario(ScenarioValues(), language).size(), 50U);
        EXPECT_EQ(encodeEnvironment(EnvironmentValues(), language).size(), 23U);
    }
}

} // namespace
} // namespace torvane
