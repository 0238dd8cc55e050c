#include "platform/number_text_fixture.h"

#include <limits>
#include <utility>
#include <vector>

namespace torvane::testing {
namespace {

TEST(RoundEven, TiesGoToTheEvenNeighbour)
{
    const std::vector<std::pair<double, double>> cases{
        {0.5, 0},   {1.5, 2}, {2.5, 2}, {3.5, 4},   {-0.5, 0},  {-1.5, -2},
        {-2.5, -2}, {2.4, 2}, {2.6, 3}, {-2.6, -3}, {-2.4, -2}, {0.49999999999999994, 0}};
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(roundEven(value), rounded) << value;
    }
}

TEST(RoundEven, LargeNumbersStayAsTheyAre)
{
    EXPECT_EQ(roundEven(1e300), 1e300);
    EXPECT_EQ(roundEven(-infinity), -infinity);
}

TEST(FloorOf, GoesDownAlsoBelowZero)
{
    EXPECT_EQ(floorOf(2.9), 2.0);
    EXPECT_EQ(floorOf(-2.1), -3.0);
    EXPECT_EQ(floorOf(-2.0), -2.0);
    EXPECT_EQ(floorOf(1e300), 1e300);
}

TEST(ToInt16, RoundsTiesToEven)
{
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt16(3.5), 4);
    EXPECT_EQ(toInt16(-2.5), -2);
}

TEST(ToInt16, TakesWhatRoundsIntoItsRange)
{
    EXPECT_EQ(toInt16(-32768.5), -32768);
    EXPECT_EQ(toInt16(32767.49), 32767);
}

TEST(ToInt16, OverflowsBeyondItsRangeAndNamesTheValue)
{
    expectOverflowNaming([] { return toInt16(32767.5); }, "32767.5");
    expectOverflowNaming([] { return toInt16(-32768.51); }, "-32768.51");
    expectOverflowNaming([] { return toInt16(1e300); }, "1E+300");
}

TEST(ToInt16, WhatIsNoNumberOverflows)
{
    expectOverflowNaming([] { return toInt16(notANumber); }, "NaN");
    expectOverflowNaming([] { return toInt16(infinity); }, "Infinity");
    expectOverflowNaming([] { return toInt16(-infinity); }, "-Infinity");
}

TEST(ToInt32, RoundsTiesToEven)
{
    EXPECT_EQ(toInt32(70000.5), 70000);
    EXPECT_EQ(toInt32(70001.5), 70002);
}

TEST(ToInt32, TakesWhatRoundsIntoItsRange)
{
    EXPECT_EQ(toInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(toInt32(2147483647.25), std::numeric_limits<std::int32_t>::max());
}

TEST(ToInt32, OverflowsBeyondItsRangeAndNamesTheValue)
{
    expectOverflowNaming([] { return toInt32(2147483647.5); }, "2147483647.5");
    expectOverflowNaming([] { return toInt32(-2147483649.0); }, "-2147483649");
    expectOverflowNaming([] { return toInt32(notANumber); }, "NaN");
    expectOverflowNaming([] { return toInt32(infinity); }, "Infinity");
}

} // namespace
} // namespace torvane::testing
