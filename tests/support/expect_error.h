#pragma once

#include "platform/runtime_error.h"

#include <gmock/gmock.h>

namespace torvane::testing {

/// Checks that a call throws the platform's error of this number.
template <typename Call>
void expectError(RuntimeError::Number number, Call call)
{
    try {
        call();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), number) << error.what();
    }
}

} // namespace torvane::testing
