#include "platform/picture_box.h"
#include "shell/about_frm.h"
#include "shell/main_frm.h"
#include "support/editor_fixture.h"

#include <QLocale>
#include <QPushButton>

namespace torvane::testing {
namespace {

class About : public EditorFixture
{
protected:
    void open(Language language = Language::German)
    {
        startPastSplash(language);
        ASSERT_TRUE(chooseMenu(editor().mainFrm(), QStringLiteral("mnuAbout")));
    }
    AboutFrm& about() { return editor().aboutFrm(); }
    PictureBox* picture() { return control<PictureBox>(about(), QStringLiteral("PicAbout")); }

    // Lines of the picture that carry ink, by text line.
    QList<bool> inkedLines()
    {
        const QImage image = picture()->image();
        const int height = QFontMetrics(picture()->font()).height();
        QList<bool> lines;
        for (int top = 0; top + height <= image.height(); top += height) {
            bool inked = false;
            for (int y = top; y < top + height; ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    inked = inked || image.pixelColor(x, y) != picture()->backColor();
                }
            }
            lines.append(inked);
        }
        return lines;
    }
};

TEST_F(About, OpensOverADisabledMainWindow)
{
    open();
    EXPECT_TRUE(about().isVisible());
    EXPECT_FALSE(editor().mainFrm().isInputEnabled());
}

TEST_F(About, CaptionFollowsTheLanguage)
{
    open(Language::German);
    EXPECT_EQ(about().windowTitle(), QStringLiteral("Über"));
    open(Language::English);
    EXPECT_EQ(about().windowTitle(), QStringLiteral("About"));
}

TEST_F(About, PrintsItsTenLinesWithThreeEmptyOnes)
{
    open();
    EXPECT_EQ(inkedLines(), (QList<bool>{false, true, true, true, false, true, true, false, true, true}));
}

TEST_F(About, SpeaksTheLanguageAndTellsTheDateAsTheSystemWritesIt)
{
    for (const Language language : {Language::German, Language::English}) {
        open(language);
        PictureBox same;
        same.setFont(picture()->font());
        same.resize(picture()->size());
        same.show();
        same.setBackColor(picture()->backColor());
        same.setForeColor(picture()->foreColor());
        same.clear();
        for (const QString& line :
             aboutLines(language, QLocale::system().toString(versionDate(), QLocale::ShortFormat))) {
            same.setCurrent(QPoint(12, same.current().y()));
            same.print(line);
        }
        EXPECT_EQ(picture()->image(), same.image());
    }
}

TEST_F(About, EachActivationPrintsAfresh)
{
    open();
    const QImage first = picture()->image();
    click(control<QPushButton>(about(), QStringLiteral("cmdOK")));
    picture()->line({0, 0}, {100, 50});
    ASSERT_TRUE(chooseMenu(editor().mainFrm(), QStringLiteral("mnuAbout")));
    EXPECT_EQ(picture()->image(), first);
}

TEST_F(About, OkHidesItAndEnablesTheMainWindow)
{
    open();
    click(control<QPushButton>(about(), QStringLiteral("cmdOK")));
    EXPECT_FALSE(about().isVisible());
    EXPECT_TRUE(editor().mainFrm().isInputEnabled());
}

TEST_F(About, TheCloseBoxDoesTheSame)
{
    open();
    closeBox(&about());
    EXPECT_FALSE(about().isVisible());
    EXPECT_TRUE(editor().mainFrm().isInputEnabled());
}

TEST_F(About, EnterAndEscLeaveIt)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        open();
        press(&about(), key);
        EXPECT_FALSE(about().isVisible());
        EXPECT_TRUE(editor().mainFrm().isInputEnabled());
        EXPECT_TRUE(boxes().isEmpty()) << "the key stays in the box";
    }
}

} // namespace
} // namespace torvane::testing
