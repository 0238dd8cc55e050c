#include "shell/lifecycle.h"

#include "platform/number_text.h"
#include "store/profile_keys.h"
#include "store/side.h"
#include "store/target_area.h"
#include "store/units.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

TEST(Paths, WorkAndScenarioFoldersLieBelowTheProgram)
{
    const Paths paths = pathsBelow(QStringLiteral("/games/torvane"));
    EXPECT_EQ(paths.basePath, QStringLiteral("/games/torvane"));
    EXPECT_EQ(paths.workDir, QStringLiteral("/games/torvane/ScenarioEditor/"));
    EXPECT_EQ(paths.scenarioDir, QStringLiteral("/games/torvane/Scenarios/"));
}

TEST(Paths, TheGameHasAGermanAndAnEnglishProgram)
{
    EXPECT_EQ(gameProgram(QStringLiteral("/g"), Language::German), QStringLiteral("/g/Torvane Deutsch.exe"));
    EXPECT_EQ(gameProgram(QStringLiteral("/g"), Language::English), QStringLiteral("/g/Torvane.exe"));
}

TEST(Constants, ConversionsAreSinglePrecision)
{
    EXPECT_EQ(static_cast<double>(metresPerYard), 0.91439998149871826171875);
    EXPECT_EQ(yardsPerMetre, 1.093613F);
    EXPECT_EQ(initialTargetDim, 9260);
}

TEST(SpacingTable, HoldsTheEightLegalSpacingsInYardsAndMetres)
{
    const std::array<std::array<const char*, 2>, 8> expected{{{"500", "457.2"},
                                                              {"600", "548.64"},
                                                              {"700", "640.08"},
                                                              {"800", "731.52"},
                                                              {"900", "822.96"},
                                                              {"1000", "914.4"},
                                                              {"1500", "1371.6"},
                                                              {"2000", "1828.8"}}};
    ASSERT_EQ(spacingTable.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(QString(spacingTable[i].yards), QLatin1StringView(expected[i][0]));
        EXPECT_EQ(QString(spacingTable[i].metres), QLatin1StringView(expected[i][1]));
    }
}

TEST(SpacingTable, MetresAreTheYardsTimesTheSinglePrecisionFactorInSevenDigits)
{
    for (const Spacing& spacing : spacingTable) {
        const auto yards = static_cast<float>(numberValue(QString(spacing.yards)));
        EXPECT_EQ(textOf(yards * metresPerYard), QString(spacing.metres));
    }
}

TEST(KeyTable, HasNineteenNamesAndAnEmptySlot)
{
    const std::array<const char*, 20> expected{"BLUE_TARGETBOX_X",
                                               "BLUE_TARGETBOX_Z",
                                               "BLUE_TARGETBOXDIM",
                                               "RED_TARGETBOX_X",
                                               "RED_TARGETBOX_Z",
                                               "BATTLETYPE",
                                               "TYPE",
                                               "NAME",
                                               "CLASS",
                                               "ZPOSITION",
                                               "DIVISIONNAME",
                                               "SIDE",
                                               "FORMATION",
                                               "FORMATIONHEADING",
                                               "FORMATIONSPACING",
                                               "SPEED",
                                               "SHIPCNT",
                                               "FLAGSHIPINDEX",
                                               "XPOSITION",
                                               ""};
    for (std::size_t slot = 0; slot < expected.size(); ++slot) {
        EXPECT_EQ(keyTable.at(slot).toString(), QLatin1StringView(expected[slot])) << "slot " << slot;
    }
}

TEST(About, HasTheLinesOfTheVersionInBothLanguages)
{
    const QString date = QStringLiteral("9.8.99");
    EXPECT_EQ(aboutLines(Language::English, date).join(QLatin1Char('|')),
              QStringLiteral("|Torvane|Scenario Editor|Version 1.02||Quillmark|9.8.99||File version 64|3"));
    EXPECT_EQ(aboutLines(Language::German, date).join(QLatin1Char('|')),
              QStringLiteral("|Torvane|Szenario-Editor|Version 1.02||Quillmark|9.8.99||File version 64|3"));
    EXPECT_EQ(versionDate(), QDate(1999, 8, 9));
}

TEST(RepositionKey, IsTheSideAndTheLastCharacterOfTheTrimmedLabel)
{
    EXPECT_EQ(repositionKeyFor(forceALabel, QStringLiteral("Division 3  ")), QStringLiteral("Blue 3"));
    EXPECT_EQ(repositionKeyFor(forceBLabel, QStringLiteral("Verband 6")), QStringLiteral("Red 6"));
    EXPECT_EQ(repositionKeyFor(QStringLiteral("Streitkraft A"), QStringLiteral("1")),
              QStringLiteral("Red 1"));
    EXPECT_EQ(repositionKeyFor(forceALabel, QString()), QStringLiteral("Blue "));
}

} // namespace
} // namespace torvane
