#include "windows/help_fixture.h"

#include <QScrollBar>

namespace torvane::testing {
namespace {

TEST_P(Help, OpensAtItsFirstPageInTheLanguage)
{
    open();
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().windowTitle(),
              german() ? QStringLiteral("Torvane - Hilfe") : QStringLiteral("Torvane - Help"));
    EXPECT_TRUE(guide().toPlainText().startsWith(german() ? QStringLiteral("Willkommen")
                                                          : QStringLiteral("Welcome")));
    EXPECT_TRUE(boxes.shown.isEmpty());
}

TEST_P(Help, TheGuideHasTheRoom)
{
    open();
    for (const QSize& size : {QSize(960, 680), QSize(700, 1000)}) {
        window().resize(size);
        settle();
        EXPECT_GT(guide().height(), window().height() - 80);
        EXPECT_EQ(contents().height(), guide().height());
    }
}

TEST_P(Help, CaptionsSpeakTheLanguage)
{
    open();
    EXPECT_EQ(button("cmdBack")->text(), german() ? QStringLiteral("&Zurück") : QStringLiteral("&Back"));
    EXPECT_EQ(button("cmdForward")->text(), german() ? QStringLiteral("&Vor") : QStringLiteral("&Forward"));
    EXPECT_EQ(button("cmdContents")->text(),
              german() ? QStringLiteral("&Erste Seite") : QStringLiteral("F&irst Page"));
    EXPECT_EQ(button("cmdFindNext")->text(),
              german() ? QStringLiteral("&Nächstes") : QStringLiteral("&Next"));
    EXPECT_EQ(button("cmdFindPrevious")->text(),
              german() ? QStringLiteral("V&origes") : QStringLiteral("&Previous"));
}

TEST_P(Help, ListsAllChaptersAndSections)
{
    open();
    const HelpBook& whole = book();
    ASSERT_EQ(contents().topLevelItemCount(), static_cast<int>(whole.chapters().size()));
    for (int i = 0; i < contents().topLevelItemCount(); ++i) {
        const HelpChapter& chapter = whole.chapters()[static_cast<std::size_t>(i)];
        const QTreeWidgetItem* entry = contents().topLevelItem(i);
        EXPECT_EQ(entry->text(0), chapter.title);
        ASSERT_EQ(entry->childCount(), chapter.sections.size());
        for (int j = 0; j < entry->childCount(); ++j) {
            EXPECT_EQ(entry->child(j)->text(0), chapter.sections[j].title);
        }
    }
}

TEST_P(Help, AnEntryOfTheContentsOpensItsSection)
{
    open();
    QTreeWidgetItem* map =
        contents().topLevelItem(static_cast<int>(book().indexOf(QStringLiteral("map")).value()));
    map->setExpanded(true);
    QTreeWidgetItem* zoom = map->child(3);
    clickEntry(zoom);
    EXPECT_EQ(guide().chapter(), QStringLiteral("map"));
    EXPECT_TRUE(guide().source().fragment().endsWith(QStringLiteral(".map.zoom")));
    EXPECT_GT(guide().verticalScrollBar()->value(), 0);
}

TEST_P(Help, AClickOnTheEntryWhereTheReaderIsLeadsToItsBeginning)
{
    open();
    QTreeWidgetItem* chapter =
        contents().topLevelItem(static_cast<int>(book().indexOf(QStringLiteral("map")).value()));
    for (QTreeWidgetItem* item : {chapter, chapter->child(1)}) {
        contents().expandItem(chapter);
        clickEntry(item);
        const int begin = guide().verticalScrollBar()->value();
        guide().verticalScrollBar()->setValue(guide().verticalScrollBar()->maximum());
        ASSERT_NE(guide().verticalScrollBar()->value(), begin);
        clickEntry(item);
        EXPECT_EQ(guide().verticalScrollBar()->value(), begin);
    }
}

TEST_P(Help, TheContentsFollowTheReader)
{
    open();
    guide().setSource(QUrl(QStringLiteral("help:saving#%1.saving.title").arg(german() ? "de" : "en")));
    EXPECT_EQ(contents().currentItem()->text(0), german() ? QStringLiteral("Der Titel als Dateiname")
                                                          : QStringLiteral("The title as a file name"));
    guide().setSource(HelpBrowser::addressOf(QStringLiteral("loading")));
    EXPECT_EQ(contents().currentItem()->text(0),
              german() ? QStringLiteral("Laden") : QStringLiteral("Loading"));
}

TEST_P(Help, BackAndForwardFollowTheReading)
{
    open();
    EXPECT_FALSE(button("cmdBack")->isEnabled());
    EXPECT_FALSE(button("cmdForward")->isEnabled());
    guide().setSource(HelpBrowser::addressOf(QStringLiteral("map")));
    guide().setSource(HelpBrowser::addressOf(QStringLiteral("rings")));
    click(button("cmdBack"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("map"));
    EXPECT_TRUE(button("cmdForward")->isEnabled());
    press(&guide(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(guide().chapter(), QStringLiteral("welcome"));
    press(&guide(), Qt::Key_Right, Qt::AltModifier);
    click(button("cmdForward"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("rings"));
    EXPECT_FALSE(button("cmdForward")->isEnabled());
    click(button("cmdContents"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("welcome"));
}

TEST_P(Help, TextGrowsAndShrinksWithinBounds)
{
    open();
    const double size = guide().font().pointSizeF();
    press(&guide(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(guide().font().pointSizeF(), size);
    for (int i = 0; i < 50; ++i) {
        press(&guide(), Qt::Key_Minus, Qt::ControlModifier);
    }
    EXPECT_LT(guide().font().pointSizeF(), size);
    EXPECT_GT(guide().font().pointSizeF(), 2.0);
    press(&guide(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(guide().font().pointSizeF(), size);
}

TEST_P(Help, F1LeadsToTheFirstPageAndEscCloses)
{
    open();
    guide().setSource(HelpBrowser::addressOf(QStringLiteral("map")));
    press(&guide(), Qt::Key_F1);
    EXPECT_EQ(guide().chapter(), QStringLiteral("welcome"));
    press(box(), Qt::Key_Escape);
    EXPECT_FALSE(window().isVisible());
    viewer.showContents(path());
    EXPECT_TRUE(window().isVisible());
}

TEST_P(Help, ASecondRequestKeepsWhatWasRead)
{
    open();
    guide().setSource(HelpBrowser::addressOf(QStringLiteral("map")));
    viewer.showContents(path());
    EXPECT_EQ(guide().chapter(), QStringLiteral("welcome"));
    click(button("cmdBack"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("map"));
}

TEST_P(Help, OpensAtTheChapterThatIsAskedFor)
{
    put(delivered());
    viewer.showChapter(path(), QStringLiteral("ships"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("ships"));
    viewer.showChapter(path(), QStringLiteral("nowhere"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("welcome"));
}

std::string languageName(const ::testing::TestParamInfo<Language>& info)
{
    return info.param == Language::German ? "German" : "English";
}

INSTANTIATE_TEST_SUITE_P(Both, Help, ::testing::Values(Language::German, Language::English), languageName);

} // namespace
} // namespace torvane::testing
