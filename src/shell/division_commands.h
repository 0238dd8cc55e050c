#pragma once

#include "shell/commands.h"

namespace torvane {

class Editor;

/// Opens the division dialog for the job of a menu entry. The main window waits until it closes.
void openDivisionDialog(Editor& editor, const DivisionCommandRow& command);

} // namespace torvane
