#pragma once

#include "shell/editor_form.h"

#include <QString>

#include <vector>

namespace torvane {

class MainFrm;
class OptionButton;

/// A small dialog of options, left by choosing another one or by its close box. The main window's flag says
/// which: 0 after a choice; 1 after the close box, which forgets the choice.
class LevelFrm : public EditorForm
{
    Q_OBJECT

protected:
    using Flag = QCheckBox* const MainFrm::*;

    LevelFrm(Editor& editor, const QString& designName, Flag unloadFlag);

    /// Takes the options that the window has by now. One of them is on: the default.
    void useOptions();
    /// Gives each option what assistive tools say of it.
    void describeOptions(const QString& description);
    /// The design name of the option that is on.
    QString optionOn() const;
    /// Shows the dialog over the main window, which takes no input meanwhile, with an option turned on. An
    /// option that was not on is as good as chosen: the flag becomes 0.
    void open(const QString& option);

    void onCloseBox() override;

private:
    void turnedOn(OptionButton* option);
    void leave(int flag);

    Flag m_unloadFlag;
    std::vector<OptionButton*> m_options;
    OptionButton* m_default = nullptr;
};

} // namespace torvane
