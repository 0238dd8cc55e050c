#include "ship_data_fixture.h"

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

struct Row
{
    const char* button;
    const char* label;
    const char* box;
    const char* key;
};
constexpr Row rows[] = {
    {"cmdRepairProp", "lblPropDam", "chkPropSys", "PROPULSIONSYSTEMDAMAGE"},
    {"cmdRepairMan", "lblManDam", "chkManeuver", "MANUEVERSYSTEMDAMAGE"},
    {"cmdRepairElec", "lblElecDam", "chkElectrical", "ELECTRICALSYSTEMDAMAGE"},
    {"cmdRepairDam", "lblDamDam", "chkDamage", "DAMAGECONTROLDAMAGE"},
    {"cmdRepairBridge", "lblBridgeDam", "chkBridge", "BRIDGEDAMAGE"},
    {"cmdRepairRadar", "lblRadarDam", "chkRadar", "RADARDAMAGE"},
};

constexpr CaptionRow captions[] = {
    {"cmdRepairProp"_L1, {"Propulsion Damage", "Schaden am Antrieb"}},
    {"cmdRepairMan"_L1, {"Maneuvering Damage", "Ruderschaden"}},
    {"cmdRepairElec"_L1, {"Electrical Damage", "elektrischer Schaden"}},
    {"cmdRepairDam"_L1, {"Damage Control", "Schadenskontrolle "}},
    {"cmdRepairBridge"_L1, {"Bridge Damage", "Schaden an der Brücke"}},
    {"cmdRepairRadar"_L1, {"Radar Damage", "Radarschaden"}},
    {"chkPropSys"_L1, inBoth("Propulsion System Destroyed:")},
    {"chkManeuver"_L1, inBoth("Maneuvering System Destroyed")},
    {"chkElectrical"_L1, inBoth("Electrical System Destroyed")},
    {"chkDamage"_L1, inBoth("Damage Control Destroyed")},
    {"chkBridge"_L1, inBoth("Bridge Control Destroyed")},
    {"chkRadar"_L1, inBoth("Radar Control Destroyed")},
    {"chkSL_Port1"_L1, {"Searchlights Port 1", "Scheinwerfer B 1"}},
    {"chkSL_Port2"_L1, {"Searchlights Port 2", "Scheinwerfer B 2"}},
    {"chkSL_Strb1"_L1, {"Searchlights Strb 1", "Scheinwerfer S 1"}},
    {"chkSL_Strb2"_L1, {"Searchlights Strb 2", "Scheinwerfer S 2"}},
    {"chkDir1"_L1, {"Fire Director 1", "Feuerleitstelle 1"}},
    {"chkDir2"_L1, {"Fire Director 2", "Feuerleitstelle 2"}},
    {"Frame10"_L1, {"Searchlights Destroyed", "Scheinwerfer zerstört"}},
    {"Frame11"_L1, {"Fire Directors Destroyed", "Feuerleitstelle zerstört"}},
};

class ShipSystemsPage : public OneShipDialog
{
protected:
    void openWith(const char* key, const char* value, Language language = Language::English)
    {
        startPastSplash(language);
        putShip(u"Exeter"_s);
        store(key, value);
        open(u"CA Exeter"_s);
    }
    QWidget* panel() { return control<QWidget>(dialog(), u"fraRepairTime"_s); }
};

TEST_F(ShipSystemsPage, CaptionsAreThoseOfTheLanguage)
{
    expectShown(captions);
    EXPECT_EQ(entries(list("cmbManeuver")), QStringList({"Backbord", "Mitte", "Steuerbord"}));
    openExeter(Language::English);
    EXPECT_EQ(entries(list("cmbManeuver")), QStringList({"Port", "Center", "Strb"}));
}

TEST_F(ShipSystemsPage, ARepairButtonShowsItsRowAloneAndLocksTheDialog)
{
    openExeter();
    turnTo(systemsPage);
    EXPECT_FALSE(panel()->isVisible());
    for (const Row& open : rows) {
        press(open.button);
        EXPECT_TRUE(panel()->isVisible());
        for (const Row& row : rows) {
            EXPECT_EQ(label(row.label)->isVisible(), &row == &open) << row.label;
            // Maneuvering can't be marked as destroyed.
            EXPECT_EQ(box(row.box)->isVisible(), &row == &open && row.box != "chkManeuver"_L1) << row.box;
        }
        EXPECT_FALSE(button("cmdSave")->isEnabled());
        EXPECT_FALSE(button("CmdCancel")->isEnabled());
        EXPECT_FALSE(tabs()->isEnabled());
    }
    press("Command1");
    EXPECT_FALSE(panel()->isVisible());
    EXPECT_TRUE(button("cmdSave")->isEnabled());
    EXPECT_TRUE(button("CmdCancel")->isEnabled());
    EXPECT_TRUE(tabs()->isEnabled());
}

TEST_F(ShipSystemsPage, ThePanelOpensInTheCornerOfItsFrame)
{
    openExeter();
    press("cmdRepairBridge");
    // 120 and 88 twips, at 15 a pixel.
    EXPECT_EQ(panel()->mapTo(frame("fraSystems"), QPoint()) - frame("fraSystems")->contentsRect().topLeft(),
              QPoint(8, 6));
}

