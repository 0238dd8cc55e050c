#pragma once

#include <optional>

namespace torvane {

class Profile;
class WorkingProfile;

/// Size of the target area at the start, in metres; written as the keys that end in DIM.
inline constexpr int initialTargetDim = 9260;

/// The target area of the scenario: its centre in yards on the map's axes, 0 until it is placed, and its size
/// in metres.
struct TargetArea
{
    int x = 0;
    int z = 0;
    int dim = initialTargetDim;

    bool operator==(const TargetArea&) const = default;
};

/// Notes the target area in the profile, where no save or load looks, so that it outlives the program. Does
/// nothing while there is no scenario, and for an area that was never placed.
void rememberTargetArea(WorkingProfile& profile, const TargetArea& target);
/// What was noted last, nothing if none was. A number that is none, or beyond 32 bits, counts as 0.
std::optional<TargetArea> rememberedTargetArea(const Profile& profile);

} // namespace torvane
