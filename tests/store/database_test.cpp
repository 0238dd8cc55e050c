#include "platform/runtime_error.h"
#include "store/data_controls.h"
#include "support/expect_error.h"
#include "support/failing_system.h"
#include "support/printers.h"
#include "support/raw_database.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlError>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// Keeps Qt's warnings while it lives.
class Warnings
{
public:
    Warnings() : m_before(qInstallMessageHandler(&Warnings::take)) { kept().clear(); }
    ~Warnings() { qInstallMessageHandler(m_before); }
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;

    static QStringList& kept()
    {
        static QStringList messages;
        return messages;
    }

private:
    static void take(QtMsgType, const QMessageLogContext&, const QString& message) { kept().append(message); }

    QtMessageHandler m_before;
};

class DatabaseFile : public ::testing::Test
{
protected:
    QString path(const QString& name = "Ship Database #1%20?.mdb") const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }

    QStringList names() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    void put(const QByteArray& bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    void makeDatabase() const
    {
        const testing::RawDatabase raw(path());
        raw.run("CREATE TABLE ShipDataB (Name TEXT)");
        raw.run("INSERT INTO ShipDataB VALUES ('Exeter')");
    }

    template <typename Call, typename Matcher>
    void expectError(RuntimeError::Number number, Call call, const Matcher& text) const
    {
        testing::expectError(number, call, AllOf(HasSubstr(path().toStdString()), text));
    }

    template <typename Matcher>
    void expectNotOpened(Database::Access access, RuntimeError::Number number, const Matcher& text) const
    {
        const QStringList before = QSqlDatabase::connectionNames();
        expectError(
            number, [&] { const Database database(path(), access); }, text);
        EXPECT_EQ(QSqlDatabase::connectionNames(), before);
    }

private:
    QTemporaryDir m_folder;
};

constexpr auto readOnly = Database::Access::ReadOnly;
constexpr auto readWrite = Database::Access::ReadWrite;
constexpr auto create = Database::Access::Create;

QVariantList firstColumn(Database& database, const QString& statement)
{
    QSqlQuery query(statement, database.connection());
    QVariantList values;
    while (query.next()) {
        values.append(query.value(0));
    }
    return values;
}

TEST_F(DatabaseFile, IsReadUnderAnyName)
{
    makeDatabase();
    Database database(path(), readOnly);
    EXPECT_EQ(firstColumn(database, "SELECT Name FROM ShipDataB"), QVariantList{"Exeter"});
}

TEST_F(DatabaseFile, ReadOnlyCannotBeChanged)
{
    makeDatabase();
    Database database(path(), readOnly);
    expectError(
        RuntimeError::PermissionDenied, [&] { database.execute("DELETE FROM ShipDataB", "ShipDataB"); },
        HasSubstr("ShipDataB"));
    EXPECT_EQ(firstColumn(database, "SELECT Name FROM ShipDataB"), QVariantList{"Exeter"});
}

TEST_F(DatabaseFile, ReadWriteIsChanged)
{
    makeDatabase();
    Database(path(), readWrite).execute("DELETE FROM ShipDataB");
    EXPECT_EQ(testing::RawDatabase(path()).run("SELECT Name FROM ShipDataB"), QVariantList{});
}

TEST_F(DatabaseFile, OpeningLeavesNothingBesideIt)
{
    makeDatabase();
    for (const auto access : {readOnly, readWrite}) {
        const Database database(path(), access);
        EXPECT_EQ(names().size(), 1) << names().join(' ').toStdString();
    }
    EXPECT_EQ(names().size(), 1) << names().join(' ').toStdString();
}

TEST_F(DatabaseFile, OfAnotherProgramsJournalModeIsReadWithoutATraceToo)
{
    makeDatabase();
    testing::RawDatabase(path()).run("PRAGMA journal_mode = WAL");
    ASSERT_EQ(names().size(), 1);
    {
        Database database(path(), readOnly);
        EXPECT_EQ(firstColumn(database, "SELECT Name FROM ShipDataB"), QVariantList{"Exeter"});
    }
    EXPECT_EQ(names().size(), 1) << names().join(' ').toStdString();
}

