#pragma once

#include "map/level_frm.h"
#include "platform/option_button.h"
#include "shell/main_frm.h"
#include "support/editor_fixture.h"

#include <QLabel>

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
    void expectLeft(const QCheckBox* flag, int value)
    {
        EXPECT_FALSE(dialog().isVisible());
        EXPECT_TRUE(editor().mainFrm().isInputEnabled());
        EXPECT_EQ(valueOf(flag), value);
        EXPECT_TRUE(boxes().isEmpty());
    }

    virtual LevelFrm& dialog() = 0;
};

} // namespace torvane::testing
