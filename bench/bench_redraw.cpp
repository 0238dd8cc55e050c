// A redraw of the map with 32 ships, with the rings of all families by day and by night and without, and with
// 120 ships, beside the drawing of the same marks alone; what 1,000 redraws leave in memory; and circles far
// larger than the picture beside some inside it.

#include "map/draw_marks.h"
#include "map/map_geometry.h"
#include "map/map_surface.h"
#include "map/range_rings.h"
#include "map/zoom_level_frm.h"
#include "measured.h"
#include "overview/enviro_frm.h"
#include "platform/option_button.h"
#include "platform/picture_box.h"
#include "platform/picture_button.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/splash_frm.h"
#include "store/working_tables.h"
#include "support/scripted_services.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <variant>

using namespace torvane;

namespace {

constexpr int shipsOfADivision = 8;
constexpr int largestDivision = 10;
constexpr int classes = 1000;

QString className(int number)
{
    return QStringLiteral("Class %1").arg(number);
}

/// A run with ships spread over the middle of the map, all labels and the small grid, and with the tools of
/// all rings pressed or of none.
class RunWithShips
{
public:
    RunWithShips(int ships, bool rings, int zoomIndex, bool day = true)
        : m_day(day),
          m_divisionSize(ships % shipsOfADivision == 0 && ships <= shipsOfADivision * divisionSections
                             ? shipsOfADivision
                             : std::min(ships, largestDivision)),
          m_divisions(ships / m_divisionSize)
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("ScenarioEditor"));
        createWorkingTables(workDir() + scenarioDataFile);
        makeCatalogue();
        m_editor.start();
        m_editor.splashFrm().hideForm();
        m_editor.mainFrm().showForm();
        QCoreApplication::processEvents();
        setValue(m_editor.mainFrm().chkDayNight, m_day ? 1 : 0);
        m_editor.forms().runHandler([this] { addShips(); });
        if (rings) {
            for (const char* tool : {"cmdVisibCircles", "cmdGunCircles", "cmdRadarCircles"}) {
                m_editor.mainFrm().findChild<PictureButton*>(QLatin1StringView(tool))->click();
            }
        }
        // At the start the default is on, whose click would do nothing.
        m_editor.zoomLevelFrm().findChild<OptionButton*>(zoomOption(zoomIndex))->click();
        QCoreApplication::processEvents();
        redraw();
    }

    void redraw()
    {
        m_editor.forms().runHandler([this] { m_editor.mainFrm().redrawMap(); });
    }

    /// What a redraw draws.
    MarkList marks()
    {
        MapState state = m_editor.mainFrm().map().state();
        MapPicture picture{.marks = gridMarks(state.view, m_day, true), .ships = {}};
        const EnvironmentValues weather = m_editor.enviroFrm().values();
        RangeRings rings(state,
                         {.visibility = weather.visibility,
                          .radar = weather.radar,
                          .seaState = weather.seaState,
                          .rain = weather.rain,
                          .day = m_day},
                         m_editor.workingProfile().parsed(), m_editor.shipCatalogue());
        MapPlotter plotter(m_editor.workingProfile(), m_editor.shipCatalogue(), state, QStringLiteral("Div"));
        plotter.drawDivisions(
            m_day, [&rings](const PlottedShip& ship, MarkList& list) { rings.appendRings(ship, list); },
            picture);
        return picture.marks;
    }

    PictureBox& map() { return *m_editor.mainFrm().findChild<MapBox*>(); }

private:
    QString workDir() const { return m_folder.path() + QStringLiteral("/ScenarioEditor/"); }

    void makeCatalogue() const
    {
        Database database(workDir() + shipDatabaseFile, Database::Access::Create);
        database.execute(QStringLiteral("CREATE TABLE ShipDaClass (b, length)"));
        database.execute(QStringLiteral("CREATE TABLE GunsRang (Class, Range)"));
        // Each in one statement: a statement waits for the disk.
        const QString numbers =
            QStringLiteral("WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < %1) ")
                .arg(classes - 1);
        database.execute(QStringLiteral("INSERT INTO ShipDaClass ") + numbers +
                         QStringLiteral("SELECT 'Class ' || i, '600' FROM n"));
        database.execute(QStringLiteral("INSERT INTO GunsRang ") + numbers +
                         QStringLiteral("SELECT 'Class ' || i, 20000 + 60 * i FROM n"));
    }

    void addShips()
    {
        WorkingProfile& profile = m_editor.workingProfile();
        profile.write(u"SCENARIOINFO", u"DIVISIONCNT", QString::number(m_divisions));
        constexpr std::array<const char*, 6> types{"BB", "BC", "CA", "CL", "DD", "TR"};
        for (int n = 0; n < m_divisions; ++n) {
            const QString section = divisionSection(n);
            const std::array<std::pair<const char*, QString>, 8> keys{
                {{"DIVISIONNAME", QStringLiteral("Division %1").arg(n / 2 + 1)},
                 {"SIDE", n % 2 == 0 ? QStringLiteral("Blue") : QStringLiteral("Red")},
                 {"FORMATION", QStringLiteral("Column")},
                 {"FORMATIONHEADING", QString::number(45 * n)},
                 {"FORMATIONSPACING", QStringLiteral("500")},
                 {"SPEED", QStringLiteral("20")},
                 {"SHIPCNT", QString::number(m_divisionSize)},
                 {"FLAGSHIPINDEX", QStringLiteral("0")}}};
            for (const auto& [key, value] : keys) {
                profile.write(section, QLatin1StringView(key).toString(), value);
            }
            for (int m = 0; m < m_divisionSize; ++m) {
                const int number = n * m_divisionSize + m;
                addShip(shipSection(n, m), types.at(static_cast<std::size_t>(number) % types.size()), number);
            }
        }
    }

    void addShip(const QString& section, const char* type, int number)
    {
        const std::array<std::pair<const char*, QString>, 7> keys{
            {{"SHORTNAME", QStringLiteral("Ship %1").arg(number)},
             {"TYPE", QString::fromLatin1(type)},
             {"CLASS", className(7 * number)},
             {"XPOSITION", QString::number(400 * (number % 8) - 1600)},
             {"ZPOSITION", QString::number(500 * (number / 8) - 1000)},
             {"RADARTYPE", QStringLiteral("EXCELLENT")},
             {"NIGHTTRAINING", QStringLiteral("GOOD")}}};
        for (const auto& [key, value] : keys) {
            m_editor.workingProfile().write(section, QLatin1StringView(key).toString(), value);
        }
    }

    const bool m_day;
    const int m_divisionSize;
    const int m_divisions;
    QTemporaryDir m_folder;
    torvane::testing::ScriptedServices m_script;
    Editor m_editor{m_folder.path(), BuildOptions{.language = Language::English}, m_script.services()};
};

