#pragma once

#include "store/profile_keys.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <array>
#include <span>

namespace torvane {

/// The sections of a scenario file in their order. Each division is followed by its ships.
enum class FileSection { Version, ScenarioData, ScenarioInfo, Division, Ship };

/// What saving does to a key of the working profile on its way into the file.
enum class Writing {
    Copy,
    Version,       ///< the number of the format, whatever the profile holds
    TargetArea,    ///< copied, but the three keys of one side take the map's target area
    MetresSpacing, ///< the yards of the spacing table become its metres, other texts stay
    Metres,        ///< yards become metres
    MetresTurned,  ///< yards become metres, with the sign turned
    KeptYards,     ///< the position as it was before it became metres; no key of the profile
};

/// What loading does to a key of the file on its way into the working profile.
enum class Reading {
    Copy,
    Version,             ///< the number of the format, whatever the file holds
    AirControlCode,      ///< the four names become codes, a missing one the first code
    SignTurned,          ///< number times -1
    YardsSpacing,        ///< the metres of the spacing table become its yards, other texts stay
    ZeroIfMissing,       ///< "INVALID" becomes "0"
    FromKeptYards,       ///< not read: the profile's value is that of the kept yards
    FromKeptYardsTurned, ///< the same, with the sign turned
    NotKept,             ///< no key of the profile
};

struct FileKey
{
    FileSection section;
    QStringView name;
    Writing writing = Writing::Copy;
    Reading reading = Reading::Copy;
};

inline constexpr std::size_t fileKeyCount =
    1 + scenarioDataKeys.size() + 1 + divisionKeys.size() + shipKeys.size() + 2;
/// Every key of a scenario file, in the order of the file.
extern const std::array<FileKey, fileKeyCount> fileKeys;
/// The keys of one kind of section.
std::span<const FileKey> keysOf(FileSection section);

inline constexpr QLatin1StringView scenarioFileVersion{"64"};
inline constexpr QLatin1StringView scenarioFileSuffix{".scn"};
/// What the file boxes filter on.
inline constexpr QLatin1StringView scenarioFileFilter{"Scenario Files(*.scn)|*.scn"};

/// The key that keeps the yards of `XPOSITION` or `ZPOSITION`.
QString keptYardsKey(QStringView positionKey);

/// Text of a position in metres, from its yards. Throws Overflow for a number beyond the range of a double.
QString metresOf(QStringView yards);
/// Text of a number with its sign turned; what is no number counts as 0. Throws Overflow as above.
QString signTurned(QStringView number);

/// A formation spacing from yards to metres and back; a text that is not in the spacing table stays.
QString spacingInMetres(const QString& yards);
QString spacingInYards(const QString& metres);

/// The code of an air superiority: that of one of its four names, or of the first where the text is
/// "INVALID"; another text stays, codes included.
QString airControlCode(const QString& stored);

} // namespace torvane
