#pragma once

#include <QLatin1StringView>
#include <QString>

#include <array>
#include <functional>

namespace torvane {

/// The eleven tables of `ScenarioData.mdb`, in the order in which start-up binds them.
inline constexpr std::array<QLatin1StringView, 11> workingTables{
    QLatin1StringView{"ShipPositions"}, QLatin1StringView{"OverviewData"}, QLatin1StringView{"ScenarioTemp"},
    QLatin1StringView{"ForceAData"},    QLatin1StringView{"ForceBData"},   QLatin1StringView{"ScenarioData"},
    QLatin1StringView{"ForceTemp"},     QLatin1StringView{"SaveData"},     QLatin1StringView{"FilterBase"},
    QLatin1StringView{"ShipClassData"}, QLatin1StringView{"EditShipData"}};

/// Makes a database file whole: `make` makes it under the name that it is given, and it is put over a file of
/// `path`, which stays as it was if anything fails. Throws RuntimeError.
void placeDatabase(const QString& path, const std::function<void(const QString& made)>& make);

/// Makes the database file with its eleven empty tables, over a file of that name, which stays as it was if
/// that fails. Throws RuntimeError.
void createWorkingTables(const QString& path);

/// Deletes every row of eight of the tables; `ForceTemp`, `FilterBase` and `ShipClassData` keep theirs.
/// Throws RuntimeError naming the file if it can't; then every table has the rows it had.
void emptyDBase(const QString& path);

} // namespace torvane
