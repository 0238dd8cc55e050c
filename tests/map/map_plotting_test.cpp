#include "map/plotting_fixture.h"

#include <QFile>

namespace torvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Plotting : public PlottingFixture
{
};

TEST_F(Plotting, ANewMapShowsTypeAndNameWithScaleLabelsAndNoRings)
{
    const MapState fresh;
    EXPECT_EQ(fresh.toggles.namesMode, 0);
    EXPECT_EQ(fresh.toggles.scaleLabelsOn, 1);
    EXPECT_EQ(fresh.toggles.gunRingsOn, 0);
    EXPECT_EQ(fresh.toggles.visRingsOn, 0);
    EXPECT_EQ(fresh.toggles.radarRingsOn, 0);
    EXPECT_EQ(fresh.toggles.ringFilterOn, 0);
    EXPECT_EQ(fresh.toggles.ringFilterKey, QString());
    EXPECT_EQ(fresh.shipLengthYards, 0);
    EXPECT_FALSE(fresh.separationRingsPending);
    EXPECT_EQ(fresh.target.area.dim, 9260);
}

TEST_F(Plotting, AnEmptyScenarioShowsNoShipsAndNoMenus)
{
    const MapPicture picture = drawn();
    EXPECT_THAT(picture.marks, IsEmpty());
    EXPECT_THAT(picture.ships, IsEmpty());
}

TEST_F(Plotting, ShipsStandWhereTheirRoundedPixelsAreFromTheOrigin)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 1234, -567); // 123.4 and -56.7 pixels
    EXPECT_EQ(marksOf<TextMark>(drawn().marks).front().at, (PixelPoint{312 + 123, 208 - 57}));
    set(QStringLiteral("DIVISION0SHIP0"), "XPOSITION", QStringLiteral("25")); // a tie: 2.5
    EXPECT_EQ(marksOf<TextMark>(drawn().marks).front().at.x, 314);
}

TEST_F(Plotting, TheHullIsAThirdOfTheClassesLengthAtTheScale)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 0, 0, "Odd");  // 205 yards
    EXPECT_THAT(hulls(drawn()), ElementsAre(20));     // 20.5 goes to the even pixel
    addShip(0, 0, QStringLiteral("A"), 0, 0, "Long"); // 200 yards
    EXPECT_THAT(hulls(drawn()), ElementsAre(20));
    EXPECT_THAT(hulls(drawn(false)), ElementsAre(40)) << "half the scale at night";
}

TEST_F(Plotting, AClassThatIsMissingTakesThePixelsOfTheShipBeforeAsItsYards)
{
    addDivision(0, "Blue", "Division 1", 3);
    addShip(0, 0, QStringLiteral("A"), 0, 0, "Unknown");
    addShip(0, 1, QStringLiteral("B"), 0, 1000, "Long");
    addShip(0, 2, QStringLiteral("C"), 0, 2000, "Unknown");
    EXPECT_THAT(hulls(drawn()), ElementsAre(0, 20, 2));
    EXPECT_EQ(state.shipLengthYards, 2) << "never cleared";
    EXPECT_THAT(hulls(drawn()), ElementsAre(0, 20, 2)) << "2 yards are no pixel";
}

TEST_F(Plotting, AllShipsOfADivisionHeadAsItsFormationDoes)
{
    addDivision(0, "Blue", "Division 1", 2);
    set(QStringLiteral("DIVISION0"), "FORMATIONHEADING", QStringLiteral("90"));
    addShip(0, 0, QStringLiteral("A"), 0, 0, "Long");
    addShip(0, 1, QStringLiteral("B"), 0, 1000, "Long");
    std::vector<LineMark> flat;
    for (const LineMark& line : marksOf<LineMark>(drawn().marks)) {
        if (line.from.y == line.to.y) {
            flat.push_back(line);
        }
    }
    EXPECT_THAT(flat, ElementsAre(LineMark{.from = {322, 208}, .to = {302, 208}},
                                  LineMark{.from = {322, 308}, .to = {302, 308}}));
}

