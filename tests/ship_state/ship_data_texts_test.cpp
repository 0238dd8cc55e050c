#include "ship_state/ship_data_texts.h"

#include "support/printers.h"

#include <gmock/gmock.h>

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

TEST(ShipDataCaptions, StandAsLaidDown)
{
    const struct
    {
        const char* control;
        const char* english;
        const char* german;
    } expected[] = {
        {"ShipDataFrm", "Torvane - Individual Ship Data", "Torvane - Individuelle Schiffsdaten"},
        {"cmdSave", "&Save", "&Speichern"},
        {"CmdCancel", "&Cancel", "&Abbrechen"},
        {"Label32", "Short Name", "Kurzname"},
        {"Label33", "Ship Class", "Klasse"},
        {"Label34", "Ship Navy", "Marine"},
        {"Label3", "Repair Time (mins):", "Zeit zu reparieren(min.)"},
        {"Command1", "OK", "OK"},
        {"Frame2", "Turret Destroyed", "Geschützturm zerstört"},
        {"Frame10", "Searchlights Destroyed", "Scheinwerfer zerstört"},
        {"Frame11", "Fire Directors Destroyed", "Feuerleitstelle zerstört"},
    };
    ASSERT_EQ(std::size(expected), shipDataCaptions.size());
    for (std::size_t i = 0; i < shipDataCaptions.size(); ++i) {
        EXPECT_EQ(shipDataCaptions.at(i).control, QLatin1StringView(expected[i].control));
        EXPECT_STREQ(shipDataCaptions.at(i).caption.english, expected[i].english);
        EXPECT_STREQ(shipDataCaptions.at(i).caption.german, expected[i].german);
    }
}

TEST(ShipDataTabs, StandAsLaidDown)
{
    const struct
    {
        const char* english;
        const char* german;
        const char* frame;
        const char* title;
        const char* germanTitle;
    } expected[] = {
        {"General Ship Data", "allgemeine Informationen", "fraGeneral", "General Ship Information",
         "allgemeine Informationen über Schiffe"},
        {"Ship Systems", "Schiffssysteme", "fraSystems", "Ship Systems", "Schiffssysteme"},
        {"Main Guns", "Hauptgeschütze", "fraMainGun", "Main Guns System", "Hauptgeschütze"},
        {"Secondary Guns", "Sekundärgeschütze", "fraSecondary", "Secondary Guns System", "Sekundärgeschütze"},
        {"Torpedos", "Torpedosatz", "fraTorps", "Torpedo System", "Torpedosatz"},
    };
    ASSERT_EQ(std::size(expected), shipDataTabs.size());
    for (std::size_t i = 0; i < shipDataTabs.size(); ++i) {
        EXPECT_STREQ(shipDataTabs.at(i).caption.english, expected[i].english);
        EXPECT_STREQ(shipDataTabs.at(i).caption.german, expected[i].german);
        EXPECT_EQ(shipDataTabs.at(i).frame, QLatin1StringView(expected[i].frame));
        EXPECT_STREQ(shipDataTabs.at(i).title.english, expected[i].title);
        EXPECT_STREQ(shipDataTabs.at(i).title.german, expected[i].germanTitle);
    }
}

TEST(RepairSummary, SaysWhatARowComesTo)
{
    EXPECT_EQ(repairSummary({}, Language::English), u"intact"_s);
    EXPECT_EQ(repairSummary({.time = u"INVALID"_s}, Language::German), u"unbeschädigt"_s);
    EXPECT_EQ(repairSummary({.time = u"60"_s}, Language::English), u"60 min"_s);
    EXPECT_EQ(repairSummary({.time = u"60"_s}, Language::German), u"60 Min."_s);
    EXPECT_EQ(repairSummary({.time = u"60"_s, .destroyed = true}, Language::English), u"destroyed"_s);
    EXPECT_EQ(repairSummary({.destroyed = true}, Language::German), u"zerstört"_s);
}

} // namespace
} // namespace torvane::testing
