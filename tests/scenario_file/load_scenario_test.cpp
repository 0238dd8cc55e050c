#include "scenario_file/load_scenario.h"

#include "platform/runtime_error.h"
#include "scenario_file/load_fixture.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

using Loading = LoadedStore;

TEST_F(Loading, CopiesTheWholeScenarioInTheOrderOfTheFileWithoutTheKeptYards)
{
    const QByteArray file = readWholeFile(QStringLiteral(KEPT_SCENARIOS "three_divisions_blue_area.scn"));
    load(file);
    EXPECT_EQ(profileBytes(), readWholeFile(QStringLiteral(KEPT_SCENARIOS "three_divisions_loaded.bmm")));
}

TEST_F(Loading, WritesTheVersionOfTheFormatWhateverTheFileSays)
{
    for (const char* file : {"", "[VERSION]\r\nVERSIONNUMBER=63\r\n", "[VERSION]\r\nVERSIONNUMBER=x\r\n"}) {
        load(file);
        EXPECT_EQ(value("VERSION", "VERSIONNUMBER"), QStringLiteral("64"));
        EXPECT_TRUE(profileBytes().startsWith("[VERSION]\r\nVERSIONNUMBER=64\r\n[SCENARIODATA]\r\nTITLE="));
    }
}

TEST_F(Loading, ReplacesTheOldProfileWhole)
{
    set("DIVISION3", "DIVISIONNAME", "Old");
    set("OTHER", "KEY", "x");
    load("[DIVISION0]\r\nDIVISIONNAME=New\r\n");
    EXPECT_FALSE(profileBytes().contains("Old"));
    EXPECT_FALSE(profileBytes().contains("OTHER"));
    EXPECT_EQ(value("DIVISION0", "DIVISIONNAME"), QStringLiteral("New"));
}

TEST_F(Loading, GivesTheNamesOfAirSuperiorityTheirCodesAndKeepsOtherTexts)
{
    const char* const rows[][2] = {{"None", "2"},    {"Force A", "3"}, {"Contested", "4"},
                                   {"Force B", "5"}, {"INVALID", "2"}, {"", "2"},
                                   {"2", "2"},       {"3", "3"},       {"4", "4"},
                                   {"5", "5"},       {"none", "none"}, {"Keine", "Keine"}};
    for (const auto& row : rows) {
        load(section("SCENARIODATA", {QByteArray("AIR_SUPERIORITY=") + row[0]}));
        EXPECT_EQ(value("SCENARIODATA", "AIR_SUPERIORITY"), QLatin1StringView(row[1])) << row[0];
    }
    load("");
    EXPECT_EQ(value("SCENARIODATA", "AIR_SUPERIORITY"), QStringLiteral("2"));
}

TEST_F(Loading, TurnsTheSignOfBothTargetsAsNumbers)
{
    load(section("SCENARIODATA", {"BLUE_TARGETBOX_X=10", "BLUE_TARGETBOX_Z=-20", "BLUE_TARGETBOXDIM=9260",
                                  "RED_TARGETBOX_X=30", "RED_TARGETBOX_Z=040.50x"}));
    EXPECT_EQ(value("SCENARIODATA", "BLUE_TARGETBOX_X"), QStringLiteral("10"));
    EXPECT_EQ(value("SCENARIODATA", "BLUE_TARGETBOX_Z"), QStringLiteral("20"));
    EXPECT_EQ(value("SCENARIODATA", "RED_TARGETBOX_X"), QStringLiteral("30"));
    EXPECT_EQ(value("SCENARIODATA", "RED_TARGETBOX_Z"), QStringLiteral("-40.5"));
    EXPECT_EQ(value("SCENARIODATA", "RED_TARGETBOX_DIM"), QStringLiteral("INVALID"));
}

