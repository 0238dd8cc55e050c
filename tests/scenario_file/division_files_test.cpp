#include "platform/runtime_error.h"
#include "scenario_file/load_fixture.h"
#include "support/expect_error.h"
#include "support/failing_system.h"

namespace torvane::testing {
namespace {

using DivisionFiles = LoadedStore;

TEST_F(DivisionFiles, HoldTheSixSettingsAndTheShipsOfEachDivision)
{
    load(section("DIVISION0",
                 {"DIVISIONNAME=Division 1", "SIDE=Blue", "FORMATION=Column", "FORMATIONHEADING=45",
                  "FORMATIONSPACING=914.4", "SPEED=18", "SHIPCNT=2", "FLAGSHIPINDEX=0"}) +
         shipOf(0, 0, {"NAME=Cossack", "TYPE=DD"}) + shipOf(0, 1, {"NAME=K\xF6ln", "TYPE=CL"}));
    EXPECT_EQ(divData(Side::Blue, 1),
              (QStringList{QStringLiteral("Division 1"), QStringLiteral("Blue"), QStringLiteral("Column"),
                           QStringLiteral("45"), QStringLiteral("1000"), QStringLiteral("18")}));
    EXPECT_EQ(readWholeFile(files.divDataFile(Side::Blue, 1)),
              "\"Division 1\"\r\n\"Blue\"\r\n\"Column\"\r\n\"45\"\r\n\"1000\"\r\n\"18\"\r\n");
    EXPECT_EQ(readWholeFile(files.divisionFile(Side::Blue, 1)), "\"DD Cossack\"\r\n\"CL K\xF6ln\"\r\n");
}

TEST_F(DivisionFiles, LeaveOutSettingsThatAreMissing)
{
    load(divisionOf(0, "Blue", {"FORMATIONHEADING=45"}));
    EXPECT_EQ(divData(Side::Blue, 1),
              (QStringList{QStringLiteral("Division 0"), QStringLiteral("Blue"), QStringLiteral("45")}));
}

TEST_F(DivisionFiles, LeaveOutPlacesWithoutTypeAndNameAlone)
{
    load(divisionOf(0, "Blue") + shipOf(0, 0) + shipOf(0, 2, {"NAME=NO SHIP", "TYPE=DD"}) +
         shipOf(0, 13, {"NAME=Zulu", "TYPE=DD"}));
    EXPECT_EQ(division(Side::Blue, 1),
              (QStringList{QStringLiteral("INVALID Cossack"), QStringLiteral("DD Zulu")}));
    set("DIVISION0SHIP5", "TYPE", "BB");
    rebuildDivisionFiles(profile, files, menus);
    EXPECT_EQ(division(Side::Blue, 1),
              (QStringList{QStringLiteral("INVALID Cossack"), QStringLiteral("BB INVALID"),
                           QStringLiteral("DD Zulu")}));
}

TEST_F(DivisionFiles, CountWithinEachSide)
{
    load(divisionOf(0, "Red") + divisionOf(1, "Blue") + divisionOf(2, "Red") + divisionOf(3, "Blue"));
    EXPECT_EQ(divData(Side::Red, 1).first(), QStringLiteral("Division 0"));
    EXPECT_EQ(divData(Side::Blue, 1).first(), QStringLiteral("Division 1"));
    EXPECT_EQ(divData(Side::Red, 2).first(), QStringLiteral("Division 2"));
    EXPECT_EQ(divData(Side::Blue, 2).first(), QStringLiteral("Division 3"));
}

TEST_F(DivisionFiles, OfForceBFirstAreThoseOfSectionZero)
{
    load(divisionOf(0, "Red") + shipOf(0, 0, {"NAME=Z 1", "TYPE=DD"}) + divisionOf(1, "Blue"));
    EXPECT_EQ(division(Side::Red, 1), QStringList{QStringLiteral("DD Z 1")});
    EXPECT_EQ(division(Side::Blue, 1), QStringList());
}

TEST_F(DivisionFiles, TakeTheSideInAnyCaseAndAllButBlueForForceB)
{
    load(divisionOf(0, "bLUE") + divisionOf(1, "Green") + divisionOf(2, "BLUE") + divisionOf(3, "red"));
    EXPECT_EQ(menus.calls, (QStringList{QStringLiteral("show A1"), QStringLiteral("enable"),
                                        QStringLiteral("add Division 0|bLUE"), QStringLiteral("show B1"),
                                        QStringLiteral("enable"), QStringLiteral("add Division 1|Green"),
                                        QStringLiteral("show A2"), QStringLiteral("enable"),
                                        QStringLiteral("add Division 2|BLUE"), QStringLiteral("show B2"),
                                        QStringLiteral("enable"), QStringLiteral("add Division 3|red")}));
}

TEST_F(DivisionFiles, EndAtTheFirstSectionWithoutASide)
{
    load(divisionOf(0, "Blue") + divisionOf(2, "Red"));
    EXPECT_TRUE(QFile::exists(files.divDataFile(Side::Blue, 1)));
    EXPECT_FALSE(QFile::exists(files.divDataFile(Side::Red, 1)));
    EXPECT_EQ(menus.calls.size(), 3);
}

TEST_F(DivisionFiles, OfASeventhDivisionAreWritten)
{
    QByteArray file;
    for (int n = 0; n < 7; ++n) {
        file += divisionOf(n, "Red");
    }
    load(file);
    EXPECT_EQ(divData(Side::Red, 7).first(), QStringLiteral("Division 6"));
    EXPECT_EQ(division(Side::Red, 7), QStringList());
}

TEST_F(DivisionFiles, OfTwelveDivisionsOfOneSideLieInTheWorkFolderAlone)
{
    QByteArray file;
    for (int n = 0; n < 99; ++n) {
        file += divisionOf(n, "Blue") + shipOf(n, 0);
    }
    load(file);
    QStringList expected{QStringLiteral("ShipTrack.bmm"), QStringLiteral("iniTemp.bmm")};
    for (int number = 1; number <= 12; ++number) {
        expected << QStringLiteral("DivDataA%1.txt").arg(number)
                 << QStringLiteral("DivisionA%1.txt").arg(number);
    }
    expected.sort();
    EXPECT_EQ(workNames(), expected);
    EXPECT_EQ(shipTrack().size(), 12);
    files.killFiles();
    files.killSurplusDivisions();
    EXPECT_EQ(workNames(), QStringList());
}

TEST_F(DivisionFiles, KeepACommaAndQuotesInAName)
{
    load(section("DIVISION0", {"DIVISIONNAME=Scouts, \"fast\" ones", "SIDE=Blue"}));
    EXPECT_EQ(divData(Side::Blue, 1),
              (QStringList{QStringLiteral("Scouts, \"fast\" ones"), QStringLiteral("Blue")}));
    EXPECT_EQ(menus.calls.last(), QStringLiteral("add Scouts, \"fast\" ones|Blue"));
}

TEST_F(DivisionFiles, WithoutANameShiftWhatTheMenuIsTold)
{
    set("DIVISION0", "SIDE", "Blue");
    set("DIVISION0", "FORMATION", "Column");
    rebuildDivisionFiles(profile, files, menus);
    EXPECT_EQ(menus.calls.last(), QStringLiteral("add Blue|Column"));
    set("DIVISION0", "FORMATION", "");
    rebuildDivisionFiles(profile, files, menus);
    EXPECT_EQ(menus.calls.last(), QStringLiteral("add Blue|"));
}

TEST_F(DivisionFiles, ThatCannotBeWrittenEndTheWalk)
{
    set("DIVISION0", "SIDE", "Blue");
    set("DIVISION1", "SIDE", "Red");
    QDir(workFolder()).mkdir(QStringLiteral("DivisionA1.txt"));
    expectError(RuntimeError::PathAccessError, [this] { rebuildDivisionFiles(profile, files, menus); });
    EXPECT_EQ(menus.calls, (QStringList{QStringLiteral("show A1"), QStringLiteral("enable"),
                                        QStringLiteral("add Blue|")}));
    EXPECT_FALSE(QFile::exists(files.divDataFile(Side::Red, 1)));
}

TEST_F(DivisionFiles, OnAFullDiskLeaveNothingHalfWritten)
{
    set("DIVISION0", "SIDE", "Blue");
    const QStringList before = workNames();
    {
        const FullDisk full(3);
        EXPECT_THROW(rebuildDivisionFiles(profile, files, menus), RuntimeError);
        set("DIVISION0SHIP0", "NAME", "Cossack");
        EXPECT_THROW(rebuildShipTrack(profile, files), RuntimeError);
    }
    EXPECT_EQ(workNames(), before);
}

TEST_F(DivisionFiles, AreJoinedByTheNamesOfAllShips)
{
    load(divisionOf(0, "Blue") + shipOf(0, 1) + shipOf(0, 3, {"NAME=NO SHIP"}) + shipOf(4, 0, {"NAME=Z, 1"}) +
         shipOf(11, 13, {"NAME=Emden"}));
    EXPECT_EQ(shipTrack(),
              (QStringList{QStringLiteral("Cossack"), QStringLiteral("Z, 1"), QStringLiteral("Emden")}));
    EXPECT_EQ(readWholeFile(files.shipTrack()), "\"Cossack\"\r\n\"Z, 1\"\r\n\"Emden\"\r\n");
}

TEST_F(DivisionFiles, NameAnEmptiedPlaceThatReachedTheProfile)
{
    set("DIVISION0SHIP0", "NAME", "NO SHIP");
    rebuildShipTrack(profile, files);
    EXPECT_EQ(shipTrack(), QStringList{QStringLiteral("NO SHIP")});
}

TEST_F(DivisionFiles, OfAScenarioWithoutDivisionsAreAnEmptyShipTrack)
{
    load("");
    EXPECT_EQ(workNames(), (QStringList{QStringLiteral("ShipTrack.bmm"), QStringLiteral("iniTemp.bmm")}));
    EXPECT_EQ(readWholeFile(files.shipTrack()), "");
    EXPECT_TRUE(menus.calls.isEmpty());
}

} // namespace
} // namespace torvane::testing
