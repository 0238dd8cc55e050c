#pragma once

#include "divisions/division_records.h"
#include "platform/folder_lock.h"
#include "platform/form_stack.h"
#include "platform/language.h"
#include "platform/profile_store.h"
#include "platform/services.h"
#include "shell/lifecycle.h"
#include "ship_selection/ship_record.h"
#include "store/data_controls.h"
#include "store/scratch_files.h"
#include "store/ship_catalogue.h"
#include "store/working_profile.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace torvane {

class AboutFrm;
class CreateDivisionFrm;
class EnviroFrm;
class GridLevelFrm;
class MainFrm;
class OverviewFrm;
class ShipDBaseFrm;
class ShipDataFrm;
class ZoomLevelFrm;
class frmSplash;

/// What is fixed when a program is built.
struct BuildOptions
{
    Language language = Language::German;
    int debugMode = 0; ///< 1 asks for the game folder and shows the development read-outs
};

/// Owns the run: paths, language, store, the services of the platform and one instance of each window. A
/// window is loaded at the first reference to it and lives to the end of the run.
class Editor
{
public:
    /// `programDir` is the folder in which the program lies.
    Editor(const QString& programDir, BuildOptions options, const Services& services);
    ~Editor();
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    /// Loads the main window, with which everything starts. The splash screen is showing when it returns.
    void start();
    /// What ends the program at once; called by `end`.
    void onEnd(std::function<void()> endProgram) { m_endProgram = std::move(endProgram); }
    void end();
    bool hasEnded() const { return m_ended; }

    Language language() const { return m_options.language; }
    bool german() const { return m_options.language == Language::German; }
    int debugMode() const { return m_options.debugMode; }
    const QString& programDir() const { return m_programDir; }
    const Services& services() const { return m_services; }
    FormStack& forms() { return m_forms; }
    ProfileStore& profiles() { return m_profiles; }
    DataControls& dataControls() { return m_dataControls; }

    /// Settles the folders of the run. Once, at the start.
    void setBasePath(const QString& basePath);
    const Paths& paths() const { return m_paths; }
    /// The store; there from `setBasePath` on.
    WorkingProfile& workingProfile() { return *m_workingProfile; }
    ScratchFiles& scratchFiles() { return *m_scratchFiles; }
    ShipCatalogue& shipCatalogue() { return *m_shipCatalogue; }
    ShipRecords& shipRecords() { return *m_shipRecords; }
    DivisionRecords& divisionRecords() { return *m_divisionRecords; }

    MainFrm& mainFrm();
    frmSplash& splashFrm();
    AboutFrm& aboutFrm();
    OverviewFrm& overviewFrm();
    EnviroFrm& enviroFrm();
    CreateDivisionFrm& createDivisionFrm();
    ShipDBaseFrm& shipDBaseFrm();
    ShipDataFrm& shipDataFrm();
    ZoomLevelFrm& zoomLevelFrm();
    GridLevelFrm& gridLevelFrm();

    /// Shows the platform's own error.
    void report(const RuntimeError& error);

private:
    template <typename Window>
    Window& loaded(std::unique_ptr<Window>& window);

    const QString m_programDir;
    const BuildOptions m_options;
    const Services m_services;
    bool m_ended = false;
    std::function<void()> m_endProgram;

    ProfileStore m_profiles;
    FormStack m_forms;
    Paths m_paths;
    std::optional<WorkingProfile> m_workingProfile;
    std::optional<ScratchFiles> m_scratchFiles;
    DataControls m_dataControls;
    std::optional<ShipCatalogue> m_shipCatalogue;
    std::optional<ShipRecords> m_shipRecords;
    std::optional<DivisionRecords> m_divisionRecords;

    std::unique_ptr<GridLevelFrm> m_gridLevelFrm;
    std::unique_ptr<ZoomLevelFrm> m_zoomLevelFrm;
    std::unique_ptr<ShipDataFrm> m_shipDataFrm;
    std::unique_ptr<ShipDBaseFrm> m_shipDBaseFrm;
    std::unique_ptr<CreateDivisionFrm> m_createDivisionFrm;
    std::unique_ptr<OverviewFrm> m_overviewFrm;
    std::unique_ptr<EnviroFrm> m_enviroFrm;
    std::unique_ptr<AboutFrm> m_aboutFrm;
    std::unique_ptr<frmSplash> m_splashFrm;
    std::unique_ptr<MainFrm> m_mainFrm;
};

} // namespace torvane
