#include "platform/circle_arcs.h"

#include <gmock/gmock.h>

#include <cmath>

namespace torvane::testing {
namespace {

const QRectF area(0, 0, 400, 300);

std::size_t pointsOf(const std::vector<Curve>& arcs)
{
    std::size_t points = 0;
    for (const Curve& arc : arcs) {
        points += arc.size();
    }
    return points;
}

TEST(VisibleArcs, OfACircleInTheAreaAreTheWholeOfIt)
{
    const std::vector<Curve> arcs = visibleArcs({200, 150}, 100, area);
    ASSERT_EQ(arcs.size(), 1U);
    EXPECT_NEAR(arcs.front().front().x(), 300, 1e-9);
    EXPECT_NEAR(arcs.front().back().x(), 300, 1e-9);
    EXPECT_GT(arcs.front().size(), 60U);
}

TEST(VisibleArcs, OfACircleAcrossEachEdgeAreFour)
{
    EXPECT_EQ(visibleArcs({200, 150}, 220, area).size(), 4U) << "each corner holds one";
    EXPECT_EQ(visibleArcs({200, 150}, 180, area).size(), 2U) << "left and right";
    EXPECT_EQ(visibleArcs({-500, 150}, 600, area).size(), 1U);
}

TEST(VisibleArcs, OfACircleRoundTheAreaOrBesideItAreNone)
{
    EXPECT_TRUE(visibleArcs({200, 150}, 300, area).empty());
    EXPECT_TRUE(visibleArcs({200, 150}, 4e9, area).empty());
    EXPECT_TRUE(visibleArcs({-500, 150}, 300, area).empty());
    EXPECT_TRUE(visibleArcs({4e9, -4e9}, 100, area).empty());
}

TEST(VisibleArcs, EndAtTheEdgesAndStayOnTheCircle)
{
    for (const double radius : {700.0, 5000.0, 1e6, 2e9}) {
        const QPointF centre(250 - radius, 120);
        const std::vector<Curve> arcs = visibleArcs(centre, radius, area);
        ASSERT_EQ(arcs.size(), 1U) << radius;
        const Curve& arc = arcs.front();
        for (std::size_t i = 0; i < arc.size(); ++i) {
            EXPECT_TRUE(area.adjusted(-1, -1, 1, 1).contains(arc[i])) << radius;
            EXPECT_NEAR(std::hypot(arc[i].x() - centre.x(), arc[i].y() - centre.y()), radius, 1e-3);
            if (i > 0) {
                const QPointF middle = (arc[i] + arc[i - 1]) / 2;
                EXPECT_NEAR(std::hypot(middle.x() - centre.x(), middle.y() - centre.y()), radius, 0.05);
            }
        }
        EXPECT_NEAR(std::abs(arc.front().y() - arc.back().y()), 300, 1) << "from edge to edge";
    }
}

TEST(VisibleArcs, TakeFewerPointsTheLargerTheCircle)
{
    std::size_t before = pointsOf(visibleArcs({250 - 200, 120}, 200, area));
    for (double radius = 400; radius < 4e9; radius *= 2) {
        const std::size_t points = pointsOf(visibleArcs({250 - radius, 120}, radius, area));
        EXPECT_LE(points, before) << radius;
        before = points;
    }
    EXPECT_EQ(before, 2U) << "in the end a line";
}

} // namespace
} // namespace torvane::testing
