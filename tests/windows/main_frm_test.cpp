#include "shell/main_frm.h"

#include "divisions/create_division_frm.h"
#include "overview/overview_frm.h"
#include "platform/picture_box.h"
#include "shell/about_frm.h"
#include "shell/main_menu.h"
#include "shell/splash_frm.h"
#include "support/editor_fixture.h"

#include <QAction>
#include <QDir>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

namespace torvane::testing {
namespace {

class MainWindow : public EditorFixture
{
protected:
    MainFrm& main() { return editor().mainFrm(); }
    QAction* entry(const char* name) { return main().menu().action(QLatin1StringView(name)); }
    QScrollBar* bar(const char* name) { return control<QScrollBar>(main(), QLatin1StringView(name)); }
    PictureBox* map() { return control<PictureBox>(main(), QStringLiteral("Picture_Main")); }
    QColor sea() { return map()->image().pixelColor(5, 5); }

    // A dialog that opens and closes: what makes the main window active again.
    void returnFromDialog()
    {
        editor().aboutFrm().showForm(&main());
        settle();
        editor().aboutFrm().hideForm();
        settle();
    }
};

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

TEST_F(MainWindow, HiddenControlsCarryTheirNamesAndStayHidden)
{
    startPastSplash();
    for (const char* name :
         {"chkGermanVersion", "txtCurDir", "chkCreateReturn", "txtDivisionReturn", "chkReturnFromEdit",
          "txtXPosition", "txtYPosition", "ChkPlotDiv", "chkBombardment", "chkDayNight", "chkUnloadZoom",
          "chkUnloadGrid", "lblupDivCnt"}) {
        EXPECT_FALSE(control<QWidget>(main(), QLatin1StringView(name))->isVisible()) << name;
    }
}

TEST_F(MainWindow, BindsTheFifteenDataControlsAtStart)
{
    start();
    for (const DataControl& dataControl : editor().dataControls().controls()) {
        EXPECT_EQ(dataControl.databaseName, workFile(dataControl.databaseFile));
    }
}

TEST_F(MainWindow, TitleRulerAndMenusFollowTheLanguage)
{
    startPastSplash(Language::German);
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Torvane - Szenario-Editor"));
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("Label1"))->text(), QStringLiteral("Abstand A nach B"));
    EXPECT_EQ(entry("File")->text(), QStringLiteral("Datei"));
    EXPECT_EQ(entry("mnuSaveAs")->text(), QStringLiteral("Save &As"));
    EXPECT_EQ(entry("mnuAbout")->text(), QStringLiteral("Über"));
    EXPECT_GE(control<QLabel>(main(), QStringLiteral("Label1"))->width(), 88)
        << "5.5 pixels for each of its 16 characters";
    startPastSplash(Language::English);
    EXPECT_EQ(main().windowTitle(), QStringLiteral("Torvane - Scenario Editor"));
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("Label1"))->text(), QStringLiteral("Distance A to B"));
    EXPECT_EQ(entry("mnuExit")->text(), QStringLiteral("&Exit"));
    EXPECT_EQ(entry("mnuAbout")->text(), QStringLiteral("&About"));
    EXPECT_EQ(entry("mnuHotText")->text(), QStringLiteral("Help Tags ON"));
}

