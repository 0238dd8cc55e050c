#include "catalogue/derived_values.h"

#include <gmock/gmock.h>

#include <numeric>

namespace torvane {
namespace {

using ::testing::ElementsAre;

ShipClass hullOf(int tons, double belt = 0, double deck = 0, Hull hull = Hull::Naval)
{
    ShipClass shipClass;
    shipClass.standardTons = tons;
    shipClass.beltInches = belt;
    shipClass.deckInches = deck;
    shipClass.hull = hull;
    return shipClass;
}

std::size_t placeOf(char letter)
{
    std::size_t i = 0;
    while (turretPlaces.at(i).letter != letter) {
        ++i;
    }
    return i;
}

ShipClass gunsAt(const std::string& letters, double calibre, int shells)
{
    ShipClass shipClass;
    for (const char letter : letters) {
        shipClass.gunsAtPlace.at(placeOf(letter)) = 2;
    }
    shipClass.mainCalibreInches = calibre;
    shipClass.shellsPerGun = shells;
    return shipClass;
}

ShipClass tubes(std::array<int, 4> mounts, int carried)
{
    ShipClass shipClass;
    shipClass.tubesInMount = mounts;
    shipClass.torpedoesCarried = carried;
    return shipClass;
}

// 1000 tons: the power 2/3 is 100, the power 3/4 is 177.8.
TEST(HitPoints, AreTheSurfaceOfTheHullTimesItsArmour)
{
    EXPECT_EQ(hitPoints(hullOf(1000)), 100);
    EXPECT_EQ(hitPoints(hullOf(8000)), 400);
    EXPECT_EQ(hitPoints(hullOf(1000, 16)), 200);
    EXPECT_EQ(hitPoints(hullOf(1000, 0, 8)), 200);
    EXPECT_EQ(hitPoints(hullOf(1000, 4, 2)), 150);
}

TEST(FloatPoints, AreTheVolumeOfTheHullTimesItsBelt)
{
    EXPECT_EQ(floatPoints(hullOf(1000)), 89);
    EXPECT_EQ(floatPoints(hullOf(10'000)), 500);
    EXPECT_EQ(floatPoints(hullOf(10'000, 12)), 750);
    EXPECT_EQ(floatPoints(hullOf(10'000, 0, 6)), 500);
}

TEST(Points, OfAMerchantHullAreHalfOfThoseOfANavalOne)
{
    EXPECT_EQ(hitPoints(hullOf(8000, 0, 0, Hull::Merchant)), 200);
    EXPECT_EQ(floatPoints(hullOf(10'000, 0, 0, Hull::Merchant)), 250);
}

TEST(Points, AreNeverNone)
{
    EXPECT_EQ(hitPoints(hullOf(1, 0, 0, Hull::Merchant)), 1);
    EXPECT_EQ(floatPoints(hullOf(1, 0, 0, Hull::Merchant)), 1);
}

TEST(Points, GrowWithEveryHundredTons)
{
    for (const Hull hull : {Hull::Naval, Hull::Merchant}) {
        for (int tons = 200; tons < 80'000; tons += 100) {
            EXPECT_LT(hitPoints(hullOf(tons, 5, 2, hull)), hitPoints(hullOf(tons + 100, 5, 2, hull))) << tons;
            EXPECT_LT(floatPoints(hullOf(tons, 5, 2, hull)), floatPoints(hullOf(tons + 100, 5, 2, hull)))
                << tons;
        }
    }
}

TEST(Points, GrowWithEveryTenthOfAnInchOfArmour)
{
    for (int tenth = 0; tenth < 200; ++tenth) {
        const double inches = tenth / 10.0;
        const double more = (tenth + 1) / 10.0;
        EXPECT_LT(hitPoints(hullOf(10'000, inches)), hitPoints(hullOf(10'000, more))) << inches;
        EXPECT_LT(hitPoints(hullOf(10'000, 0, inches)), hitPoints(hullOf(10'000, 0, more))) << inches;
        EXPECT_LT(floatPoints(hullOf(10'000, inches)), floatPoints(hullOf(10'000, more))) << inches;
    }
}

TEST(RoundsByKind, AddUpToTheNumberAndAreNeverNegative)
{
    for (int calibre = 20; calibre <= 200; ++calibre) {
        for (const int number : {0, 1, 2, 3, 4, 5, 7, 60, 333, 1200}) {
            const Rounds rounds = roundsByKind(number, calibre / 10.0);
            EXPECT_EQ(rounds.all(), number) << calibre;
            EXPECT_GE(rounds.highExplosive, 0) << calibre;
            EXPECT_GE(rounds.armourPiercing, 0) << calibre;
            EXPECT_GE(rounds.common, 0) << calibre << ' ' << number;
        }
    }
}

TEST(RoundsByKind, OfALightGunAreHighExplosiveAndCommonOfAHeavyOneArmourPiercing)
{
    EXPECT_EQ(roundsByKind(1000, 3), (Rounds{600, 0, 400}));
    EXPECT_EQ(roundsByKind(1000, 4), (Rounds{600, 0, 400}));
    EXPECT_EQ(roundsByKind(1000, 10), (Rounds{350, 350, 300}));
    EXPECT_EQ(roundsByKind(1000, 16), (Rounds{100, 700, 200}));
    EXPECT_EQ(roundsByKind(1000, 18.1), (Rounds{100, 700, 200}));
}

TEST(MainMagazines, HoldTheShellsOfTheGunsThatTheyFeed)
{
    const ShipClass shipClass = gunsAt("ABY", 16, 100);
    EXPECT_EQ(mainMagazine(shipClass, Magazine::A), (Rounds{40, 280, 80}));
    EXPECT_EQ(mainMagazine(shipClass, Magazine::B), (Rounds{20, 140, 40}));
}

TEST(MainMagazines, OfAShipWithAllGunsForwardAreEmptyAft)
{
    EXPECT_EQ(mainMagazine(gunsAt("ABC", 16, 100), Magazine::B), Rounds{});
    EXPECT_EQ(mainMagazine(gunsAt("ABC", 16, 100), Magazine::A).all(), 600);
}

TEST(MainMagazines, ForwardAndPortTurretsDrawOnATheOthersOnB)
{
    for (const char letter : std::string("ABCDEGHLNO")) {
        EXPECT_EQ(mainMagazine(gunsAt({letter}, 6, 100), Magazine::A).all(), 200) << letter;
        EXPECT_EQ(mainMagazine(gunsAt({letter}, 6, 100), Magazine::B).all(), 0) << letter;
    }
    for (const char letter : std::string("IJMQRTUXYZ")) {
        EXPECT_EQ(mainMagazine(gunsAt({letter}, 6, 100), Magazine::A).all(), 0) << letter;
        EXPECT_EQ(mainMagazine(gunsAt({letter}, 6, 100), Magazine::B).all(), 200) << letter;
    }
}

TEST(SecondaryMagazine, GoesByTheCalibreOfTheGuns)
{
    const auto roundsOf = [](double calibre) {
        ShipClass shipClass;
        shipClass.secondaryCalibreInches = calibre;
        shipClass.secondaryGuns = {1, 2, 3, 4};
        return secondaryMagazine(shipClass);
    };
    EXPECT_EQ(roundsOf(3).all(), 3000);
    EXPECT_EQ(roundsOf(4).all(), 2500);
    EXPECT_EQ(roundsOf(5.5).all(), 1500);
    EXPECT_EQ(roundsOf(4), (Rounds{1500, 0, 1000}));
    EXPECT_EQ(secondaryMagazine(ShipClass{}), Rounds{});
}

TEST(TorpedoesOfMounts, AreThoseInTheTubesAndAShareOfTheReloads)
{
    EXPECT_THAT(torpedoesOfMounts(tubes({4, 4, 0, 0}, 8)), ElementsAre(4, 4, 0, 0));
    EXPECT_THAT(torpedoesOfMounts(tubes({4, 4, 0, 0}, 16)), ElementsAre(8, 8, 0, 0));
    EXPECT_THAT(torpedoesOfMounts(tubes({3, 3, 3, 0}, 18)), ElementsAre(6, 6, 6, 0));
    EXPECT_THAT(torpedoesOfMounts(tubes({2, 2, 1, 1}, 24)), ElementsAre(8, 8, 4, 4));
    EXPECT_THAT(torpedoesOfMounts(tubes({0, 0, 0, 0}, 0)), ElementsAre(0, 0, 0, 0));
}

TEST(TorpedoesOfMounts, AnOddReloadLiesAtTheForemostMount)
{
    EXPECT_THAT(torpedoesOfMounts(tubes({2, 2, 2, 0}, 8)), ElementsAre(3, 3, 2, 0));
    EXPECT_THAT(torpedoesOfMounts(tubes({2, 2, 2, 0}, 10)), ElementsAre(4, 3, 3, 0));
}

TEST(TorpedoesOfMounts, AddUpToTheNumberCarriedAndFillEveryTube)
{
    for (int carried = 9; carried <= 60; ++carried) {
        const auto torpedoes = torpedoesOfMounts(tubes({4, 2, 2, 1}, carried));
        EXPECT_EQ(std::accumulate(torpedoes.begin(), torpedoes.end(), 0), carried);
        EXPECT_GE(torpedoes.at(0), 4);
        EXPECT_GE(torpedoes.at(1), 2);
        EXPECT_GE(torpedoes.at(2), 2);
        EXPECT_GE(torpedoes.at(3), 1);
    }
}

} // namespace
} // namespace torvane
