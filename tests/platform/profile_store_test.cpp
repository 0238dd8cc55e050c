#include "platform/profile_store.h"

#include "platform/runtime_error.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utime.h>

using namespace torvane;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

namespace {

/// No file can be written beyond so many bytes while one lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_limit);
        const rlimit tight{bytes, m_limit.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_limit{};
    void (*m_handler)(int);
};

/// Gives up the rights of root while one lives, so that permissions count.
class OtherUser
{
public:
    OtherUser() { m_changed = ::geteuid() == 0 && ::seteuid(65534) == 0; }
    ~OtherUser()
    {
        if (m_changed && ::seteuid(0) != 0) {
            std::abort();
        }
    }
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;

private:
    bool m_changed = false;
};

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

class ProfileStoreTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7777));
        store.onWriteFailure([this](const QString& path, const QString& reason) {
            failedPaths << path;
            reasons << reason;
        });
    }

    QString path(const QString& name = QStringLiteral("a.bmm")) const { return m_folder.filePath(name); }

    static void put(const QString& file, const QByteArray& bytes)
    {
        QFile device(file);
        ASSERT_TRUE(device.open(QIODevice::WriteOnly)) << file.toStdString();
        ASSERT_EQ(device.write(bytes), bytes.size());
    }
    static QByteArray onDisk(const QString& file)
    {
        QFile device(file);
        return device.open(QIODevice::ReadOnly) ? device.readAll() : QByteArray("(no file)");
    }
    QByteArray onDisk() const { return onDisk(path()); }

    QString read(const char16_t* section, const char16_t* key)
    {
        return store.read(path(), section, key, QStringLiteral("(default)"));
    }
    bool write(const char16_t* section, const char16_t* key, const QString& value)
    {
        return store.write(path(), section, key, value);
    }
    void emptyEvent() { const ProfileStore::Batch batch(store); }

    static ino_t inode(const QString& file)
    {
        struct stat status = {};
        ::stat(QFile::encodeName(file).constData(), &status);
        return status.st_ino;
    }

private:
    QTemporaryDir m_folder;

protected:
    ProfileStore store;
    QStringList failedPaths;
    QStringList reasons;
};

using ProfileStoreReading = ProfileStoreTest;
using ProfileStoreWriting = ProfileStoreTest;
using ProfileStoreBatch = ProfileStoreTest;
using ProfileStoreRemoving = ProfileStoreTest;
using ProfileStoreOtherPrograms = ProfileStoreTest;
using ProfileStoreFailures = ProfileStoreTest;

} // namespace

TEST_F(ProfileStoreReading, GivesTheValueOfAKey)
{
    put(path(), "[S]\r\nSPEED = 12 \r\n");
    EXPECT_EQ(read(u"s", u" SPEED "), u"12");
}

TEST_F(ProfileStoreReading, GivesTheDefaultForWhatIsMissing)
{
    put(path(), "[S]\r\nEMPTY=\r\nQUOTED=\"\"\r\nBARE\r\n");
    EXPECT_EQ(read(u"S", u"NONE"), u"(default)");
    EXPECT_EQ(read(u"T", u"EMPTY"), u"(default)");
    EXPECT_EQ(read(u"S", u"EMPTY"), u"(default)");
    EXPECT_EQ(read(u"S", u"QUOTED"), u"(default)");
    EXPECT_EQ(read(u"S", u"BARE"), u"(default)");
    EXPECT_EQ(store.read(path(QStringLiteral("none")), u"S", u"K"), QString());
}

TEST_F(ProfileStoreReading, CutsAValueAt369Characters)
{
    const QByteArray digits = QByteArray("0123456789").repeated(37);
    put(path(), "[S]\r\nA=" + digits.first(368) + "\r\nB=" + digits.first(369) + "\r\nC=" + digits + "\r\n");
    EXPECT_EQ(read(u"S", u"A"), QString::fromLatin1(digits.first(368)));
    EXPECT_EQ(read(u"S", u"B"), QString::fromLatin1(digits.first(369)));
    EXPECT_EQ(read(u"S", u"C"), QString::fromLatin1(digits.first(369)));
    EXPECT_EQ(store.read(path(), u"S", u"D", QString(400, u'x')), QString(369, u'x'));
}

