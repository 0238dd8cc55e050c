#include "shell/help_texts.h"

#include <algorithm>

namespace torvane {

using namespace Qt::StringLiterals;

constexpr std::array<CaptionRow, 7> helpCaptions{{
    {"HelpFrm"_L1, {"Torvane - Help", "Torvane - Hilfe"}},
    {"cmdBack"_L1, {"&Back", "&Zurück"}},
    {"cmdForward"_L1, {"&Forward", "&Vor"}},
    {"cmdContents"_L1, {"F&irst Page", "&Erste Seite"}},
    {"lblFind"_L1, {"&Search:", "&Suchen:"}},
    {"cmdFindPrevious"_L1, {"&Previous", "V&origes"}},
    {"cmdFindNext"_L1, {"&Next", "&Nächstes"}},
}};

constexpr std::array<CaptionRow, 6> helpTips{{
    {"cmdBack"_L1,
     {"To what you read before (Alt+Left)", "Zu dem, was Sie vorher gelesen haben (Alt+Links)"}},
    {"cmdForward"_L1, {"Forward again (Alt+Right)", "Wieder vor (Alt+Rechts)"}},
    {"cmdContents"_L1, {"To the first page (Alt+Home)", "Zur ersten Seite (Alt+Pos1)"}},
    {"txtFind"_L1,
     {"A word to search for in all chapters (Ctrl+F)",
      "Ein Wort, das in allen Kapiteln gesucht wird (Strg+F)"}},
    {"cmdFindPrevious"_L1, {"The previous place (Shift+F3)", "Die vorige Fundstelle (Umschalt+F3)"}},
    {"cmdFindNext"_L1, {"The next place (Enter or F3)", "Die nächste Fundstelle (Eingabetaste oder F3)"}},
}};

constexpr std::array<CaptionRow, 2> helpNames{{
    {"treContents"_L1, {"Contents", "Inhalt"}},
    {"txtGuide"_L1, {"Chapter", "Kapitel"}},
}};

// As tool tips over the text they would only be in the way.
constexpr std::array<CaptionRow, 2> helpDescriptions{{
    {"treContents"_L1,
     {"The chapters and their sections; a click or Enter opens one",
      "Die Kapitel und ihre Abschnitte; ein Klick oder die Eingabetaste öffnet sie"}},
    {"txtGuide"_L1, {"The chapter that is open", "Das aufgeschlagene Kapitel"}},
}};

constexpr std::array<TextRow<HelpText>, 6> helpTexts{{
    {HelpText::BoxTitle, {"Help", "Hilfe"}},
    {HelpText::FileMissing,
     {"The help file is missing:\n\n%1\n\nPut it back or install the editor again.",
      "Die Hilfedatei fehlt:\n\n%1\n\nLegen Sie sie zurück oder installieren Sie den Editor neu."}},
    {HelpText::FileUnreadable,
     {"The help file can't be read:\n\n%1\n\nGive yourself the right to read it, or install the editor "
      "again.",
      "Die Hilfedatei lässt sich nicht lesen:\n\n%1\n\nGeben Sie sich das Recht, sie zu lesen, oder "
      "installieren "
      "Sie den Editor neu."}},
    {HelpText::FileDamaged,
     {"The help file is damaged:\n\n%1\n\nPut a sound copy in its place or install the editor again.",
      "Die Hilfedatei ist beschädigt:\n\n%1\n\nLegen Sie eine heile an ihre Stelle oder installieren Sie den "
      "Editor "
      "neu."}},
    {HelpText::Found, {"%1 of %2", "%1 von %2"}},
    {HelpText::NotFound, {"Not found", "Nicht gefunden"}},
}};

namespace {

struct WindowChapter
{
    QLatin1StringView window;
    QLatin1StringView chapter;
};

constexpr std::array<WindowChapter, 8> windowChapters{{
    {"OverviewFrm"_L1, "overview"_L1},
    {"EnviroFrm"_L1, "environment"_L1},
    {"CreateDivisionFrm"_L1, "divisions"_L1},
    {"ShipDBaseFrm"_L1, "ships"_L1},
    {"ShipDataFrm"_L1, "condition"_L1},
    {"ZoomLevelFrm"_L1, "map"_L1},
    {"GridLevelFrm"_L1, "map"_L1},
    {"AboutFrm"_L1, "welcome"_L1},
}};

} // namespace

QString helpText(HelpText text, Language language)
{
    return textIn(helpTexts, text, language);
}

QString helpChapterFor(QStringView designName)
{
    const auto found =
        std::find_if(windowChapters.begin(), windowChapters.end(),
                     [designName](const WindowChapter& row) { return row.window == designName; });
    return found == windowChapters.end() ? QString() : QString(found->chapter);
}

} // namespace torvane
