#include "shell/editor_form.h"

#include "shell/editor.h"
#include "shell/help_texts.h"
#include "shell/main_frm.h"

#include <QKeyEvent>

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

void EditorForm::keyPressEvent(QKeyEvent* event)
{
    const QString chapter = helpChapterFor(objectName());
    if (event->key() == Qt::Key_F1 && !chapter.isEmpty()) {
        runHandler([&] {
            m_editor.services().helpViewer.showChapter(m_editor.paths().workDir + helpFileName, chapter);
        });
    } else {
        Form::keyPressEvent(event);
    }
}

} // namespace torvane
