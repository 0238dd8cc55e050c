#include "catalogue/check_ship_data.h"

#include "ship_selection/ship_lists.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace torvane {

namespace {

/// Rows by a name, compared letter for letter. Of two rows of one name the first stands.
template <typename Record>
class ByName
{
public:
    ByName(const std::vector<Record>& rows, QString Record::*name)
    {
        for (const Record& row : rows) {
            if (!m_rows.contains(row.*name)) {
                m_rows.insert(row.*name, &row);
            }
        }
    }

    /// Null if there is none.
    const Record* find(const QString& name) const { return m_rows.value(name); }

private:
    QHash<QString, const Record*> m_rows;
};

int mainGuns(const ShipClass& shipClass)
{
    return std::accumulate(shipClass.gunsAtPlace.begin(), shipClass.gunsAtPlace.end(), 0);
}

/// "Duncan" is the one short name of two ships. The editor tells them apart by their classes.
bool mayShareShortName(const Ship& first, const Ship& second)
{
    return first.shortName == QLatin1StringView("Duncan") && second.shortName == first.shortName &&
           first.className != second.className;
}

/// Reports every row whose name an earlier row has, unless `allowed` lets the two have it. Upper and lower
/// case are alike, since sections of a scenario are.
template <typename Record, typename Allowed>
void checkOnce(const Records<Record>& records, QString Record::*name, const QString& what, Allowed allowed,
               Faults& faults)
{
    QHash<QString, QList<const Record*>> seen;
    for (const Record& row : records.rows) {
        QList<const Record*>& earlier = seen[(row.*name).toUpper()];
        const bool right = earlier.isEmpty() || (earlier.size() == 1 && allowed(*earlier.first(), row));
        if (!right) {
            faults.add(records.file, row.line,
                       QStringLiteral("double %1 \"%2\", first in line %3")
                           .arg(what, row.*name, QString::number(earlier.first()->line)));
        }
        earlier.append(&row);
    }
}

void checkNames(const CatalogueData& data, Faults& faults)
{
    const auto never = [](const auto&, const auto&) { return false; };
    checkOnce(data.ships, &Ship::name, QStringLiteral("name"), never, faults);
    checkOnce(data.ships, &Ship::shortName, QStringLiteral("short name"), mayShareShortName, faults);
    checkOnce(data.classes, &ShipClass::name, QStringLiteral("class"), never, faults);
    checkOnce(data.ranges, &GunRange::className, QStringLiteral("class"), never, faults);
}

void checkShip(const Ship& ship, const ShipClass& shipClass, const QString& file, Faults& faults)
{
    const auto fault = [&](const QString& reason) { faults.add(file, ship.line, ship.name + u' ' + reason); };
    if (ship.type != shipClass.type) {
        fault(QStringLiteral("is of type %1, her class of type %2").arg(ship.type, shipClass.type));
    }
    if (ship.navy != shipClass.navy) {
        fault(QStringLiteral("is of navy %1, her class of navy %2").arg(ship.navy, shipClass.navy));
    }
    if (ship.commissioned < shipClass.year) {
        fault(
            QStringLiteral("of %1 is older than her class of %2").arg(ship.commissioned).arg(shipClass.year));
    }
    if (ship.commissioned > shipClass.year + mostYearsBehindClass) {
        fault(QStringLiteral("of %1 is more than %2 years younger than her class of %3")
                  .arg(ship.commissioned)
                  .arg(mostYearsBehindClass)
                  .arg(shipClass.year));
    }
}

void checkShips(const CatalogueData& data, Faults& faults)
{
    const ByName<ShipClass> classes(data.classes.rows, &ShipClass::name);
    for (const Ship& ship : data.ships.rows) {
        if (const ShipClass* const shipClass = classes.find(ship.className)) {
            checkShip(ship, *shipClass, data.ships.file, faults);
        } else if (data.classes.whole) {
            faults.add(
                data.ships.file, ship.line,
                QStringLiteral("the class \"%1\" has no row in %2").arg(ship.className, data.classes.file));
        }
    }
}

void checkClassIsUsed(const CatalogueData& data, Faults& faults)
{
    const ByName<Ship> ships(data.ships.rows, &Ship::className);
    for (const ShipClass& shipClass : data.classes.rows) {
        if (data.ships.whole && ships.find(shipClass.name) == nullptr) {
            faults.add(data.classes.file, shipClass.line,
                       QStringLiteral("the class \"%1\" has no ships").arg(shipClass.name));
        }
    }
}

/// Weapons without what they need, or that without the weapons.
void checkWeapons(const ShipClass& shipClass, const QString& file, Faults& faults)
{
    const auto require = [&](int weapons, double other, const QString& what, const QString& otherName) {
        if ((weapons > 0) != (other > 0)) {
            faults.add(file, shipClass.line,
                       (weapons > 0 ? QStringLiteral("%1 but no %2") : QStringLiteral("no %1 but a %2"))
                           .arg(what, otherName));
        }
    };
    const QString main = QStringLiteral("main guns");
    const QString torpedoTubes = QStringLiteral("torpedo tubes");
    const int tubes = std::accumulate(shipClass.tubesInMount.begin(), shipClass.tubesInMount.end(), 0);
    const int secondary = std::accumulate(shipClass.secondaryGuns.begin(), shipClass.secondaryGuns.end(), 0);
    require(mainGuns(shipClass), shipClass.mainCalibreInches, main, QStringLiteral("main_calibre_in"));
    require(mainGuns(shipClass), shipClass.mainRangeYards, main, QStringLiteral("main_range_yd"));
    require(mainGuns(shipClass), shipClass.shellsPerGun, main, QStringLiteral("shells_per_gun"));
    require(secondary, shipClass.secondaryCalibreInches, QStringLiteral("secondary guns"),
            QStringLiteral("sec_calibre_in"));
    require(tubes, shipClass.torpedoInches, torpedoTubes, QStringLiteral("torpedo_in"));
    if (shipClass.torpedoesCarried < tubes || (tubes == 0 && shipClass.torpedoesCarried > 0)) {
        faults.add(file, shipClass.line,
                   QStringLiteral("%1 torpedoes for %2 tubes").arg(shipClass.torpedoesCarried).arg(tubes));
    }
}

void checkRangeOfClass(const CatalogueData& data, const ShipClass& shipClass, const ByName<GunRange>& ranges,
                       Faults& faults)
{
    if (mainGuns(shipClass) > 0 && data.ranges.whole && ranges.find(shipClass.name) == nullptr) {
        faults.add(data.classes.file, shipClass.line,
                   QStringLiteral("the class \"%1\" has main guns but no row in %2")
                       .arg(shipClass.name, data.ranges.file));
    }
}

void checkRange(const CatalogueData& data, const GunRange& range, const ByName<ShipClass>& classes,
                Faults& faults)
{
    const auto fault = [&](const QString& reason) { faults.add(data.ranges.file, range.line, reason); };
    const ShipClass* const shipClass = classes.find(range.className);
    if (shipClass == nullptr) {
        if (data.classes.whole) {
            fault(
                QStringLiteral("the class \"%1\" has no row in %2").arg(range.className, data.classes.file));
        }
        return;
    }
    if (mainGuns(*shipClass) == 0) {
        fault(QStringLiteral("the class \"%1\" has no main guns").arg(range.className));
    } else if (range.yards != shipClass->mainRangeYards) {
        fault(QStringLiteral("the class \"%1\" shoots %2 yards here and %3 in %4")
                  .arg(range.className)
                  .arg(range.yards)
                  .arg(shipClass->mainRangeYards)
                  .arg(data.classes.file));
    }
}

void checkClasses(const CatalogueData& data, Faults& faults)
{
    const ByName<GunRange> ranges(data.ranges.rows, &GunRange::className);
    for (const ShipClass& shipClass : data.classes.rows) {
        checkWeapons(shipClass, data.classes.file, faults);
        checkRangeOfClass(data, shipClass, ranges, faults);
    }
    const ByName<ShipClass> classes(data.classes.rows, &ShipClass::name);
    for (const GunRange& range : data.ranges.rows) {
        checkRange(data, range, classes, faults);
    }
}

void checkNumberOfShips(const Records<Ship>& ships, const ListedNavy& navy, Faults& faults)
{
    int count = 0;
    int line = ships.lastLine;
    for (const Ship& ship : ships.rows) {
        if (ship.navy == navy.code && ++count == navy.rows + 1) {
            line = ship.line;
        }
    }
    if (count > navy.rows || (count < navy.rows && ships.whole)) {
        faults.add(ships.file, line,
                   QStringLiteral("%1 ships of navy %2, the editor needs exactly %3")
                       .arg(QString::number(count), navy.code, QString::number(navy.rows)));
    }
}

} // namespace

void checkShipData(const CatalogueData& data, Faults& faults)
{
    checkNames(data, faults);
    checkShips(data, faults);
    checkClassIsUsed(data, faults);
    checkClasses(data, faults);
    for (const ListedNavy& navy : listedNavies) {
        checkNumberOfShips(data.ships, navy, faults);
    }
}

} // namespace torvane
