#pragma once

#include "catalogue/faults.h"
#include "catalogue/ship_data.h"

#include <QByteArray>
#include <QString>

namespace torvane {

/// The bytes of the three files of a catalogue.
struct ShipDataFiles
{
    QByteArray ships;
    QByteArray classes;
    QByteArray ranges;
};

/// Reads ships.csv, classes.csv and gun_ranges.csv of a folder. Throws RuntimeError for a file that can't be
/// read.
ShipDataFiles readShipDataFiles(const QString& folder);

/// Takes the three files apart and checks each field by itself: columns, numbers and their limits, types,
/// navies, names. A row with a bad field is a fault and stays in the result; a line that is no row is a fault
/// and doesn't.
CatalogueData parseShipData(const ShipDataFiles& files, Faults& faults);

} // namespace torvane
