#include "platform/code_page.h"

#include <algorithm>
#include <array>

namespace torvane {

namespace {

constexpr unsigned char firstSpecial = 0x80;

// The characters of 0x80 to 0x9F, where the code page leaves Latin-1. The five codes without a character
// stand for themselves.
constexpr std::array<char16_t, 32> specials{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t characterOf(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    const bool special = code >= firstSpecial && code < firstSpecial + specials.size();
    return special ? specials[code - firstSpecial] : char16_t{code};
}

char byteOf(char16_t character)
{
    if (character < firstSpecial || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* const found = std::find(specials.begin(), specials.end(), character);
    return found == specials.end() ? '?' : static_cast<char>(firstSpecial + (found - specials.begin()));
}

/// Whether all characters are ASCII, as most are: these are in every code page.
bool isPlain(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < firstSpecial; });
}
bool isPlain(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c < QChar(firstSpecial); });
}

} // namespace

QString fromCodePage(QByteArrayView bytes)
{
    if (isPlain(bytes)) {
        return QString::fromLatin1(bytes);
    }
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return QChar(characterOf(byte)); });
    return text;
}

QByteArray toCodePage(QStringView text)
{
    if (isPlain(text)) {
        return text.toLatin1();
    }
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char* end = bytes.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        *end++ = byteOf(text[i].unicode());
        const bool pair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        i += pair ? 1 : 0;
    }
    bytes.truncate(end - bytes.data());
    return bytes;
}

} // namespace torvane
