#pragma once

#include <QString>

namespace torvane {

/// Marks a folder as in use by this program for as long as the object lives, or until the program dies in
/// whatever way. Leaves no file in the folder: the lock is on the folder itself.
class FolderLock
{
public:
    enum class State {
        Held,       ///< ours
        InUse,      ///< another program holds it
        Unavailable ///< the folder is missing, or its file system knows no locks
    };

    explicit FolderLock(const QString& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    State state() const { return m_state; }

private:
    int m_descriptor = -1;
    State m_state = State::Unavailable;
};

} // namespace torvane
