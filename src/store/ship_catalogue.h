#pragma once

#include "store/data_controls.h"
#include "store/record_source.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace torvane {

/// The one short name that two ships of the catalogue share; their classes tell them apart.
inline constexpr QLatin1StringView ambiguousShortName{"Duncan"};

/// The ships and classes that a scenario may use: the four controls of `ShipDatabase.mdb`. Each is opened at
/// its first use, which throws RuntimeError, naming the file, if it can't; the next use tries again. Each has
/// one current row: a look-up for another purpose moves it under whoever still reads it.
class ShipCatalogue
{
public:
    /// `controls` outlives the catalogue and is bound before the first use.
    explicit ShipCatalogue(const DataControls& controls);

    RecordSource& gunTable();
    RecordSource& GunsRang();
    RecordSource& ShipDataB();
    RecordSource& ShipDaClass();

    /// Makes a ship and its class the current rows of `ShipDataB` and `ShipDaClass`. Throws NoCurrentRecord
    /// for an unknown name; an unknown class leaves `ShipDaClass` at its end, where reading a field throws.
    void shipToClass(const QString& name);

    /// Size of a class on the map in yards, nothing if there is no such class, whose name may stand between
    /// blanks. Moves `ShipDaClass`. Throws Overflow beyond 32 bits.
    std::optional<std::int32_t> lengthUnits(const QString& shipClass);
    std::optional<std::int32_t> widthUnits(const QString& shipClass);

private:
    RecordSource& opened(std::optional<RecordSource>& source, QLatin1StringView name);
    std::optional<std::int32_t> units(const QString& shipClass, QStringView field);

    const DataControls& m_controls;
    std::optional<RecordSource> m_gunTable;
    std::optional<RecordSource> m_gunsRang;
    std::optional<RecordSource> m_shipDataB;
    std::optional<RecordSource> m_shipDaClass;
};

} // namespace torvane
