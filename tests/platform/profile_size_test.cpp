#include "platform/profile_fixture.h"

namespace torvane::testing {
namespace {

constexpr qsizetype hundredMegabytes = 100'000'000;

QByteArray repeated(const QByteArray& block, qsizetype size)
{
    return block.repeated(size / block.size());
}

// These end within the time limit of a test only if work grows in proportion to the input.

TEST(ProfileSize, AFileOfAHundredMegabytesOfOneKey)
{
    const QByteArray file = "[A]\r\n" + repeated("KEY=value\r\n", hundredMegabytes) + "LAST=1\r\n";
    const Profile profile = Profile::parse(file);
    EXPECT_EQ(found(profile, "A", "KEY"), "value");
    EXPECT_EQ(found(profile, "A", "LAST"), "1");
    EXPECT_TRUE(profile.bytes() == file);
}

TEST(ProfileSize, AHundredMegabytesOfCarriageReturns)
{
    Profile profile = Profile::parse(QByteArray(hundredMegabytes, '\r') + "X=1");
    EXPECT_EQ(found(profile, "", "X"), "1");
    EXPECT_EQ(profile.bytes().size(), 2 * hundredMegabytes + 5);
}

TEST(ProfileSize, AHundredMegabytesOfLinesThatEndInCr)
{
    const Profile profile = Profile::parse("[A]\r" + repeated("KEY=value\r", hundredMegabytes) + "LAST=1");
    EXPECT_EQ(found(profile, "A", "LAST"), "1");
    EXPECT_EQ(profile.bytes().size(), 5 + hundredMegabytes / 10 * 11 + 8);
}

TEST(ProfileSize, AHundredMegabytesOfOpenBracketsAreOneLine)
{
    const Profile profile = Profile::parse(QByteArray(hundredMegabytes, '[') + "=1");
    EXPECT_EQ(found(profile, "", QByteArray(hundredMegabytes, '[')), "1");
}

TEST(ProfileSize, AHundredMegabytesOfHeadsOfOneName)
{
    const Profile profile = Profile::parse(repeated("[A]\nX=1\n", hundredMegabytes) + "[B]\nX=2\n");
    EXPECT_EQ(found(profile, "A", "X"), "1");
    EXPECT_EQ(found(profile, "B", "X"), "2");
}

TEST(ProfileSize, ALineOfTenMegabytes)
{
    const QByteArray longText(10'000'000, 'x');
    Profile profile =
        Profile::parse("[A]\r\nX=" + longText + "\r\n" + longText + "=1\r\n[" + longText + "]\r\nY=2\r\n");
    EXPECT_TRUE(found(profile, "A", "X") == longText);
    EXPECT_EQ(found(profile, "A", longText), "1");
    EXPECT_EQ(found(profile, longText, "Y"), "2");
    for (int i = 0; i < 20; ++i) {
        profile.setValue("A", "X", longText + QByteArray::number(i));
    }
    EXPECT_TRUE(valueIn(profile.bytes(), "A", "X") == longText + "19");
}

TEST(ProfileSize, AMillionSectionsAndAsManyWrites)
{
    QByteArray file;
    constexpr int count = 1'000'000;
    for (int i = 0; i < count; ++i) {
        file += '[' + QByteArray::number(i) + "]\r\n";
    }
    Profile profile = Profile::parse(file);
    for (int i = 0; i < count; ++i) {
        profile.setValue(QByteArray::number(i), "K", QByteArray::number(i));
    }
    for (int i = 0; i < 1000; ++i) {
        profile.setValue("N" + QByteArray::number(i), "K", "1");
    }
    const Profile again = Profile::parse(profile.bytes());
    for (const int i : {0, 1, 500'000, count - 1}) {
        EXPECT_EQ(found(again, QByteArray::number(i), "K"), QByteArray::number(i));
    }
    EXPECT_EQ(found(again, "N999", "K"), "1");
}

TEST(ProfileSize, AMillionKeysWrittenIntoTheFirstOfTwoSectionsAreAllFound)
{
    Profile profile = Profile::parse("[A]\r\nX=1\r\n[B]\r\nX=1\r\n");
    constexpr int count = 1'000'000;
    for (int i = 0; i < count; ++i) {
        profile.setValue("A", QByteArray::number(i), QByteArray::number(i));
    }
    const QByteArray bytes = profile.bytes();
    EXPECT_TRUE(bytes.endsWith("\r\n999999=999999\r\n[B]\r\nX=1\r\n"));
    // So many names hold some whose 32-bit hashes are the same.
    const Profile again = Profile::parse(bytes);
    int wrong = 0;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        wrong += profile.value("A", number) == number && again.value("A", number) == number ? 0 : 1;
    }
    EXPECT_EQ(wrong, 0);
}

TEST(ProfileSize, KeysThatCollideUnderSimpleHashesCostNoMore)
{
    // Under h*31+c "Aa" and "BB" are alike, and so are all names of such pairs.
    QByteArray file = "[A]\r\n";
    constexpr int bits = 17;
    for (int i = 0; i < 1 << bits; ++i) {
        for (int bit = 0; bit < bits; ++bit) {
            file += ((i >> bit) & 1) != 0 ? "BB" : "Aa";
        }
        file += "=" + QByteArray::number(i) + "\r\n";
    }
    const Profile profile = Profile::parse(file);
    EXPECT_EQ(found(profile, "A", QByteArray("Aa").repeated(bits)), "0");
    EXPECT_EQ(found(profile, "A", QByteArray("bb").repeated(bits)), QByteArray::number((1 << bits) - 1));
}

TEST(ProfileSize, WritingOneKeyOverAndOverTakesNoMoreRoom)
{
    Profile profile = Profile::parse("[A]\r\nX=1\r\n");
    for (int i = 0; i < 2'000'000; ++i) {
        profile.setValue("A", "X", QByteArray::number(i));
    }
    EXPECT_EQ(profile.bytes(), "[A]\r\nX=1999999\r\n");
}

} // namespace
} // namespace torvane::testing
