#include "scenario_file/save_scenario.h"

#include "platform/code_page.h"
#include "platform/profile.h"
#include "platform/runtime_error.h"
#include "scenario_file/stored_profile.h"

namespace torvane::testing {
namespace {

QByteArray kept(const char* name)
{
    return readWholeFile(QStringLiteral(KEPT_SCENARIOS) + QLatin1StringView(name));
}

class Saving : public StoredProfile
{
protected:
    /// The least that can be saved, with one ship.
    void storeOneShip()
    {
        set("SCENARIOINFO", "DIVISIONCNT", "1");
        set("DIVISION0", "DIVISIONNAME", "First");
        set("DIVISION0SHIP0", "NAME", "Cossack");
    }
    QByteArray bytes(TargetArea target = {}, QStringView label = u"Force A") const
    {
        return scenarioBytes(profile, target, label);
    }
    Profile saved(TargetArea target = {}, QStringView label = u"Force A") const
    {
        return Profile::parse(bytes(target, label));
    }
    QString value(const char* section, const char* key) const
    {
        const Profile file = saved();
        return fromCodePage(GetIniKey(file, section, key));
    }
    static QStringList heads(const QByteArray& file)
    {
        QStringList heads;
        for (const QByteArray& line : file.split('\n')) {
            if (line.startsWith('[')) {
                heads << QString::fromLatin1(line.trimmed());
            }
        }
        return heads;
    }
    /// The lines of one section, without its head.
    static QByteArray body(const QByteArray& file, const QByteArray& section)
    {
        const qsizetype begin = file.indexOf('[' + section + "]\r\n") + section.size() + 4;
        const qsizetype end = file.indexOf("\r\n[", begin - 2);
        return file.mid(begin, end < 0 ? -1 : end + 2 - begin);
    }
};

TEST_F(Saving, GivesTheKeptScenarioByteForByteWithTheAreaOnBlue)
{
    store(kept("three_divisions.bmm"));
    EXPECT_EQ(bytes({.x = 1234, .z = -567}), kept("three_divisions_blue_area.scn"));
}

TEST_F(Saving, GivesTheKeptScenarioByteForByteWithTheAreaOnRed)
{
    store(kept("three_divisions.bmm"));
    EXPECT_EQ(bytes({.dim = 4630}, u"Streitkraft A"), kept("three_divisions_red_area.scn"));
}

TEST_F(Saving, TwiceGivesTheSameFileAndLeavesTheProfileAsItIs)
{
    store(kept("three_divisions.bmm"));
    saveINIfile(scenario("A.scn"), profile, {.x = 5}, u"Force A");
    const QByteArray first = readWholeFile(scenario("A.scn"));
    saveINIfile(scenario("A.scn"), profile, {.x = 5}, u"Force A");
    EXPECT_EQ(readWholeFile(scenario("A.scn")), first);
    EXPECT_EQ(first, bytes({.x = 5}));
    EXPECT_EQ(readWholeFile(profile.path()), kept("three_divisions.bmm"));
    EXPECT_EQ(scenarioNames(), QStringList{QStringLiteral("A.scn")});
}

TEST_F(Saving, ReplacesALongerFileWhole)
{
    storeOneShip();
    writeWholeFile(scenario("A.scn"), QByteArray(100'000, 'x'));
    saveINIfile(scenario("A.scn"), profile, {}, u"Force A");
    EXPECT_EQ(readWholeFile(scenario("A.scn")), bytes());
}

TEST_F(Saving, LeavesOutTheSectionOfARemovedShipAndKeepsTheNumbers)
{
    set("SCENARIOINFO", "DIVISIONCNT", "2");
    for (const char* division : {"DIVISION0", "DIVISION1"}) {
        set(division, "DIVISIONNAME", division);
    }
    for (const char* ship : {"DIVISION0SHIP0", "DIVISION0SHIP1", "DIVISION0SHIP3", "DIVISION1SHIP0"}) {
        set(ship, "NAME", ship);
    }
    set("DIVISION0SHIP2", "NAME", "NO SHIP");
    EXPECT_EQ(heads(bytes()),
              (QStringList{QStringLiteral("[VERSION]"), QStringLiteral("[SCENARIODATA]"),
                           QStringLiteral("[SCENARIOINFO]"), QStringLiteral("[DIVISION0]"),
                           QStringLiteral("[DIVISION0SHIP0]"), QStringLiteral("[DIVISION0SHIP1]"),
                           QStringLiteral("[DIVISION0SHIP3]"), QStringLiteral("[DIVISION1]"),
                           QStringLiteral("[DIVISION1SHIP0]")}));
}

TEST_F(Saving, PutsTheFirstDivisionDirectlyBehindTheCount)
{
    storeOneShip();
    EXPECT_TRUE(bytes().contains("[SCENARIOINFO]\r\nDIVISIONCNT=1\r\n[DIVISION0]\r\nDIVISIONNAME=First\r\n"));
}

TEST_F(Saving, WalksTwelveDivisionsAndFourteenShips)
{
    set("SCENARIOINFO", "DIVISIONCNT", "13");
    for (const char* division : {"DIVISION11", "DIVISION12"}) {
        set(division, "DIVISIONNAME", "x");
    }
    for (const char* ship : {"DIVISION11SHIP13", "DIVISION11SHIP14", "DIVISION12SHIP0"}) {
        set(ship, "NAME", "x");
    }
    EXPECT_EQ(heads(bytes()).mid(3),
              (QStringList{QStringLiteral("[DIVISION11]"), QStringLiteral("[DIVISION11SHIP13]")}));
}

TEST_F(Saving, CopiesTheShipsOfADivisionWithoutAName)
{
    set("SCENARIOINFO", "DIVISIONCNT", "1");
    set("DIVISION0", "SIDE", "Blue");
    set("DIVISION0SHIP0", "NAME", "Cossack");
    EXPECT_EQ(heads(bytes()).mid(3), QStringList{QStringLiteral("[DIVISION0SHIP0]")});
}

TEST_F(Saving, WritesTheVersionOfTheFormatWhateverTheProfileHolds)
{
    storeOneShip();
    EXPECT_EQ(value("VERSION", "VERSIONNUMBER"), QStringLiteral("64"));
    set("VERSION", "VERSIONNUMBER", "12");
    EXPECT_EQ(value("VERSION", "VERSIONNUMBER"), QStringLiteral("64"));
}

TEST_F(Saving, CopiesMissingAndEmptyKeysAsTheWordInvalid)
{
    storeOneShip();
    set("SCENARIODATA", "TITLE", "");
    const QByteArray file = bytes();
    EXPECT_TRUE(file.contains("[SCENARIODATA]\r\nTITLE=INVALID\r\nDESCRIPTION_LINECNT=INVALID\r\n"));
    EXPECT_EQ(body(file, "DIVISION0"),
              "DIVISIONNAME=First\r\nSIDE=INVALID\r\nFORMATION=INVALID\r\nFORMATIONHEADING=INVALID\r\n"
              "FORMATIONSPACING=INVALID\r\nSPEED=INVALID\r\nSHIPCNT=INVALID\r\nFLAGSHIPINDEX=INVALID\r\n"
              "ENCUMBERED=INVALID\r\n");
}

TEST_F(Saving, CutsAValueToWhatOneReadGives)
{
    storeOneShip();
    set("SCENARIODATA", "TITLE", QByteArray(400, 'x').constData());
    EXPECT_EQ(value("SCENARIODATA", "TITLE"), QString(369, u'x'));
}

TEST_F(Saving, TurnsAndConvertsThePositionsAndKeepsTheirYards)
{
    storeOneShip();
    set("DIVISION0SHIP0", "XPOSITION", "1000");
    set("DIVISION0SHIP0", "YPOSITION", "7");
    set("DIVISION0SHIP0", "ZPOSITION", "100");
    const QByteArray ship = body(bytes(), "DIVISION0SHIP0");
    EXPECT_TRUE(
        ship.contains("\r\nXPOSITION=914.399981498718\r\nYPOSITION=7\r\nZPOSITION=-91.4399981498718\r\n"));
    EXPECT_TRUE(ship.endsWith("\r\nMAGBCOM=INVALID\r\nYARDSXPOSITION=1000\r\nYARDSZPOSITION=-100\r\n"));
}

TEST_F(Saving, KeepsTheYardsOfXAsTextAndThoseOfZAsANumber)
{
    storeOneShip();
    set("DIVISION0SHIP0", "XPOSITION", "007.50 yds");
    set("DIVISION0SHIP0", "ZPOSITION", "007.50 yds");
    EXPECT_EQ(value("DIVISION0SHIP0", "YARDSXPOSITION"), QStringLiteral("007.50 yds"));
    EXPECT_EQ(value("DIVISION0SHIP0", "YARDSZPOSITION"), QStringLiteral("-7.5"));
    EXPECT_EQ(value("DIVISION0SHIP0", "XPOSITION"), QStringLiteral("6.85799986124039"));
    EXPECT_EQ(value("DIVISION0SHIP0", "ZPOSITION"), QStringLiteral("-6.85799986124039"));
}

TEST_F(Saving, ReadsTheKeptYardsBackFromTheFile)
{
    storeOneShip();
    set("DIVISION0SHIP0", "XPOSITION", "\"'5'\"");
    EXPECT_TRUE(bytes().contains("\r\nYARDSXPOSITION=5\r\n")) << "each read takes a pair of quotes off";
}

TEST_F(Saving, LeavesAMissingXUnconvertedAndTakesAMissingZForZero)
{
    storeOneShip();
    const QByteArray ship = body(bytes(), "DIVISION0SHIP0");
    EXPECT_TRUE(ship.contains("\r\nXPOSITION=INVALID\r\n"));
    EXPECT_TRUE(ship.contains("\r\nZPOSITION=0\r\n"));
    EXPECT_TRUE(ship.endsWith("\r\nMAGBCOM=INVALID\r\nYARDSZPOSITION=0\r\n"));
    EXPECT_FALSE(ship.contains("YARDSXPOSITION"));
}

TEST_F(Saving, ConvertsTheSpacingsOfTheTableAlone)
{
    storeOneShip();
    set("DIVISION0", "FORMATIONSPACING", "1000");
    EXPECT_EQ(value("DIVISION0", "FORMATIONSPACING"), QStringLiteral("914.4"));
    set("DIVISION0", "FORMATIONSPACING", "850");
    EXPECT_EQ(value("DIVISION0", "FORMATIONSPACING"), QStringLiteral("850"));
}

TEST_F(Saving, LeavesAValueOfQuotedBlanksEmpty)
{
    storeOneShip();
    set("DIVISION0", "FORMATIONSPACING", "\"  \"");
    set("DIVISION0SHIP0", "XPOSITION", "\"  \"");
    EXPECT_TRUE(bytes().contains("\r\nFORMATIONSPACING=\r\n"));
    EXPECT_TRUE(bytes().contains("\r\nXPOSITION=\r\n"));
    EXPECT_FALSE(bytes().contains("YARDSXPOSITION"));
}

TEST_F(Saving, WritesLinesAsTheProfileWriterDoes)
{
    storeOneShip();
    set("SCENARIODATA", "TITLE", "\"\t tabs \t\"");
    set("SCENARIODATA", "LOCATION", "[North] Sea = cold; \"grey\"");
    set("SCENARIODATA", "MONTH", "'\"May\"'");
    const QByteArray file = bytes();
    EXPECT_TRUE(file.contains("\r\nTITLE=tabs\r\n"));
    EXPECT_TRUE(file.contains("\r\nLOCATION=[North] Sea = cold; \"grey\"\r\n"));
    EXPECT_TRUE(file.contains("\r\nMONTH=\"May\"\r\n"));
    Profile copy;
    Profile::parse(file).writeInto(copy);
    EXPECT_EQ(copy.bytes(), file);
}

TEST_F(Saving, DoesNotTakePositionsOfTheProfilesOwnYardsKeys)
{
    storeOneShip();
    set("DIVISION0SHIP0", "YARDSXPOSITION", "5");
    set("DIVISION0SHIP0", "XPOSITION", "6");
    EXPECT_EQ(value("DIVISION0SHIP0", "YARDSXPOSITION"), QStringLiteral("6"));
}

struct AreaCase
{
    const char16_t* label;
    bool blue;
};

class TargetKeys : public Saving, public ::testing::WithParamInterface<AreaCase>
{
};

TEST_P(TargetKeys, OfOneSideTakeTheAreaAndTheOthersKeepTheirText)
{
    storeOneShip();
    for (const char* key : {"BLUE_TARGETBOX_X", "BLUE_TARGETBOX_Z", "BLUE_TARGETBOXDIM", "RED_TARGETBOX_X",
                            "RED_TARGETBOX_Z", "RED_TARGETBOX_DIM"}) {
        set("SCENARIODATA", key, "old");
    }
    const Profile file = saved({.x = -300, .z = 400, .dim = 4630}, GetParam().label);
    const auto of = [&file](const char* key) { return file.value("SCENARIODATA", key)->toByteArray(); };
    const bool blue = GetParam().blue;
    EXPECT_EQ(of("BLUE_TARGETBOX_X"), blue ? "-300" : "old");
    EXPECT_EQ(of("BLUE_TARGETBOX_Z"), blue ? "-400" : "old");
    EXPECT_EQ(of("BLUE_TARGETBOXDIM"), blue ? "4630" : "old");
    EXPECT_EQ(of("RED_TARGETBOX_X"), blue ? "old" : "-300");
    EXPECT_EQ(of("RED_TARGETBOX_Z"), blue ? "old" : "-400");
    EXPECT_EQ(of("RED_TARGETBOX_DIM"), blue ? "old" : "4630");
}

INSTANTIATE_TEST_SUITE_P(ByLabel, TargetKeys,
                         ::testing::Values(AreaCase{u"Force A", true}, AreaCase{u"  Force A ", true},
                                           AreaCase{u"Force B", false}, AreaCase{u"Streitkraft A", false},
                                           AreaCase{u"force a", false}, AreaCase{u"", false}));

TEST_F(Saving, WritesTheAreaOfAScenarioWithoutOneAsZeroAndItsSize)
{
    storeOneShip();
    EXPECT_EQ(value("SCENARIODATA", "BLUE_TARGETBOX_X"), QStringLiteral("0"));
    EXPECT_EQ(value("SCENARIODATA", "BLUE_TARGETBOX_Z"), QStringLiteral("0"));
    EXPECT_EQ(value("SCENARIODATA", "BLUE_TARGETBOXDIM"), QStringLiteral("9260"));
}

TEST_F(Saving, TurnsTheSignOfTheFarthestArea)
{
    storeOneShip();
    const Profile file = saved({.x = 1, .z = std::numeric_limits<int>::min()});
    EXPECT_EQ(file.value("SCENARIODATA", "BLUE_TARGETBOX_Z")->toByteArray(), "2147483648");
}

TEST_F(Saving, WritesThreeSectionsForAScenarioWithoutDivisions)
{
    set("SCENARIOINFO", "DIVISIONCNT", "0");
    EXPECT_EQ(heads(bytes()).size(), 3);
}

TEST_F(Saving, AdvancesTwiceRoundTheCopyAndOnceForEachDivisionSpacingAndShipPlace)
{
    storeOneShip();
    int steps = 0;
    scenarioBytes(profile, {}, u"Force A", [&steps] { ++steps; });
    EXPECT_EQ(steps, 2 + 12 * (1 + 8 + 14));
}

} // namespace
} // namespace torvane::testing
