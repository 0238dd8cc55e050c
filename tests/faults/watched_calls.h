#pragma once

#include "faults/failing_calls.h"

namespace torvane::testing {

/// Counts an operation if its path is watched; true, with errno set, if it must fail. Doesn't return where
/// the program must die at it, but at a write, which is half done first.
bool mustFail(Operation operation, const char* path);
/// Whether what must fail is to kill.
bool dies();

/// The path of an open file; null if it isn't watched.
const char* openPath(int file);
void rememberPath(int file, const char* path);
void forgetPath(int file);

} // namespace torvane::testing
