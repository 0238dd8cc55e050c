#include "selection_fixture.h"

namespace torvane::testing {
namespace {

using Message = SelectionMessage;

class Selection : public SelectionFixture
{
};

TEST(DivisionNumber, IsTheLastCharacterOfTheCaptionWithin1To8)
{
    const struct
    {
        const char* caption;
        int number;
    } rows[] = {{"Division 1", 1}, {"Verband 6", 6}, {"Division 8", 8},  {"Division 9", 1}, {"Division 0", 1},
                {"Division", 1},   {"", 1},          {"Division 12", 2}, {"Division 3 ", 1}};
    for (const auto& [caption, number] : rows) {
        EXPECT_EQ(divisionNumberOf(QString(caption)), number) << caption;
    }
}

TEST_F(Selection, OpensWithTheShipsOfTheDivisionsFile)
{
    files.write(files.divisionFile(Side::Red, 3), {"BB Bismarck", "CA Prinz Eugen"});
    selection.open(Side::Red, "Verband 3", "Verband");
    EXPECT_EQ(selection.entries(), QStringList({"BB Bismarck", "CA Prinz Eugen"}));
    EXPECT_EQ(selection.divShipCount(), 2);
    EXPECT_EQ(selection.divisionNumber(), 3);
    EXPECT_EQ(selection.side(), Side::Red);
}

TEST_F(Selection, OpensEmptyWhereTheCaptionIsNoneOfTheSix)
{
    putDivision(Side::Blue, 1, 2);
    files.write(files.divisionFile(Side::Blue, 7), {"DD x"});
    for (const char* caption : {"Verband 1", "Division 7", "Division 1 ", "Division1", ""}) {
        selection.open(Side::Blue, caption, "Division");
        EXPECT_EQ(selection.entries(), QStringList()) << caption;
    }
    selection.open(Side::Red, "Division 1", "Division");
    EXPECT_EQ(selection.entries(), QStringList());
    selection.open(Side::Blue, "Division 1", "Division");
    EXPECT_EQ(selection.divShipCount(), 2);
}

TEST_F(Selection, CountsTheShipsOfEachForceOverItsSixDivisions)
{
    for (int number = 1; number <= 6; ++number) {
        putDivision(Side::Blue, number, number);
        putDivision(Side::Red, number, 1);
    }
    putDivision(Side::Blue, 7, 10);
    QFile::remove(files.divisionFile(Side::Red, 1));
    QFile::remove(files.divisionFile(Side::Blue, 4));
    open();
    EXPECT_EQ(selection.blueShipCount(), 1 + 2 + 3 + 5 + 6);
    EXPECT_EQ(selection.redShipCount(), 5);
}

TEST_F(Selection, CountsNothingWithoutAFirstDivisionOfForceAWhateverForceBHas)
{
    putDivision(Side::Red, 1, 10);
    putDivision(Side::Red, 2, 10);
    putDivision(Side::Blue, 2, 5);
    useCatalogue(shipsOf("RN", 3));
    open(Side::Red, 3);
    EXPECT_EQ(selection.redShipCount(), 0);
    EXPECT_EQ(selection.blueShipCount(), 0);
    pickAll({"RN 1", "RN 2"});
    EXPECT_EQ(selection.redShipCount(), 2);
}

TEST_F(Selection, APickGoesToListMarkTrackCountAndRecord)
{
    useCatalogue({{"BB", "Warspite"}, {"DD", "Ardent"}});
    open(Side::Red);
    pickAll({"Ardent", "Warspite"});
    EXPECT_EQ(selection.entries(), QStringList({"DD Ardent", "BB Warspite"}));
    EXPECT_EQ(markedNames(browser), QStringList({"Warspite", "Ardent"}));
    EXPECT_EQ(track(), QStringList({"", "Ardent", "Warspite"}));
    EXPECT_EQ(selection.divShipCount(), 2);
    EXPECT_EQ(selection.redShipCount(), 2);
    EXPECT_EQ(selection.blueShipCount(), 0);
    EXPECT_EQ(sectionNames(files.iniShipData()),
              QStringList({"[SHIP_DATA_RECORDS]", "[ARDENT]", "[WARSPITE]"}));
    EXPECT_EQ(selection.pickedName(0), "Ardent");
    EXPECT_EQ(selection.pickedName(1), "Warspite");
    EXPECT_TRUE(selection.isTaken("Ardent"));
    EXPECT_FALSE(QFile::exists(files.divisionFile(Side::Red, 1)));
    EXPECT_FALSE(QFile::exists(profile.path()));
}

TEST_F(Selection, AShipOnTheTrackIsPickedForNoDivisionOfEitherForce)
{
    useCatalogue(shipsOf("RN", 2));
    setTrack({"", "RN 1"});
    for (const Side side : {Side::Blue, Side::Red}) {
        for (int number = 1; number <= 6; ++number) {
            open(side, number);
            EXPECT_EQ(pick("RN 1"), Message::AlreadySelected);
            EXPECT_EQ(selection.forceShipCount(), 0);
            EXPECT_EQ(selection.entries(), QStringList());
        }
    }
    EXPECT_EQ(track(), QStringList({"", "RN 1"}));
}

TEST_F(Selection, ThePickAndTheTrackAreComparedExactly)
{
    useCatalogue({{"DD", "Ardent"}});
    setTrack({"ARDENT", "Ardent "});
    open();
    EXPECT_EQ(pick("Ardent"), std::nullopt);
}

TEST_F(Selection, AnEleventhPickChangesNoCount)
{
    useCatalogue(shipsOf("RN", 11));
    open();
    for (int i = 1; i <= 10; ++i) {
        pickAll({"RN " + QString::number(i)});
    }
    EXPECT_EQ(pick("RN 11"), Message::DivisionFull);
    EXPECT_EQ(selection.divShipCount(), 10);
    EXPECT_EQ(selection.blueShipCount(), 10);
    // Ahead of the question whether the ship is picked already.
    EXPECT_EQ(pick("RN 1"), Message::DivisionFull);
}

TEST_F(Selection, AtTheScenariosLimitTheRefusedPickStaysCountedUntilTheNextOpening)
{
    for (int number = 1; number <= 4; ++number) {
        putDivision(Side::Blue, number, 7);
    }
    putDivision(Side::Red, 1, 4);
    useCatalogue(shipsOf("RN", 3));
    open(Side::Blue, 5);
    EXPECT_EQ(selection.blueShipCount(), 28);
    EXPECT_EQ(pick("RN 1"), Message::ScenarioFull);
    EXPECT_EQ(selection.blueShipCount(), 29);
    EXPECT_EQ(pick("RN 2"), Message::ScenarioFull);
    EXPECT_EQ(selection.blueShipCount(), 30);
    EXPECT_EQ(selection.entries(), QStringList());
    EXPECT_EQ(track(), QStringList({""}));
    open(Side::Blue, 5);
    EXPECT_EQ(selection.blueShipCount(), 28);
}

TEST_F(Selection, APickedShipIsRefusedAheadOfTheLimitsAndNotCounted)
{
    for (int number = 1; number <= 4; ++number) {
        putDivision(Side::Blue, number, 7);
    }
    useCatalogue(shipsOf("RN", 2));
    setTrack({"", "RN 1"});
    open(Side::Blue, 5);
    EXPECT_EQ(pick("RN 1"), Message::AlreadySelected) << "28 of 28";
    EXPECT_EQ(selection.blueShipCount(), 28);
    EXPECT_EQ(pick("RN 2"), Message::ForceFull);
    putDivision(Side::Red, 1, 4);
    open(Side::Blue, 5);
    EXPECT_EQ(pick("RN 1"), Message::AlreadySelected) << "32 of 32";
    EXPECT_EQ(selection.blueShipCount(), 28);
    EXPECT_EQ(pick("RN 2"), Message::ScenarioFull);
}

TEST_F(Selection, TheCountOfAForceHasNoLowerBound)
{
    useCatalogue(shipsOf("RN", 2));
    files.write(files.divisionFile(Side::Red, 1), {"DD RN 1"});
    open(Side::Red);
    EXPECT_EQ(selection.redShipCount(), 0) << "without a first division of Force A";
    EXPECT_EQ(remove(0), std::nullopt);
    EXPECT_EQ(selection.redShipCount(), -1);
    pickAll({"RN 2"});
    EXPECT_EQ(selection.redShipCount(), 0);
}

TEST_F(Selection, AtTheForcesLimitTheCountIs28)
{
    for (int number = 1; number <= 4; ++number) {
        putDivision(Side::Blue, number, 7);
    }
    putDivision(Side::Red, 1, 3);
    useCatalogue(shipsOf("RN", 3));
    open(Side::Blue, 5);
    EXPECT_EQ(pick("RN 1"), Message::ForceFull);
    EXPECT_EQ(selection.blueShipCount(), 28);
    EXPECT_EQ(pick("RN 1"), Message::ForceFull);
    open(Side::Red, 2);
    EXPECT_EQ(pick("RN 1"), std::nullopt);
    EXPECT_EQ(selection.redShipCount(), 4);
    EXPECT_EQ(pick("RN 2"), Message::ScenarioFull);
}

TEST_F(Selection, The28thShipOfAForceAndThe32ndOfAScenarioArePicked)
{
    putDivision(Side::Blue, 1, 9);
    putDivision(Side::Blue, 2, 9);
    putDivision(Side::Blue, 3, 9);
    putDivision(Side::Red, 1, 4);
    useCatalogue(shipsOf("RN", 3));
    open(Side::Blue, 4);
    EXPECT_EQ(pick("RN 1"), std::nullopt);
    EXPECT_EQ(selection.blueShipCount(), 28);
    EXPECT_EQ(pick("RN 2"), Message::ScenarioFull);
}

TEST_F(Selection, TheTransportingForceTakesDestroyersAlone)
{
    useCatalogue({{"BB", "b"}, {"DD", "d"}, {"TR", "t"}, {"dd", "small"}});
    const struct
    {
        const char* transports;
        const char* blueForceType;
        Side side;
        bool refused;
    } rows[] = {
        {"1", "0", Side::Blue, true},   {"1", "0", Side::Red, false},    {"1", "1", Side::Red, true},
        {"1", "1", Side::Blue, false},  {"0", "0", Side::Blue, false},   {"0", "1", Side::Red, false},
        {"1.0", "0", Side::Blue, true}, {"1", "0.0", Side::Blue, false}, {"2", "0", Side::Blue, false},
    };
    for (const auto& row : rows) {
        setTransport(row.transports, row.blueForceType);
        setTrack({""});
        open(row.side);
        for (const char* name : {"b", "t", "small"}) {
            EXPECT_EQ(pick(name), row.refused ? std::optional(Message::DestroyersOnly) : std::nullopt)
                << row.transports << ' ' << row.blueForceType << ' ' << name;
        }
        EXPECT_EQ(pick("d"), std::nullopt);
    }
}

TEST_F(Selection, TheTransportRuleComesFirst)
{
    useCatalogue({{"BB", "b"}});
    setTransport("1", "0");
    setTrack({"b"});
    putDivision(Side::Blue, 1, 12);
    open();
    EXPECT_EQ(pick("b"), Message::DestroyersOnly);
}

TEST_F(Selection, RemoveTakesTheShipOffListMarkTrackAndCount)
{
    useCatalogue(shipsOf("RN", 3));
    open();
    pickAll({"RN 1", "RN 2", "RN 3"});
    EXPECT_EQ(remove(1), std::nullopt);
    EXPECT_EQ(selection.entries(), QStringList({"DD RN 1", "DD RN 3"}));
    EXPECT_EQ(markedNames(browser), QStringList({"RN 1", "RN 3"}));
    EXPECT_EQ(track(), QStringList({"", "RN 1", "RN 3"}));
    EXPECT_EQ(selection.blueShipCount(), 2);
    EXPECT_FALSE(QFile::exists(files.shipRemove()));
    EXPECT_FALSE(selection.isTaken("RN 2"));
    EXPECT_EQ(pick("RN 2"), std::nullopt);
}

TEST_F(Selection, RemoveTakesEveryLineOfTheShipOffTheTrack)
{
    useCatalogue(shipsOf("RN", 2));
    open();
    pickAll({"RN 1"});
    setTrack({"", "RN 1", "RN 2", "RN 1", "rn 1"});
    EXPECT_EQ(remove(0), std::nullopt);
    EXPECT_EQ(track(), QStringList({"", "RN 2", "rn 1"}));
}

TEST_F(Selection, RemoveWithNoLineSelectedAsksForOne)
{
    useCatalogue(shipsOf("RN", 2));
    open();
    EXPECT_EQ(selection.remove(), Message::NoneToRemoveSelected);
    pickAll({"RN 1"});
    EXPECT_EQ(selection.remove(), Message::NoneToRemoveSelected);
    EXPECT_EQ(selection.blueShipCount(), 1);
    selection.select(0);
    open();
    EXPECT_EQ(selection.remove(), Message::NoneToRemoveSelected);
}

TEST_F(Selection, RemoveTakesNoLineBeyondTheTenth)
{
    putDivision(Side::Blue, 1, 12);
    useCatalogue(shipsOf("RN", 1));
    open();
    EXPECT_EQ(remove(10), Message::NoneToRemoveSelected);
    EXPECT_EQ(remove(11), Message::NoneToRemoveSelected);
    EXPECT_EQ(selection.divShipCount(), 12);
    EXPECT_EQ(remove(9), std::nullopt);
    EXPECT_EQ(selection.divShipCount(), 11);
}

TEST_F(Selection, RemoveGoesOnWithTheLineThatMovesUpUntilThereIsNone)
{
    useCatalogue(shipsOf("RN", 3));
    open();
    pickAll({"RN 1", "RN 2", "RN 3"});
    EXPECT_EQ(remove(1), std::nullopt);
    EXPECT_EQ(selection.selectedIndex(), 1);
    EXPECT_EQ(selection.selectedShip(), "RN 3");
    EXPECT_EQ(selection.remove(), std::nullopt);
    EXPECT_EQ(selection.selectedShip(), "RN 1");
    EXPECT_EQ(selection.remove(), std::nullopt);
    EXPECT_EQ(selection.remove(), Message::NothingToRemove);
    EXPECT_EQ(selection.blueShipCount(), 0);
    EXPECT_EQ(track(), QStringList({""}));
}

TEST_F(Selection, AShipPickedBehindTheRemovalOfTheLastOneIsRemovedWhole)
{
    useCatalogue(shipsOf("RN", 2));
    open();
    pickAll({"RN 1"});
    EXPECT_EQ(remove(0), std::nullopt);
    EXPECT_EQ(selection.selectedShip(), "");
    pickAll({"RN 2"});
    EXPECT_EQ(selection.selectedIndex(), 0);
    EXPECT_EQ(selection.selectedShip(), "RN 2");
    EXPECT_EQ(selection.remove(), std::nullopt);
    EXPECT_EQ(track(), QStringList({""}));
    EXPECT_EQ(markedNames(browser), QStringList());
    EXPECT_EQ(selection.blueShipCount(), 0);
    EXPECT_EQ(pick("RN 2"), std::nullopt);
}

TEST_F(Selection, ALineThatTheListLacksIsNone)
{
    useCatalogue(shipsOf("RN", 2));
    open();
    pickAll({"RN 1"});
    for (const int index : {-1, 1, 9}) {
        EXPECT_EQ(remove(index), Message::NoneToRemoveSelected) << index;
        EXPECT_EQ(selection.selectedIndex(), -1);
    }
    EXPECT_EQ(selection.entries(), QStringList({"DD RN 1"}));
}

TEST_F(Selection, RemovesOfTheKriegsmarineLeaveTheMarkBeyondRow129)
{
    useCatalogue(shipsOf("KM", 198), "KM");
    open();
    pickAll({"KM 129", "KM 130", "KM 198"});
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(remove(0), std::nullopt);
    }
    EXPECT_EQ(markedNames(browser), QStringList({"KM 130", "KM 198"}));
    EXPECT_EQ(selection.blueShipCount(), 0) << "counted down whether or not a row was found";
    EXPECT_EQ(track(), QStringList({""}));
    browser.filterNavy("KM");
    browser.markSelectedShips(track());
    EXPECT_EQ(markedNames(browser), QStringList());
}

TEST_F(Selection, ClearAllOfTheKriegsmarineTakesEveryMark)
{
    useCatalogue(shipsOf("KM", 198), "KM");
    open();
    pickAll({"KM 129", "KM 130", "KM 198"});
    selection.clear();
    EXPECT_EQ(markedNames(browser), QStringList());
    EXPECT_EQ(selection.blueShipCount(), 0);
}

TEST_F(Selection, RemovesOfOtherNaviesTakeTheLastRowsMark)
{
    const struct
    {
        const char* navy;
        int rows;
    } navies[] = {{"RN", 424}, {"USN", 399}, {"IJN", 245}};
    browser.setLists(listsOf(fullCatalogue()));
    for (const auto& [navy, rows] : navies) {
        browser.filterNavy(navy);
        open();
        pickAll({navy + QString(" %1").arg(rows)});
        EXPECT_EQ(remove(0), std::nullopt);
        EXPECT_EQ(markedNames(browser), QStringList()) << navy;
    }
}

TEST_F(Selection, ClearAllLeavesListTrackAndDivisionFile)
{
    useCatalogue(shipsOf("RN", 4));
    files.write(files.divisionFile(Side::Blue, 1), {"DD RN 1", "DD RN 2"});
    setTrack({"", "RN 1", "Other", "RN 2"});
    open();
    browser.markSelectedShips(track());
    pickAll({"RN 4"});
    selection.clear();
    EXPECT_EQ(selection.entries(), QStringList());
    EXPECT_EQ(markedNames(browser), QStringList());
    EXPECT_EQ(track(), QStringList({"", "Other"}));
    EXPECT_EQ(division(Side::Blue, 1), QStringList({"DD RN 1", "DD RN 2"}));
    EXPECT_EQ(selection.blueShipCount(), 0);
    EXPECT_FALSE(QFile::exists(files.shipRemove()));
}

TEST_F(Selection, ClearAllKeepsShipsOfANavyThatIsNotShownCounted)
{
    browser.setLists(listsOf(shipsOf("RN", 2) + shipsOf("KM", 2)));
    browser.filterNavy("KM");
    open();
    pickAll({"KM 1"});
    browser.filterNavy("RN");
    pickAll({"RN 1", "RN 2"});
    selection.clear();
    EXPECT_EQ(selection.blueShipCount(), 1);
    EXPECT_EQ(track(), QStringList({""}));
    EXPECT_EQ(selection.remove(), Message::NoneToRemoveSelected);
}

TEST_F(Selection, KeepWritesTheDivisionFileAnew)
{
    useCatalogue(shipsOf("RN", 3));
    putDivision(Side::Red, 2, 1);
    open(Side::Red, 2);
    pickAll({"RN 2", "RN 1"});
    EXPECT_EQ(selection.keep(), std::nullopt);
    EXPECT_EQ(division(Side::Red, 2), QStringList({"DD other Red200", "DD RN 2", "DD RN 1"}));
}

TEST_F(Selection, KeepOfAnEmptyListWritesNothing)
{
    putDivision(Side::Blue, 1, 1);
    useCatalogue(shipsOf("RN", 1));
    open();
    EXPECT_EQ(remove(0), std::nullopt);
    EXPECT_EQ(selection.keep(), Message::NothingToKeep);
    EXPECT_EQ(division(Side::Blue, 1).size(), 1);
}

TEST_F(Selection, TheTableOfPickedNamesTakes31)
{
    useCatalogue(shipsOf("RN", 3));
    selection.writeShipDataRecord("RN 1", 0);
    selection.writeShipDataRecord("RN 2", 30);
    EXPECT_EQ(selection.pickedName(30), "RN 2");
    for (const int index : {31, -1}) {
        expectError(
            RuntimeError::SubscriptOutOfRange, [&] { selection.writeShipDataRecord("RN 3", index); },
            ::testing::_);
    }
    EXPECT_EQ(track(), QStringList({"", "RN 1", "RN 2"}));
    EXPECT_EQ(sectionNames(files.iniShipData()), QStringList({"[SHIP_DATA_RECORDS]", "[RN 1]", "[RN 2]"}));
}

} // namespace
} // namespace torvane::testing
