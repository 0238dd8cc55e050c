#pragma once

#include "platform/caption_table.h"

#include <QWidget>

#include <span>

namespace torvane {

/// Gives a window its title and its labels, buttons and groups the captions of a table, by their design
/// names.
void applyCaptionTable(QWidget& window, std::span<const CaptionRow> captions, Language language);

/// Gives the controls of a window the tool tips of a table, which are also what assistive tools say of them.
void applyControlTips(QWidget& window, std::span<const CaptionRow> tips, Language language);

/// Gives the controls of a window what assistive tools say of them, where a tool tip would be in the way.
void applyControlDescriptions(QWidget& window, std::span<const CaptionRow> descriptions, Language language);

/// Gives the controls of a window that show no caption of their own the names by which assistive tools call
/// them.
void applyControlNames(QWidget& window, std::span<const CaptionRow> names, Language language);

} // namespace torvane
