#include "platform/profile.h"

#include "platform/runtime_error.h"
#include "support/printers.h"

#include <gmock/gmock.h>

using namespace torvane;

namespace {

/// A literal with its zero bytes.
template <std::size_t size>
QByteArray raw(const char (&text)[size])
{
    return {text, static_cast<qsizetype>(size) - 1};
}

/// The value found, or "(none)".
QByteArray found(const Profile& profile, QByteArrayView section, QByteArrayView key)
{
    const auto value = profile.value(section, key);
    return value ? value->toByteArray() : QByteArray("(none)");
}

QByteArray valueIn(const QByteArray& file, QByteArrayView section, QByteArrayView key)
{
    return found(Profile::parse(file), section, key);
}

QByteArray valueOfLine(const QByteArray& line)
{
    return valueIn("[S]\r\n" + line + "\r\n", "S", "K");
}

/// The file after one write.
QByteArray written(const QByteArray& file, QByteArrayView section, QByteArrayView key, QByteArrayView value)
{
    Profile profile = Profile::parse(file);
    profile.setValue(section, key, value);
    return profile.bytes();
}

void expectRefused(QByteArrayView section, QByteArrayView key, QByteArrayView value = "v")
{
    Profile profile = Profile::parse("[S]\r\nK=1\r\n");
    try {
        profile.setValue(section, key, value);
        ADD_FAILURE() << "accepted: " << section.toByteArray().toStdString() << " / "
                      << key.toByteArray().toStdString();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::InvalidProcedureCall);
    }
    EXPECT_EQ(profile.bytes(), "[S]\r\nK=1\r\n") << "a refused write must leave no trace";
}

} // namespace

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

TEST(ProfileWriting, ReplacesAValueInPlace)
{
    EXPECT_EQ(written("[A]\r\nX=1\r\nY=2\r\n[B]\r\nX=3\r\n", "A", "X", "9"),
              "[A]\r\nX=9\r\nY=2\r\n[B]\r\nX=3\r\n");
}

TEST(ProfileWriting, ReplacesTheFirstKeyOfTheFirstSection)
{
    EXPECT_EQ(written("[A]\r\nX=1\r\nX=2\r\n[A]\r\nX=3\r\n", "A", "X", "9"),
              "[A]\r\nX=9\r\nX=2\r\n[A]\r\nX=3\r\n");
}

TEST(ProfileWriting, AReplacedLineKeepsTheSpellingOfItsKeyAndLosesTheBlanks)
{
    EXPECT_EQ(written("[A]\r\n  Speed \t= \"1\"  \r\n", "a", "SPEED ", "2"), "[A]\r\nSpeed=2\r\n");
}

TEST(ProfileWriting, ANewKeyGoesBehindTheLastLineOfItsSection)
{
    EXPECT_EQ(written("[A]\r\nX=1\r\n\r\n; end\r\n[B]\r\nZ=1\r\n", "A", "Y", "2"),
              "[A]\r\nX=1\r\n\r\n; end\r\nY=2\r\n[B]\r\nZ=1\r\n");
    EXPECT_EQ(written("[A]\r\nX=1\r\n\r\n[B]\r\n", "A", "Y", "2"), "[A]\r\nX=1\r\n\r\nY=2\r\n[B]\r\n");
    EXPECT_EQ(written("[A]\r\n[B]\r\n", "A", "Y", "2"), "[A]\r\nY=2\r\n[B]\r\n");
}

TEST(ProfileWriting, ANewKeyStaysOutOfASectionThatRepeatsAName)
{
    EXPECT_EQ(written("[A]\r\nX=1\r\n[B]\r\nY=2\r\n[A]\r\nZ=3\r\n", "B", "W", "4"),
              "[A]\r\nX=1\r\n[B]\r\nY=2\r\nW=4\r\n[A]\r\nZ=3\r\n");
    EXPECT_EQ(written("[A]\r\nX=1\r\n[B]\r\nY=2\r\n[A]\r\nZ=3\r\n", "A", "Z", "4"),
              "[A]\r\nX=1\r\nZ=4\r\n[B]\r\nY=2\r\n[A]\r\nZ=3\r\n");
}

