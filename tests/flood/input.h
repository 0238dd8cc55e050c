#pragma once

#include <QAction>
#include <QPoint>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QWindow>

class QWidget;

namespace torvane::testing {

/// One event from outside, as the window system delivers it.
struct Input
{
    enum class Kind {
        Press,    ///< of a mouse button
        Release,  ///< of the mouse button that is down
        Move,     ///< of the pointer
        Wheel,    ///< by `number` eighths of a degree, sideways if `aside`
        Key,      ///< pressed and let go
        KeyDown,  ///< a key that is held: it repeats
        Resize,   ///< of a window, to `size`
        State,    ///< minimised, maximised or restored: `number` is a Qt::WindowState
        Close,    ///< the close box
        Activate, ///< the author turns to the window
        Command,  ///< a menu entry that can be reached
        Wait,     ///< nothing, for `number` milliseconds
    };

    Kind kind = Kind::Wait;
    QPointer<QWindow> window{};
    QPoint position{}; ///< in the window
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers{};
    int key = 0;
    QString text{}; ///< of a key; of a command its name
    QSize size{};
    int number = 0;
    bool aside = false;
    QPointer<QAction> action{};
};

/// The window system's part: delivers inputs to the windows of the process, on the way that a real window
/// system's take. So a window behind a box gets nothing, an open menu gets what goes elsewhere, and a button
/// that is down keeps the pointer.
class InputDevices
{
public:
    void deliver(const Input& input);
    bool isButtonDown() const { return m_down != Qt::NoButton; }

private:
    void sendMouse(QEvent::Type type, const Input& input, Qt::MouseButton button);
    void press(const Input& input);
    void release(const Input& input);
    static void sendWheel(const Input& input);
    static void sendKey(const Input& input);
    static void command(const Input& input);

    Qt::MouseButton m_down = Qt::NoButton;
    QPointer<QWindow> m_grabbing;
};

/// The window of a widget, and a place in the widget as that window counts it.
Input at(Input::Kind kind, const QWidget& widget, QPoint position);
/// Whether a box keeps all input from the window.
bool isBlocked(const QWindow& window);
/// Whether a menu entry could be chosen: it and the menus above it are shown and not greyed.
bool isReachable(const QAction& action);
/// A line of a log.
QString described(const Input& input);

} // namespace torvane::testing
