#pragma once

#include "map/level_frm.h"
#include "platform/option_button.h"
#include "shell/main_frm.h"
#include "shell/splash_frm.h"
#include "support/editor_fixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

#include <algorithm>

namespace torvane::testing {

/// A dialog of options over the main window.
class LevelDialog : public EditorFixture
{
protected:
    OptionButton* option(const char* name)
    {
        return control<OptionButton>(dialog(), QLatin1StringView(name));
    }
    /// The design names of the options from top to bottom.
    QStringList namesDown()
    {
        QList<OptionButton*> options = dialog().findChildren<OptionButton*>();
        std::ranges::sort(options, {}, [](const OptionButton* each) { return each->y(); });
        QStringList names;
        for (const OptionButton* each : options) {
            names.append(each->objectName());
        }
        return names;
    }
    QStringList namesOn()
    {
        QStringList names;
        for (const OptionButton* each : dialog().findChildren<OptionButton*>()) {
            if (each->isChecked()) {
                names.append(each->objectName());
            }
        }
        return names;
    }
    QString caption(const char* name) { return option(name)->text(); }
    QString request() { return control<QLabel>(dialog(), QStringLiteral("Label1"))->text(); }

    void expectShown()
    {
        EXPECT_TRUE(dialog().isVisible());
        EXPECT_FALSE(editor().mainFrm().isInputEnabled());
    }
    void expectLeft(int value)
    {
        EXPECT_FALSE(dialog().isVisible());
        EXPECT_TRUE(editor().mainFrm().isInputEnabled());
        EXPECT_EQ(valueOf(flag()), value);
        EXPECT_TRUE(boxes().isEmpty());
    }
    /// So many options, and nothing else to press.
    void expectOptionsAlone(qsizetype count)
    {
        EXPECT_EQ(dialog().findChildren<OptionButton*>().size(), count);
        EXPECT_EQ(dialog().findChildren<QAbstractButton*>().size(), count);
    }
    /// A dialog that is made at its first need, before which there is none of that name.
    void expectLoadedAtFirstNeed(const char* designName)
    {
        const auto windows = [designName] {
            return std::ranges::count_if(QApplication::topLevelWidgets(), [designName](const QWidget* each) {
                return each->objectName() == QLatin1StringView(designName);
            });
        };
        start();
        EXPECT_EQ(windows(), 0) << "while the splash screen shows";
        press(&editor().splashFrm(), Qt::Key_Space);
        EXPECT_EQ(windows(), 1) << "the first redraw reads its options";
        EXPECT_FALSE(dialog().isVisible());
        EXPECT_EQ(windows(), 1);
    }

    virtual LevelFrm& dialog() = 0;
    virtual const QCheckBox* flag() = 0;
};

/// One of them: how the editor hands it out, and the flag of the main window that it leaves.
template <typename Dialog, Dialog& (Editor::*get)(), QCheckBox* const MainFrm::*unloadFlag>
class LevelDialogOf : public LevelDialog
{
protected:
    Dialog& form() { return (editor().*get)(); }
    LevelFrm& dialog() override { return form(); }
    const QCheckBox* flag() override { return editor().mainFrm().*unloadFlag; }
    void openAt(std::int16_t index)
    {
        editor().forms().runHandler([this, index] { form().openAt(index); });
        settle();
    }
};

} // namespace torvane::testing
