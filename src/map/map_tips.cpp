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

} // namespace torvane
