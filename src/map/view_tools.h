#pragma once

#include "map/map_plotting.h"
#include "platform/language.h"

#include <QString>

#include <array>

namespace torvane {

/// The tools of the row above the map, from left to right, and the one at the map's corner.
enum class Tool {
    GridLevel,
    ZoomLevel,
    Names,
    Scale,
    VisibilityRings,
    GunRings,
    RadarRings,
    Measure,
    CenterMap,
};

/// The text of a help tag and the width that it gets, `perCharacter` times the length plus `plus`, in pixels.
/// The width grows where the font needs more. UTF-8.
struct TagText
{
    const char* text;
    double perCharacter;
    int plus;

    QString string() const { return QString::fromUtf8(text); }
    /// Whole pixels, rounded up.
    int width() const;
};

/// A tool and its help tag, by their design names. The places are pixels from the left of the window; those
/// of the corner's tool follow the window's size.
struct ViewTool
{
    Tool tool;
    const char* name;
    int left;
    const char* tag;
    int tagLeft;
    TagText english;
    TagText german;

    const TagText& tagText(Language language) const
    {
        return language == Language::German ? german : english;
    }
};

inline constexpr int toolSize = 41; ///< width and height
inline constexpr int toolTop = 8;
inline constexpr int tagTop = 32;
inline constexpr int tagHeight = 17;

/// In the order of `Tool`.
inline constexpr std::array<ViewTool, 9> viewTools{{
    {Tool::GridLevel, "cmdGridLevel", 0, "hotGrid", 24, {"Grid Level", 5.5, 0}, {"Rasterebene ", 5.5, 0}},
    {Tool::ZoomLevel, "cmdZoomLevel", 40, "hotZoom", 64, {"Zoom Level", 5.5, 5}, {"Zoom-Ebene ", 5.5, 5}},
    {Tool::Names, "cmdNameTog", 80, "hotNames", 104, {"Names Toggle", 5.5, 7}, {"Namen umschalten ", 5.5, 3}},
    {Tool::Scale,
     "cmdMapScale",
     120,
     "hotScale",
     144,
     {"Scale Toggle", 5.5, 5},
     {"Maßstab umschalten", 5.5, 3}},
    {Tool::VisibilityRings,
     "cmdVisibCircles",
     160,
     "hotVisRings",
     184,
     {"Visibility Ranges", 5.0, 0},
     {"Sichtweiten", 5.5, 0}},
    {Tool::GunRings,
     "cmdGunCircles",
     200,
     "hotGunRings",
     224,
     {"Main Gun Ranges", 5.5, 7},
     {"Hauptgeschützreichweiten", 5.5, 0}},
    {Tool::RadarRings,
     "cmdRadarCircles",
     240,
     "hotRadarRings",
     264,
     {"Radar Ranges", 5.5, 7},
     {"Radarreichweiten", 5.5, 0}},
    {Tool::Measure,
     "cmdMeasureTool",
     280,
     "hotLineTool",
     304,
     {"Line Tool", 5.5, 0},
     {"Linien-Werkzeug", 5.5, 0}},
    {Tool::CenterMap, "Image1", 0, "hotCenterMap", 0, {"Center Map", 5.5, 3}, {"Zentrum karte", 5.5, 0}},
}};

/// What a click on a tool changes: the names go on by one, the four others flip, the remaining tools change
/// nothing here.
void toggle(MapToggles& toggles, Tool tool);
/// Whether a tool stands pressed: what it governs is on the map. Never for tools that are no toggles here.
bool isOn(const MapToggles& toggles, Tool tool);
/// The picture of a tool, in the program's resources. That of the names shows their mode.
QString toolPicture(Tool tool, int namesMode = 0);

} // namespace torvane
