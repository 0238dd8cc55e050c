#pragma once

#include "map/map_geometry.h"
#include "store/side.h"

#include <QString>
#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>

namespace torvane {

class WorkingProfile;

/// Degrees that a click on a heading button turns by.
inline constexpr int headingStep = 5;

/// The heading after a turn by so many degrees either way: above 360 comes 0, below 0 comes 360.
QString turnedHeading(QStringView text, int degrees);

/// What a typed heading becomes: its integer part from 0 to 360 in whole degrees, nothing if it lies outside.
/// The empty text is 0.
std::optional<QString> typedHeading(QStringView text);

/// The line that shows a heading, in pixels of a picture. z grows down.
struct HeadingMark
{
    PixelOffset bow;
    PixelOffset stern;

    bool operator==(const HeadingMark&) const = default;
};
/// The mark about the centre of a picture; its half length is 3 pixels less than the centre's x.
HeadingMark headingMark(PixelOffset centre, std::int16_t heading);
/// The centre of a picture of this size: halves, ties to the even neighbour.
PixelOffset pictureCentre(int width, int height);

/// The force whose ships carry the cargo of a transport scenario; nothing in any other scenario.
std::optional<Side> transportingForce(const WorkingProfile& profile);

} // namespace torvane
