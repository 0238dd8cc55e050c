#pragma once

#include <cstdlib>

/// Ends the run where something doesn't hold: the fuzzer keeps the input.
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}
