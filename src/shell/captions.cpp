#include "shell/captions.h"

namespace torvane {

constexpr std::array<TextRow<MainText>, 21> mainTexts{{
    {MainText::Title, {"Torvane - Scenario Editor", "Torvane - Szenario-Editor"}},
    {MainText::RulerCaption, {"Distance A to B", "Abstand A nach B"}},
    {MainText::Division, {"Division", "Verband"}},
    {MainText::DivisionShort, {"Div", "Verb."}},
    {MainText::HelpTagsOn, {"Help Tags ON", "Hilfetexte ein"}},
    {MainText::HelpTagsOff, {"Help Tags OFF", "Hilfetexte aus"}},
    {MainText::LoadError, {"An error occured when loading the file.", "Fehler beim Laden einer Datei."}},
    {MainText::LoadErrorTitle, {"Error", "Es ist ein Fehler aufgetreten!"}},
    {MainText::ProfileFileError,
     {"An error occured while writing the ini file", "Beim Sichern der .ini-Datei trat ein Fehler auf."}},
    {MainText::ProfileWriteError,
     {"An error occured while writing profile!", "Beim Sichern der Profiledatei trat ein Fehler auf."}},
    {MainText::ExitQuestion, {"Do you wish to return to Torvane?", "Wollen Sie zu Torvane zurückkehren?"}},
    {MainText::ExitTitle, {"Exit Scenario Editor", "Szenario-Editor verlassen"}},
    {MainText::Loading, {"Loading...  Please wait.", "Spieldaten werden geladen..."}},
    {MainText::Saving, {"Saving File...  Please Wait.", "Datei wird gesichert..."}},
    {MainText::SplashTitle, {"SCENARIO EDITOR", "Szenario-Editor"}},
    {MainText::AboutTitle, {"About", "Über"}},
    {MainText::CloseWindow, {"Closes the window", "Schließt das Fenster"}},
    {MainText::RuntimeErrorTitle, {"Torvane - Scenario Editor", "Torvane - Szenario-Editor"}},
    {MainText::FolderInUse,
     {"The scenario editor is already running in this folder:\n\n%1\n\nClose it there before you start it "
      "again.",
      "Der Szenario-Editor läuft bereits in diesem Ordner:\n\n%1\n\nBitte beenden Sie ihn dort, bevor Sie "
      "ihn "
      "neu starten."}},
    {MainText::UnsavedFile,
     {"This file could not be written:\n\n%1\n\n%2\n\nYour changes are kept while the program runs and are "
      "written "
      "as soon as it is possible again.",
      "Diese Datei konnte nicht geschrieben werden:\n\n%1\n\n%2\n\nIhre Änderungen bleiben erhalten, solange "
      "das "
      "Programm läuft, und werden geschrieben, sobald es wieder möglich ist."}},
    {MainText::Unrecovered,
     {"The scenario of a run that did not end could not be recovered:\n\n%1\n\nIt is kept in this file, and "
      "the next start tries again:\n\n%2",
      "Das Szenario eines Laufs, der nicht zu Ende kam, konnte nicht wiederhergestellt werden:\n\n%1\n\nEs "
      "liegt in dieser Datei, und der nächste Start versucht es noch einmal:\n\n%2"}},
}};

QString mainText(MainText text, Language language)
{
    return textIn(mainTexts, text, language);
}

} // namespace torvane