TEST_F(ShipSystemsPage, WhileARepairIsOpenNothingLeavesTheDialogOrThePage)
{
    openExeter();
    press("cmdRepairBridge");
    const QByteArray before = profile();
    closeBox(&dialog());
    torvane::testing::press(&dialog(), Qt::Key_Escape);
    torvane::testing::press(&dialog(), Qt::Key_Return);
    torvane::testing::press(&dialog(), Qt::Key_PageDown, Qt::ControlModifier);
    click(button("cmdSave"));
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_TRUE(panel()->isVisible());
    EXPECT_EQ(tabs()->currentIndex(), systemsPage);
    EXPECT_EQ(profile(), before);
}

TEST_F(ShipSystemsPage, AllOfARepairCanBeDoneByTheKeyboard)
{
    openExeter();
    turnTo(systemsPage);
    button("cmdRepairRadar")->setFocus();
    torvane::testing::press(button("cmdRepairRadar"), Qt::Key_Return);
    ASSERT_TRUE(panel()->isVisible());
    EXPECT_TRUE(button("cmdTimeUp")->hasFocus());
    for (int minute = 0; minute < 3; ++minute) {
        torvane::testing::press(button("cmdTimeUp"), Qt::Key_Space);
    }
    torvane::testing::press(button("Command1"), Qt::Key_Return);
    EXPECT_TRUE(button("cmdRepairRadar")->hasFocus());
    save();
    EXPECT_EQ(stored("RADARDAMAGE"), u"180"_s);
}

TEST_F(ShipSystemsPage, RadarDamageOfAnHourIsShownInMinutesAndStoredInSeconds)
{
    openWith("RADARDAMAGE", "3600");
    EXPECT_EQ(shown("lblRadarDam"), u"60"_s);
    EXPECT_EQ(shown("cmdRepairRadarSummary"), u"60 min"_s);
    save();
    EXPECT_EQ(stored("RADARDAMAGE"), u"3600"_s);
}

TEST_F(ShipSystemsPage, BridgeDamageOf90SecondsBecomesOneMinute)
{
    openWith("BRIDGEDAMAGE", "90");
    EXPECT_EQ(shown("lblBridgeDam"), u"1"_s);
    save();
    EXPECT_EQ(stored("BRIDGEDAMAGE"), u"60"_s);
}

TEST_F(ShipSystemsPage, EachSaveMultipliesPropulsionDamageBy60)
{
    openWith("PROPULSIONSYSTEMDAMAGE", "300");
    EXPECT_EQ(shown("lblPropDam"), u"300"_s);
    reopen();
    EXPECT_EQ(stored("PROPULSIONSYSTEMDAMAGE"), u"18000"_s);
    reopen();
    EXPECT_EQ(stored("PROPULSIONSYSTEMDAMAGE"), u"1080000"_s);
}

TEST_F(ShipSystemsPage, DestroyedPropulsionStaysDestroyed)
{
    openWith("PROPULSIONSYSTEMDAMAGE", "-1");
    EXPECT_EQ(shown("lblPropDam"), u"-1"_s);
    EXPECT_TRUE(box("chkPropSys")->isChecked());
    save();
    EXPECT_EQ(stored("PROPULSIONSYSTEMDAMAGE"), u"-1"_s);
}

TEST_F(ShipSystemsPage, TheRepairTimeStopsAt210MinutesAndAt0)
{
    for (const Row& row : rows) {
        openWith(row.key, row.key == "PROPULSIONSYSTEMDAMAGE"_L1 ? "209" : "12540");
        press(row.button);
        press("cmdTimeUp");
        EXPECT_EQ(shown(row.label), u"210"_s);
        press("cmdTimeUp");
        EXPECT_EQ(shown(row.label), u"210"_s);
    }
    openWith("RADARDAMAGE", "60");
    press("cmdRepairRadar");
    press("cmdTimeDown");
    EXPECT_EQ(shown("lblRadarDam"), u"0"_s);
    press("cmdTimeDown");
    EXPECT_EQ(shown("lblRadarDam"), u"0"_s);
}

TEST_F(ShipSystemsPage, ATickSetsTheTimeTo0AndIsStoredAsMinusOne)
{
    for (const Row& row : rows) {
        if (row.box == "chkManeuver"_L1) {
            continue; // hidden
        }
        openWith(row.key, "120");
        press(row.button);
        tick(row.box);
        EXPECT_EQ(shown(row.label), u"0"_s) << row.label;
        press("Command1");
        reopen();
        EXPECT_EQ(stored(row.key), u"-1"_s) << row.key;
        press(row.button);
        tick(row.box);
        press("Command1");
        save();
        EXPECT_EQ(stored(row.key), u"0"_s) << row.key;
    }
}

