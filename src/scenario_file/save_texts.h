#pragma once

#include "platform/bilingual.h"

#include <QString>

#include <array>

namespace torvane {

/// The texts of the boxes of Save and Save As.
enum class SaveText {
    ValidationTitle,
    FileName,
    Bombardment,
    Convoy,
    TransportTarget,
    TransportShips,
    BothSides,
    Overwrite,
    OverwriteTitle,
    Saved,
    SavedTitle,
    Failed,
    FailedTitle,
};

/// One row a text, in the order of `SaveText`.
extern const std::array<TextRow<SaveText>, 13> saveTexts;

QString saveText(SaveText text, Language language);

} // namespace torvane
