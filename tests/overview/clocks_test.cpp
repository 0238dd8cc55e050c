#include "overview/environment_rules.h"
#include "support/printers.h"

#include <gtest/gtest.h>

namespace torvane {

void PrintTo(const ClockTime& time, std::ostream* stream)
{
    *stream << clockCaption(time).toStdString();
}

namespace {

using Button = ClockButton;
using Step = ClockStep;

// A little model of the six buttons, on texts of its own and row by row.

ClockTime startHours(int h, int m, Step step)
{
    if (step == Step::MinusKey) {
        h -= 1;
        return {h < 0 ? 23 : h, m};
    }
    h += 1;
    return {h == 24 ? 0 : h, m};
}

ClockTime startMinutes(int h, int m, Step step)
{
    if (step == Step::MinusKey) {
        m -= 1;
        return {h, m < 0 ? 59 : m};
    }
    m += 1;
    return {h, m == 60 ? 0 : m};
}

ClockTime sunriseHour(int h, int m, Step step)
{
    switch (step) {
    case Step::Click:
        h += 1;
        return {h >= 12 ? 3 : h, m};
    case Step::PlusKey:
        h += 1;
        if (h == 11) {
            return {11, 0};
        }
        if (h >= 12) {
            return {3, 0};
        }
        return {h, m};
    case Step::MinusKey:
        h -= 1;
        if (h < 3) {
            return {11, 0};
        }
        return {h, m};
    }
    return {-1, -1};
}

ClockTime sunriseMinutes(int h, int m, Step step)
{
    switch (step) {
    case Step::Click:
        m += 1;
        return {h, m == 60 ? 0 : m};
    case Step::PlusKey:
        m += 1;
        if (m == 60 || h == 11) {
            m = 0;
        }
        return {h, m};
    case Step::MinusKey:
        m -= 1;
        if (h == 11) {
            m = 0;
        } else if (m < 0) {
            m = 59;
        }
        return {h, m};
    }
    return {-1, -1};
}

ClockTime sunsetHour(int h, int m, Step step)
{
    switch (step) {
    case Step::Click:
        h += 1;
        return {h >= 24 ? 13 : h, m};
    case Step::PlusKey:
        h += 1;
        if (h == 23) {
            return {23, 0};
        }
        if (h >= 24) {
            return {13, 0};
        }
        return {h, m};
    case Step::MinusKey:
        h -= 1;
        if (h < 13) {
            return {23, 0};
        }
        return {h, m};
    }
    return {-1, -1};
}

ClockTime sunsetMinutes(int h, int m, Step step)
{
    switch (step) {
    case Step::Click:
        m += 1;
        if (h >= 23 && m >= 1) {
            h = 13;
        }
        if (m == 60) {
            m = 0;
        }
        return {h, m};
    case Step::PlusKey:
        m += 1;
        if (m == 60 || h == 23) {
            m = 0;
        }
        return {h, m};
    case Step::MinusKey:
        m -= 1;
        if (h == 23) {
            m = 0;
        } else if (m < 0) {
            m = 59;
        }
        return {h, m};
    }
    return {-1, -1};
}

using Model = ClockTime (*)(int, int, Step);

void walk(Button button, Model model)
{
    for (const Step step : {Step::Click, Step::PlusKey, Step::MinusKey}) {
        for (int h = 0; h < 24; ++h) {
            for (int m = 0; m < 60; ++m) {
                ASSERT_EQ(steppedClock({h, m}, button, step), model(h, m, step))
                    << "from " << h << ':' << m << " step " << static_cast<int>(step);
            }
        }
    }
}

TEST(Clocks, TheStartHourStepsThroughTheDayFromEveryTime)
{
    walk(Button::StartHours, startHours);
}
TEST(Clocks, TheStartMinuteStepsThroughTheHourFromEveryTime)
{
    walk(Button::StartMinutes, startMinutes);
}
TEST(Clocks, TheSunriseHourStepsAsItsRowSaysFromEveryTime)
{
    walk(Button::SunriseHour, sunriseHour);
}
TEST(Clocks, TheSunriseMinuteStepsAsItsRowSaysFromEveryTime)
{
    walk(Button::SunriseMinutes, sunriseMinutes);
}
TEST(Clocks, TheSunsetHourStepsAsItsRowSaysFromEveryTime)
{
    walk(Button::SunsetHour, sunsetHour);
}
TEST(Clocks, TheSunsetMinuteStepsAsItsRowSaysFromEveryTime)
{
    walk(Button::SunsetMinutes, sunsetMinutes);
}

TEST(Clocks, TheStartWrapsAtMidnight)
{
    EXPECT_EQ(steppedClock({23, 15}, Button::StartHours, Step::Click), (ClockTime{0, 15}));
    EXPECT_EQ(steppedClock({0, 15}, Button::StartHours, Step::MinusKey), (ClockTime{23, 15}));
    EXPECT_EQ(steppedClock({12, 59}, Button::StartMinutes, Step::PlusKey), (ClockTime{12, 0}));
    EXPECT_EQ(steppedClock({12, 0}, Button::StartMinutes, Step::MinusKey), (ClockTime{12, 59}));
}

TEST(Clocks, AClickOnTheHourLeavesTheMinutesOfTheLastHourAlone)
{
    EXPECT_EQ(steppedClock({10, 30}, Button::SunriseHour, Step::Click), (ClockTime{11, 30}));
    EXPECT_EQ(steppedClock({22, 30}, Button::SunsetHour, Step::Click), (ClockTime{23, 30}));
}

TEST(Clocks, ByKeysTheLatestSunriseIs11AndTheLatestSunset23)
{
    EXPECT_EQ(steppedClock({10, 30}, Button::SunriseHour, Step::PlusKey), (ClockTime{11, 0}));
    EXPECT_EQ(steppedClock({22, 30}, Button::SunsetHour, Step::PlusKey), (ClockTime{23, 0}));
    EXPECT_EQ(steppedClock({11, 30}, Button::SunriseMinutes, Step::PlusKey), (ClockTime{11, 0}));
    EXPECT_EQ(steppedClock({23, 30}, Button::SunsetMinutes, Step::MinusKey), (ClockTime{23, 0}));
    EXPECT_EQ(steppedClock({3, 30}, Button::SunriseHour, Step::MinusKey), (ClockTime{11, 0}));
    EXPECT_EQ(steppedClock({13, 30}, Button::SunsetHour, Step::MinusKey), (ClockTime{23, 0}));
}

TEST(Clocks, AClickOnTheMinuteIsFreeAt11ButJumpsTo13At23)
{
    EXPECT_EQ(steppedClock({11, 30}, Button::SunriseMinutes, Step::Click), (ClockTime{11, 31}));
    EXPECT_EQ(steppedClock({23, 30}, Button::SunsetMinutes, Step::Click), (ClockTime{13, 31}));
    EXPECT_EQ(steppedClock({23, 0}, Button::SunsetMinutes, Step::Click), (ClockTime{13, 1}));
    EXPECT_EQ(steppedClock({23, 59}, Button::SunsetMinutes, Step::Click), (ClockTime{13, 0}));
    EXPECT_EQ(steppedClock({22, 59}, Button::SunsetMinutes, Step::Click), (ClockTime{22, 0}));
}

TEST(ClockCaption, IsTwoDigitsAColonAndTwoDigitsForEveryTime)
{
    EXPECT_EQ(clockCaption({6, 5}), QStringLiteral("06:05"));
    EXPECT_EQ(clockCaption({0, 0}), QStringLiteral("00:00"));
    for (int h = 0; h < 24; ++h) {
        for (int m = 0; m < 60; ++m) {
            const QString caption = QString::asprintf("%02d:%02d", h, m);
            ASSERT_EQ(clockCaption({h, m}), caption);
            ASSERT_EQ(clockTimeOf(caption), (ClockTime{h, m}));
        }
    }
}

TEST(ClockCaption, ADamagedCaptionGivesWhatNumbersItHoldsAndStillSteps)
{
    EXPECT_EQ(clockTimeOf(u"INVALID"), (ClockTime{0, 0}));
    EXPECT_EQ(clockTimeOf(u""), (ClockTime{0, 0}));
    EXPECT_EQ(clockTimeOf(u"7"), (ClockTime{7, 7}));
    EXPECT_EQ(clockTimeOf(u"-5:-7"), (ClockTime{0, 0}));
    EXPECT_EQ(clockTimeOf(QString(400, u'9')), (ClockTime{99, 99}));
    EXPECT_EQ(clockTimeOf(u"⚓⚓"), (ClockTime{0, 0}));
    EXPECT_EQ(steppedClock({99, 99}, Button::StartHours, Step::Click).hour, 0);
    EXPECT_EQ(steppedClock({99, 99}, Button::StartMinutes, Step::Click).minute, 0);
    EXPECT_EQ(steppedClock({99, 99}, Button::SunriseMinutes, Step::Click).minute, 0);
    EXPECT_EQ(steppedClock({99, 99}, Button::SunsetMinutes, Step::Click), (ClockTime{13, 0}));
    EXPECT_EQ(steppedClock({99, 99}, Button::SunsetMinutes, Step::PlusKey).minute, 0);
}

TEST(DayAndNight, TheSunriseMinuteIsTheFirstOfTheDay)
{
    EXPECT_FALSE(isDay({6, 29}, {6, 30}, {19, 30}));
    EXPECT_TRUE(isDay({6, 30}, {6, 30}, {19, 30}));
}

TEST(DayAndNight, TheSunsetMinuteIsTheFirstOfTheNight)
{
    EXPECT_TRUE(isDay({19, 29}, {6, 30}, {19, 30}));
    EXPECT_FALSE(isDay({19, 30}, {6, 30}, {19, 30}));
}

TEST(DayAndNight, EveryStartIsJudgedByTheMinutesOfTheDay)
{
    for (const ClockTime rise : {ClockTime{3, 0}, ClockTime{6, 30}, ClockTime{11, 59}}) {
        for (const ClockTime set : {ClockTime{13, 0}, ClockTime{19, 30}, ClockTime{23, 59}}) {
            for (int start = 0; start < 24 * 60; ++start) {
                const bool day = start >= rise.hour * 60 + rise.minute && start < set.hour * 60 + set.minute;
                ASSERT_EQ(isDay({start / 60, start % 60}, rise, set), day) << start;
            }
        }
    }
}

TEST(DayAndNight, AMorningIgnoresTheSunsetAndAnAfternoonTheSunrise)
{
    EXPECT_TRUE(isDay({11, 59}, {3, 0}, {5, 0}));
    EXPECT_TRUE(isDay({12, 0}, {15, 0}, {13, 0}));
}

} // namespace
} // namespace torvane
