#pragma once

#include "flood/input.h"
#include "flood/random.h"

#include <QHash>

#include <deque>
#include <vector>

class QLineEdit;
class QMenu;

namespace torvane {
class Editor;
class Form;
class MainMenu;
} // namespace torvane

namespace torvane::testing {

/// What the monkey does next. Mostly what an author would do in the window in front, so that it gets deep
/// into a scenario, and in between anything anywhere. Goes by the seed alone.
class Habits
{
public:
    explicit Habits(Random& random) : m_random(random) {}

    /// A new run of the editor: the windows of the old one are gone.
    void forget();
    /// What comes next, one event or a few that belong together.
    void next(Editor& editor, std::deque<Input>& inputs);
    /// A step out of whatever is open, towards the main window: Esc, and where that did not help the button
    /// that closes.
    void stepOut(Editor& editor, std::deque<Input>& inputs);

private:
    using Inputs = std::deque<Input>;

    /// A control that the author can use, and how often he does.
    struct Control
    {
        QPointer<QWidget> widget;
        int weight;
    };

    void inPopup(QWidget& popup, Inputs& inputs);
    void inMenu(QMenu& menu, Inputs& inputs);
    void inBox(QWidget& box, Inputs& inputs);
    void inMain(Editor& editor, Inputs& inputs);
    void inDialog(Form& dialog, Inputs& inputs);
    void inHelp(QWidget& help, Inputs& inputs);

    void command(Editor& editor, Inputs& inputs);
    QAction* chosenCommand(const MainMenu& menu);
    void throughMenu(const Form& main, QAction& entry, Inputs& inputs);
    void onMap(Editor& editor, Inputs& inputs);

    const std::vector<Control>& controlsOf(const QWidget& window);
    QWidget* chosenControl(const QWidget& window);
    void use(QWidget& control, Inputs& inputs);
    void retype(const QWidget& field, Inputs& inputs);
    void type(const QString& text, Inputs& inputs);
    void key(int key, Qt::KeyboardModifiers modifiers, Inputs& inputs, const QString& text = {});
    void click(const QWidget& control, QPoint position, Inputs& inputs,
               Qt::MouseButton button = Qt::LeftButton);
    void clickMiddle(const QWidget& control, Inputs& inputs);
    QPoint somewhereIn(const QWidget& control);

    void noise(Editor& editor, Inputs& inputs);
    void anyKey(bool mainInFront, QWindow* window, Inputs& inputs);
    void anyMouse(QWindow& window, Inputs& inputs);
    void anyWindowChange(Editor& editor, QWindow& window, Inputs& inputs);

    Random& m_random;
    QHash<const QWidget*, std::vector<Control>> m_controls;
    QPointer<QAction> m_goal; ///< the entry that is sought through open menus
    QString m_steppedOut;     ///< the window that the last step tried to leave
};

} // namespace torvane::testing
