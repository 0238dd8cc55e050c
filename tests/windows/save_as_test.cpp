#include "windows/save_fixture.h"

#include <vector>

namespace torvane::testing {
namespace {

using Answer = MessageBox::Answer;
using Icon = MessageBox::Icon;
using SaveAs = SavedScenarios;

constexpr const char* failed = "An Error occured when the file was saved.";

TEST_F(SaveAs, AsksForANameInTheScenarioFolder)
{
    openScenario();
    saveAs(scenario(QStringLiteral("chosen.scn")));
    ASSERT_EQ(script.fileBoxes.requests.size(), 1);
    const FileRequest& request = script.fileBoxes.requests.first();
    EXPECT_EQ(request.folder, scenarioFolder());
    EXPECT_EQ(request.filter, QStringLiteral("Scenario Files(*.scn)|*.scn"));
    EXPECT_EQ(request.defaultSuffix, QString());
    EXPECT_EQ(request.fileName, QString());
}

TEST_F(SaveAs, WritesTheChosenFileAndSaysSo)
{
    openScenario();
    markMap();
    const QByteArray before = profile();
    bool hourglass = false;
    script.messageBoxes.onShow = [&] { hourglass = isHourglass(); };
    saveAs(scenario(QStringLiteral("chosen.scn")));
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("chosen.scn")});
    EXPECT_EQ(scenarioBytesOf(QStringLiteral("chosen.scn")), expected());
    ASSERT_EQ(boxes().size(), 1);
    expectBox(0, "File saved successfully!", "File Saved", Icon::Information);
    EXPECT_TRUE(hourglass) << "the pointer goes back behind the box";
    EXPECT_FALSE(isMapMarked());
    EXPECT_EQ(profile(), before);
    expectNothingUnderWay();
}

TEST_F(SaveAs, SpeaksGermanInTheGermanProgram)
{
    openScenario(QStringLiteral("Convoy PQ 17"), Language::German);
    putScenario();
    script.messageBoxes.answers = {Answer::Yes};
    saveAs(scenario());
    ASSERT_EQ(boxes().size(), 2);
    expectQuestion(
        0, "Eine Datei mit diesem Namen existiert bereits. Wollen Sie die existierende Datei ersetzen?",
        "Warnung: Dateiname!", Icon::Question, Answer::No);
    expectBox(1, "Datei erfolgreich gesichert.", "Datei gesichert.", Icon::Information);
    boxes().clear();
    saveAs(std::nullopt);
    ASSERT_EQ(boxes().size(), 1);
    expectBox(0, "Beim Sichern der Datei trat ein Fehler auf.", "Sicherungsfehler", Icon::Information);
}

TEST_F(SaveAs, TakesTheNameAsItWasTypedAndAnyFolder)
{
    openScenario();
    saveAs(scenario(QStringLiteral("no extension")));
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("no extension")});
    saveAs(gameFolder() + QStringLiteral("/elsewhere.txt"));
    EXPECT_TRUE(QFile::exists(gameFolder() + QStringLiteral("/elsewhere.txt")));
}

TEST_F(SaveAs, MovesTheHiddenBarAndShowsNothing)
{
    openScenario();
    std::vector<int> values;
    bool shown = false;
    QObject::connect(bar(), &QProgressBar::valueChanged, &main(), [&](int value) {
        values.push_back(value);
        shown = shown || panel()->isVisible() || bar()->isVisible();
    });
    saveAs(scenario(QStringLiteral("chosen.scn")));
    EXPECT_EQ(values.size(), 278U);
    EXPECT_EQ(bar()->value(), 2780);
    EXPECT_FALSE(shown);
}

TEST_F(SaveAs, NeverMovesTheBarBeyondItsEnd)
{
    openScenario();
    for (int i = 0; i < 4; ++i) {
        saveAs(scenario(QStringLiteral("%1.scn").arg(i)));
    }
    EXPECT_EQ(bar()->value(), 10000);
}

TEST_F(SaveAs, ShowsAFailureWhenItIsCancelled)
{
    openScenario();
    markMap();
    bool hourglass = true;
    script.messageBoxes.onShow = [&] { hourglass = isHourglass(); };
    saveAs(std::nullopt);
    ASSERT_EQ(boxes().size(), 1);
    expectBox(0, failed, "Save Error", Icon::Information);
    EXPECT_FALSE(hourglass);
    EXPECT_TRUE(scenarioNames().isEmpty());
    EXPECT_TRUE(isMapMarked());
    expectNothingUnderWay();
}

