#include "e2e/first_scenario_road.h"
#include "e2e/kept_scenario.h"

namespace torvane::testing {
namespace {

class FirstScenario : public ::testing::TestWithParam<Language>
{
};

INSTANTIATE_TEST_SUITE_P(InBothLanguages, FirstScenario,
                         ::testing::Values(Language::German, Language::English),
                         [](const auto& language) { return languageWord(language.param); });

TEST_P(FirstScenario, GoesFromNewToAFileForTheGame)
{
    const Desktop desktop;
    const GameFolder folder;
    EditorRun run(desktop, folder, GetParam());
    run.start();
    const FirstScenarioRoad road(run);
    road.walk();
    expectKept(road.savedFile(), "first", GetParam());
    run.leave();
}

// The programs write the target area under the keys of the side whose word they find, which only the English
// one does for Force A; nothing else of a language reaches the file.
TEST(FirstScenarioFiles, DifferBetweenTheLanguagesInTheKeysOfTheTargetAreaAlone)
{
    const QStringList german = linesOf(keptScenario("first", Language::German));
    const QStringList english = linesOf(keptScenario("first", Language::English));
    ASSERT_EQ(german.size(), english.size());
    QStringList differing;
    for (qsizetype i = 0; i < german.size(); ++i) {
        if (german.at(i) != english.at(i)) {
            differing.append(german.at(i).section(QLatin1Char('='), 0, 0));
            EXPECT_EQ(differing.last(), english.at(i).section(QLatin1Char('='), 0, 0));
        }
    }
    EXPECT_EQ(differing,
              QStringList({QStringLiteral("BLUE_TARGETBOX_X"), QStringLiteral("BLUE_TARGETBOX_Z"),
                           QStringLiteral("BLUE_TARGETBOXDIM"), QStringLiteral("RED_TARGETBOX_X"),
                           QStringLiteral("RED_TARGETBOX_Z"), QStringLiteral("RED_TARGETBOX_DIM")}));
}

} // namespace
} // namespace torvane::testing
