#include "shell/save_commands.h"

#include "overview/overview_frm.h"
#include "platform/pointer.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "scenario_file/save_texts.h"
#include "scenario_file/scenario_format.h"
#include "scenario_file/validate_scenario.h"
#include "shell/captions.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/progress_panel.h"

#include <QFile>
#include <QFileInfo>

#include <exception>
#include <optional>

namespace torvane {

namespace {

constexpr QFile::Permissions anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

void show(Editor& editor, SaveText text, SaveText title, MessageBox::Icon icon = MessageBox::Icon::None)
{
    editor.services().messageBoxes.show({.text = saveText(text, editor.language()),
                                         .title = saveText(title, editor.language()),
                                         .icon = icon});
}

/// Whether the scenario keeps to the rules. Every rule that it breaks is shown.
bool passesValidation(Editor& editor)
{
    const std::vector<Finding> findings =
        validateScenario(editor.workingProfile(), editor.mainFrm().targetArea());
    for (const Finding& finding : findings) {
        show(editor, finding.message, SaveText::ValidationTitle);
    }
    return findings.empty();
}

/// A file by that name; a folder is none. Throws where the system can't tell: what can't be seen must not be
/// replaced without a question.
bool isFile(const QString& path)
{
    return isThere(path) && !QFileInfo(path).isDir();
}

// A file without any right to write is read-only to everyone, also to those whom the system lets write it.
bool isReadOnly(const QString& path)
{
    return isFile(path) && (!QFileInfo(path).isWritable() || !(QFile::permissions(path) & anyWrite));
}

bool mayOverwrite(Editor& editor, const QString& path, MessageBox::Icon icon,
                  MessageBox::Answer defaultAnswer)
{
    return !isFile(path) || editor.services().messageBoxes.show(
                                {.text = saveText(SaveText::Overwrite, editor.language()),
                                 .title = saveText(SaveText::OverwriteTitle, editor.language()),
                                 .icon = icon,
                                 .buttons = MessageBox::Buttons::YesNo,
                                 .defaultAnswer = defaultAnswer}) == MessageBox::Answer::Yes;
}

/// While one lives, a read-only file can be replaced; one that was not gets its attributes back.
class ClearedAttributes
{
public:
    explicit ClearedAttributes(const QString& path) : m_path(path)
    {
        if (isReadOnly(path)) {
            // What the present user may do is no attribute of the file.
            m_permissions = QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser);
            QFile::setPermissions(path, *m_permissions | QFile::WriteOwner);
        }
    }
    ~ClearedAttributes()
    {
        if (m_permissions) {
            QFile::setPermissions(m_path, *m_permissions);
        }
    }
    ClearedAttributes(const ClearedAttributes&) = delete;
    ClearedAttributes& operator=(const ClearedAttributes&) = delete;

    /// The file has been replaced.
    void keep() { m_permissions.reset(); }

private:
    QString m_path;
    std::optional<QFile::Permissions> m_permissions;
};

void saveUnderTitle(Editor& editor)
{
    if (!passesValidation(editor)) {
        return;
    }
    const QString title = editor.overviewFrm().title().trimmed();
    if (!canNameScenarioFile(title)) {
        show(editor, SaveText::FileName, SaveText::ValidationTitle);
        return;
    }
    const QString path = editor.paths().scenarioDir + title + scenarioFileSuffix;
    if (!mayOverwrite(editor, path, MessageBox::Icon::None, MessageBox::Answer::Yes)) {
        return;
    }
    ClearedAttributes attributes(path);
    MainFrm& mainFrm = editor.mainFrm();
    setPointer(Pointer::Hourglass);
    mainFrm.showProgress(mainText(MainText::Saving, editor.language()));
    mainFrm.progress().advanceProgress();
    mainFrm.saveINIfile(path);
    attributes.keep();
    mainFrm.progress().advanceProgress();
    mainFrm.progress().fillProgress();
    setPointer(Pointer::Default);
    mainFrm.progress().hide();
    mainFrm.redrawMap();
}

/// Back from the busy state, whatever happened.
void endBusyState(Editor& editor)
{
    setPointer(Pointer::Default);
    editor.mainFrm().progress().hide();
}

void saveUnderChosenName(Editor& editor)
{
    // No default suffix: a name is taken as it was typed.
    const std::optional<QString> path =
        editor.services().fileBoxes.save({.title = QString(),
                                          .folder = editor.paths().scenarioDir,
                                          .fileName = QString(),
                                          .filter = QString(scenarioFileFilter),
                                          .defaultSuffix = QString()});
    if (!path) {
        throw RuntimeError(RuntimeError::InvalidProcedureCall, QStringLiteral("No file was chosen."));
    }
    if (!mayOverwrite(editor, *path, MessageBox::Icon::Question, MessageBox::Answer::No)) {
        return;
    }
    // The rename that puts the new file in place would not mind.
    if (isReadOnly(*path)) {
        throw RuntimeError(RuntimeError::PathAccessError, *path);
    }
    setPointer(Pointer::Hourglass);
    editor.mainFrm().saveINIfile(*path);
    show(editor, SaveText::Saved, SaveText::SavedTitle, MessageBox::Icon::Information);
    setPointer(Pointer::Default);
    editor.mainFrm().redrawMap();
}

} // namespace

void saveScenario(Editor& editor)
{
    try {
        saveUnderTitle(editor);
    } catch (const std::exception&) {
        // Shown nowhere. Kept.
        endBusyState(editor);
    }
}

void saveScenarioAs(Editor& editor)
{
    try {
        saveUnderChosenName(editor);
    } catch (const std::exception&) {
        setPointer(Pointer::Default);
        show(editor, SaveText::Failed, SaveText::FailedTitle, MessageBox::Icon::Information);
        endBusyState(editor);
    }
}

} // namespace torvane
