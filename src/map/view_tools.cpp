#include "map/view_tools.h"

#include <cmath>

namespace torvane {

namespace {

constexpr int namesModes = 4;
constexpr int noNames = namesModes - 1;

constexpr std::array<const char*, viewTools.size()> pictures{
    "grid", "zoom", "names", "scale", "visibility_rings", "gun_rings", "radar_rings", "measure", "center"};

/// The flag of a tool that has two states, or null.
bool ViewToggles::*flagOf(Tool tool)
{
    switch (tool) {
    case Tool::Scale:
        return &ViewToggles::scaleLabelsOn;
    case Tool::VisibilityRings:
        return &ViewToggles::visRingsOn;
    case Tool::GunRings:
        return &ViewToggles::gunRingsOn;
    case Tool::RadarRings:
        return &ViewToggles::radarRingsOn;
    default:
        return nullptr;
    }
}

} // namespace

int TagText::width() const
{
    return static_cast<int>(std::ceil(perCharacter * static_cast<double>(string().size()))) + plus;
}

void toggle(ViewToggles& toggles, Tool tool)
{
    if (tool == Tool::Names) {
        toggles.namesMode = (toggles.namesMode + 1) % namesModes;
    } else if (const auto flag = flagOf(tool)) {
        toggles.*flag = !(toggles.*flag);
    }
}

bool isOn(const ViewToggles& toggles, Tool tool)
{
    if (tool == Tool::Names) {
        return toggles.namesMode != noNames;
    }
    const auto flag = flagOf(tool);
    return flag && toggles.*flag;
}

QString toolPicture(Tool tool, int namesMode)
{
    const QString picture = QLatin1StringView(pictures.at(static_cast<std::size_t>(tool)));
    return tool == Tool::Names ? QStringLiteral(":/icons/%1_%2.svg").arg(picture).arg(namesMode)
                               : QStringLiteral(":/icons/%1.svg").arg(picture);
}

} // namespace torvane
