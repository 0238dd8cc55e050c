#include "flood/invariants.h"
#include "shell/commands.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "store/force_sizes.h"
#include "store/profile_keys.h"

#include <QAction>
#include <QHash>

#include <algorithm>

namespace torvane::testing {

namespace {

constexpr bool sides[] = {true, false};
constexpr std::size_t plottedKeys = 8; // of a division; the map doesn't ask for the last
constexpr int refilledDivisions = 4; // the Edit Ship menus of the fifth and sixth keep what they once showed

/// Divisions of a force in the working profile, to the first gap.
int divisionsOf(const WorkingProfile& profile, bool forceA)
{
    int count = 0;
    for (int n = 0; n < divisionSections; ++n) {
        const QString side = profile.GetIniKey(divisionSection(n), u"SIDE");
        if (side == invalidValue) {
            break;
        }
        count += (side == u"Blue") == forceA ? 1 : 0;
    }
    return count;
}

/// The captions that the Edit Ship menu owes the profile, by entry.
QHash<QString, QString> shipCaptions(const WorkingProfile& profile)
{
    QHash<QString, QString> captions;
    for (int n = 0; n < divisionSections; ++n) {
        const QString section = divisionSection(n);
        // A setting that was left empty, such as a speed, ends the walk of the map.
        const bool isWhole =
            std::all_of(divisionKeys.begin(), divisionKeys.begin() + plottedKeys,
                        [&](QStringView key) { return profile.GetIniKey(section, key) != invalidValue; });
        if (!isWhole) {
            break;
        }
        const QString name = profile.GetIniKey(section, u"DIVISIONNAME");
        const bool forceA = profile.GetIniKey(section, u"SIDE") == u"Blue";
        const int division = name.right(1).toInt();
        const int ships = std::min(profile.GetIniKey(section, u"SHIPCNT").toInt(), shipEntries(division));
        for (int ship = 1; ship <= ships; ++ship) {
            const QString place = shipSection(n, ship - 1);
            QString shortName = profile.GetIniKey(place, u"SHORTNAME");
            if (shortName == u"Duncan") {
                shortName += profile.GetIniKey(place, u"CLASS") == u"Benson" ? QStringLiteral(" USN")
                                                                             : QStringLiteral(" RN");
            }
            captions.insert(shipEntryName(forceA, division, ship),
                            profile.GetIniKey(place, u"TYPE") + u' ' + shortName);
        }
    }
    return captions;
}

} // namespace

QString divisionMenusFault(Editor& editor)
{
    const MainMenu& menu = editor.mainFrm().menu();
    for (const bool forceA : sides) {
        const int divisions = divisionsOf(editor.workingProfile(), forceA);
        const int counted =
            forceA ? editor.divisionRecords().blueDivCount() : editor.divisionRecords().redDivCount();
        if (counted != divisions) {
            return QStringLiteral("%1 divisions of %2 are counted, %3 are there")
                .arg(counted)
                .arg(forceA ? u'A' : u'B')
                .arg(divisions);
        }
        // The first entry is always shown; its menu is greyed without a division.
        const int shown = std::max(1, divisions);
        for (int number = 1; number <= divisionsPerSide; ++number) {
            for (const QString& entry : {editEntryName(forceA, number),
                                         QString(QLatin1StringView(repositionRow(forceA, number).entry))}) {
                if (menu.action(entry)->isVisible() != (number <= shown)) {
                    return QStringLiteral("%1 is %2, with %3 divisions")
                        .arg(entry, number <= shown ? u"hidden" : u"shown")
                        .arg(divisions);
                }
            }
        }
        const bool enabled =
            menu.action(forceA ? QStringLiteral("editForceA") : QStringLiteral("editForceB"))->isEnabled();
        if (divisions > 0 && !enabled) {
            return QStringLiteral("the divisions of force %1 can't be edited").arg(forceA ? u'A' : u'B');
        }
    }
    return {};
}

QString shipMenuFault(Editor& editor, bool allDrawn)
{
    const MainMenu& menu = editor.mainFrm().menu();
    const QHash<QString, QString> captions = shipCaptions(editor.workingProfile());
    for (const bool forceA : sides) {
        for (int division = 1; division <= divisionsPerSide; ++division) {
            for (int ship = 1; ship <= shipEntries(division); ++ship) {
                const QString name = shipEntryName(forceA, division, ship);
                const QAction* entry = menu.action(name);
                const auto owed = captions.constFind(name);
                if (owed == captions.cend()) {
                    if (ship > 1 && division <= refilledDivisions && entry->isVisible()) {
                        return QStringLiteral("%1 shows %2, which is not there").arg(name, entry->text());
                    }
                } else if (allDrawn && (!entry->isVisible() || entry->text() != *owed)) {
                    return QStringLiteral("%1 shows %2 (%3) instead of %4")
                        .arg(name, entry->text(), entry->isVisible() ? u"shown" : u"hidden", *owed);
                }
            }
        }
    }
    return {};
}

} // namespace torvane::testing
