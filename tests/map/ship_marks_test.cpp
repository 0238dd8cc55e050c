#include "map/plotting_fixture.h"

namespace torvane::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr MapColour black = 0x000000;
constexpr MapColour white = 0xFFFFFF;
constexpr MapColour blue = 0x0000FF;
constexpr MapColour red = 0xFF0000;

PlottedShip cossack(std::int16_t heading = 0, std::int32_t length = 20)
{
    return {.heading = heading,
            .type = QStringLiteral("DD"),
            .shortName = QStringLiteral("Cossack"),
            .shipClass = QStringLiteral("Tribal"),
            .divisionName = QStringLiteral("Division 3"),
            .at = {100, 200},
            .lengthPx = length,
            .number = 2};
}

MarkList marksFor(const PlottedShip& ship, int namesMode = 0, const QString& mark = QStringLiteral("Div"))
{
    MarkList marks;
    appendShipMarks(ship, namesMode, mark, marks);
    return marks;
}

LineMark hullOf(const PlottedShip& ship)
{
    return std::get<LineMark>(marksFor(ship).front());
}

QString labelOf(const PlottedShip& ship, int namesMode)
{
    return marksOf<TextMark>(marksFor(ship, namesMode)).front().text;
}

TEST(ShipMarks, AtHeadingZeroTheBowIsUpTheScreen)
{
    EXPECT_EQ(hullOf(cossack(0)), (LineMark{.from = {100, 190}, .to = {100, 210}, .colour = black}));
}

TEST(ShipMarks, AtHeadingNinetyTheBowIsToTheRight)
{
    EXPECT_EQ(hullOf(cossack(90)), (LineMark{.from = {110, 200}, .to = {90, 200}}));
    EXPECT_EQ(hullOf(cossack(180)), (LineMark{.from = {100, 210}, .to = {100, 190}}));
    EXPECT_EQ(hullOf(cossack(270)), (LineMark{.from = {90, 200}, .to = {110, 200}}));
    EXPECT_EQ(hullOf(cossack(360)), hullOf(cossack(0)));
}

TEST(ShipMarks, OnADiagonalBothOffsetsAreRounded)
{
    EXPECT_EQ(hullOf(cossack(45)), (LineMark{.from = {107, 193}, .to = {93, 207}})); // 7.07
}

// Half of an odd length leaves a tie at each end.
TEST(ShipMarks, EndsOfAnOddHullGoToTheEvenPixel)
{
    PlottedShip ship = cossack(0, 5);
    EXPECT_EQ(hullOf(ship), (LineMark{.from = {100, 198}, .to = {100, 202}})); // 197.5 and 202.5
    ship.at.y = 201;
    EXPECT_EQ(hullOf(ship), (LineMark{.from = {100, 198}, .to = {100, 204}})); // 198.5 and 203.5
}

TEST(ShipMarks, TheBowIsAWhiteSquareOfThreePixels)
{
    EXPECT_THAT(marksOf<BoxMark>(marksFor(cossack())),
                ElementsAre(BoxMark{.from = {99, 189}, .to = {101, 191}, .colour = white, .filled = true}));
}

TEST(ShipMarks, AnEndBeyondSixteenBitsIsAnOverflow)
{
    PlottedShip ship = cossack();
    ship.at.y = 32757;
    EXPECT_EQ(hullOf(ship).to.y, 32767);
    ship.at.y = 32758;
    expectError(RuntimeError::Overflow, [&] { marksFor(ship); });
    ship.at = {.x = 32768, .y = 0};
    expectError(RuntimeError::Overflow, [&] { marksFor(ship); });
    ship.at = {.x = -32769, .y = 0};
    expectError(RuntimeError::Overflow, [&] { marksFor(ship); });
}

