#pragma once

#include "platform/list_combo.h"
#include "support/input.h"
#include "support/printers.h"

#include <QAbstractItemView>
#include <QStringList>

#include <gmock/gmock.h>

namespace torvane::testing {

/// Opens a list with the mouse and takes one of its entries with the keys.
inline void pick(ListCombo* list, const char* entry)
{
    const int row = list->findText(QString::fromUtf8(entry));
    ASSERT_GE(row, 0) << entry;
    click(list);
    QAbstractItemView* view = list->view();
    ASSERT_TRUE(view->isVisible());
    press(view, Qt::Key_Home);
    for (int i = 0; i < row; ++i) {
        press(view, Qt::Key_Down);
    }
    press(view, Qt::Key_Return);
    ASSERT_FALSE(view->isVisible());
    ASSERT_EQ(list->currentText(), QString::fromUtf8(entry));
}

inline QStringList entries(const ListCombo* list)
{
    QStringList texts;
    for (int i = 0; i < list->count(); ++i) {
        texts.append(list->itemText(i));
    }
    return texts;
}

/// A caption without the sign that marks its mnemonic.
inline QString plain(QString caption)
{
    return caption.remove(QLatin1Char('&'));
}

} // namespace torvane::testing
