#pragma once

#include "platform/bilingual.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <span>

namespace torvane {

/// What a control shows, by the control's design name.
struct CaptionRow
{
    QLatin1StringView control;
    Bilingual caption;
};

/// The caption of a control in a table; empty if the table has none.
QString captionOf(std::span<const CaptionRow> table, QStringView control, Language language);

} // namespace torvane
