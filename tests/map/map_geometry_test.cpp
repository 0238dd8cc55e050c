#include "map/map_geometry.h"

#include "support/expect_error.h"
#include "support/printers.h"

#include <gmock/gmock.h>

#include <limits>

namespace torvane::testing {
namespace {

constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();

constexpr bool day = true;
constexpr bool night = false;

TEST(ZoomLevels, StandInTheOrderOfTheirCaptions)
{
    constexpr std::array<const char*, 11> options{
        "optZoomLevel0", "optZoomLevel8", "optZoomLevel7", "optZoomLevel6", "optZoomLevel5", "optZoomLevel4",
        "optZoomLevel3", "optZoomLevel2", "optZoomLevel1", "optZoomLevel9", "optZoomLevel10"};
    constexpr std::array<int, 11> indices{11, 8, 7, 6, 5, 4, 3, 2, 1, 9, 10};
    for (std::size_t level = 0; level < zoomLevels.size(); ++level) {
        EXPECT_EQ(QString::fromLatin1(zoomLevels[level].english), QStringLiteral("Level %1").arg(level));
        EXPECT_EQ(QString::fromLatin1(zoomLevels[level].german), QStringLiteral("Ebene %1").arg(level));
        EXPECT_STREQ(zoomLevels[level].option, options[level]);
        EXPECT_EQ(zoomLevels[level].zoomIndex, indices[level]) << level;
    }
}

TEST(ZoomLevels, EachButtonMeansItsIndex)
{
    EXPECT_EQ(zoomIndexOf(u"optZoomLevel0"), 11);
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(zoomIndexOf(QStringLiteral("optZoomLevel%1").arg(i)), i);
    }
    EXPECT_EQ(zoomIndexOf(u"optZoomLevel11"), std::nullopt);
    EXPECT_EQ(zoomIndexOf(u"optLevel1"), std::nullopt);
}

TEST(GridLevels, EachButtonMeansItsIndex)
{
    EXPECT_EQ(gridIndexOf(u"optOff"), 0);
    EXPECT_EQ(gridIndexOf(u"optLevel1"), 1);
    EXPECT_EQ(gridIndexOf(u"optLevel2"), 2);
    EXPECT_EQ(gridIndexOf(u"optLevel3"), 3);
    EXPECT_EQ(gridIndexOf(u"optLevel4"), std::nullopt);
}

TEST(Options, EachIndexHasItsButton)
{
    EXPECT_EQ(zoomOption(11), QLatin1StringView("optZoomLevel0"));
    for (int i = 1; i <= 10; ++i) {
        EXPECT_EQ(zoomOption(i), QStringLiteral("optZoomLevel%1").arg(i));
    }
    EXPECT_EQ(gridOption(0), QLatin1StringView("optOff"));
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(gridOption(i), QStringLiteral("optLevel%1").arg(i));
    }
    for (const int beyond : {-1, 12}) {
        expectError(RuntimeError::SubscriptOutOfRange, [=] { zoomOption(beyond); });
        expectError(RuntimeError::SubscriptOutOfRange, [=] { gridOption(beyond); });
    }
    expectError(RuntimeError::SubscriptOutOfRange, [] { zoomOption(0); });
    expectError(RuntimeError::SubscriptOutOfRange, [] { gridOption(4); });
}

TEST(MapScale, HasItsValueInEveryCell)
{
    constexpr std::array<int, 11> dayByIndex{240, 120, 80, 60, 50, 40, 30, 20, 480, 960, 10};
    constexpr std::array<int, 11> nightByIndex{120, 60, 40, 30, 25, 20, 15, 10, 240, 480, 5};
    for (int index = 1; index <= 11; ++index) {
        EXPECT_EQ(mapScale(index, day), dayByIndex[static_cast<std::size_t>(index - 1)]) << index;
        EXPECT_EQ(mapScale(index, night), nightByIndex[static_cast<std::size_t>(index - 1)]) << index;
    }
}

