#include "catalogue/row_reader.h"

#include "platform/code_page.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace torvane {

namespace {

/// Digits with at most one point among them; no sign, no exponent, no blank.
std::optional<double> plainNumber(const QString& text)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const bool digitsAndPoints =
        std::all_of(text.begin(), text.end(), [&](QChar c) { return isDigit(c) || c == u'.'; });
    if (text.isEmpty() || !digitsAndPoints || text.count(u'.') > 1 || !isDigit(text.front()) ||
        !isDigit(text.back())) {
        return std::nullopt;
    }
    return text.toDouble();
}

bool within(double number, Limits limits)
{
    return (number >= limits.least && number <= limits.most) || (limits.orNone && number == 0);
}

QString limitsText(Limits limits)
{
    const QString range = QStringLiteral("%1 to %2").arg(limits.least).arg(limits.most, 0, 'f', 0);
    return limits.orNone ? QStringLiteral("0 or ") + range : range;
}

bool isTurretColumn(const QString& column)
{
    return column.startsWith(QLatin1StringView("tur_"));
}

/// Why a text is no name, or nothing. A name becomes a line of a quoted file, the value of a key, and in
/// capitals the name of a section.
QString nameFault(const QString& name, qsizetype longest)
{
    if (name.isEmpty()) {
        return QStringLiteral("is empty");
    }
    if (name.size() > longest) {
        return QStringLiteral("\"%1\" is longer than %2 characters").arg(name).arg(longest);
    }
    if (name.trimmed() != name) {
        return QStringLiteral("\"%1\" begins or ends with a blank").arg(name);
    }
    const auto forbidden = [](QChar c) { return !c.isPrint() || QStringLiteral("\",=[];").contains(c); };
    if (std::any_of(name.begin(), name.end(), forbidden) || name.startsWith(u'\'')) {
        return QStringLiteral("\"%1\" has a character that a scenario can't carry in a name").arg(name);
    }
    for (const QString& text : {name, name.toUpper()}) {
        if (fromCodePage(toCodePage(text)) != text) {
            return QStringLiteral("\"%1\" has a character outside Windows-1252").arg(name);
        }
    }
    const QString capitals = name.toUpper();
    if (capitals == QLatin1StringView("NO SHIP") || capitals == QLatin1StringView("INVALID")) {
        return QStringLiteral("\"%1\" means in a scenario that there is none").arg(name);
    }
    return {};
}

} // namespace

bool hasColumns(const CsvTable& table, const QStringList& expected, Faults& faults)
{
    bool right = true;
    const auto fault = [&](const QString& reason) {
        right = false;
        faults.add(table.file, 1, reason);
    };
    for (const QString& column : expected) {
        const auto found = table.columns.count(column);
        if (found == 0) {
            fault(QStringLiteral("the column \"%1\" is missing").arg(column));
        } else if (found > 1) {
            fault(QStringLiteral("the column \"%1\" is there twice").arg(column));
        }
    }
    for (const QString& column : table.columns) {
        if (!expected.contains(column)) {
            fault(isTurretColumn(column)
                      ? QStringLiteral("there is no turret of the letter of column \"%1\"").arg(column)
                      : QStringLiteral("the column \"%1\" is unknown").arg(column));
        }
    }
    return right;
}

QString RowReader::text(const QString& column) const
{
    return m_row.fields.at(m_table.columns.indexOf(column));
}

QString RowReader::name(const QString& column, qsizetype longest) const
{
    QString name = text(column);
    const QString reason = nameFault(name, longest);
    if (!reason.isEmpty()) {
        fault(QStringLiteral("%1 %2").arg(column, reason));
    }
    return name;
}

QString RowReader::word(const QString& column, const std::vector<QString>& words) const
{
    QString word = text(column);
    if (std::find(words.begin(), words.end(), word) == words.end()) {
        fault(QStringLiteral("unknown %1 \"%2\"").arg(column, word));
    }
    return word;
}

int RowReader::whole(const QString& column, Limits limits) const
{
    const double number = decimal(column, limits);
    if (number != std::floor(number)) {
        fault(QStringLiteral("%1 \"%2\" is no whole number").arg(column, text(column)));
    }
    return static_cast<int>(number);
}

double RowReader::decimal(const QString& column, Limits limits) const
{
    const std::optional<double> number = plainNumber(text(column));
    if (!number) {
        fault(QStringLiteral("%1 \"%2\" is no number").arg(column, text(column)));
        return 0;
    }
    if (!within(*number, limits)) {
        fault(QStringLiteral("%1 %2 is out of range (%3)").arg(column, text(column), limitsText(limits)));
        return 0;
    }
    return *number;
}

} // namespace torvane
