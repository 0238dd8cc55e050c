#include "map/grid_level_frm.h"

namespace torvane {

GridLevelFrm::GridLevelFrm(Editor& editor) : EditorForm(editor, QStringLiteral("GridLevelFrm"), Qt::Dialog) {}

} // namespace torvane
