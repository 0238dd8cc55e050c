#include "overview/missions.h"

#include <algorithm>
#include <utility>

namespace torvane {
namespace {

constexpr MissionRole battleLine{{"BATTLELINE", "Schlachtreihe"},
                                 {"Inflict more damage on the enemy than you receive.",
                                  "Dem Gegner möglichst großen Schaden zufügen, eigene Verluste vermeiden."}};

constexpr MissionRole interceptingForce{
    {"INTERCEPTING FORCE", "Abfangende Streitkraft"},
    {"Prevent the enemy from disengaging while maximizing enemy losses and minimizing friendly losses.",
     "Verhindern, daß der Gegner sich löst und dabei so viele Gegner wie möglich bei minimalen eigenen "
     "Verlusten zerstören."}};
constexpr MissionRole evadingForce{
    {"EVADING FORCE", "Ausweichende Streitkraft"},
    {"Disengage from the battle while minimizing friendly losses and maximizing enemy losses.",
     "Von der Schlacht sich loslösen und dabei so viele Gegner wie möglich bei minimalen eigenen Verlusten "
     "zerstören."}};

constexpr MissionRole bombardingForce{
    {"BOMBARDING FORCE", "Bombardierende Streitkraft"},
    {"Successfully bombard your target while minimizing friendly losses and maximizing enemy losses.",
     "Eigene Streitkraft in eine Position bringen aus der sich das Ziel erfolgreich bombardieren läßt und "
     "dabei so viele Gegner wie möglich bei minimalen eigenen Verlusten zerstören."}};
constexpr MissionRole defendingForce{
    {"DEFENDING FORCE", "Verteidigende Streitkraft"},
    {"Prevent the enemy from completing his bombardment while maximizing enemy losses and minimizing "
     "friendly losses.",
     "Verhindern, daß der Gegner die Bombardierung erfolgreich abschließend und dabei so viele Gegner wie "
     "möglich bei minimalen eigenen Verlusten zerstören."}};

constexpr MissionRole escortingForce{
    {"ESCORTING FORCE", "Geleitflotte"},
    {"Protect the transports and attempt to disengage while minimizing friendly losses and maximizing enemy "
     "losses.",
     "Transporte schützen und sich vom Feind loslösen und dabei so viele Gegner wie möglich bei minimalen "
     "eigenen Verlusten zerstören."}};
constexpr MissionRole attackingForce{
    {"ATTACKING FORCE", "Angriffsflotte"},
    {"Prevent the transports from disengaging while maximizing enemy losses and minimizing friendly losses.",
     "Verhindern, daß sich Transporte loslösen und dabei so viele Gegner wie möglich bei minimalen eigenen "
     "Verlusten zerstören."}};

constexpr MissionRole transportingForce{
    {"TRANSPORTING FORCE", "Transportflotte"},
    {"Move your force into a position to unload its supplies while minimizing friendly losses and maximizing "
     "enemy losses.",
     "Bringen Sie Ihre Streitkraft in eine geeignete Position, zur Löschung der Ladung und zerstören Sie "
     "dabei so viele Gegner wie möglich, bei minimalen eigenen Verlusten."}};
constexpr MissionRole patrollingForce{
    {"PATROLLING FORCE", "Patroullieflotte"},
    {"Prevent the enemy from unloading its supplies while maximizing enemy losses and minimizing friendly "
     "losses.",
     "Verhindern Sie, daß der Gegner seine Ladung löscht, und zerstören Sie dabei so viele Gegner wie "
     "möglich "
     "bei minimalen eigenen Verlusten."}};

} // namespace

constexpr std::array<Mission, 5> missions{{
    {{"Meeting Engagement", "Begegnungsgefecht"}, "0", battleLine, battleLine, false},
    {{"Intercept", "Abfangen"}, "3", interceptingForce, evadingForce, false},
    {{"Bombardment", "Bombardieren"}, "1", bombardingForce, defendingForce, true},
    {{"Convoy", "Konvoi"}, "2", escortingForce, attackingForce, false},
    {{"Tactical Transport", "Taktischer Transport"}, "4", transportingForce, patrollingForce, true},
}};

const Mission* missionOfCaption(QStringView caption, Language language)
{
    const QStringView wanted = caption.trimmed();
    const auto found = std::ranges::find_if(
        missions, [&](const Mission& mission) { return mission.caption.in(language) == wanted; });
    return found == missions.end() ? nullptr : &*found;
}

const Mission* missionOfBattleType(QStringView battleType)
{
    const auto found = std::ranges::find_if(missions, [&](const Mission& mission) {
        return QLatin1StringView(mission.battleType) == battleType;
    });
    return found == missions.end() ? nullptr : &*found;
}

MissionBrief missionBrief(const Mission& mission, Language language, bool swapped)
{
    MissionBrief brief{mission.firstRole.name.in(language), mission.secondRole.name.in(language),
                       mission.firstRole.objective.in(language), mission.secondRole.objective.in(language)};
    if (swapped) {
        std::swap(brief.objectiveA, brief.objectiveB);
    }
    return brief;
}

} // namespace torvane
