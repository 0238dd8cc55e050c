#pragma once

#include "map/range_rings.h"

namespace torvane::testing {

// The colours of the rings against battleships, cruisers and destroyers: of sight, then of radar.
inline constexpr MapColour white = 0xFFFFFF;
inline constexpr MapColour green = 0x00FF00;
inline constexpr MapColour yellow = 0xFFFF00;
inline constexpr MapColour brown = 0x804000;
inline constexpr MapColour rust = 0xC04000;
inline constexpr MapColour orange = 0xFF8000;

/// A calm day without rain.
inline RingConditions clear(const char* visibility = "100 %", const char* radar = "100 %")
{
    return {.visibility = QLatin1StringView(visibility),
            .radar = QLatin1StringView(radar),
            .seaState = QStringLiteral("1"),
            .rain = QStringLiteral("Off")};
}

} // namespace torvane::testing
