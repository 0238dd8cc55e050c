// Processor time from start to the splash screen, memory at the empty main window, and processor time while
// idle, of the built program on a virtual screen; beside the same of a program that shows one empty window.

#include "e2e/desktop.h"

#include <QCoreApplication>
#include <QFile>
#include <QThread>

#include <benchmark/benchmark.h>

#include <unistd.h>

namespace {

using torvane::testing::Desktop;
using torvane::testing::GameFolder;

// Processor time of a process so far, in seconds.
double processorSeconds(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray text = stat.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    const double ticks = fields.at(11).toDouble() + fields.at(12).toDouble();
    return ticks / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double residentMegabytes(qint64 pid)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(pid));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024.0;
        }
    }
    return 0;
}

void end(QProcess& process)
{
    process.kill();
    process.waitForFinished();
}

void measureStart(benchmark::State& state, const GameFolder& folder, const QString& program)
{
    const Desktop desktop;
    double seconds = 0;
    for (auto _ : state) {
        auto process = folder.start(program, desktop);
        if (!desktop.hasWindow(QStringLiteral("Torvane"))) {
            state.SkipWithError("no window");
            return;
        }
        const double used = processorSeconds(process->processId());
        state.SetIterationTime(used);
        seconds += used;
        end(*process);
    }
    state.counters["cpu_s"] = seconds / static_cast<double>(state.iterations());
}

// The program past its splash screen: memory, and processor time over two idle seconds.
void measureRest(benchmark::State& state, const GameFolder& folder, const QString& program,
                 const QString& title)
{
    const Desktop desktop;
    for (auto _ : state) {
        auto process = folder.start(program, desktop);
        if (!desktop.hasWindow(title) || !desktop.isActive(title)) {
            state.SkipWithError("no window");
            return;
        }
        QThread::sleep(1);
        const double before = processorSeconds(process->processId());
        QThread::sleep(2);
        state.counters["idle_cpu_s"] = processorSeconds(process->processId()) - before;
        state.counters["resident_MB"] = residentMegabytes(process->processId());
        end(*process);
    }
}

const QString editor = QStringLiteral("TorvaneScenarioEditor");
const QString floorProgram = QStringLiteral("floor_window");

GameFolder& folderWithFloor()
{
    static GameFolder folder;
    static const bool copied =
        QFile::copy(QStringLiteral(TORVANE_FLOOR_WINDOW), folder.path() + QLatin1Char('/') + floorProgram);
    Q_UNUSED(copied)
    return folder;
}

void StartToSplash(benchmark::State& state)
{
    measureStart(state, folderWithFloor(), editor);
}
void FloorStartToWindow(benchmark::State& state)
{
    measureStart(state, folderWithFloor(), floorProgram);
}
void AtMainWindow(benchmark::State& state)
{
    measureRest(state, folderWithFloor(), editor, QStringLiteral("Torvane - Szenario-Editor"));
}
void FloorAtWindow(benchmark::State& state)
{
    measureRest(state, folderWithFloor(), floorProgram, QStringLiteral("Torvane"));
}

BENCHMARK(FloorStartToWindow)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);
BENCHMARK(StartToSplash)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);
BENCHMARK(FloorAtWindow)->Iterations(1);
BENCHMARK(AtMainWindow)->Iterations(1);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
