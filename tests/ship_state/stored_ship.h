#pragma once

#include "platform/profile_store.h"
#include "ship_state/ship_condition.h"
#include "store/profile_keys.h"
#include "store/ship_catalogue.h"
#include "store/working_profile.h"
#include "support/catalogue_file.h"
#include "support/printers.h"

#include <QHash>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace torvane::testing {

using Record = QHash<QString, QString>;

/// The keys of a ship that the dialog writes, in the order in which it does.
inline QStringList ownedKeys()
{
    QStringList keys{"CREWQUALITY",
                     "CREWFATIGUE",
                     "NIGHTTRAINING",
                     "RADARTYPE",
                     "CURRENTHITPOINTS",
                     "CURRENTFLOATPOINTS",
                     "CURRENTFIRECOUNT",
                     "PROPULSIONSYSTEMDAMAGE",
                     "PROPULSIONSYSTEMPERCENTAGE",
                     "MANUEVERSYSTEMDAMAGE",
                     "MANUEVERSYSTEMDIRECTION",
                     "ELECTRICALSYSTEMDAMAGE",
                     "DAMAGECONTROLDAMAGE",
                     "BRIDGEDAMAGE",
                     "RADARDAMAGE",
                     "SEARCHLIGHTP1DAMAGE",
                     "SEARCHLIGHTP2DAMAGE",
                     "SEARCHLIGHTS1DAMAGE",
                     "SEARCHLIGHTS2DAMAGE",
                     "DIRECTOR1DAMAGE",
                     "DIRECTOR2DAMAGE",
                     "MAGAHE",
                     "MAGAAP",
                     "MAGACOM",
                     "MAGBHE",
                     "MAGBAP",
                     "MAGBCOM"};
    for (const char letter : {'A', 'B', 'C', 'D', 'E', 'G', 'H', 'I', 'J', 'L',
                              'M', 'N', 'O', 'Q', 'R', 'T', 'U', 'X', 'Y', 'Z'}) {
        keys.append(QStringLiteral("MGT%1DAMAGE").arg(QLatin1Char(letter)));
    }
    keys += {"MAGADAMAGE",           "MAGBDAMAGE",         "SECONDARYMAGHE",       "SECONDARYMAGAP",
             "SECONDARYMAGCOM",      "SECONDARYMAGDAMAGE", "SECONDARYGUNSFORECNT", "SECONDARYGUNSAFTCNT",
             "SECONDARYGUNSPORTCNT", "SECONDARYGUNSSTBCNT"};
    keys += {"TORPMOUNT1DAMAGE", "TORPMOUNT2DAMAGE", "TORPMOUNT3DAMAGE", "TORPMOUNT4DAMAGE"};
    return keys;
}

/// A work folder with a profile and a catalogue.
class StoredShips : public ::testing::Test
{
protected:
    StoredShips() : profile(store, m_folder.path()), catalogue(m_controls)
    {
        m_controls.bind(m_folder.path());
    }

    QString catalogueFile() const { return m_folder.filePath(QStringLiteral("ShipDatabase.mdb")); }

    void put(const QString& section, const Record& record)
    {
        const ProfileStore::Batch batch(store);
        for (auto pair = record.cbegin(); pair != record.cend(); ++pair) {
            profile.write(section, pair.key(), pair.value());
        }
    }

private:
    QTemporaryDir m_folder;
    DataControls m_controls;

protected:
    ProfileStore store;
    WorkingProfile profile;
    ShipCatalogue catalogue;
};

} // namespace torvane::testing
