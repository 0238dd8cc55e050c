#include "overview/missions.h"

#include "support/printers.h"

#include <gtest/gtest.h>

namespace torvane {
namespace {

struct MissionCells
{
    const char* english;
    const char* german;
    const char* battleType;
    const char* roles[2][2];      // first, second; English, German
    const char* objectives[2][2]; // likewise
    bool targetArea;
};

const MissionCells cells[] = {
    {"Meeting Engagement",
     "Begegnungsgefecht",
     "0",
     {{"BATTLELINE", "Schlachtreihe"}, {"BATTLELINE", "Schlachtreihe"}},
     {{"Inflict more damage on the enemy than you receive.",
       "Dem Gegner möglichst großen Schaden zufügen, eigene Verluste vermeiden."},
      {"Inflict more damage on the enemy than you receive.",
       "Dem Gegner möglichst großen Schaden zufügen, eigene Verluste vermeiden."}},
     false},
    {"Intercept",
     "Abfangen",
     "3",
     {{"INTERCEPTING FORCE", "Abfangende Streitkraft"}, {"EVADING FORCE", "Ausweichende Streitkraft"}},
     {{"Prevent the enemy from disengaging while maximizing enemy losses and minimizing friendly losses.",
       "Verhindern, daß der Gegner sich löst und dabei so viele Gegner wie möglich bei minimalen eigenen "
       "Verlusten zerstören."},
      {"Disengage from the battle while minimizing friendly losses and maximizing enemy losses.",
       "Von der Schlacht sich loslösen und dabei so viele Gegner wie möglich bei minimalen eigenen Verlusten "
       "zerstören."}},
     false},
    {"Bombardment",
     "Bombardieren",
     "1",
     {{"BOMBARDING FORCE", "Bombardierende Streitkraft"}, {"DEFENDING FORCE", "Verteidigende Streitkraft"}},
     {{"Successfully bombard your target while minimizing friendly losses and maximizing enemy losses.",
       "Eigene Streitkraft in eine Position bringen aus der sich das Ziel erfolgreich bombardieren läßt und "
       "dabei so viele Gegner wie möglich bei minimalen eigenen Verlusten zerstören."},
      {"Prevent the enemy from completing his bombardment while maximizing enemy losses and minimizing "
       "friendly losses.",
       "Verhindern, daß der Gegner die Bombardierung erfolgreich abschließend und dabei so viele Gegner wie "
       "möglich bei minimalen eigenen Verlusten zerstören."}},
     true},
    {"Convoy",
     "Konvoi",
     "2",
     {{"ESCORTING FORCE", "Geleitflotte"}, {"ATTACKING FORCE", "Angriffsflotte"}},
     {{"Protect the transports and attempt to disengage while minimizing friendly losses and maximizing "
       "enemy losses.",
       "Transporte schützen und sich vom Feind loslösen und dabei so viele Gegner wie möglich bei minimalen "
       "eigenen Verlusten zerstören."},
      {"Prevent the transports from disengaging while maximizing enemy losses and minimizing friendly "
       "losses.",
       "Verhindern, daß sich Transporte loslösen und dabei so viele Gegner wie möglich bei minimalen eigenen "
       "Verlusten zerstören."}},
     false},
    {"Tactical Transport",
     "Taktischer Transport",
     "4",
     {{"TRANSPORTING FORCE", "Transportflotte"}, {"PATROLLING FORCE", "Patroullieflotte"}},
     {{"Move your force into a position to unload its supplies while minimizing friendly losses and "
       "maximizing enemy losses.",
       "Bringen Sie Ihre Streitkraft in eine geeignete Position, zur Löschung der Ladung und zerstören Sie "
       "dabei so viele Gegner wie möglich, bei minimalen eigenen Verlusten."},
      {"Prevent the enemy from unloading its supplies while maximizing enemy losses and minimizing friendly "
       "losses.",
       "Verhindern Sie, daß der Gegner seine Ladung löscht, und zerstören Sie dabei so viele Gegner wie "
       "möglich bei minimalen eigenen Verlusten."}},
     true},
};

constexpr Language languages[] = {Language::English, Language::German};

QString cell(const char* const (&pair)[2], Language language)
{
    return QString::fromUtf8(pair[language == Language::German ? 1 : 0]);
}

TEST(Missions, TheTableHoldsEveryMissionInListOrder)
{
    ASSERT_EQ(missions.size(), std::size(cells));
    for (std::size_t i = 0; i < missions.size(); ++i) {
        EXPECT_EQ(missions[i].caption.in(Language::English), QString::fromUtf8(cells[i].english));
        EXPECT_EQ(missions[i].caption.in(Language::German), QString::fromUtf8(cells[i].german));
        EXPECT_STREQ(missions[i].battleType, cells[i].battleType);
        EXPECT_EQ(missions[i].needsTargetArea, cells[i].targetArea) << cells[i].english;
    }
}

TEST(Missions, RolesAndObjectivesAreTheTablesInBothLanguages)
{
    for (std::size_t i = 0; i < missions.size(); ++i) {
        for (const Language language : languages) {
            const MissionBrief brief = missionBrief(missions[i], language, false);
            EXPECT_EQ(brief.firstRole, cell(cells[i].roles[0], language));
            EXPECT_EQ(brief.secondRole, cell(cells[i].roles[1], language));
            EXPECT_EQ(brief.objectiveA, cell(cells[i].objectives[0], language));
            EXPECT_EQ(brief.objectiveB, cell(cells[i].objectives[1], language));
        }
    }
}

TEST(Missions, ASwapExchangesTheObjectivesButNotTheRoleLabels)
{
    for (std::size_t i = 0; i < missions.size(); ++i) {
        for (const Language language : languages) {
            const MissionBrief brief = missionBrief(missions[i], language, true);
            EXPECT_EQ(brief.firstRole, cell(cells[i].roles[0], language));
            EXPECT_EQ(brief.secondRole, cell(cells[i].roles[1], language));
            EXPECT_EQ(brief.objectiveA, cell(cells[i].objectives[1], language));
            EXPECT_EQ(brief.objectiveB, cell(cells[i].objectives[0], language));
        }
    }
}

TEST(Missions, ACaptionIsFoundInItsOwnLanguageOnly)
{
    for (std::size_t i = 0; i < missions.size(); ++i) {
        const QString english = QString::fromUtf8(cells[i].english);
        const QString german = QString::fromUtf8(cells[i].german);
        EXPECT_EQ(missionOfCaption(english, Language::English), &missions[i]);
        EXPECT_EQ(missionOfCaption(german, Language::German), &missions[i]);
        EXPECT_EQ(missionOfCaption(english, Language::German), nullptr);
        EXPECT_EQ(missionOfCaption(german, Language::English), nullptr);
    }
}

TEST(Missions, BlanksRoundACaptionDoNotMatter)
{
    EXPECT_EQ(missionOfCaption(u"  Convoy ", Language::English), &missions[3]);
    EXPECT_EQ(missionOfCaption(u"Con voy", Language::English), nullptr);
    EXPECT_EQ(missionOfCaption(u"", Language::English), nullptr);
}

TEST(Missions, ABattleTypeIsFoundByItsCode)
{
    EXPECT_EQ(missionOfBattleType(u"0"), &missions[0]);
    EXPECT_EQ(missionOfBattleType(u"1"), &missions[2]);
    EXPECT_EQ(missionOfBattleType(u"2"), &missions[3]);
    EXPECT_EQ(missionOfBattleType(u"3"), &missions[1]);
    EXPECT_EQ(missionOfBattleType(u"4"), &missions[4]);
}

TEST(Missions, ATextThatIsNoCodeIsNoMission)
{
    for (const char16_t* text : {u"", u"5", u"-1", u"00", u"1.0", u"INVALID", u"Convoy"}) {
        EXPECT_EQ(missionOfBattleType(text), nullptr) << QString::fromUtf16(text).toStdString();
    }
}

TEST(Missions, OnlyBombardmentAndTacticalTransportOfferATargetArea)
{
    const auto offers = [](const char16_t* caption) {
        return missionOfCaption(caption, Language::English)->needsTargetArea;
    };
    EXPECT_TRUE(offers(u"Bombardment"));
    EXPECT_TRUE(offers(u"Tactical Transport"));
    EXPECT_FALSE(offers(u"Convoy"));
    EXPECT_FALSE(offers(u"Intercept"));
    EXPECT_FALSE(offers(u"Meeting Engagement"));
}

} // namespace
} // namespace torvane
