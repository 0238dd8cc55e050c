#include "flood/invariants.h"
#include "flood/profile_text.h"
#include "platform/runtime_error.h"
#include "scenario_file/save_scenario.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "store/profile_keys.h"

#include <QFile>

#include <algorithm>
#include <span>

namespace torvane::testing {

namespace {

constexpr int oneDigitDivisions = 10;

/// The first of these keys that the section lacks. Keys mostly stand in this order.
QByteArray missingKey(const ProfileText::Section& section, std::span<const QStringView> wanted)
{
    std::size_t at = 0;
    for (const QStringView key : wanted) {
        const QByteArray name = key.toLatin1();
        if (at < section.keys.size() && section.keys[at] == name) {
            ++at;
            continue;
        }
        const auto found = std::ranges::find(section.keys, QByteArrayView(name));
        if (found == section.keys.end()) {
            return name;
        }
        at = static_cast<std::size_t>(found - section.keys.begin()) + 1;
    }
    return {};
}

QString text(QByteArrayView bytes)
{
    return QString::fromLatin1(bytes);
}

/// The number of the division that a section is about; -1 for another section.
int divisionOf(QByteArrayView section)
{
    if (!section.startsWith("DIVISION")) {
        return -1;
    }
    const QByteArray rest = section.sliced(8).toByteArray();
    const qsizetype ship = rest.indexOf("SHIP");
    return (ship < 0 ? rest : rest.first(ship)).toInt();
}

/// A division of a scenario that the editor made. Its flagship may lie beyond its ships: it is stored at
/// once, also in an edit that is cancelled.
QString madeDivisionFault(const ProfileText& profile, int division, QByteArrayView name, QByteArrayView side)
{
    const QByteArray section = divisionSection(division).toLatin1();
    const ProfileText::Section& keys = *profile.section(section);
    if (valueOf(keys, "DIVISIONNAME") != name || valueOf(keys, "SIDE") != side) {
        return QStringLiteral("%1 is %2 of %3")
            .arg(text(section), text(valueOf(keys, "DIVISIONNAME")), text(valueOf(keys, "SIDE")));
    }
    const int ships = valueOf(keys, "SHIPCNT").toByteArray().toInt();
    const int flagship = valueOf(keys, "FLAGSHIPINDEX").toByteArray().trimmed().toInt();
    if (ships < 1 || ships > 10 || flagship < 0 || flagship > 9) {
        return QStringLiteral("%1 has %2 ships and flagship %3").arg(text(section)).arg(ships).arg(flagship);
    }
    // A division beyond the tenth finds no records of kept ships by its cut name: places may stay empty
    // there.
    for (int ship = 0; ship < ships && division < oneDigitDivisions; ++ship) {
        const ProfileText::Section* place = profile.section(shipSection(division, ship).toLatin1());
        const QByteArrayView shipName = place == nullptr ? QByteArrayView() : valueOf(*place, "NAME");
        if (shipName.isEmpty() || shipName == "NO SHIP") {
            return QStringLiteral("%1 has no ship %2 of %3").arg(text(section)).arg(ship).arg(ships);
        }
    }
    return {};
}

} // namespace

QString profileFault(Editor& editor, const QByteArray& bytes)
{
    const ProfileText profile = ProfileText::of(bytes);
    if (!profile.fault.isEmpty()) {
        return QStringLiteral("a line of the profile is neither head nor key: %1").arg(text(profile.fault));
    }
    for (auto section = profile.sections.begin(); section != profile.sections.end(); ++section) {
        if (std::find_if(section + 1, profile.sections.end(), [&](const ProfileText::Section& other) {
                return other.name.compare(section->name, Qt::CaseInsensitive) == 0;
            }) != profile.sections.end()) {
            return QStringLiteral("two sections [%1]").arg(text(section->name));
        }
    }
    return editor.workingProfile().parsed().bytes() == bytes
               ? QString()
               : QStringLiteral("the profile on disk is not what the program holds");
}

QString divisionsFault(const QByteArray& bytes)
{
    const ProfileText profile = ProfileText::of(bytes);
    for (const ProfileText::Section& section : profile.sections) {
        if (!section.name.startsWith("DIVISION")) {
            continue;
        }
        const bool isShip = section.name.contains("SHIP");
        const QByteArray missing = isShip ? missingKey(section, shipKeys) : missingKey(section, divisionKeys);
        if (!missing.isEmpty()) {
            return QStringLiteral("[%1] lacks %2").arg(text(section.name), text(missing));
        }
    }
    return {};
}

QString madeScenarioFault(const QByteArray& bytes)
{
    const ProfileText profile = ProfileText::of(bytes);
    int count = 0;
    int blue = 0;
    int red = 0;
    for (; count < divisionSections; ++count) {
        const auto* const section = profile.section(divisionSection(count).toLatin1());
        if (section == nullptr) {
            break;
        }
        const bool isBlue = valueOf(*section, "SIDE") == "Blue";
        const int number = ++(isBlue ? blue : red);
        if (const QString fault = madeDivisionFault(profile, count, "Division " + QByteArray::number(number),
                                                    isBlue ? "Blue" : "Red");
            !fault.isEmpty()) {
            return fault;
        }
    }
    const ProfileText::Section* info = profile.section("SCENARIOINFO");
    const int written = info == nullptr ? 0 : valueOf(*info, "DIVISIONCNT").toByteArray().toInt();
    if (written != count) {
        return QStringLiteral("%1 divisions and a count of %2").arg(count).arg(written);
    }
    const auto isBeyond = [count](const ProfileText::Section& section) {
        return divisionOf(section.name) >= count;
    };
    const auto stray = std::ranges::find_if(profile.sections, isBeyond);
    return stray == profile.sections.end()
               ? QString()
               : QStringLiteral("[%1] beyond the last division").arg(text(stray->name));
}

QString savingFault(Editor& editor)
{
    if (editor.workingProfile().GetIniKey(u"SCENARIOINFO", u"DIVISIONCNT") == invalidValue) {
        return {};
    }
    try {
        const QByteArray file =
            scenarioBytes(editor.workingProfile(), editor.mainFrm().targetArea(), u"Force A");
        return file.isEmpty() ? QStringLiteral("the scenario file would be empty") : QString();
    } catch (const RuntimeError& error) {
        return QStringLiteral("the scenario can't be saved: %1").arg(error.text());
    }
}

} // namespace torvane::testing
