#include "platform/form.h"

#include "platform/profile_store.h"
#include "support/input.h"
#include "support/printers.h"

#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcutEvent>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Not;

/// A window that keeps a diary of what happens to it.
class DiaryForm : public Form
{
public:
    DiaryForm(FormStack& stack, const QString& name, QStringList& diary)
        : Form(stack, name, Qt::Window), m_diary(diary)
    {
        auto* layout = new QVBoxLayout(this);
        auto* bar = new QMenuBar(this);
        QMenu* menu = bar->addMenu(QStringLiteral("Menu"));
        menu->setObjectName(QStringLiteral("menu"));
        entry = menu->addAction(QStringLiteral("Entry"), QKeySequence(Qt::Key_F1), [this] { note("entry"); });
        entry->setObjectName(QStringLiteral("entry"));
        layout->setMenuBar(bar);
        button = new QPushButton(QStringLiteral("Button"), this);
        edit = new QLineEdit(this);
        layout->addWidget(button);
        layout->addWidget(edit);
        on(button, &QPushButton::clicked, [this] {
            note("clicked");
            if (onClick) {
                onClick();
            }
        });
        load();
    }

    using Form::on;
    QPushButton* button;
    QLineEdit* edit;
    QAction* entry;
    std::function<void()> onClick;

protected:
    void onLoad() override { note("load"); }
    void onActivate() override { note("activate"); }
    void onCloseBox() override { note("close"); }

private:
    void note(const char* what) { m_diary.append(objectName() + QLatin1Char(' ') + QLatin1StringView(what)); }

    QStringList& m_diary;
};

class Forms : public ::testing::Test
{
protected:
    ProfileStore profiles;
    QStringList errors;
    FormStack stack{profiles, [this](const RuntimeError& error) { errors.append(error.text()); }};
    QStringList diary;
    DiaryForm main{stack, QStringLiteral("main"), diary};
    DiaryForm dialog{stack, QStringLiteral("dialog"), diary};

    void SetUp() override
    {
        main.showForm();
        settle();
        diary.clear();
    }

    void openDialog()
    {
        dialog.showForm(&main);
        main.setInputEnabled(false);
        settle();
        diary.clear();
    }
};

TEST_F(Forms, TheFirstShowingActivates)
{
    QStringList own;
    DiaryForm form(stack, QStringLiteral("form"), own);
    form.showForm();
    EXPECT_EQ(own, QStringList{QStringLiteral("form load")}) << "activation is queued, not immediate";
    settle();
    EXPECT_EQ(own, (QStringList{QStringLiteral("form load"), QStringLiteral("form activate")}));
}

TEST_F(Forms, HidingTheWindowAboveActivatesTheOneBelow)
{
    openDialog();
    dialog.hideForm();
    settle();
    EXPECT_EQ(diary, QStringList{QStringLiteral("main activate")});
}

TEST_F(Forms, ShownAgainActivatesAgain)
{
    openDialog();
    dialog.hideForm();
    settle();
    dialog.showForm(&main);
    settle();
    EXPECT_EQ(diary, (QStringList{QStringLiteral("main activate"), QStringLiteral("dialog activate")}));
}