TEST_F(Plotting, TheFlagshipIsThePlaceBehindItsIndex)
{
    addDivision(0, "Red", "Division 2", 3);
    set(QStringLiteral("DIVISION0"), "FLAGSHIPINDEX", QStringLiteral(" 1"));
    for (int m = 0; m < 3; ++m) {
        addShip(0, m, QStringLiteral("S%1").arg(m), 0, 500 * m);
    }
    EXPECT_EQ(labels(drawn()), (QStringList{"DD S0", "DD S1", "Div2", "DD S2"}));
}

TEST_F(Plotting, AnySideButBlueIsForceB)
{
    for (const char* side : {"Red", "blue", "Green"}) {
        addDivision(0, side);
        addShip(0, 0, QStringLiteral("A"), 0, 0);
        EXPECT_EQ(marksOf<TextMark>(drawn().marks).front().colour, 0xFF0000U) << side;
        EXPECT_EQ(drawn().ships.front().side, Side::Red) << side;
    }
    addDivision(0, "Blue");
    EXPECT_EQ(marksOf<TextMark>(drawn().marks).front().colour, 0x0000FFU);
    EXPECT_EQ(drawn().ships.front().side, Side::Blue);
}

TEST_F(Plotting, AGapInTheDivisionNumbersHidesEveryDivisionBehindIt)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 0, 0);
    addDivision(2);
    addShip(2, 0, QStringLiteral("C"), 0, 0);
    EXPECT_EQ(labels(drawn()), (QStringList{"DD A", "Div1"}));
    addDivision(1);
    addShip(1, 0, QStringLiteral("B"), 0, 0);
    EXPECT_EQ(labels(drawn()).size(), 6);
}

TEST_F(Plotting, ADivisionThatLacksAKeyEndsTheDrawing)
{
    for (const char* key : {"DIVISIONNAME", "SIDE", "FORMATION", "FORMATIONHEADING", "FORMATIONSPACING",
                            "SPEED", "SHIPCNT", "FLAGSHIPINDEX"}) {
        addDivision(0);
        addShip(0, 0, QStringLiteral("A"), 0, 0);
        EXPECT_FALSE(drawn().marks.empty());
        set(QStringLiteral("DIVISION0"), key, QString());
        EXPECT_TRUE(drawn().marks.empty()) << key;
    }
}

TEST_F(Plotting, TwelveDivisionsAreDrawnAndAThirteenthIsNot)
{
    for (int n = 0; n < 13; ++n) {
        addDivision(n);
        addShip(n, 0, QStringLiteral("S%1").arg(n), 0, 0);
    }
    EXPECT_EQ(drawn().ships.size(), 12U);
}

TEST_F(Plotting, AMissingKeyOfAShipShowsInItsLabelAndAMissingPositionIsZero)
{
    addDivision(0);
    EXPECT_EQ(labels(drawn()), (QStringList{"INVALID INVALID", "Div1"}));
    EXPECT_EQ(marksOf<TextMark>(drawn().marks).front().at, (PixelPoint{312, 208}));
    EXPECT_EQ(drawn().ships.front().caption, QStringLiteral("INVALID INVALID"));
}

TEST_F(Plotting, ACountBeyondTenDrawsWhatItCounts)
{
    addDivision(0, "Blue", "Division 1", 99);
    EXPECT_EQ(drawn().ships.size(), 99U);
    EXPECT_EQ(drawn().ships.back().ship, 99);
    addDivision(0, "Blue", "Division 1", -3);
    EXPECT_THAT(drawn().ships, IsEmpty());
}

TEST_F(Plotting, WordsInThePlaceOfNumbersCountAsZero)
{
    addDivision(0);
    for (const char* word : {"nan", "inf", "-", "east", "1e", "0x10"}) {
        set(QStringLiteral("DIVISION0"), "FORMATIONHEADING", QString::fromLatin1(word));
        set(QStringLiteral("DIVISION0SHIP0"), "XPOSITION", QString::fromLatin1(word));
        EXPECT_LE(std::abs(marksOf<TextMark>(drawn().marks).front().at.x - 312), 1) << word;
    }
    set(QStringLiteral("DIVISION0"), "SHIPCNT", QStringLiteral("many"));
    EXPECT_THAT(drawn().ships, IsEmpty());
}

