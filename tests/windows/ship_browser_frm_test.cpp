#include "platform/picture_box.h"
#include "ship_selection/ship_texts.h"
#include "ship_selection_fixture.h"
#include "support/shown_captions.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>

namespace torvane::testing {
namespace {

/// The left part of the ship dialog: filter, sort, search and marks.
class ShipBrowserWindow : public ShipSelectionDialog
{
protected:
    void expectSortOptions(bool enabled)
    {
        for (const char* name : {"OptType", "OptName", "OptClass", "OptNavy"}) {
            EXPECT_EQ(option(name)->isEnabled(), enabled) << name;
        }
        for (const char* name : {"optFilterRN", "optFilterKM", "optFilterUSN", "optFilterIJN"}) {
            EXPECT_EQ(option(name)->isEnabled(), !enabled) << name;
        }
    }
    void find(const std::optional<QString>& answer)
    {
        script.inputBoxes.answer = answer;
        click(shipButton("CmdShipSrch"));
    }
};

TEST_F(ShipBrowserWindow, EveryCaptionIsThatOfTheLanguage)
{
    for (const Language language : {Language::English, Language::German}) {
        openShips(language);
        expectCaptions(ships(), shipCaptions, language);
    }
}

TEST_F(ShipBrowserWindow, TheHeadersStandOverColumnsNoNarrowerThanTheDesigns)
{
    const int widths[] = {50, 33, 113, 90, 33, 43, 43, 43, 73};
    const QStringList headers[] = {
        {"Selected", "Type", "Name", "Class", "Navy", "HitPts", "FloatPts", "Torps?", "ShrtName"},
        {"Gewählt", "Typ", "Name", "Klasse", "Marine", "Pkt-R", "Pkt-W", "Torps?", "Kurzer Name"}};
    for (const Language language : {Language::English, Language::German}) {
        openShips(language);
        const QHeaderView* header = grid()->horizontalHeader();
        EXPECT_TRUE(header->isVisible());
        ASSERT_EQ(header->count(), 9);
        for (int i = 0; i < header->count(); ++i) {
            const QString text = grid()->model()->headerData(i, Qt::Horizontal).toString();
            EXPECT_EQ(text, headers[language == Language::German ? 1 : 0][i]);
            EXPECT_GE(header->sectionSize(i), widths[i]) << i;
            EXPECT_GE(header->sectionSize(i), header->fontMetrics().horizontalAdvance(text)) << i;
            EXPECT_EQ(header->sectionResizeMode(i), QHeaderView::Interactive) << i;
            for (int row = 0; row < grid()->model()->rowCount(); ++row) {
                EXPECT_GE(header->sectionSize(i),
                          grid()->sizeHintForIndex(grid()->model()->index(row, i)).width())
                    << cell(row, i).toStdString();
            }
        }
    }
}

TEST_F(ShipBrowserWindow, OpensWithAllColumnsInSightWhereTheScreenHasTheRoom)
{
    openShips(Language::German);
    const int whole = ships().sizeHint().width();
    const int room = ships().screen()->availableSize().width();
    EXPECT_EQ(ships().width(), std::max(ships().minimumSizeHint().width(), std::min(whole, room)));
    EXPECT_GE(ships().width(), std::min(whole, room));
}

TEST_F(ShipBrowserWindow, OpensWithTheNavyOfTheForce)
{
    const struct
    {
        const char* force;
        const char* option;
        QStringList names;
    } forces[] = {{"Kriegsmarine (KM)", "optFilterKM", {"Z2", "Bismarck"}},
                  {"United States Navy (USN)", "optFilterUSN", {"Laffey", "Benson"}},
                  {"Japanische Marine (IJN)", "optFilterIJN", {"Yukikaze", "Yamato"}}};
    openShips(Language::German);
    EXPECT_TRUE(option("optFilterRN")->isChecked());
    EXPECT_EQ(names().size(), 12);
    for (const auto& force : forces) {
        closeBox(&ships());
        setDivision("Force B (Red)", 1, force.force);
        showShips();
        EXPECT_TRUE(option(force.option)->isChecked()) << force.option;
        EXPECT_EQ(names(), force.names);
        EXPECT_EQ(grid()->currentIndex().row(), 0);
    }
}

TEST_F(ShipBrowserWindow, StaysAsItIsForAForceWithoutANavy)
{
    openShips();
    choose("optFilterKM");
    closeBox(&ships());
    setDivision("Force A (Blue)", 1, "");
    showShips();
    EXPECT_TRUE(option("optFilterKM")->isChecked());
    EXPECT_EQ(names(), QStringList({"Z2", "Bismarck"}));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ShipBrowserWindow, TheFilterIsFreeOfTheForce)
{
    openShips();
    const struct
    {
        const char* option;
        const char* first;
    } filters[] = {{"optFilterKM", "Z2"},
                   {"optFilterUSN", "Laffey"},
                   {"optFilterIJN", "Yukikaze"},
                   {"optFilterRN", "Cossack"}};
    for (const auto& [name, first] : filters) {
        choose(name);
        EXPECT_EQ(cell(0, 2), first);
        clickShip(first);
        EXPECT_EQ(marked(), QStringList(first));
    }
    EXPECT_EQ(listed(), QStringList({"DD Z2", "DD Laffey", "DD Yukikaze", "DD Cossack"}));
    choose("optFilterKM");
    EXPECT_EQ(marked(), QStringList("Z2"));
}

TEST_F(ShipBrowserWindow, TheSortButtonSwitchesBetweenFilterAndSort)
{
    for (const Language language : {Language::English, Language::German}) {
        openShips(language);
        const bool german = language == Language::German;
        expectSortOptions(false);
        click(shipButton("CmdSortSrch"));
        expectSortOptions(true);
        EXPECT_EQ(shipButton("CmdSortSrch")->text(), german ? "Sortierung EIN" : "Sort ON");
        choose("OptName");
        EXPECT_EQ(cell(0, 2), "Ardent");
        click(shipButton("CmdSortSrch"));
        expectSortOptions(false);
        EXPECT_EQ(shipButton("CmdSortSrch")->text(), german ? "Sortierung AUS" : "Sort OFF");
    }
}

TEST_F(ShipBrowserWindow, LeavingTheSortGoesBackToTheForcesNavyWithoutMarks)
{
    openShips();
    clickShip("Ardent");
    choose("optFilterKM");
    click(shipButton("CmdSortSrch"));
    EXPECT_EQ(names(), QStringList({"Z2", "Bismarck"}));
    click(shipButton("CmdSortSrch"));
    EXPECT_TRUE(option("optFilterRN")->isChecked());
    EXPECT_EQ(names().size(), 12);
    EXPECT_EQ(marked(), QStringList());
    // The ship is plainly picked all the same.
    const QModelIndex picked = grid()->model()->index(static_cast<int>(names().indexOf("Ardent")), 2);
    EXPECT_TRUE(picked.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(picked.data(Qt::BackgroundRole).isValid());
    EXPECT_FALSE(grid()->model()->index(0, 2).data(Qt::BackgroundRole).isValid());
}

TEST_F(ShipBrowserWindow, AnotherOpeningResetsTheSortModeAndLeavesTheControls)
{
    openShips();
    click(shipButton("CmdSortSrch"));
    closeBox(&ships());
    showShips();
    expectSortOptions(true);
    EXPECT_EQ(shipButton("CmdSortSrch")->text(), "Sort ON");
    click(shipButton("CmdSortSrch"));
    expectSortOptions(true);
    EXPECT_EQ(shipButton("CmdSortSrch")->text(), "Sort ON");
    click(shipButton("CmdSortSrch"));
    expectSortOptions(false);
}

TEST_F(ShipBrowserWindow, EachSortOptionSortsByItsColumn)
{
    openShips();
    click(shipButton("CmdSortSrch"));
    clickShip("Exeter");
    choose("OptClass");
    EXPECT_EQ(cell(0, 1), "BB");
    EXPECT_EQ(cell(1, 1), "CA");
    EXPECT_EQ(cell(11, 1), "TR");
    choose("OptName");
    EXPECT_EQ(names().mid(0, 3), QStringList({"Ardent", "Cossack", "Duncan"}));
    choose("OptType");
    EXPECT_EQ(cell(0, 3), "K1");
    EXPECT_EQ(cell(2, 3), "K1");
    EXPECT_EQ(cell(3, 3), "K2");
    choose("OptNavy");
    EXPECT_EQ(names().mid(0, 4), QStringList({"Warspite", "Exeter", "Cossack", "Duncan"}));
    EXPECT_EQ(cell(0, 5), "100");
    EXPECT_EQ(marked(), QStringList("Exeter"));
}

TEST_F(ShipBrowserWindow, ASortLastsThroughOtherNaviesAndOpenings)
{
    openShips();
    click(shipButton("CmdSortSrch"));
    choose("OptName");
    click(shipButton("CmdSortSrch"));
    choose("optFilterKM");
    EXPECT_EQ(cell(0, 2), "Z2");
    choose("optFilterRN");
    EXPECT_EQ(cell(0, 2), "Ardent");
    closeBox(&ships());
    showShips();
    EXPECT_EQ(cell(0, 2), "Ardent");
}

TEST_F(ShipBrowserWindow, ASearchAsksAndShowsTheShipOnTop)
{
    QList<Ship> many;
    QList<QByteArray> numbers;
    for (int i = 0; i < 300; ++i) {
        numbers.append("Ship " + QByteArray::number(i));
    }
    for (const QByteArray& name : numbers) {
        many.append({"DD", name.constData(), "K1", "RN", "1"});
    }
    putCatalogue(many);
    newScenario();
    setDivision();
    showShips();
    find("ship 150 ");
    ASSERT_EQ(script.inputBoxes.asked.size(), 1);
    EXPECT_EQ(script.inputBoxes.asked.first(),
              QStringList({"Ship Search", "Please enter the name of the ship you wish to find.", ""}));
    EXPECT_EQ(grid()->rowAt(0), 150);
    EXPECT_EQ(grid()->currentIndex().row(), 150);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(listed(), QStringList());
    // Wider columns than the window shows at once.
    grid()->horizontalHeader()->resizeSection(3, 2000);
    settle();
    find("SHIP 20");
    EXPECT_EQ(grid()->rowAt(0), 20);
    EXPECT_EQ(grid()->columnAt(0), 1);
}

TEST_F(ShipBrowserWindow, ASearchWithoutAHitSaysSoWithTheAnswer)
{
    openShips();
    find("Nobody ");
    expectBox(
        "The ship you have selected does not appear in the data base.  Please check the spelling: Nobody ",
        "Ship Not Found", MessageBox::Icon::Exclamation);
    find("Bismarck");
    EXPECT_EQ(boxes().size(), 1);
    openShips(Language::German);
    boxes().clear();
    find(" ");
    EXPECT_EQ(script.inputBoxes.asked.last(),
              QStringList({"Ship Search", "Bitte Schiffsnamen Eingeben.", ""}));
    expectBox("Das von Ihnen eingegebene Schiff kann nicht gefunden werden. Bitte überprüfen Sie die "
              "Schreibweise:  ",
              "Schiff nicht gefunden.", MessageBox::Icon::Exclamation);
}

TEST_F(ShipBrowserWindow, ASearchForTheLastShipFindsNothing)
{
    openShips();
    find("Olynthus");
    EXPECT_EQ(boxes().size(), 1);
    find("Jackal");
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(ShipBrowserWindow, AnEmptyAnswerEndsTheSearch)
{
    openShips();
    find("");
    find(std::nullopt);
    EXPECT_EQ(script.inputBoxes.asked.size(), 2);
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(grid()->currentIndex().row(), 0);
}

TEST_F(ShipBrowserWindow, TheCheckBoxGivesTheGridBothScrollBars)
{
    openShips();
    auto* box = control<QCheckBox>(ships(), "ChkScrollBars");
    EXPECT_FALSE(box->isChecked());
    EXPECT_FALSE(grid()->horizontalScrollBar()->isVisible());
    EXPECT_TRUE(grid()->verticalScrollBar()->isVisible());
    click(box);
    EXPECT_TRUE(grid()->horizontalScrollBar()->isVisible());
    EXPECT_TRUE(grid()->verticalScrollBar()->isVisible());
    click(box);
    EXPECT_FALSE(grid()->horizontalScrollBar()->isVisible());
}

TEST_F(ShipBrowserWindow, TheSmallPictureShowsTheClickedCell)
{
    openShips();
    auto* picture = control<PictureBox>(ships(), "PicTest");
    const QImage before = picture->image();
    clickShip("Ardent");
    const QImage name = picture->image();
    EXPECT_NE(name, before);
    clickShip("Ardent", 5);
    EXPECT_NE(picture->image(), name);
    clickShip("Ardent");
    EXPECT_EQ(picture->image(), name);
}

TEST_F(ShipBrowserWindow, APressOnTheGridBeforeAnyNavyWasShownSortsAndShowsAll)
{
    putUsualCatalogue();
    newScenario();
    setDivision("Force A (Blue)", 1, "INVALID");
    showShips();
    EXPECT_EQ(names(), QStringList());
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, QPoint(40, 10));
    settle();
    EXPECT_EQ(names().size(), 18);
    EXPECT_EQ(cell(0, 1), "BB");
    EXPECT_EQ(cell(17, 1), "TR");
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(grid()->currentIndex().row(), 0);
    clickShip("Yamato");
    EXPECT_EQ(listed(), QStringList("BB Yamato"));
}

TEST_F(ShipBrowserWindow, TypedLettersLeadToANameFromAnyColumn)
{
    openShips();
    grid()->setCurrentIndex(grid()->model()->index(0, 5));
    type(grid(), "ja");
    EXPECT_EQ(grid()->currentIndex().row(), names().indexOf("Jackal"));
    EXPECT_EQ(listed(), QStringList());
}

TEST_F(ShipBrowserWindow, TheSecondGridIsThereAndNeverSeen)
{
    openShips();
    EXPECT_FALSE(control<QTableView>(ships(), "Grid2")->isVisible());
}

} // namespace
} // namespace torvane::testing
