#include "record_source_fixture.h"
#include "support/failing_system.h"

#include <QFile>
#include <QFileInfo>

namespace torvane {
namespace {

using ::testing::AllOf;
using testing::expectError;
using ::testing::HasSubstr;

class Walk : public testing::RecordSourceFile
{
};
class StoredOrder : public testing::RecordSourceFile
{
};
class Fields : public testing::RecordSourceFile
{
};
class Opening : public testing::RecordSourceFile
{
};

TEST_F(Walk, BeginsOnTheFirstRowWithoutACall)
{
    makeShips("('Exeter', 'York'), ('Ajax', 'Leander')");
    EXPECT_EQ(source().value(u"Name"), "Exeter");
    EXPECT_FALSE(source().isEOF());
    EXPECT_FALSE(source().isBOF());
}

TEST_F(Walk, GoesForwardRowByRowToTheEnd)
{
    makeShips("('Exeter', 'York'), ('Ajax', 'Leander')");
    RecordSource ships = source();
    ships.MoveNext();
    EXPECT_EQ(ships.value(u"Name"), "Ajax");
    EXPECT_EQ(ships.value(u"Class"), "Leander");
    EXPECT_FALSE(ships.isEOF());
    ships.MoveNext();
    EXPECT_TRUE(ships.isEOF());
    EXPECT_FALSE(ships.isBOF());
}

TEST_F(Walk, ComesBackToTheFirstRowFromAnywhere)
{
    makeShips("('Exeter', 'York'), ('Ajax', 'Leander')");
    RecordSource ships = source();
    for (int steps = 0; steps <= 2; ++steps) {
        ships.MoveFirst();
        for (int i = 0; i < steps; ++i) {
            ships.MoveNext();
        }
        ships.MoveFirst();
        EXPECT_FALSE(ships.isEOF());
        EXPECT_EQ(ships.value(u"Name"), "Exeter");
    }
}

TEST_F(Walk, BeyondTheEndIsNoCurrentRecord)
{
    makeShips("('Exeter', 'York')");
    RecordSource ships = source();
    ships.MoveNext();
    const auto text = AllOf(HasSubstr("no further row in table ShipDataB"), HasSubstr(file()));
    for (int i = 0; i < 2; ++i) {
        expectError(
            RuntimeError::NoCurrentRecord, [&] { ships.MoveNext(); }, text);
        expectError(
            RuntimeError::NoCurrentRecord, [&] { ships.value(u"Name"); }, text);
        EXPECT_TRUE(ships.isEOF());
    }
}

TEST_F(Walk, OverAnEmptyTableIsAtItsStartAndAtItsEnd)
{
    make({"CREATE TABLE ShipDataB (Name TEXT)"});
    RecordSource ships = source();
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(ships.isEOF());
        EXPECT_TRUE(ships.isBOF());
        ships.MoveFirst();
    }
    expectError(
        RuntimeError::NoCurrentRecord, [&] { ships.MoveNext(); }, HasSubstr("ShipDataB"));
    expectError(
        RuntimeError::NoCurrentRecord, [&] { ships.value(u"Name"); }, HasSubstr("ShipDataB"));
    EXPECT_FALSE(ships.findFirst(u"Name", "Exeter"));
    EXPECT_TRUE(ships.isEOF());
}

TEST_F(StoredOrder, FollowsTheRowNumbersAndNotTheTimeOfInsertion)
{
    make({"CREATE TABLE ShipDataB (Name TEXT, Class TEXT)",
          "INSERT INTO ShipDataB (rowid, Name) VALUES (9, 'Ajax'), (3, 'Exeter'), (5, 'Duncan')"});
    EXPECT_EQ(column(source(), u"Name"), QStringList({"Exeter", "Duncan", "Ajax"}));
}

TEST_F(StoredOrder, HoldsInATableWhoseColumnsTakeTheNamesOfTheRowNumber)
{
    for (const QString columns : {"RowID TEXT, Name TEXT", "rowid TEXT, _ROWID_ TEXT, Name TEXT",
                                  "rowid TEXT, _rowid_ TEXT, oid TEXT, Name TEXT"}) {
        make({"DROP TABLE IF EXISTS ShipDataB", "CREATE TABLE ShipDataB (" + columns + ")",
              "INSERT INTO ShipDataB (rowid, Name) VALUES ('b', 'Exeter'), ('c', 'Ajax'), ('a', 'Duncan')",
              "CREATE INDEX I ON ShipDataB (" + QString(columns).remove(" TEXT") + ")"});
        ASSERT_EQ(run("SELECT Name FROM ShipDataB ORDER BY rowid").first(), "Duncan");
        EXPECT_EQ(column(source(), u"Name"), QStringList({"Exeter", "Ajax", "Duncan"}))
            << columns.toStdString();
    }
}

TEST_F(StoredOrder, OfATableWithoutRowNumbersIsThatOfItsKey)
{
    make({"CREATE TABLE ShipDataB (Name TEXT, Class TEXT PRIMARY KEY) WITHOUT ROWID",
          "INSERT INTO ShipDataB VALUES ('Exeter', 'b'), ('Ajax', 'c'), ('Duncan', 'a')"});
    EXPECT_EQ(column(source(), u"Name"), QStringList({"Duncan", "Exeter", "Ajax"}));
}

TEST_F(Fields, AreFoundWithoutRegardToCase)
{
    make({"CREATE TABLE ShipDataB (Name TEXT, \"Torps?\" TEXT)",
          "INSERT INTO ShipDataB VALUES ('Exeter', 'Yes')"});
    const RecordSource ships = source();
    EXPECT_EQ(ships.value(u"NAME"), "Exeter");
    EXPECT_EQ(ships.value(u"name"), "Exeter");
    EXPECT_EQ(ships.value(u"torps?"), "Yes");
}

TEST_F(Fields, AreTakenByNameAndNotByPlace)
{
    make({"CREATE TABLE ShipDataB (Builder TEXT, Class TEXT, a TEXT, Name TEXT, aa TEXT)",
          "INSERT INTO ShipDataB VALUES ('Devonport', 'York', '1', 'Exeter', '2')"});
    const RecordSource ships = source();
    EXPECT_EQ(ships.value(u"Name"), "Exeter");
    EXPECT_EQ(ships.value(u"Class"), "York");
    EXPECT_EQ(ships.value(u"aa"), "2");
    EXPECT_EQ(ships.value(u"a"), "1");
}

TEST_F(Fields, OfAnUnknownNameAreRefusedWithTableAndFile)
{
    makeShips("('Exeter', 'York')");
    RecordSource ships = source();
    const auto text = AllOf(HasSubstr("no field ShortName in its table ShipDataB"), HasSubstr(file()),
                            HasSubstr("sound copy"));
    expectError(
        RuntimeError::DatabaseFailure, [&] { ships.value(u"ShortName"); }, text);
    expectError(
        RuntimeError::DatabaseFailure, [&] { ships.findFirst(u"ShortName", "Exeter"); }, text);
    EXPECT_THROW(ships.value(u""), RuntimeError);
    ships.MoveNext();
    expectError(
        RuntimeError::DatabaseFailure, [&] { ships.value(u"ShortName"); }, text);
}

struct StoredValue
{
    const char* sql;
    QString text;
};

class FieldText : public testing::RecordSourceFile, public ::testing::WithParamInterface<StoredValue>
{
};

TEST_P(FieldText, IsWhatAnAuthorWouldRead)
{
    make({"CREATE TABLE ShipDataB (Value)",
          QStringLiteral("INSERT INTO ShipDataB VALUES (%1)").arg(GetParam().sql)});
    EXPECT_EQ(source().value(u"Value"), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(AllKinds, FieldText,
                         ::testing::Values(StoredValue{"NULL", ""}, StoredValue{"''", ""},
                                           StoredValue{"'  Exeter '", "Exeter"}, StoredValue{"'   '", ""},
                                           StoredValue{"'Graf  Spee'", "Graf  Spee"}, StoredValue{"0", "0"},
                                           StoredValue{"-424", "-424"}, StoredValue{"1266", "1266"},
                                           StoredValue{"9007199254740993", "9007199254740993"},
                                           StoredValue{"12.0", "12"}, StoredValue{"27.5", "27.5"},
                                           StoredValue{"1000000.0", "1000000"}, StoredValue{"'27,5'", "27,5"},
                                           StoredValue{"'007'", "007"}, StoredValue{"x'4578'", "Ex"},
                                           StoredValue{"'K\303\266ln'", QStringLiteral("Köln")}));

TEST_F(Opening, OfAMissingFileIsRefused)
{
    expectError(
        RuntimeError::FileNotFound, [this] { source(); }, AllOf(HasSubstr(file()), HasSubstr("is missing")));
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(Opening, OfALockedFileIsRefused)
{
    makeShips("('Exeter', 'York')");
    const testing::RawDatabase other(path());
    other.run("BEGIN EXCLUSIVE");
    expectError(
        RuntimeError::DatabaseFailure, [this] { source(); },
        AllOf(HasSubstr(file()), HasSubstr("in use by another program")));
}

TEST_F(Opening, OfAMissingTableIsRefusedByName)
{
    makeShips("('Exeter', 'York')");
    expectError(
        RuntimeError::DatabaseFailure, [this] { source("ShipDaClass"); },
        AllOf(HasSubstr(file()), HasSubstr("has no table ShipDaClass"), HasSubstr("sound copy")));
}

TEST_F(Opening, FindsATableWithoutRegardToCase)
{
    make({"CREATE TABLE SHIPDATAB (Name TEXT)", "INSERT INTO shipdatab VALUES ('Exeter')"});
    EXPECT_EQ(source().value(u"Name"), "Exeter");
}

TEST_F(Opening, OfAFileDamagedInTheMiddleOfTheTableIsRefused)
{
    make({"CREATE TABLE ShipDataB (Name TEXT)",
          "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) "
          "INSERT INTO ShipDataB SELECT printf('%0100d', i) FROM n"});
    QFile bytes(path());
    ASSERT_TRUE(bytes.open(QIODevice::ReadWrite));
    ASSERT_GT(bytes.size(), 100'000);
    ASSERT_TRUE(bytes.seek(bytes.size() / 2));
    ASSERT_EQ(bytes.write(QByteArray(16384, '\xff')), 16384);
    bytes.close();
    expectError(
        RuntimeError::DatabaseFailure, [this] { source(); },
        AllOf(HasSubstr(file()), HasSubstr("table ShipDataB"), HasSubstr("damaged")));
}

TEST_F(Opening, ReadsAllAndLetsGoOfTheFile)
{
    makeShips("('Exeter', 'York'), ('Ajax', 'Leander')");
    RecordSource ships = source();
    make({"BEGIN EXCLUSIVE", "DELETE FROM ShipDataB", "COMMIT"});
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_EQ(column(ships, u"Name"), QStringList({"Exeter", "Ajax"}));
    EXPECT_TRUE(ships.findFirst(u"Name", "Ajax"));
}

TEST_F(Opening, NeedsNoRightToChangeTheFile)
{
    makeShips("('Exeter', 'York')");
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::Permissions(0x4444)));
    const testing::ReadOnlyFolder folder(QFileInfo(path()).path());
    EXPECT_EQ(source().value(u"Name"), "Exeter");
}

TEST_F(Opening, ChangesNoByteOfTheFile)
{
    makeShips("('Exeter', 'York')");
    const auto bytes = [this] {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = bytes();
    ASSERT_FALSE(before.isEmpty());
    RecordSource ships = source();
    ships.findFirst(u"Name", "Exeter");
    EXPECT_EQ(bytes(), before);
}

} // namespace
} // namespace torvane
