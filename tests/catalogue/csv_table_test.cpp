#include "catalogue/csv_table.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class CsvReading : public ::testing::Test
{
protected:
    CsvTable parse(const QByteArray& bytes) { return parseCsv(bytes, QStringLiteral("file.csv"), m_faults); }
    QStringList faults() const { return m_faults.texts(); }

private:
    Faults m_faults;
};

TEST_F(CsvReading, TheFirstLineIsTheHeaderAndEveryOtherARowWithItsLine)
{
    const CsvTable table = parse("a,b\n1,2\n3,4\n");
    EXPECT_THAT(table.columns, ElementsAre("a", "b"));
    ASSERT_THAT(table.rows, SizeIs(2));
    EXPECT_THAT(table.rows.at(0).fields, ElementsAre("1", "2"));
    EXPECT_THAT(table.rows.at(1).fields, ElementsAre("3", "4"));
    EXPECT_EQ(table.rows.at(0).line, 2);
    EXPECT_EQ(table.rows.at(1).line, 3);
    EXPECT_EQ(table.lines, 3);
    EXPECT_TRUE(table.whole);
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(CsvReading, ALastLineWithoutALineEndIsARow)
{
    const CsvTable table = parse("a\n1");
    ASSERT_THAT(table.rows, SizeIs(1));
    EXPECT_THAT(table.rows.at(0).fields, ElementsAre("1"));
    EXPECT_EQ(table.lines, 2);
}

TEST_F(CsvReading, LinesMayEndInCarriageReturnAndLineFeed)
{
    const CsvTable table = parse("a,b\r\n1,\"2\"\r\n");
    EXPECT_THAT(table.columns, ElementsAre("a", "b"));
    ASSERT_THAT(table.rows, SizeIs(1));
    EXPECT_THAT(table.rows.at(0).fields, ElementsAre("1", "2"));
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(CsvReading, AByteOrderMarkIsNoPartOfTheFirstColumn)
{
    EXPECT_THAT(parse("\xEF\xBB\xBF"
                      "a,b\n")
                    .columns,
                ElementsAre("a", "b"));
}

TEST_F(CsvReading, TextIsUtf8)
{
    const CsvTable table = parse("a\nL\xC3\xBCtzow\n");
    ASSERT_THAT(table.rows, SizeIs(1));
    EXPECT_EQ(table.rows.at(0).fields.at(0), QStringLiteral("L\u00FCtzow"));
}

TEST_F(CsvReading, ALineThatIsNotUtf8IsDropped)
{
    const CsvTable table = parse("a\nL\xFCtzow\nHood\nL\xC3\n");
    EXPECT_THAT(faults(), ElementsAre("file.csv:2: not UTF-8 text", "file.csv:4: not UTF-8 text"));
    ASSERT_THAT(table.rows, SizeIs(1));
    EXPECT_EQ(table.rows.at(0).fields.at(0), "Hood");
    EXPECT_FALSE(table.whole);
}

TEST_F(CsvReading, BlanksBelongToTheField)
{
    const CsvTable table = parse("a,b\n 1, 2 \n");
    ASSERT_THAT(table.rows, SizeIs(1));
    EXPECT_THAT(table.rows.at(0).fields, ElementsAre(" 1", " 2 "));
}

TEST_F(CsvReading, EmptyFieldsStandBetweenCommasAndAtBothEnds)
{
    const CsvTable table = parse("a,b,c\n,,\n\"\",x,\"\"\n");
    ASSERT_THAT(table.rows, SizeIs(2));
    EXPECT_THAT(table.rows.at(0).fields, ElementsAre("", "", ""));
    EXPECT_THAT(table.rows.at(1).fields, ElementsAre("", "x", ""));
}

TEST_F(CsvReading, AQuotedFieldMayHoldCommasAndDoubledQuotes)
{
    const CsvTable table = parse("a,b\n\"one, two\",\"say \"\"three\"\"\"\n");
    ASSERT_THAT(table.rows, SizeIs(1));
    EXPECT_THAT(table.rows.at(0).fields, ElementsAre("one, two", "say \"three\""));
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(CsvReading, BlankLinesAreSkippedAndCounted)
{
    const CsvTable table = parse("\na\n\n \t\r\n1\n\n");
    EXPECT_THAT(table.columns, ElementsAre("a"));
    ASSERT_THAT(table.rows, SizeIs(1));
    EXPECT_EQ(table.rows.at(0).line, 5);
    EXPECT_THAT(faults(), IsEmpty());
    EXPECT_TRUE(table.whole);
}

TEST_F(CsvReading, AQuoteThatIsNotClosedCostsItsOwnLineOnly)
{
    const CsvTable table = parse("a,b\n\"1,2\n3,4\n");
    EXPECT_THAT(faults(), ElementsAre("file.csv:2: bad quoting: a double quote is not closed on its line"));
    ASSERT_THAT(table.rows, SizeIs(1));
    EXPECT_EQ(table.rows.at(0).line, 3);
    EXPECT_FALSE(table.whole);
}

TEST_F(CsvReading, AQuoteInsideAFieldWithoutQuotesIsBadQuoting)
{
    EXPECT_THAT(parse("a,b\n1\"x\",2\n").rows, SizeIs(0));
    EXPECT_THAT(faults(),
                ElementsAre("file.csv:2: bad quoting: a double quote inside a field without quotes"));
}

TEST_F(CsvReading, TextBehindAClosingQuoteIsBadQuoting)
{
    EXPECT_THAT(parse("a,b\n\"1\"x,2\n").rows, SizeIs(0));
    EXPECT_THAT(faults(), ElementsAre("file.csv:2: bad quoting: text behind a closing double quote"));
}

TEST_F(CsvReading, ARowWithMoreOrFewerFieldsThanTheHeaderIsDropped)
{
    const CsvTable table = parse("a,b\n1\n1,2,3\n1,2\n");
    EXPECT_THAT(faults(), ElementsAre("file.csv:2: 1 fields, the header has 2",
                                      "file.csv:3: 3 fields, the header has 2"));
    EXPECT_THAT(table.rows, SizeIs(1));
    EXPECT_FALSE(table.whole);
}

TEST_F(CsvReading, NoRowIsTakenForAHeaderThatCannotBeRead)
{
    const CsvTable table = parse("\"a,b\n1,2\n");
    EXPECT_THAT(table.columns, IsEmpty());
    EXPECT_THAT(table.rows, SizeIs(0));
    EXPECT_THAT(faults(), SizeIs(1));
    EXPECT_FALSE(table.whole);
}

TEST_F(CsvReading, AnEmptyFileHasNoColumns)
{
    const CsvTable table = parse("");
    EXPECT_THAT(table.columns, IsEmpty());
    EXPECT_TRUE(table.whole);
    EXPECT_THAT(faults(), IsEmpty());
}

TEST(CatalogueFaults, AreNamedByFileAndLineWhateverTheOrderOfFinding)
{
    Faults faults;
    EXPECT_TRUE(faults.none());
    faults.add("ships.csv", 10, "third");
    faults.add("ships.csv", 9, "second");
    faults.add("classes.csv", 300, "first");
    faults.add("ships.csv", 10, "fourth");
    EXPECT_FALSE(faults.none());
    EXPECT_THAT(faults.texts(), ElementsAre("classes.csv:300: first", "ships.csv:9: second",
                                            "ships.csv:10: third", "ships.csv:10: fourth"));
}

} // namespace
} // namespace torvane
