#include "platform/profile_store.h"

#include "platform/code_page.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <vector>

namespace torvane {

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
/// The kernel's file times move in steps of up to 10 ms: a second change within one step shows in no time
/// stamp.
constexpr std::int64_t unsettledTime = 20'000'000;

std::int64_t nanoseconds(const statx_timestamp& time)
{
    return time.tv_sec * nanosecondsPerSecond + time.tv_nsec;
}

/// What a change of a file shows in.
struct Stamp
{
    std::int64_t modified = 0;
    std::int64_t changed = 0;
    std::uint64_t size = 0;
    std::uint64_t inode = 0;
    std::uint64_t device = 0;

    bool operator==(const Stamp&) const = default;
};

/// What a look at a name shows.
struct Sight
{
    std::optional<Stamp> stamp; ///< of the regular file of that name; nothing if there is none
    bool isClear = true;        ///< the system could tell
};

Sight lookAt(const QByteArray& path)
{
    // The system would take a name up to a zero byte for the whole.
    if (path.isEmpty() || path.contains('\0')) {
        return {};
    }
    struct statx status = {};
    if (::statx(AT_FDCWD, path.constData(), 0, STATX_BASIC_STATS, &status) != 0) {
        return {.stamp = std::nullopt, .isClear = isMissing(errno)};
    }
    if (!S_ISREG(status.stx_mode)) {
        return {};
    }
    const std::uint64_t device = (std::uint64_t{status.stx_dev_major} << 32) | status.stx_dev_minor;
    return {.stamp = Stamp{nanoseconds(status.stx_mtime), nanoseconds(status.stx_ctime), status.stx_size,
                           status.stx_ino, device}};
}

/// Whether a change that follows the stamp would show in another stamp.
bool isSettled(const Stamp& stamp)
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    const std::int64_t age = now.tv_sec * nanosecondsPerSecond + now.tv_nsec - stamp.changed;
    return age > unsettledTime || age < -unsettledTime;
}

} // namespace

/// One profile file as it stands: on disk, or with writes that are yet to get there.
struct ProfileStore::File
{
    QString path;
    QByteArray systemPath;
    Profile profile;
    std::optional<Stamp> stamp; ///< of the bytes in `profile`; nothing if they must be read anew
    quint64 checkedIn = 0;      ///< the batch in which the disk was last looked at
    bool isThere = false;       ///< a file of that name is on disk
    bool isUnread = false; ///< it may be, but was never read: `profile` holds only what was written since
    bool isKnown = false;  ///< it has been read or written, or was found missing
    bool hasUnsavedWrites = false;
    bool isFailing = false; ///< a failure to save has been reported, and no success followed

    void forget()
    {
        profile = Profile();
        stamp.reset();
        isThere = isUnread = hasUnsavedWrites = isFailing = false;
        isKnown = true;
    }
    void take(Profile content, bool isOnDisk)
    {
        profile = std::move(content);
        isThere = isOnDisk;
        isKnown = true;
        isUnread = false;
    }
    /// What is known of it is better than nothing: whoever took it for an empty file would write the author's
    /// work away.
    void failToRead()
    {
        stamp.reset();
        isUnread = !isKnown;
    }
};

struct ProfileStore::Private
{
    struct Failure
    {
        QString path;
        QString reason;
    };

    QHash<QString, File*> names; ///< every spelling of a path that was used
    QString lastName;            ///< the one used last, mostly the next one too
    File* lastFile = nullptr;
    std::vector<std::unique_ptr<File>> files;
    FailureReport report;
    int depth = 0;
    quint64 batch = 0; ///< number of the outermost batch, counted from 1

    File& named(const QString& path);
    File& lookedAt(const QString& path);
    static void look(File& file);
    static Profile readFrom(const File& file);
    static void put(File& file);
    std::optional<Failure> save(File& file) const;
    void saveAll();
    void tell(const std::vector<Failure>& failures) const;
};

ProfileStore::File& ProfileStore::Private::named(const QString& path)
{
    if (lastFile && path == lastName) {
        return *lastFile;
    }
    lastName = path;
    lastFile = names.value(path);
    if (lastFile) {
        return *lastFile;
    }
    const bool isName = !path.isEmpty() && !path.contains(QChar::Null);
    const QString fullPath = isName ? QDir::cleanPath(QFileInfo(path).absoluteFilePath()) : path;
    const auto same = [&fullPath](const auto& file) { return file->path == fullPath; };
    auto found = std::find_if(files.begin(), files.end(), same);
    if (found == files.end()) {
        auto file = std::make_unique<File>();
        file->path = fullPath;
        file->systemPath = QFile::encodeName(fullPath);
        found = files.insert(files.end(), std::move(file));
    }
    lastFile = found->get();
    names.insert(path, lastFile);
    return *lastFile;
}

/// The file as another program may have left it. Within a batch the disk is asked once.
ProfileStore::File& ProfileStore::Private::lookedAt(const QString& path)
{
    File& file = named(path);
    if (depth == 0 || file.checkedIn != batch) {
        file.checkedIn = batch;
        look(file);
    }
    return file;
}

