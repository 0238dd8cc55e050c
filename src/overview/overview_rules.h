#pragma once

#include "overview/typed_values.h"

#include <QString>
#include <QStringView>

namespace torvane {

/// A text at its limit is cut to it, and the box takes no more keys until it is released.
struct LockedText
{
    QString text;
    bool locked;

    bool operator==(const LockedText&) const = default;
};

/// The rules of the title (30 characters) and the description (370). A character outside the basic plane
/// counts as two and is never cut in half.
LockedText lockedTitle(const QString& text);
LockedText lockedDescription(const QString& text);

/// The text in one line: every line break inside becomes a blank, those at the ends go with the blanks.
QString oneParagraph(const QString& text);

/// Disengage headings, degrees 0 to 360. Accepts what has its integer part there and leaves it as typed; a
/// refused box holds "0".
TypedCheck checkHeading(QStringView text);
/// The heading after a step of +1 or -1, in integers, wrapping: above 360 comes 0, below 0 comes 360.
QString steppedHeading(QStringView text, int step);
/// The heading after +1 in single precision, which keeps a fraction.
QString steppedHeadingInSinglePrecision(QStringView text);

/// Victory modifiers, of which the first five characters count. Accepts an integer part of at least 0 and
/// below 99.99, so 0 passes; a refused box holds "0".
TypedCheck checkVictoryModifier(QStringView text);
/// The modifier after a step (1.00 or 0.01, either way) in single precision: below 0.01 comes 99.99 and
/// above 99.99 comes 0.01. Shortest form: "2", not "2.00".
QString steppedVictoryModifier(QStringView text, float step);

} // namespace torvane
