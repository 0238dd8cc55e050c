#pragma once

#include <array>
#include <cstring>

namespace torvane::testing {

/// What the road saves under its title, and as something else.
inline constexpr std::array<const char*, 2> scenarioNames{"First.scn", "Second.scn"};

/// The steps of the road that save.
inline constexpr const char* saveStep = "save";
inline constexpr const char* saveAsStep = "save as";

/// What the file should have become lies beside the game folder, under its name with a dot and this.
inline const char* expectedEnding(const char* scenario)
{
    return std::strcmp(scenario, scenarioNames.front()) == 0 ? saveStep : saveAsStep;
}

} // namespace torvane::testing
