#include "store/profile_key_lists.h"
#include "store/working_profile_fixture.h"

namespace torvane::testing {
namespace {

const QStringList zeroedPosition =
    QStringLiteral("YARDSXPOSITION XPOSITION YPOSITION YARDSZPOSITION ZPOSITION").split(u' ');

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

using ZeroProfile = WorkingProfileTest;

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

} // namespace
} // namespace torvane::testing
