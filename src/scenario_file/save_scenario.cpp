#include "scenario_file/save_scenario.h"

#include "platform/code_page.h"
#include "platform/profile.h"
#include "platform/profile_lines.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "scenario_file/scenario_format.h"
#include "store/profile_keys.h"
#include "store/units.h"
#include "store/working_profile.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace torvane {

namespace {

/// The key's name in the bytes of the file.
const QByteArray& nameOf(const FileKey& key)
{
    static const auto names = [] {
        std::array<QByteArray, fileKeyCount> bytes;
        std::ranges::transform(fileKeys, bytes.begin(), toCodePage, &FileKey::name);
        return bytes;
    }();
    return names.at(static_cast<std::size_t>(&key - fileKeys.data()));
}

/// What a reader of the file finds of a value that was written: a pair of quotes round it goes.
QByteArray asReadBack(QByteArrayView value)
{
    Profile file;
    file.setValue("S", "K", value);
    return GetIniKey(file, "S", "K").toByteArray();
}

/// The three keys of the side that has the target area, with their values. The label is compared in English
/// only: under German captions the area goes to Red. Kept.
std::array<std::pair<QByteArrayView, QByteArray>, 3> targetValues(const TargetArea& target,
                                                                  QStringView forceALabel)
{
    const bool blue = forceALabel.trimmed() == u"Force A";
    return {{{blue ? "BLUE_TARGETBOX_X" : "RED_TARGETBOX_X", QByteArray::number(target.x)},
             {blue ? "BLUE_TARGETBOX_Z" : "RED_TARGETBOX_Z", QByteArray::number(-qint64{target.z})},
             {blue ? "BLUE_TARGETBOXDIM" : "RED_TARGETBOX_DIM", QByteArray::number(target.dim)}}};
}

/// Writes the file from its first line to its last. Works in bytes; only what is converted becomes text.
class ScenarioWriter
{
public:
    ScenarioWriter(const Profile& profile, const TargetArea& target, QStringView forceALabel,
                   const SaveProgress& progress)
        : m_profile(profile), m_target(targetValues(target, forceALabel)), m_progress(progress)
    {
    }

    void copyHead();
    void copyDivision(int division);
    void advance() const
    {
        if (m_progress) {
            m_progress();
        }
    }
    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArrayView read(QByteArrayView section, QByteArrayView key) const
    {
        return GetIniKey(m_profile, section, key);
    }
    void copySection(FileSection kind, const QByteArray& section);
    void copyKey(const FileKey& key, QByteArrayView value);
    void copyPosition(const FileKey& key, QByteArrayView copy);
    QByteArrayView targetOr(QByteArrayView key, QByteArrayView value) const;
    void line(QByteArrayView key, QByteArrayView value);

    const Profile& m_profile;
    const std::array<std::pair<QByteArrayView, QByteArray>, 3> m_target;
    const SaveProgress& m_progress;
    QByteArray m_bytes;
    std::vector<std::pair<QByteArray, QByteArray>> m_keptYards; ///< for the end of the ship's section
};

// As the profile writer makes it. A value that was read holds no line break.
void ScenarioWriter::line(QByteArrayView key, QByteArrayView value)
{
    m_bytes.append(key).append('=').append(trimmed(value)).append("\r\n");
}

void ScenarioWriter::copySection(FileSection kind, const QByteArray& section)
{
    m_bytes.append('[').append(section).append("]\r\n");
    for (const FileKey& key : keysOf(kind)) {
        copyKey(key, read(section, nameOf(key)));
    }
    for (const auto& [key, yards] : std::exchange(m_keptYards, {})) {
        line(key, yards);
    }
}

void ScenarioWriter::copyKey(const FileKey& key, QByteArrayView value)
{
    switch (key.writing) {
    case Writing::Copy:
        line(nameOf(key), value);
        break;
    case Writing::Version:
        line(nameOf(key), scenarioFileVersion);
        break;
    case Writing::TargetArea:
        line(nameOf(key), targetOr(nameOf(key), value));
        break;
    case Writing::MetresSpacing: {
        const QString yards = fromCodePage(asReadBack(value));
        const QString metres = spacingInMetres(yards);
        line(nameOf(key), metres == yards ? value : QByteArrayView(toCodePage(metres)));
        break;
    }
    case Writing::Metres:
        copyPosition(key, value);
        break;
    case Writing::MetresTurned:
        copyPosition(key, toCodePage(signTurned(fromCodePage(value))));
        break;
    case Writing::KeptYards:
        break; // made with the position
    }
}

void ScenarioWriter::copyPosition(const FileKey& key, QByteArrayView copy)
{
    const QByteArray yards = asReadBack(copy);
    if (yards == invalidValue) {
        line(nameOf(key), copy);
        return;
    }
    line(nameOf(key), toCodePage(metresOf(fromCodePage(yards))));
    m_keptYards.emplace_back(toCodePage(keptYardsKey(key.name)), yards);
}

QByteArrayView ScenarioWriter::targetOr(QByteArrayView key, QByteArrayView value) const
{
    const auto* found = std::ranges::find(m_target, key, [](const auto& row) { return row.first; });
    return found == m_target.end() ? value : QByteArrayView(found->second);
}

void ScenarioWriter::copyHead()
{
    copySection(FileSection::Version, toCodePage(versionSection));
    copySection(FileSection::ScenarioData, toCodePage(scenarioDataSection));
    const QByteArray infoSection = toCodePage(scenarioInfoSection);
    if (read(infoSection, "DIVISIONCNT") == invalidValue) {
        throw RuntimeError(RuntimeError::InvalidProcedureCall,
                           QStringLiteral("A scenario without DIVISIONCNT can't be saved."));
    }
    copySection(FileSection::ScenarioInfo, infoSection);
}

// The ships of a division that has lost its name are copied all the same. Kept.
void ScenarioWriter::copyDivision(int division)
{
    const QByteArray section = toCodePage(divisionSection(division));
    if (read(section, "DIVISIONNAME") != invalidValue) {
        copySection(FileSection::Division, section);
    }
    for (std::size_t row = 0; row < spacingTable.size(); ++row) {
        advance();
    }
    for (int m = 0; m < shipSections; ++m) {
        advance();
        const QByteArray ship = toCodePage(shipSection(division, m));
        const QByteArrayView name = read(ship, "NAME");
        if (name != invalidValue && name != noShip) {
            copySection(FileSection::Ship, ship);
        }
    }
}

} // namespace

QByteArray scenarioBytes(const WorkingProfile& profile, const TargetArea& target, QStringView forceALabel,
                         const SaveProgress& advance)
{
    return scenarioBytes(profile.parsed(), target, forceALabel, advance);
}

QByteArray scenarioBytes(const Profile& profile, const TargetArea& target, QStringView forceALabel,
                         const SaveProgress& advance)
{
    ScenarioWriter writer(profile, target, forceALabel, advance);
    writer.advance();
    writer.copyHead();
    writer.advance();
    for (int n = 0; n < divisionSections; ++n) {
        writer.advance();
        writer.copyDivision(n);
    }
    return writer.bytes();
}

void saveINIfile(const QString& path, const WorkingProfile& profile, const TargetArea& target,
                 QStringView forceALabel, const SaveProgress& advance)
{
    if (profile.liesAt(path)) {
        throw RuntimeError(RuntimeError::PermissionDenied,
                           QStringLiteral("%1: the scenario under edit lies here.").arg(path));
    }
    // A file of that name goes by the rename that puts the new one there, so that one of them is always
    // whole.
    writeWholeFile(path, scenarioBytes(profile, target, forceALabel, advance));
}

} // namespace torvane
