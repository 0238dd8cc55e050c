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
                      Expected{MainText::AboutTitle, "About", "Über"}));

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
    }
}

struct ExpectedTag
{
    const char* name;
    const char* english;
    int englishWidth;
    const char* german;
    int germanWidth;
};

// Widths reckoned by hand: length times 5.5 (5 for the English visibility ranges) rounded up, plus the rest.
constexpr std::array<ExpectedTag, 9> expectedTags{{
    {"hotGrid", "Grid Level", 55, "Rasterebene ", 66},
    {"hotZoom", "Zoom Level", 60, "Zoom-Ebene ", 66},
    {"hotNames", "Names Toggle", 73, "Namen umschalten ", 97},
    {"hotScale", "Scale Toggle", 71, "Maßstab umschalten", 102},
    {"hotVisRings", "Visibility Ranges", 85, "Sichtweiten", 61},
    {"hotGunRings", "Main Gun Ranges", 90, "Hauptgeschützreichweiten", 132},
    {"hotRadarRings", "Radar Ranges", 73, "Radarreichweiten", 88},
    {"hotLineTool", "Line Tool", 50, "Linien-Werkzeug", 83},
    {"hotCenterMap", "Center Map", 58, "Zentrum karte", 72},
}};

TEST(HelpTags, HaveTextsAndWidthsInBothLanguages)
{
    ASSERT_EQ(helpTags.size(), expectedTags.size());
    for (std::size_t i = 0; i < expectedTags.size(); ++i) {
        const ExpectedTag& expected = expectedTags.at(i);
        const HelpTagRow& row = helpTags.at(i);
        EXPECT_STREQ(row.name, expected.name);
        EXPECT_EQ(row.in(Language::English).string(), QString::fromUtf8(expected.english));
        EXPECT_EQ(row.in(Language::German).string(), QString::fromUtf8(expected.german));
        EXPECT_EQ(row.in(Language::English).width(), expected.englishWidth) << expected.name;
        EXPECT_EQ(row.in(Language::German).width(), expected.germanWidth) << expected.name;
    }
}

TEST(HelpTags, GermanTextsKeepTheirTrailingBlank)
{
    EXPECT_TRUE(helpTags.at(0).german.string().endsWith(QLatin1Char(' ')));
    EXPECT_TRUE(helpTags.at(1).german.string().endsWith(QLatin1Char(' ')));
    EXPECT_TRUE(helpTags.at(2).german.string().endsWith(QLatin1Char(' ')));
    EXPECT_FALSE(helpTags.at(3).german.string().endsWith(QLatin1Char(' ')));
}

} // namespace
} // namespace torvane
