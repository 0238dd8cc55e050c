#pragma once

#include "ship_state/ship_data_page.h"

#include <memory>

namespace Ui {
class MainGunsPage;
}

namespace torvane {

/// The turrets on the ship's plan, and the main magazines below: A to port, B to starboard.
class MainGunsPage : public ShipDataPage
{
    Q_OBJECT

public:
    MainGunsPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent = nullptr);
    ~MainGunsPage() override;

    /// Offers the turrets that the class has.
    void showClassTurrets();

    void applyCaptions(Language language, QString taken) override;

private:
    std::unique_ptr<Ui::MainGunsPage> m_ui;
};

} // namespace torvane
