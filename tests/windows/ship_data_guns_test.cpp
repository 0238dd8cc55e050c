#include "ship_data_fixture.h"

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

constexpr std::string_view letters = "ABCDEGHIJLMNOQRTUXYZ";

constexpr CaptionRow captions[] = {
    {"Frame2"_L1, {"Turret Destroyed", "Geschützturm zerstört"}},
    {"Frame3"_L1, {"Forward Arc", "Bug"}},
    {"Frame4"_L1, {"Rear Arc", "Heck"}},
    {"Frame5"_L1, {"Port Wing Arc", "Backbord"}},
    {"Frame6"_L1, {"Port Wing Arc", "Backbord"}},
    {"Frame7"_L1, {"Strb Wing Arc", "Steuerbord"}},
    {"Frame8"_L1, {"Strb Wing Arc", "Steuerbord"}},
    {"fraBroadsideport"_L1, {"Broadside", "Breitseite"}},
    {"Frame12"_L1, {"Broadside", "Breitseite"}},
    {"chkMagA"_L1, {"Magazine A Damage", "Schaden - Magazin A"}},
    {"chkMagB"_L1, {"Magazine B Damage", "Schaden - Magazin A"}},
    {"chkSecMag"_L1, {"Secondary Magazine Destroyed", "Sekundärgeschützmagazin zerstört"}},
    {"chkTorp1"_L1, {"Mount 1 Destroyed", "Torpedosatz 1 zerstört"}},
    {"chkTorp2"_L1, {"Mount 2 Destroyed", "Torpedosatz 2 zerstört"}},
    {"chkTorp3"_L1, {"Mount 3 Destroyed", "Torpedosatz 3 zerstört"}},
    {"chkTorp4"_L1, {"Mount 4 Destroyed", "Torpedosatz 4 zerstört"}},
};

class ShipGunPages : public OneShipDialog
{
protected:
    QCheckBox* turret(char letter) { return box(("chkMG_TUR_" + std::string(1, letter)).c_str()); }
    QString turretKey(char letter) { return stored(("MGT" + std::string(1, letter) + "DAMAGE").c_str()); }
    QString offeredTurrets()
    {
        turnTo(mainGunsPage);
        QString offered;
        for (const char letter : letters) {
            if (turret(letter)->isVisible()) {
                offered.append(QLatin1Char(letter));
            }
        }
        return offered;
    }
};

TEST_F(ShipGunPages, CaptionsAreThoseOfTheLanguage)
{
    expectShown(captions);
    for (const char letter : letters) {
        EXPECT_EQ(turret(letter)->text(), QString(QLatin1Char(letter)) + u':');
    }
}

TEST_F(ShipGunPages, EachTurretStandsInItsArc)
{
    openExeter();
    const std::pair<const char*, const char*> arcs[] = {
        {"Frame3", "ABC"},           {"Frame5", "DE"},   {"Frame7", "GH"}, {"Frame8", "IJ"},
        {"fraBroadsideport", "LNO"}, {"Frame12", "MQR"}, {"Frame6", "TU"}, {"Frame4", "XYZ"}};
    for (const auto& [name, turretLetters] : arcs) {
        EXPECT_EQ(frame(name)->findChildren<QCheckBox*>().size(), qstrlen(turretLetters));
        for (const char* letter = turretLetters; *letter != 0; ++letter) {
            EXPECT_EQ(turret(*letter)->parentWidget(), frame(name)) << *letter;
        }
    }
}

