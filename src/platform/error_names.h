#pragma once

#include "platform/bilingual.h"
#include "platform/runtime_error.h"

namespace torvane {

/// What an error number means, in words for an author.
struct ErrorName
{
    RuntimeError::Number number;
    Bilingual name;
};

/// One row an error number, in their order.
extern const std::array<ErrorName, 13> errorNames;

/// What the box of an error says: what happened, in the language of the program, and below it the file or
/// value concerned and the reason, as the error has them.
QString errorBoxText(const RuntimeError& error, Language language);

} // namespace torvane
