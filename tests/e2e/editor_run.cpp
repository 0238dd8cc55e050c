#include "e2e/editor_run.h"

#include "platform/profile.h"

#include <QFile>

#include <stdexcept>

namespace torvane::testing {

namespace {

// Below the menu bar the main window keeps its sizes: the map at its place, and a scroll bar under it.
constexpr QSize mapSize(625, 417);
constexpr int mapTop = 48;
constexpr int surfaceHeight = 482;

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

const ProgramNames& programNames(Language language)
{
    static const ProgramNames english{.program = QStringLiteral("TorvaneScenarioEditor-English"),
                                      .mainWindow = QStringLiteral("Torvane - Scenario Editor"),
                                      .overview = QStringLiteral("Torvane - Overview of the Scenario"),
                                      .environment = QStringLiteral("Torvane - Environmental Controls"),
                                      .ships = QStringLiteral("Torvane - Add/Remove Ships"),
                                      .shipData = QStringLiteral("Torvane - Individual Ship Data"),
                                      .exitQuestion = QStringLiteral("Exit Scenario Editor")};
    static const ProgramNames german{.program = QStringLiteral("TorvaneScenarioEditor"),
                                     .mainWindow = QStringLiteral("Torvane - Szenario-Editor"),
                                     .overview = QStringLiteral("Torvane - Scenario Editor"),
                                     .environment = QStringLiteral("Torvane - Umwelt"),
                                     .ships = QStringLiteral("Torvane - Schiffe hinzufügen"),
                                     .shipData = QStringLiteral("Torvane - Individuelle Schiffsdaten"),
                                     .exitQuestion = QStringLiteral("Szenario-Editor verlassen")};
    return language == Language::German ? german : english;
}

EditorRun::EditorRun(const Desktop& desktop, const GameFolder& folder, Language language)
    : m_desktop(desktop), m_folder(folder), m_language(language)
{
}

EditorRun::~EditorRun()
{
    if (m_process && m_process->state() != QProcess::NotRunning) {
        m_process->kill();
        m_process->waitForFinished();
    }
}

void EditorRun::start(const std::function<void()>& splash)
{
    m_process = m_folder.start(names().program, m_desktop);
    if (splash) {
        expectWindow(QStringLiteral("Torvane"));
        splash();
    }
    // Whoever is impatient presses until the window is there.
    expect(QStringLiteral("the main window"), [this] {
        press({QStringLiteral("shift+a")});
        return m_desktop.hasWindow(names().mainWindow, 200);
    });
    expectWindow(names().mainWindow);
}

void EditorRun::leave()
{
    m_desktop.close(names().mainWindow);
    expectWindow(names().exitQuestion);
    press({QStringLiteral("Return")});
    awaitEnd();
}

void EditorRun::awaitEnd()
{
    if (!m_process->waitForFinished(20000) || m_process->exitStatus() != QProcess::NormalExit ||
        m_process->exitCode() != 0) {
        throw std::runtime_error("the program doesn't end as it should");
    }
}

void EditorRun::choose(Menu menu, const QList<int>& places) const
{
    // F10 opens the first menu on none of its entries; a menu that an arrow opens stands on its first. The
    // way goes to the left, round the end of the bar: to the right it would lead into the menus of forces.
    constexpr int menus = static_cast<int>(Menu::Help) + 1;
    QStringList keys{QStringLiteral("F10")};
    keys.append(menu == Menu::File ? QStringList{QStringLiteral("Down")}
                                   : QStringList(menus - static_cast<int>(menu), QStringLiteral("Left")));
    for (qsizetype level = 0; level < places.size(); ++level) {
        if (level > 0) {
            keys.append(QStringLiteral("Right"));
        }
        keys.append(QStringList(places.at(level) - 1, QStringLiteral("Down")));
    }
    keys.append(QStringLiteral("Return"));
    press(keys);
}

void EditorRun::load(const QString& fileName) const
{
    choose(Menu::File, {entry::load});
    expect(QStringLiteral("the box that asks for a file"), [this] {
        const QString title = m_desktop.activeTitle();
        return !title.isEmpty() && title != names().mainWindow;
    });
    m_desktop.type(fileName);
    press({QStringLiteral("Return")});
    expectWindow(names().overview);
    press({QStringLiteral("Return")});
    expectWindow(names().mainWindow);
}

void EditorRun::expectWindow(const QString& title) const
{
    if (!m_desktop.isActive(title)) {
        throw std::runtime_error("expected the window \"" + title.toStdString() + "\", but \"" +
                                 m_desktop.activeTitle().toStdString() + "\" has the focus");
    }
}

void EditorRun::expect(const QString& what, const std::function<bool()>& condition) const
{
    if (!eventually(condition)) {
        throw std::runtime_error("waited in vain for " + what.toStdString() + "; \"" +
                                 m_desktop.activeTitle().toStdString() + "\" has the focus");
    }
}

void EditorRun::press(const QString& key, int times) const
{
    press(QStringList(times, key));
}

void EditorRun::replaceText(const QString& text) const
{
    press({QStringLiteral("ctrl+a")});
    m_desktop.type(text);
}

void EditorRun::pickEntry(int index) const
{
    press(QStringList{QStringLiteral("Home")} + QStringList(index, QStringLiteral("Down")));
}

QPoint EditorRun::mapOrigin() const
{
    return {0, m_desktop.activeGeometry().height() - surfaceHeight + mapTop};
}

void EditorRun::moveOnMap(QPoint place) const
{
    expectWindow(names().mainWindow);
    m_desktop.movePointer(mapOrigin() + place);
}

void EditorRun::clickMap(QPoint place, int button) const
{
    expectWindow(names().mainWindow);
    m_desktop.clickActive(mapOrigin() + place, button);
}

QImage EditorRun::mapPicture() const
{
    expectWindow(names().mainWindow);
    return m_desktop.activePicture().copy(QRect(mapOrigin(), mapSize));
}

QString EditorRun::value(const QString& section, const QString& key) const
{
    const Profile profile = Profile::parse(bytesOf(m_folder.workFile(QStringLiteral("iniTemp.bmm"))));
    const auto value = profile.value(section.toLatin1(), key.toLatin1());
    return value ? QString::fromLatin1(*value) : QString();
}

QStringList EditorRun::lines(const QString& workFile) const
{
    return QString::fromLatin1(bytesOf(m_folder.workFile(workFile)))
        .split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
}

} // namespace torvane::testing
