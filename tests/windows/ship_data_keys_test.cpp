#include "ship_data_fixture.h"
#include "ship_state/condition_bar.h"
#include "windows/key_roads.h"

// Keys, held buttons and bars of the ship data dialog.

namespace torvane::testing {
namespace {

using namespace Qt::StringLiterals;

class ShipDataKeys : public OneShipDialog
{
protected:
    ConditionBar* bar(const char* name) { return control<ConditionBar>(dialog(), QLatin1StringView(name)); }
    static QColor colorOf(const ConditionBar* bar) { return bar->palette().color(QPalette::Highlight); }
    void openRepair()
    {
        openExeter();
        press("cmdRepairRadar");
    }
};

TEST_F(ShipDataKeys, EveryLabelLeadsToItsControlAndPressesNothing)
{
    for (const Language language : {Language::English, Language::German}) {
        openExeter(language);
        const std::pair<int, int> labels[] = {{generalPage, 7},
                                              {systemsPage, 2},
                                              // In German the letters of the last "AP" are taken.
                                              {mainGunsPage, language == Language::German ? 5 : 6},
                                              {secondaryPage, 7},
                                              {torpedoPage, 0}};
        for (const auto& [page, count] : labels) {
            SCOPED_TRACE(page);
            if (page != generalPage) {
                turnTo(page);
            }
            expectLabelsLead(dialog(), count);
        }
    }
}

TEST_F(ShipDataKeys, ARepairRowThatAKeyPressesOnAPageThatIsLeftAtOnceStaysShut)
{
    constexpr int longerThanAClick = 300; // milliseconds
    openExeter();
    turnTo(systemsPage);
    pressMnemonic(dialog(), button("cmdRepairElec")->text());
    turnTo(generalPage);
    QTest::qWait(longerThanAClick);
    EXPECT_TRUE(tabs()->isEnabled());
    EXPECT_TRUE(button("CmdCancel")->isEnabled()) << "the OK of an open row would lie on the page behind";
    turnTo(systemsPage);
    pressMnemonic(dialog(), button("cmdRepairElec")->text());
    QTest::qWait(longerThanAClick);
    EXPECT_FALSE(button("CmdCancel")->isEnabled()) << "the page is in sight: the row is open";
}

TEST_F(ShipDataKeys, AHeldMinuteButtonRepeatsUntilItIsLetGo)
{
    openRepair();
    QTest::mousePress(button("cmdTimeUp"), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return shown("lblRadarDam").toInt() >= 3; }));
    const QString reached = shown("lblRadarDam");
    QTest::mouseRelease(button("cmdTimeUp"), Qt::LeftButton);
    EXPECT_EQ(shown("lblRadarDam"), reached);
}

TEST_F(ShipDataKeys, AHeldGunButtonRepeatsUntilItIsLetGo)
{
    openExeter();
    turnTo(secondaryPage);
    QTest::mousePress(button("cmdSecStrbCnt"), Qt::LeftButton);
    EXPECT_TRUE(waitUntil([&] { return shown("lblStrbCnt").toInt() <= 5; }));
    const QString reached = shown("lblStrbCnt");
    QTest::mouseRelease(button("cmdSecStrbCnt"), Qt::LeftButton);
    EXPECT_EQ(shown("lblStrbCnt"), reached);
}

TEST_F(ShipDataKeys, PlusAndMinusStepTheRepairTimeOnEitherButton)
{
    openRepair();
    for (const char* name : {"cmdTimeUp", "cmdTimeDown"}) {
        torvane::testing::press(button(name), Qt::Key_Plus);
        torvane::testing::press(button(name), Qt::Key_Plus);
        EXPECT_EQ(shown("lblRadarDam"), u"2"_s) << name;
        torvane::testing::press(button(name), Qt::Key_Minus);
        EXPECT_EQ(shown("lblRadarDam"), u"1"_s) << name;
        torvane::testing::press(button(name), Qt::Key_Minus);
        EXPECT_EQ(shown("lblRadarDam"), u"0"_s) << name;
    }
}

TEST_F(ShipDataKeys, MinusOnAGunButtonTakesOneAndPlusNone)
{
    openExeter();
    turnTo(secondaryPage);
    torvane::testing::press(button("cmdSecForeCnt"), Qt::Key_Minus);
    EXPECT_EQ(shown("lblForeCnt"), u"3"_s);
    torvane::testing::press(button("cmdSecForeCnt"), Qt::Key_Plus);
    EXPECT_EQ(shown("lblForeCnt"), u"3"_s);
    save();
    EXPECT_EQ(stored("SECONDARYGUNSFORECNT"), u"3"_s);
}

TEST_F(ShipDataKeys, ABarShowsTheShareThatItsNumberSays)
{
    openExeterWith("CURRENTHITPOINTS", "660");
    EXPECT_EQ(bar("lblHitPtBar")->maximum(), 1000);
    EXPECT_EQ(bar("lblHitPtBar")->value(), 330);
    press("cmdHitPtsDown");
    EXPECT_EQ(bar("lblHitPtBar")->value(), 320);
}

TEST_F(ShipDataKeys, ABarIsRedWhereTheShipIsBadlyOff)
{
    const QColor green(58, 138, 70);
    const QColor red(184, 44, 44);
    openExeter();
    EXPECT_EQ(colorOf(bar("lblHitPtBar")), green);
    EXPECT_EQ(bar("lblFireCntBar")->value(), 0);
    EXPECT_EQ(colorOf(bar("lblFireCntBar")), green);
    press("cmdFireCntDown");
    EXPECT_EQ(shown("lblFireCnt"), u"10"_s);
    EXPECT_EQ(bar("lblFireCntBar")->value(), 1000);
    EXPECT_EQ(colorOf(bar("lblFireCntBar")), red);
    press("cmdHitPtsUp");
    EXPECT_EQ(colorOf(bar("lblHitPtBar")), red);
}

TEST_F(ShipDataKeys, ABarStandsLeftOfItsNumberInTheSameRow)
{
    openExeter();
    for (const char* name : {"lblHitPt", "lblFloatPts", "lblFireCnt"}) {
        const QRect value = label(name)->geometry();
        const QRect place = bar((std::string(name) + "Bar").c_str())->geometry();
        EXPECT_LT(place.right(), value.left()) << name;
        EXPECT_LE(std::abs(place.center().y() - value.center().y()), 1) << name;
    }
}

} // namespace
} // namespace torvane::testing
