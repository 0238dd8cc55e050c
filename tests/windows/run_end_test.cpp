#include "divisions/create_division_frm.h"
#include "overview/overview_frm.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "support/editor_fixture.h"
#include "support/failing_system.h"

#include <QAction>
#include <QDir>
#include <QPushButton>

namespace torvane::testing {
namespace {

using Answer = MessageBox::Answer;

class Run : public EditorFixture
{
protected:
    MainFrm& main() { return editor().mainFrm(); }
    QAction* entry(const char* name) { return main().menu().action(QLatin1StringView(name)); }
    void choose(const char* name) { ASSERT_TRUE(chooseMenu(main(), QLatin1StringView(name))) << name; }
    void newScenario()
    {
        choose("mnuNew");
        click(control<QPushButton>(editor().overviewFrm(), QStringLiteral("cmdOK")));
    }
};

class New : public Run
{
};

TEST_F(New, EnablesTheCommandsOfAScenario)
{
    startPastSplash();
    choose("mnuNew");
    for (const char* name : {"mnuSave", "mnuSaveAs", "mnuOverView", "mnuEditDivison"}) {
        EXPECT_TRUE(entry(name)->isEnabled()) << name;
    }
}

TEST_F(New, LeavesShipTrackWithOneEmptyQuotedStringAndNoOtherScratchFile)
{
    startPastSplash();
    putWorkFile(QStringLiteral("DivisionA1.txt"));
    putWorkFile(QStringLiteral("iniShipData.bmm"));
    choose("mnuNew");
    EXPECT_EQ(workBytes(QStringLiteral("ShipTrack.bmm")), "\"\"\r\n");
    EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("DivisionA1.txt"))));
    EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("iniShipData.bmm"))));
}

TEST_F(New, LosesTheOpenScenarioWithoutAQuestion)
{
    startPastSplash();
    newScenario();
    editor().workingProfile().write(u"SCENARIODATA", u"LEFTOVER", u"1");
    choose("mnuNew");
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(editor().workingProfile().GetIniKey(u"SCENARIODATA", u"LEFTOVER"), QStringLiteral("INVALID"));
}

TEST_F(New, TellsTheDialogsToStartFromTheirDefaults)
{
    startPastSplash();
    choose("mnuNew");
    EXPECT_EQ(valueOf(editor().createDivisionFrm().ChknewBlueFlag), 1);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().ChknewRedFlag), 1);
    EXPECT_EQ(valueOf(editor().overviewFrm().ChknewFlag), 1);
}

TEST_F(New, OpensTheOverviewOverADisabledMainWindow)
{
    startPastSplash();
    choose("mnuNew");
    EXPECT_TRUE(editor().overviewFrm().isVisible());
    EXPECT_FALSE(main().isInputEnabled());
}

TEST_F(New, ResetsTheForceMenus)
{
    startPastSplash();
    main().menu().addRepositionMenuEntry(QString(), QStringLiteral("Blue"));
    main().menu().addRepositionMenuEntry(QString(), QStringLiteral("Blue"));
    main().menu().setEnabled(QStringLiteral("editForceA"), true);
    choose("mnuNew");
    EXPECT_FALSE(entry("mnuDiv2")->isVisible());
    EXPECT_FALSE(entry("editForceA")->isEnabled());
    EXPECT_TRUE(entry("mnuForceA1")->isVisible()) << "visible, but its parent is disabled";
    EXPECT_EQ(main().menu().blueDivisionCount(), 0);
}

TEST_F(New, LeavesTheWayToDivisionsOpenOnceItIs)
{
    startPastSplash();
    newScenario();
    choose("mnuNew");
    ASSERT_TRUE(editor().overviewFrm().isVisible());
    EXPECT_TRUE(entry("mnuCreateForceA")->isEnabled());
    EXPECT_TRUE(entry("mnuCreateForceB")->isEnabled());
}

TEST_F(New, OkOfTheOverviewOpensTheWayToDivisions)
{
    startPastSplash();
    choose("mnuNew");
    setValue(editor().createDivisionFrm().ChknewBlueFlag, 0);
    setValue(editor().createDivisionFrm().ChknewRedFlag, 0);
    EXPECT_FALSE(entry("mnuCreateForceA")->isEnabled());
    click(control<QPushButton>(editor().overviewFrm(), QStringLiteral("cmdOK")));
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_FALSE(editor().overviewFrm().isVisible());
    EXPECT_TRUE(entry("mnuCreateForceA")->isEnabled());
    EXPECT_TRUE(entry("mnuCreateForceB")->isEnabled());
    EXPECT_TRUE(entry("mnuCreateForceA")->isVisible());
    EXPECT_EQ(valueOf(editor().overviewFrm().ChknewFlag), 0);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().ChknewBlueFlag), 1);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().ChknewRedFlag), 1);
}

