#include "map/range_rings.h"

#include "platform/code_page.h"
#include "platform/number_text.h"
#include "platform/runtime_error.h"
#include "store/force_sizes.h"
#include "store/ship_catalogue.h"
#include "store/working_profile.h"

#include <QLatin1StringView>

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace torvane {

namespace {

constexpr double hundred = 100;
constexpr int wetRadar = 70; // percent in rain

template <typename Table>
std::optional<int> percentNamed(const Table& table, const QString& name)
{
    const auto* const found = std::ranges::find_if(
        table, [&name](const NamedPercent& each) { return name == QLatin1StringView(each.name); });
    return found == table.end() ? std::nullopt : std::optional(found->percent);
}

std::int16_t percentOf(QStringView text)
{
    return toInt16(numberValue(text));
}

/// What tells a ship's training from that of the others.
QString trainingKey(const QString& shortName, const QString& shipClass)
{
    // No value of a profile holds a line break.
    return shortName == ambiguousShortName ? shortName + u'\n' + shipClass : shortName;
}

/// A row of the view further down. Where 32 bits end, the last row: both are far out of sight.
std::int32_t belowBy(std::int32_t row, std::int32_t pixels)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const std::int64_t sum = std::int64_t{row} + pixels;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(sum, Limits::min(), Limits::max()));
}

QString textAt(const Profile& profile, const QByteArray& section, QByteArrayView key)
{
    return fromCodePage(GetIniKey(profile, section, key));
}

} // namespace

int typeIndex(QStringView type)
{
    const QString wanted = type.trimmed().toString().toUpper();
    const auto* const found = std::ranges::find(shipTypes, wanted);
    if (found == shipTypes.end()) {
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           QStringLiteral("Subscript out of range: ship type \"%1\"").arg(type));
    }
    return static_cast<int>(found - shipTypes.begin()) + 1;
}

std::int32_t rangeOf(const RangeTable& table, int type, int ringClass)
{
    const auto isIn = [](int index) { return index >= 1 && index <= 6; };
    if (!isIn(type) || !isIn(ringClass)) {
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           QStringLiteral("Subscript out of range: range of type %1 against class %2")
                               .arg(type)
                               .arg(ringClass));
    }
    return table.at(static_cast<std::size_t>(ringClass - 1)).at(static_cast<std::size_t>(type - 1));
}

int radarRatingPercent(QStringView radarType)
{
    return percentNamed(radarRatings, radarType.toString().toUpper()).value_or(0);
}

int radarSeaPercent(QStringView seaState)
{
    const double state = numberValue(seaState);
    const auto* const found =
        std::ranges::find_if(radarSeas, [state](const SeaPercent& each) { return each.seaState == state; });
    return found == radarSeas.end() ? 100 : found->percent;
}

// The German list says "Ein" and "Aus": there rain takes nothing from a radar. Kept.
int radarRainPercent(QStringView rain)
{
    return rain.trimmed().compare(u"ON", Qt::CaseInsensitive) == 0 ? wetRadar : 100;
}

// The walk doesn't end where a division is missing, nor at a ship of the name that is looked for.
NightTraining::NightTraining(const Profile& profile)
{
    for (int k = 0; k < divisionSections; ++k) {
        if (textAt(profile, toCodePage(divisionSection(k)), "DIVISIONNAME") == invalidValue) {
            continue;
        }
        for (int j = 0; j < shipSections; ++j) {
            const QByteArray section = toCodePage(shipSection(k, j));
            const QString training = textAt(profile, section, "NIGHTTRAINING").trimmed().toUpper();
            if (const std::optional<int> percent = percentNamed(nightTrainings, training)) {
                m_modifiers[trainingKey(textAt(profile, section, "SHORTNAME"),
                                        textAt(profile, section, "CLASS"))] = *percent;
            }
        }
    }
}

int NightTraining::modifierOf(const QString& shortName, const QString& shipClass) const
{
    return m_modifiers.value(trainingKey(shortName, shipClass), 0);
}

std::int32_t radiusOf(std::int32_t yards, float mapScale)
{
    return toInt32(floorOf(yards / double{mapScale}));
}

