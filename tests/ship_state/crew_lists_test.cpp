#include "ship_state/crew_lists.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

struct Expected
{
    const char* list;
    const char* key;
    const char* label;
    const char* english;
    const char* german;
    QStringList stored;
    QStringList germanEntries;
    QStringList loadedInGerman;
};

const QList<Expected>& expectedLists()
{
    static const QList<Expected> lists{
        {"CmbCrewQ",
         "CREWQUALITY",
         "Label65",
         "Crew Quality",
         "Besatzungsqualität",
         {"Green", "Average", "Veteran", "Elite"},
         {"Unerfahren", "Durchschnittlich", "Erfahren", "Elite"},
         {"Anfänger", "Durchschnittlich", "Veteran", "Elite"}},
        {"CmbCrewFati",
         "CREWFATIGUE",
         "Label66",
         "Crew Fatigue",
         "Erschöpfung",
         {"Fatigued", "Tired", "Normal", "Fresh"},
         {"Erschöpft", "Müde", "Normal", "Frisch"},
         {"Erschöpft", "Müde", "Normal", "Frisch"}},
        {"CmbNightTrain",
         "NIGHTTRAINING",
         "Label38",
         "Night Training",
         "Nachtgefecht",
         {"Poor", "Average", "Good", "Expert"},
         {"Schlecht", "Durchschnittlich", "Gut", "Experte"},
         {"Schlecht", "Durchschnittlich", "Gut", "Experte"}},
        {"Combo1",
         "RADARTYPE",
         "Label67",
         "Radar Quality",
         "Radarqualität",
         {"None", "Poor", "Average", "Good", "Excellent", "Superb"},
         {"Keine", "Schlecht", "Durchschnittlich", "Gut", "Ausgezeichnet", "GroBartig"},
         {"Keine", "Schlecht", "Durchschnittlich", "Gut", "Ausgezeichnet", "GroBartig"}},
    };
    return lists;
}

const ListRow& listRow(const char* name)
{
    for (const ListRow& row : crewLists) {
        if (QLatin1StringView(row.list) == QLatin1StringView(name)) {
            return row;
        }
    }
    throw std::runtime_error(name);
}

TEST(CrewLists, StandAsLaidDown)
{
    ASSERT_EQ(expectedLists().size(), static_cast<qsizetype>(crewLists.size()));
    for (std::size_t i = 0; i < crewLists.size(); ++i) {
        const ListRow& row = crewLists.at(i);
        const Expected& expected = expectedLists().at(static_cast<qsizetype>(i));
        EXPECT_STREQ(row.list, expected.list);
        EXPECT_EQ(row.key, QLatin1StringView(expected.key));
        EXPECT_STREQ(row.captionLabel, expected.label);
        EXPECT_STREQ(row.caption.english, expected.english);
        EXPECT_STREQ(row.caption.german, expected.german);
        EXPECT_EQ(entriesOf(row, Language::English), expected.stored);
        EXPECT_EQ(entriesOf(row, Language::German), expected.germanEntries);
    }
}

TEST(CrewLists, InGermanShowAndStoreByTheirWords)
{
    for (const Expected& expected : expectedLists()) {
        const ListRow& row = listRow(expected.list);
        for (qsizetype i = 0; i < expected.stored.size(); ++i) {
            EXPECT_EQ(shownWord(row, expected.stored[i], Language::German), expected.loadedInGerman[i]);
            EXPECT_EQ(storedWord(row, expected.loadedInGerman[i], Language::German), expected.stored[i]);
        }
    }
}

TEST(CrewLists, InEnglishShowAndStoreWhatStandsThere)
{
    for (const Expected& expected : expectedLists()) {
        const ListRow& row = listRow(expected.list);
        for (const QString& word : expected.stored + expected.germanEntries + QStringList{"INVALID", "7"}) {
            EXPECT_EQ(shownWord(row, word, Language::English), word);
            EXPECT_EQ(storedWord(row, ' ' + word + ' ', Language::English), word);
        }
    }
}

TEST(CrewLists, TheGermanEntryErfahrenIsStoredAsErfahrenAndUnerfahrenAsItself)
{
    EXPECT_EQ(storedWord(listRow("CmbCrewQ"), u"Erfahren"_s, Language::German), u"Erfahren"_s);
    EXPECT_EQ(storedWord(listRow("CmbCrewQ"), u"Unerfahren"_s, Language::German), u"Unerfahren"_s);
}

TEST(CrewLists, AWordThatNoListKnowsStaysInGermanToo)
{
    for (const ListRow& row : crewLists) {
        for (const char* word : {"INVALID", "Historical", "42", ""}) {
            EXPECT_EQ(shownWord(row, QString::fromLatin1(word), Language::German), QLatin1StringView(word));
            EXPECT_EQ(storedWord(row, QString::fromLatin1(word), Language::German), QLatin1StringView(word));
        }
    }
}

TEST(RudderList, HoldsItsEntriesAndShowsTheStoredPositionInGermanWords)
{
    EXPECT_STREQ(rudderList.list, "cmbManeuver");
    EXPECT_EQ(rudderList.key, "MANUEVERSYSTEMDIRECTION"_L1);
    EXPECT_STREQ(rudderList.captionLabel, "Label70");
    EXPECT_STREQ(rudderList.caption.english, "Maneuver Dir");
    EXPECT_STREQ(rudderList.caption.german, "Manöverrichtung");
    EXPECT_EQ(entriesOf(rudderList, Language::English), QStringList({"Port", "Center", "Strb"}));
    EXPECT_EQ(entriesOf(rudderList, Language::German), QStringList({"Backbord", "Mitte", "Steuerbord"}));
    EXPECT_EQ(shownWord(rudderList, u"Center"_s, Language::German), u"Mitte"_s);
    EXPECT_EQ(shownWord(rudderList, u"Steuerbord"_s, Language::German), u"Steuerbord"_s);
    EXPECT_EQ(shownWord(rudderList, u"Mitte"_s, Language::English), u"Mitte"_s);
}

} // namespace
} // namespace torvane::testing