TEST(ProfileWriting, NewKeysStandInTheOrderOfTheirWrites)
{
    Profile profile = Profile::parse("[A]\r\nX=1\r\n[B]\r\n");
    profile.setValue("A", "C", "1");
    profile.setValue("B", "D", "1");
    profile.setValue("A", "A", "2");
    profile.setValue("A", "C", "3");
    profile.setValue("A", "B", "4");
    EXPECT_EQ(profile.bytes(), "[A]\r\nX=1\r\nC=3\r\nA=2\r\nB=4\r\n[B]\r\nD=1\r\n");
    EXPECT_EQ(found(profile, "A", "c"), "3");
}

TEST(ProfileWriting, ANewSectionGoesToTheEndWithoutABlankLine)
{
    EXPECT_EQ(written("[A]\r\nX=1\r\n", "B", "Y", "2"), "[A]\r\nX=1\r\n[B]\r\nY=2\r\n");
    EXPECT_EQ(written("[A]\r\nX=1", "B", "Y", "2"), "[A]\r\nX=1\r\n[B]\r\nY=2\r\n");
    EXPECT_EQ(written("", "B", "Y", "2"), "[B]\r\nY=2\r\n");
}

TEST(ProfileWriting, NamesAndValuesAreTrimmedAtBothEnds)
{
    EXPECT_EQ(written("", " \tS ", " K\t ", "\t v w "), "[S]\r\nK=v w\r\n");
}

TEST(ProfileWriting, TheSpellingFirstWrittenStays)
{
    Profile profile;
    profile.setValue("Sect", "Key", "1");
    profile.setValue("SECT", "KEY ", "2");
    EXPECT_EQ(profile.bytes(), "[Sect]\r\nKey=2\r\n");
}

TEST(ProfileWriting, QuotesAreWrittenAsTheyAre)
{
    Profile profile;
    profile.setValue("S", "K", "\" a \"");
    EXPECT_EQ(profile.bytes(), "[S]\r\nK=\" a \"\r\n");
    EXPECT_EQ(found(profile, "S", "K"), " a ") << "as it will be read from the file";
}

TEST(ProfileWriting, ALineBreakInAValueBecomesOneBlank)
{
    EXPECT_EQ(written("", "S", "K", "a\nb\r\nc\rd\n\re"), "[S]\r\nK=a b c d  e\r\n");
    EXPECT_EQ(written("", "S", "K", "\r\na\n[T]\n"), "[S]\r\nK=a [T]\r\n");
    EXPECT_EQ(written("", "S", "K", "\n"), "[S]\r\nK=\r\n");
}

TEST(ProfileWriting, TheEmptySectionIsWrittenBehindTheLinesBeforeTheFirstHead)
{
    EXPECT_EQ(written("; top\r\n[A]\r\nX=1\r\n", "", "K", "v"), "; top\r\nK=v\r\n[A]\r\nX=1\r\n");
    EXPECT_EQ(written("[A]\r\nX=1\r\n", "", "K", "v"), "K=v\r\n[A]\r\nX=1\r\n");
    EXPECT_EQ(written("", "", "K", "v"), "K=v\r\n");
    EXPECT_EQ(written("K=1\r\n", "", "K", "v"), "K=v\r\n");
}

TEST(ProfileWriting, LinesThatItDoesNotUnderstandStay)
{
    const QByteArray file = " ; c \r\n\r\njunk\r\n [B \r\n[A]\r\n\tno value\t\r\nX = 1 \r\n=\x01\xFF\r\n";
    EXPECT_EQ(Profile::parse(file).bytes(), file);
    EXPECT_EQ(written(file, "A", "New", "1"), file + "New=1\r\n");
}

TEST(ProfileWriting, EveryLineEndBecomesCrLf)
{
    EXPECT_EQ(written("[A]\nX=1\n\nY=2\n[B]\nZ=3", "A", "Y", "9"), "[A]\r\nX=1\r\n\r\nY=9\r\n[B]\r\nZ=3\r\n");
    EXPECT_EQ(written("[A]\rX=1\r\rY=2\r", "A", "X", "9"), "[A]\r\nX=9\r\n\r\nY=2\r\n");
    EXPECT_EQ(written("[A]\r\nX=1\r\r\nY=2\r\n", "A", "X", "9"), "[A]\r\nX=9\r\n\r\nY=2\r\n");
    EXPECT_EQ(written("[A]\nX=1", "A", "X", "9"), "[A]\r\nX=9\r\n");
}

