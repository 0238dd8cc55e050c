#include "ship_state/ship_sections.h"

#include "store/force_sizes.h"
#include "store/ship_catalogue.h"

#include <functional>

namespace torvane {

namespace {

QString firstSection(const WorkingProfile& profile,
                     const std::function<bool(const QString& section)>& isWanted)
{
    for (int division = 0; division < divisionSections; ++division) {
        for (int ship = 0; ship < shipsPerDivision; ++ship) {
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
    const QString name = isNamedDuncan(shown) ? QString(ambiguousShortName) : shown;
    return firstSection(profile, [&](const QString& section) {
        return profile.GetIniKey(section, u"SHORTNAME") == name &&
               (name != ambiguousShortName || profile.GetIniKey(section, u"CLASS") == shipClass.trimmed());
    });
}

} // namespace torvane
