#include "flood/memory.h"
#include "flood/monkey.h"
#include "flood/still_clock.h"
#include "shell/run_editor.h"

#include <QApplication>
#include <QFile>
#include <QHashSeed>
#include <QRegularExpression>

#include <chrono>
#include <cstdio>
#include <exception>

// Floods the editor with events. The same seed sends the same events; a fault is met again by its seed and
// the number of its event, or by the log that told of it.

#ifdef __SANITIZE_ADDRESS__
// What is freed is not kept back for so long that memory could not be told flat.
extern "C" const char* __asan_default_options()
{
    return "quarantine_size_mb=32:detect_leaks=0";
}
#endif

using namespace torvane::testing;

namespace {

struct Arguments
{
    FloodOptions flood{.seed = 1,
                       .events = 100000,
                       .gameFiles = QStringLiteral(GAME_FILES),
                       .damagedFiles = QStringLiteral(DAMAGED_FILES)};
    bool valid = true;
};

/// Takes seed and event from what an earlier flood told of its fault.
bool readLog(const QString& path, FloodOptions& flood)
{
    static const QRegularExpression line(QStringLiteral("seed (\\d+), event (\\d+)"));
    QFile file(path);
    const QRegularExpressionMatch match = file.open(QIODevice::ReadOnly)
                                              ? line.match(QString::fromUtf8(file.readAll()))
                                              : QRegularExpressionMatch();
    if (!match.hasMatch()) {
        return false;
    }
    flood.seed = match.captured(1).toULongLong();
    flood.events = match.captured(2).toLongLong();
    return true;
}

Arguments argumentsOf(const QStringList& words)
{
    Arguments arguments;
    for (qsizetype i = 1; i < words.size(); i += 2) {
        const QString value = words.value(i + 1);
        if (words[i] == QStringLiteral("--seed")) {
            arguments.flood.seed = value.toULongLong(&arguments.valid);
        } else if (words[i] == QStringLiteral("--events")) {
            arguments.flood.events = value.toLongLong(&arguments.valid);
        } else if (words[i] == QStringLiteral("--paint-every")) {
            arguments.flood.paintEvery = value.toInt(&arguments.valid);
            arguments.valid = arguments.valid && arguments.flood.paintEvery > 0;
        } else {
            arguments.valid = words[i] == QStringLiteral("--from-log") && readLog(value, arguments.flood);
        }
        if (!arguments.valid) {
            break;
        }
    }
    return arguments;
}

int report(const FloodOptions& flood, const FloodOutcome& outcome, const Census& census, double seconds)
{
    std::printf("%s", qPrintable(census.text()));
    std::printf("seed %llu, event %lld: %.1f s, %.3f ms an event, digest %016llx\n",
                static_cast<unsigned long long>(flood.seed), static_cast<long long>(outcome.events), seconds,
                1000.0 * seconds / static_cast<double>(std::max<std::int64_t>(1, outcome.events)),
                static_cast<unsigned long long>(outcome.digest));
    std::printf("memory: %lld KiB more in place than after the warm-up (bound %lld), %lld KiB more allocated "
                "between runs (bound %lld)\n",
                static_cast<long long>(outcome.residentGrowth / 1024),
                static_cast<long long>(residentBound / 1024),
                static_cast<long long>(outcome.allocatedGrowth / 1024),
                static_cast<long long>(allocatedBound / 1024));
    if (outcome.fault.isEmpty()) {
        return 0;
    }
    for (const QString& line : outcome.lastInputs) {
        std::printf("  %s\n", qPrintable(line));
    }
    std::printf("-- the working profile\n%s--\nFAULT: %s\n", outcome.profile.constData(),
                qPrintable(outcome.fault));
    return 1;
}

} // namespace

// The offscreen platform tells of each window that it can't raise.
static void dropPlatformNotes(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    static_cast<void>(type);
    static_cast<void>(context);
    if (!text.startsWith(QStringLiteral("This plugin does not support"))) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

int main(int argc, char** argv)
{
    // Nothing of the machine's decides what happens.
    qInstallMessageHandler(dropPlatformNotes);
    QHashSeed::setDeterministicGlobalSeed();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    QApplication application(argc, argv);
    torvane::prepareApplication();
    const Arguments arguments = argumentsOf(QCoreApplication::arguments());
    if (!arguments.valid) {
        std::fprintf(stderr, "usage: monkey [--seed n] [--events n] [--paint-every n] [--from-log file]\n");
        return 2;
    }
    stopClock();
    try {
        const auto begin = std::chrono::system_clock::now();
        Monkey monkey(arguments.flood);
        const FloodOutcome outcome = monkey.run();
        const std::chrono::duration<double> taken = std::chrono::system_clock::now() - begin;
        return report(arguments.flood, outcome, monkey.census(), taken.count());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
