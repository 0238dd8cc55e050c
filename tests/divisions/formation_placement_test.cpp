#include "divisions/placement_fixture.h"

#include <cmath>
#include <numbers>

namespace torvane::testing {
namespace {

using ::testing::ElementsAre;

constexpr bool day = true;
constexpr bool night = false;

constexpr std::array spacings{500, 600, 700, 800, 900, 1000, 1500, 2000};

class Formations : public PlacementFixture
{
};

TEST(FormationWords, AreEnglishAndExact)
{
    EXPECT_EQ(formationOf(u"Column"), Formation::Column);
    EXPECT_EQ(formationOf(u"Line of Bearing"), Formation::LineOfBearing);
    EXPECT_EQ(formationOf(u"Convoy"), Formation::Convoy);
    for (const QStringView word : {u"Kolonne", u"Peilung", u"Konvoi", u"column", u"INVALID", u""}) {
        EXPECT_EQ(formationOf(word), std::nullopt);
    }
}

TEST(ConvoyOffset, HasItsValueInEveryCell)
{
    // Places from first to last, a line a count of ships.
    const std::array<const char*, 10> rows{
        "0,0",
        "-.5,0 .5,0",
        "-.5,-.5 .5,-.5 -.5,.5",
        "-.5,-.5 .5,-.5 -.5,.5 .5,.5",
        "-1,-.5 0,-.5 1,-.5 -.5,.5 .5,.5",
        "-1,-.5 0,-.5 1,-.5 -1,.5 0,.5 1,.5",
        "-1,-1 0,-1 1,-1 -1,0 0,0 1,0 0,1",
        "-2,-.5 -.5,-.5 .5,-.5 2,-.5 -2,.5 -.5,.5 .5,.5 2,.5",
        "-1,-1 0,-1 1,-1 -1,0 0,0 1,0 -1,1 0,1 1,1",
        "-2,-1 -.5,-1 .5,-1 2,-1 -2,0 -.5,0 .5,0 2,0 -.5,1.5 .5,1.5",
    };
    for (int count = 1; count <= 10; ++count) {
        const QStringList cells = QString::fromLatin1(rows[static_cast<std::size_t>(count - 1)]).split(u' ');
        ASSERT_EQ(cells.size(), count);
        for (int place = 1; place <= 10; ++place) {
            EXPECT_EQ(convoyOffset(count, place).toString(), cells.value(place - 1)) << count << ' ' << place;
        }
    }
}

TEST(ConvoyOffset, OutsideOneToTenIsASubscriptFailure)
{
    for (const int number : {-1, 0, 11}) {
        expectError(RuntimeError::SubscriptOutOfRange, [&] { convoyOffset(number, 1); });
        expectError(RuntimeError::SubscriptOutOfRange, [&] { convoyOffset(10, number); });
    }
}

TEST_F(Formations, AColumnOnHeadingNoughtLiesBelowItsLeader)
{
    make("Column", 3);
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,2000", "1000,2500", "1000,3000"));
}

TEST_F(Formations, AColumnOnHeadingNinetyLiesWestOfItsLeader)
{
    make("Column", 3, 500, 90);
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,2000", "500,2000", "0,2000"));
}

TEST_F(Formations, AColumnOnTheOtherQuartersLiesAsternToo)
{
    make("Column", 3, 500, 180);
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,2000", "1000,1500", "1000,1000"));
    make("Column", 3, 500, 270);
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,2000", "1500,2000", "2000,2000"));
}

TEST_F(Formations, ALineOfBearingOnHeadingNoughtLiesToTheRight)
{
    make("Line of Bearing", 3);
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,2000", "1500,2000", "2000,2000"));
}

TEST_F(Formations, ALineOfBearingTurnsWithItsCourse)
{
    make("Line of Bearing", 3, 500, 90);
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,2000", "1000,2500", "1000,3000"));
    make("Line of Bearing", 3, 500, 180);
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,2000", "500,2000", "0,2000"));
}

TEST_F(Formations, AConvoyOfSevenHasItsFifthShipOnTheAnchorWhateverTheHeading)
{
    for (const int heading : {0, 45, 90, 211, 360}) {
        make("Convoy", 7, 500, heading);
        place();
        EXPECT_THAT(positions(7), ElementsAre("500,1500", "1000,1500", "1500,1500", "500,2000", "1000,2000",
                                              "1500,2000", "1000,2500"));
    }
}

TEST_F(Formations, AConvoysHalfStepsAreRoundedOnTheMapTiesToEven)
{
    make("Convoy", 2, 900);
    view.zoomIndex = 2; // 120 yards a pixel: a step of 7.5 is 8 pixels
    view.mapScale = 120;
    place();
    EXPECT_THAT(positions(2), ElementsAre("11520,24000", "12480,24000")) << "96 and 104";
    view.zoomIndex = 1; // 240 yards a pixel: a step of 3.75 is 4 pixels
    view.mapScale = 240;
    make("Convoy", 2, 700); // 2.92 are 3 pixels, half of it is 1.5
    place();
    EXPECT_THAT(positions(2), ElementsAre("23520,48000", "24480,48000")) << "98.5 is 98, 101.5 is 102";
    view.anchorX = 101;
    place();
    EXPECT_THAT(positions(2), ElementsAre("24000,48000", "24480,48000")) << "99.5 is 100, 102.5 is 102";
    view.anchorZ = 201;
    make("Convoy", 3, 700);
    place();
    EXPECT_THAT(positions(3), ElementsAre("24000,48000", "24480,48000", "24000,48480"));
}

TEST_F(Formations, ASpacingOfUnevenPixelsIsRoundedOnceAndTheErrorGrowsAlongTheLine)
{
    make("Column", 10, 500);
    view.zoomIndex = 4; // 60 yards a pixel: 8.33 are 8 pixels, 480 yards
    view.mapScale = 60;
    place();
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(yards(i), (Yards{6000, 12000 + i * 480}));
    }
    view.zoomIndex = 3; // 80 yards a pixel: 6.25 are 6 pixels
    view.mapScale = 80;
    place();
    EXPECT_EQ(yards(9), (Yards{8000, 16000 + 9 * 480}));
    view.zoomIndex = 10; // 960 yards a pixel: 0.52 are 1 pixel
    view.mapScale = 960;
    place();
    EXPECT_EQ(yards(9), (Yards{96000, 192000 + 9 * 960}));
}

TEST_F(Formations, ASpacingOfHalfAPixelGoesToTheEvenOne)
{
    view.zoomIndex = 1;
    view.mapScale = 240;
    make("Line of Bearing", 2, 600); // 2.5
    place();
    EXPECT_EQ(yards(1), (Yards{24000 + 2 * 240, 48000}));
    view.zoomIndex = 2;
    view.mapScale = 120;
    make("Line of Bearing", 2, 900); // 7.5
    place();
    EXPECT_EQ(yards(1), (Yards{12000 + 8 * 120, 24000}));
}

TEST_F(Formations, AtNightAPixelIsHalfAsManyYards)
{
    make("Column", 2);
    view.mapScale = 5;
    place("Blue 1", night);
    EXPECT_THAT(positions(2), ElementsAre("500,1000", "500,1500"));
    EXPECT_EQ(view.mapScale, 5.0F);
}

TEST_F(Formations, HeadingThreeHundredAndSixtyGivesTheSameAsNought)
{
    for (const char* const formation : {"Column", "Line of Bearing"}) {
        make(formation, 10, 1500, 0);
        place();
        const std::vector<std::string> atNought = positions(10);
        make(formation, 10, 1500, 360);
        place();
        EXPECT_EQ(positions(10), atNought);
    }
}

TEST_F(Formations, AnEditedConvoyShiftsByItsFirstShipsOffset)
{
    make("Convoy", 4);
    place();
    EXPECT_THAT(positions(4), ElementsAre("750,1750", "1250,1750", "750,2250", "1250,2250"));
    view.cursorYardsX = 750;
    view.cursorYardsY = 1750;
    anchorFromPosition(view, day);
    place();
    EXPECT_THAT(positions(4), ElementsAre("500,1500", "1000,1500", "500,2000", "1000,2000"))
        << "75 - 25 and 175 - 25 pixels";
}

TEST_F(Formations, AnEditedColumnStaysWhereItWas)
{
    make("Column", 3, 500, 45);
    place();
    const std::vector<std::string> before = positions(3);
    view.cursorYardsX = 1000;
    view.cursorYardsY = 2000;
    anchorFromPosition(view, day);
    place();
    EXPECT_EQ(positions(3), before);
}

TEST_F(Formations, TheFlagshipMovesNoShip)
{
    make("Column", 3, 500, 20);
    place();
    const std::vector<std::string> before = positions(3);
    set(QStringLiteral("DIVISION0"), "FLAGSHIPINDEX", QStringLiteral("2"));
    place();
    EXPECT_EQ(positions(3), before);
}

TEST_F(Formations, TheWriteTakesTheScaleOfTheTableTheStepThatOfTheView)
{
    make("Column", 2, 500);
    view.mapScale = 50;
    place();
    EXPECT_THAT(positions(2), ElementsAre("1000,2000", "1000,2100")) << "10 pixels of 10 yards";
    EXPECT_EQ(view.mapScale, 10.0F);
}

TEST_F(Formations, ATurnedPointIsRoundedAboutTheAnchor)
{
    make("Column", 1);
    // 60 degrees: 50 pixels astern are 43.30 to the left and 25 up from there.
    placement.rotateShipAboutAnchor({100, 250}, 60, QStringLiteral("A0"), QStringLiteral("Small"), day);
    EXPECT_EQ(position(0, 0), "570,2250");
    placement.rotateShipAboutAnchor({160, 280}, 45, QStringLiteral("A0"), QStringLiteral("Small"), day);
    EXPECT_EQ(position(0, 0), "860,2990") << "-20 and 140 over the root of 2";
}

TEST_F(Formations, AnUnknownClassIsNoHindranceAndNoSizeMovesAShip)
{
    make("Column", 3);
    addShip(0, 1, QStringLiteral("A1"), QStringLiteral("No such class"));
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,2000", "1000,2500", "1000,3000"));
}

TEST_F(Formations, HalfAPixelOfATurnGoesToTheEvenOne)
{
    make("Column", 1);
    // At 330 degrees a point astern lies half its distance to the right.
    for (const auto& [distance, expected] :
         {std::pair{49, "1240,2420"}, {51, "1260,2440"}, {53, "1260,2460"}}) {
        placement.rotateShipAboutAnchor({100, 200 + distance}, 330, QStringLiteral("A0"),
                                        QStringLiteral("Small"), day);
        EXPECT_EQ(position(0, 0), expected) << distance;
    }
    // And a point to the right half its distance up. At 30 degrees it is down, where the sine of single
    // precision is a little more than a half.
    for (const auto& [heading, distance, expected] : {std::tuple{330, 49, "1420,1760"},
                                                      {330, 51, "1440,1740"},
                                                      {330, 53, "1460,1740"},
                                                      {30, 49, "1420,2250"},
                                                      {30, 51, "1440,2260"},
                                                      {30, 53, "1460,2270"}}) {
        placement.rotateShipAboutAnchor({100 + distance, 200}, static_cast<std::int16_t>(heading),
                                        QStringLiteral("A0"), QStringLiteral("Small"), day);
        EXPECT_EQ(position(0, 0), expected) << heading << ' ' << distance;
    }
}

/// How far a whole number lies from where the geometry of the plane puts it.
double miss(int found, double exact)
{
    return std::abs(found - exact);
}

/// A line is a ray from the anchor: astern for a column, to starboard for a line of bearing. `distance` in
/// pixels of `scale` yards.
void expectOnTheRay(Yards ship, double bearing, int distance, PixelOffset anchor, int scale,
                    const std::string& what)
{
    const double radians = bearing * std::numbers::pi / 180;
    // Half a pixel for the rounding, and a little for single precision.
    constexpr double tolerance = 0.501;
    EXPECT_LE(miss(ship.x / scale, anchor.x + distance * std::sin(radians)), tolerance) << what;
    EXPECT_LE(miss(ship.z / scale, anchor.z - distance * std::cos(radians)), tolerance) << what;
    EXPECT_EQ(ship.x % scale, 0) << what;
    EXPECT_EQ(ship.z % scale, 0) << what;
}

/// Whole numbers divided, to the nearest, ties to even.
int nearest(int dividend, int divisor)
{
    const int floor = dividend / divisor;
    const int twice = 2 * (dividend % divisor);
    return twice > divisor || (twice == divisor && floor % 2 == 1) ? floor + 1 : floor;
}

/// A formation and where its line runs, seen along the course, in degrees.
struct Line
{
    const char* formation;
    int bearing;
};
constexpr std::array lines{Line{"Column", 180}, Line{"Line of Bearing", 90}};

class FormationsOfSpacing : public Formations, public ::testing::WithParamInterface<int>
{
};
INSTANTIATE_TEST_SUITE_P(Spacings, FormationsOfSpacing, ::testing::ValuesIn(spacings));

/// The zoom levels whose day and night scales, between them, divide some spacings and cut others.
constexpr std::array<std::int16_t, 3> scaledLevels{11, 4, 1};

TEST_P(FormationsOfSpacing, EveryLineOnEveryCourseLiesOnItsRay)
{
    const int spacing = GetParam();
    const ProfileStore::Batch batch(store);
    for (const std::int16_t zoomIndex : scaledLevels) {
        view.zoomIndex = zoomIndex;
        const int scale = mapScale(zoomIndex, day);
        view.mapScale = static_cast<float>(scale);
        for (const Line& line : lines) {
            make(line.formation, 10, spacing);
            for (int heading = 0; heading < 360; heading += zoomIndex == 11 ? 1 : 29) {
                set(divisionSection(0), "FORMATIONHEADING", QString::number(heading));
                place();
                for (int i = 0; i < 10; ++i) {
                    expectOnTheRay(yards(i), heading + line.bearing, i * nearest(spacing, scale),
                                   view.anchor(), scale,
                                   std::string(line.formation) + ' ' + std::to_string(scale) + ' ' +
                                       std::to_string(heading) + ' ' + std::to_string(i));
                }
                ASSERT_FALSE(HasFailure());
            }
        }
    }
}

TEST_F(Formations, EveryLengthOfALinePlacesItsShipsAsTheWholeLineDoesAndNoOthers)
{
    const ProfileStore::Batch batch(store);
    for (const Line& line : lines) {
        make(line.formation, 10, 700, 37);
        place();
        const std::vector<std::string> whole = positions(10);
        for (int count = 1; count < 10; ++count) {
            make(line.formation, 10, 700, 37);
            set(divisionSection(0), "SHIPCNT", QString::number(count));
            place();
            for (int i = 0; i < 10; ++i) {
                EXPECT_EQ(position(0, i), i < count ? whole[static_cast<std::size_t>(i)] : untouched)
                    << line.formation << ' ' << count << ' ' << i;
            }
        }
    }
}

class Convoys : public Formations, public ::testing::WithParamInterface<bool>
{
};
INSTANTIATE_TEST_SUITE_P(ByDayAndNight, Convoys, ::testing::Bool());

TEST_P(Convoys, OfEverySizeSpacingAndScaleStandByTheirTableWithinHalfAPixel)
{
    const bool byDay = GetParam();
    const ProfileStore::Batch batch(store);
    for (int zoomIndex = 1; zoomIndex <= 11; ++zoomIndex) {
        view.zoomIndex = static_cast<std::int16_t>(zoomIndex);
        const int scale = mapScale(zoomIndex, byDay);
        view.mapScale = static_cast<float>(scale);
        for (const int spacing : spacings) {
            const int step = nearest(spacing, scale);
            for (int count = 1; count <= 10; ++count) {
                make("Convoy", count, spacing, 77);
                place("Blue 1", byDay);
                for (int i = 0; i < count; ++i) {
                    const QStringList cell = convoyOffset(count, i + 1).toString().split(u',');
                    EXPECT_LE(miss(yards(i).x, scale * (100 + step * cell[0].toDouble())), scale / 2.0)
                        << scale << ' ' << spacing << ' ' << count << ' ' << i;
                    EXPECT_LE(miss(yards(i).z, scale * (200 + step * cell[1].toDouble())), scale / 2.0)
                        << scale << ' ' << spacing << ' ' << count << ' ' << i;
                    EXPECT_EQ(yards(i).x % scale, 0);
                    EXPECT_EQ(yards(i).z % scale, 0);
                }
            }
        }
    }
}

} // namespace
} // namespace torvane::testing
