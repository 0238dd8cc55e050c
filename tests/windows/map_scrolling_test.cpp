#include "windows/map_fixture.h"

#include <QContextMenuEvent>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTimer>
#include <QWheelEvent>

namespace torvane::testing {
namespace {

class MapScrolling : public MapFixture
{
protected:
    void SetUp() override
    {
        MapFixture::SetUp();
        startPastSplash();
    }
    /// One event of the wheel over the map; 120 are a notch, up or to the left.
    void turnWheel(QPoint by, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event(QPointF(50, 50), map()->mapToGlobal(QPointF(50, 50)), QPoint(), by, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(map(), &event);
        settle();
    }
    /// The middle of a part of a bar.
    static QPoint middleOf(const QScrollBar* bar, QStyle::SubControl part)
    {
        QStyleOptionSlider option;
        option.initFrom(bar);
        option.subControls = QStyle::SC_All;
        option.orientation = bar->orientation();
        option.minimum = bar->minimum();
        option.maximum = bar->maximum();
        option.sliderPosition = bar->sliderPosition();
        option.sliderValue = bar->value();
        option.singleStep = bar->singleStep();
        option.pageStep = bar->pageStep();
        option.state.setFlag(QStyle::State_Horizontal, bar->orientation() == Qt::Horizontal);
        return bar->style()->subControlRect(QStyle::CC_ScrollBar, &option, part, bar).center();
    }
    static void clickPart(QScrollBar* bar, QStyle::SubControl part)
    {
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, middleOf(bar, part));
        settle();
    }
    static void mouse(QScrollBar* bar, QEvent::Type type, QPoint at)
    {
        const bool moves = type == QEvent::MouseMove;
        const bool ends = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, bar->mapToGlobal(at), moves ? Qt::NoButton : Qt::LeftButton,
                          ends ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(bar, &event);
    }
    QPoint origin() { return {state().view.mapOriginX, state().view.mapOriginY}; }
};

TEST_F(MapScrolling, ClicksOnTheArrowsAndTheTrackMoveTheOriginTenPixels)
{
    clickPart(bar("HScroll1"), QStyle::SC_ScrollBarAddLine);
    EXPECT_EQ(origin(), QPoint(302, 208));
    EXPECT_EQ(bar("HScroll1")->value(), 17383);
    clickPart(bar("HScroll1"), QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(origin(), QPoint(292, 208));
    EXPECT_EQ(bar("HScroll1")->value(), 18383);
    clickPart(bar("HScroll1"), QStyle::SC_ScrollBarSubLine);
    EXPECT_EQ(origin(), QPoint(302, 208));
    clickPart(bar("VScroll1"), QStyle::SC_ScrollBarSubLine);
    EXPECT_EQ(origin(), QPoint(302, 218));
    EXPECT_EQ(bar("VScroll1")->value(), 14883);
    clickPart(bar("VScroll1"), QStyle::SC_ScrollBarSubPage);
    EXPECT_EQ(origin(), QPoint(302, 228));
}

TEST_F(MapScrolling, TheThumbDraggedByTheMouseMovesTheOriginAtEachMoveAndAtItsEnd)
{
    MapScrollBar* horizontal = bar("HScroll1");
    const QPoint thumb = middleOf(horizontal, QStyle::SC_ScrollBarSlider);
    mouse(horizontal, QEvent::MouseButtonPress, thumb);
    EXPECT_EQ(origin(), QPoint(312, 208)) << "a press is no event";
    mouse(horizontal, QEvent::MouseMove, thumb + QPoint(30, 0));
    EXPECT_EQ(origin(), QPoint(262, 208));
    EXPECT_GT(horizontal->value(), 16383);
    mouse(horizontal, QEvent::MouseMove, thumb + QPoint(40, 0));
    EXPECT_EQ(origin(), QPoint(212, 208));
    mouse(horizontal, QEvent::MouseButtonRelease, thumb + QPoint(40, 0));
    EXPECT_EQ(origin(), QPoint(222, 208)) << "the value stayed, which counts as going back";
}

TEST_F(MapScrolling, ADragThatComesBackToWhereItBeganEndsWithoutAChange)
{
    MapScrollBar* vertical = bar("VScroll1");
    vertical->setSliderDown(true);
    vertical->setSliderPosition(17000);
    vertical->setSliderPosition(16383);
    EXPECT_EQ(origin(), QPoint(312, 208)) << "fifty pixels there and fifty back";
    vertical->setSliderDown(false);
    EXPECT_EQ(origin(), QPoint(312, 208));
}

TEST_F(MapScrolling, AllArrowAndPageKeysOnTheMapMoveItsBars)
{
    map()->setFocus();
    press(map(), Qt::Key_Left);
    EXPECT_EQ(origin(), QPoint(322, 208));
    press(map(), Qt::Key_Down);
    EXPECT_EQ(origin(), QPoint(322, 198));
    press(map(), Qt::Key_PageDown);
    EXPECT_EQ(origin(), QPoint(322, 188));
    press(map(), Qt::Key_PageUp);
    EXPECT_EQ(origin(), QPoint(322, 198));
    EXPECT_EQ(bar("HScroll1")->value(), 15383);
    EXPECT_EQ(bar("VScroll1")->value(), 17883);
}

TEST_F(MapScrolling, ArrowsToTheSidesMoveTheVerticalBarToo)
{
    press(bar("VScroll1"), Qt::Key_Right);
    EXPECT_EQ(bar("VScroll1")->value(), 17883);
    EXPECT_EQ(origin(), QPoint(312, 198));
    press(bar("VScroll1"), Qt::Key_Left);
    EXPECT_EQ(bar("VScroll1")->value(), 16383);
    EXPECT_EQ(origin(), QPoint(312, 208));
}

TEST_F(MapScrolling, TheWheelTurnedUpMovesTheOriginDown)
{
    turnWheel({0, 120});
    EXPECT_EQ(origin(), QPoint(312, 218));
    EXPECT_LT(bar("VScroll1")->value(), 16383);
}

TEST_F(MapScrolling, SeveralNotchesInOneEventAreOneStep)
{
    turnWheel({0, -360});
    EXPECT_EQ(origin(), QPoint(312, 198));
}

TEST_F(MapScrolling, TheWheelTurnedAsideMovesTheHorizontalBar)
{
    turnWheel({-120, 0});
    EXPECT_EQ(origin(), QPoint(302, 208));
    EXPECT_GT(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(bar("VScroll1")->value(), 16383);
    turnWheel({120, 30});
    EXPECT_EQ(origin(), QPoint(312, 208)) << "more aside than up";
    turnWheel({30, -120});
    EXPECT_EQ(origin(), QPoint(312, 198)) << "more down than aside";
    turnWheel({30, -120}, Qt::ShiftModifier);
    EXPECT_EQ(origin(), QPoint(302, 198));
}

TEST_F(MapScrolling, TheBarsHaveNoMenuOfThePlatform)
{
    for (const char* name : {"HScroll1", "VScroll1"}) {
        bool opened = false;
        QTimer::singleShot(0, [&opened] {
            if (QWidget* popup = QApplication::activePopupWidget()) {
                opened = true;
                popup->close();
            }
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), bar(name)->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(bar(name), &event);
        settle();
        EXPECT_FALSE(opened) << name;
    }
}

TEST_F(MapScrolling, AShipMovesWithTheOrigin)
{
    addDivision(0, "Blue", 1, 1);
    main().redrawMap();
    EXPECT_EQ(pixel(313, 190), QColor(Qt::black));
    EXPECT_EQ(pixel(314, 190), QColor(Qt::blue));
    press(bar("HScroll1"), Qt::Key_Right);
    EXPECT_EQ(pixel(303, 190), QColor(Qt::black));
    EXPECT_EQ(pixel(304, 190), QColor(Qt::blue));
    press(bar("VScroll1"), Qt::Key_Down);
    EXPECT_EQ(pixel(304, 180), QColor(Qt::blue));
    EXPECT_NE(pixel(304, 190), QColor(Qt::blue));
}

TEST_F(MapScrolling, AMaximisedWindowShowsTheShipsAboutItsNewMiddle)
{
    addDivision(0, "Blue", 1, 1);
    main().redrawMap();
    main().showMaximized();
    settle();
    ASSERT_NE(origin(), QPoint(312, 208));
    EXPECT_EQ(pixel(origin().x() + 1, origin().y() - 18), QColor(Qt::black));
    EXPECT_EQ(pixel(origin().x() + 2, origin().y() - 18), QColor(Qt::blue));
}

} // namespace
} // namespace torvane::testing
