#include "map/zoom_level_frm.h"

#include "level_dialog_fixture.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

class ZoomDialog : public LevelDialogOf<ZoomLevelFrm, &Editor::zoomLevelFrm, &MainFrm::chkUnloadZoom>
{
};

TEST_F(ZoomDialog, HasItsTextsInBothLanguages)
{
    startPastSplash(Language::English);
    EXPECT_EQ(form().windowTitle(), QStringLiteral("Zoom"));
    EXPECT_EQ(request(), QStringLiteral("Please select a zoom level."));
    EXPECT_EQ(caption("optZoomLevel0"), QStringLiteral("Level 0"));
    EXPECT_EQ(caption("optZoomLevel4"), QStringLiteral("Level 5"));
    startPastSplash(Language::German);
    EXPECT_EQ(form().windowTitle(), QStringLiteral("Zoom"));
    EXPECT_EQ(request(), QStringLiteral("Bitte wählen Sie eine Zoom-Ebene."));
    EXPECT_EQ(caption("optZoomLevel0"), QStringLiteral("Ebene 0"));
    EXPECT_EQ(caption("optZoomLevel10"), QStringLiteral("Ebene 10"));
}

TEST_F(ZoomDialog, StacksItsElevenOptionsInTheOrderOfTheirCaptions)
{
    startPastSplash(Language::English);
    openAt(4);
    EXPECT_EQ(namesDown().join(u' '),
              QStringLiteral("optZoomLevel0 optZoomLevel8 optZoomLevel7 optZoomLevel6 optZoomLevel5 "
                             "optZoomLevel4 optZoomLevel3 optZoomLevel2 optZoomLevel1 optZoomLevel9 "
                             "optZoomLevel10"));
    int level = 0;
    for (const QString& name : namesDown()) {
        EXPECT_EQ(control<OptionButton>(form(), name)->text(), QStringLiteral("Level %1").arg(level++));
    }
}

TEST_F(ZoomDialog, HasNoButtonsBesidesItsOptions)
{
    startPastSplash();
    expectOptionsAlone(11);
}

TEST_F(ZoomDialog, IsLoadedAtItsFirstNeed)
{
    expectLoadedAtFirstNeed("ZoomLevelFrm");
}

TEST_F(ZoomDialog, StartsWithLevelFive)
{
    startPastSplash();
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel4")});
    EXPECT_EQ(form().zoomIndex(), 4);
    EXPECT_EQ(valueOf(flag()), 0);
    EXPECT_FALSE(form().isVisible());
}

TEST_F(ZoomDialog, OpensWithTheOptionOfTheIndexOverADisabledMainWindow)
{
    startPastSplash();
    openAt(4);
    expectShown();
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel4")});
    EXPECT_TRUE(option("optZoomLevel4")->hasFocus());
    EXPECT_EQ(form().focusWidget(), option("optZoomLevel4"));
}

TEST_F(ZoomDialog, EachOptionLeavesItAndMeansItsIndex)
{
    startPastSplash();
    constexpr std::array<std::pair<const char*, int>, 11> options{{{"optZoomLevel0", 11},
                                                                   {"optZoomLevel1", 1},
                                                                   {"optZoomLevel2", 2},
                                                                   {"optZoomLevel3", 3},
                                                                   {"optZoomLevel4", 4},
                                                                   {"optZoomLevel5", 5},
                                                                   {"optZoomLevel6", 6},
                                                                   {"optZoomLevel7", 7},
                                                                   {"optZoomLevel8", 8},
                                                                   {"optZoomLevel9", 9},
                                                                   {"optZoomLevel10", 10}}};
    for (const auto& [name, index] : options) {
        openAt(form().zoomIndex());
        expectShown();
        click(option(name));
        expectLeft(0);
        EXPECT_EQ(form().zoomIndex(), index) << name;
        EXPECT_EQ(namesOn(), QStringList{QLatin1StringView(name)});
    }
}

TEST_F(ZoomDialog, ClickingTheOptionThatIsOnDoesNotLeaveIt)
{
    startPastSplash();
    openAt(4);
    click(option("optZoomLevel4"));
    expectShown();
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel4")});
    press(option("optZoomLevel4"), Qt::Key_Space);
    expectShown();
}

TEST_F(ZoomDialog, TheCloseBoxAndEscLeaveItWithTheFlagSet)
{
    startPastSplash();
    openAt(4);
    closeBox(&form());
    expectLeft(1);
    openAt(4);
    press(&form(), Qt::Key_Escape);
    expectLeft(1);
}

TEST_F(ZoomDialog, TheCloseBoxForgetsTheOption)
{
    startPastSplash();
    openAt(4);
    click(option("optZoomLevel9"));
    openAt(9);
    closeBox(&form());
    expectLeft(1);
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel4")}) << "as it is loaded";
}

TEST_F(ZoomDialog, AfterTheCloseBoxAnOptionThatIsNotTheDefaultClearsTheFlagBeforeItIsSeen)
{
    startPastSplash();
    openAt(4);
    click(option("optZoomLevel9"));
    openAt(9);
    closeBox(&form());
    openAt(9);
    expectShown();
    EXPECT_EQ(valueOf(flag()), 0);
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel9")});
}

TEST_F(ZoomDialog, AfterTheCloseBoxTheDefaultKeepsTheFlagUntilAnOptionIsPicked)
{
    startPastSplash();
    openAt(4);
    closeBox(&form());
    openAt(4);
    expectShown();
    EXPECT_EQ(valueOf(flag()), 1);
    click(option("optZoomLevel0"));
    expectLeft(0);
}

TEST_F(ZoomDialog, TheKeyboardGoesFromOptionToOptionAndChoosesBySpaceOrEnter)
{
    startPastSplash();
    openAt(4);
    press(form().focusWidget(), Qt::Key_Down);
    press(form().focusWidget(), Qt::Key_Tab);
    expectShown();
    EXPECT_EQ(form().focusWidget(), option("optZoomLevel2"));
    press(form().focusWidget(), Qt::Key_Space);
    expectLeft(0);
    EXPECT_EQ(form().zoomIndex(), 2);
    openAt(2);
    press(form().focusWidget(), Qt::Key_Up);
    press(form().focusWidget(), Qt::Key_Return);
    expectLeft(0);
    EXPECT_EQ(form().zoomIndex(), 3);
}

TEST_F(ZoomDialog, WhileItIsShownTheMainWindowTakesNoInput)
{
    startPastSplash();
    openAt(4);
    EXPECT_FALSE(chooseMenu(editor().mainFrm(), QStringLiteral("mnuAbout")));
    press(&editor().mainFrm(), Qt::Key_F12);
    EXPECT_TRUE(boxes().isEmpty());
    click(option("optZoomLevel0"));
    EXPECT_TRUE(chooseMenu(editor().mainFrm(), QStringLiteral("mnuAbout")));
}

TEST_F(ZoomDialog, AnIndexWithoutAnOptionIsASubscriptFailure)
{
    startPastSplash();
    for (const std::int16_t index : std::array<std::int16_t, 3>{0, 12, -1}) {
        expectError(RuntimeError::SubscriptOutOfRange, [&] { form().openAt(index); });
        EXPECT_FALSE(form().isVisible());
        EXPECT_TRUE(editor().mainFrm().isInputEnabled());
    }
}

} // namespace
} // namespace torvane::testing
