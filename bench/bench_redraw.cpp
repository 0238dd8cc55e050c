// A redraw of the map with 32 ships and the rings of all families, beside the drawing of the same marks
// alone; and circles far larger than the picture beside some inside it.

#include "map/draw_marks.h"
#include "map/map_geometry.h"
#include "map/map_surface.h"
#include "map/range_rings.h"
#include "map/zoom_level_frm.h"
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

#include <array>
#include <variant>

using namespace torvane;

namespace {

constexpr int divisions = 4;
constexpr int shipsOfADivision = 8;
constexpr int classes = 250;

QString className(int number)
{
    return QStringLiteral("Class %1").arg(number);
}

/// A run with 32 ships spread over the middle of the map, and the tools of all rings pressed.
class RunWithRings
{
public:
    explicit RunWithRings(int zoomIndex)
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("ScenarioEditor"));
        createWorkingTables(workDir() + scenarioDataFile);
        makeCatalogue();
        m_editor.start();
        m_editor.splashFrm().hideForm();
        m_editor.mainFrm().showForm();
        QCoreApplication::processEvents();
        m_editor.forms().runHandler([this] { addShips(); });
        for (const char* tool : {"cmdVisibCircles", "cmdGunCircles", "cmdRadarCircles"}) {
            m_editor.mainFrm().findChild<PictureButton*>(QLatin1StringView(tool))->click();
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
        MapPicture picture{.marks = gridMarks(state.view, true, true), .ships = {}};
        const EnvironmentValues weather = m_editor.enviroFrm().values();
        RangeRings rings(state,
                         {.visibility = weather.visibility,
                          .radar = weather.radar,
                          .seaState = weather.seaState,
                          .rain = weather.rain},
                         m_editor.workingProfile().parsed(), m_editor.shipCatalogue());
        MapPlotter plotter(m_editor.workingProfile(), m_editor.shipCatalogue(), state, QStringLiteral("Div"));
        plotter.drawDivisions(
            true, [&rings](const PlottedShip& ship, MarkList& list) { rings.appendRings(ship, list); },
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
        for (int number = 0; number < classes; ++number) {
            database.execute(
                QStringLiteral("INSERT INTO ShipDaClass VALUES ('%1', '600')").arg(className(number)));
            database.execute(QStringLiteral("INSERT INTO GunsRang VALUES ('%1', '%2')")
                                 .arg(className(number))
                                 .arg(20000 + 60 * number));
        }
    }

    void addShips()
    {
        WorkingProfile& profile = m_editor.workingProfile();
        profile.write(u"SCENARIOINFO", u"DIVISIONCNT", QString::number(divisions));
        constexpr std::array<const char*, 6> types{"BB", "BC", "CA", "CL", "DD", "TR"};
        for (int n = 0; n < divisions; ++n) {
            const QString section = divisionSection(n);
            const std::array<std::pair<const char*, QString>, 8> keys{
                {{"DIVISIONNAME", QStringLiteral("Division %1").arg(n / 2 + 1)},
                 {"SIDE", n % 2 == 0 ? QStringLiteral("Blue") : QStringLiteral("Red")},
                 {"FORMATION", QStringLiteral("Column")},
                 {"FORMATIONHEADING", QString::number(45 * n)},
                 {"FORMATIONSPACING", QStringLiteral("500")},
                 {"SPEED", QStringLiteral("20")},
                 {"SHIPCNT", QString::number(shipsOfADivision)},
                 {"FLAGSHIPINDEX", QStringLiteral("0")}}};
            for (const auto& [key, value] : keys) {
                profile.write(section, QLatin1StringView(key).toString(), value);
            }
            for (int m = 0; m < shipsOfADivision; ++m) {
                const int number = n * shipsOfADivision + m;
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

void floorTheSameMarks(benchmark::State& state)
{
    RunWithRings run(static_cast<int>(state.range(0)));
    const MarkList marks = run.marks();
    for (auto _ : state) {
        run.map().clear();
        drawMarks(run.map(), marks);
    }
    countMarks(state, marks);
}

void redraw(benchmark::State& state)
{
    RunWithRings run(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        run.redraw();
    }
    countMarks(state, run.marks());
}

/// Circles through the middle of the picture, or wholly in it.
void circle(benchmark::State& state)
{
    PictureBox picture;
    picture.resize(625, 417);
    picture.show();
    const auto radius = static_cast<int>(state.range(0));
    const QPoint centre = radius <= 200 ? QPoint(312, 208) : QPoint(312 - radius, 208);
    for (auto _ : state) {
        const PictureBox::Batch batch(picture);
        picture.circle(centre, radius);
    }
}

BENCHMARK(floorTheSameMarks)->ArgName("zoomIndex")->Arg(4)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);
BENCHMARK(redraw)->ArgName("zoomIndex")->Arg(4)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);
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