TEST_F(SaveAs, LeavesAnExistingFileUnlessTheAnswerIsYes)
{
    openScenario();
    putScenario();
    saveAs(scenario());
    ASSERT_EQ(boxes().size(), 1) << "the default answer is No, and nothing more is said";
    expectQuestion(0, "This file already exists.  Do you wish to save over it?", "Filename Warning!",
                   Icon::Question, Answer::No);
    EXPECT_EQ(scenarioBytesOf(), "old");
    expectNothingUnderWay();
}

TEST_F(SaveAs, ReplacesAnExistingFileOnYes)
{
    openScenario();
    putScenario();
    script.messageBoxes.answers = {Answer::Yes};
    saveAs(scenario());
    EXPECT_EQ(boxes().size(), 2);
    EXPECT_EQ(scenarioBytesOf(), expected());
}

TEST_F(SaveAs, WritesAScenarioThatSaveRefuses)
{
    openScenario(QStringLiteral("?"));
    set("SCENARIODATA", "BATTLETYPE", "1");
    set("SCENARIOINFO", "DIVISIONCNT", "0");
    saveAs(scenario(QStringLiteral("chosen.scn")));
    ASSERT_EQ(boxes().size(), 1);
    expectBox(0, "File saved successfully!", "File Saved", Icon::Information);
    EXPECT_EQ(scenarioBytesOf(QStringLiteral("chosen.scn")), expected());
}

TEST_F(SaveAs, FailsOverAReadOnlyFile)
{
    openScenario();
    putScenario();
    makeReadOnly();
    const auto expectFailure = [this] {
        script.messageBoxes.answers = {Answer::Yes};
        saveAs(scenario());
        ASSERT_EQ(boxes().size(), 2);
        expectBox(1, failed, "Save Error", Icon::Information);
        EXPECT_EQ(scenarioBytesOf(), "old");
        EXPECT_FALSE(ownersRights() & QFile::WriteOwner);
        boxes().clear();
    };
    expectFailure(); // whoever runs the test, also if the system would let him
    const Unprivileged user;
    expectFailure();
}

TEST_F(SaveAs, WithoutADivisionCountFailsAndKeepsTheOldFile)
{
    openScenario();
    putScenario();
    set("SCENARIOINFO", "DIVISIONCNT", "");
    script.messageBoxes.answers = {Answer::Yes};
    saveAs(scenario());
    ASSERT_EQ(boxes().size(), 2);
    expectBox(1, failed, "Save Error", Icon::Information);
    EXPECT_EQ(scenarioBytesOf(), "old");
    expectNothingUnderWay();
}

TEST_F(SaveAs, FailsOverAFolderAndInAMissingOne)
{
    openScenario();
    QDir(scenarioFolder()).mkdir(QStringLiteral("folder.scn"));
    for (const char* name : {"folder.scn", "gone/chosen.scn"}) {
        saveAs(scenario(QLatin1StringView(name)));
        ASSERT_EQ(boxes().size(), 1) << name;
        expectBox(0, failed, "Save Error", Icon::Information);
        boxes().clear();
    }
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("folder.scn")});
}

TEST_F(SaveAs, FailsOnAFullDiskAndKeepsTheOldFile)
{
    openScenario();
    putScenario();
    script.messageBoxes.answers = {Answer::Yes};
    {
        const FullDisk full(1000);
        saveAs(scenario());
    }
    ASSERT_EQ(boxes().size(), 2);
    expectBox(1, failed, "Save Error", Icon::Information);
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("Convoy PQ 17.scn")});
    EXPECT_EQ(scenarioBytesOf(), "old");
    expectNothingUnderWay();
}

TEST_F(SaveAs, NeverReplacesTheScenarioUnderEdit)
{
    openScenario();
    const QByteArray before = profile();
    script.messageBoxes.answers = {Answer::Yes};
    saveAs(workFile(QStringLiteral("iniTemp.bmm")));
    ASSERT_EQ(boxes().size(), 2);
    expectBox(1, failed, "Save Error", Icon::Information);
    EXPECT_EQ(profile(), before);
}

} // namespace
} // namespace torvane::testing
