#include "measured.h"
#include "platform/text_files.h"
#include "ship_selection/ship_record.h"
#include "store/profile_keys.h"

#include <QFile>
#include <QHash>
#include <QSaveFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

using namespace torvane;

namespace {

constexpr int shipCount = 1266;
constexpr int classCount = 250;
constexpr int shipsOfADivision = 10;
/// The division that is written is the last of twelve.
constexpr int otherDivisions = 11;

QString shipName(int i)
{
    return QStringLiteral("Ship of the line %1").arg(i);
}

QString className(int i)
{
    return QStringLiteral("Class %1").arg(i % classCount);
}

/// Makes a database file with so many ships.
void makeCatalogue(const QString& path, int ships)
{
    const QString classFields =
        QStringLiteral("b, e, f, g, h, i, j, k, l, m, o, p, q, r, t, u, v, x, y, z, aa, length, width, "
                       "TurA, TurB, TurC, TurD, TurE, TurG, TurH, TurI, TurJ, TurL, TurM, TurN, TurO, TurQ, "
                       "TurR, TurT, TurU, TurX, TurY, TurZ");
    Database file(path, Database::Access::Create);
    file.execute(QStringLiteral("CREATE TABLE gunTable (Name)"));
    file.execute(QStringLiteral("CREATE TABLE GunsRang (Class, Range)"));
    file.execute(QStringLiteral(
        "CREATE TABLE ShipDataB (Name, Type, Class, Navy, HitPts, FloatPts, \"Torps?\", ShortName)"));
    file.execute(QStringLiteral("CREATE TABLE ShipDaClass (%1)").arg(classFields));
    file.execute(QStringLiteral("BEGIN"));
    for (int i = 0; i < ships; ++i) {
        file.execute(
            QStringLiteral("INSERT INTO ShipDataB VALUES ('%1', 'CA', '%2', 'RN', '1', '1', 'Yes', 'S')")
                .arg(shipName(i), className(i)));
    }
    const QString values = QStringLiteral(", '%1'").repeated(static_cast<int>(classFields.count(u',')));
    for (int i = 0; i < classCount; ++i) {
        const QString row = QString(values).replace(QStringLiteral("%1"), QString::number(i));
        file.execute(QStringLiteral("INSERT INTO ShipDaClass VALUES ('%1'%2)").arg(className(i), row));
    }
    file.execute(QStringLiteral("COMMIT"));
}

/// A work folder with a catalogue.
struct WorkFolder
{
    explicit WorkFolder(int ships = shipCount)
    {
        makeCatalogue(folder.filePath(shipDatabaseFile), ships);
        controls.bind(folder.path());
    }
    QTemporaryDir folder;
    DataControls controls;
    ShipCatalogue catalogue{controls};
};

/// All names in random order, the same in each run.
std::vector<QString> randomNames()
{
    std::vector<QString> names;
    for (int i = 0; i < shipCount; ++i) {
        names.push_back(shipName(i));
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    return names;
}

/// The next name, round and round.
class Names
{
public:
    const QString& next()
    {
        m_at = m_at + 1 == m_names.size() ? 0 : m_at + 1;
        return m_names[m_at];
    }

private:
    std::vector<QString> m_names = randomNames();
    std::size_t m_at = 0;
};

void floorHashLookUp(benchmark::State& state)
{
    QHash<QString, int> rows;
    for (int i = 0; i < shipCount; ++i) {
        rows.insert(shipName(i), i);
    }
    Names names;
    for (auto _ : state) {
        benchmark::DoNotOptimize(rows.value(names.next()));
    }
}
BENCHMARK(floorHashLookUp);

void findAShipByName(benchmark::State& state)
{
    WorkFolder work;
    RecordSource& ships = work.catalogue.ShipDataB();
    Names names;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ships.findFirst(u"Name", names.next()));
    }
}
BENCHMARK(findAShipByName);

/// What the look-up stands for.
void walkToAShipByName(benchmark::State& state)
{
    WorkFolder work;
    RecordSource& ships = work.catalogue.ShipDataB();
    Names names;
    for (auto _ : state) {
        const QString& name = names.next();
        for (ships.MoveFirst(); !ships.isEOF() && ships.value(u"Name") != name;) {
            ships.MoveNext();
        }
        benchmark::DoNotOptimize(ships.isEOF());
    }
}
BENCHMARK(walkToAShipByName);