TEST_F(Plotting, ANumberBeyondItsBitsEndsTheDrawingWithWhatCameBeforeIt)
{
    const auto drawnUntilOverflow = [this] {
        MapPicture picture;
        expectError(RuntimeError::Overflow, [&] { plotter.drawDivisions(true, RingDrawer(), picture); });
        return picture.ships.size();
    };
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 0, 0);
    addDivision(1);
    addShip(1, 0, QStringLiteral("B"), 0, 0);
    for (const auto& [key, huge] : {std::pair{"FORMATIONHEADING", "99999"}, std::pair{"SHIPCNT", "40000"},
                                    std::pair{"FLAGSHIPINDEX", "2147483647"}}) {
        set(QStringLiteral("DIVISION1"), key, QString::fromLatin1(huge));
        EXPECT_EQ(drawnUntilOverflow(), 1U) << key;
        addDivision(1);
    }
    for (const char* position : {"3000000000", "330000"}) { // beyond 32 bits, and beyond 16 as pixels
        set(QStringLiteral("DIVISION1SHIP0"), "XPOSITION", QString::fromLatin1(position));
        EXPECT_EQ(drawnUntilOverflow(), 1U) << position;
    }
}

TEST_F(Plotting, AnOverflowNamesTheValueAsTheProfileHasItWhateverTheScaleAndTheOrigin)
{
    const auto told = [this] {
        MapPicture picture;
        try {
            plotter.drawDivisions(true, RingDrawer(), picture);
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), RuntimeError::Overflow);
            return error.text();
        }
        return QString();
    };
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 3000000, -7);
    const QString far =
        QStringLiteral("Overflow: XPOSITION 3000000, ZPOSITION -7 of DIVISION0SHIP0 (A) is out of range.");
    EXPECT_EQ(told(), far);
    state.view.mapOriginX += 10;
    EXPECT_EQ(told(), far);
    state.view.zoomIndex = 8; // 20 yards a pixel
    EXPECT_EQ(told(), far);
    set(QStringLiteral("DIVISION0SHIP0"), "XPOSITION", QStringLiteral("3e9"));
    EXPECT_EQ(told(),
              QStringLiteral("Overflow: XPOSITION 3e9, ZPOSITION -7 of DIVISION0SHIP0 (A) is out of range."));
    for (const auto& [key, huge] : {std::pair{"FORMATIONHEADING", "99999"}, std::pair{"SHIPCNT", "40000"},
                                    std::pair{"FLAGSHIPINDEX", "2147483647"}}) {
        addDivision(0);
        set(QStringLiteral("DIVISION0"), key, QString::fromLatin1(huge));
        EXPECT_EQ(told(), QStringLiteral("Overflow: %1 %2 of DIVISION0 is out of range.").arg(key, huge));
    }
}

TEST_F(Plotting, AnOverflowShowsALongValueInPart)
{
    addDivision(0);
    set(QStringLiteral("DIVISION0"), "SHIPCNT", QString(1000, QLatin1Char('9')));
    MapPicture picture;
    try {
        plotter.drawDivisions(true, RingDrawer(), picture);
        FAIL() << "drawn";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.text(), QStringLiteral("Overflow: SHIPCNT %1... of DIVISION0 is out of range.")
                                    .arg(QString(40, QLatin1Char('9'))));
    }
}

TEST_F(Plotting, ACatalogueThatIsGoneEndsTheDrawingWithItsError)
{
    addDivision(0);
    QFile::remove(workDir + shipDatabaseFile);
    MapPicture picture;
    EXPECT_THROW(plotter.drawDivisions(true, RingDrawer(), picture), RuntimeError);
    EXPECT_THAT(picture.ships, IsEmpty());
}

TEST_F(Plotting, LeavesTheAnchorAtTheCursorInPixelsOfTheMap)
{
    addDivision(0);
    state.view.cursorYardsX = 1000;
    state.view.cursorYardsY = 255;
    drawn();
    EXPECT_EQ(state.view.anchorX, 100);
    EXPECT_EQ(state.view.anchorZ, 26); // 25.5
    EXPECT_EQ(state.view.mapScale, 10.0F);
}

