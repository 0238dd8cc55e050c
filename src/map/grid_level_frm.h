#pragma once

#include "map/level_frm.h"

#include <cstdint>
#include <memory>

namespace Ui {
class GridLevelFrm;
}

namespace torvane {

/// The sizes of the grid.
class GridLevelFrm : public LevelFrm
{
    Q_OBJECT

public:
    explicit GridLevelFrm(Editor& editor);
    ~GridLevelFrm() override;

    /// The `gridIndex` of the option that is on. Counts only while `MainFrm.chkUnloadGrid` is 0.
    std::int16_t gridIndex() const;
    /// Shows the dialog over the main window with the option of a `gridIndex` turned on. Throws
    /// SubscriptOutOfRange for one outside 0 to 3.
    void openAt(std::int16_t gridIndex);

protected:
    void applyCaptions(Language language) override;

private:
    std::unique_ptr<Ui::GridLevelFrm> m_ui;
};

} // namespace torvane
