#include "map/view_tools.h"

#include "map_fixture.h"
#include "overview/enviro_frm.h"
#include "platform/picture_button.h"

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
    int countOf(QColor colour)
    {
        int count = 0;
        const QImage image = map()->image();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }

    /// One ship in the middle of the map, of 480 yards a pixel by day.
    void addShip(const char* type, const char* radar = "EXCELLENT")
    {
        addDivision(0, "Blue", 1, 1);
        set(shipSection(0, 0), "TYPE", QString::fromLatin1(type));
        set(shipSection(0, 0), "RADARTYPE", QString::fromLatin1(radar));
    }
    void setConditions(const char* visibility, const char* radar, const char* seaState, const char* rain)
    {
        EnvironmentValues values = editor().enviroFrm().values();
        values.visibility = QLatin1StringView(visibility);
        values.radar = QLatin1StringView(radar);
        values.seaState = QLatin1StringView(seaState);
        values.rain = QLatin1StringView(rain);
        editor().enviroFrm().show(values);
    }
    const QColor sea{1, 176, 235};
    const QColor white{255, 255, 255};
    const QColor green{0, 255, 0};
    const QColor yellow{255, 255, 0};
    const QColor blue{0, 0, 255};
    const QColor brown{128, 64, 0};
    const QColor rust{192, 64, 0};
    const QColor orange{255, 128, 0};
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

TEST_F(Tools, EachRingToolDrawsItsFamilyAndTakesItAway)
{
    startPastSplash();
    addShip("CA");
    chooseZoom("optZoomLevel9");
    // 25920, 30650 and 34425 yards at 480 a pixel.
    for (const auto& [name, colour, radius] :
         {std::tuple("cmdVisibCircles", yellow, 54), std::tuple("cmdGunCircles", blue, 63),
          std::tuple("cmdRadarCircles", orange, 71)}) {
        use(name);
        EXPECT_TRUE(tool(name)->isChecked()) << name;
        EXPECT_EQ(pixel(312 + radius, 208), colour) << name;
        EXPECT_EQ(pixel(312, 208 - radius), colour) << name;
        use(name);
        EXPECT_FALSE(tool(name)->isChecked()) << name;
        EXPECT_NE(pixel(312 + radius, 208), colour) << name;
    }
}

TEST_F(Tools, TheRingsOfAllFamiliesStandInTheirColours)
{
    startPastSplash();
    addShip("CA");
    chooseZoom("optZoomLevel9");
    use("cmdVisibCircles");
    use("cmdGunCircles");
    use("cmdRadarCircles");
    for (const auto& [radius, colour] :
         {std::pair(67, white), std::pair(60, green), std::pair(54, yellow), std::pair(63, blue),
          std::pair(84, brown), std::pair(75, rust), std::pair(71, orange)}) {
        EXPECT_EQ(pixel(312 + radius, 208), colour) << radius;
    }
    press(map(), Qt::Key_D);
    EXPECT_EQ(pixel(312 + 54, 208), yellow);
    EXPECT_EQ(pixel(312 + 71, 208), orange);
    EXPECT_EQ(pixel(312 + 63, 208), blue) << "gun rings stay";
    EXPECT_EQ(countOf(green) + countOf(brown) + countOf(rust), 0);
    press(map(), Qt::Key_F);
    EXPECT_EQ(pixel(312 + 60, 208), green);
}

TEST_F(Tools, RingsFollowTheEnvironmentDialogAsItStands)
{
    startPastSplash();
    addShip("CA");
    chooseZoom("optZoomLevel9");
    use("cmdVisibCircles");
    use("cmdRadarCircles");
    setConditions("50 %", "50 %", "1", "Off");
    main().redrawMap();
    EXPECT_EQ(pixel(312 + 27, 208), yellow);
    EXPECT_EQ(pixel(312 + 35, 208), orange);
    setConditions("50 %", "50 %", "8", "Off");
    main().redrawMap();
    EXPECT_EQ(pixel(312 + 35, 208), sea);
}

TEST_F(Tools, AtNightRingsAreTwiceAsLargeAndTrainingCounts)
{
    startPastSplash();
    addShip("CA");
    set(shipSection(0, 0), "NIGHTTRAINING", QStringLiteral("poor"));
    chooseZoom("optZoomLevel9");
    use("cmdVisibCircles");
    setConditions("40 %", "100 %", "1", "Off");
    setValue(main().chkDayNight, 0);
    returnFromDialog();
    // A fifth of 25920 yards at 240 a pixel.
    EXPECT_EQ(pixel(312 + 21, 208), yellow);
    setValue(main().chkDayNight, 1);
    returnFromDialog();
    EXPECT_EQ(pixel(312 + 21, 208), yellow) << "two fifths at 480 a pixel";
}

TEST_F(Tools, RingsOfAnUnknownTypeAreToldOnceAndTheShipStays)
{
    startPastSplash();
    addShip("CV");
    use("cmdVisibCircles");
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("CV"));
    use("cmdGunCircles");
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(countOf(yellow), 0);
    EXPECT_TRUE(main().isVisible());
    use("cmdVisibCircles");
    EXPECT_EQ(boxes().size(), 1);
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

TEST_F(Tools, NewLeavesTheTogglesAsTheyAre)
{
    startPastSplash();
    use("cmdGunCircles");
    use("cmdNameTog");
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    EXPECT_EQ(state().toggles.gunRingsOn, 1);
    EXPECT_EQ(state().toggles.namesMode, 1);
}

TEST_F(Tools, TagsShowUnderThePointerUntilTheHelpTagsAreOff)
{
    startPastSplash();
    moveTo(tool("cmdNameTog"), {10, 10});
    EXPECT_TRUE(tag("hotNames")->isVisible());
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuHotText")));
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

} // namespace
} // namespace torvane::testing
