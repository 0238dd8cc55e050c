#pragma once

#include "platform/profile_store.h"

#include <QString>
#include <QStringView>

namespace torvane {

/// The one sentinel of all profile reads: the key is missing or its value is empty.
inline constexpr QLatin1StringView invalidValue{"INVALID"};
/// Stands in `NAME` of a ship place that has been emptied.
inline constexpr QLatin1StringView noShip{"NO SHIP"};
/// Whether a place with this `NAME` holds a ship: it has a section, and has not been emptied.
inline bool isShip(const QString& name)
{
    return name != invalidValue && name != noShip;
}
/// Walks over divisions try n from 0 below this, walks over ships m from 0 below that.
inline constexpr int divisionSections = 12;
inline constexpr int shipSections = 14;

/// Section names: "DIVISION3", "DIVISION3SHIP0". Numbers count from 0.
QString divisionSection(int division);
QString shipSection(int division, int ship);
/// The same by the section of the division.
QString shipSection(const QString& divisionSection, int ship);
/// What a division is called in the working profile, in every language: this word and its number within its
/// side.
inline constexpr QLatin1StringView storedDivisionWord{"Division "};
QString storedDivisionName(const QString& number);

/// One key of any profile file, trimmed of blanks at both ends, or "INVALID" if it is missing or empty.
QString GetIniKey(ProfileStore& store, const QString& file, QStringView section, QStringView key);
/// The same of a parsed profile, in the bytes of its file. The view lives until the profile's next write.
QByteArrayView GetIniKey(const Profile& profile, QByteArrayView section, QByteArrayView key);

/// The scenario under edit: the profile file `iniTemp.bmm` in the work folder.
class WorkingProfile
{
public:
    WorkingProfile(ProfileStore& store, const QString& workDir);

    const QString& path() const { return m_path; }
    /// Whether a path, however it is spelled, leads to the profile's file, which is there.
    bool liesAt(const QString& path) const;

    /// See the free function.
    QString GetIniKey(QStringView section, QStringView key) const;

    /// The whole profile, for a walk over many keys. Stands until the next write.
    const Profile& parsed() const { return m_store.parsed(m_path); }

    /// Writes one key; the platform reports a failure.
    bool write(QStringView section, QStringView key, QStringView value);
    /// The same with names and value as they stand in the file.
    bool write(QByteArrayView section, QByteArrayView key, QByteArrayView value);

    /// Deletes the profile. Throws RuntimeError if it is there and can't be deleted.
    void remove() { m_store.remove(m_path); }

    /// Deletes the profile and writes the version section. False if that write failed.
    bool createNewIniTempFile();

    /// Writes "0" over every key that the profile may hold and the version over its own.
    void zeroProfile();

    /// Divisions of both sides together, "INVALID" counting as 0. Throws Overflow beyond 16 bits.
    int divisionCount() const;

private:
    ProfileStore& m_store;
    QString m_path;
};

} // namespace torvane