TEST_F(ProfileStoreReading, TheCutComesBehindTheQuotes)
{
    put(path(), "[S]\r\nA=\"" + QByteArray(400, 'x') + "\"\r\n");
    EXPECT_EQ(read(u"S", u"A"), QString(369, u'x'));
}

TEST_F(ProfileStoreReading, BytesAreWindows1252)
{
    put(path(), "[S]\r\nK=\x80 \xC4\x9F\r\n\xD6=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"\u20AC \u00C4\u0178");
    EXPECT_EQ(read(u"S", u"\u00D6"), u"1");
}

TEST_F(ProfileStoreReading, AFolderReadsAsMissing)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    EXPECT_EQ(read(u"S", u"K"), u"(default)");
    EXPECT_FALSE(store.exists(path()));
}

TEST_F(ProfileStoreReading, APipeReadsAsMissingAndDoesNotHoldUpTheProgram)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path()).constData(), 0600), 0);
    EXPECT_EQ(read(u"S", u"K"), u"(default)");
    EXPECT_FALSE(store.exists(path()));
}

TEST_F(ProfileStoreReading, AnUnreadableFileReadsAsMissingUntilItCanBeRead)
{
    put(path(), "[S]\r\nK=1\r\n");
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0), 0);
    {
        const OtherUser other;
        EXPECT_EQ(read(u"S", u"K"), u"(default)");
        EXPECT_TRUE(store.exists(path()));
    }
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0644), 0);
    EXPECT_EQ(read(u"S", u"K"), u"1");
}

TEST_F(ProfileStoreReading, AFileThatCanNoLongerBeReadStaysAsItWasKnown)
{
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    EXPECT_TRUE(write(u"S", u"L", QStringLiteral("2")));
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0), 0);
    {
        const OtherUser other;
        EXPECT_EQ(read(u"S", u"K"), u"1");
        EXPECT_EQ(read(u"S", u"L"), u"2");
        EXPECT_TRUE(store.exists(path()));
    }
}

TEST_F(ProfileStoreReading, AFileThatCanBeReadAgainIsReadAnew)
{
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    put(path(), "[S]\r\nK=another program's\r\n");
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0), 0);
    {
        const OtherUser other;
        EXPECT_EQ(read(u"S", u"K"), u"1");
    }
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0644), 0);
    EXPECT_EQ(read(u"S", u"K"), u"another program's");
}

TEST_F(ProfileStoreReading, AFileInAFolderThatHasBeenClosedIsNotTakenForMissing)
{
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    const QByteArray folder = QFile::encodeName(QFileInfo(path()).path());
    ASSERT_EQ(::chmod(folder.constData(), 0), 0);
    {
        const OtherUser other;
        EXPECT_EQ(read(u"S", u"K"), u"1");
        EXPECT_TRUE(store.exists(path()));
        EXPECT_FALSE(write(u"S", u"L", QStringLiteral("2")));
    }
    ASSERT_EQ(::chmod(folder.constData(), 0777), 0);
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nK=1\r\nL=2\r\n");
}

TEST_F(ProfileStoreReading, AnEmptyNameOrOneWithAZeroByteIsNoFile)
{
    put(path(), "[S]\r\nK=1\r\n");
    const QString odd = path() + QChar(u'\0') + QStringLiteral("x");
    EXPECT_EQ(store.read(odd, u"S", u"K"), QString());
    EXPECT_FALSE(store.exists(odd));
    EXPECT_FALSE(store.write(odd, u"S", u"K", u"2"));
    EXPECT_EQ(store.read(QString(), u"S", u"K"), QString());
    EXPECT_EQ(onDisk(), "[S]\r\nK=1\r\n");
}

TEST_F(ProfileStoreReading, TwoSpellingsOfAPathAreOneFile)
{
    const QString other = QFileInfo(path()).path() + QStringLiteral("/./x/../a.bmm");
    const ProfileStore::Batch batch(store);
    write(u"S", u"K", QStringLiteral("1"));
    EXPECT_EQ(store.read(other, u"S", u"K"), u"1");
}

TEST_F(ProfileStoreWriting, MakesFileAndSection)
{
    EXPECT_TRUE(write(u"SCENARIOINFO ", u"DIVISIONCNT ", QStringLiteral(" 1 ")));
    EXPECT_EQ(onDisk(), "[SCENARIOINFO]\r\nDIVISIONCNT=1\r\n");
}