void findAShipAndItsClass(benchmark::State& state)
{
    WorkFolder work;
    Names names;
    for (auto _ : state) {
        work.catalogue.shipToClass(names.next());
    }
}
BENCHMARK(findAShipAndItsClass);

void findTheLengthOfAClass(benchmark::State& state)
{
    WorkFolder work;
    int i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(work.catalogue.lengthUnits(className(++i)));
    }
}
BENCHMARK(findTheLengthOfAClass);

/// A tenth of the catalogue, all of it and ten of it.
void catalogueSizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("ships")->Arg(shipCount / 10)->Arg(shipCount)->Arg(shipCount * 10);
    benchmark->Unit(benchmark::kMillisecond);
}

void floorReadTheCataloguesBytes(benchmark::State& state)
{
    const WorkFolder work(argumentOf(state));
    for (auto _ : state) {
        benchmark::DoNotOptimize(readWholeFile(work.folder.filePath(shipDatabaseFile)));
    }
}
BENCHMARK(floorReadTheCataloguesBytes)->Apply(catalogueSizes);

void openShipsAndClasses(benchmark::State& state)
{
    const WorkFolder work(argumentOf(state));
    for (auto _ : state) {
        ShipCatalogue catalogue(work.controls);
        catalogue.shipToClass(shipName(argumentOf(state) - 1));
    }
}
BENCHMARK(openShipsAndClasses)->Apply(catalogueSizes);

/// A scenario of eleven divisions, and the lists of two more to be written in turn over one another.
class Scenario
{
public:
    Scenario()
    {
        const ProfileStore::Batch batch(store);
        for (int division = 0; division < otherDivisions; ++division) {
            for (int ship = 0; ship < shipsOfADivision; ++ship) {
                records.AddIndividualShip({}, shipName(division * shipsOfADivision + ship),
                                          shipSection(division, ship));
            }
        }
        for (const int number : {1, 2}) {
            QStringList lines;
            for (int ship = 0; ship < shipsOfADivision; ++ship) {
                lines.append(QStringLiteral("CA ") + shipName(number * 500 + ship));
            }
            files.write(files.divisionFile(Side::Blue, number), lines);
        }
    }

    void writeDivision()
    {
        m_number = m_number == 1 ? 2 : 1;
        records.saveindivShipInfoINI(Side::Blue, m_number, divisionSection(otherDivisions), true);
    }
    QByteArray bytes() const { return readWholeFile(profile.path()); }

    WorkFolder work;
    ProfileStore store;
    WorkingProfile profile{store, work.folder.path()};
    ScratchFiles files{store, work.folder.path()};
    ShipRecords records{store, profile, files, work.catalogue};

private:
    int m_number = 1;
};

void floorSaveFileAlone(benchmark::State& state)
{
    Scenario scenario;
    scenario.writeDivision();
    const QByteArray bytes = scenario.bytes();
    for (auto _ : state) {
        QSaveFile device(scenario.profile.path());
        device.setDirectWriteFallback(false);
        device.open(QIODevice::WriteOnly);
        device.write(bytes);
        benchmark::DoNotOptimize(device.commit());
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
}
BENCHMARK(floorSaveFileAlone)->Unit(benchmark::kMillisecond)->UseRealTime();

/// As our store puts a file on disk: the folder synced too.
void floorWriteWholeFileAlone(benchmark::State& state)
{
    Scenario scenario;
    scenario.writeDivision();
    const QByteArray bytes = scenario.bytes();
    for (auto _ : state) {
        writeWholeFile(scenario.profile.path(), bytes);
    }
}
BENCHMARK(floorWriteWholeFileAlone)->Unit(benchmark::kMillisecond)->UseRealTime();

void writeADivisionOfTenShips(benchmark::State& state)
{
    Scenario scenario;
    for (auto _ : state) {
        scenario.writeDivision();
    }
    state.counters["bytes"] = static_cast<double>(scenario.bytes().size());
}
BENCHMARK(writeADivisionOfTenShips)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
