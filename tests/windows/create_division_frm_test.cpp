#include "divisions/division_texts.h"
#include "support/shown_captions.h"
#include "windows/division_fixture.h"

#include <QApplication>
#include <QScopeGuard>

namespace torvane::testing {
namespace {

class DivisionWindow : public DivisionDialogs
{
};

TEST_F(DivisionWindow, HasItsCaptionsInBothLanguages)
{
    for (const Language language : {Language::English, Language::German}) {
        startPastSplash(language);
        expectCaptions(dialog(), divisionCaptions, language);
    }
}

TEST_F(DivisionWindow, LockedAndOpenSettingsStayReadableOnADarkDesktop)
{
    const QPalette usual = QApplication::palette();
    const auto back = qScopeGuard([&usual] { QApplication::setPalette(usual); });
    QApplication::setPalette(QPalette(QColor(60, 60, 60), QColor(45, 45, 45)));
    openScenario();
    choose("mnuCreateForceA");
    const int ground = dialog().palette().color(QPalette::Window).lightness();
    ASSERT_LT(ground, 128);
    const QPalette field = choices("CmbFormation")->palette();
    EXPECT_GT(field.color(QPalette::Disabled, QPalette::Text).lightness(), ground + 100);
    click(push("cmdDivDataChng"));
    const QPalette state = control<QLabel>(dialog(), QStringLiteral("lblLock"))->palette();
    EXPECT_GT(state.color(QPalette::WindowText).lightness(), ground + 100);
}

TEST_F(DivisionWindow, ListsFormationsAndSpacings)
{
    startPastSplash(Language::English);
    EXPECT_EQ(entries(choices("CmbFormation")), (QStringList{"Column", "Line of Bearing", "Convoy"}));
    EXPECT_EQ(entries(choices("CmbSpacing")),
              (QStringList{"500", "600", "700", "800", "900", "1000", "1500", "2000"}));
    startPastSplash(Language::German);
    EXPECT_EQ(entries(choices("CmbFormation")), (QStringList{"Kolonne", "Peilung", "Konvoi"}));
}

TEST_F(DivisionWindow, HasAListOfTenRowsAndTwoColumnsOfTheirWidths)
{
    startPastSplash(Language::English);
    EXPECT_EQ(grid()->rowCount(), 10);
    ASSERT_EQ(grid()->columnCount(), 2);
    EXPECT_EQ(grid()->columnWidth(0), 300);
    EXPECT_EQ(grid()->columnWidth(1), 67);
    EXPECT_EQ(caption("LblPicMap"), QStringLiteral(" 0 X 0"));
}

TEST_F(DivisionWindow, CountsTheDivisionFilesThatItFindsWhenItIsLoaded)
{
    startPastSplash(Language::English);
    for (const char* name : {"DivisionA1.txt", "DivisionA2.txt", "DivisionB4.txt"}) {
        putWorkFile(QLatin1StringView(name));
    }
    dialog();
    EXPECT_EQ(records().blueDivCount(), 2);
    EXPECT_EQ(records().redDivCount(), 1);
}

TEST_F(DivisionWindow, StartsANewDivisionFromItsDefaults)
{
    for (const Language language : {Language::English, Language::German}) {
        openScenario(language);
        create(Side::Blue);
        EXPECT_EQ(choices("CmbFormation")->shownText(),
                  QString::fromLatin1(language == Language::German ? "Kolonne" : "Column"));
        EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("0"));
        EXPECT_EQ(choices("CmbSpacing")->shownText(), QStringLiteral("500"));
        EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("8"));
        EXPECT_TRUE(option("optEncumNO")->isChecked());
        EXPECT_EQ(cell(0, 0), QString());
        EXPECT_TRUE(flagRows().isEmpty());
    }
}

TEST_F(DivisionWindow, NamesTheDivisionInTheLanguageAndTheSideInEnglish)
{
    openScenario(Language::German);
    create(Side::Red);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Verband 1"));
    EXPECT_EQ(control<PictureBox>(dialog(), "PicDivName")->accessibleName(), QStringLiteral("Verband 1"));
    EXPECT_EQ(dialog().lblside->text(), QStringLiteral("Force B (Red)"));
    EXPECT_FALSE(dialog().lblside->isVisible());
}

