#include "platform/system_services.h"

#include <QFileInfo>
#include <QProcess>

namespace torvane {

bool SystemProgramLauncher::open(const QString& file, const QString& parameters, const QString& directory)
{
    const QFileInfo info(file);
    if (!info.isFile() || !info.isExecutable()) {
        return false;
    }
    return QProcess::startDetached(info.absoluteFilePath(), QProcess::splitCommand(parameters), directory);
}

} // namespace torvane
