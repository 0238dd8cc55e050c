#include "platform/profile_store_fixture.h"
#include "platform/runtime_error.h"

#include <stdexcept>

namespace torvane::testing {
namespace {

using ::testing::ElementsAre;

using ProfileStoreWriting = ProfileStoreTest;
using ProfileStoreBatch = ProfileStoreTest;
using ProfileStoreRemoving = ProfileStoreTest;

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

} // namespace
} // namespace torvane::testing
