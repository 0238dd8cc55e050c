#include "divisions/records_fixture.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

class Edit : public RecordsFixture
{
protected:
    /// Begins an edit as the dialog does, gives the division other ships, and saves.
    void edit(Side side, int number, const QStringList& lines)
    {
        begin(side, number);
        files.write(files.divisionFile(side, number), lines);
        records.saveEditedDivision(fields(side, number));
    }

    DivisionShips begin(Side side, int number)
    {
        const DivisionShips loaded = records.loadDivisionShips(QStringLiteral("Division %1").arg(number),
                                                               fields(side, number).sideLabel);
        records.snapshotShipSections(loaded.section);
        return loaded;
    }

    static void putBytes(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void damage(int division, int place, const QString& points)
    {
        profile.write(shipSection(division, place), u"CURRENTHITPOINTS", points);
    }
    QString points(int division, int place) const
    {
        return key(shipSection(division, place), "CURRENTHITPOINTS");
    }
};

TEST_F(Edit, FromFourShipsToTwoLeavesNoShipAtTwoThreeAndFour)
{
    create(Side::Blue, 1, ships({1, 2, 3, 4}));
    edit(Side::Blue, 1, ships({1, 2}));
    EXPECT_EQ(shipName(0, 0), QStringLiteral("Ship 1"));
    EXPECT_EQ(shipName(0, 1), QStringLiteral("Ship 2"));
    for (const int place : {2, 3, 4}) {
        EXPECT_EQ(shipName(0, place), noShip) << place;
    }
    EXPECT_EQ(shipName(0, 5), invalidValue);
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "SHIPCNT"), QStringLiteral("2"));
}

TEST_F(Edit, AShipThatMovesFromPlaceThreeToNoughtKeepsItsDamage)
{
    create(Side::Blue, 1, ships({1, 2, 3, 4}));
    damage(0, 3, QStringLiteral("7"));
    edit(Side::Blue, 1, ships({4, 1, 2}));
    EXPECT_EQ(shipName(0, 0), QStringLiteral("Ship 4"));
    EXPECT_EQ(points(0, 0), QStringLiteral("7"));
    EXPECT_EQ(points(0, 1), QStringLiteral("40"));
    EXPECT_EQ(shipName(0, 3), noShip) << "its old place";
}

TEST_F(Edit, AMovedShipsOldPlaceGetsAnotherShipsData)
{
    create(Side::Blue, 1, ships({1, 2, 3, 4}));
    damage(0, 0, QStringLiteral("3"));
    damage(0, 3, QStringLiteral("7"));
    edit(Side::Blue, 1, ships({4, 2, 3, 1}));
    EXPECT_EQ(points(0, 0), QStringLiteral("7"));
    EXPECT_EQ(points(0, 3), QStringLiteral("3"));
}

TEST_F(Edit, ANewShipGetsCatalogueValuesAndTheStartPosition)
{
    create(Side::Blue, 1, ships({1, 2}));
    profile.write(u"DIVISION0SHIP1", u"XPOSITION", u"5000");
    damage(0, 1, QStringLiteral("7"));
    edit(Side::Blue, 1, ships({1, 9}));
    EXPECT_EQ(shipName(0, 1), QStringLiteral("Ship 9"));
    EXPECT_EQ(points(0, 1), QStringLiteral("40"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0SHIP1"), "XPOSITION"), QStringLiteral("0.000000"));
}

TEST_F(Edit, ADivisionThatGrowsHasNoEmptyPlace)
{
    create(Side::Red, 1, ships({1}));
    edit(Side::Red, 1, ships({1, 2, 3}));
    EXPECT_EQ(shipName(0, 2), QStringLiteral("Ship 3"));
    EXPECT_EQ(shipName(0, 3), invalidValue);
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "SHIPCNT"), QStringLiteral("3"));
}

TEST_F(Edit, TheSettingsAreWrittenAndAFlagshipNotFoundLeavesTheOldOne)
{
    create(Side::Blue, 1, ships({1, 2}));
    begin(Side::Blue, 1);
    DivisionFields shown = fields(Side::Blue, 1, QStringLiteral("Peilung"));
    shown.heading = QStringLiteral("15");
    shown.encumbered = true;
    records.saveEditedDivision(shown);
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FORMATION"), QStringLiteral("Line of Bearing"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FORMATIONHEADING"), QStringLiteral("15"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "ENCUMBERED"), QStringLiteral("1"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "FLAGSHIPINDEX"), QStringLiteral("0"));
}