TEST_F(DivisionWindow, DrawsTheNameOfTheDivision)
{
    openScenario(Language::English);
    create(Side::Blue);
    const QImage one = control<PictureBox>(dialog(), "PicDivName")->image();
    QImage empty = one;
    empty.fill(forceABlue);
    EXPECT_NE(one, empty);
    keepShips(destroyers());
    EXPECT_EQ(control<PictureBox>(dialog(), "PicDivName")->image(), one) << "the same after the ship dialog";
    save();
    create(Side::Blue);
    EXPECT_NE(control<PictureBox>(dialog(), "PicDivName")->image(), one) << "the number has changed";
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 2"));
}

TEST_F(DivisionWindow, TakesTheNavyOfItsForceFromTheOverviewAtEachActivation)
{
    openNew(Language::English);
    pick(list("CmbRedSide"), "Royal Navy (RN)");
    saveOverview();
    create(Side::Red);
    EXPECT_EQ(dialog().lblForceSide->text(), QStringLiteral("Royal Navy (RN)"));
    EXPECT_EQ(caption("lblForce"), QStringLiteral("Force B, Royal Navy (RN)"));
    click(push("CmdCancel"));
    reopenOverview();
    pick(list("CmbRedSide"), "United States Navy (USN)");
    saveOverview();
    create(Side::Red);
    EXPECT_EQ(dialog().lblForceSide->text(), QStringLiteral("United States Navy (USN)"));
    click(push("CmdCancel"));
    create(Side::Blue);
    EXPECT_EQ(dialog().lblForceSide->text(), overview().navy(Side::Blue));
}

TEST_F(DivisionWindow, NumbersTheFirstDivisionOfANewScenarioOneWhateverWasCounted)
{
    openScenario();
    records().countDivision(Side::Blue, 4);
    records().countDivision(Side::Red, 2);
    create(Side::Blue);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 1"));
    EXPECT_EQ(records().blueDivCount(), 1);
    EXPECT_EQ(records().redDivCount(), 0);
    EXPECT_EQ(valueOf(dialog().ChknewBlueFlag), 0);
    EXPECT_EQ(valueOf(dialog().ChknewRedFlag), 1);
}

TEST_F(DivisionWindow, CountsTheDivisionsOfEachSide)
{
    openScenario();
    make(Side::Blue, {"DD Cossack"});
    make(Side::Blue, {"DD Maori"});
    create(Side::Red);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 1"));
    click(push("CmdCancel"));
    create(Side::Blue);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 3"));
}

TEST_F(DivisionWindow, RefusesASeventhDivisionAndTheCountStaysSix)
{
    const struct
    {
        Language language;
        const char* text;
    } cases[] = {{Language::English, "You may only have a maximum of 6 divisions per side."},
                 {Language::German, "Eine Streitkraft kann maximal über 6 Verbände verfügen."}};
    for (const auto& [language, text] : cases) {
        openScenario(language);
        make(Side::Red, {"DD Cossack"});
        records().countDivision(Side::Red, 5);
        boxes().clear();
        choose("mnuCreateForceB");
        ASSERT_EQ(boxes().size(), 1);
        EXPECT_EQ(boxes().first().text, QString::fromUtf8(text));
        EXPECT_EQ(boxes().first().title, QString());
        EXPECT_EQ(boxes().first().icon, MessageBox::Icon::None);
        EXPECT_EQ(records().redDivCount(), 6);
        EXPECT_EQ(records().blueDivCount(), 0);
        expectClosed();
        choose("mnuCreateForceB");
        EXPECT_EQ(records().redDivCount(), 6) << "again";
        expectClosed();
    }
}

TEST_F(DivisionWindow, WithoutShipsOffersToAddSomeAndNoSave)
{
    openScenario();
    create(Side::Blue);
    expectEnabled(false, {"CmdFlagShip", "CmdEditShip", "CmdSaveData", "cmdOK", "txtDivName", "CmbSide",
                          "CmbFormation", "TxtHeading", "CmdCntClckWse", "cmdSpeedVal", "cmdSpeedVal2",
                          "CmdClckWse", "CmbSpacing", "TxtSpeed", "CmdNewDivision"});
    expectEnabled(true, {"CmdAdd", "CmdCancel", "cmdDivDataChng"});
    EXPECT_EQ(dialog().focusWidget(), push("CmdAdd"));
}

