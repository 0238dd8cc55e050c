#pragma once

#include <QLatin1StringView>
#include <QSqlDatabase>
#include <QString>

#include <vector>

namespace torvane {

inline constexpr QLatin1StringView shipDatabaseFile{"ShipDatabase.mdb"};
inline constexpr QLatin1StringView scenarioDataFile{"ScenarioData.mdb"};

/// A record-source control: bound to the table of its own name, given its database file at start-up, opened
/// when it is first needed.
struct DataControl
{
    QLatin1StringView name;
    QLatin1StringView databaseFile;
    QString databaseName; ///< full path, empty until start-up supplies it
};

/// The fifteen data controls in the order in which start-up binds them.
class DataControls
{
public:
    DataControls();

    /// Gives every control the path of its database file in the work folder. Opens nothing.
    void bind(const QString& workDir);

    const std::vector<DataControl>& controls() const { return m_controls; }
    /// Throws RuntimeError if there is none of that name.
    const DataControl& control(QLatin1StringView name) const;

private:
    std::vector<DataControl> m_controls;
};

/// An open database file (SQLite under the name the game folder gives it), closed with the object. Leaves no
/// files beside it.
class Database
{
public:
    enum class Access {
        ReadOnly,
        ReadWrite,
        Create, ///< a new file; there must be none of that name
    };

    /// Throws RuntimeError, naming the file and what to do, if it is missing, unreadable, in use by another
    /// program, or no database.
    Database(const QString& path, Access access);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// For queries, which must not outlive this object.
    QSqlDatabase& connection() { return m_database; }

    /// Runs one statement. Throws RuntimeError, naming the file and the table that it is about.
    void execute(const QString& statement, const QString& table = QString());

    /// Whether there is a table of that name; upper and lower case are alike.
    bool hasTable(const QString& table) const;

    /// Throws the RuntimeError for a failed query on this file.
    [[noreturn]] void fail(const QString& table, const QSqlError& error) const;

private:
    explicit Database(const QString& path);
    void open(Access access);

    QString m_path;
    QString m_connectionName;
    QSqlDatabase m_database;
};

} // namespace torvane
