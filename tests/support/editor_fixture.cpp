#include "support/editor_fixture.h"

#include "shell/main_frm.h"
#include "shell/splash_frm.h"
#include "store/working_tables.h"

#include <QDir>
#include <QTest>

namespace torvane::testing {

EditorFixture::EditorFixture()
{
    const QDir folder(gameFolder());
    folder.mkpath(QStringLiteral("ScenarioEditor"));
    folder.mkpath(QStringLiteral("Scenarios"));
    createWorkingTables(workFile(scenarioDataFile));
}

EditorFixture::~EditorFixture() = default;

Editor& EditorFixture::start(Language language, int debugMode)
{
    m_editor.reset();
    m_editor = std::make_unique<Editor>(
        gameFolder(), BuildOptions{.language = language, .debugMode = debugMode}, script.services());
    m_editor->start();
    settle();
    return *m_editor;
}

Editor& EditorFixture::startPastSplash(Language language)
{
    start(language);
    press(&m_editor->splashFrm(), Qt::Key_Space);
    return *m_editor;
}

void EditorFixture::putWorkFile(const QString& name, const QByteArray& bytes) const
{
    QFile file(workFile(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    file.write(bytes);
}

QByteArray EditorFixture::workBytes(const QString& name) const
{
    QFile file(workFile(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList EditorFixture::workNames() const
{
    return QDir(workFile(QString()))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace torvane::testing
