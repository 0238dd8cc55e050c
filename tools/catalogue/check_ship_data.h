#pragma once

#include "catalogue/faults.h"
#include "catalogue/ship_data.h"

namespace torvane {

/// A ship may be commissioned in the year of her class or up to this many years later.
inline constexpr int mostYearsBehindClass = 12;

/// Checks what the rows of the three files say about each other: names that are there once, ships and classes
/// that have each other, ranges, years, and the number of ships of each navy. What a dropped row may have
/// held is not reported as missing.
void checkShipData(const CatalogueData& data, Faults& faults);

} // namespace torvane
