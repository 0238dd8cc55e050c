#pragma once

#include "map/map_plotting.h"
#include "store/data_controls.h"
#include "store/profile_keys.h"
#include "store/ship_catalogue.h"
#include "store/working_profile.h"
#include "support/catalogue_file.h"
#include "support/expect_error.h"
#include "support/printers.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <vector>

namespace torvane::testing {

/// The marks of one kind, in their order.
template <typename Kind>
std::vector<Kind> marksOf(const MarkList& marks)
{
    std::vector<Kind> found;
    for (const Mark& mark : marks) {
        if (const auto* one = std::get_if<Kind>(&mark)) {
            found.push_back(*one);
        }
    }
    return found;
}

/// A profile, a catalogue with the classes "Short" (60 feet), "Long" (600) and "Odd" (615), and a view of
/// 10 yards a pixel.
class PlottingFixture : public ::testing::Test
{
protected:
    PlottingFixture()
    {
        controls.bind(workDir);
        CatalogueFile file(workDir + shipDatabaseFile);
        file.addClass(QStringLiteral("Short"), {{QStringLiteral("length"), QStringLiteral("60")}});
        file.addClass(QStringLiteral("Long"), {{QStringLiteral("length"), QStringLiteral("600")}});
        file.addClass(QStringLiteral("Odd"), {{QStringLiteral("length"), QStringLiteral("615")}});
        state.view.zoomIndex = 11;
        state.view.mapScale = 10;
    }

    void set(const QString& section, const char* key, const QString& value)
    {
        profile.write(section, QString::fromLatin1(key), value);
    }
    void addDivision(int n, const char* side = "Blue", const char* name = "Division 1", int ships = 1)
    {
        const QString section = divisionSection(n);
        set(section, "DIVISIONNAME", QString::fromLatin1(name));
        set(section, "SIDE", QString::fromLatin1(side));
        set(section, "FORMATION", QStringLiteral("Column"));
        set(section, "FORMATIONHEADING", QStringLiteral("0"));
        set(section, "FORMATIONSPACING", QStringLiteral("500"));
        set(section, "SPEED", QStringLiteral("20"));
        set(section, "SHIPCNT", QString::number(ships));
        set(section, "FLAGSHIPINDEX", QStringLiteral(" 0"));
    }
    void addShip(int n, int m, const QString& shortName, int x, int z, const char* shipClass = "Short")
    {
        const QString section = shipSection(n, m);
        set(section, "SHORTNAME", shortName);
        set(section, "TYPE", QStringLiteral("DD"));
        set(section, "CLASS", QString::fromLatin1(shipClass));
        set(section, "XPOSITION", QString::number(x));
        set(section, "ZPOSITION", QString::number(z));
    }

    MapPicture drawn(bool day = true)
    {
        MapPicture picture;
        plotter.drawDivisions(day, RingDrawer(), picture);
        return picture;
    }
    MarkList separationRings() const
    {
        MarkList marks;
        plotter.drawSeparationRings(marks);
        return marks;
    }
    static QStringList labels(const MapPicture& picture)
    {
        QStringList texts;
        for (const TextMark& mark : marksOf<TextMark>(picture.marks)) {
            texts.append(mark.text);
        }
        return texts;
    }
    /// The lengths of the hulls in pixels, of ships that head north and stand on the map's middle column.
    std::vector<int> hulls(const MapPicture& picture) const
    {
        std::vector<int> lengths;
        for (const LineMark& mark : marksOf<LineMark>(picture.marks)) {
            if (mark.from.x == state.view.mapOriginX && mark.from.y <= mark.to.y) {
                lengths.push_back(mark.to.y - mark.from.y);
            }
        }
        return lengths;
    }

    QTemporaryDir folder;
    const QString workDir = folder.path() + u'/';
    ProfileStore store;
    const ProfileStore::Batch batch{store}; // what is written need not reach the disk
    WorkingProfile profile{store, workDir};
    DataControls controls;
    ShipCatalogue catalogue{controls};
    MapState state;
    MapPlotter plotter{profile, catalogue, state, QStringLiteral("Div")};
};

} // namespace torvane::testing
