#include "platform/text_files_fixture.h"

#include <sys/stat.h>

namespace torvane {
namespace {

class ReadWholeFile : public testing::TextFiles
{
};
class IsThere : public testing::TextFiles
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

} // namespace
} // namespace torvane
