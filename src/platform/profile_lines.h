#pragma once

#include <QByteArray>
#include <QByteArrayView>

namespace torvane {

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// Without the blanks and tabs at both ends.
QByteArrayView trimmed(QByteArrayView text);

/// The first such byte, or `end`.
const char* findByte(const char* begin, const char* end, char byte);

/// The text with each line break (LF, CRLF, CR) turned into one blank.
QByteArray oneLine(QByteArrayView text);

/// Walks over the lines of a text, which end in LF, CRLF or CR; the last needs no end. Linear for any bytes:
/// the next LF and the next CR are each looked up once.
class ProfileLines
{
public:
    ProfileLines(const char* begin, const char* end);

    /// Goes to the next line; false behind the last.
    bool next();

    /// The line without its end.
    const char* begin() const { return m_begin; }
    const char* end() const { return m_lineEnd; }
    /// Behind the line's end.
    const char* nextLine() const { return m_next; }
    bool isEnded() const { return m_next != m_lineEnd; }
    bool endsInCrLf() const { return m_next - m_lineEnd == 2; }

private:
    const char* m_begin = nullptr;
    const char* m_lineEnd = nullptr;
    const char* m_next;
    const char* m_end;
    const char* m_lf;
    const char* m_cr;
};

} // namespace torvane