TEST_F(Edit, TouchesTheDivisionOfItsSideAlone)
{
    create(Side::Blue, 1, ships({1}));
    create(Side::Red, 1, ships({2}));
    edit(Side::Red, 1, ships({3}));
    EXPECT_EQ(shipName(0, 0), QStringLiteral("Ship 1"));
    EXPECT_EQ(shipName(1, 0), QStringLiteral("Ship 3"));
}

TEST_F(Edit, AGapInTheSectionsEndsTheSearch)
{
    create(Side::Blue, 1, ships({1}));
    create(Side::Red, 1, ships({2}));
    profile.write(u"DIVISION0", u"DIVISIONNAME", u"");
    edit(Side::Red, 1, ships({3}));
    EXPECT_EQ(shipName(1, 0), QStringLiteral("Ship 2"));
}

TEST_F(Edit, InSectionsTenAndElevenAKeptShipsDataIsNotRestored)
{
    for (int number = 1; number <= 6; ++number) {
        create(Side::Blue, number, ships({number}));
        create(Side::Red, number, number == 6 ? ships({11, 12}) : ships({number + 6}));
    }
    damage(11, 1, QStringLiteral("7"));
    edit(Side::Red, 6, ships({12, 11}));
    EXPECT_EQ(key(QStringLiteral("DIVISION11"), "SHIPCNT"), QStringLiteral("2"));
    EXPECT_EQ(shipName(11, 0), QStringLiteral("Ship 11")) << "the section keeps what stood there";
    EXPECT_EQ(points(11, 1), QStringLiteral("7"));
    edit(Side::Red, 5, ships({11, 12}));
    EXPECT_EQ(shipName(9, 0), QStringLiteral("Ship 11")) << "section 9 follows";
}

TEST_F(Edit, TheCopyOfTheListIsLineForLine)
{
    create(Side::Blue, 1, ships({5, 3, 1}));
    begin(Side::Blue, 1);
    EXPECT_EQ(files.read(files.exisitTemp()), ships({5, 3, 1}));
}

TEST_F(Edit, TheCopyOfTheRecordsHoldsAllKeysAndTheWordForEmptyOnes)
{
    create(Side::Blue, 1, ships({1, 2}));
    shipRecords.RemoveIndividualShip(shipSection(0, 2));
    begin(Side::Blue, 1);
    const QString copy = files.tempIniTemp();
    for (const QStringView shipKey : shipKeys) {
        EXPECT_EQ(GetIniKey(store, copy, u"DIVISION0SHIP1", shipKey),
                  profile.GetIniKey(u"DIVISION0SHIP1", shipKey));
    }
    EXPECT_EQ(store.read(copy, u"DIVISION0SHIP2", u"CLASS"), QStringLiteral("INVALID")) << "stored as a word";
    EXPECT_EQ(store.read(copy, u"DIVISION0SHIP3", u"NAME"), QString());
}

TEST_F(Edit, AMissingPlaceEndsTheCopy)
{
    create(Side::Blue, 1, ships({1, 2, 3}));
    profile.write(u"DIVISION0SHIP1", u"NAME", u"");
    begin(Side::Blue, 1);
    EXPECT_EQ(GetIniKey(store, files.tempIniTemp(), u"DIVISION0SHIP0", u"NAME"), QStringLiteral("Ship 1"));
    EXPECT_EQ(GetIniKey(store, files.tempIniTemp(), u"DIVISION0SHIP2", u"NAME"), invalidValue);
}

TEST_F(Edit, TheLastPlaceOfANameIsTheSource)
{
    create(Side::Blue, 1, ships({1, 2, 3}));
    begin(Side::Blue, 1);
    const QString copy = files.tempIniTemp();
    store.write(copy, u"DIVISION0SHIP2", u"NAME", u"Ship 1");
    store.write(copy, u"DIVISION0SHIP2", u"CURRENTHITPOINTS", u"9");
    records.restoreShipSection(QStringLiteral(" Ship 1 "), shipSection(0, 0));
    EXPECT_EQ(points(0, 0), QStringLiteral("9"));
}

