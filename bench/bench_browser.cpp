#include "ship_selection/selection_rules.h"
#include "ship_selection/ship_grid.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <random>

using namespace torvane;

namespace {

/// A catalogue of full size in random order, the same in each run.
struct Catalogue
{
    Catalogue()
    {
        Database file(folder.filePath(shipDatabaseFile), Database::Access::Create);
        file.execute(QStringLiteral(
            "CREATE TABLE ShipDataB (Name, Type, Class, Navy, HitPts, FloatPts, \"Torps?\", ShortName)"));
        file.execute(QStringLiteral("BEGIN"));
        const std::array types{"BB", "BC", "CA", "CL", "DD", "TR"};
        std::mt19937 random(1);
        for (const ListedNavy& navy : listedNavies) {
            for (int i = 0; i < navy.rows; ++i) {
                const QString name = QString::number(random() % 1000000) + navy.code + QString::number(i);
                file.execute(
                    QStringLiteral("INSERT INTO ShipDataB VALUES ('%1', '%2', 'Class %3', '%4', '%5', '%6', "
                                   "'%7', '%1')")
                        .arg(name, QLatin1StringView(types.at(random() % types.size())),
                             QString::number(random() % 250), navy.code, QString::number(random() % 3000),
                             QString::number(random() % 2000), QString::number(random() % 12)));
            }
        }
        file.execute(QStringLiteral("COMMIT"));
        controls.bind(folder.path());
    }
    QTemporaryDir folder;
    DataControls controls;
    ShipCatalogue catalogue{controls};
};

const ShipLists& readLists()
{
    static Catalogue catalogue;
    static const ShipLists lists(catalogue.catalogue.ShipDataB());
    return lists;
}

/// Names of a scenario's ships: 32 of the Royal Navy, spread over the list.
QStringList pickedNames()
{
    QStringList names;
    const ShipLists::List& ships = readLists().list(u"RN");
    for (std::size_t i = 0; names.size() < 32; i += 13) {
        names.append(ships[i][ShipColumn::Name]);
    }
    return names;
}

void floorCopyTheCells(benchmark::State& state)
{
    const ShipLists::List& ships = readLists().list(u"RN");
    for (auto _ : state) {
        ShipLists::List copy = ships;
        benchmark::DoNotOptimize(copy.data());
    }
}
BENCHMARK(floorCopyTheCells);

void fillTheGrid(benchmark::State& state)
{
    ShipBrowser browser;
    browser.setLists(readLists());
    for (auto _ : state) {
        browser.filterNavy(QStringLiteral("RN"));
    }
}
BENCHMARK(fillTheGrid);

void markThePickedShips(benchmark::State& state)
{
    ShipBrowser browser;
    browser.setLists(readLists());
    browser.filterNavy(QStringLiteral("RN"));
    const QStringList names = pickedNames();
    for (auto _ : state) {
        browser.markSelectedShips(names);
    }
}
BENCHMARK(markThePickedShips);

void floorSortTheNames(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        ShipLists::List ships = readLists().list(u"RN");
        state.ResumeTiming();
        std::sort(ships.begin(), ships.end(), [](const ShipRow& a, const ShipRow& b) {
            return a[ShipColumn::Name] < b[ShipColumn::Name];
        });
        benchmark::DoNotOptimize(ships.data());
    }
}
BENCHMARK(floorSortTheNames);

void sortShips(benchmark::State& state)
{
    const auto column = static_cast<ShipColumn>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        ShipLists lists = readLists();
        state.ResumeTiming();
        lists.sortShips(u"RN", column);
        benchmark::DoNotOptimize(lists.list(u"RN").data());
    }
}
BENCHMARK(sortShips)
    ->Name("sortShipsByTypeNameClassHitPts")
    ->Arg(static_cast<int>(ShipColumn::Type))
    ->Arg(static_cast<int>(ShipColumn::Name))
    ->Arg(static_cast<int>(ShipColumn::Class))
    ->Arg(static_cast<int>(ShipColumn::HitPts));

/// The view with all that a click on a navy or a sort makes of it, and what it draws.
struct View
{
    View()
    {
        browser.setLists(readLists());
        grid.setModel(&model);
        grid.sizeColumns(readLists(), Language::German);
        grid.resize(grid.sizeHint());
        grid.show();
    }
    QTemporaryDir folder;
    ProfileStore store;
    WorkingProfile profile{store, folder.path()};
    ScratchFiles files{store, folder.path()};
    DataControls controls;
    ShipCatalogue catalogue{controls};
    ShipRecords records{store, profile, files, catalogue};
    ShipBrowser browser;
    ShipSelection selection{files, profile, records, browser};
    ShipGridModel model{browser, selection, nullptr};
    ShipGrid grid;
};

void floorDrawTheGrid(benchmark::State& state)
{
    View view;
    view.model.refill([&] { view.browser.filterNavy(QStringLiteral("RN")); });
    for (auto _ : state) {
        benchmark::DoNotOptimize(view.grid.grab());
    }
}
BENCHMARK(floorDrawTheGrid)->Unit(benchmark::kMillisecond);

void fillMarkAndDrawTheGrid(benchmark::State& state)
{
    View view;
    const QStringList names = pickedNames();
    for (auto _ : state) {
        view.model.refill([&] { view.browser.filterNavy(QStringLiteral("RN")); });
        view.grid.goToFirstRow();
        view.browser.markSelectedShips(names);
        view.model.showMarks();
        benchmark::DoNotOptimize(view.grid.grab());
    }
}
BENCHMARK(fillMarkAndDrawTheGrid)->Unit(benchmark::kMillisecond);

void sortMarkAndDrawTheGrid(benchmark::State& state)
{
    View view;
    const QStringList names = pickedNames();
    view.browser.filterNavy(QStringLiteral("RN"));
    bool byName = false;
    for (auto _ : state) {
        byName = !byName;
        view.model.refill([&] { view.browser.sortShips(byName ? ShipColumn::Name : ShipColumn::HitPts); });
        view.grid.goToFirstRow();
        view.browser.markSelectedShips(names);
        view.model.showMarks();
        benchmark::DoNotOptimize(view.grid.grab());
    }
}
BENCHMARK(sortMarkAndDrawTheGrid)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
