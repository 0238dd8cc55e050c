#include "map/map_geometry.h"

#include "platform/number_text.h"
#include "platform/runtime_error.h"

#include <QLatin1StringView>

#include <algorithm>
#include <cmath>

namespace torvane {

namespace {

RuntimeError outOfRange(const QString& what, int index)
{
    return {RuntimeError::SubscriptOutOfRange,
            QStringLiteral("Subscript out of range: %1 %2").arg(what).arg(index)};
}

const ZoomLevel& levelAt(int zoomIndex)
{
    const auto* const level = std::ranges::find(zoomLevels, zoomIndex, &ZoomLevel::zoomIndex);
    if (level == zoomLevels.end()) {
        throw outOfRange(QStringLiteral("zoom level"), zoomIndex);
    }
    return *level;
}

/// Positions are whole numbers of 32 bits, more than a single holds, so the quotient is a double.
double quotient(std::int32_t yards, float scale)
{
    return yards / double{scale};
}

} // namespace

std::optional<std::int16_t> zoomIndexOf(QStringView option)
{
    const auto* const level = std::ranges::find_if(
        zoomLevels, [option](const ZoomLevel& each) { return option == QLatin1StringView(each.option); });
    return level == zoomLevels.end() ? std::nullopt : std::optional(level->zoomIndex);
}

std::optional<std::int16_t> gridIndexOf(QStringView option)
{
    const auto* const found = std::ranges::find_if(
        gridOptions, [option](const char* each) { return option == QLatin1StringView(each); });
    if (found == gridOptions.end()) {
        return std::nullopt;
    }
    return static_cast<std::int16_t>(found - gridOptions.begin());
}

QLatin1StringView zoomOption(int zoomIndex)
{
    return QLatin1StringView(levelAt(zoomIndex).option);
}

QLatin1StringView gridOption(int gridIndex)
{
    if (gridIndex < 0 || gridIndex >= static_cast<int>(gridOptions.size())) {
        throw outOfRange(QStringLiteral("grid size"), gridIndex);
    }
    return QLatin1StringView(gridOptions.at(static_cast<std::size_t>(gridIndex)));
}

std::int16_t mapScale(int zoomIndex, bool day)
{
    const ZoomLevel& level = levelAt(zoomIndex);
    return day ? level.dayScale : level.nightScale;
}

std::int16_t gridSpacing(int gridIndex, int zoomIndex, bool day)
{
    const ZoomLevel& level = levelAt(zoomIndex);
    const GridSpacings& spacings = day ? level.dayGrid : level.nightGrid;
    switch (gridIndex) {
    case 1:
        return spacings.large;
    case 2:
        return spacings.medium;
    case 3:
        return spacings.small;
    default:
        throw outOfRange(QStringLiteral("grid size"), gridIndex);
    }
}

Yards positionOf(QStringView x, QStringView z)
{
    return {.x = toInt32(numberValue(x)), .z = toInt32(numberValue(z))};
}

PixelOffset offsetOf(Yards position, float scale)
{
    return {.x = toInt32(quotient(position.x, scale)), .z = toInt32(quotient(position.z, scale))};
}

PixelOffset flooredOffsetOf(Yards position, float scale)
{
    return {.x = toInt32(floorOf(quotient(position.x, scale))),
            .z = toInt32(floorOf(quotient(position.z, scale)))};
}

Yards positionAt(PixelOffset offset, float scale)
{
    return {.x = toInt32(double{scale} * offset.x), .z = toInt32(double{scale} * offset.z)};
}

PixelOffset turnedAbout(PixelOffset anchor, PixelOffset point, std::int16_t heading)
{
    constexpr float radiansPerDegree = 0.017453292F;
    const float angle = (360.0F - static_cast<float>(heading)) * radiansPerDegree;
    const double s = static_cast<float>(std::sin(double{angle}));
    const double c = static_cast<float>(std::cos(double{angle}));
    const double dx = static_cast<double>(point.x) - anchor.x;
    const double dz = static_cast<double>(point.z) - anchor.z;
    return {.x = toInt32(anchor.x + roundEven(dx * c + dz * s)),
            .z = toInt32(anchor.z + roundEven(-s * dx + dz * c))};
}

PixelPoint turnedAbout(PixelPoint centre, PixelPoint point, std::int16_t heading)
{
    const PixelOffset turned =
        turnedAbout(PixelOffset{.x = centre.x, .z = centre.y}, {.x = point.x, .z = point.y}, heading);
    return {.x = turned.x, .y = turned.z};
}

} // namespace torvane
