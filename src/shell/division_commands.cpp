#include "shell/division_commands.h"

#include "divisions/create_division_frm.h"
#include "overview/overview_frm.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "store/side.h"

namespace torvane {

void openDivisionDialog(Editor& editor, const DivisionCommandRow& command)
{
    CreateDivisionFrm& dialog = editor.createDivisionFrm();
    dialog.lblside->setText(command.forceA ? forceALabel : forceBLabel);
    dialog.setWindowTitle(QString::fromLatin1(command.dialogCaption));
    setValue(dialog.chkCreate, command.marker == nullptr ? 1 : 0);
    if (command.marker == nullptr) {
        editor.overviewFrm().hideForm();
    } else {
        setValue(dialog.findChild<QCheckBox*>(QLatin1StringView(command.marker)), 1);
    }
    // Its activation lets it take input: nobody can leave it before it knows its job.
    dialog.setInputEnabled(false);
    dialog.openOver(editor.mainFrm());
}

} // namespace torvane
