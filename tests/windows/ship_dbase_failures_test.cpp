#include "ship_selection_fixture.h"
#include "support/failing_system.h"

#include <QDir>

namespace torvane::testing {
namespace {

/// What the ship dialog does with a catalogue or scratch files that are not what they should be, and when it
/// is closed at a bad moment.
class ShipFailures : public ShipSelectionDialog
{
protected:
    void openOver(const std::function<void()>& catalogue)
    {
        catalogue();
        newScenario();
        setDivision();
        showShips();
    }
    /// The dialog can be left, and opens again.
    void expectUsable()
    {
        EXPECT_FALSE(QGuiApplication::overrideCursor());
        EXPECT_TRUE(grid()->isVisible());
        closeBox(&ships());
        boxes().clear();
        expectClosed();
        showShips();
        closeBox(&ships());
        expectClosed();
    }
    QList<Ship> royalNavy(int count)
    {
        QList<Ship> many;
        for (int i = 0; i < count; ++i) {
            m_names.append("Ship " + QByteArray::number(i));
        }
        for (const QByteArray& name : m_names) {
            many.append({"DD", name.constData(), "K1", "RN", "1"});
        }
        return many;
    }

private:
    QList<QByteArray> m_names;
};

TEST_F(ShipFailures, AMissingCatalogueIsNamedOnceAndTriedAgainAtTheNextOpening)
{
    openOver([] {});
    expectError("ShipDatabase.mdb is missing");
    EXPECT_EQ(names(), QStringList());
    closeBox(&ships());
    expectClosed();
    showShips();
    expectError("ShipDatabase.mdb is missing");
    closeBox(&ships());
    putUsualCatalogue();
    showShips();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(names().size(), 12);
    clickShip("Ardent");
    EXPECT_EQ(listed(), QStringList("DD Ardent"));
}

TEST_F(ShipFailures, ADamagedCatalogueIsNamed)
{
    openOver([this] { putWorkFile("ShipDatabase.mdb", QByteArray(4000, 'x')); });
    expectError("ShipDatabase.mdb");
    EXPECT_EQ(names(), QStringList());
    expectUsable();
}

TEST_F(ShipFailures, AnEmptyCatalogueShowsNoShips)
{
    openOver([this] { putCatalogue({}); });
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(names(), QStringList());
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, QPoint(40, 10));
    press(grid(), Qt::Key_Return);
    click(shipButton("CmdSortSrch"));
    choose("OptNavy");
    EXPECT_EQ(names(), QStringList());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_TRUE(boxes().isEmpty());
    expectUsable();
}

TEST_F(ShipFailures, ASortThatFailsLeavesAGridToPickFrom)
{
    openOver([this] {
        putCatalogue({{"DD", "Ardent", "K2", "RN", "3"},
                      {"DD", "Fury", "K2", "RN", "1E999"},
                      {"DD", "Jackal", "K2", "RN", "2"}});
    });
    clickShip("Ardent");
    click(shipButton("CmdSortSrch"));
    choose("OptNavy");
    expectError("Overflow");
    EXPECT_EQ(names(), QStringList({"Ardent", "Fury", "Jackal"}));
    EXPECT_EQ(marked(), QStringList("Ardent"));
    clickShip("Jackal");
    EXPECT_EQ(listed(), QStringList({"DD Ardent", "DD Jackal"}));
    expectUsable();
}

TEST_F(ShipFailures, The425thShipOfTheRoyalNavyFailsTheLoad)
{
    openOver([this] { putCatalogue(royalNavy(425)); });
    expectError("more than 424 ships of the navy RN");
    EXPECT_EQ(names(), QStringList());
    expectUsable();
}

TEST_F(ShipFailures, FourHundredAndTwentyFourShipsOfTheRoyalNavyLoad)
{
    openOver([this] { putCatalogue(royalNavy(424)); });
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(names().size(), 424);
}

TEST_F(ShipFailures, AMissingFieldIsNamed)
{
    openOver([this] {
        putUsualCatalogue();
        RawDatabase(workFile("ShipDatabase.mdb"))
            .run("ALTER TABLE ShipDataB RENAME COLUMN ShortName TO Shrt");
    });
    expectError("has no field ShortName");
    expectUsable();
}

TEST_F(ShipFailures, AMissingTrackIsNamedAtTheOpeningAndAtAPick)
{
    openShips();
    closeBox(&ships());
    QFile::remove(workFile("ShipTrack.bmm"));
    showShips();
    expectError("ShipTrack.bmm");
    EXPECT_EQ(names().size(), 12);
    clickShip("Ardent");
    expectError("ShipTrack.bmm");
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(marked(), QStringList());
    EXPECT_EQ(count("lblDivCount"), "Division: 0 of 10 ships");
    EXPECT_EQ(count("lblForceCount"), "Force A: 0 of 28 ships");
    expectUsable();
}

TEST_F(ShipFailures, ATrackDeletedWhileTheDialogIsOpenLeavesListAndCounts)
{
    openShips();
    clickShip("Ardent");
    QFile::remove(workFile("ShipTrack.bmm"));
    clickLine(0);
    click(shipButton("CmdRemove"));
    expectError("ShipTrack.bmm");
    EXPECT_EQ(listed(), QStringList("DD Ardent"));
    EXPECT_EQ(count("lblDivCount"), "Division: 1 of 10 ships");
    choose("optFilterKM");
    expectError("ShipTrack.bmm");
    EXPECT_EQ(names().size(), 2);
    click(shipButton("CmdCancel"));
    expectError("ShipTrack.bmm");
    expectClosed();
    putWorkFile("ShipTrack.bmm", "\"\"\r\n");
    showShips();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(ShipFailures, FilesOfOtherTextAreTakenLineByLine)
{
    openShips();
    closeBox(&ships());
    putWorkFile("ShipTrack.bmm", "[SECTION]\nArdent=1\nArdent\n\"Fury");
    putWorkFile("DivisionA1.txt", "garbage\r\n\"\"\r\n");
    showShips();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(listed(), QStringList({"garbage", ""}));
    EXPECT_EQ(marked(), QStringList({"Ardent", "Fury"}));
    clickLine(1);
    click(shipButton("CmdRemove"));
    EXPECT_EQ(listed(), QStringList("garbage"));
    expectUsable();
}

TEST_F(ShipFailures, AFolderInPlaceOfADivisionFileLeavesAUsableDialog)
{
    openShips();
    closeBox(&ships());
    QDir().mkpath(workFile("DivisionA1.txt"));
    showShips();
    expectError("DivisionA1.txt");
    EXPECT_EQ(listed(), QStringList());
    expectUsable();
}

TEST_F(ShipFailures, AShipWithQuotesAndCommasGoesTheWholeRoad)
{
    openOver([this] { putCatalogue({{"DD", "The \"Old, Grey\" One", "K1", "RN", "1"}}); });
    clickShip("The \"Old, Grey\" One");
    click(shipButton("CmdKeepShips"));
    showShips();
    EXPECT_EQ(listed(), QStringList("DD The \"Old, Grey\" One"));
    EXPECT_EQ(marked(), QStringList("The \"Old, Grey\" One"));
    click(shipButton("CmdClear"));
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList(""));
}

TEST_F(ShipFailures, WhatCannotBeKeptLeavesTheDialogOpen)
{
    openShips();
    clickShip("Ardent");
    {
        const ReadOnlyFolder readOnly(workFile(QString()));
        click(shipButton("CmdKeepShips"));
        ASSERT_FALSE(boxes().isEmpty());
        EXPECT_THAT(boxes().first().text.toStdString(), ::testing::HasSubstr("DivisionA1.txt"));
        boxes().clear();
    }
    EXPECT_TRUE(ships().isVisible());
    EXPECT_EQ(listed(), QStringList("DD Ardent"));
    click(shipButton("CmdKeepShips"));
    expectClosed();
    EXPECT_EQ(lines("DivisionA1.txt"), QStringList("DD Ardent"));
}

TEST_F(ShipFailures, ACloseBoxBeforeTheActivationTouchesNoKeptShip)
{
    openShips();
    clickShip("Ardent");
    click(shipButton("CmdKeepShips"));
    setDivision("Force A (Blue)", 2);
    dialog().setInputEnabled(false);
    ships().showForm(&main());
    ships().close();
    settle();
    expectClosed();
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList({"", "Ardent"}));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ShipFailures, ASecondCloseBoxChangesNothing)
{
    openShips();
    clickShip("Ardent");
    ships().close();
    ships().close();
    settle();
    expectClosed();
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList(""));
}

TEST_F(ShipFailures, ACloseBoxWhileABoxIsOpenLeavesAllWhole)
{
    openShips();
    clickShip("Ardent");
    script.messageBoxes.onShow = [this] { ships().close(); };
    clickShip("Ardent");
    script.messageBoxes.onShow = nullptr;
    expectBox("You have already selected this ship.");
    expectClosed();
    EXPECT_EQ(lines("ShipTrack.bmm"), QStringList(""));
    showShips();
    EXPECT_EQ(listed(), QStringList());
    clickShip("Ardent");
    EXPECT_TRUE(boxes().isEmpty());
}

} // namespace
} // namespace torvane::testing
