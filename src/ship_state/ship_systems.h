#pragma once

#include "platform/bilingual.h"
#include "ship_state/damage.h"

#include <QLatin1StringView>
#include <QString>

#include <array>
#include <span>

namespace torvane {

/// A check box that says whether something is destroyed.
struct DamageBox
{
    const char* box;
    QStringView key;
    Bilingual caption;
};

/// A number with a button for either direction, and the caption that stands at it.
struct StepperRow
{
    const char* captionLabel;
    Bilingual caption;
    const char* valueLabel;
    const char* up;
    const char* down;
};

/// A system that can be repaired: its row of the repair panel. The check box captions are English in both
/// languages.
struct RepairRow
{
    QLatin1StringView word; ///< what `repairRow` holds while the row is open
    const char* button;
    Bilingual caption;
    const char* timeLabel;
    const char* box;
    const char* boxCaption;
    QStringView key;
    /// The box is shown and, whenever its value changes, sets the time to 0.
    bool hasLiveBox = true;
    /// The stored seconds are shown as minutes.
    bool showsMinutes = true;
};

// Propulsion is shown as it is stored and saved as minutes all the same, and maneuvering can't be marked as
// destroyed. Both kept.
inline constexpr std::array<RepairRow, 6> repairRows{{
    {.word = QLatin1StringView("PROP"),
     .button = "cmdRepairProp",
     .caption = {"Propulsion Damage", "Schaden am Antrieb"},
     .timeLabel = "lblPropDam",
     .box = "chkPropSys",
     .boxCaption = "Propulsion System Destroyed:",
     .key = u"PROPULSIONSYSTEMDAMAGE",
     .showsMinutes = false},
    {.word = QLatin1StringView("MAN"),
     .button = "cmdRepairMan",
     .caption = {"Maneuvering Damage", "Ruderschaden"},
     .timeLabel = "lblManDam",
     .box = "chkManeuver",
     .boxCaption = "Maneuvering System Destroyed",
     .key = u"MANUEVERSYSTEMDAMAGE",
     .hasLiveBox = false},
    {.word = QLatin1StringView("ELEC"),
     .button = "cmdRepairElec",
     .caption = {"Electrical Damage", "elektrischer Schaden"},
     .timeLabel = "lblElecDam",
     .box = "chkElectrical",
     .boxCaption = "Electrical System Destroyed",
     .key = u"ELECTRICALSYSTEMDAMAGE"},
    {.word = QLatin1StringView("DAM"),
     .button = "cmdRepairDam",
     .caption = {"Damage Control", "Schadenskontrolle "},
     .timeLabel = "lblDamDam",
     .box = "chkDamage",
     .boxCaption = "Damage Control Destroyed",
     .key = u"DAMAGECONTROLDAMAGE"},
    {.word = QLatin1StringView("BRIDGE"),
     .button = "cmdRepairBridge",
     .caption = {"Bridge Damage", "Schaden an der Brücke"},
     .timeLabel = "lblBridgeDam",
     .box = "chkBridge",
     .boxCaption = "Bridge Control Destroyed",
     .key = u"BRIDGEDAMAGE"},
    {.word = QLatin1StringView("RADAR"),
     .button = "cmdRepairRadar",
     .caption = {"Radar Damage", "Radarschaden"},
     .timeLabel = "lblRadarDam",
     .box = "chkRadar",
     .boxCaption = "Radar Control Destroyed",
     .key = u"RADARDAMAGE"},
}};

/// Searchlights, then fire directors.
inline constexpr std::array<DamageBox, 6> lightsAndDirectors{{
    {"chkSL_Port1", u"SEARCHLIGHTP1DAMAGE", {"Searchlights Port 1", "Scheinwerfer B 1"}},
    {"chkSL_Port2", u"SEARCHLIGHTP2DAMAGE", {"Searchlights Port 2", "Scheinwerfer B 2"}},
    {"chkSL_Strb1", u"SEARCHLIGHTS1DAMAGE", {"Searchlights Strb 1", "Scheinwerfer S 1"}},
    {"chkSL_Strb2", u"SEARCHLIGHTS2DAMAGE", {"Searchlights Strb 2", "Scheinwerfer S 2"}},
    {"chkDir1", u"DIRECTOR1DAMAGE", {"Fire Director 1", "Feuerleitstelle 1"}},
    {"chkDir2", u"DIRECTOR2DAMAGE", {"Fire Director 2", "Feuerleitstelle 2"}},
}};

inline constexpr StepperRow propulsionPower{"Label68",
                                            {"Prop Sys Prcnt", "Antriebsysteme %"},
                                            "lblPropPrcnt",
                                            "cmdPropSysPrcntUp",
                                            "cmdPropSysPrcntDown"};

/// What a repair row shows: the time label and the check box.
struct RepairState
{
    QString time = QStringLiteral("0"); ///< minutes, but for what propulsion was loaded with
    bool destroyed = false;
};

/// Ticks or clears the box.
void setDestroyed(RepairState& state, const RepairRow& row, bool destroyed);
/// One minute more, up to 210, which also clears the box; or one less, down to 0. Beyond, nothing happens.
void stepRepairTime(RepairState& state, const RepairRow& row, Step step);
/// Takes a stored value. A box that is ticked stays so: it is cleared before a ship is loaded.
void loadRepair(RepairState& state, const RepairRow& row, const QString& stored);
/// What is stored for the row. Throws Overflow for a time beyond all numbers.
QString savedRepair(const RepairState& state);

} // namespace torvane
