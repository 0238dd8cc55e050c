#pragma once

#include "platform/language.h"

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

struct SaveTextRow
{
    SaveText text;
    const char* english;
    const char* german;
};

/// One row a text, in the order of `SaveText`. UTF-8.
extern const std::array<SaveTextRow, 13> saveTexts;

QString saveText(SaveText text, Language language);

} // namespace torvane
