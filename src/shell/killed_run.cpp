#include "shell/killed_run.h"

#include "platform/error_names.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "scenario_file/recover_scenario.h"
#include "shell/captions.h"
#include "shell/editor.h"

namespace torvane {

static void recover(Editor& editor, const QString& profile, const QDateTime& now)
{
    recoverScenario(profile, editor.paths().scenarioDir, editor.language(), now);
}

// Its box was shown when it was set aside; what resists still waits for a later start. It also does where it
// could not be deleted: otherwise each start would make one more scenario of it.
static void recoverOneSetAside(Editor& editor, const QString& profile, const QDateTime& now)
{
    try {
        requireWritableFolder(editor.paths().workDir);
        recover(editor, profile, now);
        deleteFile(profile);
    } catch (const RuntimeError&) {
        return;
    }
}

static void keepUnrecovered(Editor& editor, const RuntimeError& reason, const QDateTime& now)
{
    try {
        const QString kept = setProfileAside(editor.workingProfile().path(), now);
        editor.services().messageBoxes.show(
            {.text = mainText(MainText::Unrecovered, editor.language())
                         .arg(errorBoxText(reason, editor.language()), kept),
             .title = mainText(MainText::RuntimeErrorTitle, editor.language()),
             .icon = MessageBox::Icon::Exclamation});
    } catch (const RuntimeError&) {
        // It resists the clean-up as well, which has a box for that.
        editor.report(reason);
    }
}

void recoverKilledRun(Editor& editor)
{
    const QDateTime now = editor.services().clock.now();
    for (const QString& profile : profilesSetAside(editor.paths().workDir)) {
        recoverOneSetAside(editor, profile, now);
    }
    try {
        recover(editor, editor.workingProfile().path(), now);
    } catch (const RuntimeError& error) {
        keepUnrecovered(editor, error, now);
    }
}

} // namespace torvane
