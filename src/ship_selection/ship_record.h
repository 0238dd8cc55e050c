#pragma once

#include "platform/profile_store.h"
#include "store/scratch_files.h"
#include "store/ship_catalogue.h"
#include "store/working_profile.h"

#include <QString>
#include <QStringView>

namespace torvane {

/// The writers of whole ship records. A record is a section of 77 keys, written in one go: to disk once,
/// where no batch is open already. A name that the catalogue lacks throws NoCurrentRecord with `NAME`
/// written.
class ShipRecords
{
public:
    /// Everything handed in outlives the object.
    ShipRecords(ProfileStore& store, WorkingProfile& profile, ScratchFiles& files, ShipCatalogue& catalogue);

    /// Writes the ships of a division, in the order of its Division file, to the sections `section` + "SHIP0"
    /// and on; nothing without that file. `number` counts from 1 within the side. Positions are written only
    /// in create mode.
    void saveindivShipInfoINI(Side side, int number, const QString& section, bool createMode);

    /// Writes the record of one ship, position included. `type` is not used: the catalogue has it.
    void AddIndividualShip(const QString& type, const QString& name, const QString& section);

    /// Makes an empty place: `NAME` "NO SHIP", the start position, all other keys empty.
    void RemoveIndividualShip(const QString& section);

    /// Throws as writing the record of that ship would; writes nothing.
    void requireRecord(const QString& name) const;

    /// Writes a picked ship to `iniShipData.bmm`, in a section that is the name in capitals.
    void writeShipDataRecord(const QString& name);

private:
    struct Target
    {
        QString file;
        QString section;
        QStringView radarType;
        bool withPosition = true;
    };
    void writeRecord(const Target& target, const QString& name);
    Target inProfile(const QString& section) const;

    ProfileStore& m_store;
    WorkingProfile& m_profile;
    ScratchFiles& m_files;
    ShipCatalogue& m_catalogue;
};

} // namespace torvane
