#include "windows/division_fixture.h"

namespace torvane::testing {
namespace {

class DivisionLeaving : public DivisionDialogs
{
protected:
    /// Keeps what the main window finds when it comes to the front.
    void watchFlags()
    {
        // The first thing that its activation does with them is to clear them: what they were is noted then.
        QObject::connect(main().chkCreateReturn, &QCheckBox::toggled, main().chkCreateReturn,
                         [this](bool on) {
                             if (on) {
                                 createReturn = true;
                             }
                         });
        QObject::connect(main().chkReturnFromEdit, &QCheckBox::toggled, main().chkReturnFromEdit,
                         [this](bool on) {
                             if (on) {
                                 returnFromEdit = true;
                             }
                         });
    }
    bool isVisible(const char* entry) { return main().menu().action(QLatin1StringView(entry))->isVisible(); }
    bool isEnabledEntry(const char* entry)
    {
        return main().menu().action(QLatin1StringView(entry))->isEnabled();
    }

    bool createReturn = false;
    bool returnFromEdit = false;
};

TEST_F(DivisionLeaving, ASavedNewDivisionStandsInTheProfileWithItsShips)
{
    openScenario();
    make(Side::Blue, destroyers());
    EXPECT_EQ(key("SCENARIOINFO", "DIVISIONCNT"), QStringLiteral("1"));
    EXPECT_EQ(key("DIVISION0", "DIVISIONNAME"), QStringLiteral("Division 1"));
    EXPECT_EQ(key("DIVISION0", "SIDE"), QStringLiteral("Blue"));
    EXPECT_EQ(key("DIVISION0", "FORMATION"), QStringLiteral("Column"));
    EXPECT_EQ(key("DIVISION0", "FORMATIONHEADING"), QStringLiteral("0"));
    EXPECT_EQ(key("DIVISION0", "FORMATIONSPACING"), QStringLiteral("500"));
    EXPECT_EQ(key("DIVISION0", "SPEED"), QStringLiteral("8"));
    EXPECT_EQ(key("DIVISION0", "SHIPCNT"), QStringLiteral("3"));
    EXPECT_EQ(key("DIVISION0", "FLAGSHIPINDEX"), QStringLiteral("0"));
    EXPECT_EQ(key("DIVISION0", "ENCUMBERED"), QStringLiteral("0"));
    EXPECT_EQ(key("DIVISION0SHIP2", "NAME"), QStringLiteral("Sikh"));
    EXPECT_EQ(key("DIVISION0SHIP2", "CURRENTHITPOINTS"), QStringLiteral("355"));
    expectClosed();
}

TEST_F(DivisionLeaving, ADivisionOfShipsPickedInTheShipDialogIsMadeAndEdited)
{
    openScenario(Language::German);
    create(Side::Red); // of the Royal Navy, unless the overview says otherwise
    click(push("CmdAdd"));
    pickShip("Cossack");
    pickShip("Hood");
    keepPicked();
    EXPECT_EQ(cell(0, 0), QStringLiteral("DD Cossack"));
    EXPECT_EQ(cell(1, 0), QStringLiteral("BB Hood"));
    EXPECT_EQ(flagRows(), QList<int>{0});
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Verband 1"));
    save();
    expectClosed();
    EXPECT_EQ(key("DIVISION0SHIP1", "NAME"), QStringLiteral("Hood"));
    edit(Side::Red, 1);
    click(push("CmdAdd"));
    pickShip("Maori");
    keepPicked();
    EXPECT_EQ(caption("lblShips"), QStringLiteral("Schiffe: 3 von 10"));
    save();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(key("DIVISION0", "SHIPCNT"), QStringLiteral("3"));
    EXPECT_EQ(key("DIVISION0SHIP2", "NAME"), QStringLiteral("Maori"));
}

TEST_F(DivisionLeaving, AGermanDivisionIsStoredInEnglish)
{
    openScenario(Language::German);
    create(Side::Red);
    keepShips(destroyers());
    click(push("cmdDivDataChng"));
    pick(choices("CmbFormation"), "Peilung");
    click(push("cmdKeepDivData"));
    save();
    EXPECT_EQ(key("DIVISION0", "DIVISIONNAME"), QStringLiteral("Division 1"));
    EXPECT_EQ(key("DIVISION0", "SIDE"), QStringLiteral("Red"));
    EXPECT_EQ(key("DIVISION0", "FORMATION"), QStringLiteral("Line of Bearing"));
}

TEST_F(DivisionLeaving, ASavedNewDivisionAwaitsItsPlaceOnTheMap)
{
    openScenario(Language::German);
    setValue(main().chkReturnFromEdit, 1);
    watchFlags();
    create(Side::Blue);
    keepShips(destroyers());
    save();
    EXPECT_TRUE(createReturn);
    EXPECT_FALSE(returnFromEdit);
    EXPECT_EQ(valueOf(main().chkReturnFromEdit), 0);
    EXPECT_EQ(main().txtDivisionReturn->text(), QStringLiteral("Verband 1"));
    EXPECT_EQ(valueOf(dialog().chkReposition), 1) << "set by the main window from the flags";
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    EXPECT_EQ(valueOf(dialog().chkReturnFlag), 0);
}

TEST_F(DivisionLeaving, ASavedNewDivisionGetsItsMenuEntries)
{
    openScenario();
    main().menu().setEnabled(QStringLiteral("mnuCreateForceB"), false);
    EXPECT_FALSE(isEnabledEntry("editForceA"));
    make(Side::Blue, {"DD Cossack"});
    EXPECT_TRUE(isEnabledEntry("editForceA"));
    EXPECT_TRUE(isEnabledEntry("mnuRepoForceA"));
    EXPECT_FALSE(isEnabledEntry("editForceB"));
    EXPECT_FALSE(isEnabledEntry("mnuRepoForceB"));
    EXPECT_TRUE(isEnabledEntry("mnuCreateForceB"));
    EXPECT_TRUE(isVisible("mnuForceA1"));
    EXPECT_TRUE(isVisible("mnuDiv1"));
    EXPECT_FALSE(isVisible("mnuForceA2"));
    make(Side::Blue, {"DD Maori"});
    EXPECT_TRUE(isVisible("mnuForceA2"));
    EXPECT_TRUE(isVisible("mnuDiv2"));
    EXPECT_FALSE(isVisible("mnuSeperator3"));
    make(Side::Red, {"DD Sikh"});
    EXPECT_TRUE(isEnabledEntry("editForceB"));
    EXPECT_TRUE(isEnabledEntry("mnuRepoForceB"));
    EXPECT_TRUE(isVisible("mnuSeperator3"));
    EXPECT_TRUE(isVisible("mnuDiv5"));
    EXPECT_TRUE(isVisible("mnuForceB1"));
}

TEST_F(DivisionLeaving, ASaveClearsTheDialog)
{
    openScenario();
    make(Side::Blue, destroyers());
    EXPECT_EQ(cell(0, 0), QString());
    EXPECT_TRUE(flagRows().isEmpty());
    EXPECT_EQ(caption("lblDivName"), QString());
    EXPECT_EQ(caption("lblForceSide"), QString());
    EXPECT_EQ(field("TxtSpeed")->text(), QString());
    EXPECT_EQ(choices("CmbDivName")->shownText(), QString());
    EXPECT_EQ(control<PictureBox>(dialog(), "PicDivName")->accessibleName(), QString());
    EXPECT_EQ(dialog().lblside->text(), QStringLiteral("Force A (Blue)")) << "the main window reads it";
}

TEST_F(DivisionLeaving, SectionsInterleaveTheSides)
{
    openScenario();
    make(Side::Blue, {"DD Cossack"});
    make(Side::Blue, {"DD Maori"});
    make(Side::Red, {"DD Sikh"});
    make(Side::Red, {"DD Zulu"});
    EXPECT_EQ(key("DIVISION3", "DIVISIONNAME"), QStringLiteral("Division 2"));
    EXPECT_EQ(key("DIVISION3", "SIDE"), QStringLiteral("Red"));
    EXPECT_EQ(key("SCENARIOINFO", "DIVISIONCNT"), QStringLiteral("4"));
}

TEST_F(DivisionLeaving, ASavedEditIsLaidOutAtItsOldPlaceWithoutAClick)
{
    openScenario();
    make(Side::Blue, destroyers());
    put("DIVISION0SHIP0", "XPOSITION", QStringLiteral("4000"));
    put("DIVISION0SHIP0", "ZPOSITION", QStringLiteral("-2000"));
    put("DIVISION0SHIP1", "CURRENTHITPOINTS", QStringLiteral("7"));
    watchFlags();
    main().menu().setEnabled(QStringLiteral("mnuCreateForceB"), false);
    main().menu().setEnabled(QStringLiteral("mnuRepoForceA"), false);
    edit(Side::Blue, 1);
    click(push("cmdDivDataChng"));
    retype(field("TxtHeading"), QStringLiteral("90"));
    click(push("cmdKeepDivData"));
    keepShips({"DD Maori", "DD Zulu"});
    save();
    EXPECT_TRUE(createReturn);
    EXPECT_TRUE(returnFromEdit);
    EXPECT_EQ(main().txtDivisionReturn->text(), QStringLiteral("Division 1"));
    EXPECT_EQ(main().txtXPosition->text(), QStringLiteral("4000"));
    EXPECT_EQ(main().txtYPosition->text(), QStringLiteral("-2000"));
    EXPECT_EQ(valueOf(dialog().chkReposition), 0);
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_FALSE(isEnabledEntry("mnuCreateForceB")) << "an edit enables no menu";
    EXPECT_FALSE(isEnabledEntry("mnuRepoForceA"));
    EXPECT_TRUE(isVisible("mnuForceA1"));
    EXPECT_EQ(key("DIVISION0", "FORMATIONHEADING"), QStringLiteral("90"));
    EXPECT_EQ(key("DIVISION0", "SHIPCNT"), QStringLiteral("2"));
    EXPECT_EQ(key("DIVISION0SHIP0", "NAME"), QStringLiteral("Maori"));
    EXPECT_EQ(key("DIVISION0SHIP0", "CURRENTHITPOINTS"), QStringLiteral("7")) << "it keeps its damage";
    EXPECT_EQ(key("DIVISION0SHIP1", "NAME"), QStringLiteral("Zulu"));
    EXPECT_EQ(key("DIVISION0SHIP2", "NAME"), noShip);
    EXPECT_EQ(key("SCENARIOINFO", "DIVISIONCNT"), QStringLiteral("1"));
    EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("ExisitTemp.bmm"))));
    EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("TempIniTemp.bmm"))));
    expectClosed();
}