TEST_F(Loading, TakesMissingMovieEncumbranceAndEightTurretsForZeroAndLeavesTheOtherTwelve)
{
    load(divisionOf(0, "Blue") + shipOf(0, 0));
    EXPECT_EQ(value("SCENARIODATA", "MOVIE"), QStringLiteral("0"));
    EXPECT_EQ(value("DIVISION0", "ENCUMBERED"), QStringLiteral("0"));
    for (const char turret : QByteArray("DEGHIJTU")) {
        const QByteArray key = QByteArray("MGT") + turret + "DAMAGE";
        EXPECT_TRUE(profileBytes().contains("\r\n" + key + "=0\r\n")) << key.constData();
    }
    for (const char turret : QByteArray("ABCLMNOQRXYZ")) {
        const QByteArray key = QByteArray("MGT") + turret + "DAMAGE";
        EXPECT_TRUE(profileBytes().contains("\r\n" + key + "=INVALID\r\n")) << key.constData();
    }
}

TEST_F(Loading, KeepsMovieEncumbranceAndTurretsThatAreThere)
{
    load(section("SCENARIODATA", {"MOVIE=3"}) + divisionOf(0, "Blue", {"ENCUMBERED=1"}) +
         shipOf(0, 0, {"NAME=Cossack", "MGTDDAMAGE=-1"}));
    EXPECT_EQ(value("SCENARIODATA", "MOVIE"), QStringLiteral("3"));
    EXPECT_EQ(value("DIVISION0", "ENCUMBERED"), QStringLiteral("1"));
    EXPECT_EQ(value("DIVISION0SHIP0", "MGTDDAMAGE"), QStringLiteral("-1"));
}

TEST_F(Loading, WritesTheWordInvalidForOtherKeysThatAreMissing)
{
    load(divisionOf(0, "Blue") + shipOf(0, 0));
    const QByteArray bytes = profileBytes();
    EXPECT_TRUE(bytes.contains("\r\nTITLE=INVALID\r\nDESCRIPTION_LINECNT=INVALID\r\n"));
    EXPECT_TRUE(bytes.contains("[SCENARIOINFO]\r\nDIVISIONCNT=INVALID\r\n[DIVISION0]\r\n"));
    EXPECT_TRUE(bytes.contains("\r\nSPEED=INVALID\r\nSHIPCNT=INVALID\r\nFLAGSHIPINDEX=INVALID\r\n"));
    EXPECT_TRUE(bytes.contains("\r\nSHORTNAME=INVALID\r\nTYPE=INVALID\r\n"));
}

TEST_F(Loading, TurnsTheMetresOfTheSpacingTableBackToYards)
{
    const char* const rows[][2] = {
        {"457.2", "500"},  {"548.64", "600"},  {"640.08", "700"},  {"731.52", "800"}, {"822.96", "900"},
        {"914.4", "1000"}, {"1371.6", "1500"}, {"1828.8", "2000"}, {"850", "850"},    {"1000", "1000"}};
    for (const auto& row : rows) {
        load(divisionOf(0, "Blue", {QByteArray("FORMATIONSPACING=") + row[0]}));
        EXPECT_EQ(value("DIVISION0", "FORMATIONSPACING"), QLatin1StringView(row[1]));
    }
}

TEST_F(Loading, TakesPositionsFromTheKeptYardsAndTurnsZBack)
{
    load(divisionOf(0, "Blue") + shipOf(0, 0,
                                        {"NAME=Cossack", "XPOSITION=1", "YPOSITION=2.50", "ZPOSITION=3",
                                         "YARDSXPOSITION=007.50", "YARDSZPOSITION=-0100.0"}));
    EXPECT_EQ(value("DIVISION0SHIP0", "XPOSITION"), QStringLiteral("007.50"));
    EXPECT_EQ(value("DIVISION0SHIP0", "YPOSITION"), QStringLiteral("2.50"));
    EXPECT_EQ(value("DIVISION0SHIP0", "ZPOSITION"), QStringLiteral("100"));
    EXPECT_FALSE(profileBytes().contains("YARDS"));
    EXPECT_TRUE(profileBytes().contains("\r\nXPOSITION=007.50\r\nYPOSITION=2.50\r\nZPOSITION=100\r\n"
                                        "CREWQUALITY="));
}

