#include "ship_selection_fixture.h"

namespace torvane::testing {
namespace {

/// The right part of the ship dialog: picks and removals.
class ShipWindow : public ShipSelectionDialog
{
protected:
    /// Two quick clicks, as the window system delivers them.
    void doubleClick(QPoint place)
    {
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(grid()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(grid()->viewport(), Qt::LeftButton, {}, place);
        settle();
    }
    void expectCounts(const char* ofDivision, const char* ofForce, const char* ofScenario)
    {
        EXPECT_EQ(count("lblDivCount"), ofDivision);
        EXPECT_EQ(count("lblForceCount"), ofForce);
        EXPECT_EQ(count("lblScenarioCount"), ofScenario);
    }
    /// A Division file of so many ships.
    void putDivision(const char* file, int shipCount)
    {
        QByteArray bytes;
        for (int i = 0; i < shipCount; ++i) {
            bytes += "\"DD " + QByteArray(file) + QByteArray::number(i) + "\"\r\n";
        }
        putWorkFile(file, bytes);
    }
};

TEST_F(ShipWindow, AClickOnARowPicksTheShip)
{
    openShips();
    clickShip("Exeter");
    clickShip("Ardent", 7);
    EXPECT_EQ(listed(), QStringList({"CA Exeter", "DD Ardent"}));
    EXPECT_EQ(marked(), QStringList({"Ardent", "Exeter"}));
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList({"", "Exeter", "Ardent"}));
    EXPECT_THAT(workBytes("iniShipData.bmm").toStdString(), ::testing::HasSubstr("[EXETER]"));
    expectCounts("Division: 2 of 10 ships", "Force A: 2 of 28 ships", "Scenario: 2 of 32 ships");
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ShipWindow, EnterPicksWhereTheArrowsLead)
{
    openShips();
    EXPECT_TRUE(grid()->hasFocus() || !ships().isActiveWindow());
    press(grid(), Qt::Key_Down);
    press(grid(), Qt::Key_Down);
    EXPECT_EQ(listed(), QStringList());
    press(grid(), Qt::Key_Return);
    press(grid(), Qt::Key_Up);
    press(grid(), Qt::Key_Enter);
    EXPECT_EQ(listed(), QStringList({"DD Ardent", "BB Warspite"}));
    EXPECT_TRUE(ships().isVisible());
}

TEST_F(ShipWindow, TheOtherMouseButtonsPickNothing)
{
    openShips();
    QTest::mouseClick(grid()->viewport(), Qt::RightButton, {}, placeOf("Ardent"));
    QTest::mouseClick(grid()->viewport(), Qt::MiddleButton, {}, placeOf("Ardent"));
    settle();
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(ShipWindow, ADoubleClickPicksOnce)
{
    openShips();
    doubleClick(placeOf("Ardent"));
    EXPECT_EQ(listed(), QStringList("DD Ardent"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ShipWindow, FortyQuickClicksOnARowPickOneShip)
{
    openShips();
    const QPoint place = placeOf("Ardent");
    for (int i = 0; i < 20; ++i) {
        doubleClick(place);
    }
    EXPECT_EQ(listed(), QStringList("DD Ardent"));
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList({"", "Ardent"}));
    expectCounts("Division: 1 of 10 ships", "Force A: 1 of 28 ships", "Scenario: 1 of 32 ships");
    for (const MessageBox& box : boxes()) {
        EXPECT_EQ(box.text, "You have already selected this ship.");
    }
}

TEST_F(ShipWindow, ARefusedPickSaysWhy)
{
    openShips();
    clickShip("Ardent");
    clickShip("Ardent");
    expectBox("You have already selected this ship.");
    for (const char* name :
         {"Cossack", "Warspite", "Exeter", "Duncan", "Electra", "Fury", "Glowworm", "Hotspur", "Icarus"}) {
        clickShip(name);
    }
    EXPECT_TRUE(boxes().isEmpty());
    clickShip("Jackal");
    expectBox("You may only have a maximum of 10 ships per division.", "Limit Reached");
    expectCounts("Division: 10 of 10 ships", "Force A: 10 of 28 ships", "Scenario: 10 of 32 ships");
    EXPECT_FALSE(marked().contains("Jackal"));
}

TEST_F(ShipWindow, ARefusedPickSaysWhyInGerman)
{
    openShips(Language::German);
    clickShip("Ardent");
    clickShip("Ardent");
    expectBox("Sie haben dieses Schiff bereits ausgewählt.");
    expectCounts("Verband: 1 von 10 Schiffen", "Streitkraft A: 1 von 28 Schiffen",
                 "Szenario: 1 von 32 Schiffen");
    click(shipButton("CmdRemove"));
    expectBox("Bitte wählen Sie ein Schiff aus das gelöscht werden soll.");
}

TEST_F(ShipWindow, ThirtyTwoShipsInTheScenarioAreTheLimitAheadOfTheForces)
{
    putUsualCatalogue();
    newScenario();
    for (const char* file : {"DivisionA1.txt", "DivisionA2.txt", "DivisionA3.txt", "DivisionA4.txt"}) {
        putDivision(file, 7);
    }
    putDivision("DivisionB1.txt", 4);
    setDivision("Force A (Blue)", 5);
    showShips();
    for (int i = 0; i < 2; ++i) {
        clickShip("Ardent");
        expectBox("A scenario may only have a maximum of 32 ships.", "Limit Reached");
    }
    EXPECT_EQ(count("lblForceCount"), "Force A: 30 of 28 ships");
    closeBox(&ships());
    showShips();
    EXPECT_EQ(count("lblForceCount"), "Force A: 28 of 28 ships");
}

TEST_F(ShipWindow, TwentyEightShipsInTheForceAreItsLimit)
{
    putUsualCatalogue();
    newScenario();
    for (const char* file : {"DivisionA1.txt", "DivisionA2.txt", "DivisionA3.txt", "DivisionA4.txt"}) {
        putDivision(file, 7);
    }
    setDivision("Force A (Blue)", 5);
    showShips();
    clickShip("Ardent");
    expectBox("You may only have a maximum of 28 ships per Force.", "Limit Reached");
    EXPECT_EQ(count("lblForceCount"), "Force A: 28 of 28 ships");
    EXPECT_EQ(count("lblScenarioCount"), "Scenario: 28 of 32 ships");
}

TEST_F(ShipWindow, TheTransportingForceTakesDestroyersAlone)
{
    putUsualCatalogue();
    newScenario();
    store("DDTRANSPORTS", "1");
    store("BLUE_FORCE_TYPE", "1");
    setDivision("Force B (Red)");
    showShips();
    clickShip("Olynthus");
    expectBox("The Transporting Force in a TACTICAL TRANSPORT scenario may only have type DD ships.",
              "Ship Class Error");
    clickShip("Ardent");
    EXPECT_EQ(listed(), QStringList("DD Ardent"));
    EXPECT_EQ(count("lblForceCount"), "Force B: 1 of 28 ships");
}

TEST_F(ShipWindow, RemoveTakesTheSelectedShip)
{
    openShips();
    clickShip("Exeter");
    clickShip("Ardent");
    clickLine(0);
    click(shipButton("CmdRemove"));
    EXPECT_EQ(listed(), QStringList("DD Ardent"));
    EXPECT_EQ(marked(), QStringList("Ardent"));
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList({"", "Ardent"}));
    EXPECT_FALSE(workNames().contains("ShipRemove.bmm"));
    expectCounts("Division: 1 of 10 ships", "Force A: 1 of 28 ships", "Scenario: 1 of 32 ships");
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ShipWindow, DeleteRemovesOneShipAfterTheOther)
{
    openShips();
    for (const char* name : {"Exeter", "Ardent", "Fury"}) {
        clickShip(name);
    }
    ships().activateWindow();
    ASSERT_TRUE(waitUntil([this] { return ships().isActiveWindow(); }));
    clickLine(1);
    press(division(), Qt::Key_Delete);
    EXPECT_EQ(listed(), QStringList({"CA Exeter", "DD Fury"}));
    EXPECT_EQ(division()->currentItem()->text(), "DD Fury");
    press(division(), Qt::Key_Delete);
    press(division(), Qt::Key_Delete);
    EXPECT_EQ(listed(), QStringList());
    EXPECT_TRUE(boxes().isEmpty());
    press(division(), Qt::Key_Delete);
    expectBox("There are no more ships to remove.");
}

TEST_F(ShipWindow, AShipPickedBehindTheRemovalOfTheLastOneIsRemovedWhole)
{
    openShips();
    ships().activateWindow();
    ASSERT_TRUE(waitUntil([this] { return ships().isActiveWindow(); }));
    for (const bool byKey : {false, true}) {
        const auto removeLine = [this, byKey] {
            byKey ? press(division(), Qt::Key_Delete) : click(shipButton("CmdRemove"));
        };
        clickShip("Ardent");
        clickLine(0);
        removeLine();
        clickShip("Fury");
        EXPECT_EQ(listed(), QStringList("DD Fury"));
        if (byKey) {
            clickLine(0); // for the focus: the line is shown as selected already
        }
        removeLine();
        EXPECT_EQ(listed(), QStringList());
        EXPECT_EQ(marked(), QStringList());
        EXPECT_EQ(lines("ShipTrack.bmm"), QStringList({""}));
        expectCounts("Division: 0 of 10 ships", "Force A: 0 of 28 ships", "Scenario: 0 of 32 ships");
        EXPECT_TRUE(boxes().isEmpty());
    }
}

TEST_F(ShipWindow, RemoveWithNoLineSelectedAsksForOne)
{
    openShips();
    click(shipButton("CmdRemove"));
    expectBox("Please select a ship to remove.");
    clickShip("Ardent");
    // Reaching the list by the keyboard selects no line.
    division()->setFocus();
    settle();
    click(shipButton("CmdRemove"));
    expectBox("Please select a ship to remove.");
    EXPECT_EQ(listed(), QStringList("DD Ardent"));
}

TEST_F(ShipWindow, ClearAllTakesAllShipsAndLeavesTheDivisionFile)
{
    putUsualCatalogue();
    newScenario();
    putWorkFile("DivisionA1.txt", "\"DD Ardent\"\r\n");
    putWorkFile("ShipTrack.bmm", "\"\"\r\n\"Ardent\"\r\n\"Bismarck\"\r\n");
    setDivision();
    showShips();
    clickShip("Exeter");
    click(shipButton("CmdClear"));
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(marked(), QStringList());
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList({"", "Bismarck"}));
    EXPECT_EQ(lines("DivisionA1.txt"), QStringList("DD Ardent"));
    EXPECT_TRUE(ships().isVisible());
    expectCounts("Division: 0 of 10 ships", "Force A: 0 of 28 ships", "Scenario: 0 of 32 ships");
}

TEST_F(ShipWindow, OpensWithTheDivisionsShipsAndMarksThoseOfTheScenario)
{
    putUsualCatalogue();
    newScenario();
    putWorkFile("DivisionA1.txt", "\"DD Ardent\"\r\n");
    putWorkFile("DivisionB2.txt", "\"DD Fury\"\r\n\"CA Exeter\"\r\n");
    putWorkFile("ShipTrack.bmm", "\"\"\r\n\"Ardent\"\r\n\"Fury\"\r\n\"Exeter\"\r\n");
    setDivision("Force B (Red)", 2);
    showShips();
    EXPECT_EQ(listed(), QStringList({"DD Fury", "CA Exeter"}));
    EXPECT_EQ(marked(), QStringList({"Ardent", "Exeter", "Fury"}));
    EXPECT_EQ(control<QGroupBox>(ships(), "fraDivision")->title(), "Division 2");
    expectCounts("Division: 2 of 10 ships", "Force B: 2 of 28 ships", "Scenario: 3 of 32 ships");
    clickShip("Ardent");
    expectBox("You have already selected this ship.");
}

TEST_F(ShipWindow, ALimitThatIsReachedStandsOut)
{
    openShips();
    QLabel* label = control<QLabel>(ships(), "lblDivCount");
    EXPECT_FALSE(label->font().bold());
    for (const char* name : {"Ardent", "Cossack", "Warspite", "Exeter", "Duncan", "Electra", "Fury",
                             "Glowworm", "Hotspur", "Icarus"}) {
        clickShip(name);
    }
    EXPECT_TRUE(label->font().bold());
    EXPECT_FALSE(control<QLabel>(ships(), "lblForceCount")->font().bold());
}

} // namespace
} // namespace torvane::testing
