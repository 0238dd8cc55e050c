#include "e2e/editor_run.h"
#include "e2e/kept_scenario.h"

namespace torvane::testing {
namespace {

constexpr QRgb nightSea = 0xff000080;
constexpr QRgb forceABlue = 0xff0000ff;
constexpr QRgb forceBRed = 0xffff0000; // and the target area's colour
constexpr QRgb hullBlack = 0xff000000;
constexpr QRgb bowWhite = 0xffffffff;
constexpr QRgb measureYellow = 0xffffff00;
constexpr int yardsPerPixel = 30; // at the zoom level of the start, by night
constexpr QPoint origin(312, 208);
constexpr QPoint measureTool(300, -20); // above the map

QRect around(QPoint place, int reach = 25)
{
    return QRect(place - QPoint(reach, reach), place + QPoint(reach, reach));
}

/// A loaded scenario by night, whose map is used as a person uses it.
class MapByHand : public ::testing::Test
{
protected:
    void SetUp() override
    {
        QFile::copy(keptScenario("first", Language::English), folder.scenarioFile(QStringLiteral("first")));
        run.start();
        run.load(QStringLiteral("first.scn"));
    }

    // Chooses a division by its force and number in the Reposition menu and clicks where it goes.
    void place(int force, int number, const QString& leader, QPoint at)
    {
        run.choose(Menu::Reposition, {force, number});
        run.clickMap(at);
        const QString x = QString::number(yardsPerPixel * (at.x() - origin.x()));
        const QString z = QString::number(yardsPerPixel * (at.y() - origin.y()));
        run.expect(QStringLiteral("the new place of ") + leader,
                   [&] { return run.value(leader, QStringLiteral("XPOSITION")) == x; });
        EXPECT_EQ(run.value(leader, QStringLiteral("ZPOSITION")), z);
    }

    Desktop desktop;
    GameFolder folder;
    EditorRun run{desktop, folder, Language::English};
};

TEST_F(MapByHand, ThreeDivisionsATargetAndAMeasureLineAreSetByTheMouse)
{
    const QPoint battleLine(120, 80);
    const QPoint destroyers(250, 300);
    const QPoint cruisers(520, 90);
    place(1, 1, QStringLiteral("DIVISION0SHIP0"), battleLine);
    place(1, 2, QStringLiteral("DIVISION1SHIP0"), destroyers);
    place(2, 1, QStringLiteral("DIVISION2SHIP0"), cruisers);

    const QPoint target(420, 330);
    ASSERT_EQ(pixelsOf(run.mapPicture().copy(around(target)), forceBRed), 0);
    run.choose(Menu::Overview, {entry::targetArea});
    run.clickMap(target);
    run.expect(QStringLiteral("the target area"),
               [&] { return pixelsOf(run.mapPicture().copy(around(target)), forceBRed) > 0; });

    const QPoint a(60, 380);
    const QPoint b(160, 380);
    ASSERT_EQ(pixelsOf(run.mapPicture(), measureYellow), 0);
    run.clickMap(measureTool);
    run.clickMap(a);
    run.clickMap(b);
    run.moveOnMap(b + QPoint(40, 20)); // the first move finishes the line
    run.expect(QStringLiteral("the measured line"),
               [&] { return pixelsOf(run.mapPicture(), measureYellow) >= b.x() - a.x(); });
    keepPicture(desktop, QStringLiteral("map_by_hand"));

    const QImage map = run.mapPicture();
    for (int x = a.x(); x < a.x() + 20; ++x) {
        EXPECT_EQ(map.pixel(x, a.y()), measureYellow) << x;
    }
    for (const QPoint place : {battleLine, destroyers, cruisers}) {
        const QImage ships = map.copy(around(place));
        EXPECT_GT(pixelsOf(ships, hullBlack), 10) << place.x();
        EXPECT_GT(pixelsOf(ships, bowWhite), 0) << place.x();
    }
    EXPECT_GT(pixelsOf(map.copy(around(battleLine)), forceABlue), 10);
    EXPECT_GT(pixelsOf(map.copy(around(destroyers)), forceABlue), 10);
    EXPECT_GT(pixelsOf(map.copy(around(cruisers)), forceBRed), 10);
    EXPECT_GT(pixelsOf(map, nightSea), map.width() * map.height() / 2);
}

TEST_F(MapByHand, TheRightButtonCallsAPlacementOff)
{
    const QString leader = QStringLiteral("DIVISION0SHIP0");
    const QString before = run.value(leader, QStringLiteral("XPOSITION"));
    run.choose(Menu::Reposition, {1, 1});
    run.clickMap({200, 200}, 3);
    run.clickMap({200, 200});
    place(1, 2, QStringLiteral("DIVISION1SHIP0"), {210, 210}); // whatever the clicks did has happened
    EXPECT_EQ(run.value(leader, QStringLiteral("XPOSITION")), before);
}

} // namespace
} // namespace torvane::testing
