#include "platform/profile_store_fixture.h"
#include "support/failing_system.h"

namespace torvane::testing {
namespace {

using ProfileStoreReading = ProfileStoreTest;

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
        const Unprivileged other;
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
        const Unprivileged other;
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
        const Unprivileged other;
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
        const Unprivileged other;
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

} // namespace
} // namespace torvane::testing
