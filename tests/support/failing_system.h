#pragma once

#include <QFile>
#include <QString>

#include <csignal>
#include <exception>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace torvane::testing {

/// While one lives, the test has no more rights than an ordinary user, also if it runs as root.
class Unprivileged
{
public:
    Unprivileged() : m_user(::geteuid())
    {
        constexpr uid_t nobody = 65534;
        // Both ids, as what a user may do is asked of one here, of the other there.
        m_changed = m_user == 0 && ::setresuid(nobody, nobody, m_user) == 0;
    }
    ~Unprivileged()
    {
        if (m_changed && ::setresuid(m_user, m_user, m_user) != 0) {
            std::terminate();
        }
    }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;

private:
    uid_t m_user;
    bool m_changed = false;
};

/// While one lives, the folder has these rights only, also for root.
class RestrictedFolder
{
public:
    RestrictedFolder(const QString& folder, mode_t rights) : m_path(QFile::encodeName(folder))
    {
        ::chmod(m_path.constData(), rights);
        m_unprivileged.emplace();
    }
    ~RestrictedFolder()
    {
        m_unprivileged.reset();
        ::chmod(m_path.constData(), 0700);
    }
    RestrictedFolder(const RestrictedFolder&) = delete;
    RestrictedFolder& operator=(const RestrictedFolder&) = delete;

private:
    QByteArray m_path;
    std::optional<Unprivileged> m_unprivileged;
};

/// While one lives, the folder can be listed but nothing in it made, replaced or deleted.
class ReadOnlyFolder : public RestrictedFolder
{
public:
    explicit ReadOnlyFolder(const QString& folder) : RestrictedFolder(folder, 0555) {}
};

/// While one lives, nobody can see what is in the folder.
class ClosedFolder : public RestrictedFolder
{
public:
    explicit ClosedFolder(const QString& folder) : RestrictedFolder(folder, 0) {}
};

/// While one lives, no file takes more than so many bytes: writes beyond fail as on a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit lower{bytes, m_limit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &lower);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_limit{};
    void (*m_handler)(int) = SIG_DFL;
};

} // namespace torvane::testing
