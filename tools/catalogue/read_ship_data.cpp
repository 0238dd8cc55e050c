#include "catalogue/read_ship_data.h"

#include "catalogue/csv_table.h"
#include "catalogue/row_reader.h"
#include "platform/text_files.h"
#include "ship_selection/ship_lists.h"
#include "store/force_sizes.h"

#include <QDir>

#include <algorithm>
#include <utility>

namespace torvane {

namespace {

constexpr qsizetype longestName = 24;
constexpr qsizetype longestShortName = 12;

constexpr Limits years{1890, 1945};
constexpr Limits tons{200, 80'000};
constexpr Limits lengths{100, 1100};
constexpr Limits beams{15, 150};
constexpr Limits speeds{5, 45};
constexpr Limits belts{0, 20};
constexpr Limits decks{0, 12};
constexpr Limits mainCalibres{2, 20, true};
constexpr Limits ranges{4000, 48'000};
constexpr Limits rangesOrNone{4000, 48'000, true};
constexpr Limits shells{1, 500, true};
constexpr Limits gunsAtPlace{0, 4};
constexpr Limits secondaryCalibres{2, 10, true};
constexpr Limits secondaryGuns{0, 20};
constexpr Limits torpedoDiameters{14, 25, true};
constexpr Limits tubes{0, 10};
constexpr Limits torpedoes{0, 60};

const QStringList shipColumns{"name", "short_name", "type", "class", "navy", "commissioned"};
const QStringList rangeColumns{"class", "range_yd"};
const QStringList secondaryColumns{"sec_fore", "sec_aft", "sec_port", "sec_starboard"};
const QStringList tubeColumns{"tubes_1", "tubes_2", "tubes_3", "tubes_4"};

QString turretColumn(const TurretPlace& place)
{
    return QStringLiteral("tur_") + QChar::fromLatin1(place.letter).toLower();
}

QStringList classColumns()
{
    QStringList columns{"class",
                        "navy",
                        "type",
                        "hull",
                        "year",
                        "standard_tons",
                        "length_ft",
                        "beam_ft",
                        "speed_kn",
                        "belt_in",
                        "deck_in",
                        "main_calibre_in",
                        "main_range_yd",
                        "shells_per_gun",
                        "sec_calibre_in",
                        "torpedo_in",
                        "torpedoes_carried"};
    for (const TurretPlace& place : turretPlaces) {
        columns.append(turretColumn(place));
    }
    return columns + secondaryColumns + tubeColumns;
}

QString readType(const RowReader& row)
{
    return row.word(QStringLiteral("type"), {shipTypes.begin(), shipTypes.end()});
}

QString readNavy(const RowReader& row)
{
    std::vector<QString> navies;
    navies.reserve(listedNavies.size());
    for (const ListedNavy& navy : listedNavies) {
        navies.emplace_back(navy.code);
    }
    return row.word(QStringLiteral("navy"), navies);
}

Hull readHull(const RowReader& row)
{
    const QString merchant = QStringLiteral("merchant");
    return row.word(QStringLiteral("hull"), {QStringLiteral("naval"), merchant}) == merchant ? Hull::Merchant
                                                                                             : Hull::Naval;
}

Ship readShip(const RowReader& row, int line)
{
    return {.line = line,
            .name = row.name("name", longestName),
            .shortName = row.name("short_name", longestShortName),
            .type = readType(row),
            .className = row.name("class", longestName),
            .navy = readNavy(row),
            .commissioned = row.whole("commissioned", years)};
}

void readGuns(ShipClass& shipClass, const RowReader& row)
{
    shipClass.mainCalibreInches = row.decimal("main_calibre_in", mainCalibres);
    shipClass.mainRangeYards = row.whole("main_range_yd", rangesOrNone);
    shipClass.shellsPerGun = row.whole("shells_per_gun", shells);
    for (std::size_t i = 0; i < turretPlaces.size(); ++i) {
        shipClass.gunsAtPlace.at(i) = row.whole(turretColumn(turretPlaces.at(i)), gunsAtPlace);
    }
    shipClass.secondaryCalibreInches = row.decimal("sec_calibre_in", secondaryCalibres);
    for (std::size_t i = 0; i < shipClass.secondaryGuns.size(); ++i) {
        shipClass.secondaryGuns.at(i) =
            row.whole(secondaryColumns.at(static_cast<qsizetype>(i)), secondaryGuns);
    }
}

void readTorpedoes(ShipClass& shipClass, const RowReader& row)
{
    shipClass.torpedoInches = row.decimal("torpedo_in", torpedoDiameters);
    for (std::size_t i = 0; i < shipClass.tubesInMount.size(); ++i) {
        shipClass.tubesInMount.at(i) = row.whole(tubeColumns.at(static_cast<qsizetype>(i)), tubes);
    }
    shipClass.torpedoesCarried = row.whole("torpedoes_carried", torpedoes);
}

ShipClass readClass(const RowReader& row, int line)
{
    ShipClass shipClass{.line = line,
                        .name = row.name("class", longestName),
                        .navy = readNavy(row),
                        .type = readType(row),
                        .hull = readHull(row),
                        .year = row.whole("year", years),
                        .standardTons = row.whole("standard_tons", tons),
                        .lengthFeet = row.decimal("length_ft", lengths),
                        .beamFeet = row.decimal("beam_ft", beams),
                        .speedKnots = row.whole("speed_kn", speeds),
                        .beltInches = row.decimal("belt_in", belts),
                        .deckInches = row.decimal("deck_in", decks)};
    readGuns(shipClass, row);
    readTorpedoes(shipClass, row);
    return shipClass;
}

GunRange readRange(const RowReader& row, int line)
{
    return {
        .line = line, .className = row.name("class", longestName), .yards = row.whole("range_yd", ranges)};
}

template <typename Read>
auto readRecords(const QByteArray& bytes, const QString& file, const QStringList& columns, Read read,
                 Faults& faults)
{
    const CsvTable table = parseCsv(bytes, file, faults);
    Records<decltype(read(std::declval<RowReader>(), 0))> records{
        .file = file, .rows = {}, .lastLine = std::max(table.lines, 1), .whole = table.whole};
    if (table.columns.isEmpty() && table.whole) {
        faults.add(file, 1, QStringLiteral("the file is empty"));
    }
    if (table.columns.isEmpty() || !hasColumns(table, columns, faults)) {
        records.whole = false;
        return records;
    }
    for (const CsvRow& row : table.rows) {
        records.rows.push_back(read(RowReader(table, row, faults), row.line));
    }
    return records;
}

} // namespace

ShipDataFiles readShipDataFiles(const QString& folder)
{
    const QDir directory(folder);
    return {.ships = readWholeFile(directory.filePath("ships.csv")),
            .classes = readWholeFile(directory.filePath("classes.csv")),
            .ranges = readWholeFile(directory.filePath("gun_ranges.csv"))};
}

CatalogueData parseShipData(const ShipDataFiles& files, Faults& faults)
{
    return {.ships = readRecords(files.ships, "ships.csv", shipColumns, readShip, faults),
            .classes = readRecords(files.classes, "classes.csv", classColumns(), readClass, faults),
            .ranges = readRecords(files.ranges, "gun_ranges.csv", rangeColumns, readRange, faults)};
}

} // namespace torvane
