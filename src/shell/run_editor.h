#pragma once

#include "platform/language.h"

namespace torvane {

/// Composes and runs a program of the editor in a language. Gives the program's exit code: 1 if another
/// editor works in the same folder.
int runEditor(int& argc, char** argv, Language language);

} // namespace torvane
