#pragma once

#include <QString>

#include <array>

namespace torvane::testing {

/// What happens to a game folder behind the editor's back.
inline constexpr std::array<const char*, 7> damages{
    "catalogue replaced", "catalogue overwritten", "catalogue emptied", "catalogue cut",
    "catalogue deleted",  "work folder removed",   "scenarios removed"};

/// Does one of them to a game folder; beside that lies "<folder>.other.mdb", another ship catalogue. Returns
/// whether there was something to damage.
bool damage(const QString& folder, const QString& what);

} // namespace torvane::testing
