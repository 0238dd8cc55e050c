#pragma once

#include "divisions/create_division_frm.h"
#include "map/grid_level_frm.h"
#include "map/map_surface.h"
#include "map/zoom_level_frm.h"
#include "platform/option_button.h"
#include "shell/about_frm.h"
#include "shell/commands.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "store/force_sizes.h"
#include "store/profile_keys.h"
#include "support/catalogue_file.h"
#include "support/editor_fixture.h"

#include <QAction>
#include <QTest>

namespace torvane::testing {

/// A run whose main window shows the map, with divisions put into the profile.
class MapFixture : public EditorFixture
{
protected:
    // The class that the ships of these tests belong to; 366 feet are 122 yards. Guns reach further than
    // sight.
    void SetUp() override
    {
        CatalogueFile file(workFile(shipDatabaseFile));
        file.addClass(QStringLiteral("Tribal"), {{QStringLiteral("length"), QStringLiteral("366")}});
        file.addGunRange(QStringLiteral("Tribal"), QStringLiteral("30650"));
    }

    MainFrm& main() { return editor().mainFrm(); }
    const MapState& state() { return main().map().state(); }
    QAction* entry(const char* name) { return main().menu().action(QLatin1StringView(name)); }
    MapBox* map() { return control<MapBox>(main(), QStringLiteral("Picture_Main")); }
    MapScrollBar* bar(const char* name) { return control<MapScrollBar>(main(), QLatin1StringView(name)); }
    QString distance() { return control<QLabel>(main(), QStringLiteral("lblDistance"))->text(); }
    QColor pixel(int x, int y) { return map()->image().pixelColor(x, y); }
    /// How many pixels of the map have a colour.
    int countOf(QColor colour)
    {
        int count = 0;
        const QImage& picture = map()->image();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                count += picture.pixelColor(x, y) == colour ? 1 : 0;
            }
        }
        return count;
    }
    /// A line on the picture that the next redraw takes away; whether it is there.
    void drawMarker()
    {
        map()->setForeColor(Qt::magenta);
        map()->line({3, 3}, {9, 3});
    }
    bool markerStands() { return pixel(5, 3) == QColor(Qt::magenta); }

    void set(const QString& section, const char* key, const QString& value)
    {
        editor().workingProfile().write(section, QString::fromLatin1(key), value);
    }
    QString key(const QString& section, const char* name)
    {
        return editor().workingProfile().GetIniKey(section, QString::fromLatin1(name));
    }
    /// "x,z" of a ship as the profile has it.
    QString position(int n, int m)
    {
        return key(shipSection(n, m), "XPOSITION") + u',' + key(shipSection(n, m), "ZPOSITION");
    }

    void use(const char* tool) { click(control<QAbstractButton>(main(), QLatin1StringView(tool))); }
    /// An option that is not on, picked in the dialog of its tool.
    void chooseZoom(const char* option)
    {
        use("cmdZoomLevel");
        click(control<OptionButton>(editor().zoomLevelFrm(), QLatin1StringView(option)));
    }
    void chooseGrid(const char* option)
    {
        use("cmdGridLevel");
        click(control<OptionButton>(editor().gridLevelFrm(), QLatin1StringView(option)));
    }

    /// A division of destroyers in section n.
    void addDivision(int n, const char* side, int number, int ships, const char* formation = "Column",
                     int heading = 0)
    {
        const ProfileStore::Batch batch(editor().profiles());
        const QString section = divisionSection(n);
        set(section, "DIVISIONNAME", QStringLiteral("Division %1").arg(number));
        set(section, "SIDE", QString::fromLatin1(side));
        set(section, "FORMATION", QString::fromLatin1(formation));
        set(section, "FORMATIONHEADING", QString::number(heading));
        set(section, "FORMATIONSPACING", QStringLiteral("600"));
        set(section, "SPEED", QStringLiteral("20"));
        set(section, "SHIPCNT", QString::number(ships));
        set(section, "FLAGSHIPINDEX", QStringLiteral(" 0"));
        for (int m = 0; m < ships; ++m) {
            const QString ship = shipSection(n, m);
            set(ship, "NAME", QStringLiteral("Ship %1 %2").arg(n).arg(m));
            set(ship, "SHORTNAME", QStringLiteral("S%1%2").arg(n).arg(m));
            set(ship, "TYPE", QStringLiteral("DD"));
            set(ship, "CLASS", QStringLiteral("Tribal"));
            set(ship, "XPOSITION", QStringLiteral("0.000000"));
            set(ship, "ZPOSITION", QStringLiteral("0.000000"));
        }
        set(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT", QString::number(n + 1));
    }

    /// What New and divisions bring about in the Reposition menus.
    void openRepositionMenus()
    {
        main().menu().setEnabled(QStringLiteral("mnuRepoForceA"), true);
        main().menu().setEnabled(QStringLiteral("mnuRepoForceB"), true);
        for (const bool blue : {true, false}) {
            for (int number = 1; number <= divisionsPerSide; ++number) {
                main().menu().setVisible(QLatin1StringView(repositionRow(blue, number).entry), true);
            }
        }
    }
    /// A division in section 0 that the next click places.
    void awaitClick()
    {
        addDivision(0, "Blue", 1, 1);
        openRepositionMenus();
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuDiv1")));
    }
    /// What the division dialog says of the last one placed.
    QString lastPlacement()
    {
        return control<QLabel>(editor().createDivisionFrm(), QStringLiteral("LblPicMap"))->text();
    }
    /// The mission has a target area, which waits for a click.
    void armTargetArea()
    {
        setValue(main().chkBombardment, 1);
        returnFromDialog();
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuTargetBox")));
    }

    /// A dialog that opens and closes: what makes the main window active again.
    void returnFromDialog()
    {
        editor().aboutFrm().showForm(&main());
        settle();
        editor().aboutFrm().hideForm();
        settle();
    }

    void movePointer(QPoint to)
    {
        // The window system tells no move to where the pointer already is.
        QMouseEvent move(QEvent::MouseMove, to, map()->mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(map(), &move);
        settle();
    }
    /// The pointer goes there and the left button is clicked.
    void clickMap(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        movePointer(at);
        clickWithoutMove(at, button);
    }
    /// The same between two pixels, as a denser screen has it.
    void clickBetweenPixels(QPointF at)
    {
        for (const QEvent::Type type :
             {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
            QMouseEvent event(type, at, map()->mapToGlobal(at), button,
                              type == QEvent::MouseButtonPress ? button : Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(map(), &event);
        }
        settle();
    }
    void clickWithoutMove(QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(map(), button, Qt::NoModifier, at);
        settle();
    }
    Qt::CursorShape pointer() { return map()->cursor().shape(); }
};

} // namespace torvane::testing
