#pragma once

#include "catalogue/ship_data.h"

#include <QString>

namespace torvane {

/// Makes the catalogue's database over a file of that name: the tables ShipDataB, ShipDaClass, GunsRang and
/// gunTable, all fields text, rows in the order of the data. The data must be free of faults. Throws
/// RuntimeError and leaves an older file as it was.
void writeShipDatabase(const CatalogueData& data, const QString& path);

} // namespace torvane