TEST_F(ShipSystemsPage, TheFirstPressOnATickedRowClearsTheBoxAndTheSecondGivesAMinute)
{
    openWith("BRIDGEDAMAGE", "-1");
    press("cmdRepairBridge");
    press("cmdTimeUp");
    EXPECT_FALSE(box("chkBridge")->isChecked());
    EXPECT_EQ(shown("lblBridgeDam"), u"0"_s);
    press("cmdTimeUp");
    EXPECT_EQ(shown("lblBridgeDam"), u"1"_s);
}

TEST_F(ShipSystemsPage, DestroyedManeuveringIsWrittenBackUnlessItsTimeIsSteppedUp)
{
    openWith("MANUEVERSYSTEMDAMAGE", "-1");
    reopen();
    EXPECT_EQ(stored("MANUEVERSYSTEMDAMAGE"), u"-1"_s);
    press("cmdRepairMan");
    press("cmdTimeDown");
    EXPECT_TRUE(box("chkManeuver")->isChecked());
    press("cmdTimeUp");
    EXPECT_FALSE(box("chkManeuver")->isChecked());
    press("Command1");
    save();
    EXPECT_EQ(stored("MANUEVERSYSTEMDAMAGE"), u"60"_s);
}

TEST_F(ShipSystemsPage, LightsAndDirectorsAreStoredAsFlags)
{
    const std::pair<const char*, const char*> flags[] = {
        {"chkSL_Port1", "SEARCHLIGHTP1DAMAGE"}, {"chkSL_Port2", "SEARCHLIGHTP2DAMAGE"},
        {"chkSL_Strb1", "SEARCHLIGHTS1DAMAGE"}, {"chkSL_Strb2", "SEARCHLIGHTS2DAMAGE"},
        {"chkDir1", "DIRECTOR1DAMAGE"},         {"chkDir2", "DIRECTOR2DAMAGE"},
    };
    openExeter();
    for (const auto& [name, key] : flags) {
        EXPECT_FALSE(box(name)->isChecked());
        tick(name);
        reopen();
        EXPECT_EQ(stored(key), u"-1"_s) << key;
        EXPECT_TRUE(box(name)->isChecked());
        tick(name);
        reopen();
        EXPECT_EQ(stored(key), u"0"_s) << key;
    }
}

TEST_F(ShipSystemsPage, PropulsionPowerLoadsBareAndStepsInPercent)
{
    openWith("PROPULSIONSYSTEMPERCENTAGE", "85");
    EXPECT_EQ(shown("lblPropPrcnt"), u"85"_s);
    press("cmdPropSysPrcntDown");
    EXPECT_EQ(shown("lblPropPrcnt"), u"84 %"_s);
    save();
    EXPECT_EQ(stored("PROPULSIONSYSTEMPERCENTAGE"), u"84"_s);
}

TEST_F(ShipSystemsPage, TheRudderIsStoredAsItsCaption)
{
    openExeter(Language::German);
    EXPECT_EQ(list("cmbManeuver")->shownText(), u"Mitte"_s);
    reopen();
    EXPECT_EQ(stored("MANUEVERSYSTEMDIRECTION"), u"Mitte"_s);
    pick(onItsPage(list("cmbManeuver")), "Steuerbord");
    reopen();
    EXPECT_EQ(stored("MANUEVERSYSTEMDIRECTION"), u"Steuerbord"_s);
    EXPECT_EQ(list("cmbManeuver")->shownText(), u"Steuerbord"_s);
    openExeter(Language::English);
    pick(onItsPage(list("cmbManeuver")), "Port");
    save();
    EXPECT_EQ(stored("MANUEVERSYSTEMDIRECTION"), u"Port"_s);
}

TEST_F(ShipSystemsPage, TheNextShipDoesNotTakeOverWhatIsDestroyedOnThisOne)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    putShip(u"Graf Spee"_s, u"DIVISION1SHIP0"_s);
    for (const Row& row : rows) {
        store(row.key, "-1");
        store(row.key, "0", "DIVISION1SHIP0");
    }
    open(u"CA Exeter"_s);
    for (const Row& row : rows) {
        EXPECT_TRUE(box(row.box)->isChecked()) << row.box;
    }
    cancel();
    open(u"CA G. Spee"_s);
    for (const Row& row : rows) {
        EXPECT_FALSE(box(row.box)->isChecked()) << row.box;
    }
    save();
    for (const Row& row : rows) {
        EXPECT_EQ(stored(row.key, "DIVISION1SHIP0"), u"0"_s) << row.key;
        EXPECT_EQ(stored(row.key), u"-1"_s) << row.key;
    }
}

TEST_F(ShipSystemsPage, TheKeysWithoutAControlStay)
{
    openExeter();
    store("DAMAGECONTROLPERCENTAGE", "41");
    store("CIWPERCENTAGE", "42");
    store("CIWDAMAGE", "43");
    tick("chkDir1");
    save();
    EXPECT_EQ(stored("DAMAGECONTROLPERCENTAGE"), u"41"_s);
    EXPECT_EQ(stored("CIWPERCENTAGE"), u"42"_s);
    EXPECT_EQ(stored("CIWDAMAGE"), u"43"_s);
}

} // namespace
} // namespace torvane::testing
