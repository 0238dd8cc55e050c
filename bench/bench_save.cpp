#include "measured.h"
#include "platform/code_page.h"
#include "platform/profile_store.h"
#include "platform/text_files.h"
#include "scenario_file/save_scenario.h"
#include "store/profile_keys.h"
#include "store/working_profile.h"

#include <QSaveFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace torvane;

namespace {

constexpr TargetArea target{.x = 12000, .z = -3400};

/// A working profile with so many ships spread over twelve divisions.
QByteArray profileOf(int ships)
{
    QByteArray bytes = "[SCENARIODATA]\r\n";
    for (const QStringView key : scenarioDataKeys) {
        bytes += toCodePage(key) + "=1\r\n";
    }
    bytes += "[SCENARIOINFO]\r\nDIVISIONCNT=12\r\n";
    for (int n = 0; n < divisionSections; ++n) {
        bytes += '[' + toCodePage(divisionSection(n)) + "]\r\n";
        for (const QStringView key : divisionKeys) {
            bytes += toCodePage(key) + "=1000\r\n";
        }
        const int own = ships / divisionSections + (n < ships % divisionSections ? 1 : 0);
        for (int m = 0; m < own; ++m) {
            bytes += '[' + toCodePage(shipSection(n, m)) + "]\r\n";
            for (const QStringView key : shipKeys) {
                bytes += toCodePage(key) + "=100\r\n";
            }
        }
    }
    return bytes;
}

/// A scenario on disk, and the file that it is saved to, which is there already.
class SavedScenario
{
public:
    explicit SavedScenario(int ships)
    {
        writeWholeFile(m_profile.path(), profileOf(ships));
        saveINIfile(file(), m_profile, target, u"Force A");
    }
    ProfileStore& store() { return m_store; }
    const WorkingProfile& profile() const { return m_profile; }
    QString file() const { return m_folder.filePath(QStringLiteral("Convoy PQ 17.scn")); }

private:
    QTemporaryDir m_folder;
    ProfileStore m_store;
    WorkingProfile m_profile{m_store, m_folder.path()};
};

void floorQSaveFileOfTheSameBytes(benchmark::State& state)
{
    const SavedScenario scenario(argumentOf(state));
    const QByteArray bytes = readWholeFile(scenario.file());
    for (auto _ : state) {
        QSaveFile file(scenario.file());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
            state.SkipWithError("the file could not be written");
        }
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

void floorWriteWholeFileOfTheSameBytes(benchmark::State& state)
{
    const SavedScenario scenario(argumentOf(state));
    const QByteArray bytes = readWholeFile(scenario.file());
    for (auto _ : state) {
        writeWholeFile(scenario.file(), bytes);
    }
}

/// As one event does it: the profile, unchanged since the event before, read from memory.
void save(benchmark::State& state)
{
    SavedScenario scenario(argumentOf(state));
    for (auto _ : state) {
        const ProfileStore::Batch batch(scenario.store());
        saveINIfile(scenario.file(), scenario.profile(), target, u"Force A");
    }
}

void saveWithoutTheDisk(benchmark::State& state)
{
    SavedScenario scenario(argumentOf(state));
    for (auto _ : state) {
        const ProfileStore::Batch batch(scenario.store());
        benchmark::DoNotOptimize(scenarioBytes(scenario.profile(), target, u"Force A"));
    }
}

void shipCounts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("ships")
        ->Arg(1)
        ->Arg(10)
        ->Arg(32)
        ->Arg(100)
        ->Arg(120)
        ->Unit(benchmark::kMicrosecond)
        ->UseRealTime();
}
BENCHMARK(floorQSaveFileOfTheSameBytes)->Apply(shipCounts);
BENCHMARK(floorWriteWholeFileOfTheSameBytes)->Apply(shipCounts);
BENCHMARK(save)->Apply(shipCounts);
BENCHMARK(saveWithoutTheDisk)->Apply(shipCounts);

} // namespace

BENCHMARK_MAIN();
