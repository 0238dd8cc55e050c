#pragma once

#include "overview/overview_texts.h"

#include <QWidget>

namespace torvane {

class Editor;

/// Fills every list of a window with its entries.
void fillLists(QWidget& window, Language language);

/// Tells that a typed value is out of its range.
void showOutOfRange(Editor& editor, OverviewMessage message);

} // namespace torvane
