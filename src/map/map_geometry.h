#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

namespace torvane {

/// A place in the world: yards on the map's axes. X grows to the right, Z down the map.
struct Yards
{
    std::int32_t x = 0;
    std::int32_t z = 0;

    bool operator==(const Yards&) const = default;
};

/// A pixel of the view, counted from its top left corner.
struct PixelPoint
{
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const PixelPoint&) const = default;
};

/// Pixels counted from the one at which world (0, 0) lies.
struct PixelOffset
{
    std::int32_t x = 0;
    std::int32_t z = 0;

    bool operator==(const PixelOffset&) const = default;
};

/// Yards between grid lines.
struct GridSpacings
{
    std::int16_t large;
    std::int16_t medium;
    std::int16_t small;
};

/// One level of the zoom dialog. `option` is its button there; the scales are yards per pixel.
struct ZoomLevel
{
    const char* english;
    const char* german;
    const char* option;
    std::int16_t zoomIndex;
    std::int16_t dayScale;
    std::int16_t nightScale;
    GridSpacings dayGrid;
    GridSpacings nightGrid;
};

/// The levels in the order of their captions, which is not that of `zoomIndex`: a higher level shows more
/// sea.
inline constexpr std::array<ZoomLevel, 11> zoomLevels{{
    {"Level 0", "Ebene 0", "optZoomLevel0", 11, 10, 5, {2500, 1000, 500}, {1000, 500, 250}},
    {"Level 1", "Ebene 1", "optZoomLevel8", 8, 20, 10, {5000, 2500, 1000}, {2500, 1000, 500}},
    {"Level 2", "Ebene 2", "optZoomLevel7", 7, 30, 15, {7500, 5000, 2500}, {5000, 2500, 1000}},
    {"Level 3", "Ebene 3", "optZoomLevel6", 6, 40, 20, {10000, 5000, 2500}, {5000, 2500, 1000}},
    {"Level 4", "Ebene 4", "optZoomLevel5", 5, 50, 25, {10000, 5000, 2500}, {5000, 2500, 1000}},
    {"Level 5", "Ebene 5", "optZoomLevel4", 4, 60, 30, {15000, 10000, 5000}, {7500, 5000, 2500}},
    {"Level 6", "Ebene 6", "optZoomLevel3", 3, 80, 40, {15000, 10000, 5000}, {7500, 5000, 2500}},
    {"Level 7", "Ebene 7", "optZoomLevel2", 2, 120, 60, {20000, 15000, 10000}, {10000, 7500, 5000}},
    {"Level 8", "Ebene 8", "optZoomLevel1", 1, 240, 120, {20000, 15000, 10000}, {10000, 7500, 5000}},
    {"Level 9", "Ebene 9", "optZoomLevel9", 9, 480, 240, {25000, 20000, 15000}, {15000, 10000, 7500}},
    {"Level 10", "Ebene 10", "optZoomLevel10", 10, 960, 480, {25000, 20000, 15000}, {15000, 10000, 7500}},
}};

/// The buttons of the grid dialog by `gridIndex`: off, large, medium, small.
inline constexpr std::array<const char*, 4> gridOptions{"optOff", "optLevel1", "optLevel2", "optLevel3"};

/// The `zoomIndex` or `gridIndex` that a button of the zoom or grid dialog stands for, nothing for another
/// button.
std::optional<std::int16_t> zoomIndexOf(QStringView option);
std::optional<std::int16_t> gridIndexOf(QStringView option);
/// The button that stands for a `zoomIndex` or `gridIndex`. Throw SubscriptOutOfRange for another index.
QLatin1StringView zoomOption(int zoomIndex);
QLatin1StringView gridOption(int gridIndex);

/// Yards per pixel. Throws SubscriptOutOfRange for a `zoomIndex` outside 1 to 11.
std::int16_t mapScale(int zoomIndex, bool day);
/// Yards between grid lines. Throws SubscriptOutOfRange as `mapScale`, and for a `gridIndex` outside 1 to 3.
std::int16_t gridSpacing(int gridIndex, int zoomIndex, bool day);

/// The sea by day and by night, as red, green, blue in eight bits each.
constexpr std::uint32_t seaColour(bool day)
{
    return day ? 0x01B0EBU : 0x000080U;
}

/// A position of the profile: the numbers of its texts, rounded. Throws Overflow beyond 32 bits.
Yards positionOf(QStringView x, QStringView z);

/// From yards to pixels at a scale of yards per pixel, rounded. A scale of 0 throws Overflow, as does a
/// result beyond 32 bits.
PixelOffset offsetOf(Yards position, float scale);
/// The same, but down to the next whole pixel: where separation rings lie.
PixelOffset flooredOffsetOf(Yards position, float scale);
/// Back to yards, rounded: always multiples of a whole scale. Throws Overflow beyond 32 bits.
Yards positionAt(PixelOffset offset, float scale);

/// A point turned about another by a heading in degrees: up becomes the heading. The offset is rounded to
/// pixels. Angle, sine and cosine are of single precision. Throws Overflow beyond 32 bits.
PixelOffset turnedAbout(PixelOffset anchor, PixelOffset point, std::int16_t heading);
PixelPoint turnedAbout(PixelPoint centre, PixelPoint point, std::int16_t heading);

} // namespace torvane
