#include "map/view_tools.h"

#include "map_fixture.h"
#include "platform/bilingual.h"
#include "platform/picture_button.h"

#include <QApplication>

namespace torvane::testing {
namespace {

/// The main window with its tools.
class Tools : public MapFixture
{
protected:
    PictureButton* tool(const char* name) { return control<PictureButton>(main(), QLatin1StringView(name)); }
    QLabel* tag(const char* name) { return control<QLabel>(main(), QLatin1StringView(name)); }
    void moveTo(QWidget* target, QPoint at)
    {
        QTest::mouseMove(&main(), target->mapTo(&main(), at));
        settle();
    }

    const QColor sea{1, 176, 235};
    const QColor white{255, 255, 255};
};

TEST_F(Tools, StandInTheirPlaces)
{
    startPastSplash();
    int left = 0;
    for (const char* name : {"cmdGridLevel", "cmdZoomLevel", "cmdNameTog", "cmdMapScale", "cmdVisibCircles",
                             "cmdGunCircles", "cmdRadarCircles", "cmdMeasureTool"}) {
        EXPECT_EQ(tool(name)->geometry(), QRect(left, 8, 41, 41)) << name;
        EXPECT_TRUE(tool(name)->isVisible()) << name;
        left += 40;
    }
    EXPECT_EQ(tool("Image1")->pos(), QPoint(624, 464));
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("Label1"))->pos(), QPoint(320, 8));
    EXPECT_EQ(control<QLabel>(main(), QStringLiteral("lblDistance"))->pos(), QPoint(328, 24));
}

TEST_F(Tools, LeaveTheFocusOnTheMapFromTheStart)
{
    startPastSplash();
    EXPECT_EQ(main().focusWidget(), map());
    use("cmdVisibCircles");
    EXPECT_EQ(main().focusWidget(), map());
}

TEST_F(Tools, TheNamesComeBackAfterFourClicks)
{
    startPastSplash();
    for (const int mode : {1, 2, 3, 0}) {
        use("cmdNameTog");
        EXPECT_EQ(state().toggles.namesMode, mode);
        EXPECT_EQ(tool("cmdNameTog")->isChecked(), mode != 3);
    }
}

TEST_F(Tools, TheScaleToggleTakesLabelsAndBarsOffTheGridAndThePointerBackToItsDefault)
{
    startPastSplash();
    EXPECT_GT(countOf(white), 0);
    use("cmdMeasureTool");
    ASSERT_EQ(pointer(), Qt::CrossCursor);
    use("cmdMapScale");
    EXPECT_EQ(state().toggles.scaleLabelsOn, 0);
    EXPECT_FALSE(tool("cmdMapScale")->isChecked());
    EXPECT_EQ(countOf(white), 0);
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
    use("cmdMeasureTool");
    use("cmdMeasureTool");
    ASSERT_EQ(pointer(), Qt::CrossCursor);
    use("cmdMapScale");
    EXPECT_TRUE(tool("cmdMapScale")->isChecked());
    EXPECT_GT(countOf(white), 0);
    EXPECT_EQ(pointer(), Qt::CrossCursor) << "on the way to on the pointer stays";
}

TEST_F(Tools, TheRulerStandsPressedWhileItIsOn)
{
    startPastSplash();
    use("cmdMeasureTool");
    EXPECT_TRUE(tool("cmdMeasureTool")->isChecked());
    use("cmdMeasureTool");
    EXPECT_FALSE(tool("cmdMeasureTool")->isChecked());
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
}

TEST_F(Tools, ALevelOfZoomTakesEffectWhenItsDialogHasHidden)
{
    startPastSplash();
    EXPECT_EQ(state().view.zoomIndex, 4);
    bar("HScroll1")->setValue(20000);
    settle();
    ASSERT_NE(state().view.mapOriginX, 312);
    use("cmdZoomLevel");
    EXPECT_TRUE(editor().zoomLevelFrm().isVisible());
    EXPECT_FALSE(main().isInputEnabled());
    use("cmdNameTog");
    EXPECT_EQ(state().toggles.namesMode, 0) << "the main window takes no input";
    click(control<OptionButton>(editor().zoomLevelFrm(), QStringLiteral("optZoomLevel10")));
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_EQ(state().view.zoomIndex, 10);
    EXPECT_EQ(state().view.mapOriginX, 312) << "the view returns centred";
    use("cmdNameTog");
    EXPECT_EQ(state().toggles.namesMode, 1);
}

TEST_F(Tools, LeavingTheZoomDialogByItsCloseBoxKeepsTheLevel)
{
    startPastSplash();
    chooseZoom("optZoomLevel9");
    use("cmdZoomLevel");
    closeBox(&editor().zoomLevelFrm());
    EXPECT_EQ(valueOf(main().chkUnloadZoom), 1);
    EXPECT_EQ(state().view.zoomIndex, 9);
    use("cmdNameTog");
    EXPECT_EQ(state().view.zoomIndex, 9);
    use("cmdZoomLevel");
    EXPECT_EQ(valueOf(main().chkUnloadZoom), 0);
    EXPECT_TRUE(editor().zoomLevelFrm().isVisible());
    EXPECT_TRUE(control<OptionButton>(editor().zoomLevelFrm(), QStringLiteral("optZoomLevel9"))->isChecked());
    closeBox(&editor().zoomLevelFrm());
    EXPECT_EQ(state().view.zoomIndex, 9);
}

