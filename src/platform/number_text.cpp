#include "platform/number_text.h"

#include "platform/runtime_error.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace torvane {

RuntimeError overflow(const QString& value)
{
    constexpr qsizetype longest = 40;
    const QString shown = value.size() > longest ? value.left(longest) + QStringLiteral("...") : value;
    return {RuntimeError::Overflow, QStringLiteral("Overflow: %1 is out of range.").arg(shown)};
}

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// Walks over a text without its blanks, tabs and line breaks.
class Characters
{
public:
    explicit Characters(QStringView text) : m_text(text) { skipBlanks(); }

    QChar current() const { return m_at < m_text.size() ? m_text[m_at] : QChar(); }
    void next()
    {
        ++m_at;
        skipBlanks();
    }

private:
    void skipBlanks()
    {
        while (m_at < m_text.size() && QStringView(u" \t\r\n").contains(m_text[m_at])) {
            ++m_at;
        }
    }

    QStringView m_text;
    qsizetype m_at = 0;
};

/// A number as it was written: the form that std::from_chars takes, and what tells too large from too small.
struct WrittenNumber
{
    std::string text;
    bool hasDigits = false;
    bool isZero = true;
    qsizetype integerDigits = 0; ///< from the first digit that is not 0
    qsizetype exponent = 0;
};

void takeMantissa(Characters& characters, WrittenNumber& number)
{
    bool inFraction = false;
    for (QChar c = characters.current(); isDigit(c) || (c == u'.' && !inFraction);
         characters.next(), c = characters.current()) {
        if (c == u'.') {
            inFraction = true;
        } else {
            number.hasDigits = true;
            number.isZero = number.isZero && c == u'0';
            number.integerDigits += inFraction || number.isZero ? 0 : 1;
        }
        number.text.push_back(static_cast<char>(c.unicode()));
    }
}

void takeExponent(Characters& characters, WrittenNumber& number)
{
    const QChar letter = characters.current().toUpper();
    if (letter != u'E' && letter != u'D') {
        return;
    }
    characters.next();
    const bool negative = characters.current() == u'-';
    if (negative || characters.current() == u'+') {
        characters.next();
    }
    // Far beyond what any text of a number can make up for with its digits.
    constexpr qsizetype limit = std::numeric_limits<qsizetype>::max() / 100;
    for (; isDigit(characters.current()); characters.next()) {
        const auto digit = static_cast<qsizetype>(characters.current().unicode() - u'0');
        number.exponent = std::min(limit, number.exponent * 10 + digit);
    }
    number.exponent = negative ? -number.exponent : number.exponent;
    number.text += 'e' + std::to_string(number.exponent);
}

template <typename Integer>
Integer toInteger(double value)
{
    const double rounded = roundEven(value);
    using Limits = std::numeric_limits<Integer>;
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
        throw overflow(textOf(value));
    }
    return static_cast<Integer>(rounded);
}

/// The significant digits of a size, rounded, without trailing zeros, and the power of ten of the first one.
struct Decimal
{
    QString digits;
    int exponent = 0;
};

Decimal decimalOf(double size, int significant)
{
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), size,
                                   std::chars_format::scientific, significant - 1);
    const QLatin1StringView text(buffer.data(), end.ptr);
    const qsizetype e = text.indexOf(u'e');
    QString digits = text.left(e).toString().remove(u'.');
    while (digits.size() > 1 && digits.endsWith(u'0')) {
        digits.chop(1);
    }
    return {.digits = digits, .exponent = text.mid(e + 1).toInt()};
}

QString scientificText(const Decimal& decimal)
{
    QString text = decimal.digits.left(1);
    if (decimal.digits.size() > 1) {
        text += u'.' + decimal.digits.mid(1);
    }
    const QString power = QString::number(std::abs(decimal.exponent)).rightJustified(2, u'0');
    return text + (decimal.exponent < 0 ? QStringLiteral("E-") : QStringLiteral("E+")) + power;
}

QString plainText(const Decimal& decimal)
{
    if (decimal.exponent < 0) {
        return QStringLiteral("0.") + QString(-decimal.exponent - 1, u'0') + decimal.digits;
    }
    const qsizetype integerDigits = decimal.exponent + 1;
    if (decimal.digits.size() <= integerDigits) {
        return decimal.digits.leftJustified(integerDigits, u'0');
    }
    return decimal.digits.left(integerDigits) + u'.' + decimal.digits.mid(integerDigits);
}

QString significantText(double value, int significant)
{
    if (std::isnan(value)) {
        return QStringLiteral("NaN");
    }
    const QString sign = value < 0 ? QStringLiteral("-") : QString();
    if (std::isinf(value)) {
        return sign + QStringLiteral("Infinity");
    }
    if (value == 0) {
        return QStringLiteral("0");
    }
    constexpr int smallestPlainExponent = -4;
    const Decimal decimal = decimalOf(std::abs(value), significant);
    const bool plain = decimal.exponent >= smallestPlainExponent && decimal.exponent < significant;
    return sign + (plain ? plainText(decimal) : scientificText(decimal));
}

} // namespace

double numberValue(QStringView text)
{
    Characters characters(text);
    const bool negative = characters.current() == u'-';
    if (negative || characters.current() == u'+') {
        characters.next();
    }
    WrittenNumber number;
    takeMantissa(characters, number);
    if (!number.hasDigits || number.isZero) {
        return 0;
    }
    takeExponent(characters, number);

    double value = 0;
    const auto result = std::from_chars(number.text.data(), number.text.data() + number.text.size(), value);
    const bool tooLarge = number.integerDigits + number.exponent > 0;
    if (result.ec == std::errc::result_out_of_range && !tooLarge) {
        return 0;
    }
    if (result.ec == std::errc::result_out_of_range || std::isinf(value)) {
        throw overflow(text.toString());
    }
    return negative ? -value : value;
}

double roundEven(double value)
{
    return std::nearbyint(value);
}

double floorOf(double value)
{
    return std::floor(value);
}

std::int16_t toInt16(double value)
{
    return toInteger<std::int16_t>(value);
}

std::int32_t toInt32(double value)
{
    return toInteger<std::int32_t>(value);
}

QString textOf(double value)
{
    return significantText(value, 15);
}

QString textOf(float value)
{
    return significantText(double{value}, 7);
}

QString groupedThousands(std::int64_t value)
{
    QString text = QString::number(value);
    const qsizetype firstDigit = value < 0 ? 1 : 0;
    for (qsizetype at = text.size() - 3; at > firstDigit; at -= 3) {
        text.insert(at, u',');
    }
    return text;
}

} // namespace torvane
