#include "shell/new_scenario.h"

#include "divisions/create_division_frm.h"
#include "overview/overview_frm.h"
#include "platform/text_files.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"

#include <QLatin1StringView>

namespace torvane {

// The entries that need a scenario, as New and Load enable them.
static void enableScenarioEntries(MainMenu& menu, bool enabled)
{
    for (const char* entry : {"mnuSave", "mnuSaveAs", "mnuOverView", "mnuEditDivison"}) {
        menu.setEnabled(QLatin1StringView(entry), enabled);
    }
}

// The entries as they stand at the start of the program.
static void restoreStartState(MainMenu& menu)
{
    enableScenarioEntries(menu, false);
    menu.setEnabled(QStringLiteral("mnuEditDivison"), true);
    menu.setEnabled(QStringLiteral("mnuCreateForceA"), false);
    menu.setEnabled(QStringLiteral("mnuCreateForceB"), false);
}

static void clearStore(Editor& editor)
{
    // Zeroing the profile has no lasting effect, as the next step deletes it. The order is kept.
    editor.workingProfile().zeroProfile();
    editor.mainFrm().killFiles();
    const ScratchFiles& files = editor.scratchFiles();
    files.write(files.shipTrack(), {QString()});
    editor.divisionRecords().recount();
}

void dropProfile(Editor& editor)
{
    try {
        editor.workingProfile().remove();
    } catch (const RuntimeError&) {
        // The error that led here is the one that is shown.
    }
}

void newScenario(Editor& editor)
{
    requireWritableFolder(editor.paths().workDir);
    MainFrm& mainFrm = editor.mainFrm();
    enableScenarioEntries(mainFrm.menu(), true);
    mainFrm.menu().resetForceMenus();
    try {
        clearStore(editor);
    } catch (const RuntimeError&) {
        dropProfile(editor);
        restoreStartState(mainFrm.menu());
        throw;
    }
    setValue(editor.overviewFrm().ChknewFlag, 1);
    setValue(editor.createDivisionFrm().ChknewBlueFlag, 1);
    setValue(editor.createDivisionFrm().ChknewRedFlag, 1);
    editor.overviewFrm().openOver(mainFrm);
}

} // namespace torvane
