#pragma once

#include "guide/guide.h"

namespace torvane {

/// The whole guide as one HTML file, which the editor's help window reads and any browser can show: the
/// chapters of both languages, each behind the mark that `HelpBook` looks for, the pictures in them. The
/// guide has no problems.
QByteArray guideFile(const Guide& guide);

} // namespace torvane
