#pragma once

#include "map/map_plotting.h"
#include "store/force_sizes.h"

#include <QHash>
#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace torvane {

class Profile;
class RecordSource;
class ShipCatalogue;

/// The index of a ship's type among `shipTypes`, 1 to 6; blanks round it and upper and lower case don't
/// matter. Throws SubscriptOutOfRange for any other type.
int typeIndex(QStringView type);

/// Ranges in yards: a row for each class of target, a column for each type of ship, both in the order of
/// `shipTypes`.
using RangeTable = std::array<std::array<std::int32_t, shipTypes.size()>, shipTypes.size()>;

// The last cell holds its metres. No ring is drawn from the last row. Kept.
inline constexpr RangeTable visibilityRangeTable{{
    {36000, 36000, 32400, 32400, 28800, 32400},
    {36000, 36000, 32400, 32400, 28800, 32400},
    {32400, 32400, 29160, 29160, 25920, 29160},
    {32400, 32400, 29160, 29160, 25920, 29160},
    {28800, 28800, 25920, 25920, 23040, 25920},
    {36000, 36000, 29160, 29160, 25920, 26664},
}};
inline constexpr RangeTable radarRangeTable{{
    {45000, 45000, 40500, 40500, 38250, 40500},
    {45000, 45000, 40500, 40500, 34425, 40500},
    {40500, 40500, 36450, 36450, 34425, 36450},
    {40500, 40500, 36450, 36450, 34425, 36450},
    {38250, 38250, 34425, 34425, 32512, 34425},
    {40500, 40500, 36450, 36450, 34425, 36450},
}};
/// Yards of a table for a type index and a ring class, both from 1. Throws SubscriptOutOfRange beyond them.
std::int32_t rangeOf(const RangeTable& table, int type, int ringClass);

/// A class of target against which rings are drawn, with the colours of its rings and the key on the map that
/// picks it.
struct RingClass
{
    int number; ///< row of the tables, from 1
    QLatin1StringView label;
    QLatin1StringView key;
    MapColour visibilityColour;
    MapColour radarColour;
};
inline constexpr std::array<RingClass, 3> ringClasses{{
    {1, QLatin1StringView{"BB"}, QLatin1StringView{"B"}, 0xFFFFFF, 0x804000},
    {3, QLatin1StringView{"CA"}, QLatin1StringView{"C"}, 0x00FF00, 0xC04000},
    {5, QLatin1StringView{"DD"}, QLatin1StringView{"D"}, 0xFFFF00, 0xFF8000},
}};

/// Whether rings of a class are drawn: all, or with the filter on the one of its key. Gun rings know no
/// filter.
inline bool isDrawn(const RingClass& ringClass, const MapToggles& toggles)
{
    return toggles.ringFilterOn == 0 || toggles.ringFilterKey == ringClass.key;
}

/// The weather and the hour, as the texts of the environment dialog have them at the moment.
struct RingConditions
{
    QString visibility; ///< percent; what stands behind the number is not read
    QString radar;      ///< percent, likewise
    QString seaState;
    QString rain;
    bool day = true;
};

/// Percent by which night training lengthens the sight; nothing for a text that is no training.
struct NamedPercent
{
    const char* name;
    int percent;
};
inline constexpr std::array<NamedPercent, 4> nightTrainings{
    {{"EXPERT", 20}, {"GOOD", 10}, {"AVERAGE", 0}, {"POOR", -20}}};
/// What a radar of that rating reaches of the table; any other rating reaches nothing.
inline constexpr std::array<NamedPercent, 5> radarRatings{
    {{"POOR", 40}, {"AVERAGE", 67}, {"GOOD", 90}, {"EXCELLENT", 100}, {"SUPERB", 110}}};

/// What a sea leaves of a radar's range; any other sea leaves all.
struct SeaPercent
{
    int seaState;
    int percent;
};
inline constexpr std::array<SeaPercent, 6> radarSeas{{{3, 90}, {4, 83}, {5, 76}, {6, 70}, {7, 0}, {8, 0}}};

/// Percent of the table that a radar reaches: by its rating, whose case doesn't matter but whose blanks do;
/// by the sea; by the rain.
int radarRatingPercent(QStringView radarType);
int radarSeaPercent(QStringView seaState);
int radarRainPercent(QStringView rain);

/// Night training by ship: for each short name that of its last ship in the profile whose training is one of
/// the four. The ships named "Duncan" are told apart by their class.
class NightTraining
{
public:
    /// Nobody is trained.
    NightTraining() = default;
    /// Walks over all ships of the divisions that there are, once.
    explicit NightTraining(const Profile& profile);

    /// Percent, 0 for a ship without a training.
    int modifierOf(const QString& shortName, const QString& shipClass) const;

private:
    QHash<QString, int> m_modifiers;
};

/// One circle round a ship and what is written at its lower edge.
struct Ring
{
    std::int32_t radius = 0; ///< pixels; below 0 where the sight is less than none
    MapColour colour = mapColours::black;
    QLatin1StringView label;

    bool operator==(const Ring&) const = default;
};

/// Pixels of a range in yards, down to the next whole one.
std::int32_t radiusOf(std::int32_t yards, float mapScale);

/// The radius of a class's gun ring in pixels, from the field `Range` of `GunsRang`; nothing where there is
/// no ring. `gunRangeValue` goes from ship to ship, 0 at first: it comes as the pixels of the ring before,
/// and a class without a record takes it for yards. Moves `gunsRang`. Throws Overflow for a range beyond 32
/// bits.
std::optional<std::int32_t> gunRadius(RecordSource& gunsRang, const QString& shipClass, float mapScale,
                                      std::int32_t& gunRangeValue);
/// The rings of sight, `training` percent added to the visibility. Throws SubscriptOutOfRange as `typeIndex`
/// does, and Overflow for a percentage beyond 16 bits.
std::vector<Ring> visibilityRings(QStringView type, int training, const RingConditions& conditions,
                                  const MapToggles& toggles, float mapScale);
/// The rings of radar; those of a ship without one have the radius 0. Throws as `visibilityRings`.
std::vector<Ring> radarRings(QStringView type, QStringView radarType, const RingConditions& conditions,
                             const MapToggles& toggles, float mapScale);

/// Whether rings carry their labels at this level: not on the nearest and the two farthest ones.
constexpr bool hasRingLabels(int zoomIndex)
{
    return zoomIndex >= 1 && zoomIndex <= 8;
}

/// The rings of all ships of one redraw.
class RangeRings
{
public:
    /// Everything handed in outlives the object. Which families are drawn, the filter, scale and zoom level,
    /// and the gun range that goes from ship to ship are those of `state`. Looks up the night training of all
    /// ships in the profile, where it counts.
    RangeRings(MapState& state, RingConditions conditions, const Profile& profile, ShipCatalogue& catalogue);

    /// Appends a ship's circles and labels in the order gun, visibility, radar. Throws as `gunRadius`,
    /// `visibilityRings` and `radarRings` do, with the marks before the failure appended.
    void appendRings(const PlottedShip& ship, MarkList& marks);

private:
    void appendGunRing(const PlottedShip& ship, MarkList& marks);
    void appendLabelled(PixelPoint at, const std::vector<Ring>& rings, MarkList& marks) const;

    MapState& m_state;
    RingConditions m_conditions;
    NightTraining m_training;
    ShipCatalogue& m_catalogue;
};

} // namespace torvane
