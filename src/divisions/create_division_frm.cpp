#include "divisions/create_division_frm.h"

#include "shell/editor.h"

namespace torvane {

CreateDivisionFrm::CreateDivisionFrm(Editor& editor)
    : EditorForm(editor, QStringLiteral("CreateDivisionFrm"), Qt::Dialog)
{
    for (std::size_t i = 0; i < chkDiv.size(); ++i) {
        chkDiv[i] = hiddenControl<QCheckBox>("chkDiv");
        chkDiv[i]->setObjectName(QStringLiteral("chkDiv%1").arg(i + 1));
    }
}

} // namespace torvane
