#include "platform/number_text.h"

#include "platform/runtime_error.h"
#include "support/printers.h"

#include <QLocale>

#include <gmock/gmock.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace torvane {
namespace {

using ::testing::HasSubstr;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

template <typename Call>
void expectOverflowNaming(Call call, const char* value)
{
    try {
        call();
        ADD_FAILURE() << "no overflow for " << value;
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::Overflow);
        EXPECT_THAT(error.what(), HasSubstr(value));
    }
}

/// Sets the German locale in Qt and, where it is installed, in the C library, and takes it back.
class GermanLocale
{
public:
    GermanLocale()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        std::setlocale(LC_ALL, "de_DE.UTF-8");
    }
    ~GermanLocale()
    {
        QLocale::setDefault(QLocale::c());
        std::setlocale(LC_ALL, "C");
    }
    GermanLocale(const GermanLocale&) = delete;
    GermanLocale& operator=(const GermanLocale&) = delete;
};

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

TEST(RoundEven, TiesGoToTheEvenNeighbour)
{
    const std::vector<std::pair<double, double>> cases{
        {0.5, 0},   {1.5, 2}, {2.5, 2}, {3.5, 4},   {-0.5, 0},  {-1.5, -2},
        {-2.5, -2}, {2.4, 2}, {2.6, 3}, {-2.6, -3}, {-2.4, -2}, {0.49999999999999994, 0}};
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(roundEven(value), rounded) << value;
    }
}

TEST(RoundEven, LargeNumbersStayAsTheyAre)
{
    EXPECT_EQ(roundEven(1e300), 1e300);
    EXPECT_EQ(roundEven(-infinity), -infinity);
}

TEST(FloorOf, GoesDownAlsoBelowZero)
{
    EXPECT_EQ(floorOf(2.9), 2.0);
    EXPECT_EQ(floorOf(-2.1), -3.0);
    EXPECT_EQ(floorOf(-2.0), -2.0);
    EXPECT_EQ(floorOf(1e300), 1e300);
}

TEST(ToInt16, RoundsTiesToEven)
{
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt16(3.5), 4);
    EXPECT_EQ(toInt16(-2.5), -2);
}

TEST(ToInt16, TakesWhatRoundsIntoItsRange)
{
    EXPECT_EQ(toInt16(-32768.5), -32768);
    EXPECT_EQ(toInt16(32767.49), 32767);
}

TEST(ToInt16, OverflowsBeyondItsRangeAndNamesTheValue)
{
    expectOverflowNaming([] { return toInt16(32767.5); }, "32767.5");
    expectOverflowNaming([] { return toInt16(-32768.51); }, "-32768.51");
    expectOverflowNaming([] { return toInt16(1e300); }, "1E+300");
}

TEST(ToInt16, WhatIsNoNumberOverflows)
{
    expectOverflowNaming([] { return toInt16(notANumber); }, "NaN");
    expectOverflowNaming([] { return toInt16(infinity); }, "Infinity");
    expectOverflowNaming([] { return toInt16(-infinity); }, "-Infinity");
}

TEST(ToInt32, RoundsTiesToEven)
{
    EXPECT_EQ(toInt32(70000.5), 70000);
    EXPECT_EQ(toInt32(70001.5), 70002);
}

