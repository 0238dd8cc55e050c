#pragma once

#include "shell/editor.h"
#include "support/input.h"
#include "support/printers.h"
#include "support/scripted_services.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <memory>

namespace torvane::testing {

/// A staged game folder of its own and an editor in it, on the offscreen platform.
class EditorFixture : public ::testing::Test
{
protected:
    EditorFixture();
    ~EditorFixture() override;

    /// Starts an editor; the splash screen is showing afterwards.
    Editor& start(Language language = Language::German, int debugMode = 0);
    /// Starts an editor and leaves the splash screen by a key.
    Editor& startPastSplash(Language language = Language::German);
    /// Ends the run of the editor without its farewell, as a crash does, as far as objects allow.
    void dropEditor() { m_editor.reset(); }

    QString gameFolder() const { return m_folder.path(); }
    QString workFile(const QString& name) const
    {
        return gameFolder() + QStringLiteral("/ScenarioEditor/") + name;
    }
    void putWorkFile(const QString& name, const QByteArray& bytes = "x") const;
    QByteArray workBytes(const QString& name) const;
    /// The names in the work folder, sorted.
    QStringList workNames() const;

    Editor& editor() { return *m_editor; }
    QList<MessageBox>& boxes() { return script.messageBoxes.shown; }

    ScriptedServices script;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<Editor> m_editor;
};

} // namespace torvane::testing
