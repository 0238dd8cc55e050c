#include "map/zoom_level_frm.h"

#include "level_dialog_fixture.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

class ZoomDialog : public LevelDialog
{
protected:
    LevelFrm& dialog() override { return zoom(); }
    ZoomLevelFrm& zoom() { return editor().zoomLevelFrm(); }
    const QCheckBox* flag() { return editor().mainFrm().chkUnloadZoom; }
    void openAt(std::int16_t index)
    {
        editor().forms().runHandler([this, index] { zoom().openAt(index); });
        settle();
    }
};

TEST_F(ZoomDialog, HasItsTextsInBothLanguages)
{
    startPastSplash(Language::English);
    EXPECT_EQ(zoom().windowTitle(), QStringLiteral("Zoom"));
    EXPECT_EQ(request(), QStringLiteral("Please select a zoom level."));
    EXPECT_EQ(caption("optZoomLevel0"), QStringLiteral("Level 0"));
    EXPECT_EQ(caption("optZoomLevel4"), QStringLiteral("Level 5"));
    startPastSplash(Language::German);
    EXPECT_EQ(zoom().windowTitle(), QStringLiteral("Zoom"));
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
        EXPECT_EQ(control<OptionButton>(zoom(), name)->text(), QStringLiteral("Level %1").arg(level++));
    }
}

TEST_F(ZoomDialog, StartsWithLevelFive)
{
    startPastSplash();
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel4")});
    EXPECT_EQ(zoom().zoomIndex(), 4);
    EXPECT_EQ(valueOf(flag()), 0);
    EXPECT_FALSE(zoom().isVisible());
}

TEST_F(ZoomDialog, OpensWithTheOptionOfTheIndexOverADisabledMainWindow)
{
    startPastSplash();
    openAt(4);
    expectShown();
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel4")});
    EXPECT_TRUE(option("optZoomLevel4")->hasFocus());
    EXPECT_EQ(zoom().focusWidget(), option("optZoomLevel4"));
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
        openAt(zoom().zoomIndex());
        expectShown();
        click(option(name));
        expectLeft(flag(), 0);
        EXPECT_EQ(zoom().zoomIndex(), index) << name;
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
    closeBox(&zoom());
    expectLeft(flag(), 1);
    openAt(4);
    press(&zoom(), Qt::Key_Escape);
    expectLeft(flag(), 1);
}

TEST_F(ZoomDialog, TheCloseBoxForgetsTheOption)
{
    startPastSplash();
    openAt(4);
    click(option("optZoomLevel9"));
    openAt(9);
    closeBox(&zoom());
    expectLeft(flag(), 1);
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel4")}) << "as it is loaded";
}

TEST_F(ZoomDialog, AfterTheCloseBoxAnOptionThatIsNotTheDefaultClearsTheFlagBeforeItIsSeen)
{
    startPastSplash();
    openAt(4);
    click(option("optZoomLevel9"));
    openAt(9);
    closeBox(&zoom());
    openAt(9);
    expectShown();
    EXPECT_EQ(valueOf(flag()), 0);
    EXPECT_EQ(namesOn(), QStringList{QStringLiteral("optZoomLevel9")});
}

TEST_F(ZoomDialog, AfterTheCloseBoxTheDefaultKeepsTheFlagUntilAnOptionIsPicked)
{
    startPastSplash();
    openAt(4);
    closeBox(&zoom());
    openAt(4);
    expectShown();
    EXPECT_EQ(valueOf(flag()), 1);
    click(option("optZoomLevel0"));
    expectLeft(flag(), 0);
}

TEST_F(ZoomDialog, TheKeyboardGoesFromOptionToOptionAndChoosesBySpaceOrEnter)
{
    startPastSplash();
    openAt(4);
    press(zoom().focusWidget(), Qt::Key_Down);
    press(zoom().focusWidget(), Qt::Key_Tab);
    expectShown();
    EXPECT_EQ(zoom().focusWidget(), option("optZoomLevel2"));
    press(zoom().focusWidget(), Qt::Key_Space);
    expectLeft(flag(), 0);
    EXPECT_EQ(zoom().zoomIndex(), 2);
    openAt(2);
    press(zoom().focusWidget(), Qt::Key_Up);
    press(zoom().focusWidget(), Qt::Key_Return);
    expectLeft(flag(), 0);
    EXPECT_EQ(zoom().zoomIndex(), 3);
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
        expectError(RuntimeError::SubscriptOutOfRange, [&] { zoom().openAt(index); });
        EXPECT_FALSE(zoom().isVisible());
        EXPECT_TRUE(editor().mainFrm().isInputEnabled());
    }
}

} // namespace
} // namespace torvane::testing
