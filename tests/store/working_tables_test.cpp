#include "store/working_tables.h"

#include "platform/runtime_error.h"
#include "store/data_controls.h"
#include "support/expect_error.h"
#include "support/failing_system.h"
#include "support/printers.h"
#include "support/raw_database.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <array>
#include <sys/inotify.h>
#include <unistd.h>

namespace torvane {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

const QStringList allTables{"ShipPositions", "OverviewData",  "ScenarioTemp", "ForceAData",
                            "ForceBData",    "ScenarioData",  "ForceTemp",    "SaveData",
                            "FilterBase",    "ShipClassData", "EditShipData"};
const QStringList lineTables{"ScenarioData", "OverviewData", "ScenarioTemp",
                             "ForceAData",   "ForceBData",   "SaveData"};
const QStringList emptied{"ScenarioData", "OverviewData",  "ScenarioTemp", "ForceAData",
                          "ForceBData",   "ShipPositions", "SaveData",     "EditShipData"};
const QStringList untouched{"ForceTemp", "FilterBase", "ShipClassData"};

class WorkingTables : public ::testing::Test
{
protected:
    QString path() const { return m_folder.filePath("ScenarioData.mdb"); }
    QString folder() const { return m_folder.path(); }

    QStringList names() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    void put(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    void fillTables() const
    {
        const testing::RawDatabase raw(path());
        for (const QString& table : allTables) {
            raw.run(QStringLiteral("INSERT INTO \"%1\" (\"Data\") VALUES ('one'), ('two')").arg(table));
        }
    }

    int rows(const QString& table) const
    {
        const testing::RawDatabase raw(path());
        return raw.run(QStringLiteral("SELECT count(*) FROM \"%1\"").arg(table)).value(0).toInt();
    }

    template <typename Call, typename Matcher>
    void expectError(RuntimeError::Number number, Call call, const Matcher& text) const
    {
        testing::expectError(number, call, AllOf(HasSubstr(path().toStdString()), text));
    }

private:
    QTemporaryDir m_folder;
};

/// Sees every file that is made in a folder while it lives.
class NewFiles
{
public:
    explicit NewFiles(const QString& folder) : m_handle(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(::inotify_add_watch(m_handle, QFile::encodeName(folder).constData(), IN_CREATE), 0);
    }
    ~NewFiles() { ::close(m_handle); }
    NewFiles(const NewFiles&) = delete;
    NewFiles& operator=(const NewFiles&) = delete;