TEST_F(Plotting, ALaterShipLiesOverTheRingsOfAnEarlierOne)
{
    addDivision(0, "Blue", "Division 1", 2);
    addShip(0, 0, QStringLiteral("A"), 0, 0);
    addShip(0, 1, QStringLiteral("B"), 0, 0);
    MapPicture picture;
    QStringList ringed;
    plotter.drawDivisions(
        true,
        [&](const PlottedShip& ship, MarkList& marks) {
            ringed.append(ship.shortName);
            marks.push_back(CircleMark{.centre = ship.at, .radius = 7});
        },
        picture);
    EXPECT_EQ(ringed, (QStringList{"A", "B"}));
    EXPECT_TRUE(std::holds_alternative<CircleMark>(picture.marks[7])) << "behind the flagship's seven marks";
    EXPECT_TRUE(std::holds_alternative<CircleMark>(picture.marks.back()));
}

TEST_F(Plotting, ReadsTheProfileAnewEachTime)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 0, 0);
    drawn();
    set(QStringLiteral("DIVISION0SHIP0"), "SHORTNAME", QStringLiteral("Z"));
    EXPECT_EQ(labels(drawn()).front(), QStringLiteral("DD Z"));
}

class SeparationRings : public PlottingFixture
{
};

TEST_F(SeparationRings, AreAThousandYardsRoundEveryShipThatHasAPosition)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 1239, -1231); // down to 123 and -124 pixels
    EXPECT_THAT(separationRings(),
                ElementsAre(Mark(CircleMark{.centre = {312 + 123, 208 - 124}, .radius = 100, .colour = 0})));
    state.view.mapScale = 60;
    EXPECT_EQ(std::get<CircleMark>(separationRings().front()).radius, 16); // 16.7 goes down
}

TEST_F(SeparationRings, SkipAShipOnEitherAxis)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 0, 500);
    addShip(0, 1, QStringLiteral("B"), 500, 0);
    addShip(0, 2, QStringLiteral("C"), 9, 500); // no whole pixel
    EXPECT_THAT(separationRings(), IsEmpty());
    addShip(0, 3, QStringLiteral("D"), -1, 500); // down to -1
    EXPECT_EQ(separationRings().size(), 1U);
}

TEST_F(SeparationRings, RoundThePositionBeforeTheyTakeItsWholePixels)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 0, 500);
    set(QStringLiteral("DIVISION0SHIP0"), "XPOSITION", QStringLiteral("9.6")); // 10 yards: a pixel
    EXPECT_THAT(separationRings(),
                ElementsAre(Mark(CircleMark{.centre = {313, 258}, .radius = 100, .colour = 0})));
    set(QStringLiteral("DIVISION0SHIP0"), "XPOSITION", QStringLiteral("9.4"));
    EXPECT_THAT(separationRings(), IsEmpty());
}

TEST_F(SeparationRings, EndAtTheTenthPlaceWhateverTheDivisionCounts)
{
    addDivision(0, "Blue", "Division 1", 1);
    for (int m = 0; m < 12; ++m) {
        addShip(0, m, QStringLiteral("S%1").arg(m), 500, 500 + m);
    }
    EXPECT_EQ(separationRings().size(), 10U);
}

TEST_F(SeparationRings, EndAtADivisionWithoutAName)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 500, 500);
    addDivision(2);
    addShip(2, 0, QStringLiteral("C"), 500, 500);
    EXPECT_EQ(separationRings().size(), 1U);
}

TEST_F(SeparationRings, OfNoScaleAreAnOverflow)
{
    addDivision(0);
    addShip(0, 0, QStringLiteral("A"), 500, 500);
    state.view.mapScale = 0;
    expectError(RuntimeError::Overflow, [this] { separationRings(); });
}

// Their radius is reckoned before the ships are looked for.
TEST_F(SeparationRings, OfNoScaleAreAnOverflowAlsoInAnEmptyScenario)
{
    EXPECT_THAT(separationRings(), IsEmpty());
    state.view.mapScale = 0;
    expectError(RuntimeError::Overflow, [this] { separationRings(); });
}

} // namespace
} // namespace torvane::testing
