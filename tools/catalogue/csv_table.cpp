#include "catalogue/csv_table.h"

#include <QStringDecoder>
#include <QStringView>

#include <optional>

namespace torvane {

namespace {

constexpr QChar quote = u'"';
constexpr QChar comma = u',';

/// The fields of one line, or the reason why it has none.
class LineParser
{
public:
    explicit LineParser(QStringView line) : m_line(line) {}

    /// False on bad quoting; `reason()` then says what is bad.
    bool parse()
    {
        do {
            if (!(atQuote() ? quotedField() : plainField())) {
                return false;
            }
        } while (passComma());
        return true;
    }

    const QStringList& fields() const { return m_fields; }
    const QString& reason() const { return m_reason; }

private:
    bool atQuote() const { return m_at < m_line.size() && m_line[m_at] == quote; }

    bool passComma()
    {
        if (m_at == m_line.size()) {
            return false;
        }
        ++m_at;
        return true;
    }

    bool refuse(const QString& reason)
    {
        m_reason = reason;
        return false;
    }

    bool plainField()
    {
        const qsizetype start = m_at;
        while (m_at < m_line.size() && m_line[m_at] != comma) {
            if (atQuote()) {
                return refuse(QStringLiteral("bad quoting: a double quote inside a field without quotes"));
            }
            ++m_at;
        }
        m_fields.append(m_line.sliced(start, m_at - start).toString());
        return true;
    }

    bool quotedField()
    {
        QString text;
        for (++m_at; m_at < m_line.size(); ++m_at) {
            if (!atQuote()) {
                text.append(m_line[m_at]);
                continue;
            }
            ++m_at;
            if (!atQuote()) {
                return endQuotedField(text);
            }
            text.append(quote);
        }
        return refuse(QStringLiteral("bad quoting: a double quote is not closed on its line"));
    }

    bool endQuotedField(const QString& text)
    {
        if (m_at < m_line.size() && m_line[m_at] != comma) {
            return refuse(QStringLiteral("bad quoting: text behind a closing double quote"));
        }
        m_fields.append(text);
        return true;
    }

    QStringView m_line;
    qsizetype m_at = 0;
    QStringList m_fields;
    QString m_reason;
};

QByteArray withoutByteOrderMark(const QByteArray& bytes)
{
    return bytes.startsWith("\xEF\xBB\xBF") ? bytes.sliced(3) : bytes;
}

std::optional<QStringList> fieldsOf(QByteArray bytes, QString& reason)
{
    if (bytes.endsWith('\r')) {
        bytes.chop(1);
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString line = decoder(bytes);
    if (decoder.hasError()) {
        reason = QStringLiteral("not UTF-8 text");
        return std::nullopt;
    }
    LineParser parser(line);
    if (!parser.parse()) {
        reason = parser.reason();
        return std::nullopt;
    }
    return parser.fields();
}

void addRow(CsvTable& table, const QStringList& fields, Faults& faults)
{
    if (table.columns.isEmpty()) {
        table.columns = fields;
    } else if (fields.size() == table.columns.size()) {
        table.rows.push_back({table.lines, fields});
    } else {
        table.whole = false;
        faults.add(
            table.file, table.lines,
            QStringLiteral("%1 fields, the header has %2").arg(fields.size()).arg(table.columns.size()));
    }
}

} // namespace

CsvTable parseCsv(const QByteArray& bytes, const QString& file, Faults& faults)
{
    CsvTable table;
    table.file = file;
    for (const QByteArray& line : withoutByteOrderMark(bytes).split('\n')) {
        ++table.lines;
        if (line.trimmed().isEmpty()) {
            continue;
        }
        QString reason;
        if (const std::optional<QStringList> fields = fieldsOf(line, reason)) {
            addRow(table, *fields, faults);
        } else {
            table.whole = false;
            faults.add(file, table.lines, reason);
            if (table.columns.isEmpty()) {
                break; // No other line can stand in for the header.
            }
        }
    }
    if (bytes.endsWith('\n')) {
        --table.lines;
    }
    return table;
}

} // namespace torvane
