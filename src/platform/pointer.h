#pragma once

namespace torvane {

/// The pointer's shape over the whole program.
enum class Pointer { Default, Hourglass, Crosshair, SizeAll };

/// Sets the pointer of all windows; Default gives each window its own again.
void setPointer(Pointer pointer);

/// Shows the hourglass while it lives.
class [[nodiscard]] Hourglass
{
public:
    Hourglass() { setPointer(Pointer::Hourglass); }
    ~Hourglass() { setPointer(Pointer::Default); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

} // namespace torvane
