#include "platform/number_text_fixture.h"

namespace torvane::testing {
namespace {

TEST(NumberValue, ReadsPlainNumbers)
{
    EXPECT_EQ(numberValue(u"0"), 0.0);
    EXPECT_EQ(numberValue(u"12"), 12.0);
    EXPECT_EQ(numberValue(u"-12.25"), -12.25);
    EXPECT_EQ(numberValue(u"007"), 7.0);
    EXPECT_EQ(numberValue(u"0.1"), 0.1);
    EXPECT_EQ(numberValue(u"123456789012345678"), 123456789012345678.0);
}

TEST(NumberValue, SkipsLeadingBlanks)
{
    EXPECT_EQ(numberValue(u"   42"), 42.0);
}

TEST(NumberValue, IgnoresBlanksInside)
{
    EXPECT_EQ(numberValue(u"1 2 3"), 123.0);
    EXPECT_EQ(numberValue(u"- 1 . 5 e 2 "), -150.0);
}

TEST(NumberValue, IgnoresTabsAndLineBreaks)
{
    EXPECT_EQ(numberValue(u"\t1\n2\r\n3\t"), 123.0);
}

TEST(NumberValue, OtherSpacesEndTheNumber)
{
    EXPECT_EQ(numberValue(u"1\u00A02"), 1.0);
    EXPECT_EQ(numberValue(u"1\v2"), 1.0);
}

TEST(NumberValue, TakesOneSign)
{
    EXPECT_EQ(numberValue(u"+5"), 5.0);
    EXPECT_EQ(numberValue(u"-5"), -5.0);
    EXPECT_EQ(numberValue(u"+-5"), 0.0);
    EXPECT_EQ(numberValue(u"--5"), 0.0);
}

TEST(NumberValue, ASignOrAPointAloneIsZero)
{
    EXPECT_EQ(numberValue(u"-"), 0.0);
    EXPECT_EQ(numberValue(u"+"), 0.0);
    EXPECT_EQ(numberValue(u"."), 0.0);
    EXPECT_EQ(numberValue(u"-.e5"), 0.0);
}

TEST(NumberValue, ThePointMayStandFirstOrLast)
{
    EXPECT_EQ(numberValue(u".5"), 0.5);
    EXPECT_EQ(numberValue(u"-.5"), -0.5);
    EXPECT_EQ(numberValue(u"5."), 5.0);
    EXPECT_EQ(numberValue(u"5.e1"), 50.0);
}

TEST(NumberValue, ASecondPointEndsIt)
{
    EXPECT_EQ(numberValue(u"1.2.3"), 1.2);
    EXPECT_EQ(numberValue(u"1..5"), 1.0);
}

TEST(NumberValue, TakesAnExponentWithEOrD)
{
    EXPECT_EQ(numberValue(u"1e3"), 1000.0);
    EXPECT_EQ(numberValue(u"1E3"), 1000.0);
    EXPECT_EQ(numberValue(u"1D2"), 100.0);
    EXPECT_EQ(numberValue(u"1d2"), 100.0);
    EXPECT_EQ(numberValue(u"15e-1"), 1.5);
    EXPECT_EQ(numberValue(u"1e+2"), 100.0);
    EXPECT_EQ(numberValue(u"1e1.5"), 10.0);
}

TEST(NumberValue, AnExponentWithoutDigitsIsNone)
{
    EXPECT_EQ(numberValue(u"1e"), 1.0);
    EXPECT_EQ(numberValue(u"1e+"), 1.0);
    EXPECT_EQ(numberValue(u"2ex"), 2.0);
}

TEST(NumberValue, StopsAtTheFirstCharacterThatIsNoNumber)
{
    EXPECT_EQ(numberValue(u"12abc"), 12.0);
    EXPECT_EQ(numberValue(u"10%"), 10.0);
    EXPECT_EQ(numberValue(u"1,5"), 1.0);
    EXPECT_EQ(numberValue(u"3-4"), 3.0);
}

TEST(NumberValue, WhatIsNoNumberIsZero)
{
    EXPECT_EQ(numberValue(u"INVALID"), 0.0);
    EXPECT_EQ(numberValue(u""), 0.0);
    EXPECT_EQ(numberValue(u"   "), 0.0);
    EXPECT_EQ(numberValue(u"&H10"), 0.0);
    EXPECT_EQ(numberValue(u"e5"), 0.0);
    EXPECT_EQ(numberValue(u"inf"), 0.0);
    EXPECT_EQ(numberValue(u"nan"), 0.0);
}

TEST(NumberValue, HexadecimalIsNotRead)
{
    EXPECT_EQ(numberValue(u"0x10"), 0.0);
}

TEST(NumberValue, DigitsOfOtherScriptsAreNoDigits)
{
    EXPECT_EQ(numberValue(u"\u0661\u0662"), 0.0);
    EXPECT_EQ(numberValue(u"1\u0662"), 1.0);
    EXPECT_EQ(numberValue(u"\uFF11"), 0.0);
}

TEST(NumberValue, AZeroHasNoSign)
{
    EXPECT_FALSE(std::signbit(numberValue(u"-0")));
    EXPECT_FALSE(std::signbit(numberValue(u"-")));
    EXPECT_FALSE(std::signbit(numberValue(u"-1e-400")));
}

TEST(NumberValue, FourHundredDigitsOverflow)
{
    expectOverflowNaming([] { return numberValue(QString(400, u'9')); }, "9999999999...");
}

TEST(NumberValue, ATooLargeExponentOverflows)
{
    expectOverflowNaming([] { return numberValue(u"1e400"); }, "1e400");
    expectOverflowNaming([] { return numberValue(u"-1e400"); }, "-1e400");
    expectOverflowNaming([] { return numberValue(u"1e309"); }, "1e309");
    expectOverflowNaming([] { return numberValue(u"1e99999999999999999999999999"); }, "1e9999999");
}

TEST(NumberValue, ATooSmallNumberIsZero)
{
    EXPECT_EQ(numberValue(u"1e-400"), 0.0);
    EXPECT_EQ(numberValue(u"1e-99999999999999999999999999"), 0.0);
    EXPECT_EQ(numberValue(QStringLiteral("0.") + QString(400, u'0') + u'1'), 0.0);
    EXPECT_EQ(numberValue(u"123456e-400"), 0.0);
}

TEST(NumberValue, ZeroNeverOverflows)
{
    EXPECT_EQ(numberValue(u"0e400"), 0.0);
    EXPECT_EQ(numberValue(u"0.000e99999999999999999999"), 0.0);
    EXPECT_EQ(numberValue(QString(400, u'0')), 0.0);
}

TEST(NumberValue, LengthAloneIsNoOverflow)
{
    EXPECT_EQ(numberValue(QString(400, u'0') + u'5'), 5.0);
    EXPECT_EQ(numberValue(QStringLiteral("1.") + QString(1000, u'0')), 1.0);
    EXPECT_EQ(numberValue(QString(400, u'1') + QStringLiteral("e-400")), 0.1111111111111111111111);
    EXPECT_EQ(numberValue(QStringLiteral("0.") + QString(400, u'0') + QStringLiteral("1e401")), 1.0);
}

TEST(NumberValue, TheLimitsOfADoubleAreRead)
{
    EXPECT_EQ(numberValue(u"1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(numberValue(u"4.9406564584124654e-324"), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(numberValue(u"1e-310"), 1e-310);
}

TEST(NumberValue, NeverDependsOnALocale)
{
    const GermanLocale german;
    EXPECT_EQ(numberValue(u"1.5"), 1.5);
    EXPECT_EQ(numberValue(u"1,5"), 1.0);
    EXPECT_EQ(numberValue(u"1.000.5"), 1.0);
}

} // namespace
} // namespace torvane::testing
