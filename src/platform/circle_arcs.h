#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

namespace torvane {

/// Points along a part of a curve, to be joined by straight lines.
using Curve = std::vector<QPointF>;

/// The parts of a circle that lie in an area, each a curve that leaves the circle by less than a
/// twentieth of a unit. Takes a circle of any size anywhere: the work depends on what lies in the area.
/// Nothing for a circle that does not cross it.
std::vector<Curve> visibleArcs(QPointF centre, double radius, const QRectF& area);

} // namespace torvane
