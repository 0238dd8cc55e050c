#include "overview_fixture.h"

namespace torvane::testing {
namespace {

class OverviewSteppers : public Dialogs
{
protected:
    void SetUp() override { openNew(); }
};

TEST_F(OverviewSteppers, EachStepsByAClickAndWrapsAtItsBounds)
{
    const StepCase steps[] = {
        {"Command9", "txtDisengageA", "180", "179"},   {"Command9", "txtDisengageA", "0", "360"},
        {"Command10", "txtDisengageA", "180", "181"},  {"Command10", "txtDisengageA", "360", "0"},
        {"Command13", "txtDisengageB", "180", "179"},  {"Command13", "txtDisengageB", "0", "360"},
        {"Command14", "txtDisengageB", "180", "181"},  {"Command14", "txtDisengageB", "359", "360"},
        {"Command17", "txtVPmodsA", "3.00", "2"},      {"Command17", "txtVPmodsA", "1.00", "99.99"},
        {"Command18", "txtVPmodsA", "1.00", "2"},      {"Command18", "txtVPmodsA", "99.5", "0.01"},
        {"Command19", "txtVPmodsA", "1.00", "0.99"},   {"Command20", "txtVPmodsA", "1.00", "1.01"},
        {"Command21", "txtVPmodsB", "3.00", "2"},      {"Command21", "txtVPmodsB", "1.00", "99.99"},
        {"Command22", "txtVPmodsB", "1.00", "2"},      {"Command22", "txtVPmodsB", "99.5", "0.01"},
        {"Command15", "txtVPmodsB", "1.00", "0.99"},   {"Command15", "txtVPmodsB", "0.01", "99.99"},
        {"Command16", "txtVPmodsB", "1.00", "1.01"},   {"Command16", "txtVPmodsB", "99.99", "0.01"},
        {"Command13", "txtDisengageB", "90.5", "89"},  {"Command14", "txtDisengageB", "90.5", "91.5"},
        {"Command10", "txtDisengageA", "90.25", "91"}, {"Command9", "txtDisengageA", "90.75", "90"},
    };
    for (const StepCase& step : steps) {
        retype(box(step.box), QLatin1StringView(step.from));
        click(button(step.button));
        EXPECT_EQ(box(step.box)->text(), QLatin1StringView(step.to)) << step.button << " from " << step.from;
    }
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(OverviewSteppers, ModifierAAt99Point99AndAHundredthMoreGives0Point01AndBack)
{
    retype(box("txtVPmodsA"), QStringLiteral("99.99"));
    click(button("Command20"));
    EXPECT_EQ(box("txtVPmodsA")->text(), QStringLiteral("0.01"));
    click(button("Command19"));
    EXPECT_EQ(box("txtVPmodsA")->text(), QStringLiteral("99.99"));
}

TEST_F(OverviewSteppers, HeadingBAt360AndOneMoreGives0)
{
    retype(box("txtDisengageB"), QStringLiteral("360"));
    click(button("Command14"));
    EXPECT_EQ(box("txtDisengageB")->text(), QStringLiteral("0"));
}

TEST_F(OverviewSteppers, EachTouchesItsOwnBoxAlone)
{
    clickTimes(button("Command10"), 2);
    clickTimes(button("Command18"), 3);
    EXPECT_EQ(box("txtDisengageA")->text(), QStringLiteral("182"));
    EXPECT_EQ(box("txtVPmodsA")->text(), QStringLiteral("4"));
    EXPECT_EQ(box("txtDisengageB")->text(), QStringLiteral("180"));
    EXPECT_EQ(box("txtVPmodsB")->text(), QStringLiteral("1.00"));
}

TEST_F(OverviewSteppers, AHeldOneRepeats)
{
    QPushButton* up = button("Command10");
    QTest::mousePress(up, Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return box("txtDisengageA")->text().toInt() >= 184; }));
    QTest::mouseRelease(up, Qt::LeftButton);
    settle();
    const QString released = box("txtDisengageA")->text();
    QTest::qWait(250);
    EXPECT_EQ(box("txtDisengageA")->text(), released);
}

class OverviewTyping : public Dialogs
{
};

TEST_F(OverviewTyping, AHeadingOutsideTheCircleBringsTheMessageAndThe0)
{
    for (const char* name : {"txtDisengageA", "txtDisengageB"}) {
        openNew(Language::English);
        retype(box(name), QStringLiteral("361"));
        expectOneBox("You must enter a heading between 0 and 360 degrees.", "Out of Range");
        EXPECT_EQ(box(name)->text(), QStringLiteral("0"));
        pasteOver(box(name), QStringLiteral("-1"));
        expectOneBox("You must enter a heading between 0 and 360 degrees.", "Out of Range");
        openNew(Language::German);
        retype(box(name), QStringLiteral("999"));
        expectOneBox("Sie müssen einen Wert zwischen 0 und 360 eingeben.", "Ausserhalb Ihrer Reichweite");
        EXPECT_EQ(box(name)->text(), QStringLiteral("0"));
        retype(box(name), QStringLiteral("360.9"));
        EXPECT_TRUE(boxes().isEmpty()) << "the integer part counts";
        EXPECT_EQ(box(name)->text(), QStringLiteral("360.9"));
    }
}

TEST_F(OverviewTyping, AModifierOf100BringsTheMessageAndThe0)
{
    for (const char* name : {"txtVPmodsA", "txtVPmodsB"}) {
        openNew(Language::English);
        retype(box(name), QStringLiteral("100"));
        expectOneBox("You must enter a value between 0.01 and 99.99.", "Out of Range");
        EXPECT_EQ(box(name)->text(), QStringLiteral("0"));
        openNew(Language::German);
        pasteOver(box(name), QStringLiteral("-0.5"));
        expectOneBox("Geben Sie einen Wert zwischen 0.01 und 99.99 ein.", "Ausserhalb Ihrer Reichweite");
        EXPECT_EQ(box(name)->text(), QStringLiteral("0"));
        for (const char* passes : {"0", "0.00", "99.995", "99.99"}) {
            retype(box(name), QLatin1StringView(passes));
            EXPECT_TRUE(boxes().isEmpty()) << passes;
            EXPECT_EQ(box(name)->text(), QLatin1StringView(passes));
        }
    }
}

TEST_F(OverviewTyping, BadInputEndsInTheMessageOrInATextThatReadsAsANumberInRange)
{
    openNew();
    const QStringList bad{QString(),
                          QStringLiteral("-"),
                          QStringLiteral("+"),
                          QStringLiteral("abc"),
                          QStringLiteral("   "),
                          QStringLiteral("12,5"),
                          QStringLiteral("1\n2"),
                          QString::fromUtf8("⚓"),
                          QString(400, QLatin1Char('9')),
                          QString(400, QLatin1Char('-')),
                          QStringLiteral("1E400")};
    for (const char* name : {"txtDisengageA", "txtDisengageB", "txtVPmodsA", "txtVPmodsB"}) {
        for (const QString& text : bad) {
            pasteOver(box(name), text);
            EXPECT_LE(boxes().size(), 1);
            boxes().clear();
            const double number = boundedValue(box(name)->text().left(5));
            EXPECT_GE(number, 0) << name << text.left(10).toStdString();
            EXPECT_LE(number, 360) << name << text.left(10).toStdString();
            click(button(name[3] == 'D' ? "Command10" : "Command18"));
        }
    }
    saveOverview();
    EXPECT_EQ(profile().count('='), 50);
    EXPECT_EQ(profile().count('\n'), 51) << "no line break reaches the file";
    reopenOverview();
    EXPECT_TRUE(boxes().isEmpty()) << "what was stored is taken back";
}

TEST_F(OverviewTyping, TheTitleIsCutTo30AndTakesNoMoreUntilTheNextKeyOrPointer)
{
    openNew();
    retype(box("TxtTitle"), QStringLiteral("123456789012345678901234567890"));
    EXPECT_EQ(box("TxtTitle")->text().size(), 30);
    EXPECT_TRUE(box("TxtTitle")->isReadOnly());
    type(box("TxtTitle"), QStringLiteral("xyz"));
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("123456789012345678901234567890"));
    press(box("TxtTitle"), Qt::Key_Backspace);
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("12345678901234567890123456789"));
    type(box("TxtTitle"), QStringLiteral("x"));
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("12345678901234567890123456789x"));
    EXPECT_TRUE(box("TxtTitle")->isReadOnly());
    QTest::mouseMove(overview().windowHandle(), box("TxtTitle")->mapTo(&overview(), QPoint(5, 5)));
    settle();
    EXPECT_FALSE(box("TxtTitle")->isReadOnly()) << "the pointer unlocks it too";
    pasteOver(box("TxtTitle"), QString(31, QLatin1Char('t')));
    EXPECT_EQ(box("TxtTitle")->text(), QString(30, QLatin1Char('t')));
    EXPECT_TRUE(box("TxtTitle")->isReadOnly());
    click(box("TxtTitle"));
    EXPECT_FALSE(box("TxtTitle")->isReadOnly());
}

