#pragma once

#include "platform/number_text.h"
#include "platform/runtime_error.h"

#include <QString>

namespace torvane {

/// Runs a step. Its overflow becomes one of what `what` names: the number as the author wrote it, and where.
/// The pixels that it came to say little to an author, and are others at each scale and origin.
template <typename What, typename Step>
decltype(auto) namingOverflow(What what, Step step)
{
    try {
        return step();
    } catch (const RuntimeError& error) {
        if (error.number() != RuntimeError::Overflow) {
            throw;
        }
        throw RuntimeError(RuntimeError::Overflow,
                           QStringLiteral("Overflow: %1 is out of range.").arg(what()));
    }
}

} // namespace torvane
