#pragma once

#include "ship_selection/ship_browser.h"
#include "ship_selection/ship_record.h"
#include "store/side.h"

#include <QSet>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

namespace torvane {

/// What the ship dialog tells where it refuses something.
enum class SelectionMessage {
    DivisionFull,
    ForceFull,
    ScenarioFull,
    DestroyersOnly,
    AlreadySelected,
    NothingToKeep,
    NoneToRemoveSelected,
    NothingToRemove,
};

/// Number of a division by the caption that names it: its last character, 1 where that is none from 1 to 8.
int divisionNumberOf(QStringView caption);

/// The picks of one division, and the rules by which ships come and go. A pick is final in `ShipTrack.bmm`,
/// which names the ships of the whole scenario; the Division file changes when the ships are kept. What fails
/// in a file throws RuntimeError and leaves list and counts as they were.
class ShipSelection
{
public:
    static constexpr int pickedNamePlaces = 31;

    /// Everything handed in outlives the object.
    ShipSelection(const ScratchFiles& files, const WorkingProfile& profile, ShipRecords& records,
                  ShipBrowser& browser);

    /// Starts with the ships of a division, by the caption that names it, and counts those of each force. The
    /// caption is `word`, a blank and 1 to 6; any other has no ships yet. Throws RuntimeError for a file that
    /// can't be read, and Overflow beyond 16 bits, with an empty list.
    void open(Side side, const QString& caption, const QString& word);
    /// Counts the ships of each force in its Division files.
    void countForces();
    /// Forgets the list.
    void close();

    Side side() const { return m_side; }
    int divisionNumber() const { return m_number; }
    /// Type, a blank and name of each ship, in order.
    const QStringList& entries() const { return m_entries; }
    int divShipCount() const { return static_cast<int>(m_entries.size()); }
    /// As the limits count: a pick refused at the scenario's limit stays counted until the next opening, and
    /// without a first division of Force A both forces start at 0.
    int blueShipCount() const { return m_blueShipCount; }
    int redShipCount() const { return m_redShipCount; }
    int forceShipCount() const { return m_side == Side::Blue ? m_blueShipCount : m_redShipCount; }
    /// The names of the scenario's ships, as the file had them when it was last used.
    const QStringList& track() const { return m_track; }
    bool isTaken(const QString& name) const { return m_taken.contains(name); }

    /// Picks the ship of a row of the grid. A refusal changes nothing but, at the limits of force and
    /// scenario, the force's count.
    std::optional<SelectionMessage> pick(int row);

    /// Remembers a line of the list for Remove; any other index is none.
    void select(int index);
    /// The remembered line, -1 for none. Behind the removal of the last ship it is 0 all the same, for the
    /// ship that is picked next.
    int selectedIndex() const { return m_selectedIndex; }
    /// The name in the remembered line; empty if there is none.
    QString selectedShip() const;

    /// Removes the remembered ship; the line that moves up becomes the remembered one.
    std::optional<SelectionMessage> remove();
    /// Removes all ships of the list. The Division file stays as it is.
    void clear();
    /// Writes the Division file.
    std::optional<SelectionMessage> keep() const;

    /// Whether `ShipTrack.bmm` has that name. Throws RuntimeError without that file.
    void checkAlreadySelected(const QString& name, bool& found);
    /// Writes a picked ship's record, remembers its name at the index and appends it to `ShipTrack.bmm`.
    /// Throws SubscriptOutOfRange for an index of 31 and more.
    void writeShipDataRecord(const QString& name, int listIndex);
    /// The name that was remembered at an index below 31.
    const QString& pickedName(int listIndex) const
    {
        return m_pickedNames.at(static_cast<std::size_t>(listIndex));
    }
    /// Reads `ShipTrack.bmm` anew. Throws RuntimeError without that file.
    const QStringList& readTrack();

private:
    std::int16_t shipsOf(Side side) const;
    std::int16_t& forceCount() { return m_side == Side::Blue ? m_blueShipCount : m_redShipCount; }
    bool mayNotPick(const QString& type) const;
    void takeOffTrack(const QSet<QString>& names);
    void setTrack(const QStringList& names);

    const ScratchFiles& m_files;
    const WorkingProfile& m_profile;
    ShipRecords& m_records;
    ShipBrowser& m_browser;
    Side m_side = Side::Blue;
    int m_number = 1;
    QStringList m_entries;
    std::int16_t m_blueShipCount = 0;
    std::int16_t m_redShipCount = 0;
    int m_selectedIndex = -1;
    std::array<QString, pickedNamePlaces> m_pickedNames;
    QStringList m_track;
    QSet<QString> m_taken;
};

} // namespace torvane
