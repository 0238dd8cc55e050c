#include "windows/division_fixture.h"

namespace torvane::testing {
namespace {

class DivisionSettings : public DivisionDialogs
{
protected:
    void openSettings(const QStringList& ships = destroyers(), Language language = Language::English)
    {
        openScenario(language);
        create(Side::Blue);
        if (!ships.isEmpty()) {
            keepShips(ships);
        }
        click(push("cmdDivDataChng"));
    }
    QList<QColor> lineColors()
    {
        QList<QColor> colors;
        for (const char* line : {"linTop", "linLeft", "linRight", "linBottom"}) {
            colors.append(
                control<QWidget>(dialog(), QLatin1StringView(line))->palette().color(QPalette::Window));
        }
        return colors;
    }
    QColor pixel(int x, int y) { return compass()->image().pixelColor(x, y); }
    /// The white pixels of the picture.
    QRect bow()
    {
        QRect found;
        const QImage& image = compass()->image();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == QColor(Qt::white)) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        return found;
    }
};

TEST_F(DivisionSettings, OpenAndNothingElseCanBeDoneMeanwhile)
{
    openSettings();
    expectEnabled(true, {"txtDivName", "CmbSide", "CmbFormation", "TxtHeading", "CmdClckWse", "CmdCntClckWse",
                         "cmdSpeedVal", "cmdSpeedVal2", "CmbSpacing", "TxtSpeed", "optEncumNO"});
    expectEnabled(false, {"CmdNewDivision", "CmdAdd", "CmdEditShip", "CmdFlagShip", "CmdSaveData"});
    EXPECT_FALSE(push("cmdDivDataChng")->isVisible());
    EXPECT_TRUE(push("cmdKeepDivData")->isVisible());
    EXPECT_FALSE(isShown("CmbDivName"));
    EXPECT_EQ(dialog().focusWidget(), field("TxtHeading"));
}

TEST_F(DivisionSettings, OfAnEditedDivisionOpenLeaveNoSaveEither)
{
    openScenario();
    make(Side::Blue, destroyers());
    edit(Side::Blue, 1);
    click(push("cmdDivDataChng"));
    expectEnabled(false, {"cmdOK"});
    click(push("cmdKeepDivData"));
    expectEnabled(true, {"cmdOK"});
}

TEST_F(DivisionSettings, KeptAreLockedAndWrittenToTheDivDataFile)
{
    openSettings(destroyers(), Language::German);
    pick(choices("CmbFormation"), "Konvoi");
    pick(choices("CmbSpacing"), "2000");
    retype(field("TxtHeading"), QStringLiteral("135"));
    retype(field("TxtSpeed"), QStringLiteral("17"));
    click(push("cmdKeepDivData"));
    expectEnabled(false,
                  {"txtDivName", "CmbSide", "CmbFormation", "TxtHeading", "CmdClckWse", "CmdCntClckWse",
                   "cmdSpeedVal", "cmdSpeedVal2", "CmbSpacing", "TxtSpeed", "optEncumNO", "optEncumYES"});
    expectEnabled(true, {"CmdAdd", "CmdFlagShip", "CmdSaveData", "CmdEditShip", "CmdNewDivision"});
    EXPECT_TRUE(push("cmdDivDataChng")->isVisible());
    EXPECT_FALSE(push("cmdKeepDivData")->isVisible());
    EXPECT_TRUE(isShown("CmbDivName"));
    EXPECT_EQ(workBytes(QStringLiteral("DivDataA1.txt")),
              "\"Division 1\"\r\n\"Blue\"\r\n\"Convoy\"\r\n\"135\"\r\n\"2000\"\r\n\"17\"\r\n\r\n\r\n");
}

TEST_F(DivisionSettings, AreToldApartByTheirFourLinesAndAWord)
{
    openSettings();
    const QList<QColor> open = lineColors();
    EXPECT_EQ(caption("lblLock"), QStringLiteral("Open"));
    click(push("cmdKeepDivData"));
    const QList<QColor> locked = lineColors();
    EXPECT_EQ(caption("lblLock"), QStringLiteral("Locked"));
    for (int i = 0; i < 4; ++i) {
        EXPECT_NE(open[i], locked[i]) << i;
    }
    click(push("cmdDivDataChng"));
    EXPECT_EQ(lineColors(), open);
}

TEST_F(DivisionSettings, ADivisionWithoutShipsCanBeSetBeforehandAndStillNotSaved)
{
    openSettings({});
    retype(field("TxtHeading"), QStringLiteral("90"));
    click(push("cmdKeepDivData"));
    expectEnabled(false, {"CmdSaveData", "TxtHeading"});
    expectEnabled(true, {"CmdAdd"});
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("90"));
}

