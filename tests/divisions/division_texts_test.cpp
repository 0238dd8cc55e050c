#include "divisions/division_texts.h"

#include "support/printers.h"

#include <gtest/gtest.h>

namespace torvane {
namespace {

TEST(DivisionTexts, TheCaptionsAreTheTable)
{
    const char* const cells[][3] = {
        {"CreateDivisionFrm", "Torvane - Create/Edit Divisions", "Torvane - Verband erstellen/bearbeiten"},
        {"CmdAdd", "&Add/Remove Ships", "Schiffe hinzufügen"},
        {"CmdFlagShip", "Change &Flagship", "Flaggschiff ändern"},
        {"CmdCancel", "&Cancel", "Abbrechen"},
        {"CmdEditCancel", "&Cancel", "Abbrechen"},
        {"CmdSaveData", "&Save Division", "Speichern"},
        {"cmdOK", "&Save Division", "Speichern"},
        {"cmdKeepDivData", "Keep Division Data", "Verbandsdaten beibehalten"},
        {"cmdDivDataChng", "Change Division Data", "Verbandsdaten ändern"},
        {"Label6", "Force:", "Verband:"},
        {"Label3", "Heading:", "Kurs:"},
        {"Label5", "Formation:", "Formation:"},
        {"Label4", "Spacing:", "Abstand:"},
        {"Label2", "Speed:", "Geschwindigkeit:"},
        {"Label1", "Encumbered:", "Behindert:"},
        {"optEncumYES", "Yes", "Ja"},
        {"optEncumNO", "No", "Nein"},
        {"CmdEditShip", "&Edit Ships", "&Edit Ships"},
        {"CmdNewDivision", "Add &Division", "Add &Division"},
        {"lblPosition", "Last position:", "Letzte Position:"},
    };
    ASSERT_EQ(divisionCaptions.size(), std::size(cells));
    for (const auto& cell : cells) {
        const QString control = QString::fromLatin1(cell[0]);
        EXPECT_EQ(captionOf(divisionCaptions, control, Language::English), QString::fromUtf8(cell[1]));
        EXPECT_EQ(captionOf(divisionCaptions, control, Language::German), QString::fromUtf8(cell[2]));
    }
}

TEST(DivisionTexts, TheMessagesAreTheTable)
{
    const struct
    {
        DivisionText text;
        const char* english;
        const char* german;
    } rows[] = {
        {DivisionText::Division, "Division", "Verband"},
        {DivisionText::TooManyDivisions, "You may only have a maximum of 6 divisions per side.",
         "Eine Streitkraft kann maximal über 6 Verbände verfügen."},
        {DivisionText::HeadingRange, "You must enter a heading between 0 and 360 degrees.",
         "Sie müssen einen Wert zwischen 0 und 360 eingeben."},
        {DivisionText::OutOfRangeTitle, "Out of Range", "Außer Reichweite"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(divisionText(row.text, Language::English), QString::fromUtf8(row.english));
        EXPECT_EQ(divisionText(row.text, Language::German), QString::fromUtf8(row.german));
    }
}

TEST(DivisionTexts, EachStandsInTheRowOfItsKey)
{
    for (std::size_t i = 0; i < divisionTexts.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(divisionTexts.at(i).key), i);
    }
}

TEST(DivisionTexts, ADivisionIsCalledByTheWordAndItsNumber)
{
    EXPECT_EQ(divisionLabel(1, Language::English), QStringLiteral("Division 1"));
    EXPECT_EQ(divisionLabel(6, Language::German), QStringLiteral("Verband 6"));
}

TEST(DivisionTexts, TheCompassReadsInBothLanguages)
{
    QString english;
    QString german;
    for (const Bilingual& letter : compassLetters) {
        english += letter.in(Language::English);
        german += letter.in(Language::German);
    }
    EXPECT_EQ(english, QStringLiteral("NESW"));
    EXPECT_EQ(german, QStringLiteral("NOSW"));
}

} // namespace
} // namespace torvane
