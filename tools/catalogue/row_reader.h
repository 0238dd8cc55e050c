#pragma once

#include "catalogue/csv_table.h"
#include "catalogue/faults.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <vector>

namespace torvane {

struct Limits
{
    double least;
    double most;
    bool orNone = false; ///< 0 is allowed besides
};

/// Whether a table has exactly these columns, in any order. Each that is missing, unknown or double is a
/// fault.
bool hasColumns(const CsvTable& table, const QStringList& expected, Faults& faults);

/// Reads the fields of one row by the names of their columns, which must exist. What is wrong with a field is
/// a fault; the reader then gives 0 or the text as it stands.
class RowReader
{
public:
    RowReader(const CsvTable& table, const CsvRow& row, Faults& faults)
        : m_table(table), m_row(row), m_faults(faults)
    {
    }

    QString text(const QString& column) const;
    /// A text that a scenario can carry as a value and as a section's name, of 1 to `longest` characters.
    QString name(const QString& column, qsizetype longest) const;
    /// One of a few words.
    QString word(const QString& column, const std::vector<QString>& words) const;
    int whole(const QString& column, Limits limits) const;
    double decimal(const QString& column, Limits limits) const;

    void fault(const QString& reason) const { m_faults.add(m_table.file, m_row.line, reason); }

private:
    const CsvTable& m_table;
    const CsvRow& m_row;
    Faults& m_faults;
};

} // namespace torvane
