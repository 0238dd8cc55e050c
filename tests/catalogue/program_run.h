#pragma once

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

namespace torvane::testing {

struct ProgramRun
{
    int exitCode = -1;
    QString output;
    QString errors;
};

/// Runs make_catalogue to its end.
inline ProgramRun runMakeCatalogue(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(MAKE_CATALOGUE), arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {.exitCode = process.exitCode(),
            .output = QString::fromUtf8(process.readAllStandardOutput()),
            .errors = QString::fromUtf8(process.readAllStandardError())};
}

} // namespace torvane::testing