TEST_F(ProfileStoreWriting, WithoutABatchEachWriteIsOnDiskAtOnce)
{
    write(u"S", u"K", QStringLiteral("1"));
    EXPECT_EQ(onDisk(), "[S]\r\nK=1\r\n");
    write(u"S", u"K", QStringLiteral("2"));
    EXPECT_EQ(onDisk(), "[S]\r\nK=2\r\n");
}

TEST_F(ProfileStoreWriting, ACharacterWithoutACodeIsAQuestionMarkAtOnce)
{
    const ProfileStore::Batch batch(store);
    write(u"S", u"K", QStringLiteral("a\u0416b\u20AC\U0001F6A2"));
    EXPECT_EQ(read(u"S", u"K"), u"a?b\u20AC?");
}

TEST_F(ProfileStoreWriting, AReadInTheSameEventGivesWhatTheFileWillHold)
{
    const ProfileStore::Batch batch(store);
    write(u"S", u"A", QStringLiteral("  x\ny\t"));
    write(u"S", u"B", QStringLiteral("' q '"));
    write(u"S", u"C", QString(400, u'z'));
    EXPECT_EQ(read(u"S", u"A"), u"x y");
    EXPECT_EQ(read(u"S", u"B"), u" q ");
    EXPECT_EQ(read(u"S", u"C"), QString(369, u'z'));
}

TEST_F(ProfileStoreWriting, TheFileHoldsTheWholeOfALongValue)
{
    write(u"S", u"K", QString(1000, u'z'));
    EXPECT_EQ(onDisk(), "[S]\r\nK=" + QByteArray(1000, 'z') + "\r\n");
}

TEST_F(ProfileStoreWriting, WritingTheSameValueAgainLeavesTheFileAlone)
{
    put(path(), "[S]\nK=1\n");
    const ino_t before = inode(path());
    EXPECT_TRUE(write(u"S", u"K", QStringLiteral("1")));
    EXPECT_EQ(inode(path()), before);
    EXPECT_EQ(onDisk(), "[S]\nK=1\n");
    write(u"S", u"K", QStringLiteral("2"));
    EXPECT_NE(inode(path()), before) << "a file put in place whole is a new one";
}

TEST_F(ProfileStoreWriting, WritingTheSameValueAgainMakesAFileThatIsGone)
{
    write(u"S", u"K", QStringLiteral("1"));
    ASSERT_TRUE(QFile::remove(path()));
    write(u"S", u"K", QStringLiteral("1"));
    EXPECT_EQ(onDisk(), "[S]\r\nK=1\r\n");
}

TEST_F(ProfileStoreWriting, AFileThatGoesDuringTheEventComesBackWithIt)
{
    put(path(), "[S]\r\nK=1\r\n");
    {
        const ProfileStore::Batch batch(store);
        EXPECT_EQ(read(u"S", u"K"), u"1");
        ASSERT_TRUE(QFile::remove(path()));
        write(u"S", u"K", QStringLiteral("1"));
    }
    EXPECT_EQ(onDisk(), "[S]\r\nK=1\r\n");
}

TEST_F(ProfileStoreWriting, AChangeRightBehindOurOwnIsSeen)
{
    for (int i = 0; i < 100; ++i) {
        write(u"S", u"K", QStringLiteral("ours"));
        put(path(), "[S]\r\nK=them\r\n");
        EXPECT_EQ(read(u"S", u"K"), u"them");
    }
}

TEST_F(ProfileStoreWriting, ANameThatNoReaderWouldFindThrowsAndWritesNothing)
{
    try {
        write(u"S", u"A=B", QStringLiteral("1"));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::InvalidProcedureCall);
        EXPECT_TRUE(error.text().contains(u"A=B"));
    }
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_FALSE(store.exists(path()));
}

TEST_F(ProfileStoreWriting, LeavesNoOtherFileBehind)
{
    write(u"S", u"K", QStringLiteral("1"));
    write(u"S", u"K", QStringLiteral("2"));
    EXPECT_THAT(QFileInfo(path()).dir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                ElementsAre(QStringLiteral("a.bmm")));
}

