#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace torvane {

/// A place in the guide.
struct HelpPlace
{
    std::size_t chapter = 0;
    int position = 0; ///< in the chapter's plain text

    bool operator==(const HelpPlace&) const = default;
    auto operator<=>(const HelpPlace&) const = default; // NOLINT(modernize-use-nullptr): mistaken for a 0
};

/// The places at which a text stands in the guide, capitals or not.
class HelpSearch
{
public:
    /// `chapters` are the plain texts. An empty text stands nowhere.
    HelpSearch(const QStringList& chapters, const QString& text);

    const std::vector<HelpPlace>& places() const { return m_places; }
    /// The index of the first place at or behind `from`, or of the last before it; round the end. Nothing if
    /// there are no places.
    std::optional<std::size_t> atOrAfter(const HelpPlace& from) const;
    std::optional<std::size_t> before(const HelpPlace& from) const;

private:
    std::vector<HelpPlace> m_places;
};

} // namespace torvane
