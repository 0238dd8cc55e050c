#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace torvane::testing {

/// What a run of the road starts from: a game folder with working tables, a help file and a small ship
/// catalogue, made once and copied for each run.
class StagedGame
{
public:
    StagedGame();

    /// Makes the folder as it is before a run, with the scenarios of an earlier day under both names or with
    /// none. Whatever lay there is gone.
    void stage(const QString& folder, bool withOldScenarios) const;
    /// Puts back what an installation has, and leaves the rest alone.
    void repair(const QString& folder) const;

    /// The files of the work folder before a run and after each.
    static QStringList workFiles();
    /// What stands in an old scenario.
    static QByteArray oldBytes() { return QByteArrayLiteral("[SCENARIODATA]\r\nTITLE=Old\r\n"); }

private:
    QTemporaryDir m_template;
};

} // namespace torvane::testing
