#include "platform/text_files_fixture.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

/// The error of the next rename of this program; none at 0.
static int renameError = 0;

// Taken by the whole program in place of the system's.
extern "C" int rename(const char* from, const char* to) noexcept
{
    if (renameError != 0) {
        errno = std::exchange(renameError, 0);
        return -1;
    }
    return ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}

namespace torvane {
namespace {

class WriteWholeFile : public testing::TextFiles
{
};
class WriteScratchFile : public testing::TextFiles
{
};
class RequireWritableFolder : public testing::TextFiles
{
};

TEST_F(WriteWholeFile, PutsEveryByteInANewFile)
{
    const QByteArray bytes("a\n\0\r\x1A\xFF", 6);
    writeWholeFile(path("Größe.txt"), bytes);
    EXPECT_EQ(bytesOf("Größe.txt"), bytes);
    EXPECT_EQ(names(), QStringList("Größe.txt"));
}

TEST_F(WriteWholeFile, ReplacesALongerFileWhole)
{
    put("file", QByteArray(5000, 'x'));
    writeWholeFile(path("file"), "short");
    EXPECT_EQ(bytesOf("file"), "short");
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(WriteWholeFile, NoBytesMakeAnEmptyFile)
{
    put("file", "x");
    writeWholeFile(path("file"), {});
    EXPECT_EQ(bytesOf("file"), QByteArray());
}

TEST_F(WriteWholeFile, AReaderOfTheOldFileKeepsTheOldBytes)
{
    put("file", "old");
    QFile reader(path("file"));
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    writeWholeFile(path("file"), "new");
    EXPECT_EQ(reader.readAll(), "old");
    EXPECT_EQ(bytesOf("file"), "new");
}

TEST_F(WriteWholeFile, ANewFileCanBeReadByTheGameUnderTheUsersOwnMask)
{
    const mode_t mask = ::umask(022);
    writeWholeFile(path("file"), "x");
    ::umask(mask);
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(path("file")).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0644U);
}

TEST_F(WriteWholeFile, AFolderOfThatNameIsAPathAccessErrorAndStays)
{
    ASSERT_TRUE(QDir(folder()).mkdir("taken"));
    expectError(
        RuntimeError::PathAccessError, [this] { writeWholeFile(path("taken"), "x"); }, path("taken"));
    EXPECT_TRUE(QFileInfo(path("taken")).isDir());
    EXPECT_EQ(names(), QStringList("taken"));
}

TEST_F(WriteWholeFile, AMissingFolderIsPathNotFound)
{
    expectError(
        RuntimeError::PathNotFound, [this] { writeWholeFile(path("none/file"), "x"); }, path("none/file"));
}

TEST_F(WriteWholeFile, AFolderWithoutWritePermissionIsPermissionDenied)
{
    put("file", "old");
    {
        const testing::ReadOnlyFolder readOnly(folder());
        expectError(
            RuntimeError::PermissionDenied, [this] { writeWholeFile(path("other"), "x"); }, path("other"));
        expectError(
            RuntimeError::PermissionDenied, [this] { writeWholeFile(path("file"), "x"); }, path("file"));
    }
    EXPECT_EQ(bytesOf("file"), "old");
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(WriteWholeFile, AFullDiskLeavesTheOldFileAndNoPartOfTheNewOne)
{
    put("file", "old");
    {
        const testing::FullDisk full(1000);
        expectError(
            RuntimeError::DiskFull, [this] { writeWholeFile(path("file"), QByteArray(5000, 'x')); },
            path("file"));
    }
    EXPECT_EQ(bytesOf("file"), "old");
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(WriteWholeFile, AfterAFailureTheSameWriteSucceedsWhenThereIsRoomAgain)
{
    {
        const testing::FullDisk full(0);
        EXPECT_THROW(writeWholeFile(path("file"), "new"), RuntimeError);
    }
    writeWholeFile(path("file"), "new");
    EXPECT_EQ(bytesOf("file"), "new");
}

TEST_F(WriteWholeFile, TheLongestNameThatTheSystemTakesCanBeReplaced)
{
    const QString name(255, u'n');
    put(name, "old");
    writeWholeFile(path(name), "new");
    EXPECT_EQ(bytesOf(name), "new");
    EXPECT_EQ(names(), QStringList(name));
}

TEST_F(WriteWholeFile, ANameThatIsTooLongIsAnErrorAndLeavesNothing)
{
    const QString name(256, u'n');
    expectError(
        RuntimeError::DeviceIoError, [&] { writeWholeFile(path(name), "new"); }, path(name));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(WriteWholeFile, AFailureOfTheRenameItselfIsAnErrorAndTheOldFileStays)
{
    put("file", "old");
    renameError = EACCES;
    expectError(
        RuntimeError::PermissionDenied, [this] { writeWholeFile(path("file"), "new"); }, path("file"));
    EXPECT_EQ(renameError, 0) << "no rename was tried";
    EXPECT_EQ(bytesOf("file"), "old");
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(WriteWholeFile, AnOldFileKeepsItsRights)
{
    put("file", "old");
    ASSERT_EQ(::chmod(QFile::encodeName(path("file")).constData(), 0640), 0);
    writeWholeFile(path("file"), "new");
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(path("file")).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST_F(WriteWholeFile, AReadOnlyFileIsPermissionDeniedAndStays)
{
    put("file", "old");
    ASSERT_EQ(::chmod(QFile::encodeName(folder()).constData(), 0777), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path("file")).constData(), 0444), 0);
    {
        const testing::Unprivileged user;
        expectError(
            RuntimeError::PermissionDenied, [this] { writeWholeFile(path("file"), "new"); }, path("file"));
    }
    EXPECT_EQ(bytesOf("file"), "old");
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(WriteWholeFile, ALinkStaysALinkAndItsFileIsReplaced)
{
    ASSERT_TRUE(QDir(folder()).mkdir("elsewhere"));
    put("elsewhere/file", "old");
    ASSERT_TRUE(QFile::link(path("elsewhere/file"), path("link")));
    writeWholeFile(path("link"), "new");
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    EXPECT_EQ(bytesOf("elsewhere/file"), "new");
    EXPECT_EQ(names(), (QStringList{"elsewhere", "link"}));
}

TEST_F(WriteWholeFile, APipeIsADeviceErrorAndDoesNotHoldUpTheProgram)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    expectError(
        RuntimeError::DeviceIoError, [this] { writeWholeFile(path("pipe"), "x"); }, path("pipe"));
    EXPECT_EQ(names(), QStringList("pipe"));
}

TEST_F(WriteWholeFile, AnEmptyNameIsNoFile)
{
    EXPECT_THROW(writeWholeFile(QString(), "x"), RuntimeError);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(WriteWholeFile, AZeroByteInThePathNamesNoOtherFile)
{
    put("file", "old");
    EXPECT_THROW(writeWholeFile(path("file") + QChar::Null + "tail", "new"), RuntimeError);
    EXPECT_EQ(bytesOf("file"), "old");
}

TEST_F(WriteScratchFile, PutsEveryByteInPlaceOfAnOldFile)
{
    put("Größe.txt", QByteArray(5000, 'x'));
    const QByteArray bytes("a\n\0\r\x1A\xFF", 6);
    writeScratchFile(path("Größe.txt"), bytes);
    writeScratchFile(path("new"), {});
    EXPECT_EQ(bytesOf("Größe.txt"), bytes);
    EXPECT_EQ(bytesOf("new"), QByteArray());
    EXPECT_EQ(names(), (QStringList{"Größe.txt", "new"}));
}

TEST_F(WriteScratchFile, OnAFullDiskLeavesTheOldFileAlone)
{
    put("file", "old");
    {
        const testing::FullDisk full(10);
        expectError(
            RuntimeError::DiskFull, [this] { writeScratchFile(path("file"), QByteArray(100, 'x')); },
            path("file"));
    }
    EXPECT_EQ(bytesOf("file"), "old");
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(WriteScratchFile, OverAFolderOrInAMissingOneIsAnError)
{
    QDir(folder()).mkdir("sub");
    expectError(
        RuntimeError::PathAccessError, [this] { writeScratchFile(path("sub"), "x"); }, path("sub"));
    expectError(
        RuntimeError::PathNotFound, [this] { writeScratchFile(path("none/file"), "x"); }, path("none/file"));
    EXPECT_EQ(names(), QStringList("sub"));
}

TEST_F(WriteScratchFile, InAReadOnlyFolderIsPermissionDenied)
{
    const testing::ReadOnlyFolder readOnly(folder());
    expectError(
        RuntimeError::PermissionDenied, [this] { writeScratchFile(path("file"), "x"); }, path("file"));
}

TEST_F(WriteScratchFile, AZeroByteInThePathNamesNoOtherFile)
{
    EXPECT_THROW(writeScratchFile(path("file") + QChar::Null + "tail", "x"), RuntimeError);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(RequireWritableFolder, AWritableFolderPassesAndStaysAsItWas)
{
    put("file", "x");
    EXPECT_NO_THROW(requireWritableFolder(folder()));
    EXPECT_NO_THROW(requireWritableFolder(folder() + '/'));
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(RequireWritableFolder, AMissingFolderIsPathNotFound)
{
    expectError(
        RuntimeError::PathNotFound, [this] { requireWritableFolder(path("none")); }, path("none"));
    expectError(
        RuntimeError::PathNotFound, [] { requireWritableFolder(QString()); }, QString());
}

TEST_F(RequireWritableFolder, AFileInItsPlaceIsPathNotFound)
{
    put("file", "x");
    expectError(
        RuntimeError::PathNotFound, [this] { requireWritableFolder(path("file")); }, path("file"));
}

TEST_F(RequireWritableFolder, AFolderWithoutWritePermissionIsPermissionDenied)
{
    const testing::ReadOnlyFolder readOnly(folder());
    expectError(
        RuntimeError::PermissionDenied, [this] { requireWritableFolder(folder()); }, folder());
}

TEST_F(RequireWritableFolder, AFullDiskShowsAndNothingIsLeftBehind)
{
    {
        const testing::FullDisk full(0);
        expectError(
            RuntimeError::DiskFull, [this] { requireWritableFolder(folder()); }, folder());
    }
    EXPECT_EQ(names(), QStringList());
}

TEST_F(RequireWritableFolder, ADiskWithRoomForAPartOfABlockIsFull)
{
    const testing::FullDisk full(100);
    expectError(
        RuntimeError::DiskFull, [this] { requireWritableFolder(folder()); }, folder());
}

} // namespace
} // namespace torvane
