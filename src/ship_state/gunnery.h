#pragma once

#include "platform/bilingual.h"
#include "ship_state/ship_systems.h"

#include <QStringView>

#include <array>

namespace torvane {

/// A part of the ship plan in which turrets stand.
struct TurretArc
{
    const char* frame;
    Bilingual title;
};
// Port and starboard wings have a forward and an after arc each.
inline constexpr std::array<TurretArc, 8> turretArcs{{
    {"Frame3", {"Forward Arc", "Bug"}},
    {"Frame5", {"Port Wing Arc", "Backbord"}},
    {"Frame7", {"Strb Wing Arc", "Steuerbord"}},
    {"Frame8", {"Strb Wing Arc", "Steuerbord"}},
    {"fraBroadsideport", {"Broadside", "Breitseite"}},
    {"Frame12", {"Broadside", "Breitseite"}},
    {"Frame6", {"Port Wing Arc", "Backbord"}},
    {"Frame4", {"Rear Arc", "Heck"}},
}};

/// A place at which a class may have a main gun turret.
struct Turret
{
    char letter;
    QStringView classField; ///< above 0: the class has it
    DamageBox damage;
    const char* frame;
};
inline constexpr std::array<Turret, 20> turrets{{
    {'A', u"TurA", {"chkMG_TUR_A", u"MGTADAMAGE", inBoth("A:")}, "Frame3"},
    {'B', u"TurB", {"chkMG_TUR_B", u"MGTBDAMAGE", inBoth("B:")}, "Frame3"},
    {'C', u"TurC", {"chkMG_TUR_C", u"MGTCDAMAGE", inBoth("C:")}, "Frame3"},
    {'D', u"TurD", {"chkMG_TUR_D", u"MGTDDAMAGE", inBoth("D:")}, "Frame5"},
    {'E', u"TurE", {"chkMG_TUR_E", u"MGTEDAMAGE", inBoth("E:")}, "Frame5"},
    {'G', u"TurG", {"chkMG_TUR_G", u"MGTGDAMAGE", inBoth("G:")}, "Frame7"},
    {'H', u"TurH", {"chkMG_TUR_H", u"MGTHDAMAGE", inBoth("H:")}, "Frame7"},
    {'I', u"TurI", {"chkMG_TUR_I", u"MGTIDAMAGE", inBoth("I:")}, "Frame8"},
    {'J', u"TurJ", {"chkMG_TUR_J", u"MGTJDAMAGE", inBoth("J:")}, "Frame8"},
    {'L', u"TurL", {"chkMG_TUR_L", u"MGTLDAMAGE", inBoth("L:")}, "fraBroadsideport"},
    {'M', u"TurM", {"chkMG_TUR_M", u"MGTMDAMAGE", inBoth("M:")}, "Frame12"},
    {'N', u"TurN", {"chkMG_TUR_N", u"MGTNDAMAGE", inBoth("N:")}, "fraBroadsideport"},
    {'O', u"TurO", {"chkMG_TUR_O", u"MGTODAMAGE", inBoth("O:")}, "fraBroadsideport"},
    {'Q', u"TurQ", {"chkMG_TUR_Q", u"MGTQDAMAGE", inBoth("Q:")}, "Frame12"},
    {'R', u"TurR", {"chkMG_TUR_R", u"MGTRDAMAGE", inBoth("R:")}, "Frame12"},
    {'T', u"TurT", {"chkMG_TUR_T", u"MGTTDAMAGE", inBoth("T:")}, "Frame6"},
    {'U', u"TurU", {"chkMG_TUR_U", u"MGTUDAMAGE", inBoth("U:")}, "Frame6"},
    {'X', u"TurX", {"chkMG_TUR_X", u"MGTXDAMAGE", inBoth("X:")}, "Frame4"},
    {'Y', u"TurY", {"chkMG_TUR_Y", u"MGTYDAMAGE", inBoth("Y:")}, "Frame4"},
    {'Z', u"TurZ", {"chkMG_TUR_Z", u"MGTZDAMAGE", inBoth("Z:")}, "Frame4"},
}};

/// One kind of round in one magazine, shown in percent of what the class carries.
struct MagazineRow
{
    QStringView classField;
    QStringView key;
    StepperRow controls;
};
/// Main magazine A, to port, main magazine B, to starboard, and the secondary magazine.
inline constexpr std::array<MagazineRow, 9> magazines{{
    {u"h", u"MAGAHE", {"Label13", inBoth("HE"), "lblPortHE", "cmdPortHE_up", "cmdPortHE_down"}},
    {u"i", u"MAGAAP", {"Label23", inBoth("AP"), "lblPortAP", "cmdPortAP_up", "cmdPortAP_down"}},
    {u"j", u"MAGACOM", {"Label24", {"COM", "NO"}, "lblPortCOM", "cmdPortCOM_up", "cmdPortCOM_down"}},
    {u"k", u"MAGBHE", {"Label25", inBoth("HE"), "lblStrbHE", "cmdStrbHE_up", "cmdStrbHE_down"}},
    {u"l", u"MAGBAP", {"Label28", inBoth("AP"), "lblStrbAP", "cmdStrbAP_up", "cmdStrbAP_down"}},
    {u"m", u"MAGBCOM", {"Label29", {"COM", "NO"}, "lblStrbCOM", "cmdStrbCOM_up", "cmdStrbCOM_down"}},
    {u"t", u"SECONDARYMAGHE", {"Label57", {"Mag HE", "Mag. HE"}, "lblSecHE", "cmdSecHE_up", "cmdSecHE_down"}},
    {u"u", u"SECONDARYMAGAP", {"Label59", {"Mag AP", "Mag. AP"}, "lblSecAP", "cmdSecAP_up", "cmdSecAP_down"}},
    {u"v",
     u"SECONDARYMAGCOM",
     {"Label58", {"Mag COM", "Mag. NO"}, "lblSecCOM", "cmdSecCOM_up", "cmdSecCOM_down"}},
}};
inline constexpr std::size_t roundsOfMagazine = 3;
/// The place of the secondary magazine among the three; the main ones stand before it.
inline constexpr std::size_t secondaryMagazine = 2;

/// The magazines themselves, in the order of their rounds. The German caption of B says A. Kept.
inline constexpr std::array<DamageBox, 3> magazineDamage{{
    {"chkMagA", u"MAGADAMAGE", {"Magazine A Damage", "Schaden - Magazin A"}},
    {"chkMagB", u"MAGBDAMAGE", {"Magazine B Damage", "Schaden - Magazin A"}},
    {"chkSecMag",
     u"SECONDARYMAGDAMAGE",
     {"Secondary Magazine Destroyed", "Sekundärgeschützmagazin zerstört"}},
}};

/// The secondary guns on one side of the ship, counted.
struct SecondaryGunRow
{
    QStringView classField;
    QStringView key;
    const char* captionLabel;
    Bilingual caption;
    const char* countLabel;
    const char* button;
};
inline constexpr std::array<SecondaryGunRow, 4> secondaryGuns{{
    {u"o", u"SECONDARYGUNSFORECNT", "Label36", {"Fore Cnt", "Anzahl - Bug"}, "lblForeCnt", "cmdSecForeCnt"},
    {u"p", u"SECONDARYGUNSAFTCNT", "Label37", {"Aft Cnt", "Anzahl - Heck"}, "lblAftCnt", "cmdSecAftCnt"},
    {u"q",
     u"SECONDARYGUNSPORTCNT",
     "Label39",
     {"Port Cnt", "Anzahl - Backbord"},
     "lblPortCnt",
     "cmdSecPortCnt"},
    {u"r",
     u"SECONDARYGUNSSTBCNT",
     "Label40",
     {"Strb Cnt", "Anzahl - Steuerbord"},
     "lblStrbCnt",
     "cmdSecStrbCnt"},
}};

/// One gun less; below 0 comes what the class has.
QString steppedGunCount(const QString& caption, int classCount);

/// A torpedo mount. All are offered, whether the class has them or not.
struct TorpedoMount
{
    QStringView classField; ///< the torpedoes of the class in it, for which there is no control
    DamageBox damage;
};
inline constexpr std::array<TorpedoMount, 4> torpedoMounts{{
    {u"x", {"chkTorp1", u"TORPMOUNT1DAMAGE", {"Mount 1 Destroyed", "Torpedosatz 1 zerstört"}}},
    {u"y", {"chkTorp2", u"TORPMOUNT2DAMAGE", {"Mount 2 Destroyed", "Torpedosatz 2 zerstört"}}},
    {u"z", {"chkTorp3", u"TORPMOUNT3DAMAGE", {"Mount 3 Destroyed", "Torpedosatz 3 zerstört"}}},
    {u"aa", {"chkTorp4", u"TORPMOUNT4DAMAGE", {"Mount 4 Destroyed", "Torpedosatz 4 zerstört"}}},
}};

} // namespace torvane
