#pragma once

#include "shell/editor_form.h"
#include "ship_state/ship_data_page.h"

#include <array>
#include <memory>

namespace Ui {
class ShipDataFrm;
}

namespace torvane {

class MainGunsPage;
class SystemsPage;

/// The condition of one ship: what is damaged, how good its crew is, what its magazines hold. Edits a ship's
/// record in the working profile, against what the catalogue says of its class. Its five pages share one
/// condition, which stays from one ship to the next where a ship doesn't replace it.
class ShipDataFrm : public EditorForm
{
    Q_OBJECT

public:
    explicit ShipDataFrm(Editor& editor);
    ~ShipDataFrm() override;

    /// The head of the dialog. The caption of the Edit Ship entry that was chosen: type, a blank and short
    /// name; once the ship is found in the catalogue its type and name.
    QLabel* const lblShipName;

protected:
    void onLoad() override;
    void onActivate() override;
    void onCloseBox() override;
    void applyCaptions(Language language) override;

private:
    void addPages();
    void connectPage(const ShipDataPage& page);
    void connectKeys();
    void turnPage(int direction);
    void showCondition();

    void showShip(const QString& shortName);
    void loadShipState(const QString& shortName);
    void lockDialogForRepair(bool locked);
    void save();
    void cancel();
    void leave();

    std::unique_ptr<Ui::ShipDataFrm> m_ui;
    ShipData m_data;
    SystemsPage* m_systems = nullptr;
    MainGunsPage* m_mainGuns = nullptr;
    std::array<ShipDataPage*, 5> m_pages{};
};

} // namespace torvane
