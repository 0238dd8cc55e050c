#include "shell/progress_panel.h"

#include <QProgressBar>
#include <QWidget>

#include <gtest/gtest.h>

namespace torvane::testing {
namespace {

class Progress : public ::testing::Test
{
protected:
    void advanceTo(int value)
    {
        panel.show(QStringLiteral("Work"), QRect(0, 0, 400, 200));
        for (int i = 0; i < value / 10; ++i) {
            panel.advanceProgress();
        }
        ASSERT_EQ(bar()->value(), value);
    }
    QProgressBar* bar() { return window.findChild<QProgressBar*>(QStringLiteral("prgbarLoad")); }

    QWidget window;
    ProgressPanel panel{&window};
};

TEST_F(Progress, IsFilledUpToTheEndFromFartherThanOneStepAway)
{
    advanceTo(9980);
    panel.fillProgress();
    EXPECT_EQ(bar()->value(), 10000);
}

TEST_F(Progress, StaysOneStepBeforeTheEnd)
{
    advanceTo(9990);
    panel.fillProgress();
    EXPECT_EQ(bar()->value(), 9990);
}

TEST_F(Progress, DoesNotAdvanceBeyondTheEnd)
{
    advanceTo(10000);
    panel.advanceProgress();
    EXPECT_EQ(bar()->value(), 10000);
}

} // namespace
} // namespace torvane::testing
