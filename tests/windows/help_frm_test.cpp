#include "shell/help_frm.h"

#include "guide/write_guide.h"
#include "overview/overview_frm.h"
#include "shell/help_browser.h"
#include "shell/help_texts.h"
#include "shell/help_viewer.h"
#include "shell/main_frm.h"
#include "support/editor_fixture.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

using ::testing::HasSubstr;

const QByteArray& delivered()
{
    static const QByteArray file = guideFile(readGuide(QStringLiteral(GUIDE_FILES)));
    return file;
}

class Help : public ::testing::TestWithParam<Language>
{
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("SE_README.HLP")); }
    void put(const QByteArray& bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    /// Opens the delivered guide.
    void open()
    {
        put(delivered());
        viewer.showContents(path());
        ASSERT_NE(viewer.window(), nullptr);
        settle();
    }

    bool german() const { return GetParam() == Language::German; }
    HelpFrm& window() const { return *viewer.window(); }
    HelpBrowser& guide() const { return *control<HelpBrowser>(window(), QStringLiteral("txtGuide")); }
    QTreeWidget& contents() const { return *control<QTreeWidget>(window(), QStringLiteral("treContents")); }
    void clickEntry(QTreeWidgetItem* entry) const
    {
        contents().scrollToItem(entry);
        QTest::mouseClick(contents().viewport(), Qt::LeftButton, Qt::NoModifier,
                          contents().visualItemRect(entry).center());
        settle();
    }
    QPushButton* button(const char* name) const
    {
        return control<QPushButton>(window(), QString::fromLatin1(name));
    }
    QLineEdit* box() const { return control<QLineEdit>(window(), QStringLiteral("txtFind")); }
    QString found() const { return control<QLabel>(window(), QStringLiteral("lblFound"))->text(); }
    QString selected() const { return guide().textCursor().selectedText(); }
    void search(const QString& text) const
    {
        box()->clear();
        type(box(), text);
        press(box(), Qt::Key_Return);
        settle();
    }
    const HelpBook& book() const { return m_book; }

    ScriptedMessageBoxes boxes;
    WindowHelpViewer viewer{GetParam(), boxes};

private:
    QTemporaryDir m_folder;
    const HelpBook m_book = HelpBook::parse(delivered(), GetParam()).value();
};

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

/// The addresses of all links in what is shown.
QStringList shownLinks(const QTextDocument& document)
{
    QStringList links;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QString link = piece.fragment().charFormat().anchorHref();
            if (!link.isEmpty()) {
                links.append(link);
            }
        }
    }
    return links;
}

/// The names in what is shown to which links can lead.
QStringList shownAnchors(const QTextDocument& document)
{
    QStringList anchors;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            anchors += piece.fragment().charFormat().anchorNames();
        }
    }
    return anchors;
}

TEST_P(Help, EveryLinkLeadsToItsPlace)
{
    open();
    std::map<QString, QStringList> anchors;
    QStringList links;
    for (const HelpChapter& chapter : book().chapters()) {
        guide().setSource(HelpBrowser::addressOf(chapter.name));
        anchors[chapter.name] = shownAnchors(*guide().document());
        links += shownLinks(*guide().document());
    }
    EXPECT_GT(links.size(), 100);
    for (const QString& link : links) {
        const QUrl address(link);
        EXPECT_EQ(address.scheme(), QStringLiteral("help")) << link.toStdString();
        EXPECT_TRUE(anchors[address.path()].contains(address.fragment())) << link.toStdString();
    }
}

TEST_P(Help, LinksCanBeReadOnDarkAndLightDesktops)
{
    const QPalette before = QApplication::palette();
    for (const QColor& ground : {QColor(40, 42, 50), QColor(240, 240, 240)}) {
        QApplication::setPalette(QPalette(ground));
        open();
        const int paper = qGray(guide().palette().color(QPalette::Base).rgb());
        int links = 0;
        for (QTextBlock block = guide().document()->begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextCharFormat format = piece.fragment().charFormat();
                if (format.isAnchor() && !format.anchorHref().isEmpty()) {
                    EXPECT_GT(std::abs(qGray(format.foreground().color().rgb()) - paper), 100);
                    ++links;
                }
            }
        }
        EXPECT_GT(links, 5);
    }
    QApplication::setPalette(before);
}

TEST_P(Help, EveryPictureIsShown)
{
    open();
    int pictures = 0;
    for (const HelpChapter& chapter : book().chapters()) {
        guide().setSource(HelpBrowser::addressOf(chapter.name));
        const QTextDocument& document = *guide().document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextImageFormat format = piece.fragment().charFormat().toImageFormat();
                if (!format.isValid() || format.name().isEmpty()) {
                    continue;
                }
                ++pictures;
                const auto image =
                    document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
                ASSERT_FALSE(image.isNull()) << chapter.name.toStdString();
                EXPECT_EQ(image.deviceIndependentSize(), QSizeF(format.width(), format.height()))
                    << chapter.name.toStdString() << " " << format.name().toStdString();
            }
        }
    }
    EXPECT_GE(pictures, 12);
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

