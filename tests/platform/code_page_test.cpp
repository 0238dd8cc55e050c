#include "platform/code_page.h"

#include "support/printers.h"

#include <gmock/gmock.h>

#include <array>
#include <utility>

namespace torvane {
namespace {

// Typed from the code chart, apart from the program's own table.
constexpr std::array<std::pair<char, char16_t>, 27> chart{{
    {'\x80', u'\u20AC'}, {'\x82', u'\u201A'}, {'\x83', u'\u0192'}, {'\x84', u'\u201E'}, {'\x85', u'\u2026'},
    {'\x86', u'\u2020'}, {'\x87', u'\u2021'}, {'\x88', u'\u02C6'}, {'\x89', u'\u2030'}, {'\x8A', u'\u0160'},
    {'\x8B', u'\u2039'}, {'\x8C', u'\u0152'}, {'\x8E', u'\u017D'}, {'\x91', u'\u2018'}, {'\x92', u'\u2019'},
    {'\x93', u'\u201C'}, {'\x94', u'\u201D'}, {'\x95', u'\u2022'}, {'\x96', u'\u2013'}, {'\x97', u'\u2014'},
    {'\x98', u'\u02DC'}, {'\x99', u'\u2122'}, {'\x9A', u'\u0161'}, {'\x9B', u'\u203A'}, {'\x9C', u'\u0153'},
    {'\x9E', u'\u017E'}, {'\x9F', u'\u0178'},
}};

constexpr std::array<char, 5> withoutCharacter{'\x81', '\x8D', '\x8F', '\x90', '\x9D'};

QByteArray allBytes()
{
    QByteArray bytes;
    for (int code = 0; code < 256; ++code) {
        bytes.append(static_cast<char>(code));
    }
    return bytes;
}

QByteArray encoded(char16_t character)
{
    return toCodePage(QStringView(&character, 1));
}

TEST(CodePage, All256BytesComeBackUnchanged)
{
    EXPECT_EQ(toCodePage(fromCodePage(allBytes())), allBytes());
}

TEST(CodePage, EveryByteIsOneCharacterOfItsOwn)
{
    const QString text = fromCodePage(allBytes());
    ASSERT_EQ(text.size(), 256);
    for (const QChar c : text) {
        EXPECT_EQ(text.count(c), 1) << int{c.unicode()};
    }
}

TEST(CodePage, TheSpecialCharactersAreThoseOfTheChart)
{
    for (const auto& [byte, character] : chart) {
        EXPECT_EQ(fromCodePage(QByteArray(1, byte)), QString(QChar(character))) << int{character};
        EXPECT_EQ(encoded(character), QByteArray(1, byte)) << int{character};
    }
}

TEST(CodePage, TheFiveBytesWithoutACharacterBecomeTheirControlCharacters)
{
    for (const char byte : withoutCharacter) {
        const char16_t control = static_cast<unsigned char>(byte);
        EXPECT_EQ(fromCodePage(QByteArray(1, byte)), QString(QChar(control)));
        EXPECT_EQ(encoded(control), QByteArray(1, byte));
    }
}

TEST(CodePage, EverythingElseIsLatin1)
{
    for (int code = 0; code < 256; ++code) {
        if (code < 0x80 || code > 0x9F) {
            EXPECT_EQ(fromCodePage(QByteArray(1, static_cast<char>(code))), QString(QChar(code))) << code;
        }
    }
}

TEST(CodePage, UmlautsAreOneByteEach)
{
    EXPECT_EQ(toCodePage(u"Köln Größe"), QByteArray("K\xF6ln Gr\xF6\xDF"
                                                    "e"));
}

TEST(CodePage, EveryOtherCharacterOfTheBasicPlaneBecomesOneQuestionMark)
{
    const QString known = fromCodePage(allBytes());
    int questionMarks = 0;
    for (int code = 0; code <= 0xFFFF; ++code) {
        if (!known.contains(QChar(code))) {
            ASSERT_EQ(encoded(static_cast<char16_t>(code)), QByteArray("?")) << std::hex << code;
            ++questionMarks;
        }
    }
    EXPECT_EQ(questionMarks, 0x10000 - 256);
}

TEST(CodePage, AControlCharacterWhoseCodeIsTakenBecomesAQuestionMark)
{
    EXPECT_EQ(toCodePage(QString(QChar(0x80))), QByteArray("?"));
    EXPECT_EQ(toCodePage(QString(QChar(0x9F))), QByteArray("?"));
}

TEST(CodePage, ACharacterOutsideTheBasicPlaneBecomesOneQuestionMark)
{
    EXPECT_EQ(toCodePage(u"a\U0001F6A2b\U0001F6A2\U0001F6A2"), QByteArray("a?b??"));
}

TEST(CodePage, ALoneSurrogateBecomesOneQuestionMarkAndSwallowsNothing)
{
    const QChar high(0xD83D);
    const QChar low(0xDEA2);
    EXPECT_EQ(toCodePage(QString(high) + u'x'), QByteArray("?x"));
    EXPECT_EQ(toCodePage(QString(low) + u'x'), QByteArray("?x"));
    EXPECT_EQ(toCodePage(QString(high)), QByteArray("?"));
    EXPECT_EQ(toCodePage(QString(high) + high + low), QByteArray("??"));
    EXPECT_EQ(toCodePage(QString(low) + high), QByteArray("??"));
}

TEST(CodePage, TheSubstituteCharacterNeverAppears)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        if (code != 0x1A) {
            ASSERT_FALSE(encoded(static_cast<char16_t>(code)).contains('\x1A')) << std::hex << code;
        }
    }
    EXPECT_FALSE(toCodePage(u"\U0001F6A2 Ω \u0416").contains('\x1A'));
}

TEST(CodePage, EmptyStaysEmpty)
{
    EXPECT_TRUE(fromCodePage({}).isEmpty());
    EXPECT_TRUE(toCodePage({}).isEmpty());
}

TEST(CodePage, AZeroByteIsACharacterLikeAnother)
{
    EXPECT_EQ(fromCodePage(QByteArrayView("a\0b", 3)).size(), 3);
    EXPECT_EQ(toCodePage(QStringView(u"a\0b", 3)), QByteArray("a\0b", 3));
}

} // namespace
} // namespace torvane
