#pragma once

#include "divisions/division_records.h"
#include "shell/editor_form.h"

#include <QComboBox>
#include <QTableWidget>

#include <array>

namespace torvane {

/// The division dialog. So far only the state that other windows share with it.
class CreateDivisionFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit CreateDivisionFrm(Editor& editor);

    QCheckBox* const chkCreate = hiddenControl<QCheckBox>("chkCreate");
    QCheckBox* const chkReturnFlag = hiddenControl<QCheckBox>("chkReturnFlag");
    QCheckBox* const ChknewBlueFlag = hiddenControl<QCheckBox>("ChknewBlueFlag");
    QCheckBox* const ChknewRedFlag = hiddenControl<QCheckBox>("ChknewRedFlag");
    QCheckBox* const chkReposition = hiddenControl<QCheckBox>("chkReposition");
    /// "Force A (Blue)" or "Force B (Red)", in both languages: it is compared.
    QLabel* const lblside = hiddenControl<QLabel>("lblside");
    /// The navy of the force, as the overview names it.
    QLabel* const lblForceSide = hiddenControl<QLabel>("lblForceSide");
    QLabel* const LblPicMap = hiddenControl<QLabel>("LblPicMap");
    /// Tells where the map last placed the division.
    void showPlacement(const QString& text) { LblPicMap->setText(text); }
    /// `chkDiv1` to `chkDiv12`: which division an edit is about.
    std::array<QCheckBox*, 12> chkDiv{};

    /// The caption of `lblDivName`.
    QString divisionCaption() const { return m_lblDivName->text(); }
    /// What the controls show.
    DivisionFields fields() const;
    /// Shows the ships of the division, the first as the flagship, and the division's name.
    void takeShips(const QStringList& entries, const QString& caption);

private:
    QLabel* const m_lblDivName = hiddenControl<QLabel>("lblDivName");
    QTableWidget* const m_grdDivision = hiddenControl<QTableWidget>("GrdDivision");
    QComboBox* const m_cmbFormation = hiddenControl<QComboBox>("CmbFormation");
    QComboBox* const m_cmbSpacing = hiddenControl<QComboBox>("CmbSpacing");
    QLineEdit* const m_txtHeading = hiddenControl<QLineEdit>("TxtHeading");
    QLineEdit* const m_txtSpeed = hiddenControl<QLineEdit>("TxtSpeed");
};

} // namespace torvane
