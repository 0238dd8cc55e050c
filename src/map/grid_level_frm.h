#pragma once

#include "shell/editor_form.h"

namespace torvane {

/// The sizes of the grid.
class GridLevelFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit GridLevelFrm(Editor& editor);
};

} // namespace torvane
