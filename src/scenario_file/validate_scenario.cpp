#include "scenario_file/validate_scenario.h"

#include "scenario_file/scenario_format.h"
#include "store/profile_keys.h"
#include "store/side.h"
#include "store/working_profile.h"

#include <QFile>

#include <algorithm>

namespace torvane {

namespace {

using Findings = std::vector<Finding>;

/// The rest of the check after a rule.
enum class Then { GoOn, End };

// Only the first character is looked at: a title such as "A/B" passes. Kept.
void checkTitle(const WorkingProfile& profile, Findings& findings)
{
    const QString title = profile.GetIniKey(scenarioDataSection, u"TITLE");
    if (!title.isEmpty() && QStringView(u"\\/:?*\"><|").contains(title.front())) {
        findings.push_back({ValidationRule::Title, SaveText::FileName});
    }
}

/// The side that escorts or transports: a scenario that doesn't say so has it on Red.
QString activeSide(const WorkingProfile& profile)
{
    return profile.GetIniKey(scenarioDataSection, u"BLUE_FORCE_TYPE") == u"0" ? blueWord : redWord;
}

// An area placed at exactly x 0 counts as none. Kept.
void checkTarget(const TargetArea& target, SaveText message, Findings& findings)
{
    if (target.x == 0) {
        findings.push_back({ValidationRule::Mission, message});
    }
}

Then checkConvoy(const WorkingProfile& profile, Findings& findings)
{
    const QString side = activeSide(profile);
    for (int n = 0; n < divisionSections; ++n) {
        const QString section = divisionSection(n);
        if (profile.GetIniKey(section, u"SIDE") == side &&
            profile.GetIniKey(section, u"FORMATION").trimmed().toUpper() == u"CONVOY") {
            return Then::End;
        }
    }
    findings.push_back({ValidationRule::Mission, SaveText::Convoy});
    return Then::GoOn;
}

// The type of an emptied ship place still counts. Kept.
Then checkTransport(const WorkingProfile& profile, Findings& findings)
{
    const QString side = activeSide(profile);
    for (int n = 0; n < divisionSections; ++n) {
        if (profile.GetIniKey(divisionSection(n), u"SIDE") != side) {
            continue;
        }
        for (int m = 0; m < shipSections; ++m) {
            const QString type = profile.GetIniKey(shipSection(n, m), u"TYPE");
            if (type != invalidValue && type != u"DD") {
                findings.push_back({ValidationRule::Mission, SaveText::TransportShips});
                return Then::End;
            }
        }
    }
    return Then::GoOn;
}

Then checkMission(const WorkingProfile& profile, const TargetArea& target, Findings& findings)
{
    const QString mission = profile.GetIniKey(scenarioDataSection, u"BATTLETYPE");
    if (mission == u"1") {
        checkTarget(target, SaveText::Bombardment, findings);
    } else if (mission == u"2") {
        return checkConvoy(profile, findings);
    } else if (mission == u"4") {
        checkTarget(target, SaveText::TransportTarget, findings);
        return checkTransport(profile, findings);
    }
    return Then::GoOn;
}

// The walk takes in the section behind the last one that the count speaks of. Kept.
bool hasBothSides(const WorkingProfile& profile, int divisions)
{
    bool blue = false;
    bool red = false;
    for (int n = 0; n <= divisions; ++n) {
        const QString side = profile.GetIniKey(divisionSection(n), u"SIDE");
        blue = blue || side == blueWord;
        red = red || side == redWord;
    }
    return blue && red;
}

void checkDivisions(const WorkingProfile& profile, Findings& findings)
{
    const int divisions = profile.divisionCount();
    if (divisions < 2 || !hasBothSides(profile, divisions)) {
        findings.push_back({ValidationRule::Divisions, SaveText::BothSides});
    }
}

/// Names that stand for devices, whatever follows their first dot.
bool isDeviceName(QStringView title)
{
    const QString text = title.toString();
    const QString name = text.section(QLatin1Char('.'), 0, 0).trimmed().toUpper();
    if (name == u"CON" || name == u"PRN" || name == u"AUX" || name == u"NUL") {
        return true;
    }
    return name.size() == 4 && (name.startsWith(u"COM") || name.startsWith(u"LPT")) && name.back() >= u'1' &&
           name.back() <= u'9';
}

} // namespace

std::vector<Finding> validateScenario(const WorkingProfile& profile, const TargetArea& target)
{
    Findings findings;
    checkTitle(profile, findings);
    if (checkMission(profile, target, findings) == Then::GoOn) {
        checkDivisions(profile, findings);
    }
    return findings;
}

bool canNameScenarioFile(QStringView title)
{
    constexpr qsizetype longestName = 255; // bytes that file systems take
    const QStringView name = title.trimmed();
    const auto isForbidden = [](QChar c) { return c < u' ' || c == u'/' || c == u'\\'; };
    return !name.isEmpty() && !name.startsWith(u'.') && std::none_of(name.begin(), name.end(), isForbidden) &&
           !isDeviceName(name) &&
           QFile::encodeName(name.toString()).size() + scenarioFileSuffix.size() <= longestName;
}

} // namespace torvane
