#include "catalogue_text.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

using testing::CatalogueText;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class CatalogueChecks : public ::testing::Test
{
protected:
    void ship(std::size_t line, const QString& column, const QString& value)
    {
        CatalogueText::set(m_text.ships, line, column, value);
    }
    void shipClass(std::size_t line, const QString& column, const QString& value)
    {
        CatalogueText::set(m_text.classes, line, column, value);
    }
    QStringList faults() const { return m_text.faults(); }
    CatalogueText& text() { return m_text; }

private:
    CatalogueText m_text;
};

TEST_F(CatalogueChecks, AClassWithoutARowIsRefusedAtItsShip)
{
    ship(2, "class", "Phantom");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:2: the class \"Phantom\" has no row in classes.csv"));
}

TEST_F(CatalogueChecks, TheClassOfAShipIsComparedLetterForLetter)
{
    ship(2, "class", "rn class");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:2: the class \"rn class\" has no row in classes.csv"));
}

TEST_F(CatalogueChecks, AClassWithoutShipsIsRefused)
{
    ship(425, "class", "RN class");
    EXPECT_THAT(faults(), ElementsAre("classes.csv:3: the class \"Oiler\" has no ships"));
}

TEST_F(CatalogueChecks, ADoubleNameIsRefusedWhateverItsCaseAndNavy)
{
    ship(3, "name", "RN1");
    ship(500, "name", "rn1");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:3: double name \"RN1\", first in line 2",
                                      "ships.csv:500: double name \"rn1\", first in line 2"));
}

TEST_F(CatalogueChecks, ADoubleShortNameIsRefused)
{
    ship(3, "short_name", "RN1");
    ship(4, "short_name", "rn1");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:3: double short name \"RN1\", first in line 2",
                                      "ships.csv:4: double short name \"rn1\", first in line 2"));
}

TEST_F(CatalogueChecks, TwoShipsOfDifferentClassesMayShareTheShortNameDuncan)
{
    ship(2, "short_name", "Duncan");
    ship(426, "short_name", "Duncan");
    EXPECT_THAT(faults(), IsEmpty());
}

TEST_F(CatalogueChecks, TwoShipsOfOneClassMayNotEvenShareDuncan)
{
    ship(2, "short_name", "Duncan");
    ship(3, "short_name", "Duncan");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:3: double short name \"Duncan\", first in line 2"));
}

TEST_F(CatalogueChecks, AThirdDuncanIsRefused)
{
    ship(2, "short_name", "Duncan");
    ship(426, "short_name", "Duncan");
    ship(825, "short_name", "Duncan");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:825: double short name \"Duncan\", first in line 2"));
}

TEST_F(CatalogueChecks, DuncanIsSpeltInOneWay)
{
    ship(2, "short_name", "Duncan");
    ship(426, "short_name", "DUNCAN");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:426: double short name \"DUNCAN\", first in line 2"));
}

TEST_F(CatalogueChecks, TheNameDuncanIsNoException)
{
    ship(2, "name", "Duncan");
    ship(426, "name", "Duncan");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:426: double name \"Duncan\", first in line 2"));
}

TEST_F(CatalogueChecks, ADoubleClassIsRefusedInBothFiles)
{
    text().classes.push_back(text().classes.at(1));
    text().ranges.push_back(text().ranges.at(1));
    EXPECT_THAT(faults(), ElementsAre("classes.csv:7: double class \"RN class\", first in line 2",
                                      "gun_ranges.csv:6: double class \"RN class\", first in line 2"));
}

TEST_F(CatalogueChecks, AShipTooManyIsNamedByItsLine)
{
    text().ships.insert(text().ships.begin() + 425, {"RN425", "RN425", "DD", "Oiler", "RN", "1935"});
    EXPECT_THAT(faults(), ElementsAre("ships.csv:426: 425 ships of navy RN, the editor needs exactly 424"));
}

TEST_F(CatalogueChecks, AShipTooFewIsNamedAtTheEndOfTheFile)
{
    CatalogueText::removeLine(text().ships, 900);
    EXPECT_THAT(faults(), ElementsAre("ships.csv:1266: 197 ships of navy KM, the editor needs exactly 198"));
}

TEST_F(CatalogueChecks, EachNavyIsCounted)
{
    for (const std::size_t line : {1267U, 1000U, 500U, 300U}) {
        CatalogueText::removeLine(text().ships, line);
    }
    EXPECT_THAT(faults(),
                UnorderedElementsAre("ships.csv:1263: 423 ships of navy RN, the editor needs exactly 424",
                                     "ships.csv:1263: 398 ships of navy USN, the editor needs exactly 399",
                                     "ships.csv:1263: 197 ships of navy KM, the editor needs exactly 198",
                                     "ships.csv:1263: 244 ships of navy IJN, the editor needs exactly 245"));
}

TEST_F(CatalogueChecks, AShipIsNotOlderThanHerClass)
{
    ship(2, "commissioned", "1930");
    EXPECT_THAT(faults(), IsEmpty());
    ship(2, "commissioned", "1929");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:2: RN1 of 1929 is older than her class of 1930"));
}

TEST_F(CatalogueChecks, AShipIsAtMostTwelveYearsYoungerThanHerClass)
{
    ship(2, "commissioned", "1942");
    EXPECT_THAT(faults(), IsEmpty());
    ship(2, "commissioned", "1943");
    EXPECT_THAT(faults(),
                ElementsAre("ships.csv:2: RN1 of 1943 is more than 12 years younger than her class of 1930"));
}

