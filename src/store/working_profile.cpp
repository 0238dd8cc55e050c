#include "store/working_profile.h"

#include "platform/code_page.h"
#include "platform/number_text.h"
#include "platform/text_files.h"
#include "store/profile_keys.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace torvane {

namespace {

constexpr QStringView versionKey{u"VERSIONNUMBER "};
constexpr QStringView version{u"64"};
constexpr QStringView zero{u"0"};
/// `zeroProfile` stops here; the other walks go on to `shipSections`. Kept.
constexpr int zeroedShipSections = 10;

/// Without the blanks at both ends; tabs stay.
QByteArrayView withoutBlanks(QByteArrayView text)
{
    while (!text.isEmpty() && text.front() == ' ') {
        text = text.sliced(1);
    }
    while (!text.isEmpty() && text.back() == ' ') {
        text.chop(1);
    }
    return text;
}

/// The kept yards of a position stand before the position itself.
void zeroShip(WorkingProfile& profile, const QString& section)
{
    for (const QStringView key : shipKeys) {
        if (key == u"XPOSITION" || key == u"ZPOSITION") {
            profile.write(section, QStringLiteral("YARDS") + key.toString(), zero);
        }
        profile.write(section, key, zero);
    }
}

void zeroDivision(WorkingProfile& profile, int division)
{
    for (const QStringView key : divisionKeys) {
        profile.write(divisionSection(division), key, zero);
    }
    for (int ship = 0; ship < zeroedShipSections; ++ship) {
        const QString section = shipSection(division, ship);
        if (isShip(profile.GetIniKey(section, u"NAME"))) {
            zeroShip(profile, section);
        }
    }
}

} // namespace

QString divisionSection(int division)
{
    return QStringLiteral("DIVISION%1").arg(division);
}

QString shipSection(int division, int ship)
{
    return shipSection(divisionSection(division), ship);
}

QString shipSection(const QString& divisionSection, int ship)
{
    return divisionSection + QStringLiteral("SHIP") + QString::number(ship);
}

QString storedDivisionName(const QString& number)
{
    return storedDivisionWord + number;
}

QString GetIniKey(ProfileStore& store, const QString& file, QStringView section, QStringView key)
{
    return fromCodePage(GetIniKey(store.parsed(file), toCodePage(section), toCodePage(key)));
}

QByteArrayView GetIniKey(const Profile& profile, QByteArrayView section, QByteArrayView key)
{
    const QByteArrayView text = profile.value(section, key).value_or(QByteArrayView());
    return text.isEmpty()
               ? QByteArrayView(invalidValue)
               : withoutBlanks(text.first(std::min<qsizetype>(text.size(), ProfileStore::maximumLength)));
}

WorkingProfile::WorkingProfile(ProfileStore& store, const QString& workDir)
    : m_store(store), m_path(QDir(workDir).filePath(QStringLiteral("iniTemp.bmm")))
{
}

bool WorkingProfile::liesAt(const QString& path) const
{
    // Two files that are not there count as the same.
    return isThere(path) && QFileInfo(path) == QFileInfo(m_path);
}

QString WorkingProfile::GetIniKey(QStringView section, QStringView key) const
{
    return torvane::GetIniKey(m_store, m_path, section, key);
}

bool WorkingProfile::write(QStringView section, QStringView key, QStringView value)
{
    return m_store.write(m_path, section, key, value);
}

bool WorkingProfile::write(QByteArrayView section, QByteArrayView key, QByteArrayView value)
{
    return m_store.write(m_path, section, key, value);
}

bool WorkingProfile::createNewIniTempFile()
{
    remove();
    return write(versionSection, versionKey, version);
}

void WorkingProfile::zeroProfile()
{
    const ProfileStore::Batch batch(m_store);
    write(versionSection, versionKey, version);
    for (const QStringView key : scenarioDataKeys) {
        write(scenarioDataSection, key, zero);
    }
    write(scenarioInfoSection, divisionCountKey, zero);
    for (int division = 0; division < divisionSections; ++division) {
        if (GetIniKey(divisionSection(division), u"DIVISIONNAME") != invalidValue) {
            zeroDivision(*this, division);
        }
    }
}

int WorkingProfile::divisionCount() const
{
    return toInt16(numberValue(GetIniKey(scenarioInfoSection, divisionCountKey)));
}

} // namespace torvane
