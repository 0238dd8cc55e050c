#include "windows/map_fixture.h"

#include <optional>

namespace torvane::testing {
namespace {

class Placing : public MapFixture
{
protected:
    // The division dialog has made a division of that side and number.
    void comeBackFromCreating(const char* side, const char* label)
    {
        editor().createDivisionFrm().lblside->setText(QString::fromLatin1(side));
        main().txtDivisionReturn->setText(QString::fromLatin1(label));
        setValue(main().chkCreateReturn, 1);
        returnFromDialog();
    }
};

TEST_F(Placing, AClickPlacesTheDivisionThatWaits)
{
    startPastSplash();
    addDivision(0, "Blue", 3, 3);
    comeBackFromCreating("Force A (Blue)", "Division 3");
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    clickMap({412, 108});
    EXPECT_EQ(position(0, 0), QStringLiteral("6000,-6000")) << "a hundred pixels of 60 yards";
    EXPECT_EQ(position(0, 1), QStringLiteral("6000,-5400"));
    EXPECT_EQ(position(0, 2), QStringLiteral("6000,-4800"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(lastPlacement(), QStringLiteral("24720 X 6480")) << "from the top left corner, as the read-out";
    EXPECT_EQ(pixel(416, 90), QColor(Qt::blue)) << "drawn at its place";
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Placing, ASecondClickLeavesTheDivisionWhereItIs)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    comeBackFromCreating("Force A (Blue)", "Division 1");
    clickMap({412, 108});
    const QImage before = map()->image();
    clickMap({200, 300});
    EXPECT_EQ(position(0, 0), QStringLiteral("6000,-6000"));
    EXPECT_EQ(map()->image(), before) << "a click that does nothing changes nothing on the map";
}

TEST_F(Placing, ARightClickCancelsThePlacementAlone)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    comeBackFromCreating("Force A (Blue)", "Division 1");
    armTargetArea();
    clickMap({412, 108}, Qt::RightButton);
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().chkReposition), 0);
    EXPECT_TRUE(state().target.armed) << "the target area still waits";
    EXPECT_EQ(position(0, 0), QStringLiteral("0.000000,0.000000"));
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
}

TEST_F(Placing, AnEditedDivisionIsLaidOutAtItsOldPlaceWithoutAClick)
{
    startPastSplash();
    addDivision(0, "Red", 2, 2, "Line of Bearing", 90);
    main().txtXPosition->setText(QStringLiteral("1200"));
    main().txtYPosition->setText(QStringLiteral("-600"));
    editor().createDivisionFrm().showPlacement(QStringLiteral("as it was"));
    setValue(main().chkReturnFromEdit, 1);
    comeBackFromCreating("Force B (Red)", "Verband 2");
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(valueOf(main().chkReturnFromEdit), 0);
    EXPECT_EQ(position(0, 0), QStringLiteral("1200,-600"));
    EXPECT_EQ(position(0, 1), QStringLiteral("1200,0")) << "to the right of a course east is south";
    EXPECT_EQ(lastPlacement(), QStringLiteral("as it was")) << "a click's alone";
}

TEST_F(Placing, SeparationRingsShowUntilTheNextRedraw)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    set(QStringLiteral("DIVISION0SHIP0"), "XPOSITION", QStringLiteral("3000")); // pixel 362
    set(QStringLiteral("DIVISION0SHIP0"), "ZPOSITION", QStringLiteral("3000")); // pixel 258
    comeBackFromCreating("Force A (Blue)", "Division 1");
    EXPECT_EQ(pixel(362 + 16, 258), QColor(Qt::black)) << "a thousand yards are 16 pixels";
    main().redrawMap();
    EXPECT_NE(pixel(362 + 16, 258), QColor(Qt::black));
}

TEST_F(Placing, EachRepositionEntryNamesItsDivisionAndAwaitsAClick)
{
    const struct
    {
        const char* entry;
        const char* key;
    } rows[] = {{"mnuDiv1", "Blue 1"}, {"mnuDiv2", "Blue 2"},  {"mnuDiv3", "Blue 3"},
                {"mnuDiv4", "Blue 4"}, {"mnuDiv9", "Blue  5"}, {"mnuDiv10", "Blue  6"},
                {"mnuDiv5", "Red  1"}, {"mnuDiv6", "Red  2"},  {"mnuDiv7", "Red  3"},
                {"mnuDiv8", "Red  4"}, {"mnuDiv11", "Red  5"}, {"mnuDiv12", "Red  6"}};
    startPastSplash();
    openRepositionMenus();
    for (const auto& [name, key] : rows) {
        setValue(main().ChkPlotDiv, 0);
        setValue(editor().createDivisionFrm().chkReposition, 0);
        ASSERT_TRUE(chooseMenu(main(), QLatin1StringView(name))) << name;
        EXPECT_EQ(main().map().repositionKey(), QLatin1StringView(key));
        EXPECT_EQ(valueOf(main().ChkPlotDiv), 1) << name;
        EXPECT_EQ(valueOf(editor().createDivisionFrm().chkReposition), 1) << name;
    }
}

