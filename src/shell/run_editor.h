#pragma once

#include "platform/language.h"

namespace torvane {

/// What every program that shows the editor's windows sets on its application, which must be there: the look
/// and the icon of its windows, and that it goes on while no window is open.
void prepareApplication();

/// Composes and runs a program of the editor in a language. Gives the program's exit code: 1 if another
/// editor works in the same folder.
int runEditor(int& argc, char** argv, Language language);

} // namespace torvane
