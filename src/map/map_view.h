#pragma once

#include "map/map_geometry.h"

#include <QLatin1StringView>
#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>

namespace torvane {

/// What the map shows, and where the pointer is. The main window holds one for as long as the program runs.
struct ViewState
{
    std::int16_t zoomIndex = 4; ///< row of the scale and grid tables
    std::int16_t gridIndex = 3; ///< 0 off, 1 large, 2 medium, 3 small
    float mapScale = 0;         ///< yards per pixel; 0 until it is first looked up
    std::int32_t mapWidthPx = 625;
    std::int32_t mapHeightPx = 417;
    std::int16_t mapOriginX = 312; ///< pixel of the view at which world (0, 0) lies
    std::int16_t mapOriginY = 208;
    std::int32_t lastHScrollValue = 16383; ///< values of the scroll bars at their last events
    std::int32_t lastVScrollValue = 16383;
    std::int16_t anchorX = 312; ///< the pointer in pixels from the origin, and where a division is placed
    std::int16_t anchorZ = 208;
    float cursorYardsX = 0; ///< as the read-outs show it: from the top left corner, whatever the origin
    float cursorYardsY = 0;

    PixelOffset anchor() const { return {.x = anchorX, .z = anchorZ}; }

    bool operator==(const ViewState&) const = default;
};

/// Between a place in the world and a pixel of the view, at the view's scale and origin. Throw Overflow as
/// `offsetOf` and `positionAt` do.
PixelPoint toScreen(Yards position, const ViewState& view);
PixelPoint fromOrigin(PixelOffset offset, const ViewState& view);
Yards toWorld(PixelPoint point, const ViewState& view);

/// Takes the view's scale from the table, and the anchor from the cursor's yards. `zoomIndex` is up to date.
/// Throws Overflow for an anchor beyond 16 bits.
void anchorFromPosition(ViewState& view, bool day);
/// Takes the anchor from a position of the pointer in the view. Throws Overflow beyond 16 bits.
void anchorFromPointer(ViewState& view, double x, double y);
/// Takes the view's scale from the table, and the cursor's yards from a position of the pointer in the view.
void readCursor(ViewState& view, double x, double y, bool day);

inline constexpr QLatin1StringView yardsUnit{" yds."};
/// Behind the read-outs for development, whose numbers are yards too.
inline constexpr QLatin1StringView metresUnit{" mts."};

/// The texts of two boxes: across and down.
struct ReadOut
{
    QString x;
    QString y;

    bool operator==(const ReadOut&) const = default;
};
ReadOut cursorReadOut(const ViewState& view);
/// Width and height of the view at its zoom level. Throws Overflow beyond 32 bits.
ReadOut extentReadOut(const ViewState& view, bool day, QLatin1StringView unit = yardsUnit);

enum class WindowState { Normal, Maximised, Minimised };
/// What a scroll bar reports: a step or the end of a drag, or a drag on its way.
enum class ScrollEvent { Change, Scroll };

inline constexpr std::int32_t scrollMaximum = 32767;
inline constexpr std::int32_t hScrollChange = 1000; ///< small and large change alike
inline constexpr std::int32_t vScrollChange = 1500;

/// Pixels by which one event of a scroll bar moves the origin.
std::int16_t scrollStep(ScrollEvent event, WindowState state);
/// One event of a scroll bar with its new value. The bars count steps: only whether the value grew matters.
/// An origin beyond 16 bits throws Overflow and leaves everything as it was.
void scrollHorizontally(ViewState& view, std::int32_t value, ScrollEvent event, WindowState state);
void scrollVertically(ViewState& view, std::int32_t value, ScrollEvent event, WindowState state);

/// The middle of a scroll bar that goes from 0 to `maximum`.
std::int32_t scrollMiddle(std::int32_t maximum);
/// World (0, 0) comes to the middle of the view. Where the scroll bars go to their middle too, they go first:
/// the step that their change may make is overwritten by this.
void centreOrigin(ViewState& view);
/// The view's size as its control gives it.
void setMapSize(ViewState& view, double width, double height);
void anchorAtOrigin(ViewState& view);

/// Where the map's controls stand in the main window, in pixels.
struct MapLayout
{
    static constexpr int mapLeft = 0;
    static constexpr int mapTop = 48;

    int mapWidth = 0;
    int mapHeight = 0;
    int hScrollWidth = 0;
    int vScrollHeight = 0;
    int vScrollLeft = 0; ///< `Image1` too
    int hScrollTop = 0;  ///< `Image1` too
    int hotCenterMapLeft = 0;
    int hotCenterMapTop = 0;

    bool operator==(const MapLayout&) const = default;
};

/// The layout for a size of the window and of its inside; nothing for a minimised window, which keeps its
/// own.
std::optional<MapLayout> mapLayout(WindowState state, QSize window, QSize inner);

} // namespace torvane
