#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>

namespace torvane {

class RuntimeError;

/// The number at the start of a text: blanks, tabs and line breaks are ignored, also inside; a sign, digits,
/// a decimal point and an exponent (E or D) are taken, and the first character that can't belong to a number
/// ends it. Never depends on a locale. No number at all, "INVALID" and the empty text are 0. A number beyond
/// the range of a double throws Overflow.
double numberValue(QStringView text);

/// Nearest whole number, ties to the even neighbour. Stays a double, so it never overflows.
double roundEven(double value);

/// Largest whole number not above the value. Stays a double.
double floorOf(double value);

/// The value rounded (ties to even) into 16 or 32 bits. Throw Overflow with the value in the text if it
/// doesn't fit or is not a number.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

/// The error for a value out of range, which it names.
RuntimeError overflow(const QString& value);

/// Text of a number with up to 15 significant digits (double) or 7 (single): a point, no trailing zeros, no
/// grouping; 0 for either zero. From 1E+15 (1E+07 for a single) up, and for sizes below 0.0001, in the form
/// "1.5E+15".
QString textOf(double value);
QString textOf(float value);

/// A whole number with a comma before each group of three digits: 6000 gives "6,000", in both languages.
QString groupedThousands(std::int64_t value);

} // namespace torvane
