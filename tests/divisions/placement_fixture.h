#pragma once

#include "divisions/formation_placement.h"
#include "divisions/records_fixture.h"
#include "map/map_view.h"
#include "support/expect_error.h"

#include <string>
#include <vector>

namespace torvane::testing {

/// Divisions of ships in the profile, and a view of 10 yards a pixel whose anchor is at (100, 200).
class PlacementFixture : public RecordsFixture
{
protected:
    /// At level 0: 10 yards a pixel by day, 5 at night.
    PlacementFixture()
    {
        view.zoomIndex = 11;
        view.mapScale = 10;
        view.anchorX = 100;
        view.anchorZ = 200;
    }

    void set(const QString& section, const char* key, const QString& value)
    {
        profile.write(section, QString::fromLatin1(key), value);
    }
    void describe(int section, const char* formation, int count, int spacing, int heading,
                  const char* side = "Blue", int number = 1)
    {
        const ProfileStore::Batch batch(store);
        const QString name = divisionSection(section);
        set(name, "DIVISIONNAME", QStringLiteral("Division %1").arg(number));
        set(name, "SIDE", QString::fromLatin1(side));
        set(name, "FORMATION", QString::fromLatin1(formation));
        set(name, "FORMATIONHEADING", QString::number(heading));
        set(name, "FORMATIONSPACING", QString::number(spacing));
        set(name, "SPEED", QStringLiteral("20"));
        set(name, "SHIPCNT", QString::number(count));
        set(name, "FLAGSHIPINDEX", QStringLiteral("0"));
    }
    void addShip(int division, int place, const QString& shortName,
                 const QString& shipClass = QStringLiteral("Small"))
    {
        const ProfileStore::Batch batch(store);
        const QString section = shipSection(division, place);
        set(section, "NAME", shortName + QStringLiteral(" in full"));
        set(section, "SHORTNAME", shortName);
        set(section, "TYPE", QStringLiteral("DD"));
        set(section, "CLASS", shipClass);
        set(section, "XPOSITION", QStringLiteral("0.000000"));
        set(section, "YPOSITION", QStringLiteral("0.000000"));
        set(section, "ZPOSITION", QStringLiteral("0.000000"));
    }
    /// A division in section 0 with ships of names of their own.
    void make(const char* formation, int count, int spacing = 500, int heading = 0)
    {
        describe(0, formation, count, spacing, heading);
        for (int place = 0; place < count; ++place) {
            addShip(0, place, QStringLiteral("A%1").arg(place));
        }
    }
    void place(const char* key = "Blue 1", bool day = true)
    {
        const ProfileStore::Batch batch(store);
        placement.findDivisionToPlace(QString::fromLatin1(key), day);
    }

    /// What stands in the profile, as text, for a ship.
    std::string position(int division, int place) const
    {
        const QString section = shipSection(division, place);
        return (key(section, "XPOSITION") + u',' + key(section, "ZPOSITION")).toStdString();
    }
    std::vector<std::string> positions(int count) const
    {
        std::vector<std::string> all;
        for (int place = 0; place < count; ++place) {
            all.push_back(position(0, place));
        }
        return all;
    }
    Yards yards(int place) const
    {
        const QString section = shipSection(0, place);
        return {.x = key(section, "XPOSITION").toInt(), .z = key(section, "ZPOSITION").toInt()};
    }

    static constexpr const char* untouched = "0.000000,0.000000";

    ViewState view;
    FormationPlacement placement{profile, catalogue, view};
};

} // namespace torvane::testing
