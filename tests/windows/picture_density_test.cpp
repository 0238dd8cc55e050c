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

    PictureBox box;
};

TEST_F(DensePicture, HasThePixelsOfTheScreen)
{
    EXPECT_EQ(box.image().width(), std::lround(300 * density()));
    EXPECT_EQ(density(), 2.0);
}

TEST_F(DensePicture, ASmallCircleIsAsTheDrawingLibraryHasIt)
{
    for (int radius = 1; radius <= 100; ++radius) {
        box.clear();
        box.circle({270, 60}, radius);
        QImage expected(box.image().size(), QImage::Format_RGB32);
        expected.setDevicePixelRatio(density());
        expected.fill(Qt::white);
        QPainter(&expected).drawEllipse(QPoint(270, 60), radius, radius);
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
                const double distance = std::abs(
                    std::hypot((x + 0.5) / density() - centre.x(), (y + 0.5) / density() - centre.y()) -
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
