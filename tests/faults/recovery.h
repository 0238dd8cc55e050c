#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace torvane::testing {

/// The scenarios that starts have made of those of killed runs, by their names.
QStringList recoveredScenarios(const QString& folder);

/// What is wrong with what a start has made of the profile that a killed run left, empty if it left none: one
/// scenario that loads, with all its divisions and ships in their places.
QStringList complaintsAboutRecovery(const QString& folder, const QByteArray& left);

} // namespace torvane::testing
