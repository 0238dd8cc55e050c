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

} // namespace
} // namespace torvane::testing
