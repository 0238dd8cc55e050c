#pragma once

#include "platform/bilingual.h"

#include <QString>

#include <array>

namespace torvane {

/// The texts that the main window shows and compares through variables.
enum class MainText {
    Title,
    RulerCaption,
    Division,
    DivisionShort,
    HelpTagsOn,
    HelpTagsOff,
    LoadError,
    LoadErrorTitle,
    ProfileFileError,
    ProfileWriteError,
    ExitQuestion,
    ExitTitle,
    Loading,
    Saving,
    SplashTitle,
    AboutTitle,
    CloseWindow, ///< what assistive tools say of a button that does only that
    // Boxes of the platform
    RuntimeErrorTitle,
    FolderInUse,
    UnsavedFile,
    Unrecovered,
};

/// One row a text, in the order of `MainText`.
extern const std::array<TextRow<MainText>, 21> mainTexts;

QString mainText(MainText text, Language language);

} // namespace torvane
