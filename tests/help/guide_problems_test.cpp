#include "guide/check_guide.h"
#include "platform/runtime_error.h"
#include "small_guide.h"
#include "support/expect_error.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GuideProblems : public SmallGuide
{
protected:
    std::vector<std::string> problems() const
    {
        std::vector<std::string> texts;
        for (const QString& text : guideProblems(readGuide(folder()))) {
            texts.push_back(text.toStdString());
        }
        return texts;
    }
};

TEST_F(GuideProblems, ASoundGuideHasNone)
{
    EXPECT_THAT(problems(), IsEmpty());
}

TEST_F(GuideProblems, AChapterThatIsMissingInOneLanguageCanNotBeRead)
{
    ASSERT_TRUE(QFile::remove(folder() + QStringLiteral("/de/two.html")));
    expectError(RuntimeError::FileNotFound, [this] { readGuide(folder()); });
}

TEST_F(GuideProblems, ALinkToNoChapterIsNamed)
{
    for (const char* language : {"en", "de"}) {
        spoil(QLatin1StringView(language) + QStringLiteral("/two.html"), "one.html", "three.html");
    }
    EXPECT_THAT(problems(), ElementsAre("en/two.html: the link \"three.html\" leads nowhere",
                                        "de/two.html: the link \"three.html\" leads nowhere"));
}

TEST_F(GuideProblems, ALinkToNoSectionIsNamed)
{
    for (const char* language : {"en", "de"}) {
        spoil(QLatin1StringView(language) + QStringLiteral("/one.html"), "two.html#sea", "two.html#land");
    }
    EXPECT_THAT(problems(), ElementsAre("en/one.html: the link \"two.html#land\" leads nowhere",
                                        "de/one.html: the link \"two.html#land\" leads nowhere"));
}

TEST_F(GuideProblems, ALinkOutOfTheGuideLeadsNowhere)
{
    spoil(QStringLiteral("en/two.html"), "one.html", "http://example.org/one.html");
    EXPECT_THAT(problems(), Contains("en/two.html: the link \"http://example.org/one.html\" leads nowhere"));
}

TEST_F(GuideProblems, AMissingPictureIsNamed)
{
    ASSERT_TRUE(QFile::remove(folder() + QStringLiteral("/pictures/dot.svg")));
    EXPECT_THAT(problems(), ElementsAre("en/one.html: the picture pictures/dot.svg is missing",
                                        "de/one.html: the picture pictures/dot.svg is missing"));
}

TEST_F(GuideProblems, APictureNeedsSizeAndDescription)
{
    spoil(QStringLiteral("en/one.html"), " alt=\"A dot\"", "");
    EXPECT_THAT(problems(), ElementsAre("en/one.html: ../pictures/dot.svg has no alt"));
}

TEST_F(GuideProblems, AnElementThatIsNotClosedIsNamed)
{
    spoil(QStringLiteral("en/two.html"), "</a>, ", ", ");
    EXPECT_EQ(problems().size(), 1U);
    EXPECT_THAT(problems(), Contains(::testing::StartsWith("en/two.html: line 3:")));
}

TEST_F(GuideProblems, ASectionNeedsANameOfItsOwn)
{
    for (const char* language : {"en", "de"}) {
        spoil(QLatin1StringView(language) + QStringLiteral("/one.html"), "</h1>",
              "</h1><h2 id=\"top\">x</h2><h2>y</h2>");
    }
    EXPECT_THAT(problems(),
                ElementsAre("en/one.html: an h2 has no id", "en/one.html: two sections are called top",
                            "de/one.html: an h2 has no id", "de/one.html: two sections are called top"));
}

TEST_F(GuideProblems, AChapterBeginsWithItsOneHeading)
{
    spoil(QStringLiteral("de/two.html"), "<h1>Zweites</h1>", "<p>Zweites</p>");
    EXPECT_THAT(problems(), Contains("de/two.html: doesn't begin with its one h1"));
}

TEST_F(GuideProblems, WhatOneLanguageLacksIsNamed)
{
    spoil(QStringLiteral("de/two.html"), "<p>Bis ", "<p>Bis</p><p>");
    EXPECT_THAT(problems(), ElementsAre("de/two.html: has 2 elements p, the English chapter 1"));
}

TEST_F(GuideProblems, OtherSectionsInOneLanguageAreNamed)
{
    spoil(QStringLiteral("de/one.html"), "id=\"top\"", "id=\"oben\"");
    EXPECT_THAT(problems(), ElementsAre("de/one.html: has other sections than the English chapter"));
}

TEST_F(GuideProblems, OtherLinksInOneLanguageAreNamed)
{
    spoil(QStringLiteral("de/one.html"), "two.html#sea", "two.html");
    EXPECT_THAT(problems(), ElementsAre("de/one.html: has other links than the English chapter"));
}

TEST_F(GuideProblems, OtherPicturesInOneLanguageAreNamed)
{
    put(QStringLiteral("pictures/star.svg"), dot);
    spoil(QStringLiteral("de/one.html"), "dot.svg", "star.svg");
    EXPECT_THAT(problems(), ElementsAre("de/one.html: has other pictures than the English chapter"));
}

TEST_F(GuideProblems, APictureMayHaveWordsInEachLanguage)
{
    put(QStringLiteral("pictures/en/dot.svg"), dot);
    put(QStringLiteral("pictures/de/dot.svg"), dot);
    spoil(QStringLiteral("en/one.html"), "pictures/dot", "pictures/en/dot");
    spoil(QStringLiteral("de/one.html"), "pictures/dot", "pictures/de/dot");
    EXPECT_THAT(problems(), IsEmpty());
}

} // namespace
} // namespace torvane::testing
