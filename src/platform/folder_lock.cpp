#include "platform/folder_lock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace torvane {

FolderLock::FolderLock(const QString& folder)
    : m_descriptor(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (m_descriptor < 0) {
        return;
    }
    if (::flock(m_descriptor, LOCK_EX | LOCK_NB) == 0) {
        m_state = State::Held;
    } else if (errno == EWOULDBLOCK) {
        m_state = State::InUse;
    }
}

FolderLock::~FolderLock()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

} // namespace torvane
