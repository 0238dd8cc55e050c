#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace torvane::testing {

/// Waits until a condition holds, asking every few milliseconds; false after `milliseconds`.
bool eventually(const std::function<bool()>& condition, int milliseconds = 20000);

/// A virtual screen with a window manager, and what a person can do on it. Throws if it can't be had.
class Desktop
{
public:
    Desktop();
    ~Desktop();

    QString display() const { return m_display; }

    /// Waits for a visible window whose title is exactly this.
    bool hasWindow(const QString& title, int milliseconds = 20000) const;
    bool hasNoWindow(const QString& title, int milliseconds = 20000) const;
    /// Keys by their X names, such as "Return" or "F12", to the window that has the focus.
    void press(const QStringList& keys) const;
    /// A click with the left button at a place inside the window of that title.
    void click(const QString& title, int x, int y) const;
    /// The window manager's close box of that window.
    void close(const QString& title) const;
    /// Waits until the window of that title has the focus.
    bool isActive(const QString& title) const;
    /// A picture of the screen.
    void screenshot(const QString& file) const;

    /// Runs a tool on this screen and gives what it prints.
    QString run(const QString& program, const QStringList& arguments) const;

private:
    QString m_display;
    QProcess m_server;
    QProcess m_manager;
};

/// A copy of the staged game folder, and the editor's programs run from it.
class GameFolder
{
public:
    GameFolder();

    QString path() const { return m_folder.path(); }
    QString workFile(const QString& name) const { return path() + QStringLiteral("/ScenarioEditor/") + name; }
    /// The names in the work folder, sorted.
    QStringList workNames() const;
    /// Starts a program of the folder on a screen.
    std::unique_ptr<QProcess> start(const QString& program, const Desktop& desktop) const;

private:
    QTemporaryDir m_folder;
};

} // namespace torvane::testing
