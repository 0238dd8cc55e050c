#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <gmock/gmock.h>

namespace torvane::testing {

/// A database file opened past the program's own code, as another program would.
class RawDatabase
{
public:
    explicit RawDatabase(const QString& path)
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        EXPECT_TRUE(database.open()) << database.lastError().text().toStdString();
    }
    ~RawDatabase()
    {
        QSqlDatabase::database(connection, false).close();
        QSqlDatabase::removeDatabase(connection);
    }
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    /// Runs a statement and gives the first column of its rows.
    QVariantList run(const QString& statement) const
    {
        QSqlQuery query(QSqlDatabase::database(connection, false));
        EXPECT_TRUE(query.exec(statement))
            << statement.toStdString() << ": " << query.lastError().text().toStdString();
        QVariantList values;
        while (query.next()) {
            values.append(query.value(0));
        }
        return values;
    }

private:
    const QString connection = QStringLiteral("another program");
};

} // namespace torvane::testing
