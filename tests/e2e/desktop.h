#pragma once

#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace torvane::testing {

/// Waits until a condition holds, asking every few milliseconds; false after `milliseconds`.
bool eventually(const std::function<bool()>& condition, int milliseconds = 20000);

/// How many pixels of a picture have a colour.
qsizetype pixelsOf(const QImage& picture, QRgb colour);

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
    /// Text of plain letters, digits and signs, typed into the window that has the focus.
    void type(const QString& text) const;
    /// A click with the left button at a place inside the window of that title.
    void click(const QString& title, int x, int y) const;
    /// The window manager's close box of that window.
    void close(const QString& title) const;
    /// Waits until the window of that title has the focus.
    bool isActive(const QString& title, int milliseconds = 20000) const;
    /// The title of the window that has the focus; empty if none has.
    QString activeTitle() const;
    /// The place on the screen of the window that has the focus, without its frame.
    QRect activeGeometry() const;
    /// The pointer goes to a place inside the window that has the focus.
    void movePointer(QPoint place) const;
    /// Moves there and clicks with a button, 1 for the left one and 3 for the right one.
    void clickActive(QPoint place, int button = 1) const;
    /// What the screen shows.
    QImage screen() const;
    /// What the window that has the focus shows, once it stands still.
    QImage activePicture() const;

    /// Runs a tool on this screen and gives what it prints.
    QString run(const QString& program, const QStringList& arguments) const;

private:
    void startServer();
    void startManager();
    void end();

    QTemporaryDir m_frames; ///< the server's frame buffer, as a file
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
    QString scenarioFile(const QString& title) const
    {
        return path() + QStringLiteral("/Scenarios/") + title + QStringLiteral(".scn");
    }
    /// The names in the work folder, sorted.
    QStringList workNames() const;
    /// Puts a program in the place of the game that notes in which folder it is started.
    void putGame(const QString& name) const;
    /// Waits until that program runs, and gives the folder; empty if it doesn't.
    QString gameStart() const;
    /// Starts a program of the folder on a screen.
    std::unique_ptr<QProcess> start(const QString& program, const Desktop& desktop) const;

private:
    QTemporaryDir m_folder;
};

} // namespace torvane::testing
