#include "store/data_controls.h"

#include "platform/runtime_error.h"
#include "store/working_tables.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace torvane {

namespace {

/// What can be wrong with a database file. The positive values are SQLite's primary result codes.
enum Trouble {
    Missing = -1,
    IsFolder = -2,
    Unreadable = -3,
    Unwritable = -4,
    ExistsAlready = -5,
    NoDriver = -6,
    Other = -7,
    Busy = 5,
    Locked = 6,
    ReadOnlyFile = 8,
    ReadWriteFailed = 10,
    Damaged = 11,
    Full = 13,
    NoDatabase = 26,
};

struct TroubleText
{
    Trouble trouble;
    RuntimeError::Number number;
    const char* text; ///< %1 is the full path
};

constexpr const char* inUse = "%1 is in use by another program. Close that program and try again.";
constexpr const char* notWritable =
    "%1 is read-only. Give yourself the right to change the file and its folder.";

constexpr std::array<TroubleText, 14> troubleTexts{{
    {Missing, RuntimeError::FileNotFound, "%1 is missing. Put the file back or install the editor again."},
    {IsFolder, RuntimeError::PathAccessError,
     "%1 is a folder, not a database. Move it away and put the file back or install the editor again."},
    {Unreadable, RuntimeError::PermissionDenied,
     "%1 can't be opened. Give yourself the right to read the file and its folder."},
    {Unwritable, RuntimeError::PermissionDenied, notWritable},
    {ExistsAlready, RuntimeError::PathAccessError, "%1 exists already. Move it away and try again."},
    {NoDriver, RuntimeError::DatabaseFailure,
     "%1 can't be opened, because Qt's SQLite driver is not installed. Install it and start again."},
    {Busy, RuntimeError::DatabaseFailure, inUse},
    {Locked, RuntimeError::DatabaseFailure, inUse},
    {ReadOnlyFile, RuntimeError::PermissionDenied, notWritable},
    {ReadWriteFailed, RuntimeError::DeviceIoError, "%1 can't be read or written. Check the disk."},
    {Damaged, RuntimeError::DatabaseFailure,
     "%1 is damaged. Put a sound copy in its place or install the editor again."},
    {Full, RuntimeError::DiskFull, "%1 can't grow, because the disk is full. Make room and try again."},
    {NoDatabase, RuntimeError::DatabaseFailure,
     "%1 is not a database. Put a sound copy in its place or install the editor again."},
    {Other, RuntimeError::DatabaseFailure,
     "%1 can't be used. Start the editor again; if that doesn't help, install it again."},
}};

[[noreturn]] void raise(int trouble, const QString& path, const QString& detail = QString())
{
    const auto* const found = std::find_if(troubleTexts.begin(), troubleTexts.end(),
                                           [trouble](const TroubleText& t) { return t.trouble == trouble; });
    const TroubleText& entry = found == troubleTexts.end() ? troubleTexts.back() : *found;
    const QString text = QString::fromLatin1(entry.text).arg(path);
    throw RuntimeError(entry.number, detail.isEmpty() ? text : text + QStringLiteral(" (%1)").arg(detail));
}

/// Whether this process may read or write a file. Asks without opening it: closing a file drops every lock
/// that the process holds on it, also those of another connection.
bool isAllowed(const QString& path, int mode)
{
    return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), mode, AT_EACCESS) == 0;
}

void requireUsableFile(const QString& path, bool forWriting)
{
    errno = 0;
    if (!isAllowed(path, F_OK)) {
        raise(errno == EACCES ? Unreadable : Missing, path);
    }
    const QFileInfo file(path);
    if (file.isDir()) {
        raise(IsFolder, path);
    }
    if (!isAllowed(path, R_OK)) {
        raise(Unreadable, path);
    }
    if (forWriting && !isAllowed(path, W_OK)) {
        raise(Unwritable, path);
    }
    // SQLite takes a file without a byte for a new database.
    if (file.size() == 0) {
        raise(NoDatabase, path);
    }
}

