#include "platform/label_lead.h"
#include "platform/list_combo.h"
#include "platform/step_button.h"
#include "support/input.h"
#include "support/printers.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QShortcutEvent>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

class ListOfShips : public ::testing::Test
{
protected:
    void SetUp() override
    {
        list.addItems({QStringLiteral("Hood"), QStringLiteral("Bismarck"), QStringLiteral("hood")});
        list.show();
    }

    ListCombo list;
};

TEST_F(ListOfShips, ShowsTheEntryOfAText)
{
    list.showEntry(QStringLiteral("Bismarck"));
    EXPECT_EQ(list.currentIndex(), 1);
    EXPECT_EQ(list.shownText(), QStringLiteral("Bismarck"));
    list.showEntry(QStringLiteral("hood"));
    EXPECT_EQ(list.currentIndex(), 2) << "capitals count";
}

TEST_F(ListOfShips, AnEntryThatThereIsNotChangesNothing)
{
    list.showEntry(QStringLiteral("Bismarck"));
    for (const char* text : {"", "Bis", "Bismarck ", "*", "Tirpitz"}) {
        list.showEntry(QLatin1StringView(text));
        EXPECT_EQ(list.shownText(), QStringLiteral("Bismarck")) << text;
    }
}

TEST_F(ListOfShips, ATextOutsideTheListIsShownWithoutBecomingAnEntry)
{
    list.showText(QStringLiteral("Tirpitz"));
    EXPECT_EQ(list.shownText(), QStringLiteral("Tirpitz"));
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.count(), 3);
    EXPECT_FALSE(list.isEditable());
}

TEST_F(ListOfShips, AndLooksLikeAnyOtherText)
{
    list.showText(QStringLiteral("Bismarck"));
    const QImage entry = list.grab().toImage();
    list.clear();
    list.addItem(QStringLiteral("Hood"));
    list.resize(entry.size() / entry.devicePixelRatio());
    list.showText(QStringLiteral("Bismarck"));
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.grab().toImage(), entry);
}

TEST_F(ListOfShips, ATextThatIsAnEntryIsThatEntry)
{
    list.showText(QStringLiteral("Tirpitz"));
    list.showText(QStringLiteral("Hood"));
    EXPECT_EQ(list.currentIndex(), 0);
    EXPECT_EQ(list.shownText(), QStringLiteral("Hood"));
}

TEST_F(ListOfShips, OnceAnEntryIsPickedTheOtherTextIsForgotten)
{
    list.showText(QStringLiteral("Tirpitz"));
    press(&list, Qt::Key_Down);
    EXPECT_EQ(list.shownText(), QStringLiteral("Hood"));
}

TEST_F(ListOfShips, ShowingIsNoPick)
{
    const QSignalSpy picked(&list, &QComboBox::activated);
    list.showEntry(QStringLiteral("Bismarck"));
    list.showText(QStringLiteral("Tirpitz"));
    EXPECT_TRUE(picked.isEmpty());
    press(&list, Qt::Key_End);
    EXPECT_EQ(picked.size(), 1);
}

TEST_F(ListOfShips, AnEmptyListShowsNothing)
{
    list.clear();
    EXPECT_EQ(list.shownText(), QString());
}

class Stepper : public ::testing::Test
{
protected:
    void SetUp() override
    {
        button.setText(QStringLiteral("▶"));
        button.show();
    }

    StepButton button;
    QSignalSpy clicked{&button, &QPushButton::clicked};
    QSignalSpy plus{&button, &StepButton::plusPressed};
    QSignalSpy minus{&button, &StepButton::minusPressed};
};

TEST_F(Stepper, AClickActsOnce)
{
    click(&button);
    EXPECT_EQ(clicked.size(), 1);
    EXPECT_TRUE(plus.isEmpty());
    EXPECT_TRUE(minus.isEmpty());
}

TEST_F(Stepper, ASlowClickActsOnce)
{
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::qWait(400);
    EXPECT_TRUE(clicked.isEmpty());
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(clicked.size(), 1);
}

TEST_F(Stepper, HeldItRepeatsUntilItIsLetGoWhichAddsNone)
{
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return clicked.size() >= 3; }));
    const auto count = clicked.size();
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_EQ(clicked.size(), count);
    QTest::qWait(250);
    EXPECT_EQ(clicked.size(), count);
    EXPECT_FALSE(button.isDown());
    click(&button);
    EXPECT_EQ(clicked.size(), count + 1) << "the next click counts again";
}

