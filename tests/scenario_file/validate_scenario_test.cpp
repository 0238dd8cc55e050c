#include "scenario_file/validate_scenario.h"

#include "platform/runtime_error.h"
#include "scenario_file/stored_profile.h"

namespace torvane {

void PrintTo(const Finding& finding, std::ostream* stream)
{
    *stream << "rule " << static_cast<int>(finding.rule) << ": "
            << saveText(finding.message, Language::English).toStdString();
}

namespace testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr Finding badTitle{ValidationRule::Title, SaveText::FileName};
constexpr Finding noBombardmentArea{ValidationRule::Mission, SaveText::Bombardment};
constexpr Finding noConvoy{ValidationRule::Mission, SaveText::Convoy};
constexpr Finding noTransportArea{ValidationRule::Mission, SaveText::TransportTarget};
constexpr Finding noDestroyer{ValidationRule::Mission, SaveText::TransportShips};
constexpr Finding oneSideOnly{ValidationRule::Divisions, SaveText::BothSides};

/// A scenario that passes: one division a side, each with a destroyer.
class Validation : public StoredProfile
{
protected:
    Validation()
    {
        set("SCENARIODATA", "TITLE", "Convoy PQ 17");
        set("SCENARIODATA", "BATTLETYPE", "0");
        set("SCENARIODATA", "BLUE_FORCE_TYPE", "0");
        set("SCENARIOINFO", "DIVISIONCNT", "2");
        set("DIVISION0", "SIDE", "Blue");
        set("DIVISION0", "FORMATION", "Column");
        set("DIVISION0SHIP0", "NAME", "Cossack");
        set("DIVISION0SHIP0", "TYPE", "DD");
        set("DIVISION1", "SIDE", "Red");
        set("DIVISION1", "FORMATION", "Column");
        set("DIVISION1SHIP0", "TYPE", "DD");
    }
    void mission(const char* code) { set("SCENARIODATA", "BATTLETYPE", code); }
    void title(const char* text) { set("SCENARIODATA", "TITLE", text); }
    void onlyBlue() { set("DIVISION1", "SIDE", "Blue"); }
    std::vector<Finding> findings(TargetArea target = {}) const { return validateScenario(profile, target); }

private:
    const ProfileStore::Batch m_batch{profiles}; // nothing needs the disk
};

TEST_F(Validation, PassesAScenarioThatKeepsToTheRules)
{
    EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(Validation, RefusesATitleThatBeginsWithOneOfNineCharacters)
{
    for (const char* text : {"\\x", "/x", ":x", "?x", "*x", "\"x", ">x", "<x", "|x", "?", "?/?"}) {
        title(text);
        EXPECT_THAT(findings(), ElementsAre(badTitle)) << text;
    }
}

TEST_F(Validation, LooksAtTheFirstCharacterOfTheTitleAlone)
{
    for (const char* text : {"A/B", "A:B", "What?", "x\\/:?*\"><|", ".hidden", "#1", "'x"}) {
        title(text);
        EXPECT_THAT(findings(), IsEmpty()) << text;
    }
}

TEST_F(Validation, ReadsAQuotedTitleWithoutItsQuotes)
{
    title("\"Quoted\"");
    EXPECT_THAT(findings(), IsEmpty());
    title("\"?\"");
    EXPECT_THAT(findings(), ElementsAre(badTitle));
    title("\"  \"");
    EXPECT_THAT(findings(), IsEmpty()) << "no first character";
}

TEST_F(Validation, TakesAMissingTitle)
{
    title("");
    EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(Validation, HasNoRuleForMeetingEngagementInterceptAndUnknownMissions)
{
    for (const char* code : {"0", "3", "5", "", "01", "Bombardment"}) {
        mission(code);
        EXPECT_THAT(findings(), IsEmpty()) << code;
        onlyBlue();
        EXPECT_THAT(findings(), ElementsAre(oneSideOnly)) << code;
        set("DIVISION1", "SIDE", "Red");
    }
}

TEST_F(Validation, WantsATargetAreaForABombardment)
{
    mission("1");
    EXPECT_THAT(findings(), ElementsAre(noBombardmentArea));
    EXPECT_THAT(findings({.x = -1, .z = 0}), IsEmpty());
}

TEST_F(Validation, TakesATargetAreaAtXZeroForNone)
{
    mission("1");
    EXPECT_THAT(findings({.x = 0, .z = 5000}), ElementsAre(noBombardmentArea));
    mission("4");
    EXPECT_THAT(findings({.x = 0, .z = 5000}), ElementsAre(noTransportArea));
}

TEST_F(Validation, GoesOnBehindAMissingTargetArea)
{
    mission("1");
    onlyBlue();
    EXPECT_THAT(findings(), ElementsAre(noBombardmentArea, oneSideOnly));
}

TEST_F(Validation, WantsAConvoyFormationOnTheEscortingSide)
{
    mission("2");
    EXPECT_THAT(findings(), ElementsAre(noConvoy));
    set("DIVISION1", "FORMATION", "Convoy");
    EXPECT_THAT(findings(), ElementsAre(noConvoy)) << "the other side's";
    set("DIVISION0", "FORMATION", "Convoy");
    EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(Validation, LooksForTheConvoyOnRedWhereBlueIsNotTheEscort)
{
    mission("2");
    for (const char* type : {"1", "", "00"}) {
        set("SCENARIODATA", "BLUE_FORCE_TYPE", type);
        set("DIVISION1", "FORMATION", "Convoy");
        EXPECT_THAT(findings(), IsEmpty()) << type;
        set("DIVISION1", "FORMATION", "Column");
        EXPECT_THAT(findings(), ElementsAre(noConvoy)) << type;
    }
}

TEST_F(Validation, ReadsTheFormationTrimmedAndInAnyCase)
{
    mission("2");
    for (const char* formation : {"CONVOY", "convoy", "  Convoy  ", "\" Convoy \""}) {
        set("DIVISION0", "FORMATION", formation);
        EXPECT_THAT(findings(), IsEmpty()) << formation;
    }
    set("DIVISION0", "FORMATION", "Convoys");
    EXPECT_THAT(findings(), ElementsAre(noConvoy));
}

TEST_F(Validation, LooksForTheConvoyInTwelveDivisions)
{
    mission("2");
    set("DIVISION12", "SIDE", "Blue");
    set("DIVISION12", "FORMATION", "Convoy");
    EXPECT_THAT(findings(), ElementsAre(noConvoy));
    set("DIVISION11", "SIDE", "Blue");
    set("DIVISION11", "FORMATION", "Convoy");
    EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(Validation, OfAQualifyingConvoySkipsTheRuleOfBothSides)
{
    mission("2");
    set("DIVISION0", "FORMATION", "Convoy");
    set("SCENARIOINFO", "DIVISIONCNT", "1");
    onlyBlue();
    EXPECT_THAT(findings(), IsEmpty());
}

TEST_F(Validation, OfAQualifyingConvoyStillRefusesABadTitle)
{
    mission("2");
    set("DIVISION0", "FORMATION", "Convoy");
    title("?");
    EXPECT_THAT(findings(), ElementsAre(badTitle));
}

TEST_F(Validation, OfAConvoyWithoutAConvoyGoesOnToBothSides)
{
    mission("2");
    onlyBlue();
    EXPECT_THAT(findings(), ElementsAre(noConvoy, oneSideOnly));
}

TEST_F(Validation, WantsATargetAreaForATacticalTransport)
{
    mission("4");
    EXPECT_THAT(findings(), ElementsAre(noTransportArea));
    EXPECT_THAT(findings({.x = 1}), IsEmpty());
}

TEST_F(Validation, LetsOnlyDestroyersTransport)
{
    mission("4");
    for (const char* type : {"TR", "BB", "dd", "DDE"}) {
        set("DIVISION0SHIP0", "TYPE", type);
        EXPECT_THAT(findings({.x = 1}), ElementsAre(noDestroyer)) << type;
    }
    set("DIVISION0SHIP0", "TYPE", "");
    EXPECT_THAT(findings({.x = 1}), IsEmpty()) << "no ship here";
    set("DIVISION1SHIP0", "TYPE", "BB");
    EXPECT_THAT(findings({.x = 1}), IsEmpty()) << "the other side's";
}

TEST_F(Validation, LooksForTheTransportsOnRedWhereBlueDoesNotTransport)
{
    mission("4");
    set("SCENARIODATA", "BLUE_FORCE_TYPE", "1");
    set("DIVISION0SHIP0", "TYPE", "BB");
    EXPECT_THAT(findings({.x = 1}), IsEmpty());
    set("DIVISION1SHIP0", "TYPE", "BB");
    EXPECT_THAT(findings({.x = 1}), ElementsAre(noDestroyer));
}

TEST_F(Validation, EndsAtTheFirstTransportThatIsNoDestroyer)
{
    mission("4");
    onlyBlue();
    set("DIVISION0SHIP0", "TYPE", "TR");
    set("DIVISION0SHIP1", "TYPE", "TR");
    set("DIVISION1SHIP0", "TYPE", "TR");
    EXPECT_THAT(findings({.x = 1}), ElementsAre(noDestroyer));
    EXPECT_THAT(findings(), ElementsAre(noTransportArea, noDestroyer));
}

TEST_F(Validation, OfATransportByDestroyersGoesOnToBothSides)
{
    mission("4");
    onlyBlue();
    EXPECT_THAT(findings(), ElementsAre(noTransportArea, oneSideOnly));
}

TEST_F(Validation, LooksAtFourteenShipsOfTwelveDivisions)
{
    mission("4");
    set("DIVISION12", "SIDE", "Blue");
    set("DIVISION12SHIP0", "TYPE", "TR");
    set("DIVISION11", "SIDE", "Blue");
    set("DIVISION11SHIP14", "TYPE", "TR");
    EXPECT_THAT(findings({.x = 1}), IsEmpty());
    set("DIVISION11SHIP13", "TYPE", "TR");
    EXPECT_THAT(findings({.x = 1}), ElementsAre(noDestroyer));
}

TEST_F(Validation, CountsTheTypeOfAnEmptiedShipPlace)
{
    mission("4");
    set("DIVISION0SHIP3", "NAME", "NO SHIP");
    set("DIVISION0SHIP3", "TYPE", "CA");
    EXPECT_THAT(findings({.x = 1}), ElementsAre(noDestroyer));
}

TEST_F(Validation, WantsTwoDivisions)
{
    for (const char* count : {"", "0", "1", "-3", "none"}) {
        set("SCENARIOINFO", "DIVISIONCNT", count);
        EXPECT_THAT(findings(), ElementsAre(oneSideOnly)) << count;
    }
}

TEST_F(Validation, WantsBothSides)
{
    onlyBlue();
    EXPECT_THAT(findings(), ElementsAre(oneSideOnly));
    set("DIVISION0", "SIDE", "Red");
    set("DIVISION1", "SIDE", "Red");
    EXPECT_THAT(findings(), ElementsAre(oneSideOnly));
    set("DIVISION0", "SIDE", "blue");
    EXPECT_THAT(findings(), ElementsAre(oneSideOnly)) << "case counts here";
}

TEST_F(Validation, LooksForBothSidesUpToTheSectionBehindTheCount)
{
    set("DIVISION1", "SIDE", "");
    set("DIVISION2", "SIDE", "Red");
    EXPECT_THAT(findings(), IsEmpty());
    set("DIVISION2", "SIDE", "");
    set("DIVISION3", "SIDE", "Red");
    EXPECT_THAT(findings(), ElementsAre(oneSideOnly));
}

TEST_F(Validation, TellsOfAllThatIsWrongInOrder)
{
    title("*");
    mission("1");
    onlyBlue();
    EXPECT_THAT(findings(), ElementsAre(badTitle, noBombardmentArea, oneSideOnly));
}

using EmptyProfile = StoredProfile;

TEST_F(EmptyProfile, HasNoDivisions)
{
    EXPECT_THAT(validateScenario(profile, {}), ElementsAre(oneSideOnly));
}

TEST_F(Validation, RefusesACountBeyondSixteenBits)
{
    set("SCENARIOINFO", "DIVISIONCNT", "40000");
    EXPECT_THROW(findings(), RuntimeError);
}

TEST(ScenarioFileName, TakesWhatNamesAFileInTheFolder)
{
    for (const QStringView title :
         {u"Convoy PQ 17", u" trimmed ", u"A:B", u"Who?", u"St. George", u"ends.", u"Málaga", u"CONVOY",
          u"COM10", u"COM0", u"LPTX", u"a..b", u"NULL", u"x.nul"}) {
        EXPECT_TRUE(canNameScenarioFile(title)) << title.toString().toStdString();
    }
}

TEST(ScenarioFileName, RefusesWhatLeadsElsewhereOrNowhere)
{
    for (const QString& title :
         {QStringLiteral(""), QStringLiteral("   "), QStringLiteral("A/B"), QStringLiteral("../x"),
          QStringLiteral("A\\B"), QStringLiteral(".."), QStringLiteral("."), QStringLiteral(".hidden"),
          QStringLiteral("  .hidden"), QStringLiteral("/etc/passwd"), QString(QChar(0)),
          QStringLiteral("a") + QChar(0) + QStringLiteral("b"), QStringLiteral("a\nb"),
          QStringLiteral("a\tb")}) {
        EXPECT_FALSE(canNameScenarioFile(title)) << title.toStdString();
    }
}

TEST(ScenarioFileName, RefusesDevices)
{
    for (const QStringView title : {u"CON", u"con", u"Prn", u"AUX", u"NUL", u"nul.old", u"NUL .x", u"COM1",
                                    u"com9", u"LPT1", u"Lpt9", u" nul "}) {
        EXPECT_FALSE(canNameScenarioFile(title)) << title.toString().toStdString();
    }
}

TEST(ScenarioFileName, RefusesMoreThanAFileSystemTakes)
{
    EXPECT_TRUE(canNameScenarioFile(QString(251, u'x')));
    EXPECT_FALSE(canNameScenarioFile(QString(252, u'x')));
    EXPECT_TRUE(canNameScenarioFile(QString(125, u'ü'))) << "two bytes each";
    EXPECT_FALSE(canNameScenarioFile(QString(126, u'ü')));
}

} // namespace
} // namespace testing
} // namespace torvane
