#include "store/data_controls.h"

#include "platform/runtime_error.h"
#include "support/printers.h"

#include <QDir>
#include <QSqlDatabase>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <utility>
#include <vector>

namespace torvane {
namespace {

using ::testing::IsEmpty;

TEST(TheDataControls, AreFifteenInTheOrderOfStartUp)
{
    const std::vector<std::pair<QString, QString>> expected{
        {"gunTable", "ShipDatabase.mdb"},      {"GunsRang", "ShipDatabase.mdb"},
        {"ShipDataB", "ShipDatabase.mdb"},     {"ShipDaClass", "ShipDatabase.mdb"},
        {"ShipPositions", "ScenarioData.mdb"}, {"OverviewData", "ScenarioData.mdb"},
        {"ScenarioTemp", "ScenarioData.mdb"},  {"ForceAData", "ScenarioData.mdb"},
        {"ForceBData", "ScenarioData.mdb"},    {"ScenarioData", "ScenarioData.mdb"},
        {"ForceTemp", "ScenarioData.mdb"},     {"SaveData", "ScenarioData.mdb"},
        {"FilterBase", "ScenarioData.mdb"},    {"ShipClassData", "ScenarioData.mdb"},
        {"EditShipData", "ScenarioData.mdb"}};
    std::vector<std::pair<QString, QString>> actual;
    const DataControls controls;
    for (const DataControl& control : controls.controls()) {
        actual.emplace_back(control.name, control.databaseFile);
    }
    EXPECT_EQ(actual, expected);
}

TEST(TheDataControls, HaveNoDatabaseBeforeStartUpGivesThemOne)
{
    const DataControls controls;
    for (const DataControl& control : controls.controls()) {
        EXPECT_EQ(control.databaseName, QString()) << control.name.data();
    }
}

TEST(TheDataControls, AreGivenTheFullPathOfTheirFile)
{
    DataControls controls;
    controls.bind("/game/ScenarioEditor/");
    ASSERT_EQ(controls.controls().size(), 15U);
    for (std::size_t i = 0; i < 15; ++i) {
        const QString expected =
            i < 4 ? "/game/ScenarioEditor/ShipDatabase.mdb" : "/game/ScenarioEditor/ScenarioData.mdb";
        EXPECT_EQ(controls.controls()[i].databaseName, expected) << i;
    }
}

TEST(TheDataControls, BindingOpensNothingAndMakesNothing)
{
    const QTemporaryDir folder;
    DataControls controls;
    controls.bind(folder.path());
    EXPECT_EQ(controls.control(QLatin1StringView("SaveData")).databaseName,
              folder.filePath("ScenarioData.mdb"));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_THAT(QSqlDatabase::connectionNames(), IsEmpty());
}

TEST(TheDataControls, AreFoundByTheirNames)
{
    const DataControls controls;
    EXPECT_EQ(controls.control(QLatin1StringView("ShipDaClass")).name, QLatin1StringView("ShipDaClass"));
    EXPECT_THROW(controls.control(QLatin1StringView("ShipDbClass")), RuntimeError);
}

} // namespace
} // namespace torvane
