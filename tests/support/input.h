#pragma once

#include <QApplication>
#include <QWidget>

#include <functional>
#include <stdexcept>

namespace torvane::testing {

/// The control of a window by its design name. Throws, listing the names that there are, if it has none.
template <typename Control>
Control* control(const QWidget& window, const QString& designName)
{
    if (auto* found = window.findChild<Control*>(designName)) {
        return found;
    }
    QStringList names;
    for (const QObject* object : window.findChildren<QObject*>()) {
        if (!object->objectName().isEmpty()) {
            names.append(object->objectName());
        }
    }
    throw std::runtime_error("no control " + designName.toStdString() + " of that kind in " +
                             window.objectName().toStdString() +
                             "; there are: " + names.join(QStringLiteral(", ")).toStdString());
}

/// Lets everything that is queued happen.
void settle();

/// Waits until a condition holds, running events; false after `milliseconds`.
bool waitUntil(const std::function<bool()>& condition, int milliseconds = 5000);

/// A click with the left button in the middle of a control, as the window system delivers it.
void click(QWidget* control);
void rightClick(QWidget* control);
/// A key pressed and let go in a control.
void press(QWidget* control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Text typed key by key.
void type(QWidget* control, const QString& text);
/// What a click on the entry of an open menu does: nothing if the entry or a menu above it is greyed or
/// hidden. Returns whether it could be chosen.
bool chooseMenu(QWidget& window, const QString& designName);
/// The close box of a window.
void closeBox(QWidget* window);

} // namespace torvane::testing
