#include "map/map_surface.h"
#include "platform/profile.h"
#include "scenario_file/save_scenario.h"
#include "shell/about_frm.h"
#include "support/failing_system.h"
#include "windows/division_fixture.h"

#include <QDir>
#include <QMap>

namespace torvane::testing {
namespace {

/// A run that is killed, and the next one in the same folder.
class KilledRun : public DivisionDialogs
{
protected:
    /// The editor goes without the leave that takes its files away, and another one starts.
    void killAndStartAgain(Language language = Language::English)
    {
        QMap<QString, QByteArray> left;
        for (const QString& name : workNames()) {
            left.insert(name, workBytes(name));
        }
        dropEditor();
        for (auto file = left.begin(); file != left.end(); ++file) {
            putWorkFile(file.key(), file.value());
        }
        boxes().clear();
        startPastSplash(language);
    }
    QString scenarioFolder() const { return gameFolder() + QStringLiteral("/Scenarios/"); }
    QStringList scenarios() const
    {
        return QDir(scenarioFolder()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QByteArray onlyScenario() const
    {
        const QStringList names = scenarios();
        EXPECT_EQ(names.size(), 1) << names.join(u' ').toStdString();
        return names.isEmpty() ? QByteArray() : readWholeFile(scenarioFolder() + names.first());
    }
    void expectNothingLeft() const
    {
        for (const QString& name : workNames()) {
            EXPECT_FALSE(name.endsWith(u".bmm") || name.endsWith(u".txt")) << name.toStdString();
        }
    }
    /// A scenario with a division a side, which was never saved.
    void makeScenario()
    {
        openNew();
        retype(box("TxtTitle"), QStringLiteral("Narvik"));
        saveOverview();
        make(Side::Blue, destroyers(2));
        clickMap({200, 200});
        make(Side::Red, {QStringLiteral("BB Hood")});
        clickMap({300, 150});
        boxes().clear();
    }
    void clickMap(QPoint place)
    {
        auto* map = control<MapBox>(main(), QStringLiteral("Picture_Main"));
        QTest::mouseMove(map, place);
        QTest::mouseClick(map, Qt::LeftButton, {}, place);
        settle();
    }
    QByteArray asSaved()
    {
        return scenarioBytes(editor().workingProfile(), main().targetArea(),
                             editor().overviewFrm().lblForceA->text());
    }
};

TEST_F(KilledRun, LeavesItsScenarioInTheFolderThatLoadShowsAndNothingInTheWorkFolder)
{
    makeScenario();
    const QByteArray scenario = asSaved();
    ASSERT_TRUE(scenario.contains("NAME=Hood"));
    killAndStartAgain();
    EXPECT_EQ(onlyScenario(), scenario);
    EXPECT_EQ(scenarios(), QStringList{QStringLiteral("Narvik (recovered 1941-05-24 05.52.00).scn")});
    EXPECT_TRUE(boxes().isEmpty());
    expectNothingLeft();
}

TEST_F(KilledRun, RecoveredIsLoadedLikeAnyOther)
{
    makeScenario();
    const QByteArray scenario = asSaved();
    killAndStartAgain();
    script.fileBoxes.answers = {scenarioFolder() + scenarios().constFirst()};
    choose("mnuLoad");
    EXPECT_EQ(overview().title(), QStringLiteral("Narvik"));
    saveOverview();
    EXPECT_TRUE(mayChoose("mnuForceA1"));
    EXPECT_EQ(Profile::parse(scenario).value("DIVISION1SHIP0", "YARDSXPOSITION")->toByteArray(),
              key("DIVISION1SHIP0", "XPOSITION").toLatin1());
}

TEST_F(KilledRun, BringsBackTheTargetAreaOfTheMap)
{
    makeScenario();
    setValue(main().chkBombardment, 1);
    choose("mnuAbout");
    closeBox(&editor().aboutFrm());
    settle();
    choose("mnuTargetBox");
    clickMap({120, 90});
    ASSERT_NE(main().targetArea().x, 0);
    const QByteArray scenario = asSaved();
    killAndStartAgain();
    EXPECT_EQ(onlyScenario(), scenario);
}

TEST_F(KilledRun, OfTheGermanProgramIsNamedInGerman)
{
    openScenario(Language::German);
    killAndStartAgain(Language::German);
    ASSERT_EQ(scenarios().size(), 1);
    EXPECT_TRUE(scenarios().constFirst().contains(u" (wiederhergestellt 1941-05-24 "))
        << scenarios().constFirst().toStdString();
}

TEST_F(KilledRun, InTheMiddleOfAWriteLeavesTheScenarioAsItStoodBefore)
{
    makeScenario();
    const QByteArray scenario = asSaved();
    putWorkFile(QStringLiteral("iniTemp.bmm.Ab12Cd"), "[SCENARIODATA]\r\nTIT");
    killAndStartAgain();
    EXPECT_EQ(onlyScenario(), scenario);
    expectNothingLeft();
}

TEST_F(KilledRun, KilledTwiceLeavesTwoScenarios)
{
    openScenario();
    killAndStartAgain();
    choose("mnuNew");
    killAndStartAgain();
    EXPECT_EQ(scenarios().size(), 2);
}

TEST_F(KilledRun, ThatWasEndedLeavesNothingToRecover)
{
    makeScenario();
    closeBox(&main());
    ASSERT_TRUE(editor().hasEnded());
    killAndStartAgain();
    EXPECT_EQ(scenarios(), QStringList());
}

TEST_F(KilledRun, ThatWasEndedOverAResistingFileLeavesNothingToRecover)
{
    makeScenario();
    // Deleted before the profile, and no file.
    ASSERT_TRUE(QDir().mkpath(workFile(QStringLiteral("DivisionA8.txt/inside"))));
    closeBox(&main());
    ASSERT_TRUE(editor().hasEnded());
    EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("iniTemp.bmm"))));
    EXPECT_THAT(boxes().constLast().text.toStdString(), ::testing::HasSubstr("DivisionA8.txt"));
}

TEST_F(KilledRun, LeavesNothingOfAScenarioThatNewOrLoadGaveUp)
{
    makeScenario();
    choose("mnuNew");
    killAndStartAgain();
    const QByteArray recovered = onlyScenario();
    EXPECT_FALSE(recovered.contains("TITLE=Narvik\r\n"));
    EXPECT_FALSE(recovered.contains("Hood"));
}

TEST_F(KilledRun, ThatCanNotBeRecoveredIsKeptToldAndTriedAgainAtTheNextStart)
{
    makeScenario();
    const QByteArray scenario = asSaved();
    ASSERT_TRUE(QDir(scenarioFolder()).removeRecursively());
    {
        QFile inTheWay(gameFolder() + QStringLiteral("/Scenarios"));
        ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    }
    killAndStartAgain();
    ASSERT_EQ(boxes().size(), 1);
    const QString kept = QStringLiteral("Unrecovered 1941-05-24 05.52.00.bmm");
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr(workFile(kept).toStdString()));
    EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("Narvik (recovered"));
    EXPECT_TRUE(workNames().contains(kept));

    killAndStartAgain();
    EXPECT_TRUE(boxes().isEmpty()) << "it was told before";
    EXPECT_TRUE(workNames().contains(kept));

    ASSERT_TRUE(QFile::remove(gameFolder() + QStringLiteral("/Scenarios")));
    killAndStartAgain();
    EXPECT_EQ(onlyScenario(), scenario);
    EXPECT_FALSE(workNames().contains(kept));
    EXPECT_TRUE(boxes().isEmpty());
}

} // namespace
} // namespace torvane::testing
