#include "platform/picture_box.h"

#include "support/input.h"

#include <QPainter>

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace torvane::testing {
namespace {

class Picture : public ::testing::Test
{
protected:
    Picture()
    {
        box.resize(60, 40);
        box.setBackColor(Qt::white);
        box.show();
        settle();
    }

    void growTo(QSize size)
    {
        box.resize(size);
        settle();
        box.clear();
        box.setForeColor(Qt::black);
    }
    bool isInked(int x, int y) const { return at(x, y) != QColor(Qt::white); }

    QColor at(int x, int y) const { return box.image().pixelColor(x, y); }
    int inked() const
    {
        int count = 0;
        for (int y = 0; y < box.image().height(); ++y) {
            for (int x = 0; x < box.image().width(); ++x) {
                count += at(x, y) == QColor(Qt::white) ? 0 : 1;
            }
        }
        return count;
    }

    PictureBox box;
};

TEST_F(Picture, ALineIsOnePixelWideWithBothEnds)
{
    box.setForeColor(Qt::red);
    box.line({10, 5}, {20, 5});
    EXPECT_EQ(at(10, 5), QColor(Qt::red));
    EXPECT_EQ(at(20, 5), QColor(Qt::red));
    EXPECT_EQ(inked(), 11);
}

TEST_F(Picture, ASlantedLineIsNotSmoothed)
{
    box.setForeColor(Qt::black);
    box.line({0, 0}, {30, 11});
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x) {
            EXPECT_TRUE(at(x, y) == QColor(Qt::white) || at(x, y) == QColor(Qt::black));
        }
    }
}

TEST_F(Picture, ABoxHasItsCornersWhicheverWayRound)
{
    for (const auto& [from, to] :
         {std::pair{QPoint(5, 5), QPoint(9, 8)}, std::pair{QPoint(9, 8), QPoint(5, 5)},
          std::pair{QPoint(5, 8), QPoint(9, 5)}}) {
        box.clear();
        box.setForeColor(Qt::blue);
        box.box(from, to);
        EXPECT_EQ(at(5, 5), QColor(Qt::blue));
        EXPECT_EQ(at(9, 8), QColor(Qt::blue));
        EXPECT_EQ(at(7, 6), QColor(Qt::white)) << "an outline is not filled";
        EXPECT_EQ(inked(), 2 * 5 + 2 * 2);
        box.filledBox(from, to);
        EXPECT_EQ(inked(), 5 * 4);
    }
}

TEST_F(Picture, ACircleHasItsRadiusAndRadiusZeroIsAPoint)
{
    box.setForeColor(Qt::green);
    box.circle({30, 20}, 10);
    EXPECT_EQ(at(40, 20), QColor(Qt::green));
    EXPECT_EQ(at(20, 20), QColor(Qt::green));
    EXPECT_EQ(at(30, 10), QColor(Qt::green));
    EXPECT_EQ(at(30, 30), QColor(Qt::green));
    EXPECT_EQ(at(30, 20), QColor(Qt::white));
    box.clear();
    box.circle({30, 20}, 0);
    EXPECT_EQ(at(30, 20), QColor(Qt::green));
    EXPECT_EQ(inked(), 1);
}

TEST_F(Picture, ACircleIsAsTheDrawingLibraryHasItAlsoAcrossTheEdge)
{
    growTo({300, 300});
    for (const QPoint centre :
         {QPoint(150, 150), QPoint(0, 290), QPoint(-20, 40), QPoint(310, -5), QPoint(150, -400)}) {
        for (int radius = 1; radius <= 600; ++radius) {
            box.clear();
            box.circle(centre, radius);
            QImage expected(box.image().size(), QImage::Format_RGB32);
            expected.setDevicePixelRatio(box.image().devicePixelRatio());
            expected.fill(Qt::white);
            QPainter(&expected).drawEllipse(centre, radius, radius);
            ASSERT_EQ(box.image(), expected) << radius;
        }
    }
}

struct LargeCircle
{
    QPoint centre;
    int radius;
};

