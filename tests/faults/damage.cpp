#include "faults/damage.h"

#include <QDir>
#include <QFile>

namespace torvane::testing {

static bool overwrite(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.exists() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

static bool replace(const QString& path, const QString& by)
{
    const QString beside = path + QStringLiteral(".new");
    return QFile::copy(by, beside) && QFile::remove(path) && QFile::rename(beside, path);
}

bool damage(const QString& folder, const QString& what)
{
    const QString work = folder + QStringLiteral("/ScenarioEditor");
    const QString catalogue = work + QStringLiteral("/ShipDatabase.mdb");
    if (what == QStringLiteral("catalogue replaced")) {
        return replace(catalogue, folder + QStringLiteral(".other.mdb"));
    }
    if (what == QStringLiteral("catalogue overwritten")) {
        return overwrite(catalogue, QByteArray(20000, '\xA5'));
    }
    if (what == QStringLiteral("catalogue emptied")) {
        return overwrite(catalogue, QByteArray());
    }
    if (what == QStringLiteral("catalogue cut")) {
        QFile file(catalogue);
        return file.exists() && file.resize(file.size() / 2);
    }
    if (what == QStringLiteral("catalogue deleted")) {
        return QFile::remove(catalogue);
    }
    if (what == QStringLiteral("work folder removed")) {
        return QDir(work).exists() && QDir(work).removeRecursively();
    }
    QDir scenarios(folder + QStringLiteral("/Scenarios"));
    return what == QStringLiteral("scenarios removed") && scenarios.exists() && scenarios.removeRecursively();
}

} // namespace torvane::testing
