#include "windows/save_fixture.h"

#include <algorithm>
#include <vector>

namespace torvane::testing {
namespace {

using Answer = MessageBox::Answer;
using Icon = MessageBox::Icon;
using Save = SavedScenarios;

constexpr const char* badName = "File Name Invalid.  Please re-name the scenario's Title, in the Overview "
                                "Menu, to conform to Windows file name conventions.";

TEST_F(Save, IsGreyedWithoutAScenario)
{
    startPastSplash();
    EXPECT_FALSE(chooseMenu(main(), QStringLiteral("mnuSave")));
    EXPECT_FALSE(chooseMenu(main(), QStringLiteral("mnuSaveAs")));
}

TEST_F(Save, WritesTheFileUnderTheTitleWithoutAnyBox)
{
    openScenario();
    const QByteArray before = profile();
    save();
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("Convoy PQ 17.scn")});
    EXPECT_EQ(scenarioBytesOf(), expected());
    EXPECT_TRUE(scenarioBytesOf().contains("TITLE=Convoy PQ 17\r\n"));
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(profile(), before) << "the scenario under edit stays as it is";
    expectNothingUnderWay();
}

TEST_F(Save, TakesTheNameFromTheDialogTrimmedAndNotFromTheProfile)
{
    openScenario(QStringLiteral("  Narvik, 2nd battle "));
    set("SCENARIODATA", "TITLE", "Another");
    save();
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("Narvik, 2nd battle.scn")});
}

TEST_F(Save, OfATitleWithAColonInsideMakesAFileOfThatName)
{
    openScenario(QStringLiteral("Narvik: 2nd battle"));
    save();
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("Narvik: 2nd battle.scn")});
}

TEST_F(Save, ShowsWhatIsUnderWayWhileItWrites)
{
    openScenario(QStringLiteral("Convoy PQ 17"), Language::German);
    struct Step
    {
        int value;
        bool isShown;
        bool isThere;
    };
    std::vector<Step> steps;
    QImage shown;
    QObject::connect(bar(), &QProgressBar::valueChanged, &main(), [&](int value) {
        steps.push_back(
            {value, panel()->isVisible() && bar()->isVisible() && isHourglass(), QFile::exists(scenario())});
        shown = panel()->image();
    });
    save();
    ASSERT_EQ(steps.size(), 1000U);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        EXPECT_EQ(steps[i].value, static_cast<int>(10 * (i + 1)));
        EXPECT_TRUE(steps[i].isShown) << steps[i].value;
        // One step before the file is made, 278 in its making.
        EXPECT_EQ(steps[i].isThere, steps[i].value > 2790) << steps[i].value;
    }
    PictureBox same;
    same.resize(panel()->size());
    same.show();
    same.clear();
    same.print(QString());
    same.print(QStringLiteral("     Datei wird gesichert..."));
    EXPECT_EQ(shown, same.image());
    same.clear();
    EXPECT_EQ(panel()->image(), same.image()) << "cleared behind the work";
    expectNothingUnderWay();
}

TEST_F(Save, StartsItsBarAnew)
{
    openScenario();
    save();
    EXPECT_EQ(bar()->value(), 10000);
    std::vector<int> values;
    QObject::connect(bar(), &QProgressBar::valueChanged, &main(),
                     [&](int value) { values.push_back(value); });
    save();
    ASSERT_GE(values.size(), 2U);
    EXPECT_EQ(values[0], 0);
    EXPECT_EQ(values[1], 10);
}

TEST_F(Save, RedrawsTheMap)
{
    openScenario();
    markMap();
    save();
    EXPECT_FALSE(isMapMarked());
}

TEST_F(Save, AsksBeforeItReplacesAFileAndReplacesItOnYes)
{
    openScenario();
    putScenario();
    save();
    ASSERT_EQ(boxes().size(), 1);
    expectQuestion(0, "This file already exists.  Do you wish to save over it?", "Filename Warning!",
                   Icon::None, Answer::Yes);
    EXPECT_EQ(scenarioBytesOf(), expected());
}

TEST_F(Save, LeavesTheFileOnNo)
{
    openScenario(QStringLiteral("Convoy PQ 17"), Language::German);
    putScenario();
    markMap();
    script.messageBoxes.answers = {Answer::No};
    save();
    ASSERT_EQ(boxes().size(), 1);
    expectQuestion(
        0, "Eine Datei mit diesem Namen existiert bereits. Wollen Sie die existierende Datei ersetzen?",
        "Warnung: Dateiname!", Icon::None, Answer::Yes);
    EXPECT_EQ(scenarioBytesOf(), "old");
    EXPECT_TRUE(isMapMarked());
    expectNothingUnderWay();
}

