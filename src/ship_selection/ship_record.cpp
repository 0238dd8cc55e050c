#include "ship_selection/ship_record.h"

#include "platform/capitals.h"
#include "platform/text_files.h"
#include "ship_selection/ship_line.h"
#include "store/profile_keys.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace torvane {

namespace {

constexpr QStringView averageRadar{u"Average"};
constexpr QStringView historicalRadar{u"Historical"};
constexpr QStringView recordsSection{u"SHIP_DATA_RECORDS"};
constexpr QStringView versionKey{u"VERSIONNUMBER"};
constexpr QStringView version{u"64"};

/// A key of a ship's record and where its value comes from when the record is made.
struct ShipKey
{
    enum class Source {
        Start,      ///< `value` itself
        Position,   ///< `value` itself, where positions are written
        RadarType,  ///< "Average" in the working profile, "Historical" in the picks
        Name,       ///< the ship's name
        ShipField,  ///< field `value` of `ShipDataB`
        ClassField, ///< field `value` of `ShipDaClass`
    };
    QStringView key;
    Source source = Source::Start;
    QStringView value = u"0";
};

/// Value of the three position keys of a ship that has no place on the map yet.
constexpr QStringView startPosition{u"0.000000"};

/// The keys that start with something else than "0".
constexpr std::array<ShipKey, 36> shipKeysWithSource{{
    {u"NAME", ShipKey::Source::Name, u""},
    {u"SHORTNAME", ShipKey::Source::ShipField, u"ShortName"},
    {u"TYPE", ShipKey::Source::ShipField, u"Type"},
    {u"CLASS", ShipKey::Source::ShipField, u"Class"},
    {u"NAVY", ShipKey::Source::ShipField, u"Navy"},
    {u"XPOSITION", ShipKey::Source::Position, startPosition},
    {u"YPOSITION", ShipKey::Source::Position, startPosition},
    {u"ZPOSITION", ShipKey::Source::Position, startPosition},
    {u"CREWQUALITY", ShipKey::Source::Start, u"Average"},
    {u"CREWFATIGUE", ShipKey::Source::Start, u"Normal"},
    {u"NIGHTTRAINING", ShipKey::Source::Start, u"Average"},
    {u"PREVIOUSCOMBAT", ShipKey::Source::Start, u"None"},
    {u"CURRENTHITPOINTS", ShipKey::Source::ClassField, u"f"},
    {u"CURRENTFLOATPOINTS", ShipKey::Source::ClassField, u"g"},
    {u"PROPULSIONSYSTEMPERCENTAGE", ShipKey::Source::Start, u"100"},
    {u"MANUEVERSYSTEMDIRECTION", ShipKey::Source::Start, u"Center"},
    {u"RADARTYPE", ShipKey::Source::RadarType, u""},
    {u"DAMAGECONTROLPERCENTAGE", ShipKey::Source::Start, u"100"},
    {u"CIWPERCENTAGE", ShipKey::Source::Start, u"100"},
    {u"TORPMOUNT1TORPSLEFT", ShipKey::Source::ClassField, u"x"},
    {u"TORPMOUNT2TORPSLEFT", ShipKey::Source::ClassField, u"y"},
    {u"TORPMOUNT3TORPSLEFT", ShipKey::Source::ClassField, u"z"},
    {u"TORPMOUNT4TORPSLEFT", ShipKey::Source::ClassField, u"aa"},
    {u"SECONDARYGUNSFORECNT", ShipKey::Source::ClassField, u"o"},
    {u"SECONDARYGUNSAFTCNT", ShipKey::Source::ClassField, u"p"},
    {u"SECONDARYGUNSPORTCNT", ShipKey::Source::ClassField, u"q"},
    {u"SECONDARYGUNSSTBCNT", ShipKey::Source::ClassField, u"r"},
    {u"SECONDARYMAGHE", ShipKey::Source::ClassField, u"t"},
    {u"SECONDARYMAGCOM", ShipKey::Source::ClassField, u"v"},
    {u"SECONDARYMAGAP", ShipKey::Source::ClassField, u"u"},
    {u"MAGAHE", ShipKey::Source::ClassField, u"h"},
    {u"MAGAAP", ShipKey::Source::ClassField, u"i"},
    {u"MAGACOM", ShipKey::Source::ClassField, u"j"},
    {u"MAGBHE", ShipKey::Source::ClassField, u"k"},
    {u"MAGBAP", ShipKey::Source::ClassField, u"l"},
    {u"MAGBCOM", ShipKey::Source::ClassField, u"m"},
}};

static_assert(std::ranges::all_of(shipKeysWithSource, [](const ShipKey& entry) {
    return std::ranges::any_of(shipKeys, [&entry](QStringView key) { return isSameKey(key, entry.key); });
}));

/// All keys, in the order in which every writer writes them.
constexpr auto recordKeys = [] {
    std::array<ShipKey, shipKeys.size()> keys;
    std::ranges::transform(shipKeys, keys.begin(), [](QStringView key) {
        const auto* const found = std::ranges::find_if(
            shipKeysWithSource, [key](const ShipKey& entry) { return isSameKey(entry.key, key); });
        return found == shipKeysWithSource.end() ? ShipKey{key} : *found;
    });
    return keys;
}();

QString creationValue(const ShipKey& key, QStringView radarType, ShipCatalogue& catalogue)
{
    switch (key.source) {
    case ShipKey::Source::ShipField:
        return catalogue.ShipDataB().value(key.value);
    case ShipKey::Source::ClassField:
        return catalogue.ShipDaClass().value(key.value);
    case ShipKey::Source::RadarType:
        return radarType.toString();
    case ShipKey::Source::Start:
    case ShipKey::Source::Position:
    case ShipKey::Source::Name:
        break;
    }
    return key.value.toString();
}

QString emptyPlaceValue(const ShipKey& key)
{
    switch (key.source) {
    case ShipKey::Source::Name:
        return noShip;
    case ShipKey::Source::Position:
        return key.value.toString();
    default:
        return QString();
    }
}

} // namespace

