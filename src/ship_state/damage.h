#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

namespace torvane {

/// What a damage key holds for something destroyed, and for something whole.
inline constexpr QLatin1StringView destroyedFlag{"-1"};
inline constexpr QLatin1StringView wholeFlag{"0"};

/// What percentages and fire levels end at.
inline constexpr double fullPercent = 100;
inline constexpr double highestFireLevel = 10;

/// Which of a pair of buttons was pressed.
enum class Step { Up, Down };

/// What a damage key stores for the value of its check box.
QLatin1StringView damageFlag(int boxValue);
/// Whether a stored damage value says destroyed.
bool isDestroyed(QStringView stored);

/// A stored amount as the share of its maximum, in full: "66.6666666666667 %"; "0 %" for a maximum of 0.
/// Throws Overflow for an amount beyond all numbers.
QString percentShown(const QString& stored, double maximum);
/// The amount that a percent caption says of a maximum, unrounded. Throws Overflow as above.
QString amountOf(const QString& percentCaption, double maximum);
/// One percent on or back from the caption's first three characters; beyond 100 comes 0, below 0 comes 100.
QString steppedPercent(const QString& caption, Step step);
/// One level on or back; beyond 10 comes 0, below 0 comes 10.
QString steppedFireLevel(const QString& caption, Step step);

/// How much of the full amount a caption says, from 0 to 1, for a bar beside it. Never throws.
double shareShown(const QString& caption, double full);

/// Gives a number back that was computed from a stored text or a caption. Throws Overflow, naming that text,
/// if it is beyond all numbers.
double finiteOf(const QString& text, double value);

} // namespace torvane
