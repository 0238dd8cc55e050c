#pragma once

#include "store/working_profile.h"

#include <QString>

namespace torvane {

/// Two ships share the short name "Duncan". The menu tells them apart by their names, which no short name is.
bool isNamedDuncan(const QString& shortName);

/// The section of the ship that the menu calls `shortName`: the first of that short name, or, for the two
/// Duncans, of that name. Empty if there is none. Emptied places are passed over.
QString sectionToShow(const WorkingProfile& profile, const QString& shortName);

/// The section that a save writes to, by what the dialog shows: the first of that short name, for a Duncan
/// that of its class too. Empty if there is none.
QString findShipSection(const WorkingProfile& profile, const QString& shortName, const QString& shipClass);

} // namespace torvane
