#include "map/map_plotting.h"

#include "map/named_overflow.h"
#include "platform/number_text.h"
#include "store/profile_keys.h"
#include "store/ship_catalogue.h"
#include "store/units.h"
#include "store/working_profile.h"

#include <optional>

namespace torvane {

namespace {

constexpr int separationYards = 1000;
constexpr int shipsRinged = 10; // of a division, whatever it counts
constexpr int darkEvery = 5;    // the counter's value at a dark grid line

PixelPoint moved(PixelPoint point, std::int32_t x, std::int32_t y)
{
    return {.x = point.x + x, .y = point.y + y};
}

/// Which grid lines are dark: the fourth, the eighth and so on.
class LineCounter
{
public:
    bool isDark()
    {
        const bool dark = m_count == darkEvery;
        m_count = dark ? 2 : m_count + 1;
        return dark;
    }

private:
    int m_count = 2;
};

QString labelOf(const PlottedShip& ship, int namesMode)
{
    switch (namesMode) {
    case 0:
        return ship.type + QLatin1Char(' ') + ship.shortName;
    case 1:
        return ship.shortName;
    case 2:
        return ship.type;
    default:
        return {};
    }
}

void appendFlagshipMarks(const PlottedShip& ship, const QString& label, const QString& divisionMark,
                         MarkList& marks)
{
    const PixelPoint foot = moved(ship.at, 1, 0);
    const PixelPoint near = moved(ship.at, 1, -15);
    const PixelPoint far = moved(ship.at, 11, -22);
    const MapColour colour = colourOf(ship.side);
    marks.push_back(BoxMark{.from = near, .to = far, .colour = colour, .filled = true});
    marks.push_back(BoxMark{.from = near, .to = far});
    marks.push_back(LineMark{.from = near, .to = foot});
    marks.push_back(TextMark{.at = ship.at, .text = label, .colour = colour});
    marks.push_back(TextMark{
        .at = moved(ship.at, 1, -35), .text = divisionMark + ship.divisionName.right(1), .colour = colour});
}

/// The number of "Division 1" to "Division 6", 0 for another name.
int divisionNumber(const QString& name)
{
    const QChar digit = name.isEmpty() ? QChar() : name.back();
    const bool known = name.size() == storedDivisionWord.size() + 1 && name.startsWith(storedDivisionWord) &&
                       digit >= u'1' && digit <= u'6';
    return known ? digit.unicode() - u'0' : 0;
}

/// A division's section as the map reads it.
struct PlottedDivision
{
    QString name;
    Side side;
    std::int16_t heading;
    std::int16_t ships;
    std::int32_t flagship; ///< from 1
};

/// What a file holds may be of any length; a box has to show it.
QString shownOf(const QString& value)
{
    constexpr qsizetype longest = 40;
    return value.size() > longest ? value.left(longest) + QStringLiteral("...") : value;
}

/// A value of the profile as the author finds it there.
QString namedValue(QStringView key, const QString& value, const QString& section)
{
    return QStringLiteral("%1 %2 of %3").arg(key, shownOf(value), section);
}

QString namedPosition(const QString& x, const QString& z, const QString& section, const QString& shortName)
{
    return QStringLiteral("XPOSITION %1, ZPOSITION %2 of %3 (%4)")
        .arg(shownOf(x), shownOf(z), section, shownOf(shortName));
}

/// Nothing if one of the keys is missing.
std::optional<PlottedDivision> readDivision(const WorkingProfile& profile, const QString& section)
{
    std::array<QString, 8> values;
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = profile.GetIniKey(section, divisionKeys[i]);
        if (values[i] == invalidValue) {
            return std::nullopt;
        }
    }
    const auto& [name, side, formation, heading, spacing, speed, ships, flagship] = values;
    const auto number = [&section](QStringView key, const QString& value, auto convert) {
        return namingOverflow([&] { return namedValue(key, value, section); },
                              [&] { return convert(numberValue(value)); });
    };
    return PlottedDivision{.name = name,
                           .side = sideOfWord(side),
                           .heading = number(u"FORMATIONHEADING", heading, toInt16),
                           .ships = number(u"SHIPCNT", ships, toInt16),
                           .flagship = number(u"FLAGSHIPINDEX", flagship,
                                              [](double index) { return toInt32(roundEven(index) + 1); })};
}

} // namespace

