#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

namespace torvane {

/// A drawing from the program's resources, `size` points large, sharp on a screen of `density` pixels a
/// point. Nothing of it is kept: an icon that is made anew for each showing leaves a name in the toolkit's
/// cache each time. Empty if there is no such drawing.
QPixmap svgPicture(const QString& resource, QSize size, qreal density);

} // namespace torvane
