#include "faults/fault_run.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QThread>

#include <csignal>
#include <stdexcept>

namespace torvane::testing {

namespace {

constexpr int longestRun = 120'000; // milliseconds
constexpr int hungExit = 70;
constexpr int deadEndExit = 3;

void take(RunReport& report, const QString& line, QString& step)
{
    const QString word = line.section(QLatin1Char(' '), 0, 0);
    const QString rest = line.section(QLatin1Char(' '), 1);
    if (word == QStringLiteral("step")) {
        step = rest;
        report.steps.append(rest);
    } else if (word == QStringLiteral("missed")) {
        report.missed.append(rest);
    } else if (word == QStringLiteral("box")) {
        if (!rest.startsWith(QStringLiteral("Exit Scenario Editor")) &&
            !rest.startsWith(QStringLiteral("File Saved"))) {
            report.boxes.append({step, rest});
        }
    } else if (word == QStringLiteral("work")) {
        report.workFiles = rest.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    } else if (word == QStringLiteral("calls")) {
        report.calls = rest.toLong();
    } else if (word == QStringLiteral("fails")) {
        report.failures.append(
            {step, rest.section(QLatin1Char(' '), 1, 1), rest.section(QLatin1Char(' '), 2)});
    } else if (word == QStringLiteral("damaged")) {
        report.damaged = true;
    }
}

RunReport::End endOf(const QProcess& process, bool mayBeKilled)
{
    if (process.state() != QProcess::NotRunning) {
        return RunReport::End::Hung;
    }
    if (process.exitStatus() == QProcess::CrashExit) {
        return mayBeKilled && process.exitCode() == SIGKILL ? RunReport::End::Killed
                                                            : RunReport::End::Crashed;
    }
    switch (process.exitCode()) {
    case 0:
        return RunReport::End::Left;
    case deadEndExit:
        return RunReport::End::DeadEnd;
    case hungExit:
        return RunReport::End::Hung;
    default:
        return RunReport::End::Crashed;
    }
}

} // namespace

RunReport reportOf(const QString& said, const QString& lead)
{
    RunReport report;
    report.said = said;
    QString step;
    for (const QString& line : said.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line.startsWith(lead)) {
            take(report, line.sliced(lead.size()), step);
        }
    }
    return report;
}

RunReport runRoad(const QString& folder, const QStringList& options, long killAfter)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*=false"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(SCRIPTED_RUN), QStringList{folder} + options);
    if (!process.waitForStarted()) {
        throw std::runtime_error("can't start " SCRIPTED_RUN);
    }
    if (killAfter >= 0 && !process.waitForFinished(static_cast<int>(killAfter / 1000))) {
        QThread::usleep(static_cast<unsigned long>(killAfter % 1000));
        process.kill();
    }
    if (process.state() != QProcess::NotRunning) {
        process.waitForFinished(longestRun);
    }
    const bool mayBeKilled = killAfter >= 0 || options.contains(QStringLiteral("--kill"));
    const RunReport::End end = endOf(process, mayBeKilled);
    process.kill();
    process.waitForFinished();
    RunReport report = reportOf(QString::fromUtf8(process.readAll()));
    report.end = end;
    return report;
}

} // namespace torvane::testing
