#pragma once

#include "platform/services.h"

#include <QString>
#include <QStringList>

#include <vector>

class QWidget;

namespace torvane {
class Editor;
class Form;
} // namespace torvane

namespace torvane::testing {

/// What holds of the editor after each event from outside, whatever the event was. Each check gives what is
/// wrong, in words, or nothing. A check changes nothing and loads no window.

/// Where the scenario under edit came from.
enum class Origin {
    None,   ///< there is none
    Made,   ///< the editor made it, and perhaps saved and loaded it
    Foreign ///< loaded from a file that the editor did not write as it stands
};

/// The windows of the editor that are shown, in the order in which they were made.
std::vector<Form*> shownForms();

/// Exactly one window takes input; an open box counts as the one.
QString inputTakerFault(Editor& editor);
/// The box or window that takes input has an enabled way out.
QString wayOutFault(Editor& editor);
/// Nothing is left half done when the main window waits for the author: no hourglass, no progress.
QString underWayFault(Editor& editor);

/// The working profile's file is well formed and is what the program has of it. Not while a handler runs.
QString profileFault(Editor& editor, const QByteArray& bytes);
/// Each division that is there has its nine keys, each ship its 77.
QString divisionsFault(const QByteArray& bytes);
/// Of a scenario that the editor made: numbers and names that only it writes fit together.
QString madeScenarioFault(const QByteArray& bytes);
/// The program can save what it holds.
QString savingFault(Editor& editor);

/// With the main window in front: the Edit and Reposition menus fit the divisions of the profile, and so do
/// the program's counts.
QString divisionMenusFault(Editor& editor);
/// With the main window in front: the Edit Ship menu fits the ships of the profile. `allDrawn`: the map could
/// be drawn to its end.
QString shipMenuFault(Editor& editor, bool allDrawn);
/// A dialog that has just come to the front shows what the profile and its files hold.
QString dialogFault(Editor& editor, const Form& dialog);

/// The number of a platform's own error by its box; 0 for any other box.
int errorNumberOf(const MessageBox& box);
/// Whether the rules allow an error, with the reason; empty if not.
QString excuseFor(const MessageBox& box, Origin origin);

} // namespace torvane::testing
