#include "windows/division_fixture.h"

#include <utility>

namespace torvane::testing {
namespace {

/// What the division dialog does at odd moments, and what happens around its jobs.
class DivisionMoments : public DivisionDialogs
{
protected:
    /// Notes the pointers that show whenever the speed changes, which each job and each way out makes it do.
    void watchPointer()
    {
        QObject::connect(field("TxtSpeed"), &QLineEdit::textChanged, &m_watch, [this] {
            const QCursor* cursor = QGuiApplication::overrideCursor();
            m_pointers.append(cursor ? cursor->shape() : Qt::ArrowCursor);
        });
    }
    QList<Qt::CursorShape> takePointers() { return std::exchange(m_pointers, {}); }

private:
    QObject m_watch;
    QList<Qt::CursorShape> m_pointers;
};

const QList<Qt::CursorShape> hourglassOnce{Qt::WaitCursor};

TEST_F(DivisionMoments, TheHourglassShowsAtActivationAndSaves)
{
    openScenario();
    watchPointer();
    create(Side::Blue);
    EXPECT_EQ(takePointers(), hourglassOnce) << "new division";
    keepShips(destroyers());
    save();
    EXPECT_EQ(takePointers(), hourglassOnce) << "saved";
    edit(Side::Blue, 1);
    EXPECT_EQ(takePointers(), hourglassOnce) << "loaded";
    save();
    EXPECT_EQ(takePointers(), hourglassOnce) << "saved again";
    expectClosed();
}

TEST_F(DivisionMoments, LeftRightBehindTheShipDialogItLeavesNoFlagToTheNextJob)
{
    openScenario();
    setValue(main().ChkPlotDiv, 1);
    create(Side::Blue);
    click(push("CmdAdd"));
    ASSERT_EQ(valueOf(dialog().chkReturnFlag), 1);
    editor().shipDBaseFrm().close();
    dialog().close();
    settle();
    expectClosed();
    EXPECT_EQ(valueOf(dialog().chkReturnFlag), 0);
    EXPECT_EQ(valueOf(main().ChkPlotDiv), 0);
    EXPECT_EQ(records().blueDivCount(), 0);
    create(Side::Blue);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 1"));
    EXPECT_EQ(records().blueDivCount(), 1);
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("8"));
}

TEST_F(DivisionMoments, ClosedWhileTheHeadingsBoxShowsItIsClosed)
{
    openScenario();
    make(Side::Blue, {"DD Zulu"});
    const QByteArray before = profile();
    create(Side::Blue);
    keepShips(destroyers());
    click(push("cmdDivDataChng"));
    script.messageBoxes.onShow = [this] { dialog().close(); };
    retype(field("TxtHeading"), QStringLiteral("999"));
    script.messageBoxes.onShow = nullptr;
    expectOneBox("You must enter a heading between 0 and 360 degrees.", "Out of Range");
    expectClosed();
    EXPECT_EQ(records().blueDivCount(), 1);
    EXPECT_EQ(profile(), before);
    create(Side::Blue);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 2"));
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("0"));
    expectEnabled(false, {"TxtHeading"});
    expectEnabled(true, {"CmdAdd", "cmdDivDataChng"});
}

TEST_F(DivisionMoments, WithoutACountedDivisionAnEditStoresTheMainWindowsNumber)
{
    openScenario();
    make(Side::Blue, destroyers());
    records().countDivision(Side::Blue, -1);
    main().lblupDivCnt->setText(QStringLiteral("5"));
    edit(Side::Blue, 1);
    save();
    EXPECT_EQ(key("SCENARIOINFO", "DIVISIONCNT"), QStringLiteral("5"));
}

TEST_F(DivisionMoments, ANewDivisionPutsTheOverviewAway)
{
    openScenario();
    for (const Side side : {Side::Blue, Side::Red}) {
        overview().showForm(&main());
        settle();
        ASSERT_TRUE(overview().isVisible());
        create(side);
        EXPECT_FALSE(overview().isVisible());
        click(push("CmdCancel"));
        EXPECT_FALSE(overview().isVisible());
        expectClosed();
    }
}

} // namespace
} // namespace torvane::testing