TEST_F(DivisionWindow, WithShipsOffersTheSaveAndKeepsTheSettingsLocked)
{
    openScenario();
    create(Side::Blue);
    keepShips(destroyers());
    expectEnabled(true, {"CmdFlagShip", "CmdEditShip", "CmdSaveData", "CmdNewDivision", "CmdAdd"});
    expectEnabled(false,
                  {"CmbFormation", "TxtHeading", "CmdCntClckWse", "cmdSpeedVal", "cmdSpeedVal2", "CmdClckWse",
                   "CmbSpacing", "TxtSpeed", "optEncumYES", "optEncumNO", "GrdDivision"});
    EXPECT_EQ(dialog().focusWidget(), push("CmdSaveData"));
}

TEST_F(DivisionWindow, ShowsTheButtonsOfItsJob)
{
    openScenario();
    create(Side::Blue);
    for (const char* name : {"CmdSaveData", "CmdCancel"}) {
        EXPECT_TRUE(push(name)->isVisible()) << name;
    }
    for (const char* name : {"cmdOK", "CmdEditCancel"}) {
        EXPECT_FALSE(push(name)->isVisible()) << name;
    }
    keepShips(destroyers());
    save();
    edit(Side::Blue, 1);
    for (const char* name : {"CmdSaveData", "CmdCancel"}) {
        EXPECT_FALSE(push(name)->isVisible()) << name;
    }
    for (const char* name : {"cmdOK", "CmdEditCancel"}) {
        EXPECT_TRUE(push(name)->isVisible()) << name;
    }
}

TEST_F(DivisionWindow, OffersTheFlagshipOfAnEditedDivisionEvenWithoutShips)
{
    openScenario();
    make(Side::Blue, destroyers());
    QFile::remove(workFile(QStringLiteral("DivisionA1.txt")));
    edit(Side::Blue, 1);
    EXPECT_EQ(cell(0, 0), QString());
    expectEnabled(true, {"CmdFlagShip", "CmdAdd"});
    expectEnabled(false, {"cmdOK", "CmdEditShip", "CmdNewDivision"});
}

TEST_F(DivisionWindow, KeepsEverythingWhenItComesBackFromTheShipDialog)
{
    openScenario();
    create(Side::Blue);
    click(push("cmdDivDataChng"));
    retype(field("TxtHeading"), QStringLiteral("45"));
    pick(choices("CmbSpacing"), "1500");
    click(push("cmdKeepDivData"));
    click(push("CmdAdd"));
    EXPECT_EQ(valueOf(dialog().chkReturnFlag), 1);
    EXPECT_FALSE(dialog().isInputEnabled());
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(editor().forms().front(), &editor().shipDBaseFrm());
    closeShips();
    EXPECT_EQ(valueOf(dialog().chkReturnFlag), 0);
    EXPECT_TRUE(dialog().isInputEnabled());
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("45"));
    EXPECT_EQ(choices("CmbSpacing")->shownText(), QStringLiteral("1500"));
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 1"));
    EXPECT_EQ(records().blueDivCount(), 1) << "not counted again";
}

TEST_F(DivisionWindow, LoadsADivisionForAnEditFromItsFilesAndTheProfile)
{
    openScenario(Language::German);
    make(Side::Blue, {"DD Zulu"});
    make(Side::Red, destroyers());
    put("DIVISION1", "FLAGSHIPINDEX", QStringLiteral("2"));
    put("DIVISION1", "ENCUMBERED", QStringLiteral("1"));
    put("DIVISION1SHIP0", "XPOSITION", QStringLiteral("1200"));
    put("DIVISION1SHIP0", "ZPOSITION", QStringLiteral("-300"));
    records().writeDivData({.number = "1",
                            .name = "Division 1",
                            .side = "Red",
                            .formation = "Line of Bearing",
                            .heading = "270",
                            .spacing = "700",
                            .speed = "18"});
    edit(Side::Red, 1);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Verband 1"));
    EXPECT_EQ(control<PictureBox>(dialog(), "PicDivName")->accessibleName(), QStringLiteral("Division 1"));
    EXPECT_EQ(choices("CmbFormation")->shownText(), QStringLiteral("Peilung"));
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("270"));
    EXPECT_EQ(choices("CmbSpacing")->shownText(), QStringLiteral("700"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("18"));
    EXPECT_TRUE(option("optEncumYES")->isChecked());
    EXPECT_EQ(cell(0, 0), QStringLiteral("DD Cossack"));
    EXPECT_EQ(cell(2, 0), QStringLiteral("DD Sikh"));
    EXPECT_EQ(cell(3, 0), QString());
    EXPECT_EQ(flagRows(), QList<int>{2});
    EXPECT_EQ(main().txtXPosition->text(), QStringLiteral("1200"));
    EXPECT_EQ(main().txtYPosition->text(), QStringLiteral("-300"));
    EXPECT_EQ(caption("LblPicMap"), QStringLiteral("1200 X -300"));
    EXPECT_TRUE(QFile::exists(workFile(QStringLiteral("ExisitTemp.bmm"))));
    EXPECT_TRUE(QFile::exists(workFile(QStringLiteral("TempIniTemp.bmm"))));
    EXPECT_FALSE(control<QWidget>(dialog(), QStringLiteral("PicMask"))->isVisible());
    EXPECT_TRUE(dialog().isInputEnabled());
}

