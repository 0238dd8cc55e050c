#pragma once

#include "overview/environment_rules.h"
#include "overview/scenario_data.h"
#include "shell/editor_form.h"

#include <memory>

namespace Ui {
class EnviroFrm;
}

namespace torvane {

class ListCombo;
class StepButton;

/// The environment dialog: time, calendar, weather, game length, air control and location, and the rules that
/// tie them together. Its controls are read while they live: by the overview when it writes, and by the map's
/// rings.
class EnviroFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit EnviroFrm(Editor& editor);
    ~EnviroFrm() override;

    /// What the controls show.
    EnvironmentValues values() const;
    /// Shows values, control by control in the order of the scenario's keys; the rules of the clocks and of
    /// the wind run as they do for a user.
    void show(const EnvironmentValues& values);

    /// Writes the 23 keys of this dialog to the working profile.
    void writeEnvironmentKeys();
    /// Fills the controls from the working profile.
    void loadExisting();
    /// If the last edit was cancelled, fills the controls anew, so that what was cancelled is not written.
    void forgetCancelled();

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;
    void applyCaptions(Language language) override;

private:
    void drawPictures();
    void applyMnemonics();

    void connectClocks();
    void connectWeather();
    void step(QLabel* clock, ClockButton button, ClockStep step);
    void showClock(QLabel* clock, const QString& caption);
    void updateDayNight();
    void windTyped();
    void directionTyped();
    void seaStatePicked();
    void showGameLength(const GameLength& length);
    GameLength gameLength() const;

    void save();
    void cancel();
    void leave();

    std::unique_ptr<Ui::EnviroFrm> m_ui;
    QLabel* const m_gameLength = hiddenControl<QLabel>("TxtGameLen");
    ListCombo* const m_moon;
    bool m_cancelled = false; ///< the controls hold an edit that was cancelled
};

} // namespace torvane
