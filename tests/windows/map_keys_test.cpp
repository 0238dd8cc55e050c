#include "windows/map_fixture.h"

#include <QApplication>
#include <QMenuBar>

namespace torvane::testing {
namespace {

/// What the mouse does on the map, done by its keys.
class MapKeys : public MapFixture
{
protected:
    QMenuBar* menuBar() { return control<QMenuBar>(main(), QStringLiteral("menuBar")); }
};

TEST_F(MapKeys, PlaceADivision)
{
    startPastSplash();
    awaitClick();
    ASSERT_EQ(main().focusWidget(), map());
    for (int i = 0; i < 10; ++i) {
        press(map(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    }
    for (int i = 0; i < 3; ++i) {
        press(map(), Qt::Key_Up, Qt::ControlModifier);
    }
    EXPECT_EQ(cursorReadOut(state().view),
              (ReadOut{QStringLiteral("24,720 yds."), QStringLiteral("12,300 yds.")}))
        << "pixel (412, 205)";
    EXPECT_EQ(pointer(), Qt::SizeAllCursor) << "as under the mouse";
    EXPECT_EQ(state().view.mapOriginX, 312) << "no scrolling";
    press(map(), Qt::Key_Space);
    EXPECT_EQ(position(0, 0), QStringLiteral("6000,-180"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(lastPlacement(), QStringLiteral("24720 X 12300"));
}

TEST_F(MapKeys, BackspaceGivesUpADivisionThatWaitsAndLeavesTargetAndLine)
{
    startPastSplash();
    awaitClick();
    const QString before = position(0, 0);
    armTargetArea();
    press(map(), Qt::Key_Right, Qt::ControlModifier);
    press(map(), Qt::Key_Backspace);
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(position(0, 0), before);
    EXPECT_EQ(pointer(), Qt::ArrowCursor) << "as behind a right click";
    EXPECT_TRUE(state().target.armed);
    press(map(), Qt::Key_Space);
    EXPECT_EQ(position(0, 0), before) << "nothing waits any more";
    EXPECT_FALSE(state().target.armed);
}

TEST_F(MapKeys, StartWhereTheMouseIsAndStayOnTheMap)
{
    startPastSplash();
    movePointer({2, 415});
    for (int i = 0; i < 4; ++i) {
        press(map(), Qt::Key_Left, Qt::ControlModifier);
        press(map(), Qt::Key_Down, Qt::ControlModifier);
    }
    EXPECT_EQ(cursorReadOut(state().view),
              (ReadOut{QStringLiteral("0 yds."), QStringLiteral("24,960 yds.")}));
    press(map(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(cursorReadOut(state().view).x, QStringLiteral("60 yds."));
}

TEST_F(MapKeys, ShowThePointerOnTheMapUntilTheMouseMoves)
{
    startPastSplash();
    movePointer({100, 100});
    const QImage before = map()->grab().toImage();
    press(map(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_NE(map()->grab().toImage().pixelColor(101, 95), before.pixelColor(101, 95));
    EXPECT_EQ(pixel(101, 95), before.pixelColor(101, 95)) << "over the picture, not in it";
    movePointer({101, 100});
    EXPECT_EQ(map()->grab().toImage(), before);
}

TEST_F(MapKeys, SpaceEnterAndBackspaceBringAllRingsBackAsAnyOtherKey)
{
    startPastSplash();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Backspace}) {
        press(map(), Qt::Key_B);
        ASSERT_EQ(state().toggles.ringFilterOn, -1);
        press(map(), key);
        EXPECT_EQ(state().toggles.ringFilterOn, 0) << key;
        EXPECT_EQ(state().toggles.ringFilterKey, QString()) << key;
    }
}

TEST_F(MapKeys, PlaceTheTargetArea)
{
    startPastSplash();
    armTargetArea();
    press(map(), Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    press(map(), Qt::Key_Enter);
    EXPECT_TRUE(state().target.placed);
    EXPECT_EQ(main().targetArea().x, 0);
    EXPECT_EQ(main().targetArea().z, 600);
}

TEST_F(MapKeys, Measure)
{
    startPastSplash();
    use("cmdMeasureTool");
    press(map(), Qt::Key_Space);
    EXPECT_EQ(pixel(310, 208), QColor(Qt::yellow)) << "A in the middle of the map";
    for (int i = 0; i < 10; ++i) {
        press(map(), Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    }
    EXPECT_EQ(distance(), QStringLiteral("6,000 yds.")) << "so far";
    press(map(), Qt::Key_Return);
    EXPECT_EQ(pixel(212, 206), QColor(Qt::yellow)) << "B";
    EXPECT_NE(pixel(230, 208), QColor(Qt::yellow)) << "the line waits for the next move";
    press(map(), Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(pixel(230, 208), QColor(Qt::yellow));
    EXPECT_EQ(distance(), QStringLiteral("6,000 yds."));
}

TEST_F(MapKeys, HideTheHelpTagsAsAMoveOfTheMouse)
{
    startPastSplash();
    auto* tag = control<QLabel>(main(), QStringLiteral("hotGrid"));
    tag->show();
    press(map(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_FALSE(tag->isVisible());
}

// Whatever is chosen, the keys that follow are meant for the map.
TEST_F(MapKeys, AreStillTheMapsWhenF10HasOpenedTheMenus)
{
    startPastSplash();
    press(map(), Qt::Key_F10);
    EXPECT_EQ(menuBar()->activeAction(), entry("File"));
    EXPECT_EQ(main().focusWidget(), map());
    press(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_TRUE(menuBar()->hasFocus()) << "the arrows go from menu to menu";
    press(menuBar(), Qt::Key_Escape);
    EXPECT_TRUE(map()->hasFocus());
}

TEST_F(MapKeys, AreNotLostToAMenuBarThatIsNotInUse)
{
    startPastSplash();
    menuBar()->setFocus();
    EXPECT_TRUE(map()->hasFocus());
}

} // namespace
} // namespace torvane::testing
