#pragma once

#include "platform/runtime_error.h"

#include <QStringList>

#include <vector>

namespace torvane {

/// Which errors of a redraw the author has not been told of yet. A scenario that can't be drawn stays so from
/// redraw to redraw. Errors are told apart by their texts, which name what is wrong as the scenario has it,
/// so that they stay the same however the view is scrolled or zoomed.
class ToldErrors
{
public:
    /// Takes the errors of a redraw; gives those that the one before it didn't have, each once.
    std::vector<RuntimeError> fresh(const std::vector<RuntimeError>& errors);

private:
    QStringList m_texts; ///< of the last redraw
};

} // namespace torvane
