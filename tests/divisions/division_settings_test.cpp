#include "divisions/division_settings.h"

#include "divisions/records_fixture.h"

namespace torvane::testing {
namespace {

TEST(Heading, TurnsByFiveAndWrapsToTheOtherEnd)
{
    EXPECT_EQ(turnedHeading(u"0", 5), QStringLiteral("5"));
    EXPECT_EQ(turnedHeading(u"355", 5), QStringLiteral("360"));
    EXPECT_EQ(turnedHeading(u"358", 5), QStringLiteral("0"));
    EXPECT_EQ(turnedHeading(u"360", 5), QStringLiteral("0"));
    EXPECT_EQ(turnedHeading(u"5", -5), QStringLiteral("0"));
    EXPECT_EQ(turnedHeading(u"2", -5), QStringLiteral("360"));
    EXPECT_EQ(turnedHeading(u"360", -5), QStringLiteral("355"));
}

TEST(Heading, IsRoundedAfterTheTurn)
{
    EXPECT_EQ(turnedHeading(u"0.5", 5), QStringLiteral("6")) << "5.5 to the even neighbour";
    EXPECT_EQ(turnedHeading(u"355.4", 5), QStringLiteral("360"));
    EXPECT_EQ(turnedHeading(u"", 5), QStringLiteral("5"));
    EXPECT_EQ(turnedHeading(u"north", -5), QStringLiteral("360"));
    EXPECT_EQ(turnedHeading(u"1E400", 5), QStringLiteral("0"));
}

TEST(Heading, TypedCountsWithItsIntegerPart)
{
    EXPECT_EQ(typedHeading(u"90"), QStringLiteral("90"));
    EXPECT_EQ(typedHeading(u"090"), QStringLiteral("90"));
    EXPECT_EQ(typedHeading(u"90.9"), QStringLiteral("90"));
    EXPECT_EQ(typedHeading(u"360"), QStringLiteral("360"));
    EXPECT_EQ(typedHeading(u"360.9"), QStringLiteral("360"));
    EXPECT_EQ(typedHeading(u""), QStringLiteral("0"));
    EXPECT_EQ(typedHeading(u"INVALID"), QStringLiteral("0"));
}

TEST(Heading, OutsideTheCircleIsRefused)
{
    for (const QStringView text : {u"361", u"-1", u"-0.5", u"1E400", u"-1E400", u"9999999999"}) {
        EXPECT_EQ(typedHeading(text), std::nullopt) << text.toString().toStdString();
    }
}

TEST(HeadingMark, PointsItsBowWhereTheDivisionSails)
{
    const PixelOffset centre{40, 40};
    const PixelOffset north{40, 3};
    const PixelOffset south{40, 77};
    const PixelOffset east{77, 40};
    const PixelOffset west{3, 40};
    EXPECT_EQ(headingMark(centre, 0), (HeadingMark{north, south}));
    EXPECT_EQ(headingMark(centre, 90), (HeadingMark{east, west}));
    EXPECT_EQ(headingMark(centre, 180), (HeadingMark{south, north}));
    EXPECT_EQ(headingMark(centre, 270), (HeadingMark{west, east}));
    EXPECT_EQ(headingMark(centre, 360), (HeadingMark{north, south}));
}

TEST(HeadingMark, RoundsItsEndsToPixels)
{
    // 37 times the sine of 45 degrees is 26.16, of 30 degrees 18.5, which goes to the even neighbour.
    EXPECT_EQ(headingMark({40, 40}, 45), (HeadingMark{{66, 14}, {14, 66}}));
    EXPECT_EQ(headingMark({40, 40}, 30).bow.z, 8);
}

TEST(HeadingMark, IsAsLongAsTheCentresXAllowsEvenWhereThePictureIsNotSquare)
{
    EXPECT_EQ(headingMark({20, 50}, 0), (HeadingMark{{20, 33}, {20, 67}}));
}

TEST(HeadingMark, StandsInTheMiddleWithTiesToTheEvenPixel)
{
    EXPECT_EQ(pictureCentre(81, 81), (PixelOffset{40, 40}));
    EXPECT_EQ(pictureCentre(83, 84), (PixelOffset{42, 42}));
}

class Transports : public RecordsFixture
{
protected:
    std::optional<Side> force(const char* ddTransports, const char* blueForceType)
    {
        profile.write(u"SCENARIODATA", u"DDTRANSPORTS", QString::fromLatin1(ddTransports));
        profile.write(u"SCENARIODATA", u"BLUE_FORCE_TYPE", QString::fromLatin1(blueForceType));
        return transportingForce(profile);
    }
};

TEST_F(Transports, AreSailedByTheForceOfTheFirstRole)
{
    EXPECT_EQ(force("1", "0"), Side::Blue);
    EXPECT_EQ(force("1", "1"), Side::Red);
    EXPECT_EQ(force("1.0", "0"), Side::Blue) << "a number value";
}

TEST_F(Transports, AreSailedByNobodyInOtherScenarios)
{
    EXPECT_EQ(transportingForce(profile), std::nullopt);
    for (const char* transports : {"0", "", "2", "INVALID", "-1"}) {
        EXPECT_EQ(force(transports, "0"), std::nullopt) << transports;
    }
    for (const char* role : {"", "2", "00", "1.0", "INVALID"}) {
        EXPECT_EQ(force("1", role), std::nullopt) << role << ": compared as text";
    }
}

} // namespace
} // namespace torvane::testing
