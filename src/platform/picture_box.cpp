#include "platform/picture_box.h"

#include "platform/circle_arcs.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>

#include <algorithm>
#include <climits>
#include <cmath>

namespace torvane {

namespace {

/// Circles up to this radius are quickly drawn whole, wherever the picture ends.
constexpr double smallRadius = 100;
/// Where a circle goes over from one pixel a column to one pixel a row: half way down its first quarter.
constexpr double diagonal = 0.70710678118654752;
/// From a pixel's corner to its middle, where a screen of more than one dot a pixel has a line run.
constexpr QPointF middle(0.5, 0.5);
/// Beyond the picture, so that no end of an arc shows at its edge.
constexpr double margin = 8;

// Whole numbers of 32 bits, anywhere: their distances are reckoned in doubles, which hold them all.
QRectF boundsOf(QPoint centre, double radius)
{
    return {centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius};
}

bool overlap(const QRectF& bounds, const QRectF& area)
{
    return bounds.left() <= area.right() && bounds.right() >= area.left() && bounds.top() <= area.bottom() &&
           bounds.bottom() >= area.top();
}

/// Pixels of a circle, one in each column where it is flat and one in each row where it is steep, as the
/// drawing library chooses them; but only the columns and rows of the picture are walked.
class CirclePixels
{
public:
    CirclePixels(QImage& image, QPoint centre, double radius, QRgb colour)
        : m_pixels(reinterpret_cast<QRgb*>(image.bits())),
          m_rowLength(image.bytesPerLine() / qsizetype{sizeof(QRgb)}),
          m_width(image.width()),
          m_height(image.height()),
          m_x(centre.x()),
          m_y(centre.y()),
          m_radius(static_cast<qint64>(radius)),
          m_colour(colour)
    {
    }

    void plot()
    {
        qint64 flat = std::max<qint64>(0, static_cast<qint64>(static_cast<double>(m_radius) * diagonal) - 2);
        while (across(flat) > flat + 1) {
            ++flat;
        }
        const qint64 steep = across(flat) - 1;
        const qint64 lastX = std::min(m_width - 1, m_x + flat);
        for (qint64 x = std::max<qint64>(0, m_x - flat); x <= lastX; ++x) {
            const qint64 up = across(x - m_x);
            put(x, m_y - up);
            put(x, m_y + up);
        }
        const qint64 lastY = std::min(m_height - 1, m_y + steep);
        for (qint64 y = std::max<qint64>(0, m_y - steep); y <= lastY; ++y) {
            const qint64 aside = across(y - m_y);
            put(m_x - aside, y);
            put(m_x + aside, y);
        }
    }

private:
    /// The other coordinate, to the nearest whole number.
    qint64 across(qint64 offset) const
    {
        const auto square = static_cast<double>(m_radius * m_radius - offset * offset);
        return std::llround(std::sqrt(square));
    }
    void put(qint64 x, qint64 y)
    {
        if (x >= 0 && x < m_width && y >= 0 && y < m_height) {
            m_pixels[y * m_rowLength + x] = m_colour;
        }
    }

    QRgb* m_pixels;
    qsizetype m_rowLength;
    qint64 m_width;
    qint64 m_height;
    qint64 m_x;
    qint64 m_y;
    qint64 m_radius;
    QRgb m_colour;
};

} // namespace

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

bool PictureBox::isDense() const
{
    return m_image.devicePixelRatio() != 1;
}

// A pixel reaches from its own edge to that of the next, each rounded to the screen: so whatever is drawn on
// one pixel meets, and between two there is no gap.
void PictureBox::fillPixels(QPainter& painter, QPoint from, QPoint to)
{
    const qreal ratio = m_image.devicePixelRatio();
    const auto edge = [ratio](double pixel) { return std::round(pixel * ratio); };
    const QPointF first(edge(std::min(from.x(), to.x())), edge(std::min(from.y(), to.y())));
    const QPointF last(edge(std::max(from.x(), to.x()) + 1.0), edge(std::max(from.y(), to.y()) + 1.0));
    const QRectF seen = QRectF(first, last) & QRectF(m_image.rect());
    painter.fillRect(QRectF(seen.topLeft() / ratio, seen.size() / ratio), m_foreColor);
}

void PictureBox::line(QPoint from, QPoint to)
{
    draw([&](QPainter& painter) {
        if (from.x() == to.x() || from.y() == to.y()) {
            fillPixels(painter, from, to);
        } else {
            const QPointF shift = isDense() ? middle : QPointF();
            painter.drawLine(from + shift, to + shift);
        }
    });
}

void PictureBox::box(QPoint from, QPoint to)
{
    draw([&](QPainter& painter) {
        for (const QPoint corner : {QPoint(from.x(), to.y()), QPoint(to.x(), from.y())}) {
            fillPixels(painter, from, corner);
            fillPixels(painter, corner, to);
        }
    });
}

void PictureBox::filledBox(QPoint from, QPoint to)
{
    draw([&](QPainter& painter) { fillPixels(painter, from, to); });
}

void PictureBox::circle(QPoint centre, int radius)
{
    const double size = std::abs(static_cast<double>(radius));
    const QRectF bounds = boundsOf(centre, size);
    const QRectF area =
        QRectF({}, m_image.deviceIndependentSize()).adjusted(-margin, -margin, margin, margin);
    if (!overlap(bounds, area)) {
        return;
    }
    draw([&](QPainter& painter) {
        if (!isDense()) {
            CirclePixels(m_image, centre, size, m_foreColor.rgb()).plot();
        } else if (radius == 0) {
            fillPixels(painter, centre, centre);
        } else if (size <= smallRadius || area.contains(bounds)) {
            painter.drawEllipse(centre + middle, size, size);
        } else {
            // The drawing library takes time for all of a circle, seen or not, and can't take large ones.
            for (const Curve& curve : visibleArcs(centre + middle, size, area)) {
                painter.drawPolyline(curve.data(), static_cast<int>(curve.size()));
            }
        }
    });
}

void PictureBox::print(const QString& text)
{
    const QFontMetrics metrics(font());
    const int lineHeight = metrics.height();
    const QPoint at = m_current;
    m_current = QPoint(0, static_cast<int>(std::min<qint64>(qint64{at.y()} + lineHeight, INT_MAX)));
    // A glyph may reach a little out of its line's box.
    const QRectF area =
        QRectF({}, m_image.deviceIndependentSize()).adjusted(0, -2.0 * lineHeight, lineHeight, lineHeight);
    if (at.y() < area.top() || at.y() > area.bottom() || at.x() > area.right()) {
        return;
    }
    draw([&](QPainter& painter) {
        painter.setFont(font());
        painter.drawText(at + QPoint(0, metrics.ascent()), text);
    });
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

bool PictureBox::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    bool screenChanged = event->type() == QEvent::ScreenChangeInternal;
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    screenChanged = screenChanged || event->type() == QEvent::DevicePixelRatioChange;
#endif
    if (screenChanged && devicePixelRatioF() != m_image.devicePixelRatio()) {
        growImage(size());
        update();
        Q_EMIT densityChanged();
    }
    return handled;
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
