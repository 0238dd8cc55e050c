#include "platform/caption_table.h"

#include <algorithm>

namespace torvane {

QString captionOf(std::span<const CaptionRow> table, QStringView control, Language language)
{
    const auto row = std::ranges::find_if(
        table, [&](const CaptionRow& candidate) { return candidate.control == control; });
    return row == table.end() ? QString() : row->caption.in(language);
}

} // namespace torvane
