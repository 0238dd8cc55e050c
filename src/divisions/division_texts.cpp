#include "divisions/division_texts.h"

namespace torvane {

using namespace Qt::StringLiterals;

namespace {

constexpr Bilingual saveTip{"Writes the division and its ships", "Schreibt den Verband und seine Schiffe"};
constexpr Bilingual cancelTip{"Closes the window without writing the division",
                              "Schließt das Fenster, ohne den Verband zu schreiben"};
constexpr Bilingual slower{"1 knot less; below 1 comes the limit of ships and sea",
                           "1 Knoten weniger; unter 1 folgt die Grenze nach Schiffen und See"};
constexpr Bilingual faster{"1 knot more; above the limit of ships and sea comes 1",
                           "1 Knoten mehr; über der Grenze nach Schiffen und See folgt 1"};
constexpr Bilingual encumberedTip{
    "Whether the ships are slowed by cargo: only the transporting force of a tactical transport can be",
    "Ob Ladung die Schiffe behindert: nur bei der Transportflotte eines taktischen Transports möglich"};

} // namespace

constexpr std::array<CaptionRow, 20> divisionCaptions{{
    {"CreateDivisionFrm"_L1, {"Torvane - Create/Edit Divisions", "Torvane - Verband erstellen/bearbeiten"}},
    {"CmdAdd"_L1, {"&Add/Remove Ships", "Schiffe hinzufügen"}},
    {"CmdFlagShip"_L1, {"Change &Flagship", "Flaggschiff ändern"}},
    {"CmdCancel"_L1, {"&Cancel", "Abbrechen"}},
    {"CmdEditCancel"_L1, {"&Cancel", "Abbrechen"}},
    {"CmdSaveData"_L1, {"&Save Division", "Speichern"}},
    {"cmdOK"_L1, {"&Save Division", "Speichern"}},
    {"cmdKeepDivData"_L1, {"Keep Division Data", "Verbandsdaten beibehalten"}},
    {"cmdDivDataChng"_L1, {"Change Division Data", "Verbandsdaten ändern"}},
    {"CmdEditShip"_L1, inBoth("&Edit Ships")},
    {"CmdNewDivision"_L1, inBoth("Add &Division")},
    {"Label6"_L1, {"Force:", "Verband:"}},
    {"Label3"_L1, {"Heading:", "Kurs:"}},
    {"Label5"_L1, inBoth("Formation:")},
    {"Label4"_L1, {"Spacing:", "Abstand:"}},
    {"Label2"_L1, {"Speed:", "Geschwindigkeit:"}},
    {"Label1"_L1, {"Encumbered:", "Behindert:"}},
    {"optEncumYES"_L1, {"Yes", "Ja"}},
    {"optEncumNO"_L1, {"No", "Nein"}},
    {"lblPosition"_L1, {"Last position:", "Letzte Position:"}},
}};

constexpr std::array<CaptionRow, 22> divisionTips{{
    {"CmdAdd"_L1,
     {"Opens the list of ships, from which the division is put together",
      "Öffnet die Schiffsliste, aus der der Verband zusammengestellt wird"}},
    {"CmdCancel"_L1, cancelTip},
    {"CmdEditCancel"_L1, cancelTip},
    {"cmdDivDataChng"_L1,
     {"Opens heading, formation, spacing and speed for changes",
      "Gibt Kurs, Formation, Abstand und Geschwindigkeit zum Ändern frei"}},
    {"cmdKeepDivData"_L1,
     {"Keeps the settings as they stand and locks them; the division can then be saved",
      "Behält die Einstellungen und sperrt sie; danach kann der Verband gespeichert werden"}},
    {"TxtHeading"_L1, {"0 to 360 degrees, 0 is north", "0 bis 360 Grad, 0 ist Norden"}},
    {"CmdCntClckWse"_L1, {"5 degrees to port; below 0 comes 360", "5 Grad nach Backbord; unter 0 folgt 360"}},
    {"CmdClckWse"_L1,
     {"5 degrees to starboard; above 360 comes 0", "5 Grad nach Steuerbord; über 360 folgt 0"}},
    {"CmbFormation"_L1,
     {"How the ships sail; a convoy ignores the heading",
      "Wie die Schiffe fahren; ein Konvoi beachtet den Kurs nicht"}},
    {"CmbSpacing"_L1,
     {"Yards from ship to ship, from centre to centre", "Yards von Schiff zu Schiff, von Mitte zu Mitte"}},
    {"TxtSpeed"_L1, {"Knots", "Knoten"}},
    {"cmdSpeedVal"_L1, slower},
    {"cmdSpeedVal2"_L1, faster},
    {"optEncumYES"_L1, encumberedTip},
    {"optEncumNO"_L1, encumberedTip},
    {"LblPicMap"_L1,
     {"Where the division stood when it was opened, or where the map placed one last, in yards",
      "Wo der Verband beim Öffnen stand oder die Karte zuletzt einen platzierte, in Yards"}},
    {"GrdDivision"_L1,
     {"The ships of the division in their order; FL marks the flagship",
      "Die Schiffe des Verbands in ihrer Reihenfolge; FL bezeichnet das Flaggschiff"}},
    {"CmdFlagShip"_L1,
     {"Then click the ship that is to be the flagship", "Danach das Schiff anklicken, das Flaggschiff wird"}},
    {"CmdSaveData"_L1, saveTip},
    {"cmdOK"_L1, saveTip},
    {"CmdEditShip"_L1,
     {"Ships are edited from the main window's menu Edit Ship",
      "Schiffe werden über das Menü „Schiff bearbeiten“ des Hauptfensters bearbeitet"}},
    {"CmdNewDivision"_L1,
     {"Divisions are added from the main window's menu Create Division",
      "Verbände werden über das Menü „Verband erstellen“ des Hauptfensters erstellt"}},
}};

constexpr std::array<TextRow<DivisionText>, 9> divisionTexts{{
    {DivisionText::Division, {"Division", "Verband"}},
    {DivisionText::TooManyDivisions,
     {"You may only have a maximum of 6 divisions per side.",
      "Eine Streitkraft kann maximal über 6 Verbände verfügen."}},
    {DivisionText::HeadingRange,
     {"You must enter a heading between 0 and 360 degrees.",
      "Sie müssen einen Wert zwischen 0 und 360 eingeben."}},
    {DivisionText::OutOfRangeTitle, {"Out of Range", "Außer Reichweite"}},
    {DivisionText::SettingsLocked, {"Locked", "Gesperrt"}},
    {DivisionText::SettingsOpen, {"Open", "Frei"}},
    {DivisionText::NoShips, {"No ships yet", "Noch keine Schiffe"}},
    {DivisionText::ShipCount, {"Ships: %1 of 10", "Schiffe: %1 von 10"}},
    {DivisionText::PickFlagship, {"Click the new flagship", "Das neue Flaggschiff anklicken"}},
}};

constexpr std::array<Bilingual, 4> compassLetters{{inBoth("N"), {"E", "O"}, inBoth("S"), inBoth("W")}};

QString divisionText(DivisionText text, Language language)
{
    return textIn(divisionTexts, text, language);
}

QString divisionLabel(int number, Language language)
{
    return divisionText(DivisionText::Division, language) + QLatin1Char(' ') + QString::number(number);
}

} // namespace torvane
