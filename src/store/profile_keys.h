#pragma once

#include <QStringView>

#include <algorithm>
#include <array>

namespace torvane {

/// Whether two keys are written alike, also while the program is compiled.
constexpr bool isSameKey(QStringView one, QStringView other)
{
    return std::equal(one.utf16(), one.utf16() + one.size(), other.utf16(), other.utf16() + other.size());
}

inline constexpr QStringView versionSection{u"VERSION"};
inline constexpr QStringView scenarioDataSection{u"SCENARIODATA"};
inline constexpr QStringView scenarioInfoSection{u"SCENARIOINFO"};
/// The one key of [SCENARIOINFO].
inline constexpr QStringView divisionCountKey{u"DIVISIONCNT"};

/// The keys of [SCENARIODATA] in the order of the scenario file. The two dimension keys are spelled
/// differently.
inline constexpr std::array<QStringView, 50> scenarioDataKeys{u"TITLE",
                                                              u"DESCRIPTION_LINECNT",
                                                              u"DESCRIPTION_LINE0",
                                                              u"START_TIME",
                                                              u"START_TIME_HOUR",
                                                              u"START_TIME_MINUTE",
                                                              u"SUNRISE",
                                                              u"SUNSET",
                                                              u"SUNRISE_HOUR",
                                                              u"SUNRISE_MINUTE",
                                                              u"SUNSET_HOUR",
                                                              u"SUNSET_MINUTE",
                                                              u"MONTH",
                                                              u"YEAR",
                                                              u"BLUEBRIEFING_LINECNT",
                                                              u"BLUEBRIEFING_LINE0",
                                                              u"REDBRIEFING_LINECNT",
                                                              u"REDBRIEFING_LINE0",
                                                              u"V.CONDITION_BLUE",
                                                              u"V.CONDITION_RED",
                                                              u"AIR_SUPERIORITY",
                                                              u"LOCATION",
                                                              u"VISIBILITY",
                                                              u"RADARCONDITIONS",
                                                              u"WIND_SPEED",
                                                              u"WIND_DIRECTION",
                                                              u"VP_MODS",
                                                              u"MOONPHASE",
                                                              u"SEASTATE",
                                                              u"GAMELENGTH",
                                                              u"GAMELENGTH_HOUR",
                                                              u"GAMELENGTH_MINUTE",
                                                              u"BLUE_NAVY",
                                                              u"RED_NAVY",
                                                              u"RAIN",
                                                              u"DDTRANSPORTS",
                                                              u"BLUE_TARGETBOX_X",
                                                              u"BLUE_TARGETBOX_Z",
                                                              u"BLUE_TARGETBOXDIM",
                                                              u"RED_TARGETBOX_X",
                                                              u"RED_TARGETBOX_Z",
                                                              u"RED_TARGETBOX_DIM",
                                                              u"BLUE_DISENGAGE_HEADING",
                                                              u"RED_DISENGAGE_HEADING",
                                                              u"BATTLETYPE",
                                                              u"BLUE_VICTORY_MODS",
                                                              u"RED_VICTORY_MODS",
                                                              u"BLUE_FORCE_TYPE",
                                                              u"RED_FORCE_TYPE",
                                                              u"MOVIE"};

/// The keys of [DIVISIONn] in the order of the scenario file.
inline constexpr std::array<QStringView, 9> divisionKeys{
    u"DIVISIONNAME", u"SIDE",    u"FORMATION",     u"FORMATIONHEADING", u"FORMATIONSPACING",
    u"SPEED",        u"SHIPCNT", u"FLAGSHIPINDEX", u"ENCUMBERED"};

/// The keys of [DIVISIONnSHIPm] in the order in which a record is written. The misspellings belong to the
/// format.
inline constexpr std::array<QStringView, 77> shipKeys{u"NAME",
                                                      u"SHORTNAME",
                                                      u"TYPE",
                                                      u"CLASS",
                                                      u"NAVY",
                                                      u"XPOSITION",
                                                      u"YPOSITION",
                                                      u"ZPOSITION",
                                                      u"CREWQUALITY",
                                                      u"CREWFATIGUE",
                                                      u"NIGHTTRAINING",
                                                      u"PREVIOUSCOMBAT",
                                                      u"CURRENTHITPOINTS",
                                                      u"CURRENTFLOATPOINTS",
                                                      u"CURRENTFIRECOUNT",
                                                      u"PROPULSIONSYSTEMPERCENTAGE",
                                                      u"PROPULSIONSYSTEMDAMAGE",
                                                      u"MANUEVERSYSTEMDIRECTION",
                                                      u"MANUEVERSYSTEMDAMAGE",
                                                      u"RADARTYPE",
                                                      u"RADARDAMAGE",
                                                      u"ELECTRICALSYSTEMDAMAGE",
                                                      u"BRIDGEDAMAGE",
                                                      u"DAMAGECONTROLPERCENTAGE",
                                                      u"DAMAGECONTROLDAMAGE",
                                                      u"SEARCHLIGHTP1DAMAGE",
                                                      u"SEARCHLIGHTP2DAMAGE",
                                                      u"SEARCHLIGHTS1DAMAGE",
                                                      u"SEARCHLIGHTS2DAMAGE",
                                                      u"CIWPERCENTAGE",
                                                      u"CIWDAMAGE",
                                                      u"DIRECTOR1DAMAGE",
                                                      u"DIRECTOR2DAMAGE",
                                                      u"TORPMOUNT1TORPSLEFT",
                                                      u"TORPMOUNT1DAMAGE",
                                                      u"TORPMOUNT2TORPSLEFT",
                                                      u"TORPMOUNT2DAMAGE",
                                                      u"TORPMOUNT3TORPSLEFT",
                                                      u"TORPMOUNT3DAMAGE",
                                                      u"TORPMOUNT4TORPSLEFT",
                                                      u"TORPMOUNT4DAMAGE",
                                                      u"SECONDARYGUNSFORECNT",
                                                      u"SECONDARYGUNSAFTCNT",
                                                      u"SECONDARYGUNSPORTCNT",
                                                      u"SECONDARYGUNSSTBCNT",
                                                      u"SECONDARYMAGDAMAGE",
                                                      u"SECONDARYMAGHE",
                                                      u"SECONDARYMAGCOM",
                                                      u"SECONDARYMAGAP",
                                                      u"MGTADAMAGE",
                                                      u"MGTBDAMAGE",
                                                      u"MGTCDAMAGE",
                                                      u"MGTDDAMAGE",
                                                      u"MGTEDAMAGE",
                                                      u"MGTGDAMAGE",
                                                      u"MGTHDAMAGE",
                                                      u"MGTIDAMAGE",
                                                      u"MGTJDAMAGE",
                                                      u"MGTLDAMAGE",
                                                      u"MGTMDAMAGE",
                                                      u"MGTNDAMAGE",
                                                      u"MGTODAMAGE",
                                                      u"MGTQDAMAGE",
                                                      u"MGTRDAMAGE",
                                                      u"MGTTDAMAGE",
                                                      u"MGTUDAMAGE",
                                                      u"MGTXDAMAGE",
                                                      u"MGTYDAMAGE",
                                                      u"MGTZDAMAGE",
                                                      u"MAGADAMAGE",
                                                      u"MAGAHE",
                                                      u"MAGAAP",
                                                      u"MAGACOM",
                                                      u"MAGBDAMAGE",
                                                      u"MAGBHE",
                                                      u"MAGBAP",
                                                      u"MAGBCOM"};

/// Key names that the file procedures take by slot. The last slot stays empty.
inline constexpr std::array<QStringView, 20> keyTable{u"BLUE_TARGETBOX_X",
                                                      u"BLUE_TARGETBOX_Z",
                                                      u"BLUE_TARGETBOXDIM",
                                                      u"RED_TARGETBOX_X",
                                                      u"RED_TARGETBOX_Z",
                                                      u"BATTLETYPE",
                                                      u"TYPE",
                                                      u"NAME",
                                                      u"CLASS",
                                                      u"ZPOSITION",
                                                      u"DIVISIONNAME",
                                                      u"SIDE",
                                                      u"FORMATION",
                                                      u"FORMATIONHEADING",
                                                      u"FORMATIONSPACING",
                                                      u"SPEED",
                                                      u"SHIPCNT",
                                                      u"FLAGSHIPINDEX",
                                                      u"XPOSITION",
                                                      u""};

} // namespace torvane
