#pragma once

#include "platform/profile.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <memory>

namespace torvane {

/// The platform's profile functions over all profile files of a run: `read` and `write` one key of a file.
/// Each file is parsed once and kept; a file that another program changed between two events is read anew.
/// One that can't be read any more stays as it was known. Writes within a Batch go to disk once, whole, when
/// the outermost batch ends; without a batch, at once.
class ProfileStore
{
public:
    /// Most characters that a read returns; the rest of a longer value is cut.
    static constexpr int maximumLength = 369;

    /// Called once for a file whose writes can't be put on disk, and again only after a success in between;
    /// `path` is the file, `reason` the system's. The values stay in memory and go out with the next event.
    /// Runs when nothing is under way, so it may show a box in which further events run.
    using FailureReport = std::function<void(const QString& path, const QString& reason)>;

    ProfileStore();
    ~ProfileStore();
    ProfileStore(const ProfileStore&) = delete;
    ProfileStore& operator=(const ProfileStore&) = delete;

    void onWriteFailure(FailureReport report);

    /// The value of a key, at most 369 characters, or `defaultValue` if the key, its section or the file is
    /// missing or the value is empty. Never throws.
    QString read(const QString& file, QStringView section, QStringView key,
                 const QString& defaultValue = QString());

    /// The whole file as `read` would find it, empty if it is missing, for a walk over many keys. Stands
    /// until the next call.
    const Profile& parsed(const QString& file);

    /// Writes one key, making file and section as needed. False if the file could not be written at once
    /// (only without a batch). Throws InvalidProcedureCall for a name that no reader would find again.
    bool write(const QString& file, QStringView section, QStringView key, QStringView value);
    /// The same with names and value as they stand in the file.
    bool write(const QString& file, QByteArrayView section, QByteArrayView key, QByteArrayView value);

    /// Deletes a profile file and forgets what was to be written to it. Throws as `deleteFile` does, and then
    /// forgets nothing.
    void remove(const QString& file);

    /// Whether the file is there, or will be when the batch ends.
    bool exists(const QString& file);

    /// While one lives, writes wait. Batches nest; the outermost puts every changed file on disk.
    class [[nodiscard]] Batch
    {
    public:
        explicit Batch(ProfileStore& store);
        ~Batch();
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        ProfileStore& m_store;
    };

private:
    struct File;
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace torvane
