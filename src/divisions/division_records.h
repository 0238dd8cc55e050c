#pragma once

#include "platform/language.h"
#include "platform/profile_store.h"
#include "store/scratch_files.h"
#include "store/working_profile.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace torvane {

class ShipRecords;

/// The settings of a division as the division dialog holds them. All text.
struct DivisionVars
{
    QString number{}; ///< within its side, the last character of its name
    QString name{};   ///< "Division " and the number, in English in every interface
    QString side{};   ///< "Blue" or "Red"
    QString formation{};
    QString heading{}; ///< degrees
    QString spacing{}; ///< yards
    QString speed{};   ///< knots

    bool operator==(const DivisionVars&) const = default;
};

/// What the controls of the division dialog show when it saves.
struct DivisionFields
{
    QString divisionLabel{}; ///< caption of `lblDivName`; its last character is the number
    QString sideLabel{};     ///< caption of `lblside`
    QString formation{};     ///< in the language of the interface
    QString heading{};
    QString spacing{};
    QString speed{};
    std::optional<int> flagshipRow{}; ///< row of the grid marked "FL", from 0
    bool encumbered = false;
};

/// The ships of a division that is about to be edited.
struct DivisionShips
{
    QString section;         ///< of the division; empty if the profile has none of that name and side
    QStringList lines;       ///< type, a blank, name
    QList<int> flagshipRows; ///< the lines that are the flagship's
    std::optional<std::int32_t> xPosition; ///< of the first ship, yards
    std::optional<std::int32_t> zPosition;
};

/// The formation words: English is what is stored.
struct FormationWord
{
    const char* english;
    const char* german;
};
inline constexpr FormationWord formationWords[] = {
    {"Column", "Kolonne"}, {"Line of Bearing", "Peilung"}, {"Convoy", "Konvoi"}};
QString storedFormation(const QString& shown);
QString shownFormation(const QString& stored, Language language);

/// The controls as they are stored: name and formation in English, side by its label.
DivisionVars readDialogFields(const DivisionFields& fields);
/// A new division before anything is set; the formation in the language of the interface.
DivisionVars divisionDefaults(Language language);

/// The records of divisions in the working profile and the scratch files, and the count of divisions a side.
/// Sections count from 0 over both sides in order of creation; numbers count from 1 within a side.
class DivisionRecords
{
public:
    /// Everything handed in outlives the object.
    DivisionRecords(ProfileStore& store, WorkingProfile& profile, ScratchFiles& files, ShipRecords& ships);

    /// Divisions that exist, a division being made included.
    int blueDivCount() const { return m_blueDivCount; }
    int redDivCount() const { return m_redDivCount; }
    void countDivision(Side side, int change);
    /// Takes the counts from the Division files, 1 to 6 of each side; both are 0 if Force A has no first.
    void recount();
    /// Takes the counts from the Division files of each side, whatever the other has: behind a load.
    void countLoaded();

    /// `DIVISIONCNT` as "0", the first step of a creation.
    void saveDivCountINI();
    /// The real `DIVISIONCNT`; if there is no division, the fallback count of the main window.
    void writeDivisionCount(const QString& fallback);

    /// Throws where saving the division could not be carried through, as for a ship that the catalogue lacks;
    /// writes nothing. A ship that an edited division had before needs no catalogue.
    void requireSavable(const DivisionFields& fields, bool created) const;
    /// Writes a new division and its ships. `created` is the dialog's create mode.
    void saveToINI(const DivisionFields& fields, bool created);
    /// Writes an edited division: its settings, and each ship's record at the ship's new place.
    void saveEditedDivision(const DivisionFields& fields);

    /// Makes a place the flagship of an existing division at once. False if the profile has no division of
    /// that name and side.
    bool writeFlagship(const DivisionVars& vars, int row);

    /// The settings of a division from the profile, "INVALID" for a key that its section lacks; `vars` stays
    /// as it is where there is no such section.
    void loadDivisionKeys(const QString& name, DivisionVars& vars) const;
    /// The settings from the DivData file of `name`, or the defaults where there is none.
    void readDivData(const QString& name, Language language, DivisionVars& vars) const;
    void writeDivData(const DivisionVars& vars) const;
    /// Keeps a copy of the division's list for the edit, and reads list, flagship and first position.
    DivisionShips loadDivisionShips(const QString& name, const QString& sideLabel);
    /// Keeps a copy of the records of the division's ships for the edit.
    void snapshotShipSections(const QString& section);
    /// One ship's record, by name, from that copy to the section `target`.
    void restoreShipSection(const QString& name, const QString& target);
    /// Deletes both copies where they exist. Throws RuntimeError.
    void deleteDivisionScratch();

    /// Lines of the Division file of a side; 0 without a file.
    int countDivisionShips(Side side, int number) const;
    /// Whether the profile says that a division is encumbered.
    bool isEncumbered(const QString& section) const;
    /// Puts the first ship of a division at a position in yards. No command runs it.
    void DivMapPt(const QString& section, const QString& x, const QString& z);

private:
    QStringList listOf(Side side, int number) const;
    QStringList listBeforeEdit() const;
    QStringList shipsBeforeEdit(const QString& section) const;
    QStringList sectionsOf(const DivisionVars& vars) const;
    void writeKeys(const QString& section, const DivisionVars& vars, const DivisionFields& fields, int ships);
    void moveShips(int division, const DivisionVars& vars, int oldCount);

    ProfileStore& m_store;
    WorkingProfile& m_profile;
    ScratchFiles& m_files;
    ShipRecords& m_ships;
    int m_blueDivCount = 0;
    int m_redDivCount = 0;
};

} // namespace torvane
