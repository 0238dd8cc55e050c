#pragma once

#include "platform/picture_box.h"
#include "shell/about_frm.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "support/editor_fixture.h"

#include <QAction>
#include <QScrollBar>

namespace torvane::testing {

/// The main window of an editor, and what is looked at in it.
class MainWindow : public EditorFixture
{
protected:
    MainFrm& main() { return editor().mainFrm(); }
    QAction* entry(const char* name) { return main().menu().action(QLatin1StringView(name)); }
    QScrollBar* bar(const char* name) { return control<QScrollBar>(main(), QLatin1StringView(name)); }
    PictureBox* map() { return control<PictureBox>(main(), QStringLiteral("Picture_Main")); }
    QColor sea() { return map()->image().pixelColor(5, 5); }

    /// A dialog that opens and closes: what makes the main window active again.
    void returnFromDialog()
    {
        editor().aboutFrm().showForm(&main());
        settle();
        editor().aboutFrm().hideForm();
        settle();
    }
};

} // namespace torvane::testing
