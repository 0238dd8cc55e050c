#include "ship_state/ship_sections.h"

#include <functional>

namespace torvane {

namespace {

constexpr QLatin1StringView duncan{"Duncan"};
/// Places of a division that are looked at; a division has at most as many ships.
constexpr int ships = 10;

QString firstSection(const WorkingProfile& profile,
                     const std::function<bool(const QString& section)>& isWanted)
{
    for (int division = 0; division < divisionSections; ++division) {
        for (int ship = 0; ship < ships; ++ship) {
            const QString section = shipSection(division, ship);
            if (isShip(profile.GetIniKey(section, u"NAME")) && isWanted(section)) {
                return section;
            }
        }
    }
    return QString();
}

} // namespace

bool isNamedDuncan(const QString& shortName)
{
    return shortName == QLatin1StringView("Duncan USN") || shortName == QLatin1StringView("Duncan RN");
}

QString sectionToShow(const WorkingProfile& profile, const QString& shortName)
{
    const QStringView key = isNamedDuncan(shortName) ? u"NAME" : u"SHORTNAME";
    return firstSection(profile,
                        [&](const QString& section) { return profile.GetIniKey(section, key) == shortName; });
}

QString findShipSection(const WorkingProfile& profile, const QString& shortName, const QString& shipClass)
{
    const QString shown = shortName.trimmed();
    const QString name = isNamedDuncan(shown) ? QString(duncan) : shown;
    return firstSection(profile, [&](const QString& section) {
        return profile.GetIniKey(section, u"SHORTNAME") == name &&
               (name != duncan || profile.GetIniKey(section, u"CLASS") == shipClass.trimmed());
    });
}

} // namespace torvane
