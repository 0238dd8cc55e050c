#include "platform/profile.h"

#include "platform/code_page.h"
#include "platform/profile_lines.h"
#include "platform/runtime_error.h"

#include <algorithm>

namespace torvane {

namespace {

using Lines = ProfileLines;

constexpr QByteArrayView byteOrderMark{"\xEF\xBB\xBF", 3};
constexpr QByteArrayView lineEnd{"\r\n", 2};

std::uint32_t sectionHash(QByteArrayView name)
{
    return nameHash(name, 0);
}
std::uint32_t keyHash(QByteArrayView name, std::uint32_t section)
{
    return nameHash(name, (std::size_t{section} + 1) * 0x9e3779b97f4a7c15U);
}

/// A line as the writer makes it, without its end.
QByteArray madeLine(QByteArrayView name, QByteArrayView value)
{
    QByteArray line;
    line.reserve(name.size() + 1 + value.size());
    line.append(name).append('=').append(value);
    return line;
}

bool hasLineBreak(QByteArrayView text)
{
    return text.contains('\r') || text.contains('\n');
}

[[noreturn]] void refuseName(QByteArrayView name)
{
    throw RuntimeError(RuntimeError::InvalidProcedureCall,
                       QStringLiteral("The name \"%1\" can't stand in a profile file.")
                           .arg(fromCodePage(name.first(std::min<qsizetype>(name.size(), 80)))));
}

/// Whether `key=value` is read as what it is meant to be.
bool isReadableKey(QByteArrayView key, QByteArrayView value)
{
    if (hasLineBreak(key) || key.contains('=') || key.startsWith(';')) {
        return false;
    }
    return !key.startsWith('[') || !(key.contains(']') || value.contains(']'));
}

} // namespace

/// Fills an empty profile from its bytes.
class Profile::Parser
{
public:
    // As a view: that of an empty file starts at no address, its bytes themselves at some.
    explicit Parser(Profile& profile) : m_profile(profile), m_start(QByteArrayView(profile.m_bytes).data()) {}

    void run()
    {
        reserve();
        const QByteArrayView bytes(m_profile.m_bytes);
        const qsizetype start = bytes.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
        m_profile.m_sections.front() = Section{start, start, start, start, start};
        Lines lines(bytes.begin() + start, bytes.end());
        while (lines.next()) {
            takeLine(lines.begin(), lines.end());
            m_profile.m_plainLineEnds = m_profile.m_plainLineEnds && (lines.endsInCrLf() || !lines.isEnded());
        }
        closeSection(bytes.end());
    }

private:
    qsizetype at(const char* position) const { return position - m_start; }

    /// A guess at the number of keys, bounded so that a long file of other lines wastes nothing.
    void reserve()
    {
        const auto keys = static_cast<std::size_t>(std::min<qsizetype>(m_profile.m_bytes.size() / 20, 65536));
        m_profile.m_keys.reserve(keys);
        m_profile.m_keyIndex.reserve(keys);
    }

    void takeLine(const char* begin, const char* end)
    {
        const char* text = begin;
        while (text < end && isBlank(*text)) {
            ++text;
        }
        if (text == end || *text == ';') {
            return;
        }
        if (*text == '[') {
            const char* close = findByte(text, end, ']');
            if (close != end) {
                openSection(begin, {text + 1, close});
                return;
            }
        }
        if (m_live) {
            takeKey(begin, text, end);
        }
    }

    void takeKey(const char* begin, const char* text, const char* end)
    {
        const char* equals = findByte(text, end, '=');
        if (equals == end) {
            return;
        }
        const auto section = static_cast<Entry>(m_profile.m_sections.size() - 1);
        const QByteArrayView name = trimmed({text, equals});
        const std::uint32_t hash = keyHash(name, section);
        if (m_profile.findKey(section, name, hash) == none) {
            m_profile.m_keyIndex.insert(hash, static_cast<Entry>(m_profile.m_keys.size()));
            m_profile.m_keys.push_back({at(begin), at(equals), at(end), section});
        }
    }

