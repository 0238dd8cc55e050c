#pragma once

namespace torvane {

/// The pointer's shape over the whole program.
enum class Pointer { Default, Hourglass, Crosshair, SizeAll };

/// Sets the pointer of all windows; Default gives each window its own again.
void setPointer(Pointer pointer);

} // namespace torvane
