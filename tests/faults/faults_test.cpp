#include "faults/damage.h"
#include "faults/recovery.h"
#include "faults/sweep.h"
#include "platform/text_files.h"
#include "scenario_file/recover_scenario.h"
#include "support/printers.h"

#include <QDateTime>
#include <QDir>

#include <gmock/gmock.h>

#include <set>

// The short form of the harness: each kind of operation once, with one error chosen in turn. The long form is
// `fault_sweep`.

namespace torvane::testing {
namespace {

using ::testing::IsEmpty;

constexpr std::uint32_t seed = 20261121;

/// The road over the scenarios of an earlier day.
const Sweep& road()
{
    static const Sweep sweep(true);
    return sweep;
}

int inTurn(const RoadCall& call)
{
    return static_cast<int>(call.number);
}

/// Of these operations on a kind of file, wherever the road asks for them, the first.
std::vector<RoadCall> firstOfEach(const QStringList& operations, qsizetype lettersOfName)
{
    std::vector<RoadCall> calls;
    std::set<QString> known;
    for (const RoadCall& call : road().distinctCalls()) {
        const QString kind = call.operation + u'|' + call.file.left(lettersOfName);
        if (operations.contains(call.operation) && known.insert(kind).second) {
            calls.push_back(call);
        }
    }
    return calls;
}

/// All distinct calls, but one for each file of those that matter no more in one step than in another.
std::vector<RoadCall> callsToFail()
{
    const QStringList alike{QStringLiteral("look"), QStringLiteral("close"),  QStringLiteral("lock"),
                            QStringLiteral("open"), QStringLiteral("rights"), QStringLiteral("list")};
    std::vector<RoadCall> calls = road().distinctCalls();
    std::erase_if(calls, [&](const RoadCall& call) { return alike.contains(call.operation); });
    const std::vector<RoadCall> others = firstOfEach(alike, 12);
    calls.insert(calls.end(), others.begin(), others.end());
    return calls;
}

/// What leaves something behind.
std::vector<RoadCall> callsToDieAt()
{
    return firstOfEach({QStringLiteral("make"), QStringLiteral("write"), QStringLiteral("sync"),
                        QStringLiteral("rename"), QStringLiteral("delete")},
                       5);
}

void expectClean(const SweepResult& result, std::size_t runs)
{
    EXPECT_EQ(result.runs(), static_cast<long>(runs));
    EXPECT_THAT(result.findings, IsEmpty());
}

TEST(Faults, EachOperationHasItsPlaceInTheTable)
{
    for (std::size_t i = 0; i < operationTable.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(operationTable.at(i).operation), i) << operationTable.at(i).name;
    }
}

TEST(Faults, TheRoadAsksForEveryOperationThatCanFail)
{
    std::set<QString> asked;
    for (const RoadCall& call : road().calls()) {
        asked.insert(call.operation);
    }
    // Nothing on this road cuts a file.
    for (const OperationRow& row : operationTable) {
        EXPECT_EQ(asked.contains(QLatin1StringView(row.name)), row.operation != Operation::Cut) << row.name;
    }
    EXPECT_GT(road().calls().size(), 900U);
}

TEST(Faults, AnOperationThatFailsLosesNothingUntoldAndTheNextStartIsClean)
{
    const std::vector<RoadCall> calls = callsToFail();
    ASSERT_GT(calls.size(), 80U);
    expectClean(road().fail(calls, FailurePlan::What::Fail, inTurn), calls.size());
}

TEST(Faults, OperationsThatFailFromThenOnAreToldAndTheNextStartIsClean)
{
    const std::vector<RoadCall> calls =
        firstOfEach({QStringLiteral("open"), QStringLiteral("read"), QStringLiteral("make"),
                     QStringLiteral("write"), QStringLiteral("rename"), QStringLiteral("delete")},
                    5);
    ASSERT_GT(calls.size(), 15U);
    expectClean(road().fail(calls, FailurePlan::What::FailFrom, inTurn), calls.size());
}

TEST(Faults, AProgramThatDiesAtAWriteLeavesOldFilesOrNewOnesAndTheNextStartIsClean)
{
    const std::vector<RoadCall> calls = callsToDieAt();
    ASSERT_GT(calls.size(), 15U);
    const SweepResult result = road().killAt(calls);
    expectClean(result, calls.size());
    EXPECT_EQ(result.killed(), result.runs());
}

TEST(Faults, AProgramKilledAtAnyMomentLeavesOldFilesOrNewOnesAndTheNextStartIsClean)
{
    constexpr int kills = 50;
    const SweepResult result = road().killAtRandom(kills, seed);
    expectClean(result, kills);
    EXPECT_GT(result.killed(), kills / 2) << "the runs ended before they were killed";
}

TEST(Faults, ADamagedGameFolderLosesNothingUntoldAndCanBeRepaired)
{
    const QStringList steps{QStringLiteral("create A"), QStringLiteral("save")};
    expectClean(road().damageAt(steps), damages.size() * static_cast<std::size_t>(steps.size()));
}

// What judges the runs must itself see what is wrong.

class Judgement : public ::testing::Test
{
protected:
    Judgement()
    {
        game.stage(folder, true);
        for (const char* ending : {".save", ".save as"}) {
            put(folder + QLatin1StringView(ending), newBytes);
        }
    }
    static void put(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }
    void putScenario(const char* name, const QByteArray& bytes) const
    {
        put(folder + QStringLiteral("/Scenarios/") + QLatin1StringView(name), bytes);
    }
    QStringList complaints(const RunReport& run = {}) const
    {
        return complaintsAbout(run, folder, true, {newBytes, newBytes});
    }

