#pragma once

#include "overview/overview_texts.h"

#include <QWidget>

namespace torvane {

class Editor;

/// Gives a window its title and its labels, buttons and groups the captions of a table, by their design
/// names.
void applyCaptionTable(QWidget& window, std::span<const CaptionRow> captions, Language language);

/// Gives the controls of a window the tool tips of a table, which are also what assistive tools say of them.
void applyControlTips(QWidget& window, std::span<const CaptionRow> tips, Language language);

/// Fills every list of a window with its entries.
void fillLists(QWidget& window, Language language);

/// Tells that a typed value is out of its range.
void showOutOfRange(Editor& editor, OverviewMessage message);

} // namespace torvane
