#include "windows/division_fixture.h"
#include "windows/key_roads.h"

namespace torvane::testing {
namespace {

class DivisionKeys : public DivisionDialogs
{
protected:
    void openWithShips(Language language = Language::English)
    {
        openScenario(language);
        create(Side::Blue);
        keepShips(destroyers());
    }
};

TEST_F(DivisionKeys, EveryLabelOfAnOpenSettingLeadsToIt)
{
    for (const Language language : {Language::English, Language::German}) {
        openWithShips(language);
        click(push("cmdDivDataChng"));
        expectLabelsLead(dialog(), 5);
    }
}

TEST_F(DivisionKeys, TheButtonsAnswerToTheirMnemonics)
{
    openWithShips();
    pressMnemonic(dialog(), push("CmdAdd")->text());
    EXPECT_TRUE(waitUntil([&] { return editor().shipDBaseFrm().isVisible(); }));
    closeShips();
    pressMnemonic(dialog(), push("CmdFlagShip")->text());
    EXPECT_TRUE(waitUntil([&] { return grid()->isEnabled(); }));
    pressMnemonic(dialog(), push("CmdSaveData")->text());
    EXPECT_TRUE(waitUntil([&] { return !dialog().isVisible(); }));
    edit(Side::Blue, 1);
    pressMnemonic(dialog(), push("CmdEditCancel")->text());
    EXPECT_TRUE(waitUntil([&] { return !dialog().isVisible(); }));
}

TEST_F(DivisionKeys, TabGoesThroughWhatCanBeUsed)
{
    openWithShips();
    EXPECT_EQ(tabRound(dialog(), push("cmdDivDataChng")).join(u' '),
              QStringLiteral("cmdDivDataChng CmdAdd CmdFlagShip CmdEditShip CmdNewDivision CmdSaveData "
                             "CmdCancel"));
    click(push("cmdDivDataChng"));
    EXPECT_EQ(tabRound(dialog(), push("cmdKeepDivData")).join(u' '),
              QStringLiteral("cmdKeepDivData CmdCntClckWse TxtHeading CmdClckWse CmbFormation CmbSpacing "
                             "cmdSpeedVal TxtSpeed cmdSpeedVal2 optEncumNO CmdCancel"));
}

TEST_F(DivisionKeys, TheSpaceBarStepsHeadingAndSpeed)
{
    openWithShips();
    click(push("cmdDivDataChng"));
    press(push("CmdClckWse"), Qt::Key_Space);
    press(push("CmdClckWse"), Qt::Key_Space);
    press(push("CmdCntClckWse"), Qt::Key_Space);
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("5"));
    press(push("cmdSpeedVal2"), Qt::Key_Space);
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("9"));
}

TEST_F(DivisionKeys, EnterOnAFocusedButtonPressesThatButton)
{
    openWithShips();
    push("CmdFlagShip")->setFocus();
    press(push("CmdFlagShip"), Qt::Key_Return);
    EXPECT_TRUE(grid()->isEnabled());
    EXPECT_TRUE(dialog().isVisible());
    push("CmdCancel")->setFocus();
    press(push("CmdCancel"), Qt::Key_Return);
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(key("DIVISION0", "DIVISIONNAME"), invalidValue);
}

} // namespace
} // namespace torvane::testing
