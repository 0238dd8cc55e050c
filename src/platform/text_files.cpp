#include "platform/text_files.h"

#include "platform/runtime_error.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace torvane {

namespace {

/// An open file of the system, closed with the object.
class Descriptor
{
public:
    explicit Descriptor(int handle) : m_handle(handle) {}
    ~Descriptor()
    {
        if (m_handle >= 0) {
            ::close(m_handle);
        }
    }
    Descriptor(Descriptor&& other) noexcept : m_handle(std::exchange(other.m_handle, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return m_handle >= 0; }
    int handle() const { return m_handle; }

    /// Closes now; false, with errno set, if what was written could not be stored.
    bool close()
    {
        const int handle = m_handle;
        m_handle = -1;
        return ::close(handle) == 0;
    }

private:
    int m_handle;
};

/// The system's form of a path. One with a zero byte would name another file than it says.
QByteArray systemPath(const QString& path)
{
    if (path.contains(QChar::Null)) {
        throw fileError(path, EINVAL);
    }
    return QFile::encodeName(path);
}

/// As `fileError`, for a failure in a folder: a missing folder is a path that was not found.
RuntimeError folderError(const QString& path, int systemError)
{
    const RuntimeError error = fileError(path, systemError);
    return systemError == ENOENT ? RuntimeError(RuntimeError::PathNotFound, error.text()) : error;
}

QByteArray readAll(const Descriptor& file, const QString& path)
{
    QByteArray bytes;
    std::array<char, 65536> block{};
    for (;;) {
        const ssize_t count = ::read(file.handle(), block.data(), block.size());
        if (count == 0) {
            return bytes;
        }
        if (count < 0 && errno != EINTR) {
            throw fileError(path, errno);
        }
        bytes.append(block.data(), std::max<ssize_t>(count, 0));
    }
}

void writeAll(const Descriptor& file, const QString& path, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t count = ::write(file.handle(), bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (count < 0 && errno != EINTR) {
            throw fileError(path, errno);
        }
        bytes = bytes.sliced(std::max<ssize_t>(count, 0));
    }
}

/// The error of a QSaveFile that has just failed. It keeps no errno, so `systemError` is the one caught right
/// behind the call, or 0 if the call failed by a check of its own.
RuntimeError saveError(const QSaveFile& file, int systemError)
{
    if (QFileInfo(file.fileName()).isDir()) {
        return fileError(file.fileName(), EISDIR);
    }
    if (systemError != 0) {
        return folderError(file.fileName(), systemError);
    }
    const bool refused = file.error() == QFileDevice::WriteError || file.error() == QFileDevice::OpenError ||
                         file.error() == QFileDevice::PermissionsError;
    return {refused ? RuntimeError::PermissionDenied : RuntimeError::DeviceIoError,
            file.fileName() + QStringLiteral(": ") + file.errorString()};
}

/// File systems that can't sync say so with these; there is nothing more to do on them.
bool isSyncUnsupported(int systemError)
{
    return systemError == EINVAL || systemError == ENOTSUP || systemError == ENOSYS;
}

bool syncHandle(int handle)
{
    return ::fsync(handle) == 0 || isSyncUnsupported(errno);
}

void syncFolderOf(const QString& path)
{
    const QString folder = QFileInfo(QFileInfo(path).canonicalFilePath()).path();
    const Descriptor descriptor(::open(systemPath(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that may be written but not listed can't be opened; the file is in place all the same.
    if (descriptor.isOpen() && !syncHandle(descriptor.handle())) {
        throw fileError(folder, errno);
    }
}

/// Of a new file, before the user's mask.
constexpr mode_t usualRights = 0666;

} // namespace

QByteArray readWholeFile(const QString& path)
{
    // Without O_NONBLOCK a pipe of that name would hold up the program.
    const Descriptor file(::open(systemPath(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (!file.isOpen() || ::fstat(file.handle(), &status) != 0) {
        throw fileError(path, errno);
    }
    if (!S_ISREG(status.st_mode)) {
        throw fileError(path, S_ISDIR(status.st_mode) ? EISDIR : ENODEV);
    }
    return readAll(file, path);
}

void writeWholeFile(const QString& path, QByteArrayView bytes)
{
    systemPath(path);
    QSaveFile file(path);
    const auto check = [&file](bool done) {
        if (!done) {
            throw saveError(file, errno);
        }
    };
    errno = 0;
    check(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    errno = 0;
    check(file.write(bytes.data(), bytes.size()) == bytes.size());
    // QSaveFile syncs too, but doesn't say whether that failed.
    check(syncHandle(file.handle()));
    errno = 0;
    check(file.commit());
    syncFolderOf(path);
}

namespace {

/// Opens a new file of that name or, where there is one already, a new one beside it and puts its name into
/// `name`.
Descriptor openForScratch(QByteArray& name, const QString& path)
{
    Descriptor made(::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, usualRights));
    if (made.isOpen()) {
        return made;
    }
    if (errno != EEXIST) {
        throw folderError(path, errno);
    }
    name += ".XXXXXX";
    Descriptor beside(::mkostemp(name.data(), O_CLOEXEC));
    if (!beside.isOpen()) {
        throw folderError(path, errno);
    }
    // Made for its owner alone; it gets the rights of any other file.
    const mode_t mask = ::umask(0);
    ::umask(mask);
    if (::fchmod(beside.handle(), usualRights & ~mask) != 0) {
        const int failure = errno;
        ::unlink(name.constData());
        throw fileError(path, failure);
    }
    return beside;
}

} // namespace

void writeScratchFile(const QString& path, QByteArrayView bytes)
{
    const QByteArray target = systemPath(path);
    QByteArray name = target;
    Descriptor file = openForScratch(name, path);
    try {
        writeAll(file, path, bytes);
        if (!file.close() || (name != target && ::rename(name.constData(), target.constData()) != 0)) {
            throw fileError(path, errno);
        }
    } catch (const RuntimeError&) {
        ::unlink(name.constData());
        throw;
    }
}

void deleteFile(const QString& path)
{
    if (::unlink(systemPath(path).constData()) != 0 && errno != ENOENT && errno != ENOTDIR) {
        throw fileError(path, errno);
    }
}

void renameFile(const QString& path, const QString& newPath)
{
    if (::rename(systemPath(path).constData(), systemPath(newPath).constData()) != 0) {
        throw fileError(path, errno);
    }
}

void requireWritableFolder(const QString& folder)
{
    // A file that really lies there shows what permissions alone don't: a full disk, a quota, a read-only
    // mount. Its name is gone before anything is written.
    QByteArray name = systemPath(folder) + "/.torvane-XXXXXX";
    if (folder.isEmpty()) {
        throw folderError(folder, ENOENT);
    }
    Descriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file.isOpen()) {
        throw folderError(folder, errno);
    }
    const bool unlinked = ::unlink(name.constData()) == 0;
    constexpr std::array<char, 4096> block{};
    errno = 0;
    const ssize_t written = ::write(file.handle(), block.data(), block.size());
    if (!unlinked || written < 0 || !syncHandle(file.handle()) || !file.close()) {
        throw folderError(folder, errno);
    }
    if (written < static_cast<ssize_t>(block.size())) {
        throw folderError(folder, ENOSPC);
    }
}

} // namespace torvane
