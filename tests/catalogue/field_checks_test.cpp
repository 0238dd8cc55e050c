#include "catalogue_text.h"
#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane {
namespace {

using testing::CatalogueText;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The faults of a sound catalogue in which one field of ships.csv is another.
QStringList withShip(std::size_t line, const QString& column, const QString& value)
{
    CatalogueText text;
    CatalogueText::set(text.ships, line, column, value);
    return text.faults();
}

QStringList withClass(std::size_t line, const QString& column, const QString& value)
{
    CatalogueText text;
    CatalogueText::set(text.classes, line, column, value);
    return text.faults();
}

TEST(CatalogueFields, ASoundCatalogueHasNoFault)
{
    EXPECT_THAT(CatalogueText().faults(), IsEmpty());
}

TEST(CatalogueFields, AMissingColumnIsRefusedInEachFile)
{
    CatalogueText text;
    CatalogueText::removeColumn(text.ships, "short_name");
    CatalogueText::removeColumn(text.classes, "tur_q");
    CatalogueText::removeColumn(text.ranges, "range_yd");
    EXPECT_THAT(text.faults(), ElementsAre("classes.csv:1: the column \"tur_q\" is missing",
                                           "gun_ranges.csv:1: the column \"range_yd\" is missing",
                                           "ships.csv:1: the column \"short_name\" is missing"));
}

TEST(CatalogueFields, EveryColumnOfTheClassesIsNeeded)
{
    const QStringList columns = CatalogueText().classes.front();
    for (const QString& column : columns) {
        CatalogueText text;
        CatalogueText::removeColumn(text.classes, column);
        EXPECT_THAT(text.faults(),
                    ElementsAre(QStringLiteral("classes.csv:1: the column \"%1\" is missing").arg(column)));
    }
}

TEST(CatalogueFields, EachTurretLetterThatDoesNotExistIsRefused)
{
    for (const char letter : {'f', 'k', 'p', 's', 'v', 'w'}) {
        const QString column = QStringLiteral("tur_") + QChar::fromLatin1(letter);
        CatalogueText text;
        CatalogueText::addColumn(text.classes, column);
        EXPECT_THAT(
            text.faults(),
            ElementsAre(QStringLiteral("classes.csv:1: there is no turret of the letter of column \"%1\"")
                            .arg(column)));
    }
}

TEST(CatalogueFields, AnUnknownColumnAndADoubleOneAreRefused)
{
    CatalogueText text;
    CatalogueText::addColumn(text.classes, "funnels");
    CatalogueText::addColumn(text.ranges, "class");
    EXPECT_THAT(text.faults(), ElementsAre("classes.csv:1: the column \"funnels\" is unknown",
                                           "gun_ranges.csv:1: the column \"class\" is there twice"));
}

TEST(CatalogueFields, ColumnsMayStandInAnyOrder)
{
    CatalogueText text;
    for (QStringList& row : text.ships) {
        row.move(0, 5);
    }
    EXPECT_THAT(text.faults(), IsEmpty());
}

TEST(CatalogueFields, AnEmptyFileIsRefused)
{
    ShipDataFiles files = CatalogueText().files();
    files.ranges.clear();
    EXPECT_THAT(CatalogueText::faultsOf(files), ElementsAre("gun_ranges.csv:1: the file is empty"));
}

TEST(CatalogueFields, BadQuotingIsRefusedWithItsLineAndNothingThatFollowsFromIt)
{
    EXPECT_THAT(withShip(3, "name", "\"RN2"),
                ElementsAre("ships.csv:3: bad quoting: a double quote is not closed on its line"));
    EXPECT_THAT(withClass(2, "class", "\"RN class"),
                ElementsAre("classes.csv:2: bad quoting: a double quote is not closed on its line"));
    EXPECT_THAT(withClass(1, "class", "\"class"),
                ElementsAre("classes.csv:1: bad quoting: a double quote is not closed on its line"));
}

TEST(CatalogueFields, AnUnknownTypeIsRefused)
{
    EXPECT_THAT(withShip(425, "type", "CV"),
                ElementsAre("ships.csv:425: unknown type \"CV\"",
                            "ships.csv:425: RN424 is of type CV, her class of type DD"));
    EXPECT_THAT(withShip(425, "type", "dd"), ::testing::Contains("ships.csv:425: unknown type \"dd\""));
    EXPECT_THAT(withClass(3, "type", "XX"), ::testing::Contains("classes.csv:3: unknown type \"XX\""));
}

TEST(CatalogueFields, AllSixTypesAreKnown)
{
    for (const QString type : {"BB", "BC", "CA", "CL", "DD", "TR"}) {
        CatalogueText text;
        CatalogueText::set(text.classes, 3, "type", type);
        CatalogueText::set(text.ships, 425, "type", type);
        EXPECT_THAT(text.faults(), IsEmpty()) << qPrintable(type);
    }
}

TEST(CatalogueFields, AnUnknownNavyIsRefused)
{
    EXPECT_THAT(withShip(425, "navy", "RCN"), ::testing::Contains("ships.csv:425: unknown navy \"RCN\""));
    EXPECT_THAT(withClass(3, "navy", "MN"), ::testing::Contains("classes.csv:3: unknown navy \"MN\""));
}

TEST(CatalogueFields, AHullIsNavalOrMerchant)
{
    EXPECT_THAT(withClass(3, "hull", "merchant"), IsEmpty());
    EXPECT_THAT(withClass(3, "hull", "wooden"), ElementsAre("classes.csv:3: unknown hull \"wooden\""));
}

TEST(CatalogueFields, WhatIsNoPlainNumberIsRefused)
{
    for (const QString bad :
         {"", "abc", "-5", "+5", "1e3", "0x10", " 36", "3 6", "1..5", "5.", ".5", "nan", "inf"}) {
        EXPECT_THAT(withClass(3, "speed_kn", bad),
                    ElementsAre(QStringLiteral("classes.csv:3: speed_kn \"%1\" is no number").arg(bad)));
    }
    EXPECT_THAT(withClass(3, "speed_kn", "30.5"),
                ElementsAre("classes.csv:3: speed_kn \"30.5\" is no whole number"));
    EXPECT_THAT(withClass(3, "length_ft", "320.75"), IsEmpty());
}

struct Bounds
{
    const char* column;
    const char* below; ///< empty where every number down to 0 is allowed
    const char* least;
    const char* most;
    const char* above;
};

class CatalogueNumbers : public ::testing::TestWithParam<Bounds>
{
protected:
    /// Of an unarmed class, so that other rules have their say too; only this one is asked.
    static bool refused(const char* value)
    {
        const QStringList faults = withClass(3, GetParam().column, value);
        const QString start =
            QStringLiteral("classes.csv:3: %1 %2 is out of range (").arg(GetParam().column, value);
        return std::any_of(faults.begin(), faults.end(),
                           [&](const QString& text) { return text.startsWith(start); });
    }
};

TEST_P(CatalogueNumbers, AreRefusedBelowAndAboveTheirLimits)
{
    EXPECT_FALSE(refused(GetParam().least));
    EXPECT_FALSE(refused(GetParam().most));
    EXPECT_TRUE(refused(GetParam().above));
    if (*GetParam().below != '\0') {
        EXPECT_TRUE(refused(GetParam().below));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Columns, CatalogueNumbers,
    ::testing::Values(
        Bounds{"year", "1889", "1890", "1945", "1946"},
        Bounds{"standard_tons", "199", "200", "80000", "80001"},
        Bounds{"length_ft", "99.9", "100", "1100", "1100.1"}, Bounds{"beam_ft", "14.9", "15", "150", "150.1"},
        Bounds{"speed_kn", "4", "5", "45", "46"}, Bounds{"belt_in", "", "0", "20", "20.1"},
        Bounds{"deck_in", "", "0", "12", "12.1"}, Bounds{"main_calibre_in", "1.9", "2", "20", "20.1"},
        Bounds{"main_range_yd", "3999", "4000", "48000", "48001"},
        Bounds{"shells_per_gun", "", "1", "500", "501"}, Bounds{"tur_a", "", "0", "4", "5"},
        Bounds{"tur_q", "", "0", "4", "5"}, Bounds{"tur_z", "", "0", "4", "5"},
        Bounds{"sec_calibre_in", "1.9", "2", "10", "10.1"}, Bounds{"sec_fore", "", "0", "20", "21"},
        Bounds{"sec_starboard", "", "0", "20", "21"}, Bounds{"torpedo_in", "13.9", "14", "25", "25.1"},
        Bounds{"tubes_1", "", "0", "10", "11"}, Bounds{"tubes_4", "", "0", "10", "11"},
        Bounds{"torpedoes_carried", "", "0", "60", "61"}),
    [](const auto& bounds) { return std::string(bounds.param.column); });

TEST(CatalogueFields, OnlyAShipWithoutGunsMayHaveNoRange)
{
    CatalogueText text;
    CatalogueText::set(text.ranges, 2, "range_yd", "0");
    EXPECT_THAT(text.faults(),
                ::testing::Contains("gun_ranges.csv:2: range_yd 0 is out of range (4000 to 48000)"));
}

TEST(CatalogueFields, TheYearOfAShipHasLimits)
{
    EXPECT_THAT(withShip(2, "commissioned", "1946"),
                ::testing::Contains("ships.csv:2: commissioned 1946 is out of range (1890 to 1945)"));
    EXPECT_THAT(withShip(2, "commissioned", "1889"),
                ::testing::Contains("ships.csv:2: commissioned 1889 is out of range (1890 to 1945)"));
}

TEST(CatalogueFields, ANameThatAScenarioCannotCarryIsRefused)
{
    const QString cannot = "ships.csv:2: name \"%1\" has a character that a scenario can't carry in a name";
    for (const QString bad : {"A=B", "A]B", "[AB", "A;B", "'AB", "A\tB"}) {
        EXPECT_THAT(withShip(2, "name", bad), ElementsAre(cannot.arg(bad)));
    }
    EXPECT_THAT(withShip(2, "name", "\"A,B\""), ElementsAre(cannot.arg("A,B")));
    EXPECT_THAT(withShip(2, "name", "\"A\"\"B\""), ElementsAre(cannot.arg("A\"B")));
    EXPECT_THAT(withShip(2, "name", "O'Brien"), IsEmpty());
}

TEST(CatalogueFields, NamesAreWindows1252InSmallLettersAndInCapitals)
{
    const QString outside = "ships.csv:2: name \"%1\" has a character outside Windows-1252";
    EXPECT_THAT(withShip(2, "name", QStringLiteral("L\u00FCtzow")), IsEmpty());
    EXPECT_THAT(withShip(2, "name", QStringLiteral("\u015Awit")),
                ElementsAre(outside.arg(QStringLiteral("\u015Awit"))));
    // Its capital is a Greek letter.
    EXPECT_THAT(withShip(2, "name", QStringLiteral("\u00B5")),
                ElementsAre(outside.arg(QStringLiteral("\u00B5"))));
}

TEST(CatalogueFields, ANameMustNotMeanThatThereIsNone)
{
    EXPECT_THAT(withShip(2, "name", "No Ship"),
                ElementsAre("ships.csv:2: name \"No Ship\" means in a scenario that there is none"));
    EXPECT_THAT(withShip(2, "short_name", "INVALID"),
                ElementsAre("ships.csv:2: short_name \"INVALID\" means in a scenario that there is none"));
}

TEST(CatalogueFields, NamesAreNeitherEmptyNorPaddedNorTooLong)
{
    EXPECT_THAT(withShip(2, "name", ""), ElementsAre("ships.csv:2: name is empty"));
    EXPECT_THAT(withShip(2, "name", " A"),
                ElementsAre("ships.csv:2: name \" A\" begins or ends with a blank"));
    EXPECT_THAT(withShip(2, "name", "A "),
                ElementsAre("ships.csv:2: name \"A \" begins or ends with a blank"));
    EXPECT_THAT(withShip(2, "name", QString(24, 'x')), IsEmpty());
    EXPECT_THAT(
        withShip(2, "name", QString(25, 'x')),
        ElementsAre(
            QStringLiteral("ships.csv:2: name \"%1\" is longer than 24 characters").arg(QString(25, 'x'))));
    EXPECT_THAT(withShip(2, "short_name", QString(12, 'x')), IsEmpty());
    EXPECT_THAT(withShip(2, "short_name", QString(13, 'x')),
                ElementsAre(QStringLiteral("ships.csv:2: short_name \"%1\" is longer than 12 characters")
                                .arg(QString(13, 'x'))));
}

TEST(CatalogueFields, TheNameOfAClassFollowsTheSameRules)
{
    EXPECT_THAT(withClass(3, "class", "Oil=r"),
                ::testing::Contains(
                    "classes.csv:3: class \"Oil=r\" has a character that a scenario can't carry in a name"));
    EXPECT_THAT(withShip(425, "class", "Oil=r"),
                ::testing::Contains(
                    "ships.csv:425: class \"Oil=r\" has a character that a scenario can't carry in a name"));
}

TEST(CatalogueFields, AllFaultsAreListed)
{
    CatalogueText text;
    CatalogueText::set(text.classes, 3, "speed_kn", "x");
    CatalogueText::set(text.classes, 3, "beam_ft", "1000");
    CatalogueText::set(text.classes, 3, "hull", "y");
    CatalogueText::set(text.ships, 7, "name", "");
    EXPECT_THAT(text.faults(),
                ElementsAre("classes.csv:3: unknown hull \"y\"",
                            "classes.csv:3: beam_ft 1000 is out of range (15 to 150)",
                            "classes.csv:3: speed_kn \"x\" is no number", "ships.csv:7: name is empty"));
}

} // namespace
} // namespace torvane
