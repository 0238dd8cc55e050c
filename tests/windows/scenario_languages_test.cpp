#include "overview_fixture.h"

namespace torvane::testing {
namespace {

/// A section in which every key that the dialogs edit is unlike its default, typed by hand.
const QByteArray storedSection =
    "[SCENARIODATA]\r\nTITLE=Denmark Strait\r\nDESCRIPTION_LINECNT=1\r\n"
    "DESCRIPTION_LINE0=Hood and Prince of Wales\r\nSTART_TIME=05:52\r\nSTART_TIME_HOUR=5\r\n"
    "START_TIME_MINUTE=52\r\nSUNRISE=03:05\r\nSUNSET=23:00\r\nSUNRISE_HOUR=3\r\nSUNRISE_MINUTE=5\r\n"
    "SUNSET_HOUR=23\r\nSUNSET_MINUTE=0\r\nMONTH=May\r\nYEAR=1941\r\nBLUEBRIEFING_LINECNT=1\r\n"
    "BLUEBRIEFING_LINE0=Unavailable\r\nREDBRIEFING_LINECNT=1\r\nREDBRIEFING_LINE0=Unavailable\r\n"
    "V.CONDITION_BLUE=None\r\nV.CONDITION_RED=None\r\nAIR_SUPERIORITY=5\r\nLOCATION=South Pacific\r\n"
    "VISIBILITY=85\r\nRADARCONDITIONS=70\r\nWIND_SPEED=19\r\nWIND_DIRECTION=315\r\nVP_MODS=None\r\n"
    "MOONPHASE=None\r\nSEASTATE=5\r\nGAMELENGTH=3.25\r\nGAMELENGTH_HOUR=3\r\nGAMELENGTH_MINUTE=15\r\n"
    "BLUE_NAVY=IJN\r\nRED_NAVY=USN\r\nRAIN=1\r\nDDTRANSPORTS=1\r\nBLUE_TARGETBOX_X=0\r\n"
    "BLUE_TARGETBOX_Z=0\r\nBLUE_TARGETBOXDIM=0\r\nRED_TARGETBOX_X=0\r\nRED_TARGETBOX_Z=0\r\n"
    "RED_TARGETBOX_DIM=0\r\nBLUE_DISENGAGE_HEADING=135\r\nRED_DISENGAGE_HEADING=0\r\nBATTLETYPE=4\r\n"
    "BLUE_VICTORY_MODS=1.35\r\nRED_VICTORY_MODS=0.8\r\nBLUE_FORCE_TYPE=1\r\nRED_FORCE_TYPE=0\r\nMOVIE=3\r\n";

class ScenarioLanguages : public Dialogs
{
};

TEST_F(ScenarioLanguages, EitherLanguageLoadsAndSavesTheSectionByteForByte)
{
    for (const Language language : {Language::English, Language::German}) {
        openStored(storedSection, language);
        saveOverview();
        EXPECT_EQ(profile(), storedSection);
        reopenOverview();
        openEnvironment();
        acceptEnvironment();
        EXPECT_EQ(profile(), storedSection);
        click(button("CmdCancel"));
    }
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ScenarioLanguages, GermanShowsItInGermanAndEnglishInEnglish)
{
    openStored(storedSection, Language::German);
    EXPECT_EQ(list("cmbMission")->currentText(), QStringLiteral("Taktischer Transport"));
    EXPECT_EQ(list("CmbBlueSide")->currentText(), QStringLiteral("Japanische Marine (IJN)"));
    EXPECT_EQ(list("cmbMovie")->shownText(), QStringLiteral("Guadalcanal - 3")) << "one blank";
    EXPECT_EQ(overview().lblForceA->text(), QStringLiteral("Streitkraft B"));
    openEnvironment();
    EXPECT_EQ(envList("ComboMonth")->currentText(), QStringLiteral("Mai"));
    EXPECT_EQ(envList("ComboLocation")->currentText(), QStringLiteral("Südpazifik"));
    EXPECT_EQ(envList("ComboAirSup")->currentText(), QStringLiteral("Streitkraft B"));
    EXPECT_EQ(envList("cmbRain")->currentText(), QStringLiteral("Ein"));
    openStored(storedSection, Language::English);
    EXPECT_EQ(list("cmbMission")->currentText(), QStringLiteral("Tactical Transport"));
    EXPECT_EQ(list("CmbBlueSide")->currentText(), QStringLiteral("Imperial Japanese Navy (IJN)"));
    openEnvironment();
    EXPECT_EQ(envList("ComboMonth")->currentText(), QStringLiteral("May"));
    EXPECT_EQ(envList("ComboLocation")->currentText(), QStringLiteral("South Pacific"));
    EXPECT_EQ(envList("ComboAirSup")->currentText(), QStringLiteral("Force B"));
    EXPECT_EQ(envList("cmbRain")->currentText(), QStringLiteral("On"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("85 %"));
    EXPECT_EQ(envLabel("TxtSunrise")->text(), QStringLiteral("03:05"));
    EXPECT_EQ(envLabel("lblGmLenHour")->text(), QStringLiteral("3"));
    EXPECT_EQ(envLabel("lblGmLenMin")->text(), QStringLiteral("15"));
}

TEST_F(ScenarioLanguages, WhatGermanStoresEnglishReadsAndTheReverse)
{
    for (const Language writer : {Language::German, Language::English}) {
        const bool german = writer == Language::German;
        openNew(writer);
        pick(list("cmbMission"), german ? "Konvoi" : "Convoy");
        pick(list("CmbRedSide"), german ? "Japanische Marine (IJN)" : "Imperial Japanese Navy (IJN)");
        openEnvironment();
        pick(envList("ComboMonth"), german ? "Dezember" : "December");
        pick(envList("ComboLocation"), german ? "Südpazifik" : "South Pacific");
        pick(envList("ComboAirSup"), german ? "Umstritten" : "Contested");
        pick(envList("cmbRain"), german ? "Ein" : "On");
        acceptEnvironment();
        saveOverview();
        const QByteArray written = profile();
        openStored(written, german ? Language::English : Language::German);
        EXPECT_EQ(list("cmbMission")->currentText(),
                  german ? QStringLiteral("Convoy") : QStringLiteral("Konvoi"));
        saveOverview();
        EXPECT_EQ(profile(), written);
    }
}

TEST_F(ScenarioLanguages, AnUmlautInTheTitleIsStoredInTheCodePage)
{
    openNew(Language::German);
    pasteOver(box("TxtTitle"), QStringLiteral("Großer Kreuzer Blücher"));
    saveOverview();
    EXPECT_TRUE(profile().contains("TITLE=Gro\xDF"
                                   "er Kreuzer Bl\xFC"
                                   "cher\r\n"));
}

class DamagedScenario : public Dialogs
{
protected:
    /// Opens both dialogs of a profile, saves both and opens them again.
    void survive(const QByteArray& damaged, Language language)
    {
        openStored(damaged, language);
        openEnvironment();
        acceptEnvironment();
        saveOverview();
        EXPECT_EQ(profile().count('\n'), 51) << damaged.left(60).toStdString();
        reopenOverview();
        EXPECT_TRUE(overview().isVisible());
        for (const MessageBox& box : boxes()) {
            EXPECT_EQ(box.icon, MessageBox::Icon::Information) << box.text.toStdString();
        }
        boxes().clear();
    }
    /// The keys of the section with the same value everywhere.
    static QByteArray allKeysAs(const QByteArray& value)
    {
        QByteArray section;
        for (const QByteArray& line : storedSection.split('\n')) {
            const qsizetype sign = line.indexOf('=');
            section += sign < 0 ? line : line.left(sign + 1) + value + '\r';
            section += '\n';
        }
        section.chop(1); // what follows the last line is no line
        return section;
    }
};

TEST_F(DamagedScenario, OpensAndIsSavedWhateverItsValues)
{
    for (const Language language : {Language::English, Language::German}) {
        for (const QByteArray& value : {QByteArray("INVALID"), QByteArray("word"), QByteArray(400, '9'),
                                        QByteArray("-40000"), QByteArray("1E400"), QByteArray("99999"),
                                        QByteArray("\x80\xFC=;[x]"), QByteArray("::"), QByteArray("(")}) {
            survive(allKeysAs(value), language);
        }
    }
}

TEST_F(DamagedScenario, OpensWithoutItsSectionOrItsFile)
{
    for (const QByteArray& file : {QByteArray(), QByteArray("[VERSION]\r\nVERSIONNUMBER=64\r\n"),
                                   QByteArray("\0\0\0\xFF", 4), QByteArray("[SCENARIODATA]\r\n")}) {
        openStored(file);
        EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("INVALID"));
        EXPECT_EQ(description()->toPlainText(), QStringLiteral("INVALID"));
        EXPECT_EQ(list("cmbMission")->currentText(), QStringLiteral("Meeting Engagement"))
            << "left as it was";
        EXPECT_EQ(list("CmbRedSide")->currentText(), QStringLiteral("Royal Navy (RN)"));
        EXPECT_EQ(list("cmbMovie")->shownText(), QStringLiteral("None - 0"));
        expectOneBox("You must enter a speed between 1 and 40 knots.", "Out of Range");
        openEnvironment();
        EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("INVALID %"));
        EXPECT_EQ(envBox("TxtRadar")->text(), QStringLiteral("INVALID %"));
        EXPECT_EQ(envLabel("TxtStartTime")->text(), QStringLiteral("INVALID"));
        EXPECT_EQ(envBox("TxtWindDir")->text(), QStringLiteral("0"));
        EXPECT_EQ(envList("ComboYear")->currentText(), QStringLiteral("1939"));
        boxes().clear();
    }
}

TEST_F(DamagedScenario, EveryButtonOfItWorks)
{
    openStored(allKeysAs("INVALID"));
    boxes().clear();
    for (auto* stepper : overview().findChildren<StepButton*>()) {
        click(stepper);
    }
    openEnvironment();
    boxes().clear();
    for (auto* stepper : enviro().findChildren<StepButton*>()) {
        press(stepper, Qt::Key_Minus);
        click(stepper);
    }
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("40 %"));
}

TEST_F(DamagedScenario, AMovieNumberThatThereIsNotStaysAsItIs)
{
    openNew();
    saveOverview();
    store("MOVIE", "7");
    reopenOverview();
    EXPECT_EQ(list("cmbMovie")->shownText(), QStringLiteral("7"));
    saveOverview();
    EXPECT_EQ(stored("MOVIE"), QStringLiteral("7"));
}

} // namespace
} // namespace torvane::testing