TEST_F(DivisionWindow, ForgetsAnEncumbranceWhenTheNextDivisionHasNone)
{
    openScenario();
    make(Side::Blue, {"DD Zulu"});
    make(Side::Blue, {"DD Sikh"});
    put("DIVISION0", "ENCUMBERED", QStringLiteral("1"));
    edit(Side::Blue, 1);
    EXPECT_TRUE(option("optEncumYES")->isChecked());
    click(push("CmdEditCancel"));
    edit(Side::Blue, 2);
    EXPECT_TRUE(option("optEncumNO")->isChecked());
}

TEST_F(DivisionWindow, StartsEachJobWithItsSettingsLocked)
{
    openScenario();
    make(Side::Blue, destroyers());
    edit(Side::Blue, 1);
    click(push("cmdDivDataChng"));
    click(push("CmdEditCancel"));
    edit(Side::Blue, 1);
    EXPECT_TRUE(push("cmdDivDataChng")->isVisible());
    EXPECT_FALSE(push("cmdKeepDivData")->isVisible());
    expectEnabled(false, {"TxtHeading", "CmbFormation", "optEncumNO"});
    expectEnabled(true, {"cmdOK"});
}

TEST_F(DivisionWindow, EditsTheFirstMarkedDivisionInTheirOrder)
{
    openScenario();
    const struct
    {
        int marker;
        Side side;
        int number;
    } order[] = {{1, Side::Blue, 1}, {2, Side::Blue, 2},  {3, Side::Blue, 3}, {4, Side::Blue, 4},
                 {9, Side::Blue, 5}, {10, Side::Blue, 6}, {5, Side::Red, 1},  {6, Side::Red, 2},
                 {7, Side::Red, 3},  {8, Side::Red, 4},   {11, Side::Red, 5}, {12, Side::Red, 6}};
    for (QCheckBox* marker : dialog().chkDiv) {
        setValue(marker, 1);
    }
    for (const auto& [marker, side, number] : order) {
        setValue(dialog().chkCreate, 0);
        dialog().lblside->setText(side == Side::Blue ? forceALabel : forceBLabel);
        dialog().showForm(&main());
        settle();
        EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division %1").arg(number));
        EXPECT_EQ(valueOf(dialog().chkDiv.at(static_cast<std::size_t>(marker - 1))), 0) << marker;
        click(push("CmdEditCancel"));
    }
}

TEST_F(DivisionWindow, HasTwoButtonsThatDoNothing)
{
    openScenario();
    make(Side::Blue, destroyers());
    edit(Side::Blue, 1);
    const QStringList files = workNames();
    const QByteArray before = profile();
    for (const char* name : {"CmdEditShip", "CmdNewDivision"}) {
        ASSERT_TRUE(isEnabled(name)) << name;
        click(push(name));
        EXPECT_EQ(editor().forms().front(), &dialog());
        EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 1"));
    }
    EXPECT_EQ(workNames(), files);
    EXPECT_EQ(profile(), before);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(DivisionWindow, ShowsTheLastPlacementUntilThereIsAnother)
{
    openScenario();
    dialog().showPlacement(QStringLiteral("24720 X 6480"));
    create(Side::Blue);
    EXPECT_EQ(caption("LblPicMap"), QStringLiteral("24720 X 6480"));
    keepShips(destroyers());
    save();
    edit(Side::Blue, 1);
    EXPECT_EQ(caption("LblPicMap"), QStringLiteral("0 X 0"));
}

TEST_F(DivisionWindow, SaysHowManyShipsItHas)
{
    openScenario();
    create(Side::Blue);
    EXPECT_EQ(caption("lblShips"), QStringLiteral("No ships yet"));
    keepShips(destroyers());
    EXPECT_EQ(caption("lblShips"), QStringLiteral("Ships: 3 of 10"));
}

} // namespace
} // namespace torvane::testing