TEST_F(CatalogueChecks, AShipIsOfTheTypeOfHerClass)
{
    ship(2, "type", "CL");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:2: RN1 is of type CL, her class of type DD"));
}

TEST_F(CatalogueChecks, AShipIsOfTheNavyOfHerClass)
{
    ship(2, "class", "USN class");
    EXPECT_THAT(faults(), ElementsAre("ships.csv:2: RN1 is of navy RN, her class of navy USN"));
}

TEST_F(CatalogueChecks, AClassWithMainGunsNeedsARange)
{
    CatalogueText::removeLine(text().ranges, 2);
    EXPECT_THAT(
        faults(),
        ElementsAre("classes.csv:2: the class \"RN class\" has main guns but no row in gun_ranges.csv"));
}

TEST_F(CatalogueChecks, ARangeNeedsAClassWithMainGuns)
{
    text().ranges.push_back({"Oiler", "16000"});
    text().ranges.push_back({"Phantom", "16000"});
    EXPECT_THAT(faults(), ElementsAre("gun_ranges.csv:6: the class \"Oiler\" has no main guns",
                                      "gun_ranges.csv:7: the class \"Phantom\" has no row in classes.csv"));
}

TEST_F(CatalogueChecks, ARangeIsThatOfTheClass)
{
    CatalogueText::set(text().ranges, 2, "range_yd", "16001");
    EXPECT_THAT(
        faults(),
        ElementsAre(
            "gun_ranges.csv:2: the class \"RN class\" shoots 16001 yards here and 16000 in classes.csv"));
}

TEST_F(CatalogueChecks, MainGunsNeedACalibreARangeAndShells)
{
    shipClass(2, "main_calibre_in", "0");
    shipClass(4, "main_range_yd", "0");
    shipClass(5, "shells_per_gun", "0");
    EXPECT_THAT(
        faults(),
        ElementsAre(
            "classes.csv:2: main guns but no main_calibre_in",
            "classes.csv:4: main guns but no main_range_yd", "classes.csv:5: main guns but no shells_per_gun",
            "gun_ranges.csv:3: the class \"USN class\" shoots 16000 yards here and 0 in classes.csv"));
}

TEST_F(CatalogueChecks, AClassWithoutGunsAndTubesHasNothingForThem)
{
    shipClass(3, "main_calibre_in", "4");
    shipClass(3, "main_range_yd", "9000");
    shipClass(3, "shells_per_gun", "60");
    shipClass(3, "sec_calibre_in", "3");
    shipClass(3, "torpedo_in", "21");
    EXPECT_THAT(faults(), ElementsAre("classes.csv:3: no main guns but a main_calibre_in",
                                      "classes.csv:3: no main guns but a main_range_yd",
                                      "classes.csv:3: no main guns but a shells_per_gun",
                                      "classes.csv:3: no secondary guns but a sec_calibre_in",
                                      "classes.csv:3: no torpedo tubes but a torpedo_in"));
}

TEST_F(CatalogueChecks, SecondaryGunsAndTubesNeedACalibre)
{
    shipClass(2, "sec_calibre_in", "0");
    shipClass(2, "torpedo_in", "0");
    EXPECT_THAT(faults(), ElementsAre("classes.csv:2: secondary guns but no sec_calibre_in",
                                      "classes.csv:2: torpedo tubes but no torpedo_in"));
}

TEST_F(CatalogueChecks, EveryTubeHasATorpedoAndNoTorpedoIsWithoutTubes)
{
    shipClass(2, "torpedoes_carried", "7");
    shipClass(3, "torpedoes_carried", "1");
    EXPECT_THAT(faults(), ElementsAre("classes.csv:2: 7 torpedoes for 8 tubes",
                                      "classes.csv:3: 1 torpedoes for 0 tubes"));
}

TEST_F(CatalogueChecks, WhatADroppedRowMayHoldIsNotMissed)
{
    ship(425, "type", "\"DD");
    EXPECT_THAT(faults(),
                ElementsAre("ships.csv:425: bad quoting: a double quote is not closed on its line"));
    CatalogueText noRange;
    CatalogueText::set(noRange.ranges, 2, "range_yd", "\"16000");
    EXPECT_THAT(noRange.faults(),
                ElementsAre("gun_ranges.csv:2: bad quoting: a double quote is not closed on its line"));
}

TEST_F(CatalogueChecks, TheFirstOfTwoRowsOfAClassCounts)
{
    text().classes.push_back(text().classes.at(1));
    shipClass(7, "year", "1936");
    EXPECT_THAT(faults(), ElementsAre("classes.csv:7: double class \"RN class\", first in line 2"));
}

TEST_F(CatalogueChecks, RowsThatAreThereAreComparedAlsoWhereAnotherWasDropped)
{
    shipClass(3, "class", "\"Oiler");
    ship(3, "name", "RN1");
    ship(4, "commissioned", "1929");
    EXPECT_THAT(faults(), ElementsAre("classes.csv:3: bad quoting: a double quote is not closed on its line",
                                      "ships.csv:3: double name \"RN1\", first in line 2",
                                      "ships.csv:4: RN3 of 1929 is older than her class of 1930"));
}

} // namespace
} // namespace torvane
