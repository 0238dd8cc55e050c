#pragma once

#include "platform/runtime_error.h"
#include "store/record_source.h"
#include "support/expect_error.h"
#include "support/printers.h"
#include "support/raw_database.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane::testing {

/// A database file of its own and record sources over it.
class RecordSourceFile : public ::testing::Test
{
protected:
    QString path() const { return m_folder.filePath("ShipDatabase.mdb"); }

    QVariantList run(const QString& statement) const { return RawDatabase(path()).run(statement); }
    void make(const QStringList& statements) const
    {
        const RawDatabase raw(path());
        for (const QString& statement : statements) {
            raw.run(statement);
        }
    }
    void makeShips(const QString& names) const
    {
        make({"CREATE TABLE ShipDataB (Name TEXT, Class TEXT)", "INSERT INTO ShipDataB VALUES " + names});
    }

    RecordSource source(const char* table = "ShipDataB") const
    {
        return RecordSource({QLatin1StringView(table), shipDatabaseFile, path()});
    }

    /// The field of all rows, by a walk.
    static QStringList column(RecordSource source, QStringView field)
    {
        QStringList values;
        for (source.MoveFirst(); !source.isEOF(); source.MoveNext()) {
            values.append(source.value(field));
        }
        return values;
    }

    std::string file() const { return path().toStdString(); }

private:
    QTemporaryDir m_folder;
};

} // namespace torvane::testing
