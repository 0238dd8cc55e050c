#include "platform/step_button.h"

#include <QFontMetrics>
#include <QKeyEvent>

namespace torvane {

namespace {

constexpr int sideMargin = 7;
constexpr int smallestWidth = 26;

} // namespace

StepButton::StepButton(QWidget* parent) : QPushButton(parent)
{
    setAutoRepeat(true);
    setAutoDefault(false);
}

void StepButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Plus) {
        Q_EMIT plusPressed();
    } else if (event->key() == Qt::Key_Minus) {
        Q_EMIT minusPressed();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

QSize StepButton::sizeHint() const
{
    const int text = fontMetrics().horizontalAdvance(this->text());
    return {std::max(smallestWidth, text + 2 * sideMargin), QPushButton::sizeHint().height()};
}

} // namespace torvane
