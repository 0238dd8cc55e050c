#include "ship_state/ship_data_frm.h"

namespace torvane {

ShipDataFrm::ShipDataFrm(Editor& editor) : EditorForm(editor, QStringLiteral("ShipDataFrm"), Qt::Dialog) {}

} // namespace torvane
