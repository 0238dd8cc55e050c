#include "platform/profile_fixture.h"

namespace torvane::testing {
namespace {

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

} // namespace
} // namespace torvane::testing