ShipRecords::ShipRecords(ProfileStore& store, WorkingProfile& profile, ScratchFiles& files,
                         ShipCatalogue& catalogue)
    : m_store(store), m_profile(profile), m_files(files), m_catalogue(catalogue)
{
}

void ShipRecords::saveindivShipInfoINI(Side side, int number, const QString& section, bool createMode)
{
    const QString list = m_files.divisionFile(side, number);
    if (!isThere(list)) {
        return;
    }
    const ProfileStore::Batch batch(m_store);
    int place = 0;
    for (const QString& line : m_files.read(list)) {
        Target target = inProfile(shipSection(section, place++));
        target.withPosition = createMode;
        writeRecord(target, shipNameOf(line));
    }
}

void ShipRecords::AddIndividualShip(const QString& /*type*/, const QString& name, const QString& section)
{
    writeRecord(inProfile(section), name);
}

void ShipRecords::RemoveIndividualShip(const QString& section)
{
    const ProfileStore::Batch batch(m_store);
    for (const ShipKey& key : recordKeys) {
        m_profile.write(section, key.key, emptyPlaceValue(key));
    }
}

void ShipRecords::requireRecord(const QString& name) const
{
    m_catalogue.shipToClass(name);
    for (const ShipKey& key : recordKeys) {
        creationValue(key, averageRadar, m_catalogue);
    }
}

void ShipRecords::writeShipDataRecord(const QString& name)
{
    const ProfileStore::Batch batch(m_store);
    m_store.write(m_files.iniShipData(), recordsSection, versionKey, version);
    writeRecord({m_files.iniShipData(), inCapitals(name), historicalRadar}, name);
}

void ShipRecords::writeRecord(const Target& target, const QString& name)
{
    const ProfileStore::Batch batch(m_store);
    for (const ShipKey& key : recordKeys) {
        if (key.source == ShipKey::Source::Name) {
            // Before the catalogue is searched: a name that it lacks stands in the record all the same.
            m_store.write(target.file, target.section, key.key, name);
            m_catalogue.shipToClass(name);
        } else if (key.source != ShipKey::Source::Position || target.withPosition) {
            m_store.write(target.file, target.section, key.key,
                          creationValue(key, target.radarType, m_catalogue));
        }
    }
}

ShipRecords::Target ShipRecords::inProfile(const QString& section) const
{
    return {m_profile.path(), section, averageRadar};
}

} // namespace torvane