TEST(ShipMarks, TheLabelFollowsTheNamesMode)
{
    EXPECT_EQ(labelOf(cossack(), 0), QStringLiteral("DD Cossack"));
    EXPECT_EQ(labelOf(cossack(), 1), QStringLiteral("Cossack"));
    EXPECT_EQ(labelOf(cossack(), 2), QStringLiteral("DD"));
    EXPECT_EQ(labelOf(cossack(), 3), QString());
}

TEST(ShipMarks, AShipThatIsNotTheFlagshipHasAWhiteLabelAndNothingElse)
{
    const MarkList marks = marksFor(cossack());
    EXPECT_THAT(
        marksOf<TextMark>(marks),
        ElementsAre(TextMark{.at = {100, 200}, .text = QStringLiteral("DD Cossack"), .colour = white}));
    EXPECT_EQ(marks.size(), 3U);
}

TEST(ShipMarks, TheFlagshipFliesAPennantInItsSidesColour)
{
    PlottedShip ship = cossack();
    ship.flagship = true;
    const MarkList marks = marksFor(ship);
    EXPECT_THAT(
        std::vector<Mark>(marks.begin() + 2, marks.end()),
        ElementsAre(Mark(BoxMark{.from = {101, 185}, .to = {111, 178}, .colour = blue, .filled = true}),
                    Mark(BoxMark{.from = {101, 185}, .to = {111, 178}, .colour = black}),
                    Mark(LineMark{.from = {101, 185}, .to = {101, 200}, .colour = black}),
                    Mark(TextMark{.at = {100, 200}, .text = QStringLiteral("DD Cossack"), .colour = blue}),
                    Mark(TextMark{.at = {101, 165}, .text = QStringLiteral("Div3"), .colour = blue})));
    ship.side = Side::Red;
    for (const TextMark& text : marksOf<TextMark>(marksFor(ship))) {
        EXPECT_EQ(text.colour, red);
    }
    EXPECT_EQ(marksOf<BoxMark>(marksFor(ship))[1].colour, red);
}

TEST(ShipMarks, WithoutLabelsTheFlagshipKeepsItsPennantAndItsDivisionMark)
{
    PlottedShip ship = cossack();
    ship.flagship = true;
    const MarkList marks = marksFor(ship, 3, QStringLiteral("Verb."));
    EXPECT_EQ(marksOf<BoxMark>(marks).size(), 3U);
    const std::vector<TextMark> texts = marksOf<TextMark>(marks);
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text, QString());
    EXPECT_EQ(texts[1].text, QStringLiteral("Verb.3"));
}

TEST(EditShipEntries, AreTypeBlankAndShortName)
{
    EXPECT_EQ(editShipEntry(cossack()),
              (EditShipEntry{
                  .side = Side::Blue, .division = 3, .ship = 2, .caption = QStringLiteral("DD Cossack")}));
}

TEST(EditShipEntries, TellTheTwoShipsNamedDuncanApartWhereTheMapDoesNot)
{
    PlottedShip ship = cossack();
    ship.shortName = QStringLiteral("Duncan");
    ship.shipClass = QStringLiteral("Benson");
    EXPECT_EQ(editShipEntry(ship).caption, QStringLiteral("DD Duncan USN"));
    EXPECT_EQ(labelOf(ship, 0), QStringLiteral("DD Duncan"));
    ship.shipClass = QStringLiteral("D");
    EXPECT_EQ(editShipEntry(ship).caption, QStringLiteral("DD Duncan RN"));
}

TEST(EditShipEntries, ExistForTheSixNamesOfDivisionsAlone)
{
    PlottedShip ship = cossack();
    for (int number = 1; number <= 6; ++number) {
        ship.divisionName = QStringLiteral("Division %1").arg(number);
        EXPECT_EQ(editShipEntry(ship).division, number);
    }
    for (const char* name : {"Division 0", "Division 7", "Division 12", "division 1", "Division 1 ",
                             "Verband 1", "Division", "1", ""}) {
        ship.divisionName = QString::fromLatin1(name);
        EXPECT_EQ(editShipEntry(ship).division, 0) << name;
    }
}

} // namespace
} // namespace torvane::testing
