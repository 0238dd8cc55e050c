#include "divisions/division_records.h"

#include "platform/number_text.h"
#include "platform/text_files.h"
#include "ship_selection/ship_line.h"
#include "ship_selection/ship_record.h"
#include "store/force_sizes.h"
#include "store/profile_keys.h"

namespace torvane {

namespace {

constexpr int highestShipIndex = 13;
/// As much of a ship section's name as the restore of a record looks at: the whole of "DIVISION0SHIP".
constexpr int sourceNameLength = 13;
/// Places of the old division that an edit looks through for a ship.
constexpr int snapshotPlaces = 10;

constexpr const char* scenarioInfo = "SCENARIOINFO ";

} // namespace

QString storedFormation(const QString& shown)
{
    for (const FormationWord& word : formationWords) {
        if (shown == QLatin1StringView(word.german)) {
            return QLatin1StringView(word.english);
        }
    }
    return shown;
}

QString shownFormation(const QString& stored, Language language)
{
    for (const FormationWord& word : formationWords) {
        if (language == Language::German && stored == QLatin1StringView(word.english)) {
            return QLatin1StringView(word.german);
        }
    }
    return stored;
}

DivisionVars readDialogFields(const DivisionFields& fields)
{
    const QString number = fields.divisionLabel.trimmed().right(1);
    return {.number = number,
            .name = storedDivisionName(number),
            .side = wordOf(sideOfLabel(fields.sideLabel)),
            .formation = storedFormation(fields.formation),
            .heading = fields.heading.trimmed(),
            .spacing = fields.spacing.trimmed(),
            .speed = fields.speed.trimmed()};
}

DivisionVars divisionDefaults(Language language)
{
    return {.number = QStringLiteral("1"),
            .name = storedDivisionName(QStringLiteral("1")),
            .side = blueWord,
            .formation = shownFormation(QStringLiteral("Column"), language),
            .heading = QStringLiteral("0"),
            .spacing = QStringLiteral("500"),
            .speed = QStringLiteral("8")};
}

DivisionRecords::DivisionRecords(ProfileStore& store, WorkingProfile& profile, ScratchFiles& files,
                                 ShipRecords& ships)
    : m_store(store), m_profile(profile), m_files(files), m_ships(ships)
{
}

void DivisionRecords::countDivision(Side side, int change)
{
    (side == Side::Blue ? m_blueDivCount : m_redDivCount) += change;
}

void DivisionRecords::recount()
{
    m_blueDivCount = 0;
    m_redDivCount = 0;
    // Without a first division of Force A the counts are 0, whatever Force B has. Kept.
    if (isThere(m_files.divisionFile(Side::Blue, 1))) {
        countLoaded();
    }
}

void DivisionRecords::countLoaded()
{
    m_blueDivCount = 0;
    m_redDivCount = 0;
    for (int number = 1; number <= divisionsPerSide; ++number) {
        m_blueDivCount += isThere(m_files.divisionFile(Side::Blue, number)) ? 1 : 0;
        m_redDivCount += isThere(m_files.divisionFile(Side::Red, number)) ? 1 : 0;
    }
}

void DivisionRecords::saveDivCountINI()
{
    m_profile.write(QLatin1StringView(scenarioInfo).toString(), u"DIVISIONCNT ", u"0");
}

void DivisionRecords::writeDivisionCount(const QString& fallback)
{
    const int count = m_blueDivCount + m_redDivCount;
    const QString text = count == 0 ? textOf(numberValue(fallback)) : QString::number(count);
    m_profile.write(scenarioInfoSection, divisionCountKey, text);
}

QStringList DivisionRecords::listOf(Side side, int number) const
{
    const QString path = m_files.divisionFile(side, number);
    return isThere(path) ? m_files.read(path) : QStringList();
}

QStringList DivisionRecords::listBeforeEdit() const
{
    const QString path = m_files.exisitTemp();
    return isThere(path) ? m_files.read(path) : QStringList();
}

// The list outlasts an edit that kept ships in it and was cancelled: a ship that it names and the scenario
// hasn't is a new one.
QStringList DivisionRecords::shipsBeforeEdit(const QString& section) const
{
    QStringList names;
    for (int m = 0; m < shipSections; ++m) {
        names.append(m_profile.GetIniKey(shipSection(section, m), u"NAME"));
    }
    QStringList lines = listBeforeEdit();
    lines.removeIf([&names](const QString& line) { return !names.contains(shipNameOf(line).trimmed()); });
    return lines;
}

int DivisionRecords::countDivisionShips(Side side, int number) const
{
    return static_cast<int>(listOf(side, number).size());
}

void DivisionRecords::writeKeys(const QString& section, const DivisionVars& vars,
                                const DivisionFields& fields, int ships)
{
    m_profile.write(section, u"DIVISIONNAME ", vars.name);
    m_profile.write(section, u"SIDE ", vars.side);
    m_profile.write(section, u"FORMATION ", vars.formation);
    m_profile.write(section, u"FORMATIONHEADING ", vars.heading);
    m_profile.write(section, u"FORMATIONSPACING ", vars.spacing);
    m_profile.write(section, u"SPEED ", vars.speed);
    m_profile.write(section, u"SHIPCNT ", QString::number(ships));
    if (fields.flagshipRow && *fields.flagshipRow >= 0 && *fields.flagshipRow < shipsPerDivision) {
        m_profile.write(section, u"FLAGSHIPINDEX ", QString::number(*fields.flagshipRow));
    }
    m_profile.write(section, u"ENCUMBERED", fields.encumbered ? u"1" : u"0");
}

QStringList DivisionRecords::sectionsOf(const DivisionVars& vars) const
{
    QStringList sections;
    for (int n = 0; n < divisionSections; ++n) {
        const QString section = divisionSection(n);
        if (m_profile.GetIniKey(section, u"DIVISIONNAME") == vars.name &&
            m_profile.GetIniKey(section, u"SIDE") == vars.side) {
            sections.append(section);
        }
    }
    return sections;
}

void DivisionRecords::requireSavable(const DivisionFields& fields, bool created) const
{
    const DivisionVars vars = readDialogFields(fields);
    const QStringList sections = created ? QStringList() : sectionsOf(vars);
    QStringList kept = created ? QStringList() : listBeforeEdit();
    for (const QString& section : sections) {
        kept = shipsBeforeEdit(section);
    }
    for (const QString& line : listOf(sideOfWord(vars.side), toInt16(numberValue(vars.number)))) {
        if (!kept.contains(line)) {
            m_ships.requireRecord(shipNameOf(line));
        }
    }
    for (const QString& section : sections) {
        toInt16(numberValue(m_profile.GetIniKey(section, u"SHIPCNT")));
    }
}

bool DivisionRecords::writeFlagship(const DivisionVars& vars, int row)
{
    const QStringList sections = sectionsOf(vars);
    for (const QString& section : sections) {
        // With the blank that stands for a number's sign; the profile stores no blanks about a value.
        m_profile.write(section, u"FLAGSHIPINDEX", QLatin1Char(' ') + QString::number(row));
    }
    return !sections.isEmpty();
}

void DivisionRecords::saveToINI(const DivisionFields& fields, bool created)
{
    const ProfileStore::Batch batch(m_store);
    const DivisionVars vars = readDialogFields(fields);
    const Side side = sideOfLabel(fields.sideLabel);
    const int number = toInt16(numberValue(vars.number));
    const QString section = divisionSection(created ? m_blueDivCount + m_redDivCount - 1 : 0);
    const int ships = countDivisionShips(side, number);
    writeKeys(section, vars, fields, ships);
    if (ships > 0) {
        m_ships.saveindivShipInfoINI(side, number, section, created);
    }
}

void DivisionRecords::saveEditedDivision(const DivisionFields& fields)
{
    const ProfileStore::Batch batch(m_store);
    const DivisionVars vars = readDialogFields(fields);
    for (int n = 0; n < divisionSections; ++n) {
        const QString section = divisionSection(n);
        const QString name = m_profile.GetIniKey(section, u"DIVISIONNAME");
        if (name == invalidValue) {
            return;
        }
        if (name != vars.name || m_profile.GetIniKey(section, u"SIDE") != vars.side) {
            continue;
        }
        const int oldCount = toInt16(numberValue(m_profile.GetIniKey(section, u"SHIPCNT")));
        const int newCount =
            countDivisionShips(sideOfLabel(fields.sideLabel), toInt16(numberValue(vars.number)));
        writeKeys(section, vars, fields, newCount);
        moveShips(n, vars, oldCount);
    }
}

void DivisionRecords::moveShips(int division, const DivisionVars& vars, int oldCount)
{
    const Side side = sideOfWord(vars.side);
    const QStringList lines = listOf(side, toInt16(numberValue(vars.number)));
    const QStringList before = shipsBeforeEdit(divisionSection(division));
    int place = 0;
    for (const QString& line : lines) {
        const QString target = shipSection(division, place);
        ++place;
        if (before.contains(line)) {
            restoreShipSection(shipNameOf(line), target);
        } else {
            m_ships.AddIndividualShip(shipTypeOf(line), shipNameOf(line), target);
        }
    }
    if (lines.size() >= oldCount) {
        return;
    }
    // The walk goes one place beyond the old last ship. Kept.
    for (; place <= oldCount; ++place) {
        m_ships.RemoveIndividualShip(shipSection(division, place));
    }
}

void DivisionRecords::loadDivisionKeys(const QString& name, DivisionVars& vars) const
{
    for (const QString& section : sectionsOf({.name = name, .side = vars.side})) {
        vars.formation = m_profile.GetIniKey(section, u"FORMATION");
        vars.heading = m_profile.GetIniKey(section, u"FORMATIONHEADING");
        vars.spacing = m_profile.GetIniKey(section, u"FORMATIONSPACING");
        vars.speed = m_profile.GetIniKey(section, u"SPEED");
    }
}

void DivisionRecords::readDivData(const QString& name, Language language, DivisionVars& vars) const
{
    const Side side = sideOfWord(vars.side);
    const QString path = m_files.divDataFile(side, toInt16(numberValue(name.trimmed().right(1))));
    if (!isThere(path)) {
        const QString number = vars.number;
        vars = divisionDefaults(language);
        vars.number = number;
        return;
    }
    const QStringList lines = m_files.read(path);
    QString* const fields[] = {&vars.name,    &vars.side,    &vars.formation,
                               &vars.heading, &vars.spacing, &vars.speed};
    for (qsizetype i = 0; i < std::min<qsizetype>(lines.size(), std::ssize(fields)); ++i) {
        *fields[i] = lines[i];
    }
}

void DivisionRecords::writeDivData(const DivisionVars& vars) const
{
    const Side side = sideOfWord(vars.side);
    const QByteArray lines =
        quotedLines({vars.name, vars.side, vars.formation, vars.heading, vars.spacing, vars.speed});
    writeScratchFile(m_files.divDataFile(side, toInt16(numberValue(vars.number))), lines + "\r\n\r\n");
}

DivisionShips DivisionRecords::loadDivisionShips(const QString& name, const QString& sideLabel)
{
    const Side side = sideOfLabel(sideLabel);
    DivisionShips ships;
    ships.lines = listOf(side, toInt16(numberValue(name.trimmed().right(1))));
    if (!ships.lines.isEmpty()) {
        m_files.write(m_files.exisitTemp(), ships.lines);
    }
    QString flagship;
    for (int n = 0; n < divisionSections; ++n) {
        const QString section = divisionSection(n);
        if (m_profile.GetIniKey(section, u"SIDE").toUpper() != QString(wordOf(side)).toUpper() ||
            m_profile.GetIniKey(section, u"DIVISIONNAME") != name) {
            continue;
        }
        const QString index = m_profile.GetIniKey(section, u"FLAGSHIPINDEX");
        if (index != invalidValue) {
            const double place = numberValue(index);
            const bool inRange = place >= 0 && place <= highestShipIndex;
            const QString ship = shipSection(section, inRange ? toInt16(place) : 0);
            flagship = shipLine(m_profile.GetIniKey(ship, u"TYPE"), m_profile.GetIniKey(ship, u"NAME"));
        }
        const QString first = shipSection(section, 0);
        ships.xPosition = toInt32(numberValue(m_profile.GetIniKey(first, u"XPOSITION")));
        ships.zPosition = toInt32(numberValue(m_profile.GetIniKey(first, u"ZPOSITION")));
        ships.section = section;
    }
    for (qsizetype row = 0; row < ships.lines.size(); ++row) {
        if (ships.lines[row] == flagship) {
            ships.flagshipRows.append(static_cast<int>(row));
        }
    }
    return ships;
}

void DivisionRecords::snapshotShipSections(const QString& section)
{
    const ProfileStore::Batch batch(m_store);
    for (int m = 0; m < snapshotPlaces; ++m) {
        const QString ship = shipSection(section, m);
        if (m_profile.GetIniKey(ship, u"NAME") == invalidValue) {
            return;
        }
        for (const QStringView key : shipKeys) {
            m_store.write(m_files.tempIniTemp(), ship, key, m_profile.GetIniKey(ship, key));
        }
    }
}

void DivisionRecords::restoreShipSection(const QString& name, const QString& target)
{
    const ProfileStore::Batch batch(m_store);
    const QString file = m_files.tempIniTemp();
    QString source;
    // The last ship of that name is the source. Sections 10 and 11 lose a letter here and have no source.
    // Kept.
    for (int place = 0; place < snapshotPlaces; ++place) {
        const QString candidate = target.left(sourceNameLength) + QString::number(place);
        if (GetIniKey(m_store, file, candidate, u"NAME") == name.trimmed()) {
            source = candidate;
        }
    }
    if (GetIniKey(m_store, file, source, u"NAME") == invalidValue) {
        return;
    }
    for (const QStringView key : shipKeys) {
        m_profile.write(target, key, GetIniKey(m_store, file, source, key));
    }
}

void DivisionRecords::deleteDivisionScratch()
{
    m_store.remove(m_files.tempIniTemp());
    deleteFile(m_files.exisitTemp());
}

bool DivisionRecords::isEncumbered(const QString& section) const
{
    return m_profile.GetIniKey(section, u"ENCUMBERED") == QLatin1StringView("1");
}

void DivisionRecords::DivMapPt(const QString& section, const QString& x, const QString& z)
{
    m_profile.write(shipSection(section, 0), u"XPOSITION", x);
    m_profile.write(shipSection(section, 0), u"ZPOSITION", z);
}

} // namespace torvane
