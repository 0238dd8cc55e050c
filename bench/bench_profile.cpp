#include "measured.h"
#include "platform/code_page.h"
#include "platform/profile.h"
#include "platform/profile_store.h"
#include "platform/text_files.h"
#include "store/profile_keys.h"
#include "store/working_profile.h"

#include <QFile>
#include <QHash>
#include <QSaveFile>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <random>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

#ifdef TORVANE_HAS_INIH
#include <ini.h>
#endif
#ifdef TORVANE_HAS_SIMPLEINI
#define SI_NO_CONVERSION // the text is bytes here
#include <SimpleIni.h>
#endif

using namespace torvane;

namespace {

constexpr int readsARun = 10'000;
constexpr int writesARun = 2'500;

/// A scenario of twelve divisions with so many ships in each.
QByteArray scenario(int ships)
{
    QByteArray bytes = "[VERSION]\r\nVERSIONNUMBER=64\r\n[SCENARIODATA]\r\n";
    for (const QStringView key : scenarioDataKeys) {
        bytes += toCodePage(key) + "=1\r\n";
    }
    bytes += "[SCENARIOINFO]\r\nDIVISIONCNT=12\r\n";
    for (int n = 0; n < divisionSections; ++n) {
        bytes += '[' + toCodePage(divisionSection(n)) + "]\r\n";
        for (const QStringView key : divisionKeys) {
            bytes += toCodePage(key) + "=12\r\n";
        }
        for (int m = 0; m < ships; ++m) {
            bytes += '[' + toCodePage(shipSection(n, m)) + "]\r\n";
            for (const QStringView key : shipKeys) {
                bytes += toCodePage(key) + "=100\r\n";
            }
        }
    }
    return bytes;
}

/// About 200 kB, somewhat more than the largest scenario of ten ships in each division.
const QByteArray& readFile()
{
    static const QByteArray bytes = scenario(11);
    return bytes;
}

constexpr int shipsOfParseFile = 17;

/// About 300 kB.
const QByteArray& parseFile()
{
    static const QByteArray bytes = scenario(shipsOfParseFile);
    return bytes;
}

/// Ships of a division in a file that is parsed: 1, 10 and 100 times the work, and those of the usual file.
void parsedSizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("ships")->Arg(1)->Arg(10)->Arg(shipsOfParseFile)->Arg(100);
    benchmark->Unit(benchmark::kMicrosecond);
}

/// Reads in a row.
void readCounts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("reads")->Arg(readsARun / 100)->Arg(readsARun / 10)->Arg(readsARun);
    benchmark->Unit(benchmark::kMicrosecond);
}

struct Name
{
    QString section;
    QString key;
};

/// Names of keys in random order, the same in each run.
std::vector<Name> randomNames(int count)
{
    std::mt19937 random(1);
    const auto below = [&random](int bound) {
        return std::uniform_int_distribution<int>(0, bound - 1)(random);
    };
    std::vector<Name> names;
    for (int i = 0; i < count; ++i) {
        const QStringView key = shipKeys[static_cast<std::size_t>(below(static_cast<int>(shipKeys.size())))];
        names.push_back({shipSection(below(divisionSections), below(11)), key.toString()});
    }
    return names;
}

