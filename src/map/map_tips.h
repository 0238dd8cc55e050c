#pragma once

#include "platform/caption_table.h"

#include <array>

namespace torvane {

/// What the tool tips of the main window say of its read-outs and bars, by design name.
extern const std::array<CaptionRow, 10> mapTips;

} // namespace torvane
