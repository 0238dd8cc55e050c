#pragma once

#include <QString>
#include <QStringView>

namespace torvane {

/// What becomes of a box after a typed value was tested: a refusal calls for the box's message. `text` is
/// what the box then holds.
struct TypedCheck
{
    bool accepted;
    QString text;

    bool operator==(const TypedCheck&) const = default;
};

/// The number value of a text; a number beyond the range of a double is infinite. Never throws.
double boundedValue(QStringView text);

/// The integer part, rounded down, of the number value. May be infinite. Never throws.
double integerPart(QStringView text);

/// The number value as a 16-bit integer, rounded with ties to even; a number beyond 16 bits becomes the
/// nearest bound. Never throws.
int integerValue(QStringView text);

/// The number value in single precision; a number beyond a million either way becomes a million. Never
/// throws.
float singleValue(QStringView text);

} // namespace torvane
