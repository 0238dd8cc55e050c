#include "store/scratch_files.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

TEST(ParseQuotedLines, GivesTheTextBetweenTheQuotesOfEachLine)
{
    EXPECT_EQ(parseQuotedLines("\"CA Exeter\"\r\n\"CL Ajax\"\r\n"), (QStringList{"CA Exeter", "CL Ajax"}));
}

TEST(ParseQuotedLines, TakesEveryKindOfLineEnd)
{
    EXPECT_EQ(parseQuotedLines("\"a\"\n\"b\"\r\"c\"\r\n\"d\""), (QStringList{"a", "b", "c", "d"}));
}

TEST(ParseQuotedLines, AQuotedEmptyTextIsAValue)
{
    EXPECT_EQ(parseQuotedLines("\"\"\r\n"), QStringList{""});
    EXPECT_EQ(parseQuotedLines("\"a\"\r\n\"\"\r\n\"b\"\r\n"), (QStringList{"a", "", "b"}));
}

TEST(ParseQuotedLines, AnEmptyLineIsNone)
{
    EXPECT_EQ(parseQuotedLines("\r\n\"a\"\r\n\r\n\n\"b\"\r\n\r\n"), (QStringList{"a", "b"}));
    EXPECT_EQ(parseQuotedLines(""), QStringList{});
    EXPECT_EQ(parseQuotedLines("\r\n\r\n"), QStringList{});
}

TEST(ParseQuotedLines, ACommaInAValueIsSafe)
{
    EXPECT_EQ(parseQuotedLines("\"Smith, John\"\r\n"), QStringList{"Smith, John"});
}

TEST(ParseQuotedLines, AQuoteInsideAValueBelongsToIt)
{
    EXPECT_EQ(parseQuotedLines("\"HMS \"Hood\" sunk\"\r\n"), QStringList{"HMS \"Hood\" sunk"});
    EXPECT_EQ(parseQuotedLines("\"\"\"\r\n"), QStringList{"\""});
}

TEST(ParseQuotedLines, BlanksInsideTheQuotesBelongToTheValueAndThoseOutsideDoNot)
{
    EXPECT_EQ(parseQuotedLines("  \" a \"  \r\n"), QStringList{" a "});
}

TEST(ParseQuotedLines, WithOneQuoteTheTextBehindItCounts)
{
    EXPECT_EQ(parseQuotedLines("\"cut off"), QStringList{"cut off"});
    EXPECT_EQ(parseQuotedLines("before\"after\n"), QStringList{"after"});
    EXPECT_EQ(parseQuotedLines("\"\n"), QStringList{""});
}

TEST(ParseQuotedLines, ALineWithoutAQuoteIsTakenWhole)
{
    EXPECT_EQ(parseQuotedLines(" Column \r\n270\r\n"), (QStringList{" Column ", "270"}));
}

TEST(ParseQuotedLines, TakesAnyBytes)
{
    EXPECT_EQ(parseQuotedLines("\"Gr\xF6\xDF"
                               "e \x80\"\r\n"),
              QStringList{QStringLiteral("Größe €")});
    QByteArray bytes;
    for (int code = 0; code < 256; ++code) {
        bytes.append(static_cast<char>(code));
    }
    EXPECT_EQ(parseQuotedLines(bytes).size(), 3);
}

TEST(ParseQuotedLines, LargeFilesTakeTimeInProportion)
{
    constexpr int count = 1'000'000;
    EXPECT_EQ(parseQuotedLines(QByteArray("\"a\"\r\n").repeated(count)).size(), count);
    EXPECT_EQ(parseQuotedLines(QByteArray(count, '"')), QStringList{QString(count - 2, u'"')});
    EXPECT_EQ(parseQuotedLines(QByteArray(count, '\r')), QStringList{});
}

TEST(QuotedLines, PutsEachValueBetweenQuotesOnALineOfItsOwn)
{
    EXPECT_EQ(quotedLines({"CA Exeter", "", "a, b"}), QByteArray("\"CA Exeter\"\r\n\"\"\r\n\"a, b\"\r\n"));
    EXPECT_EQ(quotedLines({}), QByteArray());
}

TEST(QuotedLines, AQuoteInsideIsWrittenAsItIs)
{
    EXPECT_EQ(quotedLines({"a\"b"}), QByteArray("\"a\"b\"\r\n"));
}

TEST(QuotedLines, LineBreaksInsideBecomeBlanks)
{
    EXPECT_EQ(quotedLines({"a\nb\rc\r\nd"}), QByteArray("\"a b c d\"\r\n"));
}

TEST(QuotedLines, AreInTheCodePage)
{
    EXPECT_EQ(quotedLines({QStringLiteral("Größe € Ω")}), QByteArray("\"Gr\xF6\xDF"
                                                                     "e \x80 ?\"\r\n"));
}

TEST(QuotedLines, AreReadBackAsTheyWere)
{
    const QStringList values{
        "", " ", "\"", "\"\"", "a\"b", "Smith, John", " blanks ", "\t", QStringLiteral("Größe €")};
    EXPECT_EQ(parseQuotedLines(quotedLines(values)), values);
}

} // namespace
} // namespace torvane
