#pragma once

#include "divisions/division_records.h"
#include "shell/editor_form.h"
#include "store/side.h"

#include <array>
#include <memory>
#include <vector>

class QPushButton;

namespace Ui {
class CreateDivisionFrm;
}

namespace torvane {

class ListCombo;

/// The division dialog: creates a division of a force or edits one. Loaded once, then hidden and shown; it
/// reads its state anew at each activation. The main window's menu tells it the job through its hidden
/// controls before it shows it. Until it has read its state, and while it is hidden, it takes no input.
class CreateDivisionFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit CreateDivisionFrm(Editor& editor);
    ~CreateDivisionFrm() override;

    /// 1: a division is created, 0: one is edited.
    QCheckBox* const chkCreate = hiddenControl<QCheckBox>("chkCreate");
    /// 1: the dialog comes back from the ship dialog and keeps what it shows.
    QCheckBox* const chkReturnFlag = hiddenControl<QCheckBox>("chkReturnFlag");
    /// 1: the next division of the side is its first.
    QCheckBox* const ChknewBlueFlag = hiddenControl<QCheckBox>("ChknewBlueFlag");
    QCheckBox* const ChknewRedFlag = hiddenControl<QCheckBox>("ChknewRedFlag");
    QCheckBox* const chkReposition = hiddenControl<QCheckBox>("chkReposition");
    /// "Force A (Blue)" or "Force B (Red)", in both languages: it is compared.
    QLabel* const lblside = hiddenControl<QLabel>("lblside");
    /// The navy of the force as the overview's list shows it.
    QLabel* const lblForceSide = hiddenControl<QLabel>("lblForceSide");
    /// `chkDiv1` to `chkDiv12`: which division an edit is about.
    std::array<QCheckBox*, 12> chkDiv{};

    /// The division's name in the language of the interface; its last character is the number.
    QString divisionCaption() const;
    /// What the controls show.
    DivisionFields fields() const;
    /// Takes the ships that the ship dialog kept (type, blank, name), and the division's name. The first ship
    /// becomes the flagship.
    void takeShips(const QStringList& entries, const QString& caption);
    /// Tells where the division stands, or where the map last placed it.
    void showPlacement(const QString& text);

    /// Enables and shows the buttons by the grid's first row and the job.
    void ShipEnabled();
    /// Leaves without the division that was being made.
    void cancelSub();

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;
    void applyCaptions(Language language) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeUnusedControls();
    void makeGrid();
    void keepLockedReadable();
    void connectSettings();
    void connectButtons();
    void applyMnemonics();
    void fixSizes();

    Side side() const { return sideOfLabel(lblside->text()); }
    bool creates() const { return valueOf(chkCreate) == 1; }
    int divisionNumber() const;

    bool beginJob();
    bool beginCreation();
    void refuseDivision();
    void resetDialogForNewDivision();
    void beginEdit();
    void loadDivision(const QString& name, int number);
    void showDivisionInDialog(const DivisionVars& vars, bool encumbered);
    void becomeReady();
    void lockFailedJob();
    void showForce();
    void showName(const QString& drawn, const QString& label);

    void saveCreated();
    void saveEdited();
    void cancelEdit();
    void finishSave(const QString& label);
    void clearDialog();
    void leave();

    // The settings
    std::vector<QWidget*> settingControls() const;
    void openSettings();
    void keepSettings();
    void enableSettings(bool enabled);
    void showLock(bool open);
    void applyTransportEncumbrance();
    void turnHeading(int degrees);
    void headingTyped();
    void drawHeadingMark();
    void stepSpeed(int step);

    // The ships
    QString cell(int row, int column) const;
    void setCell(int row, int column, const QString& text);
    void clearGrid();
    void fillGrid(const QStringList& lines, const QList<int>& flagshipRows);
    QStringList gridShips() const;
    std::optional<int> flagshipRow() const;
    void armGrid();
    void pickFlagship(int row);
    void showShipCount();
    void openShips();
    QPushButton* nextStep() const;
    void leadToNextStep();

    std::unique_ptr<Ui::CreateDivisionFrm> m_ui;
    QWidget* const m_unused = hiddenControl<QWidget>("fraUnused");
    ListCombo* m_cmbDivName = nullptr;
    ListCombo* m_cmbSide = nullptr;
    QLineEdit* m_txtDivName = nullptr;
    QWidget* const m_picMask = hiddenControl<QWidget>("PicMask");
    bool m_jobFailed = false; ///< the job could not be begun: it can only be cancelled
    QPoint m_centre;          ///< of the picture of the heading mark
};

} // namespace torvane