TEST_F(Placing, ARepositionedDivisionMovesToTheClick)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    addDivision(1, "Red", 5, 2, "Convoy");
    openRepositionMenus();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuDiv11")));
    movePointer({312, 208});
    EXPECT_EQ(pointer(), Qt::SizeAllCursor);
    clickMap({312, 308});
    EXPECT_EQ(position(1, 0), QStringLiteral("-300,6000"));
    EXPECT_EQ(position(1, 1), QStringLiteral("300,6000"));
    EXPECT_EQ(position(0, 0), QStringLiteral("0.000000,0.000000"));
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
}

TEST_F(Placing, AClickWithoutAnyMoveUsesTheAnchorThatTheRedrawLeft)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    movePointer({400, 300});
    main().redrawMap(); // the anchor becomes the raw pointer: (400, 300) pixels from the origin
    openRepositionMenus();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuDiv1")));
    clickWithoutMove({400, 300});
    EXPECT_EQ(position(0, 0), QStringLiteral("24000,18000"));
}

TEST_F(Placing, ActivationDuringAPlacementDiscardsTheScrolling)
{
    startPastSplash();
    awaitClick();
    press(bar("HScroll1"), Qt::Key_Right);
    returnFromDialog();
    EXPECT_EQ(state().view.mapOriginX, 312);
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
}

