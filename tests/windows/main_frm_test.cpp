#include "overview/overview_frm.h"
#include "windows/main_frm_fixture.h"

#include <QDir>
#include <QPushButton>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

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
