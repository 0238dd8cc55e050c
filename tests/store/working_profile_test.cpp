#include "store/profile_keys.h"
#include "store/working_profile_fixture.h"

#include <QDir>

namespace torvane::testing {
namespace {

using GetIniKeyTest = WorkingProfileTest;
using CreateNewIniTempFile = WorkingProfileTest;
using DivisionCount = WorkingProfileTest;

TEST_F(WorkingProfileTest, LiesInTheWorkFolder)
{
    EXPECT_EQ(profile.path(), folder.filePath(QStringLiteral("iniTemp.bmm")));
    EXPECT_EQ(WorkingProfile(store, folder.path() + u'/').path(), profile.path());
}

TEST_F(GetIniKeyTest, BlanksRoundAValueGo)
{
    EXPECT_EQ(valueOf("  12 "), u"12");
    EXPECT_EQ(valueOf("\"  12 \""), u"12");
    EXPECT_EQ(valueOf("\" a b \""), u"a b");
}

TEST_F(GetIniKeyTest, OnlyBlanksGoFromWithinQuotes)
{
    EXPECT_EQ(valueOf("\"\t12 \""), u"\t12");
    EXPECT_EQ(valueOf("\"\xA0"
                      "12\""),
              u"\u00A012");
}

TEST_F(GetIniKeyTest, AValueOfBlanksAloneIsNotInvalid)
{
    EXPECT_EQ(valueOf("\"   \""), QString());
    EXPECT_FALSE(valueOf("\" \"") == invalidValue);
}

TEST_F(GetIniKeyTest, ALongValueIsCutAt369Characters)
{
    EXPECT_EQ(valueOf(QByteArray(369, 'x')), QString(369, u'x'));
    EXPECT_EQ(valueOf(QByteArray(370, 'x')), QString(369, u'x'));
    EXPECT_EQ(valueOf(QByteArray(5000, 'x')), QString(369, u'x'));
}

TEST_F(GetIniKeyTest, TheCutComesBeforeTheBlanksGo)
{
    EXPECT_EQ(valueOf("\"" + QByteArray(10, ' ') + QByteArray(400, 'x') + "\""), QString(359, u'x'));
    EXPECT_EQ(valueOf(QByteArray(368, 'x') + " y"), QString(368, u'x'));
    EXPECT_EQ(valueOf("\"" + QByteArray(369, ' ') + "x\""), QString());
}

TEST_F(GetIniKeyTest, AKeyWrittenWithATrailingBlankIsFoundWithout)
{
    profile.write(u"SCENARIOINFO ", u"SPEED ", u"12");
    EXPECT_EQ(profile.GetIniKey(u"SCENARIOINFO", u"SPEED"), u"12");
    profile.write(u"SCENARIOINFO", u"SPEED", u"13");
    EXPECT_EQ(profile.GetIniKey(u"SCENARIOINFO ", u"SPEED "), u"13");
    EXPECT_EQ(onDisk(), "[SCENARIOINFO]\r\nSPEED=13\r\n");
}

TEST_F(GetIniKeyTest, AMissingFileIsInvalid)
{
    EXPECT_EQ(profile.GetIniKey(u"S", u"K"), u"INVALID");
    EXPECT_EQ(GetIniKey(store, folder.filePath(QStringLiteral("none")), u"S", u"K"), u"INVALID");
    EXPECT_EQ(onDisk(), "(no file)");
}

TEST_F(GetIniKeyTest, AMissingKeyAndAnEmptyValueAreInvalid)
{
    EXPECT_EQ(valueOf(""), u"INVALID");
    EXPECT_EQ(valueOf("   "), u"INVALID");
    EXPECT_EQ(valueOf("\"\""), u"INVALID");
    EXPECT_EQ(profile.GetIniKey(u"S", u"L"), u"INVALID");
    EXPECT_EQ(profile.GetIniKey(u"T", u"K"), u"INVALID");
}

TEST_F(GetIniKeyTest, ReadsAnyProfileFile)
{
    const QString other = folder.filePath(QStringLiteral("other.scn"));
    store.write(other, u"S", u"K", u"v");
    EXPECT_EQ(GetIniKey(store, other, u"S", u"K"), u"v");
    EXPECT_EQ(profile.GetIniKey(u"S", u"K"), u"INVALID");
}

TEST_F(WorkingProfileTest, TheFirstDivisionIsNumberZero)
{
    profile.write(u"DIVISION0", u"DIVISIONNAME", u"First");
    QStringList names;
    for (int n = 0; n < divisionSections; ++n) {
        const QString name = profile.GetIniKey(divisionSection(n), u"DIVISIONNAME");
        if (name != invalidValue) {
            names << name;
        }
    }
    EXPECT_EQ(names, QStringList{QStringLiteral("First")});
}

TEST_F(WorkingProfileTest, AnEmptiedShipPlaceStillHasItsOtherKeys)
{
    for (const QStringView key : shipKeys) {
        profile.write(shipSection(0, 2), key, u"x");
    }
    profile.write(shipSection(0, 2), u"NAME", QString(noShip));
    EXPECT_EQ(profile.GetIniKey(shipSection(0, 2), u"NAME"), u"NO SHIP");
    for (const QStringView key : shipKeys) {
        if (key != u"NAME") {
            EXPECT_EQ(profile.GetIniKey(shipSection(0, 2), key), u"x") << key.toString().toStdString();
        }
    }
}

TEST_F(WorkingProfileTest, AWriteTellsWhetherItReachedTheDisk)
{
    EXPECT_TRUE(profile.write(u"S", u"K", u"v"));
    ASSERT_TRUE(QFile::remove(profile.path()));
    ASSERT_TRUE(QDir().mkdir(profile.path()));
    EXPECT_FALSE(profile.write(u"S", u"K", u"w"));
}

TEST_F(CreateNewIniTempFile, HoldsTheVersionAlone)
{
    EXPECT_TRUE(profile.createNewIniTempFile());
    EXPECT_EQ(onDisk(), "[VERSION]\r\nVERSIONNUMBER=64\r\n");
}

TEST_F(CreateNewIniTempFile, ReplacesAnOldProfile)
{
    put("[OLD]\r\nK=1\r\n");
    EXPECT_EQ(profile.GetIniKey(u"OLD", u"K"), u"1");
    EXPECT_TRUE(profile.createNewIniTempFile());
    EXPECT_EQ(onDisk(), "[VERSION]\r\nVERSIONNUMBER=64\r\n");
    EXPECT_EQ(profile.GetIniKey(u"OLD", u"K"), u"INVALID");
}

TEST_F(CreateNewIniTempFile, DropsWhatTheEventHasWritten)
{
    {
        const ProfileStore::Batch batch(store);
        profile.write(u"OLD", u"K", u"1");
        EXPECT_TRUE(profile.createNewIniTempFile());
    }
    EXPECT_EQ(onDisk(), "[VERSION]\r\nVERSIONNUMBER=64\r\n");
}

TEST_F(CreateNewIniTempFile, TellsThatTheWriteFailed)
{
    ASSERT_TRUE(QDir(folder.path()).removeRecursively());
    EXPECT_FALSE(profile.createNewIniTempFile());
}

TEST_F(CreateNewIniTempFile, AProfileThatCannotBeDeletedThrows)
{
    ASSERT_TRUE(QDir().mkdir(profile.path()));
    EXPECT_THROW(profile.createNewIniTempFile(), RuntimeError);
}

TEST_F(DivisionCount, IsTheNumberInTheFile)
{
    EXPECT_EQ(countOf("3"), 3);
    EXPECT_EQ(countOf(" 12 "), 12);
    EXPECT_EQ(countOf("-1"), -1);
    EXPECT_EQ(countOf("4 divisions"), 4);
}

TEST_F(DivisionCount, IsZeroForWhatIsNoNumber)
{
    EXPECT_EQ(profile.divisionCount(), 0);
    EXPECT_EQ(countOf(""), 0);
    EXPECT_EQ(countOf("INVALID"), 0);
    EXPECT_EQ(countOf("many"), 0);
}

TEST_F(DivisionCount, IsFoundUnderAKeyWrittenWithATrailingBlank)
{
    profile.write(u"SCENARIOINFO ", u"DIVISIONCNT ", u"5");
    EXPECT_EQ(profile.divisionCount(), 5);
}

TEST_F(DivisionCount, RoundsTiesToTheEvenNeighbour)
{
    EXPECT_EQ(countOf("2.5"), 2);
    EXPECT_EQ(countOf("3.5"), 4);
    EXPECT_EQ(countOf("2.51"), 3);
    EXPECT_EQ(countOf("-0.5"), 0);
}

TEST_F(DivisionCount, Beyond16BitsIsAnOverflow)
{
    EXPECT_EQ(countOf("32767"), 32767);
    EXPECT_EQ(countOf("-32768"), -32768);
    EXPECT_TRUE(isOverflow("32768"));
    EXPECT_TRUE(isOverflow("-32769"));
    EXPECT_TRUE(isOverflow("32767.5"));
    EXPECT_TRUE(isOverflow("1e9"));
}

} // namespace
} // namespace torvane::testing
