#pragma once

#include "faults/fault_run.h"
#include "faults/staged_game.h"

#include <QByteArray>
#include <QStringList>

namespace torvane::testing {

/// What stands in the two scenarios; null arrays where there is none.
struct ScenarioBytes
{
    QByteArray first;
    QByteArray second;
};

/// What the game folder holds.
ScenarioBytes savedScenarios(const QString& folder);
/// What its scenarios should have become, as the run itself has worked it out.
ScenarioBytes expectedScenarios(const QString& folder);

/// What is wrong with a run in which something failed, and with what it left in its folder: a line each,
/// nothing if all is well. The folder was staged with old scenarios or without; `undisturbed` is what it
/// holds after a run in which nothing fails.
QStringList complaintsAbout(const RunReport& run, const QString& folder, bool hadOldScenarios,
                            const ScenarioBytes& undisturbed);

/// What is wrong with the scenarios that a run has left, however it ended: each must be the old file, or none
/// where there was none, or the expected one.
QStringList complaintsAboutScenarios(const QString& folder, bool hadOldScenarios,
                                     const ScenarioBytes& expected);

/// What is wrong with a start in which nothing fails: it must find nothing of the run before, show no box,
/// and New must work.
QStringList complaintsAboutNextStart(const RunReport& next);

/// Files of Scenarios that nobody asked for. What a start makes of the scenario of a run that was killed is
/// allowed.
QStringList strayScenarios(const QString& folder);

} // namespace torvane::testing
