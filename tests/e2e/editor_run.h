#pragma once

#include "e2e/desktop.h"
#include "platform/language.h"

#include <QList>
#include <QPoint>

#include <functional>
#include <memory>

namespace torvane::testing {

/// What a program and its windows are called.
struct ProgramNames
{
    QString program;
    QString mainWindow;
    QString overview;
    QString environment;
    QString ships;
    QString shipData;
    QString exitQuestion;
};
const ProgramNames& programNames(Language language);

/// The menus of the main window by their places in the bar, and those of their entries that every road needs.
enum class Menu { File, Overview, CreateDivision, EditDivision, EditShip, Reposition, Help };
namespace entry {
inline constexpr int fresh = 1;
inline constexpr int load = 2;
inline constexpr int save = 3;
inline constexpr int exit = 5;
inline constexpr int overview = 1;
inline constexpr int targetArea = 2;
inline constexpr int forceA = 1;
inline constexpr int forceB = 2;
} // namespace entry

/// One of the built programs on a screen, used as a person uses it who knows the keyboard: what leads through
/// its menus and dialogs is the same in both languages. Every operation throws, and says what it waited for,
/// if the program doesn't do what is expected of it.
class EditorRun
{
public:
    EditorRun(const Desktop& desktop, const GameFolder& folder, Language language);
    ~EditorRun();

    const Desktop& desktop() const { return m_desktop; }
    const GameFolder& folder() const { return m_folder; }
    const ProgramNames& names() const { return programNames(m_language); }
    Language language() const { return m_language; }

    /// Starts the program; `splash` runs while the splash screen is there, which a key then ends.
    void start(const std::function<void()>& splash = {});
    /// Leaves the program without starting the game.
    void leave();
    /// Waits until the program has ended as it should.
    void awaitEnd();

    /// Chooses an entry of the main window's menus by its place in the menu and in those below it, from 1, as
    /// the arrow keys count them: what can be chosen alone.
    void choose(Menu menu, const QList<int>& places) const;
    /// Loads a scenario of the game folder by its file's name, and leaves the overview that shows it.
    void load(const QString& fileName) const;
    /// Waits until the window of that title has the focus.
    void expectWindow(const QString& title) const;
    /// Waits until a condition holds.
    void expect(const QString& what, const std::function<bool()>& condition) const;

    /// Some keys; a key more than once.
    void press(const QStringList& keys) const { m_desktop.press(keys); }
    void press(const QString& key, int times) const;
    /// The text of a box that has the focus gives way to this one.
    void replaceText(const QString& text) const;
    /// The entry of a closed list that has the focus, from 0.
    void pickEntry(int index) const;

    /// The pointer goes to a pixel of the map, and a button of it is clicked there: 1 left, 3 right.
    void moveOnMap(QPoint place) const;
    void clickMap(QPoint place, int button = 1) const;
    /// What the map shows, once it stands still. The main window has the focus.
    QImage mapPicture() const;

    /// A value of the working profile; empty if it isn't there.
    QString value(const QString& section, const QString& key) const;
    /// The lines of a file of the work folder; none if it isn't there.
    QStringList lines(const QString& workFile) const;

private:
    QPoint mapOrigin() const;

    const Desktop& m_desktop;
    const GameFolder& m_folder;
    Language m_language;
    std::unique_ptr<QProcess> m_process;
};

} // namespace torvane::testing
