#pragma once

#include "shell/editor_form.h"

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
    QLabel* const LblPicMap = hiddenControl<QLabel>("LblPicMap");
    /// Tells where the map last placed the division.
    void showPlacement(const QString& text) { LblPicMap->setText(text); }
    /// `chkDiv1` to `chkDiv12`: which division an edit is about.
    std::array<QCheckBox*, 12> chkDiv{};
};

} // namespace torvane
