#pragma once

#include "ship_record_fixture.h"
#include "ship_selection/selection_rules.h"

#include <algorithm>

namespace torvane::testing {

/// A ship of a test's catalogue.
struct TestShip
{
    QString type;
    QString name;
    QString shipClass = "K";
    QString navy = "RN";
    QString hitPts = "1";
};

/// Catalogues of a test's own ships, and the ship grid over them.
class ShipListsFixture : public ShipRecordFixture
{
protected:
    /// Makes the catalogue of these ships and of their classes, in this order.
    void makeCatalogue(const QList<TestShip>& ships) const
    {
        CatalogueFile file(catalogueFile());
        file.run("BEGIN");
        QStringList classes;
        for (const TestShip& ship : ships) {
            const QStringList fields{ship.type,   ship.name,      ship.shipClass, ship.navy,
                                     ship.hitPts, "float points", "torpedoes",    "short " + ship.name};
            QStringList quoted;
            for (QString field : fields) {
                quoted.append('\'' + field.replace("'", "''") + '\'');
            }
            file.run("INSERT INTO ShipDataB (Type, Name, Class, Navy, HitPts, FloatPts, \"Torps?\", "
                     "ShortName) VALUES (" +
                     quoted.join(", ") + ")");
            if (!classes.contains(ship.shipClass)) {
                classes.append(ship.shipClass);
                file.addClass(ship.shipClass, {{"f", "1"}});
            }
        }
        file.run("COMMIT");
    }

    /// So many ships of a navy, named by navy and number from 1.
    static QList<TestShip> shipsOf(const QString& navy, int count, const QString& type = "DD")
    {
        QList<TestShip> ships;
        for (int i = 1; i <= count; ++i) {
            ships.append({.type = type, .name = navy + ' ' + QString::number(i), .navy = navy});
        }
        return ships;
    }
    /// As many ships as all lists take.
    static QList<TestShip> fullCatalogue()
    {
        return shipsOf("RN", 424) + shipsOf("USN", 399) + shipsOf("KM", 198) + shipsOf("IJN", 245);
    }

    ShipLists lists() { return ShipLists(catalogue.ShipDataB()); }
    ShipLists listsOf(const QList<TestShip>& ships)
    {
        makeCatalogue(ships);
        return lists();
    }
    static QStringList names(const ShipLists::List& list)
    {
        QStringList found;
        for (const ShipRow& ship : list) {
            found.append(ship[ShipColumn::Name]);
        }
        return found;
    }
    static QStringList shownNames(const ShipBrowser& browser)
    {
        QStringList found;
        for (int row = 0; row < browser.rowCount(); ++row) {
            found.append(browser.text(row, ShipColumn::Name));
        }
        return found;
    }
    static QStringList markedNames(const ShipBrowser& browser)
    {
        QStringList found;
        for (int row = 0; row < browser.rowCount(); ++row) {
            if (browser.text(row, ShipColumn::Selected) == "  *   --->") {
                found.append(browser.text(row, ShipColumn::Name));
            }
        }
        return found;
    }
    static int rowOf(const ShipBrowser& browser, const QString& name)
    {
        const qsizetype row = shownNames(browser).indexOf(name);
        EXPECT_GE(row, 0) << name.toStdString();
        return static_cast<int>(std::max<qsizetype>(row, 0));
    }
};

} // namespace torvane::testing
