#pragma once

#include "shell/editor.h"
#include "support/scripted_services.h"

#include <QString>

#include <functional>

class QWidget;

namespace torvane {
class Form;
}

namespace torvane::testing {

/// An author's road through an editor, from the splash screen to the end of the program: a new scenario with
/// a division a side, placed, edited, one ship damaged, saved under its title and once more under another
/// name. Works the windows as a user does: what is greyed, hidden or not there can't be pressed, a command
/// that fails is tried once more, and whatever stands open is left in the end.
class ScriptedWalk
{
public:
    /// `step` runs before each step with its name, `result` after it with whether it had its effect.
    struct Watcher
    {
        std::function<void(const QString& step)> step;
        std::function<void(const QString& step, bool done)> result;
    };

    ScriptedWalk(Editor& editor, ScriptedServices& script, Watcher watcher);

    /// The whole road; true if it ended the program. `savedAs` is the full path that Save As is given.
    bool walk(const QString& savedAs);
    /// No more than the start, New and the end.
    bool look();

private:
    using Action = std::function<bool()>;

    void step(const char* name, const Action& action);
    bool leaveSplash();
    bool openNew();
    bool describe();
    bool setWeather();
    bool leaveOverview();
    bool create(bool forceA);
    bool pickShips(int first, int count);
    bool place(bool forceA);
    bool damageShip();
    bool editDivision();
    bool save();
    bool saveAs(const QString& path);
    bool leave();

    bool choose(const QString& entry);
    bool push(Form& window, const char* control);
    bool isInFront(const Form& window) const;
    void leaveDialogs();

    Editor& m_editor;
    ScriptedServices& m_script;
    Watcher m_watcher;
};

} // namespace torvane::testing
