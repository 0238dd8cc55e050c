#include "ship_selection_fixture.h"

#include <QAbstractItemView>
#include <QComboBox>

namespace torvane::testing {
namespace {

/// The ways out of the ship dialog: cancelled or kept.
class ShipWindowLeaving : public ShipSelectionDialog
{
protected:
    QString gridCell(int row, int column)
    {
        return control<QAbstractItemView>(dialog(), "GrdDivision")
            ->model()
            ->index(row, column)
            .data()
            .toString();
    }
    void setSettings(const char* formation, const char* heading, const char* spacing, const char* speed)
    {
        control<QComboBox>(dialog(), "CmbFormation")->setCurrentText(formation);
        control<QLineEdit>(dialog(), "TxtHeading")->setText(heading);
        control<QComboBox>(dialog(), "CmbSpacing")->setCurrentText(spacing);
        control<QLineEdit>(dialog(), "TxtSpeed")->setText(speed);
    }
};

TEST_F(ShipWindowLeaving, CancelTakesTheListedShipsOffTheScenario)
{
    putUsualCatalogue();
    newScenario();
    putWorkFile("DivisionA1.txt", "\"DD Ardent\"\r\n");
    putWorkFile("ShipTrack.bmm", "\"\"\r\n\"Ardent\"\r\n\"Fury\"\r\n");
    setDivision();
    for (const char* way : {"CmdCancel", "close box", "Esc"}) {
        putWorkFile("ShipTrack.bmm", "\"\"\r\n\"Ardent\"\r\n\"Fury\"\r\n");
        showShips();
        clickShip("Exeter");
        if (qstrcmp(way, "CmdCancel") == 0) {
            click(shipButton(way));
        } else if (qstrcmp(way, "Esc") == 0) {
            press(grid(), Qt::Key_Escape);
        } else {
            closeBox(&ships());
        }
        expectClosed();
        EXPECT_EQ(lines("ShipTrack.bmm"), QStringList({"", "Fury"})) << way;
        EXPECT_EQ(lines("DivisionA1.txt"), QStringList("DD Ardent")) << way;
        EXPECT_FALSE(workNames().contains("DivDataA1.txt"));
    }
}

TEST_F(ShipWindowLeaving, KeepWritesDivisionAndSettingsAndHandsTheShipsOn)
{
    openShips();
    closeBox(&ships());
    setDivision("Force B (Red)", 3);
    setSettings("Convoy", "45", "700", "18");
    showShips();
    clickShip("Exeter");
    clickShip("Ardent");
    click(shipButton("CmdKeepShips"));
    expectClosed();
    EXPECT_EQ(workBytes("DivisionB3.txt"), QByteArray("\"CA Exeter\"\r\n\"DD Ardent\"\r\n"));
    EXPECT_EQ(workBytes("DivDataB3.txt"), QByteArray("\"Division 3\"\r\n\"Red\"\r\n\"Convoy\"\r\n\"45\"\r\n"
                                                     "\"700\"\r\n\"18\"\r\n\r\n\r\n"));
    EXPECT_EQ(divisionLabel()->text(), "Division 3");
    EXPECT_EQ(gridCell(0, 0), "CA Exeter");
    EXPECT_EQ(gridCell(0, 1), "FL");
    EXPECT_EQ(gridCell(1, 0), "DD Ardent");
    EXPECT_EQ(gridCell(1, 1), "");
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList({"", "Exeter", "Ardent"}));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ShipWindowLeaving, KeepInGermanStoresEnglishAndShowsGerman)
{
    openShips(Language::German);
    const struct
    {
        const char* shown;
        const char* stored;
    } formations[] = {{"Kolonne", "Column"}, {"Peilung", "Line of Bearing"}, {"Konvoi", "Convoy"}};
    for (const auto& [shown, stored] : formations) {
        setSettings(shown, "0", "500", "8");
        clickShip("Exeter");
        boxes().clear();
        click(shipButton("CmdKeepShips"));
        EXPECT_EQ(lines("DivDataA1.txt"), QStringList({"Division 1", "Blue", stored, "0", "500", "8"}));
        EXPECT_EQ(divisionLabel()->text(), "Verband 1");
        showShips();
    }
}

TEST_F(ShipWindowLeaving, KeepMakesTheFirstShipTheFlagshipWhateverWasBefore)
{
    openShips();
    clickShip("Exeter");
    clickShip("Ardent");
    click(shipButton("CmdKeepShips"));
    showShips();
    clickLine(0);
    click(shipButton("CmdRemove"));
    clickShip("Warspite");
    click(shipButton("CmdKeepShips"));
    EXPECT_EQ(gridCell(0, 0), "DD Ardent");
    EXPECT_EQ(gridCell(0, 1), "FL");
    EXPECT_EQ(gridCell(1, 0), "BB Warspite");
    EXPECT_EQ(gridCell(1, 1), "");
    EXPECT_EQ(gridCell(2, 0), "");
}

TEST_F(ShipWindowLeaving, KeepOfAnEmptyListSaysSoAndStays)
{
    openShips();
    click(shipButton("CmdKeepShips"));
    expectBox("There are no ships to be saved.");
    EXPECT_TRUE(ships().isVisible());
    EXPECT_FALSE(dialog().isInputEnabled());
    EXPECT_FALSE(workNames().contains("DivisionA1.txt"));
}

TEST_F(ShipWindowLeaving, WhatWasKeptIsTakenByNoOtherDivisionUntilItIsCancelled)
{
    openShips();
    clickShip("Exeter");
    click(shipButton("CmdKeepShips"));
    setDivision("Force B (Red)", 1);
    showShips();
    clickShip("Exeter");
    expectBox("You have already selected this ship.");
    closeBox(&ships());
    setDivision();
    showShips();
    EXPECT_EQ(listed(), QStringList("CA Exeter"));
    closeBox(&ships());
    setDivision("Force B (Red)", 1);
    showShips();
    clickShip("Exeter");
    EXPECT_EQ(listed(), QStringList("CA Exeter"));
    EXPECT_TRUE(boxes().isEmpty());
}

} // namespace
} // namespace torvane::testing
