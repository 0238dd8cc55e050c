#include "divisions/records_fixture.h"
#include "support/expect_error.h"
#include "support/failing_system.h"

namespace torvane::testing {
namespace {

class Divisions : public RecordsFixture
{
};

TEST_F(Divisions, ANewOneHasItsKeysInOrder)
{
    create(Side::Blue, 1, ships({1, 2}));
    QFile file(profile.path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray start = "[DIVISION0]\r\nDIVISIONNAME=Division 1\r\nSIDE=Blue\r\nFORMATION=Column\r\n"
                             "FORMATIONHEADING=90\r\nFORMATIONSPACING=1000\r\nSPEED=24\r\nSHIPCNT=2\r\n"
                             "FLAGSHIPINDEX=0\r\nENCUMBERED=0\r\n[DIVISION0SHIP0]\r\nNAME=Ship 1\r\n";
    EXPECT_EQ(file.readAll().left(start.size()), start);
}

TEST_F(Divisions, ANewForceBDivisionBehindTwoOfForceAAndOneOfForceBIsSectionThree)
{
    create(Side::Blue, 1, ships({1}));
    create(Side::Red, 1, ships({2}));
    create(Side::Blue, 2, ships({3}));
    create(Side::Red, 2, ships({4}));
    EXPECT_EQ(key(QStringLiteral("DIVISION3"), "DIVISIONNAME"), QStringLiteral("Division 2"));
    EXPECT_EQ(key(QStringLiteral("DIVISION3"), "SIDE"), QStringLiteral("Red"));
    EXPECT_EQ(key(QStringLiteral("DIVISION2"), "SIDE"), QStringLiteral("Blue"));
    EXPECT_EQ(key(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT"), QStringLiteral("4"));
}

TEST_F(Divisions, WithOneEachBothFilesExistAndTheProfileHasSectionsNoughtAndOne)
{
    create(Side::Blue, 1, ships({1}));
    create(Side::Red, 1, ships({2}));
    EXPECT_TRUE(QFile::exists(workDir + QStringLiteral("DivisionA1.txt")));
    EXPECT_TRUE(QFile::exists(workDir + QStringLiteral("DivisionB1.txt")));
    EXPECT_EQ(shipName(0, 0), QStringLiteral("Ship 1"));
    EXPECT_EQ(shipName(1, 0), QStringLiteral("Ship 2"));
}

TEST_F(Divisions, WithoutShipsHasNoFlagshipAndNoShipSections)
{
    records.countDivision(Side::Red, 1);
    records.saveToINI(fields(Side::Red, 1), true);
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "SHIPCNT"), QStringLiteral("0"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FLAGSHIPINDEX"), invalidValue);
    EXPECT_EQ(shipName(0, 0), invalidValue);
}

TEST_F(Divisions, AGermanUsersDivisionIsStoredInEnglish)
{
    records.countDivision(Side::Blue, 1);
    records.saveToINI(fields(Side::Blue, 1, QStringLiteral("Konvoi")), true);
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FORMATION"), QStringLiteral("Convoy"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "DIVISIONNAME"), QStringLiteral("Division 1"));
}

TEST(FormationWords, TranslateBothWaysAndLetOthersPass)
{
    const char* const words[][2] = {
        {"Column", "Kolonne"}, {"Line of Bearing", "Peilung"}, {"Convoy", "Konvoi"}};
    for (const auto& word : words) {
        const QString english = QLatin1StringView(word[0]);
        const QString german = QLatin1StringView(word[1]);
        EXPECT_EQ(storedFormation(german), english);
        EXPECT_EQ(storedFormation(english), english);
        EXPECT_EQ(shownFormation(english, Language::German), german);
        EXPECT_EQ(shownFormation(english, Language::English), english);
    }
    EXPECT_EQ(storedFormation(QStringLiteral("Wedge")), QStringLiteral("Wedge"));
    EXPECT_EQ(shownFormation(QStringLiteral("INVALID"), Language::German), QStringLiteral("INVALID"));
}

TEST_F(Divisions, AnEncumberedOneSaysSo)
{
    records.countDivision(Side::Blue, 1);
    DivisionFields shown = fields(Side::Blue, 1);
    shown.encumbered = true;
    records.saveToINI(shown, true);
    EXPECT_TRUE(records.isEncumbered(QStringLiteral("DIVISION0")));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "ENCUMBERED"), QStringLiteral("1"));
    EXPECT_FALSE(records.isEncumbered(QStringLiteral("DIVISION1")));
}

TEST_F(Divisions, AFlagshipBelowTheTenRowsIsNotStored)
{
    records.countDivision(Side::Blue, 1);
    DivisionFields shown = fields(Side::Blue, 1);
    shown.flagshipRow = 10;
    records.saveToINI(shown, true);
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FLAGSHIPINDEX"), invalidValue);
    shown.flagshipRow = 9;
    records.saveToINI(shown, true);
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FLAGSHIPINDEX"), QStringLiteral("9"));
}

TEST_F(Divisions, TheCountIsZeroFirstAndThenTheSum)
{
    records.saveDivCountINI();
    EXPECT_EQ(key(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT"), QStringLiteral("0"));
    records.countDivision(Side::Blue, 2);
    records.countDivision(Side::Red, 1);
    records.writeDivisionCount(QStringLiteral("9"));
    EXPECT_EQ(key(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT"), QStringLiteral("3"));
}

TEST_F(Divisions, WithoutAnyTheFallbackCountIsWritten)
{
    records.writeDivisionCount(QStringLiteral("5 divisions"));
    EXPECT_EQ(key(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT"), QStringLiteral("5"));
    records.writeDivisionCount(QString());
    EXPECT_EQ(key(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT"), QStringLiteral("0"));
}

TEST_F(Divisions, ARecountTakesTheFilesThatThereAre)
{
    for (const int number : {1, 2, 5}) {
        files.write(files.divisionFile(Side::Blue, number), ships({number}));
    }
    files.write(files.divisionFile(Side::Red, 3), ships({9}));
    files.write(files.divisionFile(Side::Red, 7), ships({10})); // beyond the six
    records.countDivision(Side::Red, 6);
    records.recount();
    EXPECT_EQ(records.blueDivCount(), 3);
    EXPECT_EQ(records.redDivCount(), 1);
}

TEST_F(Divisions, ARecountWithoutAFirstForceADivisionIsNought)
{
    files.write(files.divisionFile(Side::Blue, 2), ships({1}));
    files.write(files.divisionFile(Side::Red, 1), ships({2}));
    records.countDivision(Side::Blue, 4);
    records.recount();
    EXPECT_EQ(records.blueDivCount(), 0);
    EXPECT_EQ(records.redDivCount(), 0);
}

TEST_F(Divisions, AListOfShipsThatCannotBeSeenIsAnErrorAndNotADivisionWithoutShips)
{
    create(Side::Blue, 1, ships({1, 2}));
    const ClosedFolder closed(workDir);
    const auto names = ::testing::HasSubstr("DivisionA1.txt");
    expectError(
        RuntimeError::PermissionDenied, [this] { records.countDivisionShips(Side::Blue, 1); }, names);
    expectError(
        RuntimeError::PermissionDenied, [this] { records.recount(); }, names);
    expectError(
        RuntimeError::PermissionDenied, [this] { records.countLoaded(); }, names);
}

TEST_F(Divisions, ACountBehindALoadTakesEachSidesFilesWhateverTheOtherHas)
{
    files.write(files.divisionFile(Side::Red, 1), ships({2}));
    files.write(files.divisionFile(Side::Red, 2), ships({3}));
    records.countDivision(Side::Blue, 4);
    records.countLoaded();
    EXPECT_EQ(records.blueDivCount(), 0);
    EXPECT_EQ(records.redDivCount(), 2);
}

TEST_F(Divisions, OfOneNameAndSideGetTheSameSettingsAllOfThem)
{
    create(Side::Blue, 1, ships({1}));
    create(Side::Blue, 2, ships({2}));
    profile.write(u"DIVISION1", u"DIVISIONNAME", u"Division 1");
    DivisionFields shown = fields(Side::Blue, 1);
    shown.heading = QStringLiteral("15");
    records.saveEditedDivision(shown);
    EXPECT_TRUE(records.writeFlagship(readDialogFields(shown), 3));
    for (const char* section : {"DIVISION0", "DIVISION1"}) {
        EXPECT_EQ(key(QLatin1StringView(section), "FORMATIONHEADING"), QStringLiteral("15")) << section;
        EXPECT_EQ(key(QLatin1StringView(section), "FLAGSHIPINDEX"), QStringLiteral("3")) << section;
    }
}

TEST_F(Divisions, OfASideInOtherLettersAreFoundForTheirShipsAndNotForTheirSettings)
{
    create(Side::Blue, 1, ships({1, 2}));
    profile.write(u"DIVISION0", u"SIDE", u"bLUE");
    const DivisionShips loaded = records.loadDivisionShips(QStringLiteral("Division 1"), forceALabel);
    EXPECT_EQ(loaded.section, QStringLiteral("DIVISION0"));
    EXPECT_EQ(loaded.flagshipRows, QList<int>{0});
    DivisionVars vars{.side = blueWord, .heading = QStringLiteral("7")};
    records.loadDivisionKeys(QStringLiteral("Division 1"), vars);
    EXPECT_EQ(vars.heading, QStringLiteral("7"));
    EXPECT_FALSE(records.writeFlagship(readDialogFields(fields(Side::Blue, 1)), 1));
    DivisionFields shown = fields(Side::Blue, 1);
    shown.heading = QStringLiteral("15");
    records.saveEditedDivision(shown);
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FORMATIONHEADING"), QStringLiteral("90"));
}

TEST_F(Divisions, AKeyThatASectionLacksReadsAsTheWordForNothing)
{
    create(Side::Blue, 1, ships({1}));
    profile.write(u"DIVISION0", u"SPEED", u"");
    DivisionVars vars{.side = blueWord, .speed = QStringLiteral("7")};
    records.loadDivisionKeys(QStringLiteral("Division 1"), vars);
    EXPECT_EQ(vars.speed, invalidValue);
}

TEST_F(Divisions, ADivDataFileHasSixQuotedLinesAndTwoEmptyOnes)
{
    records.writeDivData({.number = QStringLiteral("2"),
                          .name = QStringLiteral("Division 2"),
                          .side = QStringLiteral("Red"),
                          .formation = QStringLiteral("Line of Bearing"),
                          .heading = QStringLiteral("270"),
                          .spacing = QStringLiteral("600"),
                          .speed = QStringLiteral("18")});
    QFile file(workDir + QStringLiteral("DivDataB2.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(),
              "\"Division 2\"\r\n\"Red\"\r\n\"Line of Bearing\"\r\n\"270\"\r\n\"600\"\r\n\"18\"\r\n\r\n\r\n");
}

TEST_F(Divisions, TheDivDataFileWinsOverTheProfile)
{
    create(Side::Blue, 1, ships({1}));
    DivisionVars vars{.side = QStringLiteral("Blue")};
    records.loadDivisionKeys(QStringLiteral("Division 1"), vars);
    EXPECT_EQ(vars.heading, QStringLiteral("90"));
    EXPECT_EQ(vars.speed, QStringLiteral("24"));
    DivisionVars written = vars;
    written.number = QStringLiteral("1");
    written.name = QStringLiteral("Division 1");
    written.heading = QStringLiteral("180");
    records.writeDivData(written);
    records.readDivData(QStringLiteral("Division 1"), Language::German, vars);
    EXPECT_EQ(vars.heading, QStringLiteral("180"));
    EXPECT_EQ(vars.spacing, QStringLiteral("1000"));
}

TEST_F(Divisions, WithoutADivDataFileTheDefaultsComeInTheLanguageOfTheInterface)
{
    DivisionVars vars{
        .number = QStringLiteral("3"), .side = QStringLiteral("Red"), .heading = QStringLiteral("7")};
    records.readDivData(QStringLiteral("Division 3"), Language::German, vars);
    EXPECT_EQ(vars.formation, QStringLiteral("Kolonne"));
    EXPECT_EQ(vars.heading, QStringLiteral("0"));
    EXPECT_EQ(vars.spacing, QStringLiteral("500"));
    EXPECT_EQ(vars.speed, QStringLiteral("8"));
    EXPECT_EQ(divisionDefaults(Language::English).formation, QStringLiteral("Column"));
}

TEST_F(Divisions, ShipsAreCountedByTheLinesOfTheirFile)
{
    files.write(files.divisionFile(Side::Red, 4), ships({1, 2, 3}));
    EXPECT_EQ(records.countDivisionShips(Side::Red, 4), 3);
    EXPECT_EQ(records.countDivisionShips(Side::Blue, 4), 0);
}

TEST_F(Divisions, TheFirstShipCanBePutAtAPosition)
{
    create(Side::Blue, 1, ships({1, 2}));
    records.DivMapPt(QStringLiteral("DIVISION0"), QStringLiteral("1200"), QStringLiteral("-300"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0SHIP0"), "XPOSITION"), QStringLiteral("1200"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0SHIP0"), "ZPOSITION"), QStringLiteral("-300"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0SHIP1"), "XPOSITION"), QStringLiteral("0.000000"));
}

TEST_F(Divisions, CreationCostsOneFileWrite)
{
    records.countDivision(Side::Blue, 1);
    files.write(files.divisionFile(Side::Blue, 1), ships({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    {
        const ProfileStore::Batch batch(store);
        records.saveToINI(fields(Side::Blue, 1), true);
        EXPECT_FALSE(QFile::exists(profile.path()));
    }
    EXPECT_EQ(shipName(0, 9), QStringLiteral("Ship 10"));
}

} // namespace
} // namespace torvane::testing
