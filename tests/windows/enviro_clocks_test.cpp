#include "overview_fixture.h"

namespace torvane::testing {
namespace {

enum class Act { Click, Plus, Minus };

struct ClockCase
{
    const char* button;
    const char* clock;
    const char* from;
    Act act;
    const char* to;
};

const ClockCase clockCases[] = {
    {"cmdHours", "TxtStartTime", "12:30", Act::Click, "13:30"},
    {"cmdHours", "TxtStartTime", "23:30", Act::Click, "00:30"},
    {"cmdHours", "TxtStartTime", "08:30", Act::Plus, "09:30"},
    {"cmdHours", "TxtStartTime", "23:59", Act::Plus, "00:59"},
    {"cmdHours", "TxtStartTime", "12:30", Act::Minus, "11:30"},
    {"cmdHours", "TxtStartTime", "00:30", Act::Minus, "23:30"},
    {"cmdMinutes", "TxtStartTime", "12:08", Act::Click, "12:09"},
    {"cmdMinutes", "TxtStartTime", "12:59", Act::Click, "12:00"},
    {"cmdMinutes", "TxtStartTime", "12:30", Act::Plus, "12:31"},
    {"cmdMinutes", "TxtStartTime", "23:59", Act::Plus, "23:00"},
    {"cmdMinutes", "TxtStartTime", "12:30", Act::Minus, "12:29"},
    {"cmdMinutes", "TxtStartTime", "12:00", Act::Minus, "12:59"},
    {"cmdSunriseHour", "TxtSunrise", "06:30", Act::Click, "07:30"},
    {"cmdSunriseHour", "TxtSunrise", "10:30", Act::Click, "11:30"},
    {"cmdSunriseHour", "TxtSunrise", "11:30", Act::Click, "03:30"},
    {"cmdSunriseHour", "TxtSunrise", "09:30", Act::Plus, "10:30"},
    {"cmdSunriseHour", "TxtSunrise", "10:30", Act::Plus, "11:00"},
    {"cmdSunriseHour", "TxtSunrise", "11:00", Act::Plus, "03:00"},
    {"cmdSunriseHour", "TxtSunrise", "06:30", Act::Minus, "05:30"},
    {"cmdSunriseHour", "TxtSunrise", "03:30", Act::Minus, "11:00"},
    {"cmdSunriseMin", "TxtSunrise", "06:59", Act::Click, "06:00"},
    {"cmdSunriseMin", "TxtSunrise", "11:00", Act::Click, "11:01"},
    {"cmdSunriseMin", "TxtSunrise", "06:30", Act::Plus, "06:31"},
    {"cmdSunriseMin", "TxtSunrise", "06:59", Act::Plus, "06:00"},
    {"cmdSunriseMin", "TxtSunrise", "11:30", Act::Plus, "11:00"},
    {"cmdSunriseMin", "TxtSunrise", "06:30", Act::Minus, "06:29"},
    {"cmdSunriseMin", "TxtSunrise", "06:00", Act::Minus, "06:59"},
    {"cmdSunriseMin", "TxtSunrise", "11:30", Act::Minus, "11:00"},
    {"cmdSunsetHour", "TxtSunset", "19:30", Act::Click, "20:30"},
    {"cmdSunsetHour", "TxtSunset", "22:30", Act::Click, "23:30"},
    {"cmdSunsetHour", "TxtSunset", "23:30", Act::Click, "13:30"},
    {"cmdSunsetHour", "TxtSunset", "21:30", Act::Plus, "22:30"},
    {"cmdSunsetHour", "TxtSunset", "22:30", Act::Plus, "23:00"},
    {"cmdSunsetHour", "TxtSunset", "23:00", Act::Plus, "13:00"},
    {"cmdSunsetHour", "TxtSunset", "19:30", Act::Minus, "18:30"},
    {"cmdSunsetHour", "TxtSunset", "13:30", Act::Minus, "23:00"},
    {"cmdSunsetMin", "TxtSunset", "19:30", Act::Click, "19:31"},
    {"cmdSunsetMin", "TxtSunset", "19:59", Act::Click, "19:00"},
    {"cmdSunsetMin", "TxtSunset", "23:00", Act::Click, "13:01"},
    {"cmdSunsetMin", "TxtSunset", "23:59", Act::Click, "13:00"},
    {"cmdSunsetMin", "TxtSunset", "19:59", Act::Plus, "19:00"},
    {"cmdSunsetMin", "TxtSunset", "23:30", Act::Plus, "23:00"},
    {"cmdSunsetMin", "TxtSunset", "19:00", Act::Minus, "19:59"},
    {"cmdSunsetMin", "TxtSunset", "23:30", Act::Minus, "23:00"},
};

class EnvironmentClocks : public Dialogs
{
protected:
    /// Opens the environment dialog with one clock stored otherwise.
    void openAt(const char* key, const char* time)
    {
        store(key, time);
        openEnvironment();
    }
    void expectDay(bool day)
    {
        EXPECT_EQ(envLabel("imgDay")->isVisible(), day);
        EXPECT_EQ(envLabel("imgNight")->isVisible(), !day);
        EXPECT_EQ(valueOf(main().chkDayNight), day ? 1 : 0);
    }
};

TEST_F(EnvironmentClocks, EveryButtonStepsByClickAndByKeyUpToItsLimits)
{
    openNew();
    for (const ClockCase& step : clockCases) {
        store("START_TIME", "12:30");
        store("SUNRISE", "06:30");
        store("SUNSET", "19:30");
        const QByteArray key = QByteArray(step.clock) == "TxtStartTime" ? "START_TIME"
                               : QByteArray(step.clock) == "TxtSunrise" ? "SUNRISE"
                                                                        : "SUNSET";
        openAt(key.constData(), step.from);
        ASSERT_EQ(envLabel(step.clock)->text(), QLatin1StringView(step.from));
        switch (step.act) {
        case Act::Click:
            click(envButton(step.button));
            break;
        case Act::Plus:
            press(envButton(step.button), Qt::Key_Plus);
            break;
        case Act::Minus:
            press(envButton(step.button), Qt::Key_Minus);
            break;
        }
        EXPECT_EQ(envLabel(step.clock)->text(), QLatin1StringView(step.to))
            << step.button << " from " << step.from;
        cancelEnvironment();
    }
}

TEST_F(EnvironmentClocks, TheKeyPadCountsTooAndOtherKeysDoNot)
{
    openNew();
    openEnvironment();
    press(envButton("cmdHours"), Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_EQ(envLabel("TxtStartTime")->text(), QStringLiteral("13:30"));
    press(envButton("cmdHours"), Qt::Key_Minus, Qt::KeypadModifier);
    press(envButton("cmdHours"), Qt::Key_Plus, Qt::ShiftModifier);
    EXPECT_EQ(envLabel("TxtStartTime")->text(), QStringLiteral("13:30"));
    press(envButton("cmdHours"), Qt::Key_X);
    EXPECT_EQ(envLabel("TxtStartTime")->text(), QStringLiteral("13:30"));
    press(envButton("cmdHours"), Qt::Key_Space);
    EXPECT_EQ(envLabel("TxtStartTime")->text(), QStringLiteral("14:30")) << "the space bar is a click";
}

TEST_F(EnvironmentClocks, AHeldMinuteButtonRepeats)
{
    openNew();
    openEnvironment();
    QTest::mousePress(envButton("cmdMinutes"), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return envLabel("TxtStartTime")->text().right(2).toInt() >= 34; }));
    QTest::mouseRelease(envButton("cmdMinutes"), Qt::LeftButton);
    EXPECT_EQ(envLabel("TxtStartTime")->text().left(3), QStringLiteral("12:"));
}

TEST_F(EnvironmentClocks, DayAndNightMeetAtTheMinutesOfSunriseAndSunset)
{
    openNew();
    openAt("START_TIME", "06:29");
    expectDay(false);
    click(envButton("cmdMinutes"));
    expectDay(true);
    cancelEnvironment();
    openAt("START_TIME", "19:29");
    expectDay(true);
    click(envButton("cmdMinutes"));
    expectDay(false);
}

TEST_F(EnvironmentClocks, SunriseAndSunsetChangeDayAndNightToo)
{
    openNew();
    openAt("START_TIME", "06:45");
    expectDay(true);
    click(envButton("cmdSunriseHour"));
    expectDay(false);
    press(envButton("cmdSunriseHour"), Qt::Key_Minus);
    expectDay(true);
    cancelEnvironment();
    openAt("START_TIME", "19:15");
    expectDay(true);
    press(envButton("cmdSunsetHour"), Qt::Key_Minus);
    expectDay(false);
}

TEST_F(EnvironmentClocks, NightfallAt100LowersVisibilityTo40AndDaybreakAt10RaisesIt)
{
    openNew();
    openAt("START_TIME", "19:29");
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("100 %"));
    click(envButton("cmdMinutes"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("40 %"));
    cancelEnvironment();
    store("VISIBILITY", "10");
    openAt("START_TIME", "06:29");
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("10 %"));
    click(envButton("cmdMinutes"));
    EXPECT_EQ(envBox("TxtVis")->text(), QStringLiteral("40 %"));
}

