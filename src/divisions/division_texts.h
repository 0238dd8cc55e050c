#pragma once

#include "platform/caption_table.h"

#include <array>

namespace torvane {

/// Captions of the division dialog; the form's own name stands for the title that it is loaded with. Two
/// buttons have no German caption. Kept.
extern const std::array<CaptionRow, 20> divisionCaptions;
/// What a control's tool tip says of range, unit and use.
extern const std::array<CaptionRow, 22> divisionTips;

/// Texts of the division dialog's messages, and of what it says of its state.
enum class DivisionText {
    Division,
    TooManyDivisions,
    HeadingRange,
    OutOfRangeTitle,
    SettingsLocked,
    SettingsOpen,
    NoShips,
    ShipCount, ///< %1 is the number of ships
    PickFlagship,
};

/// One row a text, in the order of `DivisionText`.
extern const std::array<TextRow<DivisionText>, 9> divisionTexts;
QString divisionText(DivisionText text, Language language);

/// The letters of the compass from north clockwise.
extern const std::array<Bilingual, 4> compassLetters;

/// What a division is called in the interface: the word for a division, a blank, its number.
QString divisionLabel(int number, Language language);

} // namespace torvane
