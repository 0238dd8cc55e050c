#pragma once

#include "shell/editor_form.h"

namespace torvane {

/// The levels of zoom.
class ZoomLevelFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit ZoomLevelFrm(Editor& editor);
};

} // namespace torvane