TEST(MapScale, AtLevelNoughtAPixelIsTenYardsByDayAndFiveByNight)
{
    const std::int16_t index = zoomIndexOf(u"optZoomLevel0").value();
    EXPECT_EQ(mapScale(index, day), 10);
    EXPECT_EQ(mapScale(index, night), 5);
}

TEST(MapScale, OutsideOneToElevenIsASubscriptFailure)
{
    for (const int index : {-1, 0, 12, 100}) {
        expectError(RuntimeError::SubscriptOutOfRange, [&] { mapScale(index, day); });
        expectError(RuntimeError::SubscriptOutOfRange, [&] { mapScale(index, night); });
        expectError(RuntimeError::SubscriptOutOfRange, [&] { gridSpacing(1, index, day); });
    }
}

TEST(GridSpacing, HasItsValueInEveryCell)
{
    struct Row
    {
        int zoomIndex;
        std::array<int, 3> day;
        std::array<int, 3> night;
    };
    const Row rows[] = {
        {1, {20000, 15000, 10000}, {10000, 7500, 5000}},  {2, {20000, 15000, 10000}, {10000, 7500, 5000}},
        {3, {15000, 10000, 5000}, {7500, 5000, 2500}},    {4, {15000, 10000, 5000}, {7500, 5000, 2500}},
        {5, {10000, 5000, 2500}, {5000, 2500, 1000}},     {6, {10000, 5000, 2500}, {5000, 2500, 1000}},
        {7, {7500, 5000, 2500}, {5000, 2500, 1000}},      {8, {5000, 2500, 1000}, {2500, 1000, 500}},
        {9, {25000, 20000, 15000}, {15000, 10000, 7500}}, {10, {25000, 20000, 15000}, {15000, 10000, 7500}},
        {11, {2500, 1000, 500}, {1000, 500, 250}}};
    for (const Row& row : rows) {
        for (int size = 1; size <= 3; ++size) {
            const auto column = static_cast<std::size_t>(size - 1);
            EXPECT_EQ(gridSpacing(size, row.zoomIndex, day), row.day[column]) << row.zoomIndex << ' ' << size;
            EXPECT_EQ(gridSpacing(size, row.zoomIndex, night), row.night[column])
                << row.zoomIndex << ' ' << size;
        }
    }
}

TEST(GridSpacing, OfNoGridOrAnUnknownSizeIsASubscriptFailure)
{
    for (const int size : {-1, 0, 4}) {
        expectError(RuntimeError::SubscriptOutOfRange, [&] { gridSpacing(size, 4, day); });
    }
}

/// The platform's colour value: blue, green, red from the highest byte down.
std::uint32_t storedColour(std::uint32_t rgb)
{
    return ((rgb & 0xFFU) << 16U) | (rgb & 0xFF00U) | (rgb >> 16U);
}

TEST(SeaColour, IsBrightBlueByDayAndNavyByNight)
{
    EXPECT_EQ(seaColour(day), (1U << 16U) + (176U << 8U) + 235U);
    EXPECT_EQ(seaColour(night), 128U);
    EXPECT_EQ(storedColour(seaColour(day)), 15446017U);
    EXPECT_EQ(storedColour(seaColour(night)), 8388608U);
}

TEST(PositionOf, RoundsTiesToTheEvenNeighbour)
{
    EXPECT_EQ(positionOf(u"2.5", u"3.5"), (Yards{2, 4}));
    EXPECT_EQ(positionOf(u"-2.5", u"-3.5"), (Yards{-2, -4}));
    EXPECT_EQ(positionOf(u"2.51", u"-2.51"), (Yards{3, -3}));
    EXPECT_EQ(positionOf(u"0.000000", u"12000"), (Yards{0, 12000}));
}

TEST(PositionOf, AMissingKeyCountsAsNought)
{
    EXPECT_EQ(positionOf(u"INVALID", u"700"), (Yards{0, 700}));
}

