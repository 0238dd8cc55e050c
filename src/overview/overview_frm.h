#pragma once

#include "overview/missions.h"
#include "overview/overview_texts.h"
#include "overview/scenario_data.h"
#include "overview/typed_values.h"
#include "shell/editor_form.h"
#include "store/side.h"

#include <memory>

class QPlainTextEdit;

namespace Ui {
class OverviewFrm;
}

namespace torvane {

class ListCombo;

/// The overview of the scenario: its name, mission, navies, disengage headings, victory modifiers and movie.
/// Owns the scenario section of the working profile together with the environment dialog, which is opened
/// from here.
class OverviewFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit OverviewFrm(Editor& editor);
    ~OverviewFrm() override;

    /// 1 while this is the first opening for a new scenario.
    QCheckBox* const ChknewFlag = hiddenControl<QCheckBox>("ChknewFlag");
    /// The words for the two sides. They change places while Force B holds the first role.
    QLabel* const lblForceA = hiddenControl<QLabel>("lblForceA");
    QLabel* const lblForceB = hiddenControl<QLabel>("lblForceB");

    /// The title as its text box shows it: the name of the scenario's file.
    QString title() const;
    /// The navy of a force as its list shows it.
    QString navy(Side side) const;
    /// Writes all 50 keys of the scenario section, from this dialog's controls and the environment dialog's.
    void WriteINI();
    /// Fills the controls of both dialogs from the working profile.
    void loadExisting();

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void applyCaptions(Language language) override;

private:
    void applyMnemonics();
    void colorForces();
    void connectSteppers();
    void connectTyping();

    OverviewValues values() const;
    void show(const OverviewValues& values);
    void applyScenarioDefaults();
    void setForces(bool swapped);
    void showMission(bool swapped);
    void showBrief(const Mission& chosen, bool swapped);
    const Mission* mission() const;

    void titleChanged();
    void descriptionChanged();
    void showDescription(const QString& text);
    void check(QLineEdit* box, TypedCheck (*rule)(QStringView), OverviewMessage message);
    void unlock(QObject* box);

    void openEnvironment();
    void save();
    void leave();

    std::unique_ptr<Ui::OverviewFrm> m_ui;
    ListCombo* const m_victoryMods;
    ListCombo* const m_blueCondition;
    ListCombo* const m_redCondition;
    bool m_returning = false; ///< from the environment dialog: the controls stay as they are
};

} // namespace torvane