    void openSection(const char* head, QByteArrayView rawName)
    {
        closeSection(head);
        const QByteArrayView name = trimmed(rawName);
        const std::uint32_t hash = sectionHash(name);
        m_live = m_profile.findSection(name, hash) == none;
        if (m_live) {
            m_profile.m_sectionIndex.insert(hash, static_cast<Entry>(m_profile.m_sections.size()));
            const auto firstKey = static_cast<Entry>(m_profile.m_keys.size());
            m_profile.m_sections.push_back(
                {at(head), at(name.begin()), at(name.end()), at(head), at(head), firstKey, firstKey});
        }
    }

    void closeSection(const char* end)
    {
        Section& section = m_profile.m_sections.back();
        section.tailEnd = at(end);
        if (m_live) {
            section.bodyEnd = at(end);
            section.keysEnd = static_cast<Entry>(m_profile.m_keys.size());
        }
    }

    Profile& m_profile;
    const char* m_start;
    bool m_live = true;
};

Profile::Profile() : m_sections(1)
{
    m_sectionIndex.insert(sectionHash({}), 0);
}

Profile Profile::parse(QByteArray bytes)
{
    Profile profile;
    profile.m_bytes = std::move(bytes);
    Parser(profile).run();
    return profile;
}

QByteArrayView Profile::span(qsizetype begin, qsizetype end) const
{
    return QByteArrayView(m_bytes).sliced(begin, end - begin);
}

QByteArrayView Profile::sectionName(const Section& section) const
{
    return span(section.nameBegin, section.nameEnd);
}

QByteArrayView Profile::keyName(const Key& key) const
{
    if (key.written != none) {
        const WrittenLine& written = m_written[key.written];
        return QByteArrayView(written.line).first(written.nameSize);
    }
    return trimmed(span(key.begin, key.equals));
}

QByteArrayView Profile::keyValue(const Key& key) const
{
    if (key.written != none) {
        const WrittenLine& written = m_written[key.written];
        return QByteArrayView(written.line).sliced(written.nameSize + 1);
    }
    return trimmed(span(key.equals + 1, key.end));
}

Profile::Entry Profile::findSection(QByteArrayView name, std::uint32_t hash) const
{
    return m_sectionIndex.find(hash, [&](Entry e) { return sameName(sectionName(m_sections[e]), name); });
}

Profile::Entry Profile::findKey(Entry section, QByteArrayView name, std::uint32_t hash) const
{
    return m_keyIndex.find(
        hash, [&](Entry e) { return m_keys[e].section == section && sameName(keyName(m_keys[e]), name); });
}

std::optional<QByteArrayView> Profile::value(QByteArrayView section, QByteArrayView key) const
{
    section = trimmed(section);
    key = trimmed(key);
    const Entry s = findSection(section, sectionHash(section));
    if (s == none) {
        return std::nullopt;
    }
    const Entry k = findKey(s, key, keyHash(key, s));
    if (k == none) {
        return std::nullopt;
    }
    const QByteArrayView text = keyValue(m_keys[k]);
    const bool quoted =
        text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
    return quoted ? text.sliced(1).chopped(1) : text;
}

bool Profile::setValue(QByteArrayView section, QByteArrayView key, QByteArrayView value)
{
    section = trimmed(section);
    key = trimmed(key);
    if (hasLineBreak(section) || section.contains(']')) {
        refuseName(section);
    }
    const QByteArray joined = hasLineBreak(value) ? oneLine(value) : QByteArray();
    value = trimmed(joined.isNull() ? value : QByteArrayView(joined));
    if (!isReadableKey(key, value)) {
        refuseName(key);
    }
    const Entry s = findSection(section, sectionHash(section));
    const Entry k = s == none ? none : findKey(s, key, keyHash(key, s));
    if (k != none) {
        return replaceLine(m_keys[k], value);
    }
    // The line is made first: the arguments may be views of our own bytes, which a new head moves.
    QByteArray line = madeLine(key, value);
    const qsizetype nameSize = key.size();
    appendLine(s == none ? appendSection(section) : s, std::move(line), nameSize);
    return true;
}

bool Profile::replaceLine(Key& key, QByteArrayView value)
{
    const QByteArrayView name = keyName(key);
    QByteArray line = madeLine(name, value);
    if (line ==
        (key.written != none ? QByteArrayView(m_written[key.written].line) : span(key.begin, key.end))) {
        return false;
    }
    if (key.written != none) {
        m_written[key.written].line = std::move(line);
        return true;
    }
    key.written = static_cast<Entry>(m_written.size());
    m_written.push_back({std::move(line), name.size()});
    return true;
}

Profile::Entry Profile::appendSection(QByteArrayView name)
{
    const std::uint32_t hash = sectionHash(name);
    const QByteArray head = '[' + name.toByteArray() + ']' + lineEnd.toByteArray();
    const qsizetype begin = m_bytes.size();
    m_bytes.append(head);
    const qsizetype end = m_bytes.size();
    const auto entry = static_cast<Entry>(m_sections.size());
    m_sections.push_back({begin, begin + 1, end - 1 - lineEnd.size(), end, end});
    m_sectionIndex.insert(hash, entry);
    return entry;
}

void Profile::appendLine(Entry section, QByteArray line, qsizetype nameSize)
{
    const std::uint32_t hash = keyHash(QByteArrayView(line).first(nameSize), section);
    const auto written = static_cast<Entry>(m_written.size());
    m_written.push_back({std::move(line), nameSize});
    m_keyIndex.insert(hash, static_cast<Entry>(m_keys.size()));
    m_keys.push_back({.section = section, .written = written});
    Section& owner = m_sections[section];
    if (owner.firstNew == none) {
        owner.firstNew = written;
    } else {
        m_written[owner.lastNew].next = written;
    }
    owner.lastNew = written;
}

void Profile::writeInto(Profile& target) const
{
    for (const Section& section : m_sections) {
        for (Entry k = section.firstKey; k < section.keysEnd; ++k) {
            target.setValue(sectionName(section), keyName(m_keys[k]), keyValue(m_keys[k]));
        }
        for (Entry w = section.firstNew; w != none; w = m_written[w].next) {
            const QByteArrayView line(m_written[w].line);
            const qsizetype nameSize = m_written[w].nameSize;
            target.setValue(sectionName(section), line.first(nameSize), line.sliced(nameSize + 1));
        }
    }
}

void Profile::appendLines(QByteArray& out, qsizetype begin, qsizetype end) const
{
    const QByteArrayView text = span(begin, end);
    if (text.isEmpty()) {
        return;
    }
    if (m_plainLineEnds) {
        out.append(text);
        if (!text.endsWith(lineEnd)) {
            out.append(lineEnd);
        }
        return;
    }
    Lines lines(text.begin(), text.end());
    while (lines.next()) {
        out.append(lines.begin(), lines.end() - lines.begin());
        out.append(lineEnd);
    }
}

void Profile::appendSectionBytes(QByteArray& out, const Section& section) const
{
    qsizetype done = section.begin;
    for (Entry k = section.firstKey; k < section.keysEnd; ++k) {
        const Key& key = m_keys[k];
        if (key.written == none) {
            continue;
        }
        appendLines(out, done, key.begin);
        out.append(m_written[key.written].line);
        out.append(lineEnd);
        const char* bytes = m_bytes.constData();
        Lines rest(bytes + key.end, bytes + std::min(key.end + 2, section.bodyEnd));
        done = rest.next() ? rest.nextLine() - bytes : key.end;
    }
    appendLines(out, done, section.bodyEnd);
    for (Entry w = section.firstNew; w != none; w = m_written[w].next) {
        out.append(m_written[w].line);
        out.append(lineEnd);
    }
    appendLines(out, section.bodyEnd, section.tailEnd);
}

QByteArray Profile::bytes() const
{
    QByteArray out;
    out.reserve(m_bytes.size() + m_bytes.size() / 16 + 64);
    for (const Section& section : m_sections) {
        appendSectionBytes(out, section);
    }
    // The reader skips one mark. Bytes that look like one and are text need another before them.
    if (out.startsWith(byteOrderMark)) {
        out.prepend(byteOrderMark);
    }
    return out;
}

bool Profile::isEmpty() const
{
    const Section& first = m_sections.front();
    return m_sections.size() == 1 && first.begin == first.tailEnd && first.firstNew == none;
}

} // namespace torvane
