#include "platform/text_files.h"

#include "platform/runtime_error.h"
#include "support/expect_error.h"
#include "support/failing_system.h"
#include "support/printers.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

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

TEST_F(WriteWholeFile, AFailureOfTheRenameItselfIsAnErrorAndTheOldFileStays)
{
    // The name is legal, but the one beside it, seven characters longer, is not.
    const QString name(252, u'n');
    put(name, "old");
    expectError(
        RuntimeError::DeviceIoError, [&] { writeWholeFile(path(name), "new"); }, path(name));
    EXPECT_EQ(bytesOf(name), "old");
    EXPECT_EQ(names(), QStringList(name));
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

} // namespace
} // namespace torvane
