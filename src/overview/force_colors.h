#pragma once

#include <QColor>

namespace torvane {

/// The forces' own colours, dark enough for white letters.
inline const QColor forceABlue(36, 74, 150);
inline const QColor forceBRed(164, 38, 38);

} // namespace torvane
