#include "store/working_profile.h"

#include "platform/runtime_error.h"
#include "store/profile_keys.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <array>

using namespace torvane;

namespace {

// The lists are typed anew here, so that a slip in the program's own tables shows.

const QStringList scenarioData =
    QStringLiteral(
        "TITLE DESCRIPTION_LINECNT DESCRIPTION_LINE0 START_TIME START_TIME_HOUR START_TIME_MINUTE SUNRISE "
        "SUNSET "
        "SUNRISE_HOUR SUNRISE_MINUTE SUNSET_HOUR SUNSET_MINUTE MONTH YEAR BLUEBRIEFING_LINECNT "
        "BLUEBRIEFING_LINE0 REDBRIEFING_LINECNT REDBRIEFING_LINE0 V.CONDITION_BLUE V.CONDITION_RED "
        "AIR_SUPERIORITY LOCATION VISIBILITY RADARCONDITIONS WIND_SPEED WIND_DIRECTION VP_MODS MOONPHASE "
        "SEASTATE GAMELENGTH GAMELENGTH_HOUR GAMELENGTH_MINUTE BLUE_NAVY RED_NAVY RAIN DDTRANSPORTS "
        "BLUE_TARGETBOX_X BLUE_TARGETBOX_Z BLUE_TARGETBOXDIM RED_TARGETBOX_X RED_TARGETBOX_Z "
        "RED_TARGETBOX_DIM BLUE_DISENGAGE_HEADING RED_DISENGAGE_HEADING BATTLETYPE BLUE_VICTORY_MODS "
        "RED_VICTORY_MODS BLUE_FORCE_TYPE RED_FORCE_TYPE MOVIE")
        .split(u' ');

const QStringList division =
    QStringLiteral(
        "DIVISIONNAME SIDE FORMATION FORMATIONHEADING FORMATIONSPACING SPEED SHIPCNT FLAGSHIPINDEX "
        "ENCUMBERED")
        .split(u' ');

const QStringList identity = QStringLiteral("NAME SHORTNAME TYPE CLASS NAVY").split(u' ');
const QStringList position = QStringLiteral("XPOSITION YPOSITION ZPOSITION").split(u' ');
const QStringList zeroedPosition =
    QStringLiteral("YARDSXPOSITION XPOSITION YPOSITION YARDSZPOSITION ZPOSITION").split(u' ');
const QStringList condition =
    QStringLiteral(
        "CREWQUALITY CREWFATIGUE NIGHTTRAINING PREVIOUSCOMBAT CURRENTHITPOINTS CURRENTFLOATPOINTS "
        "CURRENTFIRECOUNT PROPULSIONSYSTEMPERCENTAGE PROPULSIONSYSTEMDAMAGE MANUEVERSYSTEMDIRECTION "
        "MANUEVERSYSTEMDAMAGE RADARTYPE RADARDAMAGE ELECTRICALSYSTEMDAMAGE BRIDGEDAMAGE "
        "DAMAGECONTROLPERCENTAGE DAMAGECONTROLDAMAGE SEARCHLIGHTP1DAMAGE SEARCHLIGHTP2DAMAGE "
        "SEARCHLIGHTS1DAMAGE SEARCHLIGHTS2DAMAGE CIWPERCENTAGE CIWDAMAGE DIRECTOR1DAMAGE DIRECTOR2DAMAGE "
        "TORPMOUNT1TORPSLEFT TORPMOUNT1DAMAGE TORPMOUNT2TORPSLEFT TORPMOUNT2DAMAGE TORPMOUNT3TORPSLEFT "
        "TORPMOUNT3DAMAGE TORPMOUNT4TORPSLEFT TORPMOUNT4DAMAGE SECONDARYGUNSFORECNT SECONDARYGUNSAFTCNT "
        "SECONDARYGUNSPORTCNT SECONDARYGUNSSTBCNT SECONDARYMAGDAMAGE SECONDARYMAGHE SECONDARYMAGCOM "
        "SECONDARYMAGAP MGTADAMAGE MGTBDAMAGE MGTCDAMAGE MGTDDAMAGE MGTEDAMAGE MGTGDAMAGE MGTHDAMAGE "
        "MGTIDAMAGE MGTJDAMAGE MGTLDAMAGE MGTMDAMAGE MGTNDAMAGE MGTODAMAGE MGTQDAMAGE MGTRDAMAGE MGTTDAMAGE "
        "MGTUDAMAGE MGTXDAMAGE MGTYDAMAGE MGTZDAMAGE MAGADAMAGE MAGAHE MAGAAP MAGACOM MAGBDAMAGE MAGBHE "
        "MAGBAP MAGBCOM")
        .split(u' ');

template <std::size_t size>
QStringList listOf(const std::array<QStringView, size>& keys)
{
    QStringList list;
    for (const QStringView key : keys) {
        list << key.toString();
    }
    return list;
}

QByteArray zeroes(const QStringList& keys)
{
    QByteArray lines;
    for (const QString& key : keys) {
        lines += key.toLatin1() + "=0\r\n";
    }
    return lines;
}

QByteArray section(const QString& name)
{
    return '[' + name.toLatin1() + "]\r\n";
}

/// What `zeroProfile` makes of nothing.
QByteArray zeroedHead()
{
    return "[VERSION]\r\nVERSIONNUMBER=64\r\n[SCENARIODATA]\r\n" + zeroes(scenarioData) +
           "[SCENARIOINFO]\r\nDIVISIONCNT=0\r\n";
}

class WorkingProfileTest : public testing::Test
{
protected:
    QByteArray onDisk() const
    {
        QFile file(profile.path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    void put(const QByteArray& bytes) const
    {
        QFile file(profile.path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QString valueOf(const QByteArray& text)
    {
        put("[S]\r\nK=" + text + "\r\n");
        return profile.GetIniKey(u"S", u"K");
    }
    int countOf(const QByteArray& text)
    {
        put("[SCENARIOINFO]\r\nDIVISIONCNT=" + text + "\r\n");
        return profile.divisionCount();
    }
    bool isOverflow(const QByteArray& text)
    {
        try {
            countOf(text);
        } catch (const RuntimeError& error) {
            return error.number() == RuntimeError::Overflow;
        }
        return false;
    }

    QTemporaryDir folder;
    ProfileStore store;
    WorkingProfile profile{store, folder.path()};
};

using ProfileKeys = testing::Test;
using GetIniKeyTest = WorkingProfileTest;
using CreateNewIniTempFile = WorkingProfileTest;
using ZeroProfile = WorkingProfileTest;
using DivisionCount = WorkingProfileTest;

} // namespace

TEST_F(ProfileKeys, TheScenarioDataSectionHasTheFiftyKeysOfTheScenarioFile)
{
    EXPECT_EQ(scenarioDataKeys.size(), 50U);
    EXPECT_EQ(listOf(scenarioDataKeys), scenarioData);
}

TEST_F(ProfileKeys, ADivisionHasNineKeys)
{
    EXPECT_EQ(divisionKeys.size(), 9U);
    EXPECT_EQ(listOf(divisionKeys), division);
}

TEST_F(ProfileKeys, AShipHasSeventySevenKeys)
{
    EXPECT_EQ(shipKeys.size(), 77U);
    EXPECT_EQ(listOf(shipKeys), identity + position + condition);
}

TEST_F(ProfileKeys, NumbersStandInSectionNamesPlainlyAndCountFromZero)
{
    EXPECT_EQ(divisionSection(0), u"DIVISION0");
    EXPECT_EQ(divisionSection(11), u"DIVISION11");
    EXPECT_EQ(shipSection(3, 0), u"DIVISION3SHIP0");
    EXPECT_EQ(shipSection(11, 13), u"DIVISION11SHIP13");
    EXPECT_EQ(divisionSections, 12);
    EXPECT_EQ(shipSections, 14);
}

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

TEST_F(ZeroProfile, OfNoFileWritesOnlyTheVersionAndScenarioSections)
{
    profile.zeroProfile();
    EXPECT_EQ(onDisk(), zeroedHead());
}

TEST_F(ZeroProfile, PutsZeroOverTheNineKeysOfADivision)
{
    profile.zeroProfile();
    put(onDisk() + "[DIVISION0]\r\nSPEED=12\r\nDIVISIONNAME=First\r\nOTHER=7\r\n");
    profile.zeroProfile();
    QStringList rest = division;
    rest.removeAll(QStringLiteral("SPEED"));
    rest.removeAll(QStringLiteral("DIVISIONNAME"));
    EXPECT_EQ(onDisk(),
              zeroedHead() + "[DIVISION0]\r\nSPEED=0\r\nDIVISIONNAME=0\r\nOTHER=7\r\n" + zeroes(rest));
}

TEST_F(ZeroProfile, WritesTheKeysOfAShipWithTheYardsBeforeEachPosition)
{
    put("[DIVISION0]\r\nDIVISIONNAME=First\r\n[DIVISION0SHIP0]\r\nNAME=Warspite\r\n");
    profile.zeroProfile();
    QStringList otherDivisionKeys = division.mid(1);
    EXPECT_EQ(onDisk(), "[DIVISION0]\r\nDIVISIONNAME=0\r\n" + zeroes(otherDivisionKeys) +
                            section(QStringLiteral("DIVISION0SHIP0")) +
                            zeroes(identity + zeroedPosition + condition) + zeroedHead());
}

TEST_F(ZeroProfile, LeavesAnEmptiedShipPlaceAlone)
{
    const QByteArray place =
        "[DIVISION0SHIP0]\r\nNAME=NO SHIP\r\nXPOSITION=0.000000\r\nCLASS=\r\nTYPE=BB\r\n";
    put("[DIVISION0]\r\nDIVISIONNAME=First\r\n" + place);
    profile.zeroProfile();
    EXPECT_TRUE(onDisk().contains("\r\n" + place + "[VERSION]"));
}

TEST_F(ZeroProfile, LeavesAShipWithoutNameAlone)
{
    put("[DIVISION0]\r\nDIVISIONNAME=First\r\n[DIVISION0SHIP0]\r\nTYPE=BB\r\nNAME=\r\n");
    profile.zeroProfile();
    EXPECT_TRUE(onDisk().contains("\r\n[DIVISION0SHIP0]\r\nTYPE=BB\r\nNAME=\r\n[VERSION]"));
}

TEST_F(ZeroProfile, LeavesTheShipsOfAMissingDivisionAlone)
{
    put("[DIVISION1SHIP0]\r\nNAME=Warspite\r\n[DIVISION2]\r\nSPEED=12\r\n");
    profile.zeroProfile();
    EXPECT_EQ(onDisk(), "[DIVISION1SHIP0]\r\nNAME=Warspite\r\n[DIVISION2]\r\nSPEED=12\r\n" + zeroedHead());
}

TEST_F(ZeroProfile, TriesTenShipsOfEachOfTwelveDivisions)
{
    QByteArray file;
    for (const int n : {0, 5, 11, 12}) {
        file += "[DIVISION" + QByteArray::number(n) + "]\r\nDIVISIONNAME=D\r\n";
        for (const int m : {0, 4, 9, 10, 13}) {
            file += section(shipSection(n, m)) + "NAME=Ship\r\nMAGBCOM=7\r\n";
        }
    }
    put(file);
    profile.zeroProfile();
    for (const int n : {0, 5, 11, 12}) {
        const bool divisionTried = n < 12;
        EXPECT_EQ(profile.GetIniKey(divisionSection(n), u"DIVISIONNAME"), divisionTried ? u"0" : u"D");
        for (const int m : {0, 4, 9, 10, 13}) {
            const bool tried = divisionTried && m < 10;
            EXPECT_EQ(profile.GetIniKey(shipSection(n, m), u"NAME"), tried ? u"0" : u"Ship") << n << ' ' << m;
            EXPECT_EQ(profile.GetIniKey(shipSection(n, m), u"MAGBCOM"), tried ? u"0" : u"7") << n << ' ' << m;
        }
    }
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
