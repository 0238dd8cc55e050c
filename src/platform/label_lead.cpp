#include "platform/label_lead.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>

namespace torvane {

// The keyboard stops at the option that is on, wherever it comes from.
static QAbstractButton* stopAmong(QAbstractButton* option)
{
    if (!option->autoExclusive() || option->isChecked()) {
        return option;
    }
    for (QAbstractButton* other :
         option->parentWidget()->findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (other->autoExclusive() && other->isChecked() && other->isEnabled()) {
            return other;
        }
    }
    return option;
}

bool leadByMnemonic(QObject* watched, const QEvent* event)
{
    if (event->type() != QEvent::Shortcut) {
        return false;
    }
    const auto* label = qobject_cast<QLabel*>(watched);
    auto* button = label == nullptr ? nullptr : qobject_cast<QAbstractButton*>(label->buddy());
    if (button == nullptr) {
        return false;
    }
    stopAmong(button)->setFocus(Qt::ShortcutFocusReason);
    label->window()->setAttribute(Qt::WA_KeyboardFocusChange); // the focus is seen
    return true;
}

} // namespace torvane
