#include "overview_fixture.h"

namespace torvane::testing {
namespace {

struct MissionCase
{
    const char* caption;
    const char* first;
    const char* second;
    const char* firstObjective;
    const char* secondObjective;
    const char* battleType;
    int targetArea;
};

const MissionCase englishMissions[] = {
    {"Meeting Engagement", "BATTLELINE", "BATTLELINE", "Inflict more damage on the enemy than you receive.",
     "Inflict more damage on the enemy than you receive.", "0", 0},
    {"Intercept", "INTERCEPTING FORCE", "EVADING FORCE",
     "Prevent the enemy from disengaging while maximizing enemy losses and minimizing friendly losses.",
     "Disengage from the battle while minimizing friendly losses and maximizing enemy losses.", "3", 0},
    {"Bombardment", "BOMBARDING FORCE", "DEFENDING FORCE",
     "Successfully bombard your target while minimizing friendly losses and maximizing enemy losses.",
     "Prevent the enemy from completing his bombardment while maximizing enemy losses and minimizing "
     "friendly "
     "losses.",
     "1", 1},
    {"Convoy", "ESCORTING FORCE", "ATTACKING FORCE",
     "Protect the transports and attempt to disengage while minimizing friendly losses and maximizing enemy "
     "losses.",
     "Prevent the transports from disengaging while maximizing enemy losses and minimizing friendly losses.",
     "2", 0},
    {"Tactical Transport", "TRANSPORTING FORCE", "PATROLLING FORCE",
     "Move your force into a position to unload its supplies while minimizing friendly losses and maximizing "
     "enemy losses.",
     "Prevent the enemy from unloading its supplies while maximizing enemy losses and minimizing friendly "
     "losses.",
     "4", 1},
};

const MissionCase germanMissions[] = {
    {"Begegnungsgefecht", "Schlachtreihe", "Schlachtreihe",
     "Dem Gegner möglichst großen Schaden zufügen, eigene Verluste vermeiden.",
     "Dem Gegner möglichst großen Schaden zufügen, eigene Verluste vermeiden.", "0", 0},
    {"Abfangen", "Abfangende Streitkraft", "Ausweichende Streitkraft",
     "Verhindern, daß der Gegner sich löst und dabei so viele Gegner wie möglich bei minimalen eigenen "
     "Verlusten zerstören.",
     "Von der Schlacht sich loslösen und dabei so viele Gegner wie möglich bei minimalen eigenen Verlusten "
     "zerstören.",
     "3", 0},
    {"Bombardieren", "Bombardierende Streitkraft", "Verteidigende Streitkraft",
     "Eigene Streitkraft in eine Position bringen aus der sich das Ziel erfolgreich bombardieren läßt und "
     "dabei so viele Gegner wie möglich bei minimalen eigenen Verlusten zerstören.",
     "Verhindern, daß der Gegner die Bombardierung erfolgreich abschließend und dabei so viele Gegner wie "
     "möglich bei minimalen eigenen Verlusten zerstören.",
     "1", 1},
    {"Konvoi", "Geleitflotte", "Angriffsflotte",
     "Transporte schützen und sich vom Feind loslösen und dabei so viele Gegner wie möglich bei minimalen "
     "eigenen Verlusten zerstören.",
     "Verhindern, daß sich Transporte loslösen und dabei so viele Gegner wie möglich bei minimalen eigenen "
     "Verlusten zerstören.",
     "2", 0},
    {"Taktischer Transport", "Transportflotte", "Patroullieflotte",
     "Bringen Sie Ihre Streitkraft in eine geeignete Position, zur Löschung der Ladung und zerstören Sie "
     "dabei so viele Gegner wie möglich, bei minimalen eigenen Verlusten.",
     "Verhindern Sie, daß der Gegner seine Ladung löscht, und zerstören Sie dabei so viele Gegner wie "
     "möglich bei minimalen eigenen Verlusten.",
     "4", 1},
};

class OverviewMissions : public Dialogs
{
protected:
    void expectShown(const MissionCase& mission, bool swapped = false)
    {
        const char* forceA = swapped ? mission.secondObjective : mission.firstObjective;
        const char* forceB = swapped ? mission.firstObjective : mission.secondObjective;
        EXPECT_EQ(label("lblMissionA")->text(), QString::fromUtf8(mission.first));
        EXPECT_EQ(label("lblMissionB")->text(), QString::fromUtf8(mission.second));
        EXPECT_EQ(objective("RTxtBBlueBrief"), QString::fromUtf8(forceA)) << mission.caption;
        EXPECT_EQ(objective("RTxtBRedBrief"), QString::fromUtf8(forceB)) << mission.caption;
        EXPECT_EQ(valueOf(main().chkBombardment), mission.targetArea) << mission.caption;
    }
    void expectForces(const char* first, const char* second)
    {
        EXPECT_EQ(overview().lblForceA->text(), QLatin1StringView(first));
        EXPECT_EQ(overview().lblForceB->text(), QLatin1StringView(second));
    }
};

TEST_F(OverviewMissions, EachSetsRolesObjectivesAndTargetArea)
{
    for (const Language language : {Language::English, Language::German}) {
        openNew(language);
        for (const MissionCase& mission : language == Language::German ? germanMissions : englishMissions) {
            pick(list("cmbMission"), mission.caption);
            expectShown(mission);
        }
    }
}

TEST_F(OverviewMissions, EachIsStoredByItsCodeAndShownAgain)
{
    for (const Language language : {Language::English, Language::German}) {
        openNew(language);
        for (const MissionCase& mission : language == Language::German ? germanMissions : englishMissions) {
            pick(list("cmbMission"), mission.caption);
            saveOverview();
            EXPECT_EQ(stored("BATTLETYPE"), QLatin1StringView(mission.battleType));
            EXPECT_EQ(stored("DDTRANSPORTS"), QString::number(mission.battleType == std::string("4")));
            setValue(main().chkBombardment, 1 - mission.targetArea);
            reopenOverview();
            EXPECT_EQ(list("cmbMission")->currentText(), QString::fromUtf8(mission.caption));
            expectShown(mission);
        }
    }
}

TEST_F(OverviewMissions, BombardmentThenTacticalTransportLeavesTheTargetAreaAndConvoyTakesIt)
{
    openNew();
    pick(list("cmbMission"), "Bombardment");
    pick(list("cmbMission"), "Tactical Transport");
    EXPECT_EQ(valueOf(main().chkBombardment), 1);
    pick(list("cmbMission"), "Convoy");
    EXPECT_EQ(valueOf(main().chkBombardment), 0);
}

TEST_F(OverviewMissions, TheKeysChooseAsTheMouseDoes)
{
    openNew();
    press(list("cmbMission"), Qt::Key_Down);
    expectShown(englishMissions[1]);
    press(list("cmbMission"), Qt::Key_End);
    expectShown(englishMissions[4]);
    press(list("cmbMission"), Qt::Key_Home);
    expectShown(englishMissions[0]);
}

TEST_F(OverviewMissions, ASwappedScenarioShowsTheObjectivesExchangedUntilAMissionIsChosenAnew)
{
    openNew();
    pick(list("cmbMission"), "Tactical Transport");
    saveOverview();
    store("BLUE_FORCE_TYPE", "1");
    store("RED_FORCE_TYPE", "0");
    reopenOverview();
    expectShown(englishMissions[4], true);
    expectForces("Force B", "Force A");
    saveOverview();
    EXPECT_EQ(stored("BLUE_FORCE_TYPE"), QStringLiteral("1"));
    EXPECT_EQ(stored("RED_FORCE_TYPE"), QStringLiteral("0"));
    reopenOverview();
    expectShown(englishMissions[4], true);
    pick(list("cmbMission"), "Tactical Transport");
    expectShown(englishMissions[4], false);
    expectForces("Force A", "Force B");
    saveOverview();
    EXPECT_EQ(stored("BLUE_FORCE_TYPE"), QStringLiteral("0"));
    EXPECT_EQ(stored("RED_FORCE_TYPE"), QStringLiteral("1"));
}

TEST_F(OverviewMissions, TheSwapIsKeptUnderGermanWords)
{
    openNew(Language::German);
    saveOverview();
    store("BATTLETYPE", "2");
    store("BLUE_FORCE_TYPE", "1");
    reopenOverview();
    expectShown(germanMissions[3], true);
    expectForces("Streitkraft B", "Streitkraft A");
    saveOverview();
    EXPECT_EQ(stored("BLUE_FORCE_TYPE"), QStringLiteral("1"));
    reopenOverview();
    pick(list("cmbMission"), "Abfangen");
    expectShown(germanMissions[1], false);
    expectForces("Streitkraft A", "Streitkraft B");
}

TEST_F(OverviewMissions, AForceTypeThatIsNoFlagIsThePlainOrder)
{
    openNew();
    saveOverview();
    store("BATTLETYPE", "3");
    store("BLUE_FORCE_TYPE", "2");
    reopenOverview();
    expectShown(englishMissions[1], false);
    expectForces("Force A", "Force B");
}

TEST_F(OverviewMissions, ANewScenarioAfterASwappedOneIsNotSwapped)
{
    openNew();
    saveOverview();
    store("BLUE_FORCE_TYPE", "1");
    reopenOverview();
    saveOverview();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    expectShown(englishMissions[0], false);
    expectForces("Force A", "Force B");
    EXPECT_EQ(stored("BLUE_FORCE_TYPE"), QStringLiteral("0"));
}

TEST_F(OverviewMissions, LoadingTheWindowLeavesTheTargetAreaAlone)
{
    startPastSplash(Language::English);
    setValue(main().chkBombardment, 1);
    EXPECT_EQ(overview().lblForceA->text(), QStringLiteral("Force A"));
    EXPECT_EQ(label("lblMissionA")->text(), QStringLiteral("BATTLELINE"));
    EXPECT_EQ(valueOf(main().chkBombardment), 1);
}

TEST_F(OverviewMissions, EveryObjectiveIsReadableWithoutScrolling)
{
    for (const Language language : {Language::English, Language::German}) {
        openNew(language);
        for (const MissionCase& mission : language == Language::German ? germanMissions : englishMissions) {
            pick(list("cmbMission"), mission.caption);
            for (const char* name : {"RTxtBBlueBrief", "RTxtBRedBrief"}) {
                auto* brief = control<QTextEdit>(overview(), QLatin1StringView(name));
                EXPECT_LE(brief->document()->size().height(), brief->viewport()->height()) << mission.caption;
                EXPECT_TRUE(brief->isReadOnly());
            }
        }
    }
}

class OverviewAndEnvironment : public Dialogs
{
};

TEST_F(OverviewAndEnvironment, ReturningDoesNotReloadSoThatAnUnsavedTitleStays)
{
    openNew();
    retype(box("TxtTitle"), QStringLiteral("Unsaved"));
    openEnvironment();
    EXPECT_FALSE(overview().isInputEnabled());
    acceptEnvironment();
    EXPECT_TRUE(overview().isInputEnabled());
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("Unsaved"));
    EXPECT_FALSE(button("CmdCancel")->isEnabled()) << "still the first opening";
    EXPECT_EQ(stored("TITLE"), QStringLiteral("Title"));
    openEnvironment();
    cancelEnvironment();
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("Unsaved")) << "each return is told from an opening";
    saveOverview();
    store("TITLE", "From the profile");
    reopenOverview();
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("From the profile"));
}

