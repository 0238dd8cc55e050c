#pragma once

#include "platform/language.h"

#include <QString>

namespace torvane {

/// Puts into the user's game folder what a package delivers, all files below `package`, and keeps what the
/// user made of it: a file that was changed or, a scenario, deleted since it was delivered stays as it is;
/// the programs are always those of the package, and a missing database comes back. What was delivered is
/// noted in `.delivered` in the folder. Gives whether the folder is new. Throws RuntimeError, naming the
/// file, where it can't be done.
bool refreshGameFolder(const QString& package, const QString& folder);

/// The name of the program of a language.
QString editorProgram(Language language);

} // namespace torvane