MarkList gridMarks(const ViewState& view, bool day, bool labels)
{
    MarkList marks;
    const std::int16_t spacing = gridSpacing(view.gridIndex, view.zoomIndex, day);
    const std::int16_t step = toInt16(static_cast<double>(spacing) / mapScale(view.zoomIndex, day));
    const std::int32_t start = toInt32(step / 2.0);
    LineCounter columns;
    for (std::int32_t x = start; x <= view.mapWidthPx + 1; x += step) {
        const MapColour colour = columns.isDark() ? mapColours::darkGridLine : mapColours::gridLine;
        marks.push_back(LineMark{.from = {x, 0}, .to = {x, view.mapHeightPx}, .colour = colour});
    }
    const QString text = QString::number(spacing) + QStringLiteral("  yds");
    LineCounter rows;
    for (std::int32_t y = start; y <= view.mapHeightPx + 1; y += step) {
        const bool dark = rows.isDark();
        const MapColour colour = dark ? mapColours::darkGridLine : mapColours::gridLine;
        marks.push_back(LineMark{.from = {0, y}, .to = {view.mapWidthPx, y}, .colour = colour});
        if (labels && !dark) {
            marks.push_back(LineMark{.from = {toInt32(step / 2.0 + 1), y},
                                     .to = {toInt32(step / 2.0 + step), y},
                                     .colour = mapColours::white});
            marks.push_back(TextMark{.at = {step - 5, y}, .text = text, .colour = mapColours::white});
        }
    }
    return marks;
}

void appendShipMarks(const PlottedShip& ship, int namesMode, const QString& divisionMark, MarkList& marks)
{
    const auto end = [&ship](double y) {
        return turnedAbout(ship.at, {.x = toInt16(ship.at.x), .y = toInt16(y)}, ship.heading);
    };
    const PixelPoint bow = end(ship.at.y - ship.lengthPx / 2.0);
    const PixelPoint stern = end(ship.lengthPx / 2.0 + ship.at.y);
    marks.push_back(LineMark{.from = bow, .to = stern});
    marks.push_back(BoxMark{
        .from = moved(bow, -1, -1), .to = moved(bow, 1, 1), .colour = mapColours::white, .filled = true});
    const QString label = labelOf(ship, namesMode);
    if (ship.flagship) {
        appendFlagshipMarks(ship, label, divisionMark, marks);
    } else {
        marks.push_back(TextMark{.at = ship.at, .text = label, .colour = mapColours::white});
    }
}

EditShipEntry editShipEntry(const PlottedShip& ship)
{
    QString name = ship.shortName;
    if (name == ambiguousShortName) {
        name += ship.shipClass == u"Benson" ? QStringLiteral(" USN") : QStringLiteral(" RN");
    }
    return {.side = ship.side,
            .division = divisionNumber(ship.divisionName),
            .ship = ship.number,
            .caption = ship.type + QLatin1Char(' ') + name};
}

static void appendMarksOfTarget(MapState& state, MarkList& marks)
{
    const ViewState& view = state.view;
    TargetArea& area = state.target.area;
    const std::int32_t width = toInt32(double{static_cast<float>(area.dim) * yardsPerMetre});
    const std::int32_t diameter = offsetOf({.x = width, .z = 0}, view.mapScale).x;
    const std::int32_t radius = toInt32(diameter / 2.0);
    const PixelPoint centre = state.target.armed ? PixelPoint{.x = view.anchorX, .y = view.anchorZ}
                                                 : toScreen({.x = area.x, .z = area.z}, view);
    const auto corner = [&](int x, int y) { return moved(centre, x * radius, y * radius); };
    constexpr MapColour colour = mapColours::targetArea;
    marks.push_back(CircleMark{.centre = centre, .radius = radius, .colour = colour});
    marks.push_back(LineMark{.from = corner(-1, -1), .to = corner(1, 1), .colour = colour});
    marks.push_back(LineMark{.from = corner(1, -1), .to = corner(-1, 1), .colour = colour});
    const Yards snapped = toWorld(centre, view);
    area.x = snapped.x;
    area.z = snapped.z;
}