// The value is never cleared: a ship whose class has no record shows a tiny ring, or none. Kept.
std::optional<std::int32_t> gunRadius(RecordSource& gunsRang, const QString& shipClass, float mapScale,
                                      std::int32_t& gunRangeValue)
{
    if (gunsRang.findFirst(u"Class", shipClass)) {
        gunRangeValue = toInt32(numberValue(gunsRang.value(u"Range")));
    }
    if (gunRangeValue == 0) {
        return std::nullopt;
    }
    gunRangeValue = radiusOf(gunRangeValue, mapScale);
    return gunRangeValue;
}

namespace {

/// The rings of the classes that are drawn; `yardsOf` gives the range against one of them.
template <typename YardsOf>
std::vector<Ring> ringsOf(MapColour RingClass::*colour, const MapToggles& toggles, float mapScale,
                          const YardsOf& yardsOf)
{
    std::vector<Ring> rings;
    for (const RingClass& each : ringClasses) {
        if (isDrawn(each, toggles)) {
            rings.push_back({.radius = radiusOf(toInt32(yardsOf(each.number)), mapScale),
                             .colour = each.*colour,
                             .label = each.label});
        }
    }
    return rings;
}

} // namespace

std::vector<Ring> visibilityRings(QStringView type, int training, const RingConditions& conditions,
                                  const MapToggles& toggles, float mapScale)
{
    const int index = typeIndex(type);
    const std::int16_t percent = toInt16(percentOf(conditions.visibility) + training);
    return ringsOf(&RingClass::visibilityColour, toggles, mapScale, [&](int ringClass) {
        return percent / hundred * rangeOf(visibilityRangeTable, index, ringClass);
    });
}

std::vector<Ring> radarRings(QStringView type, QStringView radarType, const RingConditions& conditions,
                             const MapToggles& toggles, float mapScale)
{
    const int index = typeIndex(type);
    const double weather = percentOf(conditions.radar) / hundred;
    const double rating = radarRatingPercent(radarType) / hundred;
    const double sea = radarSeaPercent(conditions.seaState) / hundred;
    const double rain = radarRainPercent(conditions.rain) / hundred;
    return ringsOf(&RingClass::radarColour, toggles, mapScale, [&](int ringClass) {
        // The order of the factors decides where the last bit goes.
        return rating * rangeOf(radarRangeTable, index, ringClass) * sea * rain * weather;
    });
}

RangeRings::RangeRings(MapState& state, RingConditions conditions, const Profile& profile,
                       ShipCatalogue& catalogue)
    : m_state(state), m_conditions(std::move(conditions)), m_catalogue(catalogue)
{
    if (m_state.toggles.visRingsOn == 1 && !m_conditions.day) {
        m_training = NightTraining(profile);
    }
}

void RangeRings::appendRings(const PlottedShip& ship, MarkList& marks)
{
    const MapToggles& toggles = m_state.toggles;
    const float scale = m_state.view.mapScale;
    if (toggles.gunRingsOn == 1) {
        appendGunRing(ship, marks);
    }
    if (toggles.visRingsOn == 1) {
        const int training = m_training.modifierOf(ship.shortName, ship.shipClass);
        appendLabelled(ship.at, visibilityRings(ship.type, training, m_conditions, toggles, scale), marks);
    }
    if (toggles.radarRingsOn == 1) {
        appendLabelled(ship.at, radarRings(ship.type, ship.radarType, m_conditions, toggles, scale), marks);
    }
}

void RangeRings::appendGunRing(const PlottedShip& ship, MarkList& marks)
{
    const std::optional<std::int32_t> radius =
        gunRadius(m_catalogue.GunsRang(), ship.shipClass, m_state.view.mapScale, m_state.gunRangeValue);
    if (radius) {
        marks.push_back(CircleMark{.centre = ship.at, .radius = *radius, .colour = colourOf(ship.side)});
    }
}

void RangeRings::appendLabelled(PixelPoint at, const std::vector<Ring>& rings, MarkList& marks) const
{
    for (const Ring& ring : rings) {
        marks.push_back(CircleMark{.centre = at, .radius = ring.radius, .colour = ring.colour});
        if (hasRingLabels(m_state.view.zoomIndex)) {
            marks.push_back(TextMark{.at = {.x = at.x, .y = belowBy(at.y, ring.radius)},
                                     .text = ring.label,
                                     .colour = ring.colour});
        }
    }
}

} // namespace torvane
