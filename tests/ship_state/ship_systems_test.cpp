#include "ship_state/ship_systems.h"

#include "support/expect_error.h"
#include "support/printers.h"

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

const RepairRow& row(const char* word)
{
    for (const RepairRow& candidate : repairRows) {
        if (candidate.word == QLatin1StringView(word)) {
            return candidate;
        }
    }
    throw std::runtime_error(word);
}

RepairState loaded(const char* word, const char* stored)
{
    RepairState state;
    loadRepair(state, row(word), QString::fromLatin1(stored));
    return state;
}

TEST(RepairRows, StandAsLaidDown)
{
    const struct
    {
        const char* button;
        const char* word;
        const char* label;
        const char* box;
        const char* key;
        const char* english;
        const char* german;
        const char* boxCaption;
    } expected[] = {
        {"cmdRepairProp", "PROP", "lblPropDam", "chkPropSys", "PROPULSIONSYSTEMDAMAGE", "Propulsion Damage",
         "Schaden am Antrieb", "Propulsion System Destroyed:"},
        {"cmdRepairMan", "MAN", "lblManDam", "chkManeuver", "MANUEVERSYSTEMDAMAGE", "Maneuvering Damage",
         "Ruderschaden", "Maneuvering System Destroyed"},
        {"cmdRepairElec", "ELEC", "lblElecDam", "chkElectrical", "ELECTRICALSYSTEMDAMAGE",
         "Electrical Damage", "elektrischer Schaden", "Electrical System Destroyed"},
        {"cmdRepairDam", "DAM", "lblDamDam", "chkDamage", "DAMAGECONTROLDAMAGE", "Damage Control",
         "Schadenskontrolle ", "Damage Control Destroyed"},
        {"cmdRepairBridge", "BRIDGE", "lblBridgeDam", "chkBridge", "BRIDGEDAMAGE", "Bridge Damage",
         "Schaden an der Brücke", "Bridge Control Destroyed"},
        {"cmdRepairRadar", "RADAR", "lblRadarDam", "chkRadar", "RADARDAMAGE", "Radar Damage", "Radarschaden",
         "Radar Control Destroyed"},
    };
    ASSERT_EQ(std::size(expected), repairRows.size());
    for (std::size_t i = 0; i < repairRows.size(); ++i) {
        const RepairRow& actual = repairRows.at(i);
        EXPECT_STREQ(actual.button, expected[i].button);
        EXPECT_EQ(actual.word, QLatin1StringView(expected[i].word));
        EXPECT_STREQ(actual.timeLabel, expected[i].label);
        EXPECT_STREQ(actual.box, expected[i].box);
        EXPECT_EQ(actual.key, QLatin1StringView(expected[i].key));
        EXPECT_STREQ(actual.caption.english, expected[i].english);
        EXPECT_STREQ(actual.caption.german, expected[i].german);
        EXPECT_STREQ(actual.boxCaption, expected[i].boxCaption);
    }
}

TEST(LightsAndDirectors, StandAsLaidDown)
{
    const struct
    {
        const char* box;
        const char* english;
        const char* german;
        const char* key;
    } expected[] = {
        {"chkSL_Port1", "Searchlights Port 1", "Scheinwerfer B 1", "SEARCHLIGHTP1DAMAGE"},
        {"chkSL_Port2", "Searchlights Port 2", "Scheinwerfer B 2", "SEARCHLIGHTP2DAMAGE"},
        {"chkSL_Strb1", "Searchlights Strb 1", "Scheinwerfer S 1", "SEARCHLIGHTS1DAMAGE"},
        {"chkSL_Strb2", "Searchlights Strb 2", "Scheinwerfer S 2", "SEARCHLIGHTS2DAMAGE"},
        {"chkDir1", "Fire Director 1", "Feuerleitstelle 1", "DIRECTOR1DAMAGE"},
        {"chkDir2", "Fire Director 2", "Feuerleitstelle 2", "DIRECTOR2DAMAGE"},
    };
    ASSERT_EQ(std::size(expected), lightsAndDirectors.size());
    for (std::size_t i = 0; i < lightsAndDirectors.size(); ++i) {
        EXPECT_STREQ(lightsAndDirectors.at(i).box, expected[i].box);
        EXPECT_STREQ(lightsAndDirectors.at(i).caption.english, expected[i].english);
        EXPECT_STREQ(lightsAndDirectors.at(i).caption.german, expected[i].german);
        EXPECT_EQ(lightsAndDirectors.at(i).key, QLatin1StringView(expected[i].key));
    }
}

TEST(PropulsionPower, StandsAsLaidDown)
{
    EXPECT_STREQ(propulsionPower.captionLabel, "Label68");
    EXPECT_STREQ(propulsionPower.caption.english, "Prop Sys Prcnt");
    EXPECT_STREQ(propulsionPower.caption.german, "Antriebsysteme %");
    EXPECT_STREQ(propulsionPower.valueLabel, "lblPropPrcnt");
    EXPECT_STREQ(propulsionPower.up, "cmdPropSysPrcntUp");
    EXPECT_STREQ(propulsionPower.down, "cmdPropSysPrcntDown");
}

TEST(Repair, RadarOf3600SecondsLoadsAs60MinutesAndSavesAs3600)
{
    const RepairState state = loaded("RADAR", "3600");
    EXPECT_EQ(state.time, u"60"_s);
    EXPECT_EQ(savedRepair(state), u"3600"_s);
}

