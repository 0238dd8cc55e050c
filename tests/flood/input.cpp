#include "flood/input.h"

#include "flood/still_clock.h"
#include "platform/form.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMetaEnum>
#include <QWheelEvent>
#include <QWidget>

// What the toolkit's own test library delivers window events through.
extern Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                             Qt::MouseButtons state, Qt::MouseButton button,
                                             QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                             int timestamp);
extern Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                           Qt::KeyboardModifiers modifiers, const QString& text,
                                           bool autorepeat, ushort count);

namespace torvane::testing {

namespace {

using Kind = Input::Kind;

constexpr int repeatsOfHeldKey = 3;

constexpr const char* kindNames[] = {"press",  "release", "move",  "wheel", "key",    "hold",
                                     "resize", "window",  "close", "focus", "choose", "wait"};

QString nameOf(const QWindow* window)
{
    if (window == nullptr) {
        return QStringLiteral("no window");
    }
    const QWidget* widget = QWidget::find(window->winId());
    return widget == nullptr || widget->objectName().isEmpty() ? window->objectName() : widget->objectName();
}

QString controlAt(const Input& input)
{
    const QWidget* widget = input.window ? QWidget::find(input.window->winId()) : nullptr;
    const QWidget* child = widget == nullptr ? nullptr : widget->childAt(input.position);
    while (child != nullptr && child->objectName().startsWith(QStringLiteral("qt_"))) {
        child = child->parentWidget();
    }
    return child == nullptr ? QString() : QLatin1Char('/') + child->objectName();
}

} // namespace

void InputDevices::deliver(const Input& input)
{
    const bool hasWindow = input.window && input.window->isVisible();
    switch (input.kind) {
    case Kind::Press:
        return hasWindow ? press(input) : void();
    case Kind::Release:
        return release(input);
    case Kind::Move:
        return hasWindow ? sendMouse(QEvent::MouseMove, input, Qt::NoButton) : void();
    case Kind::Wheel:
        return hasWindow ? sendWheel(input) : void();
    case Kind::Key:
    case Kind::KeyDown:
        return sendKey(input);
    case Kind::Command:
        return command(input);
    case Kind::Wait:
        return passTime(input.number);
    default:
        break;
    }
    if (!hasWindow || isBlocked(*input.window)) {
        return;
    }
    if (input.kind == Kind::Resize) {
        input.window->resize(
            input.size.expandedTo(input.window->minimumSize()).boundedTo(input.window->maximumSize()));
    } else if (input.kind == Kind::State) {
        input.window->setWindowStates(static_cast<Qt::WindowState>(input.number));
    } else if (input.kind == Kind::Close) {
        input.window->close();
    } else {
        input.window->requestActivate();
    }
}

void InputDevices::sendMouse(QEvent::Type type, const Input& input, Qt::MouseButton button)
{
    // A button that is down keeps the pointer with the window in which it went down.
    QWindow* window = m_grabbing && m_down != Qt::NoButton ? m_grabbing.data() : input.window.data();
    if (window == nullptr) {
        return;
    }
    const QPoint global = input.window ? input.window->mapToGlobal(input.position) : input.position;
    qt_handleMouseEvent(window, window->mapFromGlobal(global), global, m_down, button, type, input.modifiers,
                        static_cast<int>(passedTime()));
}

void InputDevices::press(const Input& input)
{
    if (m_down != Qt::NoButton) {
        release(input);
    }
    sendMouse(QEvent::MouseMove, input, Qt::NoButton);
    m_down = input.button;
    m_grabbing = input.window;
    sendMouse(QEvent::MouseButtonPress, input, input.button);
}

void InputDevices::release(const Input& input)
{
    if (m_down == Qt::NoButton) {
        return;
    }
    const Qt::MouseButton button = m_down;
    Input where = input;
    if (!where.window) {
        where.window = m_grabbing;
    }
    const QPointer<QWindow> window = m_grabbing ? m_grabbing : where.window;
    m_down = Qt::NoButton;
    m_grabbing.clear();
    if (window) {
        const QPoint global = where.window->mapToGlobal(where.position);
        qt_handleMouseEvent(window, window->mapFromGlobal(global), global, Qt::NoButton, button,
                            QEvent::MouseButtonRelease, input.modifiers, static_cast<int>(passedTime()));
    }
}

void InputDevices::sendWheel(const Input& input)
{
    if (isBlocked(*input.window)) {
        return;
    }
    const QPoint turn = input.aside ? QPoint(input.number, 0) : QPoint(0, input.number);
    QWheelEvent wheel(input.position, input.window->mapToGlobal(QPointF(input.position)), QPoint(), turn,
                      Qt::NoButton, input.modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(input.window, &wheel);
}

void InputDevices::sendKey(const Input& input)
{
    const QPointer<QWindow> window = input.window ? input.window.data() : QGuiApplication::focusWindow();
    if (!window) {
        return;
    }
    const int repeats = input.kind == Kind::KeyDown ? repeatsOfHeldKey : 0;
    const auto send = [&](QEvent::Type type, bool repeat) {
        if (window && window->isVisible()) {
            qt_handleKeyEvent(window, type, input.key, input.modifiers, input.text, repeat, 1);
        }
    };
    send(QEvent::KeyPress, false);
    for (int i = 0; i < repeats; ++i) {
        send(QEvent::KeyPress, true);
    }
    send(QEvent::KeyRelease, false);
}

void InputDevices::command(const Input& input)
{
    if (input.action && isReachable(*input.action) && QApplication::activeModalWidget() == nullptr &&
        QApplication::activePopupWidget() == nullptr) {
        input.action->trigger();
    }
}

Input at(Input::Kind kind, const QWidget& widget, QPoint position)
{
    const QWidget* window = widget.window();
    return {.kind = kind, .window = window->windowHandle(), .position = widget.mapTo(window, position)};
}

bool isBlocked(const QWindow& window)
{
    const QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr && modal->windowHandle() != &window && window.type() != Qt::Popup;
}

bool isReachable(const QAction& action)
{
    if (!action.isEnabled() || !action.isVisible()) {
        return false;
    }
    for (const QObject* owner : action.associatedObjects()) {
        if (const auto* menu = qobject_cast<const QMenu*>(owner)) {
            return isReachable(*menu->menuAction());
        }
        if (const auto* bar = qobject_cast<const QMenuBar*>(owner)) {
            const auto* form = qobject_cast<const Form*>(bar->window());
            return bar->isVisible() && (form == nullptr || form->isInputEnabled());
        }
    }
    return false;
}

QString described(const Input& input)
{
    const auto kind = static_cast<std::size_t>(input.kind);
    QString line = QString::fromLatin1(kindNames[kind]);
    switch (input.kind) {
    case Kind::Press:
    case Kind::Release:
    case Kind::Move:
    case Kind::Wheel:
        return line + QStringLiteral(" %1%2 at %3,%4 button %5 turn %6")
                          .arg(nameOf(input.window), controlAt(input))
                          .arg(input.position.x())
                          .arg(input.position.y())
                          .arg(int(input.button))
                          .arg(input.number);
    case Kind::Key:
    case Kind::KeyDown:
        return line + QStringLiteral(" %1 with %2 text \"%3\" in %4")
                          .arg(input.key, 0, 16)
                          .arg(input.modifiers.toInt(), 0, 16)
                          .arg(input.text.left(20),
                               nameOf(input.window ? input.window.data() : QGuiApplication::focusWindow()));
    case Kind::Resize:
        return line + QStringLiteral(" %1 to %2x%3")
                          .arg(nameOf(input.window))
                          .arg(input.size.width())
                          .arg(input.size.height());
    case Kind::Command:
        return line + QLatin1Char(' ') + input.text;
    default:
        return line + QStringLiteral(" %1 %2").arg(nameOf(input.window)).arg(input.number);
    }
}

} // namespace torvane::testing
