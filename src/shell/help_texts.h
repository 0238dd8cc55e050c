#pragma once

#include "platform/bilingual.h"
#include "platform/caption_table.h"

#include <array>

namespace torvane {

/// Captions of the help window; the window's own name stands for its title bar.
extern const std::array<CaptionRow, 7> helpCaptions;
/// Tool tips of its controls, which tell the keys too.
extern const std::array<CaptionRow, 6> helpTips;
/// What assistive tools call the contents and the guide, and what they say of them.
extern const std::array<CaptionRow, 2> helpNames;
extern const std::array<CaptionRow, 2> helpDescriptions;

/// What the help says in boxes and beside the search.
enum class HelpText {
    BoxTitle,
    FileMissing,    ///< %1 is the file
    FileUnreadable, ///< %1 is the file with the system's reason
    FileDamaged,    ///< %1 is the file
    Found,          ///< %1 of %2 places
    NotFound,
};

/// One row a text, in the order of `HelpText`.
extern const std::array<TextRow<HelpText>, 6> helpTexts;
QString helpText(HelpText text, Language language);

/// The chapter that tells about a window, by the window's design name; empty for others.
QString helpChapterFor(QStringView designName);

} // namespace torvane
