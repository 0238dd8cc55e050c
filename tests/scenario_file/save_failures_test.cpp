#include "platform/runtime_error.h"
#include "scenario_file/save_scenario.h"
#include "scenario_file/stored_profile.h"
#include "support/failing_system.h"

#include <optional>

namespace torvane::testing {
namespace {

class FailingSave : public StoredProfile
{
protected:
    FailingSave()
    {
        set("SCENARIOINFO", "DIVISIONCNT", "1");
        set("DIVISION0", "DIVISIONNAME", "First");
        set("DIVISION0SHIP0", "NAME", "Cossack");
        writeWholeFile(scenario("A.scn"), "old");
    }
    /// The number of the error that the save ends with.
    std::optional<RuntimeError::Number> save(const QString& path) const
    {
        try {
            saveINIfile(path, profile, {}, u"Force A");
            return std::nullopt;
        } catch (const RuntimeError& error) {
            return error.number();
        }
    }
    void expectTheOldFileAlone() const
    {
        EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("A.scn")});
        EXPECT_EQ(readWholeFile(scenario("A.scn")), "old");
    }
};

TEST_F(FailingSave, WithoutADivisionCountWritesNothing)
{
    set("SCENARIOINFO", "DIVISIONCNT", "");
    EXPECT_EQ(save(scenario("A.scn")), RuntimeError::InvalidProcedureCall);
    expectTheOldFileAlone();
    set("SCENARIOINFO", "DIVISIONCNT", "INVALID");
    EXPECT_EQ(save(scenario("A.scn")), RuntimeError::InvalidProcedureCall);
    store("");
    EXPECT_EQ(save(scenario("B.scn")), RuntimeError::InvalidProcedureCall);
    expectTheOldFileAlone();
}

TEST_F(FailingSave, OfAPositionBeyondAllRangesWritesNothing)
{
    for (const char* key : {"XPOSITION", "ZPOSITION"}) {
        set("DIVISION0SHIP0", key, "1E999");
        EXPECT_EQ(save(scenario("A.scn")), RuntimeError::Overflow) << key;
        set("DIVISION0SHIP0", key, "1");
    }
    expectTheOldFileAlone();
}

TEST_F(FailingSave, OnAFullDiskLeavesTheOldFile)
{
    {
        const FullDisk full(1000);
        EXPECT_TRUE(save(scenario("A.scn")).has_value());
        EXPECT_TRUE(save(scenario("B.scn")).has_value());
    }
    expectTheOldFileAlone();
}

TEST_F(FailingSave, InAReadOnlyFolderLeavesTheOldFile)
{
    {
        const ReadOnlyFolder folder(scenarioFolder());
        EXPECT_EQ(save(scenario("A.scn")), RuntimeError::PermissionDenied);
        EXPECT_EQ(save(scenario("B.scn")), RuntimeError::PermissionDenied);
    }
    expectTheOldFileAlone();
}

TEST_F(FailingSave, OverAFolderOfThatNameLeavesTheFolder)
{
    QDir(scenarioFolder()).mkdir(QStringLiteral("B.scn"));
    EXPECT_EQ(save(scenario("B.scn")), RuntimeError::PathAccessError);
    EXPECT_TRUE(QFileInfo(scenario("B.scn")).isDir());
    EXPECT_EQ(scenarioNames().size(), 2);
}

TEST_F(FailingSave, IntoAMissingFolderMakesNone)
{
    EXPECT_EQ(save(scenarioFolder() + QStringLiteral("gone/A.scn")), RuntimeError::PathNotFound);
    expectTheOldFileAlone();
}

TEST_F(FailingSave, OverTheWorkingProfileIsRefused)
{
    const QByteArray before = readWholeFile(profile.path());
    EXPECT_EQ(save(profile.path()), RuntimeError::PermissionDenied);
    EXPECT_EQ(save(scenarioFolder() + QStringLiteral("../iniTemp.bmm")), RuntimeError::PermissionDenied);
    QFile::link(profile.path(), scenario("B.scn"));
    EXPECT_EQ(save(scenario("B.scn")), RuntimeError::PermissionDenied);
    EXPECT_EQ(readWholeFile(profile.path()), before);
}

} // namespace
} // namespace torvane::testing
