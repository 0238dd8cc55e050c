#include "windows/help_fixture.h"

namespace torvane::testing {
namespace {

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

} // namespace
} // namespace torvane::testing
