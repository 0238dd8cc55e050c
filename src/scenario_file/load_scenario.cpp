#include "scenario_file/load_scenario.h"

#include "platform/code_page.h"
#include "platform/number_text.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "scenario_file/scenario_format.h"
#include "store/profile_keys.h"
#include "store/working_profile.h"

#include <new>
#include <span>

namespace torvane {

namespace {

// How many keys lie between two steps of the progress: seven in the head, and seven more in each ship behind
// the one of its place.
constexpr int headKeysPerStep = 7;
constexpr int shipKeysPerStep = 11;

void step(const LoadProgress& advance)
{
    if (advance) {
        advance();
    }
}

/// One pass over all ship places, with its progress.
template <typename Visit>
void forEachShip(const LoadProgress& advance, Visit visit)
{
    for (int n = 0; n < divisionSections; ++n) {
        for (int m = 0; m < shipSections; ++m) {
            step(advance);
            visit(shipSection(n, m));
        }
    }
}

/// Copies a file into the profile, one key at a time.
class ScenarioReader
{
public:
    ScenarioReader(const Profile& file, WorkingProfile& profile, const LoadProgress& progress)
        : m_file(file), m_profile(profile), m_progress(progress)
    {
    }

    void copyHead();
    void copyDivision(int division);

private:
    QString read(QByteArrayView section, QStringView key) const
    {
        return fromCodePage(GetIniKey(m_file, section, toCodePage(key)));
    }
    void copySection(FileSection kind, QStringView section, int keysPerStep = 0);
    QString changedValue(const FileKey& key, QByteArrayView section) const;

