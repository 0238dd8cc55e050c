#include "platform/runtime_error.h"

#include <QDir>

#include <cerrno>
#include <system_error>

namespace torvane {

RuntimeError::RuntimeError(Number number, const QString& text)
    : m_number(number), m_text(text), m_what(text.toUtf8())
{
}

static RuntimeError::Number numberForSystemError(int systemError)
{
    switch (systemError) {
    case ENOENT:
        return RuntimeError::FileNotFound;
    case ENOTDIR:
        return RuntimeError::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return RuntimeError::PermissionDenied;
    case EISDIR:
        return RuntimeError::PathAccessError;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return RuntimeError::DiskFull;
    default:
        return RuntimeError::DeviceIoError;
    }
}

RuntimeError fileError(const QString& path, int systemError)
{
    const QString reason = QString::fromStdString(std::generic_category().message(systemError));
    return RuntimeError(numberForSystemError(systemError),
                        QDir::toNativeSeparators(path) + QStringLiteral(": ") + reason);
}

} // namespace torvane
