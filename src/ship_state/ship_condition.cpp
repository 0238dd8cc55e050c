#include "ship_state/ship_condition.h"

#include "platform/number_text.h"

namespace torvane {

namespace {

constexpr QStringView hullKey{u"CURRENTHITPOINTS"};
constexpr QStringView floatKey{u"CURRENTFLOATPOINTS"};
constexpr QStringView fireKey{u"CURRENTFIRECOUNT"};
constexpr QStringView propulsionKey{u"PROPULSIONSYSTEMPERCENTAGE"};

// A system that also has a key of its own kind, written right behind its damage.
constexpr std::size_t propulsionRow = 0;
constexpr std::size_t maneuverRow = 1;

void loadSystems(ShipCondition& condition, const KeyReader& GetIniKey, Language language)
{
    for (std::size_t i = 0; i < repairRows.size(); ++i) {
        loadRepair(condition.repairs.at(i), repairRows.at(i), GetIniKey(repairRows.at(i).key));
    }
    condition.propulsion = GetIniKey(propulsionKey);
    condition.rudder = shownWord(rudderList, GetIniKey(rudderList.key), language);
    for (std::size_t i = 0; i < lightsAndDirectors.size(); ++i) {
        const QString stored = GetIniKey(lightsAndDirectors.at(i).key);
        if (isDestroyed(stored)) {
            condition.lightsAndDirectorsDestroyed.at(i) = true;
        } else if (numberValue(stored) == 0) {
            // Any other number leaves the box as it was. Kept.
            condition.lightsAndDirectorsDestroyed.at(i) = false;
        }
    }
}

void loadGunnery(ShipCondition& condition, const KeyReader& GetIniKey, const ClassLimits& limits)
{
    for (std::size_t i = 0; i < magazines.size(); ++i) {
        condition.rounds.at(i) = percentShown(GetIniKey(magazines.at(i).key), limits.rounds.at(i));
    }
    for (std::size_t i = 0; i < turrets.size(); ++i) {
        condition.turretsDestroyed.at(i) = isDestroyed(GetIniKey(turrets.at(i).damage.key));
    }
    for (std::size_t i = 0; i < magazineDamage.size(); ++i) {
        condition.magazinesDestroyed.at(i) = isDestroyed(GetIniKey(magazineDamage.at(i).key));
    }
    for (std::size_t i = 0; i < secondaryGuns.size(); ++i) {
        condition.secondaryGunCounts.at(i) = GetIniKey(secondaryGuns.at(i).key);
    }
    for (std::size_t i = 0; i < torpedoMounts.size(); ++i) {
        condition.mountsDestroyed.at(i) = isDestroyed(GetIniKey(torpedoMounts.at(i).damage.key));
    }
}

QString flagOf(bool destroyed)
{
    return damageFlag(destroyed ? 1 : 0);
}

void appendSystems(KeyValues& record, const ShipCondition& condition)
{
    for (std::size_t i = 0; i < repairRows.size(); ++i) {
        record.emplace_back(repairRows.at(i).key, savedRepair(condition.repairs.at(i)));
        if (i == propulsionRow) {
            record.emplace_back(propulsionKey, textOf(numberValue(condition.propulsion)));
        } else if (i == maneuverRow) {
            record.emplace_back(rudderList.key, condition.rudder);
        }
    }
    for (std::size_t i = 0; i < lightsAndDirectors.size(); ++i) {
        record.emplace_back(lightsAndDirectors.at(i).key,
                            flagOf(condition.lightsAndDirectorsDestroyed.at(i)));
    }
}

void appendRounds(KeyValues& record, const ShipCondition& condition, const ClassLimits& limits,
                  std::size_t firstMagazine, std::size_t endMagazine)
{
    for (std::size_t i = firstMagazine * roundsOfMagazine; i < endMagazine * roundsOfMagazine; ++i) {
        record.emplace_back(magazines.at(i).key, amountOf(condition.rounds.at(i), limits.rounds.at(i)));
    }
}

void appendGunnery(KeyValues& record, const ShipCondition& condition, const ClassLimits& limits)
{
    appendRounds(record, condition, limits, 0, secondaryMagazine);
    for (std::size_t i = 0; i < turrets.size(); ++i) {
        record.emplace_back(turrets.at(i).damage.key, flagOf(condition.turretsDestroyed.at(i)));
    }
    for (std::size_t i = 0; i < magazineDamage.size(); ++i) {
        if (i == secondaryMagazine) {
            appendRounds(record, condition, limits, secondaryMagazine, secondaryMagazine + 1);
        }
        record.emplace_back(magazineDamage.at(i).key, flagOf(condition.magazinesDestroyed.at(i)));
    }
    for (std::size_t i = 0; i < secondaryGuns.size(); ++i) {
        record.emplace_back(secondaryGuns.at(i).key, condition.secondaryGunCounts.at(i).trimmed());
    }
    for (std::size_t i = 0; i < torpedoMounts.size(); ++i) {
        record.emplace_back(torpedoMounts.at(i).damage.key, flagOf(condition.mountsDestroyed.at(i)));
    }
}

} // namespace

ShipCondition::ShipCondition()
{
    rounds.fill(QStringLiteral("0 %"));
    secondaryGunCounts.fill(QStringLiteral("0"));
}

void clearSystemChecks(ShipCondition& condition)
{
    for (std::size_t i = 0; i < repairRows.size(); ++i) {
        setDestroyed(condition.repairs.at(i), repairRows.at(i), false);
    }
}

void loadRecord(ShipCondition& condition, const QString& shortName, const KeyReader& GetIniKey,
                const ClassLimits& limits, Language language)
{
    condition.shortName = shortName;
    condition.shipClass = GetIniKey(u"CLASS");
    condition.navy = GetIniKey(u"NAVY");
    condition.hull = percentShown(GetIniKey(hullKey), limits.hull);
    condition.floatation = percentShown(GetIniKey(floatKey), limits.floatation);
    condition.fire = GetIniKey(fireKey);
    for (std::size_t i = 0; i < crewLists.size(); ++i) {
        condition.crew.at(i) = shownWord(crewLists.at(i), GetIniKey(crewLists.at(i).key), language);
    }
    loadSystems(condition, GetIniKey, language);
    loadGunnery(condition, GetIniKey, limits);
}

KeyValues recordOf(const ShipCondition& condition, const ClassLimits& limits, Language language)
{
    KeyValues record;
    for (std::size_t i = 0; i < crewLists.size(); ++i) {
        record.emplace_back(crewLists.at(i).key, storedWord(crewLists.at(i), condition.crew.at(i), language));
    }
    record.emplace_back(hullKey, amountOf(condition.hull, limits.hull));
    record.emplace_back(floatKey, amountOf(condition.floatation, limits.floatation));
    record.emplace_back(fireKey, textOf(numberValue(condition.fire)));
    appendSystems(record, condition);
    appendGunnery(record, condition, limits);
    return record;
}

} // namespace torvane
