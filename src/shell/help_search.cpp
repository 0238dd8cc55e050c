#include "shell/help_search.h"

#include <algorithm>

namespace torvane {

HelpSearch::HelpSearch(const QStringList& chapters, const QString& text)
{
    if (text.isEmpty()) {
        return;
    }
    for (qsizetype chapter = 0; chapter < chapters.size(); ++chapter) {
        qsizetype position = chapters[chapter].indexOf(text, 0, Qt::CaseInsensitive);
        while (position >= 0) {
            m_places.push_back({static_cast<std::size_t>(chapter), static_cast<int>(position)});
            position = chapters[chapter].indexOf(text, position + text.size(), Qt::CaseInsensitive);
        }
    }
}

std::optional<std::size_t> HelpSearch::atOrAfter(const HelpPlace& from) const
{
    if (m_places.empty()) {
        return std::nullopt;
    }
    const auto found = std::lower_bound(m_places.begin(), m_places.end(), from);
    return found == m_places.end() ? 0 : static_cast<std::size_t>(found - m_places.begin());
}

std::optional<std::size_t> HelpSearch::before(const HelpPlace& from) const
{
    if (m_places.empty()) {
        return std::nullopt;
    }
    const auto found = std::lower_bound(m_places.begin(), m_places.end(), from);
    return static_cast<std::size_t>((found == m_places.begin() ? m_places.end() : found) - m_places.begin()) -
           1;
}

} // namespace torvane
