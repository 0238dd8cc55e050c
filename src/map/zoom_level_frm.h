#pragma once

#include "map/level_frm.h"

#include <cstdint>
#include <memory>

namespace Ui {
class ZoomLevelFrm;
}

namespace torvane {

/// The levels of zoom.
class ZoomLevelFrm : public LevelFrm
{
    Q_OBJECT

public:
    explicit ZoomLevelFrm(Editor& editor);
    ~ZoomLevelFrm() override;

    /// The `zoomIndex` of the option that is on. Counts only while `MainFrm.chkUnloadZoom` is 0.
    std::int16_t zoomIndex() const;
    /// Shows the dialog over the main window with the option of a `zoomIndex` turned on. Throws
    /// SubscriptOutOfRange for one outside 1 to 11.
    void openAt(std::int16_t zoomIndex);

protected:
    void applyCaptions(Language language) override;

private:
    std::unique_ptr<Ui::ZoomLevelFrm> m_ui;
};

} // namespace torvane
