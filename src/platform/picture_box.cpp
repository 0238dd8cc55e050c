#include "platform/picture_box.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace torvane {

// Both corners belong to the box, whichever way round they are.
static QRect boxOf(QPoint from, QPoint to)
{
    return {QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
            QPoint(std::max(from.x(), to.x()), std::max(from.y(), to.y()))};
}

PictureBox::PictureBox(QWidget* parent) : QWidget(parent), m_backColor(palette().color(QPalette::Window))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    growImage(size());
}

void PictureBox::setBackColor(const QColor& color)
{
    m_backColor = color;
    clear();
}

void PictureBox::clear()
{
    m_image.fill(m_backColor);
    m_current = QPoint(0, 0);
    update();
}

PictureBox::Batch::Batch(PictureBox& picture) : m_picture(picture)
{
    m_picture.m_painter.emplace(&m_picture.m_image);
}

PictureBox::Batch::~Batch()
{
    m_picture.m_painter.reset();
    m_picture.update();
}

template <typename Drawing>
void PictureBox::draw(Drawing drawing)
{
    if (m_painter) {
        m_painter->setPen(m_foreColor);
        drawing(*m_painter);
        return;
    }
    QPainter painter(&m_image);
    painter.setPen(m_foreColor);
    drawing(painter);
    update();
}

void PictureBox::line(QPoint from, QPoint to)
{
    draw([&](QPainter& painter) { painter.drawLine(from, to); });
}

void PictureBox::box(QPoint from, QPoint to)
{
    draw([&](QPainter& painter) { painter.drawRect(boxOf(from, to).adjusted(0, 0, -1, -1)); });
}

void PictureBox::filledBox(QPoint from, QPoint to)
{
    draw([&](QPainter& painter) { painter.fillRect(boxOf(from, to), m_foreColor); });
}

void PictureBox::circle(QPoint centre, int radius)
{
    draw([&](QPainter& painter) {
        if (radius == 0) {
            painter.drawPoint(centre);
        } else {
            painter.drawEllipse(centre, radius, radius);
        }
    });
}

void PictureBox::print(const QString& text)
{
    const QFontMetrics metrics(font());
    draw([&](QPainter& painter) {
        painter.setFont(font());
        painter.drawText(m_current + QPoint(0, metrics.ascent()), text);
    });
    m_current = QPoint(0, m_current.y() + metrics.height());
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(QPoint(0, 0), m_image);
}

void PictureBox::resizeEvent(QResizeEvent* event)
{
    growImage(event->size());
}

void PictureBox::growImage(QSize size)
{
    const qreal ratio = devicePixelRatioF();
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(m_backColor);
    if (!m_image.isNull()) {
        QPainter painter(&image);
        painter.drawImage(QPoint(0, 0), m_image);
    }
    m_image = image;
}

} // namespace torvane
