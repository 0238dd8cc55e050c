#include "windows/load_fixture.h"

#include <QTest>

namespace torvane::testing {
namespace {

using Load = LoadedScenarios;

TEST_F(Load, ReadsTheTargetAreaAndKeepsItForAMissionThatHasOne)
{
    startPastSplash(Language::English);
    load(data({"TITLE=x", "BATTLETYPE=1", "BLUE_FORCE_TYPE=0", "BLUE_TARGETBOX_X=500",
               "BLUE_TARGETBOX_Z=-700", "BLUE_TARGETBOXDIM=9260"}));
    EXPECT_EQ(main().targetArea(), (TargetArea{500, 700, 9260}));
    cancelOverview();
    EXPECT_TRUE(main().map().state().target.inUse);
    EXPECT_EQ(main().targetArea(), (TargetArea{500, 700, 9260}));
}

TEST_F(Load, DoesNotItselfShowTheTargetArea)
{
    startPastSplash(Language::English);
    load(data({"TITLE=x", "BATTLETYPE=1", "BLUE_FORCE_TYPE=0", "BLUE_TARGETBOX_X=500",
               "BLUE_TARGETBOX_Z=-700", "BLUE_TARGETBOXDIM=9260"}));
    EXPECT_FALSE(main().map().state().target.placed);
    EXPECT_FALSE(main().map().state().target.armed);
    cancelOverview();
    EXPECT_FALSE(main().map().state().target.placed);
}

TEST_F(Load, KeepsShowingATargetAreaThatIsPlaced)
{
    startPastSplash(Language::English);
    const QByteArray bombardment =
        data({"TITLE=x", "BATTLETYPE=1", "BLUE_FORCE_TYPE=0", "BLUE_TARGETBOX_X=500", "BLUE_TARGETBOX_Z=-700",
              "BLUE_TARGETBOXDIM=9260"});
    load(bombardment);
    cancelOverview();
    ASSERT_TRUE(chooseMenu(main(), QStringLiteral("mnuTargetBox")));
    QTest::mouseClick(control<QWidget>(main(), QStringLiteral("Picture_Main")), Qt::LeftButton, {},
                      QPoint(200, 100));
    settle();
    ASSERT_TRUE(main().map().state().target.placed);
    load(bombardment);
    EXPECT_TRUE(main().map().state().target.placed);
    EXPECT_EQ(main().targetArea(), (TargetArea{500, 700, 9260}));
}

TEST_F(Load, DropsTheTargetAreaBehindTheOverviewOfAMissionWithoutOne)
{
    startPastSplash(Language::English);
    load(data({"TITLE=x", "BATTLETYPE=0", "BLUE_TARGETBOX_X=500", "BLUE_TARGETBOX_Z=-700",
               "BLUE_TARGETBOXDIM=9260"}));
    EXPECT_EQ(main().targetArea(), (TargetArea{500, 700, 9260}));
    cancelOverview();
    EXPECT_EQ(main().targetArea(), TargetArea{});
}

} // namespace
} // namespace torvane::testing