TEST_F(Edit, FindsFlagshipPositionAndSection)
{
    create(Side::Blue, 1, ships({8}));
    create(Side::Red, 1, ships({1, 2, 3}));
    profile.write(u"DIVISION1", u"FLAGSHIPINDEX", u"2");
    profile.write(u"DIVISION1SHIP0", u"XPOSITION", u"-1200");
    profile.write(u"DIVISION1SHIP0", u"ZPOSITION", u"3400");
    const DivisionShips loaded = begin(Side::Red, 1);
    EXPECT_EQ(loaded.section, QStringLiteral("DIVISION1"));
    EXPECT_EQ(loaded.lines, ships({1, 2, 3}));
    EXPECT_EQ(loaded.flagshipRows, QList<int>{2});
    EXPECT_EQ(loaded.xPosition, -1200);
    EXPECT_EQ(loaded.zPosition, 3400);
}

TEST_F(Edit, AFlagshipIndexOutOfRangeMeansTheFirstShipAndNoneMeansNone)
{
    create(Side::Blue, 1, ships({1, 2}));
    for (const char* const index : {"14", "-1", "99999"}) {
        profile.write(u"DIVISION0", u"FLAGSHIPINDEX", QString::fromLatin1(index));
        EXPECT_EQ(begin(Side::Blue, 1).flagshipRows, QList<int>{0}) << index;
    }
    profile.write(u"DIVISION0", u"FLAGSHIPINDEX", u"");
    EXPECT_TRUE(begin(Side::Blue, 1).flagshipRows.isEmpty());
}

