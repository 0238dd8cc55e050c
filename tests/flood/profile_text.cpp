#include "flood/profile_text.h"

#include <algorithm>

namespace torvane::testing {

ProfileText ProfileText::of(const QByteArray& bytes)
{
    ProfileText text;
    text.sections.emplace_back();
    const QByteArrayView all(bytes);
    for (qsizetype begin = 0; begin < all.size();) {
        qsizetype end = bytes.indexOf("\r\n", begin);
        end = end < 0 ? all.size() : end;
        const QByteArrayView line = all.sliced(begin, end - begin).trimmed();
        begin = end + 2;
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('[') && line.endsWith(']')) {
            text.sections.push_back(
                {.name = line.sliced(1, line.size() - 2).trimmed(), .keys = {}, .values = {}});
        } else if (equals > 0) {
            text.sections.back().keys.push_back(line.first(equals).trimmed());
            text.sections.back().values.push_back(line.sliced(equals + 1).trimmed());
        } else if (!line.isEmpty()) {
            text.fault = line.toByteArray();
        }
    }
    return text;
}

const ProfileText::Section* ProfileText::section(QByteArrayView name) const
{
    const auto found = std::ranges::find(sections, name, &Section::name);
    return found == sections.end() ? nullptr : &*found;
}

QByteArrayView valueOf(const ProfileText::Section& section, QByteArrayView key)
{
    const auto found = std::ranges::find(section.keys, key);
    return found == section.keys.end()
               ? QByteArrayView()
               : section.values[static_cast<std::size_t>(found - section.keys.begin())];
}

bool hasKey(const ProfileText::Section& section, QByteArrayView key)
{
    return std::ranges::find(section.keys, key) != section.keys.end();
}

} // namespace torvane::testing