TEST_F(EnvironmentClocks, TheMapsDayFollowsACancelledEditUntilTheNextLoad)
{
    openNew();
    openAt("START_TIME", "19:29");
    click(envButton("cmdMinutes"));
    cancelEnvironment();
    EXPECT_EQ(valueOf(main().chkDayNight), 0) << "the edit was cancelled, the sign stays";
    openEnvironment();
    expectDay(true);
    click(envButton("cmdMinutes"));
    cancelEnvironment();
    saveOverview();
    EXPECT_EQ(stored("START_TIME"), QStringLiteral("19:29"));
    EXPECT_EQ(valueOf(main().chkDayNight), 1) << "the overview's save loads what it writes";
}

TEST_F(EnvironmentClocks, ACancelledOverviewLeavesTheMapsDayUntilTheNextLoad)
{
    openNew();
    saveOverview();
    store("START_TIME", "19:29");
    reopenOverview();
    openEnvironment();
    click(envButton("cmdMinutes"));
    cancelEnvironment();
    click(button("CmdCancel"));
    EXPECT_EQ(valueOf(main().chkDayNight), 0);
    reopenOverview();
    EXPECT_EQ(valueOf(main().chkDayNight), 1);
}

class EnvironmentGameLength : public Dialogs
{
protected:
    void SetUp() override { openNew(); }
    void openWith(const char* caption, const char* hour, const char* minutes)
    {
        store("GAMELENGTH", caption);
        store("GAMELENGTH_HOUR", hour);
        store("GAMELENGTH_MINUTE", minutes);
        openEnvironment();
    }
    QString shown()
    {
        return envLabel("lblGmLenHour")->text() + u':' + envLabel("lblGmLenMin")->text() + u' ' +
               envLabel("TxtGameLen")->text();
    }
};

