#include "catalogue/write_database.h"

#include "catalogue/derived_values.h"
#include "platform/runtime_error.h"
#include "store/data_controls.h"
#include "store/working_tables.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>

#include <algorithm>
#include <numeric>

namespace torvane {

namespace {

struct Field
{
    QString name;
    QString value;
};
using Fields = std::vector<Field>;

QString text(int number)
{
    return QString::number(number);
}
QString text(double number)
{
    return QString::number(number);
}

void append(Fields& fields, const QStringList& names, const std::array<int, 4>& numbers)
{
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        fields.push_back({names.at(static_cast<qsizetype>(i)), text(numbers.at(i))});
    }
}

void append(Fields& fields, const QStringList& names, const Rounds& rounds)
{
    fields.push_back({names.at(0), text(rounds.highExplosive)});
    fields.push_back({names.at(1), text(rounds.armourPiercing)});
    fields.push_back({names.at(2), text(rounds.common)});
}

Fields shipFields(const Ship& ship, const ShipClass& shipClass)
{
    return {{"Name", ship.name},
            {"Type", ship.type},
            {"Class", ship.className},
            {"Navy", ship.navy},
            {"HitPts", text(hitPoints(shipClass))},
            {"FloatPts", text(floatPoints(shipClass))},
            {"Torps?", text(shipClass.torpedoesCarried)},
            {"ShortName", ship.shortName}};
}

Fields classFields(const ShipClass& shipClass)
{
    Fields fields{{"b", shipClass.name},
                  {"e", text(shipClass.speedKnots)},
                  {"f", text(hitPoints(shipClass))},
                  {"g", text(floatPoints(shipClass))}};
    append(fields, {"h", "i", "j"}, mainMagazine(shipClass, Magazine::A));
    append(fields, {"k", "l", "m"}, mainMagazine(shipClass, Magazine::B));
    append(fields, {"o", "p", "q", "r"}, shipClass.secondaryGuns);
    append(fields, {"t", "u", "v"}, secondaryMagazine(shipClass));
    append(fields, {"x", "y", "z", "aa"}, torpedoesOfMounts(shipClass));
    // A third of the field is the size in yards, so that the field is in feet.
    fields.push_back({"length", text(shipClass.lengthFeet)});
    fields.push_back({"width", text(shipClass.beamFeet)});
    for (std::size_t i = 0; i < turretPlaces.size(); ++i) {
        fields.push_back({QStringLiteral("Tur") + QChar::fromLatin1(turretPlaces.at(i).letter),
                          text(shipClass.gunsAtPlace.at(i))});
    }
    return fields;
}

Fields rangeFields(const GunRange& range)
{
    return {{"Class", range.className}, {"Range", text(range.yards)}};
}

Fields gunFields(const ShipClass& shipClass)
{
    const int guns = std::accumulate(shipClass.gunsAtPlace.begin(), shipClass.gunsAtPlace.end(), 0);
    return {{"Class", shipClass.name},
            {"Calibre", text(shipClass.mainCalibreInches)},
            {"Guns", text(guns)},
            {"Shells", text(shipClass.shellsPerGun)}};
}

/// Makes a table with the columns of the first row and puts all rows into it.
void makeTable(Database& database, const QString& table, const std::vector<Fields>& rows)
{
    QStringList columns;
    QStringList places;
    for (const Field& field : rows.front()) {
        columns.append(QStringLiteral("\"%1\" TEXT").arg(field.name));
        places.append(QStringLiteral("?"));
    }
    database.execute(QStringLiteral("CREATE TABLE \"%1\" (%2)").arg(table, columns.join(", ")), table);
    QSqlQuery insert(database.connection());
    insert.prepare(QStringLiteral("INSERT INTO \"%1\" VALUES (%2)").arg(table, places.join(", ")));
    for (const Fields& row : rows) {
        for (int i = 0; const Field& field : row) {
            insert.bindValue(i++, field.value);
        }
        if (!insert.exec()) {
            database.fail(table, insert.lastError());
        }
    }
}

template <typename Record, typename ToFields>
std::vector<Fields> tableOf(const std::vector<Record>& records, ToFields toFields)
{
    std::vector<Fields> rows;
    std::transform(records.begin(), records.end(), std::back_inserter(rows), toFields);
    return rows;
}

const ShipClass& classOf(const CatalogueData& data, const Ship& ship)
{
    const auto& rows = data.classes.rows;
    return *std::find_if(rows.begin(), rows.end(),
                         [&](const ShipClass& row) { return row.name == ship.className; });
}

void makeTables(const CatalogueData& data, const QString& path)
{
    Database database(path, Database::Access::Create);
    database.execute(QStringLiteral("BEGIN"));
    const auto withClass = [&](const Ship& ship) { return shipFields(ship, classOf(data, ship)); };
    makeTable(database, QStringLiteral("ShipDataB"), tableOf(data.ships.rows, withClass));
    makeTable(database, QStringLiteral("ShipDaClass"), tableOf(data.classes.rows, classFields));
    makeTable(database, QStringLiteral("GunsRang"), tableOf(data.ranges.rows, rangeFields));
    makeTable(database, QStringLiteral("gunTable"), tableOf(data.classes.rows, gunFields));
    database.execute(QStringLiteral("COMMIT"));
}

} // namespace

void writeShipDatabase(const CatalogueData& data, const QString& path)
{
    placeDatabase(path, [&data](const QString& made) { makeTables(data, made); });
}

} // namespace torvane
