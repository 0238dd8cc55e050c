#include "overview/environment_rules.h"

#include "platform/number_text.h"
#include "platform/runtime_error.h"

#include <algorithm>

namespace torvane {
namespace {

constexpr int lowestWind = 1;
constexpr int highestWind = 40;
constexpr int highestDirection = 360;
constexpr int dayAndNightMeet = 40; // percent: the least visibility by day, the most by night
constexpr int clearSight = 100;     // percent

QString percent(int value)
{
    return QString::number(value) + QStringLiteral(" %");
}

/// Whole knots. Of a wind outside the bands it only matters on which side it lies.
int windOf(QStringView text)
{
    if (text.isEmpty()) {
        return lowestWind;
    }
    return static_cast<int>(std::clamp(integerPart(text), lowestWind - 1.0, highestWind + 1.0));
}

ClockTime steppedStart(ClockTime time, int hours, int minutes)
{
    const int hour = time.hour + hours;
    const int minute = time.minute + minutes;
    return {hour >= 24 ? 0 : (hour < 0 ? 23 : hour), minute >= 60 ? 0 : (minute < 0 ? 59 : minute)};
}

/// The hours that a sunrise or sunset may have.
struct HourRange
{
    int first;
    int last;
};
constexpr HourRange sunriseHours{3, 11};
constexpr HourRange sunsetHours{13, 23};

ClockTime steppedSunHour(ClockTime time, HourRange range, ClockStep step)
{
    if (step == ClockStep::Click) {
        return {time.hour + 1 > range.last ? range.first : time.hour + 1, time.minute};
    }
    const int hour = time.hour + (step == ClockStep::PlusKey ? 1 : -1);
    if (step == ClockStep::MinusKey) {
        return hour < range.first ? ClockTime{range.last, 0} : ClockTime{hour, time.minute};
    }
    if (hour > range.last) {
        return {range.first, 0};
    }
    return {hour, hour == range.last ? 0 : time.minute};
}

ClockTime steppedSunMinuteByKey(ClockTime time, HourRange range, ClockStep step)
{
    const int minute = time.minute + (step == ClockStep::PlusKey ? 1 : -1);
    if (time.hour == range.last || minute >= 60) {
        return {time.hour, 0};
    }
    return {time.hour, minute < 0 ? 59 : minute};
}

// A click has no bound at the last hour of the sunrise; at that of the sunset it jumps to the first. Kept.
ClockTime clickedSunriseMinute(ClockTime time)
{
    return {time.hour, time.minute + 1 >= 60 ? 0 : time.minute + 1};
}

ClockTime clickedSunsetMinute(ClockTime time)
{
    const int minute = time.minute + 1;
    const int hour = time.hour >= sunsetHours.last ? sunsetHours.first : time.hour;
    return {hour, minute >= 60 ? 0 : minute};
}

int lengthHour(const GameLength& length)
{
    return std::clamp(integerValue(length.hour), 0, 3);
}

QString twoDigits(int value)
{
    return QString::number(value).rightJustified(2, u'0');
}

} // namespace

std::optional<int> seaStateOfWind(double knots)
{
    const auto band = std::ranges::find_if(seaStateBands, [&](const auto& row) { return row.holds(knots); });
    return band == seaStateBands.end() ? std::nullopt : std::optional(band->seaState);
}

int windForSeaState(int seaState, QStringView windText, const std::function<double()>& draw)
{
    const auto band = std::ranges::find(seaStateBands, seaState, &SeaStateBand::seaState);
    if (band == seaStateBands.end()) {
        throw RuntimeError(RuntimeError::InvalidProcedureCall,
                           QStringLiteral("There is no sea state %1.").arg(seaState));
    }
    const int wind = windOf(windText);
    if (band->holds(wind)) {
        return wind;
    }
    return static_cast<int>(floorOf(draw() * band->width())) + band->lowestWind;
}

WindCheck checkWindSpeed(QStringView text)
{
    if (text.isEmpty()) {
        return {{true, QString()}, std::nullopt};
    }
    const double wind = integerPart(text);
    if (wind < lowestWind || wind > highestWind) {
        return {{false, QString::number(lowestWind)}, seaStateOfWind(lowestWind)};
    }
    return {{true, text.toString()}, seaStateOfWind(wind)};
}

QString steppedWindSpeed(QStringView text, int step)
{
    const int wind = windOf(text) + step;
    if (wind > highestWind) {
        return QString::number(lowestWind);
    }
    return QString::number(wind < lowestWind ? highestWind : wind);
}

TypedCheck checkWindDirection(QStringView text)
{
    const double direction = integerPart(text);
    if (direction < 0 || direction > highestDirection) {
        return {false, QStringLiteral("0")};
    }
    return {true, textOf(direction)};
}

QString steppedWindDirection(QStringView text, int step)
{
    const int direction = integerValue(text) + step;
    if (direction > highestDirection) {
        return QStringLiteral("0");
    }
    return QString::number(direction < 0 ? highestDirection : direction);
}

QString steppedVisibility(QStringView text, int step, bool day)
{
    const int lowest = day ? dayAndNightMeet : 0;
    const int highest = day ? clearSight : dayAndNightMeet;
    const int visibility = integerValue(text);
    if (step > 0) {
        return percent(visibility >= highest ? lowest : visibility + step);
    }
    return percent(visibility <= lowest ? highest : visibility + step);
}

QString steppedRadar(QStringView text, int step)
{
    const int radar = integerValue(text);
    if (step > 0) {
        return percent(radar >= clearSight ? 0 : radar + step);
    }
    return percent(radar <= 0 ? clearSight : radar + step);
}

QString visibilityAt(const QString& text, bool day)
{
    const double visibility = boundedValue(text);
    const bool fits = day ? visibility >= dayAndNightMeet + 1 : visibility <= dayAndNightMeet;
    return fits ? text : percent(dayAndNightMeet);
}

ClockTime clockTimeOf(QStringView caption)
{
    return {std::max(integerValue(caption.left(2)), 0), std::max(integerValue(caption.right(2)), 0)};
}

QString clockCaption(ClockTime time)
{
    return twoDigits(time.hour) + u':' + twoDigits(time.minute);
}

ClockTime steppedClock(ClockTime time, ClockButton button, ClockStep step)
{
    const int change = step == ClockStep::MinusKey ? -1 : 1;
    const bool click = step == ClockStep::Click;
    switch (button) {
    case ClockButton::StartHours:
        return steppedStart(time, change, 0);
    case ClockButton::StartMinutes:
        return steppedStart(time, 0, change);
    case ClockButton::SunriseHour:
        return steppedSunHour(time, sunriseHours, step);
    case ClockButton::SunriseMinutes:
        return click ? clickedSunriseMinute(time) : steppedSunMinuteByKey(time, sunriseHours, step);
    case ClockButton::SunsetHour:
        return steppedSunHour(time, sunsetHours, step);
    case ClockButton::SunsetMinutes:
        return click ? clickedSunsetMinute(time) : steppedSunMinuteByKey(time, sunsetHours, step);
    }
    return time;
}

bool isDay(ClockTime start, ClockTime sunrise, ClockTime sunset)
{
    if (start.hour < 12) {
        return start.hour > sunrise.hour || (start.hour == sunrise.hour && start.minute >= sunrise.minute);
    }
    return start.hour < sunset.hour || (start.hour == sunset.hour && start.minute < sunset.minute);
}

GameLength steppedGameLengthHour(const GameLength& length)
{
    const int hour = lengthHour(length) + 1;
    if (hour == 3 && length.minutes == u"45") {
        return {QStringLiteral("3"), QStringLiteral("30")};
    }
    if (hour < 4) {
        return {QString::number(hour), length.minutes};
    }
    const bool tooShort = length.minutes == u"00" || length.minutes == u"15";
    return {QStringLiteral("0"), tooShort ? QStringLiteral("30") : length.minutes};
}

GameLength steppedGameLengthMinutes(const GameLength& length)
{
    const int hour = lengthHour(length);
    int minutes = std::max(integerValue(length.minutes), 0) + 15;
    if (minutes > 45) {
        minutes = 0;
    }
    if (hour == 0 && minutes < 30) {
        minutes = 30;
    }
    if (hour == 3 && minutes == 45) {
        minutes = 0;
    }
    return {QString::number(hour), twoDigits(minutes)};
}

QString gameLengthCaption(const GameLength& length)
{
    const auto quarter =
        std::ranges::find_if(quarterHours, [&](const auto& row) { return row.minutes == length.minutes; });
    return length.hour + u'.' +
           (quarter == quarterHours.end() ? length.minutes : QString(quarter->hundredths));
}

} // namespace torvane
