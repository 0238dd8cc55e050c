#include "platform/profile_fixture.h"

namespace torvane::testing {
namespace {

QByteArray valueOfLine(const QByteArray& line)
{
    return valueIn("[S]\r\n" + line + "\r\n", "S", "K");
}

TEST(ProfileReading, FindsAKeyInItsSection)
{
    const QByteArray file = "[A]\r\nX=1\r\nY=2\r\n[B]\r\nX=3\r\n";
    EXPECT_EQ(valueIn(file, "A", "X"), "1");
    EXPECT_EQ(valueIn(file, "A", "Y"), "2");
    EXPECT_EQ(valueIn(file, "B", "X"), "3");
}

TEST(ProfileReading, AMissingKeyOrSectionHasNoValue)
{
    const QByteArray file = "[A]\r\nX=1\r\n[B]\r\nY=2\r\n";
    EXPECT_EQ(valueIn(file, "A", "Y"), "(none)");
    EXPECT_EQ(valueIn(file, "C", "X"), "(none)");
    EXPECT_EQ(valueIn("", "A", "X"), "(none)");
    EXPECT_EQ(found(Profile(), "", ""), "(none)");
}

TEST(ProfileReading, NamesCompareWithoutRegardToAsciiCase)
{
    EXPECT_EQ(valueIn("[DiVision0]\r\nsPeeD=12\r\n", "dIvISION0", "SPEEd"), "12");
}

TEST(ProfileReading, NamesBeyondAsciiCompareByteForByte)
{
    const QByteArray file = "[S]\r\n\xC4=1\r\n";
    EXPECT_EQ(valueIn(file, "S", "\xC4"), "1");
    EXPECT_EQ(valueIn(file, "S", "\xE4"), "(none)");
}

TEST(ProfileReading, APartOfANameIsAnotherName)
{
    EXPECT_TRUE(sameName("SPEED", "speed"));
    EXPECT_FALSE(sameName("SPEED", "SPEE"));
    EXPECT_FALSE(sameName("SPEE", "SPEED"));
    EXPECT_FALSE(sameName("", "S"));
}

TEST(ProfileReading, OnlyLettersFold)
{
    const QByteArray file = "[S]\r\n@[`{=1\r\n";
    EXPECT_EQ(valueIn(file, "S", "@[`{"), "1");
    EXPECT_EQ(valueIn(file, "S", "`[`{"), "(none)");
    EXPECT_EQ(valueIn(file, "S", "@{`{"), "(none)");
}

TEST(ProfileReading, BlanksAndTabsRoundNamesDoNotCount)
{
    EXPECT_EQ(valueIn("[\t S ]\r\n \tSPEED \t=12\r\n", "S", "SPEED"), "12");
    EXPECT_EQ(valueIn("[S]\r\nSPEED=12\r\n", " S\t", " SPEED "), "12");
    EXPECT_EQ(valueIn("[S]\r\nSP EED=12\r\n", "S", "SPEED"), "(none)") << "blanks inside do count";
}

TEST(ProfileReading, BlanksAndTabsRoundAValueGo)
{
    EXPECT_EQ(valueOfLine("K= \t12 13\t "), "12 13");
    EXPECT_EQ(valueOfLine("K="), "");
    EXPECT_EQ(valueOfLine("K= \t"), "");
    EXPECT_EQ(valueOfLine("K=\v1\f"), "\v1\f");
}

TEST(ProfileReading, OnePairOfEqualQuotesRoundAValueGoes)
{
    EXPECT_EQ(valueOfLine("K=\" a \""), " a ");
    EXPECT_EQ(valueOfLine("K=' a '"), " a ");
    EXPECT_EQ(valueOfLine("K= \"a\" "), "a");
    EXPECT_EQ(valueOfLine("K=\"\""), "");
    EXPECT_EQ(valueOfLine("K=''"), "");
    EXPECT_EQ(valueOfLine("K=\"\"a\"\""), "\"a\"");
    EXPECT_EQ(valueOfLine("K=\"'a'\""), "'a'");
}

TEST(ProfileReading, OtherQuotesStay)
{
    EXPECT_EQ(valueOfLine("K=\"half"), "\"half");
    EXPECT_EQ(valueOfLine("K=half\""), "half\"");
    EXPECT_EQ(valueOfLine("K=\""), "\"");
    EXPECT_EQ(valueOfLine("K='"), "'");
    EXPECT_EQ(valueOfLine("K=\"a'"), "\"a'");
    EXPECT_EQ(valueOfLine("K=a \"b\""), "a \"b\"");
}

TEST(ProfileReading, TheFirstKeyOfANameCounts)
{
    EXPECT_EQ(valueIn("[S]\r\nK=1\r\nk=2\r\n K =3\r\n", "S", "K"), "1");
}

TEST(ProfileReading, ASecondSectionOfTheSameNameIsNeverLookedInto)
{
    const QByteArray file = "[A]\r\nX=1\r\n[B]\r\nZ=5\r\n[ a ]\r\nX=2\r\nY=3\r\n[C]\r\nY=4\r\n";
    EXPECT_EQ(valueIn(file, "A", "X"), "1");
    EXPECT_EQ(valueIn(file, "A", "Y"), "(none)");
    EXPECT_EQ(valueIn(file, "B", "Y"), "(none)") << "nor is it part of the section before it";
    EXPECT_EQ(valueIn(file, "C", "Y"), "4");
}

TEST(ProfileReading, EverythingBehindTheFirstEqualsSignIsTheValue)
{
    EXPECT_EQ(valueOfLine("K=a=b;c"), "a=b;c");
    EXPECT_EQ(valueOfLine("K==b"), "=b");
}

TEST(ProfileReading, LinesBeforeTheFirstHeadAreTheSectionWithTheEmptyName)
{
    const QByteArray file = "X=1\r\n[A]\r\nX=2\r\n[]\r\nY=3\r\n";
    EXPECT_EQ(valueIn(file, "", "X"), "1");
    EXPECT_EQ(valueIn(file, " ", "X"), "1");
    EXPECT_EQ(valueIn(file, "", "Y"), "(none)") << "a later head without a name repeats it";
}

TEST(ProfileReading, ALineWithoutEqualsSignHasNoValue)
{
    const QByteArray file = "[S]\r\nK\r\nL=1\r\n";
    EXPECT_EQ(valueIn(file, "S", "K"), "(none)");
    EXPECT_EQ(valueIn(file, "S", "L"), "1");
    EXPECT_EQ(valueIn("[S]\r\nK\r\nK=1\r\n", "S", "K"), "1");
}

TEST(ProfileReading, AnEmptyKeyNameIsANameLikeAnother)
{
    EXPECT_EQ(valueIn("[S]\r\n = 1\r\n", "S", ""), "1");
    EXPECT_EQ(valueIn("[S]\r\nK=1\r\n", "S", ""), "(none)");
}

TEST(ProfileReading, ACommentHoldsNoKey)
{
    const QByteArray file = "[S]\r\n;K=1\r\n \t; L=2\r\nM=3;4\r\n;[T]\r\nN=5\r\n";
    EXPECT_EQ(valueIn(file, "S", ";K"), "(none)");
    EXPECT_EQ(valueIn(file, "S", "K"), "(none)");
    EXPECT_EQ(valueIn(file, "S", "; L"), "(none)");
    EXPECT_EQ(valueIn(file, "S", "M"), "3;4");
    EXPECT_EQ(valueIn(file, "S", "N"), "5") << "a head in a comment opens nothing";
    EXPECT_EQ(valueIn("[S]\r\n#K=1\r\n", "S", "#K"), "1");
}

TEST(ProfileReading, TheFirstClosingBracketEndsAHead)
{
    EXPECT_EQ(valueIn("[C] trailing\r\nX=1\r\n", "C", "X"), "1");
    EXPECT_EQ(valueIn("[C]D]\r\nX=1\r\n", "C", "X"), "1");
    EXPECT_EQ(valueIn("[[C]\r\nX=1\r\n", "[C", "X"), "1");
    EXPECT_EQ(valueIn("[C]=7\r\nX=1\r\n", "C", "X"), "1");
}

TEST(ProfileReading, BlanksMayStandBeforeAHead)
{
    EXPECT_EQ(valueIn(" \t[C]\r\nX=1\r\n", "C", "X"), "1");
}

TEST(ProfileReading, AHeadWithoutClosingBracketIsAnOrdinaryLine)
{
    const QByteArray file = "[A]\r\n[B\r\nX=1\r\n[D=2\r\n";
    EXPECT_EQ(valueIn(file, "A", "X"), "1");
    EXPECT_EQ(valueIn(file, "B", "X"), "(none)");
    EXPECT_EQ(valueIn(file, "A", "[D"), "2");
}

TEST(ProfileReading, LfCrLfAndCrAllEndALine)
{
    for (const QByteArray& end : {QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r")}) {
        const QByteArray file = "[A]" + end + "X=1" + end + end + "Y=2" + end + "[B]" + end + "X=3" + end;
        EXPECT_EQ(valueIn(file, "A", "X"), "1");
        EXPECT_EQ(valueIn(file, "A", "Y"), "2");
        EXPECT_EQ(valueIn(file, "B", "X"), "3");
    }
    const QByteArray mixed = "[A]\rX=1\nY=2\r\nZ=3\n\rW=4\r\r\nV=5\r";
    for (const char* key : {"X", "Y", "Z", "W", "V"}) {
        EXPECT_NE(valueIn(mixed, "A", key), "(none)") << key;
    }
    EXPECT_EQ(Profile::parse(mixed).bytes(), "[A]\r\nX=1\r\nY=2\r\nZ=3\r\n\r\nW=4\r\n\r\nV=5\r\n");
}

TEST(ProfileReading, TheLastLineNeedsNoEnd)
{
    EXPECT_EQ(valueIn("[A]\r\nX=1", "A", "X"), "1");
    EXPECT_EQ(valueIn("[A]\r\nX=", "A", "X"), "");
    EXPECT_EQ(valueIn("[A]\nX=1\r", "A", "X"), "1");
}

TEST(ProfileReading, AFileOfNoBytesTakesKeysAsAMissingOneDoes)
{
    for (const QByteArray& file : {QByteArray(), QByteArray("")}) {
        EXPECT_EQ(written(file, "S", "K", "v"), "[S]\r\nK=v\r\n");
        EXPECT_EQ(Profile::parse(file).bytes(), "");
    }
}

TEST(ProfileReading, AByteOrderMarkIsSkipped)
{
    EXPECT_EQ(valueIn("\xEF\xBB\xBF[A]\r\nX=1\r\n", "A", "X"), "1");
    EXPECT_EQ(valueIn("\xEF\xBB\xBFX=1\r\n", "", "X"), "1");
    EXPECT_EQ(valueIn("[A]\r\n\xEF\xBB\xBFX=1\r\n", "A", "X"), "(none)") << "only at the start";
    EXPECT_TRUE(Profile::parse("\xEF\xBB\xBF").isEmpty());
}

TEST(ProfileReading, ZeroBytesAreBytesLikeOthers)
{
    const QByteArray file = raw("[A\0B]\r\nX\0Y=1\0"
                                "2\0\r\nZ=3\r\n");
    EXPECT_EQ(valueIn(file, QByteArrayView("A\0B", 3), QByteArrayView("X\0Y", 3)), raw("1\0"
                                                                                       "2\0"));
    EXPECT_EQ(valueIn(file, QByteArrayView("A\0B", 3), "Z"), "3");
    EXPECT_EQ(valueIn(file, "A", "Z"), "(none)");
}

} // namespace
} // namespace torvane::testing
