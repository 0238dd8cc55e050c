#include "divisions/formation_placement.h"

#include "divisions/division_records.h"
#include "map/map_view.h"
#include "platform/number_text.h"
#include "platform/runtime_error.h"
#include "store/force_sizes.h"
#include "store/profile_keys.h"
#include "store/ship_catalogue.h"
#include "store/side.h"
#include "store/working_profile.h"

#include <array>

namespace torvane {

namespace {

constexpr int places = shipsPerDivision;

/// A row a count of ships, a column a place. The rows of 8 and 10 ships are uneven. Kept.
constexpr std::array<std::array<const char*, places>, places> convoyTable{{
    {"0,0", "", "", "", "", "", "", "", "", ""},
    {"-.5,0", ".5,0", "", "", "", "", "", "", "", ""},
    {"-.5,-.5", ".5,-.5", "-.5,.5", "", "", "", "", "", "", ""},
    {"-.5,-.5", ".5,-.5", "-.5,.5", ".5,.5", "", "", "", "", "", ""},
    {"-1,-.5", "0,-.5", "1,-.5", "-.5,.5", ".5,.5", "", "", "", "", ""},
    {"-1,-.5", "0,-.5", "1,-.5", "-1,.5", "0,.5", "1,.5", "", "", "", ""},
    {"-1,-1", "0,-1", "1,-1", "-1,0", "0,0", "1,0", "0,1", "", "", ""},
    {"-2,-.5", "-.5,-.5", ".5,-.5", "2,-.5", "-2,.5", "-.5,.5", ".5,.5", "2,.5", "", ""},
    {"-1,-1", "0,-1", "1,-1", "-1,0", "0,0", "1,0", "-1,1", "0,1", "1,1", ""},
    {"-2,-1", "-.5,-1", ".5,-1", "2,-1", "-2,0", "-.5,0", ".5,0", "2,0", "-.5,1.5", ".5,1.5"},
}};

RuntimeError noSuchPlace(int number)
{
    return {RuntimeError::SubscriptOutOfRange,
            QStringLiteral("Subscript out of range: ship %1 of a division").arg(number)};
}

/// Where a ship of a line stands before the line is turned.
PixelOffset linePoint(Formation formation, int place, std::int16_t step, PixelOffset anchor)
{
    const std::int32_t distance = (place - 1) * step;
    return formation == Formation::Column ? PixelOffset{.x = anchor.x, .z = anchor.z + distance}
                                          : PixelOffset{.x = anchor.x + distance, .z = anchor.z};
}

PixelOffset convoyPoint(int count, int place, std::int16_t step, PixelOffset anchor)
{
    const QLatin1StringView text = convoyOffset(count, place);
    const qsizetype comma = text.indexOf(u',');
    const auto x = static_cast<float>(numberValue(text.left(comma).toString()));
    const auto z = static_cast<float>(numberValue(text.mid(comma + 1).toString()));
    const auto pixels = static_cast<float>(step);
    return {.x = toInt32(double{pixels * x + static_cast<float>(anchor.x)}),
            .z = toInt32(double{pixels * z + static_cast<float>(anchor.z)})};
}

} // namespace

std::optional<Formation> formationOf(QStringView stored)
{
    constexpr std::array formations{Formation::Column, Formation::LineOfBearing, Formation::Convoy};
    for (std::size_t i = 0; i < formations.size(); ++i) {
        if (stored == QLatin1StringView(formationWords[i].english)) {
            return formations[i];
        }
    }
    return std::nullopt;
}

QLatin1StringView convoyOffset(int count, int place)
{
    for (const int number : {count, place}) {
        if (number < 1 || number > places) {
            throw noSuchPlace(number);
        }
    }
    return QLatin1StringView(
        convoyTable[static_cast<std::size_t>(count - 1)][static_cast<std::size_t>(place - 1)]);
}

RepositionKey cutRepositionKey(QStringView repositionKey)
{
    const double number = numberValue(repositionKey.right(1));
    return {.side = repositionKey.left(4).trimmed().toString(),
            .divisionName = storedDivisionName(textOf(number))};
}

/// What the placement keeps of a division's ships: of the classes only the last one's.
struct FormationPlacement::Ships
{
    QStringList shortNames;
    QString lastClass;
};

FormationPlacement::FormationPlacement(WorkingProfile& profile, ShipCatalogue& catalogue, ViewState& view)
    : m_profile(profile), m_catalogue(catalogue), m_view(view)
{
}

void FormationPlacement::findDivisionToPlace(QStringView repositionKey, bool day)
{
    if (const auto division = findDivision(cutRepositionKey(repositionKey))) {
        placeDivision(*division, day);
    }
}

std::optional<DivisionToPlace> FormationPlacement::findDivision(const RepositionKey& key) const
{
    std::array<QString, 8> values;
    const auto& [name, side, formation, heading, spacing, speed, count, flagshipIndex] = values;
    for (int n = 0; n < divisionSections; ++n) {
        const QString section = divisionSection(n);
        for (std::size_t i = 0; i < values.size(); ++i) {
            const QString read = m_profile.GetIniKey(section, divisionKeys[i]);
            if (read != invalidValue) {
                values[i] = read;
            }
        }
        if (name == key.divisionName && side == key.side) {
            return DivisionToPlace{.section = section,
                                   .name = name,
                                   .formation = formation,
                                   .count = toInt16(numberValue(count)),
                                   .heading = toInt16(numberValue(heading)),
                                   .spacing = toInt16(numberValue(spacing)),
                                   .colour = sideOfWord(side) == Side::Blue ? 9 : 12,
                                   .flagshipPlace = toInt32(roundEven(numberValue(flagshipIndex)) + 1)};
        }
    }
    return std::nullopt;
}

FormationPlacement::Ships FormationPlacement::shipsOf(const DivisionToPlace& division)
{
    Ships ships;
    for (int place = 1; place <= division.count; ++place) {
        if (place > places) {
            throw noSuchPlace(place);
        }
        const QString section = shipSection(division.section, place - 1);
        ships.shortNames.append(m_profile.GetIniKey(section, u"SHORTNAME"));
        ships.lastClass = m_profile.GetIniKey(section, u"CLASS");
        // Sizes move no ship, spacing runs from centre to centre; but the class table stands at this class
        // afterwards.
        m_catalogue.lengthUnits(ships.lastClass);
    }
    return ships;
}

void FormationPlacement::placeDivision(const DivisionToPlace& division, bool day)
{
    const std::optional<Formation> formation = formationOf(division.formation);
    const Ships ships = shipsOf(division);
    if (!formation || ships.shortNames.isEmpty()) {
        return;
    }
    const PixelOffset anchor = m_view.anchor();
    // Rounded before it is multiplied, so the error grows along the line. Kept.
    const std::int16_t step = toInt16(double{static_cast<float>(division.spacing) / m_view.mapScale});
    for (int place = 1; place <= division.count; ++place) {
        const QString& shortName = ships.shortNames[place - 1];
        if (formation == Formation::Convoy) {
            writeShipPosition(convoyPoint(division.count, place, step, anchor), shortName, ships.lastClass,
                              day);
        } else {
            rotateShipAboutAnchor(linePoint(*formation, place, step, anchor), division.heading, shortName,
                                  ships.lastClass, day);
        }
    }
}

void FormationPlacement::rotateShipAboutAnchor(PixelOffset start, std::int16_t heading,
                                               const QString& shortName, const QString& shipClass, bool day)
{
    if (m_view.mapScale == 0) {
        return;
    }
    writeShipPosition(turnedAbout(m_view.anchor(), start, heading), shortName, shipClass, day);
}

void FormationPlacement::writeShipPosition(PixelOffset point, const QString& shortName,
                                           const QString& shipClass, bool day)
{
    m_view.mapScale = mapScale(m_view.zoomIndex, day);
    const Yards position = positionAt(point, m_view.mapScale);
    for (int n = 0; n < divisionSections; ++n) {
        for (int m = 0; m < shipSections; ++m) {
            const QString section = shipSection(n, m);
            const auto key = [&](QStringView name) { return m_profile.GetIniKey(section, name); };
            if (key(u"SHORTNAME") != shortName || !isShip(key(u"NAME"))) {
                continue;
            }
            if (shortName == ambiguousShortName && key(u"CLASS") != shipClass) {
                continue;
            }
            m_profile.write(section, u"XPOSITION", QString::number(position.x));
            m_profile.write(section, u"ZPOSITION", QString::number(position.z));
        }
    }
}

} // namespace torvane