/// A profile on disk that has not been changed for a while.
class FileOnDisk
{
public:
    explicit FileOnDisk(const QByteArray& bytes) : m_path(m_folder.filePath(QStringLiteral("iniTemp.bmm")))
    {
        writeWholeFile(m_path, bytes);
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    const QString& path() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path;
};

void floorMemchrOverLines(benchmark::State& state)
{
    const QByteArray bytes = scenario(argumentOf(state));
    for (auto _ : state) {
        int lines = 0;
        const char* at = bytes.begin();
        while (const void* end = std::memchr(at, '\n', static_cast<std::size_t>(bytes.end() - at))) {
            at = static_cast<const char*>(end) + 1;
            ++lines;
        }
        benchmark::DoNotOptimize(lines);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bytes.size());
}
BENCHMARK(floorMemchrOverLines)->Apply(parsedSizes);

/// With a look-up in every section, so that no work is put off.
void parseAndLookIntoEachSection(benchmark::State& state)
{
    const QByteArray bytes = scenario(argumentOf(state));
    std::vector<QByteArray> sections;
    for (int n = 0; n < divisionSections; ++n) {
        for (int m = 0; m < argumentOf(state); ++m) {
            sections.push_back(toCodePage(shipSection(n, m)));
        }
    }
    for (auto _ : state) {
        const Profile profile = Profile::parse(bytes);
        for (const QByteArray& section : sections) {
            benchmark::DoNotOptimize(profile.value(section, "MAGBCOM"));
        }
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * bytes.size());
}
BENCHMARK(parseAndLookIntoEachSection)->Apply(parsedSizes);

#ifdef TORVANE_HAS_INIH
void parseWithInihIntoMap(benchmark::State& state)
{
    using Values = std::map<std::pair<std::string, std::string>, std::string>;
    for (auto _ : state) {
        Values values;
        const auto take = [](void* user, const char* section, const char* name, const char* value) {
            static_cast<Values*>(user)->emplace(std::pair(section, name), value);
            return 1;
        };
        ini_parse_string(parseFile().constData(), take, &values);
        benchmark::DoNotOptimize(values.size());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * parseFile().size());
}
BENCHMARK(parseWithInihIntoMap)->Unit(benchmark::kMicrosecond);
#endif

#ifdef TORVANE_HAS_SIMPLEINI
void parseWithSimpleIni(benchmark::State& state)
{
    for (auto _ : state) {
        CSimpleIniA ini;
        ini.LoadData(parseFile().constData(), static_cast<std::size_t>(parseFile().size()));
        benchmark::DoNotOptimize(ini.GetValue("DIVISION0SHIP0", "MAGBCOM"));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * parseFile().size());
}
BENCHMARK(parseWithSimpleIni)->Unit(benchmark::kMicrosecond);
#endif

/// Reads a file, as it can't do otherwise; the others take bytes. It parses a section at its first use, so
/// the look-ups are part of the work.
void parseFileWithQSettings(benchmark::State& state)
{
    const FileOnDisk source(parseFile());
    const QTemporaryDir folder;
    QStringList keys;
    for (int n = 0; n < divisionSections; ++n) {
        for (int m = 0; m < shipsOfParseFile; ++m) {
            keys << shipSection(n, m) + QStringLiteral("/MAGBCOM");
        }
    }
    int run = 0;
    for (auto _ : state) {
        // It keeps what it has parsed by name: each run needs a name of its own.
        state.PauseTiming();
        const QString path = folder.filePath(QString::number(++run));
        QFile::copy(source.path(), path);
        state.ResumeTiming();
        const QSettings settings(path, QSettings::IniFormat);
        for (const QString& key : keys) {
            benchmark::DoNotOptimize(settings.value(key));
        }
        state.PauseTiming();
        QFile::remove(path);
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * parseFile().size());
}
BENCHMARK(parseFileWithQSettings)->Unit(benchmark::kMicrosecond);

void floorHashLookUps(benchmark::State& state)
{
    QHash<QString, QString> values;
    std::vector<QString> keys;
    for (const Name& name : randomNames(argumentOf(state))) {
        keys.push_back(name.section + u'/' + name.key);
        values.insert(keys.back(), QStringLiteral("100"));
    }
    for (auto _ : state) {
        for (const QString& key : keys) {
            benchmark::DoNotOptimize(values.value(key));
        }
    }
}
BENCHMARK(floorHashLookUps)->Apply(readCounts);

void readKeysInABatch(benchmark::State& state)
{
    const FileOnDisk file(readFile());
    const std::vector<Name> names = randomNames(argumentOf(state));
    ProfileStore store;
    for (auto _ : state) {
        const ProfileStore::Batch batch(store);
        for (const Name& name : names) {
            benchmark::DoNotOptimize(store.read(file.path(), name.section, name.key));
        }
    }
}
BENCHMARK(readKeysInABatch)->Apply(readCounts);

void floorLooksAtTheDisk(benchmark::State& state)
{
    const FileOnDisk file(readFile());
    const QByteArray path = QFile::encodeName(file.path());
    for (auto _ : state) {
        for (int i = 0; i < argumentOf(state); ++i) {
            struct statx status = {};
            benchmark::DoNotOptimize(::statx(AT_FDCWD, path.constData(), 0, STATX_BASIC_STATS, &status));
        }
    }
}
BENCHMARK(floorLooksAtTheDisk)->Apply(readCounts);

void readKeysWithoutABatch(benchmark::State& state)
{
    const FileOnDisk file(readFile());
    const std::vector<Name> names = randomNames(argumentOf(state));
    ProfileStore store;
    for (auto _ : state) {
        for (const Name& name : names) {
            benchmark::DoNotOptimize(store.read(file.path(), name.section, name.key));
        }
    }
}
BENCHMARK(readKeysWithoutABatch)->Apply(readCounts);

/// Values that differ from those of the run before.
QString valueOfRun(int run)
{
    return QString::number(run);
}

void floorSaveFileAlone(benchmark::State& state)
{
    const FileOnDisk file(readFile());
    for (auto _ : state) {
        QSaveFile device(file.path());
        device.setDirectWriteFallback(false);
        device.open(QIODevice::WriteOnly);
        device.write(readFile());
        benchmark::DoNotOptimize(device.commit());
    }
}
BENCHMARK(floorSaveFileAlone)->Unit(benchmark::kMillisecond)->UseRealTime();

/// As our store puts a file on disk: the folder synced too.
void floorWriteWholeFileAlone(benchmark::State& state)
{
    const FileOnDisk file(readFile());
    for (auto _ : state) {
        writeWholeFile(file.path(), readFile());
    }
}
BENCHMARK(floorWriteWholeFileAlone)->Unit(benchmark::kMillisecond)->UseRealTime();

void writeKeysInABatchToDisk(benchmark::State& state)
{
    const FileOnDisk file(readFile());
    const std::vector<Name> names = randomNames(writesARun);
    ProfileStore store;
    int run = 0;
    for (auto _ : state) {
        const QString value = valueOfRun(++run);
        const ProfileStore::Batch batch(store);
        for (const Name& name : names) {
            store.write(file.path(), name.section, name.key, value);
        }
    }
}
BENCHMARK(writeKeysInABatchToDisk)->Unit(benchmark::kMillisecond)->UseRealTime();

/// The same without the disk.
void writeKeysAndMakeTheBytes(benchmark::State& state)
{
    const std::vector<Name> names = randomNames(writesARun);
    Profile profile = Profile::parse(readFile());
    int run = 0;
    for (auto _ : state) {
        const QByteArray value = toCodePage(valueOfRun(++run));
        for (const Name& name : names) {
            profile.setValue(toCodePage(name.section), toCodePage(name.key), value);
        }
        benchmark::DoNotOptimize(profile.bytes());
    }
}
BENCHMARK(writeKeysAndMakeTheBytes)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
