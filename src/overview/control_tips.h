#pragma once

#include "overview/overview_texts.h"

#include <QWidget>

namespace torvane {

/// Gives the controls of a window the tool tips of a table, which are also what assistive tools say of them.
inline void applyControlTips(QWidget& window, std::span<const CaptionRow> tips, Language language)
{
    for (const CaptionRow& row : tips) {
        if (auto* control = window.findChild<QWidget*>(row.control)) {
            control->setToolTip(row.caption.in(language));
            control->setAccessibleDescription(row.caption.in(language));
        }
    }
}

} // namespace torvane