TEST_F(ShipGunPages, LieAsTheShipLiesBowToTheTop)
{
    openExeter();
    turnTo(mainGunsPage);
    const auto place = [this](const char* name) {
        return frame(name)->mapTo(&dialog(), frame(name)->rect().center());
    };
    for (const char* wing : {"Frame5", "Frame6", "fraBroadsideport"}) {
        EXPECT_LT(place(wing).x(), place("Frame3").x()) << wing;
    }
    for (const char* wing : {"Frame7", "Frame8", "Frame12"}) {
        EXPECT_GT(place(wing).x(), place("Frame3").x()) << wing;
    }
    EXPECT_LT(place("Frame3").y(), place("Frame5").y());
    EXPECT_LT(place("Frame5").y(), place("Frame6").y());
    EXPECT_LT(place("Frame7").y(), place("Frame8").y());
    EXPECT_LT(place("Frame8").y(), place("Frame4").y());
    EXPECT_LT(box("chkMagA")->mapTo(&dialog(), QPoint()).x(), box("chkMagB")->mapTo(&dialog(), QPoint()).x());
}

TEST_F(ShipGunPages, AClassWithTwoTurretsShowsTwoBoxesAndWritesAllTwentyKeys)
{
    openExeter();
    EXPECT_EQ(offeredTurrets(), u"AB"_s);
    tick("chkMG_TUR_B");
    for (const char letter : letters) {
        store(("MGT" + std::string(1, letter) + "DAMAGE").c_str(), "");
    }
    save();
    for (const char letter : letters) {
        EXPECT_EQ(turretKey(letter), letter == 'B' ? u"-1"_s : u"0"_s) << letter;
    }
}

TEST_F(ShipGunPages, TheNextShipShowsItsOwnTurrets)
{
    openExeter();
    putShip(u"Graf Spee"_s, u"DIVISION1SHIP0"_s);
    EXPECT_EQ(offeredTurrets(), u"AB"_s);
    cancel();
    open(u"CA G. Spee"_s);
    EXPECT_EQ(offeredTurrets(), u"AZ"_s);
}

TEST_F(ShipGunPages, AHiddenTurretIsWrittenBackAsItLoaded)
{
    startPastSplash(Language::English);
    putShip(u"Exeter"_s);
    store("MGTZDAMAGE", "-1");
    store("MGTYDAMAGE", "12");
    open(u"CA Exeter"_s);
    save();
    EXPECT_EQ(turretKey('Z'), u"-1"_s);
    EXPECT_EQ(turretKey('Y'), u"0"_s);
}

TEST_F(ShipGunPages, AMagazineThatTheClassLacksCanNotBeStepped)
{
    openExeter();
    for (const char* name : {"cmdStrbHE_up", "cmdStrbHE_down"}) {
        EXPECT_EQ(shown("lblStrbHE"), u"0 %"_s);
        press(name);
    }
    EXPECT_EQ(shown("lblStrbHE"), u"0 %"_s);
}

TEST_F(ShipGunPages, OfAClassOfAllZerosNoMagazineCanBeStepped)
{
    startPastSplash(Language::English);
    putShip(u"Raft"_s);
    open(u"TR Raft"_s);
    for (const char* magazine :
         {"PortHE", "PortAP", "PortCOM", "StrbHE", "StrbAP", "StrbCOM", "SecHE", "SecAP", "SecCOM"}) {
        const QByteArray name(magazine);
        for (const char* direction : {"_up", "_down"}) {
            press(QByteArray("cmd" + name + direction).constData());
            EXPECT_EQ(shown(QByteArray("lbl" + name).constData()), u"0 %"_s) << magazine << direction;
        }
    }
    save();
    EXPECT_EQ(stored("MAGAHE"), u"0"_s);
}

TEST_F(ShipGunPages, OfAClassOfAllZerosHullFloatAndPropulsionStepAllTheSame)
{
    startPastSplash(Language::English);
    putShip(u"Raft"_s);
    open(u"TR Raft"_s);
    EXPECT_EQ(shown("lblHitPt"), u"0 %"_s);
    press("cmdHitPtsUp");
    press("cmdFltPitsDown");
    EXPECT_EQ(shown("lblHitPt"), u"1 %"_s);
    EXPECT_EQ(shown("lblFloatPts"), u"100 %"_s);
    EXPECT_EQ(shown("lblPropPrcnt"), u"100"_s);
    press("cmdPropSysPrcntUp");
    EXPECT_EQ(shown("lblPropPrcnt"), u"0 %"_s);
    press("cmdPropSysPrcntUp");
    EXPECT_EQ(shown("lblPropPrcnt"), u"1 %"_s);
    save();
    EXPECT_EQ(stored("CURRENTHITPOINTS"), u"0"_s);
    EXPECT_EQ(stored("CURRENTFLOATPOINTS"), u"0"_s);
    EXPECT_EQ(stored("PROPULSIONSYSTEMPERCENTAGE"), u"1"_s);
}

