#include "divisions/create_division_frm.h"
#include "windows/main_frm_fixture.h"

#include <QTest>

namespace torvane::testing {
namespace {

TEST_F(MainWindow, ActivationAnchorsAtTheOrigin)
{
    startPastSplash();
    QTest::mouseMove(map(), QPoint(400, 300));
    settle();
    returnFromDialog();
    const ViewState& view = main().map().state().view;
    EXPECT_EQ(view.anchorX, view.mapOriginX);
    EXPECT_EQ(view.anchorZ, view.mapOriginY);
}

TEST_F(MainWindow, ActivationPutsBothScrollBarsAtTheMiddle)
{
    startPastSplash();
    EXPECT_EQ(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(bar("VScroll1")->value(), 16383);
    bar("HScroll1")->setValue(2000);
    bar("VScroll1")->setValue(30000);
    returnFromDialog();
    EXPECT_EQ(bar("HScroll1")->value(), 16383);
    EXPECT_EQ(bar("VScroll1")->value(), 16383);
}

TEST_F(MainWindow, ActivationColoursTheSeaByDayAndNight)
{
    startPastSplash();
    EXPECT_EQ(sea(), QColor(1, 176, 235));
    setValue(main().chkDayNight, 0);
    EXPECT_EQ(sea(), QColor(1, 176, 235)) << "takes effect with the activation";
    returnFromDialog();
    EXPECT_EQ(sea(), QColor(0, 0, 128));
}

TEST_F(MainWindow, ActivationOffersTheTargetAreaWhereTheMissionHasOne)
{
    startPastSplash();
    setValue(main().chkBombardment, 1);
    returnFromDialog();
    EXPECT_TRUE(entry("mnuTargetBox")->isEnabled());
    EXPECT_TRUE(main().map().state().target.inUse);
    setValue(main().chkBombardment, 0);
    returnFromDialog();
    EXPECT_FALSE(entry("mnuTargetBox")->isEnabled());
    EXPECT_FALSE(main().map().state().target.inUse);
}

TEST_F(MainWindow, ADivisionJustMadeAwaitsAClick)
{
    startPastSplash();
    editor().createDivisionFrm().lblside->setText(QStringLiteral("Force A (Blue)"));
    main().txtDivisionReturn->setText(QStringLiteral(" Division 3 "));
    setValue(main().chkCreateReturn, 1);
    returnFromDialog();
    EXPECT_EQ(valueOf(main().chkCreateReturn), 0);
    EXPECT_EQ(main().map().repositionKey(), QStringLiteral("Blue 3"));
    EXPECT_FALSE(main().map().state().separationRingsPending) << "drawn by the redraw";
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().chkReposition), 1);
}

TEST_F(MainWindow, AfterAnEditLeftByOkNoClickIsAwaited)
{
    startPastSplash();
    editor().createDivisionFrm().lblside->setText(QStringLiteral("Force B (Red)"));
    main().txtDivisionReturn->setText(QStringLiteral("Verband 2"));
    setValue(main().chkCreateReturn, 1);
    setValue(main().chkReturnFromEdit, 1);
    returnFromDialog();
    EXPECT_EQ(main().map().repositionKey(), QStringLiteral("Red 2"));
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(valueOf(editor().createDivisionFrm().chkReposition), 0);
    EXPECT_EQ(valueOf(main().chkReturnFromEdit), 0);
}

TEST_F(MainWindow, ADialogThatLeavesNoFlagLeavesThePlacementAsItIs)
{
    startPastSplash();
    setValue(main().ChkPlotDiv, 1);
    returnFromDialog();
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 1);
    EXPECT_EQ(main().map().repositionKey(), QString());
}

} // namespace
} // namespace torvane::testing
