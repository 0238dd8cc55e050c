#pragma once

#include "ship_state/ship_data_page.h"

#include <array>

namespace torvane {

/// Who the ship is, hull, floatation and fire, and the four lists of crew and radar.
class GeneralPage : public ShipDataPage
{
    Q_OBJECT

public:
    GeneralPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent = nullptr);

    void showCondition() override;
    void applyCaptions(Language language, QString taken) override;

private:
    struct Identity
    {
        const QString* text;
        QLabel* label;
        ValueLabel* value;
    };
    std::array<Identity, 3> m_identity{};
};

} // namespace torvane
