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
    m_cmbFormation->setEditable(true);
    m_cmbSpacing->setEditable(true);
    m_grdDivision->setColumnCount(2);
    m_grdDivision->setRowCount(DivisionRecords::gridRows);
}

DivisionFields CreateDivisionFrm::fields() const
{
    return {.divisionLabel = m_lblDivName->text(),
            .sideLabel = lblside->text(),
            .formation = m_cmbFormation->currentText(),
            .heading = m_txtHeading->text(),
            .spacing = m_cmbSpacing->currentText(),
            .speed = m_txtSpeed->text()};
}

void CreateDivisionFrm::takeShips(const QStringList& entries, const QString& caption)
{
    m_grdDivision->clearContents();
    m_grdDivision->setRowCount(static_cast<int>(entries.size()));
    for (int row = 0; row < m_grdDivision->rowCount(); ++row) {
        m_grdDivision->setItem(row, 0, new QTableWidgetItem(entries[row]));
    }
    m_grdDivision->setItem(0, 1, new QTableWidgetItem(QStringLiteral("FL")));
    m_lblDivName->setText(caption);
}

} // namespace torvane
