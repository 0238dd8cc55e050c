#include "overview/overview_rules.h"

#include "platform/number_text.h"

#include <QRegularExpression>

namespace torvane {
namespace {

constexpr int titleLimit = 30;
constexpr int descriptionLimit = 370;
constexpr int highestHeading = 360;
constexpr float lowestModifier = 0.01F;
constexpr float highestModifier = 99.99F;
constexpr int modifierCharacters = 5;

LockedText lockedAt(const QString& text, qsizetype limit)
{
    if (text.size() < limit) {
        return {text, false};
    }
    const bool halvesACharacter = text.at(limit - 1).isHighSurrogate();
    return {text.left(halvesACharacter ? limit - 1 : limit), true};
}

} // namespace

LockedText lockedTitle(const QString& text)
{
    return lockedAt(text, titleLimit);
}

LockedText lockedDescription(const QString& text)
{
    return lockedAt(text, descriptionLimit);
}

QString oneParagraph(const QString& text)
{
    static const QRegularExpression lineBreak(QStringLiteral("\r\n|[\r\n\\x{2028}\\x{2029}]"));
    return QString(text).replace(lineBreak, QStringLiteral(" ")).trimmed();
}

TypedCheck checkHeading(QStringView text)
{
    const double heading = integerPart(text);
    if (heading < 0 || heading > highestHeading) {
        return {false, QStringLiteral("0")};
    }
    return {true, text.toString()};
}

QString steppedHeading(QStringView text, int step)
{
    const int heading = integerValue(text) + step;
    if (heading < 0) {
        return QString::number(highestHeading);
    }
    return QString::number(heading > highestHeading ? 0 : heading);
}

QString steppedHeadingInSinglePrecision(QStringView text)
{
    const float heading = singleValue(text) + 1.0F;
    return textOf(heading > highestHeading ? 0.0F : heading);
}

TypedCheck checkVictoryModifier(QStringView text)
{
    const double modifier = integerPart(text.left(modifierCharacters));
    if (modifier < 0 || modifier >= 99.99) {
        return {false, QStringLiteral("0")};
    }
    return {true, text.toString()};
}

QString steppedVictoryModifier(QStringView text, float step)
{
    const float modifier = singleValue(text.left(modifierCharacters)) + step;
    if (modifier < lowestModifier) {
        return textOf(highestModifier);
    }
    return textOf(modifier > highestModifier ? lowestModifier : modifier);
}

} // namespace torvane
