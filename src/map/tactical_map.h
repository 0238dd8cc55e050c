#pragma once

#include "map/map_interaction.h"
#include "map/map_plotting.h"
#include "map/range_rings.h"
#include "map/told_errors.h"
#include "map/view_tools.h"
#include "platform/pointer.h"
#include "platform/runtime_error.h"

#include <QPointF>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace torvane {

class Editor;
class MapSurface;

/// The tactical map of the main window: what a click, a key, a scroll bar and a redraw do to it. Handlers of
/// the main window call these procedures; each may throw RuntimeError where a number leaves its bits. Moves
/// and scrolls, of which one follows the other, show such an error themselves: once, and again only after one
/// of their kind that went well.
class TacticalMap
{
public:
    /// Both outlive the object.
    TacticalMap(Editor& editor, MapSurface& surface);

    const MapState& state() const { return m_state; }

    /// Repaints the map from the working profile and rebuilds the Edit Ship menu. An error ends its layer
    /// with what came before it drawn, and leaves the other layers; it is shown once, and again only after a
    /// redraw without it.
    void redrawMap();
    /// The view's extent at its zoom level.
    void drawScaleBars();

    /// Take the view's indices from the options of their dialogs, unless those were left by their close box.
    void updateZoomIndex();
    void updateGridIndex();
    /// Takes the scale from the table.
    void readMapScale();

    /// World (0, 0) to the middle, and the scroll bars to theirs.
    void centre();
    /// The window changed its size or its state. `window` and `inner` in pixels.
    void resized(WindowState state, QSize window, QSize inner);
    void scrolledHorizontally(int value, ScrollEvent event, WindowState state);
    void scrolledVertically(int value, ScrollEvent event, WindowState state);

    void setBackColor();
    /// A mission with a target area, or one without.
    void setTargetAreaInUse(bool inUse) { m_state.target.inUse = inUse; }
    /// Where the map has the target area's centre, in yards.
    void placeTargetArea(int x, int z);
    /// The next click places the target area.
    void armTargetArea();
    void anchorAtOrigin();

    /// Which division the next placement is about.
    void setRepositionKey(const QString& repositionKey) { m_repositionKey = repositionKey; }
    /// Rings of separation show with the next redraw.
    void awaitSeparationRings() { m_state.separationRingsPending = true; }
    /// An edited division is laid out again at a position in yards, given as texts.
    void placeAt(const QString& x, const QString& y);
    const QString& repositionKey() const { return m_repositionKey; }

    /// A click on a tool.
    void useTool(Tool tool);
    void toggleMeasureTool();
    void keyTyped(const QString& character);
    /// A key that is about to click where the pointer is; like any other it ends the filter of the rings.
    void clickKeyTyped(const QString& character);
    void mousePressed(Qt::MouseButton button, QPointF position);
    void mouseMoved(QPointF position);

private:
    bool day() const;
    void setMapPointer(Pointer pointer);
    void drawCursorCoordinates();
    MarkList grid() const;
    void drawScenario(MapPicture& picture);
    RingConditions ringConditions() const;
    void drawTargetArea(MarkList& marks);
    void drawSeparationRings(MarkList& marks);
    bool succeeds(const std::function<void()>& work, std::optional<RuntimeError>& failure);
    void saveDivPosition();
    void placeDivision();
    void measure(QPointF position);
    void showMeasurement(QPointF position);

    Editor& m_editor;
    MapSurface& m_surface;
    MapState m_state;
    MeasureTool m_measure;
    QString m_repositionKey;
    ToldErrors m_toldErrors;
    std::optional<RuntimeError> m_moveFailure;    ///< of the last move of the pointer
    std::optional<RuntimeError> m_hScrollFailure; ///< of the last event of each bar
    std::optional<RuntimeError> m_vScrollFailure;
};

} // namespace torvane
