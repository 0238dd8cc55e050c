#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gmock/gmock.h>

// Short floods of the program itself. The long ones are run by tools/run_monkey.

namespace torvane::testing {
namespace {

struct Flood
{
    int exitCode = -1;
    QString told;
    QString digest;
};

Flood flood(const QStringList& arguments)
{
    QProcess monkey;
    monkey.start(QStringLiteral(MONKEY), arguments);
    monkey.waitForFinished(100000);
    static const QRegularExpression digest(QStringLiteral("digest ([0-9a-f]+)"));
    const QString told = QString::fromUtf8(monkey.readAllStandardOutput() + monkey.readAllStandardError());
    return {.exitCode = monkey.exitStatus() == QProcess::NormalExit ? monkey.exitCode() : -1,
            .told = told,
            .digest = digest.match(told).captured(1)};
}

Flood floodOf(int seed, int events)
{
    return flood({QStringLiteral("--seed"), QString::number(seed), QStringLiteral("--events"),
                  QString::number(events)});
}

TEST(Monkey, ASeedSendsTheSameEventsEachTime)
{
    const Flood first = floodOf(7, 400);
    EXPECT_EQ(first.exitCode, 0) << first.told.toStdString();
    EXPECT_FALSE(first.digest.isEmpty());
    EXPECT_EQ(floodOf(7, 400).digest, first.digest);
    EXPECT_NE(floodOf(8, 400).digest, first.digest);
}

TEST(Monkey, GetsPastTheSplashScreenIntoTheDialogs)
{
    const Flood run = floodOf(7, 1500);
    EXPECT_EQ(run.exitCode, 0) << run.told.toStdString();
    for (const char* window : {"MainFrm", "OverviewFrm", "CreateDivisionFrm", "ShipDBaseFrm"}) {
        EXPECT_TRUE(run.told.contains(QLatin1StringView(window))) << window;
    }
}

TEST(Monkey, AnUnknownWordIsRefused)
{
    EXPECT_EQ(flood({QStringLiteral("--sead"), QStringLiteral("1")}).exitCode, 2);
    EXPECT_EQ(flood({QStringLiteral("--from-log"), QStringLiteral("/nowhere")}).exitCode, 2);
}

TEST(Monkey, AFloodIsRepeatedFromItsLog)
{
    const Flood first = floodOf(9, 200);
    QTemporaryDir folder;
    QFile log(folder.filePath(QStringLiteral("log")));
    ASSERT_TRUE(log.open(QIODevice::WriteOnly));
    log.write(first.told.toUtf8());
    log.close();
    EXPECT_EQ(flood({QStringLiteral("--from-log"), log.fileName()}).digest, first.digest);
}

} // namespace
} // namespace torvane::testing
