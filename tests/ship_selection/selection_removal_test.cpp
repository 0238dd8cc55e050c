#include "selection_fixture.h"

namespace torvane::testing {
namespace {

using Message = SelectionMessage;

/// How ships leave the list, and how it is kept.
class Removal : public SelectionFixture
{
};

TEST_F(Removal, RemoveTakesTheShipOffListMarkTrackAndCount)
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

TEST_F(Removal, RemoveTakesEveryLineOfTheShipOffTheTrack)
{
    useCatalogue(shipsOf("RN", 2));
    open();
    pickAll({"RN 1"});
    setTrack({"", "RN 1", "RN 2", "RN 1", "rn 1"});
    EXPECT_EQ(remove(0), std::nullopt);
    EXPECT_EQ(track(), QStringList({"", "RN 2", "rn 1"}));
}

TEST_F(Removal, RemoveWithNoLineSelectedAsksForOne)
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

TEST_F(Removal, RemoveTakesNoLineBeyondTheTenth)
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

TEST_F(Removal, RemoveGoesOnWithTheLineThatMovesUpUntilThereIsNone)
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

TEST_F(Removal, AShipPickedBehindTheRemovalOfTheLastOneIsRemovedWhole)
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

TEST_F(Removal, ALineThatTheListLacksIsNone)
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

TEST_F(Removal, RemovesOfTheKriegsmarineLeaveTheMarkBeyondRow129)
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

TEST_F(Removal, ClearAllOfTheKriegsmarineTakesEveryMark)
{
    useCatalogue(shipsOf("KM", 198), "KM");
    open();
    pickAll({"KM 129", "KM 130", "KM 198"});
    selection.clear();
    EXPECT_EQ(markedNames(browser), QStringList());
    EXPECT_EQ(selection.blueShipCount(), 0);
}

TEST_F(Removal, RemovesOfOtherNaviesTakeTheLastRowsMark)
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

TEST_F(Removal, ClearAllLeavesListTrackAndDivisionFile)
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

TEST_F(Removal, ClearAllKeepsShipsOfANavyThatIsNotShownCounted)
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

TEST_F(Removal, KeepWritesTheDivisionFileAnew)
{
    useCatalogue(shipsOf("RN", 3));
    putDivision(Side::Red, 2, 1);
    open(Side::Red, 2);
    pickAll({"RN 2", "RN 1"});
    EXPECT_EQ(selection.keep(), std::nullopt);
    EXPECT_EQ(division(Side::Red, 2), QStringList({"DD other Red200", "DD RN 2", "DD RN 1"}));
}

TEST_F(Removal, KeepOfAnEmptyListWritesNothing)
{
    putDivision(Side::Blue, 1, 1);
    useCatalogue(shipsOf("RN", 1));
    open();
    EXPECT_EQ(remove(0), std::nullopt);
    EXPECT_EQ(selection.keep(), Message::NothingToKeep);
    EXPECT_EQ(division(Side::Blue, 1).size(), 1);
}

TEST_F(Removal, TheTableOfPickedNamesTakes31)
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