TEST_F(DivisionSettings, HeadingButtonsTurnByFiveAndWrap)
{
    openSettings();
    const struct
    {
        const char* from;
        const char* button;
        const char* to;
    } turns[] = {{"0", "CmdClckWse", "5"},     {"358", "CmdClckWse", "0"}, {"2", "CmdCntClckWse", "360"},
                 {"355", "CmdClckWse", "360"}, {"360", "CmdClckWse", "0"}, {"360", "CmdCntClckWse", "355"},
                 {"5", "CmdCntClckWse", "0"}};
    for (const auto& [from, button, to] : turns) {
        retype(field("TxtHeading"), QLatin1StringView(from));
        click(push(button));
        EXPECT_EQ(field("TxtHeading")->text(), QLatin1StringView(to)) << from << button;
    }
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(DivisionSettings, ATypedHeadingCountsWithItsIntegerPart)
{
    openSettings();
    retype(field("TxtHeading"), QStringLiteral("360"));
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("360"));
    pasteOver(field("TxtHeading"), QStringLiteral("90.75"));
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("90"));
    retype(field("TxtHeading"), QString());
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("0"));
    retype(field("TxtHeading"), QStringLiteral("x"));
    EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("0"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(DivisionSettings, AHeadingBeyondTheCircleIsRefusedAndBecomesNought)
{
    const struct
    {
        Language language;
        const char* text;
        const char* title;
    } cases[] = {
        {Language::English, "You must enter a heading between 0 and 360 degrees.", "Out of Range"},
        {Language::German, "Sie müssen einen Wert zwischen 0 und 360 eingeben.", "Außer Reichweite"}};
    for (const auto& [language, text, title] : cases) {
        openSettings(destroyers(), language);
        retype(field("TxtHeading"), QStringLiteral("361"));
        expectOneBox(text, title);
        EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("0"));
        pasteOver(field("TxtHeading"), QStringLiteral("-1"));
        expectOneBox(text, title);
        pasteOver(field("TxtHeading"), QStringLiteral("99999999999999999999"));
        expectOneBox(text, title);
        EXPECT_EQ(field("TxtHeading")->text(), QStringLiteral("0"));
    }
}

TEST_F(DivisionSettings, TheMarkIsALineWithAWhiteSquareAtItsBow)
{
    openSettings();
    ASSERT_EQ(compass()->size(), QSize(121, 121)) << "so the centre is pixel 60, and the half length 57";
    const struct
    {
        const char* heading;
        QPoint bow;
        QPoint stern;
    } marks[] = {{"0", {60, 3}, {60, 117}},   {"90", {117, 60}, {3, 60}},   {"180", {60, 117}, {60, 3}},
                 {"270", {3, 60}, {117, 60}}, {"45", {100, 20}, {20, 100}}, {"360", {60, 3}, {60, 117}}};
    const QColor ground = pixel(0, 0);
    for (const auto& [heading, bowEnd, stern] : marks) {
        retype(field("TxtHeading"), QLatin1StringView(heading));
        EXPECT_EQ(bow(), QRect(bowEnd - QPoint(2, 2), QSize(4, 4))) << heading;
        for (const QPoint& point : {stern, QPoint(60, 60), (bowEnd + QPoint(60, 60)) / 2}) {
            EXPECT_NE(pixel(point.x(), point.y()), ground) << heading;
        }
    }
}

TEST_F(DivisionSettings, ThePictureHoldsTheMarkAlone)
{
    openSettings();
    retype(field("TxtHeading"), QStringLiteral("45"));
    retype(field("TxtHeading"), QStringLiteral("0"));
    const QColor ground = pixel(0, 0);
    const QRect square = bow();
    const QImage& image = compass()->image();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool marked = square.contains(x, y) || (x == 60 && y >= 3 && y <= 117);
            ASSERT_EQ(image.pixelColor(x, y) != ground, marked) << x << ' ' << y;
        }
    }
}

TEST_F(DivisionSettings, TheHeadingButtonsRedrawTheMark)
{
    openSettings();
    const QRect before = bow();
    click(push("CmdClckWse"));
    EXPECT_GT(bow().center().x(), before.center().x());
    click(push("CmdCntClckWse"));
    EXPECT_EQ(bow(), before);
}

