#pragma once

#include "store/data_controls.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <map>
#include <vector>

namespace torvane {

/// What a record-source control offers over its table: one current row and a forward walk. The rows are read
/// once, in stored order, and kept; all values are text without surrounding blanks, NULL is the empty text.
/// Field names compare without regard to case, values exactly.
class RecordSource
{
public:
    /// Reads the table of the control's name and stands on its first row. Throws RuntimeError, naming the
    /// file, if it can't be read, and the table too if the file has none of that name.
    explicit RecordSource(const DataControl& control);

    void MoveFirst();
    /// Throws NoCurrentRecord at the end.
    void MoveNext();
    /// The `EOF` and `BOF` of the control, under names that are no macros. A walk never goes before the first
    /// row, so that only an empty table is at its start, and at its end too.
    bool isEOF() const { return m_row == m_rows; }
    bool isBOF() const { return m_rows == 0; }

    /// The current row's field. Throws DatabaseFailure for a field that the table lacks, NoCurrentRecord at
    /// the end. The reference lives as long as the control.
    const QString& value(QStringView field) const;

    /// `MoveFirst` and a walk to the first row with that value, without the walk: leaves that row current and
    /// returns true, or leaves the control at its end. Throws DatabaseFailure as `value` does.
    bool findFirst(QStringView field, const QString& value);

private:
    void load(Database& database);
    qsizetype column(QStringView field) const;
    const QString& cell(qsizetype row, qsizetype column) const;
    QString place() const;

    QString m_table;
    QString m_path;
    QStringList m_fields;
    std::vector<QString> m_cells; ///< row by row
    qsizetype m_rows = 0;
    qsizetype m_row = 0;
    QString m_missed; ///< the look-up that led to the end, for the error that follows
    std::map<qsizetype, QHash<QString, qsizetype>> m_firstRows; ///< by column, made when first needed
};

} // namespace torvane