TEST_F(Save, TwiceGivesTheSameFile)
{
    openScenario();
    save();
    const QByteArray first = scenarioBytesOf();
    save();
    EXPECT_EQ(scenarioBytesOf(), first);
}

TEST_F(Save, ReplacesAReadOnlyFile)
{
    openScenario();
    putScenario();
    makeReadOnly();
    {
        const Unprivileged user;
        save();
    }
    EXPECT_EQ(scenarioBytesOf(), expected());
    EXPECT_TRUE(ownersRights() & QFile::WriteOwner);
}

TEST_F(Save, ThatFailsLeavesAReadOnlyFileReadOnly)
{
    openScenario();
    putScenario();
    makeReadOnly();
    {
        const FullDisk full(1000);
        save();
    }
    EXPECT_EQ(scenarioBytesOf(), "old");
    EXPECT_FALSE(ownersRights() & QFile::WriteOwner);
}

TEST_F(Save, RefusesATitleThatBeginsWithAQuestionMark)
{
    openScenario(QStringLiteral("?"));
    save();
    ASSERT_EQ(boxes().size(), 1);
    expectBox(0, badName, "Save Error", Icon::None);
    EXPECT_TRUE(scenarioNames().isEmpty());
}

TEST_F(Save, ShowsABoxForEachRuleThatIsBrokenAndStops)
{
    openScenario(QStringLiteral("?"));
    set("SCENARIODATA", "BATTLETYPE", "1");
    set("SCENARIOINFO", "DIVISIONCNT", "1");
    markMap();
    save();
    ASSERT_EQ(boxes().size(), 3);
    expectBox(0, badName, "Save Error", Icon::None);
    expectBox(1,
              "A Bombardment scenario must have a target area.  Select Target Area in the Overview menu, "
              "then click on the map to place the area.",
              "Save Error", Icon::None);
    expectBox(2, "There must be at least one division per Force to save a scenario.", "Save Error",
              Icon::None);
    EXPECT_TRUE(scenarioNames().isEmpty());
    EXPECT_TRUE(isMapMarked());
    EXPECT_EQ(bar()->value(), 0);
    expectNothingUnderWay();
}

TEST_F(Save, SpeaksGermanInTheGermanProgram)
{
    openScenario(QStringLiteral("?"), Language::German);
    set("SCENARIOINFO", "DIVISIONCNT", "1");
    save();
    ASSERT_EQ(boxes().size(), 2);
    expectBox(0,
              "File name Invalid.  Please re-name Scenario Title, in the Overview Menu, to conform to "
              "Windows file name conventions.",
              "Fehler beim Sichern.", Icon::None);
    expectBox(1,
              "Beide Seiten müssen zumindest über einen Verband verfügen bevor Sie das Szenario sichern "
              "können.",
              "Fehler beim Sichern.", Icon::None);
}

TEST_F(Save, TakesTheTargetAreaFromTheMap)
{
    openScenario();
    set("SCENARIODATA", "BATTLETYPE", "1");
    main().placeTargetArea(0, 700);
    save();
    EXPECT_EQ(boxes().size(), 1) << "an area at x 0 is none";
    boxes().clear();
    main().placeTargetArea(500, 700);
    const QByteArray bytes = expected();
    save();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(scenarioBytesOf(), bytes);
    EXPECT_TRUE(
        bytes.contains("\r\nBLUE_TARGETBOX_X=500\r\nBLUE_TARGETBOX_Z=-700\r\nBLUE_TARGETBOXDIM=9260\r\n"
                       "RED_TARGETBOX_X=0\r\n"));
    EXPECT_EQ(main().targetArea(), TargetArea{}) << "the redraw behind it, the area not being in use";
}

TEST_F(Save, WritesTheTargetAreaToRedUnderGermanCaptions)
{
    openScenario(QStringLiteral("Convoy PQ 17"), Language::German);
    main().placeTargetArea(500, 700);
    save();
    EXPECT_TRUE(scenarioBytesOf().contains("\r\nBLUE_TARGETBOXDIM=0\r\nRED_TARGETBOX_X=500\r\n"
                                           "RED_TARGETBOX_Z=-700\r\nRED_TARGETBOX_DIM=9260\r\n"));
}