TEST(ProfileWriting, AByteOrderMarkIsDropped)
{
    EXPECT_EQ(written("\xEF\xBB\xBF[A]\r\nX=1\r\n", "A", "X", "2"), "[A]\r\nX=2\r\n");
}

TEST(ProfileWriting, TextThatLooksLikeAByteOrderMarkIsStillReadAsText)
{
    Profile profile;
    profile.setValue("", "\xEF\xBB\xBFK", "v");
    EXPECT_EQ(valueIn(profile.bytes(), "", "\xEF\xBB\xBFK"), "v");
    const Profile twice = Profile::parse("\xEF\xBB\xBF\xEF\xBB\xBF[A]\r\nX=1\r\n");
    EXPECT_EQ(found(twice, "A", "X"), "(none)");
    EXPECT_EQ(valueIn(twice.bytes(), "A", "X"), "(none)");
    EXPECT_EQ(valueIn(twice.bytes(), "", "X"), "1");
}

TEST(ProfileWriting, TellsWhetherTheFileChanges)
{
    Profile profile = Profile::parse("[A]\r\nX=1\r\nY = 2\r\n");
    EXPECT_FALSE(profile.setValue("A", "X", "1"));
    EXPECT_FALSE(profile.setValue("a", " x", " 1 "));
    EXPECT_TRUE(profile.setValue("A", "Y", "2")) << "the blanks go";
    EXPECT_FALSE(profile.setValue("A", "Y", "2"));
    EXPECT_TRUE(profile.setValue("A", "X", "10"));
    EXPECT_TRUE(profile.setValue("A", "X", "1"));
    EXPECT_TRUE(profile.setValue("A", "Z", ""));
    EXPECT_FALSE(profile.setValue("A", "Z", ""));
    EXPECT_EQ(profile.bytes(), "[A]\r\nX=1\r\nY=2\r\nZ=\r\n");
}

TEST(ProfileWriting, TakesViewsOfItsOwnValues)
{
    Profile profile = Profile::parse("[A]\r\nX=" + QByteArray(40, 'x') + "\r\n");
    for (const char* section : {"B", "C", "D", "E", "F", "A"}) {
        profile.setValue(section, "Y", *profile.value("A", "X"));
        EXPECT_EQ(found(profile, section, "Y"), QByteArray(40, 'x'));
    }
    profile.setValue("A", "X", profile.value("A", "X")->first(3));
    profile.setValue("A", "X", profile.value("A", "X")->first(2));
    EXPECT_EQ(found(profile, "A", "X"), "xx");
    const QByteArrayView name = *profile.value("A", "X");
    profile.setValue(name, name, name);
    EXPECT_EQ(found(profile, "xx", "xx"), "xx");
}

TEST(ProfileWriting, ACopyIsAProfileOfItsOwn)
{
    Profile first = Profile::parse("[A]\r\nX=1\r\n");
    Profile second = first;
    second.setValue("A", "X", "2");
    second.setValue("B", "Y", "3");
    EXPECT_EQ(first.bytes(), "[A]\r\nX=1\r\n");
    EXPECT_EQ(second.bytes(), "[A]\r\nX=2\r\n[B]\r\nY=3\r\n");
}

TEST(ProfileWriting, WritesItselfIntoAnotherKeyByKey)
{
    Profile source = Profile::parse("T=0\r\n; c\r\n[A]\r\nX=1\r\nX=2\r\n[B]\r\nY='q'\r\n[A]\r\nLost=1\r\n");
    source.setValue("B", "Y", "\"r\"");
    source.setValue("A", "N", "5");
    source.setValue("C", "Z", "6");
    Profile target = Profile::parse("[B]\r\nkept=1\r\ny=old\r\n");
    source.writeInto(target);
    EXPECT_EQ(target.bytes(), "T=0\r\n[B]\r\nkept=1\r\ny=\"r\"\r\n[A]\r\nX=1\r\nN=5\r\n[C]\r\nZ=6\r\n");
}

