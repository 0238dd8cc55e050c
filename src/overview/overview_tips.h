#pragma once

#include "overview/overview_texts.h"

namespace torvane {

/// What a control's tool tip says of range and unit, by design name.
extern const std::array<CaptionRow, 28> overviewTips;
extern const std::array<CaptionRow, 28> environmentTips;
/// What assistive tools call the controls of the overview that carry no caption.
extern const std::array<CaptionRow, 2> overviewNames;
/// Titles of the environment dialog's groups.
extern const std::array<CaptionRow, 3> environmentGroups;

} // namespace torvane
