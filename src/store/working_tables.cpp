#include "store/working_tables.h"

#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "store/data_controls.h"

#include <QTemporaryDir>

#include <algorithm>

namespace torvane {

namespace {

using Name = QLatin1StringView;

constexpr std::array<Name, 8> emptiedTables{Name{"ScenarioData"}, Name{"OverviewData"}, Name{"ScenarioTemp"},
                                            Name{"ForceAData"},   Name{"ForceBData"},   Name{"ShipPositions"},
                                            Name{"SaveData"},     Name{"EditShipData"}};

constexpr std::array<Name, 6> lineTables{Name{"ScenarioData"}, Name{"OverviewData"}, Name{"ScenarioTemp"},
                                         Name{"ForceAData"},   Name{"ForceBData"},   Name{"SaveData"}};

QString columnsOf(Name table)
{
    if (std::find(lineTables.begin(), lineTables.end(), table) != lineTables.end()) {
        return QStringLiteral("\"Variable\" TEXT, \"Data\" TEXT");
    }
    if (table == Name("ShipPositions")) {
        return QStringLiteral("\"Division\" INTEGER, \"Ship\" INTEGER, \"XPosition\" REAL, "
                              "\"ZPosition\" REAL, \"Data\" TEXT");
    }
    return QStringLiteral("\"Data\" TEXT");
}

void keepJournalInMemory(Database& database)
{
    // A journal on disk would be one more file in the work folder if the program ends halfway.
    database.execute(QStringLiteral("PRAGMA journal_mode = MEMORY"));
}

void makeTables(const QString& path)
{
    Database database(path, Database::Access::Create);
    keepJournalInMemory(database);
    database.execute(QStringLiteral("BEGIN"));
    for (const Name table : workingTables) {
        database.execute(QStringLiteral("CREATE TABLE \"%1\" (%2)").arg(table, columnsOf(table)), table);
    }
    database.execute(QStringLiteral("COMMIT"));
}

} // namespace

void placeDatabase(const QString& path, const std::function<void(const QString& made)>& make)
{
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        throw RuntimeError(RuntimeError::PathAccessError,
                           folder.path() + QStringLiteral(": ") + folder.errorString());
    }
    const QString made = folder.filePath(QStringLiteral("database"));
    make(made);
    const QByteArray bytes = readWholeFile(made);
    // Left behind by the old file, these would be played into the new one.
    for (const char* ending : {"-journal", "-wal", "-shm"}) {
        deleteFile(path + QLatin1StringView(ending));
    }
    writeWholeFile(path, bytes);
}

void createWorkingTables(const QString& path)
{
    placeDatabase(path, makeTables);
}

void emptyDBase(const QString& path)
{
    Database database(path, Database::Access::ReadWrite);
    keepJournalInMemory(database);
    database.execute(QStringLiteral("BEGIN IMMEDIATE"));
    for (const Name table : emptiedTables) {
        database.execute(QStringLiteral("DELETE FROM \"%1\"").arg(table), table);
    }
    database.execute(QStringLiteral("COMMIT"));
}

} // namespace torvane
