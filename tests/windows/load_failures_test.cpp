#include "platform/runtime_error.h"
#include "windows/load_fixture.h"

#include <QDirIterator>

#include <sys/stat.h>

namespace torvane::testing {
namespace {

class FailingLoad : public LoadedScenarios
{
protected:
    /// New and Load, behind whatever came before.
    void expectNewAndLoadWork()
    {
        if (overview().isVisible()) {
            saveOverview();
        }
        boxes().clear();
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
        ASSERT_TRUE(overview().isVisible());
        saveOverview();
        load(narvik());
        expectNarvik();
        cancelOverview();
        EXPECT_TRUE(main().isInputEnabled());
        EXPECT_TRUE(boxes().isEmpty());
    }
    /// Chooses a file that can't be opened while a scenario is open, which stays as it was.
    void expectRefused(const QString& path)
    {
        const QByteArray before = profile();
        const QStringList files = workNames();
        const QStringList menus = menuState();
        boxes().clear();
        choose(path);
        ASSERT_EQ(boxes().size(), 1) << path.toStdString();
        EXPECT_TRUE(boxes().first().text.contains(path)) << boxes().first().text.toStdString();
        EXPECT_EQ(boxes().first().icon, MessageBox::Icon::Critical);
        EXPECT_EQ(profile(), before);
        EXPECT_EQ(workNames(), files);
        EXPECT_EQ(menuState(), menus);
        EXPECT_TRUE(main().isInputEnabled());
        EXPECT_FALSE(overview().isVisible());
        expectNothingUnderWay();
    }
    /// A load that went wrong behind the choice: no box, and the main window takes commands.
    void expectErrorRoad()
    {
        EXPECT_TRUE(boxes().isEmpty());
        EXPECT_TRUE(main().isInputEnabled());
        EXPECT_FALSE(overview().isVisible());
        EXPECT_FALSE(isEnabled("mnuOverView"));
        expectNothingUnderWay();
    }
    /// All files of the game folder but those of the work folder.
    QStringList otherFiles() const
    {
        QStringList found;
        QDirIterator walk(gameFolder(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString path = walk.next();
            if (!path.contains(QStringLiteral("/ScenarioEditor/"))) {
                found.append(path);
            }
        }
        found.sort();
        return found;
    }
};

TEST_F(FailingLoad, OfAFolderSaysSoAndKeepsTheScenario)
{
    openScenario();
    expectRefused(scenarioFolder());
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfAMissingFileSaysSoAndKeepsTheScenario)
{
    openScenario();
    expectRefused(scenario(QStringLiteral("gone.scn")));
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfAnUnreadableFileSaysSoAndKeepsTheScenario)
{
    openScenario();
    put(narvik());
    ::chmod(QFile::encodeName(gameFolder()).constData(), 0755);
    ASSERT_TRUE(QFile::setPermissions(scenario(QStringLiteral("loaded.scn")), {}));
    {
        const Unprivileged user;
        expectRefused(scenario(QStringLiteral("loaded.scn")));
    }
    QFile::remove(scenario(QStringLiteral("loaded.scn")));
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfAPipeSaysSoAndKeepsTheScenario)
{
    openScenario();
    ASSERT_EQ(::mkfifo(QFile::encodeName(scenario(QStringLiteral("pipe.scn"))).constData(), 0600), 0);
    expectRefused(scenario(QStringLiteral("pipe.scn")));
}

TEST_F(FailingLoad, OfTheScenarioUnderEditItselfSaysSoAndKeepsIt)
{
    openScenario();
    expectRefused(workFile(QStringLiteral("iniTemp.bmm")));
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfAMissingFileAtTheStartSaysSoOnce)
{
    startPastSplash(Language::German);
    choose(scenario(QStringLiteral("gone.scn")));
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(boxes().first().text.contains(scenario(QStringLiteral("gone.scn"))));
    EXPECT_EQ(boxes().first().title, QStringLiteral("Torvane - Szenario-Editor"));
    EXPECT_FALSE(isEnabled("mnuOverView"));
    EXPECT_TRUE(isEnabled("mnuSave"));
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfATextOfAnotherKindOpensAnOverviewOfTheWordInvalid)
{
    startPastSplash(Language::English);
    load("Dear Admiral,\r\nthe weather is fine.\r\n");
    EXPECT_TRUE(overview().isVisible());
    EXPECT_EQ(overview().title(), QStringLiteral("INVALID"));
    EXPECT_FALSE(profile().contains("Admiral"));
    EXPECT_FALSE(isEnabled("editForceA"));
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfATargetBeyondAllRangesTakesTheErrorRoadWithTheOldScenarioGone)
{
    openScenario();
    load(data({"TITLE=Far", "BLUE_TARGETBOX_X=2147483648"}) + division(0, "Blue"));
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_FALSE(overview().isVisible());
    expectNothingUnderWay();
    EXPECT_TRUE(profile().contains("TITLE=Far")) << "as far as it got";
    EXPECT_FALSE(profile().contains("Cossack"));
    EXPECT_FALSE(workNames().contains(QStringLiteral("DivDataA1.txt")));
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfAPositionBeyondAllRangesTakesTheErrorRoad)
{
    startPastSplash(Language::English);
    load(division(0, "Blue", "Cossack").replace("YARDSZPOSITION=-200", "YARDSZPOSITION=1E999"));
    expectErrorRoad();
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, InAWorkFolderThatResistsTakesTheErrorRoad)
{
    startPastSplash(Language::English);
    QDir(gameFolder()).mkpath(QStringLiteral("ScenarioEditor/DivisionA1.txt"));
    load(narvik());
    expectErrorRoad();
    QDir(gameFolder()).rmdir(QStringLiteral("ScenarioEditor/DivisionA1.txt"));
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, InAWorkFolderThatResistsLeavesTheOldScenarioHalfGone)
{
    openScenario();
    const QByteArray before = profile();
    QFile::remove(workFile(QStringLiteral("DivisionA1.txt")));
    QDir(gameFolder()).mkpath(QStringLiteral("ScenarioEditor/DivisionA1.txt"));
    load(narvik());
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_FALSE(isEnabled("editForceA")) << "the menus went first";
    EXPECT_EQ(profile(), before);
    expectNothingUnderWay();
    QDir(gameFolder()).rmdir(QStringLiteral("ScenarioEditor/DivisionA1.txt"));
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfNumbersBeyondAllRangesIsToldOnceWhenTheMapDrawsThem)
{
    for (const char* replaced : {"DIVISIONCNT=99999999999", "YARDSXPOSITION=1E999"}) {
        startPastSplash(Language::English);
        const QByteArray key = QByteArray(replaced).split('=').first() + '=';
        QByteArray bytes = narvik().replace(
            "FORMATION=", "FORMATIONHEADING=90\r\nSPEED=9\r\nSHIPCNT=1\r\nFLAGSHIPINDEX=0\r\nFORMATION=");
        const qsizetype at = bytes.indexOf(key);
        ASSERT_GE(at, 0);
        bytes.replace(at, bytes.indexOf('\r', at) - at, replaced);
        boxes().clear();
        load(bytes);
        ASSERT_TRUE(overview().isVisible()) << replaced;
        ASSERT_TRUE(boxes().isEmpty());
        cancelOverview();
        EXPECT_EQ(boxes().size(), 1) << replaced;
        EXPECT_TRUE(main().isInputEnabled());
        boxes().clear();
        expectNewAndLoadWork();
    }
}

TEST_F(FailingLoad, OnAFullDiskTakesTheErrorRoadAndTellsOfTheProfile)
{
    startPastSplash(Language::English);
    put(narvik());
    {
        const FullDisk full(30);
        choose(scenario(QStringLiteral("loaded.scn")));
        settle();
    }
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_TRUE(boxes().first().text.contains(QStringLiteral("iniTemp.bmm")));
    boxes().clear();
    expectErrorRoad();
    expectNewAndLoadWork();
}

TEST_F(FailingLoad, OfAnyFileLeavesNewAndLoadWorking)
{
    startPastSplash(Language::English);
    load(narvik());
    cancelOverview();
    const QStringList others = otherFiles();
    const QDir corpus(QStringLiteral(LOAD_CORPUS));
    const QStringList names = corpus.entryList(QDir::Files, QDir::Name);
    ASSERT_GE(names.size(), 25);
    for (const QString& name : names) {
        QFile file(corpus.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        load(bytes);
        EXPECT_EQ(overview().isVisible(), !main().isInputEnabled()) << name.toStdString();
        EXPECT_EQ(overview().isVisible(), !name.startsWith(QStringLiteral("huge"))) << name.toStdString();
        expectNothingUnderWay();
        // The overview says where a value that it shows is out of its range.
        for (const MessageBox& shown : boxes()) {
            EXPECT_EQ(shown.title, QStringLiteral("Out of Range"))
                << name.toStdString() << shown.text.toStdString();
        }
        EXPECT_EQ(otherFiles(), others) << name.toStdString();
        EXPECT_EQ(scenarioBytesOf(QStringLiteral("loaded.scn")), bytes);
        expectNewAndLoadWork();
    }
}

TEST_F(FailingLoad, OfAHundredMegabytesIsNoFailure)
{
    startPastSplash(Language::English);
    load(narvik() + QByteArray(100'000'000, 'x'));
    expectNarvik();
    cancelOverview();
    expectNewAndLoadWork();
}

} // namespace
} // namespace torvane::testing
