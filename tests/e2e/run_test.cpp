#include "e2e/desktop.h"
#include "support/printers.h"

#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

#include <csignal>

namespace torvane::testing {
namespace {

const QString german = QStringLiteral("TorvaneScenarioEditor");
const QString english = QStringLiteral("TorvaneScenarioEditor-English");
const QString germanTitle = QStringLiteral("Torvane - Szenario-Editor");
const QString englishTitle = QStringLiteral("Torvane - Scenario Editor");
const QString germanQuestion = QStringLiteral("Szenario-Editor verlassen");
const QString germanHelp = QStringLiteral("Torvane - Hilfe");

class RealRun : public ::testing::Test
{
protected:
    // Starts a program and leaves the splash screen by a key.
    void start(const QString& program = german)
    {
        process = folder.start(program, desktop);
        const QString title = program == german ? germanTitle : englishTitle;
        // Whoever is impatient presses until the window is there.
        ASSERT_TRUE(eventually([&] {
            desktop.press({QStringLiteral("shift+a")});
            return desktop.hasWindow(title, 200);
        }));
        ASSERT_TRUE(desktop.isActive(title));
    }

    void expectEnd(int code = 0)
    {
        ASSERT_TRUE(process->waitForFinished(20000));
        EXPECT_EQ(process->exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process->exitCode(), code);
    }

    void TearDown() override
    {
        if (process && process->state() != QProcess::NotRunning) {
            process->kill();
            process->waitForFinished();
        }
    }

    QStringList atRest() const
    {
        return {QStringLiteral("SE_README.HLP"), QStringLiteral("ScenarioData.mdb"),
                QStringLiteral("ShipDatabase.mdb")};
    }

