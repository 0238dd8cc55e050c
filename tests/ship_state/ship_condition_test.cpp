#include "ship_state/ship_condition.h"

#include "stored_ship.h"
#include "support/expect_error.h"

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

class Condition : public ::testing::Test
{
protected:
    void load(const Record& record, Language language = Language::English)
    {
        loadRecord(
            condition, u"Exeter"_s,
            [&](QStringView key) { return record.value(key.toString(), QString(invalidValue)); }, limits,
            language);
    }
    Record saved(Language language = Language::English) const
    {
        Record record;
        for (const auto& [key, value] : recordOf(condition, limits, language)) {
            record.insert(key.toString(), value);
        }
        return record;
    }

    ClassLimits limits;
    ShipCondition condition;
};

TEST_F(Condition, IsWrittenIn61KeysInTheirOrder)
{
    QStringList written;
    for (const auto& pair : recordOf(condition, limits, Language::English)) {
        written.append(pair.first.toString());
    }
    EXPECT_EQ(written.size(), 61);
    EXPECT_EQ(written, ownedKeys());
}

TEST_F(Condition, ShowsWhatTheRecordSays)
{
    limits.hull = 200;
    limits.floatation = 3;
    load({{"CLASS", "York"},
          {"NAVY", "RN"},
          {"CURRENTHITPOINTS", "50"},
          {"CURRENTFLOATPOINTS", "2"},
          {"CURRENTFIRECOUNT", "7"},
          {"CREWQUALITY", "Elite"},
          {"CREWFATIGUE", "Tired"},
          {"NIGHTTRAINING", "Expert"},
          {"RADARTYPE", "Superb"},
          {"PROPULSIONSYSTEMPERCENTAGE", "85"},
          {"MANUEVERSYSTEMDIRECTION", "Strb"}});
    EXPECT_EQ(condition.shortName, u"Exeter"_s);
    EXPECT_EQ(condition.shipClass, u"York"_s);
    EXPECT_EQ(condition.navy, u"RN"_s);
    EXPECT_EQ(condition.hull, u"25 %"_s);
    EXPECT_EQ(condition.floatation, u"66.6666666666667 %"_s);
    EXPECT_EQ(condition.fire, u"7"_s);
    EXPECT_THAT(condition.crew, ::testing::ElementsAre(u"Elite"_s, u"Tired"_s, u"Expert"_s, u"Superb"_s));
    EXPECT_EQ(condition.propulsion, u"85"_s);
    EXPECT_EQ(condition.rudder, u"Strb"_s);
}

TEST_F(Condition, ShowsRoundsInPercentAndGunsInNumber)
{
    limits.rounds = {10, 20, 40, 50, 80, 100, 200, 400, 500};
    load({{"MAGAHE", "1"},
          {"MAGAAP", "1"},
          {"MAGACOM", "1"},
          {"MAGBHE", "1"},
          {"MAGBAP", "1"},
          {"MAGBCOM", "1"},
          {"SECONDARYMAGHE", "1"},
          {"SECONDARYMAGAP", "1"},
          {"SECONDARYMAGCOM", "1"},
          {"SECONDARYGUNSFORECNT", "1"},
          {"SECONDARYGUNSAFTCNT", "2"},
          {"SECONDARYGUNSPORTCNT", "3"},
          {"SECONDARYGUNSSTBCNT", "4"}});
    EXPECT_THAT(condition.rounds,
                ::testing::ElementsAre(u"10 %"_s, u"5 %"_s, u"2.5 %"_s, u"2 %"_s, u"1.25 %"_s, u"1 %"_s,
                                       u"0.5 %"_s, u"0.25 %"_s, u"0.2 %"_s));
    EXPECT_THAT(condition.secondaryGunCounts, ::testing::ElementsAre(u"1"_s, u"2"_s, u"3"_s, u"4"_s));
}

TEST_F(Condition, EveryDamageKeyTicksItsOwnBoxAndNoOther)
{
    for (const QString& key : ownedKeys()) {
        if (!key.endsWith(u"DAMAGE"_s)) {
            continue;
        }
        condition = ShipCondition();
        load({{key, "-1"}});
        const Record record = saved();
        for (const QString& other : ownedKeys()) {
            if (other.endsWith(u"DAMAGE"_s)) {
                EXPECT_EQ(record.value(other), other == key ? u"-1"_s : u"0"_s) << other.toStdString();
            }
        }
    }
}

TEST_F(Condition, OfTurretsMagazinesAndMountsIsWholeForAnythingButMinusOne)
{
    condition.turretsDestroyed.fill(true);
    condition.magazinesDestroyed.fill(true);
    condition.mountsDestroyed.fill(true);
    load({{"MGTADAMAGE", "7"}, {"MAGADAMAGE", "yes"}});
    EXPECT_THAT(condition.turretsDestroyed, ::testing::Each(false));
    EXPECT_THAT(condition.magazinesDestroyed, ::testing::Each(false));
    EXPECT_THAT(condition.mountsDestroyed, ::testing::Each(false));
}

