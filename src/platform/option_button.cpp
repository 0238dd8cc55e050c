#include "platform/option_button.h"

#include <QKeyEvent>

namespace torvane {

// Options that exclude one another by themselves are chosen by the arrow keys on the way.
OptionButton::OptionButton(QWidget* parent) : QRadioButton(parent)
{
    setAutoExclusive(false);
}

void OptionButton::nextCheckState()
{
    setChecked(true);
}

void OptionButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QRadioButton::keyPressEvent(event);
    }
}

} // namespace torvane
