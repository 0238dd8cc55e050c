#pragma once

#include <cstdint>

namespace torvane::testing {

/// Bytes of the process that lie in memory.
std::int64_t residentBytes();
/// Bytes that the process has allocated and not given back.
std::int64_t allocatedBytes();

/// How much more memory may lie there at the end of a flood than after its warm-up. Under the address
/// sanitizer freed memory is kept back for a while.
extern const std::int64_t residentBound;
/// How much more may be allocated between two runs of the editor than between the first ones, when no window
/// is there.
extern const std::int64_t allocatedBound;

} // namespace torvane::testing