TEST_F(OverviewAndEnvironment, WhileItIsOpenTheOverviewTakesNothing)
{
    openNew();
    openEnvironment();
    type(box("TxtTitle"), QStringLiteral("x"));
    click(button("cmdOK"));
    closeBox(&overview());
    const int cursor = description()->textCursor().position();
    QTest::mouseClick(description()->viewport(), Qt::LeftButton, {}, QPoint(300, 60));
    EXPECT_EQ(description()->textCursor().position(), cursor) << "nor in what scrolls";
    EXPECT_TRUE(overview().isVisible());
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("Title"));
    EXPECT_TRUE(button("cmdOK")->isEnabled()) << "does not turn grey";
}

TEST_F(OverviewAndEnvironment, CancellingTheOverviewDoesNotUndoWhatTheEnvironmentWrote)
{
    openNew();
    saveOverview();
    reopenOverview();
    openEnvironment();
    retype(envBox("TxtWindSpd"), QStringLiteral("25"));
    acceptEnvironment();
    click(button("CmdCancel"));
    EXPECT_EQ(stored("WIND_SPEED"), QStringLiteral("25"));
    EXPECT_EQ(stored("SEASTATE"), QStringLiteral("6"));
}

TEST_F(OverviewAndEnvironment, ACancelledWeatherIsNotWrittenByTheOverviewsSave)
{
    openNew();
    openEnvironment();
    retype(envBox("TxtWindSpd"), QStringLiteral("25"));
    pick(envList("ComboMonth"), "May");
    cancelEnvironment();
    saveOverview();
    EXPECT_EQ(stored("WIND_SPEED"), QStringLiteral("1"));
    EXPECT_EQ(stored("SEASTATE"), QStringLiteral("1"));
    EXPECT_EQ(stored("MONTH"), QStringLiteral("January"));
}

TEST_F(OverviewAndEnvironment, AfterTheOverviewsSaveTheMoonIsNoneAndTheSixTargetKeysAre0)
{
    const char* const targetKeys[] = {"BLUE_TARGETBOX_X", "BLUE_TARGETBOX_Z", "BLUE_TARGETBOXDIM",
                                      "RED_TARGETBOX_X",  "RED_TARGETBOX_Z",  "RED_TARGETBOX_DIM"};
    openNew();
    saveOverview();
    store("MOONPHASE", "Full");
    for (const char* key : targetKeys) {
        store(key, "1234");
    }
    reopenOverview();
    openEnvironment();
    acceptEnvironment();
    EXPECT_EQ(stored("MOONPHASE"), QStringLiteral("Full")) << "the environment dialog keeps it";
    EXPECT_EQ(stored("BLUE_TARGETBOX_X"), QStringLiteral("1234"));
    saveOverview();
    EXPECT_EQ(stored("MOONPHASE"), QStringLiteral("None"));
    for (const char* key : targetKeys) {
        EXPECT_EQ(stored(key), QStringLiteral("0")) << key;
    }
}

} // namespace
} // namespace torvane::testing
