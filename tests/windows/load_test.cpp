#include "windows/load_fixture.h"

#include <vector>

namespace torvane::testing {
namespace {

using Load = LoadedScenarios;

TEST_F(Load, AsksForAFileInTheScenarioFolder)
{
    startPastSplash(Language::English);
    choose(std::nullopt);
    ASSERT_EQ(script.fileBoxes.requests.size(), 1);
    const FileRequest& request = script.fileBoxes.requests.first();
    EXPECT_EQ(request.folder, scenarioFolder());
    EXPECT_EQ(request.filter, QStringLiteral("Scenario Files(*.scn)|*.scn"));
    EXPECT_EQ(request.defaultSuffix, QString());
    EXPECT_EQ(request.fileName, QString());
}

TEST_F(Load, FillsTheStoreAndOpensTheOverviewWithoutAnyBox)
{
    startPastSplash(Language::English);
    load(narvik());
    expectNarvik();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(workBytes(QStringLiteral("DivDataA1.txt")),
              "\"Division 0\"\r\n\"Blue\"\r\n\"Column\"\r\n\"1000\"\r\n");
    EXPECT_EQ(workBytes(QStringLiteral("DivisionB1.txt")), "\"DD Z 1\"\r\n");
    EXPECT_EQ(editor().workingProfile().GetIniKey(u"DIVISION0SHIP0", u"ZPOSITION"), QStringLiteral("200"));
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("loaded.scn")});
    EXPECT_EQ(scenarioBytesOf(QStringLiteral("loaded.scn")), narvik());
}

TEST_F(Load, EnablesWhatAScenarioNeeds)
{
    startPastSplash(Language::English);
    const char* const entries[] = {"mnuSave",       "mnuSaveAs",       "mnuOverView", "mnuEditDivison",
                                   "editForceA",    "mnuCreateForceA", "editForceB",  "mnuCreateForceB",
                                   "mnuRepoForceA", "mnuRepoForceB"};
    // One side is enough for the menus of both.
    load(data({"TITLE=x"}) + division(0, "Red"));
    for (const char* name : entries) {
        EXPECT_TRUE(isEnabled(name)) << name;
    }
}

TEST_F(Load, OfAFileWithoutDivisionsLeavesTheirMenusEmpty)
{
    startPastSplash(Language::English);
    load(data({"TITLE=Empty"}));
    for (const char* name : {"editForceA", "editForceB", "mnuRepoForceA", "mnuRepoForceB", "mnuCreateForceA",
                             "mnuCreateForceB"}) {
        EXPECT_FALSE(isEnabled(name)) << name;
    }
    EXPECT_EQ(shownDivisions(true), QList<int>{1});
    EXPECT_EQ(shownDivisions(false), QList<int>{1});
    EXPECT_TRUE(isEnabled("mnuSave"));
    EXPECT_TRUE(isEnabled("mnuOverView"));
    EXPECT_EQ(overview().title(), QStringLiteral("Empty"));
}

TEST_F(Load, ShowsAnEntryForEachDivisionOfASide)
{
    startPastSplash(Language::German);
    load(data({"TITLE=x"}) + division(0, "Red") + division(1, "Blue") + division(2, "Red") +
         division(3, "Red"));
    EXPECT_EQ(shownDivisions(true), QList<int>{1});
    EXPECT_EQ(shownDivisions(false), (QList<int>{1, 2, 3}));
    EXPECT_EQ(entry(QStringLiteral("mnuDiv1"))->text(), QStringLiteral("Verband 1"));
    EXPECT_EQ(entry(QStringLiteral("mnuDiv5"))->text(), QStringLiteral("Verband 1"));
    EXPECT_EQ(entry(QStringLiteral("mnuDiv7"))->text(), QStringLiteral("Verband 3"));
    EXPECT_TRUE(entry(QStringLiteral("mnuSeperator3"))->isVisible());
    EXPECT_EQ(main().menu().blueDivisionCount(), 1);
    EXPECT_EQ(main().menu().redDivisionCount(), 3);
    EXPECT_EQ(editor().divisionRecords().blueDivCount(), 1);
    EXPECT_EQ(editor().divisionRecords().redDivCount(), 3);
}

TEST_F(Load, CountsTheDivisionsOfForceBWithoutAnyOfForceA)
{
    for (const bool dialogWasThere : {false, true}) {
        startPastSplash(Language::English);
        if (dialogWasThere) {
            editor().createDivisionFrm();
        }
        load(data({"TITLE=x"}) + "[SCENARIOINFO]\r\nDIVISIONCNT=2\r\n" + division(0, "Red", "Z 1") +
             division(1, "Red", "Z 2"));
        saveOverview();
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuCreateForceA")));
        EXPECT_EQ(editor().divisionRecords().blueDivCount(), 1);
        EXPECT_EQ(editor().divisionRecords().redDivCount(), 2);
        closeBox(&editor().createDivisionFrm());
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuForceB2")));
        click(control<QPushButton>(editor().createDivisionFrm(), QStringLiteral("CmdEditCancel")));
        editor().divisionRecords().writeDivisionCount(QStringLiteral("0"));
        EXPECT_EQ(editor().workingProfile().GetIniKey(u"SCENARIOINFO", u"DIVISIONCNT"), QStringLiteral("2"));
    }
}

