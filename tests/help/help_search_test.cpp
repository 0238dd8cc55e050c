#include "shell/help_search.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QStringList chapters{QStringLiteral("Sea and sky"), QString(), QStringLiteral("The SEA, the sea"),
                           QStringLiteral("aaaa")};

TEST(HelpSearches, FindEveryPlaceWhateverTheCapitals)
{
    EXPECT_THAT(HelpSearch(chapters, QStringLiteral("sea")).places(),
                ElementsAre(HelpPlace{0, 0}, HelpPlace{2, 4}, HelpPlace{2, 13}));
}

TEST(HelpSearches, PlacesDoNotOverlap)
{
    EXPECT_THAT(HelpSearch(chapters, QStringLiteral("aa")).places(),
                ElementsAre(HelpPlace{3, 0}, HelpPlace{3, 2}));
}

TEST(HelpSearches, FindUmlautsWhateverTheCapitals)
{
    EXPECT_THAT(HelpSearch({QStringLiteral("der ÜBER")}, QStringLiteral("über")).places(),
                ElementsAre(HelpPlace{0, 4}));
}

TEST(HelpSearches, AnEmptyTextStandsNowhere)
{
    EXPECT_THAT(HelpSearch(chapters, QString()).places(), IsEmpty());
}

TEST(HelpSearches, GoOnwardAcrossChaptersAndRoundTheEnd)
{
    const HelpSearch search(chapters, QStringLiteral("sea"));
    EXPECT_EQ(search.atOrAfter({0, 0}), 0U);
    EXPECT_EQ(search.atOrAfter({0, 1}), 1U);
    EXPECT_EQ(search.atOrAfter({1, 0}), 1U);
    EXPECT_EQ(search.atOrAfter({2, 5}), 2U);
    EXPECT_EQ(search.atOrAfter({2, 14}), 0U);
}

TEST(HelpSearches, GoBackAcrossChaptersAndRoundTheStart)
{
    const HelpSearch search(chapters, QStringLiteral("sea"));
    EXPECT_EQ(search.before({2, 13}), 1U);
    EXPECT_EQ(search.before({2, 4}), 0U);
    EXPECT_EQ(search.before({0, 0}), 2U);
    EXPECT_EQ(search.before({3, 0}), 2U);
}

TEST(HelpSearches, WithoutPlacesGoNowhere)
{
    const HelpSearch search(chapters, QStringLiteral("land"));
    EXPECT_EQ(search.atOrAfter({0, 0}), std::nullopt);
    EXPECT_EQ(search.before({3, 0}), std::nullopt);
}

} // namespace
} // namespace torvane
