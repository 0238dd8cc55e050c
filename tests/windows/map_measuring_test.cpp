#include "platform/picture_button.h"
#include "windows/map_fixture.h"

namespace torvane::testing {
namespace {

class Ruler : public MapFixture
{
protected:
    void useTool() { click(control<PictureButton>(main(), QStringLiteral("cmdMeasureTool"))); }
    int yellowPixels()
    {
        int count = 0;
        const QImage& picture = map()->image();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                count += picture.pixelColor(x, y) == QColor(Qt::yellow) ? 1 : 0;
            }
        }
        return count;
    }
};

TEST_F(Ruler, MeasuresBetweenTwoClicks)
{
    startPastSplash();
    useTool();
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
    movePointer({201, 101});
    EXPECT_EQ(distance(), QStringLiteral("6,000 yds."));
    EXPECT_EQ(pixel(120, 100), QColor(Qt::yellow));
}

TEST_F(Ruler, ANewMeasurementClearsTheOldOneAndKeepsItsDistanceUntilTheFirstMove)
{
    startPastSplash();
    useTool();
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
    useTool();
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
    useTool();
    clickMap({100, 100});
    clickMap({200, 100});
    movePointer({300, 200});
    useTool();
    EXPECT_EQ(distance(), QStringLiteral("0 yds."));
    EXPECT_EQ(yellowPixels(), 0);
    EXPECT_EQ(pointer(), Qt::ArrowCursor);
    clickMap({100, 100});
    EXPECT_EQ(yellowPixels(), 0);
}

TEST_F(Ruler, ARightClickNeitherMeasuresNorStopsTheTool)
{
    startPastSplash();
    useTool();
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
    setValue(main().chkBombardment, 1);
    returnFromDialog();
    main().menu().setEnabled(QStringLiteral("mnuRepoForceA"), true);
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuDiv1")));
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuTargetBox")));
    useTool();
    clickMap({412, 258});
    EXPECT_EQ(position(0, 0), QStringLiteral("6000,3000"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_TRUE(state().target.placed);
    EXPECT_FALSE(state().target.armed);
    EXPECT_EQ(main().targetArea().x, 6000);
    EXPECT_EQ(main().targetArea().z, 3000);
    EXPECT_GT(yellowPixels(), 0) << "drawn last, over the others";
}

} // namespace
} // namespace torvane::testing