TEST(ToInt32, TakesWhatRoundsIntoItsRange)
{
    EXPECT_EQ(toInt32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(toInt32(2147483647.25), std::numeric_limits<std::int32_t>::max());
}

TEST(ToInt32, OverflowsBeyondItsRangeAndNamesTheValue)
{
    expectOverflowNaming([] { return toInt32(2147483647.5); }, "2147483647.5");
    expectOverflowNaming([] { return toInt32(-2147483649.0); }, "-2147483649");
    expectOverflowNaming([] { return toInt32(notANumber); }, "NaN");
    expectOverflowNaming([] { return toInt32(infinity); }, "Infinity");
}

TEST(TextOfSingle, TheEightSpacingsInMetres)
{
    const std::vector<std::pair<float, const char*>> spacings{
        {500.0F, "457.2"},  {600.0F, "548.64"}, {700.0F, "640.08"},  {800.0F, "731.52"},
        {900.0F, "822.96"}, {1000.0F, "914.4"}, {1500.0F, "1371.6"}, {2000.0F, "1828.8"}};
    for (const auto& [yards, metres] : spacings) {
        EXPECT_EQ(textOf(yards * 0.9144F), QLatin1StringView(metres)) << yards;
    }
}

TEST(TextOfSingle, HasUpToSevenDigits)
{
    EXPECT_EQ(textOf(0.9144F), QStringLiteral("0.9144"));
    EXPECT_EQ(textOf(1.0F / 3.0F), QStringLiteral("0.3333333"));
    EXPECT_EQ(textOf(1234567.0F), QStringLiteral("1234567"));
    EXPECT_EQ(textOf(9999999.0F), QStringLiteral("9999999"));
}

TEST(TextOfSingle, ChangesItsFormAtTenMillions)
{
    EXPECT_EQ(textOf(1e7F), QStringLiteral("1E+07"));
    EXPECT_EQ(textOf(-12345678.0F), QStringLiteral("-1.234568E+07"));
    EXPECT_EQ(textOf(std::numeric_limits<float>::max()), QStringLiteral("3.402823E+38"));
}

TEST(TextOfDouble, HasUpToFifteenDigits)
{
    EXPECT_EQ(textOf(1000 * double{0.9144F}), QStringLiteral("914.399981498718"));
    EXPECT_EQ(textOf(1.0 / 3.0), QStringLiteral("0.333333333333333"));
    EXPECT_EQ(textOf(0.1 + 0.2), QStringLiteral("0.3"));
    EXPECT_EQ(textOf(123456789.123456789), QStringLiteral("123456789.123457"));
}

TEST(TextOfDouble, HasNoTrailingZerosAndNoGrouping)
{
    EXPECT_EQ(textOf(10.0), QStringLiteral("10"));
    EXPECT_EQ(textOf(1.50), QStringLiteral("1.5"));
    EXPECT_EQ(textOf(6000.0), QStringLiteral("6000"));
    EXPECT_EQ(textOf(-1000000.0), QStringLiteral("-1000000"));
    EXPECT_EQ(textOf(100.01), QStringLiteral("100.01"));
}

TEST(TextOfDouble, EitherZeroIsZero)
{
    EXPECT_EQ(textOf(0.0), QStringLiteral("0"));
    EXPECT_EQ(textOf(-0.0), QStringLiteral("0"));
    EXPECT_EQ(textOf(-0.0F), QStringLiteral("0"));
}

TEST(TextOfDouble, ChangesItsFormFromTenToTheFifteenthUp)
{
    EXPECT_EQ(textOf(999999999999999.0), QStringLiteral("999999999999999"));
    EXPECT_EQ(textOf(1e15), QStringLiteral("1E+15"));
    EXPECT_EQ(textOf(1.5e15), QStringLiteral("1.5E+15"));
    EXPECT_EQ(textOf(-1e100), QStringLiteral("-1E+100"));
}

TEST(TextOfDouble, WhatRoundsUpToTheLimitTakesTheOtherForm)
{
    EXPECT_EQ(textOf(999999999999999.9), QStringLiteral("1E+15"));
    EXPECT_EQ(textOf(99.99999999999999999), QStringLiteral("100"));
}

TEST(TextOfDouble, ChangesItsFormBelowTheFourthPlace)
{
    EXPECT_EQ(textOf(0.0001), QStringLiteral("0.0001"));
    EXPECT_EQ(textOf(-0.00012), QStringLiteral("-0.00012"));
    EXPECT_EQ(textOf(0.00005), QStringLiteral("5E-05"));
    EXPECT_EQ(textOf(-1.25e-7), QStringLiteral("-1.25E-07"));
}

TEST(TextOfDouble, WhatIsNoNumberHasANameAllTheSame)
{
    EXPECT_EQ(textOf(notANumber), QStringLiteral("NaN"));
    EXPECT_EQ(textOf(infinity), QStringLiteral("Infinity"));
    EXPECT_EQ(textOf(-infinity), QStringLiteral("-Infinity"));
}

TEST(TextOfDouble, NeverDependsOnALocale)
{
    const GermanLocale german;
    EXPECT_EQ(textOf(1234.5), QStringLiteral("1234.5"));
    EXPECT_EQ(textOf(457.2F), QStringLiteral("457.2"));
}

TEST(TextOfDouble, IsReadBackToItsFifteenDigits)
{
    for (const double value : {0.1, 914.399981498718, -1.5e15, 5e-5, 123456.789, 1e-300, 1.5e300}) {
        EXPECT_EQ(numberValue(textOf(value)), value);
    }
}

TEST(GroupedThousands, PutsACommaBeforeEachGroupOfThree)
{
    const std::vector<std::pair<std::int64_t, const char*>> cases{
        {0, "0"},
        {999, "999"},
        {1000, "1,000"},
        {6000, "6,000"},
        {100000, "100,000"},
        {1234567, "1,234,567"},
        {-999, "-999"},
        {-1000, "-1,000"},
        {-100000, "-100,000"},
        {std::numeric_limits<std::int64_t>::min(), "-9,223,372,036,854,775,808"}};
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(groupedThousands(value), QLatin1StringView(text));
    }
}

TEST(GroupedThousands, IsTheSameInGerman)
{
    const GermanLocale german;
    EXPECT_EQ(groupedThousands(6000), QStringLiteral("6,000"));
}

} // namespace
} // namespace torvane
