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

TEST(Percent, IsShownInFullAndUnrounded)
{
    EXPECT_EQ(percentShown(u"2"_s, 3), u"66.6666666666667 %"_s);
    EXPECT_EQ(percentShown(u"2000"_s, 2000), u"100 %"_s);
    EXPECT_EQ(percentShown(u"37.5"_s, 75), u"50 %"_s);
    EXPECT_EQ(percentShown(u"1"_s, 1000), u"0.1 %"_s);
    EXPECT_EQ(percentShown(u"300"_s, 200), u"150 %"_s);
    EXPECT_EQ(percentShown(u"-5"_s, 100), u"-5 %"_s);
    EXPECT_EQ(percentShown(u"INVALID"_s, 100), u"0 %"_s);
    EXPECT_EQ(percentShown(u"many"_s, 100), u"0 %"_s);
    EXPECT_EQ(percentShown(u"1E20"_s, 1), u"1E+22 %"_s);
}

TEST(Percent, OfAMaximumOfZeroIsZero)
{
    EXPECT_EQ(percentShown(u"500"_s, 0), u"0 %"_s);
    EXPECT_EQ(amountOf(u"80 %"_s, 0), u"0"_s);
}

TEST(Percent, OfTheMaximumIsStoredInItsShortestForm)
{
    EXPECT_EQ(amountOf(u"100 %"_s, 2000), u"2000"_s);
    EXPECT_EQ(amountOf(u"33 %"_s, 2000), u"660"_s);
    EXPECT_EQ(amountOf(u"50 %"_s, 75), u"37.5"_s);
    EXPECT_EQ(amountOf(u"75 %"_s, 120), u"90"_s);
    EXPECT_EQ(amountOf(u"66.6666666666667 %"_s, 3), u"2"_s);
    EXPECT_EQ(amountOf(u"-5 %"_s, 100), u"-5"_s);
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

TEST(PercentStepper, GoesRoundBetween0And100)
{
    EXPECT_EQ(steppedPercent(u"99 %"_s, Step::Up), u"100 %"_s);
    EXPECT_EQ(steppedPercent(u"100 %"_s, Step::Up), u"0 %"_s);
    EXPECT_EQ(steppedPercent(u"0 %"_s, Step::Up), u"1 %"_s);
    EXPECT_EQ(steppedPercent(u"1 %"_s, Step::Down), u"0 %"_s);
    EXPECT_EQ(steppedPercent(u"0 %"_s, Step::Down), u"100 %"_s);
    EXPECT_EQ(steppedPercent(u"100 %"_s, Step::Down), u"99 %"_s);
}

TEST(PercentStepper, TakesTheFirstThreeCharactersRounded)
{
    EXPECT_EQ(steppedPercent(u"66.6666666666667 %"_s, Step::Up), u"67 %"_s);
    EXPECT_EQ(steppedPercent(u"66.6666666666667 %"_s, Step::Down), u"65 %"_s);
    EXPECT_EQ(steppedPercent(u"0.7 %"_s, Step::Up), u"2 %"_s);
    EXPECT_EQ(steppedPercent(u"0.5 %"_s, Step::Up), u"1 %"_s);
    EXPECT_EQ(steppedPercent(u"1234 %"_s, Step::Up), u"0 %"_s);
    EXPECT_EQ(steppedPercent(u"1234 %"_s, Step::Down), u"122 %"_s);
    EXPECT_EQ(steppedPercent(u"-20 %"_s, Step::Up), u"-19 %"_s);
    EXPECT_EQ(steppedPercent(u"-20 %"_s, Step::Down), u"100 %"_s);
    EXPECT_EQ(steppedPercent(u"100"_s, Step::Down), u"99 %"_s);
    EXPECT_EQ(steppedPercent(u"INVALID"_s, Step::Up), u"1 %"_s);
    EXPECT_EQ(steppedPercent(QString(), Step::Down), u"100 %"_s);
}

TEST(Share, OfABarStaysBetween0And1)
{
    EXPECT_DOUBLE_EQ(shareShown(u"66.5 %"_s, 100), 0.665);
    EXPECT_DOUBLE_EQ(shareShown(u"150 %"_s, 100), 1);
    EXPECT_DOUBLE_EQ(shareShown(u"-5 %"_s, 100), 0);
    EXPECT_DOUBLE_EQ(shareShown(u"INVALID"_s, 10), 0);
    EXPECT_DOUBLE_EQ(shareShown(u"1E999"_s, 10), 1);
}

TEST(FireLevel, GoesRoundBetween0And10)
{
    EXPECT_EQ(steppedFireLevel(u"9"_s, Step::Up), u"10"_s);
    EXPECT_EQ(steppedFireLevel(u"10"_s, Step::Up), u"0"_s);
    EXPECT_EQ(steppedFireLevel(u"11"_s, Step::Up), u"0"_s);
    EXPECT_EQ(steppedFireLevel(u"1"_s, Step::Down), u"0"_s);
    EXPECT_EQ(steppedFireLevel(u"0"_s, Step::Down), u"10"_s);
    EXPECT_EQ(steppedFireLevel(u"-3"_s, Step::Down), u"10"_s);
    EXPECT_EQ(steppedFireLevel(u"INVALID"_s, Step::Up), u"1"_s);
}

} // namespace
} // namespace torvane::testing
