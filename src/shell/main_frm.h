#pragma once

#include "map/map_view.h"
#include "map/tactical_map.h"
#include "shell/editor_form.h"
#include "shell/progress_panel.h"

#include <QString>

#include <optional>

namespace torvane {

class MainMenu;
class MapSurface;

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
    QCheckBox* const chkDayNight = [this] {
        auto* box = hiddenControl<QCheckBox>("chkDayNight");
        box->setText(QStringLiteral("Day On"));
        return box;
    }();
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

    /// Repaints the map and rebuilds the Edit Ship menu.
    void redrawMap() { m_map->redrawMap(); }
    /// Takes the map's scale from the table.
    void readMapScale() { m_map->readMapScale(); }
    TacticalMap& map() { return *m_map; }

    /// Writes the scenario file. Throws RuntimeError and leaves a file of that name as it was.
    void saveINIfile(const QString& path);
    /// Shows over the map that work is under way.
    void showProgress(const QString& text);
    ProgressPanel& progress() { return *m_progress; }

    bool helpTagsOn() const { return m_helpTagsOn; }
    /// Whether the start is past its questions, so that paths and store are there.
    bool hasStarted() const { return m_started; }
    const TargetArea& targetArea() const { return m_map->state().target.area; }
    /// Where the map has the target area's centre, in yards.
    void placeTargetArea(int x, int z) { m_map->placeTargetArea(x, z); }

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;
    void applyCaptions(Language language) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeSurface();
    void connectCommands();
    void connectMap();
    void leadKeysToMap();
    void fitMenuBar();
    QString findBasePath();
    void showDebugReadOuts();

    WindowState mapWindowState() const;
    void windowResized();
    /// The next click on the map places a division.
    void askForPosition(const QString& repositionKey);
    void takeReturnedPosition();

    void toggleHelpTags();
    void showOverview();
    void showAbout();
    void unload();

    MainMenu* m_menu = nullptr;
    MapSurface* m_surface = nullptr;
    std::optional<TacticalMap> m_map;
    std::optional<ProgressPanel> m_progress;
    bool m_helpTagsOn = true;
    bool m_started = false;
};

} // namespace torvane