TEST_F(New, WithoutAWorkFolderNothingIsDoneAndTheBoxNamesIt)
{
    QDir(gameFolder() + QStringLiteral("/ScenarioEditor")).removeRecursively();
    startPastSplash();
    choose("mnuNew");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("ScenarioEditor"));
    EXPECT_FALSE(entry("mnuSave")->isEnabled());
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_FALSE(QDir(gameFolder()).exists(QStringLiteral("ScenarioEditor")));
    EXPECT_TRUE(QDir(gameFolder()).mkpath(QStringLiteral("ScenarioEditor")));
    choose("mnuNew");
    EXPECT_TRUE(editor().overviewFrm().isVisible()) << "works once the folder is there";
}

TEST_F(New, WhereTheFolderTakesNoFileTheOldScenarioStays)
{
    startPastSplash();
    newScenario();
    editor().workingProfile().write(u"SCENARIODATA", u"TITLE", u"Kept");
    const QByteArray before = workBytes(QStringLiteral("iniTemp.bmm"));
    const QString folder = gameFolder() + QStringLiteral("/ScenarioEditor");
    ASSERT_TRUE(QDir().rename(folder, folder + QStringLiteral("-away")));
    QFile blocker(folder);
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    choose("mnuNew");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr(folder.toStdString()));
    QFile::remove(folder);
    ASSERT_TRUE(QDir().rename(folder + QStringLiteral("-away"), folder));
    EXPECT_EQ(workBytes(QStringLiteral("iniTemp.bmm")), before);
    EXPECT_TRUE(entry("mnuSave")->isEnabled()) << "the old scenario is still under edit";
}

TEST_F(New, AReadOnlyWorkFolderIsNamedAndTheOldScenarioStays)
{
    startPastSplash();
    newScenario();
    const QByteArray before = workBytes(QStringLiteral("iniTemp.bmm"));
    {
        const ReadOnlyFolder folder(workFile(QString()));
        choose("mnuNew");
    }
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("ScenarioEditor"));
    EXPECT_EQ(workBytes(QStringLiteral("iniTemp.bmm")), before);
    EXPECT_TRUE(QFile::exists(workFile(QStringLiteral("ShipTrack.bmm"))));
    EXPECT_TRUE(main().isInputEnabled());
}

TEST_F(New, AFullDiskIsNamedAndNothingIsHalfDone)
{
    startPastSplash();
    const QStringList before = workNames();
    {
        const FullDisk disk(0);
        choose("mnuNew");
    }
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("ScenarioEditor"));
    EXPECT_EQ(workNames(), before);
    EXPECT_FALSE(entry("mnuSave")->isEnabled());
    EXPECT_TRUE(main().isInputEnabled());
    choose("mnuNew");
    EXPECT_TRUE(editor().overviewFrm().isVisible()) << "works once there is room";
}

TEST_F(New, WhereAFileResistsTheMenusAreThoseOfAProgramWithoutAScenario)
{
    startPastSplash();
    QDir(workFile(QString())).mkpath(QStringLiteral("ShipTrack.bmm/inside"));
    choose("mnuNew");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("ShipTrack.bmm"));
    EXPECT_FALSE(entry("mnuSave")->isEnabled());
    EXPECT_FALSE(entry("mnuOverView")->isEnabled());
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("iniTemp.bmm"))));
}

class Exit : public Run
{
protected:
    void SetUp() override { startPastSplash(); }

    void expectQuestion()
    {
        ASSERT_EQ(boxes().size(), 1);
        EXPECT_EQ(boxes().first().text, QStringLiteral("Wollen Sie zu Torvane zurückkehren?"));
        EXPECT_EQ(boxes().first().title, QStringLiteral("Szenario-Editor verlassen"));
        EXPECT_EQ(boxes().first().icon, MessageBox::Icon::Question);
        EXPECT_EQ(boxes().first().buttons, MessageBox::Buttons::YesNo);
        EXPECT_EQ(boxes().first().defaultAnswer, Answer::No);
    }
};

TEST_F(Exit, TheMenuAsks)
{
    choose("mnuExit");
    expectQuestion();
    EXPECT_TRUE(editor().hasEnded());
}

