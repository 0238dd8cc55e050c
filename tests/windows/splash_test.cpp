#include "shell/main_frm.h"
#include "shell/splash_frm.h"
#include "support/editor_fixture.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProgressBar>
#include <QTest>

namespace torvane::testing {
namespace {

class Splash : public EditorFixture
{
protected:
    frmSplash& splash() { return editor().splashFrm(); }
    QProgressBar* bar() { return control<QProgressBar>(splash(), QStringLiteral("ProgressBar1")); }
    QTimer* timer() { return control<QTimer>(splash(), QStringLiteral("Timer1")); }
};

TEST_F(Splash, ShowsFirstAndTheMainWindowIsHidden)
{
    start();
    EXPECT_TRUE(splash().isVisible());
    EXPECT_FALSE(editor().mainFrm().isVisible());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the load's hourglass is over";
    EXPECT_EQ(bar()->minimum(), 0);
    EXPECT_EQ(bar()->maximum(), 150);
    EXPECT_EQ(bar()->value(), 0);
}

TEST_F(Splash, TheTimerFiresEveryQuarterSecondAndEachTickAddsTen)
{
    start();
    EXPECT_EQ(timer()->interval(), 250);
    EXPECT_TRUE(timer()->isActive());
    ASSERT_TRUE(waitUntil([&] { return bar()->value() >= 10; }));
    EXPECT_EQ(bar()->value(), 10);
    ASSERT_TRUE(waitUntil([&] { return bar()->value() >= 20; }));
    EXPECT_EQ(bar()->value(), 20);
}

TEST_F(Splash, FifteenTicksEndIt)
{
    start();
    timer()->setInterval(1);
    int ticks = 0;
    QObject::connect(timer(), &QTimer::timeout, timer(), [&] { ++ticks; });
    ASSERT_TRUE(waitUntil([&] { return editor().mainFrm().isVisible(); }));
    EXPECT_EQ(ticks, 15);
    EXPECT_FALSE(splash().isVisible());
    EXPECT_FALSE(timer()->isActive());
    EXPECT_TRUE(editor().mainFrm().isInputEnabled());
}

TEST_F(Splash, ThatRunsOutWhileTheStartStillAsksWaitsForTheAnswer)
{
    bool shownTooEarly = false;
    script.messageBoxes.onShow = [&] {
        auto* running = editor().splashFrm().findChild<QTimer*>(QStringLiteral("Timer1"));
        for (int tick = 0; tick < 20; ++tick) {
            QMetaObject::invokeMethod(running, "timeout", Qt::DirectConnection);
        }
        shownTooEarly = editor().mainFrm().isVisible();
    };
    start(Language::German, 1);
    ASSERT_EQ(boxes().size(), 1) << "of the build for developers";
    EXPECT_FALSE(shownTooEarly);
    ASSERT_TRUE(waitUntil([&] { return editor().mainFrm().isVisible(); }));
}

TEST_F(Splash, AKeyShowsTheMainWindowAtOnceAndTheTimerDies)
{
    start();
    press(&splash(), Qt::Key_A);
    EXPECT_TRUE(editor().mainFrm().isVisible());
    EXPECT_FALSE(splash().isVisible());
    EXPECT_FALSE(timer()->isActive());
    const int value = bar()->value();
    QTest::qWait(300);
    EXPECT_EQ(bar()->value(), value) << "no further tick";
}

TEST_F(Splash, AClickShowsTheMainWindowAtOnce)
{
    start();
    click(&splash());
    EXPECT_TRUE(editor().mainFrm().isVisible());
    EXPECT_FALSE(splash().isVisible());
}

TEST_F(Splash, AClickOnItsTextCountsAsOneOnTheScreen)
{
    start();
    click(control<QLabel>(splash(), QStringLiteral("Label1")));
    EXPECT_TRUE(editor().mainFrm().isVisible());
}

TEST_F(Splash, ATickShowsTheHourglassAndTheEndTheNormalPointer)
{
    start();
    ASSERT_TRUE(waitUntil([&] { return bar()->value() >= 10; }));
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    press(&splash(), Qt::Key_A);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Splash, TextFollowsTheLanguage)
{
    start(Language::German);
    EXPECT_EQ(control<QLabel>(splash(), QStringLiteral("Label1"))->text(), QStringLiteral("Szenario-Editor"));
    start(Language::English);
    EXPECT_EQ(control<QLabel>(splash(), QStringLiteral("Label1"))->text(), QStringLiteral("SCENARIO EDITOR"));
}

TEST_F(Splash, CarriesTheUnusedPathControlsUnseen)
{
    start();
    EXPECT_FALSE(control<QLineEdit>(splash(), QStringLiteral("txtPath"))->isVisible());
    auto* label = control<QLabel>(splash(), QStringLiteral("Label2"));
    EXPECT_FALSE(label->isVisible());
    EXPECT_EQ(label->text(),
              QStringLiteral("Please enter the path to the executable file.  Hit any key to continue."));
}

} // namespace
} // namespace torvane::testing
