#include "overview/environment_rules.h"

#include "platform/runtime_error.h"
#include "support/printers.h"

#include <gtest/gtest.h>

namespace torvane {

using namespace Qt::StringLiterals;

namespace {

struct Band
{
    int seaState;
    int low;
    int high;
    int width;
};
const Band bands[] = {{1, 1, 3, 3},   {2, 4, 6, 3},   {3, 7, 10, 4},  {4, 11, 16, 6},
                      {5, 17, 21, 5}, {6, 22, 27, 6}, {7, 28, 33, 6}, {8, 34, 40, 7}};

const QString digits(400, u'9');

/// A draw that must not happen.
double noDraw()
{
    ADD_FAILURE() << "drew a random value";
    return 0;
}

TEST(SeaState, TheTableHoldsTheEightBands)
{
    ASSERT_EQ(seaStateBands.size(), std::size(bands));
    for (std::size_t i = 0; i < std::size(bands); ++i) {
        EXPECT_EQ(seaStateBands[i].seaState, bands[i].seaState);
        EXPECT_EQ(seaStateBands[i].lowestWind, bands[i].low);
        EXPECT_EQ(seaStateBands[i].highestWind, bands[i].high);
        EXPECT_EQ(seaStateBands[i].width(), bands[i].width);
    }
}

TEST(SeaState, EveryWindFrom1To40BringsTheStateOfItsBand)
{
    for (const Band& band : bands) {
        for (int wind = band.low; wind <= band.high; ++wind) {
            EXPECT_EQ(seaStateOfWind(wind), band.seaState) << wind;
        }
    }
}

TEST(SeaState, AWindOutsideTheBandsBringsNone)
{
    for (const double wind : {0.0, 41.0, -1.0, 1e300}) {
        EXPECT_EQ(seaStateOfWind(wind), std::nullopt) << wind;
    }
}

TEST(PickedSeaState, AWindThatFitsStaysAndNothingIsDrawn)
{
    for (const Band& band : bands) {
        for (int wind = band.low; wind <= band.high; ++wind) {
            EXPECT_EQ(windForSeaState(band.seaState, QString::number(wind), noDraw), wind);
        }
    }
    EXPECT_EQ(windForSeaState(3, u"10", noDraw), 10);
}

TEST(PickedSeaState, AWindThatDoesNotFitIsDrawnFromTheBandsLowEndToItsHighEnd)
{
    for (const Band& band : bands) {
        const QString outside = band.seaState == 1 ? QStringLiteral("40") : QStringLiteral("1");
        const auto drawn = [&](double value) {
            return windForSeaState(band.seaState, outside, [&] { return value; });
        };
        EXPECT_EQ(drawn(0.0), band.low);
        EXPECT_EQ(drawn(0.9999999), band.high);
        for (int step = 0; step < band.width; ++step) {
            EXPECT_EQ(drawn((step + 0.001) / band.width), band.low + step);
            EXPECT_EQ(drawn((step + 0.999) / band.width), band.low + step);
        }
    }
}

TEST(PickedSeaState, TheWindsJustOutsideABandAreDrawnAnew)
{
    for (const Band& band : bands) {
        for (const int wind : {band.low - 1, band.high + 1}) {
            bool drew = false;
            windForSeaState(band.seaState, QString::number(wind), [&] {
                drew = true;
                return 0.5;
            });
            EXPECT_TRUE(drew) << wind;
        }
    }
}

TEST(PickedSeaState, TheIntegerPartOfTheWindCounts)
{
    EXPECT_EQ(windForSeaState(1, u"3.9", noDraw), 3);
    EXPECT_EQ(windForSeaState(2, u"3.9", [] { return 0.0; }), 4);
}

TEST(PickedSeaState, AnEmptyBoxCountsAs1)
{
    EXPECT_EQ(windForSeaState(1, u"", noDraw), 1);
    EXPECT_EQ(windForSeaState(2, u"", [] { return 0.0; }), 4);
}

TEST(PickedSeaState, AWindThatIsNoNumberIsDrawnAnew)
{
    for (const QString& text : {QStringLiteral("INVALID"), QStringLiteral("-5"), digits, u'-' + digits}) {
        EXPECT_EQ(windForSeaState(8, text, [] { return 0.0; }), 34);
    }
    for (const QString& text : {QStringLiteral("INVALID"), QStringLiteral("-5"), digits, u'-' + digits}) {
        EXPECT_EQ(windForSeaState(1, text, [] { return 0.0; }), 1);
    }
}

TEST(PickedSeaState, AStateWithoutABandIsRefused)
{
    for (const int seaState : {0, 9, -1}) {
        EXPECT_THROW(windForSeaState(seaState, u"10", noDraw), RuntimeError);
    }
}

void expectWind(const QString& typed, bool accepted, const QString& text, std::optional<int> seaState)
{
    const WindCheck result = checkWindSpeed(typed);
    EXPECT_EQ(result.check.accepted, accepted) << typed.toStdString();
    EXPECT_EQ(result.check.text, text);
    EXPECT_EQ(result.seaState, seaState) << typed.toStdString();
}

TEST(TypedWind, EveryWholeSpeedFrom1To40PassesAndBringsItsSeaState)
{
    for (const Band& band : bands) {
        for (int wind = band.low; wind <= band.high; ++wind) {
            expectWind(QString::number(wind), true, QString::number(wind), band.seaState);
        }
    }
}

TEST(TypedWind, FortyOneIsRefusedAndTheBoxHolds1InASeaStateOf1)
{
    for (const char16_t* typed : {u"41", u"0", u"-1", u"-0.5", u"0.9", u"1000", u" ", u"knots", u"INVALID",
                                  u"-", u"+", u".", u",5", u"\n", u"⚓"}) {
        expectWind(QString::fromUtf16(typed), false, QStringLiteral("1"), 1);
    }
}

TEST(TypedWind, NothingTypedLeavesTheBoxEmptyAndTheSeaStateUntouched)
{
    expectWind(QString(), true, QString(), std::nullopt);
    expectWind(QStringLiteral(""), true, QString(), std::nullopt);
}

TEST(TypedWind, TheIntegerPartDecidesAndTheTextStays)
{
    expectWind(QStringLiteral("40.9"), true, QStringLiteral("40.9"), 8);
    expectWind(QStringLiteral("3.9"), true, QStringLiteral("3.9"), 1);
    expectWind(QStringLiteral("6,9"), true, QStringLiteral("6,9"), 2);
    expectWind(QStringLiteral("7 kn"), true, QStringLiteral("7 kn"), 3);
}

TEST(TypedWind, ANumberBeyondAllBoundsIsRefusedLikeAnyOther)
{
    for (const QString& typed : {digits, u'-' + digits, QStringLiteral("1E999"), u"  -"_s + digits}) {
        expectWind(typed, false, QStringLiteral("1"), 1);
    }
}

TEST(WindStepper, StepsByOneAndWrapsPast40AndBelow1)
{
    for (int wind = 1; wind <= 40; ++wind) {
        const QString text = QString::number(wind);
        EXPECT_EQ(steppedWindSpeed(text, 1), QString::number(wind == 40 ? 1 : wind + 1));
        EXPECT_EQ(steppedWindSpeed(text, -1), QString::number(wind == 1 ? 40 : wind - 1));
    }
}

TEST(WindStepper, AWrapBringsTheSeaStateThroughTheTypedRule)
{
    EXPECT_EQ(checkWindSpeed(steppedWindSpeed(u"40", 1)).seaState, 1);
    EXPECT_EQ(checkWindSpeed(steppedWindSpeed(u"1", -1)).seaState, 8);
}

TEST(WindStepper, DamagedTextsEndInTheRange)
{
    for (const QString& text : {QString(), QStringLiteral("INVALID"), digits, u'-' + digits}) {
        EXPECT_TRUE(checkWindSpeed(steppedWindSpeed(text, 1)).check.accepted);
        EXPECT_TRUE(checkWindSpeed(steppedWindSpeed(text, -1)).check.accepted);
    }
    EXPECT_EQ(steppedWindSpeed(u"", 1), u"2"_s);
    EXPECT_EQ(steppedWindSpeed(u"INVALID", 1), u"1"_s);
    EXPECT_EQ(steppedWindSpeed(u"INVALID", -1), u"40"_s);
}

TEST(TypedDirection, AValidDirectionIsRewrittenAsItsInteger)
{
    for (int direction = 0; direction <= 360; ++direction) {
        EXPECT_EQ(checkWindDirection(QString::number(direction)),
                  (TypedCheck{true, QString::number(direction)}));
    }
    EXPECT_EQ(checkWindDirection(u"360.9"), (TypedCheck{true, u"360"_s}));
    EXPECT_EQ(checkWindDirection(u"007"), (TypedCheck{true, u"7"_s}));
    EXPECT_EQ(checkWindDirection(u"12,5"), (TypedCheck{true, u"12"_s}));
    EXPECT_EQ(checkWindDirection(u""), (TypedCheck{true, u"0"_s}));
    EXPECT_EQ(checkWindDirection(u"INVALID"), (TypedCheck{true, u"0"_s}));
    EXPECT_EQ(checkWindDirection(u"⚓"), (TypedCheck{true, u"0"_s}));
    EXPECT_EQ(checkWindDirection(u"9\n0"), (TypedCheck{true, u"90"_s}));
}

TEST(TypedDirection, BeyondTheCircleIsRefusedAndTheBoxHolds0)
{
    for (const QString& typed : {u"361"_s, u"-1"_s, u"-0.1"_s, u"1E3"_s, digits, u'-' + digits}) {
        EXPECT_EQ(checkWindDirection(typed), (TypedCheck{false, u"0"_s})) << typed.toStdString();
    }
}

TEST(DirectionStepper, StepsByOneAndWrapsPast360AndBelow0)
{
    for (int direction = 0; direction <= 360; ++direction) {
        const QString text = QString::number(direction);
        EXPECT_EQ(steppedWindDirection(text, 1), QString::number(direction == 360 ? 0 : direction + 1));
        EXPECT_EQ(steppedWindDirection(text, -1), QString::number(direction == 0 ? 360 : direction - 1));
    }
    EXPECT_EQ(steppedWindDirection(digits, 1), u"0"_s);
    EXPECT_EQ(steppedWindDirection(u'-' + digits, -1), u"360"_s);
}

QString percent(int value)
{
    return QString::number(value) + QStringLiteral(" %");
}

TEST(VisibilityStepper, ByDayItRunsFrom40To100)
{
    for (int value = 40; value <= 100; ++value) {
        EXPECT_EQ(steppedVisibility(percent(value), 1, true), percent(value == 100 ? 40 : value + 1));
        EXPECT_EQ(steppedVisibility(percent(value), -1, true), percent(value == 40 ? 100 : value - 1));
    }
}

TEST(VisibilityStepper, ByNightItRunsFrom0To40)
{
    for (int value = 0; value <= 40; ++value) {
        EXPECT_EQ(steppedVisibility(percent(value), 1, false), percent(value == 40 ? 0 : value + 1));
        EXPECT_EQ(steppedVisibility(percent(value), -1, false), percent(value == 0 ? 40 : value - 1));
    }
}

TEST(VisibilityStepper, ValuesOutsideTheRangeWrapAtTheStatedBounds)
{
    EXPECT_EQ(steppedVisibility(u"150 %", 1, true), u"40 %"_s);
    EXPECT_EQ(steppedVisibility(u"10 %", -1, true), u"100 %"_s);
    EXPECT_EQ(steppedVisibility(u"10 %", 1, true), u"11 %"_s);
    EXPECT_EQ(steppedVisibility(u"100 %", 1, false), u"0 %"_s);
    EXPECT_EQ(steppedVisibility(u"100 %", -1, false), u"99 %"_s);
    EXPECT_EQ(steppedVisibility(digits, 1, true), u"40 %"_s);
    EXPECT_EQ(steppedVisibility(u'-' + digits, -1, false), u"40 %"_s);
    EXPECT_EQ(steppedVisibility(u"INVALID %", -1, true), u"100 %"_s);
}

TEST(RadarStepper, RunsFrom0To100AndWraps)
{
    for (int value = 0; value <= 100; ++value) {
        EXPECT_EQ(steppedRadar(percent(value), 1), percent(value == 100 ? 0 : value + 1));
        EXPECT_EQ(steppedRadar(percent(value), -1), percent(value == 0 ? 100 : value - 1));
    }
    EXPECT_EQ(steppedRadar(u"250 %", 1), u"0 %"_s);
    EXPECT_EQ(steppedRadar(digits, 1), u"0 %"_s);
    EXPECT_EQ(steppedRadar(u'-' + digits, -1), u"100 %"_s);
}

TEST(VisibilityOfTheHour, NightfallAt100LowersItTo40)
{
    EXPECT_EQ(visibilityAt(u"100 %"_s, false), u"40 %"_s);
    EXPECT_EQ(visibilityAt(u"41 %"_s, false), u"40 %"_s);
    EXPECT_EQ(visibilityAt(u"40.5 %"_s, false), u"40 %"_s);
    EXPECT_EQ(visibilityAt(digits, false), u"40 %"_s);
}

TEST(VisibilityOfTheHour, DaybreakAt10RaisesItTo40)
{
    EXPECT_EQ(visibilityAt(u"10 %"_s, true), u"40 %"_s);
    EXPECT_EQ(visibilityAt(u"0 %"_s, true), u"40 %"_s);
    EXPECT_EQ(visibilityAt(u"40.5 %"_s, true), u"40 %"_s);
    EXPECT_EQ(visibilityAt(u"INVALID %"_s, true), u"40 %"_s);
    EXPECT_EQ(visibilityAt(u'-' + digits, true), u"40 %"_s);
}

TEST(VisibilityOfTheHour, WhatFitsStaysAsItStands)
{
    for (int value = 0; value <= 40; ++value) {
        EXPECT_EQ(visibilityAt(percent(value), false), percent(value));
    }
    for (int value = 40; value <= 100; ++value) {
        EXPECT_EQ(visibilityAt(percent(value), true), percent(value));
    }
    EXPECT_EQ(visibilityAt(u"041"_s, true), u"041"_s);
    EXPECT_EQ(visibilityAt(u"7"_s, false), u"7"_s);
}

} // namespace
} // namespace torvane
