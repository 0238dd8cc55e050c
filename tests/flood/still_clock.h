#pragma once

#include <cstdint>

namespace torvane::testing {

/// The clock that timers of the process run by. It stands still until it is told to go on, so that a run of
/// the monkey is the same however fast the machine is: timers of buttons that repeat, of menus and of the
/// splash screen fire by it. Until `stopClock` it is the system's.
void stopClock();
/// Lets time pass.
void passTime(int milliseconds);
/// Milliseconds since `stopClock`.
std::int64_t passedTime();

} // namespace torvane::testing
