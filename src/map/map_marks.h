#pragma once

#include "map/map_geometry.h"

#include <QString>

#include <cstdint>
#include <variant>
#include <vector>

namespace torvane {

/// A colour of the map as red, green, blue in eight bits each: 0xRRGGBB.
using MapColour = std::uint32_t;

namespace mapColours {
inline constexpr MapColour black = 0x000000;
inline constexpr MapColour white = 0xFFFFFF;
inline constexpr MapColour yellow = 0xFFFF00;
inline constexpr MapColour forceA = 0x0000FF;
inline constexpr MapColour forceB = 0xFF0000;
inline constexpr MapColour targetArea = 0xFF0000;
inline constexpr MapColour gridLine = 0x808080;
inline constexpr MapColour darkGridLine = 0x000000;
} // namespace mapColours

/// A line of one pixel with both its ends.
struct LineMark
{
    PixelPoint from;
    PixelPoint to;
    MapColour colour = mapColours::black;

    bool operator==(const LineMark&) const = default;
};

/// The box with these corners: its outline, or filled.
struct BoxMark
{
    PixelPoint from;
    PixelPoint to;
    MapColour colour = mapColours::black;
    bool filled = false;

    bool operator==(const BoxMark&) const = default;
};

/// A circle of one pixel. The radius is in pixels; 0 is a point.
struct CircleMark
{
    PixelPoint centre;
    std::int32_t radius = 0;
    MapColour colour = mapColours::black;

    bool operator==(const CircleMark&) const = default;
};

/// A line of text whose top left corner is `at`.
struct TextMark
{
    PixelPoint at;
    QString text;
    MapColour colour = mapColours::black;

    bool operator==(const TextMark&) const = default;
};

/// What the map draws, in pixels of the view and in the order of drawing.
using Mark = std::variant<LineMark, BoxMark, CircleMark, TextMark>;
using MarkList = std::vector<Mark>;

} // namespace torvane