void countMarks(benchmark::State& state, const MarkList& marks)
{
    double circles = 0;
    for (const Mark& mark : marks) {
        circles += std::holds_alternative<CircleMark>(mark) ? 1 : 0;
    }
    state.counters["marks"] = static_cast<double>(marks.size());
    state.counters["circles"] = circles;
}

constexpr bool withRings = true;
constexpr bool byDay = true;
constexpr int levelFive = 4; // its zoomIndex

void floorTheSameMarks(benchmark::State& state, RunWithShips& run)
{
    const MarkList marks = run.marks();
    for (auto _ : state) {
        run.map().clear();
        drawMarks(run.map(), marks);
    }
    countMarks(state, marks);
}

void redraw(benchmark::State& state, RunWithShips& run)
{
    for (auto _ : state) {
        run.redraw();
    }
    countMarks(state, run.marks());
}

void floorOfRings(benchmark::State& state)
{
    RunWithShips run(32, withRings, argumentOf(state));
    floorTheSameMarks(state, run);
}

void redrawRings(benchmark::State& state)
{
    RunWithShips run(32, withRings, argumentOf(state));
    redraw(state, run);
}

// The training of each ship counts then.
void floorOfRingsByNight(benchmark::State& state)
{
    RunWithShips run(32, withRings, argumentOf(state), !byDay);
    floorTheSameMarks(state, run);
}

void redrawRingsByNight(benchmark::State& state)
{
    RunWithShips run(32, withRings, argumentOf(state), !byDay);
    redraw(state, run);
}

void floorOfShips(benchmark::State& state)
{
    RunWithShips run(argumentOf(state), !withRings, levelFive);
    floorTheSameMarks(state, run);
}

void redrawShips(benchmark::State& state)
{
    RunWithShips run(argumentOf(state), !withRings, levelFive);
    redraw(state, run);
}

/// What 1,000 redraws leave, after the first hundred have filled what is kept.
void thousandRedraws(benchmark::State& state)
{
    RunWithShips run(32, withRings, levelFive);
    const auto redraws = [&run](int count) {
        for (int i = 0; i < count; ++i) {
            run.redraw();
        }
    };
    redraws(100);
    const double before = residentBytes();
    for (auto _ : state) {
        redraws(1000);
    }
    state.counters["grown_bytes"] = residentBytes() - before;
}

/// Circles through the middle of the picture, or wholly in it.
void circle(benchmark::State& state)
{
    PictureBox picture;
    picture.resize(625, 417);
    picture.show();
    const auto radius = argumentOf(state);
    const QPoint centre = radius <= 200 ? QPoint(312, 208) : QPoint(312 - radius, 208);
    for (auto _ : state) {
        const PictureBox::Batch batch(picture);
        picture.circle(centre, radius);
    }
}

// 1, 10 and 100 times the work, the usual scenario and the fullest one.
void shipCounts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("ships")->Arg(1)->Arg(10)->Arg(32)->Arg(100)->Arg(120);
    benchmark->Unit(benchmark::kMillisecond);
}

BENCHMARK(floorOfShips)->Apply(shipCounts);
BENCHMARK(redrawShips)->Apply(shipCounts);
BENCHMARK(floorOfRings)->ArgName("zoomIndex")->Arg(4)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(redrawRings)->ArgName("zoomIndex")->Arg(4)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(floorOfRingsByNight)->ArgName("zoomIndex")->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(redrawRingsByNight)->ArgName("zoomIndex")->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(thousandRedraws)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(circle)
    ->ArgName("radius")
    ->Arg(200)
    ->Arg(600)
    ->Arg(5000)
    ->Arg(1000000)
    ->Arg(1000000000)
    ->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
