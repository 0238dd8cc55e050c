#pragma once

#include "platform/language.h"

#include <QDate>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>

namespace torvane {

/// Where a run finds its files. Folder names end in a slash, but for `basePath`.
struct Paths
{
    QString basePath;    ///< the program's own folder; the game programs lie here
    QString workDir;     ///< working profile, scratch files, databases, help file
    QString scenarioDir; ///< finished scenarios
};

/// The guide for authors, in the work folder.
inline constexpr QLatin1StringView helpFileName{"SE_README.HLP"};

/// The paths below a base path, which may be empty.
Paths pathsBelow(const QString& basePath);

/// The game's program in the game folder: its German or its English one.
QString gameProgram(const QString& basePath, Language language);

/// The number of this version, and that of the scenario files it writes.
inline constexpr QLatin1StringView versionText{"Version 1.02"};
inline constexpr QLatin1StringView fileVersionText{"File version 64"};

/// The lines of the about box, `date` being 9 August 1999 in the system's short form.
QStringList aboutLines(Language language, const QString& date);

/// The day of this version.
QDate versionDate();

/// The text that the main window keeps of a division whose place is asked for: "Blue " or "Red " and the last
/// character of the division's label.
QString repositionKeyFor(const QString& sideLabel, const QString& divisionLabel);

} // namespace torvane
