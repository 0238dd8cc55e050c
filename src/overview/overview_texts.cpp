#include "overview/overview_texts.h"

#include "overview/force_navies.h"
#include "overview/missions.h"

#include <algorithm>

namespace torvane {

using namespace Qt::StringLiterals;

constexpr std::array<CaptionRow, 18> overviewCaptions{{
    {"OverviewFrm"_L1, {"Torvane - Overview of the Scenario", "Torvane - Scenario Editor"}},
    {"Label1"_L1, {"Title:", "Titel:"}},
    {"Label2"_L1, {"Description:", "Beschreibung:"}},
    {"Label6"_L1, {"Mission:", "Einsatz:"}},
    {"Label22"_L1, {"Force A's Navy:", "Streitkraft A"}},
    {"Label24"_L1, {"Force B's Navy:", "Streitkraft B"}},
    {"Label4"_L1, {" Force A Mission Objective:", "Einsatzziele Streitkraft A"}},
    {"Label3"_L1, {" Force B Mission Objective:", "Einsatzziele Streitkraft B"}},
    {"Label5"_L1, {"Disengage Heading:", "Rückzugsrichtung:"}},
    {"Label19"_L1, {"Disengage Heading:", "Rückzugsrichtung:"}},
    {"Label26"_L1, {"VP  Mods:", "SP-Modifikator"}},
    {"Label25"_L1, {"VP  Mods:", "SP-Modifikator"}},
    {"lblMovie"_L1, {"Movie:", "Film:"}},
    {"cmdEnviroCntrl"_L1, {"Environmental Controls", "Umwelt"}},
    {"cmdOK"_L1, {"&Save", "OK"}},
    {"CmdCancel"_L1, {"&Cancel", "Abbrechen"}},
    {"lblForceA"_L1, forceA},
    {"lblForceB"_L1, forceB},
}};

constexpr std::array<CaptionRow, 11> environmentCaptions{{
    {"EnviroFrm"_L1, {"Torvane - Environmental Controls", "Torvane - Umwelt"}},
    {"cmdOK"_L1, inBoth("&OK")},
    {"CmdCancel"_L1, inBoth("&Cancel")},
    {"cmdHours"_L1, {"Hrs", "Std."}},
    {"cmdMinutes"_L1, {"Mins", "Min."}},
    {"cmdSunriseHour"_L1, {"Hrs", "Std."}},
    {"cmdSunriseMin"_L1, {"Mins", "Min."}},
    {"cmdSunsetHour"_L1, {"Hrs", "Std."}},
    {"cmdSunsetMin"_L1, {"Mins", "Min."}},
    {"cmdGameLenHours"_L1, {"Hrs", "Std."}},
    {"cmdGameLenMin"_L1, {"Mins", "Min."}},
}};

constexpr std::array<CaptionRow, 14> environmentLabels{{
    {"ComboYear"_L1, {"Year:", "Jahr:"}},
    {"ComboMonth"_L1, {"Month:", "Monat:"}},
    {"TxtWindSpd"_L1, {"Wind Speed:", "Windgeschwindigkeit:"}},
    {"ComboSeaState"_L1, {"Sea State:", "Zustand auf See:"}},
    {"TxtWindDir"_L1, {"Wind Dir:", "Windrichtung:"}},
    {"cmbRain"_L1, {"Rain:", "Regen:"}},
    {"TxtVis"_L1, {"Visibility:", "Sicht:"}},
    {"TxtRadar"_L1, {"Radar Conditions:", "Radarbedingungen:"}},
    {"TxtSunrise"_L1, {"Sunrise:", "Sonnenaufgang:"}},
    {"TxtSunset"_L1, {"Sunset:", "Sonnenuntergang:"}},
    {"TxtStartTime"_L1, {"Start Time:", "Startzeit:"}},
    {"lblGmLenHour"_L1, {"Game Length:", "Spieldauer:"}},
    {"ComboLocation"_L1, {"Location:", "Lage:"}},
    {"ComboAirSup"_L1, {"Air/Sea Control:", "Luft-/Seeübermacht:"}},
}};

constexpr std::array<TextRow<OverviewMessage>, 4> overviewMessages{{
    {OverviewMessage::OutOfRangeTitle, {"Out of Range", "Ausserhalb Ihrer Reichweite"}},
    {OverviewMessage::HeadingRange,
     {"You must enter a heading between 0 and 360 degrees.",
      "Sie müssen einen Wert zwischen 0 und 360 eingeben."}},
    {OverviewMessage::ModifierRange,
     {"You must enter a value between 0.01 and 99.99.", "Geben Sie einen Wert zwischen 0.01 und 99.99 ein."}},
    {OverviewMessage::WindSpeedRange,
     {"You must enter a speed between 1 and 40 knots.",
      "Sie müssen eine Geschwindigkeit zwischen 1 und 40 Knoten eingeben."}},
}};

constexpr std::array<Bilingual, 12> months{{
    {"January", "Januar"},
    {"February", "Februar"},
    {"March", "März"},
    {"April", "April"},
    {"May", "Mai"},
    {"June", "Juni"},
    {"July", "Juli"},
    {"August", "August"},
    {"September", "September"},
    {"October", "Oktober"},
    {"November", "November"},
    {"December", "Dezember"},
}};

constexpr std::array<Bilingual, 2> locations{{
    {"North Atlantic", "Nordatlantik"},
    {"South Pacific", "Südpazifik"},
}};

constexpr std::array<CodedCaption, 4> airControls{{
    {"2", {"None", "Keine"}},
    {"3", forceA},
    {"5", forceB},
    {"4", {"Contested", "Umstritten"}},
}};

constexpr std::array<CodedCaption, 4> navies{{
    {"KM", navyKM},
    {"USN", navyUSN},
    {"IJN", navyIJN},
    {"RN", navyRN},
}};

constexpr std::array<CodedCaption, 2> rainStates{{
    {"1", {"On", "Ein"}},
    {"0", {"Off", "Aus"}},
}};

constexpr std::array<Movie, 5> movies{{
    {"None - 0", {"None - 0", "Keine - 0"}},
    {"Barents Sea  - 1", inBoth("Barents Sea - 1")},
    {"Denmark - 2", inBoth("Denmark - 2")},
    {"Guadalcanal  - 3", inBoth("Guadalcanal - 3")},
    {"River Plate - 4", inBoth("River Plate - 4")},
}};

namespace {

/// Lists that are the same in both languages and stored as they are shown.
struct PlainList
{
    QLatin1StringView control;
    std::array<const char*, 8> entries; ///< ends at the first null
};
constexpr std::array<PlainList, 6> plainLists{{
    {"ComboYear"_L1, {"1939", "1940", "1941", "1942", "1943", "1944", "1945"}},
    {"ComboSeaState"_L1, {"1", "2", "3", "4", "5", "6", "7", "8"}},
    {"ComboMoon"_L1, {"None", "Full", "Three Quarters", "Half", "New"}},
    {"ComboVPMods"_L1, {"None", "Trans 2X VP", "Trans 5X VP", "Trans 10X VP"}},
    {"ComboBlueVC"_L1,
     {"None", "Disengage North", "Disengage East", "Disengage South", "Disengage West",
      "Destroy Enemy Forces"}},
    {"ComboRedVC"_L1,
     {"None", "Disengage North", "Disengage East", "Disengage South", "Disengage West",
      "Destroy Enemy Forces"}},
}};

template <typename Rows, typename TextOfRow>
QStringList textsOf(const Rows& rows, TextOfRow textOfRow)
{
    QStringList texts;
    for (const auto& row : rows) {
        texts.append(textOfRow(row));
    }
    return texts;
}

QStringList plainList(QStringView control)
{
    QStringList texts;
    const auto list =
        std::ranges::find_if(plainLists, [&](const PlainList& row) { return row.control == control; });
    if (list == plainLists.end()) {
        return texts;
    }
    for (const char* entry : list->entries) {
        if (entry != nullptr) {
            texts.append(QString::fromLatin1(entry));
        }
    }
    return texts;
}

} // namespace

QString overviewMessage(OverviewMessage message, Language language)
{
    return textIn(overviewMessages, message, language);
}

QStringList listContents(QStringView control, Language language)
{
    const auto caption = [&](const auto& row) { return row.caption.in(language); };
    const auto self = [&](const Bilingual& text) { return text.in(language); };
    if (control == "cmbMission"_L1) {
        return textsOf(missions, caption);
    }
    if (control == "CmbBlueSide"_L1 || control == "CmbRedSide"_L1) {
        return textsOf(navies, caption);
    }
    if (control == "cmbMovie"_L1) {
        return textsOf(movies, [](const Movie& movie) { return QString::fromLatin1(movie.listed); });
    }
    if (control == "ComboMonth"_L1) {
        return textsOf(months, self);
    }
    if (control == "ComboLocation"_L1) {
        return textsOf(locations, self);
    }
    if (control == "ComboAirSup"_L1) {
        return textsOf(airControls, caption);
    }
    if (control == "cmbRain"_L1) {
        return textsOf(rainStates, caption);
    }
    return plainList(control);
}

} // namespace torvane
