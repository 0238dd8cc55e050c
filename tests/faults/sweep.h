#pragma once

#include "faults/failing_calls.h"
#include "faults/judge.h"
#include "faults/staged_game.h"

#include <QTemporaryDir>

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <vector>

namespace torvane::testing {

/// An operation of the undisturbed road.
struct RoadCall
{
    long number; ///< from 1
    QString step;
    QString operation;
    QString file; ///< its name alone
};

/// What came of many runs.
struct SweepResult
{
    struct Count
    {
        long runs = 0;
        long withBoxes = 0;
        long killed = 0;
        long complaints = 0;
    };
    std::map<QString, Count> counts; ///< by operation, damage, or kind of kill
    QStringList findings;            ///< each with how to run it again

    long runs() const { return sum(&Count::runs); }
    long killed() const { return sum(&Count::killed); }

private:
    long sum(long Count::*number) const;
};

/// Runs the road again and again, with something else failing each time, two programs at a time, and judges
/// each run and the start that follows it.
class Sweep
{
public:
    /// The scenarios of an earlier day are there or not. Throws if the road can't be walked undisturbed.
    explicit Sweep(bool withOldScenarios);

    const std::vector<RoadCall>& calls() const { return m_calls; }
    /// But for the start itself.
    const QStringList& steps() const { return m_steps; }
    /// How long the undisturbed road takes, in microseconds.
    long duration() const { return m_duration; }
    /// One call of each kind: those with the same operation on the same file in one step count once, where
    /// the steps of both forces are one, the files of several divisions, and all that a clean-up deletes.
    std::vector<RoadCall> distinctCalls() const;

    /// Each of these calls fails in a run of its own. `error` gives which of the operation's errors.
    SweepResult fail(const std::vector<RoadCall>& calls, FailurePlan::What what,
                     const std::function<int(const RoadCall&)>& error) const;
    /// The program dies at each of these calls; of what it writes then, half gets to the disk.
    SweepResult killAt(const std::vector<RoadCall>& calls) const;
    /// The program is killed at so many moments of its road.
    SweepResult killAtRandom(int times, std::uint32_t seed) const;
    /// Each damage at each of these steps.
    SweepResult damageAt(const QStringList& steps) const;

private:
    struct Job
    {
        QString kind;
        QStringList options;
        long killAfter = -1;
        bool isDamage = false;
    };
    SweepResult runAll(const std::vector<Job>& jobs) const;
    QStringList runOne(const Job& job, const QString& folder, SweepResult::Count& count) const;
    QStringList judgeKilled(const RunReport& run, const QString& folder) const;
    QStringList judgeDamaged(const Job& job, const RunReport& run, const QString& folder) const;

    StagedGame m_game;
    QTemporaryDir m_scratch;
    bool m_withOldScenarios;
    std::vector<RoadCall> m_calls;
    QStringList m_steps;
    ScenarioBytes m_undisturbed;
    long m_duration = 0;
};

} // namespace torvane::testing
