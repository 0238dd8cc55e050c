#include "faults/recovery.h"

#include "platform/number_text.h"
#include "scenario_file/load_scenario.h"
#include "store/working_profile.h"

#include <QDir>
#include <QTemporaryDir>

#include <stdexcept>

namespace torvane::testing {

namespace {

/// A program whose menus are of no interest.
class NoMenus : public ForceMenus
{
public:
    void showDivision(Side /*side*/, int /*number*/) override {}
    void enableForces() override {}
    void addRepositionMenuEntry(const QString& /*name*/, const QString& /*side*/) override {}
};

QByteArray valueOf(const Profile& profile, const QString& section, const char* key)
{
    return GetIniKey(profile, section.toLatin1(), key).toByteArray();
}

/// Keys that a load gives back as they stood when the run died. Places are compared as the numbers that they
/// are.
bool standsAsLeft(const Profile& loaded, const Profile& left, const QString& section,
                  std::initializer_list<const char*> texts, std::initializer_list<const char*> numbers = {})
{
    for (const char* key : texts) {
        if (valueOf(loaded, section, key) != valueOf(left, section, key)) {
            return false;
        }
    }
    for (const char* key : numbers) {
        const auto numberIn = [&](const Profile& profile) {
            return numberValue(QString::fromLatin1(valueOf(profile, section, key)));
        };
        if (numberIn(loaded) != numberIn(left)) {
            return false;
        }
    }
    return true;
}

QStringList differences(const Profile& loaded, const Profile& left)
{
    QStringList sections;
    if (!standsAsLeft(loaded, left, QStringLiteral("SCENARIODATA"), {"TITLE", "BATTLETYPE", "SEASTATE"})) {
        sections.append(QStringLiteral("SCENARIODATA"));
    }
    for (int n = 0; n < divisionSections; ++n) {
        const QString division = divisionSection(n);
        if (!standsAsLeft(loaded, left, division,
                          {"DIVISIONNAME", "SIDE", "FORMATION", "FORMATIONSPACING"})) {
            sections.append(division);
        }
        for (int m = 0; m < shipSections; ++m) {
            const QString ship = shipSection(n, m);
            const bool isThere = isShip(QString::fromLatin1(valueOf(left, ship, "NAME")));
            if (isThere && !standsAsLeft(loaded, left, ship, {"NAME", "CLASS", "CURRENTHITPOINTS"},
                                         {"XPOSITION", "ZPOSITION"})) {
                sections.append(ship);
            }
        }
    }
    return sections;
}

} // namespace

QStringList recoveredScenarios(const QString& folder)
{
    return QDir(folder + QStringLiteral("/Scenarios"))
        .entryList({QStringLiteral("* (recovered *).scn"), QStringLiteral("* (wiederhergestellt *).scn")},
                   QDir::Files | QDir::Hidden, QDir::Name);
}

QStringList complaintsAboutRecovery(const QString& folder, const QByteArray& left)
{
    const QStringList names = recoveredScenarios(folder);
    if (names.size() != (left.isEmpty() ? 0 : 1)) {
        return {QStringLiteral("recovered: \"%1\"").arg(names.join(QStringLiteral("\" \"")))};
    }
    if (left.isEmpty()) {
        return {};
    }
    const QTemporaryDir place;
    ProfileStore store;
    WorkingProfile profile(store, place.path());
    NoMenus menus;
    TargetArea target;
    try {
        const ProfileStore::Batch batch(store);
        rebuildStore(readScenario(folder + QStringLiteral("/Scenarios/") + names.first(), profile), profile,
                     ScratchFiles(store, place.path()), target, menus);
    } catch (const std::exception& error) {
        return {QStringLiteral("the recovered scenario can't be loaded: ") + QString::fromUtf8(error.what())};
    }
    const QStringList sections = differences(profile.parsed(), Profile::parse(left));
    return sections.isEmpty() ? QStringList()
                              : QStringList(QStringLiteral("recovered otherwise than left: ") +
                                            sections.join(QLatin1Char(' ')));
}

} // namespace torvane::testing