struct LengthCase
{
    const char* caption;
    const char* hour;
    const char* minutes;
    const char* button;
    const char* shown;
};

TEST_F(EnvironmentGameLength, EveryRuleOfTheTwoButtons)
{
    const LengthCase cases[] = {
        {"2:00", "2", "00", "cmdGameLenHours", "3:00 3.00"},
        {"2.75", "2", "45", "cmdGameLenHours", "3:30 3.50"},
        {"3.25", "3", "15", "cmdGameLenHours", "0:30 0.50"},
        {"3.00", "3", "00", "cmdGameLenHours", "0:30 0.50"},
        {"3.50", "3", "30", "cmdGameLenHours", "0:30 0.50"},
        {"0.75", "0", "45", "cmdGameLenHours", "1:45 1.75"},
        {"2:00", "2", "00", "cmdGameLenMin", "2:15 2.25"},
        {"0.50", "0", "30", "cmdGameLenMin", "0:45 0.75"},
        {"0.75", "0", "45", "cmdGameLenMin", "0:30 0.50"},
        {"1.75", "1", "45", "cmdGameLenMin", "1:00 1.00"},
        {"3.50", "3", "30", "cmdGameLenMin", "3:00 3.00"},
        {"3.25", "3", "15", "cmdGameLenMin", "3:30 3.50"},
    };
    for (const LengthCase& row : cases) {
        openWith(row.caption, row.hour, row.minutes);
        click(envButton(row.button));
        EXPECT_EQ(shown(), QLatin1StringView(row.shown)) << row.caption << " " << row.button;
        cancelEnvironment();
    }
}

TEST_F(EnvironmentGameLength, ThreeFifteenAndAnHourIsStoredAsHalfAnHour)
{
    openWith("3.25", "3", "15");
    click(envButton("cmdGameLenHours"));
    acceptEnvironment();
    EXPECT_EQ(stored("GAMELENGTH"), QStringLiteral("0.50"));
    EXPECT_EQ(stored("GAMELENGTH_HOUR"), QStringLiteral("0"));
    EXPECT_EQ(stored("GAMELENGTH_MINUTE"), QStringLiteral("30"));
}

} // namespace
} // namespace torvane::testing