TEST_F(DatabaseFile, WhatAnotherProgramHasInItsLogIsRead)
{
    makeDatabase();
    const testing::RawDatabase raw(path());
    raw.run("PRAGMA journal_mode = WAL");
    raw.run("UPDATE ShipDataB SET Name = 'Ajax'");
    Database database(path(), readOnly);
    EXPECT_EQ(firstColumn(database, "SELECT Name FROM ShipDataB"), QVariantList{"Ajax"});
}

TEST_F(DatabaseFile, MissingIsFileNotFoundAndIsNotMade)
{
    expectNotOpened(readOnly, RuntimeError::FileNotFound, HasSubstr("is missing. Put the file back"));
    expectNotOpened(readWrite, RuntimeError::FileNotFound, HasSubstr("is missing. Put the file back"));
    EXPECT_EQ(names(), QStringList{});
}

TEST_F(DatabaseFile, AFolderInItsPlaceIsNamedAsOne)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    expectNotOpened(readOnly, RuntimeError::PathAccessError, HasSubstr("is a folder"));
}

TEST_F(DatabaseFile, OfOtherContentIsNoDatabase)
{
    put(QByteArray("This is no database. ").repeated(500));
    expectNotOpened(readOnly, RuntimeError::DatabaseFailure,
                    HasSubstr("is not a database. Put a sound copy"));
    expectNotOpened(readWrite, RuntimeError::DatabaseFailure,
                    HasSubstr("is not a database. Put a sound copy"));
}

TEST_F(DatabaseFile, WithoutAByteIsNoDatabase)
{
    put({});
    expectNotOpened(readOnly, RuntimeError::DatabaseFailure, HasSubstr("is not a database"));
    expectNotOpened(readWrite, RuntimeError::DatabaseFailure, HasSubstr("is not a database"));
    EXPECT_EQ(QFile(path()).size(), 0);
}

TEST_F(DatabaseFile, CutOffIsDamaged)
{
    makeDatabase();
    QFile file(path());
    ASSERT_TRUE(file.resize(file.size() / 2));
    const auto use = [this] {
        Database database(path(), readOnly);
        database.execute("SELECT * FROM ShipDataB", "ShipDataB");
    };
    expectError(RuntimeError::DatabaseFailure, use, HasSubstr("is damaged. Put a sound copy"));
}

TEST_F(DatabaseFile, UnreadableIsPermissionDenied)
{
    makeDatabase();
    ASSERT_TRUE(QFile::setPermissions(path(), {}));
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::Permissions(0x7777)));
    const testing::Unprivileged nobody;
    expectNotOpened(readOnly, RuntimeError::PermissionDenied, HasSubstr("Give yourself the right to read"));
}

TEST_F(DatabaseFile, InAClosedFolderIsPermissionDeniedAndNotMissing)
{
    makeDatabase();
    ASSERT_TRUE(QFile::setPermissions(folder(), {}));
    {
        const testing::Unprivileged nobody;
        expectNotOpened(readOnly, RuntimeError::PermissionDenied,
                        HasSubstr("Give yourself the right to read"));
    }
    QFile::setPermissions(folder(), QFile::Permissions(0x7700));
}

TEST_F(DatabaseFile, ThatCanOnlyBeReadIsNotOpenedForWriting)
{
    makeDatabase();
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::Permissions(0x4444)));
    ASSERT_TRUE(QFile::setPermissions(folder(), QFile::Permissions(0x7777)));
    const testing::Unprivileged nobody;
    expectNotOpened(readWrite, RuntimeError::PermissionDenied, HasSubstr("is read-only"));
    EXPECT_NO_THROW(Database(path(), readOnly));
}

TEST_F(DatabaseFile, LockedIsInUseByAnotherProgram)
{
    makeDatabase();
    const testing::RawDatabase raw(path());
    raw.run("BEGIN EXCLUSIVE");
    expectNotOpened(readOnly, RuntimeError::DatabaseFailure,
                    HasSubstr("is in use by another program. Close"));
    expectNotOpened(readWrite, RuntimeError::DatabaseFailure,
                    HasSubstr("is in use by another program. Close"));
}

TEST_F(DatabaseFile, LockedDoesNotHoldUpTheProgram)
{
    makeDatabase();
    const testing::RawDatabase raw(path());
    raw.run("BEGIN EXCLUSIVE");
    QElapsedTimer timer;
    timer.start();
    EXPECT_THROW(Database(path(), readOnly), RuntimeError);
    EXPECT_LT(timer.elapsed(), 2000);
}

