#include "map/level_frm.h"

#include "platform/option_button.h"
#include "shell/editor.h"
#include "shell/main_frm.h"

#include <QSignalBlocker>

#include <algorithm>

namespace torvane {

LevelFrm::LevelFrm(Editor& editor, const QString& designName, Flag unloadFlag)
    : EditorForm(editor, designName, Qt::Dialog), m_unloadFlag(unloadFlag)
{
}

void LevelFrm::useOptions()
{
    for (OptionButton* option : findChildren<OptionButton*>()) {
        m_options.push_back(option);
        if (option->isChecked()) {
            m_default = option;
        }
        on(option, &OptionButton::toggled, [this, option](bool isOn) {
            if (isOn) {
                turnedOn(option);
            }
        });
    }
}

void LevelFrm::describeOptions(const QString& description)
{
    for (OptionButton* option : m_options) {
        option->setAccessibleDescription(description);
    }
}

QString LevelFrm::optionOn() const
{
    const auto found = std::ranges::find_if(m_options, &OptionButton::isChecked);
    return found == m_options.end() ? QString() : (*found)->objectName();
}

void LevelFrm::open(const QString& option)
{
    auto* button = findChild<OptionButton*>(option);
    button->setChecked(true);
    button->setFocus();
    openOver(m_editor.mainFrm());
}

// Also for an option that the program turns on before the dialog is seen.
void LevelFrm::turnedOn(OptionButton* option)
{
    for (OptionButton* other : m_options) {
        other->setChecked(other == option);
    }
    leave(0);
}

// The next use finds the dialog as it was when it was loaded.
void LevelFrm::onCloseBox()
{
    for (OptionButton* option : m_options) {
        const QSignalBlocker silent(option);
        option->setChecked(option == m_default);
    }
    leave(1);
}

void LevelFrm::leave(int flag)
{
    leaveTo(m_editor.mainFrm());
    setValue(m_editor.mainFrm().*m_unloadFlag, flag);
}

} // namespace torvane
