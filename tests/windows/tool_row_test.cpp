#include "map/tool_row.h"

#include "platform/picture_button.h"
#include "support/input.h"
#include "support/printers.h"

#include <QLabel>
#include <QTest>

#include <gmock/gmock.h>

// The program does so when it starts; it stands outside every namespace.
static bool registerIcons()
{
    Q_INIT_RESOURCE(icons);
    return true;
}

namespace torvane::testing {
namespace {

constexpr std::array<const char*, 8> rowTools{"cmdGridLevel",    "cmdZoomLevel",    "cmdNameTog",
                                              "cmdMapScale",     "cmdVisibCircles", "cmdGunCircles",
                                              "cmdRadarCircles", "cmdMeasureTool"};
constexpr std::array<const char*, 8> rowTags{"hotGrid",     "hotZoom",     "hotNames",      "hotScale",
                                             "hotVisRings", "hotGunRings", "hotRadarRings", "hotLineTool"};

/// A surface with a map, what stands beside the row and below the map, and the tools.
class Row : public ::testing::Test
{
protected:
    Row() : row(&surface)
    {
        surface.resize(643, 483);
        map.setGeometry(0, 48, 625, 417);
        map.setFocusPolicy(Qt::StrongFocus);
        ruler.setGeometry(330, 8, 80, 16);
        panel.setGeometry(450, 4, 120, 40);
        row.watch(&map, ToolRow::Place::Map);
        row.watch(&ruler, ToolRow::Place::Ruler);
        row.watch(&panel, ToolRow::Place::ScalePanel);
        row.leadTabThrough(&map);
        row.placeCorner({624, 464}, 18, {560, 464});
        row.setCaptions(Language::English);
        surface.show();
        surface.activateWindow();
        settle();
        // Wherever the pointer was, the first move of a test is one.
        moveTo(surface, {600, 20});
    }

    PictureButton* tool(const char* name) { return control<PictureButton>(surface, QLatin1StringView(name)); }
    QLabel* tag(const char* name) { return control<QLabel>(surface, QLatin1StringView(name)); }

    void moveTo(QWidget& control, QPoint at)
    {
        QTest::mouseMove(control.window(), control.mapTo(control.window(), at));
        settle();
    }
    /// Over a tool at a place that no tag covers.
    void moveOver(const char* name) { moveTo(*tool(name), {10, 10}); }

    /// The design names of the tags that show.
    QStringList shown()
    {
        QStringList names;
        for (const ViewTool& each : viewTools) {
            if (tag(each.tag)->isVisible()) {
                names.append(QLatin1StringView(each.tag));
            }
        }
        return names;
    }
    void showCornerTag()
    {
        moveOver("Image1");
        ASSERT_TRUE(tag("hotCenterMap")->isVisible());
    }

