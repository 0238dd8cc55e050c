#include "map/range_rings.h"

#include "platform/profile.h"
#include "store/ship_catalogue.h"
#include "support/catalogue_file.h"
#include "support/expect_error.h"
#include "support/printers.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <limits>

namespace torvane::testing {
namespace {

constexpr std::array<const char*, 6> types{"BB", "BC", "CA", "CL", "DD", "TR"};

/// A value of a table, read aloud: ring class, then type.
struct Cell
{
    const char* ringClass;
    std::array<std::int32_t, 6> yards; ///< by the type of the ship: BB, BC, CA, CL, DD, TR
};

constexpr std::array<Cell, 6> expectedVisibility{{
    {"BB", {36000, 36000, 32400, 32400, 28800, 32400}},
    {"BC", {36000, 36000, 32400, 32400, 28800, 32400}},
    {"CA", {32400, 32400, 29160, 29160, 25920, 29160}},
    {"CL", {32400, 32400, 29160, 29160, 25920, 29160}},
    {"DD", {28800, 28800, 25920, 25920, 23040, 25920}},
    {"TR", {36000, 36000, 29160, 29160, 25920, 26664}},
}};
constexpr std::array<Cell, 6> expectedRadar{{
    {"BB", {45000, 45000, 40500, 40500, 38250, 40500}},
    {"BC", {45000, 45000, 40500, 40500, 34425, 40500}},
    {"CA", {40500, 40500, 36450, 36450, 34425, 36450}},
    {"CL", {40500, 40500, 36450, 36450, 34425, 36450}},
    {"DD", {38250, 38250, 34425, 34425, 32512, 34425}},
    {"TR", {40500, 40500, 36450, 36450, 34425, 36450}},
}};

void expectTable(const RangeTable& table, const std::array<Cell, 6>& expected)
{
    for (std::size_t row = 0; row < 6; ++row) {
        for (std::size_t column = 0; column < 6; ++column) {
            const auto type = static_cast<int>(column + 1);
            const auto ringClass = static_cast<int>(row + 1);
            EXPECT_EQ(rangeOf(table, type, ringClass), expected.at(row).yards.at(column))
                << types.at(column) << " against " << expected.at(row).ringClass;
        }
    }
}

TEST(VisibilityRanges, HaveTheirYardsInEveryCell)
{
    expectTable(visibilityRangeTable, expectedVisibility);
}

TEST(RadarRanges, HaveTheirYardsInEveryCell)
{
    expectTable(radarRangeTable, expectedRadar);
}

TEST(RangeTables, EndAfterSixTypesAndSixClasses)
{
    for (const int beyond : {0, -1, 7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        expectError(RuntimeError::SubscriptOutOfRange, [&] { rangeOf(radarRangeTable, beyond, 1); });
        expectError(RuntimeError::SubscriptOutOfRange, [&] { rangeOf(radarRangeTable, 1, beyond); });
    }
}

TEST(TypeIndex, GoesFromBattleshipToTransport)
{
    for (std::size_t i = 0; i < types.size(); ++i) {
        EXPECT_EQ(typeIndex(QLatin1StringView(types.at(i)).toString()), static_cast<int>(i + 1));
    }
}

TEST(TypeIndex, DoesNotMindBlanksAndCase)
{
    EXPECT_EQ(typeIndex(u"  ca "), 3);
    EXPECT_EQ(typeIndex(u"Dd"), 5);
}

TEST(TypeIndex, OfAnyOtherTypeIsASubscriptFailure)
{
    for (const char16_t* type : {u"", u"CV", u"INVALID", u"B B", u"BBX", u"1"}) {
        expectError(RuntimeError::SubscriptOutOfRange, [&] { typeIndex(type); });
    }
}

TEST(RingClasses, AreBattleshipsCruisersAndDestroyersInTheirColours)
{
    constexpr std::array<int, 3> numbers{1, 3, 5};
    constexpr std::array<const char*, 3> labels{"BB", "CA", "DD"};
    constexpr std::array<MapColour, 3> sightColours{0xFFFFFF, 0x00FF00, 0xFFFF00};
    constexpr std::array<std::array<MapColour, 3>, 3> radarColours{
        {{128, 64, 0}, {192, 64, 0}, {255, 128, 0}}};
    for (std::size_t i = 0; i < ringClasses.size(); ++i) {
        const auto [red, green, blue] = radarColours.at(i);
        EXPECT_EQ(ringClasses.at(i).number, numbers.at(i));
        EXPECT_EQ(ringClasses.at(i).label, QLatin1StringView(labels.at(i)));
        EXPECT_EQ(ringClasses.at(i).visibilityColour, sightColours.at(i)) << labels.at(i);
        EXPECT_EQ(ringClasses.at(i).radarColour, (red << 16) + (green << 8) + blue) << labels.at(i);
    }
}

TEST(RingFilters, DrawTheClassOfTheirKeyAndAllClassesWithoutOne)
{
    const auto drawn = [](std::int16_t on, const char* key) {
        const MapToggles toggles{.ringFilterOn = on, .ringFilterKey = QLatin1StringView(key)};
        std::string labels;
        for (const RingClass& each : ringClasses) {
            labels += isDrawn(each, toggles) ? each.label.data() : "-";
        }
        return labels;
    };
    EXPECT_EQ(drawn(0, ""), "BBCADD");
    EXPECT_EQ(drawn(0, "F"), "BBCADD");
    EXPECT_EQ(drawn(-1, "B"), "BB--");
    EXPECT_EQ(drawn(-1, "C"), "-CA-");
    EXPECT_EQ(drawn(-1, "D"), "--DD");
}

TEST(RadarRating, HasItsPercentForEachWord)
{
    EXPECT_EQ(radarRatingPercent(u"POOR"), 40);
    EXPECT_EQ(radarRatingPercent(u"AVERAGE"), 67);
    EXPECT_EQ(radarRatingPercent(u"GOOD"), 90);
    EXPECT_EQ(radarRatingPercent(u"EXCELLENT"), 100);
    EXPECT_EQ(radarRatingPercent(u"SUPERB"), 110);
    EXPECT_EQ(radarRatingPercent(u"Superb"), 110);
}

TEST(RadarRating, OfAnyOtherWordIsNought)
{
    for (const char16_t* word : {u"", u"INVALID", u"NONE", u"SUPERBER"}) {
        EXPECT_EQ(radarRatingPercent(word), 0);
    }
}

TEST(RadarRating, WithALeadingBlankIsNought)
{
    EXPECT_EQ(radarRatingPercent(u" GOOD"), 0);
    EXPECT_EQ(radarRatingPercent(u"GOOD "), 0);
}

TEST(RadarSea, HasItsPercentForEachState)
{
    constexpr std::array<int, 10> byState{100, 100, 100, 90, 83, 76, 70, 0, 0, 100};
    for (int state = 0; state < 10; ++state) {
        EXPECT_EQ(radarSeaPercent(QString::number(state)), byState.at(static_cast<std::size_t>(state)))
            << state;
    }
}

TEST(RadarSea, TakesTheNumberOfItsText)
{
    EXPECT_EQ(radarSeaPercent(u" 5 "), 76);
    EXPECT_EQ(radarSeaPercent(u"6 rough"), 70);
    EXPECT_EQ(radarSeaPercent(u"6.5"), 100);
    EXPECT_EQ(radarSeaPercent(u"-3"), 100);
    EXPECT_EQ(radarSeaPercent(u""), 100);
    EXPECT_EQ(radarSeaPercent(u"INVALID"), 100);
}

TEST(RadarRain, CountsForTheEnglishWordAlone)
{
    EXPECT_EQ(radarRainPercent(u"On"), 70);
    EXPECT_EQ(radarRainPercent(u" ON "), 70);
    for (const char16_t* word : {u"Off", u"", u"Ein", u"Aus", u"One"}) {
        EXPECT_EQ(radarRainPercent(word), 100);
    }
}

RingConditions clear(const char* visibility = "100 %", const char* radar = "100 %")
{
    return {.visibility = QLatin1StringView(visibility),
            .radar = QLatin1StringView(radar),
            .seaState = QStringLiteral("1"),
            .rain = QStringLiteral("Off")};
}

constexpr MapColour white = 0xFFFFFF;
constexpr MapColour green = 0x00FF00;
constexpr MapColour yellow = 0xFFFF00;
constexpr MapColour brown = 0x804000;
constexpr MapColour rust = 0xC04000;
constexpr MapColour orange = 0xFF8000;

Ring ring(int radius, MapColour colour, const char* label)
{
    return {.radius = radius, .colour = colour, .label = QLatin1StringView(label)};
}

std::vector<int> radii(const std::vector<Ring>& rings)
{
    std::vector<int> found;
    for (const Ring& ring : rings) {
        found.push_back(ring.radius);
    }
    return found;
}

TEST(VisibilityRings, AreThreeInTheColoursAndLabelsOfTheirClasses)
{
    EXPECT_THAT(
        visibilityRings(u"CA", 0, clear("80 %"), {}, 60),
        ::testing::ElementsAre(ring(432, white, "BB"), ring(388, green, "CA"), ring(345, yellow, "DD")));
}

TEST(VisibilityRings, OfAnExpertCruiserAtNightReach864PixelsAgainstDestroyers)
{
    EXPECT_EQ(visibilityRings(u"CA", 20, clear("80 %"), {}, 30).back().radius, 864);
}

TEST(VisibilityRings, OfAHundredPercentAndExpertsGrowBeyondTheTable)
{
    EXPECT_EQ(radii(visibilityRings(u"BB", 20, clear(), {}, 10)), (std::vector{4320, 3888, 3456}));
}

TEST(VisibilityRings, RoundTheYardsAndThenCutThePixels)
{
    // 3 % of 23040 yards are 691.2, of 25920 777.6, of 28800 864.
    EXPECT_EQ(radii(visibilityRings(u"DD", 0, clear("3"), {}, 1)), (std::vector{864, 778, 691}));
    EXPECT_EQ(radii(visibilityRings(u"DD", 0, clear("3"), {}, 5)), (std::vector{172, 155, 138}));
    EXPECT_EQ(radii(visibilityRings(u"DD", 0, clear("3"), {}, 480)), (std::vector{1, 1, 1}));
}

TEST(VisibilityRings, RoundThePercentageToTheEvenNeighbour)
{
    EXPECT_EQ(visibilityRings(u"BB", 0, clear("2.5"), {}, 1).front().radius, 720);
    EXPECT_EQ(visibilityRings(u"BB", 0, clear("3.5"), {}, 1).front().radius, 1440);
}

TEST(VisibilityRings, OfNoSightHaveTheRadiusNoughtAndThoseOfLessABelowOne)
{
    EXPECT_EQ(radii(visibilityRings(u"TR", -20, clear("20 %"), {}, 30)), (std::vector{0, 0, 0}));
    EXPECT_EQ(radii(visibilityRings(u"TR", -20, clear("10 %"), {}, 30)), (std::vector{-108, -98, -87}))
        << "-3240, -2916 and -2592 yards, down to the next pixel";
}

TEST(VisibilityRings, OfAnEmptyVisibilityHaveTheRadiusNought)
{
    EXPECT_EQ(radii(visibilityRings(u"BB", 0, clear(""), {}, 60)), (std::vector{0, 0, 0}));
    EXPECT_EQ(radii(visibilityRings(u"BB", 0, clear("INVALID %"), {}, 60)), (std::vector{0, 0, 0}));
}

TEST(VisibilityRings, OfAPercentageBeyondSixteenBitsOverflow)
{
    EXPECT_EQ(visibilityRings(u"BB", 0, clear("32767"), {}, 5).front().radius, 2359224);
    expectError(RuntimeError::Overflow, [] { visibilityRings(u"BB", 0, clear("32768"), {}, 5); });
    expectError(RuntimeError::Overflow, [] { visibilityRings(u"BB", 20, clear("32760"), {}, 5); });
}

TEST(VisibilityRings, OfAnUnknownTypeAreASubscriptFailure)
{
    expectError(RuntimeError::SubscriptOutOfRange, [] { visibilityRings(u"CV", 0, clear(), {}, 60); });
}

TEST(RadarRings, AreThreeInTheColoursAndLabelsOfTheirClasses)
{
    EXPECT_THAT(
        radarRings(u"BB", u"EXCELLENT", clear(), {}, 60),
        ::testing::ElementsAre(ring(750, brown, "BB"), ring(675, rust, "CA"), ring(637, orange, "DD")));
}

TEST(RadarRings, MultiplyRatingSeaRainAndConditions)
{
    RingConditions rough = clear("100 %", "50 %");
    rough.seaState = QStringLiteral("4");
    rough.rain = QStringLiteral("On");
    // 0.9 of 40500 yards, then 0.83, 0.7 and 0.5: 10588.725; likewise 9529.8525 and 9000.41625.
    EXPECT_EQ(radii(radarRings(u"CL", u"Good", rough, {}, 1)), (std::vector{10589, 9530, 9000}));
    EXPECT_EQ(radii(radarRings(u"CL", u"Good", rough, {}, 60)), (std::vector{176, 158, 150}));
}

TEST(RadarRings, TakeTheirFactorsInTheirOrder)
{
    RingConditions weather = clear("100 %", "75 %");
    weather.rain = QStringLiteral("On");
    weather.seaState = QStringLiteral("6");
    EXPECT_EQ(radarRings(u"BB", u"POOR", weather, {}, 1).at(1).radius, 5953)
        << "the last bit of 5953.5 yards, which other orders round up";
    weather.seaState = QStringLiteral("4");
    EXPECT_EQ(radarRings(u"BB", u"POOR", weather, {}, 1).at(0).radius, 7844)
        << "7843.5 yards, which a product of whole numbers rounds down";
}

TEST(RadarRings, WithoutARadarOrInAHeavySeaAreThereWithTheRadiusNought)
{
    EXPECT_THAT(radarRings(u"DD", u"NONE", clear(), {}, 60),
                ::testing::ElementsAre(ring(0, brown, "BB"), ring(0, rust, "CA"), ring(0, orange, "DD")));
    for (const char* sea : {"7", "8"}) {
        RingConditions heavy = clear();
        heavy.seaState = QLatin1StringView(sea);
        EXPECT_EQ(radii(radarRings(u"DD", u"SUPERB", heavy, {}, 60)), (std::vector{0, 0, 0}));
    }
}

TEST(RadarRings, WithoutARadarOfAnUnknownTypeAreASubscriptFailure)
{
    expectError(RuntimeError::SubscriptOutOfRange, [] { radarRings(u"CV", u"NONE", clear(), {}, 60); });
}

TEST(RadarRings, TakeSightIntoAccountNowhere)
{
    EXPECT_EQ(radarRings(u"DD", u"GOOD", clear("10 %"), {}, 60), radarRings(u"DD", u"GOOD", clear(), {}, 60));
}

TEST(RadarRings, OfAPercentageBeyondSixteenBitsOverflow)
{
    expectError(RuntimeError::Overflow, [] { radarRings(u"BB", u"GOOD", clear("1", "32768"), {}, 5); });
    EXPECT_EQ(radarRings(u"BB", u"SUPERB", clear("1", "32767"), {}, 5).front().radius, 3243933);
}

TEST(BothFamilies, DrawTheClassOfTheKeyAlone)
{
    const MapToggles destroyers{.ringFilterOn = -1, .ringFilterKey = QStringLiteral("D")};
    EXPECT_THAT(visibilityRings(u"CA", 0, clear(), destroyers, 60),
                ::testing::ElementsAre(ring(432, yellow, "DD")));
    EXPECT_THAT(radarRings(u"CA", u"EXCELLENT", clear(), destroyers, 60),
                ::testing::ElementsAre(ring(573, orange, "DD")));
    const MapToggles cruisers{.ringFilterOn = -1, .ringFilterKey = QStringLiteral("C")};
    EXPECT_THAT(visibilityRings(u"CA", 0, clear(), cruisers, 60),
                ::testing::ElementsAre(ring(486, green, "CA")));
    const MapToggles battleships{.ringFilterOn = -1, .ringFilterKey = QStringLiteral("B")};
    EXPECT_THAT(radarRings(u"CA", u"EXCELLENT", clear(), battleships, 60),
                ::testing::ElementsAre(ring(675, brown, "BB")));
}

TEST(RingLabels, StandAtLevelsOneToEight)
{
    for (int index = 1; index <= 8; ++index) {
        EXPECT_TRUE(hasRingLabels(index)) << index;
    }
    for (const int index : {0, 9, 10, 11}) {
        EXPECT_FALSE(hasRingLabels(index)) << index;
    }
}

/// A catalogue with some ranges of guns, and the value that goes from ship to ship.
class Ranges : public ::testing::Test
{
protected:
    Ranges()
    {
        CatalogueFile file(m_folder.filePath("ShipDatabase.mdb"));
        file.addGunRange("Nelson", "39780");
        file.addGunRange("County", "30650.5 yd");
        file.addGunRange("Nelson", "1");
        file.addGunRange("Unarmed", "0");
        file.addGunRange("Huge", "2147483647");
        file.addGunRange("Larger", "2147483648");
        m_controls.bind(m_folder.path());
    }

private:
    QTemporaryDir m_folder;
    DataControls m_controls;

protected:
    ShipCatalogue catalogue{m_controls};
};

class GunRings : public Ranges
{
protected:
    std::optional<std::int32_t> radius(const char* shipClass, float scale = 60)
    {
        return gunRadius(catalogue.GunsRang(), QLatin1StringView(shipClass), scale, carried);
    }

    std::int32_t carried = 0;
};

TEST_F(GunRings, HaveTheRangeOfTheFirstRecordOfTheClassInPixels)
{
    EXPECT_EQ(radius("Nelson"), 663);
    EXPECT_EQ(radius("Nelson", 30), 1326);
    EXPECT_EQ(radius("County", 1), 30650) << "rounded to the even neighbour";
    EXPECT_EQ(radius("Huge", 5), 429496729);
}

TEST_F(GunRings, AClassWithoutARecordPlottedFirstHasNone)
{
    EXPECT_EQ(radius("Flower"), std::nullopt);
    EXPECT_EQ(carried, 0);
}

TEST_F(GunRings, AClassWithoutARecordPlottedAfterARingHasATinyOneAndThenNone)
{
    EXPECT_EQ(radius("Nelson"), 663);
    EXPECT_EQ(radius("Flower"), 11) << "663 pixels taken for yards";
    EXPECT_EQ(radius("Flower"), 0) << "a point";
    EXPECT_EQ(radius("Flower"), std::nullopt);
    EXPECT_EQ(radius("nelson"), std::nullopt) << "a class is told by its letters' case";
}

TEST_F(GunRings, ARangeOfNoughtHasNoneAndEndsWhatIsCarried)
{
    EXPECT_EQ(radius("Nelson"), 663);
    EXPECT_EQ(radius("Unarmed"), std::nullopt);
    EXPECT_EQ(radius("Flower"), std::nullopt);
}

TEST_F(GunRings, ARangeBeyondThirtyTwoBitsOverflows)
{
    expectError(RuntimeError::Overflow, [this] { radius("Larger"); });
}

class Training : public ::testing::Test
{
protected:
    struct Ship
    {
        int division;
        int ship;
        const char* shortName;
        const char* training;
        const char* shipClass = "Some";
    };
    static NightTraining of(std::initializer_list<Ship> ships,
                            std::initializer_list<int> namelessDivisions = {})
    {
        QByteArray bytes;
        for (int n = 0; n < 13; ++n) {
            if (std::ranges::find(namelessDivisions, n) == namelessDivisions.end()) {
                bytes += "[DIVISION" + QByteArray::number(n) + "]\r\nDIVISIONNAME=Division 1\r\n";
            }
        }
        for (const Ship& ship : ships) {
            bytes += "[DIVISION" + QByteArray::number(ship.division) + "SHIP" +
                     QByteArray::number(ship.ship) + "]\r\nSHORTNAME=" + ship.shortName +
                     "\r\nCLASS=" + ship.shipClass + "\r\nNIGHTTRAINING=" + ship.training + "\r\n";
        }
        return NightTraining(Profile::parse(bytes));
    }
    static int modifier(const NightTraining& training, const char* shortName, const char* shipClass = "Some")
    {
        return training.modifierOf(QString::fromLatin1(shortName), QString::fromLatin1(shipClass));
    }
};

TEST_F(Training, HasItsPercentForEachWordInAnyCase)
{
    const NightTraining training = of({{0, 0, "Hood", "EXPERT"},
                                       {0, 1, "Ajax", "good"},
                                       {0, 2, "York", "Average"},
                                       {0, 3, "Kent", "pOOr"}});
    EXPECT_EQ(modifier(training, "Hood"), 20);
    EXPECT_EQ(modifier(training, "Ajax"), 10);
    EXPECT_EQ(modifier(training, "York"), 0);
    EXPECT_EQ(modifier(training, "Kent"), -20);
    EXPECT_EQ(modifier(training, "Nobody"), 0);
    EXPECT_EQ(modifier(training, "hood"), 0) << "a name is told by its letters' case";
    EXPECT_EQ(modifier(NightTraining(), "Hood"), 0);
}

TEST_F(Training, TheLastShipOfANameWinsAndUnknownWordsLeaveWhatWas)
{
    const NightTraining training = of({{0, 0, "Ajax", "EXPERT"},
                                       {3, 2, "Ajax", "POOR"},
                                       {4, 0, "Ajax", "SUPERB"},
                                       {1, 0, "Hood", "POOR"},
                                       {1, 1, "Hood", "AVERAGE"},
                                       {5, 0, "Kent", ""}});
    EXPECT_EQ(modifier(training, "Ajax"), -20);
    EXPECT_EQ(modifier(training, "Hood"), 0);
    EXPECT_EQ(modifier(training, "Kent"), 0);
}

TEST_F(Training, TwoShipsNamedDuncanOfTwoClassesHaveEachTheirOwn)
{
    const NightTraining training = of({{0, 0, "Duncan", "EXPERT", "Benson"}, {6, 1, "Duncan", "POOR", "D"}});
    EXPECT_EQ(modifier(training, "Duncan", "Benson"), 20);
    EXPECT_EQ(modifier(training, "Duncan", "D"), -20);
    EXPECT_EQ(modifier(training, "Duncan", "Town"), 0);
}

TEST_F(Training, OfOtherNamesDoesNotAskForTheClass)
{
    const NightTraining training = of({{0, 0, "Ajax", "EXPERT", "Leander"}});
    EXPECT_EQ(modifier(training, "Ajax", "Dido"), 20);
}

TEST_F(Training, IsLookedForBehindAMissingDivisionButNotInIt)
{
    const NightTraining training =
        of({{2, 0, "Ajax", "EXPERT"}, {3, 0, "Ajax", "POOR"}, {3, 1, "Hood", "GOOD"}}, {2});
    EXPECT_EQ(modifier(training, "Ajax"), -20);
    EXPECT_EQ(modifier(training, "Hood"), 10);
    EXPECT_EQ(modifier(of({{2, 0, "Ajax", "EXPERT"}}, {2}), "Ajax"), 0);
}

TEST_F(Training, IsLookedForInTwelveDivisionsOfFourteenShips)
{
    const NightTraining training = of({{11, 13, "Ajax", "EXPERT"},
                                       {11, 14, "Ajax", "POOR"},
                                       {12, 0, "Ajax", "POOR"},
                                       {0, 14, "Hood", "GOOD"},
                                       {12, 0, "Kent", "GOOD"}});
    EXPECT_EQ(modifier(training, "Ajax"), 20);
    EXPECT_EQ(modifier(training, "Hood"), 0);
    EXPECT_EQ(modifier(training, "Kent"), 0);
}

class RingMarks : public Ranges
{
protected:
    RingMarks()
    {
        state.toggles.gunRingsOn = state.toggles.visRingsOn = state.toggles.radarRingsOn = 1;
        state.view.mapScale = 60;
    }

    void only(std::int16_t MapToggles::*family)
    {
        state.toggles.gunRingsOn = state.toggles.visRingsOn = state.toggles.radarRingsOn = 0;
        state.toggles.*family = 1;
    }
    MarkList marksOf(const std::vector<PlottedShip>& ships, const char* profile = "")
    {
        const Profile parsed = Profile::parse(profile);
        RangeRings rings(state, conditions, parsed, catalogue);
        MarkList marks;
        for (const PlottedShip& ship : ships) {
            rings.appendRings(ship, marks);
        }
        return marks;
    }

    /// All three families by day at 60 yards a pixel.
    MapState state;
    RingConditions conditions = clear();
    const PlottedShip nelson{.type = QStringLiteral("BB"),
                             .shortName = QStringLiteral("Rodney"),
                             .shipClass = QStringLiteral("Nelson"),
                             .radarType = QStringLiteral("Excellent"),
                             .at = {100, 200}};
};

CircleMark circle(int x, int y, int radius, MapColour colour)
{
    return {.centre = {x, y}, .radius = radius, .colour = colour};
}

TextMark text(int x, int y, const char* label, MapColour colour)
{
    return {.at = {x, y}, .text = QString::fromLatin1(label), .colour = colour};
}

TEST_F(RingMarks, OfOneShipAreGunThenSightThenRadarEachWithItsLabelAtItsLowerEdge)
{
    const MarkList expected{
        circle(100, 200, 663, 0x0000FF), circle(100, 200, 600, white), text(100, 800, "BB", white),
        circle(100, 200, 540, green),    text(100, 740, "CA", green),  circle(100, 200, 480, yellow),
        text(100, 680, "DD", yellow),    circle(100, 200, 750, brown), text(100, 950, "BB", brown),
        circle(100, 200, 675, rust),     text(100, 875, "CA", rust),   circle(100, 200, 637, orange),
        text(100, 837, "DD", orange),
    };
    EXPECT_TRUE(marksOf({nelson}) == expected);
}

TEST_F(RingMarks, OfForceBHaveARedGunRing)
{
    PlottedShip enemy = nelson;
    enemy.side = Side::Red;
    only(&MapToggles::gunRingsOn);
    EXPECT_TRUE(marksOf({enemy}) == MarkList{circle(100, 200, 663, 0xFF0000)});
}

TEST_F(RingMarks, EachFamilyHasASwitchOfItsOwn)
{
    for (const auto& [family, first, count] :
         {std::tuple(&MapToggles::gunRingsOn, circle(100, 200, 663, 0x0000FF), 1U),
          std::tuple(&MapToggles::visRingsOn, circle(100, 200, 600, white), 6U),
          std::tuple(&MapToggles::radarRingsOn, circle(100, 200, 750, brown), 6U)}) {
        only(family);
        const MarkList marks = marksOf({nelson});
        ASSERT_EQ(marks.size(), count);
        EXPECT_TRUE(marks.front() == Mark(first));
        state.toggles.*family = 0;
        EXPECT_TRUE(marksOf({nelson}).empty());
    }
}

TEST_F(RingMarks, OfASwitchedOffFamilyAskNeitherCatalogueNorType)
{
    only(&MapToggles::visRingsOn);
    marksOf({nelson});
    EXPECT_EQ(state.gunRangeValue, 0);
    only(&MapToggles::gunRingsOn);
    PlottedShip carrier = nelson;
    carrier.type = QStringLiteral("CV");
    EXPECT_EQ(marksOf({carrier}).size(), 1U) << "the gun ring does not need the type";
}

TEST_F(RingMarks, OfAnUnknownTypeEndWithItsGunRing)
{
    const Profile empty;
    RangeRings rings(state, conditions, empty, catalogue);
    PlottedShip carrier = nelson;
    carrier.type = QStringLiteral("CV");
    MarkList marks;
    expectError(RuntimeError::SubscriptOutOfRange, [&] { rings.appendRings(carrier, marks); });
    EXPECT_EQ(marks.size(), 1U);
}

TEST_F(RingMarks, CarryNoLabelsAtLevelsNoughtNineAndTen)
{
    for (const std::int16_t zoomIndex : std::array<std::int16_t, 3>{11, 9, 10}) {
        state.view.zoomIndex = zoomIndex;
        const MarkList marks = marksOf({nelson});
        EXPECT_EQ(marks.size(), 7U);
        for (const Mark& mark : marks) {
            EXPECT_TRUE(std::holds_alternative<CircleMark>(mark)) << zoomIndex;
        }
    }
}

TEST_F(RingMarks, WithTheKeyDAreOneYellowOneOrangeAndTheGunRing)
{
    state.toggles.ringFilterOn = -1;
    state.toggles.ringFilterKey = QStringLiteral("D");
    const MarkList expected{
        circle(100, 200, 663, 0x0000FF), circle(100, 200, 480, yellow), text(100, 680, "DD", yellow),
        circle(100, 200, 637, orange),   text(100, 837, "DD", orange),
    };
    EXPECT_TRUE(marksOf({nelson}) == expected);
}

TEST_F(RingMarks, OfAShipWithoutARadarStandAtItWithTheirLabels)
{
    only(&MapToggles::radarRingsOn);
    PlottedShip blind = nelson;
    blind.radarType = QStringLiteral("INVALID");
    const MarkList expected{
        circle(100, 200, 0, brown), text(100, 200, "BB", brown), circle(100, 200, 0, rust),
        text(100, 200, "CA", rust), circle(100, 200, 0, orange), text(100, 200, "DD", orange),
    };
    EXPECT_TRUE(marksOf({blind}) == expected);
}

TEST_F(RingMarks, TheGunRangeGoesFromShipToShipAndFromRedrawToRedraw)
{
    only(&MapToggles::gunRingsOn);
    PlottedShip corvette = nelson;
    corvette.at = {5, 6};
    corvette.shipClass = QStringLiteral("Flower");
    EXPECT_TRUE(marksOf({corvette}).empty());
    EXPECT_TRUE(marksOf({nelson, corvette}) ==
                (MarkList{circle(100, 200, 663, 0x0000FF), circle(5, 6, 11, 0x0000FF)}));
    EXPECT_TRUE(marksOf({corvette}) == MarkList{circle(5, 6, 0, 0x0000FF)});
    EXPECT_TRUE(marksOf({corvette}).empty());
}

constexpr const char* trained = "[DIVISION0]\r\nDIVISIONNAME=Division 1\r\n"
                                "[DIVISION0SHIP0]\r\nSHORTNAME=Rodney\r\nNIGHTTRAINING=Expert\r\n";

TEST_F(RingMarks, NightTrainingCountsAtNightAlone)
{
    only(&MapToggles::visRingsOn);
    conditions.visibility = QStringLiteral("40 %");
    EXPECT_TRUE(marksOf({nelson}, trained).front() == Mark(circle(100, 200, 240, white)));
    conditions.day = false;
    EXPECT_TRUE(marksOf({nelson}, trained).front() == Mark(circle(100, 200, 360, white)));
    EXPECT_TRUE(marksOf({nelson}).front() == Mark(circle(100, 200, 240, white)));
}

TEST_F(RingMarks, NightTrainingHelpsNoRadar)
{
    only(&MapToggles::radarRingsOn);
    conditions.day = false;
    EXPECT_TRUE(marksOf({nelson}, trained).front() == Mark(circle(100, 200, 750, brown)));
}

TEST_F(RingMarks, ALabelFarOutOfSightStaysWithinThirtyTwoBits)
{
    only(&MapToggles::visRingsOn);
    PlottedShip far = nelson;
    far.at.y = std::numeric_limits<std::int32_t>::max() - 10;
    EXPECT_TRUE(marksOf({far}).at(1) ==
                Mark(text(100, std::numeric_limits<std::int32_t>::max(), "BB", white)));
}

} // namespace
} // namespace torvane::testing