TEST_F(Loading, WithoutKeptYardsPutsTheWordInvalidIntoThePositions)
{
    load(divisionOf(0, "Blue") + shipOf(0, 0, {"NAME=Cossack", "XPOSITION=914.4", "ZPOSITION=-914.4"}));
    EXPECT_EQ(value("DIVISION0SHIP0", "XPOSITION"), QStringLiteral("INVALID"));
    EXPECT_EQ(value("DIVISION0SHIP0", "ZPOSITION"), QStringLiteral("INVALID"));
    EXPECT_TRUE(profileBytes().contains("\r\nXPOSITION=INVALID\r\n"));
}

TEST_F(Loading, KeepsGapsAndLeavesOutRemovedShips)
{
    load(divisionOf(1, "Blue") + shipOf(1, 0) + shipOf(1, 2, {"NAME=NO SHIP", "TYPE=DD"}) +
         shipOf(1, 4, {"NAME="}) + shipOf(1, 13, {"NAME=Zulu"}) + shipOf(1, 14, {"NAME=Far"}) +
         divisionOf(11, "Red") + shipOf(11, 5, {"NAME=Z 1"}) + divisionOf(12, "Red"));
    const QByteArray bytes = profileBytes();
    for (const char* head :
         {"[DIVISION1]", "[DIVISION1SHIP0]", "[DIVISION1SHIP13]", "[DIVISION11]", "[DIVISION11SHIP5]"}) {
        EXPECT_TRUE(bytes.contains(head)) << head;
    }
    EXPECT_EQ(bytes.count('['), 3 + 5);
}

TEST_F(Loading, CopiesTheShipsOfADivisionWithoutAName)
{
    load(section("DIVISION0", {"SIDE=Blue", "SPEED=10"}) + shipOf(0, 3));
    EXPECT_EQ(value("DIVISION0", "SIDE"), QStringLiteral("INVALID"));
    EXPECT_EQ(value("DIVISION0SHIP3", "NAME"), QStringLiteral("Cossack"));
}

