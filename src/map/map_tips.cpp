#include "map/map_tips.h"

namespace torvane {

using namespace Qt::StringLiterals;

namespace {

constexpr Bilingual extent{"How much sea the map shows: width by height in yards",
                           "So viel See zeigt die Karte: Breite mal Höhe in Yards"};
constexpr Bilingual cursor{"Where the pointer is, in yards from the map's upper left corner",
                           "Wo der Zeiger steht, in Yards von der linken oberen Ecke der Karte"};

} // namespace

constexpr std::array<CaptionRow, 10> mapTips{{
    {"Label1"_L1, {"Measured with the line tool", "Mit dem Linien-Werkzeug gemessen"}},
    {"lblDistance"_L1,
     {"Yards from A to B as the line tool last measured them",
      "Yards von A nach B, wie das Linien-Werkzeug sie zuletzt gemessen hat"}},
    {"Picture2"_L1, extent},
    {"Picture4"_L1, extent},
    {"Picture1"_L1, extent},
    {"picMapScale1"_L1, cursor},
    {"picMapScaleX"_L1, cursor},
    {"picMapScale2"_L1, cursor},
    {"HScroll1"_L1,
     {"Moves the map to the left or right; its slider does not show where you are",
      "Verschiebt die Karte nach links oder rechts; der Schieber zeigt nicht an, wo Sie sind"}},
    {"VScroll1"_L1,
     {"Moves the map up or down; its slider does not show where you are",
      "Verschiebt die Karte nach oben oder unten; der Schieber zeigt nicht an, wo Sie sind"}},
}};

constexpr std::array<CaptionRow, 3> mapNames{{
    {"Picture_Main"_L1, {"Map", "Karte"}},
    {"HScroll1"_L1, {"Map to the left or right", "Karte nach links oder rechts"}},
    {"VScroll1"_L1, {"Map up or down", "Karte nach oben oder unten"}},
}};

constexpr std::array<CaptionRow, 10> mapDescriptions{{
    {"Picture_Main"_L1,
     {"The sea with the ships of both forces; divisions, target and line are placed on it by a click or by "
      "Ctrl with the arrows and Space; Backspace gives up a division that waits",
      "Die See mit den Schiffen beider Streitkräfte; Verbände, Ziel und Linie setzt ein Klick darauf oder "
      "Strg mit den Pfeilen und die Leertaste; die Rücktaste bricht das Setzen eines Verbands ab"}},
    {"cmdGridLevel"_L1, {"Sets the size of the map's grid", "Stellt die Größe des Rasters ein"}},
    {"cmdZoomLevel"_L1, {"Sets how much sea the map shows", "Stellt ein, wie viel See die Karte zeigt"}},
    {"cmdNameTog"_L1,
     {"Labels ships by type and name, by name, by type or not at all",
      "Beschriftet Schiffe mit Typ und Namen, nur Namen, nur Typ oder gar nicht"}},
    {"cmdMapScale"_L1,
     {"Shows or hides the scale of the grid", "Zeigt oder verbirgt den Maßstab des Rasters"}},
    {"cmdVisibCircles"_L1,
     {"Shows or hides how far each ship can be seen",
      "Zeigt oder verbirgt, wie weit man jedes Schiff sieht"}},
    {"cmdGunCircles"_L1,
     {"Shows or hides how far each ship's main guns reach",
      "Zeigt oder verbirgt, wie weit die Hauptgeschütze jedes Schiffes reichen"}},
    {"cmdRadarCircles"_L1,
     {"Shows or hides how far each ship's radar reaches",
      "Zeigt oder verbirgt, wie weit das Radar jedes Schiffes reicht"}},
    {"cmdMeasureTool"_L1,
     {"Takes up or puts away the line that measures a distance",
      "Nimmt die Linie, die eine Entfernung misst, oder legt sie weg"}},
    {"Image1"_L1,
     {"Brings the map back to where it began", "Bringt die Karte dorthin zurück, wo sie begann"}},
}};

} // namespace torvane
