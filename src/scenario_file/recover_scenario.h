#pragma once

#include "platform/language.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

namespace torvane {

/// Turns the working profile of a run that did not end into a scenario file of the folder, by the writer of
/// Save, and gives its path; nothing if there is no profile or no scenario in it. The file is named after the
/// title, with a word for recovered and the time, and goes over no other file; the folder is made if it is
/// missing. A missing count of divisions is made up. The profile stays. Throws RuntimeError,
/// naming the file, where the profile can't be read or the scenario can't be written.
std::optional<QString> recoverScenario(const QString& profilePath, const QString& scenarioDir,
                                       Language language, const QDateTime& now);

/// Gives a profile that could not be recovered another name in its folder, that of no other file, and returns
/// its new path. Needs no room on the disk. Throws RuntimeError.
QString setProfileAside(const QString& profilePath, const QDateTime& now);
/// The profiles of a work folder that were set aside, by their paths.
QStringList profilesSetAside(const QString& workDir);

} // namespace torvane
