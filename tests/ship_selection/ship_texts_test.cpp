#include "ship_selection/ship_texts.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

TEST(ShipCaptions, AreThoseOfTheTable)
{
    struct Row
    {
        const char* control;
        const char* english;
        const char* german;
    };
    const Row rows[] = {
        {"CmdSortSrch", "Sort OFF", "Sortierung AUS"},
        {"CmdShipSrch", "Ship Search", "Schiff suchen"},
        {"Frame1", "Sort Ships by:", "Schiffe sortieren nach:"},
        {"OptClass", "Type", "Typ"},
        {"OptName", "Name", "Name"},
        {"OptType", "Class", "Klasse"},
        {"OptNavy", "Hit Pts/Fl Pts", "Pkt-R/Pkt-W"},
        {"Frame2", "Force Navy Filter", "Marinefilter"},
        {"optFilterRN", "Royal Navy", "Royal Navy"},
        {"optFilterKM", "Kriegsmarine", "Kriegsmarine"},
        {"optFilterUSN", "United States Navy", "United States Navy"},
        {"optFilterIJN", "Imp Japanese Navy", "Japanische Marine"},
        {"ChkScrollBars", "Check this box to view more ship data.", "Check this box to view more ship data."},
        {"CmdRemove", "&Remove Ship", "Schiff entfernen"},
        {"CmdClear", "Clear All", "Alle löschen"},
        {"CmdCancel", "&Cancel", "Abbrechen"},
        {"CmdKeepShips", "&Keep these Ships", "Diese Schiffe beibehalten"},
        {"ShipDBaseFrm", "Torvane - Add/Remove Ships", "Torvane - Schiffe hinzufügen"},
    };
    ASSERT_EQ(std::size(rows), shipCaptions.size());
    for (const Row& row : rows) {
        const QString control = QString::fromLatin1(row.control);
        EXPECT_EQ(captionOf(shipCaptions, control, Language::English), QString::fromUtf8(row.english));
        EXPECT_EQ(captionOf(shipCaptions, control, Language::German), QString::fromUtf8(row.german));
    }
}

TEST(SelectionMessages, AreThoseOfTheTable)
{
    struct Row
    {
        SelectionMessage message;
        const char* english;
        const char* german;
        const char* englishTitle;
        const char* germanTitle;
    };
    const Row rows[] = {
        {SelectionMessage::DivisionFull, "You may only have a maximum of 10 ships per division.",
         "Ein Verband kann maximal über 10 Schiffe verfügen.", "Limit Reached", "Limit erreicht."},
        {SelectionMessage::ForceFull, "You may only have a maximum of 28 ships per Force.",
         "Eine Streitkraft kann maximal über 28 Schiffe verfügen.", "Limit Reached", "Limit erreicht."},
        {SelectionMessage::ScenarioFull, "A scenario may only have a maximum of 32 ships.",
         "Ein Szenario kann maximal 32 Schiffe enthalten.", "Limit Reached", "Limit erreicht."},
        {SelectionMessage::DestroyersOnly,
         "The Transporting Force in a TACTICAL TRANSPORT scenario may only have type DD ships.",
         "Taktische Transportszenarios können nur Zerstörer enthalten.", "Ship Class Error",
         "Fehler: Schiffsklasse."},
        {SelectionMessage::AlreadySelected, "You have already selected this ship.",
         "Sie haben dieses Schiff bereits ausgewählt.", "", ""},
        {SelectionMessage::NothingToKeep, "There are no ships to be saved.", "Kein Schiff vorhanden.", "",
         ""},
        {SelectionMessage::NoneToRemoveSelected, "Please select a ship to remove.",
         "Bitte wählen Sie ein Schiff aus das gelöscht werden soll.", "", ""},
        {SelectionMessage::NothingToRemove, "There are no more ships to remove.",
         "Keine weiteren Schiffe löschbar.", "", ""},
    };
    ASSERT_EQ(std::size(rows), selectionMessages.size());
    for (const Row& row : rows) {
        const SelectionMessageRow& found = selectionMessage(row.message);
        EXPECT_EQ(found.message, row.message);
        EXPECT_STREQ(found.text.english, row.english);
        EXPECT_STREQ(found.text.german, row.german);
        EXPECT_STREQ(found.title.english, row.englishTitle);
        EXPECT_STREQ(found.title.german, row.germanTitle);
    }
}

TEST(ShipTexts, AreThoseLaidDown)
{
    struct Row
    {
        ShipText text;
        const char* english;
        const char* german;
    };
    const Row rows[] = {
        {ShipText::SortOff, "Sort OFF", "Sortierung AUS"},
        {ShipText::SortOn, "Sort ON", "Sortierung EIN"},
        {ShipText::SearchPrompt, "Please enter the name of the ship you wish to find.",
         "Bitte Schiffsnamen Eingeben."},
        {ShipText::SearchTitle, "Ship Search", "Ship Search"},
        {ShipText::NotFound,
         "The ship you have selected does not appear in the data base.  Please check the spelling:",
         "Das von Ihnen eingegebene Schiff kann nicht gefunden werden. Bitte überprüfen Sie die "
         "Schreibweise:"},
        {ShipText::NotFoundTitle, "Ship Not Found", "Schiff nicht gefunden."},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(shipText(row.text, Language::English), QString::fromUtf8(row.english));
        EXPECT_EQ(shipText(row.text, Language::German), QString::fromUtf8(row.german));
    }
    for (std::size_t i = 0; i < shipTexts.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(shipTexts[i].key), i);
    }
}

} // namespace
} // namespace torvane::testing
