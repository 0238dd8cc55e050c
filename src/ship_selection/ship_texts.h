#pragma once

#include "platform/caption_table.h"
#include "ship_selection/selection_rules.h"

namespace torvane {

/// Captions of the ship dialog; the form's own name stands for its title bar.
extern const std::array<CaptionRow, 18> shipCaptions;
/// What a control's tool tip says of its use.
extern const std::array<CaptionRow, 17> shipTips;

/// A refusal: its box has no icon.
struct SelectionMessageRow
{
    SelectionMessage message;
    Bilingual text;
    Bilingual title;
};
/// One row a message, in the order of `SelectionMessage`.
extern const std::array<SelectionMessageRow, 8> selectionMessages;
const SelectionMessageRow& selectionMessage(SelectionMessage message);

/// Texts that the ship dialog shows in the course of its work.
enum class ShipText {
    SortOff,
    SortOn,
    SearchPrompt,
    SearchTitle,
    NotFound,
    NotFoundTitle,
    DivisionCount, ///< %1 ships of %2 that the limit allows; so the next three
    ForceACount,
    ForceBCount,
    ScenarioCount,
    GridName,    ///< what assistive tools call the grid
    ClickedName, ///< and the picture of the clicked cell
};
/// One row a text, in the order of `ShipText`.
extern const std::array<TextRow<ShipText>, 12> shipTexts;
QString shipText(ShipText text, Language language);

} // namespace torvane
