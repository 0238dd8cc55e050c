#pragma once

#include "platform/form.h"
#include "platform/language.h"

namespace torvane {

class Editor;

/// The base of the editor's own windows: each reaches its fellows through the Editor, and takes its captions
/// at load from the main window's flag.
class EditorForm : public Form
{
    Q_OBJECT

public:
    void setEnglishCaptions() { applyCaptions(Language::English); }
    void setGermanCaptions() { applyCaptions(Language::German); }

protected:
    /// `editor` outlives the window.
    EditorForm(Editor& editor, const QString& designName, Qt::WindowFlags flags);

    /// Sets the captions by `MainFrm.chkGermanVersion`.
    void onLoad() override;
    /// Gives the controls their captions and fills the window's texts. The design-time captions are English.
    virtual void applyCaptions(Language language) { static_cast<void>(language); }
    /// F1 opens the help at the chapter about the window.
    void keyPressEvent(QKeyEvent* event) override;

    Editor& m_editor;
};

} // namespace torvane
