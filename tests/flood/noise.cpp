#include "flood/habits.h"
#include "platform/form.h"
#include "shell/editor.h"
#include "shell/main_frm.h"

#include <QGuiApplication>

#include <array>

// What nobody would do: anything, anywhere, also in windows that wait for others.

namespace torvane::testing {

namespace {

using Kind = Input::Kind;

constexpr std::array keys{
    Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Return,   Qt::Key_Enter,     Qt::Key_Escape, Qt::Key_Escape,
    Qt::Key_Space, Qt::Key_Left,    Qt::Key_Right,    Qt::Key_Up,        Qt::Key_Down,   Qt::Key_PageUp,
    Qt::Key_Home,  Qt::Key_End,     Qt::Key_PageDown, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Insert,
    Qt::Key_F1,    Qt::Key_F2,      Qt::Key_F4,       Qt::Key_F5,        Qt::Key_F10,    Qt::Key_F11,
    Qt::Key_F12,   Qt::Key_Plus,    Qt::Key_Minus,    Qt::Key_Menu,      Qt::Key_A,      Qt::Key_C,
    Qt::Key_D,     Qt::Key_E,       Qt::Key_F,        Qt::Key_G,         Qt::Key_H,      Qt::Key_S,
    Qt::Key_V,     Qt::Key_X,       Qt::Key_Z,        Qt::Key_1,         Qt::Key_9};

constexpr int seldom = 400;

} // namespace

void Habits::noise(Editor& editor, Inputs& inputs)
{
    QList<QWindow*> windows = QGuiApplication::topLevelWindows();
    windows.removeIf([](const QWindow* window) { return !window->isVisible(); });
    if (windows.isEmpty()) {
        inputs.push_back({.kind = Kind::Wait, .number = 100});
        return;
    }
    QWindow& window = *m_random.oneOf(windows);
    const bool mainInFront = editor.forms().front() == &editor.mainFrm();
    const int how = m_random.below(100);
    if (how < 40) {
        anyMouse(window, inputs);
    } else if (how < 80) {
        anyKey(mainInFront, m_random.oneIn(8) ? &window : nullptr, inputs);
    } else if (how < 88) {
        inputs.push_back({.kind = Kind::Wait, .number = m_random.below(800)});
    } else {
        anyWindowChange(editor, window, inputs);
    }
}

void Habits::anyKey(bool mainInFront, QWindow* window, Inputs& inputs)
{
    const int key = m_random.oneOf(keys);
    // They end the program, which then has not got deep.
    const bool farewell = key == Qt::Key_Escape || key == Qt::Key_F12;
    if (farewell && (mainInFront || window != nullptr) && !m_random.oneIn(seldom)) {
        return anyKey(mainInFront, window, inputs);
    }
    const int how = m_random.below(10);
    const Qt::KeyboardModifiers modifiers = how < 5   ? Qt::NoModifier
                                            : how < 7 ? Qt::ControlModifier
                                            : how < 9 ? Qt::AltModifier
                                                      : Qt::ControlModifier | Qt::ShiftModifier;
    const bool isText = key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde && modifiers == Qt::NoModifier;
    inputs.push_back({.kind = m_random.oneIn(10) ? Kind::KeyDown : Kind::Key,
                      .window = window,
                      .modifiers = modifiers,
                      .key = key,
                      .text = isText ? QString(QChar(key).toLower()) : QString()});
}

void Habits::anyMouse(QWindow& window, Inputs& inputs)
{
    Input input{.kind = Kind::Move,
                .window = &window,
                .position = QPoint(static_cast<int>(m_random.fraction() * window.width()),
                                   static_cast<int>(m_random.fraction() * window.height()))};
    const int how = m_random.below(10);
    if (how < 2) {
        inputs.push_back(input);
        return;
    }
    if (how < 4) {
        input.kind = Kind::Wheel;
        input.number = m_random.chance(50) ? 120 : -240;
        input.aside = m_random.oneIn(4);
        inputs.push_back(input);
        return;
    }
    input.kind = Kind::Press;
    input.button =
        m_random.oneOf(std::array{Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});
    inputs.push_back(input);
    if (how == 4) {
        // A drag that other events may interrupt.
        input.kind = Kind::Move;
        input.position += QPoint(m_random.below(60) - 30, m_random.below(60) - 30);
        inputs.push_back(input);
    }
    input.kind = Kind::Release;
    inputs.push_back(input);
    if (how == 5) {
        input.kind = Kind::Press;
        inputs.push_back(input);
        input.kind = Kind::Release;
        inputs.push_back(input);
    }
}

void Habits::anyWindowChange(Editor& editor, QWindow& window, Inputs& inputs)
{
    const bool isMain = &window == editor.mainFrm().windowHandle();
    const int how = m_random.below(12);
    Input input{.kind = Kind::Activate, .window = &window};
    if (how < 3) {
        input.kind = Kind::Resize;
        input.size = QSize(100 + m_random.below(1600), 100 + m_random.below(1100));
    } else if (how < 6) {
        input.kind = Kind::State;
        input.number =
            m_random.oneOf(std::array{Qt::WindowNoState, Qt::WindowMinimized, Qt::WindowMaximized});
    } else if (how < 8 && (!isMain || m_random.oneIn(seldom / 10))) {
        input.kind = Kind::Close;
    }
    inputs.push_back(input);
    if (input.number == Qt::WindowMinimized) {
        inputs.push_back({.kind = Kind::Wait, .number = 100});
        input.number = Qt::WindowNoState;
        inputs.push_back(input);
    }
}

} // namespace torvane::testing