    const QByteArray newBytes = "[SCENARIODATA]\r\nMOVIE=0\r\n";
    const StagedGame game;
    const QTemporaryDir scratch;
    const QString folder = scratch.filePath(QStringLiteral("game"));
    const RunReport::Box first{QStringLiteral("save"), QStringLiteral("Filename Warning! | ?")};
    const RunReport::Box second{QStringLiteral("save as"), QStringLiteral("Filename Warning! | ?")};
};

TEST_F(Judgement, TakesNewFilesThatWereAskedFor)
{
    putScenario("First.scn", newBytes);
    putScenario("Second.scn", newBytes);
    EXPECT_THAT(complaints({.boxes = {first, second}}), IsEmpty());
    EXPECT_EQ(complaints().size(), 2) << "nobody was asked about the old ones";
}

TEST_F(Judgement, SeesAFileThatIsNeitherOldNorNew)
{
    putScenario("First.scn", newBytes);
    putScenario("Second.scn", newBytes.first(20));
    EXPECT_FALSE(complaints({.boxes = {first, second}}).isEmpty());
    EXPECT_FALSE(complaintsAboutScenarios(folder, true, {newBytes, newBytes}).isEmpty());
    QFile::remove(folder + QStringLiteral("/Scenarios/Second.scn"));
    EXPECT_FALSE(complaintsAboutScenarios(folder, true, {newBytes, newBytes}).isEmpty()) << "it was there";
    EXPECT_TRUE(complaintsAboutScenarios(folder, false, {newBytes, newBytes}).isEmpty()) << "it was not";
}

TEST_F(Judgement, SeesAStrayFileAndAllowsARecoveredOne)
{
    putScenario("Night (recovered 2026-11-21 20.52.00).scn", newBytes);
    putScenario("Nacht (wiederhergestellt 2026-11-21 20.52.00).scn", newBytes);
    EXPECT_THAT(strayScenarios(folder), IsEmpty());
    putScenario(".torvane-abcdef", newBytes);
    putScenario("First.scn.abcdef", newBytes);
    EXPECT_EQ(strayScenarios(folder).size(), 2);
}

TEST_F(Judgement, WantsTheScenarioOfAKilledRunBackAsItWas)
{
    const QByteArray left = "[SCENARIODATA]\r\nTITLE=Night\r\n[SCENARIOINFO]\r\nDIVISIONCNT=1\r\n"
                            "[DIVISION0]\r\nDIVISIONNAME=Division 1\r\nSIDE=Blue\r\n"
                            "[DIVISION0SHIP0]\r\nNAME=Hood\r\nXPOSITION=100\r\nZPOSITION=-200\r\n";
    EXPECT_EQ(complaintsAboutRecovery(folder, left).size(), 1) << "it is lost";
    EXPECT_THAT(complaintsAboutRecovery(folder, {}), IsEmpty()) << "there was none";
    const QString profile = folder + QStringLiteral("/ScenarioEditor/iniTemp.bmm");
    QDir().mkpath(folder + QStringLiteral("/ScenarioEditor"));
    writeWholeFile(profile, left);
    const QString recovered = recoverScenario(profile, folder + QStringLiteral("/Scenarios"),
                                              Language::English, QDateTime(QDate(1941, 5, 24), QTime(5, 52)))
                                  .value();
    EXPECT_THAT(complaintsAboutRecovery(folder, left), IsEmpty());
    EXPECT_EQ(complaintsAboutRecovery(folder, {}).size(), 1) << "nothing was there to recover";
    for (const char* change : {"NAME=Hood", "YARDSXPOSITION=100", "SIDE=Blue"}) {
        QByteArray other = readWholeFile(recovered);
        ASSERT_TRUE(other.contains(change)) << change;
        writeWholeFile(recovered, other.replace(change, QByteArray(change) + "7"));
        EXPECT_EQ(complaintsAboutRecovery(folder, left).size(), 1) << change;
        writeWholeFile(recovered, other.replace(QByteArray(change) + "7", change));
    }
}

TEST_F(Judgement, WantsABoxThatNamesWhatFailedWhereSomethingIsLost)
{
    putScenario("First.scn", newBytes);
    putScenario("Second.scn", newBytes);
    RunReport run{.steps = {QStringLiteral("new"), QStringLiteral("ship"), QStringLiteral("save"),
                            QStringLiteral("save as")},
                  .missed = {QStringLiteral("ship")},
                  .boxes = {first, second},
                  .failures = {{QStringLiteral("new"), QStringLiteral("read"),
                                folder + QStringLiteral("/ScenarioEditor/ShipTrack.bmm")}}};
    EXPECT_EQ(complaints(run).size(), 1);
    const QString text = QStringLiteral("x | ShipTrack.bmm: Input/output error");
    run.boxes.append({QStringLiteral("ship"), QStringLiteral("x | other.bmm")});
    EXPECT_EQ(complaints(run).size(), 1) << "another file";
    run.boxes.append({QStringLiteral("save"), text});
    EXPECT_EQ(complaints(run).size(), 1) << "too late";
    run.boxes.append({QStringLiteral("ship"), text});
    EXPECT_THAT(complaints(run), IsEmpty());
}

TEST_F(Judgement, WantsABoxWhereAnotherScenarioIsSavedButLetsSaveFailInSilence)
{
    putScenario("Second.scn", newBytes);
    RunReport run{.steps = {QStringLiteral("save"), QStringLiteral("save as")},
                  .boxes = {second},
                  .failures = {{QStringLiteral("save"), QStringLiteral("write"),
                                folder + QStringLiteral("/Scenarios/First.scn")}}};
    EXPECT_THAT(complaints(run), IsEmpty());
    run.failures.first().step = QStringLiteral("new");
    EXPECT_EQ(complaints(run).size(), 1);
}

TEST_F(Judgement, SeesARunThatDoesNotEndAndANextStartThatIsNotClean)
{
    RunReport run{.end = RunReport::End::Hung, .boxes = {first, second}};
    putScenario("First.scn", newBytes);
    putScenario("Second.scn", newBytes);
    EXPECT_EQ(complaints(run).size(), 1);
    RunReport next{.workFiles = StagedGame::workFiles()};
    EXPECT_THAT(complaintsAboutNextStart(next), IsEmpty());
    next.workFiles.append(QStringLiteral("iniTemp.bmm"));
    next.missed.append(QStringLiteral("new"));
    next.boxes.append({QStringLiteral("new"), QStringLiteral("x | y")});
    next.end = RunReport::End::Crashed;
    EXPECT_EQ(complaintsAboutNextStart(next).size(), 4);
}

} // namespace
} // namespace torvane::testing
