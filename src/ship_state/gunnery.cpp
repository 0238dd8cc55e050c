#include "ship_state/gunnery.h"

#include "platform/number_text.h"

namespace torvane {

QString steppedGunCount(const QString& caption, int classCount)
{
    const double less = numberValue(caption) - 1;
    return textOf(less >= 0 ? less : static_cast<double>(classCount));
}

} // namespace torvane