/// Checks each pixel of the picture: ink lies on the circle, and wherever the circle goes from one side of a
/// pixel's row or column to the other there is ink.
void expectCircle(const QImage& image, const LargeCircle& circle)
{
    const auto distance = [&circle](int x, int y) {
        return std::hypot(static_cast<double>(x) - circle.centre.x(),
                          static_cast<double>(y) - circle.centre.y()) -
               std::abs(static_cast<double>(circle.radius));
    };
    const auto inked = [&image](int x, int y) { return image.pixelColor(x, y) != QColor(Qt::white); };
    for (int y = 1; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x) {
            const double off = distance(x, y);
            if (inked(x, y)) {
                ASSERT_LT(std::abs(off), 1.2) << x << ", " << y;
            }
            if (off * distance(x - 1, y) < 0) {
                ASSERT_TRUE(inked(x, y) || inked(x - 1, y) || inked(x, y - 1) || inked(x - 1, y - 1))
                    << "a gap in row " << y << " at " << x;
            }
            if (off * distance(x, y - 1) < 0) {
                ASSERT_TRUE(inked(x, y) || inked(x, y - 1) || inked(x - 1, y) || inked(x - 1, y - 1))
                    << "a gap in column " << x << " at " << y;
            }
        }
    }
}

TEST_F(Picture, OfALargeCircleThePartInThePictureIsDrawnWithoutAGap)
{
    growTo({300, 200});
    for (const LargeCircle& circle :
         {LargeCircle{{150, 100}, 101}, LargeCircle{{150, 100}, 160}, LargeCircle{{150, 100}, -170},
          LargeCircle{{-500, 100}, 600}, LargeCircle{{150, 700}, 599}, LargeCircle{{1000, -900}, 1300},
          LargeCircle{{-32700, 100}, 32760}, LargeCircle{{150, 400000}, 399950},
          LargeCircle{{-200000000, 60}, 200000250}, LargeCircle{{10, -2000000000}, 2000000100}}) {
        box.clear();
        box.circle(circle.centre, circle.radius);
        EXPECT_GT(inked(), 20) << circle.radius;
        expectCircle(box.image(), circle);
    }
}

TEST_F(Picture, ACircleThatPassesThePictureByLeavesNoInk)
{
    growTo({300, 200});
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    for (const LargeCircle& circle :
         {LargeCircle{{150, 100}, 400}, LargeCircle{{150, 100}, largest}, LargeCircle{{150, 100}, smallest},
          LargeCircle{{largest, largest}, 7}, LargeCircle{{smallest, smallest}, 7},
          LargeCircle{{largest, smallest}, 0}, LargeCircle{{-500, 100}, 400}, LargeCircle{{150, 900}, 600},
          LargeCircle{{-600, -600}, 700}}) {
        box.circle(circle.centre, circle.radius);
        EXPECT_EQ(inked(), 0) << circle.centre.x() << ", " << circle.centre.y() << ": " << circle.radius;
    }
}

TEST_F(Picture, ALargeCircleTouchesTheEdgeItReaches)
{
    growTo({300, 200});
    box.circle({-1000, 100}, 1000);
    EXPECT_TRUE(isInked(0, 100));
    EXPECT_FALSE(isInked(1, 100));
}

TEST_F(Picture, TextOutOfThePictureMovesThePositionAndNothingElse)
{
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    const int height = QFontMetrics(box.font()).height();
    for (const QPoint at : {QPoint(10, largest), QPoint(largest, 10), QPoint(10, smallest)}) {
        box.setCurrent(at);
        box.print(QStringLiteral("BB"));
        EXPECT_EQ(inked(), 0);
        EXPECT_EQ(box.current().x(), 0);
        EXPECT_EQ(box.current().y(), at.y() == largest ? largest : at.y() + height);
    }
    box.setCurrent({-3, -height / 2});
    box.print(QStringLiteral("BB"));
    EXPECT_GT(inked(), 0) << "what reaches into the picture is shown";
}

TEST_F(Picture, TextStandsAtTheCurrentPositionAndGoesOnInTheNextLine)
{
    box.setForeColor(Qt::black);
    box.setCurrent({20, 10});
    box.print(QStringLiteral("|"));
    EXPECT_GT(inked(), 0);
    for (int x = 0; x < 20; ++x) {
        for (int y = 0; y < 40; ++y) {
            ASSERT_EQ(at(x, y), QColor(Qt::white));
        }
    }
    EXPECT_EQ(box.current().x(), 0);
    EXPECT_GT(box.current().y(), 10);
}