    const bool icons = registerIcons();
    QWidget surface;
    QWidget map{&surface};
    QLabel ruler{&surface};
    QWidget panel{&surface};
    ToolRow row;
};

TEST_F(Row, ToolsAreFortyOnePixelsWideFortyApart)
{
    int left = 0;
    for (const char* name : rowTools) {
        EXPECT_EQ(tool(name)->geometry(), QRect(left, 8, 41, 41)) << name;
        left += 40;
    }
    EXPECT_EQ(tool("Image1")->geometry(), QRect(624, 464, 18, 18));
}

TEST_F(Row, TagsStandBelowTheirToolsHiddenAndYellow)
{
    int left = 24;
    for (const char* name : rowTags) {
        EXPECT_EQ(tag(name)->pos(), QPoint(left, 32)) << name;
        EXPECT_EQ(tag(name)->height(), 17) << name;
        left += 40;
    }
    for (const ViewTool& each : viewTools) {
        EXPECT_FALSE(tag(each.tag)->isVisible()) << each.tag;
        EXPECT_EQ(tag(each.tag)->palette().color(QPalette::Window), QColor(255, 255, 128));
        EXPECT_TRUE(tag(each.tag)->autoFillBackground());
    }
}

TEST_F(Row, TagsFitTheirTextsInBothLanguagesAndAreNoNarrowerThanLaidDown)
{
    for (const Language language : {Language::English, Language::German}) {
        row.setCaptions(language);
        for (const ViewTool& each : viewTools) {
            const TagText& text = each.tagText(language);
            const QLabel* label = tag(each.tag);
            const QFontMetrics metrics(label->font());
            EXPECT_EQ(label->text(), text.string());
            EXPECT_GE(label->width(), text.width()) << each.tag;
            EXPECT_GE(label->width(), metrics.horizontalAdvance(text.string()) + 2) << each.tag;
            EXPECT_GE(label->height(), metrics.height()) << each.tag;
            EXPECT_TRUE(surface.rect().contains(label->geometry())) << each.tag;
            EXPECT_EQ(tool(each.name)->accessibleName(), text.string().trimmed());
        }
    }
}

TEST_F(Row, TheCornersTagStandsLeftOfTheCorner)
{
    for (const Language language : {Language::English, Language::German}) {
        row.setCaptions(language);
        const QRect place = tag("hotCenterMap")->geometry();
        EXPECT_EQ(place.top(), 464);
        EXPECT_LE(place.left(), 560);
        EXPECT_LT(place.right(), 624);
    }
}

TEST_F(Row, APointerOverAToolShowsItsTagAloneInTheRow)
{
    for (std::size_t i = 0; i < rowTools.size(); ++i) {
        moveOver(rowTools.at(i));
        EXPECT_EQ(shown(), QStringList{QLatin1StringView(rowTags.at(i))});
    }
    moveOver(rowTools.front());
    EXPECT_EQ(shown(), QStringList{QStringLiteral("hotGrid")});
}

TEST_F(Row, ThePointerOverTheCornersToolShowsItsTagAndHidesNoOther)
{
    moveOver("cmdNameTog");
    moveOver("Image1");
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("hotNames"), QStringLiteral("hotCenterMap")}));
}

TEST_F(Row, MovesOverTheRowLeaveTheCornersTag)
{
    showCornerTag();
    moveOver("cmdGunCircles");
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("hotGunRings"), QStringLiteral("hotCenterMap")}));
}

TEST_F(Row, ATagOfTheRowStaysUnderThePointerAndHidesNoOther)
{
    moveOver("cmdZoomLevel");
    showCornerTag();
    moveTo(*tag("hotZoom"), {30, 8});
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("hotZoom"), QStringLiteral("hotCenterMap")}));
}

TEST_F(Row, TheCornersTagHidesItselfFromThePointer)
{
    moveOver("cmdZoomLevel");
    showCornerTag();
    moveTo(*tag("hotCenterMap"), {5, 5});
    EXPECT_EQ(shown(), QStringList{QStringLiteral("hotZoom")});
}

TEST_F(Row, ThePanelBelowTheMapHidesTheCornersTag)
{
    moveOver("cmdZoomLevel");
    showCornerTag();
    moveTo(panel, {5, 5});
    EXPECT_EQ(shown(), QStringList{QStringLiteral("hotZoom")});
}

TEST_F(Row, TheRulerHidesTheTagOfTheMeasuringTool)
{
    moveOver("cmdMeasureTool");
    showCornerTag();
    moveTo(ruler, {60, 3});
    EXPECT_EQ(shown(), QStringList{QStringLiteral("hotCenterMap")});
    moveOver("cmdZoomLevel");
    moveTo(ruler, {60, 3});
    EXPECT_EQ(shown(), (QStringList{QStringLiteral("hotZoom"), QStringLiteral("hotCenterMap")}));
}

TEST_F(Row, TheSurfaceAndTheMapHideAllTags)
{
    moveOver("cmdNameTog");
    showCornerTag();
    moveTo(surface, {600, 20});
    EXPECT_EQ(shown(), QStringList());
    moveOver("cmdNameTog");
    showCornerTag();
    moveTo(map, {300, 300});
    EXPECT_EQ(shown(), QStringList());
}

TEST_F(Row, WithTagsOffNothingIsShownAndWhatIsLeftIsHiddenByTheNextTool)
{
    moveOver("cmdNameTog");
    row.setTagsOn(false);
    EXPECT_EQ(shown(), QStringList{QStringLiteral("hotNames")}) << "stays until a move hides it";
    moveOver("cmdMapScale");
    EXPECT_EQ(shown(), QStringList());
    moveOver("Image1");
    EXPECT_EQ(shown(), QStringList());
    row.setTagsOn(true);
    moveOver("cmdNameTog");
    EXPECT_EQ(shown(), QStringList{QStringLiteral("hotNames")});
}

