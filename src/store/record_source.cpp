#include "store/record_source.h"

#include "platform/number_text.h"
#include "platform/runtime_error.h"

#include <QFileInfo>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

namespace torvane {

namespace {

constexpr const char* remedy = " Put a sound copy in its place or install the editor again.";

QStringList namesOf(const QSqlRecord& record)
{
    QStringList names;
    for (int i = 0; i < record.count(); ++i) {
        names.append(record.fieldName(i));
    }
    return names;
}

/// Prepares the query of all rows in stored order, which is that of the row numbers. A column may take one of
/// their names away; a table made without them is stored in the order of its key, and read so.
bool prepareStoredOrder(QSqlQuery& query, const QString& table, const QStringList& fields)
{
    const QString all = QStringLiteral("SELECT * FROM %1 ").arg(table);
    for (const char* rowNumber : {"rowid", "_rowid_", "oid"}) {
        const QLatin1StringView name(rowNumber);
        if (!fields.contains(name, Qt::CaseInsensitive) &&
            query.prepare(all + QStringLiteral("ORDER BY ") + name)) {
            return true;
        }
    }
    return query.prepare(all);
}

QString cellText(const QVariant& value)
{
    const bool isReal = value.userType() == QMetaType::Double;
    return isReal ? textOf(value.toDouble()) : value.toString().trimmed();
}

} // namespace

RecordSource::RecordSource(const DataControl& control)
    : m_table(control.name), m_path(QFileInfo(control.databaseName).absoluteFilePath())
{
    Database database(m_path, Database::Access::ReadOnly);
    if (!database.hasTable(m_table)) {
        throw RuntimeError(RuntimeError::DatabaseFailure,
                           QStringLiteral("%1 has no table %2.").arg(m_path, m_table) +
                               QLatin1StringView(remedy));
    }
    load(database);
}

void RecordSource::load(Database& database)
{
    const QSqlDriver* const driver = database.connection().driver();
    const QString name = driver->escapeIdentifier(m_table, QSqlDriver::TableName);
    QSqlQuery query(database.connection());
    query.setForwardOnly(true);
    const QStringList columns = namesOf(database.connection().record(m_table));
    if (!prepareStoredOrder(query, name, columns) || !query.exec()) {
        database.fail(m_table, query.lastError());
    }
    m_fields = namesOf(query.record());
    while (query.next()) {
        for (int i = 0; i < m_fields.size(); ++i) {
            m_cells.push_back(cellText(query.value(i)));
        }
        ++m_rows;
    }
    if (query.lastError().isValid()) {
        database.fail(m_table, query.lastError());
    }
}

void RecordSource::MoveFirst()
{
    m_row = 0;
    m_missed.clear();
}

void RecordSource::MoveNext()
{
    if (isEOF()) {
        throw RuntimeError(RuntimeError::NoCurrentRecord, place());
    }
    ++m_row;
}

const QString& RecordSource::value(QStringView field) const
{
    const qsizetype at = column(field);
    if (isEOF()) {
        throw RuntimeError(RuntimeError::NoCurrentRecord, place());
    }
    return cell(m_row, at);
}

bool RecordSource::findFirst(QStringView field, const QString& value)
{
    MoveFirst();
    const qsizetype at = column(field);
    const auto [index, isNew] = m_firstRows.try_emplace(at);
    if (isNew) {
        index->second.reserve(m_rows);
        for (qsizetype row = m_rows - 1; row >= 0; --row) {
            index->second.insert(cell(row, at), row); // backwards, so that the first row of a value stays
        }
    }
    m_row = index->second.value(value, m_rows);
    if (isEOF()) {
        m_missed = QStringLiteral("%1 \"%2\"").arg(m_fields[at], value);
    }
    return !isEOF();
}

qsizetype RecordSource::column(QStringView field) const
{
    for (qsizetype i = 0; i < m_fields.size(); ++i) {
        if (field.compare(m_fields[i], Qt::CaseInsensitive) == 0) {
            return i;
        }
    }
    throw RuntimeError(
        RuntimeError::DatabaseFailure,
        QStringLiteral("%1 has no field %2 in its table %3.").arg(m_path, field.toString(), m_table) +
            QLatin1StringView(remedy));
}

const QString& RecordSource::cell(qsizetype row, qsizetype column) const
{
    return m_cells[static_cast<std::size_t>(row * m_fields.size() + column)];
}

/// What is missing where, for an error at the end.
QString RecordSource::place() const
{
    return m_missed.isEmpty()
               ? QStringLiteral("There is no further row in table %1 of %2.").arg(m_table, m_path)
               : QStringLiteral("There is no %1 in table %2 of %3.").arg(m_missed, m_table, m_path);
}

} // namespace torvane