    const Profile& m_file;
    WorkingProfile& m_profile;
    const LoadProgress& m_progress;
};

/// The value of a key that is not copied as it stands.
QString ScenarioReader::changedValue(const FileKey& key, QByteArrayView section) const
{
    switch (key.reading) {
    case Reading::Version:
        return scenarioFileVersion;
    case Reading::FromKeptYards:
    case Reading::FromKeptYardsTurned: // turned with the others when all are there
        return read(section, keptYardsKey(key.name));
    default:
        break;
    }
    const QString stored = read(section, key.name);
    switch (key.reading) {
    case Reading::AirControlCode:
        return airControlCode(stored);
    case Reading::SignTurned:
        return signTurned(stored);
    case Reading::YardsSpacing:
        return spacingInYards(stored);
    case Reading::ZeroIfMissing:
        return stored == invalidValue ? QStringLiteral("0") : stored;
    default:
        return stored;
    }
}

void ScenarioReader::copySection(FileSection kind, QStringView section, int keysPerStep)
{
    int copied = 0;
    const QByteArray sectionBytes = toCodePage(section);
    for (const FileKey& key : keysOf(kind)) {
        if (key.reading == Reading::NotKept) {
            continue;
        }
        const QByteArray name = toCodePage(key.name);
        if (key.reading == Reading::Copy) {
            m_profile.write(QByteArrayView(sectionBytes), name, GetIniKey(m_file, sectionBytes, name));
        } else {
            m_profile.write(QByteArrayView(sectionBytes), name, toCodePage(changedValue(key, sectionBytes)));
        }
        if (keysPerStep > 0 && ++copied % keysPerStep == 0) {
            step(m_progress);
        }
    }
}

void ScenarioReader::copyHead()
{
    copySection(FileSection::Version, versionSection);
    copySection(FileSection::ScenarioData, scenarioDataSection, headKeysPerStep);
    copySection(FileSection::ScenarioInfo, scenarioInfoSection);
}

// The ships of a division that has no name are copied all the same. Kept.
void ScenarioReader::copyDivision(int division)
{
    const QString section = divisionSection(division);
    if (read(toCodePage(section), u"DIVISIONNAME") != invalidValue) {
        copySection(FileSection::Division, section);
    }
    for (int m = 0; m < shipSections; ++m) {
        step(m_progress);
        const QString ship = shipSection(division, m);
        const QString name = read(toCodePage(ship), u"NAME");
        if (name != invalidValue && name != noShip) {
            copySection(FileSection::Ship, ship, shipKeysPerStep);
        }
    }
}

} // namespace

Profile readScenario(const QString& path, const WorkingProfile& profile)
{
    if (profile.liesAt(path)) {
        throw RuntimeError(RuntimeError::PermissionDenied,
                           QStringLiteral("%1: the scenario under edit lies here.").arg(path));
    }
    try {
        return Profile::parse(readWholeFile(path));
    } catch (const std::bad_alloc&) {
        throw RuntimeError(RuntimeError::OutOfMemory,
                           QStringLiteral("%1: there is not enough memory for this file.").arg(path));
    }
}

void loadProfileFromScenario(const Profile& file, WorkingProfile& profile, const LoadProgress& advance)
{
    profile.remove();
    copyScenarioToProfile(file, profile, advance);
}

void copyScenarioToProfile(const Profile& file, WorkingProfile& profile, const LoadProgress& advance)
{
    ScenarioReader reader(file, profile, advance);
    reader.copyHead();
    for (int n = 0; n < divisionSections; ++n) {
        reader.copyDivision(n);
    }
}

namespace {

QString targetText(const Profile& profile, QStringView key)
{
    return fromCodePage(GetIniKey(profile, toCodePage(scenarioDataSection), toCodePage(key)));
}

int targetValue(const Profile& profile, QStringView key)
{
    return toInt32(numberValue(targetText(profile, key)));
}

} // namespace

// The first four slots. Where Force A has no area, the one of Force B applies: its x, never its z. Kept.
void readTargetArea(const Profile& profile, TargetArea& target)
{
    target.x = targetValue(profile, keyTable[0]);
    target.z = targetValue(profile, keyTable[1]);
    if (targetText(profile, keyTable[2]) == u"0") {
        target.x = 0;
        target.z = 0;
        target.x = targetValue(profile, keyTable[3]);
    }
}

void restoreTargetArea(WorkingProfile& profile, TargetArea& target, const LoadProgress& advance)
{
    readTargetArea(profile.parsed(), target);
    // Yards that a profile itself holds count for more than its positions. One that was just loaded has none.
    forEachShip(advance, [&profile](const QString& ship) {
        for (const QStringView key : {QStringView(u"XPOSITION"), QStringView(u"ZPOSITION")}) {
            const QString yards = profile.GetIniKey(ship, keptYardsKey(key));
            if (yards != invalidValue) {
                profile.write(ship, key, yards);
            }
        }
    });
    forEachShip(advance, [&profile](const QString& ship) {
        const QString z = profile.GetIniKey(ship, u"ZPOSITION");
        if (z != invalidValue) {
            profile.write(ship, u"ZPOSITION", signTurned(z));
        }
    });
}

namespace {

/// The slots of a division's settings.
constexpr std::size_t firstSetting = 10;
constexpr std::size_t settingCount = 6;

// A value that is missing leaves no line, so that those behind it move up.
QStringList settingsOf(const WorkingProfile& profile, QStringView section)
{
    QStringList values;
    for (const QStringView key : std::span(keyTable).subspan<firstSetting, settingCount>()) {
        const QString value = profile.GetIniKey(section, key);
        if (value != invalidValue) {
            values.append(value);
        }
    }
    return values;
}

/// Type and name of each ship of a division.
QStringList shipsOf(const WorkingProfile& profile, int division, const LoadProgress& advance)
{
    QStringList lines;
    for (int m = 0; m < shipSections; ++m) {
        step(advance);
        const QString ship = shipSection(division, m);
        const QString line = profile.GetIniKey(ship, u"TYPE") + u' ' + profile.GetIniKey(ship, u"NAME");
        if (line != u"INVALID INVALID") {
            lines.append(line);
        }
    }
    return lines;
}

} // namespace

void rebuildDivisionFiles(const WorkingProfile& profile, const ScratchFiles& files, ForceMenus& menus,
                          const LoadProgress& advance)
{
    int blue = 0;
    int red = 0;
    for (int n = 0; n < divisionSections; ++n) {
        const QString section = divisionSection(n);
        const QString sideText = profile.GetIniKey(section, u"SIDE");
        if (sideText == invalidValue) {
            return;
        }
        const Side side = sideText.trimmed().toUpper() == u"BLUE" ? Side::Blue : Side::Red;
        const int number = ++(side == Side::Blue ? blue : red);
        menus.showDivision(side, number);
        const QString settings = files.divDataFile(side, number);
        files.write(settings, settingsOf(profile, section));
        menus.enableForces();
        // By place in the file: without a name the side passes for it, and the formation for the side. Kept.
        const QStringList values = files.read(settings);
        menus.addRepositionMenuEntry(values.value(0), values.value(1));
        files.write(files.divisionFile(side, number), shipsOf(profile, n, advance));
    }
}

void rebuildShipTrack(const WorkingProfile& profile, const ScratchFiles& files, const LoadProgress& advance)
{
    QStringList names;
    forEachShip(advance, [&](const QString& ship) {
        const QString name = profile.GetIniKey(ship, u"NAME");
        if (name != invalidValue) {
            names.append(name);
        }
    });
    files.write(files.shipTrack(), names);
}

void rebuildStore(const Profile& file, WorkingProfile& profile, const ScratchFiles& files, TargetArea& target,
                  ForceMenus& menus, const LoadProgress& advance)
{
    loadProfileFromScenario(file, profile, advance);
    restoreTargetArea(profile, target, advance);
    rebuildDivisionFiles(profile, files, menus, advance);
    rebuildShipTrack(profile, files, advance);
}

} // namespace torvane
