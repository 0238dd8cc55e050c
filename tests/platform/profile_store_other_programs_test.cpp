#include "platform/profile_store_fixture.h"

#include <array>
#include <chrono>
#include <sys/inotify.h>
#include <thread>
#include <unistd.h>
#include <utime.h>

namespace torvane::testing {
namespace {

/// Counts how often a file is opened.
class OpenCounter
{
public:
    explicit OpenCounter(const QString& path) : m_queue(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(::inotify_add_watch(m_queue, QFile::encodeName(path).constData(), IN_OPEN), 0);
    }
    ~OpenCounter() { ::close(m_queue); }
    OpenCounter(const OpenCounter&) = delete;
    OpenCounter& operator=(const OpenCounter&) = delete;

    /// How often since the last call. The queue holds equal events in a row once.
    int count()
    {
        alignas(inotify_event) std::array<char, 4096> events{};
        const auto size = ::read(m_queue, events.data(), events.size());
        return size <= 0 ? 0 : static_cast<int>(static_cast<std::size_t>(size) / sizeof(inotify_event));
    }

private:
    int m_queue;
};

using ProfileStoreOtherPrograms = ProfileStoreTest;

TEST_F(ProfileStoreOtherPrograms, AChangeBetweenTwoReadsIsSeen)
{
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    put(path(), "[S]\r\nK=long\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"long");
}

TEST_F(ProfileStoreOtherPrograms, AChangeOfTheSameSizeInTheSameInstantIsSeen)
{
    for (int i = 0; i < 100; ++i) {
        const QByteArray digit = QByteArray::number(i % 10);
        put(path(), "[S]\r\nK=" + digit + "\r\n");
        EXPECT_EQ(read(u"S", u"K"), QString::fromLatin1(digit));
    }
}

TEST_F(ProfileStoreOtherPrograms, AChangeOfTheSameSizeAndTimeIsSeenOnceTheFileHasSettled)
{
    const QByteArray name = QFile::encodeName(path());
    const utimbuf times{1'000'000'000, 1'000'000'000};
    put(path(), "[S]\r\nK=1\r\n");
    ASSERT_EQ(::utime(name.constData(), &times), 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(read(u"S", u"K"), u"1");
    put(path(), "[S]\r\nK=2\r\n");
    ASSERT_EQ(::utime(name.constData(), &times), 0);
    EXPECT_EQ(read(u"S", u"K"), u"2");
}

TEST_F(ProfileStoreOtherPrograms, AFileRenamedIntoItsPlaceIsSeen)
{
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    const QString other = path(QStringLiteral("b.bmm"));
    put(other, "[S]\r\nK=2\r\n");
    ASSERT_EQ(::rename(QFile::encodeName(other).constData(), QFile::encodeName(path()).constData()), 0);
    EXPECT_EQ(read(u"S", u"K"), u"2");
}

TEST_F(ProfileStoreOtherPrograms, AFileThatVanishesReadsAsMissingAndComesBack)
{
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_EQ(read(u"S", u"K"), u"(default)");
    EXPECT_FALSE(store.exists(path()));
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    EXPECT_TRUE(store.exists(path()));
}

TEST_F(ProfileStoreOtherPrograms, AWriteIsMadeIntoTheirFile)
{
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    put(path(), "; theirs\r\n[S]\r\nK=1\r\nL=2\r\n");
    write(u"S", u"K", QStringLiteral("3"));
    EXPECT_EQ(onDisk(), "; theirs\r\n[S]\r\nK=3\r\nL=2\r\n");
}

TEST_F(ProfileStoreOtherPrograms, AnUnchangedFileIsNotOpenedAgain)
{
    put(path(), "[S]\r\nK=1\r\n");
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    OpenCounter opens(path());
    EXPECT_EQ(read(u"S", u"K"), u"1");
    EXPECT_EQ(opens.count(), 1);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(read(u"S", u"K"), u"1");
        const ProfileStore::Batch batch(store);
        EXPECT_EQ(read(u"S", u"L"), u"(default)");
    }
    EXPECT_EQ(opens.count(), 0);
}

} // namespace
} // namespace torvane::testing
