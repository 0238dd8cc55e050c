#pragma once

#include "shell/editor_form.h"
#include "shell/progress_panel.h"
#include "store/target_area.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

class QScrollBar;

namespace torvane {

class MainMenu;
class PictureBox;

/// The main window: owner of the run. Every other window is opened from it and comes back to it, and the
/// hidden controls on it are the shared state through which the windows talk to each other.
class MainFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit MainFrm(Editor& editor);
    ~MainFrm() override;

    // Shared state. Check boxes hold 0 or 1.
    QCheckBox* const chkGermanVersion = hiddenControl<QCheckBox>("chkGermanVersion");
    QLineEdit* const txtCurDir = hiddenControl<QLineEdit>("txtCurDir");
    QCheckBox* const chkCreateReturn = hiddenControl<QCheckBox>("chkCreateReturn");
    QLineEdit* const txtDivisionReturn = hiddenControl<QLineEdit>("txtDivisionReturn");
    QCheckBox* const chkReturnFromEdit = hiddenControl<QCheckBox>("chkReturnFromEdit");
    QLineEdit* const txtXPosition = hiddenControl<QLineEdit>("txtXPosition");
    QLineEdit* const txtYPosition = hiddenControl<QLineEdit>("txtYPosition");
    QCheckBox* const ChkPlotDiv = hiddenControl<QCheckBox>("ChkPlotDiv");
    QCheckBox* const chkBombardment = hiddenControl<QCheckBox>("chkBombardment");
    QCheckBox* const chkDayNight = hiddenControl<QCheckBox>("chkDayNight");
    QCheckBox* const chkUnloadZoom = hiddenControl<QCheckBox>("chkUnloadZoom");
    QCheckBox* const chkUnloadGrid = hiddenControl<QCheckBox>("chkUnloadGrid");
    QLabel* const lblupDivCnt = hiddenControl<QLabel>("lblupDivCnt");

    MainMenu& menu() { return *m_menu; }

    /// Deletes the scenario's scratch files. Throws RuntimeError at the first that can't be deleted.
    void killFiles();
    /// Empties the working tables. Throws RuntimeError. No command calls it.
    void emptyDBase();
    /// Starts the working profile anew with its version; a failed write is shown. No command runs it: a new
    /// scenario starts with no file at all.
    void createNewIniTempFile();
    /// Opens a file of the platform, such as the game's program, in a folder.
    bool Execute_Program(const QString& file, const QString& parameters, const QString& directory);

    /// Repaints the map. Without a mission that has a target area, the area goes back to 0.
    void redrawMap();

    /// Writes the scenario file. Throws RuntimeError and leaves a file of that name as it was.
    void saveINIfile(const QString& path);
    /// Shows over the map that work is under way.
    void showProgress(const QString& text);
    ProgressPanel& progress() { return *m_progress; }

    /// The text that names the division whose place is asked for.
    const QString& repositionKey() const { return m_repositionKey; }
    bool separationRingsPending() const { return m_separationRingsPending; }
    bool targetAreaInUse() const { return m_targetAreaInUse; }
    bool helpTagsOn() const { return m_helpTagsOn; }
    const TargetArea& targetArea() const { return m_target; }
    int targetDim() const { return m_target.dim; }
    /// Where the map has the target area's centre, in yards.
    void placeTargetArea(int x, int z);

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;
    void applyCaptions(Language language) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeSurface();
    void makeDebugReadOuts(QWidget* surface);
    void makeHelpTags();
    void connectCommands();
    void fitMenuBar();
    QString findBasePath();
    void showDebugReadOuts();

    void centreScrollBars();
    void askForPosition();
    void takeReturnedPosition();

    void toggleHelpTags();
    void showOverview();
    void showAbout();
    void unload();

    MainMenu* m_menu = nullptr;
    PictureBox* m_pictureMain = nullptr;
    QScrollBar* m_hScroll = nullptr;
    QScrollBar* m_vScroll = nullptr;
    QLabel* m_rulerCaption = nullptr;
    QLabel* m_distance = nullptr;
    std::array<QLabel*, 9> m_helpTags{};
    std::vector<PictureBox*> m_debugReadOuts;
    std::optional<ProgressPanel> m_progress;

    QString m_repositionKey;
    bool m_separationRingsPending = false;
    bool m_targetAreaInUse = false;
    bool m_helpTagsOn = true;
    TargetArea m_target;
    int m_lastHScrollValue = 0;
    int m_lastVScrollValue = 0;
    QPoint m_viewCentre;
    float m_cursorYardsX = 0;
    float m_cursorYardsY = 0;
};

} // namespace torvane
