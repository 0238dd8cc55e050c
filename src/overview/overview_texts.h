#pragma once

#include "platform/caption_table.h"

#include <QStringList>
#include <QStringView>

#include <array>
#include <span>

namespace torvane {

/// Captions of the overview dialog; the form's own name stands for its title bar.
extern const std::array<CaptionRow, 18> overviewCaptions;
/// Captions of the environment dialog's form and buttons.
extern const std::array<CaptionRow, 11> environmentCaptions;
/// Labels of the environment dialog, by the control that they stand at.
extern const std::array<CaptionRow, 14> environmentLabels;

/// Messages of both dialogs.
enum class OverviewMessage { OutOfRangeTitle, HeadingRange, ModifierRange, WindSpeedRange };
/// One row a message, in the order of `OverviewMessage`.
extern const std::array<TextRow<OverviewMessage>, 4> overviewMessages;
QString overviewMessage(OverviewMessage message, Language language);

/// The words for the two sides, which the hidden labels hold and compare.
inline constexpr Bilingual forceA{"Force A", "Streitkraft A"};
inline constexpr Bilingual forceB{"Force B", "Streitkraft B"};

/// The months in the order of the year; English is what is stored.
extern const std::array<Bilingual, 12> months;
/// The theatres; English is what is stored.
extern const std::array<Bilingual, 2> locations;

/// A list entry and what the scenario stores for it.
struct CodedCaption
{
    const char* stored;
    Bilingual caption;
};
/// Air and sea control in list order. The codes don't follow it.
extern const std::array<CodedCaption, 4> airControls;
/// The navies in list order, each with its abbreviation in brackets.
extern const std::array<CodedCaption, 4> navies;
/// Rain on and off.
extern const std::array<CodedCaption, 2> rainStates;

/// A movie as the list names it and as a loaded scenario names it. Two of them differ by a blank; only the
/// last digit counts.
struct Movie
{
    const char* listed;
    Bilingual loaded;
};
/// The movies 0 to 4.
extern const std::array<Movie, 5> movies;

/// The entries of a list control of either dialog, in order; empty for a control that is no list.
QStringList listContents(QStringView control, Language language);

} // namespace torvane
