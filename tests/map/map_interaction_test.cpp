#include "map/map_interaction.h"

#include "support/expect_error.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

using ::testing::ElementsAre;

constexpr MapColour yellow = 0xFFFF00;
constexpr MapColour white = 0xFFFFFF;

MapToggles after(const char* keys)
{
    MapToggles toggles;
    for (const char* key = keys; *key != '\0'; ++key) {
        applyRingKey(toggles, QString(QLatin1Char(*key)));
    }
    return toggles;
}

TEST(RingKeys, BCAndDShowOneRingInEitherCase)
{
    for (const auto& [key, filter] : {std::pair{"B", "B"}, std::pair{"b", "B"}, std::pair{"C", "C"},
                                      std::pair{"c", "C"}, std::pair{"D", "D"}, std::pair{"d", "D"}}) {
        EXPECT_EQ(after(key).ringFilterOn, -1) << key;
        EXPECT_EQ(after(key).ringFilterKey, QString::fromLatin1(filter)) << key;
    }
}

TEST(RingKeys, FAfterBShowsAllRingsAgain)
{
    for (const char* keys : {"BF", "Bf"}) {
        EXPECT_EQ(after(keys).ringFilterOn, 0) << keys;
        EXPECT_EQ(after(keys).ringFilterKey, QStringLiteral("F")) << keys;
    }
}

TEST(RingKeys, AnyOtherKeyShowsThemTooAndIsForgotten)
{
    for (const char* keys : {"Ba", "DX", "C1", "B ", "B\r", "B\x1b"}) {
        EXPECT_EQ(after(keys).ringFilterOn, 0) << keys;
        EXPECT_EQ(after(keys).ringFilterKey, QString()) << keys;
    }
}

TEST(RingKeys, LeaveTheOtherTogglesAlone)
{
    MapToggles toggles{
        .namesMode = 2, .scaleLabelsOn = 0, .gunRingsOn = 1, .visRingsOn = 1, .radarRingsOn = 1};
    MapToggles expected = toggles;
    expected.ringFilterOn = -1;
    expected.ringFilterKey = QStringLiteral("B");
    applyRingKey(toggles, QStringLiteral("b"));
    EXPECT_EQ(toggles, expected);
}

TEST(Measuring, GoesFromIdleOverTwoPointsBackToIdle)
{
    MeasureTool tool;
    EXPECT_FALSE(tool.isOn());
    EXPECT_EQ(tool.state(), MeasureTool::State::Idle);
    tool.switchOn();
    tool.click(10, 10);
    EXPECT_EQ(tool.state(), MeasureTool::State::FirstPoint);
    tool.click(40, 50);
    EXPECT_EQ(tool.state(), MeasureTool::State::SecondPoint);
    tool.finish(10);
    EXPECT_EQ(tool.state(), MeasureTool::State::Idle);
    EXPECT_TRUE(tool.isOn());
}

TEST(Measuring, AThirdClickBeforeThePointerMovesSetsTheSecondPointAnew)
{
    MeasureTool tool;
    tool.click(0, 0);
    tool.click(30, 40);
    tool.click(60, 80);
    EXPECT_EQ(tool.state(), MeasureTool::State::SecondPoint);
    EXPECT_EQ(tool.yards(10), 1000);
}

TEST(Measuring, SwitchedOffForgetsALineThatWasBegun)
{
    MeasureTool tool;
    tool.switchOn();
    tool.click(10, 10);
    tool.switchOff();
    EXPECT_FALSE(tool.isOn());
    EXPECT_EQ(tool.state(), MeasureTool::State::Idle);
}

TEST(Measuring, MarksItsPointsWithACrossAndALetter)
{
    MeasureTool tool;
    tool.click(10, 20);
    EXPECT_THAT(tool.crossMarks(10, 20),
                ElementsAre(Mark(LineMark{.from = {8, 20}, .to = {12, 20}, .colour = yellow}),
                            Mark(LineMark{.from = {10, 18}, .to = {10, 22}, .colour = yellow}),
                            Mark(TextMark{.at = {10, 20}, .text = QStringLiteral("A"), .colour = yellow})));
    tool.click(50, 60);
    EXPECT_EQ(std::get<TextMark>(tool.crossMarks(50, 60).back()),
              (TextMark{.at = {50, 60}, .text = QStringLiteral("B"), .colour = yellow}));
}

TEST(Measuring, RoundsItsPointsToTheEvenPixelAtATie)
{
    MeasureTool tool;
    tool.click(0.5, 1.5);
    tool.click(0.5, 11.5);
    EXPECT_EQ(std::get<LineMark>(tool.finish(10).back()),
              (LineMark{.from = {0, 2}, .to = {0, 12}, .colour = yellow}));
}

TEST(Measuring, IsAlwaysAMultipleOfTheScale)
{
    MeasureTool tool;
    tool.click(0, 0);
    tool.click(1, 2); // 2.24 pixels
    EXPECT_EQ(tool.yards(60), 120);
    EXPECT_EQ(tool.yardsTo(1.4, 2.4, 60), 180); // the squares 2 and 6: 2.83 pixels
    EXPECT_EQ(tool.yardsTo(2.5, 0, 60), 120);   // the square 6.25 is 6: 2.45 pixels
}

TEST(Measuring, DrawsItsLineAndWritesItsLengthInTheMiddle)
{
    MeasureTool tool;
    tool.click(100, 100);
    tool.click(203, 100);
    // From the end half way back: 203 - 51.5, a tie.
    EXPECT_THAT(
        tool.finish(60),
        ElementsAre(Mark(TextMark{.at = {152, 100}, .text = QStringLiteral("6180 yds."), .colour = white}),
                    Mark(LineMark{.from = {100, 100}, .to = {203, 100}, .colour = yellow})));
}

TEST(Measuring, ALengthBeyondThirtyTwoBitsIsAnOverflow)
{
    MeasureTool tool;
    tool.click(0, 0);
    expectError(RuntimeError::Overflow, [&] { tool.yardsTo(1e9, 0, 960); });
    expectError(RuntimeError::Overflow, [&] { tool.click(3e9, 0); });
}

TEST(Measuring, ShowsThousandsGroupedInBothLanguages)
{
    EXPECT_EQ(distanceText(0), QStringLiteral("0 yds."));
    EXPECT_EQ(distanceText(12345), QStringLiteral("12,345 yds."));
}

} // namespace
} // namespace torvane::testing
