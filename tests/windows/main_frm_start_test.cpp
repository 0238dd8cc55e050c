#include "shell/splash_frm.h"
#include "windows/main_frm_fixture.h"

#include <QDir>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

TEST_F(MainWindow, StartsInTheStateOfAProgramWithoutAScenario)
{
    startPastSplash();
    for (const char* name : {"mnuNew", "mnuLoad", "mnuExit", "mnuHelpTopics", "mnuAbout", "mnuEditDivison"}) {
        EXPECT_TRUE(entry(name)->isEnabled()) << name;
    }
    for (const char* name :
         {"mnuSave", "mnuSaveAs", "mnuOverView", "mnuCreateForceA", "mnuCreateForceB", "editForceA",
          "editForceB", "mnuEditShipForceA", "mnuEditShipForceB", "mnuRepoForceA", "mnuRepoForceB"}) {
        EXPECT_FALSE(entry(name)->isEnabled()) << name;
    }
    EXPECT_FALSE(entry("mnuTargetBox")->isEnabled()) << "reset by the first activation";
    EXPECT_TRUE(entry("mnuHotText")->isChecked());
}

TEST_F(MainWindow, SetsItsSharedStateAtStart)
{
    start(Language::German);
    EXPECT_EQ(valueOf(main().chkGermanVersion), 1);
    EXPECT_EQ(main().txtCurDir->text(), gameFolder());
    EXPECT_EQ(valueOf(main().chkDayNight), 1);
    EXPECT_TRUE(main().helpTagsOn());
    EXPECT_EQ(main().targetArea().dim, 9260);
    EXPECT_FALSE(main().map().state().separationRingsPending);
    EXPECT_EQ(main().menu().blueDivisionCount(), 0);
    EXPECT_EQ(main().menu().redDivisionCount(), 0);
    for (const QCheckBox* box : {main().chkCreateReturn, main().chkReturnFromEdit, main().ChkPlotDiv,
                                 main().chkBombardment, main().chkUnloadZoom, main().chkUnloadGrid}) {
        EXPECT_EQ(valueOf(box), 0) << box->objectName().toStdString();
    }
    start(Language::English);
    EXPECT_EQ(valueOf(main().chkGermanVersion), 0);
}

TEST_F(MainWindow, BindsTheFifteenDataControlsAtStart)
{
    start();
    for (const DataControl& dataControl : editor().dataControls().controls()) {
        EXPECT_EQ(dataControl.databaseName, workFile(dataControl.databaseFile));
    }
}

TEST_F(MainWindow, AScratchSetOfAKilledRunIsGoneAfterTheStart)
{
    const QStringList stale =
        QStringLiteral(
            "DivisionA1.txt DivisionB8.txt ShipData.txt DivDataA.txt DivDataB.txt DivDataA6.txt "
            "DivDataB1.txt ShipTrack.bmm iniTemp.bmm iniShipData.bmm ShipRemove.bmm ExisitTemp.bmm "
            "TempIniTemp.bmm iniTemp.bmm.a1B2c3")
            .split(QLatin1Char(' '));
    for (const QString& name : stale) {
        putWorkFile(name);
    }
    putWorkFile(QStringLiteral("SE_README.HLP"));
    putWorkFile(QStringLiteral("notes of the author.txt"));
    start();
    EXPECT_EQ(workNames(), (QStringList{QStringLiteral("SE_README.HLP"), QStringLiteral("ScenarioData.mdb"),
                                        QStringLiteral("notes of the author.txt")}));
}

TEST_F(MainWindow, TwoRunsInARowTheSecondDeletesWhatACrashedFirstLeft)
{
    startPastSplash();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    editor().workingProfile().write(u"SCENARIODATA", u"TITLE", u"Lost");
    const QByteArray profile = workBytes(QStringLiteral("iniTemp.bmm"));
    ASSERT_FALSE(profile.isEmpty());
    dropEditor();
    putWorkFile(QStringLiteral("iniTemp.bmm"), profile); // a crash takes no leave
    putWorkFile(QStringLiteral("ShipTrack.bmm"), "\"\"\r\n");
    start();
    EXPECT_EQ(workNames(), QStringList{QStringLiteral("ScenarioData.mdb")});
    EXPECT_EQ(editor().workingProfile().GetIniKey(u"SCENARIODATA", u"TITLE"), QStringLiteral("INVALID"));
}

TEST_F(MainWindow, AScenarioThatAKilledRunWasSavingLeavesNothingUnfinishedAfterTheStart)
{
    const QString folder = gameFolder() + QStringLiteral("/Scenarios/");
    for (const char* name : {".torvane-aZ09bY", "Night.scn", "Night.scn.backup"}) {
        QFile file(folder + QLatin1StringView(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    start();
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              (QStringList{QStringLiteral("Night.scn"), QStringLiteral("Night.scn.backup")}));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(MainWindow, AScratchFileThatResistsAtStartIsNamedAndTheWindowLaysItselfOut)
{
    QDir(gameFolder()).mkpath(QStringLiteral("ScenarioEditor/ShipTrack.bmm/inside"));
    startPastSplash();
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("ShipTrack.bmm"));
    main().showMaximized();
    settle();
    EXPECT_GT(map()->width(), 625);
}

TEST_F(MainWindow, AMissingWorkFolderIsNotReportedAtStart)
{
    QDir(gameFolder() + QStringLiteral("/ScenarioEditor")).removeRecursively();
    startPastSplash();
    EXPECT_TRUE(main().isVisible());
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(MainWindow, AMissingDatabaseIsNotReportedAtStart)
{
    QFile::remove(workFile(QStringLiteral("ScenarioData.mdb")));
    startPastSplash();
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(MainWindow, DebugModeAsksForTheFolderAndShowsItsReadOuts)
{
    script.inputBoxes.answer = gameFolder();
    start(Language::German, 1);
    ASSERT_EQ(script.inputBoxes.asked.size(), 1);
    EXPECT_EQ(
        script.inputBoxes.asked.first(),
        (QStringList{QStringLiteral("Database Path"),
                     QStringLiteral("Enter the directory path to the ScenarioEditor.exe   For example:  "
                                    "C:\\Work\\Torvane\\Work"),
                     QStringLiteral("C:\\Work\\Torvane\\Work")}));
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_EQ(boxes().first().title, QStringLiteral("DEBUG"));
    EXPECT_EQ(boxes().first().text, QStringLiteral("DeBug Mode is On!"));
    EXPECT_EQ(main().txtCurDir->text(), gameFolder());
    press(&editor().splashFrm(), Qt::Key_Space);
    for (const char* name : {"PicCoords", "Picture3", "Picture5"}) {
        EXPECT_TRUE(control<PictureBox>(main(), QLatin1StringView(name))->isVisible()) << name;
    }
}

TEST_F(MainWindow, CancellingTheDebugQuestionGivesAnEmptyBasePath)
{
    start(Language::German, 1);
    EXPECT_EQ(editor().paths().basePath, QString());
    EXPECT_EQ(editor().paths().workDir, QStringLiteral("/ScenarioEditor/"));
}

TEST_F(MainWindow, WithoutDebugModeNothingIsAskedAndTheReadOutsAreHidden)
{
    startPastSplash();
    EXPECT_TRUE(script.inputBoxes.asked.isEmpty());
    EXPECT_TRUE(boxes().isEmpty());
    for (const char* name : {"PicCoords", "Picture3", "Picture5"}) {
        EXPECT_FALSE(control<PictureBox>(main(), QLatin1StringView(name))->isVisible()) << name;
    }
}

} // namespace
} // namespace torvane::testing