TEST_F(MainWindow, HelpTagsStartHiddenWithTheirTextsAndRoomForThem)
{
    for (const Language language : {Language::German, Language::English}) {
        startPastSplash(language);
        auto* tag = control<QLabel>(main(), QStringLiteral("hotGunRings"));
        EXPECT_FALSE(tag->isVisible());
        EXPECT_EQ(tag->text(), language == Language::German ? QStringLiteral("Hauptgeschützreichweiten")
                                                            : QStringLiteral("Main Gun Ranges"));
        EXPECT_GE(tag->width(), QFontMetrics(tag->font()).horizontalAdvance(tag->text()));
        EXPECT_GE(tag->width(), language == Language::German ? 132 : 90);
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

TEST_F(MainWindow, ActivationAnchorsAtTheOrigin)
{
    startPastSplash();
    QTest::mouseMove(map(), QPoint(400, 300));
    settle();
    returnFromDialog();
    const ViewState& view = main().map().state().view;
    EXPECT_EQ(view.anchorX, view.mapOriginX);
    EXPECT_EQ(view.anchorZ, view.mapOriginY);
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

TEST_F(MainWindow, ActivationPutsBothScrollBarsAtTheMiddle)
{
    startPastSplash();
    EXPECT_EQ(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(bar("VScroll1")->value(), 16383);
    bar("HScroll1")->setValue(2000);
    bar("VScroll1")->setValue(30000);
    returnFromDialog();
    EXPECT_EQ(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(bar("VScroll1")->value(), 16383);
}

TEST_F(MainWindow, ActivationColoursTheSeaByDayAndNight)
{
    startPastSplash();
    EXPECT_EQ(sea(), QColor(1, 176, 235));
    setValue(main().chkDayNight, 0);
    EXPECT_EQ(sea(), QColor(1, 176, 235)) << "takes effect with the activation";
    returnFromDialog();
    EXPECT_EQ(sea(), QColor(0, 0, 128));
}

TEST_F(MainWindow, ActivationOffersTheTargetAreaWhereTheMissionHasOne)
{
    startPastSplash();
    setValue(main().chkBombardment, 1);
    returnFromDialog();
    EXPECT_TRUE(entry("mnuTargetBox")->isEnabled());
    EXPECT_TRUE(main().map().state().target.inUse);
    setValue(main().chkBombardment, 0);
    returnFromDialog();
    EXPECT_FALSE(entry("mnuTargetBox")->isEnabled());
    EXPECT_FALSE(main().map().state().target.inUse);
}

TEST_F(MainWindow, ADivisionJustMadeAwaitsAClick)
{
    startPastSplash();
    editor().createDivisionFrm().lblside->setText(QStringLiteral("Force A (Blue)"));
    main().txtDivisionReturn->setText(QStringLiteral(" Division 3 "));
    setValue(main().chkCreateReturn, 1);
    returnFromDialog();
    EXPECT_EQ(valueOf(main().chkCreateReturn), 0);
    EXPECT_EQ(main().map().repositionKey(), QStringLiteral("Blue 3"));
    EXPECT_FALSE(main().map().state().separationRingsPending) << "drawn by the redraw";
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().chkReposition), 1);
}

TEST_F(MainWindow, AfterAnEditLeftByOkNoClickIsAwaited)
{
    startPastSplash();
    editor().createDivisionFrm().lblside->setText(QStringLiteral("Force B (Red)"));
    main().txtDivisionReturn->setText(QStringLiteral("Verband 2"));
    setValue(main().chkCreateReturn, 1);
    setValue(main().chkReturnFromEdit, 1);
    returnFromDialog();
    EXPECT_EQ(main().map().repositionKey(), QStringLiteral("Red 2"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().chkReposition), 0);
    EXPECT_EQ(valueOf(main().chkReturnFromEdit), 0);
}

TEST_F(MainWindow, ADialogThatLeavesNoFlagLeavesThePlacementAsItIs)
{
    startPastSplash();
    setValue(main().ChkPlotDiv, 1);
    returnFromDialog();
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    EXPECT_EQ(main().map().repositionKey(), QString());
}

TEST_F(MainWindow, HelpTagsToggledTwiceAreOnAgain)
{
    startPastSplash(Language::German);
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuHotText")));
    EXPECT_EQ(entry("mnuHotText")->text(), QStringLiteral("Hilfetexte aus"));
    EXPECT_FALSE(entry("mnuHotText")->isChecked());
    EXPECT_FALSE(main().helpTagsOn());
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuHotText")));
    EXPECT_EQ(entry("mnuHotText")->text(), QStringLiteral("Hilfetexte ein"));
    EXPECT_TRUE(entry("mnuHotText")->isChecked());
    EXPECT_TRUE(main().helpTagsOn());
    startPastSplash(Language::English);
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuHotText")));
    EXPECT_EQ(entry("mnuHotText")->text(), QStringLiteral("Help Tags OFF"));
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuHotText")));
    EXPECT_EQ(entry("mnuHotText")->text(), QStringLiteral("Help Tags ON"));
}

TEST_F(MainWindow, HelpTopicsOpensTheHelpFileOfTheWorkFolder)
{
    startPastSplash();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuHelpTopics")));
    EXPECT_EQ(script.helpViewer.shown, QStringList{workFile(QStringLiteral("SE_README.HLP"))});
    press(map(), Qt::Key_F1);
    EXPECT_EQ(script.helpViewer.shown.size(), 2);
    EXPECT_TRUE(script.helpViewer.chapters.isEmpty()) << "both open at the contents";
}

TEST_F(MainWindow, HasItsNormalLayout)
{
    startPastSplash();
    EXPECT_EQ(map()->geometry(), QRect(0, 48, 625, 417));
    EXPECT_EQ(bar("HScroll1")->width(), 625);
    EXPECT_EQ(bar("VScroll1")->height(), 417);
    EXPECT_EQ(bar("HScroll1")->maximum(), 32767);
}

TEST_F(MainWindow, AMissingOrDamagedDatabaseIsNamedWhenItIsNeededAndTheRunGoesOn)
{
    startPastSplash();
    const auto needIt = [this] { editor().forms().runHandler([this] { main().emptyDBase(); }); };
    needIt();
    EXPECT_TRUE(boxes().isEmpty());
    QFile::remove(workFile(QStringLiteral("ScenarioData.mdb")));
    needIt();
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().last().text.toStdString(),
                ::testing::HasSubstr(workFile(QStringLiteral("ScenarioData.mdb")).toStdString()));
    putWorkFile(QStringLiteral("ScenarioData.mdb"), QByteArray(4096, 'x'));
    needIt();
    EXPECT_EQ(boxes().size(), 2);
    EXPECT_TRUE(main().isVisible());
    EXPECT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
}

TEST_F(MainWindow, TheVersionIsWrittenAnewAndAFailureIsShown)
{
    startPastSplash(Language::German);
    main().createNewIniTempFile();
    EXPECT_EQ(workBytes(QStringLiteral("iniTemp.bmm")), "[VERSION]\r\nVERSIONNUMBER=64\r\n");
    main().killFiles();
    QDir(gameFolder() + QStringLiteral("/ScenarioEditor")).removeRecursively();
    main().createNewIniTempFile();
    ASSERT_FALSE(boxes().isEmpty());
    EXPECT_EQ(boxes().first().text, QStringLiteral("Beim Sichern der .ini-Datei trat ein Fehler auf."));
    EXPECT_EQ(boxes().first().icon, MessageBox::Icon::Information);
}

TEST_F(MainWindow, AProfileThatCannotBeSavedIsNamedOnceAndKept)
{
    startPastSplash();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    click(control<QPushButton>(editor().overviewFrm(), QStringLiteral("cmdOK")));
    QDir(gameFolder() + QStringLiteral("/ScenarioEditor")).removeRecursively();
    for (int event = 0; event < 2; ++event) {
        editor().forms().runHandler(
            [&] { editor().workingProfile().write(u"SCENARIODATA", u"TITLE", QString::number(event)); });
        settle();
    }
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(),
                ::testing::HasSubstr(workFile(QStringLiteral("iniTemp.bmm")).toStdString()));
    QDir(gameFolder()).mkpath(QStringLiteral("ScenarioEditor"));
    editor().forms().runHandler([] {});
    EXPECT_THAT(workBytes(QStringLiteral("iniTemp.bmm")).toStdString(), ::testing::HasSubstr("TITLE=1\r\n"));
}

} // namespace
} // namespace torvane::testing