TEST_F(OverviewTyping, AtTheLimitACharacterInTheMiddlePushesTheLastOneOutAndTheCursorStays)
{
    openNew();
    retype(box("TxtTitle"), QStringLiteral("123456789012345678901234567890"));
    press(box("TxtTitle"), Qt::Key_Home);
    type(box("TxtTitle"), QStringLiteral("ab"));
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("ab1234567890123456789012345678"));
    EXPECT_EQ(box("TxtTitle")->cursorPosition(), 2);
    pasteOver(description(), QString(370, QLatin1Char('d')));
    press(description(), Qt::Key_Home, Qt::ControlModifier);
    type(description(), QStringLiteral("ab"));
    EXPECT_EQ(description()->toPlainText(), QStringLiteral("ab") + QString(368, QLatin1Char('d')));
    EXPECT_EQ(description()->textCursor().position(), 2);
}

TEST_F(OverviewTyping, A371CharacterPasteInTheDescriptionIsCutTo370AndLocksTheBox)
{
    openNew();
    pasteOver(description(), QString(371, QLatin1Char('d')));
    EXPECT_EQ(description()->toPlainText(), QString(370, QLatin1Char('d')));
    EXPECT_TRUE(description()->isReadOnly());
    press(description(), Qt::Key_End, Qt::ControlModifier);
    press(description(), Qt::Key_Backspace);
    EXPECT_EQ(description()->toPlainText().size(), 369);
    EXPECT_FALSE(description()->isReadOnly());
    type(description(), QStringLiteral("e"));
    EXPECT_TRUE(description()->toPlainText().endsWith(QLatin1Char('e')));
    EXPECT_TRUE(description()->isReadOnly());
    click(description()->viewport());
    EXPECT_FALSE(description()->isReadOnly());
}

