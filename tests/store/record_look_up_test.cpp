#include "record_source_fixture.h"

#include <random>

namespace torvane {
namespace {

using ::testing::AllOf;
using testing::expectError;
using ::testing::HasSubstr;

class LookUp : public testing::RecordSourceFile
{
};

TEST_F(LookUp, LeavesTheFirstRowOfTheValueCurrent)
{
    makeShips("('Exeter', 'York'), ('Duncan', 'Benson'), ('Ajax', 'Leander'), ('Duncan', 'D')");
    RecordSource ships = source();
    EXPECT_TRUE(ships.findFirst(u"Name", "Duncan"));
    EXPECT_EQ(ships.value(u"Class"), "Benson");
    ships.MoveNext();
    EXPECT_EQ(ships.value(u"Name"), "Ajax");
}

TEST_F(LookUp, BeginsAtTheFirstRowWhereverTheControlStands)
{
    makeShips("('Exeter', 'York'), ('Ajax', 'Leander')");
    RecordSource ships = source();
    EXPECT_TRUE(ships.findFirst(u"Name", "Ajax"));
    EXPECT_TRUE(ships.findFirst(u"Name", "Exeter"));
    EXPECT_EQ(ships.value(u"Class"), "York");
    EXPECT_FALSE(ships.findFirst(u"Name", "Hood"));
    EXPECT_TRUE(ships.findFirst(u"Name", "Ajax"));
    EXPECT_EQ(ships.value(u"Class"), "Leander");
}

TEST_F(LookUp, IsExact)
{
    makeShips("('Exeter', 'York')");
    RecordSource ships = source();
    for (const char* other : {"exeter", "EXETER", "Exete", "Exeter2", " Exeter", "Exeter ", "Exeter\t", ""}) {
        EXPECT_FALSE(ships.findFirst(u"Name", other)) << other;
        EXPECT_TRUE(ships.isEOF()) << other;
    }
}

TEST_F(LookUp, FindsAStoredNameBetweenBlanks)
{
    makeShips("('  Exeter ', 'York')");
    EXPECT_TRUE(source().findFirst(u"Name", "Exeter"));
}

TEST_F(LookUp, FindsNothingStoredAsTheEmptyText)
{
    makeShips("('Exeter', 'York'), ('Ajax', NULL)");
    RecordSource ships = source();
    EXPECT_TRUE(ships.findFirst(u"Class", QString()));
    EXPECT_EQ(ships.value(u"Name"), "Ajax");
}

TEST_F(LookUp, GoesByEachFieldWithoutRegardToItsCase)
{
    makeShips("('Exeter', 'York'), ('York', 'Leander')");
    RecordSource ships = source();
    EXPECT_TRUE(ships.findFirst(u"CLASS", "Leander"));
    EXPECT_EQ(ships.value(u"Name"), "York");
    EXPECT_TRUE(ships.findFirst(u"class", "York"));
    EXPECT_EQ(ships.value(u"Name"), "Exeter");
}

TEST_F(LookUp, ThatFailsIsNamedByTheErrorThatFollows)
{
    makeShips("('Exeter', 'York')");
    RecordSource ships = source();
    EXPECT_FALSE(ships.findFirst(u"Name", "Hood"));
    const auto text = AllOf(HasSubstr("no Name \"Hood\" in table ShipDataB"), HasSubstr(file()));
    expectError(
        RuntimeError::NoCurrentRecord, [&] { ships.value(u"Class"); }, text);
    expectError(
        RuntimeError::NoCurrentRecord, [&] { ships.MoveNext(); }, text);
}

TEST_F(LookUp, ThatFailedIsForgottenByTheNextWalk)
{
    makeShips("('Exeter', 'York')");
    RecordSource ships = source();
    ships.findFirst(u"Name", "Hood");
    ships.MoveFirst();
    ships.MoveNext();
    expectError(
        RuntimeError::NoCurrentRecord, [&] { ships.value(u"Class"); }, HasSubstr("no further row"));
    ships.findFirst(u"Name", "Hood");
    ships.findFirst(u"Name", "Exeter");
    ships.MoveNext();
    expectError(
        RuntimeError::NoCurrentRecord, [&] { ships.value(u"Class"); }, HasSubstr("no further row"));
}

TEST_F(LookUp, ByAnUnknownFieldStopsOnTheFirstRowAsAWalkDoes)
{
    makeShips("('Exeter', 'York'), ('Ajax', 'Leander')");
    RecordSource ships = source();
    ships.findFirst(u"Name", "Ajax");
    EXPECT_THROW(ships.findFirst(u"ShortName", "Ajax"), RuntimeError);
    EXPECT_EQ(ships.value(u"Name"), "Exeter");
}

TEST_F(LookUp, AlwaysEndsWhereAWalkWouldEnd)
{
    std::mt19937 random(1266);
    const auto below = [&random](int bound) {
        return std::uniform_int_distribution<int>(0, bound - 1)(random);
    };
    for (int table = 0; table < 20; ++table) {
        make({"DROP TABLE IF EXISTS ShipDataB", "CREATE TABLE ShipDataB (Name, Class)"});
        QStringList rows;
        for (int row = below(40); row >= 0; --row) {
            rows.append(QStringLiteral("('N%1', %2)").arg(below(12)).arg(below(12)));
        }
        make({"INSERT INTO ShipDataB VALUES " + rows.join(',')});
        RecordSource looking = source();
        RecordSource walking = source();
        for (int i = 0; i < 100; ++i) {
            const bool byName = below(2) == 0;
            const QStringView field = byName ? u"Name" : u"Class";
            const QString wanted = (byName ? "N" : "") + QString::number(below(15));
            for (walking.MoveFirst(); !walking.isEOF() && walking.value(field) != wanted;
                 walking.MoveNext()) {
            }
            ASSERT_EQ(looking.findFirst(field, wanted), !walking.isEOF());
            RecordSource rest = looking;
            for (RecordSource other = walking; !other.isEOF(); other.MoveNext(), rest.MoveNext()) {
                ASSERT_FALSE(rest.isEOF());
                ASSERT_EQ(rest.value(u"Name"), other.value(u"Name"));
                ASSERT_EQ(rest.value(u"Class"), other.value(u"Class"));
            }
            ASSERT_TRUE(rest.isEOF());
        }
    }
}

} // namespace
} // namespace torvane