TEST_F(Tools, GridOffTakesAwayLinesAndLabelsWhateverTheScaleToggleSays)
{
    startPastSplash();
    chooseGrid("optOff");
    EXPECT_EQ(state().view.gridIndex, 0);
    EXPECT_EQ(state().toggles.scaleLabelsOn, 1);
    EXPECT_EQ(countOf(sea), 625 * 417);
    chooseGrid("optLevel1");
    EXPECT_EQ(state().view.gridIndex, 1);
    EXPECT_LT(countOf(sea), 625 * 417);
}

TEST_F(Tools, LeavingTheGridDialogByItsCloseBoxKeepsTheGrid)
{
    startPastSplash();
    chooseGrid("optOff");
    use("cmdGridLevel");
    closeBox(&editor().gridLevelFrm());
    EXPECT_EQ(valueOf(main().chkUnloadGrid), 1);
    EXPECT_EQ(state().view.gridIndex, 0);
    EXPECT_EQ(countOf(sea), 625 * 417);
}

TEST_F(Tools, TheCornersToolCentresTheView)
{
    startPastSplash();
    bar("HScroll1")->setValue(20000);
    bar("VScroll1")->setValue(5);
    settle();
    ASSERT_NE(state().view.mapOriginY, 208);
    use("Image1");
    EXPECT_EQ(state().view.mapOriginX, 312);
    EXPECT_EQ(state().view.mapOriginY, 208);
    EXPECT_EQ(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(bar("VScroll1")->value(), 16383);
    EXPECT_EQ(state().view.lastHScrollValue, 16383);
    EXPECT_EQ(state().view.lastVScrollValue, 16383);
}

TEST_F(Tools, TheDialogsToolsAndTheCornersDrawTheMapAnew)
{
    startPastSplash();
    for (const auto& [name, dialog] :
         {std::pair<const char*, Form*>("cmdZoomLevel", &editor().zoomLevelFrm()),
          {"cmdGridLevel", &editor().gridLevelFrm()},
          {"Image1", nullptr}}) {
        drawMarker();
        use(name);
        EXPECT_FALSE(markerStands()) << name;
        if (dialog != nullptr) {
            EXPECT_TRUE(dialog->isVisible()) << "before an activation";
            closeBox(dialog);
        }
    }
}

TEST_F(Tools, NewAndLoadLeaveTogglesAndTheGunRangeAsTheyAre)
{
    putWorkFile(QStringLiteral("some.scn"), "[SCENARIODATA]\r\nTITLE=Some\r\n");
    for (const char* command : {"mnuNew", "mnuLoad"}) {
        startPastSplash();
        addDivision(0, "Blue", 1, 1);
        for (const char* name :
             {"cmdGunCircles", "cmdVisibCircles", "cmdRadarCircles", "cmdNameTog", "cmdMapScale"}) {
            use(name);
        }
        press(map(), Qt::Key_C);
        const MapToggles toggles{.namesMode = 1,
                                 .scaleLabelsOn = 0,
                                 .gunRingsOn = 1,
                                 .visRingsOn = 1,
                                 .radarRingsOn = 1,
                                 .ringFilterOn = -1,
                                 .ringFilterKey = QStringLiteral("C")};
        ASSERT_EQ(state().toggles, toggles);
        ASSERT_EQ(state().gunRangeValue, 510) << "30650 yards at 60 a pixel";
        script.fileBoxes.answers = {workFile(QStringLiteral("some.scn"))};
        ASSERT_TRUE(chooseMenu(main(), QLatin1StringView(command)));
        ASSERT_EQ(editor().workingProfile().divisionCount(), 0) << command;
        EXPECT_EQ(state().toggles, toggles) << command;
        EXPECT_EQ(state().gunRangeValue, 510) << command;
    }
}

TEST_F(Tools, TagsShowUnderThePointerUntilTheHelpTagsAreOff)
{
    startPastSplash();
    moveTo(tool("cmdNameTog"), {10, 10});
    EXPECT_TRUE(tag("hotNames")->isVisible());
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuHotText")));
    EXPECT_TRUE(tag("hotNames")->isVisible()) << "stays until a move hides it";
    moveTo(tool("cmdMapScale"), {10, 10});
    EXPECT_FALSE(tag("hotNames")->isVisible()) << "hidden by the next tool";
    EXPECT_FALSE(tag("hotScale")->isVisible());
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuHotText")));
    moveTo(tool("cmdZoomLevel"), {10, 10});
    EXPECT_TRUE(tag("hotZoom")->isVisible());
    moveTo(map(), {300, 300});
    EXPECT_FALSE(tag("hotZoom")->isVisible());
}

TEST_F(Tools, RulerAndReadOutsHideTheTagsBesideThem)
{
    startPastSplash();
    for (const char* name : {"Label1", "lblDistance"}) {
        moveTo(tool("cmdMeasureTool"), {10, 10});
        ASSERT_TRUE(tag("hotLineTool")->isVisible());
        moveTo(control<QWidget>(main(), QLatin1StringView(name)), {85, 5});
        EXPECT_FALSE(tag("hotLineTool")->isVisible()) << name;
    }
    moveTo(tool("Image1"), {8, 8});
    ASSERT_TRUE(tag("hotCenterMap")->isVisible());
    moveTo(tool("cmdGridLevel"), {10, 10});
    EXPECT_TRUE(tag("hotCenterMap")->isVisible());
    moveTo(control<QWidget>(main(), QStringLiteral("Picture1")), {5, 5});
    EXPECT_FALSE(tag("hotCenterMap")->isVisible()) << "also over what stands on the panel";
    EXPECT_TRUE(tag("hotGrid")->isVisible());
}

TEST_F(Tools, NoTagShowsWhileADialogIsOpen)
{
    startPastSplash();
    use("cmdZoomLevel");
    moveTo(tool("cmdNameTog"), {10, 10});
    EXPECT_FALSE(tag("hotNames")->isVisible());
}

TEST_F(Tools, TagsFitTheirTextsInTheWindow)
{
    for (const Language language : {Language::German, Language::English}) {
        startPastSplash(language);
        for (const ViewTool& each : viewTools) {
            const QLabel* label = tag(each.tag);
            EXPECT_FALSE(label->isVisible());
            EXPECT_EQ(label->text(), each.tagText(language).string());
            EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()));
            EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry())) << each.tag;
        }
    }
}