TEST_F(ProfileStoreBatch, WritesReachTheDiskWhenTheOutermostEnds)
{
    {
        const ProfileStore::Batch outer(store);
        {
            const ProfileStore::Batch inner(store);
            EXPECT_TRUE(write(u"S", u"A", QStringLiteral("1")));
        }
        EXPECT_FALSE(QFile::exists(path()));
        EXPECT_EQ(read(u"S", u"A"), u"1");
        write(u"S", u"B", QStringLiteral("2"));
        store.write(path(QStringLiteral("b.bmm")), u"T", u"C", u"3");
        EXPECT_FALSE(QFile::exists(path()));
    }
    EXPECT_EQ(onDisk(), "[S]\r\nA=1\r\nB=2\r\n");
    EXPECT_EQ(onDisk(path(QStringLiteral("b.bmm"))), "[T]\r\nC=3\r\n");
}

TEST_F(ProfileStoreBatch, AnExceptionThatEndsItStillSaves)
{
    try {
        const ProfileStore::Batch batch(store);
        write(u"S", u"A", QStringLiteral("1"));
        throw std::runtime_error("handler");
    } catch (const std::runtime_error&) {
        EXPECT_EQ(onDisk(), "[S]\r\nA=1\r\n");
    }
}

TEST_F(ProfileStoreBatch, OnlyChangedFilesAreWritten)
{
    const QString other = path(QStringLiteral("b.bmm"));
    put(path(), "[S]\nK=1\n");
    put(other, "[S]\nK=1\n");
    const ino_t before = inode(other);
    {
        const ProfileStore::Batch batch(store);
        store.read(other, u"S", u"K");
        store.write(other, u"S", u"K", u"1");
        write(u"S", u"K", QStringLiteral("2"));
    }
    EXPECT_EQ(onDisk(), "[S]\r\nK=2\r\n");
    EXPECT_EQ(inode(other), before);
    EXPECT_EQ(onDisk(other), "[S]\nK=1\n");
}

TEST_F(ProfileStoreBatch, AFileWrittenOnceIsNotWrittenAgainByTheNextEvent)
{
    {
        const ProfileStore::Batch batch(store);
        write(u"S", u"K", QStringLiteral("2"));
    }
    const ino_t before = inode(path());
    emptyEvent();
    EXPECT_EQ(inode(path()), before);
}

TEST_F(ProfileStoreBatch, TheDiskIsLookedAtOnceAFile)
{
    put(path(), "[S]\r\nK=1\r\n");
    {
        const ProfileStore::Batch batch(store);
        EXPECT_EQ(read(u"S", u"K"), u"1");
        put(path(), "[S]\r\nK=other\r\n");
        EXPECT_EQ(read(u"S", u"K"), u"1") << "an event sees one state of the file";
    }
    const ProfileStore::Batch batch(store);
    EXPECT_EQ(read(u"S", u"K"), u"other");
}

