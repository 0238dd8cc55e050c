#include "platform/text_files_fixture.h"

namespace torvane {
namespace {

class DeleteFile : public testing::TextFiles
{
};
class RemoveUnfinishedFiles : public testing::TextFiles
{
};

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
