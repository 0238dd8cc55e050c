#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "require.h"
#include "store/data_controls.h"
#include "store/ship_catalogue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

// The input is the file of the ship catalogue. Every table is opened, walked and searched, as the editor
// does.

namespace {

using namespace torvane;

/// SQLite's driver wants an application; a work folder lies in memory, where the system has one.
struct Run
{
    int count = 1;
    char name[15] = "fuzz_catalogue";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{count, arguments};
    QTemporaryDir folder{
        (QFileInfo(QStringLiteral("/dev/shm")).isWritable() ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
        QStringLiteral("/fuzz_catalogue-XXXXXX")};
    DataControls controls;

    Run() { controls.bind(folder.path()); }
};

/// A failure must be one of those that a box can show, and name the file.
template <typename Work>
void mayFail(Work work)
{
    try {
        work();
    } catch (const RuntimeError& error) {
        require(!error.text().isEmpty());
        require(error.number() == RuntimeError::DatabaseFailure ||
                error.number() == RuntimeError::NoCurrentRecord ||
                error.number() == RuntimeError::FileNotFound ||
                error.number() == RuntimeError::PermissionDenied || error.number() == RuntimeError::Overflow);
    }
}

void walk(RecordSource& source, QStringView field)
{
    source.MoveFirst();
    require(source.isBOF() <= source.isEOF());
    while (!source.isEOF()) {
        const QString value = source.value(field);
        require(value == value.trimmed());
        source.MoveNext();
    }
    source.MoveFirst();
    if (!source.isEOF()) {
        const QString first = source.value(field);
        require(source.findFirst(field, first));
        require(source.value(field) == first);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static Run run;
    const QString path = run.folder.filePath(shipDatabaseFile);
    writeScratchFile(path, QByteArrayView(data, static_cast<qsizetype>(size)));
    ShipCatalogue catalogue(run.controls);
    mayFail([&] { walk(catalogue.ShipDataB(), u"Name"); });
    mayFail([&] { walk(catalogue.ShipDaClass(), u"b"); });
    mayFail([&] { walk(catalogue.GunsRang(), u"Class"); });
    mayFail([&] { walk(catalogue.gunTable(), u"Name"); });
    mayFail([&] { catalogue.shipToClass(QStringLiteral("Hood")); });
    mayFail([&] { catalogue.lengthUnits(QStringLiteral("Hood class")); });
    mayFail([&] { catalogue.widthUnits(QStringLiteral("Hood class")); });
    // Reading leaves nothing beside the file.
    require(QDir(run.folder.path()).entryList(QDir::Files | QDir::Hidden) == QStringList{shipDatabaseFile});
    return 0;
}
