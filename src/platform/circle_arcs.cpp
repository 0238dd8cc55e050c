#include "platform/circle_arcs.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace torvane {

namespace {

constexpr double fullTurn = 2 * std::numbers::pi;
/// How far the middle of a straight piece may lie from the circle.
constexpr double tolerance = 0.03;

QPointF pointAt(QPointF centre, double radius, double angle)
{
    return centre + radius * QPointF(std::cos(angle), std::sin(angle));
}

/// Where the circle meets the lines along the area's edges, as angles from 0 to a full turn, in order.
std::vector<double> crossings(QPointF centre, double radius, const QRectF& area)
{
    std::vector<double> angles;
    const auto add = [&angles](double angle) { angles.push_back(angle < 0 ? angle + fullTurn : angle); };
    for (const double x : {area.left(), area.right()}) {
        const double cosine = (x - centre.x()) / radius;
        if (std::abs(cosine) <= 1) {
            add(std::acos(cosine));
            add(-std::acos(cosine));
        }
    }
    for (const double y : {area.top(), area.bottom()}) {
        const double sine = (y - centre.y()) / radius;
        if (std::abs(sine) <= 1) {
            add(std::asin(sine));
            add(std::numbers::pi - std::asin(sine));
        }
    }
    std::ranges::sort(angles);
    return angles;
}

Curve arc(QPointF centre, double radius, double from, double to)
{
    const double longestStep = std::sqrt(8 * tolerance / radius);
    const double steps = std::max(1.0, std::ceil((to - from) / longestStep));
    Curve points;
    points.reserve(static_cast<std::size_t>(steps) + 1);
    for (double step = 0; step <= steps; ++step) {
        points.push_back(pointAt(centre, radius, from + (to - from) * step / steps));
    }
    return points;
}

} // namespace

std::vector<Curve> visibleArcs(QPointF centre, double radius, const QRectF& area)
{
    std::vector<double> angles = crossings(centre, radius, area);
    if (angles.empty()) {
        angles.push_back(0);
    }
    angles.push_back(angles.front() + fullTurn);
    std::vector<Curve> arcs;
    for (std::size_t i = 1; i < angles.size(); ++i) {
        const double from = angles[i - 1];
        const double to = angles[i];
        // Between two crossings the circle stays on one side of each edge.
        if (to > from && area.contains(pointAt(centre, radius, (from + to) / 2))) {
            arcs.push_back(arc(centre, radius, from, to));
        }
    }
    return arcs;
}

} // namespace torvane
