#include "map/plotting_fixture.h"

namespace torvane::testing {
namespace {

using ::testing::ElementsAre;

constexpr MapColour red = 0xFF0000;

MapState stateAt(float scale)
{
    MapState state;
    state.view.mapScale = scale;
    state.target.inUse = true;
    state.target.placed = true;
    return state;
}

MarkList marksFor(MapState& state)
{
    MarkList marks;
    appendTargetArea(state, marks);
    return marks;
}

// 9,260 metres are 10,127 yards: 169 pixels across at 60 yards a pixel, half of which ties to 84.
TEST(TargetAreaMarks, AreACircleAndItsTwoDiagonals)
{
    MapState state = stateAt(60);
    state.target.area.x = 600;
    state.target.area.z = -1200;
    EXPECT_THAT(marksFor(state),
                ElementsAre(Mark(CircleMark{.centre = {322, 188}, .radius = 84, .colour = red}),
                            Mark(LineMark{.from = {238, 104}, .to = {406, 272}, .colour = red}),
                            Mark(LineMark{.from = {406, 104}, .to = {238, 272}, .colour = red})));
}

TEST(TargetAreaMarks, FollowTheSizeOfTheArea)
{
    MapState state = stateAt(10);
    EXPECT_EQ(std::get<CircleMark>(marksFor(state).front()).radius, 506); // 10,127 yards: 1013 pixels
    state.target.area.dim = 0;
    EXPECT_EQ(std::get<CircleMark>(marksFor(state).front()).radius, 0);
}

// 10,127 yards are 42.2 and 337.6 pixels.
TEST(TargetAreaMarks, RoundTheSizeInYardsInPixelsAndItsHalf)
{
    MapState state = stateAt(240);
    EXPECT_EQ(std::get<CircleMark>(marksFor(state).front()).radius, 21);
    state.view.mapScale = 30;
    EXPECT_EQ(std::get<CircleMark>(marksFor(state).front()).radius, 169);
    state.view.mapScale = 10;
    state.target.area.dim = 1563; // 1,709 yards: 171 pixels, half of which ties to 86
    EXPECT_EQ(std::get<CircleMark>(marksFor(state).front()).radius, 86);
    state.target.area.dim = 1623; // 1774.9 yards are 1,775: 177.5 pixels tie to 178
    EXPECT_EQ(std::get<CircleMark>(marksFor(state).front()).radius, 89);
}

TEST(TargetAreaMarks, BeyondThirtyTwoBitsAreToldByTheAreaWhateverTheScale)
{
    for (const float scale : {10.0F, 240.0F}) {
        MapState state = stateAt(scale);
        state.target.area.x = 2147483647; // the middle of its pixel lies beyond
        expectError(RuntimeError::Overflow, [&] { marksFor(state); });
        try {
            marksFor(state);
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.text(),
                      QStringLiteral("Overflow: target area at 2147483647 X 0 is out of range."));
        }
    }
}

TEST(TargetAreaMarks, OfAnArmedAreaStandAtTheAnchorInPixelsOfTheView)
{
    MapState state = stateAt(60);
    state.target.armed = true;
    state.target.area.x = 6000;
    state.view.anchorX = 412;
    state.view.anchorZ = 8;
    EXPECT_EQ(std::get<CircleMark>(marksFor(state).front()).centre, (PixelPoint{412, 8}));
    EXPECT_EQ(state.target.area.x, 6000) << "a hundred pixels from the origin";
    EXPECT_EQ(state.target.area.z, -12000);
}

TEST(TargetAreaMarks, SnapTheStoredCentreToThePixelsOfTheLevelShown)
{
    MapState state = stateAt(10);
    state.target.area.x = 1230;
    state.target.area.z = -770;
    marksFor(state);
    EXPECT_EQ(state.target.area.x, 1230);
    state.view.mapScale = 240; // 5.125 and -3.2 pixels
    marksFor(state);
    EXPECT_EQ(state.target.area.x, 1200);
    EXPECT_EQ(state.target.area.z, -720);
    state.view.mapScale = 10;
    marksFor(state);
    EXPECT_EQ(state.target.area.x, 1200) << "what a coarse level took is gone";
}

TEST(TargetAreaMarks, MoveWithTheOrigin)
{
    MapState state = stateAt(60);
    state.view.mapOriginX = 0;
    state.view.mapOriginY = -50;
    EXPECT_EQ(std::get<CircleMark>(marksFor(state).front()).centre, (PixelPoint{0, -50}));
    EXPECT_EQ(state.target.area, TargetArea{});
}

TEST(TargetAreaMarks, WithoutAScaleAreAnOverflow)
{
    MapState state = stateAt(0);
    expectError(RuntimeError::Overflow, [&] { marksFor(state); });
}

} // namespace
} // namespace torvane::testing
