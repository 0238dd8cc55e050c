#include "platform/picture_box.h"

#include "support/input.h"

#include <gmock/gmock.h>

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

} // namespace
} // namespace torvane::testing