TEST_F(Loading, CutsAValueToWhatOneReadGives)
{
    load(section("SCENARIODATA", {"TITLE=" + QByteArray(10'000, 'x')}));
    EXPECT_EQ(value("SCENARIODATA", "TITLE"), QString(369, u'x'));
    EXPECT_TRUE(profileBytes().contains("\r\nTITLE=" + QByteArray(369, 'x') + "\r\n"));
}

TEST_F(Loading, ReadsBackWhatItWroteOnceMore)
{
    // Each read takes a pair of quotes off: one into the profile, one out of it.
    load(section("SCENARIODATA", {"TITLE=\"'x'\"", "LOCATION=\"  \""}));
    EXPECT_TRUE(profileBytes().contains("\r\nTITLE='x'\r\n"));
    EXPECT_EQ(value("SCENARIODATA", "TITLE"), QStringLiteral("x"));
    EXPECT_TRUE(profileBytes().contains("\r\nLOCATION=\r\n"));
}

TEST_F(Loading, AdvancesSevenTimesInTheHeadOnceAPlaceAndEightTimesAShip)
{
    const auto steps = [this](const QByteArray& bytes) {
        const ProfileStore::Batch batch(profiles);
        int count = 0;
        copyScenarioToProfile(Profile::parse(bytes), profile, [&count] { ++count; });
        return count;
    };
    EXPECT_EQ(steps(""), 7 + 12 * 14);
    EXPECT_EQ(steps(divisionOf(0, "Blue") + shipOf(0, 0) + shipOf(3, 13)), 7 + 12 * 14 + 2 * 7);
}

TEST_F(Loading, AdvancesOnceAPlaceInEachOfTheOtherPasses)
{
    const ProfileStore::Batch batch(profiles);
    int count = 0;
    const LoadProgress advance = [&count] { ++count; };
    restoreTargetArea(profile, target, advance);
    EXPECT_EQ(count, 2 * 12 * 14);
    rebuildShipTrack(profile, files, advance);
    EXPECT_EQ(count, 3 * 12 * 14);
    set("DIVISION0", "SIDE", "Blue");
    set("DIVISION1", "SIDE", "Red");
    rebuildDivisionFiles(profile, files, menus, advance);
    EXPECT_EQ(count, 3 * 12 * 14 + 2 * 14);
}

class TargetOfAFile : public LoadedStore
{
protected:
    TargetArea loaded(const char* blueX, const char* blueZ, const char* blueDim, const char* redX)
    {
        target = {.x = 1, .z = 2, .dim = 3};
        load(section("SCENARIODATA",
                     {QByteArray("BLUE_TARGETBOX_X=") + blueX, QByteArray("BLUE_TARGETBOX_Z=") + blueZ,
                      QByteArray("BLUE_TARGETBOXDIM=") + blueDim, QByteArray("RED_TARGETBOX_X=") + redX,
                      "RED_TARGETBOX_Z=-600", "RED_TARGETBOX_DIM=9260"}));
        return target;
    }
};

TEST_F(TargetOfAFile, IsThatOfForceAUnlessItsSizeReadsZero)
{
    EXPECT_EQ(loaded("500", "-700", "9260", "900"), (TargetArea{500, 700, 3}));
    EXPECT_EQ(loaded("500", "-700", "", "900"), (TargetArea{500, 700, 3}));
    EXPECT_EQ(loaded("500", "-700", "00", "900"), (TargetArea{500, 700, 3}));
}

TEST_F(TargetOfAFile, OfForceBKeepsZAtZero)
{
    EXPECT_EQ(loaded("500", "-700", "0", "900"), (TargetArea{900, 0, 3}));
}

TEST_F(TargetOfAFile, IsRoundedToTheEvenNeighbour)
{
    EXPECT_EQ(loaded("2.5", "-3.5", "1", "0"), (TargetArea{2, 4, 3}));
    EXPECT_EQ(loaded("0", "0", "0", "-0.51"), (TargetArea{-1, 0, 3}));
}

TEST_F(TargetOfAFile, ThatIsMissingIsAtZero)
{
    EXPECT_EQ(loaded("", "", "", ""), (TargetArea{0, 0, 3}));
    EXPECT_EQ(loaded("x", "INVALID", "9260", ""), (TargetArea{0, 0, 3}));
}

TEST_F(TargetOfAFile, ReachesToTheEndsOfThirtyTwoBits)
{
    EXPECT_EQ(loaded("2147483647", "2147483648", "9260", "0"),
              (TargetArea{2147483647, std::numeric_limits<int>::min(), 3}));
    expectError(RuntimeError::Overflow, [this] { loaded("2147483648", "0", "9260", "0"); });
    expectError(RuntimeError::Overflow, [this] { loaded("0", "-2147483648", "9260", "0"); });
    expectError(RuntimeError::Overflow, [this] { loaded("0", "1E999", "9260", "0"); });
    expectError(RuntimeError::Overflow, [this] { loaded("0", "0", "0", "-3E9"); });
}

TEST_F(TargetOfAFile, OfForceBIsNotLookedAtWhereForceAHasOne)
{
    EXPECT_EQ(loaded("5", "0", "9260", "1E999"), (TargetArea{5, 0, 3}));
}

TEST_F(Loading, TakesYardsThatTheProfileItselfHoldsForItsPositions)
{
    set("DIVISION0SHIP0", "YARDSXPOSITION", "10");
    set("DIVISION0SHIP0", "YARDSZPOSITION", "-20");
    set("DIVISION11SHIP13", "ZPOSITION", "30");
    restoreTargetArea(profile, target);
    EXPECT_EQ(value("DIVISION0SHIP0", "XPOSITION"), QStringLiteral("10"));
    EXPECT_EQ(value("DIVISION0SHIP0", "ZPOSITION"), QStringLiteral("20"));
    EXPECT_EQ(value("DIVISION11SHIP13", "ZPOSITION"), QStringLiteral("-30"));
}

TEST_F(Loading, RefusesTheWorkingProfileItself)
{
    set("SCENARIODATA", "TITLE", "Mine");
    const QByteArray before = profileBytes();
    expectError(RuntimeError::PermissionDenied, [this] { readScenario(profile.path(), profile); });
    QFile::link(profile.path(), scenario("link.scn"));
    expectError(RuntimeError::PermissionDenied, [this] { readScenario(scenario("link.scn"), profile); });
    EXPECT_EQ(profileBytes(), before);
}

} // namespace
} // namespace torvane::testing