TEST(Repair, SecondsBelowAWholeMinuteAreCut)
{
    const RepairState bridge = loaded("BRIDGE", "90");
    EXPECT_EQ(bridge.time, u"1"_s);
    EXPECT_EQ(savedRepair(bridge), u"60"_s);
    EXPECT_EQ(loaded("BRIDGE", "-90").time, u"-1"_s);
    EXPECT_EQ(loaded("ELEC", "59").time, u"0"_s);
    EXPECT_EQ(loaded("DAM", "INVALID").time, u"0"_s);
    EXPECT_EQ(loaded("MAN", "120").time, u"2"_s);
    EXPECT_EQ(savedRepair(loaded("MAN", "120")), u"120"_s);
}

TEST(Repair, PropulsionOf300LoadsAs300AndSavesAs18000)
{
    const RepairState state = loaded("PROP", "300");
    EXPECT_EQ(state.time, u"300"_s);
    EXPECT_EQ(savedRepair(state), u"18000"_s);
}

TEST(Repair, DestroyedPropulsionShowsItsMinusOneAndStaysDestroyed)
{
    const RepairState state = loaded("PROP", "-1");
    EXPECT_EQ(state.time, u"-1"_s);
    EXPECT_TRUE(state.destroyed);
    EXPECT_EQ(savedRepair(state), u"-1"_s);
}

TEST(Repair, ADestroyedSystemTicksItsBoxWhichSetsItsTimeTo0)
{
    for (const char* word : {"ELEC", "DAM", "BRIDGE", "RADAR"}) {
        RepairState state{.time = u"45"_s};
        loadRepair(state, row(word), u"-1"_s);
        EXPECT_TRUE(state.destroyed) << word;
        EXPECT_EQ(state.time, u"0"_s) << word;
        EXPECT_EQ(savedRepair(state), u"-1"_s) << word;
    }
}

TEST(Repair, DestroyedManeuveringLeavesTheTimeThatWasThereAndIsWrittenBack)
{
    RepairState state{.time = u"45"_s};
    loadRepair(state, row("MAN"), u"-1"_s);
    EXPECT_TRUE(state.destroyed);
    EXPECT_EQ(state.time, u"45"_s);
    EXPECT_EQ(savedRepair(state), u"-1"_s);
}

TEST(Repair, LoadingClearsNoBox)
{
    for (const RepairRow& each : repairRows) {
        RepairState state{.time = u"0"_s, .destroyed = true};
        loadRepair(state, each, u"120"_s);
        EXPECT_TRUE(state.destroyed) << each.button;
        EXPECT_EQ(savedRepair(state), u"-1"_s) << each.button;
    }
}

TEST(Repair, EveryChangeOfABoxSetsTheTimeTo0ButForManeuvering)
{
    for (const RepairRow& each : repairRows) {
        const bool keepsTime = each.word == "MAN"_L1;
        for (const bool ticked : {true, false}) {
            RepairState state{.time = u"17"_s, .destroyed = !ticked};
            setDestroyed(state, each, ticked);
            EXPECT_EQ(state.destroyed, ticked);
            EXPECT_EQ(state.time, keepsTime ? u"17"_s : u"0"_s) << each.button;
        }
        RepairState unchanged{.time = u"17"_s, .destroyed = true};
        setDestroyed(unchanged, each, true);
        EXPECT_EQ(unchanged.time, u"17"_s) << each.button;
    }
}

TEST(RepairTime, StopsAt210And0)
{
    for (const RepairRow& each : repairRows) {
        RepairState state{.time = u"209"_s};
        stepRepairTime(state, each, Step::Up);
        EXPECT_EQ(state.time, u"210"_s);
        stepRepairTime(state, each, Step::Up);
        EXPECT_EQ(state.time, u"210"_s);
        state.time = u"1"_s;
        stepRepairTime(state, each, Step::Down);
        EXPECT_EQ(state.time, u"0"_s);
        stepRepairTime(state, each, Step::Down);
        EXPECT_EQ(state.time, u"0"_s);
    }
}

/// Presses a row's stepper once and expects the time and the box behind it.
void expectStepped(RepairState& state, const char* key, Step step, const char* time, bool destroyed)
{
    stepRepairTime(state, row(key), step);
    EXPECT_EQ(state.time, QLatin1StringView(time));
    EXPECT_EQ(state.destroyed, destroyed);
}

TEST(RepairTime, AtItsLimitLeavesTheBoxTicked)
{
    RepairState state{.time = u"210"_s, .destroyed = true};
    expectStepped(state, "RADAR", Step::Up, "210", true);
}

TEST(RepairTime, TheFirstPressOnATickedRowClearsTheBoxAndTheSecondGives1)
{
    RepairState state{.time = u"0"_s, .destroyed = true};
    expectStepped(state, "BRIDGE", Step::Up, "0", false);
    expectStepped(state, "BRIDGE", Step::Up, "1", false);
}

TEST(RepairTime, OnATickedManeuveringRowCountsAtOnce)
{
    RepairState state{.time = u"5"_s, .destroyed = true};
    expectStepped(state, "MAN", Step::Up, "6", false);
}

TEST(RepairTime, DownLeavesTheBoxAlone)
{
    RepairState state{.time = u"5"_s, .destroyed = true};
    expectStepped(state, "RADAR", Step::Down, "4", true);
}

TEST(RepairTime, OfWordsCountsFrom0)
{
    RepairState state{.time = u"INVALID"_s};
    EXPECT_EQ(savedRepair(state), u"0"_s);
    stepRepairTime(state, row("PROP"), Step::Down);
    EXPECT_EQ(state.time, u"INVALID"_s);
    stepRepairTime(state, row("PROP"), Step::Up);
    EXPECT_EQ(state.time, u"1"_s);
}

TEST(Repair, ATimeBeyondAllNumbersIsAnOverflow)
{
    expectError(RuntimeError::Overflow, [] { loaded("RADAR", "1E999"); });
    expectError(RuntimeError::Overflow, [] { savedRepair({.time = u"1E308"_s}); });
}

} // namespace
} // namespace torvane::testing