TEST(ProfileWriting, AnEmptyFileIsEmpty)
{
    EXPECT_TRUE(Profile().isEmpty());
    EXPECT_TRUE(Profile::parse("").isEmpty());
    EXPECT_FALSE(Profile::parse("\r\n").isEmpty());
    EXPECT_FALSE(Profile::parse("[]").isEmpty());
    EXPECT_FALSE(Profile::parse("[A]").isEmpty());
    Profile profile;
    profile.setValue("", "K", "");
    EXPECT_FALSE(profile.isEmpty());
    EXPECT_EQ(Profile().bytes(), "");
}

TEST(ProfileNames, ANameWithALineBreakIsRefused)
{
    expectRefused("S\n", "K");
    expectRefused("S\rT", "K");
    expectRefused("S", "\nK");
    expectRefused("S", "K\r");
}

TEST(ProfileNames, ASectionWithAClosingBracketIsRefused)
{
    expectRefused("S]", "K");
    expectRefused("]", "K");
}

TEST(ProfileNames, AKeyWithAnEqualsSignIsRefused)
{
    expectRefused("S", "K=L");
    expectRefused("S", "=");
}

TEST(ProfileNames, AKeyThatWouldBeACommentIsRefused)
{
    expectRefused("S", ";K");
    expectRefused("S", " ;K");
}

TEST(ProfileNames, AKeyThatWouldBeReadAsAHeadIsRefused)
{
    expectRefused("S", "[K]");
    expectRefused("S", " [K]L");
    expectRefused("S", "[K", "a]b");
    Profile profile;
    profile.setValue("S", "[K", "v");
    EXPECT_EQ(valueIn(profile.bytes(), "S", "[K"), "v");
    EXPECT_THROW(profile.setValue("S", "[K", "]"), RuntimeError) << "also over an old value";
    EXPECT_EQ(valueIn(profile.bytes(), "S", "[K"), "v");
}

TEST(ProfileNames, EveryOtherNameIsFoundAgain)
{
    const QList<QByteArray> names{"a;b",      "K]",      "a[b]", "\"K\"", "#",    "[",           "'",
                                  "\x80\xFF", raw("\0"), "a b",  "",      "K\vL", "\xEF\xBB\xBF"};
    for (const QByteArray& key : names) {
        Profile profile;
        profile.setValue("S", key, "v");
        EXPECT_EQ(valueIn(profile.bytes(), "S", key), "v") << key.toPercentEncoding().constData();
        EXPECT_EQ(found(profile, "S", key), "v") << key.toPercentEncoding().constData();
    }
    for (const QByteArray& section :
         {QByteArray("[S"), QByteArray(";S"), QByteArray("S=T"), QByteArray("\"S\"")}) {
        Profile profile;
        profile.setValue(section, "K", "v");
        EXPECT_EQ(valueIn(profile.bytes(), section, "K"), "v") << section.constData();
    }
}

namespace {

constexpr qsizetype hundredMegabytes = 100'000'000;

QByteArray repeated(const QByteArray& block, qsizetype size)
{
    return block.repeated(size / block.size());
}

} // namespace

// These end within the time limit of a test only if work grows in proportion to the input.

TEST(ProfileSize, AFileOfAHundredMegabytesOfOneKey)
{
    const QByteArray file = "[A]\r\n" + repeated("KEY=value\r\n", hundredMegabytes) + "LAST=1\r\n";
    const Profile profile = Profile::parse(file);
    EXPECT_EQ(found(profile, "A", "KEY"), "value");
    EXPECT_EQ(found(profile, "A", "LAST"), "1");
    EXPECT_TRUE(profile.bytes() == file);
}

TEST(ProfileSize, AHundredMegabytesOfCarriageReturns)
{
    Profile profile = Profile::parse(QByteArray(hundredMegabytes, '\r') + "X=1");
    EXPECT_EQ(found(profile, "", "X"), "1");
    EXPECT_EQ(profile.bytes().size(), 2 * hundredMegabytes + 5);
}

TEST(ProfileSize, AHundredMegabytesOfLinesThatEndInCr)
{
    const Profile profile = Profile::parse("[A]\r" + repeated("KEY=value\r", hundredMegabytes) + "LAST=1");
    EXPECT_EQ(found(profile, "A", "LAST"), "1");
    EXPECT_EQ(profile.bytes().size(), 5 + hundredMegabytes / 10 * 11 + 8);
}

