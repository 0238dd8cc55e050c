#include "platform/picture_box.h"
#include "support/input.h"

#include <QPainter>

#include <gmock/gmock.h>

#include <cmath>

namespace torvane::testing {
namespace {

/// A picture on a screen of whatever density the tests run at.
class DensePicture : public ::testing::Test
{
protected:
    DensePicture()
    {
        box.resize(300, 200);
        box.setBackColor(Qt::white);
        box.show();
        settle();
    }

    double density() const { return box.image().devicePixelRatio(); }
    bool isInked(int x, int y) const { return box.image().pixelColor(x, y) != QColor(Qt::white); }

    /// Ink on all dots of the pixels that there should be, and on no other.
    template <typename Wanted>
    void expectPixels(Wanted wanted) const
    {
        for (int y = 0; y < box.image().height(); ++y) {
            for (int x = 0; x < box.image().width(); ++x) {
                ASSERT_EQ(isInked(x, y), wanted(x / 2, y / 2)) << "dot " << x << ", " << y;
            }
        }
    }

    PictureBox box;
};

TEST_F(DensePicture, HasThePixelsOfTheScreen)
{
    EXPECT_EQ(box.image().width(), std::lround(300 * density()));
    EXPECT_EQ(density(), 2.0);
}

TEST_F(DensePicture, APixelIsAllItsDotsForLineBoxAndFillAlike)
{
    const QPoint from(10, 20);
    const QPoint to(14, 23);
    const auto isEdge = [&](int x, int y) {
        return x == from.x() || x == to.x() || y == from.y() || y == to.y();
    };
    const auto isInside = [&](int x, int y) {
        return x >= from.x() && x <= to.x() && y >= from.y() && y <= to.y();
    };
    box.filledBox(from, to);
    expectPixels(isInside);
    box.clear();
    box.box(to, from);
    expectPixels([&](int x, int y) { return isInside(x, y) && isEdge(x, y); });
    box.clear();
    box.line({10, 20}, {14, 20});
    expectPixels([](int x, int y) { return x >= 10 && x <= 14 && y == 20; });
    box.clear();
    box.line({14, 23}, {14, 20});
    expectPixels([](int x, int y) { return x == 14 && y >= 20 && y <= 23; });
    box.clear();
    box.circle({14, 20}, 0);
    expectPixels([](int x, int y) { return x == 14 && y == 20; });
}

TEST_F(DensePicture, ALinePartlyOutsideIsAsOneWithin)
{
    box.line({-2000000000, 20}, {2000000000, 20});
    expectPixels([](int /*x*/, int y) { return y == 20; });
    box.clear();
    box.box({-5, 20}, {2000000000, 2000000000});
    expectPixels([](int /*x*/, int y) { return y == 20; });
}

TEST_F(DensePicture, ASlantedLineRunsThroughTheMiddlesOfItsPixelsAndIsNotSmoothed)
{
    for (const QPoint to : {QPoint(110, 110), QPoint(110, 60), QPoint(40, 110), QPoint(110, -20)}) {
        box.clear();
        box.line({10, 10}, to);
        const QPointF along = QPointF(to) - QPointF(10, 10);
        const double length = std::hypot(along.x(), along.y());
        for (int y = 0; y < box.image().height(); ++y) {
            for (int x = 0; x < box.image().width(); ++x) {
                const QPointF dot((x + 0.5) / density() - 10.5, (y + 0.5) / density() - 10.5);
                const double aside = std::abs(dot.x() * along.y() - dot.y() * along.x()) / length;
                const double ahead = (dot.x() * along.x() + dot.y() * along.y()) / length;
                const bool beside = ahead > 0 && ahead < length;
                ASSERT_TRUE(!isInked(x, y) || box.image().pixelColor(x, y) == QColor(Qt::black));
                ASSERT_TRUE(!isInked(x, y) || (aside < 0.7 && ahead > -0.8 && ahead < length + 0.8))
                    << "ink at " << x << ", " << y;
                ASSERT_TRUE(isInked(x, y) || aside > 0.3 || !beside) << "no ink at " << x << ", " << y;
            }
        }
    }
}

TEST_F(DensePicture, ASmallCircleIsAsTheDrawingLibraryHasIt)
{
    for (int radius = 1; radius <= 100; ++radius) {
        box.clear();
        box.circle({270, 60}, radius);
        QImage expected(box.image().size(), QImage::Format_RGB32);
        expected.setDevicePixelRatio(density());
        expected.fill(Qt::white);
        QPainter(&expected).drawEllipse(QPointF(270.5, 60.5), radius, radius);
        ASSERT_EQ(box.image(), expected) << radius;
    }
}

TEST_F(DensePicture, OfALargeCircleThePartInThePictureIsDrawnAsThickAsASmallOne)
{
    for (const auto& [centre, radius] :
         {std::pair(QPoint(150, 100), 140), std::pair(QPoint(150, 100), -140),
          std::pair(QPoint(-500, 100), 650), std::pair(QPoint(150, 400000), 399900),
          std::pair(QPoint(-2000000000, 60), 2000000250)}) {
        box.clear();
        box.circle(centre, radius);
        int inked = 0;
        for (int y = 0; y < box.image().height(); ++y) {
            for (int x = 0; x < box.image().width(); ++x) {
                const double distance = std::abs(std::hypot((x + 0.5) / density() - (centre.x() + 0.5),
                                                            (y + 0.5) / density() - (centre.y() + 0.5)) -
                                                 std::abs(radius));
                if (isInked(x, y)) {
                    ++inked;
                    ASSERT_LT(distance, 0.8) << radius << " at " << x << ", " << y;
                } else {
                    ASSERT_GT(distance, 0.3) << radius << " at " << x << ", " << y;
                }
            }
        }
        EXPECT_GT(inked, 400) << radius;
    }
}

TEST_F(DensePicture, ACircleBesideThePictureLeavesNoInk)
{
    for (const auto& [centre, radius] : {std::pair(QPoint(150, 100), 400), std::pair(QPoint(-500, 100), 400),
                                         std::pair(QPoint(2000000000, -2000000000), 7)}) {
        box.circle(centre, radius);
        for (int y = 0; y < box.image().height(); ++y) {
            for (int x = 0; x < box.image().width(); ++x) {
                ASSERT_FALSE(isInked(x, y));
            }
        }
    }
}

} // namespace
} // namespace torvane::testing
