#pragma once

#include "shell/editor_form.h"

namespace torvane {

/// The condition of one ship.
class ShipDataFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit ShipDataFrm(Editor& editor);

    /// The caption of the Edit Ship entry that was chosen: type, a blank and short name.
    QLabel* const lblShipName = hiddenControl<QLabel>("lblShipName");
};

} // namespace torvane
