#include "platform/profile.h"
#include "ring_fixture.h"
#include "store/ship_catalogue.h"
#include "support/catalogue_file.h"
#include "support/expect_error.h"
#include "support/printers.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <limits>

namespace torvane::testing {
namespace {

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

TEST_F(RingMarks, OfTwoDuncansOfTwoClassesAtNightFollowEachTheirOwnTraining)
{
    only(&MapToggles::visRingsOn);
    conditions.visibility = QStringLiteral("40 %");
    conditions.day = false;
    PlottedShip british = nelson;
    british.shortName = QStringLiteral("Duncan");
    british.shipClass = QStringLiteral("D");
    PlottedShip american = british;
    american.shipClass = QStringLiteral("Gleaves");
    american.at = {500, 600};
    const MarkList marks = marksOf({british, american},
                                   "[DIVISION0]\r\nDIVISIONNAME=Division 1\r\n"
                                   "[DIVISION0SHIP0]\r\nSHORTNAME=Duncan\r\nCLASS=D\r\nNIGHTTRAINING=Poor\r\n"
                                   "[DIVISION3]\r\nDIVISIONNAME=Division 1\r\n"
                                   "[DIVISION3SHIP1]\r\nSHORTNAME=Duncan\r\nCLASS=Gleaves\r\n"
                                   "NIGHTTRAINING=Good\r\n");
    ASSERT_EQ(marks.size(), 12U);
    EXPECT_TRUE(marks.at(0) == Mark(circle(100, 200, 120, white))) << "20 %";
    EXPECT_TRUE(marks.at(6) == Mark(circle(500, 600, 300, white))) << "50 %";
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
