#include "windows/map_fixture.h"

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
    void armTargetArea()
    {
        setValue(main().chkBombardment, 1);
        returnFromDialog();
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuTargetBox")));
    }
    // What New and a division bring about in the menus.
    void openRepositionMenus()
    {
        main().menu().setEnabled(QStringLiteral("mnuRepoForceA"), true);
        main().menu().setEnabled(QStringLiteral("mnuRepoForceB"), true);
        for (const bool blue : {true, false}) {
            for (int number = 1; number <= divisionsPerSide; ++number) {
                main().menu().setVisible(QLatin1StringView(repositionRow(blue, number).entry), true);
            }
        }
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
    EXPECT_EQ(editor().createDivisionFrm().LblPicMap->text(), QStringLiteral("24720 X 6480"))
        << "from the top left corner, as the read-out";
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
    setValue(main().chkReturnFromEdit, 1);
    comeBackFromCreating("Force B (Red)", "Verband 2");
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(valueOf(main().chkReturnFromEdit), 0);
    EXPECT_EQ(position(0, 0), QStringLiteral("1200,-600"));
    EXPECT_EQ(position(0, 1), QStringLiteral("1200,0")) << "to the right of a course east is south";
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
    addDivision(0, "Blue", 1, 1);
    openRepositionMenus();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuDiv1")));
    press(bar("HScroll1"), Qt::Key_Right);
    returnFromDialog();
    EXPECT_EQ(state().view.mapOriginX, 312);
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
}

TEST_F(Placing, ADivisionOfMoreThanTenIsASubscriptFailureInABox)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    openRepositionMenus();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuDiv1")));
    set(QStringLiteral("DIVISION0"), "SHIPCNT", QStringLiteral("99"));
    clickMap({400, 300});
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "no hourglass stays";
    EXPECT_EQ(position(0, 0), QStringLiteral("0.000000,0.000000"));
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
