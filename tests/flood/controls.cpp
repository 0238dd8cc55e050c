#include "flood/habit_tables.h"
#include "flood/habits.h"
#include "platform/step_button.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>

#include <algorithm>

// How the monkey uses the controls of a window.

namespace torvane::testing {

namespace {

using Kind = Input::Kind;

constexpr int longText = 800; // characters

bool isControl(const QWidget* widget)
{
    const bool isPartOfCombo = qobject_cast<const QComboBox*>(widget->parentWidget()) != nullptr;
    return !isPartOfCombo && (widget->inherits("QAbstractButton") || widget->inherits("QLineEdit") ||
                              widget->inherits("QComboBox") || widget->inherits("QAbstractScrollArea") ||
                              widget->inherits("QTabBar") || widget->inherits("QScrollBar"));
}

int weightOf(const QString& window, const QString& control)
{
    const auto row = std::ranges::find_if(habitRows, [&](const HabitRow& habit) {
        return window == QLatin1StringView(habit.window) && control == QLatin1StringView(habit.control);
    });
    return row == std::end(habitRows) ? plainWeight : row->weight;
}

} // namespace

const std::vector<Habits::Control>& Habits::controlsOf(const QWidget& window)
{
    auto found = m_controls.find(&window);
    if (found == m_controls.end()) {
        found = m_controls.insert(&window, {});
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (isControl(widget) && widget->window() == &window) {
                found->push_back({widget, weightOf(window.objectName(), widget->objectName())});
            }
        }
    }
    return *found;
}

QWidget* Habits::chosenControl(const QWidget& window)
{
    std::vector<const Control*> usable;
    int total = 0;
    for (const Control& control : controlsOf(window)) {
        if (control.widget && control.widget->isVisible() && control.widget->isEnabled()) {
            usable.push_back(&control);
            total += control.weight;
        }
    }
    if (usable.empty()) {
        return nullptr;
    }
    int left = m_random.below(total);
    const auto chosen = std::ranges::find_if(usable, [&left](const Control* control) {
        left -= control->weight;
        return left < 0;
    });
    return (*chosen)->widget;
}

void Habits::use(QWidget& control, Inputs& inputs)
{
    if (qobject_cast<QLineEdit*>(&control) != nullptr || control.inherits("QPlainTextEdit")) {
        return retype(control, inputs);
    }
    if (auto* area = qobject_cast<QAbstractScrollArea*>(&control)) {
        const QPoint place = somewhereIn(*area->viewport());
        click(*area->viewport(), place, inputs);
        if (m_random.oneIn(8)) {
            click(*area->viewport(), place, inputs);
        } else if (m_random.oneIn(6)) {
            key(m_random.oneOf(std::array{Qt::Key_Return, Qt::Key_Space, Qt::Key_Delete, Qt::Key_PageDown,
                                          Qt::Key_Down, Qt::Key_End, Qt::Key_Home}),
                {}, inputs);
        }
        return;
    }
    const bool steps =
        qobject_cast<StepButton*>(&control) != nullptr || qobject_cast<QScrollBar*>(&control) != nullptr;
    const bool hasPlaces = control.inherits("QTabBar") || control.inherits("QScrollBar");
    const QPoint place =
        hasPlaces ? somewhereIn(control) : QPoint(std::min(8, control.width() / 2), control.height() / 2);
    if (steps && m_random.oneIn(5)) {
        inputs.push_back(at(Kind::Press, control, place));
        inputs.push_back({.kind = Kind::Wait, .number = m_random.below(1500)});
        inputs.push_back({.kind = Kind::Wait, .number = m_random.below(300)});
        inputs.push_back(at(Kind::Release, control, place));
        return;
    }
    click(control, place, inputs);
}

void Habits::retype(const QWidget& field, Inputs& inputs)
{
    clickMiddle(field, inputs);
    if (m_random.chance(70)) {
        key(Qt::Key_A, Qt::ControlModifier, inputs);
    }
    if (m_random.oneIn(12)) {
        QString text;
        while (text.size() < longText) {
            text += m_random.oneOf(typedTexts()) + QLatin1Char(m_random.chance(90) ? ' ' : '\n');
        }
        QApplication::clipboard()->setText(text);
        key(Qt::Key_V, Qt::ControlModifier, inputs);
    } else {
        type(m_random.oneOf(typedTexts()), inputs);
    }
    if (m_random.oneIn(5)) {
        key(m_random.oneOf(std::array{Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backspace, Qt::Key_Delete}), {},
            inputs);
    }
}

void Habits::type(const QString& text, Inputs& inputs)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype units = text[i].isHighSurrogate() ? 2 : 1;
        const QString character = text.mid(i, units);
        key(units == 2 ? int{Qt::Key_unknown} : int{character[0].toUpper().unicode()}, {}, inputs, character);
        i += units - 1;
    }
}

void Habits::key(int key, Qt::KeyboardModifiers modifiers, Inputs& inputs, const QString& text)
{
    inputs.push_back({.kind = Kind::Key, .modifiers = modifiers, .key = key, .text = text});
}

void Habits::click(const QWidget& control, QPoint position, Inputs& inputs, Qt::MouseButton button)
{
    Input press = at(Kind::Press, control, position);
    press.button = button;
    inputs.push_back(press);
    press.kind = Kind::Release;
    inputs.push_back(press);
}

void Habits::clickMiddle(const QWidget& control, Inputs& inputs)
{
    click(control, control.rect().center(), inputs);
}

QPoint Habits::somewhereIn(const QWidget& control)
{
    // Shares of the whole, so that the numbers drawn don't depend on sizes.
    return {static_cast<int>(m_random.fraction() * control.width()),
            static_cast<int>(m_random.fraction() * control.height())};
}

} // namespace torvane::testing
