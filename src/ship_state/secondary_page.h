#pragma once

#include "ship_state/ship_data_page.h"

#include <array>

namespace torvane {

/// The secondary guns where they stand on the ship's plan, and their magazine below.
class SecondaryPage : public ShipDataPage
{
    Q_OBJECT

public:
    SecondaryPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent = nullptr);

    void showCondition() override;
    void applyCaptions(Language language, QString taken) override;

private:
    struct Count
    {
        QLabel* label;
        ValueLabel* count;
        StepButton* button;
    };
    QWidget* makeCount(std::size_t gun, QWidget* plan);

    std::array<Count, secondaryGuns.size()> m_counts{};
};

} // namespace torvane