TEST_F(ProfileStoreBatch, AFileFirstUsedLateInABatchIsLookedAtThen)
{
    put(path(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"1");
    const ProfileStore::Batch batch(store);
    put(path(), "[S]\r\nK=other\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"other");
}

TEST_F(ProfileStoreRemoving, DeletesTheFileAndForgetsItsKeys)
{
    write(u"S", u"K", QStringLiteral("1"));
    store.remove(path());
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_FALSE(store.exists(path()));
    EXPECT_EQ(read(u"S", u"K"), u"(default)");
    store.remove(path());
}

TEST_F(ProfileStoreRemoving, DropsWhatABatchWasToWrite)
{
    {
        const ProfileStore::Batch batch(store);
        write(u"S", u"K", QStringLiteral("1"));
        EXPECT_TRUE(store.exists(path())) << "it will be there";
        store.remove(path());
        EXPECT_FALSE(store.exists(path()));
        EXPECT_EQ(read(u"S", u"K"), u"(default)");
    }
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(ProfileStoreRemoving, AWriteAfterItBeginsAFreshFile)
{
    put(path(), "[S]\r\nOLD=1\r\n");
    {
        const ProfileStore::Batch batch(store);
        EXPECT_EQ(read(u"S", u"OLD"), u"1");
        write(u"S", u"LOST", QStringLiteral("1"));
        store.remove(path());
        write(u"S", u"NEW", QStringLiteral("2"));
        EXPECT_EQ(read(u"S", u"OLD"), u"(default)");
    }
    EXPECT_EQ(onDisk(), "[S]\r\nNEW=2\r\n");
}

TEST_F(ProfileStoreRemoving, AFileThatCannotBeDeletedThrowsAndKeepsItsWrites)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    const ProfileStore::Batch batch(store);
    write(u"S", u"K", QStringLiteral("1"));
    EXPECT_THROW(store.remove(path()), RuntimeError);
    EXPECT_EQ(read(u"S", u"K"), u"1");
}

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

TEST_F(ProfileStoreFailures, AFullDiskIsReportedOnceAndTheNextEventSavesAll)
{
    write(u"S", u"OLD", QStringLiteral("1"));
    const QByteArray before = onDisk();
    {
        const FileSizeLimit limit(8);
        {
            const ProfileStore::Batch batch(store);
            EXPECT_TRUE(write(u"S", u"A", QStringLiteral("1")));
        }
        EXPECT_THAT(failedPaths, ElementsAre(path()));
        EXPECT_FALSE(reasons.value(0).isEmpty());
        EXPECT_EQ(onDisk(), before) << "the old file stays whole";
        EXPECT_EQ(read(u"S", u"A"), u"1");
        {
            const ProfileStore::Batch batch(store);
            write(u"S", u"B", QStringLiteral("2"));
        }
        emptyEvent();
        EXPECT_THAT(failedPaths, SizeIs(1)) << "one report a spell";
        EXPECT_EQ(read(u"S", u"B"), u"2");
    }
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nOLD=1\r\nA=1\r\nB=2\r\n");
    EXPECT_THAT(failedPaths, SizeIs(1));
}

TEST_F(ProfileStoreFailures, EachSpellIsReported)
{
    for (int spell = 1; spell <= 2; ++spell) {
        {
            const FileSizeLimit limit(8);
            const ProfileStore::Batch batch(store);
            write(u"S", u"K", QString::number(spell));
        }
        EXPECT_EQ(failedPaths.size(), spell);
        emptyEvent();
        EXPECT_EQ(onDisk(), "[S]\r\nK=" + QByteArray::number(spell) + "\r\n");
    }
}

TEST_F(ProfileStoreFailures, EachFileIsReportedByItself)
{
    const QString other = path(QStringLiteral("b.bmm"));
    {
        const FileSizeLimit limit(8);
        const ProfileStore::Batch batch(store);
        write(u"S", u"K", QStringLiteral("1"));
        store.write(other, u"S", u"K", u"1");
        EXPECT_THAT(failedPaths, IsEmpty()) << "not before the event ends";
        {
            const ProfileStore::Batch inner(store);
        }
        EXPECT_THAT(failedPaths, IsEmpty());
    }
    EXPECT_THAT(failedPaths, UnorderedElementsAre(path(), other));
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nK=1\r\n");
    EXPECT_EQ(onDisk(other), "[S]\r\nK=1\r\n");
}

TEST_F(ProfileStoreFailures, AFileThatFailsDoesNotHoldUpAnother)
{
    const QString other = path(QStringLiteral("b.bmm"));
    ASSERT_TRUE(QDir().mkdir(path()));
    {
        const ProfileStore::Batch batch(store);
        write(u"S", u"K", QStringLiteral("1"));
        store.write(other, u"S", u"K", u"1");
    }
    EXPECT_THAT(failedPaths, ElementsAre(path()));
    EXPECT_EQ(onDisk(other), "[S]\r\nK=1\r\n");
}

TEST_F(ProfileStoreFailures, AFolderInPlaceOfTheFileIsOutlasted)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    {
        const ProfileStore::Batch batch(store);
        write(u"S", u"A", QStringLiteral("1"));
    }
    EXPECT_THAT(failedPaths, ElementsAre(path()));
    EXPECT_TRUE(reasons.value(0).contains(path())) << reasons.value(0).toStdString();
    EXPECT_EQ(read(u"S", u"A"), u"1");
    EXPECT_TRUE(store.exists(path()));
    ASSERT_TRUE(QDir().rmdir(path()));
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nA=1\r\n");
}

TEST_F(ProfileStoreFailures, AWorkFolderThatIsGoneIsOutlasted)
{
    const QString folder = path(QStringLiteral("work"));
    const QString file = folder + QStringLiteral("/a.bmm");
    ASSERT_TRUE(QDir().mkdir(folder));
    store.write(file, u"S", u"A", u"1");
    ASSERT_TRUE(QDir(folder).removeRecursively());
    {
        const ProfileStore::Batch batch(store);
        store.write(file, u"S", u"B", u"2");
    }
    EXPECT_THAT(failedPaths, ElementsAre(file));
    EXPECT_EQ(store.read(file, u"S", u"B"), u"2");
    ASSERT_TRUE(QDir().mkdir(folder));
    emptyEvent();
    EXPECT_EQ(onDisk(file), "[S]\r\nB=2\r\n")
        << "what another program deleted is gone, what was written is not";
}

TEST_F(ProfileStoreFailures, WithoutABatchTheWriteSaysSo)
{
    ASSERT_TRUE(QDir().mkdir(path()));
    EXPECT_FALSE(write(u"S", u"A", QStringLiteral("1")));
    EXPECT_FALSE(write(u"S", u"A", QStringLiteral("1"))) << "the same value again is still not on disk";
    EXPECT_THAT(failedPaths, SizeIs(1));
    ASSERT_TRUE(QDir().rmdir(path()));
    EXPECT_TRUE(write(u"S", u"A", QStringLiteral("1")));
    EXPECT_EQ(onDisk(), "[S]\r\nA=1\r\n");
}

TEST_F(ProfileStoreFailures, UnsavedWritesWinOverAChangedFile)
{
    write(u"S", u"K", QStringLiteral("old"));
    {
        const FileSizeLimit limit(8);
        write(u"S", u"K", QStringLiteral("ours"));
    }
    put(path(), "[S]\r\nK=theirs\r\n");
    EXPECT_EQ(read(u"S", u"K"), u"ours");
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nK=ours\r\n");
}

TEST_F(ProfileStoreFailures, AFileThatCannotBeReadIsNotWrittenOver)
{
    put(path(), "[S]\r\nK=theirs\r\nL=theirs\r\n");
    const QByteArray name = QFile::encodeName(path());
    ASSERT_EQ(::chmod(name.constData(), 0), 0);
    {
        const OtherUser other;
        const ProfileStore::Batch batch(store);
        write(u"S", u"K", QStringLiteral("ours"));
        EXPECT_EQ(read(u"S", u"K"), u"ours");
    }
    EXPECT_EQ(::access(name.constData(), F_OK), 0);
    ASSERT_EQ(::chmod(name.constData(), 0644), 0);
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nK=ours\r\nL=theirs\r\n");
    EXPECT_EQ(read(u"S", u"L"), u"theirs");
}

TEST_F(ProfileStoreFailures, AReportMayRunFurtherEvents)
{
    int reports = 0;
    store.onWriteFailure([&](const QString&, const QString&) {
        ++reports;
        const ProfileStore::Batch nested(store);
        store.write(path(QStringLiteral("b.bmm")), u"S", u"K", u"1");
        EXPECT_EQ(read(u"S", u"K"), u"1");
    });
    ASSERT_TRUE(QDir().mkdir(path()));
    {
        const ProfileStore::Batch batch(store);
        write(u"S", u"K", QStringLiteral("1"));
    }
    EXPECT_EQ(reports, 1);
    EXPECT_EQ(onDisk(path(QStringLiteral("b.bmm"))), "[S]\r\nK=1\r\n");
}

TEST_F(ProfileStoreFailures, AReportThatThrowsDoesNotLeaveTheBatch)
{
    store.onWriteFailure([](const QString&, const QString&) { throw std::runtime_error("report"); });
    ASSERT_TRUE(QDir().mkdir(path()));
    {
        const ProfileStore::Batch batch(store);
        write(u"S", u"K", QStringLiteral("1"));
    }
    ASSERT_TRUE(QDir().rmdir(path()));
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nK=1\r\n");
}

TEST_F(ProfileStoreFailures, NobodyNeedsToListen)
{
    store.onWriteFailure({});
    ASSERT_TRUE(QDir().mkdir(path()));
    EXPECT_FALSE(write(u"S", u"K", QStringLiteral("1")));
    EXPECT_EQ(read(u"S", u"K"), u"1");
}

TEST_F(ProfileStoreFailures, RemovingAFileEndsItsSpell)
{
    {
        const FileSizeLimit limit(8);
        write(u"S", u"K", QStringLiteral("1"));
        store.remove(path());
        EXPECT_FALSE(store.exists(path()));
        write(u"S", u"K", QStringLiteral("2"));
    }
    EXPECT_THAT(failedPaths, SizeIs(2));
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nK=2\r\n");
}
