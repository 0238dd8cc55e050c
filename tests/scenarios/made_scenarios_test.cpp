#include "scenario_file/validate_scenario.h"
#include "scenarios/kept_scenarios.h"
#include "scenarios/scenario_author.h"
#include "shell/main_frm.h"

#include <QDir>

namespace torvane::testing {
namespace {

/// What the editor itself does with the scenarios.
class MadeScenario : public KeptScenario
{
protected:
    ScenarioAuthor author{catalogueDatabase(), language()};
};
INSTANTIATE_TEST_SUITE_P(All, MadeScenario, everyKeptScenario(), scenarioName);

TEST_P(MadeScenario, IsWhatTheEditorMakesOfItsPlan)
{
    EXPECT_TRUE(bytesOf(author.make(plan())) == bytesOf(path()))
        << "build the target scenarios to make them anew";
}

TEST_P(MadeScenario, LoadsKeepsTheRulesAndSavesAgainToTheSameBytes)
{
    author.load(path());
    EXPECT_THAT(validateScenario(author.editor().workingProfile(), author.editor().mainFrm().targetArea()),
                ::testing::IsEmpty());
    EXPECT_TRUE(bytesOf(author.save()) == bytesOf(path()));
}

// The game folder holds both, so an author meets files that a program of the other language has made.
TEST_P(MadeScenario, LoadsInTheProgramOfTheOtherLanguageToo)
{
    const Language other = language() == Language::German ? Language::English : Language::German;
    ScenarioAuthor reader(catalogueDatabase(), other);
    reader.load(path());
    EXPECT_THAT(validateScenario(reader.editor().workingProfile(), reader.editor().mainFrm().targetArea()),
                ::testing::IsEmpty());
    const TargetArea& target = reader.editor().mainFrm().targetArea();
    const Yards planned = plan().target.value_or(Yards{});
    EXPECT_EQ((Yards{target.x, target.z}), planned);
}

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList({QStringLiteral("*.scn")}, QDir::Files, QDir::Name);
}

TEST(ScenarioFiles, AreThoseOfThePlansAndNoOthers)
{
    for (const Language language : {Language::English, Language::German}) {
        QStringList planned;
        for (const ScenarioPlan& plan : plans()) {
            planned.append(plan.title.in(language) + scenarioFileSuffix);
        }
        EXPECT_THAT(namesIn(languageFolder(language)), ::testing::UnorderedElementsAreArray(planned));
    }
}

TEST(ScenarioFiles, LieSideBySideInTheGameFolder)
{
    const QStringList all =
        namesIn(languageFolder(Language::English)) + namesIn(languageFolder(Language::German));
    EXPECT_EQ(all.size(), 2 * static_cast<qsizetype>(plans().size()));
    QStringList folded;
    for (const QString& name : all) {
        folded.append(name.toCaseFolded());
    }
    EXPECT_EQ(folded.removeDuplicates(), 0) << "a title that both languages share";
    const QStringList staged = namesIn(QStringLiteral(STAGED_GAME "/Scenarios"));
    for (const QString& name : all) {
        EXPECT_TRUE(staged.contains(name)) << name.toStdString();
    }
}

} // namespace
} // namespace torvane::testing
