#include "launcher/game_folder.h"

#include "platform/text_files.h"
#include "support/expect_error.h"
#include "support/failing_system.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

class GameFolderOfAUser : public ::testing::Test
{
protected:
    GameFolderOfAUser()
    {
        // A test without privileges must still get at the package.
        ::chmod(QFile::encodeName(m_folder.path()).constData(), 0755);
        // The system's files are read-only for a user.
        deliver("TorvaneScenarioEditor", "german 1");
        deliver("TorvaneScenarioEditor-English", "english 1");
        deliver("ScenarioEditor/ShipDatabase.mdb", "ships 1");
        deliver("ScenarioEditor/SE_README.HLP", "help 1");
        deliver("Scenarios/River Plate.scn", "plate 1");
    }
    void deliver(const char* name, const QByteArray& bytes) const { put(package(), name, bytes, 0444); }
    void change(const char* name, const QByteArray& bytes) const { put(folder(), name, bytes, 0644); }
    bool refresh() const { return refreshGameFolder(package(), folder()); }
    QByteArray bytes(const char* name) const
    {
        const QString path = folder() + u'/' + QLatin1StringView(name);
        return QFile::exists(path) ? readWholeFile(path) : QByteArray("none");
    }
    bool remove(const char* name) const { return QFile::remove(folder() + u'/' + QLatin1StringView(name)); }
    QString package() const { return m_folder.filePath(QStringLiteral("package")); }
    QString folder() const { return m_folder.filePath(QStringLiteral("My documents/Torvane")); }

private:
    static void put(const QString& root, const char* name, const QByteArray& bytes, mode_t rights)
    {
        const QString path = root + u'/' + QLatin1StringView(name);
        QDir().mkpath(QFileInfo(path).path());
        writeWholeFile(path, bytes);
        ::chmod(QFile::encodeName(path).constData(), rights);
    }

    QTemporaryDir m_folder;
};

TEST_F(GameFolderOfAUser, IsMadeAtTheFirstStartAndNewOnlyThen)
{
    EXPECT_TRUE(refresh());
    EXPECT_EQ(bytes("TorvaneScenarioEditor"), "german 1");
    EXPECT_EQ(bytes("ScenarioEditor/ShipDatabase.mdb"), "ships 1");
    EXPECT_EQ(bytes("Scenarios/River Plate.scn"), "plate 1");
    EXPECT_FALSE(refresh());
}

TEST_F(GameFolderOfAUser, HasProgramsThatRunAndFilesThatCanBeWritten)
{
    refresh();
    const auto rights = [this](const char* name) {
        return QFile::permissions(folder() + u'/' + QLatin1StringView(name));
    };
    EXPECT_TRUE(rights("TorvaneScenarioEditor") & QFile::ExeOwner);
    EXPECT_TRUE(rights("TorvaneScenarioEditor-English") & QFile::ExeOwner);
    EXPECT_FALSE(rights("Scenarios/River Plate.scn") & QFile::ExeOwner);
    EXPECT_TRUE(rights("Scenarios/River Plate.scn") & QFile::WriteOwner);
}

TEST_F(GameFolderOfAUser, GivesAProgramItsRightsWhereAKilledStartCouldNot)
{
    refresh();
    const QString program = folder() + QStringLiteral("/TorvaneScenarioEditor");
    ASSERT_TRUE(QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner));
    refresh();
    EXPECT_TRUE(QFile::permissions(program) & QFile::ExeOwner);
}

TEST_F(GameFolderOfAUser, TakesANewVersionOfWhatTheUserLeftAlone)
{
    refresh();
    deliver("TorvaneScenarioEditor", "german 2");
    deliver("ScenarioEditor/ShipDatabase.mdb", "ships 2");
    deliver("Scenarios/River Plate.scn", "plate 2");
    deliver("Scenarios/North Cape.scn", "cape 2");
    EXPECT_FALSE(refresh());
    EXPECT_EQ(bytes("TorvaneScenarioEditor"), "german 2");
    EXPECT_EQ(bytes("ScenarioEditor/ShipDatabase.mdb"), "ships 2");
    EXPECT_EQ(bytes("Scenarios/River Plate.scn"), "plate 2");
    EXPECT_EQ(bytes("Scenarios/North Cape.scn"), "cape 2");
}

TEST_F(GameFolderOfAUser, KeepsACatalogueAndAScenarioThatTheUserChanged)
{
    refresh();
    change("ScenarioEditor/ShipDatabase.mdb", "my ships");
    change("Scenarios/River Plate.scn", "my plate");
    change("Scenarios/Mine.scn", "mine");
    for (const char* version : {"2", "3"}) {
        deliver("ScenarioEditor/ShipDatabase.mdb", QByteArray("ships ") + version);
        deliver("Scenarios/River Plate.scn", QByteArray("plate ") + version);
        refresh();
        EXPECT_EQ(bytes("ScenarioEditor/ShipDatabase.mdb"), "my ships");
        EXPECT_EQ(bytes("Scenarios/River Plate.scn"), "my plate");
        EXPECT_EQ(bytes("Scenarios/Mine.scn"), "mine");
    }
}

TEST_F(GameFolderOfAUser, NeverGoesOverAScenarioThatWasThereBefore)
{
    change("Scenarios/River Plate.scn", "mine of old");
    EXPECT_TRUE(refresh());
    EXPECT_EQ(bytes("Scenarios/River Plate.scn"), "mine of old");
}

TEST_F(GameFolderOfAUser, LeavesADeletedScenarioDeletedAndBringsADatabaseBack)
{
    refresh();
    ASSERT_TRUE(remove("Scenarios/River Plate.scn"));
    ASSERT_TRUE(remove("ScenarioEditor/ShipDatabase.mdb"));
    ASSERT_TRUE(remove("TorvaneScenarioEditor"));
    refresh();
    EXPECT_EQ(bytes("Scenarios/River Plate.scn"), "none");
    EXPECT_EQ(bytes("ScenarioEditor/ShipDatabase.mdb"), "ships 1");
    EXPECT_EQ(bytes("TorvaneScenarioEditor"), "german 1");
}

TEST_F(GameFolderOfAUser, AlwaysHasTheProgramsOfThePackage)
{
    refresh();
    change("TorvaneScenarioEditor", "broken");
    refresh();
    EXPECT_EQ(bytes("TorvaneScenarioEditor"), "german 1");
}

TEST_F(GameFolderOfAUser, ThatCanNotBeWrittenIsNamed)
{
    ASSERT_TRUE(QDir().mkpath(folder()));
    const ReadOnlyFolder locked(folder());
    try {
        refresh();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_THAT(error.what(), ::testing::HasSubstr("My documents/Torvane/"));
    }
}

TEST_F(GameFolderOfAUser, OfAPackageWithoutFilesIsAnError)
{
    EXPECT_THROW(refreshGameFolder(package() + QStringLiteral("/nowhere"), folder()), RuntimeError);
    EXPECT_FALSE(QFile::exists(folder()));
}

} // namespace
} // namespace torvane::testing
