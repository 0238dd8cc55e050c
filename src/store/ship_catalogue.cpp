#include "store/ship_catalogue.h"

#include "platform/number_text.h"

namespace torvane {

ShipCatalogue::ShipCatalogue(const DataControls& controls) : m_controls(controls) {}

RecordSource& ShipCatalogue::gunTable()
{
    return opened(m_gunTable, QLatin1StringView("gunTable"));
}

RecordSource& ShipCatalogue::GunsRang()
{
    return opened(m_gunsRang, QLatin1StringView("GunsRang"));
}

RecordSource& ShipCatalogue::ShipDataB()
{
    return opened(m_shipDataB, QLatin1StringView("ShipDataB"));
}

RecordSource& ShipCatalogue::ShipDaClass()
{
    return opened(m_shipDaClass, QLatin1StringView("ShipDaClass"));
}

void ShipCatalogue::shipToClass(const QString& name)
{
    ShipDataB().findFirst(u"Name", name);
    ShipDaClass().findFirst(u"b", ShipDataB().value(u"Class"));
}

std::optional<std::int32_t> ShipCatalogue::lengthUnits(const QString& shipClass)
{
    return units(shipClass, u"length");
}

std::optional<std::int32_t> ShipCatalogue::widthUnits(const QString& shipClass)
{
    return units(shipClass, u"width");
}

RecordSource& ShipCatalogue::opened(std::optional<RecordSource>& source, QLatin1StringView name)
{
    return source ? *source : source.emplace(m_controls.control(name));
}

std::optional<std::int32_t> ShipCatalogue::units(const QString& shipClass, QStringView field)
{
    constexpr double feetInAYard = 3;
    if (!ShipDaClass().findFirst(u"b", shipClass.trimmed())) {
        return std::nullopt;
    }
    return toInt32(roundEven(numberValue(ShipDaClass().value(field))) / feetInAYard);
}

} // namespace torvane
