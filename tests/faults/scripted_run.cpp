// Walks an author's road through the real editor in a game folder, with the system's calls failing as asked,
// and says what happens:
//
//   scripted_run <game folder> [--look] [--fail N | --fail-from N | --kill N] [--error I] [--list]
//                [--at STEP --do ACTION]
//
// Ends with 0 if the program could be left as it should, 3 if it could not, and 70 if it hung.

#include "faults/damage.h"
#include "faults/failing_calls.h"
#include "faults/scripted_walk.h"
#include "overview/overview_frm.h"
#include "platform/folder_lock.h"
#include "platform/toolkit_texts.h"
#include "scenario_file/save_scenario.h"
#include "shell/main_frm.h"
#include "support/input.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace torvane::testing {

namespace {

constexpr unsigned secondsToHang = 60;
constexpr int hungExit = 70;
constexpr int deadEndExit = 3;

void say(const QString& line)
{
    std::fputs(line.toUtf8().constData(), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

QString oneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QStringLiteral(" / "));
}

struct Options
{
    QString folder;
    bool look = false;
    bool list = false;
    FailurePlan plan;
    QString damagedAt;
    QString damage;
};

Options optionsFrom(const QStringList& arguments)
{
    Options options;
    options.folder = QDir(arguments.value(1)).canonicalPath();
    const auto valueOf = [&](const char* name) {
        const qsizetype at = arguments.indexOf(QLatin1StringView(name));
        return at < 0 ? QString() : arguments.value(at + 1);
    };
    options.look = arguments.contains(QStringLiteral("--look"));
    options.list = arguments.contains(QStringLiteral("--list"));
    options.plan.error = valueOf("--error").toInt();
    options.damagedAt = valueOf("--at");
    options.damage = valueOf("--do");
    const std::pair<const char*, FailurePlan::What> plans[] = {{"--fail", FailurePlan::What::Fail},
                                                               {"--fail-from", FailurePlan::What::FailFrom},
                                                               {"--kill", FailurePlan::What::Kill}};
    for (const auto& [name, what] : plans) {
        if (const QString number = valueOf(name); !number.isEmpty()) {
            options.plan.what = what;
            options.plan.number = number.toLong();
        }
    }
    return options;
}

/// What the scenario under edit must be saved as, put beside the game folder for whoever judges the run.
void keepExpected(Editor& editor, const QString& path)
{
    const UnwatchedCalls unwatched;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return;
    }
    try {
        file.write(scenarioBytes(editor.workingProfile(), editor.mainFrm().targetArea(),
                                 editor.overviewFrm().lblForceA->text()));
    } catch (const RuntimeError&) {
        // Can't be saved: whatever stands under the name is the old file.
        file.remove();
    }
}

QStringList namesIn(const QString& folder)
{
    const UnwatchedCalls unwatched;
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

int run(const Options& options)
{
    ScriptedServices script;
    script.messageBoxes.onShow = [&script] {
        const MessageBox& box = script.messageBoxes.shown.last();
        say(QStringLiteral("box %1 | %2").arg(oneLine(box.title), oneLine(box.text)));
        settle(); // a box runs the events of its program
    };
    const ToolkitTexts toolkitTexts(Language::English);
    say(QStringLiteral("step start"));
    watchCalls(QFile::encodeName(options.folder).constData(), options.plan);
    const FolderLock lock(pathsBelow(options.folder).workDir);
    bool left = false;
    {
        Editor editor(options.folder, {.language = Language::English}, script.services());
        editor.start();
        settle();
        say(QStringLiteral("work %1").arg(namesIn(pathsBelow(options.folder).workDir).join(u'|')));
        const auto atStep = [&](const QString& step) {
            say(QStringLiteral("step %1").arg(step));
            if (step == options.damagedAt) {
                const UnwatchedCalls unwatched;
                say(damage(options.folder, options.damage) ? QStringLiteral("damaged")
                                                           : QStringLiteral("not damaged"));
            }
        };
        const auto atResult = [&](const QString& step, bool done) {
            if (!done) {
                say(QStringLiteral("missed %1").arg(step));
            }
            if (step == QStringLiteral("save") || step == QStringLiteral("save as")) {
                keepExpected(editor, options.folder + QStringLiteral(".") + step);
            }
        };
        ScriptedWalk walk(editor, script, {atStep, atResult});
        const QString scenarios = pathsBelow(options.folder).scenarioDir;
        left = options.look ? walk.look() : walk.walk(scenarios + ScriptedWalk::otherName());
    }
    say(QStringLiteral("calls %1").arg(countedCalls()));
    if (const FailedCall failed = failedCall(); failed.operation != nullptr) {
        say(QStringLiteral("failed %1 %2 %3")
                .arg(QLatin1StringView(failed.operation), QString::number(failed.error),
                     QFile::decodeName(failed.path)));
    }
    say(left ? QStringLiteral("left") : QStringLiteral("no way out"));
    return left ? 0 : deadEndExit;
}

} // namespace

} // namespace torvane::testing

int main(int argc, char** argv)
{
    using namespace torvane::testing;
    std::signal(SIGALRM, [](int) { ::_exit(hungExit); });
    ::alarm(secondsToHang);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    const Options options = optionsFrom(QApplication::arguments());
    if (options.folder.isEmpty()) {
        say(QStringLiteral("usage: scripted_run <game folder> [--look] [--fail N | --fail-from N | --kill N] "
                           "[--error I] [--list] [--at STEP --do ACTION]"));
        return 2;
    }
    if (options.list) {
        onCall([](long number, const char* operation, const char* path) {
            std::printf("call %ld %s %s\n", number, operation, path);
        });
    }
    return run(options);
}
