#include "platform/svg_picture.h"

#include <QPainter>
#include <QSvgRenderer>

namespace torvane {

QPixmap svgPicture(const QString& resource, QSize size, qreal density)
{
    QSvgRenderer drawing(resource);
    if (!drawing.isValid()) {
        return {};
    }
    QPixmap picture((QSizeF(size) * density).toSize());
    picture.setDevicePixelRatio(density);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter, QRectF(QPointF(), size));
    return picture;
}

} // namespace torvane
