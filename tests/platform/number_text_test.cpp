#include "platform/number_text_fixture.h"

#include <limits>
#include <utility>
#include <vector>

namespace torvane::testing {
namespace {

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
} // namespace torvane::testing
