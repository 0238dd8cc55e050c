#include "windows/map_fixture.h"

namespace torvane::testing {
namespace {

constexpr const char* measureTool = "cmdMeasureTool";

class Ruler : public MapFixture
{
protected:
    int yellowPixels() { return countOf(Qt::yellow); }
};

TEST_F(Ruler, MeasuresBetweenTwoClicks)
{
    startPastSplash();
    use(measureTool);
    EXPECT_EQ(pointer(), Qt::CrossCursor);
    clickMap({100, 100});
    EXPECT_EQ(pixel(98, 100), QColor(Qt::yellow)) << "the cross of A";
    EXPECT_EQ(pixel(100, 98), QColor(Qt::yellow));
    EXPECT_EQ(pointer(), Qt::CrossCursor);
    movePointer({130, 140});
    EXPECT_EQ(distance(), QStringLiteral("3,000 yds.")) << "50 pixels so far";
    EXPECT_NE(pixel(115, 120), QColor(Qt::yellow)) << "nothing is drawn yet";
    clickMap({200, 100});
    EXPECT_NE(pixel(150, 100), QColor(Qt::yellow)) << "the line waits for the next move";
    EXPECT_EQ(pixel(198, 100), QColor(Qt::yellow)) << "the cross of B";
    EXPECT_EQ(pixel(200, 98), QColor(Qt::yellow));
    EXPECT_EQ(pointer(), Qt::CrossCursor);
    movePointer({201, 101});
    EXPECT_EQ(distance(), QStringLiteral("6,000 yds."));
    EXPECT_EQ(pixel(120, 100), QColor(Qt::yellow));
}

TEST_F(Ruler, ANewMeasurementClearsTheOldOneAndKeepsItsDistanceUntilTheFirstMove)
{
    startPastSplash();
    use(measureTool);
    clickMap({100, 100});
    clickMap({200, 100});
    movePointer({300, 200});
    ASSERT_EQ(pixel(120, 100), QColor(Qt::yellow));
    clickWithoutMove({300, 200});
    EXPECT_NE(pixel(120, 100), QColor(Qt::yellow));
    EXPECT_EQ(distance(), QStringLiteral("6,000 yds."));
    movePointer({310, 200});
    EXPECT_EQ(distance(), QStringLiteral("600 yds."));
}

TEST_F(Ruler, ARedrawRemovesTheLineAndLeavesItsDistance)
{
    startPastSplash();
    use(measureTool);
    clickMap({100, 100});
    clickMap({200, 100});
    movePointer({300, 200});
    main().redrawMap();
    EXPECT_EQ(yellowPixels(), 0);
    EXPECT_EQ(distance(), QStringLiteral("6,000 yds."));
}

TEST_F(Ruler, SwitchedOffClearsItsLineAndItsDistance)
{
    startPastSplash();
    use(measureTool);
    clickMap({100, 100});
    clickMap({200, 100});
    movePointer({300, 200});
    use(measureTool);
    EXPECT_EQ(distance(), QStringLiteral("0 yds."));
    EXPECT_EQ(yellowPixels(), 0);
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
    clickMap({100, 100});
    EXPECT_EQ(yellowPixels(), 0);
}

TEST_F(Ruler, ARightClickNeitherMeasuresNorStopsTheTool)
{
    startPastSplash();
    use(measureTool);
    clickMap({100, 100}, Qt::RightButton);
    EXPECT_EQ(yellowPixels(), 0);
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
    clickMap({100, 100});
    EXPECT_GT(yellowPixels(), 0);
}

TEST_F(Ruler, AClickPlacesTheDivisionThenTheTargetAreaAndSetsThePoint)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    openRepositionMenus();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuDiv1")));
    armTargetArea();
    use(measureTool);
    clickMap({412, 258});
    EXPECT_EQ(position(0, 0), QStringLiteral("6000,3000"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_TRUE(state().target.placed);
    EXPECT_FALSE(state().target.armed);
    EXPECT_EQ(main().targetArea().x, 6000);
    EXPECT_EQ(main().targetArea().z, 3000);
    EXPECT_GT(yellowPixels(), 0) << "drawn last, over the others";
}

TEST_F(Ruler, TheCrossOfThePointerSurvivesItsMoves)
{
    startPastSplash();
    use(measureTool);
    for (const QPoint at : {QPoint(100, 100), QPoint(130, 140), QPoint(300, 20)}) {
        movePointer(at);
        EXPECT_EQ(pointer(), Qt::CrossCursor);
    }
}

TEST_F(Ruler, SwitchingItOnDrawsNothingAnewAndOffDoes)
{
    startPastSplash();
    drawMarker();
    use(measureTool);
    EXPECT_TRUE(markerStands());
    use(measureTool);
    EXPECT_FALSE(markerStands());
}

} // namespace
} // namespace torvane::testing
