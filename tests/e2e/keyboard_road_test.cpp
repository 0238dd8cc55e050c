#include "e2e/division_dialog.h"
#include "e2e/kept_scenario.h"
#include "platform/profile.h"

#include <QFileInfo>

namespace torvane::testing {
namespace {

const QString title = QStringLiteral("Without a mouse");
const QString description = QStringLiteral("Two ships a side meet in the open sea. Neither may turn back.");
const QString tab = QStringLiteral("Tab");
const QString space = QStringLiteral("space");
const QString enter = QStringLiteral("Return");

/// Yards of a pixel by day at the zoom level of the start.
constexpr int yardsPerPixel = 60;

/// A way over the map by keys: so many steps, to the right and down, of ten pixels and of one.
struct MapWay
{
    QPoint large;
    QPoint small;

    QPoint pixels() const { return 10 * large + small; }
};

struct KeyboardDivision
{
    bool forceA;
    DivisionSettings settings;
    QString typedShip;    ///< found by letters typed into the list
    QString searchedShip; ///< found by the search
    MapWay way;           ///< from where the pointer is

    QString section() const { return forceA ? QStringLiteral("DIVISION0") : QStringLiteral("DIVISION1"); }
};

const KeyboardDivision forceA{.forceA = true,
                              .settings = {.heading = QStringLiteral("75"),
                                           .formation = 0,
                                           .spacing = 3,
                                           .speed = QStringLiteral("22")},
                              .typedShip = QStringLiteral("Bismarck"),
                              .searchedShip = QStringLiteral("Prinz Eugen"),
                              .way = {.large = {-11, 4}, .small = {-3, 2}}};
const KeyboardDivision forceB{.forceA = false,
                              .settings = {.heading = QStringLiteral("260"),
                                           .formation = 0,
                                           .spacing = 0,
                                           .speed = QStringLiteral("19")},
                              .typedShip = QStringLiteral("Rodney"),
                              .searchedShip = QStringLiteral("King George V"),
                              .way = {.large = {21, -9}, .small = {4, -7}}};

QStringList arrows(const QString& modifiers, QPoint steps)
{
    const auto keys = [&modifiers](int count, const char* forward, const char* back) {
        return QStringList(std::abs(count), modifiers + QLatin1StringView(count < 0 ? back : forward));
    };
    return keys(steps.x(), "Right", "Left") + keys(steps.y(), "Down", "Up");
}

/// From New to the end of the program, with keys alone: in the English menus by their mnemonics, in the
/// German ones, which have none, by F10 and arrows.
class KeyboardRoad : public ::testing::TestWithParam<Language>
{
protected:
    void chooseEntry(Menu menu, int place, const QStringList& mnemonics)
    {
        run.expectWindow(run.names().mainWindow);
        if (GetParam() == Language::English) {
            run.press(mnemonics);
        } else {
            run.choose(menu, {place});
        }
    }

    void describe()
    {
        chooseEntry(Menu::File, entry::fresh, {QStringLiteral("alt+f"), QStringLiteral("n")});
        run.expectWindow(run.names().overview);
        run.expect(QStringLiteral("the new scenario's defaults"), [this] {
            return !run.value(QStringLiteral("SCENARIODATA"), QStringLiteral("MOVIE")).isEmpty();
        });
        run.replaceText(title);
        run.press({tab});
        run.replaceText(description);
        run.press({enter}); // leads to the missions
        run.press(tab, 20); // past them, the movies, and what the forces have, to the environment
        run.press({space});
        run.expectWindow(run.names().environment);
        run.press({QStringLiteral("alt+o")}); // OK in both languages
        run.expectWindow(run.names().overview);
        run.press({tab, space});
    }

    void createDivision(const KeyboardDivision& division)
    {
        chooseEntry(Menu::CreateDivision, division.forceA ? entry::forceA : entry::forceB,
                    {QStringLiteral("alt+c"), division.forceA ? QStringLiteral("a") : QStringLiteral("b")});
        const QString force = division.forceA ? QStringLiteral("A") : QStringLiteral("B");
        const DivisionDialog dialog(run, QStringLiteral("Torvane - Create Division for Force ") + force,
                                    division.forceA, 1);
        dialog.openShipsOfNewDivision();
        dialog.pickShipByTyping(division.typedShip);
        dialog.pickShip(division.searchedShip);
        dialog.keepShips(2);
        dialog.change(division.settings);
        dialog.save();
    }

    // The map has the focus when the division waits for its place.
    void place(const KeyboardDivision& division)
    {
        const QString leader = division.section() + QStringLiteral("SHIP0");
        const QString before = run.value(leader, QStringLiteral("XPOSITION"));
        run.press(arrows(QStringLiteral("ctrl+shift+"), division.way.large));
        run.press(arrows(QStringLiteral("ctrl+"), division.way.small));
        run.press({space});
        run.expect(QStringLiteral("the division's place"),
                   [&] { return run.value(leader, QStringLiteral("XPOSITION")) != before; });
    }

    void save()
    {
        chooseEntry(Menu::File, entry::save, {QStringLiteral("alt+f"), QStringLiteral("s")});
        run.expect(QStringLiteral("the scenario file"),
                   [this] { return QFile::exists(folder.scenarioFile(title)); });
    }

