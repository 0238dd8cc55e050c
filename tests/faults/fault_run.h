#pragma once

#include <QString>
#include <QStringList>

namespace torvane::testing {

/// What a run of the road has said, and how it ended.
struct RunReport
{
    enum class End {
        Left,    ///< by its own end
        DeadEnd, ///< a window could not be left
        Hung,
        Crashed,
        Killed ///< as it was meant to
    };
    struct Failure
    {
        QString step;
        QString operation;
        QString path;
    };
    struct Box
    {
        QString step;
        QString text; ///< title and text on one line
    };

    End end = End::Left;
    QString said{};       ///< all of it
    QStringList steps{};  ///< that were begun
    QStringList missed{}; ///< that had no effect
    QList<Box> boxes{};   ///< but for the question at the end and the success of Save As
    QStringList workFiles{};
    long calls = 0;
    QList<Failure> failures{}; ///< operations that were made to fail
    bool damaged = false;
};

/// The report of a run, or of the one that followed in the same program where `lead` is "next ".
RunReport reportOf(const QString& said, const QString& lead = QString());

/// Runs the program in a game folder and waits for its end. `killAfter` in microseconds kills it, if it has
/// not ended by then. Throws std::runtime_error if there is no such program.
RunReport runRoad(const QString& folder, const QStringList& options, long killAfter = -1);

} // namespace torvane::testing
