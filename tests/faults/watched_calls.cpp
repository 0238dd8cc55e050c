#include "faults/watched_calls.h"

#include <csignal>
#include <cstdarg>
#include <cstddef>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

// The functions of the C library that the program and its libraries call. The definitions of an executable
// go before those of any library, so that all calls come here first. Nothing in this file takes memory.

namespace torvane::testing {

namespace {

template <typename Function>
Function* nextOf(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// Whether an open makes a file, and takes the rights of it.
bool makesFile(int flags)
{
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
}

template <typename Call>
int done(Operation operation, const char* path, Call call)
{
    return mustFail(operation, path) ? -1 : call();
}

template <typename Call>
int opened(const char* path, int flags, Call call)
{
    const Operation operation = makesFile(flags) ? Operation::Make : Operation::Open;
    if (mustFail(operation, path)) {
        return -1;
    }
    const int file = call();
    rememberPath(file, path);
    return file;
}

/// Half of what fails to be written is on the disk nevertheless, as a disk that gets full has it.
template <typename Call>
ssize_t written(int file, std::size_t size, Call call)
{
    if (!mustFail(Operation::Write, openPath(file))) {
        return call(size);
    }
    const int error = errno;
    call(size / 2);
    if (dies()) {
        ::kill(::getpid(), SIGKILL);
    }
    errno = error;
    return -1;
}

} // namespace

} // namespace torvane::testing

using torvane::testing::Operation;

namespace faults = torvane::testing;

extern "C" {

int open(const char* path, int flags, ...)
{
    static auto* const next = faults::nextOf<int(const char*, int, ...)>("open");
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = faults::makesFile(flags) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return faults::opened(path, flags, [=] { return next(path, flags, mode); });
}

int open64(const char* path, int flags, ...)
{
    static auto* const next = faults::nextOf<int(const char*, int, ...)>("open64");
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = faults::makesFile(flags) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return faults::opened(path, flags, [=] { return next(path, flags, mode); });
}

int mkostemp(char* name, int flags)
{
    static auto* const next = faults::nextOf<int(char*, int)>("mkostemp");
    return faults::opened(name, O_CREAT, [=] { return next(name, flags); });
}

DIR* opendir(const char* path)
{
    static auto* const next = faults::nextOf<DIR*(const char*)>("opendir");
    return faults::mustFail(Operation::List, path) ? nullptr : next(path);
}

ssize_t read(int file, void* bytes, size_t size)
{
    static auto* const next = faults::nextOf<ssize_t(int, void*, size_t)>("read");
    return faults::mustFail(Operation::Read, faults::openPath(file)) ? -1 : next(file, bytes, size);
}

ssize_t pread64(int file, void* bytes, size_t size, off64_t at)
{
    static auto* const next = faults::nextOf<ssize_t(int, void*, size_t, off64_t)>("pread64");
    return faults::mustFail(Operation::Read, faults::openPath(file)) ? -1 : next(file, bytes, size, at);
}

ssize_t write(int file, const void* bytes, size_t size)
{
    static auto* const next = faults::nextOf<ssize_t(int, const void*, size_t)>("write");
    return faults::written(file, size, [=](size_t part) { return next(file, bytes, part); });
}

ssize_t pwrite64(int file, const void* bytes, size_t size, off64_t at)
{
    static auto* const next = faults::nextOf<ssize_t(int, const void*, size_t, off64_t)>("pwrite64");
    return faults::written(file, size, [=](size_t part) { return next(file, bytes, part, at); });
}

int fsync(int file)
{
    static auto* const next = faults::nextOf<int(int)>("fsync");
    return faults::done(Operation::Sync, faults::openPath(file), [=] { return next(file); });
}

int fdatasync(int file)
{
    static auto* const next = faults::nextOf<int(int)>("fdatasync");
    return faults::done(Operation::Sync, faults::openPath(file), [=] { return next(file); });
}

int close(int file)
{
    static auto* const next = faults::nextOf<int(int)>("close");
    const bool fails = faults::mustFail(Operation::Close, faults::openPath(file));
    faults::forgetPath(file);
    // The system closes a file also where it says that it could not.
    const int error = errno;
    const int result = next(file);
    errno = fails ? error : errno;
    return fails ? -1 : result;
}

int rename(const char* from, const char* to) noexcept
{
    static auto* const next = faults::nextOf<int(const char*, const char*)>("rename");
    return faults::done(Operation::Rename, to, [=] { return next(from, to); });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept
{
    static auto* const next = faults::nextOf<int(int, const char*, int, const char*, unsigned)>("renameat2");
    return faults::done(Operation::Rename, to, [=] { return next(fromFolder, from, toFolder, to, flags); });
}

int link(const char* from, const char* to) noexcept
{
    static auto* const next = faults::nextOf<int(const char*, const char*)>("link");
    return faults::done(Operation::Rename, to, [=] { return next(from, to); });
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    static auto* const next = faults::nextOf<int(int, const char*, int, const char*, int)>("linkat");
    return faults::done(Operation::Rename, to, [=] { return next(fromFolder, from, toFolder, to, flags); });
}

int unlink(const char* path) noexcept
{
    static auto* const next = faults::nextOf<int(const char*)>("unlink");
    return faults::done(Operation::Delete, path, [=] { return next(path); });
}

int ftruncate64(int file, off64_t size) noexcept
{
    static auto* const next = faults::nextOf<int(int, off64_t)>("ftruncate64");
    return faults::done(Operation::Cut, faults::openPath(file), [=] { return next(file, size); });
}

int chmod(const char* path, mode_t mode) noexcept
{
    static auto* const next = faults::nextOf<int(const char*, mode_t)>("chmod");
    return faults::done(Operation::Rights, path, [=] { return next(path, mode); });
}

int fchmod(int file, mode_t mode) noexcept
{
    static auto* const next = faults::nextOf<int(int, mode_t)>("fchmod");
    return faults::done(Operation::Rights, faults::openPath(file), [=] { return next(file, mode); });
}

int flock(int file, int operation) noexcept
{
    static auto* const next = faults::nextOf<int(int, int)>("flock");
    return faults::done(Operation::Lock, faults::openPath(file), [=] { return next(file, operation); });
}

int fcntl64(int file, int command, ...)
{
    static auto* const next = faults::nextOf<int(int, int, ...)>("fcntl64");
    va_list arguments;
    va_start(arguments, command);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    const bool locks = command == F_SETLK || command == F_SETLKW || command == F_GETLK;
    return faults::done(Operation::Lock, locks ? faults::openPath(file) : nullptr,
                        [=] { return next(file, command, argument); });
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept
{
    static auto* const next = faults::nextOf<ssize_t(const char*, char*, size_t)>("readlink");
    return faults::mustFail(Operation::Look, path) ? -1 : next(path, target, size);
}

int access(const char* path, int mode) noexcept
{
    static auto* const next = faults::nextOf<int(const char*, int)>("access");
    return faults::done(Operation::Look, path, [=] { return next(path, mode); });
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept
{
    static auto* const next = faults::nextOf<int(int, const char*, int, int)>("faccessat");
    return faults::done(Operation::Look, path, [=] { return next(folder, path, mode, flags); });
}

int stat(const char* path, struct stat* status) noexcept
{
    static auto* const next = faults::nextOf<int(const char*, struct stat*)>("stat");
    return faults::done(Operation::Look, path, [=] { return next(path, status); });
}

int stat64(const char* path, struct stat64* status) noexcept
{
    static auto* const next = faults::nextOf<int(const char*, struct stat64*)>("stat64");
    return faults::done(Operation::Look, path, [=] { return next(path, status); });
}

int lstat64(const char* path, struct stat64* status) noexcept
{
    static auto* const next = faults::nextOf<int(const char*, struct stat64*)>("lstat64");
    return faults::done(Operation::Look, path, [=] { return next(path, status); });
}

int fstat(int file, struct stat* status) noexcept
{
    static auto* const next = faults::nextOf<int(int, struct stat*)>("fstat");
    return faults::done(Operation::Look, faults::openPath(file), [=] { return next(file, status); });
}

int fstat64(int file, struct stat64* status) noexcept
{
    static auto* const next = faults::nextOf<int(int, struct stat64*)>("fstat64");
    return faults::done(Operation::Look, faults::openPath(file), [=] { return next(file, status); });
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept
{
    static auto* const next = faults::nextOf<int(int, const char*, int, unsigned, struct statx*)>("statx");
    const bool isOpenFile = path[0] == '\0';
    return faults::done(Operation::Look, isOpenFile ? faults::openPath(folder) : path,
                        [=] { return next(folder, path, flags, mask, status); });
}

} // extern "C"
