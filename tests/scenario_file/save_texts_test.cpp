#include "scenario_file/save_texts.h"

#include "shell/captions.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

// Typed anew, so that a slip in the program's own table shows.
constexpr struct
{
    SaveText text;
    const char* english;
    const char* german;
} expected[] = {
    {SaveText::ValidationTitle, "Save Error", "Fehler beim Sichern."},
    {SaveText::FileName,
     "File Name Invalid.  Please re-name the scenario's Title, in the Overview Menu, to conform to Windows "
     "file name conventions.",
     "File name Invalid.  Please re-name Scenario Title, in the Overview Menu, to conform to Windows file "
     "name conventions."},
    {SaveText::Bombardment,
     "A Bombardment scenario must have a target area.  Select Target Area in the Overview menu, then click "
     "on the map to place the area.",
     "Bombardierung-Szenarios müssen ein definiertes Zielgebiet haben. Bitte wählen Sie ein Zielgebiet aus "
     "(im Übersicht-Menu anwählen und dann durch Klicken auf die Landkarte auswählen)."},
    {SaveText::Convoy,
     "At least one division on the Escorting Force, in a Convoy scenario, must have a Convoy formation.",
     "In einem Konvoiszenario muss sich zumindest ein Begleitverband in Konvoiformation befinden."},
    {SaveText::TransportTarget,
     "A Tactical Transport scenario must have a target area.  Select Target Area in the Overview menu, then "
     "click on the map to place the area.",
     "Taktische Transportszenarios müssen ein definiertes Zielgebiet haben. Bitte wählen Sie ein Zielgebiet "
     "aus (im Übersicht-Menu anwählen und dann durch Klicken auf die Landkarte auswählen)."},
    {SaveText::TransportShips,
     "The Transporting Force in a TACTICAL TRANSPORT scenario may only have type DD ships.",
     "Taktische Transportszenarios können nur Zerstörer enthalten."},
    {SaveText::BothSides, "There must be at least one division per Force to save a scenario.",
     "Beide Seiten müssen zumindest über einen Verband verfügen bevor Sie das Szenario sichern können."},
    {SaveText::Overwrite, "This file already exists.  Do you wish to save over it?",
     "Eine Datei mit diesem Namen existiert bereits. Wollen Sie die existierende Datei ersetzen?"},
    {SaveText::OverwriteTitle, "Filename Warning!", "Warnung: Dateiname!"},
    {SaveText::Saved, "File saved successfully!", "Datei erfolgreich gesichert."},
    {SaveText::SavedTitle, "File Saved", "Datei gesichert."},
    {SaveText::Failed, "An Error occured when the file was saved.",
     "Beim Sichern der Datei trat ein Fehler auf."},
    {SaveText::FailedTitle, "Save Error", "Sicherungsfehler"},
};

TEST(SaveTexts, ReadAsTheyShouldInBothLanguages)
{
    ASSERT_EQ(saveTexts.size(), std::size(expected));
    for (const auto& row : expected) {
        EXPECT_EQ(saveText(row.text, Language::English), QString::fromUtf8(row.english));
        EXPECT_EQ(saveText(row.text, Language::German), QString::fromUtf8(row.german));
    }
}

TEST(SaveTexts, StandInTheOrderOfTheirNames)
{
    for (std::size_t i = 0; i < saveTexts.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(saveTexts[i].key), i);
        EXPECT_EQ(saveTexts[i].key, expected[i].text);
    }
}

TEST(SaveTexts, TellThatAFileIsBeingSaved)
{
    EXPECT_EQ(mainText(MainText::Saving, Language::English), QStringLiteral("Saving File...  Please Wait."));
    EXPECT_EQ(mainText(MainText::Saving, Language::German), QStringLiteral("Datei wird gesichert..."));
}

} // namespace
} // namespace torvane
