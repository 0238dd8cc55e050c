#include "ship_state/damage.h"

#include "support/expect_error.h"
#include "support/printers.h"

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

TEST(Damage, ATickedBoxIsStoredAsMinusOneAndAnythingElseAsZero)
{
    EXPECT_EQ(damageFlag(1), "-1"_L1);
    EXPECT_EQ(damageFlag(0), "0"_L1);
    EXPECT_EQ(damageFlag(2), "0"_L1);
}

TEST(Damage, MinusOneAloneIsDestroyed)
{
    for (const char* destroyed : {"-1", " -1 ", "-1.0"}) {
        EXPECT_TRUE(isDestroyed(QString::fromLatin1(destroyed))) << destroyed;
    }
    for (const char* whole : {"0", "1", "-2", "INVALID", "", "300", "destroyed"}) {
        EXPECT_FALSE(isDestroyed(QString::fromLatin1(whole))) << whole;
    }
}

/// An amount of a maximum and its share in percent, as it is shown and read.
struct Share
{
    const char* amount;
    int maximum;
    const char* percent;
};

TEST(Percent, IsShownInFullAndUnrounded)
{
    for (const Share& share :
         {Share{"2", 3, "66.6666666666667 %"}, Share{"2000", 2000, "100 %"}, Share{"37.5", 75, "50 %"},
          Share{"1", 1000, "0.1 %"}, Share{"300", 200, "150 %"}, Share{"-5", 100, "-5 %"},
          Share{"INVALID", 100, "0 %"}, Share{"many", 100, "0 %"}, Share{"1E20", 1, "1E+22 %"}}) {
        EXPECT_EQ(percentShown(QString::fromLatin1(share.amount), share.maximum),
                  QLatin1StringView(share.percent));
    }
}

TEST(Percent, OfAMaximumOfZeroIsZero)
{
    EXPECT_EQ(percentShown(u"500"_s, 0), u"0 %"_s);
    EXPECT_EQ(amountOf(u"80 %"_s, 0), u"0"_s);
}

TEST(Percent, OfTheMaximumIsStoredInItsShortestForm)
{
    for (const Share& share :
         {Share{"2000", 2000, "100 %"}, Share{"660", 2000, "33 %"}, Share{"37.5", 75, "50 %"},
          Share{"90", 120, "75 %"}, Share{"2", 3, "66.6666666666667 %"}, Share{"-5", 100, "-5 %"}}) {
        EXPECT_EQ(amountOf(QString::fromLatin1(share.percent), share.maximum),
                  QLatin1StringView(share.amount));
    }
}

TEST(Percent, BeyondAllNumbersIsAnOverflowThatNamesTheValue)
{
    expectError(RuntimeError::Overflow, [] { percentShown(u"1E308"_s, 1); });
    expectError(RuntimeError::Overflow, [] { percentShown(u"1E999"_s, 100); });
    expectError(RuntimeError::Overflow, [] { amountOf(u"1E307 %"_s, 2000000000); });
    try {
        percentShown(u"1E308"_s, 1);
    } catch (const RuntimeError& error) {
        EXPECT_THAT(error.what(), ::testing::HasSubstr("1E308"));
    }
}

/// A value before and after one press of its stepper.
struct Press
{
    const char* before;
    Step step;
    const char* after;
};

TEST(PercentStepper, GoesRoundBetween0And100)
{
    for (const Press& press : {Press{"99 %", Step::Up, "100 %"}, Press{"100 %", Step::Up, "0 %"},
                               Press{"0 %", Step::Up, "1 %"}, Press{"1 %", Step::Down, "0 %"},
                               Press{"0 %", Step::Down, "100 %"}, Press{"100 %", Step::Down, "99 %"}}) {
        EXPECT_EQ(steppedPercent(QString::fromLatin1(press.before), press.step),
                  QLatin1StringView(press.after));
    }
}

TEST(PercentStepper, TakesTheFirstThreeCharactersRounded)
{
    for (const Press& press :
         {Press{"66.6666666666667 %", Step::Up, "67 %"}, Press{"66.6666666666667 %", Step::Down, "65 %"},
          Press{"0.7 %", Step::Up, "2 %"}, Press{"0.5 %", Step::Up, "1 %"}, Press{"1234 %", Step::Up, "0 %"},
          Press{"1234 %", Step::Down, "122 %"}, Press{"-20 %", Step::Up, "-19 %"},
          Press{"-20 %", Step::Down, "100 %"}, Press{"100", Step::Down, "99 %"},
          Press{"INVALID", Step::Up, "1 %"}, Press{"", Step::Down, "100 %"}}) {
        EXPECT_EQ(steppedPercent(QString::fromLatin1(press.before), press.step),
                  QLatin1StringView(press.after));
    }
}

TEST(BarShare, StaysBetween0And1)
{
    EXPECT_DOUBLE_EQ(shareShown(u"66.5 %"_s, 100), 0.665);
    EXPECT_DOUBLE_EQ(shareShown(u"150 %"_s, 100), 1);
    EXPECT_DOUBLE_EQ(shareShown(u"-5 %"_s, 100), 0);
    EXPECT_DOUBLE_EQ(shareShown(u"INVALID"_s, 10), 0);
    EXPECT_DOUBLE_EQ(shareShown(u"1E999"_s, 10), 1);
    EXPECT_DOUBLE_EQ(shareShown(u" -1E999"_s, 10), 0);
}

TEST(FireLevel, GoesRoundBetween0And10)
{
    for (const Press& press :
         {Press{"9", Step::Up, "10"}, Press{"10", Step::Up, "0"}, Press{"11", Step::Up, "0"},
          Press{"1", Step::Down, "0"}, Press{"0", Step::Down, "10"}, Press{"-3", Step::Down, "10"},
          Press{"INVALID", Step::Up, "1"}}) {
        EXPECT_EQ(steppedFireLevel(QString::fromLatin1(press.before), press.step),
                  QLatin1StringView(press.after));
    }
}

} // namespace
} // namespace torvane::testing
