#include "ship_selection/ship_texts.h"

namespace torvane {

using namespace Qt::StringLiterals;

constexpr std::array<CaptionRow, 18> shipCaptions{{
    {"ShipDBaseFrm"_L1, {"Torvane - Add/Remove Ships", "Torvane - Schiffe hinzufügen"}},
    {"CmdSortSrch"_L1, {"Sort OFF", "Sortierung AUS"}},
    {"CmdShipSrch"_L1, {"Ship Search", "Schiff suchen"}},
    {"Frame1"_L1, {"Sort Ships by:", "Schiffe sortieren nach:"}},
    // The names of the sort options are not those of what they sort by. Kept.
    {"OptClass"_L1, {"Type", "Typ"}},
    {"OptName"_L1, inBoth("Name")},
    {"OptType"_L1, {"Class", "Klasse"}},
    {"OptNavy"_L1, {"Hit Pts/Fl Pts", "Pkt-R/Pkt-W"}},
    {"Frame2"_L1, {"Force Navy Filter", "Marinefilter"}},
    {"optFilterRN"_L1, inBoth("Royal Navy")},
    {"optFilterKM"_L1, inBoth("Kriegsmarine")},
    {"optFilterUSN"_L1, inBoth("United States Navy")},
    {"optFilterIJN"_L1, {"Imp Japanese Navy", "Japanische Marine"}},
    {"ChkScrollBars"_L1, inBoth("Check this box to view more ship data.")},
    {"CmdRemove"_L1, {"&Remove Ship", "Schiff entfernen"}},
    {"CmdClear"_L1, {"Clear All", "Alle löschen"}},
    {"CmdCancel"_L1, {"&Cancel", "Abbrechen"}},
    {"CmdKeepShips"_L1, {"&Keep these Ships", "Diese Schiffe beibehalten"}},
}};

constexpr std::array<CaptionRow, 17> shipTips{{
    {"Grid1"_L1,
     {"Click a ship, or press Enter on it, to add it to the division; type a name to go to it",
      "Ein Klick auf ein Schiff oder die Eingabetaste nimmt es in den Verband auf; ein getippter Name führt "
      "zum Schiff"}},
    {"LstDivision"_L1,
     {"The ships of the division; Delete removes the selected one",
      "Die Schiffe des Verbands; die Taste Entf entfernt das gewählte"}},
    {"CmdSortSrch"_L1,
     {"Changes between filtering by navy and sorting", "Wechselt zwischen Marinefilter und Sortierung"}},
    {"CmdShipSrch"_L1,
     {"Goes to a ship of the shown navy by its whole name",
      "Führt zu einem Schiff der gezeigten Marine mit diesem ganzen Namen"}},
    {"OptClass"_L1, {"Sorts by type, A to Z", "Sortiert nach Typ, A bis Z"}},
    {"OptName"_L1, {"Sorts by name, A to Z", "Sortiert nach Namen, A bis Z"}},
    {"OptType"_L1, {"Sorts by class, A to Z", "Sortiert nach Klasse, A bis Z"}},
    {"OptNavy"_L1, {"Sorts by hit points, the strongest first", "Sortiert nach Pkt-R, die stärksten zuerst"}},
    {"optFilterRN"_L1, {"Shows the ships of this navy", "Zeigt die Schiffe dieser Marine"}},
    {"optFilterKM"_L1, {"Shows the ships of this navy", "Zeigt die Schiffe dieser Marine"}},
    {"optFilterUSN"_L1, {"Shows the ships of this navy", "Zeigt die Schiffe dieser Marine"}},
    {"optFilterIJN"_L1, {"Shows the ships of this navy", "Zeigt die Schiffe dieser Marine"}},
    {"ChkScrollBars"_L1, {"Lets the list scroll sideways", "Lässt die Liste auch zur Seite rollen"}},
    {"CmdRemove"_L1,
     {"Takes the selected ship out of the division", "Nimmt das gewählte Schiff aus dem Verband"}},
    {"CmdClear"_L1, {"Takes all ships out of the list", "Nimmt alle Schiffe aus der Liste"}},
    {"CmdCancel"_L1, {"Clears the list and closes the window", "Leert die Liste und schließt das Fenster"}},
    {"CmdKeepShips"_L1,
     {"Makes the listed ships those of the division; the first one leads",
      "Macht die Schiffe der Liste zu denen des Verbands; das erste führt"}},
}};

static constexpr Bilingual limitTitle{"Limit Reached", "Limit erreicht."};

constexpr std::array<SelectionMessageRow, 8> selectionMessages{{
    {SelectionMessage::DivisionFull,
     {"You may only have a maximum of 10 ships per division.",
      "Ein Verband kann maximal über 10 Schiffe verfügen."},
     limitTitle},
    {SelectionMessage::ForceFull,
     {"You may only have a maximum of 28 ships per Force.",
      "Eine Streitkraft kann maximal über 28 Schiffe verfügen."},
     limitTitle},
    {SelectionMessage::ScenarioFull,
     {"A scenario may only have a maximum of 32 ships.", "Ein Szenario kann maximal 32 Schiffe enthalten."},
     limitTitle},
    {SelectionMessage::DestroyersOnly,
     {"The Transporting Force in a TACTICAL TRANSPORT scenario may only have type DD ships.",
      "Taktische Transportszenarios können nur Zerstörer enthalten."},
     {"Ship Class Error", "Fehler: Schiffsklasse."}},
    {SelectionMessage::AlreadySelected,
     {"You have already selected this ship.", "Sie haben dieses Schiff bereits ausgewählt."},
     inBoth("")},
    {SelectionMessage::NothingToKeep,
     {"There are no ships to be saved.", "Kein Schiff vorhanden."},
     inBoth("")},
    {SelectionMessage::NoneToRemoveSelected,
     {"Please select a ship to remove.", "Bitte wählen Sie ein Schiff aus das gelöscht werden soll."},
     inBoth("")},
    {SelectionMessage::NothingToRemove,
     {"There are no more ships to remove.", "Keine weiteren Schiffe löschbar."},
     inBoth("")},
}};

const SelectionMessageRow& selectionMessage(SelectionMessage message)
{
    return selectionMessages.at(static_cast<std::size_t>(message));
}

constexpr std::array<TextRow<ShipText>, 12> shipTexts{{
    {ShipText::SortOff, {"Sort OFF", "Sortierung AUS"}},
    {ShipText::SortOn, {"Sort ON", "Sortierung EIN"}},
    {ShipText::SearchPrompt,
     {"Please enter the name of the ship you wish to find.", "Bitte Schiffsnamen Eingeben."}},
    {ShipText::SearchTitle, inBoth("Ship Search")},
    {ShipText::NotFound,
     {"The ship you have selected does not appear in the data base.  Please check the spelling:",
      "Das von Ihnen eingegebene Schiff kann nicht gefunden werden. Bitte überprüfen Sie die Schreibweise:"}},
    {ShipText::NotFoundTitle, {"Ship Not Found", "Schiff nicht gefunden."}},
    {ShipText::DivisionCount, {"Division: %1 of %2 ships", "Verband: %1 von %2 Schiffen"}},
    {ShipText::ForceACount, {"Force A: %1 of %2 ships", "Streitkraft A: %1 von %2 Schiffen"}},
    {ShipText::ForceBCount, {"Force B: %1 of %2 ships", "Streitkraft B: %1 von %2 Schiffen"}},
    {ShipText::ScenarioCount, {"Scenario: %1 of %2 ships", "Szenario: %1 von %2 Schiffen"}},
    {ShipText::GridName, {"Ships", "Schiffe"}},
    {ShipText::ClickedName, {"Clicked field", "Angeklicktes Feld"}},
}};

QString shipText(ShipText text, Language language)
{
    return textIn(shipTexts, text, language);
}

} // namespace torvane
