#include "divisions/create_division_frm.h"
#include "platform/list_combo.h"
#include "platform/pointer.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "ui_create_division_frm.h"

#include <QScopeGuard>

// The ways out of the division dialog: saved or cancelled, from a creation or an edit.

namespace torvane {

void CreateDivisionFrm::saveCreated()
{
    const HourglassPointer hourglass;
    DivisionRecords& records = m_editor.divisionRecords();
    const DivisionFields shown = fields();
    records.requireSavable(shown, true);
    records.saveDivCountINI();
    records.saveToINI(shown, creates());
    const bool blue = side() == Side::Blue;
    const MainMenu& menu = m_editor.mainFrm().menu();
    menu.setEnabled(blue ? QStringLiteral("mnuRepoForceA") : QStringLiteral("mnuRepoForceB"), true);
    menu.setEnabled(blue ? QStringLiteral("editForceA") : QStringLiteral("editForceB"), true);
    setValue(m_editor.mainFrm().chkReturnFromEdit, 0);
    finishSave(shown.divisionLabel.trimmed());
    menu.setEnabled(QStringLiteral("mnuCreateForceB"), true);
}

void CreateDivisionFrm::saveEdited()
{
    const HourglassPointer hourglass;
    DivisionRecords& records = m_editor.divisionRecords();
    const DivisionFields shown = fields();
    records.requireSavable(shown, false);
    records.saveDivCountINI();
    if (!creates()) {
        records.saveEditedDivision(shown);
    }
    setValue(m_editor.mainFrm().chkReturnFromEdit, 1);
    finishSave(shown.divisionLabel.trimmed());
    records.deleteDivisionScratch();
}

// The main window reads the flags when it comes to the front, which is after this.
void CreateDivisionFrm::finishSave(const QString& label)
{
    DivisionRecords& records = m_editor.divisionRecords();
    MainFrm& mainFrm = m_editor.mainFrm();
    mainFrm.menu().enableForceMenus(records.blueDivCount(), records.redDivCount());
    records.writeDivisionCount(mainFrm.lblupDivCnt->text());
    clearDialog();
    leave();
    setValue(mainFrm.chkCreateReturn, 1);
    mainFrm.txtDivisionReturn->setText(label);
}

void CreateDivisionFrm::cancelEdit()
{
    const auto leaving = qScopeGuard([this] {
        clearDialog();
        leave();
        setValue(m_editor.mainFrm().chkReturnFromEdit, 0);
    });
    m_editor.divisionRecords().deleteDivisionScratch();
}

void CreateDivisionFrm::cancelSub()
{
    clearDialog();
    leave();
    m_editor.divisionRecords().countDivision(side(), -1);
}

void CreateDivisionFrm::onCloseBox()
{
    creates() ? cancelSub() : cancelEdit();
}

void CreateDivisionFrm::clearDialog()
{
    clearGrid();
    showName(QString(), QString());
    lblForceSide->setText(QString());
    m_cmbDivName->showText(QString());
    m_ui->TxtSpeed->setText(QString());
}

void CreateDivisionFrm::leave()
{
    // A click or close box that is still on its way must not leave, and count, a second time.
    setInputEnabled(false);
    leaveTo(m_editor.mainFrm());
    setValue(chkReturnFlag, 0);
    setValue(m_editor.mainFrm().ChkPlotDiv, 0);
}

} // namespace torvane
