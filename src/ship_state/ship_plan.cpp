#include "ship_state/ship_plan.h"

#include <QPainter>
#include <QPainterPath>

namespace torvane {

namespace {

// Of the plan's width and height.
constexpr double beam = 0.62;
constexpr double bowLength = 0.34;
constexpr double sternLength = 0.12;
constexpr double sternBeam = 0.34;
constexpr int deckShade = 104; // percent of the window's lightness

QPainterPath hull(const QRectF& plan)
{
    const double middle = plan.center().x();
    const double side = plan.width() * beam / 2;
    const double transom = plan.width() * sternBeam / 2;
    const double shoulder = plan.top() + plan.height() * bowLength;
    const double quarter = plan.bottom() - plan.height() * sternLength;
    QPainterPath path(QPointF(middle, plan.top()));
    path.cubicTo(middle + side * 0.55, plan.top() + plan.height() * 0.1, middle + side,
                 shoulder - plan.height() * 0.1, middle + side, shoulder);
    path.lineTo(middle + side, quarter);
    path.quadTo(middle + side, plan.bottom(), middle + transom, plan.bottom());
    path.lineTo(middle - transom, plan.bottom());
    path.quadTo(middle - side, plan.bottom(), middle - side, quarter);
    path.lineTo(middle - side, shoulder);
    path.cubicTo(middle - side, shoulder - plan.height() * 0.1, middle - side * 0.55,
                 plan.top() + plan.height() * 0.1, middle, plan.top());
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
