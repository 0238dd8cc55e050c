#include "map/map_view.h"

#include "support/expect_error.h"
#include "support/printers.h"

#include <gmock/gmock.h>

#include <array>

namespace torvane::testing {
namespace {

constexpr bool day = true;
constexpr bool night = false;

ReadOut texts(const char* x, const char* y)
{
    return {.x = QString::fromLatin1(x), .y = QString::fromLatin1(y)};
}

TEST(ViewState, StartsAtLevelFiveWithTheSmallGridAndTheOriginInTheMiddle)
{
    const ViewState view;
    EXPECT_EQ(view.zoomIndex, 4);
    EXPECT_EQ(view.gridIndex, 3);
    EXPECT_EQ(view.mapScale, 0.0F);
    EXPECT_EQ(view.mapWidthPx, 625);
    EXPECT_EQ(view.mapHeightPx, 417);
    EXPECT_EQ(view.mapOriginX, 312);
    EXPECT_EQ(view.mapOriginY, 208);
    EXPECT_EQ(view.lastHScrollValue, 16383);
    EXPECT_EQ(view.lastVScrollValue, 16383);
    EXPECT_EQ(view.anchorX, 312);
    EXPECT_EQ(view.anchorZ, 208);
    EXPECT_EQ(view.cursorYardsX, 0.0F);
    EXPECT_EQ(view.cursorYardsY, 0.0F);
}

TEST(Transforms, AddTheOriginToTheRoundedPixels)
{
    ViewState view{.mapScale = 60, .mapOriginX = 312, .mapOriginY = 208};
    EXPECT_EQ(toScreen({0, 0}, view), (PixelPoint{312, 208}));
    EXPECT_EQ(toScreen({1000, -2000}, view), (PixelPoint{312 + 17, 208 - 33}));
    view.mapOriginX = -40;
    view.mapOriginY = 1000;
    EXPECT_EQ(toScreen({90, 150}, view), (PixelPoint{-40 + 2, 1000 + 2})) << "1.5 and 2.5 pixels";
}

TEST(Transforms, TakeThePixelOfThePointBackToYards)
{
    const ViewState view{.mapScale = 60, .mapOriginX = 312, .mapOriginY = 208};
    EXPECT_EQ(toWorld({312, 208}, view), (Yards{0, 0}));
    EXPECT_EQ(toWorld({412, 8}, view), (Yards{6000, -12000}));
    EXPECT_EQ(toScreen(toWorld({17, 401}, view), view), (PixelPoint{17, 401}));
}

TEST(Transforms, OverflowBeyondThirtyTwoBits)
{
    const ViewState view{.mapScale = 1, .mapOriginX = 1, .mapOriginY = -2};
    EXPECT_EQ(toScreen({2147483646, -2147483646}, view).x, 2147483647);
    expectError(RuntimeError::Overflow, [&] { toScreen({2147483647, 0}, view); });
    expectError(RuntimeError::Overflow, [&] { toScreen({0, -2147483647}, view); });
    expectError(RuntimeError::Overflow, [&] { toWorld({0, 2147483647}, view); });
    expectError(RuntimeError::Overflow, [&] { toScreen({0, 0}, ViewState{}); });
}

TEST(AnchorFromPosition, DividesByTheScaleAndRoundsTiesToEven)
{
    ViewState view{.zoomIndex = 11, .mapScale = 777, .cursorYardsX = 25, .cursorYardsY = -35};
    anchorFromPosition(view, day);
    EXPECT_EQ(view.mapScale, 10.0F);
    EXPECT_EQ(view.anchorX, 2);
    EXPECT_EQ(view.anchorZ, -4);
    anchorFromPosition(view, night);
    EXPECT_EQ(view.mapScale, 5.0F);
    EXPECT_EQ(view.anchorX, 5);
    EXPECT_EQ(view.anchorZ, -7);
    view.cursorYardsX = 12.5F;
    view.cursorYardsY = 17.5F;
    anchorFromPosition(view, night);
    EXPECT_EQ(view.anchorX, 2);
    EXPECT_EQ(view.anchorZ, 4);
}

TEST(AnchorFromPosition, BeyondSixteenBitsOverflows)
{
    ViewState view{.zoomIndex = 11, .cursorYardsX = 327670, .cursorYardsY = -327680};
    anchorFromPosition(view, day);
    EXPECT_EQ(view.anchorX, 32767);
    EXPECT_EQ(view.anchorZ, -32768);
    view.cursorYardsX = 327680;
    expectError(RuntimeError::Overflow, [&] { anchorFromPosition(view, day); });
    view.cursorYardsX = 0;
    view.cursorYardsY = -327690;
    expectError(RuntimeError::Overflow, [&] { anchorFromPosition(view, day); });
}

TEST(AnchorFromPosition, AtAnUnknownZoomLevelIsASubscriptFailure)
{
    ViewState view{.zoomIndex = 12};
    expectError(RuntimeError::SubscriptOutOfRange, [&] { anchorFromPosition(view, day); });
    expectError(RuntimeError::SubscriptOutOfRange, [&] { readCursor(view, 1, 1, day); });
    expectError(RuntimeError::SubscriptOutOfRange, [&] { extentReadOut(view, day); });
}

TEST(AnchorFromPointer, DropsTheFractionOfThePixel)
{
    ViewState view{.mapOriginX = 312, .mapOriginY = 208};
    anchorFromPointer(view, 313.9, 209.2);
    EXPECT_EQ(view.anchorX, 1);
    EXPECT_EQ(view.anchorZ, 1);
    anchorFromPointer(view, -0.5, 209.9);
    EXPECT_EQ(view.anchorX, -313);
    EXPECT_EQ(view.anchorZ, 1);
}

TEST(AnchorFromPointer, BeyondSixteenBitsOverflows)
{
    ViewState view{.mapOriginX = -32768, .mapOriginY = 32767};
    anchorFromPointer(view, -1, -1);
    EXPECT_EQ(view.anchorX, 32767);
    EXPECT_EQ(view.anchorZ, -32768);
    expectError(RuntimeError::Overflow, [&] { anchorFromPointer(view, 0, 0); });
    expectError(RuntimeError::Overflow, [&] { anchorFromPointer(view, -1, -2); });
}

TEST(CursorReadOut, ShowsSixThousandYardsAtAHundredWhereverTheViewIs)
{
    for (const std::int16_t origin : std::array<std::int16_t, 3>{0, 312, -5000}) {
        ViewState view{.zoomIndex = 4, .mapOriginX = origin, .mapOriginY = origin};
        readCursor(view, 100, 100, day);
        EXPECT_EQ(view.mapScale, 60.0F);
        EXPECT_EQ(view.cursorYardsX, 6000.0F);
        EXPECT_EQ(cursorReadOut(view), texts("6,000 yds.", "6,000 yds."));
    }
}

TEST(CursorReadOut, HasTheSameUnitAtNightAndNoGroupsBelowAThousand)
{
    ViewState view{.zoomIndex = 4};
    readCursor(view, 33, 624, night);
    EXPECT_EQ(view.mapScale, 30.0F);
    EXPECT_EQ(cursorReadOut(view), texts("990 yds.", "18,720 yds."));
    readCursor(view, 0, -34, night);
    EXPECT_EQ(cursorReadOut(view), texts("0 yds.", "-1,020 yds."));
}

TEST(CursorReadOut, TakesTheRawPositionOfThePointer)
{
    ViewState view{.zoomIndex = 11};
    readCursor(view, 10.25, 10.75, day);
    EXPECT_EQ(view.cursorYardsX, 102.5F);
    EXPECT_EQ(view.cursorYardsY, 107.5F);
    EXPECT_EQ(cursorReadOut(view), texts("102 yds.", "108 yds."));
}

TEST(CursorReadOut, HoldsSevenDigits)
{
    ViewState view{.zoomIndex = 10};
    readCursor(view, 20000.3, 1234.567, day);
    EXPECT_EQ(view.cursorYardsX, 19200290.0F) << "19200288 in seven digits";
    EXPECT_EQ(view.cursorYardsY, 1185184.0F) << "1185184.32 in seven digits";
    EXPECT_EQ(cursorReadOut(view), texts("19,200,290 yds.", "1,185,184 yds."));
}

TEST(ExtentReadOut, IsTheSizeOfTheViewTimesTheScaleOfTheTable)
{
    ViewState view{.zoomIndex = 4, .mapScale = 777, .mapWidthPx = 625, .mapHeightPx = 417};
    EXPECT_EQ(extentReadOut(view, day), texts("37,500 yds.", "25,020 yds."));
    EXPECT_EQ(extentReadOut(view, night), texts("18,750 yds.", "12,510 yds."));
    EXPECT_EQ(extentReadOut(view, day, metresUnit), texts("37,500 mts.", "25,020 mts."));
    view.zoomIndex = 10;
    EXPECT_EQ(extentReadOut(view, day), texts("600,000 yds.", "400,320 yds."));
    EXPECT_EQ(view.mapScale, 777.0F) << "reads the table, not the view's scale";
}

TEST(ExtentReadOut, BeyondThirtyTwoBitsOverflows)
{
    ViewState view{.zoomIndex = 10, .mapWidthPx = 2236962, .mapHeightPx = 1};
    EXPECT_EQ(extentReadOut(view, day), texts("2,147,483,520 yds.", "960 yds."));
    view.mapWidthPx = 2236963;
    expectError(RuntimeError::Overflow, [&] { extentReadOut(view, day); });
}

TEST(ScrollStep, HasItsValueInEveryCell)
{
    EXPECT_EQ(scrollStep(ScrollEvent::Change, WindowState::Normal), 10);
    EXPECT_EQ(scrollStep(ScrollEvent::Change, WindowState::Maximised), 30);
    EXPECT_EQ(scrollStep(ScrollEvent::Change, WindowState::Minimised), 0);
    EXPECT_EQ(scrollStep(ScrollEvent::Scroll, WindowState::Normal), 50);
    EXPECT_EQ(scrollStep(ScrollEvent::Scroll, WindowState::Maximised), 150);
    EXPECT_EQ(scrollStep(ScrollEvent::Scroll, WindowState::Minimised), 0);
}

TEST(ScrollBars, GoFromNoughtTo32767InStepsOfTheirOwn)
{
    EXPECT_EQ(scrollMaximum, 32767);
    EXPECT_EQ(hScrollChange, 1000);
    EXPECT_EQ(vScrollChange, 1500);
}

TEST(Scrolling, TheRightArrowMovesTheOriginTenPixelsLeftAndThirtyInAMaximisedWindow)
{
    ViewState view;
    scrollHorizontally(view, 17383, ScrollEvent::Change, WindowState::Normal);
    EXPECT_EQ(view.mapOriginX, 302);
    EXPECT_EQ(view.lastHScrollValue, 17383);
    scrollHorizontally(view, 18383, ScrollEvent::Change, WindowState::Maximised);
    EXPECT_EQ(view.mapOriginX, 272);
    EXPECT_EQ(view.mapOriginY, 208);
    EXPECT_EQ(view.lastVScrollValue, 16383);
}

TEST(Scrolling, ASmallerValueMovesTheOriginTheOtherWayWhateverTheDifference)
{
    ViewState view;
    scrollVertically(view, 0, ScrollEvent::Scroll, WindowState::Normal);
    EXPECT_EQ(view.mapOriginY, 258);
    EXPECT_EQ(view.lastVScrollValue, 0);
    scrollVertically(view, 1, ScrollEvent::Scroll, WindowState::Normal);
    EXPECT_EQ(view.mapOriginY, 208);
    scrollVertically(view, 32767, ScrollEvent::Change, WindowState::Normal);
    EXPECT_EQ(view.mapOriginY, 198);
    EXPECT_EQ(view.mapOriginX, 312);
    EXPECT_EQ(view.lastHScrollValue, 16383);
}

TEST(Scrolling, AnUnchangedValueCountsAsOneThatGoesBack)
{
    ViewState view;
    scrollHorizontally(view, 16383, ScrollEvent::Change, WindowState::Normal);
    scrollVertically(view, 16383, ScrollEvent::Scroll, WindowState::Maximised);
    EXPECT_EQ(view.mapOriginX, 322);
    EXPECT_EQ(view.mapOriginY, 358);
}

TEST(Scrolling, InAMinimisedWindowTheOriginStaysAndTheValueIsKept)
{
    ViewState view;
    scrollHorizontally(view, 20000, ScrollEvent::Change, WindowState::Minimised);
    scrollVertically(view, 100, ScrollEvent::Scroll, WindowState::Minimised);
    EXPECT_EQ(view, (ViewState{.lastHScrollValue = 20000, .lastVScrollValue = 100}));
}

TEST(Scrolling, AnOriginBeyondSixteenBitsOverflowsAndChangesNothing)
{
    ViewState view{.mapOriginX = -32758, .mapOriginY = 32757};
    scrollHorizontally(view, 17383, ScrollEvent::Change, WindowState::Normal);
    scrollVertically(view, 15000, ScrollEvent::Change, WindowState::Normal);
    EXPECT_EQ(view.mapOriginX, -32768);
    EXPECT_EQ(view.mapOriginY, 32767);
    const ViewState before = view;
    expectError(RuntimeError::Overflow,
                [&] { scrollHorizontally(view, 18383, ScrollEvent::Change, WindowState::Normal); });
    expectError(RuntimeError::Overflow,
                [&] { scrollVertically(view, 14000, ScrollEvent::Change, WindowState::Normal); });
    EXPECT_EQ(view, before);
}

TEST(Centring, TheMiddleOfABarIsTheLowerHalf)
{
    EXPECT_EQ(scrollMiddle(scrollMaximum), 16383);
    EXPECT_EQ(scrollMiddle(100), 50);
    EXPECT_EQ(scrollMiddle(0), 0);
}

TEST(Centring, PutsWorldNoughtIntoTheMiddleOfTheViewAndTouchesNothingElse)
{
    ViewState view{.mapWidthPx = 1001, .mapHeightPx = 800, .mapOriginX = -7, .mapOriginY = 9};
    centreOrigin(view);
    EXPECT_EQ(view,
              (ViewState{.mapWidthPx = 1001, .mapHeightPx = 800, .mapOriginX = 500, .mapOriginY = 400}));
}

TEST(Centring, OverwritesTheStepOfTheBarsChange)
{
    ViewState view;
    scrollHorizontally(view, 30000, ScrollEvent::Scroll, WindowState::Normal);
    scrollHorizontally(view, scrollMiddle(scrollMaximum), ScrollEvent::Change, WindowState::Normal);
    centreOrigin(view);
    EXPECT_EQ(view, ViewState{});
}

TEST(Centring, AViewTooWideForTheOriginOverflows)
{
    ViewState view{.mapWidthPx = 65535, .mapHeightPx = 1};
    centreOrigin(view);
    EXPECT_EQ(view.mapOriginX, 32767);
    EXPECT_EQ(view.mapOriginY, 0);
    view.mapWidthPx = 65536;
    expectError(RuntimeError::Overflow, [&] { centreOrigin(view); });
}

TEST(MapSize, IsRoundedToWholePixelsTiesToEven)
{
    ViewState view;
    setMapSize(view, 800.5, 601.5);
    EXPECT_EQ(view.mapWidthPx, 800);
    EXPECT_EQ(view.mapHeightPx, 602);
    EXPECT_EQ(view.mapOriginX, 312) << "follows when it is centred";
}

TEST(MapSize, AResizeEndsWithTheAnchorAtTheOrigin)
{
    ViewState view{.anchorX = 5, .anchorZ = 6};
    setMapSize(view, 1000, 700);
    centreOrigin(view);
    anchorAtOrigin(view);
    EXPECT_EQ(view, (ViewState{.mapWidthPx = 1000,
                               .mapHeightPx = 700,
                               .mapOriginX = 500,
                               .mapOriginY = 350,
                               .anchorX = 500,
                               .anchorZ = 350}));
    EXPECT_EQ(view.anchor(), (PixelOffset{500, 350}));
}

TEST(MapLayout, OfANormalWindowIsFixed)
{
    const MapLayout normal = mapLayout(WindowState::Normal, {1, 2}, {3, 4}).value();
    EXPECT_EQ(normal.mapWidth, 625);
    EXPECT_EQ(normal.mapHeight, 417);
    EXPECT_EQ(normal.hScrollWidth, 625);
    EXPECT_EQ(normal.vScrollHeight, 417);
    EXPECT_EQ(normal.vScrollLeft, 624);
    EXPECT_EQ(normal.hScrollTop, 464);
    EXPECT_EQ(normal.hotCenterMapLeft, 560);
    EXPECT_EQ(normal.hotCenterMapTop, 464);
    EXPECT_EQ(MapLayout::mapLeft, 0);
    EXPECT_EQ(MapLayout::mapTop, 48);
}

TEST(MapLayout, OfAMaximisedWindowFollowsItsSize)
{
    const MapLayout large = mapLayout(WindowState::Maximised, {1928, 1038}, {1920, 1000}).value();
    EXPECT_EQ(large.mapWidth, 1903);
    EXPECT_EQ(large.mapHeight, 928);
    EXPECT_EQ(large.hScrollWidth, 1903);
    EXPECT_EQ(large.vScrollHeight, 928);
    EXPECT_EQ(large.vScrollLeft, 1902);
    EXPECT_EQ(large.hScrollTop, 982);
    EXPECT_EQ(large.hotCenterMapLeft, 1835);
    EXPECT_EQ(large.hotCenterMapTop, 982);
}

TEST(MapLayout, OfAMinimisedWindowIsItsOldOne)
{
    EXPECT_EQ(mapLayout(WindowState::Minimised, {160, 28}, {152, 0}), std::nullopt);
}

} // namespace
} // namespace torvane::testing
