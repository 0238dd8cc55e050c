#include "platform/picture_box.h"
#include "ship_selection_fixture.h"
#include "windows/division_fixture.h"

namespace torvane::testing {
namespace {

/// What the ship dialog does at odd moments, and with keys that are held down.
class ShipMoments : public ShipSelectionDialog
{
protected:
    using Pointers = QList<Qt::CursorShape>;

    void note()
    {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        pointers.append(cursor ? cursor->shape() : Qt::ArrowCursor);
    }
    void watchPointer()
    {
        QAbstractItemModel* model = grid()->model();
        QObject::connect(model, &QAbstractItemModel::modelAboutToBeReset, &m_watch, [this] { note(); });
        QObject::connect(model, &QAbstractItemModel::dataChanged, &m_watch, [this] { note(); });
    }
    /// The hourglass and nothing else has shown since the last call.
    void expectHourglass(const char* during)
    {
        EXPECT_FALSE(pointers.isEmpty()) << during;
        EXPECT_EQ(pointers.count(Qt::WaitCursor), pointers.size()) << during;
        EXPECT_FALSE(QGuiApplication::overrideCursor()) << during;
        pointers.clear();
    }
    /// A key as the keyboard repeats it while it is held.
    static void repeat(QWidget* widget, Qt::Key key)
    {
        QTest::simulateEvent(widget, true, key, Qt::NoModifier, QString(), true);
        settle();
    }
    void activate()
    {
        ships().activateWindow();
        ASSERT_TRUE(waitUntil([this] { return ships().isActiveWindow(); }));
    }
    void search(const char* answer)
    {
        script.inputBoxes.answer = QString(answer);
        click(shipButton("CmdShipSrch"));
    }

    Pointers pointers;

private:
    QObject m_watch;
};

TEST_F(ShipMoments, TheHourglassShowsDuringFilterSortOpeningAndClearAll)
{
    openShips();
    watchPointer();
    choose("optFilterKM");
    expectHourglass("filter");
    click(shipButton("CmdSortSrch"));
    choose("OptName");
    expectHourglass("sort");
    clickShip("Z2");
    pointers.clear();
    click(shipButton("CmdClear"));
    expectHourglass("Clear All");
    closeBox(&ships());
    pointers.clear();
    showShips();
    expectHourglass("opening");
}

TEST_F(ShipMoments, AReturnKeyHeldDownPicksOnce)
{
    openShips();
    press(grid(), Qt::Key_Down);
    press(grid(), Qt::Key_Return);
    for (int i = 0; i < 5; ++i) {
        repeat(grid(), Qt::Key_Return);
        repeat(grid(), Qt::Key_Enter);
    }
    EXPECT_EQ(listed(), QStringList("BB Warspite"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ShipMoments, ADeleteKeyHeldDownRemovesOnce)
{
    openShips();
    activate();
    for (const char* name : {"Exeter", "Ardent", "Fury"}) {
        clickShip(name);
    }
    clickLine(0);
    press(division(), Qt::Key_Delete);
    for (int i = 0; i < 5; ++i) {
        repeat(division(), Qt::Key_Delete);
    }
    EXPECT_EQ(listed(), QStringList({"DD Ardent", "DD Fury"}));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(ShipMoments, TheFirstArrowKeyInTheListSelectsTheLineThatIsCurrent)
{
    openShips();
    activate();
    for (const char* name : {"Exeter", "Ardent", "Fury"}) {
        clickShip(name);
    }
    division()->setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_TRUE(division()->selectedItems().isEmpty());
    press(division(), Qt::Key_Down);
    ASSERT_EQ(division()->selectedItems().size(), 1);
    EXPECT_EQ(division()->selectedItems().first()->text(), "CA Exeter");
    press(division(), Qt::Key_Down);
    EXPECT_EQ(division()->selectedItems().first()->text(), "DD Ardent");
    click(shipButton("CmdRemove"));
    EXPECT_EQ(listed(), QStringList({"CA Exeter", "DD Fury"}));
}

TEST_F(ShipMoments, ClosedWhileTheSearchAsksItIsClosedAndOpensAgain)
{
    for (const char* answer : {"Fury", "Nobody", ""}) {
        openShips();
        clickShip("Ardent");
        script.inputBoxes.onAsk = [this] { ships().close(); };
        search(answer);
        script.inputBoxes.onAsk = nullptr;
        expectClosed();
        EXPECT_EQ(boxes().size(), QByteArray(answer) == "Nobody" ? 1 : 0) << answer;
        boxes().clear();
        EXPECT_EQ(lines("ShipTrack.bmm"), QStringList(""));
        showShips();
        EXPECT_EQ(listed(), QStringList());
        EXPECT_EQ(marked(), QStringList());
        clickShip("Ardent");
        EXPECT_EQ(listed(), QStringList("DD Ardent"));
        EXPECT_TRUE(boxes().isEmpty());
    }
}

TEST_F(ShipMoments, TheSmallPictureIsNamedForAssistiveToolsInBothLanguages)
{
    for (const Language language : {Language::English, Language::German}) {
        openShips(language);
        EXPECT_EQ(control<PictureBox>(ships(), "PicTest")->accessibleName(),
                  language == Language::German ? "Angeklicktes Feld" : "Clicked field");
    }
}

/// The whole way from the overview's navy to the filter of the ship dialog.
class NavyOfAForce : public DivisionDialogs
{
};

TEST_F(NavyOfAForce, ChosenInTheOverviewIsTheFilterOfTheShipDialog)
{
    const struct
    {
        const char* english;
        const char* german;
        const char* option;
    } navies[] = {
        {"Kriegsmarine (KM)", "Kriegsmarine (KM)", "optFilterKM"},
        {"United States Navy (USN)", "United States Navy (USN)", "optFilterUSN"},
        {"Imperial Japanese Navy (IJN)", "Japanische Marine (IJN)", "optFilterIJN"},
        {"Royal Navy (RN)", "Royal Navy (RN)", "optFilterRN"},
    };
    for (const Language language : {Language::English, Language::German}) {
        openNew(language);
        EXPECT_EQ(list("CmbBlueSide")->count(), std::ssize(navies));
        for (const auto& navy : navies) {
            if (!overview().isVisible()) {
                reopenOverview();
            }
            pick(list("CmbBlueSide"), language == Language::German ? navy.german : navy.english);
            saveOverview();
            create(Side::Blue);
            click(push("CmdAdd"));
            EXPECT_TRUE(
                control<QRadioButton>(editor().shipDBaseFrm(), QLatin1StringView(navy.option))->isChecked())
                << navy.option;
            closeBox(&editor().shipDBaseFrm());
            click(push("CmdCancel"));
        }
    }
}

} // namespace
} // namespace torvane::testing
