#pragma once

#include "map/map_geometry.h"

#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

namespace torvane {

class ShipCatalogue;
class WorkingProfile;
struct ViewState;

enum class Formation {
    Column,        ///< behind the anchor, along the course
    LineOfBearing, ///< to the right of the anchor, square to the course
    Convoy,        ///< a block around the anchor, whatever the course
};
/// The formation that the profile's word means, nothing for another word.
std::optional<Formation> formationOf(QStringView stored);

/// The place of one ship in a convoy as "x,z", in multiples of the spacing: x to the right, z down the map.
/// Empty for a place beyond the count. Count and place are 1 to 10; others throw SubscriptOutOfRange.
QLatin1StringView convoyOffset(int count, int place);

/// Which division is to be placed, from texts such as "Blue 3" and "Red  6".
struct RepositionKey
{
    QString side;
    QString divisionName; ///< "Division 3"

    bool operator==(const RepositionKey&) const = default;
};
RepositionKey cutRepositionKey(QStringView repositionKey);

/// A division as its section describes it.
struct DivisionToPlace
{
    QString section{};
    QString name{};
    QString formation{};
    std::int16_t count = 0;         ///< of ships
    std::int16_t heading = 0;       ///< degrees, 0 up the map, clockwise
    std::int16_t spacing = 0;       ///< yards, from centre to centre
    int colour = 0;                 ///< 9 for Force A, 12 for Force B; like the flagship it moves no ship
    std::int32_t flagshipPlace = 0; ///< from 1

    bool operator==(const DivisionToPlace&) const = default;
};

/// Works out where the ships of a division stand, from one point of the map, and writes it into the working
/// profile. The anchor is the view's, its zoom level gives the scale. Nothing is drawn: the main window's
/// `saveDivPosition` redraws the layers of the map and then calls `findDivisionToPlace`.
class FormationPlacement
{
public:
    /// Everything handed in outlives the object.
    FormationPlacement(WorkingProfile& profile, ShipCatalogue& catalogue, ViewState& view);

    /// Finds a division and places it; does nothing if there is none. Throws as `findDivision` and
    /// `placeDivision` do.
    void findDivisionToPlace(QStringView repositionKey, bool day);
    /// The first division of that name and side. What its section lacks is taken from the section before.
    /// Throws Overflow for a number beyond its bits.
    std::optional<DivisionToPlace> findDivision(const RepositionKey& key) const;
    /// Writes the position of every ship. Throws SubscriptOutOfRange for more than ten ships and Overflow for
    /// a position beyond 32 bits or a view whose scale is still 0, and RuntimeError if the catalogue can't be
    /// read.
    void placeDivision(const DivisionToPlace& division, bool day);

    /// Turns a ship's place about the anchor by a heading and writes its position. Does nothing while the
    /// view has no scale.
    void rotateShipAboutAnchor(PixelOffset start, std::int16_t heading, const QString& shortName,
                               const QString& shipClass, bool day);
    /// Gives every ship of that short name, of either side, the position of a point. The class counts for
    /// "Duncan" alone. Places without a ship are passed over. Takes the view's scale from the table.
    void writeShipPosition(PixelOffset point, const QString& shortName, const QString& shipClass, bool day);

private:
    struct Ships;
    Ships shipsOf(const DivisionToPlace& division);

    WorkingProfile& m_profile;
    ShipCatalogue& m_catalogue;
    ViewState& m_view;
};

} // namespace torvane