TEST_F(DivisionSettings, SpeedWrapsAtTheLimitOfShipsAndSea)
{
    openSettings({"BB Hood", "DD Cossack"});
    enviro().findChild<ListCombo*>(QStringLiteral("ComboSeaState"))->showEntry(QStringLiteral("8"));
    retype(field("TxtSpeed"), QStringLiteral("19"));
    click(push("cmdSpeedVal2"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("20"));
    click(push("cmdSpeedVal2"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("1"));
    click(push("cmdSpeedVal"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("20"));
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(DivisionSettings, SpeedLimitFollowsTheOrderOfTheShips)
{
    openSettings({"DD Cossack", "BB Hood"});
    enviro().findChild<ListCombo*>(QStringLiteral("ComboSeaState"))->showEntry(QStringLiteral("8"));
    retype(field("TxtSpeed"), QStringLiteral("1"));
    click(push("cmdSpeedVal"));
    EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("15"));
}

TEST_F(DivisionSettings, SpeedWithoutShipsIsEightOnEitherButton)
{
    openSettings({});
    for (const char* button : {"cmdSpeedVal", "cmdSpeedVal2"}) {
        retype(field("TxtSpeed"), QStringLiteral("31"));
        click(push(button));
        EXPECT_EQ(field("TxtSpeed")->text(), QStringLiteral("8")) << button;
    }
}

TEST_F(DivisionSettings, ATypedSpeedIsStoredUnchanged)
{
    openSettings();
    retype(field("TxtSpeed"), QStringLiteral("full 77"));
    EXPECT_TRUE(boxes().isEmpty());
    click(push("cmdKeepDivData"));
    save();
    EXPECT_EQ(key("DIVISION0", "SPEED"), QStringLiteral("full 77"));
}

TEST_F(DivisionSettings, CargoIsForTheTransportingForceOfATransportScenarioAlone)
{
    const struct
    {
        const char* transports;
        const char* blueForceType;
        Side side;
        bool may;
    } cases[] = {{"1", "0", Side::Blue, true}, {"1", "0", Side::Red, false},  {"1", "1", Side::Blue, false},
                 {"1", "1", Side::Red, true},  {"0", "0", Side::Blue, false}, {"0", "1", Side::Red, false}};
    openScenario();
    for (const auto& [transports, blueForceType, side, may] : cases) {
        store("DDTRANSPORTS", transports);
        store("BLUE_FORCE_TYPE", blueForceType);
        create(side);
        keepShips(destroyers());
        EXPECT_FALSE(isEnabled("optEncumYES")) << "locked";
        click(push("cmdDivDataChng"));
        EXPECT_EQ(isEnabled("optEncumYES"), may) << transports << blueForceType;
        EXPECT_TRUE(isEnabled("optEncumNO"));
        click(push("cmdKeepDivData"));
        EXPECT_FALSE(isEnabled("optEncumYES")) << "kept";
        click(push("CmdCancel"));
    }
}

TEST_F(DivisionSettings, AnEncumberedDivisionIsStoredAsSuch)
{
    openScenario();
    store("DDTRANSPORTS", "1");
    create(Side::Blue);
    keepShips(destroyers());
    click(push("cmdDivDataChng"));
    click(option("optEncumYES"));
    click(push("cmdKeepDivData"));
    save();
    EXPECT_EQ(key("DIVISION0", "ENCUMBERED"), QStringLiteral("1"));
}

TEST_F(DivisionSettings, EnterDoesTheNextStep)
{
    openScenario();
    create(Side::Blue);
    press(choices("CmbFormation"), Qt::Key_Return);
    EXPECT_TRUE(editor().shipDBaseFrm().isVisible()) << "the ships first";
    closeShips();
    keepShips(destroyers());
    click(push("cmdDivDataChng"));
    retype(field("TxtHeading"), QStringLiteral("15"));
    press(field("TxtHeading"), Qt::Key_Return);
    EXPECT_TRUE(push("cmdDivDataChng")->isVisible()) << "then the settings are kept";
    EXPECT_TRUE(dialog().isVisible());
    press(dialog().focusWidget(), Qt::Key_Return);
    expectClosed();
    EXPECT_EQ(key("DIVISION0", "FORMATIONHEADING"), QStringLiteral("15"));
}

} // namespace
} // namespace torvane::testing
