#include "shell/help_book.h"

#include "guide/write_guide.h"
#include "small_guide.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

class HelpBooks : public SmallGuide
{
protected:
    QByteArray file() const { return guideFile(readGuide(folder())); }
};

TEST_F(HelpBooks, HoldTheChaptersOfTheirLanguageInOrder)
{
    const std::optional<HelpBook> english = HelpBook::parse(file(), Language::English);
    const std::optional<HelpBook> german = HelpBook::parse(file(), Language::German);
    ASSERT_TRUE(english && german);
    ASSERT_EQ(english->chapters().size(), 2U);
    ASSERT_EQ(german->chapters().size(), 2U);
    EXPECT_EQ(english->chapters()[0].name, QStringLiteral("one"));
    EXPECT_EQ(english->chapters()[0].title, QStringLiteral("First & best"));
    EXPECT_EQ(english->chapters()[1].title, QStringLiteral("Second"));
    EXPECT_EQ(german->chapters()[0].title, QStringLiteral("Erstes & bestes"));
    EXPECT_EQ(german->chapters()[1].title, QStringLiteral("Zweites"));
    EXPECT_TRUE(german->chapters()[1].html.contains(QStringLiteral("zurück")));
    EXPECT_FALSE(german->chapters()[1].html.contains(QStringLiteral("torvane help")));
}

TEST_F(HelpBooks, ListTheSectionsOfAChapter)
{
    const std::optional<HelpBook> book = HelpBook::parse(file(), Language::German);
    ASSERT_TRUE(book);
    const QList<HelpSection> first{{QStringLiteral("de.one.top"), QStringLiteral("Das Oben")}};
    const QList<HelpSection> second{{QStringLiteral("de.two.sea"), QStringLiteral("Großes Meer")}};
    EXPECT_EQ(book->chapters()[0].sections, first);
    EXPECT_EQ(book->chapters()[1].sections, second);
}

TEST_F(HelpBooks, LinksNameChapterAndSection)
{
    const std::optional<HelpBook> book = HelpBook::parse(file(), Language::English);
    ASSERT_TRUE(book);
    EXPECT_TRUE(book->chapters()[0].html.contains(QStringLiteral("href=\"help:two#en.two.sea\"")));
    EXPECT_TRUE(book->chapters()[1].html.contains(QStringLiteral("href=\"help:two#en.two.sea\"")));
    EXPECT_TRUE(book->chapters()[1].html.contains(QStringLiteral("href=\"help:one#en.one\"")));
    EXPECT_TRUE(book->chapters()[0].html.contains(QStringLiteral("<h1 id=\"en.one\">")));
}

TEST_F(HelpBooks, HoldTheirPicturesByNumber)
{
    const std::optional<HelpBook> book = HelpBook::parse(file(), Language::English);
    ASSERT_TRUE(book);
    EXPECT_TRUE(book->chapters()[0].html.contains(QStringLiteral("<img src=\"picture:0\" width=\"4\"")));
    EXPECT_EQ(book->picture(0), dot);
    EXPECT_EQ(book->picture(1), QByteArray());
    EXPECT_EQ(book->picture(-1), QByteArray());
}

TEST_F(HelpBooks, FindAChapterByItsName)
{
    const std::optional<HelpBook> book = HelpBook::parse(file(), Language::English);
    ASSERT_TRUE(book);
    EXPECT_EQ(book->indexOf(QStringLiteral("two")), 1U);
    EXPECT_EQ(book->indexOf(QStringLiteral("three")), std::nullopt);
    EXPECT_EQ(book->indexOf(QString()), std::nullopt);
}

TEST_F(HelpBooks, TheFileIsPlainHtmlThatPointsNowhereOutside)
{
    const QByteArray bytes = file();
    EXPECT_TRUE(bytes.startsWith("<!DOCTYPE html>\n<html>"));
    EXPECT_TRUE(bytes.contains("<meta charset=\"utf-8\">"));
    EXPECT_TRUE(bytes.contains("<h2 id=\"en.two.sea\">"));
    EXPECT_TRUE(bytes.contains("<a href=\"#en.two.sea\">"));
    EXPECT_TRUE(bytes.contains("<img src=\"data:image/svg+xml;base64,"));
    EXPECT_FALSE(bytes.contains(".html"));
    EXPECT_FALSE(bytes.contains("../"));
}

TEST_F(HelpBooks, AFileThatIsNoneGivesNoBook)
{
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("<html><h1>Other</h1></html>"), QByteArray(5000, '\xFF'),
          QByteArray(5000, '\0'), QByteArray("<!-- torvane help end --><!-- torvane help 1 -->")}) {
        EXPECT_FALSE(HelpBook::parse(bytes, Language::English));
    }
}

TEST_F(HelpBooks, AFileCutOffAnywhereGivesNoBook)
{
    const QByteArray whole = file();
    ASSERT_TRUE(HelpBook::parse(whole, Language::German));
    const qsizetype end = whole.indexOf(QByteArray(helpFileEnd.data(), helpFileEnd.size()));
    for (qsizetype length = 0; length < end + helpFileEnd.size(); ++length) {
        ASSERT_FALSE(HelpBook::parse(whole.first(length), Language::German)) << length;
    }
}

TEST_F(HelpBooks, AFileOfOneLanguageServesThatOne)
{
    QByteArray bytes = file();
    bytes.replace("<!-- chapter de ", "<!-- kapitel de ");
    EXPECT_TRUE(HelpBook::parse(bytes, Language::English));
    EXPECT_FALSE(HelpBook::parse(bytes, Language::German));
}

TEST_F(HelpBooks, BytesChangedInTheMiddleDoNoHarm)
{
    const QByteArray whole = file();
    for (qsizetype at = 0; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        bytes[at] = '<';
        const std::optional<HelpBook> book = HelpBook::parse(bytes, Language::English);
        EXPECT_TRUE(!book || !book->chapters().empty());
    }
}

} // namespace
} // namespace torvane::testing
