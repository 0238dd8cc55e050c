#include "map/map_view.h"

#include "map/named_overflow.h"
#include "platform/number_text.h"

namespace torvane {

namespace {

/// Whole pixels of 32 bits.
std::int32_t sum(double a, double b)
{
    return toInt32(a + b);
}

/// The read-outs hold what a number of seven digits says, not the product itself.
float readOutYards(float scale, double pixels)
{
    return static_cast<float>(numberValue(textOf(scale * static_cast<float>(pixels))));
}

QString withUnit(double yards, QLatin1StringView unit)
{
    return groupedThousands(toInt32(yards)) + unit;
}

/// A bar that stays where it was counts as one that went back.
std::int16_t movedOrigin(std::int16_t origin, bool grew, std::int16_t step)
{
    return toInt16(grew ? origin - step : origin + step);
}

} // namespace

PixelPoint toScreen(Yards position, const ViewState& view)
{
    return fromOrigin(offsetOf(position, view.mapScale), view);
}

PixelPoint fromOrigin(PixelOffset offset, const ViewState& view)
{
    return {.x = sum(view.mapOriginX, offset.x), .y = sum(view.mapOriginY, offset.z)};
}

Yards toWorld(PixelPoint point, const ViewState& view)
{
    return positionAt({.x = sum(point.x, -view.mapOriginX), .z = sum(point.y, -view.mapOriginY)},
                      view.mapScale);
}

void anchorFromPosition(ViewState& view, bool day)
{
    view.mapScale = mapScale(view.zoomIndex, day);
    const auto named = [&view] {
        return QStringLiteral("position %1 X %2").arg(textOf(view.cursorYardsX), textOf(view.cursorYardsY));
    };
    namingOverflow(named, [&view] {
        view.anchorX = toInt16(double{view.cursorYardsX / view.mapScale});
        view.anchorZ = toInt16(double{view.cursorYardsY / view.mapScale});
    });
}

void anchorFromPointer(ViewState& view, double x, double y)
{
    view.anchorX = toInt16(floorOf(x) - view.mapOriginX);
    view.anchorZ = toInt16(floorOf(y) - view.mapOriginY);
}

void readCursor(ViewState& view, double x, double y, bool day)
{
    view.mapScale = mapScale(view.zoomIndex, day);
    view.cursorYardsX = readOutYards(view.mapScale, x);
    view.cursorYardsY = readOutYards(view.mapScale, y);
}

ReadOut cursorReadOut(const ViewState& view)
{
    return {.x = withUnit(double{view.cursorYardsX}, yardsUnit),
            .y = withUnit(double{view.cursorYardsY}, yardsUnit)};
}

ReadOut extentReadOut(const ViewState& view, bool day, QLatin1StringView unit)
{
    const double scale = mapScale(view.zoomIndex, day);
    return {.x = withUnit(view.mapWidthPx * scale, unit), .y = withUnit(view.mapHeightPx * scale, unit)};
}

std::int16_t scrollStep(ScrollEvent event, WindowState state)
{
    const bool change = event == ScrollEvent::Change;
    switch (state) {
    case WindowState::Normal:
        return change ? 10 : 50;
    case WindowState::Maximised:
        return change ? 30 : 150;
    case WindowState::Minimised:
        break;
    }
    return 0;
}

void scrollHorizontally(ViewState& view, std::int32_t value, ScrollEvent event, WindowState state)
{
    view.mapOriginX = movedOrigin(view.mapOriginX, value > view.lastHScrollValue, scrollStep(event, state));
    view.lastHScrollValue = value;
}

void scrollVertically(ViewState& view, std::int32_t value, ScrollEvent event, WindowState state)
{
    view.mapOriginY = movedOrigin(view.mapOriginY, value > view.lastVScrollValue, scrollStep(event, state));
    view.lastVScrollValue = value;
}

std::int32_t scrollMiddle(std::int32_t maximum)
{
    return toInt32(floorOf(maximum / 2.0));
}

void centreOrigin(ViewState& view)
{
    view.mapOriginX = toInt16(floorOf(view.mapWidthPx / 2.0));
    view.mapOriginY = toInt16(floorOf(view.mapHeightPx / 2.0));
}

void setMapSize(ViewState& view, double width, double height)
{
    view.mapWidthPx = toInt32(width);
    view.mapHeightPx = toInt32(height);
}

void anchorAtOrigin(ViewState& view)
{
    view.anchorX = view.mapOriginX;
    view.anchorZ = view.mapOriginY;
}

std::optional<MapLayout> mapLayout(WindowState state, QSize window, QSize inner)
{
    MapLayout layout;
    switch (state) {
    case WindowState::Normal:
        layout = {.mapWidth = 625,
                  .mapHeight = 417,
                  .vScrollLeft = 624,
                  .hScrollTop = 464,
                  .hotCenterMapLeft = 560,
                  .hotCenterMapTop = 464};
        break;
    case WindowState::Maximised:
        layout = {.mapWidth = window.width() - 25,
                  .mapHeight = window.height() - 110,
                  .vScrollLeft = inner.width() - 18,
                  .hScrollTop = inner.height() - 18,
                  .hotCenterMapLeft = inner.width() - 85,
                  .hotCenterMapTop = inner.height() - 18};
        break;
    case WindowState::Minimised:
        return std::nullopt;
    }
    layout.hScrollWidth = layout.mapWidth;
    layout.vScrollHeight = layout.mapHeight;
    return layout;
}

} // namespace torvane
