#pragma once

#include "platform/caption_table.h"

#include <array>

namespace torvane {

/// What the tool tips of the main window say of its read-outs and bars, by design name.
extern const std::array<CaptionRow, 10> mapTips;
/// What assistive tools call the controls of the map that carry no caption.
extern const std::array<CaptionRow, 3> mapNames;
/// What assistive tools say of the map and of the tools, which have help tags and no tool tips.
extern const std::array<CaptionRow, 10> mapDescriptions;

} // namespace torvane
