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
    // Boxes of the platform
    RuntimeErrorTitle,
    FolderInUse,
    UnsavedFile,
};

/// One row a text, in the order of `MainText`.
extern const std::array<TextRow<MainText>, 19> mainTexts;

QString mainText(MainText text, Language language);

/// A help tag of the tool row: its text and the width that it gets, `perCharacter` times the length plus
/// `plus`, in pixels. The width grows where the font needs more.
struct HelpTagText
{
    const char* text;
    double perCharacter;
    int plus;

    QString string() const { return QString::fromUtf8(text); }
    /// Whole pixels, rounded up.
    int width() const;
};
struct HelpTagRow
{
    const char* name; ///< design name of the tag's control
    HelpTagText english;
    HelpTagText german;

    const HelpTagText& in(Language language) const { return language == Language::German ? german : english; }
};

/// The nine help tags, in the order of the tools.
extern const std::array<HelpTagRow, 9> helpTags;

} // namespace torvane
