#pragma once

namespace torvane {

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

} // namespace torvane
