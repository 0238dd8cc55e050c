#include "launcher/game_folder.h"

#include "platform/runtime_error.h"
#include "platform/text_files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>

#include <optional>

namespace torvane {

namespace {

constexpr QLatin1StringView recordName{".delivered"};

/// Sums of the files as they were delivered, by their names below the folder.
using Record = QMap<QString, QByteArray>;

QByteArray sumOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

// As the system's own tools for such sums write them.
Record readRecord(const QString& path)
{
    Record record;
    if (!QFileInfo::exists(path)) {
        return record;
    }
    for (const QByteArray& line : readWholeFile(path).split('\n')) {
        const qsizetype at = line.indexOf("  ");
        if (at > 0) {
            record.insert(QString::fromUtf8(line.sliced(at + 2)), line.first(at));
        }
    }
    return record;
}

void writeRecord(const QString& path, const Record& record)
{
    QByteArray bytes;
    for (auto row = record.begin(); row != record.end(); ++row) {
        bytes += row.value() + "  " + row.key().toUtf8() + '\n';
    }
    writeWholeFile(path, bytes);
}

QStringList filesBelow(const QString& package)
{
    QStringList names;
    QDirIterator files(package, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names.append(QDir(package).relativeFilePath(files.next()));
    }
    names.sort();
    return names;
}

bool isProgram(const QString& name)
{
    return name == editorProgram(Language::German) || name == editorProgram(Language::English);
}

bool isScenario(const QString& name)
{
    return name.startsWith(u"Scenarios/");
}

/// What lies in the folder; nothing if there is no such file.
std::optional<QByteArray> presentBytes(const QString& path)
{
    return isThere(path) ? std::optional(readWholeFile(path)) : std::nullopt;
}

/// Whether the file of the folder is to become that of the package.
bool isDue(const QString& name, const std::optional<QByteArray>& present, const QByteArray& delivered)
{
    if (!present) {
        return delivered.isEmpty() || !isScenario(name);
    }
    return isProgram(name) || sumOf(*present) == delivered;
}

void deliver(const QByteArray& bytes, const QString& path)
{
    QDir().mkpath(QFileInfo(path).path());
    writeWholeFile(path, bytes);
}

/// The owner may read, write and, if it is a program, start the file. Asked at each start: the one that
/// brought the file may have been killed before it came to that.
void giveRights(const QString& path, bool program)
{
    const QFile::Permissions present = QFile::permissions(path);
    const QFile::Permissions owner = QFile::ReadOwner | QFile::WriteOwner;
    const QFile::Permissions wanted = present | (program ? owner | QFile::ExeOwner : owner);
    if (wanted != present && !QFile::setPermissions(path, wanted)) {
        throw RuntimeError(RuntimeError::PermissionDenied, path);
    }
}

} // namespace

QString editorProgram(Language language)
{
    return language == Language::German ? QStringLiteral("TorvaneScenarioEditor")
                                        : QStringLiteral("TorvaneScenarioEditor-English");
}

bool refreshGameFolder(const QString& package, const QString& folder)
{
    const QDir target(folder);
    const QString recordPath = target.filePath(recordName);
    const bool isNew = !QFileInfo::exists(recordPath);
    Record record = readRecord(recordPath);
    const QStringList names = filesBelow(package);
    if (names.isEmpty()) {
        throw RuntimeError(RuntimeError::PathNotFound, package);
    }
    for (const QString& name : names) {
        const QString path = target.filePath(name);
        const QByteArray bytes = readWholeFile(QDir(package).filePath(name));
        const std::optional<QByteArray> present = presentBytes(path);
        if (!isDue(name, present, record.value(name))) {
            continue;
        }
        if (present != bytes) {
            deliver(bytes, path);
        }
        giveRights(path, isProgram(name));
        record.insert(name, sumOf(bytes));
    }
    QDir().mkpath(target.filePath(QStringLiteral("Scenarios")));
    writeRecord(recordPath, record);
    return isNew;
}

} // namespace torvane