TEST_F(Row, EachToolReportsItsClickAndStandsAsItStood)
{
    std::vector<Tool> clicked;
    QObject::connect(&row, &ToolRow::clicked, &row, [&clicked](Tool which) { clicked.push_back(which); });
    std::vector<Tool> expected;
    for (const ViewTool& each : viewTools) {
        const bool before = tool(each.name)->isChecked();
        click(tool(each.name));
        EXPECT_EQ(tool(each.name)->isChecked(), before) << each.name;
        expected.push_back(each.tool);
    }
    EXPECT_EQ(clicked, expected);
}

TEST_F(Row, ToolsThatAreOnStandPressed)
{
    const auto pressed = [this] {
        QStringList names;
        for (const ViewTool& each : viewTools) {
            if (tool(each.name)->isChecked()) {
                names.append(QLatin1StringView(each.name));
            }
        }
        return names.join(u' ');
    };
    EXPECT_EQ(pressed(), QStringLiteral("cmdNameTog cmdMapScale"));
    row.showState({.namesMode = 3, .scaleLabelsOn = 0, .gunRingsOn = 1}, true);
    EXPECT_EQ(pressed(), QStringLiteral("cmdGunCircles cmdMeasureTool"));
    row.showState({.namesMode = 2, .scaleLabelsOn = 0, .visRingsOn = 1, .radarRingsOn = 1}, false);
    EXPECT_EQ(pressed(), QStringLiteral("cmdNameTog cmdVisibCircles cmdRadarCircles"));
}

TEST_F(Row, PressedAndRaisedToolsLookDifferent)
{
    const QImage raised = tool("cmdGunCircles")->grab().toImage();
    row.showState({.gunRingsOn = 1}, false);
    EXPECT_NE(tool("cmdGunCircles")->grab().toImage(), raised);
}

TEST_F(Row, EachModeOfTheNamesHasItsPicture)
{
    std::vector<QImage> seen;
    for (std::int16_t mode = 0; mode < 4; ++mode) {
        row.showState({.namesMode = mode}, false);
        const QImage picture = tool("cmdNameTog")->grab().toImage();
        EXPECT_THAT(seen, ::testing::Not(::testing::Contains(picture))) << mode;
        seen.push_back(picture);
    }
}

TEST_F(Row, EachToolHasAPictureOfItsOwn)
{
    for (const ViewTool& each : viewTools) {
        for (int mode = 0; mode < 4; ++mode) {
            const QImage picture = QIcon(toolPicture(each.tool, mode)).pixmap(41).toImage();
            ASSERT_EQ(picture.size(), QSize(41, 41)) << each.name;
            int inked = 0;
            for (int y = 0; y < 41; ++y) {
                for (int x = 0; x < 41; ++x) {
                    inked += picture.pixelColor(x, y).alpha() > 127 ? 1 : 0;
                }
            }
            EXPECT_GT(inked, 80) << each.name;
        }
    }
}

TEST_F(Row, ToolsAreReachedByTabInTheirOrderThenTheMapThenTheCorner)
{
    tool("cmdGridLevel")->setFocus();
    for (std::size_t i = 1; i < rowTools.size(); ++i) {
        press(surface.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(surface.focusWidget(), tool(rowTools.at(i)));
    }
    press(surface.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(surface.focusWidget(), &map);
    press(surface.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(surface.focusWidget(), tool("Image1"));
}

TEST_F(Row, AClickOnAToolLeavesTheFocusOnTheMapAndSpaceClicksTheFocusedOne)
{
    std::vector<Tool> clicked;
    QObject::connect(&row, &ToolRow::clicked, &row, [&clicked](Tool which) { clicked.push_back(which); });
    map.setFocus();
    click(tool("cmdGunCircles"));
    EXPECT_EQ(surface.focusWidget(), &map);
    tool("cmdNameTog")->setFocus();
    press(tool("cmdNameTog"), Qt::Key_Space);
    EXPECT_EQ(clicked, (std::vector{Tool::GunRings, Tool::Names}));
}

} // namespace
} // namespace torvane::testing
