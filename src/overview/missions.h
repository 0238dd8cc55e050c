#pragma once

#include "platform/bilingual.h"

#include <QStringView>

#include <array>

namespace torvane {

/// What one side of a mission is called and told.
struct MissionRole
{
    Bilingual name;
    Bilingual objective;
};

/// A mission. `battleType` is the code that the scenario stores and the game reads; it doesn't follow the
/// order of the list. With a target area the map offers one to place.
struct Mission
{
    Bilingual caption;
    const char* battleType;
    MissionRole firstRole;
    MissionRole secondRole;
    bool needsTargetArea;
};

/// The missions in the order of the list `cmbMission`.
extern const std::array<Mission, 5> missions;

/// The mission shown under a caption, blanks around it ignored; null if no mission of that language is
/// called so.
const Mission* missionOfCaption(QStringView caption, Language language);

/// The mission stored under a code, "0" to "4"; null for any other text.
const Mission* missionOfBattleType(QStringView battleType);

/// What the overview dialog shows of a mission. The role labels never change sides, the objectives do.
struct MissionBrief
{
    QString firstRole;
    QString secondRole;
    QString objectiveA;
    QString objectiveB;

    bool operator==(const MissionBrief&) const = default;
};

/// The roles and objectives of a mission. Swapped, Force B holds the first role.
MissionBrief missionBrief(const Mission& mission, Language language, bool swapped);

} // namespace torvane
