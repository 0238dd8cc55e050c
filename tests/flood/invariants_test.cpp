#include "flood/invariants.h"

#include "platform/pointer.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "store/profile_keys.h"
#include "windows/division_fixture.h"

// Each of the monkey's checks finds what it is there for.

namespace torvane::testing {
namespace {

class Invariants : public DivisionDialogs
{
protected:
    /// A run with a division a side, the main window in front.
    void makeBattle()
    {
        openScenario();
        make(Side::Blue, destroyers(2));
        make(Side::Red, {QStringLiteral("BB Hood")});
        EXPECT_EQ(faults(), QStringList());
    }
    QStringList faults()
    {
        QStringList found{inputTakerFault(editor()),    wayOutFault(editor()),
                          underWayFault(editor()),      profileFault(editor(), profile()),
                          divisionsFault(profile()),    madeScenarioFault(profile()),
                          savingFault(editor()),        divisionMenusFault(editor()),
                          shipMenuFault(editor(), true)};
        found.removeAll(QString());
        return found;
    }
    QByteArray without(const QByteArray& line) const
    {
        const QByteArray bytes = profile();
        EXPECT_TRUE(bytes.contains(line)) << line.toStdString();
        return QByteArray(bytes).replace(line, "");
    }
};

TEST_F(Invariants, FindTwoWindowsThatTakeInput)
{
    makeBattle();
    create(Side::Blue);
    EXPECT_EQ(inputTakerFault(editor()), QString());
    main().setInputEnabled(true);
    EXPECT_NE(inputTakerFault(editor()), QString());
}

TEST_F(Invariants, FindThatNoWindowTakesInput)
{
    makeBattle();
    main().setInputEnabled(false);
    EXPECT_NE(inputTakerFault(editor()), QString());
}

TEST_F(Invariants, FindAWindowThatCannotBeLeft)
{
    makeBattle();
    create(Side::Blue);
    EXPECT_EQ(wayOutFault(editor()), QString());
    push("CmdCancel")->setEnabled(false);
    EXPECT_NE(wayOutFault(editor()), QString());
}

TEST_F(Invariants, FindAnHourglassThatStays)
{
    makeBattle();
    setPointer(Pointer::Hourglass);
    EXPECT_NE(underWayFault(editor()), QString());
    setPointer(Pointer::Default);
}

TEST_F(Invariants, FindAProfileThatIsNotWellFormed)
{
    makeBattle();
    EXPECT_NE(profileFault(editor(), profile() + "neither head nor key\r\n"), QString());
    EXPECT_NE(profileFault(editor(), profile() + "[DIVISION0]\r\n"), QString());
    EXPECT_NE(profileFault(editor(), profile() + "[OTHER]\r\n"), QString()) << "not what the program holds";
}

TEST_F(Invariants, FindASectionThatIsNotWhole)
{
    makeBattle();
    EXPECT_NE(divisionsFault(without("FORMATION=Column\r\n")), QString());
    EXPECT_NE(divisionsFault(without("NIGHTTRAINING=Average\r\n")), QString());
}

TEST_F(Invariants, FindACountThatDoesNotFit)
{
    makeBattle();
    EXPECT_NE(madeScenarioFault(QByteArray(profile()).replace("DIVISIONCNT=2", "DIVISIONCNT=3")), QString());
    EXPECT_NE(madeScenarioFault(QByteArray(profile()).replace("SHIPCNT=2", "SHIPCNT=3")), QString());
    EXPECT_NE(madeScenarioFault(QByteArray(profile()).replace("SIDE=Red", "SIDE=Blue")), QString());
    EXPECT_NE(madeScenarioFault(QByteArray(profile()).replace("[DIVISION1SHIP0]", "[DIVISION3SHIP0]")),
              QString());
}

TEST_F(Invariants, FindAScenarioThatCannotBeSaved)
{
    makeBattle();
    put("DIVISION0SHIP0", "ZPOSITION", QStringLiteral("1e308"));
    put("DIVISION0SHIP0", "ZPOSITION", QStringLiteral("9") + QString(310, u'9'));
    EXPECT_NE(savingFault(editor()), QString());
}

TEST_F(Invariants, FindMenusThatShowOtherDivisionsOrShips)
{
    makeBattle();
    main().menu().setVisible(QStringLiteral("mnuForceA2"), true);
    EXPECT_NE(divisionMenusFault(editor()), QString());
    main().menu().setVisible(QStringLiteral("mnuForceA2"), false);
    editor().divisionRecords().countDivision(Side::Red, 1);
    EXPECT_NE(divisionMenusFault(editor()), QString());
    editor().divisionRecords().countDivision(Side::Red, -1);
    main().menu().setVisible(QStringLiteral("mnuDiv1Ship2"), false);
    EXPECT_NE(shipMenuFault(editor(), true), QString());
    main().menu().setVisible(QStringLiteral("mnuDiv1Ship2"), true);
    main().menu().setVisible(QStringLiteral("mnuDiv1Ship3"), true);
    EXPECT_NE(shipMenuFault(editor(), true), QString());
}

TEST_F(Invariants, FindADialogThatShowsSomethingElse)
{
    makeBattle();
    edit(Side::Blue, 1);
    EXPECT_EQ(dialogFault(editor(), dialog()), QString());
    grid()->item(1, 0)->setText(QStringLiteral("DD Zulu"));
    EXPECT_NE(dialogFault(editor(), dialog()), QString());
    click(push("CmdEditCancel"));
    reopenOverview();
    EXPECT_EQ(dialogFault(editor(), overview()), QString());
    box("TxtTitle")->setText(QStringLiteral("Another"));
    EXPECT_NE(dialogFault(editor(), overview()), QString());
}

TEST_F(Invariants, ExcuseTheErrorsOfDamagedFilesThereAlone)
{
    makeBattle();
    editor().report(RuntimeError(RuntimeError::NoCurrentRecord, QStringLiteral("ShipDataB")));
    ASSERT_EQ(boxes().size(), 1);
    EXPECT_EQ(errorNumberOf(boxes().first()), RuntimeError::NoCurrentRecord);
    EXPECT_EQ(excuseFor(boxes().first(), Origin::Made), QString());
    EXPECT_NE(excuseFor(boxes().first(), Origin::Foreign), QString());
    EXPECT_EQ(errorNumberOf({.text = QStringLiteral("Saved"), .title = QString()}), 0);
}

} // namespace
} // namespace torvane::testing
