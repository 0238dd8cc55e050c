#include "overview/typed_values.h"

#include "platform/number_text.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace torvane {

double boundedValue(QStringView text)
{
    try {
        return numberValue(text);
    } catch (const RuntimeError&) {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        return text.trimmed().startsWith(u'-') ? -infinity : infinity;
    }
}

double integerPart(QStringView text)
{
    return floorOf(boundedValue(text));
}

int integerValue(QStringView text)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double value = std::clamp<double>(boundedValue(text), Limits::min(), Limits::max());
    return toInt16(roundEven(value));
}

float singleValue(QStringView text)
{
    constexpr double bound = 1'000'000;
    return static_cast<float>(std::clamp(boundedValue(text), -bound, bound));
}

} // namespace torvane
