#pragma once

#include "catalogue/faults.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace torvane {

struct CsvRow
{
    int line = 0; ///< from 1
    QStringList fields;
};

/// A file of comma-separated values with a header row.
struct CsvTable
{
    QString file;
    QStringList columns;
    std::vector<CsvRow> rows; ///< each with as many fields as there are columns
    int lines = 0;
    bool whole = true; ///< no line was dropped for a fault
};

/// Reads UTF-8 text, with or without a byte order mark, lines ended by LF or CRLF. A field may stand in
/// double quotes, a double quote in it doubled; it may not go over the end of its line, so that a forgotten
/// quote costs one line and not the rest of the file. Blank lines are skipped. A line that can't be read is a
/// fault and is dropped.
CsvTable parseCsv(const QByteArray& bytes, const QString& file, Faults& faults);

} // namespace torvane