TEST_F(DatabaseFile, CanBeOpenedSeveralTimesAtOnce)
{
    makeDatabase();
    Database first(path(), readOnly);
    Database second(path(), readOnly);
    EXPECT_EQ(firstColumn(first, "SELECT Name FROM ShipDataB"), QVariantList{"Exeter"});
    EXPECT_EQ(firstColumn(second, "SELECT Name FROM ShipDataB"), QVariantList{"Exeter"});
}

TEST_F(DatabaseFile, OpeningUsingAndClosingIsSilent)
{
    makeDatabase();
    const Warnings warnings;
    for (int i = 0; i < 3; ++i) {
        Database database(path(), readWrite);
        EXPECT_TRUE(database.hasTable("ShipDataB"));
        database.execute("DELETE FROM ShipDataB");
        EXPECT_THROW(database.execute("DELETE FROM None"), RuntimeError);
    }
    EXPECT_EQ(Warnings::kept(), QStringList{});
    EXPECT_THAT(QSqlDatabase::connectionNames(), IsEmpty());
}

TEST_F(DatabaseFile, AFailedOpeningIsSilent)
{
    put(QByteArray(5000, 'x'));
    const Warnings warnings;
    EXPECT_THROW(Database(path(), readOnly), RuntimeError);
    EXPECT_THROW(Database(path("none"), readOnly), RuntimeError);
    EXPECT_EQ(Warnings::kept(), QStringList{});
}

TEST_F(DatabaseFile, KnowsItsTablesWithoutRegardToCase)
{
    makeDatabase();
    testing::RawDatabase(path()).run("CREATE VIEW Seen AS SELECT * FROM ShipDataB");
    const Database database(path(), readOnly);
    EXPECT_TRUE(database.hasTable("ShipDataB"));
    EXPECT_TRUE(database.hasTable("SHIPDATAB"));
    EXPECT_FALSE(database.hasTable("ShipDaClass"));
    EXPECT_FALSE(database.hasTable("Seen"));
    EXPECT_FALSE(database.hasTable("ShipDataB' OR '1'='1"));
}

TEST_F(DatabaseFile, AFailedQueryNamesFileTableAndReason)
{
    makeDatabase();
    Database database(path(), readOnly);
    expectError(
        RuntimeError::DatabaseFailure, [&] { database.execute("SELECT * FROM GunsRang", "GunsRang"); },
        AllOf(HasSubstr("table GunsRang"), HasSubstr("no such table")));
}

TEST_F(DatabaseFile, FailNamesWhatAQueryOfSomeoneElseMet)
{
    makeDatabase();
    const Database database(path(), readOnly);
    const QSqlError full("", "database or disk is full", QSqlError::StatementError, "13");
    expectError(
        RuntimeError::DiskFull, [&] { database.fail("ShipDataB", full); },
        AllOf(HasSubstr("ShipDataB"), HasSubstr("disk is full")));
    const QSqlError extended("", "disk I/O error", QSqlError::StatementError, "778");
    expectError(
        RuntimeError::DeviceIoError, [&] { database.fail("ShipDataB", extended); },
        HasSubstr("Check the disk"));
}

TEST_F(DatabaseFile, IsMadeWhereThereIsNone)
{
    Database(path(), create).execute("CREATE TABLE T (Name TEXT)");
    EXPECT_EQ(names().size(), 1);
    EXPECT_TRUE(Database(path(), readOnly).hasTable("T"));
}

TEST_F(DatabaseFile, IsNotMadeOverAnother)
{
    makeDatabase();
    expectNotOpened(create, RuntimeError::PathAccessError, HasSubstr("exists already"));
    EXPECT_TRUE(Database(path(), readOnly).hasTable("ShipDataB"));
}

TEST_F(DatabaseFile, ErrorsNameTheFullPath)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder()));
    expectError(
        RuntimeError::FileNotFound, [] { const Database database("Ship Database #1%20?.mdb", readOnly); },
        HasSubstr("/"));
    QDir::setCurrent(before);
}

} // namespace
} // namespace torvane