TEST_F(Condition, OfASearchlightIsLeftByANumberThatIsNoFlag)
{
    condition.lightsAndDirectorsDestroyed.fill(true);
    load({{"SEARCHLIGHTP1DAMAGE", "7"}, {"SEARCHLIGHTP2DAMAGE", "0"}, {"DIRECTOR1DAMAGE", "-1"}});
    EXPECT_THAT(condition.lightsAndDirectorsDestroyed,
                ::testing::ElementsAre(true, false, false, false, true, false));
}

TEST_F(Condition, SavesAmountsAsSharesOfTheClass)
{
    limits.hull = 2000;
    limits.floatation = 75;
    limits.rounds.fill(120);
    condition.hull = u"33 %"_s;
    condition.floatation = u"50 %"_s;
    condition.rounds.fill(u"75 %"_s);
    condition.fire = u"4"_s;
    condition.propulsion = u"60 %"_s;
    const Record record = saved();
    EXPECT_EQ(record.value("CURRENTHITPOINTS"), u"660"_s);
    EXPECT_EQ(record.value("CURRENTFLOATPOINTS"), u"37.5"_s);
    EXPECT_EQ(record.value("CURRENTFIRECOUNT"), u"4"_s);
    EXPECT_EQ(record.value("PROPULSIONSYSTEMPERCENTAGE"), u"60"_s);
    for (const char* key : {"MAGAHE", "MAGAAP", "MAGACOM", "MAGBHE", "MAGBAP", "MAGBCOM", "SECONDARYMAGHE",
                            "SECONDARYMAGAP", "SECONDARYMAGCOM"}) {
        EXPECT_EQ(record.value(key), u"90"_s) << key;
    }
}

TEST_F(Condition, OfAClassOfAllZerosShows0PercentAndSaves0)
{
    load({{"CURRENTHITPOINTS", "410"}, {"CURRENTFLOATPOINTS", "1"}, {"MAGAHE", "77"}});
    EXPECT_EQ(condition.hull, u"0 %"_s);
    EXPECT_THAT(condition.rounds, ::testing::Each(u"0 %"_s));
    condition.hull = u"80 %"_s;
    EXPECT_EQ(saved().value("CURRENTHITPOINTS"), u"0"_s);
    EXPECT_EQ(saved().value("MAGAHE"), u"0"_s);
}

TEST_F(Condition, InGermanTranslatesTheListsAndStoresTheRudderInGerman)
{
    load({{"CREWQUALITY", "Green"},
          {"CREWFATIGUE", "Fresh"},
          {"NIGHTTRAINING", "Poor"},
          {"RADARTYPE", "Superb"},
          {"MANUEVERSYSTEMDIRECTION", "Center"}},
         Language::German);
    EXPECT_THAT(condition.crew,
                ::testing::ElementsAre(u"Anfänger"_s, u"Frisch"_s, u"Schlecht"_s, u"GroBartig"_s));
    const Record record = saved(Language::German);
    EXPECT_EQ(record.value("CREWQUALITY"), u"Green"_s);
    EXPECT_EQ(record.value("CREWFATIGUE"), u"Fresh"_s);
    EXPECT_EQ(record.value("NIGHTTRAINING"), u"Poor"_s);
    EXPECT_EQ(record.value("RADARTYPE"), u"Superb"_s);
    EXPECT_EQ(record.value("MANUEVERSYSTEMDIRECTION"), u"Mitte"_s);
}

TEST_F(Condition, OfAnEmptyRecordShowsTheWordsAndSavesZeros)
{
    limits.hull = 100;
    load({});
    EXPECT_EQ(condition.shipClass, u"INVALID"_s);
    EXPECT_EQ(condition.hull, u"0 %"_s);
    EXPECT_EQ(condition.fire, u"INVALID"_s);
    EXPECT_EQ(condition.crew[0], u"INVALID"_s);
    const Record record = saved();
    EXPECT_EQ(record.value("CURRENTFIRECOUNT"), u"0"_s);
    EXPECT_EQ(record.value("PROPULSIONSYSTEMDAMAGE"), u"0"_s);
    EXPECT_EQ(record.value("PROPULSIONSYSTEMPERCENTAGE"), u"0"_s);
    EXPECT_EQ(record.value("CREWQUALITY"), u"INVALID"_s);
    EXPECT_EQ(record.value("SECONDARYGUNSFORECNT"), u"INVALID"_s);
}

TEST_F(Condition, ClearedOfItsSystemChecksKeepsTheTimesThatWereNotDestroyed)
{
    for (RepairState& state : condition.repairs) {
        state = {.time = u"9"_s, .destroyed = true};
    }
    condition.repairs[5].destroyed = false;
    clearSystemChecks(condition);
    QStringList times;
    for (const RepairState& state : condition.repairs) {
        EXPECT_FALSE(state.destroyed);
        times.append(state.time);
    }
    EXPECT_EQ(times, QStringList({"0", "9", "0", "0", "0", "9"}));
}

TEST_F(Condition, BeyondAllNumbersIsAnOverflow)
{
    limits.hull = 1;
    expectError(RuntimeError::Overflow, [this] { load({{"CURRENTHITPOINTS", "1E400"}}); });
    condition.fire = u"1E400"_s;
    expectError(RuntimeError::Overflow, [this] { saved(); });
}

} // namespace
} // namespace torvane::testing
