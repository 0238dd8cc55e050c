#include "map/view_tools.h"

#include <cmath>

namespace torvane {

namespace {

constexpr int namesModes = 4;
constexpr int noNames = namesModes - 1;

constexpr std::array<const char*, viewTools.size()> pictures{
    "grid", "zoom", "names", "scale", "visibility_rings", "gun_rings", "radar_rings", "measure", "center"};

/// The flag, 0 or 1, of a tool that has two states, or null.
std::int16_t MapToggles::*flagOf(Tool tool)
{
    switch (tool) {
    case Tool::Scale:
        return &MapToggles::scaleLabelsOn;
    case Tool::VisibilityRings:
        return &MapToggles::visRingsOn;
    case Tool::GunRings:
        return &MapToggles::gunRingsOn;
    case Tool::RadarRings:
        return &MapToggles::radarRingsOn;
    default:
        return nullptr;
    }
}

} // namespace

int TagText::width() const
{
    return static_cast<int>(std::ceil(perCharacter * static_cast<double>(string().size()))) + plus;
}

void toggle(MapToggles& toggles, Tool tool)
{
    if (tool == Tool::Names) {
        toggles.namesMode = static_cast<std::int16_t>((toggles.namesMode + 1) % namesModes);
    } else if (const auto flag = flagOf(tool)) {
        toggles.*flag = toggles.*flag == 0 ? 1 : 0;
    }
}

bool isOn(const MapToggles& toggles, Tool tool)
{
    if (tool == Tool::Names) {
        return toggles.namesMode != noNames;
    }
    const auto flag = flagOf(tool);
    return flag && toggles.*flag == 1;
}

QString toolPicture(Tool tool, int namesMode)
{
    const QString picture = QLatin1StringView(pictures.at(static_cast<std::size_t>(tool)));
    return tool == Tool::Names ? QStringLiteral(":/icons/%1_%2.svg").arg(picture).arg(namesMode)
                               : QStringLiteral(":/icons/%1.svg").arg(picture);
}

} // namespace torvane
