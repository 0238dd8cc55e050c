#include "scenario_file/scenario_format.h"

#include "platform/number_text.h"
#include "store/profile_keys.h"
#include "store/units.h"

#include <algorithm>

namespace torvane {

namespace {

/// The keys that are more than a copy in one direction at least.
constexpr std::array specialKeys{
    FileKey{FileSection::Version, u"VERSIONNUMBER", Writing::Version, Reading::Version},
    FileKey{FileSection::ScenarioData, u"AIR_SUPERIORITY", Writing::Copy, Reading::AirControlCode},
    FileKey{FileSection::ScenarioData, u"BLUE_TARGETBOX_X", Writing::TargetArea, Reading::Copy},
    FileKey{FileSection::ScenarioData, u"BLUE_TARGETBOX_Z", Writing::TargetArea, Reading::SignTurned},
    FileKey{FileSection::ScenarioData, u"BLUE_TARGETBOXDIM", Writing::TargetArea, Reading::Copy},
    FileKey{FileSection::ScenarioData, u"RED_TARGETBOX_X", Writing::TargetArea, Reading::Copy},
    FileKey{FileSection::ScenarioData, u"RED_TARGETBOX_Z", Writing::TargetArea, Reading::SignTurned},
    FileKey{FileSection::ScenarioData, u"RED_TARGETBOX_DIM", Writing::TargetArea, Reading::Copy},
    FileKey{FileSection::ScenarioData, u"MOVIE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Division, u"FORMATIONSPACING", Writing::MetresSpacing, Reading::YardsSpacing},
    FileKey{FileSection::Division, u"ENCUMBERED", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"XPOSITION", Writing::Metres, Reading::FromKeptYards},
    FileKey{FileSection::Ship, u"ZPOSITION", Writing::MetresTurned, Reading::FromKeptYardsTurned},
    FileKey{FileSection::Ship, u"MGTDDAMAGE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"MGTEDAMAGE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"MGTGDAMAGE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"MGTHDAMAGE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"MGTIDAMAGE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"MGTJDAMAGE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"MGTTDAMAGE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"MGTUDAMAGE", Writing::Copy, Reading::ZeroIfMissing},
    FileKey{FileSection::Ship, u"YARDSXPOSITION", Writing::KeptYards, Reading::NotKept},
    FileKey{FileSection::Ship, u"YARDSZPOSITION", Writing::KeptYards, Reading::NotKept},
};

constexpr FileKey fileKey(FileSection section, QStringView name)
{
    for (const FileKey& special : specialKeys) {
        if (special.section == section && isSameKey(special.name, name)) {
            return special;
        }
    }
    return {section, name};
}

constexpr std::array<FileKey, fileKeyCount> allKeys()
{
    std::array<FileKey, fileKeyCount> keys{};
    auto next = keys.begin();
    const auto add = [&next](FileSection section, const auto& names) {
        next = std::transform(names.begin(), names.end(), next,
                              [section](QStringView name) { return fileKey(section, name); });
    };
    add(FileSection::Version, std::array<QStringView, 1>{u"VERSIONNUMBER"});
    add(FileSection::ScenarioData, scenarioDataKeys);
    add(FileSection::ScenarioInfo, std::array<QStringView, 1>{divisionCountKey});
    add(FileSection::Division, divisionKeys);
    add(FileSection::Ship, shipKeys);
    add(FileSection::Ship, std::array<QStringView, 2>{u"YARDSXPOSITION", u"YARDSZPOSITION"});
    return keys;
}

/// What files may hold in place of the code.
struct AirControl
{
    QLatin1StringView name;
    QLatin1StringView code;
};
constexpr std::array airControlCodes{
    AirControl{QLatin1StringView{"None"}, QLatin1StringView{"2"}},
    AirControl{QLatin1StringView{"Force A"}, QLatin1StringView{"3"}},
    AirControl{QLatin1StringView{"Contested"}, QLatin1StringView{"4"}},
    AirControl{QLatin1StringView{"Force B"}, QLatin1StringView{"5"}},
    AirControl{QLatin1StringView{"INVALID"}, QLatin1StringView{"2"}},
};

} // namespace

constexpr std::array<FileKey, fileKeyCount> fileKeys = allKeys();

std::span<const FileKey> keysOf(FileSection section)
{
    const auto* const first = std::ranges::lower_bound(fileKeys, section, {}, &FileKey::section);
    const auto* const last = std::ranges::upper_bound(fileKeys, section, {}, &FileKey::section);
    return {first, last};
}

QString keptYardsKey(QStringView positionKey)
{
    return QStringLiteral("YARDS%1").arg(positionKey);
}

QString metresOf(QStringView yards)
{
    return textOf(numberValue(yards) * double{metresPerYard});
}

QString signTurned(QStringView number)
{
    return textOf(-numberValue(number));
}

QString spacingInMetres(const QString& yards)
{
    const auto* row = std::ranges::find(spacingTable, yards, &Spacing::yards);
    return row == spacingTable.end() ? yards : QString(row->metres);
}

QString spacingInYards(const QString& metres)
{
    const auto* row = std::ranges::find(spacingTable, metres, &Spacing::metres);
    return row == spacingTable.end() ? metres : QString(row->yards);
}

QString airControlCode(const QString& stored)
{
    const auto* row = std::ranges::find(airControlCodes, stored, &AirControl::name);
    return row == airControlCodes.end() ? stored : QString(row->code);
}

} // namespace torvane