TEST_F(Exit, TheCloseBoxAsks)
{
    closeBox(&main());
    expectQuestion();
    EXPECT_TRUE(editor().hasEnded());
}

TEST_F(Exit, EscAndF12AskTheSameQuestion)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F12}) {
        for (const char* focus : {"Picture_Main", "HScroll1", "VScroll1", "cmdGunCircles"}) {
            boxes().clear();
            startPastSplash();
            press(control<QWidget>(main(), QLatin1StringView(focus)), key);
            expectQuestion();
            EXPECT_TRUE(editor().hasEnded()) << focus;
        }
    }
}

TEST_F(Exit, OtherKeysDoNot)
{
    for (const Qt::Key key : {Qt::Key_F11, Qt::Key_Return, Qt::Key_Q, Qt::Key_Space}) {
        press(control<QWidget>(main(), QStringLiteral("Picture_Main")), key);
    }
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_FALSE(editor().hasEnded());
}

TEST_F(Exit, EnglishAsksInEnglish)
{
    startPastSplash(Language::English);
    choose("mnuExit");
    EXPECT_EQ(boxes().first().text, QStringLiteral("Do you wish to return to Torvane?"));
    EXPECT_EQ(boxes().first().title, QStringLiteral("Exit Scenario Editor"));
}

TEST_F(Exit, YesCleansUpFirstAndStartsTheGameInItsFolder)
{
    newScenario();
    bool cleanAtStart = false;
    script.programLauncher.onOpen = [&] {
        cleanAtStart = workNames() == QStringList{QStringLiteral("ScenarioData.mdb")};
    };
    script.messageBoxes.answers = {Answer::Yes};
    choose("mnuExit");
    EXPECT_EQ(script.programLauncher.opened,
              (QList<QStringList>{
                  {gameFolder() + QStringLiteral("/Torvane Deutsch.exe"), QString(), gameFolder()}}));
    EXPECT_TRUE(cleanAtStart);
    EXPECT_TRUE(editor().hasEnded());
}

TEST_F(Exit, YesStartsTheEnglishGameFromTheEnglishEditor)
{
    startPastSplash(Language::English);
    script.messageBoxes.answers = {Answer::Yes};
    choose("mnuExit");
    ASSERT_EQ(script.programLauncher.opened.size(), 1);
    EXPECT_EQ(script.programLauncher.opened[0][0], gameFolder() + QStringLiteral("/Torvane.exe"));
}

TEST_F(Exit, AGameThatDoesNotStartIsIgnored)
{
    script.programLauncher.result = false;
    script.messageBoxes.answers = {Answer::Yes};
    choose("mnuExit");
    EXPECT_TRUE(editor().hasEnded());
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(Exit, TellsWhetherTheGameStarted)
{
    for (const bool started : {true, false}) {
        script.programLauncher.result = started;
        EXPECT_EQ(main().Execute_Program(QStringLiteral("game"), QString(), gameFolder()), started);
    }
}

TEST_F(Exit, NoExitsToo)
{
    newScenario();
    script.messageBoxes.answers = {Answer::No};
    choose("mnuExit");
    EXPECT_TRUE(editor().hasEnded());
    EXPECT_TRUE(script.programLauncher.opened.isEmpty());
    EXPECT_EQ(workNames(), QStringList{QStringLiteral("ScenarioData.mdb")});
}

TEST_F(Exit, NothingAsksAboutUnsavedWork)
{
    newScenario();
    editor().workingProfile().write(u"SCENARIODATA", u"TITLE", u"Unsaved");
    choose("mnuExit");
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(Exit, AFileThatResistsIsShownAndTheProgramEndsAllTheSame)
{
    QDir(workFile(QString())).mkpath(QStringLiteral("ShipTrack.bmm/inside"));
    choose("mnuExit");
    ASSERT_EQ(boxes().size(), 2);
    EXPECT_THAT(boxes().last().text.toStdString(), ::testing::HasSubstr("ShipTrack.bmm"));
    EXPECT_TRUE(editor().hasEnded());
}

TEST_F(Exit, AWindowThatGoesByAnotherRoadCleansUpToo)
{
    newScenario();
    ASSERT_TRUE(QFile::exists(workFile(QStringLiteral("ShipTrack.bmm"))));
    dropEditor();
    EXPECT_EQ(workNames(), QStringList{QStringLiteral("ScenarioData.mdb")});
}

} // namespace
} // namespace torvane::testing