TEST_P(Help, SearchesInAllChaptersAndGoesRound)
{
    open();
    search(QStringLiteral("zzz"));
    EXPECT_EQ(found(), german() ? QStringLiteral("Nicht gefunden") : QStringLiteral("Not found"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("welcome"));

    search(QStringLiteral("duncan"));
    EXPECT_EQ(selected().toLower(), QStringLiteral("duncan"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("quirks"));
    const int first = guide().textCursor().selectionStart();
    EXPECT_TRUE(found().startsWith(german() ? QStringLiteral("1 von ") : QStringLiteral("1 of ")))
        << found().toStdString();
    const int count = found().section(u' ', -1).toInt();
    ASSERT_GT(count, 2);
    press(box(), Qt::Key_F3);
    EXPECT_TRUE(found().startsWith(QStringLiteral("2 "))) << found().toStdString();
    EXPECT_GT(guide().textCursor().selectionStart(), first);
    click(button("cmdFindPrevious"));
    EXPECT_EQ(guide().textCursor().selectionStart(), first);
    press(box(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_TRUE(found().startsWith(QString::number(count))) << found().toStdString();
    click(button("cmdFindNext"));
    EXPECT_EQ(guide().textCursor().selectionStart(), first);
}

TEST_P(Help, ASearchGoesOnInTheNextChapterAndBackLeadsToWhereItBegan)
{
    open();
    const QString word = german() ? QStringLiteral("Zielfeld") : QStringLiteral("target area");
    QStringList chapters;
    for (int i = 0; i < 60; ++i) {
        search(word);
        EXPECT_EQ(selected().toLower(), word.toLower());
        if (!chapters.contains(guide().chapter())) {
            chapters.append(guide().chapter());
        }
    }
    EXPECT_THAT(chapters, ::testing::IsSupersetOf({QStringLiteral("welcome"), QStringLiteral("map"),
                                                   QStringLiteral("overview"), QStringLiteral("target"),
                                                   QStringLiteral("saving"), QStringLiteral("limits")}));
    open();
    search(word);
    search(word);
    ASSERT_NE(guide().chapter(), QStringLiteral("welcome"));
    click(button("cmdBack"));
    EXPECT_EQ(guide().chapter(), QStringLiteral("welcome"));
}

TEST_P(Help, CtrlFAsksForAWordAndNextWithoutOneToo)
{
    open();
    window().activateWindow();
    guide().setFocus();
    press(&guide(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(window().focusWidget(), box());
    guide().setFocus();
    click(button("cmdFindNext"));
    EXPECT_EQ(window().focusWidget(), box());
    EXPECT_EQ(found(), QString());
}

TEST_P(Help, TypingAnotherWordForgetsTheCount)
{
    open();
    search(QStringLiteral("Duncan"));
    ASSERT_FALSE(found().isEmpty());
    type(box(), QStringLiteral("x"));
    EXPECT_EQ(found(), QString());
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

TEST_P(Help, ALinkOutOfTheGuideLeadsNowhere)
{
    open();
    for (const char* link : {"http://example.org/", "file:///etc/passwd", "help:nowhere", "picture:0"}) {
        guide().setSource(QUrl(QString::fromLatin1(link)));
        EXPECT_EQ(guide().chapter(), QStringLiteral("welcome")) << link;
    }
}

TEST_P(Help, AMissingFileGivesABoxThatNamesIt)
{
    viewer.showContents(path());
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, helpText(HelpText::FileMissing, GetParam()).arg(path()));
    EXPECT_THAT(boxes.shown[0].text.toStdString(), HasSubstr(path().toStdString()));
    EXPECT_EQ(boxes.shown[0].title, german() ? QStringLiteral("Hilfe") : QStringLiteral("Help"));
    EXPECT_EQ(boxes.shown[0].icon, MessageBox::Icon::Exclamation);
    EXPECT_EQ(viewer.window(), nullptr);
}

TEST_P(Help, ADamagedFileGivesABoxThatNamesIt)
{
    const QByteArray whole = delivered();
    for (const QByteArray& bytes : {QByteArray(), whole.first(whole.size() / 3), QByteArray(100000, '\0'),
                                    QByteArray("<html>Something else</html>")}) {
        boxes.shown.clear();
        put(bytes);
        viewer.showContents(path());
        ASSERT_EQ(boxes.shown.size(), 1);
        EXPECT_EQ(boxes.shown[0].text, helpText(HelpText::FileDamaged, GetParam()).arg(path()));
    }
    EXPECT_EQ(viewer.window(), nullptr);
}

TEST_P(Help, AFolderInItsPlaceGivesABoxThatNamesIt)
{
    ASSERT_TRUE(QDir().mkpath(path()));
    viewer.showContents(path());
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, helpText(HelpText::FileDamaged, GetParam()).arg(path()));
}

TEST_P(Help, AHugeFileIsNotRead)
{
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(qint64{200} * 1024 * 1024));
    viewer.showContents(path());
    ASSERT_EQ(boxes.shown.size(), 1);
    EXPECT_EQ(boxes.shown[0].text, helpText(HelpText::FileDamaged, GetParam()).arg(path()));
}

TEST_P(Help, AFileThatIsPutBackIsFoundWithoutANewStart)
{
    viewer.showContents(path());
    ASSERT_EQ(boxes.shown.size(), 1);
    open();
    EXPECT_EQ(boxes.shown.size(), 1);
    EXPECT_TRUE(window().isVisible());
}

std::string languageName(const ::testing::TestParamInfo<Language>& info)
{
    return info.param == Language::German ? "German" : "English";
}

INSTANTIATE_TEST_SUITE_P(Both, Help, ::testing::Values(Language::German, Language::English), languageName);

} // namespace
} // namespace torvane::testing
