#include "guide/write_guide.h"
#include "overview/overview_frm.h"
#include "shell/help_browser.h"
#include "shell/help_frm.h"
#include "shell/help_viewer.h"
#include "shell/main_frm.h"
#include "support/editor_fixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace torvane::testing {
namespace {

/// An editor whose help is the real window.
class HelpBesideTheEditor : public EditorFixture
{
protected:
    static QByteArray guide() { return guideFile(readGuide(QStringLiteral(GUIDE_FILES))); }
};

TEST_F(HelpBesideTheEditor, F1InADialogOpensItsChapter)
{
    startPastSplash(Language::English);
    ASSERT_TRUE(chooseMenu(editor().mainFrm(), QStringLiteral("mnuNew")));
    press(control<QLineEdit>(editor().overviewFrm(), QStringLiteral("TxtTitle")), Qt::Key_F1);
    EXPECT_EQ(script.helpViewer.shown, QStringList{workFile(QStringLiteral("SE_README.HLP"))});
    EXPECT_EQ(script.helpViewer.chapters, QStringList{QStringLiteral("overview")});
}

TEST_F(HelpBesideTheEditor, OpeningAndClosingItActivatesNoWindowOfTheEditor)
{
    startPastSplash(Language::English);
    putWorkFile(QStringLiteral("SE_README.HLP"), guide());
    WindowHelpViewer viewer(Language::English, script.messageBoxes);
    auto* bar = control<QScrollBar>(editor().mainFrm(), QStringLiteral("HScroll1"));
    const int scrolled = bar->value() + 1000;
    bar->setValue(scrolled);
    settle();
    viewer.showContents(workFile(QStringLiteral("SE_README.HLP")));
    settle();
    EXPECT_EQ(editor().forms().front(), &editor().mainFrm());
    EXPECT_TRUE(editor().mainFrm().isInputEnabled());
    press(control<HelpBrowser>(*viewer.window(), QStringLiteral("txtGuide")), Qt::Key_Escape);
    settle();
    // An activation would have centred the map.
    EXPECT_EQ(bar->value(), scrolled);
}

TEST_F(HelpBesideTheEditor, ItStaysUsableWhileADialogIsOpen)
{
    startPastSplash(Language::English);
    putWorkFile(QStringLiteral("SE_README.HLP"), guide());
    WindowHelpViewer viewer(Language::English, script.messageBoxes);
    viewer.showContents(workFile(QStringLiteral("SE_README.HLP")));
    ASSERT_TRUE(chooseMenu(editor().mainFrm(), QStringLiteral("mnuNew")));
    ASSERT_FALSE(editor().mainFrm().isInputEnabled());
    click(control<QPushButton>(*viewer.window(), QStringLiteral("cmdContents")));
    auto* browser = control<HelpBrowser>(*viewer.window(), QStringLiteral("txtGuide"));
    browser->setSource(HelpBrowser::addressOf(QStringLiteral("map")));
    click(control<QPushButton>(*viewer.window(), QStringLiteral("cmdContents")));
    EXPECT_EQ(browser->chapter(), QStringLiteral("welcome"));
    EXPECT_EQ(editor().forms().front(), &editor().overviewFrm());
}

} // namespace
} // namespace torvane::testing
