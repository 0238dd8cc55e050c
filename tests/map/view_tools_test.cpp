#include "map/view_tools.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

struct Expected
{
    const char* name;
    int left;
    const char* tag;
    int tagLeft;
    const char* english;
    int englishWidth;
    const char* german;
    int germanWidth;
};

// Widths reckoned by hand: length times 5.5 (5 for the English visibility ranges) rounded up, plus the rest.
constexpr std::array<Expected, 9> expected{{
    {"cmdGridLevel", 0, "hotGrid", 24, "Grid Level", 55, "Rasterebene ", 66},
    {"cmdZoomLevel", 40, "hotZoom", 64, "Zoom Level", 60, "Zoom-Ebene ", 66},
    {"cmdNameTog", 80, "hotNames", 104, "Names Toggle", 73, "Namen umschalten ", 97},
    {"cmdMapScale", 120, "hotScale", 144, "Scale Toggle", 71, "Maßstab umschalten", 102},
    {"cmdVisibCircles", 160, "hotVisRings", 184, "Visibility Ranges", 85, "Sichtweiten", 61},
    {"cmdGunCircles", 200, "hotGunRings", 224, "Main Gun Ranges", 90, "Hauptgeschützreichweiten", 132},
    {"cmdRadarCircles", 240, "hotRadarRings", 264, "Radar Ranges", 73, "Radarreichweiten", 88},
    {"cmdMeasureTool", 280, "hotLineTool", 304, "Line Tool", 50, "Linien-Werkzeug", 83},
    {"Image1", 0, "hotCenterMap", 0, "Center Map", 58, "Zentrum karte", 72},
}};

TEST(ViewTools, HaveTheirNamesPlacesAndTags)
{
    for (std::size_t i = 0; i < viewTools.size(); ++i) {
        const ViewTool& tool = viewTools.at(i);
        const Expected& row = expected.at(i);
        EXPECT_EQ(static_cast<std::size_t>(tool.tool), i) << row.name;
        EXPECT_STREQ(tool.name, row.name);
        EXPECT_EQ(tool.left, row.left) << row.name;
        EXPECT_STREQ(tool.tag, row.tag);
        EXPECT_EQ(tool.tagLeft, row.tagLeft) << row.name;
    }
    EXPECT_EQ(toolSize, 41);
    EXPECT_EQ(toolTop, 8);
    EXPECT_EQ(tagTop, 32);
    EXPECT_EQ(tagHeight, 17);
}

TEST(ViewTools, HaveTheirTagsTextsAndWidthsInBothLanguages)
{
    for (std::size_t i = 0; i < viewTools.size(); ++i) {
        const Expected& row = expected.at(i);
        const TagText& english = viewTools.at(i).tagText(Language::English);
        EXPECT_EQ(english.string(), QString::fromUtf8(row.english));
        EXPECT_EQ(english.width(), row.englishWidth) << row.tag;
        const TagText& german = viewTools.at(i).tagText(Language::German);
        EXPECT_EQ(german.string(), QString::fromUtf8(row.german));
        EXPECT_EQ(german.width(), row.germanWidth) << row.tag;
    }
}

TEST(ViewToggles, StartWithNamesAndScaleLabelsAndWithoutRings)
{
    const MapToggles toggles;
    EXPECT_EQ(toggles.namesMode, 0);
    EXPECT_EQ(toggles.scaleLabelsOn, 1);
    EXPECT_EQ(toggles.visRingsOn, 0);
    EXPECT_EQ(toggles.gunRingsOn, 0);
    EXPECT_EQ(toggles.radarRingsOn, 0);
    EXPECT_EQ(toggles.ringFilterOn, 0);
}

TEST(ViewToggles, TheNamesNeedFourClicksToComeBackToTheirStart)
{
    MapToggles toggles;
    for (const int mode : {1, 2, 3, 0, 1}) {
        toggle(toggles, Tool::Names);
        EXPECT_EQ(toggles.namesMode, mode);
    }
}

TEST(ViewToggles, EachOfTheOthersFlipsAndFlipsBackAlone)
{
    const MapToggles start;
    for (const auto& [tool, flag] : {std::pair(Tool::Scale, &MapToggles::scaleLabelsOn),
                                     std::pair(Tool::VisibilityRings, &MapToggles::visRingsOn),
                                     std::pair(Tool::GunRings, &MapToggles::gunRingsOn),
                                     std::pair(Tool::RadarRings, &MapToggles::radarRingsOn)}) {
        MapToggles toggles;
        toggle(toggles, tool);
        MapToggles flipped = start;
        flipped.*flag = start.*flag == 0 ? 1 : 0;
        EXPECT_EQ(toggles, flipped);
        EXPECT_EQ(isOn(toggles, tool), toggles.*flag == 1);
        toggle(toggles, tool);
        EXPECT_EQ(toggles, start);
        EXPECT_EQ(isOn(toggles, tool), start.*flag == 1);
    }
}

TEST(ViewToggles, OtherToolsChangeNothingAndAreNeverOn)
{
    for (const Tool tool : {Tool::GridLevel, Tool::ZoomLevel, Tool::Measure, Tool::CenterMap}) {
        MapToggles toggles;
        toggle(toggles, tool);
        EXPECT_EQ(toggles, MapToggles{});
        EXPECT_FALSE(isOn(toggles, tool));
    }
}

TEST(ViewToggles, TheNamesAreOnUntilNothingIsShown)
{
    for (std::int16_t mode = 0; mode < 4; ++mode) {
        EXPECT_EQ(isOn({.namesMode = mode}, Tool::Names), mode != 3);
    }
}

TEST(ToolPictures, AreOneEachAndOneForEachModeOfTheNames)
{
    QStringList seen;
    for (const ViewTool& each : viewTools) {
        for (int mode = 0; mode < (each.tool == Tool::Names ? 4 : 1); ++mode) {
            const QString picture = toolPicture(each.tool, mode);
            EXPECT_FALSE(seen.contains(picture)) << picture.toStdString();
            seen.append(picture);
        }
    }
    EXPECT_EQ(toolPicture(Tool::GridLevel, 2), toolPicture(Tool::GridLevel)) << "only the names have modes";
}

} // namespace
} // namespace torvane::testing
