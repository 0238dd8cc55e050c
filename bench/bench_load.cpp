#include "measured.h"
#include "overview/overview_frm.h"
#include "platform/code_page.h"
#include "platform/text_files.h"
#include "scenario_file/save_scenario.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "shell/splash_frm.h"
#include "store/profile_keys.h"
#include "store/working_tables.h"
#include "support/scripted_services.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace torvane;

namespace {

constexpr int usualShips = 32;

/// A working profile of twelve divisions, six a side, with the ships spread over them.
QByteArray workingProfile(int ships)
{
    QByteArray bytes = "[SCENARIODATA]\r\n";
    for (const auto& [key, value] : encodeScenario(scenarioDefaults(Language::English), Language::English)) {
        bytes += toCodePage(key) + '=' + toCodePage(value) + "\r\n";
    }
    bytes += "[SCENARIOINFO]\r\nDIVISIONCNT=12\r\n";
    for (int n = 0; n < divisionSections; ++n) {
        const int own = ships / divisionSections + (n < ships % divisionSections ? 1 : 0);
        bytes +=
            '[' + toCodePage(divisionSection(n)) + "]\r\nDIVISIONNAME=Division " +
            QByteArray::number(n / 2 + 1) + "\r\nSIDE=" + (n % 2 == 0 ? "Blue" : "Red") +
            "\r\nFORMATION=Column\r\nFORMATIONHEADING=90\r\nFORMATIONSPACING=1000\r\nSPEED=18\r\nSHIPCNT=" +
            QByteArray::number(own) + "\r\nFLAGSHIPINDEX=0\r\nENCUMBERED=0\r\n";
        for (int m = 0; m < own; ++m) {
            bytes += '[' + toCodePage(shipSection(n, m)) + "]\r\n";
            for (const QStringView key : shipKeys) {
                bytes += toCodePage(key) + '=' + QByteArray::number(n * 100 + m) + "\r\n";
            }
        }
    }
    return bytes;
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// A run of the editor past its splash screen, with one scenario in the scenario folder.
class Run
{
public:
    explicit Run(int ships = usualShips)
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("ScenarioEditor"));
        QDir(m_folder.path()).mkpath(QStringLiteral("Scenarios"));
        createWorkingTables(workFile(scenarioDataFile));
        editor.start();
        editor.splashFrm().hideForm();
        editor.mainFrm().showForm();
        settle();
        ProfileStore profiles;
        WorkingProfile profile(profiles, m_folder.path());
        writeWholeFile(profile.path(), workingProfile(ships));
        saveINIfile(scenario(), profile, {.x = 500, .z = 700}, u"Force A");
        load(); // the overview is made once a run
        closeOverview();
    }

    QString scenario() const { return m_folder.filePath(QStringLiteral("Scenarios/Title.scn")); }
    QString workFile(const QString& name) const
    {
        return m_folder.filePath(QStringLiteral("ScenarioEditor/")) + name;
    }
    QStringList scratchFiles() const
    {
        return QDir(workFile(QString())).entryList({QStringLiteral("*.txt"), QStringLiteral("*.bmm")});
    }
    /// From the choice in the file box to the overview that shows the scenario.
    void load()
    {
        m_services.fileBoxes.answers = {scenario()};
        choose("mnuLoad");
    }
    void save() { choose("mnuSave"); }
    void openOverview() { choose("mnuOverView"); }
    void closeOverview()
    {
        editor.overviewFrm().close();
        settle();
    }
    bool isOverviewShown() { return editor.overviewFrm().isVisible(); }
    const QList<MessageBox>& boxes() const { return m_services.messageBoxes.shown; }

private:
    void choose(const char* entry)
    {
        editor.mainFrm().menu().action(QLatin1StringView(entry))->trigger();
        settle();
    }

    QTemporaryDir m_folder;
    torvane::testing::ScriptedServices m_services;

public:
    Editor editor{m_folder.path(), {.language = Language::English}, m_services.services()};
};

void shipCounts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("ships")->Arg(1)->Arg(10)->Arg(usualShips)->Arg(100);
    benchmark->Unit(benchmark::kMillisecond);
}

/// The scenario's bytes read, and the files that a load leaves deleted and written, each in one piece.
/// Nothing is synced.
void floorOfTheSameFiles(benchmark::State& state)
{
    Run run(argumentOf(state));
    run.load();
    std::vector<std::pair<QString, QByteArray>> files;
    for (const QString& name : run.scratchFiles()) {
        files.emplace_back(run.workFile(name), readWholeFile(run.workFile(name)));
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(readWholeFile(run.scenario()));
        for (const auto& [path, bytes] : files) {
            QFile file(path);
            file.remove(); // else the file system writes what it replaces to the disk at once
            if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
                state.SkipWithError("a file could not be written");
            }
        }
    }
    state.counters["files"] = static_cast<double>(files.size());
}

void floorOfTheOverviewAlone(benchmark::State& state)
{
    Run run(argumentOf(state));
    for (auto _ : state) {
        run.openOverview();
        state.PauseTiming();
        run.closeOverview();
        state.ResumeTiming();
    }
}

void load(benchmark::State& state)
{
    Run run(argumentOf(state));
    for (auto _ : state) {
        run.load();
        state.PauseTiming();
        if (!run.isOverviewShown()) {
            state.SkipWithError("the overview does not show");
        }
        run.closeOverview();
        state.ResumeTiming();
    }
}

/// One run in which the scenario is loaded and saved a thousand times.
void loadAndSaveAThousandTimes(benchmark::State& state)
{
    for (auto _ : state) {
        Run run;
        QByteArray second;
        double early = 0;
        for (int i = 1; i <= 1000; ++i) {
            run.load();
            run.closeOverview();
            run.save();
            if (i == 2) {
                second = readWholeFile(run.scenario());
            } else if (i > 2 && readWholeFile(run.scenario()) != second) {
                state.SkipWithError("the file changed");
                break;
            }
            if (i == 100) {
                early = residentBytes() / 1024;
            }
        }
        state.counters["kB at 100"] = early;
        state.counters["kB at 1000"] = residentBytes() / 1024;
        state.counters["boxes"] = static_cast<double>(run.boxes().size());
    }
}

BENCHMARK(floorOfTheSameFiles)->Apply(shipCounts);
BENCHMARK(floorOfTheOverviewAlone)->Apply(shipCounts);
BENCHMARK(load)->Apply(shipCounts);
BENCHMARK(loadAndSaveAThousandTimes)->Unit(benchmark::kSecond)->Iterations(1)->Repetitions(1);

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
