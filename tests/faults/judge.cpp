#include "faults/judge.h"

#include "faults/recovery.h"
#include "faults/scripted_names.h"
#include "platform/profile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace torvane::testing {

namespace {

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray bytes = file.readAll();
    return bytes.isNull() ? QByteArray("") : bytes;
}

QString word(RunReport::End end)
{
    switch (end) {
    case RunReport::End::Left:
        return QStringLiteral("left");
    case RunReport::End::DeadEnd:
        return QStringLiteral("dead end");
    case RunReport::End::Hung:
        return QStringLiteral("hang");
    case RunReport::End::Crashed:
        return QStringLiteral("crash");
    case RunReport::End::Killed:
        return QStringLiteral("killed");
    }
    return {};
}

/// A file's name without what is put behind it while it is being written.
QString finalName(const QString& path)
{
    static const QRegularExpression ending(QStringLiteral("\\.[A-Za-z0-9]{6}\\z"));
    return QFileInfo(path).fileName().remove(ending);
}

/// Whether a box names what failed: the file, or, where that has no name of its own yet, one of its folder.
bool names(const RunReport::Box& box, const RunReport::Failure& failure, const QString& folder)
{
    const QString name = finalName(failure.path);
    const bool isFolder = QFileInfo(failure.path).isDir() || name.startsWith(QLatin1Char('.'));
    return box.text.contains(isFolder ? folder + QLatin1Char('/') : name);
}

/// Save As has a box of its own, which names nothing.
bool isOfSaveAs(const RunReport::Box& box)
{
    return box.step == QLatin1StringView(saveAsStep) &&
           box.text.contains(QStringLiteral("An Error occured when the file was saved."));
}

/// Whether the user knows of a failure by the end of a step.
bool isToldBy(const RunReport& run, const QString& step, const QString& folder)
{
    const qsizetype end = run.steps.indexOf(step);
    return std::ranges::any_of(run.boxes, [&](const RunReport::Box& box) {
        const bool namesOne = std::ranges::any_of(
            run.failures, [&](const RunReport::Failure& failure) { return names(box, failure, folder); });
        return (namesOne || isOfSaveAs(box)) && run.steps.indexOf(box.step) <= end;
    });
}

QStringList complaintsAboutBoxes(const RunReport& run, const QString& folder,
                                 const ScenarioBytes& undisturbed)
{
    QStringList untold;
    for (const QString& step : run.missed) {
        if (!isToldBy(run, step, folder)) {
            untold.append(step);
        }
    }
    const ScenarioBytes saved = savedScenarios(folder);
    const RunReport::Failure first = run.failures.value(0);
    // Save tells of nothing.
    const bool isOther = (first.step != QLatin1StringView(saveStep) && saved.first != undisturbed.first) ||
                         saved.second != undisturbed.second;
    if (isOther && !isToldBy(run, QLatin1StringView(saveAsStep), folder)) {
        untold.append(QStringLiteral("other scenarios than they should be"));
    }
    if (untold.isEmpty()) {
        return {};
    }
    return {QStringLiteral("no box tells of: %1 (%2 of %3 in step %4)")
                .arg(untold.join(QStringLiteral(", ")), first.operation, first.path, first.step)};
}

/// A file that was there is replaced only by who has been asked.
QStringList complaintsAboutQuestions(const RunReport& run, const QString& folder)
{
    const ScenarioBytes saved = savedScenarios(folder);
    QStringList complaints;
    for (const auto& [step, bytes] :
         {std::pair{saveStep, saved.first}, std::pair{saveAsStep, saved.second}}) {
        const bool isAsked = std::ranges::any_of(run.boxes, [step = step](const RunReport::Box& box) {
            return box.step == QLatin1StringView(step) &&
                   box.text.startsWith(QStringLiteral("Filename Warning!"));
        });
        if (bytes != StagedGame::oldBytes() && !isAsked) {
            complaints.append(QStringLiteral("an old file was replaced without a question: ") +
                              QLatin1StringView(step));
        }
    }
    return complaints;
}

} // namespace

ScenarioBytes savedScenarios(const QString& folder)
{
    const QString start = folder + QStringLiteral("/Scenarios/");
    return {bytesOf(start + QLatin1StringView(scenarioNames.front())),
            bytesOf(start + QLatin1StringView(scenarioNames.back()))};
}

ScenarioBytes expectedScenarios(const QString& folder)
{
    return {bytesOf(folder + QLatin1Char('.') + QLatin1StringView(saveStep)),
            bytesOf(folder + QLatin1Char('.') + QLatin1StringView(saveAsStep))};
}

static QStringList complaintsAboutScenario(const QString& name, const QByteArray& bytes,
                                           const QByteArray& expected, bool hadOldScenarios)
{
    if (hadOldScenarios ? bytes == StagedGame::oldBytes() : bytes.isNull()) {
        return {};
    }
    QStringList complaints;
    if (bytes.isNull() || bytes != expected) {
        complaints.append(QStringLiteral("%1 is neither the old file nor the new one: %2 bytes instead of %3")
                              .arg(name)
                              .arg(bytes.size())
                              .arg(expected.size()));
    }
    // A scenario whose head could not be read is none, whatever else stands in it.
    if (Profile::parse(bytes).value("SCENARIODATA", "MOVIE").value_or("INVALID") == "INVALID") {
        complaints.append(name + QStringLiteral(" has been written without its head"));
    }
    return complaints;
}

QStringList complaintsAboutScenarios(const QString& folder, bool hadOldScenarios,
                                     const ScenarioBytes& expected)
{
    const ScenarioBytes saved = savedScenarios(folder);
    return complaintsAboutScenario(QLatin1StringView(scenarioNames.front()), saved.first, expected.first,
                                   hadOldScenarios) +
           complaintsAboutScenario(QLatin1StringView(scenarioNames.back()), saved.second, expected.second,
                                   hadOldScenarios);
}

QStringList strayScenarios(const QString& folder)
{
    QStringList names = QDir(folder + QStringLiteral("/Scenarios"))
                            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    for (const char* name : scenarioNames) {
        names.removeAll(QLatin1StringView(name));
    }
    for (const QString& name : recoveredScenarios(folder)) {
        names.removeAll(name);
    }
    return names;
}

QStringList complaintsAboutNextStart(const RunReport& next)
{
    QStringList complaints;
    if (next.end != RunReport::End::Left) {
        complaints.append(QStringLiteral("the next start ends as: ") + word(next.end));
    }
    if (next.workFiles != StagedGame::workFiles()) {
        complaints.append(QStringLiteral("the next start finds: ") + next.workFiles.join(QLatin1Char(' ')));
    }
    for (const RunReport::Box& box : next.boxes) {
        complaints.append(QStringLiteral("the next start shows: ") + box.text);
    }
    for (const QString& step : next.missed) {
        complaints.append(QStringLiteral("the next start fails at: ") + step);
    }
    return complaints;
}

QStringList complaintsAbout(const RunReport& run, const QString& folder, bool hadOldScenarios,
                            const ScenarioBytes& undisturbed)
{
    QStringList complaints;
    if (run.end != RunReport::End::Left) {
        complaints.append(word(run.end));
    }
    complaints += complaintsAboutScenarios(folder, hadOldScenarios, expectedScenarios(folder));
    for (const QString& name : strayScenarios(folder)) {
        complaints.append(QStringLiteral("left in Scenarios: ") + name);
    }
    complaints += complaintsAboutBoxes(run, folder, undisturbed);
    if (hadOldScenarios) {
        complaints += complaintsAboutQuestions(run, folder);
    }
    return complaints;
}

} // namespace torvane::testing
