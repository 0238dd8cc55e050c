#include "scenario_file/scenario_format.h"

#include "platform/runtime_error.h"
#include "support/printers.h"

#include <gmock/gmock.h>

#include <map>

namespace torvane {
namespace {

// The table is typed anew here, so that a slip in the program's own shows.
const std::map<FileSection, QStringList> keysBySection{
    {FileSection::Version, {QStringLiteral("VERSIONNUMBER")}},
    {FileSection::ScenarioData,
     QStringLiteral(
         "TITLE DESCRIPTION_LINECNT DESCRIPTION_LINE0 START_TIME START_TIME_HOUR START_TIME_MINUTE SUNRISE "
         "SUNSET SUNRISE_HOUR SUNRISE_MINUTE SUNSET_HOUR SUNSET_MINUTE MONTH YEAR BLUEBRIEFING_LINECNT "
         "BLUEBRIEFING_LINE0 REDBRIEFING_LINECNT REDBRIEFING_LINE0 V.CONDITION_BLUE V.CONDITION_RED "
         "AIR_SUPERIORITY LOCATION VISIBILITY RADARCONDITIONS WIND_SPEED WIND_DIRECTION VP_MODS MOONPHASE "
         "SEASTATE GAMELENGTH GAMELENGTH_HOUR GAMELENGTH_MINUTE BLUE_NAVY RED_NAVY RAIN DDTRANSPORTS "
         "BLUE_TARGETBOX_X BLUE_TARGETBOX_Z BLUE_TARGETBOXDIM RED_TARGETBOX_X RED_TARGETBOX_Z "
         "RED_TARGETBOX_DIM BLUE_DISENGAGE_HEADING RED_DISENGAGE_HEADING BATTLETYPE BLUE_VICTORY_MODS "
         "RED_VICTORY_MODS BLUE_FORCE_TYPE RED_FORCE_TYPE MOVIE")
         .split(u' ')},
    {FileSection::ScenarioInfo, {QStringLiteral("DIVISIONCNT")}},
    {FileSection::Division,
     QStringLiteral("DIVISIONNAME SIDE FORMATION FORMATIONHEADING FORMATIONSPACING SPEED SHIPCNT "
                    "FLAGSHIPINDEX ENCUMBERED")
         .split(u' ')},
    {FileSection::Ship,
     QStringLiteral(
         "NAME SHORTNAME TYPE CLASS NAVY XPOSITION YPOSITION ZPOSITION CREWQUALITY CREWFATIGUE NIGHTTRAINING "
         "PREVIOUSCOMBAT CURRENTHITPOINTS CURRENTFLOATPOINTS CURRENTFIRECOUNT PROPULSIONSYSTEMPERCENTAGE "
         "PROPULSIONSYSTEMDAMAGE MANUEVERSYSTEMDIRECTION MANUEVERSYSTEMDAMAGE RADARTYPE RADARDAMAGE "
         "ELECTRICALSYSTEMDAMAGE BRIDGEDAMAGE DAMAGECONTROLPERCENTAGE DAMAGECONTROLDAMAGE "
         "SEARCHLIGHTP1DAMAGE SEARCHLIGHTP2DAMAGE SEARCHLIGHTS1DAMAGE SEARCHLIGHTS2DAMAGE CIWPERCENTAGE "
         "CIWDAMAGE DIRECTOR1DAMAGE DIRECTOR2DAMAGE TORPMOUNT1TORPSLEFT TORPMOUNT1DAMAGE "
         "TORPMOUNT2TORPSLEFT TORPMOUNT2DAMAGE TORPMOUNT3TORPSLEFT TORPMOUNT3DAMAGE TORPMOUNT4TORPSLEFT "
         "TORPMOUNT4DAMAGE SECONDARYGUNSFORECNT SECONDARYGUNSAFTCNT SECONDARYGUNSPORTCNT "
         "SECONDARYGUNSSTBCNT SECONDARYMAGDAMAGE SECONDARYMAGHE SECONDARYMAGCOM SECONDARYMAGAP MGTADAMAGE "
         "MGTBDAMAGE MGTCDAMAGE MGTDDAMAGE MGTEDAMAGE MGTGDAMAGE MGTHDAMAGE MGTIDAMAGE MGTJDAMAGE "
         "MGTLDAMAGE MGTMDAMAGE MGTNDAMAGE MGTODAMAGE MGTQDAMAGE MGTRDAMAGE MGTTDAMAGE MGTUDAMAGE "
         "MGTXDAMAGE MGTYDAMAGE MGTZDAMAGE MAGADAMAGE MAGAHE MAGAAP MAGACOM MAGBDAMAGE MAGBHE MAGBAP "
         "MAGBCOM YARDSXPOSITION YARDSZPOSITION")
         .split(u' ')},
};

TEST(ScenarioFormat, HasTheKeysOfEachSectionInTheirOrder)
{
    for (const auto& [section, expected] : keysBySection) {
        QStringList names;
        for (const FileKey& key : keysOf(section)) {
            EXPECT_EQ(key.section, section);
            names << key.name.toString();
        }
        EXPECT_EQ(names, expected);
    }
}

TEST(ScenarioFormat, HasTheSectionsInTheirOrderAndNoOtherKey)
{
    EXPECT_EQ(fileKeys.size(), 1U + 50U + 1U + 9U + 79U);
    EXPECT_TRUE(std::ranges::is_sorted(fileKeys, {}, &FileKey::section));
    EXPECT_EQ(versionSection, u"VERSION");
    EXPECT_EQ(scenarioDataSection, u"SCENARIODATA");
    EXPECT_EQ(scenarioInfoSection, u"SCENARIOINFO");
}

struct Treatment
{
    Writing writing;
    Reading reading;
};

const std::map<QString, Treatment> treatments{
    {QStringLiteral("VERSIONNUMBER"), {Writing::Version, Reading::Version}},
    {QStringLiteral("AIR_SUPERIORITY"), {Writing::Copy, Reading::AirControlCode}},
    {QStringLiteral("BLUE_TARGETBOX_X"), {Writing::TargetArea, Reading::Copy}},
    {QStringLiteral("BLUE_TARGETBOX_Z"), {Writing::TargetArea, Reading::SignTurned}},
    {QStringLiteral("BLUE_TARGETBOXDIM"), {Writing::TargetArea, Reading::Copy}},
    {QStringLiteral("RED_TARGETBOX_X"), {Writing::TargetArea, Reading::Copy}},
    {QStringLiteral("RED_TARGETBOX_Z"), {Writing::TargetArea, Reading::SignTurned}},
    {QStringLiteral("RED_TARGETBOX_DIM"), {Writing::TargetArea, Reading::Copy}},
    {QStringLiteral("MOVIE"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("FORMATIONSPACING"), {Writing::MetresSpacing, Reading::YardsSpacing}},
    {QStringLiteral("ENCUMBERED"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("XPOSITION"), {Writing::Metres, Reading::FromKeptYards}},
    {QStringLiteral("ZPOSITION"), {Writing::MetresTurned, Reading::FromKeptYardsTurned}},
    {QStringLiteral("YARDSXPOSITION"), {Writing::KeptYards, Reading::NotKept}},
    {QStringLiteral("YARDSZPOSITION"), {Writing::KeptYards, Reading::NotKept}},
    {QStringLiteral("MGTDDAMAGE"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("MGTEDAMAGE"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("MGTGDAMAGE"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("MGTHDAMAGE"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("MGTIDAMAGE"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("MGTJDAMAGE"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("MGTTDAMAGE"), {Writing::Copy, Reading::ZeroIfMissing}},
    {QStringLiteral("MGTUDAMAGE"), {Writing::Copy, Reading::ZeroIfMissing}},
};

TEST(ScenarioFormat, TreatsEachKeyAsTheFormatSaysAndCopiesTheRest)
{
    std::size_t special = 0;
    for (const FileKey& key : fileKeys) {
        const auto found = treatments.find(key.name.toString());
        const Treatment expected =
            found == treatments.end() ? Treatment{Writing::Copy, Reading::Copy} : found->second;
        EXPECT_EQ(key.writing, expected.writing) << key.name.toString().toStdString();
        EXPECT_EQ(key.reading, expected.reading) << key.name.toString().toStdString();
        special += found == treatments.end() ? 0 : 1;
    }
    EXPECT_EQ(special, treatments.size());
}

TEST(ScenarioFormat, HasItsVersionSuffixAndFilter)
{
    EXPECT_EQ(QString(scenarioFileVersion), QStringLiteral("64"));
    EXPECT_EQ(QString(scenarioFileSuffix), QStringLiteral(".scn"));
    EXPECT_EQ(QString(scenarioFileFilter), QStringLiteral("Scenario Files(*.scn)|*.scn"));
}

TEST(ScenarioFormat, KeepsYardsUnderKeysOfTheirOwn)
{
    EXPECT_EQ(keptYardsKey(u"XPOSITION"), QStringLiteral("YARDSXPOSITION"));
    EXPECT_EQ(keptYardsKey(u"ZPOSITION"), QStringLiteral("YARDSZPOSITION"));
}

TEST(Spacings, GoToMetresAndBackForTheEightLegalValues)
{
    const char* const rows[][2] = {{"500", "457.2"},   {"600", "548.64"}, {"700", "640.08"},
                                   {"800", "731.52"},  {"900", "822.96"}, {"1000", "914.4"},
                                   {"1500", "1371.6"}, {"2000", "1828.8"}};
    for (const auto& row : rows) {
        EXPECT_EQ(spacingInMetres(QLatin1StringView(row[0])), QLatin1StringView(row[1]));
        EXPECT_EQ(spacingInYards(QLatin1StringView(row[1])), QLatin1StringView(row[0]));
    }
}

TEST(Spacings, OfOtherTextStayAsTheyAre)
{
    for (const char* text : {"INVALID", "", "0", "850", "1000.0", "01000", "457.2", "914,4"}) {
        EXPECT_EQ(spacingInMetres(QLatin1StringView(text)), QLatin1StringView(text));
    }
    for (const char* text : {"INVALID", "", "0", "1000", "914.40", "914.399981498718"}) {
        EXPECT_EQ(spacingInYards(QLatin1StringView(text)), QLatin1StringView(text));
    }
}

TEST(Positions, AreConvertedWithTheFactorOfSinglePrecision)
{
    EXPECT_EQ(metresOf(u"1000"), QStringLiteral("914.399981498718"));
    EXPECT_EQ(metresOf(u"-100"), QStringLiteral("-91.4399981498718"));
    EXPECT_EQ(metresOf(u"1"), QStringLiteral("0.914399981498718"));
    EXPECT_EQ(metresOf(u"2.5"), QStringLiteral("2.2859999537468"));
    EXPECT_EQ(metresOf(u"0"), QStringLiteral("0"));
    EXPECT_EQ(metresOf(u"-0"), QStringLiteral("0"));
    EXPECT_EQ(metresOf(u"2E15"), QStringLiteral("1.82879996299744E+15"));
    EXPECT_EQ(metresOf(u"0.00001"), QStringLiteral("9.14399981498718E-06"));
}

TEST(Positions, TurnTheirSignAsNumbers)
{
    EXPECT_EQ(signTurned(u"100"), QStringLiteral("-100"));
    EXPECT_EQ(signTurned(u"-100"), QStringLiteral("100"));
    EXPECT_EQ(signTurned(u"0"), QStringLiteral("0")) << "never -0";
    EXPECT_EQ(signTurned(u"INVALID"), QStringLiteral("0"));
    EXPECT_EQ(signTurned(u"007.50"), QStringLiteral("-7.5"));
}

TEST(Positions, BeyondTheRangeOfADoubleAreRefused)
{
    EXPECT_THROW(metresOf(u"1E400"), RuntimeError);
    EXPECT_THROW(signTurned(u"-1E400"), RuntimeError);
}

} // namespace
} // namespace torvane