TEST_F(Edit, AFlagshipMayStandAtTheFourteenthPlaceAndNoFurther)
{
    const QStringList lines = ships({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
    create(Side::Blue, 1, lines);
    profile.write(u"DIVISION0SHIP14", u"TYPE", u"DD");
    profile.write(u"DIVISION0SHIP14", u"NAME", u"Ship 15");
    profile.write(u"DIVISION0", u"FLAGSHIPINDEX", u"13");
    EXPECT_EQ(begin(Side::Blue, 1).flagshipRows, QList<int>{13});
    profile.write(u"DIVISION0", u"FLAGSHIPINDEX", u"14");
    EXPECT_EQ(begin(Side::Blue, 1).flagshipRows, QList<int>{0});
}

TEST_F(Edit, TheCopyEndsWithTheTenthPlaceAndAShipBeyondItBringsNoDataAlong)
{
    create(Side::Blue, 1, ships({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    damage(0, 9, QStringLiteral("9"));
    damage(0, 10, QStringLiteral("10"));
    edit(Side::Blue, 1, ships({11, 10, 3, 4, 5, 6, 7, 8, 9, 2, 1, 12}));
    EXPECT_EQ(GetIniKey(store, files.tempIniTemp(), u"DIVISION0SHIP9", u"NAME"), QStringLiteral("Ship 10"));
    EXPECT_EQ(GetIniKey(store, files.tempIniTemp(), u"DIVISION0SHIP10", u"NAME"), invalidValue);
    EXPECT_EQ(shipName(0, 1), QStringLiteral("Ship 10"));
    EXPECT_EQ(points(0, 1), QStringLiteral("9"));
    EXPECT_EQ(shipName(0, 0), QStringLiteral("Ship 1")) << "the section keeps what stood there";
    EXPECT_EQ(shipName(0, 10), QStringLiteral("Ship 1"));
    EXPECT_EQ(shipName(0, 11), QStringLiteral("Ship 12"));
}

TEST_F(Edit, WithACopyOfTheRecordsOfOtherTextTheShipsKeepWhatStood)
{
    create(Side::Blue, 1, ships({1, 2}));
    damage(0, 1, QStringLiteral("7"));
    begin(Side::Blue, 1);
    putBytes(files.tempIniTemp(), "<html>\r\n[nothing\r\n= of ours\r\n");
    records.saveEditedDivision(fields(Side::Blue, 1));
    EXPECT_EQ(shipName(0, 0), QStringLiteral("Ship 1"));
    EXPECT_EQ(shipName(0, 1), QStringLiteral("Ship 2"));
    EXPECT_EQ(points(0, 1), QStringLiteral("7"));
}

TEST_F(Edit, WithACopyOfTheListCutInALineThatShipAloneGetsCatalogueValues)
{
    create(Side::Blue, 1, ships({1, 2, 3}));
    for (const int place : {0, 1, 2}) {
        damage(0, place, QStringLiteral("7"));
    }
    begin(Side::Blue, 1);
    putBytes(files.exisitTemp(), "\"DD Ship 1\"\r\n\"DD Ship 2\"\r\n\"DD Sh");
    records.saveEditedDivision(fields(Side::Blue, 1));
    EXPECT_EQ(points(0, 0), QStringLiteral("7"));
    EXPECT_EQ(points(0, 1), QStringLiteral("7"));
    EXPECT_EQ(shipName(0, 2), QStringLiteral("Ship 3"));
    EXPECT_EQ(points(0, 2), QStringLiteral("40"));
}

TEST_F(Edit, WithAListCutBehindALineTheRestIsNoShip)
{
    create(Side::Blue, 1, ships({1, 2, 3}));
    begin(Side::Blue, 1);
    putBytes(files.divisionFile(Side::Blue, 1), "\"DD Ship 1\"\r\n");
    records.saveEditedDivision(fields(Side::Blue, 1));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "SHIPCNT"), QStringLiteral("1"));
    EXPECT_EQ(shipName(0, 0), QStringLiteral("Ship 1"));
    for (const int place : {1, 2, 3}) {
        EXPECT_EQ(shipName(0, place), noShip) << place;
    }
}

TEST_F(Edit, AShipThatACancelledEditLeftInTheListGetsARecordOfItsOwn)
{
    create(Side::Blue, 1, ships({1, 2}));
    begin(Side::Blue, 1);
    files.write(files.divisionFile(Side::Blue, 1), ships({3, 2, 4}));
    records.deleteDivisionScratch();
    edit(Side::Blue, 1, ships({3, 2, 4}));
    EXPECT_EQ(shipName(0, 0), QStringLiteral("Ship 3"));
    EXPECT_EQ(shipName(0, 1), QStringLiteral("Ship 2"));
    EXPECT_EQ(shipName(0, 2), QStringLiteral("Ship 4"));
    EXPECT_EQ(key(shipSection(0, 2), "SHORTNAME"), QStringLiteral("S4"));
    EXPECT_EQ(key(QStringLiteral("DIVISION0"), "SHIPCNT"), QStringLiteral("3"));
}

TEST_F(Edit, AShipThatACancelledEditLeftInTheListHasToBeInTheCatalogue)
{
    create(Side::Blue, 1, ships({1, 2}));
    files.write(files.divisionFile(Side::Blue, 1), ships({1, 99}));
    begin(Side::Blue, 1);
    expectError(RuntimeError::NoCurrentRecord,
                [this] { records.requireSavable(fields(Side::Blue, 1), false); });
    files.write(files.divisionFile(Side::Blue, 1), ships({1}));
    EXPECT_NO_THROW(records.requireSavable(fields(Side::Blue, 1), false));
}

TEST_F(Edit, EndsWithBothCopiesGone)
{
    create(Side::Blue, 1, ships({1}));
    begin(Side::Blue, 1);
    ASSERT_TRUE(QFile::exists(files.exisitTemp()));
    ASSERT_TRUE(QFile::exists(files.tempIniTemp()));
    records.deleteDivisionScratch();
    EXPECT_FALSE(QFile::exists(files.exisitTemp()));
    EXPECT_FALSE(QFile::exists(files.tempIniTemp()));
    records.deleteDivisionScratch(); // nothing there is no error
}

TEST_F(Edit, WithoutAListTheDivisionIsEmpty)
{
    create(Side::Blue, 1, ships({1, 2}));
    QFile::remove(files.divisionFile(Side::Blue, 1));
    const DivisionShips loaded = begin(Side::Blue, 1);
    EXPECT_TRUE(loaded.lines.isEmpty());
    EXPECT_EQ(loaded.section, QStringLiteral("DIVISION0"));
    records.saveEditedDivision(fields(Side::Blue, 1));
    for (const int place : {0, 1, 2}) {
        EXPECT_EQ(shipName(0, place), noShip);
    }
}

} // namespace
} // namespace torvane::testing
