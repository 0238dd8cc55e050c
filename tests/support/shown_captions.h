#pragma once

#include "platform/caption_table.h"
#include "support/lists.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QWidget>

namespace torvane::testing {

/// What a control of a window shows; the window's own name stands for its title.
inline QString shownCaption(const QWidget& window, const QString& control)
{
    if (control == window.objectName()) {
        return window.windowTitle();
    }
    if (const auto* label = window.findChild<QLabel*>(control)) {
        return label->text();
    }
    if (const auto* button = window.findChild<QAbstractButton*>(control)) {
        return button->text();
    }
    const auto* group = window.findChild<QGroupBox*>(control);
    return group == nullptr ? QStringLiteral("no such control") : group->title();
}

/// Every caption of a table is on its control; a mnemonic may have been added where the table gives none.
inline void expectCaptions(const QWidget& window, std::span<const CaptionRow> table, Language language)
{
    for (const CaptionRow& row : table) {
        const QString wanted = row.caption.in(language);
        const QString shown = shownCaption(window, row.control);
        EXPECT_EQ(wanted.contains(u'&') ? shown : plain(shown), wanted) << row.control.data();
    }
}

} // namespace torvane::testing
