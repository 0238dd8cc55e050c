#pragma once

#include "platform/language.h"
#include "ship_state/class_limits.h"
#include "ship_state/crew_lists.h"
#include "ship_state/gunnery.h"
#include "ship_state/ship_systems.h"
#include "store/working_profile.h"

#include <QString>
#include <QStringView>

#include <array>
#include <functional>
#include <utility>
#include <vector>

namespace torvane {

inline constexpr StepperRow hullPoints{
    "Label35", {"Hull Pts", "Pkt-R"}, "lblHitPt", "cmdHitPtsUp", "cmdHitPtsDown"};
inline constexpr StepperRow floatPoints{
    "Label53", {"Float Pts", "Pkt-W"}, "lblFloatPts", "cmdFltPtsUp", "cmdFltPitsDown"};
inline constexpr StepperRow fireLevel{
    "Label2", {"Fire Level", "Pkt-F"}, "lblFireCnt", "cmdFireCnt", "cmdFireCntDown"};

/// What the ship data dialog shows of a ship, in the order of the tables: captions, list texts, and whether
/// boxes are ticked. Lives as long as the dialog: what a ship doesn't replace is what the last one left.
struct ShipCondition
{
    ShipCondition();

    QString shortName;
    QString shipClass;
    QString navy;
    QString hull = QStringLiteral("0 %");
    QString floatation = QStringLiteral("0 %");
    QString fire = QStringLiteral("0");
    std::array<QString, crewLists.size()> crew;
    std::array<RepairState, repairRows.size()> repairs;
    QString propulsion = QStringLiteral("0 %");
    QString rudder;
    std::array<bool, lightsAndDirectors.size()> lightsAndDirectorsDestroyed{};
    std::array<QString, magazines.size()> rounds;
    std::array<bool, turrets.size()> turretsDestroyed{};
    std::array<bool, magazineDamage.size()> magazinesDestroyed{};
    std::array<QString, secondaryGuns.size()> secondaryGunCounts;
    std::array<bool, torpedoMounts.size()> mountsDestroyed{};
};

/// Reads a key of the ship's section, "INVALID" if it is missing or empty.
using KeyReader = std::function<QString(QStringView key)>;
/// Keys with their values, in the order in which they are written.
using KeyValues = std::vector<std::pair<QStringView, QString>>;

/// Clears the boxes of the repair rows.
void clearSystemChecks(ShipCondition& condition);

/// Takes what a record says over what the dialog shows; `limits` are what amounts are shown against. Throws
/// Overflow for a stored number beyond all numbers, with part of the record taken.
void loadRecord(ShipCondition& condition, const QString& shortName, const KeyReader& GetIniKey,
                const ClassLimits& limits, Language language);

/// The 61 keys that the dialog owns. Throws Overflow for a number beyond all numbers.
KeyValues recordOf(const ShipCondition& condition, const ClassLimits& limits, Language language);

} // namespace torvane
