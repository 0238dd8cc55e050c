#include "platform/profile_fixture.h"
#include "platform/runtime_error.h"

namespace torvane::testing {
namespace {

void expectRefused(QByteArrayView section, QByteArrayView key, QByteArrayView value = "v")
{
    Profile profile = Profile::parse("[S]\r\nK=1\r\n");
    try {
        profile.setValue(section, key, value);
        ADD_FAILURE() << "accepted: " << section.toByteArray().toStdString() << " / "
                      << key.toByteArray().toStdString();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeError::InvalidProcedureCall);
    }
    EXPECT_EQ(profile.bytes(), "[S]\r\nK=1\r\n") << "a refused write must leave no trace";
}

TEST(ProfileNames, ANameWithALineBreakIsRefused)
{
    expectRefused("S\n", "K");
    expectRefused("S\rT", "K");
    expectRefused("S", "\nK");
    expectRefused("S", "K\r");
}

TEST(ProfileNames, ASectionWithAClosingBracketIsRefused)
{
    expectRefused("S]", "K");
    expectRefused("]", "K");
}

TEST(ProfileNames, AKeyWithAnEqualsSignIsRefused)
{
    expectRefused("S", "K=L");
    expectRefused("S", "=");
}

TEST(ProfileNames, AKeyThatWouldBeACommentIsRefused)
{
    expectRefused("S", ";K");
    expectRefused("S", " ;K");
}

TEST(ProfileNames, AKeyThatWouldBeReadAsAHeadIsRefused)
{
    expectRefused("S", "[K]");
    expectRefused("S", " [K]L");
    expectRefused("S", "[K", "a]b");
    Profile profile;
    profile.setValue("S", "[K", "v");
    EXPECT_EQ(valueIn(profile.bytes(), "S", "[K"), "v");
    EXPECT_THROW(profile.setValue("S", "[K", "]"), RuntimeError) << "also over an old value";
    EXPECT_EQ(valueIn(profile.bytes(), "S", "[K"), "v");
}

TEST(ProfileNames, EveryOtherNameIsFoundAgain)
{
    const QList<QByteArray> names{"a;b",      "K]",      "a[b]", "\"K\"", "#",    "[",           "'",
                                  "\x80\xFF", raw("\0"), "a b",  "",      "K\vL", "\xEF\xBB\xBF"};
    for (const QByteArray& key : names) {
        Profile profile;
        profile.setValue("S", key, "v");
        EXPECT_EQ(valueIn(profile.bytes(), "S", key), "v") << key.toPercentEncoding().constData();
        EXPECT_EQ(found(profile, "S", key), "v") << key.toPercentEncoding().constData();
    }
    for (const QByteArray& section :
         {QByteArray("[S"), QByteArray(";S"), QByteArray("S=T"), QByteArray("\"S\"")}) {
        Profile profile;
        profile.setValue(section, "K", "v");
        EXPECT_EQ(valueIn(profile.bytes(), section, "K"), "v") << section.constData();
    }
}

} // namespace
} // namespace torvane::testing
