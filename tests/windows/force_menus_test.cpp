#include "shell/commands.h"
#include "shell/main_menu.h"
#include "store/force_sizes.h"
#include "support/printers.h"

#include <QAction>
#include <QMenuBar>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

/// What the Reposition entries of a side are called.
class ForceMenus : public ::testing::Test
{
protected:
    QStringList repositionCaptions(bool forceA)
    {
        QStringList captions;
        for (int number = 1; number <= divisionsPerSide; ++number) {
            captions.append(menu.action(QLatin1StringView(repositionRow(forceA, number).entry))->text());
        }
        return captions;
    }

    QMenuBar bar;
    MainMenu menu{&bar};
};

const QStringList germanNumbers{QStringLiteral("Verband 1"), QStringLiteral("Verband 2"),
                                QStringLiteral("Verband 3"), QStringLiteral("Verband 4"),
                                QStringLiteral("Verband 5"), QStringLiteral("Verband 6")};

TEST_F(ForceMenus, ADivisionThatIsMadeHasItsOwnNumberInTheGermanProgramToo)
{
    menu.setCaptions(Language::German);
    ASSERT_EQ(repositionCaptions(false).first(), QStringLiteral("Verband 5")) << "before there is one";
    for (int divisions = 1; divisions <= divisionsPerSide; ++divisions) {
        menu.enableForceMenus(divisions, divisions);
    }
    EXPECT_EQ(repositionCaptions(true), germanNumbers);
    EXPECT_EQ(repositionCaptions(false), germanNumbers);
    EXPECT_EQ(menu.blueDivisionCount(), 0) << "counted in by a load alone";
}

TEST_F(ForceMenus, EveryDivisionOfALoadHasItsOwnNumberInTheGermanProgramToo)
{
    menu.setCaptions(Language::German);
    for (int i = 0; i < divisionsPerSide; ++i) {
        menu.addRepositionMenuEntry(QString(), QStringLiteral("Blue"));
        menu.addRepositionMenuEntry(QString(), QStringLiteral("Red"));
    }
    EXPECT_EQ(repositionCaptions(true), germanNumbers);
    EXPECT_EQ(repositionCaptions(false), germanNumbers);
}

} // namespace
} // namespace torvane::testing