TEST_F(Load, OfASeventhDivisionOnASideHasAFileButNoEntry)
{
    startPastSplash(Language::English);
    QByteArray file = data({"TITLE=x"});
    for (int n = 0; n < 7; ++n) {
        file += division(n, "Blue");
    }
    load(file);
    EXPECT_EQ(shownDivisions(true), (QList<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(workNames().contains(QStringLiteral("DivDataA7.txt")));
    EXPECT_EQ(main().menu().blueDivisionCount(), 7);
    EXPECT_TRUE(overview().isVisible());
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(Load, CountsTheRepositionEntryBySideAsItIsSpelled)
{
    startPastSplash(Language::English);
    load(data({"TITLE=x"}) + division(0, "BLUE"));
    EXPECT_TRUE(workNames().contains(QStringLiteral("DivDataA1.txt")));
    EXPECT_EQ(main().menu().blueDivisionCount(), 0);
    EXPECT_EQ(main().menu().redDivisionCount(), 1);
}

TEST_F(Load, ShowsWhatIsUnderWay)
{
    startPastSplash(Language::German);
    struct Step
    {
        int value;
        bool isShown;
    };
    std::vector<Step> steps;
    QImage shown;
    QObject::connect(bar(), &QProgressBar::valueChanged, &main(), [&](int value) {
        steps.push_back({value, panel()->isVisible() && bar()->isVisible() && isHourglass()});
        shown = panel()->image();
    });
    load(narvik());
    ASSERT_EQ(steps.size(), 1000U);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        EXPECT_EQ(steps[i].value, static_cast<int>(10 * (i + 1)));
        EXPECT_TRUE(steps[i].isShown) << steps[i].value;
    }
    PictureBox same;
    same.resize(panel()->size());
    same.show();
    same.clear();
    same.print(QString());
    same.print(QStringLiteral("     Spieldaten werden geladen..."));
    EXPECT_EQ(shown, same.image());
    same.clear();
    EXPECT_EQ(panel()->image(), same.image()) << "cleared behind the work";
    expectNothingUnderWay();
}

TEST_F(Load, AdvancesByTheWorkAndFillsTheRest)
{
    startPastSplash(Language::English);
    int beforeTheMenus = 0;
    QObject::connect(entry(QStringLiteral("mnuOverView")), &QAction::changed, &main(),
                     [&] { beforeTheMenus = bar()->value() / 10; });
    load(narvik());
    // One at the start, the head, two ships of seven more, four passes over the places, two division lists.
    EXPECT_EQ(beforeTheMenus, 1 + 7 + 2 * 7 + 4 * 168 + 2 * 14);
    EXPECT_EQ(bar()->value(), 10000);
}

TEST_F(Load, TakesTheScaleOfTheMapFromItsTable)
{
    startPastSplash(Language::English);
    const float day = main().map().state().view.mapScale;
    setValue(main().chkDayNight, 0);
    load(narvik());
    EXPECT_NE(main().map().state().view.mapScale, day);
    EXPECT_EQ(main().map().state().view.mapScale, mapScale(main().map().state().view.zoomIndex, false));
}

TEST_F(Load, ThatIsCancelledAtTheStartEnablesTheTwoSaveCommandsAndNothingElse)
{
    startPastSplash(Language::English);
    QStringList expectedMenus = menuState();
    expectedMenus.replaceInStrings(QStringLiteral("mnuSave &Save 0"), QStringLiteral("mnuSave &Save 1"));
    expectedMenus.replaceInStrings(QStringLiteral("mnuSaveAs Save &As 0"),
                                   QStringLiteral("mnuSaveAs Save &As 1"));
    const QStringList files = workNames();
    choose(std::nullopt);
    EXPECT_EQ(menuState(), expectedMenus);
    EXPECT_TRUE(isEnabled("mnuSave"));
    EXPECT_EQ(workNames(), files);
    EXPECT_TRUE(main().isInputEnabled());
    EXPECT_FALSE(overview().isVisible());
    EXPECT_TRUE(boxes().isEmpty());
    expectNothingUnderWay();
    // Without a scenario Save breaks its rules, and Save As fails.
    save();
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_EQ(boxes().first().text,
              QStringLiteral("There must be at least one division per Force to save a scenario."));
    saveAs(scenario());
    EXPECT_EQ(boxes().last().text, QStringLiteral("An Error occured when the file was saved."));
    EXPECT_TRUE(scenarioNames().isEmpty());
}

TEST_F(Load, ThatIsCancelledLeavesTheScenarioInWork)
{
    openScenario();
    main().placeTargetArea(5, 6);
    const QByteArray before = profile();
    const QStringList files = workNames();
    const QStringList menus = menuState();
    choose(std::nullopt);
    EXPECT_EQ(profile(), before);
    EXPECT_EQ(workNames(), files);
    EXPECT_EQ(menuState(), menus);
    EXPECT_EQ(main().targetArea(), (TargetArea{5, 6, 9260}));
    EXPECT_TRUE(boxes().isEmpty());
    load(narvik());
    expectNarvik();
}

} // namespace
} // namespace torvane::testing
