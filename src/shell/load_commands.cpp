#include "shell/load_commands.h"

#include "divisions/create_division_frm.h"
#include "overview/overview_frm.h"
#include "platform/pointer.h"
#include "platform/runtime_error.h"
#include "scenario_file/load_scenario.h"
#include "scenario_file/scenario_format.h"
#include "shell/captions.h"
#include "shell/editor.h"
#include "shell/loaded_forces.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "shell/progress_panel.h"

#include <QScopeGuard>

#include <exception>
#include <optional>

namespace torvane {

namespace {

void enable(const MainMenu& menu, std::initializer_list<const char*> entries)
{
    for (const char* entry : entries) {
        menu.setEnabled(QLatin1StringView(entry), true);
    }
}

std::optional<QString> chosenFile(Editor& editor)
{
    return editor.services().fileBoxes.open({.title = QString(),
                                             .folder = editor.paths().scenarioDir,
                                             .fileName = QString(),
                                             .filter = QString(scenarioFileFilter),
                                             .defaultSuffix = QString()});
}

/// Fills store and menus from the file. From here on the scenario that was open is gone.
void rebuildFrom(const Profile& file, Editor& editor)
{
    MainFrm& mainFrm = editor.mainFrm();
    mainFrm.menu().resetForceMenus();
    mainFrm.killFiles();
    mainFrm.showProgress(mainText(MainText::Loading, editor.language()));
    const LoadProgress advance = [&mainFrm] { mainFrm.progress().advanceProgress(); };
    advance();
    TargetArea target = mainFrm.targetArea();
    const auto placed = qScopeGuard([&] { mainFrm.placeTargetArea(target.x, target.z); });
    LoadedForces forces(mainFrm.menu());
    // The division dialog takes its own counts when it is first called for: before those that shall stand.
    editor.createDivisionFrm();
    rebuildStore(file, editor.workingProfile(), editor.scratchFiles(), target, forces, advance);
    editor.divisionRecords().countLoaded();
    mainFrm.readMapScale();
}

void showLoaded(Editor& editor)
{
    MainFrm& mainFrm = editor.mainFrm();
    enable(mainFrm.menu(), {"mnuOverView", "mnuEditDivison"});
    mainFrm.progress().advanceProgress();
    mainFrm.progress().fillProgress();
    setPointer(Pointer::Default);
    mainFrm.progress().hide();
    // The dialogs' marks of a new scenario stay as they are, so that what is read is what was loaded.
    editor.overviewFrm().openOver(mainFrm);
}

/// Back to the main window after a failure, wherever it was.
void takeErrorRoad(Editor& editor)
{
    setPointer(Pointer::Default);
    editor.mainFrm().setInputEnabled(true);
    editor.mainFrm().progress().hide();
}

} // namespace

void loadScenario(Editor& editor)
{
    // Before the choice, and not taken back if there is none. Kept.
    enable(editor.mainFrm().menu(), {"mnuSave", "mnuSaveAs"});
    const std::optional<QString> scenarioFilePath = chosenFile(editor);
    if (!scenarioFilePath) {
        takeErrorRoad(editor);
        return;
    }
    setPointer(Pointer::Hourglass);
    std::optional<Profile> file;
    try {
        file = readScenario(*scenarioFilePath, editor.workingProfile());
    } catch (const RuntimeError&) {
        takeErrorRoad(editor);
        throw; // shown, with the name of the file
    }
    try {
        rebuildFrom(*file, editor);
        showLoaded(editor);
    } catch (const std::exception&) {
        // Shown nowhere. Kept.
        takeErrorRoad(editor);
    }
}

} // namespace torvane
