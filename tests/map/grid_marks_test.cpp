#include "map/plotting_fixture.h"

namespace torvane::testing {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

constexpr MapColour grey = 0x808080;
constexpr MapColour dark = 0x000000;
constexpr MapColour white = 0xFFFFFF;

std::vector<LineMark> columns(const MarkList& marks)
{
    std::vector<LineMark> found;
    for (const LineMark& line : marksOf<LineMark>(marks)) {
        if (line.from.x == line.to.x) {
            found.push_back(line);
        }
    }
    return found;
}

std::vector<LineMark> rows(const MarkList& marks, bool bars = false)
{
    std::vector<LineMark> found;
    for (const LineMark& line : marksOf<LineMark>(marks)) {
        if (line.from.y == line.to.y && (line.colour == white) == bars) {
            found.push_back(line);
        }
    }
    return found;
}

template <typename Value>
std::vector<Value> each(const std::vector<LineMark>& lines, Value (*value)(const LineMark&))
{
    std::vector<Value> values;
    for (const LineMark& line : lines) {
        values.push_back(value(line));
    }
    return values;
}

int column(const LineMark& line)
{
    return line.from.x;
}
int row(const LineMark& line)
{
    return line.from.y;
}
MapColour colour(const LineMark& line)
{
    return line.colour;
}

// 5,000 yards at 60 yards a pixel: 83 pixels, begun at the rounded half, 41.5.
TEST(Grid, StandsHalfACellFromTheTopLeftCornerAndThenACellApart)
{
    const MarkList marks = gridMarks(ViewState(), true, false);
    EXPECT_THAT(each(columns(marks), column), ElementsAre(42, 125, 208, 291, 374, 457, 540, 623));
    EXPECT_THAT(each(rows(marks), row), ElementsAre(42, 125, 208, 291, 374));
}

TEST(Grid, HasThreeGreyLinesBeforeEachDarkOne)
{
    const MarkList marks = gridMarks(ViewState(), true, false);
    EXPECT_THAT(each(columns(marks), colour), ElementsAre(grey, grey, grey, dark, grey, grey, grey, dark));
    EXPECT_THAT(each(rows(marks), colour), ElementsAre(grey, grey, grey, dark, grey));
}

TEST(Grid, CountsItsRowsAnewAfterItsColumns)
{
    ViewState view;
    view.mapWidthPx = 210; // three columns: a count that went on would make the first row dark
    EXPECT_EQ(colour(rows(gridMarks(view, true, false)).front()), grey);
    EXPECT_EQ(columns(gridMarks(view, true, false)).size(), 3U);
}

TEST(Grid, ReachesFromEdgeToEdge)
{
    const MarkList marks = gridMarks(ViewState(), true, false);
    EXPECT_EQ(columns(marks).front(), (LineMark{.from = {42, 0}, .to = {42, 417}, .colour = grey}));
    EXPECT_EQ(rows(marks).front(), (LineMark{.from = {0, 42}, .to = {625, 42}, .colour = grey}));
}

TEST(Grid, DrawsALineOnePixelBeyondTheView)
{
    ViewState view;
    view.mapWidthPx = 124;
    view.mapHeightPx = 41;
    EXPECT_THAT(each(columns(gridMarks(view, true, false)), column), ElementsAre(42, 125));
    EXPECT_THAT(each(rows(gridMarks(view, true, false)), row), ElementsAre(42));
    view.mapWidthPx = 123;
    EXPECT_THAT(each(columns(gridMarks(view, true, false)), column), ElementsAre(42));
}

TEST(Grid, LabelsItsGreyRowsAndDrawsAWhiteCellOnThem)
{
    const MarkList marks = gridMarks(ViewState(), true, true);
    EXPECT_THAT(each(rows(marks, true), row), ElementsAre(42, 125, 208, 374)) << "the dark row has none";
    // From p / 2 + 1 to p / 2 + p, ties to the even pixel.
    EXPECT_EQ(rows(marks, true).front(), (LineMark{.from = {42, 42}, .to = {124, 42}, .colour = white}));
    const std::vector<TextMark> texts = marksOf<TextMark>(marks);
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts.front(),
              (TextMark{.at = {78, 42}, .text = QStringLiteral("5000  yds"), .colour = white}));
}

TEST(Grid, WithoutScaleLabelsKeepsItsLinesAndLosesAllTextAndWhiteBars)
{
    const MarkList marks = gridMarks(ViewState(), true, false);
    EXPECT_THAT(marksOf<TextMark>(marks), IsEmpty());
    EXPECT_THAT(rows(marks, true), IsEmpty());
    EXPECT_EQ(rows(marks).size(), rows(gridMarks(ViewState(), true, true)).size());
}

TEST(Grid, HalvesItsDistancesAtNightWithTheScale)
{
    const MarkList marks = gridMarks(ViewState(), false, true); // 2,500 yards at 30 a pixel
    EXPECT_EQ(columns(marks).front().from.x, 42);
    EXPECT_EQ(marksOf<TextMark>(marks).front().text, QStringLiteral("2500  yds"));
}

// Which spacing and scale a level has is tested with their table; here that the grid takes the view's.
TEST(Grid, TakesSpacingAndScaleOfTheViewsLevel)
{
    ViewState view;
    view.zoomIndex = 10; // 960 yards a pixel
    view.gridIndex = 1;  // 25,000 yards
    EXPECT_EQ(columns(gridMarks(view, true, false))[1].from.x, 13 + 26);
}

// At 80 yards a pixel: 62.5, 187.5 and 125 pixels, and of the last one half 62.5.
TEST(Grid, RoundsItsStepAndItsStartToTheEvenPixel)
{
    ViewState view;
    view.zoomIndex = 3;
    view.gridIndex = 3;
    EXPECT_THAT(each(columns(gridMarks(view, true, false)), column),
                ElementsAre(31, 93, 155, 217, 279, 341, 403, 465, 527, 589));
    view.gridIndex = 1;
    EXPECT_THAT(each(columns(gridMarks(view, true, false)), column), ElementsAre(94, 282, 470));
    view.gridIndex = 2;
    EXPECT_THAT(each(columns(gridMarks(view, true, false)), column), ElementsAre(62, 187, 312, 437, 562));
}

TEST(Grid, DoesNotMoveWithTheScrolledView)
{
    ViewState scrolled;
    scrolled.mapOriginX = -4000;
    scrolled.mapOriginY = 900;
    EXPECT_EQ(gridMarks(scrolled, true, true), gridMarks(ViewState(), true, true));
}

TEST(Grid, OfNoSizeIsASubscriptFailure)
{
    ViewState view;
    view.gridIndex = 0;
    expectError(RuntimeError::SubscriptOutOfRange, [&] { gridMarks(view, true, true); });
    view.gridIndex = 4;
    expectError(RuntimeError::SubscriptOutOfRange, [&] { gridMarks(view, true, true); });
}

} // namespace
} // namespace torvane::testing
