#include "overview/overview_rules.h"

#include "support/printers.h"

#include <gtest/gtest.h>

namespace torvane {

using namespace Qt::StringLiterals;

namespace {

const QString digits(400, u'9');

TypedCheck passes(const QString& text)
{
    return {true, text};
}
TypedCheck fails()
{
    return {false, QStringLiteral("0")};
}

TEST(TypedHeading, EveryWholeHeadingOfTheCirclePasses)
{
    for (int heading = 0; heading <= 360; ++heading) {
        EXPECT_EQ(checkHeading(QString::number(heading)), passes(QString::number(heading)));
    }
}

TEST(TypedHeading, TheIntegerPartDecidesAndTheTextStays)
{
    for (const QString& text : {u"360.9"_s, u"0.5"_s, u""_s, u"INVALID"_s, u"12,7"_s, u" 9 0 "_s, u"⚓"_s,
                                u"-"_s, u"-0"_s, u"1\n2"_s}) {
        EXPECT_EQ(checkHeading(text), passes(text)) << text.toStdString();
    }
}

TEST(TypedHeading, OutsideTheCircleTheBoxHolds0)
{
    for (const QString& text : {u"361"_s, u"-1"_s, u"-0.5"_s, u"1E9"_s, u"1E999"_s, digits, u'-' + digits}) {
        EXPECT_EQ(checkHeading(text), fails()) << text.toStdString();
    }
}

TEST(HeadingStepper, StepsByOneAndWrapsPast360AndBelow0)
{
    for (int heading = 0; heading <= 360; ++heading) {
        const QString text = QString::number(heading);
        EXPECT_EQ(steppedHeading(text, 1), QString::number(heading == 360 ? 0 : heading + 1));
        EXPECT_EQ(steppedHeading(text, -1), QString::number(heading == 0 ? 360 : heading - 1));
    }
}

TEST(HeadingStepper, InIntegersAFractionIsRoundedToTheEvenNeighbourFirst)
{
    EXPECT_EQ(steppedHeading(u"12.5", 1), u"13"_s);
    EXPECT_EQ(steppedHeading(u"13.5", 1), u"15"_s);
    EXPECT_EQ(steppedHeading(u"12.6", -1), u"12"_s);
    EXPECT_EQ(steppedHeading(u"360.9", 1), u"0"_s);
    EXPECT_EQ(steppedHeading(u"360.9", -1), u"360"_s);
}

TEST(HeadingStepper, DamagedTextsAreStepped)
{
    EXPECT_EQ(steppedHeading(u"", -1), u"360"_s);
    EXPECT_EQ(steppedHeading(u"INVALID", 1), u"1"_s);
    EXPECT_EQ(steppedHeading(digits, 1), u"0"_s);
    EXPECT_EQ(steppedHeading(u'-' + digits, -1), u"360"_s);
}

TEST(HeadingStepperInSinglePrecision, GivesTheSameForWholeHeadings)
{
    for (int heading = 0; heading <= 360; ++heading) {
        const QString text = QString::number(heading);
        EXPECT_EQ(steppedHeadingInSinglePrecision(text), steppedHeading(text, 1));
    }
    EXPECT_EQ(steppedHeadingInSinglePrecision(u"360"), u"0"_s);
    EXPECT_EQ(steppedHeadingInSinglePrecision(u"359"), u"360"_s);
}

TEST(HeadingStepperInSinglePrecision, KeepsAFraction)
{
    EXPECT_EQ(steppedHeadingInSinglePrecision(u"12.5"), u"13.5"_s);
    EXPECT_EQ(steppedHeadingInSinglePrecision(u"358.25"), u"359.25"_s);
    EXPECT_EQ(steppedHeadingInSinglePrecision(u"359.5"), u"0"_s);
    EXPECT_EQ(steppedHeadingInSinglePrecision(u"12.3456789"), u"13.34568"_s);
}

TEST(HeadingStepperInSinglePrecision, DamagedTextsAreStepped)
{
    EXPECT_EQ(steppedHeadingInSinglePrecision(u"INVALID"), u"1"_s);
    EXPECT_EQ(steppedHeadingInSinglePrecision(digits), u"0"_s);
    EXPECT_NO_THROW(steppedHeadingInSinglePrecision(u'-' + digits));
}

TEST(TypedModifier, TheLooseBoundsLet0And99Point995Pass)
{
    for (const QString& text : {u"0"_s, u"0.00"_s, u"0.01"_s, u"1.00"_s, u"99.99"_s, u"99.995"_s, u"99"_s,
                                u""_s, u"INVALID"_s, u"1,5"_s, u"⚓"_s, u"-"_s}) {
        EXPECT_EQ(checkVictoryModifier(text), passes(text)) << text.toStdString();
    }
}

TEST(TypedModifier, A100AndANegativeNumberAreRefusedAndTheBoxHolds0)
{
    for (const QString& text :
         {u"100"_s, u"100.0"_s, u"-1"_s, u"-0.5"_s, u"1E9"_s, u"9E999"_s, digits, u'-' + digits}) {
        EXPECT_EQ(checkVictoryModifier(text), fails()) << text.toStdString();
    }
}

TEST(TypedModifier, OnlyTheFirstFiveCharactersCount)
{
    EXPECT_EQ(checkVictoryModifier(u"00099999"), passes(u"00099999"_s));
    EXPECT_EQ(checkVictoryModifier(u"000999"), passes(u"000999"_s));
    EXPECT_EQ(checkVictoryModifier(u"00100"), fails());
    EXPECT_EQ(checkVictoryModifier(u"1.000E9"), passes(u"1.000E9"_s));
}

TEST(ModifierStepper, At99Point99AHundredthMoreGives0Point01)
{
    EXPECT_EQ(steppedVictoryModifier(u"99.99", 0.01F), u"0.01"_s);
    EXPECT_EQ(steppedVictoryModifier(u"99.99", 1.0F), u"0.01"_s);
    EXPECT_EQ(steppedVictoryModifier(u"99", 1.0F), u"0.01"_s);
}

TEST(ModifierStepper, At0Point01AHundredthLessGives99Point99)
{
    EXPECT_EQ(steppedVictoryModifier(u"0.01", -0.01F), u"99.99"_s);
    EXPECT_EQ(steppedVictoryModifier(u"0.5", -1.0F), u"99.99"_s);
}

TEST(ModifierStepper, The1BelowTheBoundWrapsToo)
{
    EXPECT_EQ(steppedVictoryModifier(u"1.00", -1.0F), u"99.99"_s);
}

TEST(ModifierStepper, TheBoundsThemselvesStand)
{
    EXPECT_EQ(steppedVictoryModifier(u"0.02", -0.01F), u"0.01"_s);
    EXPECT_EQ(steppedVictoryModifier(u"0", 0.01F), u"0.01"_s);
    EXPECT_EQ(steppedVictoryModifier(u"98.99", 1.0F), u"99.99"_s);
}

TEST(ModifierStepper, TheTextIsTheShortestOne)
{
    EXPECT_EQ(steppedVictoryModifier(u"1.00", 1.0F), u"2"_s);
    EXPECT_EQ(steppedVictoryModifier(u"1.00", 0.01F), u"1.01"_s);
    EXPECT_EQ(steppedVictoryModifier(u"1.49", 0.01F), u"1.5"_s);
    EXPECT_EQ(steppedVictoryModifier(u"1.00", -0.01F), u"0.99"_s);
    EXPECT_EQ(steppedVictoryModifier(u"2.5", -1.0F), u"1.5"_s);
}

TEST(ModifierStepper, SinglePrecisionShowsWhereItsSevenDigitsDo)
{
    EXPECT_EQ(steppedVictoryModifier(u"8.02", 0.01F), u"8.030001"_s);
    EXPECT_EQ(steppedVictoryModifier(u"8.07", -0.01F), u"8.059999"_s);
    EXPECT_EQ(steppedVictoryModifier(u"1.02", -1.0F), u"0.01999998"_s);
    // The sums miss the bounds by the last bit and wrap.
    EXPECT_EQ(steppedVictoryModifier(u"99.98", 0.01F), u"0.01"_s);
    EXPECT_EQ(steppedVictoryModifier(u"1.01", -1.0F), u"99.99"_s);
}

TEST(ModifierStepper, OnlyTheFirstFiveCharactersAreStepped)
{
    EXPECT_EQ(steppedVictoryModifier(u"8.030001", 1.0F), u"9.03"_s);
    EXPECT_EQ(steppedVictoryModifier(u"12.3456", 1.0F), u"13.34"_s);
}

TEST(ModifierStepper, EveryStepFromEveryHundredthStaysInRangeAndNearTheExactValue)
{
    for (int hundredths = 1; hundredths <= 9999; ++hundredths) {
        const QString text = QString::number(hundredths / 100.0, 'f', 2);
        for (const int step : {-100, -1, 1, 100}) {
            const double value = steppedVictoryModifier(text, static_cast<float>(step) / 100.0F).toDouble();
            ASSERT_GE(value, 0.01) << text.toStdString();
            ASSERT_LE(value, 99.99) << text.toStdString();
            const bool missesABound =
                (hundredths == 9998 && step == 1) || (hundredths == 101 && step == -100);
            const int exact = hundredths + step;
            if (exact >= 1 && exact <= 9999 && !missesABound) {
                ASSERT_NEAR(value, exact / 100.0, 2e-5) << text.toStdString() << " by " << step;
            }
        }
    }
}

TEST(ModifierStepper, DamagedTextsAreStepped)
{
    EXPECT_EQ(steppedVictoryModifier(u"", 1.0F), u"1"_s);
    EXPECT_EQ(steppedVictoryModifier(u"INVALID", 0.01F), u"0.01"_s);
    EXPECT_EQ(steppedVictoryModifier(digits, 1.0F), u"0.01"_s);
    EXPECT_EQ(steppedVictoryModifier(u"1E400", 1.0F), u"0.01"_s);
    EXPECT_EQ(steppedVictoryModifier(u"-1E99", 1.0F), u"99.99"_s);
    EXPECT_EQ(steppedVictoryModifier(u"1,99", 1.0F), u"2"_s);
}

TEST(TitleLock, At30CharactersTheTextIsCutAndTheBoxLocked)
{
    EXPECT_EQ(lockedTitle(QString(29, u'x')), (LockedText{QString(29, u'x'), false}));
    EXPECT_EQ(lockedTitle(QString(30, u'x')), (LockedText{QString(30, u'x'), true}));
    EXPECT_EQ(lockedTitle(QString(30, u'x') + u'y'), (LockedText{QString(30, u'x'), true}));
    EXPECT_EQ(lockedTitle(QString()), (LockedText{QString(), false}));
}

TEST(DescriptionLock, A371CharacterPasteIsCutTo370AndLocks)
{
    EXPECT_EQ(lockedDescription(QString(371, u'x')), (LockedText{QString(370, u'x'), true}));
    EXPECT_EQ(lockedDescription(QString(370, u'x')), (LockedText{QString(370, u'x'), true}));
    EXPECT_EQ(lockedDescription(QString(369, u'x')), (LockedText{QString(369, u'x'), false}));
}

TEST(TitleLock, ACharacterOfTwoUnitsIsNotCutInHalf)
{
    const QString ship = QString::fromUtf8("🚢");
    EXPECT_EQ(lockedTitle(QString(29, u'x') + ship), (LockedText{QString(29, u'x'), true}));
    EXPECT_EQ(lockedTitle(QString(28, u'x') + ship + u'y'), (LockedText{QString(28, u'x') + ship, true}));
}

TEST(Paragraph, LineBreaksBecomeBlanksAndThoseAtTheEndsGo)
{
    EXPECT_EQ(oneParagraph(u"First\r\nsecond\nthird\rfourth"_s), u"First second third fourth"_s);
    EXPECT_EQ(oneParagraph(u"a\u2028b\u2029c"_s), u"a b c"_s);
    EXPECT_EQ(oneParagraph(u"\n  The convoy sails.  \r\n"_s), u"The convoy sails."_s);
    EXPECT_EQ(oneParagraph(u"a\n\nb"_s), u"a  b"_s);
    EXPECT_EQ(oneParagraph(u"one  line"_s), u"one  line"_s);
}

} // namespace
} // namespace torvane
