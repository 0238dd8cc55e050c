#pragma once

#include "overview/enviro_frm.h"
#include "overview/overview_frm.h"
#include "platform/list_combo.h"
#include "platform/step_button.h"
#include "shell/main_frm.h"
#include "support/editor_fixture.h"
#include "support/lists.h"

#include <QClipboard>
#include <QGroupBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

namespace torvane::testing {

/// What a click on a button makes of a box.
struct StepCase
{
    const char* button;
    const char* box;
    const char* from;
    const char* to;
};

/// Runs with the overview and the environment dialog, worked as a user works them.
class Dialogs : public EditorFixture
{
protected:
    OverviewFrm& overview() { return editor().overviewFrm(); }
    EnviroFrm& enviro() { return editor().enviroFrm(); }
    MainFrm& main() { return editor().mainFrm(); }

    QLineEdit* box(const char* name) { return control<QLineEdit>(overview(), QLatin1StringView(name)); }
    QPushButton* button(const char* name)
    {
        return control<QPushButton>(overview(), QLatin1StringView(name));
    }
    QLabel* label(const char* name) { return control<QLabel>(overview(), QLatin1StringView(name)); }
    ListCombo* list(const char* name) { return control<ListCombo>(overview(), QLatin1StringView(name)); }
    QPlainTextEdit* description()
    {
        return control<QPlainTextEdit>(overview(), QStringLiteral("RichTxtDescrip"));
    }
    QString objective(const char* name)
    {
        return control<QTextEdit>(overview(), QLatin1StringView(name))->toPlainText();
    }

    QLineEdit* envBox(const char* name) { return control<QLineEdit>(enviro(), QLatin1StringView(name)); }
    QPushButton* envButton(const char* name)
    {
        return control<QPushButton>(enviro(), QLatin1StringView(name));
    }
    QLabel* envLabel(const char* name) { return control<QLabel>(enviro(), QLatin1StringView(name)); }
    ListCombo* envList(const char* name) { return control<ListCombo>(enviro(), QLatin1StringView(name)); }

    /// Starts a run, chooses New: the overview stands open for the first time.
    void openNew(Language language = Language::English)
    {
        startPastSplash(language);
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuNew")));
        ASSERT_TRUE(overview().isVisible());
    }
    /// Starts a run in which this scenario section is under edit, and opens the overview of it.
    void openStored(const QByteArray& profile, Language language = Language::English)
    {
        openNew(language);
        saveOverview();
        putWorkFile(QStringLiteral("iniTemp.bmm"), profile);
        reopenOverview();
    }
    void saveOverview() { click(button("cmdOK")); }
    void reopenOverview()
    {
        ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuOverView")));
        ASSERT_TRUE(overview().isVisible());
    }
    void openEnvironment()
    {
        click(button("cmdEnviroCntrl"));
        ASSERT_TRUE(enviro().isVisible());
    }
    void acceptEnvironment() { click(envButton("cmdOK")); }
    void cancelEnvironment() { click(envButton("CmdCancel")); }

    QString stored(const char* key)
    {
        return editor().workingProfile().GetIniKey(u"SCENARIODATA", QString::fromLatin1(key));
    }
    void store(const char* key, const char* value)
    {
        editor().workingProfile().write(u"SCENARIODATA", QString::fromLatin1(key), QString::fromUtf8(value));
    }
    QByteArray profile() const { return workBytes(QStringLiteral("iniTemp.bmm")); }

    /// Replaces what a box holds, key by key.
    static void retype(QLineEdit* box, const QString& text)
    {
        press(box, Qt::Key_A, Qt::ControlModifier);
        text.isEmpty() ? press(box, Qt::Key_Delete) : type(box, text);
    }
    /// Pastes over what a text control holds.
    static void pasteOver(QWidget* box, const QString& text)
    {
        QApplication::clipboard()->setText(text);
        press(box, Qt::Key_A, Qt::ControlModifier);
        press(box, Qt::Key_V, Qt::ControlModifier);
    }
    static void clickTimes(QWidget* button, int times)
    {
        for (int i = 0; i < times; ++i) {
            click(button);
        }
    }
    void expectOneBox(const char* text, const char* title)
    {
        ASSERT_EQ(boxes().size(), 1);
        EXPECT_EQ(boxes().first().text, QString::fromUtf8(text));
        EXPECT_EQ(boxes().first().title, QString::fromUtf8(title));
        EXPECT_EQ(boxes().first().icon, MessageBox::Icon::Information);
        EXPECT_EQ(boxes().first().buttons, MessageBox::Buttons::Ok);
        boxes().clear();
    }
};

} // namespace torvane::testing
