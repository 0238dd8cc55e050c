#include "windows/division_fixture.h"

#include <QListWidget>

namespace torvane::testing {
namespace {

class Flagship : public DivisionDialogs
{
};

TEST_F(Flagship, IsTheFirstShipUntilAnotherIsPicked)
{
    openScenario();
    create(Side::Blue);
    keepShips(destroyers());
    EXPECT_EQ(flagRows(), QList<int>{0});
    click(push("CmdFlagShip"));
    EXPECT_TRUE(grid()->isEnabled());
    EXPECT_EQ(caption("lblShips"), QStringLiteral("Click the new flagship"));
    clickRow(2);
    EXPECT_EQ(flagRows(), QList<int>{2});
    EXPECT_FALSE(grid()->isEnabled()) << "one click";
    clickRow(1);
    EXPECT_EQ(flagRows(), QList<int>{2});
    EXPECT_EQ(key("DIVISION0", "FLAGSHIPINDEX"), invalidValue) << "nothing is stored yet";
    save();
    EXPECT_EQ(key("DIVISION0", "FLAGSHIPINDEX"), QStringLiteral("2"));
}

TEST_F(Flagship, CannotBeAnEmptyRow)
{
    openScenario();
    create(Side::Blue);
    keepShips(destroyers());
    click(push("CmdFlagShip"));
    clickRow(7);
    EXPECT_EQ(flagRows(), QList<int>{0});
    EXPECT_TRUE(grid()->isEnabled()) << "still awaited";
    clickRow(1);
    EXPECT_EQ(flagRows(), QList<int>{1});
}

TEST_F(Flagship, OfAnEditedDivisionIsStoredAtOnceAndTheListStaysOpen)
{
    openScenario();
    make(Side::Red, {"DD Zulu"});
    make(Side::Blue, destroyers());
    edit(Side::Blue, 1);
    click(push("CmdFlagShip"));
    clickRow(1);
    EXPECT_EQ(key("DIVISION1", "FLAGSHIPINDEX"), QStringLiteral("1"));
    EXPECT_TRUE(grid()->isEnabled());
    clickRow(2);
    EXPECT_EQ(key("DIVISION1", "FLAGSHIPINDEX"), QStringLiteral("2"));
    EXPECT_EQ(key("DIVISION0", "FLAGSHIPINDEX"), QStringLiteral("0"));
    click(push("CmdEditCancel"));
    EXPECT_EQ(key("DIVISION1", "FLAGSHIPINDEX"), QStringLiteral("2")) << "a cancel does not take it back";
    create(Side::Blue);
    EXPECT_FALSE(grid()->isEnabled());
}

TEST_F(Flagship, OfADivisionThatTheProfileLacksClosesTheList)
{
    openScenario();
    make(Side::Blue, destroyers());
    edit(Side::Blue, 1);
    put("DIVISION0", "DIVISIONNAME", QStringLiteral("Another"));
    click(push("CmdFlagShip"));
    clickRow(1);
    EXPECT_FALSE(grid()->isEnabled());
    EXPECT_EQ(key("DIVISION0", "FLAGSHIPINDEX"), QStringLiteral("0"));
}

TEST_F(Flagship, IsPickedByTheKeyboardToo)
{
    openScenario();
    create(Side::Blue);
    keepShips(destroyers());
    click(push("CmdFlagShip"));
    EXPECT_EQ(dialog().focusWidget(), grid());
    press(grid(), Qt::Key_Down);
    press(grid(), Qt::Key_Return);
    EXPECT_EQ(flagRows(), QList<int>{1});
    click(push("CmdFlagShip"));
    press(grid(), Qt::Key_Down);
    press(grid(), Qt::Key_Space);
    EXPECT_EQ(flagRows(), QList<int>{2});
    EXPECT_TRUE(dialog().isVisible());
}

TEST_F(Flagship, IsTheFirstShipAloneAfterAKeepWhateverWasBefore)
{
    openScenario();
    create(Side::Red); // of the Royal Navy, unless the overview says otherwise
    click(push("CmdAdd"));
    for (const char* name : {"Cossack", "Maori", "Sikh"}) {
        pickShip(name);
    }
    keepPicked();
    click(push("CmdFlagShip"));
    clickRow(2);
    ASSERT_EQ(flagRows(), QList<int>{2});
    click(push("CmdAdd"));
    auto* division = control<QListWidget>(editor().shipDBaseFrm(), QStringLiteral("LstDivision"));
    QTest::mouseClick(division->viewport(), Qt::LeftButton, {},
                      division->visualItemRect(division->item(0)).center());
    click(control<QPushButton>(editor().shipDBaseFrm(), QStringLiteral("CmdRemove")));
    keepPicked();
    EXPECT_EQ(flagRows(), QList<int>{0});
    EXPECT_EQ(cell(0, 0), QStringLiteral("DD Maori"));
    EXPECT_EQ(cell(1, 0), QStringLiteral("DD Sikh"));
    for (int row = 2; row < grid()->rowCount(); ++row) {
        EXPECT_EQ(cell(row, 0) + cell(row, 1), QString()) << row;
    }
}

} // namespace
} // namespace torvane::testing