TEST_F(OverviewTyping, A369CharacterDescriptionDoesNotLock)
{
    openNew();
    pasteOver(description(), QString(369, QLatin1Char('d')));
    EXPECT_FALSE(description()->isReadOnly());
    retype(box("TxtTitle"), QString(29, QLatin1Char('t')));
    EXPECT_FALSE(box("TxtTitle")->isReadOnly());
}

TEST_F(OverviewTyping, EnterInTheDescriptionGoesToTheMissionAndMakesNoLine)
{
    openNew();
    for (const auto& [key, modifiers] :
         {std::pair{Qt::Key_Return, Qt::NoModifier}, std::pair{Qt::Key_Enter, Qt::KeypadModifier},
          std::pair{Qt::Key_Return, Qt::ShiftModifier}}) {
        pasteOver(description(), QStringLiteral(" one two "));
        description()->setFocus();
        press(description(), key, modifiers);
        EXPECT_EQ(description()->toPlainText(), QStringLiteral("one two"));
        EXPECT_TRUE(list("cmbMission")->hasFocus());
        EXPECT_TRUE(overview().isVisible()) << "Save is not pressed";
    }
}

TEST_F(OverviewTyping, PastedLineBreaksBecomeOneParagraph)
{
    openNew();
    pasteOver(description(), QStringLiteral("first\nsecond\r\nthird\n"));
    EXPECT_EQ(description()->toPlainText(), QStringLiteral("first second third"));
    pasteOver(box("TxtTitle"), QStringLiteral("up\ndown"));
    saveOverview();
    EXPECT_EQ(stored("DESCRIPTION_LINE0"), QStringLiteral("first second third"));
    EXPECT_EQ(stored("DESCRIPTION_LINECNT"), QStringLiteral("1"));
    EXPECT_EQ(stored("TITLE"), QStringLiteral("up down"));
    EXPECT_EQ(profile().count('\n'), 51);
}

TEST_F(OverviewTyping, OddTitlesAndDescriptionsAreStoredInOneLineAndComeBack)
{
    openNew();
    for (const char* text : {"[DIVISION0]", "a=b", ";c", "\xF0\x9F\x9A\xA2 at sea", "\"quoted", "1,5"}) {
        pasteOver(box("TxtTitle"), QString::fromUtf8(text));
        pasteOver(description(), QString::fromUtf8(text));
        saveOverview();
        EXPECT_EQ(profile().count('\n'), 51) << text;
        EXPECT_EQ(profile().count('['), 1 + 2 * (text[0] == '[')) << text;
        reopenOverview();
        EXPECT_TRUE(boxes().isEmpty());
        EXPECT_EQ(box("TxtTitle")->text(), stored("TITLE"));
        EXPECT_EQ(description()->toPlainText(), stored("DESCRIPTION_LINE0"));
    }
    EXPECT_EQ(box("TxtTitle")->text(), QStringLiteral("1,5"));
}

TEST_F(OverviewTyping, AHugePasteIsTakenAtOnce)
{
    openNew();
    pasteOver(description(), QString(200000, QLatin1Char('x')) + QStringLiteral("\nmore"));
    EXPECT_EQ(description()->toPlainText(), QString(370, QLatin1Char('x')));
    pasteOver(box("TxtTitle"), QString(200000, QLatin1Char('x')));
    EXPECT_EQ(box("TxtTitle")->text(), QString(30, QLatin1Char('x')));
}

} // namespace
} // namespace torvane::testing
