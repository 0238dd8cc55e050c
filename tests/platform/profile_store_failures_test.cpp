#include "platform/profile_store_fixture.h"
#include "support/failing_system.h"

#include <stdexcept>

namespace torvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

using ProfileStoreFailures = ProfileStoreTest;

TEST_F(ProfileStoreFailures, AFullDiskIsReportedOnceAndTheNextEventSavesAll)
{
    write(u"S", u"OLD", QStringLiteral("1"));
    const QByteArray before = onDisk();
    {
        const FullDisk limit(8);
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
            const FullDisk limit(8);
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
        const FullDisk limit(8);
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
        const FullDisk limit(8);
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
        const Unprivileged other;
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
        const FullDisk limit(8);
        write(u"S", u"K", QStringLiteral("1"));
        store.remove(path());
        EXPECT_FALSE(store.exists(path()));
        write(u"S", u"K", QStringLiteral("2"));
    }
    EXPECT_THAT(failedPaths, SizeIs(2));
    emptyEvent();
    EXPECT_EQ(onDisk(), "[S]\r\nK=2\r\n");
}

} // namespace
} // namespace torvane::testing