    bool any() const
    {
        std::array<char, 4096> events{};
        return ::read(m_handle, events.data(), events.size()) > 0;
    }

private:
    int m_handle;
};

class CreateWorkingTables : public WorkingTables
{
};
class EmptyDBase : public WorkingTables
{
};
class MakeWorkingTables : public WorkingTables
{
protected:
    static int run(const QStringList& arguments, QByteArray& errors)
    {
        QProcess process;
        process.start(QStringLiteral(MAKE_WORKING_TABLES), arguments);
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        errors = process.readAllStandardError();
        return process.exitCode();
    }
};

TEST(TheWorkingTables, AreElevenInTheOrderOfStartUp)
{
    const QStringList actual(workingTables.begin(), workingTables.end());
    EXPECT_EQ(actual, allTables);
}

TEST_F(CreateWorkingTables, MakesTheElevenTablesAndNoOther)
{
    createWorkingTables(path());
    QVariantList expected(allTables.begin(), allTables.end());
    const testing::RawDatabase raw(path());
    EXPECT_EQ(raw.run("SELECT name FROM sqlite_master ORDER BY rowid"), expected);
}

TEST_F(CreateWorkingTables, EveryTableIsEmpty)
{
    createWorkingTables(path());
    for (const QString& table : allTables) {
        EXPECT_EQ(rows(table), 0) << table.toStdString();
    }
}

TEST_F(CreateWorkingTables, TheTablesOfLinesHaveVariableAndDataAsText)
{
    createWorkingTables(path());
    const testing::RawDatabase raw(path());
    for (const QString& table : lineTables) {
        const QString info =
            QStringLiteral("SELECT name || ' ' || type FROM pragma_table_info('%1')").arg(table);
        EXPECT_EQ(raw.run(info), (QVariantList{"Variable TEXT", "Data TEXT"})) << table.toStdString();
    }
}

TEST_F(CreateWorkingTables, EveryOtherTableHasATextColumnData)
{
    createWorkingTables(path());
    const testing::RawDatabase raw(path());
    for (const QString& table : allTables) {
        const QString type =
            QStringLiteral("SELECT type FROM pragma_table_info('%1') WHERE name = 'Data'").arg(table);
        EXPECT_EQ(raw.run(type), QVariantList{"TEXT"}) << table.toStdString();
    }
}

TEST_F(CreateWorkingTables, ShipPositionsHasColumnsForPositions)
{
    createWorkingTables(path());
    EXPECT_EQ(testing::RawDatabase(path()).run(
                  "SELECT name FROM pragma_table_info('ShipPositions') WHERE type = 'REAL'"),
              (QVariantList{"XPosition", "ZPosition"}));
}

TEST_F(CreateWorkingTables, EveryDataControlOfTheFileFindsItsTable)
{
    createWorkingTables(path());
    DataControls controls;
    controls.bind(folder());
    int bound = 0;
    for (const DataControl& control : controls.controls()) {
        if (control.databaseFile == scenarioDataFile) {
            EXPECT_TRUE(Database(control.databaseName, Database::Access::ReadOnly).hasTable(control.name));
            ++bound;
        }
    }
    EXPECT_EQ(bound, 11);
}

TEST_F(CreateWorkingTables, LeavesNothingBesideTheFile)
{
    createWorkingTables(path());
    EXPECT_EQ(names(), QStringList{"ScenarioData.mdb"});
}

TEST_F(CreateWorkingTables, ReplacesAFileWithRows)
{
    createWorkingTables(path());
    fillTables();
    createWorkingTables(path());
    for (const QString& table : allTables) {
        EXPECT_EQ(rows(table), 0) << table.toStdString();
    }
    EXPECT_EQ(names(), QStringList{"ScenarioData.mdb"});
}

TEST_F(CreateWorkingTables, ReplacesAFileThatIsNoDatabase)
{
    put("ScenarioData.mdb", QByteArray(20000, 'x'));
    createWorkingTables(path());
    EXPECT_EQ(rows("SaveData"), 0);
}

TEST_F(CreateWorkingTables, TakesAwayTheJournalsOfTheOldFile)
{
    put("ScenarioData.mdb", "old");
    put("ScenarioData.mdb-journal", "old");
    put("ScenarioData.mdb-wal", "old");
    put("ScenarioData.mdb-shm", "old");
    createWorkingTables(path());
    EXPECT_EQ(names(), QStringList{"ScenarioData.mdb"});
}

TEST_F(CreateWorkingTables, AFolderInPlaceOfTheFileIsAnErrorAndStays)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    expectError(
        RuntimeError::PathAccessError, [this] { createWorkingTables(path()); },
        HasSubstr("ScenarioData.mdb"));
    EXPECT_TRUE(QFileInfo(path()).isDir());
}

TEST_F(CreateWorkingTables, WithoutPermissionIsAnErrorAndTheOldFileStays)
{
    put("ScenarioData.mdb", "old");
    {
        const testing::ReadOnlyFolder readOnly(folder());
        expectError(
            RuntimeError::PermissionDenied, [this] { createWorkingTables(path()); }, HasSubstr(""));
    }
    EXPECT_EQ(QFile(path()).size(), 3);
    EXPECT_EQ(names(), QStringList{"ScenarioData.mdb"});
}

TEST_F(EmptyDBase, EmptiesEightTablesAndLeavesThree)
{
    createWorkingTables(path());
    fillTables();
    emptyDBase(path());
    for (const QString& table : emptied) {
        EXPECT_EQ(rows(table), 0) << table.toStdString();
    }
    for (const QString& table : untouched) {
        EXPECT_EQ(rows(table), 2) << table.toStdString();
    }
    EXPECT_EQ(emptied.size() + untouched.size(), allTables.size());
}

TEST_F(EmptyDBase, EmptyTablesStayEmpty)
{
    createWorkingTables(path());
    EXPECT_NO_THROW(emptyDBase(path()));
    EXPECT_EQ(rows("ScenarioData"), 0);
}

TEST_F(EmptyDBase, GoesThroughTheTablesInItsOrder)
{
    createWorkingTables(path());
    fillTables();
    {
        const testing::RawDatabase raw(path());
        for (const QString& table : emptied) {
            raw.run(QStringLiteral("CREATE TRIGGER \"T%1\" AFTER DELETE ON \"%1\" BEGIN "
                                   "INSERT INTO ForceTemp (Data) SELECT '%1' WHERE NOT EXISTS "
                                   "(SELECT 1 FROM ForceTemp WHERE Data = '%1'); END")
                        .arg(table));
        }
    }
    emptyDBase(path());
    QVariantList order(emptied.begin(), emptied.end());
    EXPECT_EQ(testing::RawDatabase(path()).run("SELECT Data FROM ForceTemp ORDER BY rowid").mid(2), order);
}

TEST_F(EmptyDBase, LeavesNothingBesideTheFile)
{
    createWorkingTables(path());
    fillTables();
    emptyDBase(path());
    EXPECT_EQ(names(), QStringList{"ScenarioData.mdb"});
}

TEST_F(EmptyDBase, MakesNoJournalOnDiskWhileItRuns)
{
    createWorkingTables(path());
    fillTables();
    const NewFiles watch(folder());
    emptyDBase(path());
    EXPECT_FALSE(watch.any());
    fillTables();
    EXPECT_TRUE(watch.any()) << "an ordinary change makes a journal; the watch must see it";
}

TEST_F(EmptyDBase, IfOneTableFailsNoneIsEmptied)
{
    createWorkingTables(path());
    fillTables();
    testing::RawDatabase(path()).run("CREATE TRIGGER Refuse BEFORE DELETE ON EditShipData BEGIN "
                                     "SELECT RAISE(ABORT, 'refused'); END");
    expectError(
        RuntimeError::DatabaseFailure, [this] { emptyDBase(path()); },
        AllOf(HasSubstr("table EditShipData"), HasSubstr("refused")));
    for (const QString& table : allTables) {
        EXPECT_EQ(rows(table), 2) << table.toStdString();
    }
}

TEST_F(EmptyDBase, AMissingTableIsAnErrorThatNamesItAndNoneIsEmptied)
{
    createWorkingTables(path());
    fillTables();
    testing::RawDatabase(path()).run("DROP TABLE SaveData");
    expectError(
        RuntimeError::DatabaseFailure, [this] { emptyDBase(path()); }, HasSubstr("table SaveData"));
    EXPECT_EQ(rows("ScenarioData"), 2);
}

TEST_F(EmptyDBase, AMissingFileIsAnErrorAndIsNotMade)
{
    expectError(
        RuntimeError::FileNotFound, [this] { emptyDBase(path()); }, HasSubstr("is missing"));
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(EmptyDBase, AFileInUseIsAnErrorAndKeepsItsRows)
{
    createWorkingTables(path());
    fillTables();
    {
        const testing::RawDatabase raw(path());
        raw.run("BEGIN IMMEDIATE");
        expectError(
            RuntimeError::DatabaseFailure, [this] { emptyDBase(path()); },
            HasSubstr("in use by another program"));
    }
    EXPECT_EQ(rows("ScenarioData"), 2);
}

TEST_F(MakeWorkingTables, MakesTheFileAlsoASecondTime)
{
    QByteArray errors;
    EXPECT_EQ(run({path()}, errors), 0) << errors.toStdString();
    EXPECT_EQ(rows("EditShipData"), 0);
    fillTables();
    EXPECT_EQ(run({path()}, errors), 0) << errors.toStdString();
    EXPECT_EQ(rows("EditShipData"), 0);
    EXPECT_EQ(errors, QByteArray());
}

TEST_F(MakeWorkingTables, SaysWhatIsWrongAndFails)
{
    QByteArray errors;
    EXPECT_EQ(run({folder() + "/none/ScenarioData.mdb"}, errors), 1);
    EXPECT_THAT(errors.toStdString(), HasSubstr("/none/ScenarioData.mdb: No such file or directory"));
}

TEST_F(MakeWorkingTables, TakesOneArgument)
{
    QByteArray errors;
    EXPECT_EQ(run({}, errors), 1);
    EXPECT_THAT(errors.toStdString(), HasSubstr("usage"));
    EXPECT_EQ(run({path(), path()}, errors), 1);
    EXPECT_EQ(names(), QStringList{});
}

} // namespace
} // namespace torvane
