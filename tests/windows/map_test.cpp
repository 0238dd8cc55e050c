#include "windows/map_fixture.h"

#include <QFile>
#include <QImage>
#include <QWheelEvent>

namespace torvane::testing {
namespace {

const QColor daySea(1, 176, 235);

class Map : public MapFixture
{
protected:
    static void wheel(QWidget* over, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event(QPointF(50, 50), over->mapToGlobal(QPointF(50, 50)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(over, &event);
        settle();
    }
    QImage readOut(const char* name) { return control<PictureBox>(main(), QLatin1StringView(name))->image(); }
};

TEST_F(Map, AnEmptyScenarioShowsSeaAndGrid)
{
    startPastSplash();
    EXPECT_EQ(pixel(10, 10), daySea);
    EXPECT_EQ(pixel(42, 10), QColor(128, 128, 128)) << "a grid line of level 5";
    EXPECT_EQ(pixel(291, 10), QColor(Qt::black)) << "every fourth line is dark";
    EXPECT_EQ(pixel(60, 42), QColor(Qt::white)) << "the bar of one cell";
    EXPECT_FALSE(entry("mnuEditShipForceA")->isEnabled());
}

TEST_F(Map, ShowsAShipsHullBowAndPennant)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    main().redrawMap();
    EXPECT_EQ(pixel(312, 209), QColor(Qt::black)) << "the stern";
    EXPECT_EQ(pixel(316, 190), QColor(Qt::blue)) << "the pennant's fill";
    EXPECT_EQ(pixel(313, 186), QColor(Qt::black)) << "its outline";
    EXPECT_EQ(pixel(313, 200), QColor(Qt::black)) << "its staff";
    EXPECT_EQ(pixel(312, 206), QColor(Qt::white)) << "the bow";
}

TEST_F(Map, FillsTheEditShipMenuWithWhatItDraws)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 2);
    addDivision(1, "Red", 6, 10);
    main().redrawMap();
    EXPECT_TRUE(entry("mnuEditShipForceA")->isEnabled());
    EXPECT_TRUE(entry("mnuEditShipADiv1")->isVisible());
    EXPECT_EQ(entry("mnuDiv1Ship2")->text(), QStringLiteral("DD S01"));
    EXPECT_TRUE(entry("mnuDiv1Ship2")->isVisible());
    EXPECT_FALSE(entry("mnuDiv1Ship3")->isVisible());
    EXPECT_TRUE(entry("mnuEditShipBDiv6")->isVisible());
    EXPECT_EQ(entry("mnuDiv6BShip9")->text(), QStringLiteral("DD S18")) << "the tenth ship has no entry";
}

TEST_F(Map, HidesEntriesOfDivisionsOneToFourThatAreGoneAndKeepsFiveAndSix)
{
    startPastSplash();
    addDivision(0, "Blue", 4, 3);
    addDivision(1, "Blue", 5, 3);
    main().redrawMap();
    set(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT", QStringLiteral("0"));
    main().redrawMap();
    EXPECT_FALSE(entry("mnuEditShipForceA")->isEnabled());
    EXPECT_FALSE(entry("mnuEditShipADiv4")->isVisible());
    EXPECT_FALSE(entry("mnuDiv4Ship2")->isVisible());
    EXPECT_TRUE(entry("mnuDiv4Ship1")->isVisible()) << "the first entry is never hidden";
    EXPECT_TRUE(entry("mnuEditShipADiv5")->isVisible());
    EXPECT_TRUE(entry("mnuDiv5Ship3")->isVisible());
}

TEST_F(Map, DrawsNoDivisionsWhereTheScenarioCountsNone)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    set(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT", QString());
    main().redrawMap();
    EXPECT_EQ(pixel(316, 190), daySea);
}

TEST_F(Map, TheViewsExtentIsWidthByHeightInYards)
{
    startPastSplash();
    const QImage before = readOut("Picture2");
    setValue(main().chkDayNight, 0);
    returnFromDialog();
    EXPECT_NE(before, readOut("Picture2")) << "18,750 yds. instead of 37,500 yds.";
    EXPECT_EQ(extentReadOut(state().view, true).x, QStringLiteral("37,500 yds."));
    EXPECT_EQ(extentReadOut(state().view, true).y, QStringLiteral("25,020 yds."));
}

TEST_F(Map, TheCursorsReadOutIsTheSameWhereverTheViewWasScrolledTo)
{
    startPastSplash();
    movePointer({100, 100});
    EXPECT_EQ(cursorReadOut(state().view).x, QStringLiteral("6,000 yds."));
    EXPECT_EQ(cursorReadOut(state().view).y, QStringLiteral("6,000 yds."));
    const QImage shown = readOut("picMapScale1");
    press(bar("HScroll1"), Qt::Key_Right);
    movePointer({101, 100});
    EXPECT_NE(readOut("picMapScale1"), shown);
    movePointer({100, 100});
    EXPECT_EQ(readOut("picMapScale1"), shown);
}

TEST_F(Map, ThePointerGivesTheAnchorFromTheOrigin)
{
    startPastSplash();
    QMouseEvent move(QEvent::MouseMove, QPointF(313.9, 209.2), map()->mapToGlobal(QPointF(313.9, 209.2)),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(map(), &move);
    EXPECT_EQ(state().view.anchorX, 1);
    EXPECT_EQ(state().view.anchorZ, 1);
}

TEST_F(Map, AnArrowOfAScrollBarMovesTheOriginTenPixelsAndThirtyInAMaximisedWindow)
{
    startPastSplash();
    press(bar("HScroll1"), Qt::Key_Right);
    EXPECT_EQ(state().view.mapOriginX, 302);
    press(bar("HScroll1"), Qt::Key_Left);
    EXPECT_EQ(state().view.mapOriginX, 312);
    press(bar("VScroll1"), Qt::Key_Down);
    EXPECT_EQ(state().view.mapOriginY, 198);
    main().showMaximized();
    settle();
    const int middle = state().view.mapOriginX;
    press(bar("HScroll1"), Qt::Key_Right);
    EXPECT_EQ(state().view.mapOriginX, middle - 30);
}

TEST_F(Map, ADragOfTheThumbMovesTheOriginFiftyPixelsAnEventAndEndsWithAChange)
{
    startPastSplash();
    MapScrollBar* horizontal = bar("HScroll1");
    horizontal->setSliderDown(true);
    horizontal->setSliderPosition(17000);
    EXPECT_EQ(state().view.mapOriginX, 262);
    horizontal->setSliderPosition(18000);
    EXPECT_EQ(state().view.mapOriginX, 212);
    horizontal->setSliderDown(false);
    EXPECT_EQ(state().view.mapOriginX, 222) << "its value stayed, which counts as going back";
}

TEST_F(Map, TheWheelMovesTheVerticalBarAndWithShiftTheHorizontalOne)
{
    startPastSplash();
    wheel(map());
    EXPECT_GT(bar("VScroll1")->value(), 16383);
    EXPECT_EQ(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(state().view.mapOriginY, 198);
    wheel(map(), Qt::ShiftModifier);
    EXPECT_GT(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(state().view.mapOriginX, 302);
}

TEST_F(Map, ArrowKeysOnTheMapMoveItsBars)
{
    startPastSplash();
    map()->setFocus();
    press(map(), Qt::Key_Right);
    EXPECT_EQ(state().view.mapOriginX, 302);
    press(map(), Qt::Key_Up);
    EXPECT_EQ(state().view.mapOriginY, 218);
}

TEST_F(Map, ScrollBarsCountStepsFromTheirMiddle)
{
    startPastSplash();
    for (const char* name : {"HScroll1", "VScroll1"}) {
        EXPECT_EQ(bar(name)->minimum(), 0) << name;
        EXPECT_EQ(bar(name)->maximum(), 32767) << name;
        EXPECT_EQ(bar(name)->value(), 16383) << name;
    }
    EXPECT_EQ(bar("HScroll1")->singleStep(), 1000);
    EXPECT_EQ(bar("HScroll1")->pageStep(), 1000);
    EXPECT_EQ(bar("VScroll1")->singleStep(), 1500);
    EXPECT_EQ(bar("VScroll1")->pageStep(), 1500);
}

TEST_F(Map, ReturningFromADialogCentresTheViewAgain)
{
    startPastSplash();
    press(bar("HScroll1"), Qt::Key_Right);
    press(bar("VScroll1"), Qt::Key_Down);
    returnFromDialog();
    EXPECT_EQ(state().view.mapOriginX, 312);
    EXPECT_EQ(state().view.mapOriginY, 208);
    EXPECT_EQ(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(bar("VScroll1")->value(), 16383);
    EXPECT_EQ(state().view.lastHScrollValue, 16383);
}

TEST_F(Map, AMaximisedWindowGivesTheMapItsRoom)
{
    startPastSplash();
    main().showMaximized();
    settle();
    const QSize window = main().frameGeometry().size();
    EXPECT_EQ(map()->geometry(), QRect(0, 48, window.width() - 25, window.height() - 110));
    EXPECT_EQ(state().view.mapWidthPx, window.width() - 25);
    EXPECT_EQ(state().view.mapOriginX, (window.width() - 25) / 2);
    EXPECT_EQ(bar("HScroll1")->width(), map()->width());
    const QSize inner = map()->parentWidget()->size();
    EXPECT_EQ(bar("HScroll1")->pos(), QPoint(0, inner.height() - 18));
    EXPECT_EQ(bar("VScroll1")->pos(), QPoint(inner.width() - 18, 48));
    EXPECT_EQ(bar("VScroll1")->height(), map()->height());
    EXPECT_EQ(control<QWidget>(main(), QStringLiteral("Image1"))->pos(),
              QPoint(inner.width() - 18, inner.height() - 18));
    const QWidget* tag = control<QWidget>(main(), QStringLiteral("hotCenterMap"));
    EXPECT_EQ(tag->pos(),
              QPoint(std::min(inner.width() - 85, inner.width() - 18 - tag->width()), inner.height() - 18))
        << "a longer text gives way to the left";
    main().showNormal();
    settle();
    EXPECT_EQ(map()->geometry(), QRect(0, 48, 625, 417));
    EXPECT_EQ(bar("HScroll1")->pos(), QPoint(0, 464));
    EXPECT_EQ(bar("VScroll1")->pos(), QPoint(624, 48));
    EXPECT_EQ(state().view.mapOriginX, 312);
}

TEST_F(Map, AResizeLeavesTheScrollBarsAndCentresTheView)
{
    startPastSplash();
    press(bar("HScroll1"), Qt::Key_Right);
    main().showMaximized();
    settle();
    EXPECT_EQ(bar("HScroll1")->value(), 17383);
    EXPECT_EQ(state().view.mapOriginX, state().view.mapWidthPx / 2);
    EXPECT_EQ(state().view.anchorX, state().view.mapOriginX);
}

TEST_F(Map, CoveringHidingAndExposingTheWindowDrawNothingAnew)
{
    startPastSplash();
    map()->setForeColor(Qt::magenta);
    map()->line({3, 3}, {9, 3});
    main().repaint();
    main().hide();
    main().show();
    settle();
    EXPECT_EQ(pixel(5, 3), QColor(Qt::magenta));
}

TEST_F(Map, MinimisingTheWindowIsAResizeAsAnyAndDrawsAnew)
{
    startPastSplash();
    press(bar("HScroll1"), Qt::Key_Right);
    map()->setForeColor(Qt::magenta);
    map()->line({3, 3}, {9, 3});
    main().setWindowState(Qt::WindowMinimized);
    settle();
    ASSERT_TRUE(main().isMinimized());
    EXPECT_EQ(pixel(5, 3), daySea);
    EXPECT_EQ(state().view.mapOriginX, 312);
    EXPECT_EQ(state().view.anchorX, 312);
    EXPECT_EQ(map()->geometry(), QRect(0, 48, 625, 417)) << "the layout stays";
}

TEST_F(Map, ABrokenScenarioIsToldOnceAndTheRestOfTheMapStays)
{
    startPastSplash();
    addDivision(0, "Blue", 1, 1);
    addDivision(1, "Blue", 2, 1);
    set(QStringLiteral("DIVISION1"), "FORMATIONHEADING", QStringLiteral("99999"));
    main().redrawMap();
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(boxes().first().text.contains(QStringLiteral("99999"))) << boxes().first().text.toStdString();
    EXPECT_TRUE(entry("mnuEditShipADiv1")->isVisible()) << "the menus as far as they got";
    EXPECT_EQ(pixel(316, 190), QColor(Qt::blue));
    for (int i = 0; i < 3; ++i) {
        press(bar("HScroll1"), Qt::Key_Right);
    }
    EXPECT_EQ(boxes().size(), 1) << "no storm of boxes";
    set(QStringLiteral("DIVISION1"), "FORMATIONHEADING", QStringLiteral("90"));
    main().redrawMap();
    set(QStringLiteral("DIVISION1"), "FORMATIONHEADING", QStringLiteral("99999"));
    main().redrawMap();
    EXPECT_EQ(boxes().size(), 2) << "new again after a redraw without it";
}

TEST_F(Map, TheFocusShowsOnTheMap)
{
    startPastSplash();
    bar("HScroll1")->setFocus();
    const QColor without = map()->grab().toImage().pixelColor(0, 100);
    map()->setFocus();
    settle();
    EXPECT_NE(map()->grab().toImage().pixelColor(0, 100), without);
    EXPECT_EQ(pixel(0, 100), daySea) << "a frame over the picture, not in it";
}

TEST_F(Map, KeysPickRingsOnlyWhileTheMapHasTheFocus)
{
    startPastSplash();
    map()->setFocus();
    press(map(), Qt::Key_B);
    EXPECT_EQ(state().toggles.ringFilterKey, QStringLiteral("B"));
    EXPECT_EQ(state().toggles.ringFilterOn, -1);
    press(bar("HScroll1"), Qt::Key_D);
    EXPECT_EQ(state().toggles.ringFilterKey, QStringLiteral("B"));
    press(map(), Qt::Key_F);
    EXPECT_EQ(state().toggles.ringFilterOn, 0);
}

TEST_F(Map, EscStillLeavesTheProgramFromTheMap)
{
    startPastSplash();
    map()->setFocus();
    press(map(), Qt::Key_Escape);
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_EQ(boxes().first().title, QStringLiteral("Szenario-Editor verlassen"));
}

} // namespace
} // namespace torvane::testing
