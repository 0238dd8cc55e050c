#pragma once

#include "platform/name_index.h"

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>
#include <vector>

namespace torvane {

/// A file in profile format, parsed once and kept: bracketed section heads, `KEY=value` lines, comments.
/// Holds bytes, not text, and knows no file name. Section and key names compare without regard to ASCII case
/// and to surrounding blanks and tabs. No content makes parsing fail, and time and memory grow in proportion
/// to it.
class Profile
{
public:
    Profile();

    /// Takes any bytes. Lines end in LF, CRLF or CR; a UTF-8 byte order mark is skipped.
    static Profile parse(QByteArray bytes);

    /// The value of the first key of that name in the first section of that name, without blanks, tabs and
    /// one pair of equal quotes round it; nothing if there is no such key. The lines before the first head
    /// are the section with the empty name. The view lives until the next write.
    std::optional<QByteArrayView> value(QByteArrayView section, QByteArrayView key) const;

    /// Replaces the value of an existing key in place, or appends the key behind the last line of its
    /// section, or the section to the end of the file. The value is trimmed at both ends, a line break in it
    /// becomes a blank. Returns whether the file's bytes change by it. Throws InvalidProcedureCall for a name
    /// that no reader would find again.
    bool setValue(QByteArrayView section, QByteArrayView key, QByteArrayView value);

    /// Writes every key that a reader finds here into another profile, in the order of this file.
    void writeInto(Profile& target) const;

    /// The whole file: CRLF line ends, lines that were not written kept as they were.
    QByteArray bytes() const;

    /// Whether the file has no line at all.
    bool isEmpty() const;

private:
    using Entry = NameIndex::Entry;
    static constexpr Entry none = NameIndex::none;

    /// A line that a reader can find. Positions are in `m_bytes`, without the line end.
    struct Key
    {
        qsizetype begin = 0;
        qsizetype equals = 0;
        qsizetype end = 0;
        Entry section = 0;
        Entry written = none; ///< in `m_written`: what stands there now
    };
    /// A line of our own, without its end: the new form of a parsed line, or a new one.
    struct WrittenLine
    {
        QByteArray line;
        qsizetype nameSize = 0;
        Entry next = none; ///< the new line behind this one in its section
    };
    /// The first section of its name. The sections between it and the next first one repeat earlier names: no
    /// reader looks into them, so they are kept as its tail and need no room of their own.
    struct Section
    {
        qsizetype begin = 0;
        qsizetype nameBegin = 0;
        qsizetype nameEnd = 0;
        qsizetype bodyEnd = 0;
        qsizetype tailEnd = 0;
        Entry firstKey = 0; ///< the parsed keys stand together in `m_keys`, up to `keysEnd`
        Entry keysEnd = 0;
        Entry firstNew = none;
        Entry lastNew = none;
    };
    class Parser;

    QByteArrayView span(qsizetype begin, qsizetype end) const;
    QByteArrayView sectionName(const Section& section) const;
    QByteArrayView keyName(const Key& key) const;
    QByteArrayView keyValue(const Key& key) const;
    Entry findSection(QByteArrayView name, std::uint32_t hash) const;
    Entry findKey(Entry section, QByteArrayView name, std::uint32_t hash) const;
    Entry appendSection(QByteArrayView name);
    void appendLine(Entry section, QByteArray line, qsizetype nameSize);
    bool replaceLine(Key& key, QByteArrayView value);
    void appendLines(QByteArray& out, qsizetype begin, qsizetype end) const;
    void appendSectionBytes(QByteArray& out, const Section& section) const;

    QByteArray m_bytes;          ///< the file as it was parsed, and behind it the heads of new sections
    bool m_plainLineEnds = true; ///< every line end in `m_bytes` is CRLF already
    std::vector<Section> m_sections;
    std::vector<Key> m_keys;
    std::vector<WrittenLine> m_written;
    NameIndex m_sectionIndex;
    NameIndex m_keyIndex;
};

} // namespace torvane
