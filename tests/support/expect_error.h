#pragma once

#include "platform/runtime_error.h"

#include <gmock/gmock.h>

namespace torvane::testing {

/// Checks that a call throws the platform's error of this number, with a text that matches.
template <typename Call, typename Matcher>
void expectError(RuntimeError::Number number, Call call, const Matcher& text)
{
    try {
        call();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), number) << error.what();
        EXPECT_THAT(error.what(), text);
    }
}

template <typename Call>
void expectError(RuntimeError::Number number, Call call)
{
    expectError(number, call, ::testing::_);
}

} // namespace torvane::testing
