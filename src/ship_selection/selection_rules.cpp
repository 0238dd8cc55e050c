#include "ship_selection/selection_rules.h"

#include "divisions/division_settings.h"
#include "platform/number_text.h"
#include "platform/runtime_error.h"
#include "platform/text_files.h"
#include "ship_selection/ship_line.h"
#include "store/force_sizes.h"

#include <algorithm>

namespace torvane {

namespace {

constexpr int highestDivision = 8;
/// Remove takes the lines of a full division; a loaded division may have more.
constexpr int lastRemovableIndex = 9;

} // namespace

int divisionNumberOf(QStringView caption)
{
    const double number = numberValue(caption.right(1));
    return number >= 1 && number <= highestDivision ? toInt16(number) : 1;
}

ShipSelection::ShipSelection(const ScratchFiles& files, const WorkingProfile& profile, ShipRecords& records,
                             ShipBrowser& browser)
    : m_files(files), m_profile(profile), m_records(records), m_browser(browser)
{
}

void ShipSelection::open(Side side, const QString& caption, const QString& word)
{
    close();
    m_side = side;
    m_number = divisionNumberOf(caption);
    QStringList lines;
    for (int number = 1; number <= divisionsPerSide; ++number) {
        const QString file = m_files.divisionFile(side, number);
        if (caption == word + u' ' + QString::number(number) && isThere(file)) {
            lines = m_files.read(file);
            toInt16(static_cast<double>(lines.size()));
        }
    }
    countForces();
    m_entries = lines;
}

void ShipSelection::countForces()
{
    m_blueShipCount = 0;
    m_redShipCount = 0;
    // Without a first division of Force A nothing counts, whatever Force B has. Kept.
    if (isThere(m_files.divisionFile(Side::Blue, 1))) {
        m_blueShipCount = shipsOf(Side::Blue);
        m_redShipCount = shipsOf(Side::Red);
    }
}

std::int16_t ShipSelection::shipsOf(Side side) const
{
    std::int16_t ships = 0;
    for (int number = 1; number <= divisionsPerSide; ++number) {
        const QString file = m_files.divisionFile(side, number);
        if (isThere(file)) {
            ships = toInt16(static_cast<double>(ships + m_files.read(file).size()));
        }
    }
    return ships;
}

void ShipSelection::close()
{
    m_entries.clear();
    select(-1);
}

bool ShipSelection::mayNotPick(const QString& type) const
{
    return type != QLatin1StringView("DD") && transportingForce(m_profile) == m_side;
}

std::optional<SelectionMessage> ShipSelection::pick(int row)
{
    const ShipRow ship = m_browser.ship(row);
    const QString& type = ship[ShipColumn::Type];
    const QString& name = ship[ShipColumn::Name];
    if (mayNotPick(type)) {
        return SelectionMessage::DestroyersOnly;
    }
    if (divShipCount() >= shipsPerDivision) {
        return SelectionMessage::DivisionFull;
    }
    bool found = false;
    checkAlreadySelected(name, found);
    if (found) {
        return SelectionMessage::AlreadySelected;
    }
    std::int16_t& ofForce = forceCount();
    const std::int16_t raised = toInt16(ofForce + 1.0);
    if (m_blueShipCount + m_redShipCount + 1 > shipsPerScenario) {
        // The refused pick stays counted until the dialog is opened again. Kept.
        ofForce = raised;
        return SelectionMessage::ScenarioFull;
    }
    if (raised > shipsPerForce) {
        ofForce = shipsPerForce;
        return SelectionMessage::ForceFull;
    }
    // The files first: what fails there must not stand in the list.
    writeShipDataRecord(name, divShipCount());
    ofForce = raised;
    m_entries.append(shipLine(type, name));
    m_browser.mark(row);
    return std::nullopt;
}

void ShipSelection::select(int index)
{
    m_selectedIndex = index >= 0 && index < divShipCount() ? index : -1;
}

// Read from the line itself: index and name always belong together.
QString ShipSelection::selectedShip() const
{
    return shipNameOf(m_entries.value(m_selectedIndex));
}

std::optional<SelectionMessage> ShipSelection::remove()
{
    if (m_selectedIndex < 0 || m_selectedIndex > lastRemovableIndex) {
        return SelectionMessage::NoneToRemoveSelected;
    }
    if (divShipCount() < 1) {
        return SelectionMessage::NothingToRemove;
    }
    const QString ship = selectedShip();
    takeOffTrack({ship});
    std::int16_t& ofForce = forceCount();
    ofForce = toInt16(ofForce - 1.0);
    const ListedNavy* const navy = listedNavy(m_browser.currentNavy());
    m_browser.unmark(ship, navy ? navy->removalRows : 0);
    m_entries.removeAt(m_selectedIndex);
    m_selectedIndex = std::max(0, std::min(m_selectedIndex, divShipCount() - 1));
    return std::nullopt;
}

void ShipSelection::clear()
{
    if (!m_entries.isEmpty()) {
        QSet<QString> names;
        for (const QString& entry : m_entries) {
            names.insert(shipNameOf(entry));
        }
        takeOffTrack(names);
    }
    const ListedNavy* const navy = listedNavy(m_browser.currentNavy());
    std::int16_t& ofForce = forceCount();
    for (const QString& entry : m_entries) {
        // A ship of a navy that isn't shown stays counted until the dialog is opened again. Kept.
        if (m_browser.unmark(shipNameOf(entry), navy ? navy->rows : 0)) {
            ofForce = toInt16(ofForce - 1.0);
        }
    }
    close();
}

std::optional<SelectionMessage> ShipSelection::keep() const
{
    if (m_entries.isEmpty()) {
        return SelectionMessage::NothingToKeep;
    }
    m_files.write(m_files.divisionFile(m_side, m_number), m_entries);
    return std::nullopt;
}

void ShipSelection::checkAlreadySelected(const QString& name, bool& found)
{
    readTrack();
    found = isTaken(name);
}

void ShipSelection::writeShipDataRecord(const QString& name, int listIndex)
{
    if (listIndex < 0 || listIndex >= pickedNamePlaces) {
        throw RuntimeError(
            RuntimeError::SubscriptOutOfRange,
            QStringLiteral("There is no place %1 in the list of picked ships.").arg(listIndex));
    }
    m_records.writeShipDataRecord(name);
    m_pickedNames[static_cast<std::size_t>(listIndex)] = name;
    const QStringList names = readTrack() + QStringList(name);
    m_files.write(m_files.shipTrack(), names);
    setTrack(names);
}

const QStringList& ShipSelection::readTrack()
{
    setTrack(m_files.read(m_files.shipTrack()));
    return m_track;
}

void ShipSelection::setTrack(const QStringList& names)
{
    m_track = names;
    m_taken = QSet<QString>(names.cbegin(), names.cend());
}

void ShipSelection::takeOffTrack(const QSet<QString>& names)
{
    QStringList left = readTrack();
    left.removeIf([&names](const QString& name) { return names.contains(name); });
    m_files.write(m_files.shipRemove(), left);
    try {
        // Put in place of the old file whole, so that there is no moment without a list.
        m_files.write(m_files.shipTrack(), left);
    } catch (const RuntimeError&) {
        deleteFile(m_files.shipRemove());
        throw;
    }
    setTrack(left);
    deleteFile(m_files.shipRemove());
}

} // namespace torvane
