#include "ship_state/class_limits.h"

#include "platform/number_text.h"

namespace torvane {

namespace {

constexpr QStringView nameField{u"b"};
constexpr QStringView hullField{u"f"};
constexpr QStringView floatField{u"g"};

ClassLimits limitsOfRow(const RecordSource& shipClass)
{
    const auto number = [&](QStringView field) { return numberValue(shipClass.value(field)); };
    ClassLimits limits{.hull = toInt32(number(hullField)), .floatation = toInt32(number(floatField))};
    for (std::size_t i = 0; i < magazines.size(); ++i) {
        limits.rounds.at(i) = toInt32(number(magazines.at(i).classField));
    }
    for (std::size_t i = 0; i < secondaryGuns.size(); ++i) {
        limits.secondaryGunCounts.at(i) = toInt16(number(secondaryGuns.at(i).classField));
    }
    for (std::size_t i = 0; i < torpedoMounts.size(); ++i) {
        limits.torpedoes.at(i) = toInt32(number(torpedoMounts.at(i).classField));
    }
    for (std::size_t i = 0; i < turrets.size(); ++i) {
        limits.hasTurret.at(i) = number(turrets.at(i).classField) > 0;
    }
    return limits;
}

} // namespace

void loadClassLimits(ClassLimits& limits, ShipCatalogue& catalogue, const QString& shipClass)
{
    RecordSource& classes = catalogue.ShipDaClass();
    for (classes.MoveFirst(); !classes.isEOF(); classes.MoveNext()) {
        if (classes.value(nameField) == shipClass) {
            limits = limitsOfRow(classes);
        }
    }
}

} // namespace torvane