void appendTargetArea(MapState& state, MarkList& marks)
{
    const auto named = [&area = state.target.area] {
        return QStringLiteral("target area at %1 X %2").arg(area.x).arg(area.z);
    };
    namingOverflow(named, [&] { appendMarksOfTarget(state, marks); });
}

MapPlotter::MapPlotter(const WorkingProfile& profile, ShipCatalogue& catalogue, MapState& state,
                       const QString& divisionMark)
    : m_profile(profile), m_catalogue(catalogue), m_state(state), m_divisionMark(divisionMark)
{
}

void MapPlotter::drawDivisions(bool day, const RingDrawer& rings, MapPicture& picture)
{
    for (int n = 0; n < divisionSections; ++n) {
        const QString section = divisionSection(n);
        const std::optional<PlottedDivision> division = readDivision(m_profile, section);
        if (!division) {
            return;
        }
        for (int number = 1; number <= division->ships; ++number) {
            const QString place = shipSection(section, number - 1);
            const auto key = [&](QStringView name) { return m_profile.GetIniKey(place, name); };
            PlottedShip ship{.heading = division->heading,
                             .type = key(u"TYPE"),
                             .shortName = key(u"SHORTNAME"),
                             .shipClass = key(u"CLASS"),
                             .radarType = key(u"RADARTYPE"),
                             .divisionName = division->name,
                             .number = number,
                             .flagship = number == division->flagship,
                             .side = division->side};
            plotShip(ship, {.section = place, .x = key(u"XPOSITION"), .z = key(u"ZPOSITION")}, day, rings,
                     picture);
        }
    }
}

void MapPlotter::plotShip(PlottedShip& ship, const WrittenPosition& written, bool day,
                          const RingDrawer& rings, MapPicture& picture)
{
    const auto named = [&] { return namedPosition(written.x, written.z, written.section, ship.shortName); };
    const Yards position = namingOverflow(named, [&] { return positionOf(written.x, written.z); });
    anchorFromPosition(m_state.view, day);
    m_state.shipLengthYards = m_catalogue.lengthUnits(ship.shipClass).value_or(m_state.shipLengthYards);
    const float scale = m_state.view.mapScale;
    ship.at = toScreen(position, m_state.view);
    ship.lengthPx = toInt32(numberValue(textOf(static_cast<float>(m_state.shipLengthYards) / scale)));
    m_state.shipLengthYards = ship.lengthPx;
    namingOverflow(named,
                   [&] { appendShipMarks(ship, m_state.toggles.namesMode, m_divisionMark, picture.marks); });
    if (rings) {
        rings(ship, picture.marks);
    }
    picture.ships.push_back(editShipEntry(ship));
}

void MapPlotter::drawSeparationRings(MarkList& marks) const
{
    const ViewState& view = m_state.view;
    const PixelOffset radius = flooredOffsetOf({.x = separationYards, .z = 0}, view.mapScale);
    for (int n = 0; n < divisionSections; ++n) {
        if (m_profile.GetIniKey(divisionSection(n), u"DIVISIONNAME") == invalidValue) {
            return;
        }
        for (int m = 0; m < shipsRinged; ++m) {
            const QString section = shipSection(n, m);
            const auto key = [&](QStringView name) { return m_profile.GetIniKey(section, name); };
            const QString x = key(u"XPOSITION");
            const QString z = key(u"ZPOSITION");
            const auto named = [&] { return namedPosition(x, z, section, key(u"SHORTNAME")); };
            const PixelOffset offset =
                namingOverflow(named, [&] { return flooredOffsetOf(positionOf(x, z), view.mapScale); });
            if (offset.x != 0 && offset.z != 0) {
                marks.push_back(CircleMark{.centre = fromOrigin(offset, view), .radius = radius.x});
            }
        }
    }
}

} // namespace torvane
