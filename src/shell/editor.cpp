#include "shell/editor.h"

#include "divisions/create_division_frm.h"
#include "map/grid_level_frm.h"
#include "map/zoom_level_frm.h"
#include "overview/enviro_frm.h"
#include "overview/overview_frm.h"
#include "platform/error_names.h"
#include "shell/about_frm.h"
#include "shell/captions.h"
#include "shell/icons.h"
#include "shell/main_frm.h"
#include "shell/splash_frm.h"
#include "ship_selection/ship_dbase_frm.h"
#include "ship_state/ship_data_frm.h"

namespace torvane {

Editor::Editor(const QString& programDir, BuildOptions options, const Services& services)
    : m_programDir(programDir),
      m_options(options),
      m_services(services),
      m_forms(m_profiles, [this](const RuntimeError& error) { report(error); })
{
    registerIcons();
    m_profiles.onWriteFailure([this](const QString& path, const QString& reason) {
        // Shown after the event that could not save: the box runs events of its own.
        QMetaObject::invokeMethod(
            &m_forms,
            [this, path, reason] {
                m_services.messageBoxes.show(
                    {.text = mainText(MainText::UnsavedFile, language()).arg(path, reason),
                     .title = mainText(MainText::RuntimeErrorTitle, language()),
                     .icon = MessageBox::Icon::Exclamation});
            },
            Qt::QueuedConnection);
    });
}

Editor::~Editor() = default;

void Editor::start()
{
    mainFrm();
}

void Editor::end()
{
    m_ended = true;
    if (m_endProgram) {
        m_endProgram();
    }
}

void Editor::setBasePath(const QString& basePath)
{
    m_paths = pathsBelow(basePath);
    m_workingProfile.emplace(m_profiles, m_paths.workDir);
    m_scratchFiles.emplace(m_profiles, m_paths.workDir);
    m_shipCatalogue.emplace(m_dataControls);
    m_shipRecords.emplace(m_profiles, *m_workingProfile, *m_scratchFiles, *m_shipCatalogue);
    m_divisionRecords.emplace(m_profiles, *m_workingProfile, *m_scratchFiles, *m_shipRecords);
}

void Editor::report(const RuntimeError& error)
{
    m_services.messageBoxes.show({.text = errorBoxText(error, language()),
                                  .title = mainText(MainText::RuntimeErrorTitle, language()),
                                  .icon = MessageBox::Icon::Critical});
}

template <typename Window>
Window& Editor::loaded(std::unique_ptr<Window>& window)
{
    if (!window) {
        window = std::make_unique<Window>(*this);
        window->load();
    }
    return *window;
}

MainFrm& Editor::mainFrm()
{
    return loaded(m_mainFrm);
}

frmSplash& Editor::splashFrm()
{
    return loaded(m_splashFrm);
}

AboutFrm& Editor::aboutFrm()
{
    return loaded(m_aboutFrm);
}

OverviewFrm& Editor::overviewFrm()
{
    return loaded(m_overviewFrm);
}

EnviroFrm& Editor::enviroFrm()
{
    return loaded(m_enviroFrm);
}

CreateDivisionFrm& Editor::createDivisionFrm()
{
    return loaded(m_createDivisionFrm);
}

ShipDBaseFrm& Editor::shipDBaseFrm()
{
    return loaded(m_shipDBaseFrm);
}

ShipDataFrm& Editor::shipDataFrm()
{
    return loaded(m_shipDataFrm);
}

ZoomLevelFrm& Editor::zoomLevelFrm()
{
    return loaded(m_zoomLevelFrm);
}

GridLevelFrm& Editor::gridLevelFrm()
{
    return loaded(m_gridLevelFrm);
}

} // namespace torvane
