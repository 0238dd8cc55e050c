#include "platform/step_button.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMetaMethod>

namespace torvane {

namespace {

constexpr int sideMargin = 7;
constexpr int smallestWidth = 26;

// Longer than a slow click, which is one step.
constexpr int holdMilliseconds = 500;
constexpr int repeatMilliseconds = 100;

} // namespace

StepButton::StepButton(QWidget* parent) : QPushButton(parent)
{
    setAutoRepeat(true);
    setAutoRepeatDelay(holdMilliseconds);
    setAutoRepeatInterval(repeatMilliseconds);
    setAutoDefault(false);
    // A click comes behind its release; one of a button that is still down is a repeat.
    connect(this, &QPushButton::clicked, this, [this] { m_repeated = m_repeated || isDown(); });
}

void StepButton::mousePressEvent(QMouseEvent* event)
{
    m_repeated = false;
    QPushButton::mousePressEvent(event);
}

void StepButton::mouseReleaseEvent(QMouseEvent* event)
{
    endRepeats();
    QPushButton::mouseReleaseEvent(event);
}

void StepButton::keyPressEvent(QKeyEvent* event)
{
    const auto isHandled = [this](auto signal) { return isSignalConnected(QMetaMethod::fromSignal(signal)); };
    if (event->key() == Qt::Key_Plus && isHandled(&StepButton::plusPressed)) {
        Q_EMIT plusPressed();
    } else if (event->key() == Qt::Key_Minus && isHandled(&StepButton::minusPressed)) {
        Q_EMIT minusPressed();
    } else {
        m_repeated = m_repeated && event->isAutoRepeat();
        QPushButton::keyPressEvent(event);
    }
}

void StepButton::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
        endRepeats();
    }
    QPushButton::keyReleaseEvent(event);
}

// A button that is up when it is released is not clicked.
void StepButton::endRepeats()
{
    if (m_repeated) {
        setDown(false);
    }
}

QSize StepButton::sizeHint() const
{
    const int text = fontMetrics().horizontalAdvance(this->text());
    return {std::max(smallestWidth, text + 2 * sideMargin), QPushButton::sizeHint().height()};
}

} // namespace torvane
