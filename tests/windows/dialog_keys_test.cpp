#include "overview_fixture.h"
#include "windows/key_roads.h"

namespace torvane::testing {
namespace {

class DialogKeys : public Dialogs
{
};

TEST_F(DialogKeys, EveryLabelOfTheOverviewLeadsToItsField)
{
    for (const Language language : {Language::English, Language::German}) {
        openNew(language);
        expectLabelsLead(overview(), 10);
    }
}

TEST_F(DialogKeys, EveryLabelOfTheEnvironmentLeadsToItsField)
{
    for (const Language language : {Language::English, Language::German}) {
        openNew(language);
        openEnvironment();
        expectLabelsLead(enviro(), 14);
    }
}

TEST_F(DialogKeys, TheButtonsAnswerToTheirMnemonics)
{
    // A button pressed by its mnemonic stays down for a moment.
    const auto closes = [](const Form& window) { return waitUntil([&] { return !window.isVisible(); }); };
    openNew();
    pressMnemonic(overview(), button("cmdOK")->text());
    EXPECT_TRUE(closes(overview()));
    reopenOverview();
    pressMnemonic(overview(), button("CmdCancel")->text());
    EXPECT_TRUE(closes(overview()));
    reopenOverview();
    openEnvironment();
    pressMnemonic(enviro(), envButton("CmdCancel")->text());
    EXPECT_TRUE(closes(enviro()));
    openEnvironment();
    pressMnemonic(enviro(), envButton("cmdOK")->text());
    EXPECT_TRUE(closes(enviro()));
}

TEST_F(DialogKeys, AMnemonicOfTheOverviewDoesNothingWhileTheEnvironmentIsOpen)
{
    openNew();
    openEnvironment();
    overview().activateWindow();
    settle();
    QTest::keyClick(box("TxtTitle"), Qt::Key_S, Qt::AltModifier);
    QTest::qWait(300);
    EXPECT_TRUE(overview().isVisible());
}

TEST_F(DialogKeys, TabGoesThroughTheOverviewFieldByField)
{
    openNew();
    saveOverview();
    reopenOverview();
    EXPECT_EQ(tabRound(overview(), box("TxtTitle")).join(u' '),
              QStringLiteral("TxtTitle RichTxtDescrip cmbMission cmbMovie CmbBlueSide txtDisengageA Command9 "
                             "Command10 txtVPmodsA Command17 Command19 Command20 Command18 CmbRedSide "
                             "txtDisengageB Command13 Command14 txtVPmodsB Command21 Command15 Command16 "
                             "Command22 cmdEnviroCntrl cmdOK CmdCancel"));
}

TEST_F(DialogKeys, TabGoesThroughTheEnvironmentFieldByField)
{
    openNew();
    openEnvironment();
    EXPECT_EQ(tabRound(enviro(), envButton("cmdHours")).join(u' '),
              QStringLiteral("cmdHours cmdMinutes cmdSunriseHour cmdSunriseMin cmdSunsetHour cmdSunsetMin "
                             "cmdGameLenHours cmdGameLenMin TxtWindSpd Command8 Command7 ComboSeaState "
                             "TxtWindDir Command12 Command11 cmbRain TxtVis Command3 Command5 TxtRadar "
                             "Command4 Command6 ComboMonth ComboYear ComboLocation ComboAirSup cmdOK "
                             "CmdCancel"));
}

TEST_F(DialogKeys, ANewScenarioIsDescribedWithoutTheMouse)
{
    openNew();
    overview().activateWindow();
    settle();
    EXPECT_EQ(overview().focusWidget(), box("TxtTitle")) << "where an author starts";
    press(box("TxtTitle"), Qt::Key_A, Qt::ControlModifier);
    type(box("TxtTitle"), QStringLiteral("Keys"));
    press(overview().focusWidget(), Qt::Key_Tab);
    press(overview().focusWidget(), Qt::Key_A, Qt::ControlModifier);
    type(overview().focusWidget(), QStringLiteral("No mouse"));
    press(overview().focusWidget(), Qt::Key_Return);
    press(overview().focusWidget(), Qt::Key_Down);
    press(overview().focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(overview().isVisible());
    EXPECT_EQ(stored("TITLE"), QStringLiteral("Keys"));
    EXPECT_EQ(stored("DESCRIPTION_LINE0"), QStringLiteral("No mouse"));
    EXPECT_EQ(stored("BATTLETYPE"), QStringLiteral("3"));
}

} // namespace
} // namespace torvane::testing
