#pragma once

#include "platform/language.h"

#include <QDate>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <array>

namespace torvane {

/// Where a run finds its files. Folder names end in a slash, but for `basePath`.
struct Paths
{
    QString basePath;    ///< the program's own folder; the game programs lie here
    QString workDir;     ///< working profile, scratch files, databases, help file
    QString scenarioDir; ///< finished scenarios
};

/// The paths below a base path, which may be empty.
Paths pathsBelow(const QString& basePath);

/// The game's program in the game folder: its German or its English one.
QString gameProgram(const QString& basePath, Language language);

/// Metres per yard and yards per metre, in single precision as all conversions of the editor use them.
inline constexpr float metresPerYard = 0.9144F;
inline constexpr float yardsPerMetre = 1.093613F;

/// Size of the target area at the start, in metres; written as the keys that end in DIM.
inline constexpr int initialTargetDim = 9260;

/// The eight legal formation spacings: yards, and metres as printed in single precision.
struct Spacing
{
    QLatin1StringView yards;
    QLatin1StringView metres;
};
inline constexpr std::array<Spacing, 8> spacingTable{{
    {QLatin1StringView{"500"}, QLatin1StringView{"457.2"}},
    {QLatin1StringView{"600"}, QLatin1StringView{"548.64"}},
    {QLatin1StringView{"700"}, QLatin1StringView{"640.08"}},
    {QLatin1StringView{"800"}, QLatin1StringView{"731.52"}},
    {QLatin1StringView{"900"}, QLatin1StringView{"822.96"}},
    {QLatin1StringView{"1000"}, QLatin1StringView{"914.4"}},
    {QLatin1StringView{"1500"}, QLatin1StringView{"1371.6"}},
    {QLatin1StringView{"2000"}, QLatin1StringView{"1828.8"}},
}};

/// Key names that the file procedures take by slot. The last slot stays empty.
inline constexpr std::array<QLatin1StringView, 20> keyTable{QLatin1StringView{"BLUE_TARGETBOX_X"},
                                                            QLatin1StringView{"BLUE_TARGETBOX_Z"},
                                                            QLatin1StringView{"BLUE_TARGETBOXDIM"},
                                                            QLatin1StringView{"RED_TARGETBOX_X"},
                                                            QLatin1StringView{"RED_TARGETBOX_Z"},
                                                            QLatin1StringView{"BATTLETYPE"},
                                                            QLatin1StringView{"TYPE"},
                                                            QLatin1StringView{"NAME"},
                                                            QLatin1StringView{"CLASS"},
                                                            QLatin1StringView{"ZPOSITION"},
                                                            QLatin1StringView{"DIVISIONNAME"},
                                                            QLatin1StringView{"SIDE"},
                                                            QLatin1StringView{"FORMATION"},
                                                            QLatin1StringView{"FORMATIONHEADING"},
                                                            QLatin1StringView{"FORMATIONSPACING"},
                                                            QLatin1StringView{"SPEED"},
                                                            QLatin1StringView{"SHIPCNT"},
                                                            QLatin1StringView{"FLAGSHIPINDEX"},
                                                            QLatin1StringView{"XPOSITION"},
                                                            QLatin1StringView{""}};

/// The date of this version, and its number and that of the scenario files it writes.
inline constexpr QLatin1StringView versionText{"Version 1.02"};
inline constexpr QLatin1StringView fileVersionText{"File version 64"};

/// The lines of the about box, `date` being 9 August 1999 in the system's short form.
QStringList aboutLines(Language language, const QString& date);

/// The day of this version.
QDate versionDate();

/// The text that the main window keeps of a division whose place is asked for: "Blue " or "Red " and the last
/// character of the division's label.
QString repositionKeyFor(const QString& sideLabel, const QString& divisionLabel);

/// The side labels of the division dialog. Never translated: they are compared.
inline constexpr QLatin1StringView forceALabel{"Force A (Blue)"};
inline constexpr QLatin1StringView forceBLabel{"Force B (Red)"};

} // namespace torvane
