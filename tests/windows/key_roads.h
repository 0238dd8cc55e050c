#pragma once

#include "platform/form.h"
#include "support/input.h"
#include "support/printers.h"

#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>

namespace torvane::testing {

/// Presses the mnemonic of a label or button; the window must be in front for it to count.
inline void pressMnemonic(Form& window, const QString& caption)
{
    window.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return window.isActiveWindow(); }));
    const qsizetype sign = caption.indexOf(QLatin1Char('&'));
    ASSERT_GE(sign, 0) << caption.toStdString();
    const QChar letter = caption[sign + 1];
    QWidget* focus = window.focusWidget() ? window.focusWidget() : &window;
    QTest::sendKeyEvent(QTest::Click, focus, static_cast<Qt::Key>(letter.toUpper().unicode()), letter,
                        Qt::AltModifier);
    settle();
}
/// Every visible label with a buddy leads to it by its mnemonic.
inline void expectLabelsLead(Form& window, int least)
{
    int found = 0;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (!label->isVisible() || !label->buddy()) {
            continue;
        }
        ++found;
        pressMnemonic(window, label->text());
        EXPECT_TRUE(label->buddy()->hasFocus()) << label->text().toStdString();
    }
    EXPECT_EQ(found, least);
}
/// Where Tab leads, from the control that has the focus on, once round.
inline QStringList tabRound(Form& window, QWidget* first)
{
    window.activateWindow();
    first->setFocus();
    QStringList names;
    do {
        names.append(window.focusWidget()->objectName());
        press(window.focusWidget(), Qt::Key_Tab);
    } while (window.focusWidget() != first && names.size() < 60);
    return names;
}

} // namespace torvane::testing
