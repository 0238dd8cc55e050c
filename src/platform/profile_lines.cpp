#include "platform/profile_lines.h"

#include <algorithm>
#include <cstring>

namespace torvane {

QByteArrayView trimmed(QByteArrayView text)
{
    const char* begin = text.begin();
    const char* end = text.end();
    while (begin < end && isBlank(*begin)) {
        ++begin;
    }
    while (begin < end && isBlank(end[-1])) {
        --end;
    }
    return {begin, end};
}

const char* findByte(const char* begin, const char* end, char byte)
{
    if (begin == end) {
        return end;
    }
    const void* found = std::memchr(begin, byte, static_cast<std::size_t>(end - begin));
    return found ? static_cast<const char*>(found) : end;
}

QByteArray oneLine(QByteArrayView text)
{
    QByteArray result;
    result.reserve(text.size());
    ProfileLines lines(text.begin(), text.end());
    while (lines.next()) {
        result.append(lines.begin(), lines.end() - lines.begin());
        if (lines.isEnded()) {
            result.append(' ');
        }
    }
    return result;
}

ProfileLines::ProfileLines(const char* begin, const char* end)
    : m_next(begin), m_end(end), m_lf(findByte(begin, end, '\n')), m_cr(findByte(begin, end, '\r'))
{
}

bool ProfileLines::next()
{
    if (m_next == m_end) {
        return false;
    }
    m_begin = m_next;
    if (m_lf < m_begin) {
        m_lf = findByte(m_begin, m_end, '\n');
    }
    if (m_cr < m_begin) {
        m_cr = findByte(m_begin, m_end, '\r');
    }
    m_lineEnd = std::min(m_lf, m_cr);
    const bool ended = m_lineEnd != m_end;
    const bool crLf = m_lf != m_end && m_lf - m_cr == 1;
    m_next = m_lineEnd + (crLf ? 2 : ended ? 1 : 0);
    return true;
}

} // namespace torvane
