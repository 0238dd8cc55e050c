#include "faults/sweep.h"

#include "faults/damage.h"
#include "faults/recovery.h"
#include "faults/scripted_names.h"
#include "platform/text_files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRegularExpression>

#include <atomic>
#include <random>
#include <set>
#include <stdexcept>
#include <thread>

namespace torvane::testing {

namespace {

constexpr int programsAtOnce = 2;

const QString nextLead = QStringLiteral("next ");
const QStringList nextOption{QStringLiteral("--next")};

/// The calls of a run that has listed them.
std::vector<RoadCall> callsOf(const QString& said)
{
    std::vector<RoadCall> calls;
    QString step;
    for (const QString& line : said.split(QLatin1Char('\n'))) {
        const auto word = [&line](int place) { return line.section(QLatin1Char(' '), place, place); };
        if (word(0) == QStringLiteral("step")) {
            step = line.section(QLatin1Char(' '), 1);
        } else if (word(0) == QStringLiteral("call")) {
            const QString path = line.section(QLatin1Char(' '), 3);
            calls.push_back({word(1).toLong(), step, word(2), QFileInfo(path).fileName()});
        }
    }
    return calls;
}

/// A step without the force it is about.
QString kindOfStep(const QString& step)
{
    static const QRegularExpression force(QStringLiteral(" [AB]\\z"));
    return QString(step).remove(force);
}

/// A file's name without the numbers of divisions and of files that are being written. All that the clean-up
/// deletes is one.
QString kindOfFile(const RoadCall& call)
{
    static const QStringList cleaningSteps{QStringLiteral("start"), QStringLiteral("new"),
                                           QStringLiteral("exit")};
    if (call.operation == QStringLiteral("delete") && cleaningSteps.contains(call.step) &&
        !call.file.startsWith(QLatin1Char('.')) && call.file != QStringLiteral("iniTemp.bmm")) {
        return {};
    }
    QString file = call.file;
    static const QRegularExpression beingWritten(QStringLiteral("(\\.torvane-|\\.)[A-Za-z0-9]{6}\\z"));
    static const QRegularExpression division(QStringLiteral("[AB][0-9]+\\.txt\\z"));
    return file.replace(beingWritten, QStringLiteral(".new")).replace(division, QStringLiteral(".txt"));
}

void inParallel(std::size_t count, const std::function<void(std::size_t job, int worker)>& work)
{
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> workers;
    for (int worker = 0; worker < programsAtOnce; ++worker) {
        workers.emplace_back([&, worker] {
            for (std::size_t job = next++; job < count; job = next++) {
                work(job, worker);
            }
        });
    }
}

} // namespace

long SweepResult::sum(long Count::*number) const
{
    long total = 0;
    for (const auto& [kind, count] : counts) {
        total += count.*number;
    }
    return total;
}

Sweep::Sweep(bool withOldScenarios) : m_withOldScenarios(withOldScenarios)
{
    const QString folder = m_scratch.filePath(QStringLiteral("undisturbed"));
    m_game.stage(folder, withOldScenarios);
    QElapsedTimer timer;
    timer.start();
    runRoad(folder, {});
    m_duration = static_cast<long>(timer.nsecsElapsed() / 1000);
    m_game.stage(folder, withOldScenarios);
    const RunReport run = runRoad(folder, {QStringLiteral("--list"), QStringLiteral("--next")});
    m_steps = run.steps.mid(1);
    m_calls = callsOf(run.said.section(QLatin1Char('\n') + nextLead, 0, 0));
    m_undisturbed = savedScenarios(folder);
    // What is compared with later must be right itself.
    const RunReport next = reportOf(run.said, nextLead);
    const QStringList complaints = complaintsAbout(run, folder, withOldScenarios, m_undisturbed) +
                                   complaintsAboutNextStart(next) + run.missed;
    const ScenarioBytes expected = expectedScenarios(folder);
    if (!complaints.isEmpty() || run.calls != std::ssize(m_calls) || m_undisturbed.first.isEmpty() ||
        m_undisturbed.first != expected.first || m_undisturbed.second != expected.second) {
        throw std::runtime_error(
            "the road can't be walked undisturbed: " + complaints.join(QStringLiteral("; ")).toStdString() +
            "\n" + run.said.toStdString());
    }
}

std::vector<RoadCall> Sweep::distinctCalls() const
{
    std::vector<RoadCall> distinct;
    std::set<QString> known;
    for (const RoadCall& call : m_calls) {
        if (known.insert(kindOfStep(call.step) + u'|' + call.operation + u'|' + kindOfFile(call)).second) {
            distinct.push_back(call);
        }
    }
    return distinct;
}

SweepResult Sweep::fail(const std::vector<RoadCall>& calls, FailurePlan::What what,
                        const std::function<int(const RoadCall&)>& error) const
{
    const bool lasts = what == FailurePlan::What::FailFrom;
    std::vector<Job> jobs;
    for (const RoadCall& call : calls) {
        jobs.push_back({.kind = call.operation,
                        .options = {lasts ? QStringLiteral("--fail-from") : QStringLiteral("--fail"),
                                    QString::number(call.number), QStringLiteral("--error"),
                                    QString::number(error(call))}});
    }
    return runAll(jobs);
}

SweepResult Sweep::killAt(const std::vector<RoadCall>& calls) const
{
    std::vector<Job> jobs;
    for (const RoadCall& call : calls) {
        jobs.push_back({.kind = QStringLiteral("killed at ") + call.operation,
                        .options = {QStringLiteral("--kill"), QString::number(call.number)}});
    }
    return runAll(jobs);
}

SweepResult Sweep::killAtRandom(int times, std::uint32_t seed) const
{
    std::mt19937 random(seed);
    std::uniform_int_distribution<long> moment(0, m_duration);
    std::vector<Job> jobs;
    for (int i = 0; i < times; ++i) {
        jobs.push_back(
            {.kind = QStringLiteral("killed at random"), .options = {}, .killAfter = moment(random)});
    }
    return runAll(jobs);
}

SweepResult Sweep::damageAt(const QStringList& steps) const
{
    std::vector<Job> jobs;
    for (const QString& step : steps) {
        for (const char* what : damages) {
            const QString kind = QLatin1StringView(what);
            jobs.push_back({.kind = kind,
                            .options = {QStringLiteral("--at"), step, QStringLiteral("--do"), kind},
                            .isDamage = true});
        }
    }
    return runAll(jobs);
}

SweepResult Sweep::runAll(const std::vector<Job>& jobs) const
{
    SweepResult result;
    std::mutex mutex;
    inParallel(jobs.size(), [&](std::size_t place, int worker) {
        const Job& job = jobs[place];
        SweepResult::Count count;
        QStringList complaints;
        try {
            complaints = runOne(job, m_scratch.filePath(QStringLiteral("game%1").arg(worker)), count);
        } catch (const std::exception& error) {
            complaints.append(QString::fromLocal8Bit(error.what()));
        }
        const std::lock_guard lock(mutex);
        SweepResult::Count& sum = result.counts[job.kind];
        ++sum.runs;
        sum.withBoxes += count.withBoxes;
        sum.killed += count.killed;
        sum.complaints += complaints.isEmpty() ? 0 : 1;
        for (const QString& complaint : complaints) {
            result.findings.append(
                QStringLiteral("%1 [%2%3]: %4")
                    .arg(job.kind, job.options.join(QLatin1Char(' ')),
                         job.killAfter < 0 ? QString() : QStringLiteral("after %1 us").arg(job.killAfter),
                         complaint));
        }
    });
    return result;
}

QStringList Sweep::runOne(const Job& job, const QString& folder, SweepResult::Count& count) const
{
    m_game.stage(folder, m_withOldScenarios);
    const bool isKill = job.killAfter >= 0 || job.options.contains(QStringLiteral("--kill"));
    const RunReport run =
        runRoad(folder, isKill || job.isDamage ? job.options : job.options + nextOption, job.killAfter);
    count.withBoxes = run.boxes.isEmpty() ? 0 : 1;
    count.killed = run.end == RunReport::End::Killed ? 1 : 0;
    if (isKill) {
        return judgeKilled(run, folder);
    }
    if (job.isDamage) {
        return judgeDamaged(job, run, folder);
    }
    QStringList complaints = complaintsAbout(run, folder, m_withOldScenarios, m_undisturbed);
    if (run.failures.isEmpty()) {
        complaints.append(QStringLiteral("nothing failed"));
    }
    if (run.end == RunReport::End::Left) {
        complaints += complaintsAboutNextStart(reportOf(run.said, nextLead));
    }
    return complaints;
}

// What a run that was killed has left is the next start's to clear.
QStringList Sweep::judgeKilled(const RunReport& run, const QString& folder) const
{
    QStringList complaints;
    if (run.end != RunReport::End::Killed && run.end != RunReport::End::Left) {
        complaints.append(QStringLiteral("it neither ended nor was it killed:\n") + run.said);
    }
    complaints += complaintsAboutScenarios(folder, m_withOldScenarios, m_undisturbed);
    const QString profile = folder + QStringLiteral("/ScenarioEditor/iniTemp.bmm");
    const QByteArray left = QFile::exists(profile) ? readWholeFile(profile) : QByteArray();
    complaints += complaintsAboutNextStart(runRoad(folder, {QStringLiteral("--look")}));
    complaints += complaintsAboutRecovery(folder, left);
    for (const QString& name : strayScenarios(folder)) {
        complaints.append(QStringLiteral("left in Scenarios after the next start: ") + name);
    }
    return complaints;
}

// Another catalogue has other ships, and a folder that is gone has taken its scenarios along: neither is a
// loss of the editor's. Removed folders are not its to make again: its user installs it anew.
QStringList Sweep::judgeDamaged(const Job& job, const RunReport& run, const QString& folder) const
{
    QStringList complaints;
    if (run.end != RunReport::End::Left || !run.damaged) {
        complaints.append(QStringLiteral("it doesn't go as it should:\n") + run.said);
    }
    const bool isGone = job.kind == QStringLiteral("scenarios removed");
    complaints += complaintsAboutScenarios(folder, m_withOldScenarios && !isGone, expectedScenarios(folder));
    const bool isOther = isGone || job.kind == QStringLiteral("catalogue replaced");
    const bool isLost = !isOther && savedScenarios(folder).second != m_undisturbed.second;
    if ((isLost || !run.missed.isEmpty()) && run.boxes.isEmpty()) {
        complaints.append(QStringLiteral("no box, although this was lost: ") +
                          run.missed.join(QStringLiteral(", ")));
    }
    m_game.repair(folder);
    complaints += complaintsAboutNextStart(runRoad(folder, {QStringLiteral("--look")}));
    return complaints;
}

} // namespace torvane::testing
