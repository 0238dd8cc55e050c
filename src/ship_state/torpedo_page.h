#pragma once

#include "ship_state/ship_data_page.h"

namespace torvane {

/// The torpedo mounts on the ship's plan, from the bow.
class TorpedoPage : public ShipDataPage
{
    Q_OBJECT

public:
    TorpedoPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent = nullptr);
};

} // namespace torvane
