#include "shell/help_texts.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

TEST(HelpTexts, BoxesNameTheFileInBothLanguages)
{
    for (const HelpText text : {HelpText::FileMissing, HelpText::FileUnreadable, HelpText::FileDamaged}) {
        for (const Language language : {Language::English, Language::German}) {
            EXPECT_EQ(helpText(text, language).count(QStringLiteral("%1")), 1);
        }
    }
}

TEST(HelpTexts, RowsStandInTheOrderOfTheirKeys)
{
    for (std::size_t i = 0; i < helpTexts.size(); ++i) {
        EXPECT_EQ(static_cast<std::size_t>(helpTexts[i].key), i);
    }
}

TEST(HelpTexts, EveryDialogHasItsChapter)
{
    const std::pair<const char*, const char*> chapters[] = {
        {"OverviewFrm", "overview"}, {"EnviroFrm", "environment"}, {"CreateDivisionFrm", "divisions"},
        {"ShipDBaseFrm", "ships"},   {"ShipDataFrm", "condition"}, {"ZoomLevelFrm", "map"},
        {"GridLevelFrm", "map"},     {"AboutFrm", "welcome"},
    };
    for (const auto& [window, chapter] : chapters) {
        EXPECT_EQ(helpChapterFor(QString::fromLatin1(window)), QLatin1StringView(chapter));
    }
    EXPECT_EQ(helpChapterFor(u"frmSplash"), QString());
}

} // namespace
} // namespace torvane