TEST_F(Tools, TheDistanceStandsOnLightGreyOnADarkDesktopToo)
{
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(40, 42, 50));
    QApplication::setPalette(dark);
    startPastSplash();
    const QImage label = control<QLabel>(main(), QStringLiteral("lblDistance"))->grab().toImage();
    QApplication::setPalette(before);
    const QColor corner = label.pixelColor(1, 1);
    EXPECT_EQ(corner.red(), corner.green());
    EXPECT_EQ(corner.green(), corner.blue());
    EXPECT_GT(corner.red(), 180);
    EXPECT_LT(corner.red(), 250) << "grey, not white";
    bool inked = false;
    for (int x = 0; x < label.width(); ++x) {
        inked = inked || label.pixelColor(x, label.height() / 2).red() < 100;
    }
    EXPECT_TRUE(inked) << "dark text on it";
}

TEST_F(Tools, ReadOutsAndBarsHaveTipsInBothLanguages)
{
    const std::array<std::pair<const char*, Bilingual>, 10> expected{{
        {"Label1", {"Measured with the line tool", "Mit dem Linien-Werkzeug gemessen"}},
        {"lblDistance",
         {"Yards from A to B as the line tool last measured them",
          "Yards von A nach B, wie das Linien-Werkzeug sie zuletzt gemessen hat"}},
        {"Picture2",
         {"How much sea the map shows: width by height in yards",
          "So viel See zeigt die Karte: Breite mal Höhe in Yards"}},
        {"Picture4",
         {"How much sea the map shows: width by height in yards",
          "So viel See zeigt die Karte: Breite mal Höhe in Yards"}},
        {"Picture1",
         {"How much sea the map shows: width by height in yards",
          "So viel See zeigt die Karte: Breite mal Höhe in Yards"}},
        {"picMapScale1",
         {"Where the pointer is, in yards from the map's upper left corner",
          "Wo der Zeiger steht, in Yards von der linken oberen Ecke der Karte"}},
        {"picMapScaleX",
         {"Where the pointer is, in yards from the map's upper left corner",
          "Wo der Zeiger steht, in Yards von der linken oberen Ecke der Karte"}},
        {"picMapScale2",
         {"Where the pointer is, in yards from the map's upper left corner",
          "Wo der Zeiger steht, in Yards von der linken oberen Ecke der Karte"}},
        {"HScroll1",
         {"Moves the map to the left or right; its slider does not show where you are",
          "Verschiebt die Karte nach links oder rechts; der Schieber zeigt nicht an, wo Sie sind"}},
        {"VScroll1",
         {"Moves the map up or down; its slider does not show where you are",
          "Verschiebt die Karte nach oben oder unten; der Schieber zeigt nicht an, wo Sie sind"}},
    }};
    for (const Language language : {Language::English, Language::German}) {
        startPastSplash(language);
        for (const auto& [name, tip] : expected) {
            const auto* told = control<QWidget>(main(), QLatin1StringView(name));
            EXPECT_EQ(told->toolTip(), tip.in(language)) << name;
            EXPECT_EQ(told->accessibleDescription(), tip.in(language)) << name;
        }
    }
}

} // namespace
} // namespace torvane::testing
