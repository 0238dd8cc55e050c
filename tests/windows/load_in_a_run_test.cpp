#include "windows/load_fixture.h"

namespace torvane::testing {
namespace {

using Load = LoadedScenarios;

// The marks of first divisions live on through a load. Kept, and told in the guide with its way round.
TEST_F(Load, AfterNewIsForgottenByTheCountsUntilItIsRepeatedBehindACancelledDivisionOfEachForce)
{
    startPastSplash(Language::English);
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    saveOverview();
    load(narvik());
    saveOverview();
    EXPECT_EQ(editor().divisionRecords().blueDivCount(), 1);
    for (const char* command : {"mnuCreateForceA", "mnuCreateForceB"}) {
        ASSERT_TRUE(chooseMenu(main(), QLatin1StringView(command)));
        EXPECT_EQ(editor().divisionRecords().blueDivCount() + editor().divisionRecords().redDivCount(), 1);
        closeBox(&editor().createDivisionFrm());
    }
    EXPECT_EQ(newFlags(), (QList<int>{0, 0, 0}));
    load(narvik());
    saveOverview();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuCreateForceA")));
    EXPECT_EQ(editor().divisionRecords().blueDivCount(), 2);
    EXPECT_EQ(editor().divisionRecords().redDivCount(), 1);
}

TEST_F(Load, LeavesTheWayToDivisionsOpenOnceItIs)
{
    startPastSplash(Language::English);
    load(narvik());
    cancelOverview();
    load(data({"TITLE=Empty"}));
    EXPECT_TRUE(isEnabled("mnuCreateForceA"));
    EXPECT_TRUE(isEnabled("mnuCreateForceB"));
    EXPECT_FALSE(isEnabled("editForceA"));
}

TEST_F(Load, OfMoreDivisionsThanASideHoldsIsFollowedByAnotherOrNewWithoutTheirFiles)
{
    startPastSplash(Language::English);
    QByteArray allBlue = data({"TITLE=Large"});
    for (int n = 0; n < 12; ++n) {
        allBlue += division(n, "Blue", "Ship " + QByteArray::number(n));
    }
    load(allBlue);
    ASSERT_TRUE(workNames().contains(QStringLiteral("DivisionA12.txt")));
    cancelOverview();
    load(narvik());
    expectNarvik();
    cancelOverview();
    load(allBlue);
    cancelOverview();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    EXPECT_EQ(workNames(), (QStringList{QStringLiteral("ScenarioData.mdb"), QStringLiteral("ShipTrack.bmm"),
                                        QStringLiteral("iniTemp.bmm")}));
}

TEST_F(Load, AndSaveAHundredTimesChangeNothingBehindTheSecond)
{
    startPastSplash(Language::English);
    QByteArray bytes = narvik();
    for (int i = 1; i <= 100; ++i) {
        load(bytes);
        cancelOverview();
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuSave")));
        const QByteArray saved = scenarioBytesOf(QStringLiteral("Narvik.scn"));
        ASSERT_FALSE(saved.isEmpty());
        if (i > 2) {
            ASSERT_EQ(saved, bytes) << i;
        }
        bytes = saved;
    }
}

TEST_F(Load, LeavesTheFlagsOfANewScenarioAsTheyAre)
{
    startPastSplash(Language::English);
    load(narvik());
    EXPECT_EQ(newFlags(), (QList<int>{0, 0, 0}));
    saveOverview();
    EXPECT_EQ(newFlags(), (QList<int>{0, 0, 0}));
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    saveOverview();
    ASSERT_EQ(newFlags(), (QList<int>{0, 1, 1}));
    load(narvik());
    EXPECT_EQ(newFlags(), (QList<int>{0, 1, 1}));
    EXPECT_TRUE(button("CmdCancel")->isEnabled()) << "no new scenario: the overview can be left by Cancel";
}

TEST_F(Load, AfterNewReplacesTheScenarioWithoutAQuestion)
{
    openScenario();
    load(narvik());
    expectNarvik();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_FALSE(profile().contains("Convoy PQ 17"));
}

TEST_F(Load, IsFollowedByNewAsAtTheStart)
{
    startPastSplash(Language::English);
    load(narvik());
    saveOverview();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
    EXPECT_TRUE(overview().isVisible());
    EXPECT_EQ(overview().title(), QStringLiteral("Title"));
    EXPECT_EQ(workNames(), (QStringList{QStringLiteral("ScenarioData.mdb"), QStringLiteral("ShipTrack.bmm"),
                                        QStringLiteral("iniTemp.bmm")}));
    EXPECT_EQ(shownDivisions(true), QList<int>{1});
    EXPECT_FALSE(isEnabled("editForceA"));
    EXPECT_EQ(main().menu().redDivisionCount(), 0);
    EXPECT_EQ(editor().divisionRecords().blueDivCount(), 0);
    EXPECT_FALSE(profile().contains("DIVISION0"));
}

TEST_F(Load, TwiceLeavesNothingOfTheFirst)
{
    startPastSplash(Language::English);
    QByteArray large = data({"TITLE=Large"});
    for (int n = 0; n < 12; ++n) {
        large += division(n, n % 2 == 0 ? "Blue" : "Red", "Ship " + QByteArray::number(n));
    }
    load(large);
    EXPECT_EQ(shownDivisions(true), (QList<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(editor().divisionRecords().redDivCount(), 6);
    cancelOverview();
    load(narvik());
    expectNarvik();
    EXPECT_EQ(shownDivisions(true), QList<int>{1});
    EXPECT_EQ(shownDivisions(false), QList<int>{1});
    EXPECT_EQ(main().menu().blueDivisionCount(), 1);
    EXPECT_EQ(editor().divisionRecords().redDivCount(), 1);
    EXPECT_EQ(entry(QStringLiteral("mnuDiv1"))->text(), QStringLiteral("Division 1"));
}

TEST_F(Load, TheSameFileTwiceGivesTheSame)
{
    startPastSplash(Language::English);
    load(narvik());
    const QByteArray first = profile();
    const QStringList menus = menuState();
    cancelOverview();
    load(narvik());
    EXPECT_EQ(profile(), first);
    EXPECT_EQ(menuState(), menus);
}

TEST_F(Load, GivesBackWhatWasSaved)
{
    openScenario();
    set("DIVISION0SHIP0", "ZPOSITION", "-250.50");
    set("DIVISION0", "FORMATIONSPACING", "1500");
    save();
    const QByteArray saved = scenarioBytesOf();
    load(narvik());
    cancelOverview();
    choose(scenario());
    EXPECT_EQ(editor().workingProfile().GetIniKey(u"DIVISION0SHIP0", u"XPOSITION"), QStringLiteral("1000"));
    EXPECT_EQ(editor().workingProfile().GetIniKey(u"DIVISION0SHIP0", u"ZPOSITION"), QStringLiteral("-250.5"));
    EXPECT_EQ(editor().workingProfile().GetIniKey(u"DIVISION0", u"FORMATIONSPACING"), QStringLiteral("1500"));
    // Keys that were missing have their values now, and from here on the file stays as it is.
    saveOverview();
    save();
    const QByteArray second = scenarioBytesOf();
    EXPECT_NE(second, saved);
    choose(scenario());
    saveOverview();
    save();
    EXPECT_EQ(scenarioBytesOf(), second);
}

} // namespace
} // namespace torvane::testing
