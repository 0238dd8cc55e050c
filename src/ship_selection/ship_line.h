#pragma once

#include <QString>

namespace torvane {

// A ship as the lists of divisions name it: the type of two letters, a blank, the name.

inline constexpr qsizetype shipLineTypeLength = 2;

inline QString shipLine(const QString& type, const QString& name)
{
    return type + QLatin1Char(' ') + name;
}

inline QString shipTypeOf(const QString& line)
{
    return line.left(shipLineTypeLength);
}

/// From the fourth character on; empty for a shorter line.
inline QString shipNameOf(const QString& line)
{
    return line.mid(shipLineTypeLength + 1);
}

} // namespace torvane
