#pragma once

#include "shell/editor_form.h"

namespace torvane {

/// The ship browser, from which the ships of a division are picked.
class ShipDBaseFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit ShipDBaseFrm(Editor& editor);
};

} // namespace torvane
