#include "platform/text_files.h"

#include "platform/runtime_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
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

/// The rights of a new file under the user's mask.
mode_t usualRights()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// Begins the names of files that are not yet what they will be; six characters of the system's follow.
constexpr const char* unfinishedName = ".torvane-";

/// A new file of the name with its six last characters replaced, or of an error that speaks of `path`.
Descriptor makeFile(QByteArray& name, const QString& path)
{
    Descriptor made(::mkostemp(name.data(), O_CLOEXEC));
    if (!made.isOpen()) {
        throw folderError(path, errno);
    }
    return made;
}

/// A file is made for its owner alone.
void giveRights(const Descriptor& file, mode_t rights, const QString& path)
{
    if (::fchmod(file.handle(), rights) != 0) {
        throw fileError(path, errno);
    }
}

/// What lies behind all links, so that a link to a file stays one. A path to nothing is itself.
QByteArray behindLinks(const QString& path)
{
    const QByteArray name = systemPath(path);
    if (name.isEmpty()) {
        throw folderError(path, ENOENT);
    }
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(name.constData(), nullptr), &std::free);
    if (!real && !isMissing(errno)) {
        throw fileError(path, errno);
    }
    return real ? QByteArray(real.get()) : name;
}

/// The rights that a file of that name must have once it is replaced. Throws where it can't be, or must not.
mode_t rightsOfReplaced(const QByteArray& name, const QString& path)
{
    struct stat old = {};
    if (::stat(name.constData(), &old) != 0) {
        if (!isMissing(errno)) {
            throw fileError(path, errno);
        }
        return usualRights();
    }
    if (!S_ISREG(old.st_mode)) {
        throw fileError(path, S_ISDIR(old.st_mode) ? EISDIR : ENODEV);
    }
    // The rename that puts the new file in place would not mind.
    if (::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) != 0) {
        throw fileError(path, errno);
    }
    constexpr mode_t allRights = 07777;
    return old.st_mode & allRights;
}

} // namespace

bool isMissing(int systemError)
{
    return systemError == ENOENT || systemError == ENOTDIR;
}

bool isThere(const QString& path)
{
    struct stat status = {};
    if (::stat(systemPath(path).constData(), &status) == 0) {
        return true;
    }
    if (!isMissing(errno)) {
        throw fileError(path, errno);
    }
    return false;
}

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
    const QByteArray target = behindLinks(path);
    const mode_t rights = rightsOfReplaced(target, path);
    QByteArray name = target.first(target.lastIndexOf('/') + 1) + unfinishedName + "XXXXXX";
    Descriptor file = makeFile(name, path);
    try {
        giveRights(file, rights, path);
        writeAll(file, path, bytes);
        if (!syncHandle(file.handle()) || !file.close() ||
            ::rename(name.constData(), target.constData()) != 0) {
            throw fileError(path, errno);
        }
    } catch (const RuntimeError&) {
        ::unlink(name.constData());
        throw;
    }
    syncFolderOf(path);
}

namespace {

/// Opens a new file of that name or, where there is one already, a new one beside it and puts its name into
/// `name`.
Descriptor openForScratch(QByteArray& name, const QString& path)
{
    Descriptor made(::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (made.isOpen()) {
        return made;
    }
    if (errno != EEXIST) {
        throw folderError(path, errno);
    }
    name += ".XXXXXX";
    Descriptor beside = makeFile(name, path);
    try {
        giveRights(beside, usualRights(), path);
    } catch (const RuntimeError&) {
        ::unlink(name.constData());
        throw;
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
    if (::unlink(systemPath(path).constData()) != 0 && !isMissing(errno)) {
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
    if (folder.isEmpty()) {
        throw folderError(folder, ENOENT);
    }
    QByteArray name = systemPath(folder) + '/' + unfinishedName + "XXXXXX";
    Descriptor file = makeFile(name, folder);
    // Tried twice, as nobody else would take it away before the next start.
    if (::unlink(name.constData()) != 0 && ::unlink(name.constData()) != 0) {
        throw folderError(folder, errno);
    }
    constexpr std::array<char, 4096> block{};
    errno = 0;
    const ssize_t written = ::write(file.handle(), block.data(), block.size());
    if (written < 0 || !syncHandle(file.handle()) || !file.close()) {
        throw folderError(folder, errno);
    }
    if (written < static_cast<ssize_t>(block.size())) {
        throw folderError(folder, ENOSPC);
    }
}

void removeUnfinishedFiles(const QString& folder)
{
    const QString pattern = QLatin1StringView(unfinishedName) + QStringLiteral("??????");
    for (const QString& name : QDir(folder).entryList({pattern}, QDir::Files | QDir::Hidden | QDir::System)) {
        try {
            deleteFile(folder + u'/' + name);
        } catch (const RuntimeError&) {
            // It does no harm where it is, and the next start tries again.
        }
    }
}

} // namespace torvane