/// Whether the file is in write-ahead mode and nobody has it open. A reader would leave a log beside it.
/// Opens the file itself, which drops no lock: no connection of this process is open between two uses of a
/// database.
bool isRestingInWriteAheadMode(const QString& path)
{
    constexpr int modeAt = 19;
    constexpr char writeAhead = 2;
    QFile file(path);
    return !QFile::exists(path + QStringLiteral("-wal")) && file.open(QIODevice::ReadOnly) &&
           file.read(modeAt + 1).endsWith(writeAhead);
}

/// The file as an address, which unlike a plain path can say that it must not be made.
QString addressOf(const QString& path, Database::Access access)
{
    const auto mode = [&] {
        switch (access) {
        case Database::Access::ReadOnly:
            return isRestingInWriteAheadMode(path) ? "?mode=ro&immutable=1" : "?mode=ro";
        case Database::Access::ReadWrite:
            return "?mode=rw";
        case Database::Access::Create:
            break;
        }
        return "?mode=rwc";
    };
    return QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded()) + QLatin1StringView(mode());
}

std::vector<DataControl> unboundControls()
{
    std::vector<DataControl> controls;
    for (const char* name : {"gunTable", "GunsRang", "ShipDataB", "ShipDaClass"}) {
        controls.push_back({QLatin1StringView(name), shipDatabaseFile, QString()});
    }
    for (const QLatin1StringView table : workingTables) {
        controls.push_back({table, scenarioDataFile, QString()});
    }
    return controls;
}

QString newConnectionName()
{
    static std::atomic<quint64> count = 0;
    return QStringLiteral("torvane-database-%1").arg(++count);
}

} // namespace

DataControls::DataControls() : m_controls(unboundControls()) {}

void DataControls::bind(const QString& workDir)
{
    const QString folder = workDir.endsWith(u'/') ? workDir : workDir + u'/';
    for (DataControl& control : m_controls) {
        control.databaseName = folder + control.databaseFile;
    }
}

const DataControl& DataControls::control(QLatin1StringView name) const
{
    const auto found = std::find_if(m_controls.begin(), m_controls.end(),
                                    [name](const DataControl& control) { return control.name == name; });
    if (found == m_controls.end()) {
        throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                           QStringLiteral("There is no data control %1.").arg(name));
    }
    return *found;
}

Database::Database(const QString& path)
    : m_path(QFileInfo(path).absoluteFilePath()),
      m_connectionName(newConnectionName()),
      m_database(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName))
{
}

// The other constructor has run when this one throws, so that the destructor takes the connection back.
Database::Database(const QString& path, Access access) : Database(path)
{
    open(access);
}

Database::~Database()
{
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_connectionName);
}

void Database::open(Access access)
{
    if (!m_database.isValid()) {
        raise(NoDriver, m_path);
    }
    if (access != Access::Create) {
        requireUsableFile(m_path, access == Access::ReadWrite);
    } else if (QFileInfo::exists(m_path)) {
        raise(ExistsAlready, m_path);
    }
    QString options = QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=250");
    if (access == Access::ReadOnly) {
        options += QStringLiteral(";QSQLITE_OPEN_READONLY");
    }
    m_database.setConnectOptions(options);
    m_database.setDatabaseName(addressOf(m_path, access));
    if (!m_database.open()) {
        fail(QString(), m_database.lastError());
    }
    // Opening reads nothing yet; this does, and shows a lock and what is no database.
    execute(QStringLiteral("SELECT count(*) FROM sqlite_master"));
}

void Database::execute(const QString& statement, const QString& table)
{
    QSqlQuery query(m_database);
    if (!query.exec(statement)) {
        fail(table, query.lastError());
    }
}

bool Database::hasTable(const QString& table) const
{
    QSqlQuery query(m_database);
    const bool done = query.prepare(QStringLiteral(
        "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE"));
    query.addBindValue(table);
    if (!done || !query.exec() || !query.next()) {
        fail(table, query.lastError());
    }
    return query.value(0).toInt() > 0;
}

void Database::fail(const QString& table, const QSqlError& error) const
{
    constexpr int primaryCode = 0xFF;
    const int code = error.nativeErrorCode().toInt() & primaryCode;
    const QString reason = error.databaseText().isEmpty() ? error.text() : error.databaseText();
    const QString detail = table.isEmpty() ? reason : QStringLiteral("table %1: %2").arg(table, reason);
    raise(code, m_path, detail);
}

} // namespace torvane
