#pragma once

#include <QLatin1StringView>
#include <QStringView>

namespace torvane {

/// The two forces: Blue is Force A, Red is Force B.
enum class Side { Blue, Red };

/// The side labels of the division dialog. Never translated: they are compared.
inline constexpr QLatin1StringView forceALabel{"Force A (Blue)"};
inline constexpr QLatin1StringView forceBLabel{"Force B (Red)"};

/// What `SIDE` holds.
inline constexpr QLatin1StringView blueWord{"Blue"};
inline constexpr QLatin1StringView redWord{"Red"};

/// Anything but Force A's label is Force B, and anything but Blue's word is Red.
inline Side sideOfLabel(QStringView label)
{
    return label == forceALabel ? Side::Blue : Side::Red;
}
inline Side sideOfWord(QStringView word)
{
    return word == blueWord ? Side::Blue : Side::Red;
}
inline QLatin1StringView wordOf(Side side)
{
    return side == Side::Blue ? blueWord : redWord;
}

} // namespace torvane
