#include "platform/text_files.h"

#include "platform/runtime_error.h"
#include "support/expect_error.h"
#include "support/failing_system.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
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

using ::testing::HasSubstr;

class TextFiles : public ::testing::Test
{
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }

    QStringList names() const
    {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                        QDir::NoDotAndDotDot);
    }

    void put(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray bytesOf(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
    }

    template <typename Call>
    static void expectError(RuntimeError::Number number, Call call, const QString& named)
    {
        testing::expectError(number, call, HasSubstr(named.toStdString()));
    }

private:
    QTemporaryDir m_folder;
};

class ReadWholeFile : public TextFiles
{
};
class WriteWholeFile : public TextFiles
{
};
class WriteScratchFile : public TextFiles
{
};
class DeleteFile : public TextFiles
{
};
class RequireWritableFolder : public TextFiles
{
};
class IsThere : public TextFiles
{
};
class RemoveUnfinishedFiles : public TextFiles
{
};

TEST_F(ReadWholeFile, GivesEveryByte)
{
    const QByteArray bytes("a\r\n\0\x1A\xFFz", 7);
    put("Größe.txt", bytes);
    EXPECT_EQ(readWholeFile(path("Größe.txt")), bytes);
}

TEST_F(ReadWholeFile, AnEmptyFileIsNoError)
{
    put("empty", {});
    EXPECT_EQ(readWholeFile(path("empty")), QByteArray());
}

TEST_F(ReadWholeFile, TakesFilesLongerThanAnyBuffer)
{
    const QByteArray bytes = QByteArray("0123456789").repeated(100'000);
    put("long", bytes);
    EXPECT_EQ(readWholeFile(path("long")), bytes);
}

TEST_F(ReadWholeFile, AMissingFileIsFileNotFound)
{
    expectError(
        RuntimeError::FileNotFound, [this] { readWholeFile(path("none")); }, path("none"));
}

TEST_F(ReadWholeFile, AFileUsedAsAFolderIsPathNotFound)
{
    put("file", "x");
    expectError(
        RuntimeError::PathNotFound, [this] { readWholeFile(path("file/below")); }, path("file/below"));
}

TEST_F(ReadWholeFile, AFolderIsAPathAccessError)
{
    expectError(
        RuntimeError::PathAccessError, [this] { readWholeFile(folder()); }, folder());
}

TEST_F(ReadWholeFile, AnUnreadableFileIsPermissionDenied)
{
    put("secret", "x");
    QFile::setPermissions(path("secret"), {});
    const testing::Unprivileged nobody;
    expectError(
        RuntimeError::PermissionDenied, [this] { readWholeFile(path("secret")); }, path("secret"));
}

TEST_F(ReadWholeFile, APipeDoesNotHoldUpTheProgram)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe")).constData(), 0600), 0);
    expectError(
        RuntimeError::DeviceIoError, [this] { readWholeFile(path("pipe")); }, path("pipe"));
}

TEST_F(ReadWholeFile, AZeroByteInThePathNamesNoOtherFile)
{
    put("file", "x");
    EXPECT_THROW(readWholeFile(path("file") + QChar::Null + "tail"), RuntimeError);
}

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

TEST_F(DeleteFile, DeletesTheFileAndNothingElse)
{
    put("file", "x");
    put("file2", "x");
    deleteFile(path("file"));
    EXPECT_EQ(names(), QStringList("file2"));
}

TEST_F(DeleteFile, AMissingFileIsNoError)
{
    EXPECT_NO_THROW(deleteFile(path("none")));
    EXPECT_NO_THROW(deleteFile(path("none/below")));
    put("file", "x");
    EXPECT_NO_THROW(deleteFile(path("file/below")));
}

TEST_F(DeleteFile, AFolderIsAnErrorAndStays)
{
    ASSERT_TRUE(QDir(folder()).mkdir("taken"));
    expectError(
        RuntimeError::PathAccessError, [this] { deleteFile(path("taken")); }, path("taken"));
    EXPECT_TRUE(QFileInfo(path("taken")).isDir());
}

TEST_F(DeleteFile, AFolderWithoutWritePermissionIsPermissionDenied)
{
    put("file", "x");
    {
        const testing::ReadOnlyFolder readOnly(folder());
        expectError(
            RuntimeError::PermissionDenied, [this] { deleteFile(path("file")); }, path("file"));
    }
    EXPECT_EQ(bytesOf("file"), "x");
}

TEST_F(DeleteFile, TheTargetOfALinkStays)
{
    put("file", "x");
    ASSERT_TRUE(QFile::link(path("file"), path("link")));
    deleteFile(path("link"));
    EXPECT_EQ(names(), QStringList("file"));
}

TEST_F(DeleteFile, ALinkToNothingIsDeleted)
{
    ASSERT_TRUE(QFile::link(path("none"), path("link")));
    deleteFile(path("link"));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(DeleteFile, AZeroByteInThePathNamesNoOtherFile)
{
    put("file", "x");
    EXPECT_THROW(deleteFile(path("file") + QChar::Null + "tail"), RuntimeError);
    EXPECT_EQ(bytesOf("file"), "x");
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

TEST_F(IsThere, TellsAFileAndAFolderFromNothing)
{
    put("file", "x");
    EXPECT_TRUE(isThere(path("file")));
    EXPECT_TRUE(isThere(folder()));
    EXPECT_FALSE(isThere(path("other")));
    EXPECT_FALSE(isThere(path("file/below")));
}

TEST_F(IsThere, WhatCannotBeSeenIsAnErrorAndNotTakenForMissing)
{
    put("file", "x");
    const testing::ClosedFolder closed(folder());
    expectError(
        RuntimeError::PermissionDenied, [this] { isThere(path("file")); }, path("file"));
}

TEST_F(RemoveUnfinishedFiles, DeletesWhatAKilledWriteLeavesAndNothingElse)
{
    for (const char* name : {".torvane-aZ09bY", ".torvane-abcdef", ".torvane-", ".torvane-abcdefg",
                             "x.torvane-abcdef", "First.scn", "First.scn.backup"}) {
        put(name, "x");
    }
    ASSERT_TRUE(QDir(folder()).mkdir(".torvane-folder"));
    removeUnfinishedFiles(folder());
    EXPECT_THAT(names(),
                ::testing::UnorderedElementsAre(".torvane-", ".torvane-abcdefg", ".torvane-folder",
                                                "First.scn", "First.scn.backup", "x.torvane-abcdef"));
}

TEST_F(RemoveUnfinishedFiles, AMissingFolderAndAFileThatCannotBeDeletedAreNoErrors)
{
    EXPECT_NO_THROW(removeUnfinishedFiles(path("none")));
    put(".torvane-abcdef", "x");
    {
        const testing::ReadOnlyFolder readOnly(folder());
        EXPECT_NO_THROW(removeUnfinishedFiles(folder()));
    }
    EXPECT_EQ(names(), QStringList(".torvane-abcdef"));
}

} // namespace
} // namespace torvane