TEST_F(ShipGunPages, GunsThatTheClassLacksStayAtNone)
{
    startPastSplash(Language::English);
    putShip(u"Raft"_s);
    open(u"TR Raft"_s);
    press("cmdSecForeCnt");
    EXPECT_EQ(shown("lblForeCnt"), u"0"_s);
}

TEST_F(ShipGunPages, ThreeQuartersOf120ShellsAre90)
{
    openExeter();
    for (int step = 0; step < 25; ++step) {
        press("cmdPortAP_down");
    }
    EXPECT_EQ(shown("lblPortAP"), u"75 %"_s);
    save();
    EXPECT_EQ(stored("MAGAAP"), u"90"_s);
}

TEST_F(ShipGunPages, ADestroyedMagazineLeavesItsRoundsEditable)
{
    openExeterWith("MAGADAMAGE", "-1");
    EXPECT_TRUE(box("chkMagA")->isChecked());
    EXPECT_FALSE(box("chkMagB")->isChecked());
    press("cmdPortHE_down");
    EXPECT_EQ(shown("lblPortHE"), u"99 %"_s);
    tick("chkMagB");
    tick("chkSecMag");
    save();
    EXPECT_EQ(stored("MAGADAMAGE"), u"-1"_s);
    EXPECT_EQ(stored("MAGBDAMAGE"), u"-1"_s);
    EXPECT_EQ(stored("SECONDARYMAGDAMAGE"), u"-1"_s);
    EXPECT_EQ(stored("MAGAHE"), u"99"_s);
}

TEST_F(ShipGunPages, SecondaryGunsCountDownAndRound)
{
    const struct
    {
        const char* button;
        const char* label;
        const char* key;
        int full;
    } guns[] = {{"cmdSecForeCnt", "lblForeCnt", "SECONDARYGUNSFORECNT", 4},
                {"cmdSecAftCnt", "lblAftCnt", "SECONDARYGUNSAFTCNT", 2},
                {"cmdSecPortCnt", "lblPortCnt", "SECONDARYGUNSPORTCNT", 6},
                {"cmdSecStrbCnt", "lblStrbCnt", "SECONDARYGUNSSTBCNT", 8}};
    openExeter();
    for (const auto& [button, label, key, full] : guns) {
        EXPECT_EQ(shown(label), QString::number(full));
        for (int left = full - 1; left >= 0; --left) {
            press(button);
            EXPECT_EQ(shown(label), QString::number(left));
        }
        press(button);
        EXPECT_EQ(shown(label), QString::number(full));
        press(button);
    }
    save();
    for (const auto& [button, label, key, full] : guns) {
        EXPECT_EQ(stored(key), QString::number(full - 1));
    }
}

TEST_F(ShipGunPages, AllFourMountsAreOfferedToAShipWithoutTorpedoes)
{
    openExeter();
    for (const char* mount : {"chkTorp1", "chkTorp2", "chkTorp3", "chkTorp4"}) {
        EXPECT_TRUE(onItsPage(box(mount))->isVisible());
    }
    store("TORPMOUNT4TORPSLEFT", "77");
    tick("chkTorp4");
    save();
    EXPECT_EQ(stored("TORPMOUNT4DAMAGE"), u"-1"_s);
    EXPECT_EQ(stored("TORPMOUNT1DAMAGE"), u"0"_s);
    EXPECT_EQ(stored("TORPMOUNT4TORPSLEFT"), u"77"_s);
}

} // namespace
} // namespace torvane::testing