TEST(ProfileSize, AHundredMegabytesOfOpenBracketsAreOneLine)
{
    const Profile profile = Profile::parse(QByteArray(hundredMegabytes, '[') + "=1");
    EXPECT_EQ(found(profile, "", QByteArray(hundredMegabytes, '[')), "1");
}

TEST(ProfileSize, AHundredMegabytesOfHeadsOfOneName)
{
    const Profile profile = Profile::parse(repeated("[A]\nX=1\n", hundredMegabytes) + "[B]\nX=2\n");
    EXPECT_EQ(found(profile, "A", "X"), "1");
    EXPECT_EQ(found(profile, "B", "X"), "2");
}

TEST(ProfileSize, ALineOfTenMegabytes)
{
    const QByteArray longText(10'000'000, 'x');
    Profile profile =
        Profile::parse("[A]\r\nX=" + longText + "\r\n" + longText + "=1\r\n[" + longText + "]\r\nY=2\r\n");
    EXPECT_TRUE(found(profile, "A", "X") == longText);
    EXPECT_EQ(found(profile, "A", longText), "1");
    EXPECT_EQ(found(profile, longText, "Y"), "2");
    for (int i = 0; i < 20; ++i) {
        profile.setValue("A", "X", longText + QByteArray::number(i));
    }
    EXPECT_TRUE(valueIn(profile.bytes(), "A", "X") == longText + "19");
}

TEST(ProfileSize, AMillionSectionsAndAsManyWrites)
{
    QByteArray file;
    constexpr int count = 1'000'000;
    for (int i = 0; i < count; ++i) {
        file += '[' + QByteArray::number(i) + "]\r\n";
    }
    Profile profile = Profile::parse(file);
    for (int i = 0; i < count; ++i) {
        profile.setValue(QByteArray::number(i), "K", QByteArray::number(i));
    }
    for (int i = 0; i < 1000; ++i) {
        profile.setValue("N" + QByteArray::number(i), "K", "1");
    }
    const Profile again = Profile::parse(profile.bytes());
    for (const int i : {0, 1, 500'000, count - 1}) {
        EXPECT_EQ(found(again, QByteArray::number(i), "K"), QByteArray::number(i));
    }
    EXPECT_EQ(found(again, "N999", "K"), "1");
}

TEST(ProfileSize, AMillionKeysWrittenIntoTheFirstOfTwoSectionsAreAllFound)
{
    Profile profile = Profile::parse("[A]\r\nX=1\r\n[B]\r\nX=1\r\n");
    constexpr int count = 1'000'000;
    for (int i = 0; i < count; ++i) {
        profile.setValue("A", QByteArray::number(i), QByteArray::number(i));
    }
    const QByteArray bytes = profile.bytes();
    EXPECT_TRUE(bytes.endsWith("\r\n999999=999999\r\n[B]\r\nX=1\r\n"));
    // So many names hold some whose 32-bit hashes are the same.
    const Profile again = Profile::parse(bytes);
    int wrong = 0;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        wrong += profile.value("A", number) == number && again.value("A", number) == number ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0);
}

TEST(ProfileSize, KeysThatCollideUnderSimpleHashesCostNoMore)
{
    // Under h*31+c "Aa" and "BB" are alike, and so are all names of such pairs.
    QByteArray file = "[A]\r\n";
    constexpr int bits = 17;
    for (int i = 0; i < 1 << bits; ++i) {
        for (int bit = 0; bit < bits; ++bit) {
            file += ((i >> bit) & 1) != 0 ? "BB" : "Aa";
        }
        file += "=" + QByteArray::number(i) + "\r\n";
    }
    const Profile profile = Profile::parse(file);
    EXPECT_EQ(found(profile, "A", QByteArray("Aa").repeated(bits)), "0");
    EXPECT_EQ(found(profile, "A", QByteArray("bb").repeated(bits)), QByteArray::number((1 << bits) - 1));
}

TEST(ProfileSize, WritingOneKeyOverAndOverTakesNoMoreRoom)
{
    Profile profile = Profile::parse("[A]\r\nX=1\r\n");
    for (int i = 0; i < 2'000'000; ++i) {
        profile.setValue("A", "X", QByteArray::number(i));
    }
    EXPECT_EQ(profile.bytes(), "[A]\r\nX=1999999\r\n");
}