TEST_F(Picture, ClearFillsWithTheGroundAndGoesBackToTheTopLeft)
{
    box.setCurrent({20, 10});
    box.line({0, 0}, {50, 30});
    box.clear();
    EXPECT_EQ(inked(), 0);
    EXPECT_EQ(box.current(), QPoint(0, 0));
}

TEST_F(Picture, WhatWasDrawnStaysWhenCoveredAndShownAgain)
{
    box.setForeColor(Qt::red);
    box.line({10, 5}, {20, 5});
    box.hide();
    settle();
    box.show();
    settle();
    EXPECT_EQ(at(15, 5), QColor(Qt::red));
    EXPECT_EQ(box.grab().toImage().pixelColor(15, 5), QColor(Qt::red)) << "the widget shows its image";
}

TEST_F(Picture, GrowingKeepsWhatThereIsAndShowsGround)
{
    box.setForeColor(Qt::red);
    box.line({10, 5}, {20, 5});
    box.resize(100, 80);
    settle();
    EXPECT_EQ(box.image().size(), QSize(100, 80));
    EXPECT_EQ(at(15, 5), QColor(Qt::red));
    EXPECT_EQ(at(90, 70), QColor(Qt::white));
}

/// A picture that can be taken to a screen of another density.
class TravellingPicture : public PictureBox
{
public:
    void comeTo(double density)
    {
        m_density = density;
        QEvent arrival(QEvent::ScreenChangeInternal);
        QCoreApplication::sendEvent(this, &arrival);
    }

protected:
    int metric(PaintDeviceMetric which) const override
    {
        switch (which) {
        case PdmDevicePixelRatio:
            return static_cast<int>(std::ceil(m_density));
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(m_density * devicePixelRatioFScale());
        default:
            return PictureBox::metric(which);
        }
    }

private:
    double m_density = 1;
};

class TravellingPictures : public ::testing::Test
{
protected:
    TravellingPictures()
    {
        box.resize(60, 40);
        box.setBackColor(Qt::white);
        QObject::connect(&box, &PictureBox::densityChanged, [this] { ++changes; });
    }
    QColor at(int x, int y) const { return box.image().pixelColor(x, y); }

    TravellingPicture box;
    int changes = 0;
};

TEST_F(TravellingPictures, TakeTheDensityOfTheScreenTheyComeToAndKeepWhatIsDrawn)
{
    box.filledBox({10, 5}, {20, 9});
    box.comeTo(2);
    EXPECT_EQ(box.image().size(), QSize(120, 80));
    EXPECT_EQ(box.image().devicePixelRatio(), 2.0);
    EXPECT_EQ(at(20, 10), QColor(Qt::black)) << "enlarged until it is drawn anew";
    EXPECT_EQ(at(41, 19), QColor(Qt::black));
    EXPECT_EQ(at(16, 10), QColor(Qt::white));
    EXPECT_EQ(changes, 1);
    box.comeTo(1);
    EXPECT_EQ(box.image().size(), QSize(60, 40));
    EXPECT_EQ(at(15, 7), QColor(Qt::black));
    EXPECT_EQ(changes, 2);
}

TEST_F(TravellingPictures, AreLeftAloneByAScreenOfTheSameDensity)
{
    box.comeTo(1);
    EXPECT_EQ(changes, 0);
}

// A pixel is then one dot or two: whatever is drawn on it has to take the same.
TEST_F(TravellingPictures, AtOneDotAndAHalfLinesBoxesAndFillsMeet)
{
    box.comeTo(1.5);
    ASSERT_EQ(box.image().size(), QSize(90, 60));
    for (int i = 0; i < 20; ++i) {
        const QPoint from(i, i / 2);
        const QPoint to(i + 11, i / 2 + 7);
        box.clear();
        box.filledBox(from, to);
        const QImage filled = box.image();
        box.box(from, to);
        ASSERT_EQ(box.image(), filled) << "the outline lies on the fill, at " << i;
        box.clear();
        box.box(from, to);
        box.filledBox(from + QPoint(1, 1), to - QPoint(1, 1));
        ASSERT_EQ(box.image(), filled) << "and no dot is left between them, at " << i;
        box.clear();
        for (int y = from.y(); y <= to.y(); ++y) {
            box.line({from.x(), y}, {to.x(), y});
        }
        ASSERT_EQ(box.image(), filled) << "lines side by side, at " << i;
    }
}

} // namespace
} // namespace torvane::testing
