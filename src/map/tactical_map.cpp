#include "map/tactical_map.h"

#include "divisions/create_division_frm.h"
#include "divisions/formation_placement.h"
#include "map/draw_marks.h"
#include "map/grid_level_frm.h"
#include "map/map_surface.h"
#include "map/tool_row.h"
#include "map/zoom_level_frm.h"
#include "overview/enviro_frm.h"
#include "platform/number_text.h"
#include "platform/runtime_error.h"
#include "shell/captions.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"

#include <functional>
#include <utility>

namespace torvane {

TacticalMap::TacticalMap(Editor& editor, MapSurface& surface) : m_editor(editor), m_surface(surface)
{
    // A map that isn't shown yet is drawn when it is. The read-outs come to the new screen behind it, and are
    // drawn with it.
    const auto redraw = [this] {
        if (m_surface.map().isVisible()) {
            m_editor.forms().runHandler([this] { redrawMap(); });
        }
    };
    QObject::connect(&surface.map(), &PictureBox::densityChanged, &surface, redraw, Qt::QueuedConnection);
}

bool TacticalMap::day() const
{
    return valueOf(m_editor.mainFrm().chkDayNight) == 1;
}

void TacticalMap::setMapPointer(Pointer pointer)
{
    m_surface.map().setCursor(shapeOf(pointer));
}

void TacticalMap::redrawMap()
{
    MapPicture picture;
    std::vector<RuntimeError> errors;
    // What can't be drawn of one layer leaves the others.
    const auto layer = [&errors](const std::function<void()>& draw) {
        try {
            draw();
        } catch (const RuntimeError& error) {
            errors.push_back(error);
        }
    };
    m_surface.map().clear();
    layer([this] { drawScaleBars(); });
    drawCursorCoordinates();
    updateGridIndex();
    layer([&] { picture.marks = grid(); });
    layer([&] { drawScenario(picture); });
    layer([&] { drawTargetArea(picture.marks); });
    layer([&] { drawSeparationRings(picture.marks); });
    drawMarks(m_surface.map(), picture.marks);
    m_editor.mainFrm().menu().showEditShips(picture.ships);
    for (const RuntimeError& error : m_toldErrors.fresh(errors)) {
        m_editor.report(error);
    }
}

void TacticalMap::drawScaleBars()
{
    updateZoomIndex();
    const ViewState& view = m_state.view;
    m_surface.showExtent(extentReadOut(view, day()), extentReadOut(view, day(), metresUnit));
}

// Seen in the debug mode alone.
void TacticalMap::drawCursorCoordinates()
{
    m_surface.showAnchor(QString::number(m_state.view.anchorX) + QStringLiteral(" X ") +
                         QString::number(m_state.view.anchorZ));
}

MarkList TacticalMap::grid() const
{
    if (m_state.view.gridIndex == 0) {
        return {};
    }
    return gridMarks(m_state.view, day(), m_state.toggles.scaleLabelsOn == 1);
}

void TacticalMap::drawScenario(MapPicture& picture)
{
    if (m_editor.workingProfile().divisionCount() > 0) {
        MapPlotter plotter(m_editor.workingProfile(), m_editor.shipCatalogue(), m_state,
                           mainText(MainText::DivisionShort, m_editor.language()));
        RangeRings rings(m_state, ringConditions(), m_editor.workingProfile().parsed(),
                         m_editor.shipCatalogue());
        plotter.drawDivisions(
            day(), [&rings](const PlottedShip& ship, MarkList& marks) { rings.appendRings(ship, marks); },
            picture);
    }
}

// The dialog's controls as they stand, also where what they hold was never stored.
RingConditions TacticalMap::ringConditions() const
{
    if (m_state.toggles.visRingsOn == 0 && m_state.toggles.radarRingsOn == 0) {
        return {};
    }
    const EnvironmentValues values = m_editor.enviroFrm().values();
    return {.visibility = values.visibility,
            .radar = values.radar,
            .seaState = values.seaState,
            .rain = values.rain,
            .day = day()};
}

void TacticalMap::drawTargetArea(MarkList& marks)
{
    TargetState& target = m_state.target;
    if (!target.inUse) {
        placeTargetArea(0, 0);
    } else if (target.armed || target.placed) {
        appendTargetArea(m_state, marks);
        target.armed = false;
        target.placed = true;
    }
    rememberTargetArea(m_editor.workingProfile(), target.area);
}

void TacticalMap::drawSeparationRings(MarkList& marks)
{
    if (std::exchange(m_state.separationRingsPending, false)) {
        const MapPlotter plotter(m_editor.workingProfile(), m_editor.shipCatalogue(), m_state, QString());
        plotter.drawSeparationRings(marks);
    }
}

void TacticalMap::updateZoomIndex()
{
    if (valueOf(m_editor.mainFrm().chkUnloadZoom) == 0) {
        m_state.view.zoomIndex = m_editor.zoomLevelFrm().zoomIndex();
    }
}

void TacticalMap::updateGridIndex()
{
    if (valueOf(m_editor.mainFrm().chkUnloadGrid) == 0) {
        m_state.view.gridIndex = m_editor.gridLevelFrm().gridIndex();
    }
}

void TacticalMap::readMapScale()
{
    updateZoomIndex();
    m_state.view.mapScale = mapScale(m_state.view.zoomIndex, day());
}

void TacticalMap::centre()
{
    m_surface.centreBars();
    m_state.view.lastHScrollValue = m_surface.horizontal().value();
    m_state.view.lastVScrollValue = m_surface.vertical().value();
    centreOrigin(m_state.view);
    m_moveFailure.reset();
}

void TacticalMap::resized(WindowState state, QSize window, QSize inner)
{
    if (const std::optional<MapLayout> layout = mapLayout(state, window, inner)) {
        m_surface.arrange(*layout);
    }
    setMapSize(m_state.view, m_surface.map().width(), m_surface.map().height());
    centreOrigin(m_state.view);
    drawScaleBars();
    anchorAtOrigin();
    redrawMap();
}

bool TacticalMap::succeeds(const std::function<void()>& work, std::optional<RuntimeError>& failure)
{
    try {
        work();
        failure.reset();
    } catch (const RuntimeError& error) {
        if (!std::exchange(failure, error)) {
            m_editor.report(error);
        }
    }
    return !failure;
}

// A drag beyond the end of 16 bits fails at each of its events; the first step back leads back.
void TacticalMap::scrolledHorizontally(int value, ScrollEvent event, WindowState state)
{
    ViewState& view = m_state.view;
    if (!succeeds([&] { scrollHorizontally(view, value, event, state); }, m_hScrollFailure)) {
        view.lastHScrollValue = value;
        return;
    }
    m_surface.showHorizontalValue(value);
    redrawMap();
}

void TacticalMap::scrolledVertically(int value, ScrollEvent event, WindowState state)
{
    ViewState& view = m_state.view;
    if (!succeeds([&] { scrollVertically(view, value, event, state); }, m_vScrollFailure)) {
        view.lastVScrollValue = value;
        return;
    }
    m_surface.showVerticalValue(value);
    redrawMap();
}

void TacticalMap::setBackColor()
{
    m_surface.map().setBackColor(QColor::fromRgb(seaColour(day())));
}

void TacticalMap::placeTargetArea(int x, int z)
{
    m_state.target.area.x = x;
    m_state.target.area.z = z;
}

void TacticalMap::armTargetArea()
{
    setMapPointer(Pointer::SizeAll);
    m_state.target.armed = true;
}

void TacticalMap::anchorAtOrigin()
{
    torvane::anchorAtOrigin(m_state.view);
}

void TacticalMap::placeAt(const QString& x, const QString& y)
{
    m_state.view.cursorYardsX = static_cast<float>(numberValue(x));
    m_state.view.cursorYardsY = static_cast<float>(numberValue(y));
    anchorFromPosition(m_state.view, day());
    saveDivPosition();
}

void TacticalMap::saveDivPosition()
{
    drawScaleBars();
    drawCursorCoordinates();
    updateGridIndex();
    drawMarks(m_surface.map(), grid());
    FormationPlacement placement(m_editor.workingProfile(), m_editor.shipCatalogue(), m_state.view);
    placement.findDivisionToPlace(m_repositionKey, day());
}

void TacticalMap::useTool(Tool tool)
{
    MapToggles& toggles = m_state.toggles;
    switch (tool) {
    case Tool::GridLevel:
        m_editor.gridLevelFrm().openAt(m_state.view.gridIndex);
        break;
    case Tool::ZoomLevel:
        m_editor.zoomLevelFrm().openAt(m_state.view.zoomIndex);
        break;
    case Tool::Measure:
        toggleMeasureTool();
        break;
    case Tool::CenterMap:
        centre();
        break;
    default:
        toggle(toggles, tool);
        break;
    }
    if (tool == Tool::Scale && toggles.scaleLabelsOn == 0) {
        setMapPointer(Pointer::Default);
    }
    m_surface.tools().showState(toggles, m_measure.isOn());
    // Switching the ruler on draws nothing anew, and off does so by itself.
    if (tool != Tool::Measure) {
        redrawMap();
    }
}

void TacticalMap::toggleMeasureTool()
{
    if (m_measure.isOn()) {
        m_measure.switchOff();
        m_surface.showDistance(distanceText(0));
        setMapPointer(Pointer::Default);
        redrawMap();
    } else {
        m_measure.switchOn();
        setMapPointer(Pointer::Crosshair);
    }
}

void TacticalMap::keyTyped(const QString& character)
{
    applyRingKey(m_state.toggles, character);
    redrawMap();
}

// Any redraw places an armed target area. This one leaves that to the click that follows, which draws the map
// anew itself; behind a right click, which places and draws nothing, the next redraw shows all.
void TacticalMap::clickKeyTyped(const QString& character)
{
    if (m_state.target.armed) {
        applyRingKey(m_state.toggles, character);
    } else {
        keyTyped(character);
    }
}

void TacticalMap::mousePressed(Qt::MouseButton button, QPointF position)
{
    MainFrm& main = m_editor.mainFrm();
    setMapPointer(Pointer::Default);
    if (button == Qt::RightButton) {
        setValue(m_editor.createDivisionFrm().chkReposition, 0);
        setValue(main.ChkPlotDiv, 0);
        return;
    }
    if (valueOf(main.ChkPlotDiv) == 1) {
        placeDivision();
    }
    if (m_state.target.armed) {
        m_state.view.anchorX = toInt16(floorOf(position.x()));
        m_state.view.anchorZ = toInt16(floorOf(position.y()));
        redrawMap();
    }
    if (m_measure.isOn()) {
        measure(position);
    }
    setValue(main.ChkPlotDiv, 0);
}

void TacticalMap::placeDivision()
{
    if (m_moveFailure) {
        // The anchor is not where the pointer is.
        throw *m_moveFailure;
    }
    const HourglassPointer hourglass;
    saveDivPosition();
    m_editor.createDivisionFrm().showPlacement(textOf(m_state.view.cursorYardsX) + QStringLiteral(" X ") +
                                               textOf(m_state.view.cursorYardsY));
    redrawMap();
}

void TacticalMap::measure(QPointF position)
{
    m_measure.click(position.x(), position.y());
    if (m_measure.state() == MeasureTool::State::FirstPoint) {
        redrawMap();
    }
    drawMarks(m_surface.map(), m_measure.crossMarks(position.x(), position.y()));
    setMapPointer(Pointer::Crosshair);
}

void TacticalMap::mouseMoved(QPointF position)
{
    succeeds([&] { anchorFromPointer(m_state.view, position.x(), position.y()); }, m_moveFailure);
    readCursor(m_state.view, position.x(), position.y(), day());
    m_surface.showCursor(cursorReadOut(m_state.view));
    showMeasurement(position);
    if (valueOf(m_editor.mainFrm().ChkPlotDiv) == 1) {
        setMapPointer(Pointer::SizeAll);
    }
    drawCursorCoordinates();
}

void TacticalMap::showMeasurement(QPointF position)
{
    const float scale = m_state.view.mapScale;
    switch (m_measure.state()) {
    case MeasureTool::State::FirstPoint:
        m_surface.showDistance(distanceText(m_measure.yardsTo(position.x(), position.y(), scale)));
        break;
    case MeasureTool::State::SecondPoint:
        m_surface.showDistance(distanceText(m_measure.yards(scale)));
        drawMarks(m_surface.map(), m_measure.finish(scale));
        break;
    case MeasureTool::State::Idle:
        break;
    }
}

} // namespace torvane