TEST_F(DivisionLeaving, ACancelledEditChangesNothingOfTheProfile)
{
    openScenario();
    make(Side::Blue, destroyers());
    const QByteArray before = profile();
    setValue(main().ChkPlotDiv, 1);
    edit(Side::Blue, 1);
    click(push("cmdDivDataChng"));
    retype(field("TxtHeading"), QStringLiteral("90"));
    setValue(main().chkReturnFromEdit, 1);
    click(push("CmdEditCancel"));
    EXPECT_EQ(profile(), before);
    EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("ExisitTemp.bmm"))));
    EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("TempIniTemp.bmm"))));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(valueOf(main().chkReturnFromEdit), 0);
    EXPECT_EQ(valueOf(main().chkCreateReturn), 0);
    EXPECT_EQ(records().blueDivCount(), 1);
    EXPECT_EQ(cell(0, 0), QString());
    expectClosed();
}

TEST_F(DivisionLeaving, ACancelledNewDivisionTakesItsCountBackAndLeavesItsFiles)
{
    openScenario();
    make(Side::Blue, {"DD Zulu"});
    const QByteArray before = profile();
    create(Side::Blue);
    keepShips(destroyers());
    click(push("CmdCancel"));
    EXPECT_EQ(records().blueDivCount(), 1);
    EXPECT_EQ(profile(), before);
    EXPECT_TRUE(QFile::exists(workFile(QStringLiteral("DivisionA2.txt"))));
    EXPECT_TRUE(QFile::exists(workFile(QStringLiteral("DivDataA2.txt"))));
    EXPECT_EQ(caption("lblDivName"), QString());
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    expectClosed();
    create(Side::Blue);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 2"));
}

