#include "shell/editor_form.h"

#include "shell/editor.h"
#include "shell/main_frm.h"

namespace torvane {

EditorForm::EditorForm(Editor& editor, const QString& designName, Qt::WindowFlags flags)
    : Form(editor.forms(), designName, flags), m_editor(editor)
{
}

void EditorForm::onLoad()
{
    if (valueOf(m_editor.mainFrm().chkGermanVersion) == 1) {
        setGermanCaptions();
    } else {
        setEnglishCaptions();
    }
}

} // namespace torvane
