#include "map/grid_level_frm.h"

#include "level_dialog_fixture.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

class GridDialog : public LevelDialogOf<GridLevelFrm, &Editor::gridLevelFrm, &MainFrm::chkUnloadGrid>
{
};

TEST_F(GridDialog, HasItsTextsInBothLanguages)
{
    startPastSplash(Language::English);
    EXPECT_EQ(form().windowTitle(), QStringLiteral("Grid Size"));
    EXPECT_EQ(request(), QStringLiteral("Select a size for the grid."));
    EXPECT_EQ(caption("optLevel3"), QStringLiteral("Small"));
    EXPECT_EQ(caption("optLevel2"), QStringLiteral("Medium"));
    EXPECT_EQ(caption("optLevel1"), QStringLiteral("Large"));
    EXPECT_EQ(caption("optOff"), QStringLiteral("Grid Off"));
    startPastSplash(Language::German);
    EXPECT_EQ(form().windowTitle(), QStringLiteral("Rastergröße"));
    EXPECT_EQ(request(), QStringLiteral("Rastergröße wählen"));
    EXPECT_EQ(caption("optLevel3"), QStringLiteral("Klein"));
    EXPECT_EQ(caption("optLevel2"), QStringLiteral("Mittel"));
    EXPECT_EQ(caption("optLevel1"), QStringLiteral("Groß"));
    EXPECT_EQ(caption("optOff"), QStringLiteral("Raster aus"));
}

TEST_F(GridDialog, StacksItsOptionsFromSmallToOff)
{
    startPastSplash();
    openAt(3);
    EXPECT_EQ(namesDown().join(u' '), QStringLiteral("optLevel3 optLevel2 optLevel1 optOff"));
}

TEST_F(GridDialog, HasNoButtonsBesidesItsOptions)
{
    startPastSplash();
    expectOptionsAlone(4);
}

TEST_F(GridDialog, IsLoadedAtItsFirstNeed)
{
    expectLoadedAtFirstNeed("GridLevelFrm");
}

TEST_F(GridDialog, StartsWithTheSmallGrid)
{
    startPastSplash();
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optLevel3")});
    EXPECT_EQ(form().gridIndex(), 3);
    EXPECT_EQ(valueOf(flag()), 0);
}

TEST_F(GridDialog, EachOptionLeavesItAndMeansItsIndex)
{
    startPastSplash();
    constexpr std::array<std::pair<const char*, int>, 4> options{
        {{"optOff", 0}, {"optLevel1", 1}, {"optLevel2", 2}, {"optLevel3", 3}}};
    for (const auto& [name, index] : options) {
        openAt(form().gridIndex());
        expectShown();
        click(option(name));
        expectLeft(0);
        EXPECT_EQ(form().gridIndex(), index) << name;
        EXPECT_EQ(namesOn(), QStringList{QLatin1StringView(name)});
    }
}

TEST_F(GridDialog, ClickingTheOptionThatIsOnDoesNotLeaveIt)
{
    startPastSplash();
    openAt(3);
    click(option("optLevel3"));
    expectShown();
}

TEST_F(GridDialog, TheCloseBoxAndEscLeaveItWithTheFlagOfTheGridSet)
{
    startPastSplash();
    openAt(3);
    closeBox(&form());
    expectLeft(1);
    EXPECT_EQ(valueOf(editor().mainFrm().chkUnloadZoom), 0);
    openAt(3);
    EXPECT_EQ(valueOf(flag()), 1) << "the default is on already";
    press(&form(), Qt::Key_Escape);
    expectLeft(1);
}

TEST_F(GridDialog, AfterTheCloseBoxGridOffIsTurnedOnAnewAndClearsTheFlag)
{
    startPastSplash();
    openAt(3);
    click(option("optOff"));
    openAt(0);
    closeBox(&form());
    expectLeft(1);
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optLevel3")});
    openAt(0);
    expectShown();
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optOff")});
    EXPECT_EQ(valueOf(flag()), 0);
}

TEST_F(GridDialog, AnIndexWithoutAnOptionIsASubscriptFailure)
{
    startPastSplash();
    for (const std::int16_t index : std::array<std::int16_t, 2>{-1, 4}) {
        expectError(RuntimeError::SubscriptOutOfRange, [&] { form().openAt(index); });
        EXPECT_FALSE(form().isVisible());
    }
}

} // namespace
} // namespace torvane::testing
