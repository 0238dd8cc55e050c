#include "platform/picture_button.h"

#include <QEnterEvent>
#include <QPainter>

namespace torvane {

namespace {

// Raised: a light ground. Pressed in: a darker one in the colour of the sea, with a dark edge at its top
// left.
const QColor raisedTop(250, 250, 250);
const QColor raisedBottom(226, 229, 232);
const QColor pressedGround(158, 205, 235);
const QColor edge(118, 128, 138);
const QColor pressedEdge(24, 84, 132);
const QColor shade(0, 0, 0, 70);
const QColor glow(255, 255, 255, 110);

} // namespace

PictureButton::PictureButton(QWidget* parent) : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
}

QSize PictureButton::sizeHint() const
{
    return iconSize();
}

void PictureButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const bool pressed = isChecked() || isDown();
    QLinearGradient ground(0, 0, 0, height());
    ground.setColorAt(0, raisedTop);
    ground.setColorAt(1, raisedBottom);
    painter.fillRect(rect(), pressed ? QBrush(pressedGround) : QBrush(ground));
    if (underMouse() && !pressed) {
        painter.fillRect(rect(), glow);
    }
    if (pressed) {
        painter.fillRect(0, 0, width(), 2, shade);
        painter.fillRect(0, 2, 2, height() - 2, shade);
    }
    painter.setPen(pressed ? pressedEdge : edge);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const int shift = pressed && width() > 20 ? 1 : 0;
    icon().paint(&painter, rect().adjusted(1 + shift, 1 + shift, -1 + shift, -1 + shift));
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(rect().adjusted(3, 3, -4, -4));
    }
}

void PictureButton::enterEvent(QEnterEvent*)
{
    update();
}

void PictureButton::leaveEvent(QEvent*)
{
    update();
}

} // namespace torvane
