#pragma once

#include "platform/form.h"
#include "platform/mnemonics.h"
#include "support/input.h"
#include "support/printers.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
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
/// What the controls of a window say, control by control.
inline QStringList shownValues(const Form& window)
{
    QStringList values;
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        QString value = QStringLiteral("%1: visible %2").arg(control->objectName()).arg(control->isVisible());
        if (const auto* label = qobject_cast<const QLabel*>(control)) {
            value += label->text();
        } else if (const auto* box = qobject_cast<const QLineEdit*>(control)) {
            value += box->text();
        } else if (const auto* text = qobject_cast<const QPlainTextEdit*>(control)) {
            value += text->toPlainText();
        } else if (const auto* list = qobject_cast<const QComboBox*>(control)) {
            value += list->currentText();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
            value += button->text() + QString::number(button->isChecked());
        }
        values.append(value);
    }
    return values;
}
/// Every visible label with a buddy and a mnemonic leads to it by that, and does no more.
inline void expectLabelsLead(Form& window, int least)
{
    const QStringList before = shownValues(window);
    int found = 0;
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (!label->isVisible() || !label->buddy() || mnemonicOf(label->text()).isNull()) {
            continue;
        }
        ++found;
        pressMnemonic(window, label->text());
        EXPECT_TRUE(label->buddy()->hasFocus()) << label->text().toStdString();
    }
    EXPECT_EQ(found, least);
    QTest::qWait(200); // a button that is pressed by a key acts a moment later
    EXPECT_EQ(shownValues(window), before);
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
