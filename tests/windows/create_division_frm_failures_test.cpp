#include "support/failing_system.h"
#include "windows/division_fixture.h"

#include <QDir>

namespace torvane::testing {
namespace {

/// The dialog with files, catalogue and profile in a state that the program did not leave them in.
class DivisionFailures : public DivisionDialogs
{
protected:
    void openCreated(const QStringList& lines = destroyers())
    {
        openScenario();
        make(Side::Red, {"DD Zulu"});
        create(Side::Blue);
        keepShips(lines);
        boxes().clear();
        m_before = profile();
    }
    void openEdited()
    {
        openScenario();
        make(Side::Blue, destroyers());
        edit(Side::Blue, 1);
        boxes().clear();
        m_before = profile();
    }
    void makeFolder(const char* name)
    {
        QFile::remove(workFile(QLatin1StringView(name)));
        ASSERT_TRUE(QDir().mkpath(workFile(QLatin1StringView(name))));
    }
    void expectOneError(const char* named)
    {
        ASSERT_EQ(boxes().size(), 1);
        EXPECT_EQ(boxes().first().icon, MessageBox::Icon::Critical);
        EXPECT_TRUE(boxes().first().text.contains(QLatin1StringView(named)))
            << boxes().first().text.toStdString();
        boxes().clear();
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
    /// The dialog is still there, nothing was written, and the author can leave it.
    void expectWholeAndLeavable()
    {
        EXPECT_TRUE(dialog().isVisible());
        EXPECT_TRUE(dialog().isInputEnabled());
        EXPECT_EQ(profile(), m_before);
        closeBox(&dialog());
        EXPECT_EQ(profile(), m_before);
        EXPECT_TRUE(boxes().isEmpty());
        expectClosed();
    }

    /// Nothing but Cancel and the close box can be used, and what is pressed all the same stores nothing.
    void expectOnlyCancel()
    {
        const QByteArray divData = workBytes(QStringLiteral("DivDataA1.txt"));
        for (const char* name : {"CmdAdd", "CmdFlagShip", "CmdEditShip", "CmdNewDivision", "cmdDivDataChng",
                                 "CmdSaveData", "cmdOK", "TxtHeading", "optEncumYES"}) {
            EXPECT_FALSE(isEnabled(name)) << name;
            click(control<QWidget>(dialog(), QLatin1StringView(name)));
        }
        EXPECT_TRUE(isEnabled("CmdEditCancel"));
        EXPECT_TRUE(push("CmdEditCancel")->isDefault());
        EXPECT_TRUE(dialog().isVisible());
        EXPECT_EQ(editor().forms().front(), &dialog());
        EXPECT_EQ(workBytes(QStringLiteral("DivDataA1.txt")), divData);
        EXPECT_EQ(profile(), m_before);
    }

    QByteArray m_before;
};

TEST_F(DivisionFailures, ASaveOfAShipThatTheCatalogueLacksChangesNothing)
{
    openCreated({"DD Cossack", "DD Flying Dutchman"});
    save();
    expectOneError("Flying Dutchman");
    expectWholeAndLeavable();
    EXPECT_EQ(key("SCENARIOINFO", "DIVISIONCNT"), QStringLiteral("1"));
    EXPECT_EQ(records().blueDivCount(), 0);
}

TEST_F(DivisionFailures, ASavedEditWithANewShipThatTheCatalogueLacksChangesNothing)
{
    openEdited();
    putWorkFile(QStringLiteral("DivisionA1.txt"), "\"DD Cossack\"\r\n\"DD Flying Dutchman\"\r\n");
    save();
    expectOneError("Flying Dutchman");
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, ASpeedStepWithAShipThatTheCatalogueLacksIsItsError)
{
    openCreated({"DD Flying Dutchman"});
    click(push("cmdDivDataChng"));
    click(push("cmdSpeedVal2"));
    expectOneError("Flying Dutchman");
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, WithoutACatalogueSpeedAndSaveNameItsFile)
{
    openScenario();
    create(Side::Blue);
    keepShips(destroyers());
    m_before = profile();
    QFile::remove(workFile(QStringLiteral("ShipDatabase.mdb")));
    save();
    expectOneError("ShipDatabase.mdb");
    click(push("cmdDivDataChng"));
    click(push("cmdSpeedVal"));
    expectOneError("ShipDatabase.mdb");
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, ASeaStateOutsideTheTableIsASubscriptOutOfRange)
{
    openCreated();
    auto* seaState = enviro().findChild<ListCombo*>(QStringLiteral("ComboSeaState"));
    click(push("cmdDivDataChng"));
    for (const char* state : {"9", "0", "INVALID", ""}) {
        seaState->showText(QLatin1StringView(state));
        click(push("cmdSpeedVal2"));
        expectOneError("sea state");
    }
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, AListDeletedBeforeTheSaveLeavesADivisionWithoutShips)
{
    openCreated();
    QFile::remove(workFile(QStringLiteral("DivisionA1.txt")));
    save();
    EXPECT_TRUE(boxes().isEmpty());
    expectClosed();
    EXPECT_EQ(key("DIVISION1", "SHIPCNT"), QStringLiteral("0"));
    EXPECT_EQ(key("DIVISION1SHIP0", "NAME"), invalidValue);
    EXPECT_EQ(key("DIVISION0SHIP0", "NAME"), QStringLiteral("Zulu"));
}

TEST_F(DivisionFailures, AListOfOtherTextIsRefusedByTheSave)
{
    openCreated();
    putWorkFile(QStringLiteral("DivisionA1.txt"), "<html>\r\n\x01\xff\"nothing, of ours\r\n");
    save();
    expectOneError("ShipDatabase.mdb");
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, AFolderInPlaceOfTheListIsNamedBySaveAndSpeed)
{
    openCreated();
    makeFolder("DivisionA1.txt");
    save();
    expectOneError("DivisionA1.txt");
    click(push("cmdDivDataChng"));
    click(push("cmdSpeedVal2"));
    expectOneError("DivisionA1.txt");
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, AFolderInPlaceOfTheDivDataFileIsNamedAndTheSettingsAreLockedAllTheSame)
{
    openCreated();
    makeFolder("DivDataA1.txt");
    click(push("cmdDivDataChng"));
    click(push("cmdKeepDivData"));
    expectOneError("DivDataA1.txt");
    EXPECT_TRUE(push("cmdDivDataChng")->isVisible());
    expectEnabled(false, {"TxtHeading"});
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, AnEditThatCannotBeLoadedCanBeLeft)
{
    for (const char* name : {"DivisionA1.txt", "DivDataA1.txt", "ExisitTemp.bmm"}) {
        openScenario();
        make(Side::Blue, destroyers());
        m_before = profile();
        boxes().clear();
        makeFolder(name);
        edit(Side::Blue, 1);
        expectOneError(name);
        EXPECT_FALSE(control<QWidget>(dialog(), QStringLiteral("PicMask"))->isVisible());
        expectOnlyCancel();
        QDir().rmdir(workFile(QLatin1StringView(name)));
        expectWholeAndLeavable();
        edit(Side::Blue, 1);
        expectEnabled(true, {"CmdAdd", "CmdFlagShip", "cmdDivDataChng"});
    }
}

TEST_F(DivisionFailures, AScratchFileThatResistsKeepsNobodyInTheDialog)
{
    openEdited();
    makeFolder("ExisitTemp.bmm");
    click(push("CmdEditCancel"));
    expectOneError("ExisitTemp.bmm");
    expectClosed();
    QDir().rmdir(workFile(QStringLiteral("ExisitTemp.bmm")));
    edit(Side::Blue, 1);
    makeFolder("TempIniTemp.bmm");
    save();
    expectOneError("TempIniTemp.bmm");
    expectClosed();
}

TEST_F(DivisionFailures, ALostCopyOfTheEditCostsNoShip)
{
    openEdited();
    QFile::remove(workFile(QStringLiteral("ExisitTemp.bmm")));
    QFile::remove(workFile(QStringLiteral("TempIniTemp.bmm")));
    save();
    EXPECT_TRUE(boxes().isEmpty());
    expectClosed();
    for (const char* section : {"DIVISION0SHIP0", "DIVISION0SHIP1", "DIVISION0SHIP2"}) {
        EXPECT_NE(key(section, "NAME"), invalidValue) << section;
    }
}

TEST_F(DivisionFailures, ATruncatedDivDataFileLeavesTheRestToTheProfile)
{
    openScenario();
    make(Side::Blue, destroyers());
    put("DIVISION0", "SPEED", QStringLiteral("21"));
    putWorkFile(QStringLiteral("DivDataA1.txt"), "\"Division 1\"\r\n\"Blue\"\r\n\"Convoy\"\r\n\"4");
    edit(Side::Blue, 1);
    EXPECT_EQ(choices("CmbFormation")->shownText(), QStringLiteral("Convoy"));
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("4"));
    EXPECT_EQ(choices("CmbSpacing")->shownText(), QStringLiteral("500"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("21"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(DivisionFailures, WithoutADivDataFileTheDefaultsComeButTheDivisionIsTheOneChosen)
{
    openScenario();
    make(Side::Blue, {"DD Zulu"});
    make(Side::Red, {"DD Sikh"});
    make(Side::Red, {"DD Maori"});
    put("DIVISION2", "SPEED", QStringLiteral("21"));
    QFile::remove(workFile(QStringLiteral("DivDataB2.txt")));
    edit(Side::Red, 2);
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 2"));
    EXPECT_EQ(cell(0, 0), QStringLiteral("DD Maori"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("8"));
    save();
    EXPECT_EQ(key("DIVISION2", "SPEED"), QStringLiteral("8"));
    EXPECT_EQ(key("DIVISION0", "SHIPCNT"), QStringLiteral("1"));
}

TEST_F(DivisionFailures, DivDataOfOtherTextIsShownAsItStandsAndItsHeadingRefused)
{
    openScenario();
    make(Side::Blue, destroyers());
    putWorkFile(QStringLiteral("DivDataA1.txt"),
                "a, \"b\"\r\nGreen\r\nWedge\r\n500\r\nmany\r\nslow\r\nmore\r\n");
    boxes().clear();
    bool covered = false;
    script.messageBoxes.onShow = [&] {
        const auto* mask = control<QWidget>(dialog(), QStringLiteral("PicMask"));
        covered = mask->isVisible() && mask->geometry() == dialog().rect();
    };
    edit(Side::Blue, 1);
    script.messageBoxes.onShow = nullptr;
    EXPECT_TRUE(covered) << "while it is loaded";
    EXPECT_FALSE(control<QWidget>(dialog(), QStringLiteral("PicMask"))->isVisible());
    expectOneBox("You must enter a heading between 0 and 360 degrees.", "Out of Range");
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("0"));
    EXPECT_EQ(choices("CmbFormation")->shownText(), QStringLiteral("Wedge"));
    EXPECT_EQ(choices("CmbSpacing")->shownText(), QStringLiteral("many"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("slow"));
    EXPECT_EQ(caption("lblDivName"), QStringLiteral("Division 1"));
    save();
    expectClosed();
    EXPECT_EQ(key("DIVISION0", "DIVISIONNAME"), QStringLiteral("Division 1"));
    EXPECT_EQ(key("DIVISION0", "SIDE"), QStringLiteral("Blue"));
}

TEST_F(DivisionFailures, AListLongerThanAnyDivisionIsASubscriptOutOfRange)
{
    openScenario();
    make(Side::Blue, destroyers());
    m_before = profile();
    boxes().clear();
    putWorkFile(QStringLiteral("DivisionA1.txt"), QByteArray("\"DD Cossack\"\r\n").repeated(100000));
    edit(Side::Blue, 1);
    expectOneError("100000");
    expectOnlyCancel();
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, AListOfMoreThanTenShipsIsShownWhole)
{
    openScenario();
    make(Side::Blue, destroyers());
    putWorkFile(QStringLiteral("DivisionA1.txt"), QByteArray("\"DD Cossack\"\r\n").repeated(12));
    edit(Side::Blue, 1);
    EXPECT_EQ(cell(11, 0), QStringLiteral("DD Cossack"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(DivisionFailures, ANameWithQuotesAndACommaGoesTheWholeRoad)
{
    const QString name = QStringLiteral("O'Brien, \"Red\"");
    openScenario();
    make(Side::Blue, {"DD Cossack", "DD " + name});
    EXPECT_EQ(key("DIVISION0SHIP1", "NAME"), name);
    edit(Side::Blue, 1);
    EXPECT_EQ(cell(1, 0), QStringLiteral("DD ") + name);
    click(push("CmdFlagShip"));
    clickRow(1);
    click(push("cmdDivDataChng"));
    click(push("cmdSpeedVal2"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("9"));
    click(push("cmdKeepDivData"));
    save();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(key("DIVISION0SHIP1", "NAME"), name);
    EXPECT_EQ(key("DIVISION0", "FLAGSHIPINDEX"), QStringLiteral("1"));
    edit(Side::Blue, 1);
    EXPECT_EQ(flagRows(), QList<int>{1});
}

TEST_F(DivisionFailures, APositionBeyondItsBitsIsAnOverflowAndTheEditCanBeLeft)
{
    openScenario();
    make(Side::Blue, destroyers());
    put("DIVISION0SHIP0", "XPOSITION", QStringLiteral("99999999999"));
    m_before = profile();
    boxes().clear();
    edit(Side::Blue, 1);
    expectOneError("99999999999");
    expectOnlyCancel();
    // The map has its own say on it as soon as the dialog is left.
    put("DIVISION0SHIP0", "XPOSITION", QStringLiteral("0"));
    m_before = profile();
    expectWholeAndLeavable();
}

TEST_F(DivisionFailures, AProfileDeletedDuringAnEditIsNotBroughtBackByACancel)
{
    openEdited();
    QFile::remove(workFile(QStringLiteral("iniTemp.bmm")));
    click(push("CmdEditCancel"));
    EXPECT_TRUE(boxes().isEmpty());
    expectClosed();
}

} // namespace
} // namespace torvane::testing
