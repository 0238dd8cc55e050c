#include "divisions/heading_compass.h"

#include "platform/picture_box.h"

#include <QPainter>

namespace torvane {

namespace {

// An odd size has a pixel in its middle.
constexpr int pictureSize = 121;
constexpr int ringWidth = 24;
constexpr int tickStep = 10;
constexpr int longTickStep = 30;
constexpr int letterStep = 90;
constexpr double letterSize = 10; // points

const QColor cardColor(18, 42, 78);
const QColor inkColor(236, 240, 246);
const QColor northColor(255, 208, 96);

} // namespace

HeadingCompass::HeadingCompass(QWidget* parent) : QWidget(parent), m_picture(new PictureBox(this))
{
    constexpr int size = pictureSize + 2 * ringWidth;
    setFixedSize(size, size);
    m_picture->setObjectName(QStringLiteral("PicMap"));
    m_picture->setGeometry(ringWidth, ringWidth, pictureSize, pictureSize);
    m_picture->setMask(QRegion(m_picture->rect(), QRegion::Ellipse));
    m_picture->setBackColor(cardColor);
    m_picture->setForeColor(northColor);
}

void HeadingCompass::setLetters(const QStringList& letters)
{
    m_letters = letters;
    update();
}

void HeadingCompass::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(cardColor);
    painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.translate(width() / 2.0, height() / 2.0);
    QFont letterFont = font();
    letterFont.setPointSizeF(letterSize);
    letterFont.setBold(true);
    painter.setFont(letterFont);
    const double outer = width() / 2.0 - 3;
    for (int degrees = 0; degrees < 360; degrees += tickStep) {
        painter.save();
        painter.rotate(degrees);
        if (degrees % letterStep == 0) {
            painter.setPen(degrees == 0 ? northColor : inkColor);
            painter.translate(0, -(outer - ringWidth / 2.0 + 2));
            painter.rotate(-degrees);
            painter.drawText(QRectF(-12, -12, 24, 24), Qt::AlignCenter,
                             m_letters.value(degrees / letterStep));
        } else {
            const double length = degrees % longTickStep == 0 ? 9 : 5;
            painter.setPen(QPen(inkColor, degrees % longTickStep == 0 ? 1.6 : 1));
            painter.drawLine(QPointF(0, -outer), QPointF(0, -outer + length));
        }
        painter.restore();
    }
}

} // namespace torvane
