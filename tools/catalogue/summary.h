#pragma once

#include "catalogue/ship_data.h"

#include <QString>

namespace torvane {

/// A table of the number of ships by navy (rows) and type (columns), with sums. Ends with a line feed.
QString catalogueSummary(const CatalogueData& data);

} // namespace torvane
