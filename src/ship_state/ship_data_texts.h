#pragma once

#include "platform/bilingual.h"
#include "platform/caption_table.h"
#include "ship_state/damage.h"
#include "ship_state/ship_systems.h"

#include <QString>

#include <array>

namespace torvane {

/// Captions of the ship data dialog that stand in no other table; the form's own name stands for its title.
extern const std::array<CaptionRow, 11> shipDataCaptions;

/// A page: its tab, and its frame with the title.
struct ShipDataTab
{
    Bilingual caption;
    QLatin1StringView frame;
    Bilingual title;
};
/// The five tabs in order.
extern const std::array<ShipDataTab, 5> shipDataTabs;

/// What the dialog says beside its captions, mostly as tool tips.
enum class ShipDataText {
    More, ///< accessible name of a button; %1 is the caption that stands at it
    Less, ///< the same
    PercentMore,
    PercentLess,
    FireMore,
    FireLess,
    GunLost,
    MinuteMore,
    MinuteLess,
    CloseRepair,
    OpenRepair,
    Intact,
    Destroyed,
    Minutes, ///< %1 is a number
    ChooseSystem,
    DestroyedTip,
    PageTip,
    SaveTip,
    CancelTip,
};
QString shipDataText(ShipDataText text, Language language);

/// What a repair row comes to, in a word.
QString repairSummary(const RepairState& state, Language language);

} // namespace torvane
