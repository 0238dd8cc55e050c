#include "divisions/placement_fixture.h"

#include <QFile>

namespace torvane::testing {
namespace {

using ::testing::ElementsAre;

constexpr bool day = true;

class Placement : public PlacementFixture
{
};

TEST(RepositionKeys, HoldTheSideInFrontAndTheNumberAtTheEnd)
{
    const auto cut = [](const char* key) { return cutRepositionKey(QString::fromLatin1(key)); };
    const auto expected = [](const char* side, const char* name) {
        return RepositionKey{.side = QString::fromLatin1(side), .divisionName = QString::fromLatin1(name)};
    };
    EXPECT_EQ(cut("Blue 3"), expected("Blue", "Division 3"));
    EXPECT_EQ(cut("Blue  5"), expected("Blue", "Division 5"));
    EXPECT_EQ(cut("Red 1"), expected("Red", "Division 1"));
    EXPECT_EQ(cut("Red  6"), expected("Red", "Division 6"));
    EXPECT_EQ(cut(""), expected("", "Division 0"));
}

TEST_F(Placement, TwoShipsOfOneShortNameStandAtOnePointAfterEitherDivisionIsPlaced)
{
    make("Column", 2);
    describe(1, "Column", 2, 500, 0, "Red", 1);
    addShip(1, 0, QStringLiteral("B0"));
    addShip(1, 1, QStringLiteral("A1"), QStringLiteral("Other"));
    place();
    EXPECT_EQ(position(0, 1), "1000,2500");
    EXPECT_EQ(position(1, 1), "1000,2500");
    EXPECT_EQ(position(1, 0), untouched);
    view.anchorX = 300;
    place("Red  1");
    EXPECT_EQ(position(1, 1), "3000,2500");
    EXPECT_EQ(position(0, 1), "3000,2500");
    EXPECT_EQ(position(0, 0), "1000,2000");
}

TEST_F(Placement, TheLastOfTwoLikeNamedShipsOfADivisionMovesBoth)
{
    make("Column", 3);
    addShip(0, 0, QStringLiteral("A2"));
    place();
    EXPECT_THAT(positions(3), ElementsAre("1000,3000", "1000,2500", "1000,3000"));
}

TEST_F(Placement, AShortNameIsLookedForInEverySection)
{
    make("Column", 1);
    for (const auto& [division, ship] : {std::pair{0, 13}, {5, 0}, {11, 13}, {11, 0}}) {
        addShip(division, ship, QStringLiteral("A0"));
    }
    addShip(12, 0, QStringLiteral("A0"));
    addShip(11, 14, QStringLiteral("A0"));
    addShip(3, 3, QStringLiteral("a0"));
    place();
    for (const auto& [division, ship] : {std::pair{0, 0}, {0, 13}, {5, 0}, {11, 13}, {11, 0}}) {
        EXPECT_EQ(position(division, ship), "1000,2000") << division << ' ' << ship;
    }
    EXPECT_EQ(position(12, 0), untouched);
    EXPECT_EQ(position(11, 14), untouched);
    EXPECT_EQ(position(3, 3), untouched) << "upper and lower case are told apart";
}

TEST_F(Placement, DuncanAloneIsToldApartByClass)
{
    make("Column", 2);
    addShip(0, 0, QStringLiteral("Duncan"), QStringLiteral("Benson"));
    addShip(0, 1, QStringLiteral("A1"), QStringLiteral("Benson"));
    addShip(1, 0, QStringLiteral("Duncan"), QStringLiteral("D"));
    addShip(1, 1, QStringLiteral("A1"), QStringLiteral("D"));
    place();
    EXPECT_EQ(position(0, 0), "1000,2000");
    EXPECT_EQ(position(1, 0), untouched);
    EXPECT_EQ(position(1, 1), "1000,2500") << "another name goes by the name alone";
}

TEST_F(Placement, ADuncanBeforeALastShipOfAnotherClassStaysWhereItIs)
{
    make("Column", 2);
    addShip(0, 0, QStringLiteral("Duncan"), QStringLiteral("Benson"));
    addShip(1, 0, QStringLiteral("Duncan"), QStringLiteral("Small"));
    place();
    EXPECT_EQ(position(0, 0), untouched);
    EXPECT_EQ(position(0, 1), "1000,2500");
    EXPECT_EQ(position(1, 0), "1000,2000") << "the other one has the last ship's class";
}

TEST_F(Placement, AShipWithoutAShortNameMovesEveryShipWithoutOneAndMakesNone)
{
    make("Column", 1);
    set(shipSection(0, 0), "SHORTNAME", QString());
    addShip(7, 4, QString());
    place();
    EXPECT_EQ(position(0, 0), "1000,2000");
    EXPECT_EQ(position(7, 4), "1000,2000");
    for (int n = 0; n < 12; ++n) {
        for (int m = 0; m < 14; ++m) {
            const bool isShip = (n == 0 && m == 0) || (n == 7 && m == 4);
            EXPECT_EQ(position(n, m) == "INVALID,INVALID", !isShip) << n << ' ' << m;
        }
    }
}

TEST_F(Placement, AnEmptiedPlaceStaysWhereItIsWhateverItsShortNameSays)
{
    make("Column", 1);
    addShip(2, 3, QStringLiteral("A0"));
    set(shipSection(2, 3), "NAME", QStringLiteral("NO SHIP"));
    addShip(2, 4, QStringLiteral("A0"));
    set(shipSection(2, 4), "NAME", QString());
    place();
    EXPECT_EQ(position(0, 0), "1000,2000");
    EXPECT_EQ(position(2, 3), untouched);
    EXPECT_EQ(position(2, 4), untouched);
}

TEST_F(Placement, APositionKeyWithATrailingBlankIsReplaced)
{
    make("Column", 1);
    QFile::remove(profile.path());
    describe(0, "Column", 1, 500, 0);
    profile.write(u"DIVISION0SHIP0", u"NAME", u"Achilles");
    profile.write(u"DIVISION0SHIP0", u"SHORTNAME ", u"A0");
    profile.write(u"DIVISION0SHIP0", u"XPOSITION ", u"7");
    place();
    EXPECT_EQ(position(0, 0), "1000,2000");
    QFile file(profile.path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count("XPOSITION"), 1);
}

TEST_F(Placement, TouchesTheTwoPositionsAlone)
{
    make("Line of Bearing", 2, 700, 33);
    QStringList before;
    const auto others = [&] {
        QStringList values;
        for (const QStringView divisionKey : divisionKeys) {
            values.append(profile.GetIniKey(u"DIVISION0", divisionKey));
        }
        for (const QStringView shipKey : shipKeys) {
            if (shipKey != u"XPOSITION" && shipKey != u"ZPOSITION") {
                values.append(profile.GetIniKey(u"DIVISION0SHIP1", shipKey));
            }
        }
        return values;
    };
    before = others();
    place();
    EXPECT_EQ(others(), before);
    EXPECT_EQ(key(QStringLiteral("DIVISION0SHIP1"), "YPOSITION"), QStringLiteral("0.000000"));
    EXPECT_NE(position(0, 1), untouched);
}

TEST_F(Placement, TheFirstDivisionOfNameAndSideIsPlacedAlone)
{
    describe(0, "Column", 1, 500, 0, "Red", 2);
    addShip(0, 0, QStringLiteral("R"));
    describe(1, "Column", 1, 500, 0, "Blue", 1);
    addShip(1, 0, QStringLiteral("N"));
    for (const int section : {2, 11}) {
        describe(section, "Column", 1, 500, 0, "Blue", 2);
        addShip(section, 0, QStringLiteral("S%1").arg(section));
    }
    place("Blue 2");
    EXPECT_EQ(position(0, 0), untouched);
    EXPECT_EQ(position(1, 0), untouched);
    EXPECT_EQ(position(2, 0), "1000,2000");
    EXPECT_EQ(position(11, 0), untouched);
}

TEST_F(Placement, TheSearchGoesToSectionElevenWhateverLiesBetween)
{
    describe(11, "Column", 1, 500, 0, "Red", 6);
    addShip(11, 0, QStringLiteral("S"));
    describe(12, "Column", 1, 500, 0, "Red", 5);
    addShip(12, 0, QStringLiteral("T"));
    place("Red  6");
    EXPECT_EQ(position(11, 0), "1000,2000");
    place("Red  5");
    EXPECT_EQ(position(12, 0), untouched);
}

TEST_F(Placement, ADivisionThatIsNotThereChangesNothing)
{
    make("Column", 1);
    const ViewState before = view;
    for (const char* const key : {"Blue 2", "Red  1", "blue 1", ""}) {
        place(key);
        EXPECT_EQ(position(0, 0), untouched) << key;
    }
    EXPECT_EQ(view, before);
}

TEST_F(Placement, ReadsEverySettingOfTheDivision)
{
    describe(4, "Convoy", 9, 1500, 275, "Red", 3);
    set(QStringLiteral("DIVISION4"), "FLAGSHIPINDEX", QStringLiteral("5"));
    EXPECT_EQ(placement.findDivision(cutRepositionKey(u"Red  3")),
              (DivisionToPlace{.section = QStringLiteral("DIVISION4"),
                               .name = QStringLiteral("Division 3"),
                               .formation = QStringLiteral("Convoy"),
                               .count = 9,
                               .heading = 275,
                               .spacing = 1500,
                               .colour = 12,
                               .flagshipPlace = 6}));
    describe(5, "Column", 1, 500, 0, "Blue", 3);
    EXPECT_EQ(placement.findDivision(cutRepositionKey(u"Blue 3"))->colour, 9);
}

TEST_F(Placement, AMissingSettingIsThatOfTheSectionBefore)
{
    describe(0, "Line of Bearing", 1, 900, 90, "Red", 1);
    describe(1, "Column", 2, 500, 0, "Blue", 1);
    for (const char* const missing : {"FORMATION", "FORMATIONHEADING", "FORMATIONSPACING"}) {
        set(QStringLiteral("DIVISION1"), missing, QString());
    }
    const auto division = placement.findDivision(cutRepositionKey(u"Blue 1"));
    ASSERT_TRUE(division);
    EXPECT_EQ(division->formation, QStringLiteral("Line of Bearing"));
    EXPECT_EQ(division->heading, 90);
    EXPECT_EQ(division->spacing, 900);
    EXPECT_EQ(division->count, 2);
}

TEST_F(Placement, AMissingNameIsThatOfTheSectionBeforeToo)
{
    describe(0, "Column", 1, 500, 0, "Blue", 4);
    describe(1, "Column", 1, 500, 0, "Red", 9);
    set(QStringLiteral("DIVISION1"), "DIVISIONNAME", QString());
    EXPECT_EQ(placement.findDivision(cutRepositionKey(u"Red  4"))->section, QStringLiteral("DIVISION1"));
}

TEST_F(Placement, AMissingSideOrCountIsThatOfTheSectionBeforeToo)
{
    describe(0, "Column", 3, 500, 0, "Red", 4);
    describe(1, "Column", 1, 500, 0, "Blue", 9);
    for (const char* const missing : {"SIDE", "SHIPCNT"}) {
        set(QStringLiteral("DIVISION1"), missing, QStringLiteral("INVALID"));
    }
    EXPECT_EQ(placement.findDivision(cutRepositionKey(u"Blue 9")), std::nullopt);
    const auto division = placement.findDivision(cutRepositionKey(u"Red  9"));
    ASSERT_TRUE(division);
    EXPECT_EQ(division->section, QStringLiteral("DIVISION1"));
    EXPECT_EQ(division->count, 3);
    EXPECT_EQ(division->colour, 12);
}

TEST_F(Placement, WhatNoSectionSaysIsNought)
{
    set(QStringLiteral("DIVISION0"), "DIVISIONNAME", QStringLiteral("Division 1"));
    set(QStringLiteral("DIVISION0"), "SIDE", QStringLiteral("Blue"));
    EXPECT_EQ(placement.findDivision(cutRepositionKey(u"Blue 1")),
              (DivisionToPlace{.section = QStringLiteral("DIVISION0"),
                               .name = QStringLiteral("Division 1"),
                               .colour = 9,
                               .flagshipPlace = 1}));
}

TEST_F(Placement, NoShipsPlaceNothingEvenBeforeThereIsAScale)
{
    make("Column", 0);
    addShip(0, 0, QStringLiteral("A0"));
    view.mapScale = 0;
    place();
    EXPECT_EQ(position(0, 0), untouched);
    make("Column", -3);
    place();
    EXPECT_EQ(position(0, 0), untouched);
}

TEST_F(Placement, ElevenShipsAreASubscriptFailureBeforeAnythingIsWritten)
{
    for (const char* const formation : {"Column", "Line of Bearing", "Convoy"}) {
        make(formation, 11);
        expectError(RuntimeError::SubscriptOutOfRange, [&] { place(); });
        EXPECT_EQ(position(0, 0), untouched) << formation;
        make(formation, 10);
        place();
        EXPECT_NE(position(0, 9), untouched) << formation;
    }
}

TEST_F(Placement, AFormationOfAnotherNamePlacesNothing)
{
    make("Kolonne", 2);
    place();
    EXPECT_EQ(position(0, 0), untouched);
    EXPECT_EQ(position(0, 1), untouched);
}

TEST_F(Placement, NumbersBeyondSixteenBitsOverflow)
{
    for (const char* const setting : {"FORMATIONHEADING", "FORMATIONSPACING", "SHIPCNT"}) {
        make("Column", 2);
        set(QStringLiteral("DIVISION0"), setting, QStringLiteral("32768"));
        expectError(RuntimeError::Overflow, [&] { place(); });
        EXPECT_EQ(position(0, 0), untouched) << setting;
    }
}

TEST_F(Placement, AtScaleNoughtALineOverflowsAndTheTurnDoesNothing)
{
    make("Column", 2);
    view.mapScale = 0;
    expectError(RuntimeError::Overflow, [&] { place(); });
    placement.rotateShipAboutAnchor({1, 2}, 0, QStringLiteral("A0"), QStringLiteral("Small"), day);
    EXPECT_EQ(position(0, 0), untouched);
    EXPECT_EQ(view.mapScale, 0.0F);
}

TEST_F(Placement, APositionBeyondThirtyTwoBitsOverflowsAndIsNotWritten)
{
    make("Column", 1);
    const auto write = [this](PixelOffset point) {
        placement.writeShipPosition(point, QStringLiteral("A0"), QStringLiteral("Small"), day);
    };
    write({214748364, -214748364});
    EXPECT_EQ(position(0, 0), "2147483640,-2147483640");
    expectError(RuntimeError::Overflow, [&] { write({214748365, 0}); });
    expectError(RuntimeError::Overflow, [&] { write({0, -214748365}); });
    EXPECT_EQ(position(0, 0), "2147483640,-2147483640");
}

TEST_F(Placement, AtAnUnknownZoomLevelIsASubscriptFailure)
{
    make("Column", 1);
    view.zoomIndex = 0;
    expectError(RuntimeError::SubscriptOutOfRange, [&] { place(); });
    EXPECT_EQ(position(0, 0), untouched);
}

TEST_F(Placement, LeavesTheClassTableAtTheLastShipsClass)
{
    make("Convoy", 2);
    addShip(0, 1, QStringLiteral("A1"), QStringLiteral("No such class"));
    place();
    EXPECT_TRUE(catalogue.ShipDaClass().isEOF());
    make("Column", 2);
    place();
    EXPECT_EQ(catalogue.ShipDaClass().value(u"b"), QStringLiteral("Small"));
}

} // namespace
} // namespace torvane::testing
