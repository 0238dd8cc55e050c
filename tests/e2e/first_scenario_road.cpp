#include "e2e/first_scenario_road.h"

#include <QFile>

#include <utility>

namespace torvane::testing {

namespace {

const QString tab = QStringLiteral("Tab");
const QString space = QStringLiteral("space");
const QString enter = QStringLiteral("Return");

constexpr int bombardment = 2; // in the list of missions
constexpr int royalNavy = 3;   // in the lists of navies
constexpr int december = 11;
constexpr int year1942 = 3;
constexpr QPoint targetPlace(400, 245);
constexpr QRgb areaColour = 0xffff0000;

QString sectionOf(const RoadDivision& division)
{
    const auto& all = roadDivisions();
    for (std::size_t n = 0; n < all.size(); ++n) {
        if (all.at(n).forceA == division.forceA && all.at(n).number == division.number) {
            return QStringLiteral("DIVISION%1").arg(n);
        }
    }
    return {};
}

} // namespace

const std::array<RoadDivision, 4>& roadDivisions()
{
    static const std::array<RoadDivision, 4> divisions{
        RoadDivision{.forceA = true,
                     .number = 1,
                     .settings = {.heading = QStringLiteral("60"),
                                  .formation = 0,
                                  .spacing = 5,
                                  .speed = QStringLiteral("24")},
                     .ships = {QStringLiteral("Tirpitz"), QStringLiteral("Scharnhorst"),
                               QStringLiteral("Prinz Eugen")},
                     .place = {230, 190}},
        RoadDivision{.forceA = true,
                     .number = 2,
                     .settings = {.heading = QStringLiteral("45"),
                                  .formation = 1,
                                  .spacing = 1,
                                  .speed = QStringLiteral("28")},
                     .ships = {QStringLiteral("Z23"), QStringLiteral("Z24"), QStringLiteral("Z25")},
                     .place = {120, 110}},
        RoadDivision{
            .forceA = false,
            .number = 1,
            .settings = {.heading = QStringLiteral("250"),
                         .formation = 0,
                         .spacing = 3,
                         .speed = QStringLiteral("26")},
            .ships = {QStringLiteral("Norfolk"), QStringLiteral("Sheffield"), QStringLiteral("Cossack")},
            .place = {470, 120}},
        RoadDivision{.forceA = false,
                     .number = 2,
                     .settings = {.heading = QStringLiteral("180"),
                                  .formation = 2,
                                  .spacing = 7,
                                  .speed = QStringLiteral("11")},
                     .ships = {QStringLiteral("Ohio"), QStringLiteral("Melbourne Star"),
                               QStringLiteral("Glenroy"), QStringLiteral("Eskimo")},
                     .place = {500, 330}}};
    return divisions;
}

FirstScenarioRoad::FirstScenarioRoad(const EditorRun& run, Watcher step) : m_run(run), m_step(std::move(step))
{
}

void FirstScenarioRoad::show(const QString& step) const
{
    if (m_step) {
        m_step(step);
    }
}

void FirstScenarioRoad::walk() const
{
    describe();
    for (const RoadDivision& division : roadDivisions()) {
        createDivision(division);
        place(division);
    }
    placeTargetArea();
    save();
}

void FirstScenarioRoad::describe() const
{
    m_run.choose(Menu::File, {entry::fresh});
    m_run.expectWindow(m_run.names().overview);
    m_run.expect(QStringLiteral("the new scenario's defaults"), [this] {
        return !m_run.value(QStringLiteral("SCENARIODATA"), QStringLiteral("MOVIE")).isEmpty();
    });
    m_run.replaceText(title());
    m_run.press({tab});
    m_run.replaceText(QStringLiteral(
        "A battleship and a battle cruiser slip into the fjord by night to shell the batteries. "
        "A convoy and its cruisers stand in their way."));
    m_run.press({enter}); // leads to the missions
    m_run.pickEntry(bombardment);
    m_run.press(tab, 2); // the navy of Force A
    m_run.pickEntry(0);
    m_run.press({tab});
    m_run.replaceText(QStringLiteral("225"));
    m_run.press(tab, 8); // the navy of Force B
    m_run.pickEntry(royalNavy);
    m_run.press({tab});
    m_run.replaceText(QStringLiteral("90"));
    show(QStringLiteral("overview"));
    m_run.press(tab, 8);
    m_run.press({space});
    m_run.expectWindow(m_run.names().environment);
    setWeather();
    m_run.expectWindow(m_run.names().overview);
    m_run.press({tab, space});
    m_run.expectWindow(m_run.names().mainWindow);
}

void FirstScenarioRoad::setWeather() const
{
    m_run.press(QStringLiteral("plus"), 10); // half past ten in the evening
    m_run.press(tab, 8);
    m_run.replaceText(QStringLiteral("12")); // knots of wind
    m_run.press(tab, 4);
    m_run.replaceText(QStringLiteral("315"));
    m_run.press(tab, 10);
    m_run.pickEntry(december);
    m_run.press({tab});
    m_run.pickEntry(year1942);
    show(QStringLiteral("environment"));
    m_run.press(tab, 3);
    m_run.press({space});
}

void FirstScenarioRoad::createDivision(const RoadDivision& division) const
{
    const QString force = division.forceA ? QStringLiteral("A") : QStringLiteral("B");
    m_run.choose(Menu::CreateDivision, {division.forceA ? 1 : 2});
    const DivisionDialog dialog(m_run, QStringLiteral("Torvane - Create Division for Force ") + force,
                                division.forceA, division.number);
    dialog.openShipsOfNewDivision();
    // By all ways that lead to a ship.
    for (qsizetype i = 0; i < division.ships.size(); ++i) {
        const QString& ship = division.ships.at(i);
        if (i == 1) {
            dialog.pickShipByClick(ship);
        } else if (i == 2 && !ship.contains(QLatin1Char(' '))) {
            dialog.pickShipByTyping(ship);
        } else {
            dialog.pickShip(ship);
        }
    }
    show(QStringLiteral("ships_of_") + division.name());
    dialog.keepShips(static_cast<int>(division.ships.size()));
    dialog.change(division.settings);
    show(QStringLiteral("division_") + division.name());
    dialog.save();
}

void FirstScenarioRoad::place(const RoadDivision& division) const
{
    const QString firstShip = sectionOf(division) + QStringLiteral("SHIP0");
    const QString before = m_run.value(firstShip, QStringLiteral("XPOSITION"));
    m_run.clickMap(division.place);
    m_run.expect(QStringLiteral("the division's place"),
                 [&] { return m_run.value(firstShip, QStringLiteral("XPOSITION")) != before; });
    show(QStringLiteral("placed_") + division.name());
}

void FirstScenarioRoad::placeTargetArea() const
{
    const qsizetype before = pixelsOf(m_run.mapPicture(), areaColour);
    m_run.choose(Menu::Overview, {entry::targetArea});
    m_run.clickMap(targetPlace);
    m_run.expect(QStringLiteral("the target area on the map"),
                 [&] { return pixelsOf(m_run.mapPicture(), areaColour) > before; });
    show(QStringLiteral("target_area"));
}

void FirstScenarioRoad::save() const
{
    m_run.choose(Menu::File, {entry::save});
    m_run.expect(QStringLiteral("the scenario file"), [this] { return QFile::exists(savedFile()); });
    m_run.expectWindow(m_run.names().mainWindow);
}

} // namespace torvane::testing
