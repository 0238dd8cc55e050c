// Walks an author's road through the real editor in a game folder, with the system's calls failing as asked,
// and says what happens:
//
//   scripted_run <game folder> [--look] [--fail N | --fail-from N | --kill N] [--error I] [--list]
//                [--at STEP --do ACTION] [--next]
//
// With --next another start follows in which nothing fails, and what it says begins with "next". Ends with 0
// if the program could be left as it should, 3 if it could not, and 70 if it hung.

#include "faults/damage.h"
#include "faults/failing_calls.h"
#include "faults/scripted_names.h"
#include "faults/scripted_walk.h"
#include "overview/overview_frm.h"
#include "platform/folder_lock.h"
#include "platform/toolkit_texts.h"
#include "scenario_file/save_scenario.h"
#include "shell/main_frm.h"
#include "shell/run_editor.h"
#include "support/input.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <ctime>
#include <dlfcn.h>
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

void tell(const char* word, const CountedCall& call)
{
    std::printf("%s %ld %s %s\n", word, call.number, call.operation, call.path);
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
    bool next = false;
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
    options.next = arguments.contains(QStringLiteral("--next"));
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

/// What a run says is put behind a word that tells whose run it is.
class Run
{
public:
    Run(const Options& options, const QString& lead) : m_options(options), m_lead(lead)
    {
        m_script.messageBoxes.onShow = [this] {
            const MessageBox& box = m_script.messageBoxes.shown.last();
            tell(QStringLiteral("box %1 | %2").arg(oneLine(box.title), oneLine(box.text)));
            settle(); // a box runs the events of its program
        };
    }

    /// Whether the program could be left.
    bool walk(bool looksOnly)
    {
        tell(QStringLiteral("step start"));
        const FolderLock lock(pathsBelow(m_options.folder).workDir);
        Editor editor(m_options.folder, {.language = Language::English}, m_script.services());
        editor.start();
        settle();
        tell(QStringLiteral("work %1").arg(namesIn(pathsBelow(m_options.folder).workDir).join(u'|')));
        ScriptedWalk walk(editor, m_script,
                          {.step = [this](const QString& step) { begin(step); },
                           .result = [&](const QString& step, bool done) { end(editor, step, done); }});
        const QString savedAs =
            pathsBelow(m_options.folder).scenarioDir + QLatin1StringView(scenarioNames.back());
        return looksOnly ? walk.look() : walk.walk(savedAs);
    }

    void tell(const QString& line) const { say(m_lead + line); }

private:
    void begin(const QString& step) const
    {
        tell(QStringLiteral("step %1").arg(step));
        if (m_lead.isEmpty() && step == m_options.damagedAt) {
            const UnwatchedCalls unwatched;
            tell(damage(m_options.folder, m_options.damage) ? QStringLiteral("damaged")
                                                            : QStringLiteral("not damaged"));
        }
    }
    void end(Editor& editor, const QString& step, bool done) const
    {
        if (!done) {
            tell(QStringLiteral("missed %1").arg(step));
        }
        if (step == QLatin1StringView(saveStep) || step == QLatin1StringView(saveAsStep)) {
            keepExpected(editor, m_options.folder + QLatin1Char('.') + step);
        }
    }

    const Options& m_options;
    QString m_lead;
    ScriptedServices m_script;
};

bool runAsAsked(const Options& options)
{
    const ToolkitTexts toolkitTexts(Language::English);
    Run run(options, QString());
    watchCalls(QFile::encodeName(options.folder).constData(), options.plan);
    bool left = run.walk(options.look);
    say(QStringLiteral("calls %1").arg(countedCalls()));
    run.tell(left ? QStringLiteral("left") : QStringLiteral("no way out"));
    if (options.next) {
        const UnwatchedCalls unwatched;
        Run next(options, QStringLiteral("next "));
        left = next.walk(true) && left;
        next.tell(left ? QStringLiteral("left") : QStringLiteral("no way out"));
    }
    return left;
}

} // namespace

} // namespace torvane::testing

/// The clock by which the editor tells whether a file's time stamp can still hide a change stands back, so
/// that none can: how often the road reads its files must not hang on how fast it is walked.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    constexpr time_t setBack = 10;
    static auto* const next =
        reinterpret_cast<int (*)(clockid_t, timespec*)>(::dlsym(RTLD_NEXT, "clock_gettime"));
    const int result = next(clock, time);
    if (result == 0 && clock == CLOCK_REALTIME_COARSE) {
        time->tv_sec -= setBack;
    }
    return result;
}

int main(int argc, char** argv)
{
    using namespace torvane::testing;
    std::signal(SIGALRM, [](int) { ::_exit(hungExit); });
    ::alarm(secondsToHang);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    torvane::prepareApplication();
    const Options options = optionsFrom(QApplication::arguments());
    if (options.folder.isEmpty()) {
        say(QStringLiteral("usage: scripted_run <game folder> [--look] [--fail N | --fail-from N | --kill N] "
                           "[--error I] [--list] [--at STEP --do ACTION]"));
        return 2;
    }
    onCall(options.list ? [](const CountedCall& call) { tell("call", call); } : [](const CountedCall& call) {
        if (call.fails) {
            tell("fails", call);
        }
    });
    return runAsAsked(options) ? 0 : deadEndExit;
}