TEST_F(Save, NeverLeavesTheScenarioFolder)
{
    for (const char* title :
         {"A/B", "../escaped", "/tmp/escaped", "A\\B", "..", ".hidden", "NUL", "com1", "Con.old"}) {
        openScenario();
        QDir(gameFolder()).mkpath(QStringLiteral("Scenarios/A"));
        box("TxtTitle")->setText(QLatin1StringView(title));
        save();
        ASSERT_EQ(boxes().size(), 1) << title;
        expectBox(0, badName, "Save Error", Icon::None);
        EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("A")}) << title;
        EXPECT_TRUE(QDir(scenario(QStringLiteral("A"))).isEmpty()) << title;
        EXPECT_FALSE(QFile::exists(gameFolder() + QStringLiteral("/escaped.scn")));
        EXPECT_FALSE(QFile::exists(QStringLiteral("/tmp/escaped.scn")));
        expectNothingUnderWay();
        boxes().clear();
    }
}

TEST_F(Save, OfAnEmptyOrBlankTitleIsRefused)
{
    for (const char* title : {"", "   "}) {
        openScenario();
        box("TxtTitle")->setText(QLatin1StringView(title));
        save();
        ASSERT_EQ(boxes().size(), 1) << title;
        expectBox(0, badName, "Save Error", Icon::None);
        EXPECT_TRUE(scenarioNames().isEmpty());
        boxes().clear();
    }
}

TEST_F(Save, FailsWithoutAWordWhereTheFolderIsMissing)
{
    openScenario();
    QDir(scenarioFolder()).removeRecursively();
    save();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_FALSE(QFile::exists(scenarioFolder()));
    expectNothingUnderWay();
}

TEST_F(Save, FailsWithoutAWordOverAFolderOfThatName)
{
    openScenario();
    QDir(scenarioFolder()).mkdir(QStringLiteral("Convoy PQ 17.scn"));
    markMap();
    save();
    EXPECT_TRUE(boxes().isEmpty()) << "a folder is no file to ask about";
    EXPECT_TRUE(QFileInfo(scenario()).isDir());
    EXPECT_TRUE(isMapMarked());
    expectNothingUnderWay();
}

TEST_F(Save, FailsWithoutAWordOnAFullDiskAndKeepsTheOldFile)
{
    openScenario();
    putScenario();
    {
        const FullDisk full(1000);
        save();
    }
    EXPECT_EQ(boxes().size(), 1) << "the question alone";
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("Convoy PQ 17.scn")});
    EXPECT_EQ(scenarioBytesOf(), "old");
    expectNothingUnderWay();
}

TEST_F(Save, FailsWithoutAWordInAReadOnlyFolderAndKeepsTheOldFile)
{
    openScenario();
    putScenario();
    ::chmod(QFile::encodeName(gameFolder()).constData(), 0755);
    {
        const ReadOnlyFolder folder(scenarioFolder());
        save();
    }
    EXPECT_EQ(boxes().size(), 1) << "the question alone";
    EXPECT_EQ(scenarioBytesOf(), "old");
    expectNothingUnderWay();
}

TEST_F(Save, OfAConvoyWithoutADivisionCountFailsWithoutAWord)
{
    openScenario();
    putScenario();
    set("SCENARIODATA", "BATTLETYPE", "2");
    set("DIVISION0", "FORMATION", "Convoy");
    set("SCENARIODATA", "BLUE_FORCE_TYPE", "0");
    set("SCENARIOINFO", "DIVISIONCNT", "");
    save();
    EXPECT_EQ(boxes().size(), 1) << "the question alone";
    EXPECT_EQ(scenarioBytesOf(), "old");
    expectNothingUnderWay();
}

TEST_F(Save, WithACountBeyondAllReasonFailsWithoutAWord)
{
    openScenario();
    set("SCENARIOINFO", "DIVISIONCNT", "99999");
    save();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_TRUE(scenarioNames().isEmpty());
}

TEST_F(Save, WorksAgainAfterAFailure)
{
    openScenario();
    {
        const FullDisk full(1000);
        save();
    }
    save();
    EXPECT_EQ(scenarioBytesOf(), expected());
}

} // namespace
} // namespace torvane::testing
