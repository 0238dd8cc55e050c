#pragma once

#include "store/target_area.h"

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <functional>

namespace torvane {

class Profile;
class WorkingProfile;

/// Called at each of the 278 steps of a save.
using SaveProgress = std::function<void()>;

/// The bytes of the scenario file of a profile, which stays as it is: positions and spacing in metres, z
/// turned. `forceALabel` is what the overview's label of the first side shows; the target area goes to Blue
/// where it reads "Force A". Throws RuntimeError for a profile without a division count and for a position
/// beyond the range of a double.
QByteArray scenarioBytes(const WorkingProfile& profile, const TargetArea& target, QStringView forceALabel,
                         const SaveProgress& advance = {});
/// The same of a profile that has been read.
QByteArray scenarioBytes(const Profile& profile, const TargetArea& target, QStringView forceALabel,
                         const SaveProgress& advance = {});

/// Puts the scenario file in place, whole and once, over a file of that name. Throws RuntimeError and leaves
/// that file as it was; so it does where `path` is the working profile itself.
void saveINIfile(const QString& path, const WorkingProfile& profile, const TargetArea& target,
                 QStringView forceALabel, const SaveProgress& advance = {});

} // namespace torvane