TEST(PositionOf, BeyondThirtyTwoBitsOverflows)
{
    EXPECT_EQ(positionOf(u"2147483647", u"-2147483648"), (Yards{largest, smallest}));
    expectError(RuntimeError::Overflow, [] { positionOf(u"2147483648", u"0"); });
    expectError(RuntimeError::Overflow, [] { positionOf(u"0", u"-2147483649"); });
}

TEST(OffsetOf, RoundsTiesToTheEvenNeighbour)
{
    EXPECT_EQ(offsetOf({5, 15}, 10), (PixelOffset{0, 2}));
    EXPECT_EQ(offsetOf({25, 35}, 10), (PixelOffset{2, 4}));
    EXPECT_EQ(offsetOf({-5, -15}, 10), (PixelOffset{0, -2}));
    EXPECT_EQ(offsetOf({26, -26}, 10), (PixelOffset{3, -3}));
    EXPECT_EQ(offsetOf({1000, -2000}, 60), (PixelOffset{17, -33}));
}

TEST(OffsetOf, CountsEveryYardOfAFarPosition)
{
    // Half a pixel less one yard, where a single would no longer tell the yards apart.
    EXPECT_EQ(offsetOf({240 * 200001 + 119, 240 * 200001 + 121}, 240), (PixelOffset{200001, 200002}));
    EXPECT_EQ(offsetOf({largest, smallest}, 5), (PixelOffset{429496729, -429496730}));
}

TEST(OffsetOf, AtScaleNoughtOverflows)
{
    expectError(RuntimeError::Overflow, [] { offsetOf({1, 0}, 0); });
    expectError(RuntimeError::Overflow, [] { offsetOf({0, 0}, 0); });
}

TEST(FlooredOffsetOf, GoesDownOnBothSidesOfNought)
{
    EXPECT_EQ(flooredOffsetOf({19, -1}, 10), (PixelOffset{1, -1}));
    EXPECT_EQ(flooredOffsetOf({20, -20}, 10), (PixelOffset{2, -2}));
    EXPECT_EQ(flooredOffsetOf({9, -21}, 10), (PixelOffset{0, -3}));
}

TEST(PositionAt, MultipliesAndRounds)
{
    EXPECT_EQ(positionAt({100, -200}, 60), (Yards{6000, -12000}));
    EXPECT_EQ(positionAt({5, 7}, 0.5F), (Yards{2, 4}));
    EXPECT_EQ(positionAt({-5, -7}, 0.5F), (Yards{-2, -4}));
    EXPECT_EQ(positionAt({3, 4}, 0), (Yards{0, 0}));
}

TEST(PositionAt, KeepsEveryYardOfAFarPoint)
{
    EXPECT_EQ(positionAt({100000001, -100000001}, 15), (Yards{1500000015, -1500000015}));
}

TEST(PositionAt, BeyondThirtyTwoBitsOverflows)
{
    EXPECT_EQ(positionAt({2236962, 0}, 960), (Yards{2147483520, 0}));
    expectError(RuntimeError::Overflow, [] { positionAt({2236963, 0}, 960); });
    expectError(RuntimeError::Overflow, [] { positionAt({0, -2236963}, 960); });
}

TEST(PositionAt, IsAlwaysAMultipleOfTheScaleAndComesBackToItsPixel)
{
    for (int index = 1; index <= 11; ++index) {
        for (const bool light : {day, night}) {
            const int scale = mapScale(index, light);
            for (int pixel = -1000; pixel <= 1000; ++pixel) {
                const Yards position = positionAt({pixel, -pixel}, static_cast<float>(scale));
                EXPECT_EQ(position, (Yards{pixel * scale, -pixel * scale}));
                EXPECT_EQ(offsetOf(position, static_cast<float>(scale)), (PixelOffset{pixel, -pixel}));
            }
        }
    }
}

TEST(PositionAt, APixelOfAnotherZoomLevelIsNotAlwaysTheSameOne)
{
    const Yards placed = positionAt({7, 0}, 60);
    EXPECT_EQ(positionAt(offsetOf(placed, 80), 80), (Yards{400, 0})) << "420 yards are 5.25 pixels";
}

} // namespace
} // namespace torvane::testing