TEST_F(Stepper, TheHeldSpaceBarRepeatsUntilItIsLetGoWhichAddsNone)
{
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_TRUE(waitUntil([&] { return clicked.size() >= 3; }));
    const auto count = clicked.size();
    QTest::keyRelease(&button, Qt::Key_Space);
    QTest::qWait(250);
    EXPECT_EQ(clicked.size(), count);
    press(&button, Qt::Key_Space);
    EXPECT_EQ(clicked.size(), count + 1) << "the next one counts again";
}

TEST_F(Stepper, AHoldThatLosesTheKeyboardLeavesTheNextClickWhole)
{
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_TRUE(waitUntil([&] { return clicked.size() >= 2; }));
    QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&button, &out);
    const auto count = clicked.size();
    click(&button);
    EXPECT_EQ(clicked.size(), count + 1);
}

TEST_F(Stepper, TheSpaceBarIsAClick)
{
    press(&button, Qt::Key_Space);
    EXPECT_EQ(clicked.size(), 1);
}

TEST_F(Stepper, PlusAndMinusAreToldApartFromAClick)
{
    press(&button, Qt::Key_Plus);
    press(&button, Qt::Key_Plus, Qt::ShiftModifier);
    press(&button, Qt::Key_Plus, Qt::KeypadModifier);
    press(&button, Qt::Key_Minus);
    EXPECT_EQ(plus.size(), 3);
    EXPECT_EQ(minus.size(), 1);
    EXPECT_TRUE(clicked.isEmpty());
}

TEST_F(Stepper, PlusAndMinusGoOnWhereNobodyListens)
{
    StepButton deaf;
    deaf.show();
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&deaf, &event);
        EXPECT_FALSE(event.isAccepted());
        QKeyEvent heard(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&button, &heard);
        EXPECT_TRUE(heard.isAccepted());
    }
}

TEST_F(Stepper, EnterIsLeftToTheWindowsDefaultButton)
{
    press(&button, Qt::Key_Return);
    EXPECT_TRUE(clicked.isEmpty());
    EXPECT_FALSE(button.autoDefault());
}

TEST_F(Stepper, DisabledItTakesNothing)
{
    button.setEnabled(false);
    click(&button);
    press(&button, Qt::Key_Plus);
    EXPECT_TRUE(clicked.isEmpty());
    EXPECT_TRUE(plus.isEmpty());
}

TEST_F(Stepper, IsSmallButHoldsItsText)
{
    EXPECT_GE(button.sizeHint().width(), 26);
    EXPECT_LT(button.sizeHint().width(), QPushButton(button.text()).sizeHint().width());
    button.setText(QStringLiteral("A long word on it"));
    EXPECT_GT(button.sizeHint().width(), button.fontMetrics().horizontalAdvance(button.text()));
}

class LabelAtAnOption : public ::testing::Test
{
protected:
    void SetUp() override
    {
        label.setBuddy(&no);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(waitUntil([&] { return window.isActiveWindow(); }));
        field.setFocus();
    }

    QWidget window;
    QLabel label{QStringLiteral("&Encumbered"), &window};
    QLineEdit field{&window};
    QRadioButton yes{QStringLiteral("Yes"), &window};
    QRadioButton no{QStringLiteral("No"), &window};
    QShortcutEvent mnemonic{QKeySequence(Qt::ALT | Qt::Key_E), 0};
};

TEST_F(LabelAtAnOption, LeadsToItWhereNoneIsChosenAndChoosesNone)
{
    EXPECT_TRUE(leadByMnemonic(&label, &mnemonic));
    EXPECT_TRUE(no.hasFocus());
    QTest::qWait(200);
    EXPECT_FALSE(no.isChecked());
}

TEST_F(LabelAtAnOption, LeadsToTheOneThatIsOn)
{
    yes.setChecked(true);
    EXPECT_TRUE(leadByMnemonic(&label, &mnemonic));
    EXPECT_TRUE(yes.hasFocus());
    QTest::qWait(200);
    EXPECT_TRUE(yes.isChecked());
}

TEST_F(LabelAtAnOption, LeavesTheLabelsOfFieldsAndOtherEventsAlone)
{
    const QEvent other(QEvent::KeyPress);
    EXPECT_FALSE(leadByMnemonic(&label, &other));
    EXPECT_FALSE(leadByMnemonic(&window, &mnemonic));
    label.setBuddy(&field);
    EXPECT_FALSE(leadByMnemonic(&label, &mnemonic));
}

} // namespace
} // namespace torvane::testing
