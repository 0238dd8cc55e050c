#include "ship_selection/ship_dbase_frm.h"

namespace torvane {

ShipDBaseFrm::ShipDBaseFrm(Editor& editor) : EditorForm(editor, QStringLiteral("ShipDBaseFrm"), Qt::Dialog) {}

} // namespace torvane
