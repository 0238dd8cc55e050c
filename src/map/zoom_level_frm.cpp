#include "map/zoom_level_frm.h"

namespace torvane {

ZoomLevelFrm::ZoomLevelFrm(Editor& editor) : EditorForm(editor, QStringLiteral("ZoomLevelFrm"), Qt::Dialog) {}

} // namespace torvane
