#include "overview/overview_tips.h"

namespace torvane {

using namespace Qt::StringLiterals;

namespace {

constexpr Bilingual cancelTip{"Closes the window; what was changed in it is not stored",
                              "Schließt das Fenster; was darin geändert wurde, wird nicht gesichert"};
constexpr Bilingual objectiveTip{"What the mission asks of the force",
                                 "Was der Einsatz von der Streitkraft verlangt"};
constexpr Bilingual headingTip{
    "The course on which the force leaves the battle: 0 to 360 degrees, 0 is north",
    "Der Kurs, auf dem sich die Streitkraft löst: 0 bis 360 Grad, 0 ist Norden"};
constexpr Bilingual modifierTip{"Factor on the force's victory points: 0.01 to 99.99",
                                "Faktor auf die Siegpunkte der Streitkraft: 0.01 bis 99.99"};
constexpr Bilingual navyTip{"The navy to which the force belongs",
                            "Die Marine, zu der die Streitkraft gehört"};
constexpr Bilingual headingDown{"1 degree less; below 0 comes 360", "1 Grad weniger; unter 0 folgt 360"};
constexpr Bilingual headingUp{"1 degree more; above 360 comes 0", "1 Grad mehr; über 360 folgt 0"};
constexpr Bilingual wholeDown{"1.00 less; below 0.01 comes 99.99", "1.00 weniger; unter 0.01 folgt 99.99"};
constexpr Bilingual wholeUp{"1.00 more; above 99.99 comes 0.01", "1.00 mehr; über 99.99 folgt 0.01"};
constexpr Bilingual hundredthDown{"0.01 less; below 0.01 comes 99.99",
                                  "0.01 weniger; unter 0.01 folgt 99.99"};
constexpr Bilingual hundredthUp{"0.01 more; above 99.99 comes 0.01", "0.01 mehr; über 99.99 folgt 0.01"};
constexpr Bilingual hoursTip{"1 hour on; the keys + and - step either way",
                             "1 Stunde weiter; die Tasten + und - gehen vor und zurück"};
constexpr Bilingual minutesTip{"1 minute on; the keys + and - step either way",
                               "1 Minute weiter; die Tasten + und - gehen vor und zurück"};

} // namespace

constexpr std::array<CaptionRow, 28> overviewTips{{
    {"cmdOK"_L1,
     {"Stores the overview and closes the window", "Sichert den Überblick und schließt das Fenster"}},
    {"CmdCancel"_L1, cancelTip},
    {"RTxtBBlueBrief"_L1, objectiveTip},
    {"RTxtBRedBrief"_L1, objectiveTip},
    {"TxtTitle"_L1,
     {"At most 30 characters; the scenario is saved under this name",
      "Höchstens 30 Zeichen; unter diesem Namen wird das Szenario gesichert"}},
    {"RichTxtDescrip"_L1,
     {"One paragraph of at most 370 characters; Enter goes on to the mission",
      "Ein Absatz von höchstens 370 Zeichen; Enter führt weiter zum Einsatz"}},
    {"cmbMission"_L1,
     {"What the battle is about; it settles roles and objectives",
      "Worum es in der Schlacht geht; bestimmt Rollen und Einsatzziele"}},
    {"cmbMovie"_L1, {"The film shown before the battle", "Der Film vor der Schlacht"}},
    {"CmbBlueSide"_L1, navyTip},
    {"CmbRedSide"_L1, navyTip},
    {"txtDisengageA"_L1, headingTip},
    {"txtDisengageB"_L1, headingTip},
    {"txtVPmodsA"_L1, modifierTip},
    {"txtVPmodsB"_L1, modifierTip},
    {"Command9"_L1, headingDown},
    {"Command10"_L1, headingUp},
    {"Command13"_L1, headingDown},
    {"Command14"_L1, headingUp},
    {"Command17"_L1, wholeDown},
    {"Command18"_L1, wholeUp},
    {"Command19"_L1, hundredthDown},
    {"Command20"_L1, hundredthUp},
    {"Command21"_L1, wholeDown},
    {"Command22"_L1, wholeUp},
    {"Command15"_L1, hundredthDown},
    {"Command16"_L1, hundredthUp},
    {"cmdEnviroCntrl"_L1,
     {"Time, calendar, weather, length of the battle", "Uhrzeit, Kalender, Wetter, Dauer der Schlacht"}},
    {"lblMovie"_L1, {"The film shown before the battle", "Der Film vor der Schlacht"}},
}};

constexpr std::array<CaptionRow, 28> environmentTips{{
    {"cmdOK"_L1,
     {"Stores the environment and closes the window", "Sichert die Umgebung und schließt das Fenster"}},
    {"CmdCancel"_L1, cancelTip},
    {"cmdHours"_L1, hoursTip},
    {"cmdMinutes"_L1, minutesTip},
    {"cmdSunriseHour"_L1, hoursTip},
    {"cmdSunriseMin"_L1, minutesTip},
    {"cmdSunsetHour"_L1, hoursTip},
    {"cmdSunsetMin"_L1, minutesTip},
    {"cmdGameLenHours"_L1,
     {"1 hour more; the battle lasts from 0:30 to 3:30", "1 Stunde mehr; die Schlacht dauert 0:30 bis 3:30"}},
    {"cmdGameLenMin"_L1,
     {"15 minutes more; the battle lasts from 0:30 to 3:30",
      "15 Minuten mehr; die Schlacht dauert 0:30 bis 3:30"}},
    {"TxtWindSpd"_L1, {"1 to 40 knots; brings its sea state", "1 bis 40 Knoten; bestimmt den Seegang"}},
    {"Command7"_L1, {"1 knot more; above 40 comes 1", "1 Knoten mehr; über 40 folgt 1"}},
    {"Command8"_L1, {"1 knot less; below 1 comes 40", "1 Knoten weniger; unter 1 folgt 40"}},
    {"ComboSeaState"_L1,
     {"1 calm to 8 storm; draws a wind that fits", "1 ruhig bis 8 Sturm; zieht einen passenden Wind nach"}},
    {"TxtWindDir"_L1, {"Where the wind blows: 0 to 360 degrees", "Richtung des Windes: 0 bis 360 Grad"}},
    {"Command11"_L1, headingUp},
    {"Command12"_L1, headingDown},
    {"cmbRain"_L1, {"Rain dims radar", "Regen schwächt Radar"}},
    {"TxtVis"_L1,
     {"40 to 100 percent by day, 0 to 40 percent by night",
      "Am Tag 40 bis 100 Prozent, nachts 0 bis 40 Prozent"}},
    {"Command5"_L1, {"1 percent more", "1 Prozent mehr"}},
    {"Command3"_L1, {"1 percent less", "1 Prozent weniger"}},
    {"TxtRadar"_L1, {"0 to 100 percent", "0 bis 100 Prozent"}},
    {"Command6"_L1, {"1 percent more; above 100 comes 0", "1 Prozent mehr; über 100 folgt 0"}},
    {"Command4"_L1, {"1 percent less; below 0 comes 100", "1 Prozent weniger; unter 0 folgt 100"}},
    {"ComboMonth"_L1, {"The month of the battle", "Der Monat der Schlacht"}},
    {"ComboYear"_L1, {"1939 to 1945", "1939 bis 1945"}},
    {"ComboLocation"_L1, {"The sea in which the battle takes place", "Das Seegebiet der Schlacht"}},
    {"ComboAirSup"_L1, {"Who controls air and sea", "Wer Luft und See beherrscht"}},
}};

constexpr std::array<CaptionRow, 3> environmentGroups{{
    {"fraTime"_L1, {"Time", "Zeit"}},
    {"fraWeather"_L1, {"Weather", "Wetter"}},
    {"fraPlace"_L1, {"Calendar and Theatre", "Kalender und Seegebiet"}},
}};

constexpr std::array<CaptionRow, 2> overviewNames{{
    {"RTxtBBlueBrief"_L1, {"Objective of Force A", "Ziel der Streitkraft A"}},
    {"RTxtBRedBrief"_L1, {"Objective of Force B", "Ziel der Streitkraft B"}},
}};

} // namespace torvane
