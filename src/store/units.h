#pragma once

#include <QLatin1StringView>

#include <array>

namespace torvane {

/// Metres per yard and yards per metre, in single precision as all conversions of the editor use them.
inline constexpr float metresPerYard = 0.9144F;
inline constexpr float yardsPerMetre = 1.093613F;

/// The eight legal formation spacings: yards, and metres as printed in single precision.
struct Spacing
{
    QLatin1StringView yards;
    QLatin1StringView metres;
};
inline constexpr std::array<Spacing, 8> spacingTable{{
    {QLatin1StringView{"500"}, QLatin1StringView{"457.2"}},
    {QLatin1StringView{"600"}, QLatin1StringView{"548.64"}},
    {QLatin1StringView{"700"}, QLatin1StringView{"640.08"}},
    {QLatin1StringView{"800"}, QLatin1StringView{"731.52"}},
    {QLatin1StringView{"900"}, QLatin1StringView{"822.96"}},
    {QLatin1StringView{"1000"}, QLatin1StringView{"914.4"}},
    {QLatin1StringView{"1500"}, QLatin1StringView{"1371.6"}},
    {QLatin1StringView{"2000"}, QLatin1StringView{"1828.8"}},
}};

} // namespace torvane