void ProfileStore::Private::look(File& file)
{
    // What was written and not saved is worth more than what another program put there.
    if (file.hasUnsavedWrites) {
        return;
    }
    const Sight sight = lookAt(file.systemPath);
    if (!sight.isClear) {
        file.failToRead();
        return;
    }
    if (sight.stamp && sight.stamp == file.stamp) {
        return;
    }
    file.stamp.reset();
    if (!sight.stamp) {
        file.take(Profile(), false);
        return;
    }
    file.isThere = true;
    try {
        // Before the bytes, and so is its stamp: a change in between shows the next time.
        const bool settled = isSettled(*sight.stamp);
        file.take(readFrom(file), true);
        file.stamp = settled ? sight.stamp : std::nullopt;
    } catch (const std::exception&) {
        file.failToRead();
    }
}

Profile ProfileStore::Private::readFrom(const File& file)
{
    return Profile::parse(readWholeFile(file.path));
}

/// Puts the file on disk. Throws if it can't.
void ProfileStore::Private::put(File& file)
{
    const Sight sight = lookAt(file.systemPath);
    if (file.isUnread && (sight.stamp || !sight.isClear)) {
        // Writing what we have would wipe out what we could not read.
        Profile whole = readFrom(file);
        file.profile.writeInto(whole);
        file.profile = std::move(whole);
        file.isUnread = false;
    }
    writeWholeFile(file.path, file.profile.bytes());
}

/// The failure, if it is the first of its spell.
std::optional<ProfileStore::Private::Failure> ProfileStore::Private::save(File& file) const
{
    QString reason;
    try {
        put(file);
        file.hasUnsavedWrites = file.isFailing = file.isUnread = false;
        file.isThere = file.isKnown = true;
        // Read anew at the next event: a change right behind our own may show in no time stamp.
        file.stamp.reset();
        return std::nullopt;
    } catch (const RuntimeError& error) {
        reason = error.text();
    } catch (const std::exception& error) {
        reason = QString::fromLocal8Bit(error.what());
    }
    const bool isNew = !file.isFailing;
    file.isFailing = true;
    return isNew ? std::optional<Failure>({file.path, reason}) : std::nullopt;
}

void ProfileStore::Private::saveAll()
{
    std::vector<Failure> failures;
    for (const auto& file : files) {
        if (file->hasUnsavedWrites) {
            if (auto failure = save(*file)) {
                failures.push_back(std::move(*failure));
            }
        }
    }
    tell(failures);
}

void ProfileStore::Private::tell(const std::vector<Failure>& failures) const
{
    const FailureReport call = report;
    for (const Failure& failure : failures) {
        if (call) {
            call(failure.path, failure.reason);
        }
    }
}

ProfileStore::ProfileStore() : d(std::make_unique<Private>()) {}

ProfileStore::~ProfileStore() = default;

void ProfileStore::onWriteFailure(FailureReport report)
{
    d->report = std::move(report);
}

QString ProfileStore::read(const QString& file, QStringView section, QStringView key,
                           const QString& defaultValue)
{
    const Profile& profile = parsed(file);
    const auto value = profile.value(toCodePage(section), toCodePage(key));
    if (!value || value->isEmpty()) {
        return defaultValue.left(maximumLength);
    }
    return fromCodePage(value->first(std::min<qsizetype>(value->size(), maximumLength)));
}

const Profile& ProfileStore::parsed(const QString& file)
{
    return d->lookedAt(file).profile;
}

bool ProfileStore::write(const QString& file, QStringView section, QStringView key, QStringView value)
{
    return write(file, QByteArrayView(toCodePage(section)), toCodePage(key), toCodePage(value));
}

bool ProfileStore::write(const QString& file, QByteArrayView section, QByteArrayView key,
                         QByteArrayView value)
{
    File& target = d->lookedAt(file);
    const bool changed = target.profile.setValue(section, key, value);
    // A file that is gone must come back, even if we hold the value already.
    target.hasUnsavedWrites = target.hasUnsavedWrites || changed || !lookAt(target.systemPath).stamp;
    if (d->depth > 0 || !target.hasUnsavedWrites) {
        return true;
    }
    if (const auto failure = d->save(target)) {
        d->tell({*failure});
    }
    return !target.hasUnsavedWrites;
}

void ProfileStore::remove(const QString& file)
{
    File& target = d->named(file);
    deleteFile(target.path);
    target.forget();
    target.checkedIn = d->batch;
}

bool ProfileStore::exists(const QString& file)
{
    const File& target = d->lookedAt(file);
    return target.isThere || target.hasUnsavedWrites;
}

ProfileStore::Batch::Batch(ProfileStore& store) : m_store(store)
{
    if (m_store.d->depth++ == 0) {
        ++m_store.d->batch;
    }
}

ProfileStore::Batch::~Batch()
{
    if (--m_store.d->depth > 0) {
        return;
    }
    try {
        m_store.d->saveAll();
    } catch (...) { // NOLINT(bugprone-empty-catch): only a report can throw here, and the writes are kept
    }
}

} // namespace torvane
