#include "shell/captions.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

struct Expected
{
    MainText text;
    const char* english;
    const char* german;
};

class MainTexts : public ::testing::TestWithParam<Expected>
{
};

TEST_P(MainTexts, ReadsInBothLanguages)
{
    EXPECT_EQ(mainText(GetParam().text, Language::English), QString::fromUtf8(GetParam().english));
    EXPECT_EQ(mainText(GetParam().text, Language::German), QString::fromUtf8(GetParam().german));
}

INSTANTIATE_TEST_SUITE_P(
    All, MainTexts,
    ::testing::Values(Expected{MainText::Title, "Torvane - Scenario Editor", "Torvane - Szenario-Editor"},
                      Expected{MainText::RulerCaption, "Distance A to B", "Abstand A nach B"},
                      Expected{MainText::Division, "Division", "Verband"},
                      Expected{MainText::DivisionShort, "Div", "Verb."},
                      Expected{MainText::HelpTagsOn, "Help Tags ON", "Hilfetexte ein"},
                      Expected{MainText::HelpTagsOff, "Help Tags OFF", "Hilfetexte aus"},
                      Expected{MainText::LoadError, "An error occured when loading the file.",
                               "Fehler beim Laden einer Datei."},
                      Expected{MainText::LoadErrorTitle, "Error", "Es ist ein Fehler aufgetreten!"},
                      Expected{MainText::ProfileFileError, "An error occured while writing the ini file",
                               "Beim Sichern der .ini-Datei trat ein Fehler auf."},
                      Expected{MainText::ProfileWriteError, "An error occured while writing profile!",
                               "Beim Sichern der Profiledatei trat ein Fehler auf."},
                      Expected{MainText::ExitQuestion, "Do you wish to return to Torvane?",
                               "Wollen Sie zu Torvane zurückkehren?"},
                      Expected{MainText::ExitTitle, "Exit Scenario Editor", "Szenario-Editor verlassen"},
                      Expected{MainText::Loading, "Loading...  Please wait.", "Spieldaten werden geladen..."},
                      Expected{MainText::Saving, "Saving File...  Please Wait.", "Datei wird gesichert..."},
                      Expected{MainText::SplashTitle, "SCENARIO EDITOR", "Szenario-Editor"},
                      Expected{MainText::AboutTitle, "About", "Über"},
                      Expected{MainText::RuntimeErrorTitle, "Torvane - Scenario Editor",
                               "Torvane - Szenario-Editor"}));

TEST(MainTextTable, EveryRowStandsAtItsOwnPlace)
{
    for (std::size_t i = 0; i < mainTexts.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(mainTexts.at(i).key), i);
    }
}

TEST(MainTextTable, BoxesThatNameAFileTakeItsName)
{
    for (const Language language : {Language::English, Language::German}) {
        EXPECT_THAT(mainText(MainText::FolderInUse, language).arg(QStringLiteral("/g")).toStdString(),
                    ::testing::HasSubstr("\n/g\n"));
        EXPECT_THAT(mainText(MainText::UnsavedFile, language)
                        .arg(QStringLiteral("/f"), QStringLiteral("full"))
                        .toStdString(),
                    ::testing::AllOf(::testing::HasSubstr("\n/f\n"), ::testing::HasSubstr("\nfull\n")));
        EXPECT_THAT(mainText(MainText::Unrecovered, language)
                        .arg(QStringLiteral("full"), QStringLiteral("/f"))
                        .toStdString(),
                    ::testing::AllOf(::testing::HasSubstr("\nfull\n"), ::testing::EndsWith("\n/f")));
    }
}

} // namespace
} // namespace torvane
