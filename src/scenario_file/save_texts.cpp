#include "scenario_file/save_texts.h"

namespace torvane {

constexpr std::array<TextRow<SaveText>, 13> saveTexts{{
    {SaveText::ValidationTitle, {"Save Error", "Fehler beim Sichern."}},
    {SaveText::FileName,
     {"File Name Invalid.  Please re-name the scenario's Title, in the Overview Menu, to conform to Windows "
      "file name conventions.",
      "File name Invalid.  Please re-name Scenario Title, in the Overview Menu, to conform to Windows file "
      "name conventions."}},
    {SaveText::Bombardment,
     {"A Bombardment scenario must have a target area.  Select Target Area in the Overview menu, then click "
      "on the map to place the area.",
      "Bombardierung-Szenarios müssen ein definiertes Zielgebiet haben. Bitte wählen Sie ein Zielgebiet aus "
      "(im Übersicht-Menu anwählen und dann durch Klicken auf die Landkarte auswählen)."}},
    {SaveText::Convoy,
     {"At least one division on the Escorting Force, in a Convoy scenario, must have a Convoy formation.",
      "In einem Konvoiszenario muss sich zumindest ein Begleitverband in Konvoiformation befinden."}},
    {SaveText::TransportTarget,
     {"A Tactical Transport scenario must have a target area.  Select Target Area in the Overview menu, then "
      "click on the map to place the area.",
      "Taktische Transportszenarios müssen ein definiertes Zielgebiet haben. Bitte wählen Sie ein Zielgebiet "
      "aus (im Übersicht-Menu anwählen und dann durch Klicken auf die Landkarte auswählen)."}},
    {SaveText::TransportShips,
     {"The Transporting Force in a TACTICAL TRANSPORT scenario may only have type DD ships.",
      "Taktische Transportszenarios können nur Zerstörer enthalten."}},
    {SaveText::BothSides,
     {"There must be at least one division per Force to save a scenario.",
      "Beide Seiten müssen zumindest über einen Verband verfügen bevor Sie das Szenario sichern können."}},
    {SaveText::Overwrite,
     {"This file already exists.  Do you wish to save over it?",
      "Eine Datei mit diesem Namen existiert bereits. Wollen Sie die existierende Datei ersetzen?"}},
    {SaveText::OverwriteTitle, {"Filename Warning!", "Warnung: Dateiname!"}},
    {SaveText::Saved, {"File saved successfully!", "Datei erfolgreich gesichert."}},
    {SaveText::SavedTitle, {"File Saved", "Datei gesichert."}},
    {SaveText::Failed,
     {"An Error occured when the file was saved.", "Beim Sichern der Datei trat ein Fehler auf."}},
    {SaveText::FailedTitle, {"Save Error", "Sicherungsfehler"}},
}};

QString saveText(SaveText text, Language language)
{
    return textIn(saveTexts, text, language);
}

} // namespace torvane
