#include "scenario_file/save_scenario.h"
#include "scenario_file/stored_profile.h"

#include <QProcess>
#include <QThread>

#include <random>

namespace torvane::testing {
namespace {

class KilledSave : public StoredProfile
{
protected:
    // A scenario of some size, so that there is time to be killed in.
    KilledSave()
    {
        QByteArray bytes = "[SCENARIOINFO]\r\nDIVISIONCNT=12\r\n";
        for (int n = 0; n < divisionSections; ++n) {
            bytes += '[' + divisionSection(n).toLatin1() + "]\r\nDIVISIONNAME=x\r\n";
            for (int m = 0; m < 10; ++m) {
                bytes += '[' + shipSection(n, m).toLatin1() + "]\r\nNAME=x\r\nXPOSITION=1000\r\n";
            }
        }
        store(bytes);
    }
    QByteArray expected(int x) const { return scenarioBytes(profile, {.x = x}, u"Force A"); }
};

TEST_F(KilledSave, LeavesTheOldFileOrTheNewOneWholeAtAnyMoment)
{
    const QByteArray one = expected(1);
    const QByteArray other = expected(-1000000);
    ASSERT_NE(one.size(), other.size());
    const QString file = scenario("A.scn");
    const QString workFolder = QFileInfo(profile.path()).path();
    std::mt19937 random(20261121);
    std::uniform_int_distribution<unsigned long> microseconds(0, 20'000);
    int killedWhileSaving = 0;
    for (int run = 0; run < 100; ++run) {
        QProcess saver;
        saver.start(QStringLiteral(SAVER), {workFolder, file});
        QByteArray said;
        while (!said.contains(')')) {
            ASSERT_TRUE(saver.waitForReadyRead(20'000)) << saver.errorString().toStdString();
            said += saver.readAll();
        }
        QThread::usleep(microseconds(random));
        saver.kill();
        ASSERT_TRUE(saver.waitForFinished());
        ASSERT_EQ(saver.exitStatus(), QProcess::CrashExit) << "it must not have ended by itself";
        said += saver.readAll();
        killedWhileSaving += said.endsWith('(') ? 1 : 0;
        const QByteArray bytes = readWholeFile(file);
        ASSERT_TRUE(bytes == one || bytes == other) << "run " << run << ": " << bytes.size() << " bytes";
    }
    EXPECT_GT(killedWhileSaving, 50) << "the runs were not killed in the middle of a save";
}

} // namespace
} // namespace torvane::testing
