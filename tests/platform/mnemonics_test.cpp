#include "platform/mnemonics.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

TEST(MnemonicOf, IsTheLetterBehindTheSignInLowerCase)
{
    EXPECT_EQ(mnemonicOf(text("&Save")), QLatin1Char('s'));
    EXPECT_EQ(mnemonicOf(text("Save &As")), QLatin1Char('a'));
    EXPECT_EQ(mnemonicOf(text("&Über")), QChar(0xFC));
}

TEST(MnemonicOf, ThereIsNoneWithoutASign)
{
    for (const char* caption : {"", "OK", "&", "Save &", "Fish && Chips", "&&"}) {
        EXPECT_TRUE(mnemonicOf(text(caption)).isNull()) << caption;
    }
}

TEST(MnemonicOf, ADoubledSignIsNoMarkButOneBehindItIs)
{
    EXPECT_EQ(mnemonicOf(text("Fish && &Chips")), QLatin1Char('c'));
    EXPECT_EQ(mnemonicOf(text("&&&Chips")), QLatin1Char('c'));
}

TEST(WithMnemonic, MarksTheFirstLetterAndTakesIt)
{
    QString taken;
    EXPECT_EQ(withMnemonic(text("Title:"), taken), text("&Title:"));
    EXPECT_EQ(taken, text("t"));
}

TEST(WithMnemonic, PrefersTheStartOfAnotherWordToALetterInside)
{
    QString taken = text("d");
    EXPECT_EQ(withMnemonic(text("Disengage Heading:"), taken), text("Disengage &Heading:"));
    EXPECT_EQ(withMnemonic(text("Disengage Heading:"), taken), text("D&isengage Heading:"));
    EXPECT_EQ(withMnemonic(text("SP-Modifikator"), taken), text("&SP-Modifikator"));
    EXPECT_EQ(withMnemonic(text("SP-Modifikator"), taken), text("SP-&Modifikator"));
    EXPECT_EQ(withMnemonic(text("SP-Modifikator"), taken), text("S&P-Modifikator"));
}

TEST(WithMnemonic, KeepsTheOneThatThereIs)
{
    QString taken;
    EXPECT_EQ(withMnemonic(text("Save &As"), taken), text("Save &As"));
    EXPECT_EQ(taken, text("a"));
}

TEST(WithMnemonic, LeavesACaptionAloneWhoseLettersAreAllTaken)
{
    QString taken = text("ok");
    EXPECT_EQ(withMnemonic(text("OK"), taken), text("OK"));
    EXPECT_EQ(withMnemonic(text("12:30"), taken), text("12:30"));
    EXPECT_EQ(withMnemonic(QString(), taken), QString());
    EXPECT_EQ(taken, text("ok"));
}

TEST(WithMnemonic, TakesCapitalAndSmallForTheSameKey)
{
    QString taken = text("r");
    EXPECT_EQ(withMnemonic(text("Radar"), taken), text("R&adar"));
}

TEST(WithMnemonic, SkipsBlanksAndSignsInFront)
{
    QString taken;
    EXPECT_EQ(withMnemonic(text(" Force A"), taken), text(" &Force A"));
    EXPECT_EQ(withMnemonic(text("(Force)"), taken), text("(F&orce)"));
}

} // namespace
} // namespace torvane
