#include "overview/overview_texts.h"

#include "support/printers.h"

#include <gtest/gtest.h>

namespace torvane {
namespace {

struct Cell
{
    const char* control;
    const char* english;
    const char* german;
};

void expectTable(std::span<const CaptionRow> table, std::span<const Cell> cells)
{
    EXPECT_EQ(table.size(), cells.size());
    for (const Cell& cell : cells) {
        const QString control = QString::fromLatin1(cell.control);
        EXPECT_EQ(captionOf(table, control, Language::English), QString::fromUtf8(cell.english))
            << cell.control;
        EXPECT_EQ(captionOf(table, control, Language::German), QString::fromUtf8(cell.german))
            << cell.control;
    }
}

TEST(OverviewTexts, TheOverviewsCaptionsAreTheTables)
{
    const Cell cells[] = {
        {"OverviewFrm", "Torvane - Overview of the Scenario", "Torvane - Scenario Editor"},
        {"Label1", "Title:", "Titel:"},
        {"Label2", "Description:", "Beschreibung:"},
        {"Label6", "Mission:", "Einsatz:"},
        {"Label22", "Force A's Navy:", "Streitkraft A"},
        {"Label24", "Force B's Navy:", "Streitkraft B"},
        {"Label4", " Force A Mission Objective:", "Einsatzziele Streitkraft A"},
        {"Label3", " Force B Mission Objective:", "Einsatzziele Streitkraft B"},
        {"Label5", "Disengage Heading:", "Rückzugsrichtung:"},
        {"Label19", "Disengage Heading:", "Rückzugsrichtung:"},
        {"Label26", "VP  Mods:", "SP-Modifikator"},
        {"Label25", "VP  Mods:", "SP-Modifikator"},
        {"lblMovie", "Movie:", "Film:"},
        {"cmdEnviroCntrl", "Environmental Controls", "Umwelt"},
        {"cmdOK", "&Save", "OK"},
        {"CmdCancel", "&Cancel", "Abbrechen"},
        {"lblForceA", "Force A", "Streitkraft A"},
        {"lblForceB", "Force B", "Streitkraft B"},
    };
    expectTable(overviewCaptions, cells);
}

TEST(OverviewTexts, TheEnvironmentsCaptionsAreTheTables)
{
    const Cell cells[] = {
        {"EnviroFrm", "Torvane - Environmental Controls", "Torvane - Umwelt"},
        {"cmdOK", "&OK", "&OK"},
        {"CmdCancel", "&Cancel", "&Cancel"},
        {"cmdHours", "Hrs", "Std."},
        {"cmdMinutes", "Mins", "Min."},
        {"cmdSunriseHour", "Hrs", "Std."},
        {"cmdSunriseMin", "Mins", "Min."},
        {"cmdSunsetHour", "Hrs", "Std."},
        {"cmdSunsetMin", "Mins", "Min."},
        {"cmdGameLenHours", "Hrs", "Std."},
        {"cmdGameLenMin", "Mins", "Min."},
    };
    expectTable(environmentCaptions, cells);
}

TEST(OverviewTexts, TheEnvironmentsLabelsAreTheTables)
{
    const Cell cells[] = {
        {"ComboYear", "Year:", "Jahr:"},
        {"ComboMonth", "Month:", "Monat:"},
        {"TxtWindSpd", "Wind Speed:", "Windgeschwindigkeit:"},
        {"ComboSeaState", "Sea State:", "Zustand auf See:"},
        {"TxtWindDir", "Wind Dir:", "Windrichtung:"},
        {"cmbRain", "Rain:", "Regen:"},
        {"TxtVis", "Visibility:", "Sicht:"},
        {"TxtRadar", "Radar Conditions:", "Radarbedingungen:"},
        {"TxtSunrise", "Sunrise:", "Sonnenaufgang:"},
        {"TxtSunset", "Sunset:", "Sonnenuntergang:"},
        {"TxtStartTime", "Start Time:", "Startzeit:"},
        {"lblGmLenHour", "Game Length:", "Spieldauer:"},
        {"ComboLocation", "Location:", "Lage:"},
        {"ComboAirSup", "Air/Sea Control:", "Luft-/Seeübermacht:"},
    };
    expectTable(environmentLabels, cells);
}

TEST(OverviewTexts, AControlThatTheTableLacksHasNoCaption)
{
    EXPECT_EQ(captionOf(overviewCaptions, u"Label99", Language::German), QString());
}

TEST(OverviewTexts, TheMessagesAreTheTables)
{
    using M = OverviewMessage;
    const auto both = [](M message, const char* english, const char* german) {
        EXPECT_EQ(overviewMessage(message, Language::English), QString::fromUtf8(english));
        EXPECT_EQ(overviewMessage(message, Language::German), QString::fromUtf8(german));
    };
    ASSERT_EQ(overviewMessages.size(), 4U);
    for (std::size_t i = 0; i < overviewMessages.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(overviewMessages[i].key), i);
    }
    both(M::OutOfRangeTitle, "Out of Range", "Ausserhalb Ihrer Reichweite");
    both(M::HeadingRange, "You must enter a heading between 0 and 360 degrees.",
         "Sie müssen einen Wert zwischen 0 und 360 eingeben.");
    both(M::ModifierRange, "You must enter a value between 0.01 and 99.99.",
         "Geben Sie einen Wert zwischen 0.01 und 99.99 ein.");
    both(M::WindSpeedRange, "You must enter a speed between 1 and 40 knots.",
         "Sie müssen eine Geschwindigkeit zwischen 1 und 40 Knoten eingeben.");
}

QStringList entries(const char* joined)
{
    return QString::fromUtf8(joined).split(u'|');
}

void expectList(const char* control, const char* english, const char* german)
{
    const QString name = QString::fromLatin1(control);
    EXPECT_EQ(listContents(name, Language::English), entries(english)) << control;
    EXPECT_EQ(listContents(name, Language::German), entries(german)) << control;
}

TEST(ListContents, EveryListHoldsItsEntriesInOrder)
{
    expectList("cmbMission", "Meeting Engagement|Intercept|Bombardment|Convoy|Tactical Transport",
               "Begegnungsgefecht|Abfangen|Bombardieren|Konvoi|Taktischer Transport");
    for (const char* control : {"CmbBlueSide", "CmbRedSide"}) {
        expectList(control,
                   "Kriegsmarine (KM)|United States Navy (USN)|Imperial Japanese Navy (IJN)|Royal Navy (RN)",
                   "Kriegsmarine (KM)|United States Navy (USN)|Japanische Marine (IJN)|Royal Navy (RN)");
    }
    expectList("ComboMonth",
               "January|February|March|April|May|June|July|August|September|October|November|December",
               "Januar|Februar|März|April|Mai|Juni|Juli|August|September|Oktober|November|Dezember");
    expectList("ComboLocation", "North Atlantic|South Pacific", "Nordatlantik|Südpazifik");
    expectList("ComboAirSup", "None|Force A|Force B|Contested",
               "Keine|Streitkraft A|Streitkraft B|Umstritten");
    expectList("cmbRain", "On|Off", "Ein|Aus");
}

TEST(ListContents, PlainListsAreTheSameInBothLanguages)
{
    const char* const lists[][2] = {
        {"cmbMovie", "None - 0|Barents Sea  - 1|Denmark - 2|Guadalcanal  - 3|River Plate - 4"},
        {"ComboYear", "1939|1940|1941|1942|1943|1944|1945"},
        {"ComboSeaState", "1|2|3|4|5|6|7|8"},
        {"ComboMoon", "None|Full|Three Quarters|Half|New"},
        {"ComboVPMods", "None|Trans 2X VP|Trans 5X VP|Trans 10X VP"},
        {"ComboBlueVC",
         "None|Disengage North|Disengage East|Disengage South|Disengage West|Destroy Enemy Forces"},
        {"ComboRedVC",
         "None|Disengage North|Disengage East|Disengage South|Disengage West|Destroy Enemy Forces"},
    };
    for (const auto& list : lists) {
        expectList(list[0], list[1], list[1]);
    }
}

TEST(ListContents, AControlThatIsNoListHasNone)
{
    EXPECT_EQ(listContents(u"TxtTitle", Language::English), QStringList());
}

} // namespace
} // namespace torvane
