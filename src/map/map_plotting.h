#pragma once

#include "map/map_marks.h"
#include "map/map_view.h"
#include "store/side.h"
#include "store/target_area.h"

#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace torvane {

class ShipCatalogue;
class WorkingProfile;

/// What the tools above the map have switched on.
struct MapToggles
{
    std::int16_t namesMode = 0;     ///< labels: 0 type and name, 1 name, 2 type, 3 none
    std::int16_t scaleLabelsOn = 1; ///< texts and white bars of the grid
    std::int16_t gunRingsOn = 0;
    std::int16_t visRingsOn = 0;
    std::int16_t radarRingsOn = 0;
    std::int16_t ringFilterOn = 0; ///< -1 when on
    QString ringFilterKey{};

    bool operator==(const MapToggles&) const = default;
};

/// The target area on its way to its place.
struct TargetState
{
    bool inUse = false;  ///< the mission has one
    bool armed = false;  ///< the next click places it
    bool placed = false; ///< it has been placed, perhaps for a mission before
    TargetArea area{};

    bool operator==(const TargetState&) const = default;
};

/// All that the map shows beside the scenario itself.
struct MapState
{
    ViewState view{};
    MapToggles toggles{};
    TargetState target{};
    bool separationRingsPending = false;
    /// Yards of the ship to be drawn, then its pixels; it outlasts the ship. A class that the catalogue lacks
    /// takes the pixels of the ship before as its yards. Kept.
    std::int32_t shipLengthYards = 0;
    /// Likewise yards of a ship's guns, then the pixels of their ring.
    std::int32_t gunRangeValue = 0;

    bool operator==(const MapState&) const = default;
};

/// A ship where the map draws it.
struct PlottedShip
{
    std::int16_t heading = 0; ///< of the formation: degrees, 0 up the map, clockwise
    QString type{};
    QString shortName{};
    QString shipClass{};
    QString radarType{};
    QString divisionName{};
    PixelPoint at{};
    std::int32_t lengthPx = 0;
    int number = 0; ///< from 1 within its division
    bool flagship = false;
    Side side = Side::Blue;

    bool operator==(const PlottedShip&) const = default;
};

/// A ship's entry in the Edit Ship menu.
struct EditShipEntry
{
    Side side = Side::Blue;
    int division = 0; ///< 1 to 6; 0 for a division whose name has no place in the menu
    int ship = 0;     ///< from 1; the menu may have no entry of that number
    QString caption{};

    bool operator==(const EditShipEntry&) const = default;
};

/// A redraw's result: what is drawn, bottom first, and what the Edit Ship menu shows.
struct MapPicture
{
    MarkList marks;
    std::vector<EditShipEntry> ships;
};

/// Adds the rings of a ship to the marks.
using RingDrawer = std::function<void(const PlottedShip&, MarkList&)>;

/// The plain colour of a side, in which its texts and gun rings are drawn.
constexpr MapColour colourOf(Side side)
{
    return side == Side::Blue ? mapColours::forceA : mapColours::forceB;
}

/// Grid lines, and with labels their texts and white scale bars. `gridIndex` of the view is not 0. The grid
/// hangs on the view's top left corner, not on the world.
MarkList gridMarks(const ViewState& view, bool day, bool labels);

/// Hull, bow mark and label of a ship, and the flagship's pennant with `divisionMark` ("Div" or "Verb.").
/// Throws Overflow for a ship whose ends lie beyond 16 bits.
void appendShipMarks(const PlottedShip& ship, int namesMode, const QString& divisionMark, MarkList& marks);

/// The entry of a ship in the Edit Ship menu. The two ships of one short name are told apart there.
EditShipEntry editShipEntry(const PlottedShip& ship);

/// The circle and its diagonals. An armed area is placed at the anchor, in pixels of the view; its centre is
/// written back in yards each time, so it snaps to the pixels of the zoom level. Kept. Throws Overflow.
void appendTargetArea(MapState& state, MarkList& marks);

/// Plots a scenario as the profile holds it. Reads it anew at each call.
class MapPlotter
{
public:
    /// Everything handed in outlives the object. `divisionMark` goes before a flagship's division number.
    MapPlotter(const WorkingProfile& profile, ShipCatalogue& catalogue, MapState& state,
               const QString& divisionMark);

    /// Ships with their labels and rings, in the order of the profile. Ends at the first division that lacks
    /// a key. Sets the view's scale and anchor by the cursor at each ship. Throws RuntimeError for a number
    /// beyond its bits, which it names as the profile has it; `picture` then holds what came before.
    void drawDivisions(bool day, const RingDrawer& rings, MapPicture& picture);

    /// A circle of 1,000 yards round every ship that lies on neither axis. Throws Overflow, for a scale of 0
    /// also where there is no ship.
    void drawSeparationRings(MarkList& marks) const;

private:
    /// A ship's position as the profile has it.
    struct WrittenPosition
    {
        QString section;
        QString x;
        QString z;
    };
    void plotShip(PlottedShip& ship, const WrittenPosition& written, bool day, const RingDrawer& rings,
                  MapPicture& picture);

    const WorkingProfile& m_profile;
    ShipCatalogue& m_catalogue;
    MapState& m_state;
    QString m_divisionMark;
};

} // namespace torvane
