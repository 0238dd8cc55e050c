#pragma once

#include "overview/typed_values.h"

#include <QString>
#include <QStringView>

#include <array>
#include <functional>
#include <optional>

namespace torvane {

/// The winds, in knots, that belong to a sea state. Both ends are inside.
struct SeaStateBand
{
    int seaState;
    int lowestWind;
    int highestWind;

    constexpr int width() const { return highestWind - lowestWind + 1; }
    constexpr bool holds(double wind) const { return wind >= lowestWind && wind <= highestWind; }
};

/// Sea states 1 to 8; the bands follow on one another without a gap from 1 to 40 knots.
inline constexpr std::array<SeaStateBand, 8> seaStateBands{{
    {1, 1, 3},
    {2, 4, 6},
    {3, 7, 10},
    {4, 11, 16},
    {5, 17, 21},
    {6, 22, 27},
    {7, 28, 33},
    {8, 34, 40},
}};

/// The sea state that a wind brings; nothing outside 1 to 40 knots.
std::optional<int> seaStateOfWind(double knots);

/// The wind, in knots, after the user has picked a sea state: the present one if it lies in the band, else
/// one drawn from the band. `draw` gives a value in [0, 1) and is called only then. An empty text counts
/// as 1 knot. A sea state without a band throws InvalidProcedureCall.
int windForSeaState(int seaState, QStringView windText, const std::function<double()>& draw);

/// A typed wind speed and the sea state that it brings. An empty box passes, and leaves the sea state alone.
/// A refused box holds "1".
struct WindCheck
{
    TypedCheck check;
    std::optional<int> seaState;
};
WindCheck checkWindSpeed(QStringView text);
/// The wind speed after a step of +1 or -1 knot: above 40 comes 1, below 1 comes 40.
QString steppedWindSpeed(QStringView text, int step);

/// A typed wind direction. What passes is rewritten as its integer; a refused box holds "0".
TypedCheck checkWindDirection(QStringView text);
/// The direction after a step of +1 or -1 degree: above 360 comes 0, below 0 comes 360.
QString steppedWindDirection(QStringView text, int step);

/// Visibility and radar conditions as shown, such as "40 %", after a step of +1 or -1.
QString steppedVisibility(QStringView text, int step, bool day);
QString steppedRadar(QStringView text, int step);
/// The visibility that the hour allows: at least "40 %" by day, at most that by night. What fits stays as it
/// stands.
QString visibilityAt(const QString& text, bool day);

/// A time of day as its caption says it, "06:30". Damaged captions give what numbers they hold.
struct ClockTime
{
    int hour;
    int minute;

    bool operator==(const ClockTime&) const = default;
};
/// Hour from the first two characters, minute from the last two.
ClockTime clockTimeOf(QStringView caption);
/// Two digits, a colon, two digits.
QString clockCaption(ClockTime time);

/// The buttons that step the three clocks.
enum class ClockButton {
    StartHours,
    StartMinutes,
    SunriseHour,
    SunriseMinutes,
    SunsetHour,
    SunsetMinutes,
};
/// What the user does to a clock button: a click, or a key on the focused button.
enum class ClockStep { Click, PlusKey, MinusKey };

/// The clock after a step. Click and key differ for sunrise and sunset: by keys the latest are 11:00 and
/// 23:00, a click leaves the minutes of the last hour alone.
ClockTime steppedClock(ClockTime time, ClockButton button, ClockStep step);

/// Whether the battle starts by day. Mornings look at the sunrise alone, afternoons at the sunset alone.
bool isDay(ClockTime start, ClockTime sunrise, ClockTime sunset);

/// The game length as its two labels show it, such as "2" and "00".
struct GameLength
{
    QString hour;
    QString minutes;

    bool operator==(const GameLength&) const = default;
};
/// The quarters of an hour in minutes and in hundredths.
struct QuarterHour
{
    QLatin1StringView minutes;
    QLatin1StringView hundredths;
};
inline constexpr std::array<QuarterHour, 4> quarterHours{{
    {QLatin1StringView("00"), QLatin1StringView("00")},
    {QLatin1StringView("15"), QLatin1StringView("25")},
    {QLatin1StringView("30"), QLatin1StringView("50")},
    {QLatin1StringView("45"), QLatin1StringView("75")},
}};
/// The length after a click on the hour or the minute button. Reachable are 0:30 to 3:30 by quarters.
GameLength steppedGameLengthHour(const GameLength& length);
GameLength steppedGameLengthMinutes(const GameLength& length);
/// The length in decimal hours, "2.25" for 2:15. Minutes that are no quarter stay as they stand.
QString gameLengthCaption(const GameLength& length);

} // namespace torvane
