#include "ship_state/gunnery.h"

#include "support/printers.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

void expectBox(const DamageBox& actual, const char* box, const char* key, const char* english,
               const char* german)
{
    EXPECT_STREQ(actual.box, box);
    EXPECT_EQ(actual.key, QLatin1StringView(key));
    EXPECT_STREQ(actual.caption.english, english);
    EXPECT_STREQ(actual.caption.german, german);
}

constexpr struct
{
    const char* letter;
    const char* frame;
    const char* english;
    const char* german;
} turretRows[] = {
    {"A", "Frame3", "Forward Arc", "Bug"},
    {"B", "Frame3", "Forward Arc", "Bug"},
    {"C", "Frame3", "Forward Arc", "Bug"},
    {"D", "Frame5", "Port Wing Arc", "Backbord"},
    {"E", "Frame5", "Port Wing Arc", "Backbord"},
    {"G", "Frame7", "Strb Wing Arc", "Steuerbord"},
    {"H", "Frame7", "Strb Wing Arc", "Steuerbord"},
    {"I", "Frame8", "Strb Wing Arc", "Steuerbord"},
    {"J", "Frame8", "Strb Wing Arc", "Steuerbord"},
    {"L", "fraBroadsideport", "Broadside", "Breitseite"},
    {"M", "Frame12", "Broadside", "Breitseite"},
    {"N", "fraBroadsideport", "Broadside", "Breitseite"},
    {"O", "fraBroadsideport", "Broadside", "Breitseite"},
    {"Q", "Frame12", "Broadside", "Breitseite"},
    {"R", "Frame12", "Broadside", "Breitseite"},
    {"T", "Frame6", "Port Wing Arc", "Backbord"},
    {"U", "Frame6", "Port Wing Arc", "Backbord"},
    {"X", "Frame4", "Rear Arc", "Heck"},
    {"Y", "Frame4", "Rear Arc", "Heck"},
    {"Z", "Frame4", "Rear Arc", "Heck"},
};

TEST(Turrets, StandAsLaidDown)
{
    ASSERT_EQ(std::size(turretRows), turrets.size());
    for (std::size_t i = 0; i < turrets.size(); ++i) {
        const Turret& turret = turrets.at(i);
        const std::string letter = turretRows[i].letter;
        EXPECT_EQ(turret.classField, QString::fromStdString("Tur" + letter));
        expectBox(turret.damage, ("chkMG_TUR_" + letter).c_str(), ("MGT" + letter + "DAMAGE").c_str(),
                  (letter + ":").c_str(), (letter + ":").c_str());
        EXPECT_STREQ(turret.frame, turretRows[i].frame);
        const auto* const arc = std::ranges::find_if(turretArcs, [&](const TurretArc& candidate) {
            return QLatin1StringView(candidate.frame) == QLatin1StringView(turret.frame);
        });
        ASSERT_NE(arc, turretArcs.end()) << turret.frame;
        EXPECT_STREQ(arc->title.english, turretRows[i].english);
        EXPECT_STREQ(arc->title.german, turretRows[i].german);
    }
    EXPECT_EQ(turretArcs.size(), 8U);
}

constexpr struct
{
    const char* label;
    const char* up;
    const char* down;
    const char* field;
    const char* key;
    const char* caption;
    const char* english;
    const char* german;
} magazineRows[] = {
    {"lblPortHE", "cmdPortHE_up", "cmdPortHE_down", "h", "MAGAHE", "Label13", "HE", "HE"},
    {"lblPortAP", "cmdPortAP_up", "cmdPortAP_down", "i", "MAGAAP", "Label23", "AP", "AP"},
    {"lblPortCOM", "cmdPortCOM_up", "cmdPortCOM_down", "j", "MAGACOM", "Label24", "COM", "NO"},
    {"lblStrbHE", "cmdStrbHE_up", "cmdStrbHE_down", "k", "MAGBHE", "Label25", "HE", "HE"},
    {"lblStrbAP", "cmdStrbAP_up", "cmdStrbAP_down", "l", "MAGBAP", "Label28", "AP", "AP"},
    {"lblStrbCOM", "cmdStrbCOM_up", "cmdStrbCOM_down", "m", "MAGBCOM", "Label29", "COM", "NO"},
    {"lblSecHE", "cmdSecHE_up", "cmdSecHE_down", "t", "SECONDARYMAGHE", "Label57", "Mag HE", "Mag. HE"},
    {"lblSecAP", "cmdSecAP_up", "cmdSecAP_down", "u", "SECONDARYMAGAP", "Label59", "Mag AP", "Mag. AP"},
    {"lblSecCOM", "cmdSecCOM_up", "cmdSecCOM_down", "v", "SECONDARYMAGCOM", "Label58", "Mag COM", "Mag. NO"},
};