TEST_F(Forms, ShowingTheFrontWindowAgainActivatesNothing)
{
    main.showForm();
    settle();
    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(Forms, HidingAWindowThatIsNotInFrontActivatesNothing)
{
    openDialog();
    main.hideForm();
    settle();
    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(Forms, AHandlerMayHideItsWindowFirstAndSetItsFlagsAfterwards)
{
    openDialog();
    bool flag = false;
    bool flagAtReturn = true;
    dialog.onClick = [&] {
        dialog.hideForm();
        flagAtReturn = diary.contains(QStringLiteral("main activate"));
        flag = true;
    };
    click(dialog.button);
    EXPECT_FALSE(flagAtReturn);
    EXPECT_TRUE(flag);
    EXPECT_EQ(diary, (QStringList{QStringLiteral("dialog clicked"), QStringLiteral("main activate")}));
}

TEST_F(Forms, ActivationWaitsForTheHandlerThatShowsABoxAfterHiding)
{
    openDialog();
    QStringList duringBox;
    dialog.onClick = [&] {
        dialog.hideForm();
        settle(); // a message box runs events like this
        duringBox = diary;
    };
    click(dialog.button);
    EXPECT_EQ(duringBox, QStringList{QStringLiteral("dialog clicked")});
    EXPECT_EQ(diary.last(), QStringLiteral("main activate"));
}

TEST_F(Forms, ABoxOrAnotherProgramInFrontActivatesNothing)
{
    QWidget box;
    box.show();
    box.activateWindow();
    settle();
    box.close();
    main.activateWindow();
    settle();
    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(Forms, HidingOneAndShowingAnotherInOneHandlerActivatesTheOtherAlone)
{
    QStringList own;
    DiaryForm other(stack, QStringLiteral("other"), own);
    openDialog();
    dialog.onClick = [&] {
        dialog.hideForm();
        other.showForm(&main);
    };
    click(dialog.button);
    EXPECT_EQ(diary, QStringList{QStringLiteral("dialog clicked")});
    EXPECT_EQ(own.last(), QStringLiteral("other activate"));
}

TEST_F(Forms, ActivationRunsOnceThoughSeveralWindowsHide)
{
    QStringList own;
    DiaryForm second(stack, QStringLiteral("second"), own);
    openDialog();
    second.showForm(&dialog);
    settle();
    second.onClick = [&] {
        second.hideForm();
        dialog.hideForm();
    };
    click(second.button);
    EXPECT_EQ(diary, QStringList{QStringLiteral("main activate")});
}

TEST_F(Forms, ADisabledOpenerTakesNoMouseAndNoKey)
{
    openDialog();
    click(main.button);
    press(main.button, Qt::Key_Space);
    type(main.edit, QStringLiteral("abc"));
    EXPECT_THAT(diary, IsEmpty());
    EXPECT_EQ(main.edit->text(), QString());
}

TEST_F(Forms, ADisabledOpenerTakesNoMenuAndNoShortcut)
{
    openDialog();
    EXPECT_FALSE(chooseMenu(main, QStringLiteral("entry")));
    press(&main, Qt::Key_F1);
    QShortcutEvent shortcut(QKeySequence(Qt::Key_F1), 0);
    QCoreApplication::sendEvent(main.entry, &shortcut);
    EXPECT_FALSE(diary.contains(QStringLiteral("main entry")));
}

TEST_F(Forms, ADisabledOpenerTakesNoClose)
{
    openDialog();
    closeBox(&main);
    EXPECT_THAT(diary, IsEmpty());
    EXPECT_TRUE(main.isVisible());
}

TEST_F(Forms, ADisabledOpenerDoesNotTurnGrey)
{
    openDialog();
    EXPECT_TRUE(main.isEnabled());
    EXPECT_TRUE(main.button->isEnabled());
    EXPECT_FALSE(main.property("inputEnabled").toBool());
}

TEST_F(Forms, AControlMadeLaterIsGuardedToo)
{
    auto* late = new QPushButton(&main);
    int clicks = 0;
    QObject::connect(late, &QPushButton::clicked, late, [&clicks] { ++clicks; });
    late->show();
    click(late);
    EXPECT_EQ(clicks, 1);
    openDialog();
    click(late);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Forms, EnabledAgainEverythingWorks)
{
    openDialog();
    dialog.hideForm();
    main.setInputEnabled(true);
    settle();
    diary.clear();
    click(main.button);
    type(main.edit, QStringLiteral("abc"));
    EXPECT_TRUE(chooseMenu(main, QStringLiteral("entry")));
    closeBox(&main);
    EXPECT_EQ(main.edit->text(), QStringLiteral("abc"));
    EXPECT_EQ(diary, (QStringList{QStringLiteral("main clicked"), QStringLiteral("main entry"),
                                  QStringLiteral("main close")}));
}

TEST_F(Forms, ARuntimeErrorEndsTheHandlerAndIsReported)
{
    bool reachedTheEnd = false;
    main.onClick = [&] {
        throw RuntimeError(RuntimeError::Overflow, QStringLiteral("40000 is too much"));
        reachedTheEnd = true;
    };
    click(main.button);
    EXPECT_FALSE(reachedTheEnd);
    EXPECT_EQ(errors, QStringList{QStringLiteral("40000 is too much")});
    main.onClick = nullptr;
    click(main.button);
    EXPECT_EQ(diary.count(QStringLiteral("main clicked")), 2) << "the run goes on";
}

TEST_F(Forms, AnyOtherExceptionIsReportedToo)
{
    main.onClick = [] { throw std::runtime_error("unforeseen"); };
    click(main.button);
    EXPECT_EQ(errors, QStringList{QStringLiteral("unforeseen")});
}

TEST_F(Forms, AHandlerRunsInOneProfileBatch)
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("p.bmm"));
    bool onDiskDuring = true;
    main.onClick = [&] {
        profiles.write(file, u"S", u"K", u"1");
        onDiskDuring = QFile::exists(file);
    };
    click(main.button);
    EXPECT_FALSE(onDiskDuring);
    EXPECT_TRUE(QFile::exists(file));
}

TEST_F(Forms, WhatAFailedHandlerWroteIsOnDiskBeforeItsErrorIsShown)
{
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("p.bmm"));
    bool onDiskAtReport = false;
    FormStack other(profiles, [&](const RuntimeError&) { onDiskAtReport = QFile::exists(file); });
    other.runHandler([&] {
        profiles.write(file, u"S", u"K", u"1");
        throw RuntimeError(RuntimeError::Overflow, QStringLiteral("x"));
    });
    EXPECT_TRUE(onDiskAtReport);
}

TEST_F(Forms, AClickByKeyThatComesWhenTheWindowWaitsOrIsGoneIsDropped)
{
    constexpr int longerThanAClick = 300; // milliseconds
    main.button->animateClick();
    openDialog();
    dialog.button->animateClick();
    dialog.hideForm();
    QTest::qWait(longerThanAClick);
    EXPECT_THAT(diary, Not(Contains(QStringLiteral("main clicked"))));
    EXPECT_THAT(diary, Not(Contains(QStringLiteral("dialog clicked"))));
    main.setInputEnabled(true);
    main.button->animateClick();
    QTest::qWait(longerThanAClick);
    EXPECT_THAT(diary, Contains(QStringLiteral("main clicked")));
}

TEST_F(Forms, ABoxOverAWaitingWindowTakesItsAnswer)
{
    openDialog();
    QMessageBox box(QMessageBox::Information, QStringLiteral("Title"), QStringLiteral("Text"),
                    QMessageBox::Ok, &main);
    box.open();
    settle();
    click(main.button);
    EXPECT_TRUE(box.isVisible());
    click(box.button(QMessageBox::Ok));
    EXPECT_FALSE(box.isVisible());
    box.open();
    settle();
    press(&box, Qt::Key_Escape);
    EXPECT_FALSE(box.isVisible());
    EXPECT_THAT(diary, IsEmpty());
}

TEST_F(Forms, AClickOnAWaitingWindowBringsTheDialogForward)
{
    openDialog();
    click(main.button);
    EXPECT_EQ(stack.front(), &dialog);
    EXPECT_EQ(QApplication::activeWindow(), &dialog);
}

} // namespace
} // namespace torvane::testing