TEST_F(DivisionLeaving, TheCloseBoxAndEscDoWhatCancelDoes)
{
    openScenario();
    make(Side::Blue, {"DD Zulu"});
    const QByteArray before = profile();
    const auto leaveBy = [this](bool escape) {
        escape ? press(dialog().focusWidget(), Qt::Key_Escape) : closeBox(&dialog());
    };
    for (const bool escape : {false, true}) {
        create(Side::Blue);
        leaveBy(escape);
        EXPECT_EQ(records().blueDivCount(), 1);
        expectClosed();
        create(Side::Blue);
        keepShips(destroyers());
        click(push("cmdDivDataChng"));
        leaveBy(escape);
        EXPECT_EQ(records().blueDivCount(), 1);
        expectClosed();
        edit(Side::Blue, 1);
        click(push("CmdFlagShip"));
        leaveBy(escape);
        EXPECT_FALSE(QFile::exists(workFile(QStringLiteral("ExisitTemp.bmm"))));
        expectClosed();
        EXPECT_EQ(profile(), before);
    }
}

TEST_F(DivisionLeaving, TheCloseBoxDoesNothingBeforeTheDialogHasReadItsStateAndWhileTheShipDialogIsOpen)
{
    openScenario();
    make(Side::Blue, {"DD Zulu"});
    main().menu().action(QStringLiteral("mnuCreateForceA"))->trigger();
    dialog().close();
    EXPECT_TRUE(dialog().isVisible());
    settle();
    EXPECT_EQ(records().blueDivCount(), 2);
    click(push("CmdAdd"));
    closeBox(&dialog());
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(records().blueDivCount(), 2);
    closeShips();
    closeBox(&dialog());
    EXPECT_EQ(records().blueDivCount(), 1);
}

} // namespace
} // namespace torvane::testing
