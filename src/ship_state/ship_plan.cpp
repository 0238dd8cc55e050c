#include "ship_state/ship_plan.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace torvane {

namespace {

constexpr double beam = 0.74; // of the length, wide for a ship: the controls stand inside
constexpr double bowLength = 0.4;
constexpr double sternLength = 0.16;
constexpr double transom = 0.5; // of the beam
constexpr int deckShade = 105;  // percent of the window's darkness

QPainterPath hull(const QRectF& plan)
{
    const double middle = plan.center().x();
    const double length = plan.height();
    const double side = std::min(plan.width(), length * beam) / 2;
    const double stern = side * transom;
    const double shoulder = plan.top() + length * bowLength;
    const double quarter = plan.bottom() - length * sternLength;
    QPainterPath path(QPointF(middle, plan.top()));
    path.cubicTo(middle + side * 0.7, plan.top() + length * 0.12, middle + side, shoulder - length * 0.12,
                 middle + side, shoulder);
    path.lineTo(middle + side, quarter);
    path.quadTo(middle + side, plan.bottom(), middle + stern, plan.bottom());
    path.lineTo(middle - stern, plan.bottom());
    path.quadTo(middle - side, plan.bottom(), middle - side, quarter);
    path.lineTo(middle - side, shoulder);
    path.cubicTo(middle - side, shoulder - length * 0.12, middle - side * 0.7, plan.top() + length * 0.12,
                 middle, plan.top());
    return path;
}

} // namespace

void ShipPlan::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1.5));
    painter.setBrush(palette().color(QPalette::Window).darker(deckShade));
    painter.drawPath(hull(QRectF(rect()).adjusted(1, 1, -1, -1)));
}

} // namespace torvane