    void leaveForTheGame()
    {
        const bool german = GetParam() == Language::German;
        folder.putGame(german ? QStringLiteral("Torvane Deutsch.exe") : QStringLiteral("Torvane.exe"));
        chooseEntry(Menu::File, entry::exit, {QStringLiteral("alt+f"), QStringLiteral("e")});
        run.expectWindow(run.names().exitQuestion);
        run.press({german ? QStringLiteral("alt+j") : QStringLiteral("alt+y")}); // not the default
        run.awaitEnd();
    }

    QString pointerPlace() const
    {
        return desktop.run(QStringLiteral("xdotool"), {QStringLiteral("getmouselocation")})
            .section(QLatin1StringView(" screen"), 0, 0);
    }

    Desktop desktop;
    GameFolder folder;
    EditorRun run{desktop, folder, GetParam()};
};

INSTANTIATE_TEST_SUITE_P(InBothLanguages, KeyboardRoad,
                         ::testing::Values(Language::German, Language::English),
                         [](const auto& language) { return languageWord(language.param); });

/// A saved scenario.
class SavedScenario
{
public:
    explicit SavedScenario(const QString& file) : m_profile(Profile::parse(bytesOf(file))) {}

    /// Says so if a key isn't there.
    QString value(const QString& section, const char* key) const
    {
        const auto value = m_profile.value(section.toLatin1(), key);
        return value ? QString::fromLatin1(*value) : QStringLiteral("no such key");
    }

    /// Yards to the right and down, as the map shows them.
    QPoint placeOfShip(const QString& section) const
    {
        bool numbers[] = {false, false};
        const QPoint place(value(section, "YARDSXPOSITION").toInt(&numbers[0]),
                           -value(section, "YARDSZPOSITION").toInt(&numbers[1]));
        EXPECT_TRUE(numbers[0] && numbers[1]) << section.toStdString();
        return place;
    }

private:
    Profile m_profile;
};

void expectDivision(const SavedScenario& saved, const KeyboardDivision& division)
{
    const QString section = division.section();
    EXPECT_EQ(saved.value(section, "SIDE"), division.forceA ? QStringLiteral("Blue") : QStringLiteral("Red"));
    EXPECT_EQ(saved.value(section, "FORMATIONHEADING"), division.settings.heading);
    EXPECT_EQ(saved.value(section + QStringLiteral("SHIP0"), "NAME"), division.typedShip);
    EXPECT_EQ(saved.value(section + QStringLiteral("SHIP1"), "NAME"), division.searchedShip);
    EXPECT_EQ(saved.value(section + QStringLiteral("SHIP2"), "NAME"), QStringLiteral("no such key"));
    EXPECT_NE(saved.placeOfShip(section + QStringLiteral("SHIP0")),
              saved.placeOfShip(section + QStringLiteral("SHIP1")));
}

TEST_P(KeyboardRoad, LeadsFromNewToASavedScenarioAndToTheGame)
{
    const QString pointer = pointerPlace();
    run.start();
    describe();
    for (const KeyboardDivision* division : {&forceA, &forceB}) {
        createDivision(*division);
        place(*division);
    }
    save();
    keepPicture(desktop,
                QStringLiteral("keyboard_road_%1").arg(QString::fromStdString(languageWord(GetParam()))));
    leaveForTheGame();
    EXPECT_EQ(folder.gameStart(), QFileInfo(folder.path()).canonicalFilePath());
    EXPECT_EQ(pointerPlace(), pointer) << "the mouse was used";

    const SavedScenario saved(folder.scenarioFile(title));
    EXPECT_EQ(saved.value(QStringLiteral("SCENARIODATA"), "TITLE"), title);
    EXPECT_EQ(saved.value(QStringLiteral("SCENARIODATA"), "DESCRIPTION_LINE0"), description);
    EXPECT_EQ(saved.value(QStringLiteral("SCENARIODATA"), "BATTLETYPE"), QStringLiteral("0")); // a meeting
    EXPECT_EQ(saved.value(QStringLiteral("SCENARIOINFO"), "DIVISIONCNT"), QStringLiteral("2"));
    expectDivision(saved, forceA);
    expectDivision(saved, forceB);
    // From one place to the other leads what was pressed in between.
    EXPECT_EQ(saved.placeOfShip(QStringLiteral("DIVISION1SHIP0")) -
                  saved.placeOfShip(QStringLiteral("DIVISION0SHIP0")),
              yardsPerPixel * forceB.way.pixels());
}

TEST_P(KeyboardRoad, TheMapHasTheKeysAgainAfterMenusInWhichNothingIsChosen)
{
    run.start();
    QImage before;
    for (const char* key : {"F10", "Right", "Escape", "Escape"}) {
        run.press({QString::fromLatin1(key)});
        before = run.mapPicture(); // the author looks before the next key
    }
    run.press(arrows(QStringLiteral("ctrl+shift+"), {-3, 2}));
    run.expect(QStringLiteral("the cross at the pointer"), [&] { return run.mapPicture() != before; });
    run.expectWindow(run.names().mainWindow);
}

} // namespace
} // namespace torvane::testing
