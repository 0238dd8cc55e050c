#pragma once

#include "ship_state/ship_data_page.h"

#include <memory>

class QPushButton;

namespace Ui {
class SystemsPage;
}

namespace torvane {

/// The machinery: six systems that can be repaired, opened one at a time in a panel, propulsion power, the
/// rudder, searchlights and fire directors.
class SystemsPage : public ShipDataPage
{
    Q_OBJECT

public:
    SystemsPage(ShipData& shipData, QLatin1StringView designName, QWidget* parent = nullptr);
    ~SystemsPage() override;

    void showCondition() override;
    void applyCaptions(Language language, QString taken) override;

Q_SIGNALS:
    /// The repair panel is open: the dialog can't be left until it is closed.
    void repairOpened();
    void repairClosed();

private:
    struct Repair
    {
        QPushButton* button;
        QLabel* summary;
        ValueLabel* time;
        QCheckBox* box;
    };
    void addRepair(std::size_t row);
    void addConditions();
    void openRepair(std::size_t row);
    void closeRepair();
    void hideRepairRows();
    void stepTime(Step step);
    std::size_t openRow() const;

    std::unique_ptr<Ui::SystemsPage> m_ui;
    std::array<Repair, repairRows.size()> m_repairs{};
    QLatin1StringView repairRow; ///< the word of the row that the panel shows
    Language m_language = Language::English;
};

} // namespace torvane
