#pragma once

#include <QtCore/qnamespace.h>

namespace torvane {

/// The pointer's shapes: the hourglass over the whole program, the others over the map.
enum class Pointer { Default, Hourglass, Crosshair, SizeAll };

/// The shape that the window system knows.
Qt::CursorShape shapeOf(Pointer pointer);

/// Sets the pointer of all windows; Default gives each window its own again.
void setPointer(Pointer pointer);

/// The hourglass over the whole program for as long as it lives.
class HourglassPointer
{
public:
    HourglassPointer();
    ~HourglassPointer();
    HourglassPointer(const HourglassPointer&) = delete;
    HourglassPointer& operator=(const HourglassPointer&) = delete;
};

} // namespace torvane