    Desktop desktop;
    GameFolder folder;
    std::unique_ptr<QProcess> process;
};

TEST_F(RealRun, TheSplashScreenEndsByItself)
{
    process = folder.start(german, desktop);
    EXPECT_TRUE(desktop.hasWindow(QStringLiteral("Torvane")));
    EXPECT_TRUE(desktop.hasWindow(germanTitle));
    EXPECT_TRUE(desktop.hasNoWindow(QStringLiteral("Torvane")));
}

TEST_F(RealRun, EscAsksAndEnterTakesNoAndEndsTheProgram)
{
    start();
    desktop.press({QStringLiteral("Escape")});
    ASSERT_TRUE(desktop.isActive(germanQuestion));
    desktop.press({QStringLiteral("Return")});
    expectEnd();
    EXPECT_EQ(folder.workNames(), atRest());
}

TEST_F(RealRun, TheCloseBoxAsksTheSameQuestion)
{
    start(english);
    desktop.close(englishTitle);
    ASSERT_TRUE(desktop.isActive(QStringLiteral("Exit Scenario Editor")));
    desktop.press({QStringLiteral("Return")});
    expectEnd();
}

TEST_F(RealRun, YesStartsTheGameInItsFolder)
{
    folder.putGame(QStringLiteral("Torvane Deutsch.exe"));
    start();
    desktop.press({QStringLiteral("F12")});
    ASSERT_TRUE(desktop.isActive(germanQuestion));
    desktop.press({QStringLiteral("alt+j")});
    expectEnd();
    EXPECT_EQ(folder.gameStart(), QFileInfo(folder.path()).canonicalFilePath());
}

TEST_F(RealRun, YesWithoutAGameJustEnds)
{
    start();
    desktop.press({QStringLiteral("F12")});
    ASSERT_TRUE(desktop.isActive(germanQuestion));
    desktop.press({QStringLiteral("alt+j")});
    expectEnd();
}

TEST_F(RealRun, NewOpensTheOverviewByTheKeyboardAloneAndTheMainWindowWaits)
{
    start(english);
    desktop.press({QStringLiteral("alt+f"), QStringLiteral("n")});
    ASSERT_TRUE(desktop.isActive(QStringLiteral("Torvane - Overview of the Scenario")));
    EXPECT_TRUE(folder.workNames().contains(QStringLiteral("ShipTrack.bmm")));
    desktop.click(englishTitle, 30, 300);
    desktop.press({QStringLiteral("F12")});
    EXPECT_FALSE(desktop.hasWindow(QStringLiteral("Exit Scenario Editor"), 700));
}

TEST_F(RealRun, ASecondEditorInTheSameFolderSaysSoAndEnds)
{
    start(english);
    desktop.press({QStringLiteral("alt+f"), QStringLiteral("n")});
    ASSERT_TRUE(desktop.isActive(QStringLiteral("Torvane - Overview of the Scenario")));
    // Written behind the command that shows the overview.
    ASSERT_TRUE(eventually([&] { return folder.workNames().contains(QStringLiteral("iniTemp.bmm")); }));
    const QStringList before = folder.workNames();
    auto second = folder.start(german, desktop);
    ASSERT_TRUE(desktop.hasWindow(germanTitle));
    ASSERT_TRUE(desktop.isActive(germanTitle));
    desktop.press({QStringLiteral("Return")});
    ASSERT_TRUE(second->waitForFinished(20000));
    EXPECT_EQ(second->exitCode(), 1);
    EXPECT_EQ(folder.workNames(), before) << "the first editor's files are untouched";
    EXPECT_EQ(process->state(), QProcess::Running);
}

TEST_F(RealRun, AKilledRunLeavesItsScenarioAndNothingElseToTheNext)
{
    start(english);
    desktop.press({QStringLiteral("alt+f"), QStringLiteral("n")});
    ASSERT_TRUE(desktop.isActive(QStringLiteral("Torvane - Overview of the Scenario")));
    ASSERT_TRUE(eventually([&] { return folder.workNames().contains(QStringLiteral("iniTemp.bmm")); }));
    ASSERT_EQ(::kill(static_cast<pid_t>(process->processId()), SIGKILL), 0);
    process->waitForFinished();
    EXPECT_NE(folder.workNames(), atRest());
    start();
    EXPECT_EQ(folder.workNames(), atRest());
    const QStringList recovered = QDir(folder.path() + QStringLiteral("/Scenarios"))
                                      .entryList({QStringLiteral("*(wiederhergestellt *).scn")});
    EXPECT_EQ(recovered.size(), 1);
}

TEST_F(RealRun, F1OpensTheHelpAndEscClosesItAndNotTheEditor)
{
    start();
    desktop.press({QStringLiteral("F1")});
    ASSERT_TRUE(desktop.isActive(germanHelp));
    desktop.press({QStringLiteral("Escape")});
    EXPECT_TRUE(desktop.hasNoWindow(germanHelp));
    EXPECT_TRUE(desktop.hasWindow(germanTitle));
    EXPECT_EQ(process->state(), QProcess::Running);
}

TEST_F(RealRun, TheHelpEndsWithTheEditor)
{
    start();
    desktop.press({QStringLiteral("F1")});
    ASSERT_TRUE(desktop.isActive(germanHelp));
    desktop.close(germanTitle);
    ASSERT_TRUE(desktop.isActive(germanQuestion));
    desktop.press({QStringLiteral("Return")});
    expectEnd();
}

TEST_F(RealRun, F1InADialogOpensTheHelpBesideIt)
{
    const QString overview = QStringLiteral("Torvane - Overview of the Scenario");
    const QString help = QStringLiteral("Torvane - Help");
    start(english);
    desktop.press({QStringLiteral("alt+f"), QStringLiteral("n")});
    ASSERT_TRUE(desktop.isActive(overview));
    desktop.press({QStringLiteral("F1")});
    ASSERT_TRUE(desktop.isActive(help));
    EXPECT_TRUE(desktop.hasWindow(overview));
    desktop.press({QStringLiteral("Escape")});
    EXPECT_TRUE(desktop.hasNoWindow(help));
    EXPECT_TRUE(desktop.hasWindow(overview));
}

// Processor time of a process so far, in clock ticks.
long ticksOf(qint64 pid)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray text = stat.readAll();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    return fields.at(11).toLong() + fields.at(12).toLong();
}

TEST_F(RealRun, TheIdleMainWindowTakesNoProcessorTime)
{
    start();
    ASSERT_TRUE(desktop.hasNoWindow(QStringLiteral("Torvane")));
    QProcess::execute(QStringLiteral("sleep"), {QStringLiteral("1")});
    const long before = ticksOf(process->processId());
    ASSERT_GT(before, 0);
    QProcess::execute(QStringLiteral("sleep"), {QStringLiteral("2")});
    EXPECT_LE(ticksOf(process->processId()) - before, 1);
}

} // namespace
} // namespace torvane::testing
