#include "windows/map_fixture.h"

namespace torvane::testing {
namespace {

/// A view that was dragged to the end of what the origin can hold.
class FarAway : public MapFixture
{
protected:
    void SetUp() override
    {
        MapFixture::SetUp();
        startPastSplash();
        main().showMaximized();
        settle();
    }
    /// Drags a bar by events of 150 pixels as far as the origin goes.
    void dragFar(MapScrollBar* dragged, const std::int16_t& origin)
    {
        dragged->setSliderDown(true);
        while (origin - 150 >= -32768) {
            dragged->setSliderPosition(dragged->sliderPosition() + 1);
        }
    }
};

TEST_F(FarAway, APointerWithoutAnAnchorIsToldOnceUntilAMoveSucceeds)
{
    dragFar(bar("HScroll1"), state().view.mapOriginX);
    const int last = 32767 + state().view.mapOriginX; // the rightmost pixel with an anchor
    ASSERT_LT(last, map()->width() - 20);
    ASSERT_TRUE(boxes().isEmpty());
    for (int x = last + 1; x < last + 6; ++x) {
        movePointer({x, 100});
        EXPECT_EQ(boxes().size(), 1);
        EXPECT_EQ(state().view.cursorYardsX, 60.0F * static_cast<float>(x)) << "read-outs follow";
    }
    movePointer({last, 100});
    EXPECT_EQ(state().view.anchorX, 32767);
    EXPECT_EQ(boxes().size(), 1);
    movePointer({last + 1, 100});
    movePointer({last + 2, 100});
    EXPECT_EQ(boxes().size(), 2);
}

TEST_F(FarAway, AClickWithoutAnAnchorPlacesNothingAndTheDivisionGoesOnWaiting)
{
    awaitClick();
    dragFar(bar("HScroll1"), state().view.mapOriginX);
    movePointer({map()->width() - 5, 100});
    ASSERT_EQ(boxes().size(), 1);
    clickWithoutMove({map()->width() - 5, 100});
    EXPECT_EQ(boxes().size(), 2);
    EXPECT_EQ(position(0, 0), QStringLiteral("0.000000,0.000000"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FarAway, ABarBeyondTheOriginsEndIsToldOnceAndTheFirstStepBackLeadsBack)
{
    for (const auto& [name, origin] :
         {std::pair("HScroll1", &state().view.mapOriginX), std::pair("VScroll1", &state().view.mapOriginY)}) {
        boxes().clear();
        MapScrollBar* dragged = bar(name);
        dragFar(dragged, *origin);
        const int end = *origin;
        ASSERT_TRUE(boxes().isEmpty());
        const auto dragBy = [dragged](int way) {
            dragged->setSliderPosition(dragged->sliderPosition() + way);
        };
        for (int i = 0; i < 4; ++i) {
            dragBy(1);
        }
        EXPECT_EQ(boxes().size(), 1) << name;
        EXPECT_EQ(*origin, end) << name;
        dragBy(-1);
        EXPECT_EQ(*origin, end + 150) << name;
        dragBy(1);
        EXPECT_EQ(*origin, end) << name;
        dragBy(1);
        dragBy(1);
        EXPECT_EQ(boxes().size(), 2) << name;
        EXPECT_EQ(*origin, end) << name;
    }
}

} // namespace
} // namespace torvane::testing