TEST_F(Placing, ADivisionOfMoreThanTenIsASubscriptFailureInABoxAndGoesOnWaiting)
{
    startPastSplash();
    awaitClick();
    set(QStringLiteral("DIVISION0"), "SHIPCNT", QStringLiteral("99"));
    clickMap({400, 300});
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "no hourglass stays";
    EXPECT_EQ(position(0, 0), QStringLiteral("0.000000,0.000000"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    set(QStringLiteral("DIVISION0"), "SHIPCNT", QStringLiteral("1"));
    clickMap({412, 108});
    EXPECT_EQ(position(0, 0), QStringLiteral("6000,-6000"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
}

TEST_F(Placing, DrawsTheGridBeforeItPlacesOnWhatThePictureHolds)
{
    startPastSplash();
    awaitClick();
    set(QStringLiteral("DIVISION0"), "SHIPCNT", QStringLiteral("99")); // no redraw follows
    ASSERT_EQ(pixel(42, 10), QColor(128, 128, 128)) << "a grid line";
    movePointer({400, 300});
    map()->setForeColor(Qt::magenta);
    map()->line({5, 10}, {60, 10});
    clickWithoutMove({400, 300});
    EXPECT_EQ(pixel(20, 10), QColor(Qt::magenta)) << "nothing was cleared";
    EXPECT_EQ(pixel(42, 10), QColor(128, 128, 128));
}

TEST_F(Placing, TheHourglassShowsDuringTheWork)
{
    startPastSplash();
    awaitClick();
    // What is broken elsewhere is told by the redraw of the placement.
    addDivision(1, "Red", 1, 1);
    set(QStringLiteral("DIVISION1"), "FORMATIONHEADING", QStringLiteral("99999"));
    std::optional<Qt::CursorShape> shown;
    script.messageBoxes.onShow = [&shown] {
        if (const QCursor* cursor = QGuiApplication::overrideCursor()) {
            shown = cursor->shape();
        }
    };
    clickMap({412, 108});
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_EQ(shown, Qt::WaitCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Placing, ALeftClickLeavesTheDivisionDialogsFlag)
{
    startPastSplash();
    awaitClick();
    clickMap({412, 108});
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().chkReposition), 1);
}

TEST_F(Placing, TheMiddleButtonPlacesToo)
{
    startPastSplash();
    awaitClick();
    clickMap({412, 108}, Qt::MiddleButton);
    EXPECT_EQ(position(0, 0), QStringLiteral("6000,-6000"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
}

TEST_F(Placing, OtherToolsStayUsableMeanwhile)
{
    startPastSplash();
    awaitClick();
    use("cmdNameTog");
    EXPECT_EQ(state().toggles.namesMode, 1);
    press(map(), Qt::Key_B);
    EXPECT_EQ(state().toggles.ringFilterKey, QStringLiteral("B"));
    press(bar("HScroll1"), Qt::Key_Right);
    EXPECT_EQ(state().view.mapOriginX, 302);
    use("cmdMeasureTool");
    use("cmdMeasureTool");
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    clickMap({402, 108});
    EXPECT_EQ(position(0, 0), QStringLiteral("6000,-6000"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
}

TEST_F(Placing, TheHiddenAnchorFollowsThePointer)
{
    startPastSplash();
    const auto shown = [this](QPoint at) {
        movePointer(at);
        return control<PictureBox>(main(), QStringLiteral("PicCoords"))->image().copy();
    };
    const QImage here = shown({100, 100});
    EXPECT_NE(shown({120, 100}), here);
    EXPECT_NE(shown({100, 120}), here);
    EXPECT_EQ(shown({100, 100}), here);
}

TEST_F(Placing, TheTargetAreaGoesWhereTheNextClickIs)
{
    startPastSplash();
    armTargetArea();
    EXPECT_EQ(pointer(), Qt::SizeAllCursor);
    EXPECT_FALSE(state().target.placed);
    clickMap({412, 258});
    EXPECT_FALSE(state().target.armed);
    EXPECT_TRUE(state().target.placed);
    EXPECT_EQ(main().targetArea().x, 6000);
    EXPECT_EQ(main().targetArea().z, 3000);
    EXPECT_EQ(pixel(412, 258), QColor(Qt::red)) << "where the diagonals cross";
    EXPECT_EQ(pixel(412 + 84, 258), QColor(Qt::red));
    clickMap({100, 100});
    EXPECT_EQ(main().targetArea().x, 6000) << "it stays";
}

TEST_F(Placing, AnArmedTargetAreaKeepsItsPointerOverItsMoves)
{
    startPastSplash();
    armTargetArea();
    movePointer({100, 100});
    movePointer({120, 90});
    EXPECT_EQ(pointer(), Qt::SizeAllCursor);
}

TEST_F(Placing, TheTargetAreaGoesToThePixelBelowAndBehindADivisionToTheNearestOne)
{
    startPastSplash();
    armTargetArea();
    clickBetweenPixels({412.9, 258.9});
    EXPECT_EQ(main().targetArea().x, 6000);
    EXPECT_EQ(main().targetArea().z, 3000);
    addDivision(0, "Blue", 1, 1);
    armTargetArea();
    clickBetweenPixels({412.9, 258.9});
    EXPECT_EQ(main().targetArea().x, 6060) << "each ship takes the anchor anew from the read-outs";
    EXPECT_EQ(main().targetArea().z, 3060);
}

TEST_F(Placing, AMissionWithoutATargetAreaClearsItsPlaceAndRemembersThatItWasPlaced)
{
    startPastSplash();
    armTargetArea();
    clickMap({412, 258});
    setValue(main().chkBombardment, 0);
    returnFromDialog();
    EXPECT_EQ(main().targetArea().x, 0);
    EXPECT_EQ(main().targetArea().z, 0);
    EXPECT_TRUE(state().target.placed);
    EXPECT_NE(pixel(412 + 84, 258), QColor(Qt::red));
}

TEST_F(Placing, ACoarserLevelSnapsTheStoredTargetArea)
{
    startPastSplash();
    armTargetArea();
    clickMap({317, 208});        // 300 yards
    chooseZoom("optZoomLevel1"); // 240 yards a pixel
    movePointer({100, 100});     // takes the scale
    main().redrawMap();
    EXPECT_EQ(main().targetArea().x, 240);
}

TEST_F(Placing, TheHiddenToolArmsTheTargetAreaToo)
{
    startPastSplash();
    setValue(main().chkBombardment, 1);
    returnFromDialog();
    auto* tool = control<QAbstractButton>(main(), QStringLiteral("cmdTarget"));
    EXPECT_FALSE(tool->isVisible());
    tool->click();
    EXPECT_TRUE(state().target.armed);
    EXPECT_EQ(pointer(), Qt::SizeAllCursor);
}

} // namespace
} // namespace torvane::testing
