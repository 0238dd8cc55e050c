#include "flood/census.h"

#include <algorithm>

namespace torvane::testing {

void Census::atLeast(const QString& group, const QString& what, std::int64_t value)
{
    std::int64_t& most = m_counts[group][what];
    most = std::max(most, value);
}

QString Census::text() const
{
    QString lines;
    for (auto group = m_counts.cbegin(); group != m_counts.cend(); ++group) {
        lines += group.key() + QLatin1Char('\n');
        for (auto row = group->cbegin(); row != group->cend(); ++row) {
            lines += QStringLiteral("  %1  %2\n").arg(row.value(), 9).arg(row.key());
        }
    }
    return lines;
}

} // namespace torvane::testing