TEST(Magazines, StandAsLaidDown)
{
    ASSERT_EQ(std::size(magazineRows), magazines.size());
    for (std::size_t i = 0; i < magazines.size(); ++i) {
        const MagazineRow& row = magazines.at(i);
        EXPECT_EQ(row.classField, QLatin1StringView(magazineRows[i].field));
        EXPECT_EQ(row.key, QLatin1StringView(magazineRows[i].key));
        EXPECT_STREQ(row.controls.valueLabel, magazineRows[i].label);
        EXPECT_STREQ(row.controls.up, magazineRows[i].up);
        EXPECT_STREQ(row.controls.down, magazineRows[i].down);
        EXPECT_STREQ(row.controls.captionLabel, magazineRows[i].caption);
        EXPECT_STREQ(row.controls.caption.english, magazineRows[i].english);
        EXPECT_STREQ(row.controls.caption.german, magazineRows[i].german);
    }
}

TEST(DestroyedBoxes, OfMagazinesAndMountsStandAsLaidDown)
{
    ASSERT_EQ(magazineDamage.size(), 3U);
    expectBox(magazineDamage[0], "chkMagA", "MAGADAMAGE", "Magazine A Damage", "Schaden - Magazin A");
    expectBox(magazineDamage[1], "chkMagB", "MAGBDAMAGE", "Magazine B Damage", "Schaden - Magazin A");
    expectBox(magazineDamage[2], "chkSecMag", "SECONDARYMAGDAMAGE", "Secondary Magazine Destroyed",
              "Sekundärgeschützmagazin zerstört");
    ASSERT_EQ(torpedoMounts.size(), 4U);
    expectBox(torpedoMounts[0].damage, "chkTorp1", "TORPMOUNT1DAMAGE", "Mount 1 Destroyed",
              "Torpedosatz 1 zerstört");
    expectBox(torpedoMounts[1].damage, "chkTorp2", "TORPMOUNT2DAMAGE", "Mount 2 Destroyed",
              "Torpedosatz 2 zerstört");
    expectBox(torpedoMounts[2].damage, "chkTorp3", "TORPMOUNT3DAMAGE", "Mount 3 Destroyed",
              "Torpedosatz 3 zerstört");
    expectBox(torpedoMounts[3].damage, "chkTorp4", "TORPMOUNT4DAMAGE", "Mount 4 Destroyed",
              "Torpedosatz 4 zerstört");
    EXPECT_EQ(torpedoMounts[0].classField, "x"_L1);
    EXPECT_EQ(torpedoMounts[1].classField, "y"_L1);
    EXPECT_EQ(torpedoMounts[2].classField, "z"_L1);
    EXPECT_EQ(torpedoMounts[3].classField, "aa"_L1);
}

constexpr struct
{
    const char* button;
    const char* count;
    const char* label;
    const char* english;
    const char* german;
    const char* field;
    const char* key;
} gunRows[] = {
    {"cmdSecForeCnt", "lblForeCnt", "Label36", "Fore Cnt", "Anzahl - Bug", "o", "SECONDARYGUNSFORECNT"},
    {"cmdSecAftCnt", "lblAftCnt", "Label37", "Aft Cnt", "Anzahl - Heck", "p", "SECONDARYGUNSAFTCNT"},
    {"cmdSecPortCnt", "lblPortCnt", "Label39", "Port Cnt", "Anzahl - Backbord", "q", "SECONDARYGUNSPORTCNT"},
    {"cmdSecStrbCnt", "lblStrbCnt", "Label40", "Strb Cnt", "Anzahl - Steuerbord", "r", "SECONDARYGUNSSTBCNT"},
};

TEST(SecondaryGuns, StandAsLaidDown)
{
    ASSERT_EQ(std::size(gunRows), secondaryGuns.size());
    for (std::size_t i = 0; i < secondaryGuns.size(); ++i) {
        const SecondaryGunRow& row = secondaryGuns.at(i);
        EXPECT_STREQ(row.button, gunRows[i].button);
        EXPECT_STREQ(row.countLabel, gunRows[i].count);
        EXPECT_STREQ(row.captionLabel, gunRows[i].label);
        EXPECT_STREQ(row.caption.english, gunRows[i].english);
        EXPECT_STREQ(row.caption.german, gunRows[i].german);
        EXPECT_EQ(row.classField, QLatin1StringView(gunRows[i].field));
        EXPECT_EQ(row.key, QLatin1StringView(gunRows[i].key));
    }
}

TEST(SecondaryGuns, CountDownAndThenFromTheClassAgain)
{
    EXPECT_EQ(steppedGunCount(u"4"_s, 4), u"3"_s);
    EXPECT_EQ(steppedGunCount(u"1"_s, 4), u"0"_s);
    EXPECT_EQ(steppedGunCount(u"0"_s, 4), u"4"_s);
    EXPECT_EQ(steppedGunCount(u"0"_s, 0), u"0"_s);
    EXPECT_EQ(steppedGunCount(u"9"_s, 4), u"8"_s);
    EXPECT_EQ(steppedGunCount(u"-3"_s, 4), u"4"_s);
    EXPECT_EQ(steppedGunCount(u"INVALID"_s, 6), u"6"_s);
}

} // namespace
} // namespace torvane::testing
