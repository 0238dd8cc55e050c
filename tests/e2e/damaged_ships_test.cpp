#include "e2e/first_scenario_road.h"
#include "e2e/kept_scenario.h"

namespace torvane::testing {
namespace {

const QString tab = QStringLiteral("Tab");
const QString backTab = QStringLiteral("shift+Tab");
const QString space = QStringLiteral("space");
const QString minus = QStringLiteral("minus");

/// A ship of the first scenario by the places of its entry in the Edit Ship menu.
struct DamagedShip
{
    const char* type;
    QList<int> entry;
    const char* section;
    int repair; ///< the system that is under repair, from 0 in the order of the page
};
// One of each type, each with another system damaged.
const DamagedShip ships[] = {
    {"BB", {1, 1, 1}, "DIVISION0SHIP0", 0}, {"BC", {1, 1, 2}, "DIVISION0SHIP1", 1},
    {"CA", {1, 1, 3}, "DIVISION0SHIP2", 2}, {"CL", {2, 1, 2}, "DIVISION2SHIP1", 3},
    {"DD", {1, 2, 1}, "DIVISION1SHIP0", 4}, {"TR", {2, 2, 1}, "DIVISION3SHIP0", 5},
};
constexpr int repairs = 6;
constexpr int maneuver = 1; // can't be destroyed in the dialog

class DamagedShips : public ::testing::TestWithParam<Language>
{
protected:
    // Each page starts at its first control and ends at the tabs of the pages, which stand ahead of it.
    void damageHullAndCrew()
    {
        run.press(minus, 5);
        run.press(tab, 2);
        run.press(minus, 4); // floatation
        run.press(tab, 2);
        run.press(QStringLiteral("plus"), 3); // fire
        run.press({tab});
        for (const int quality : {3, 0, 2, 4}) {
            run.press({tab});
            run.pickEntry(quality);
        }
        run.press(backTab, 10);
    }

    void damageSystems(int repair)
    {
        run.press(tab, repair);
        run.press({space});
        run.press(space, repair + 2); // so many minutes
        run.press(tab, repair == maneuver ? 1 : 2);
        run.press({space}); // closes the repair
        run.press(tab, repairs - repair);
        run.press(minus, 6); // propulsion
        run.press(tab, 2);
        run.pickEntry(0);        // rudder hard over
        run.press({tab, space}); // the first searchlight
        run.press(backTab, 10);
    }

    // The first turret, or the first magazine of a ship without turrets; and from the page's end, past the
    // tabs and the dialog's buttons backwards, two kinds of rounds.
    void damageMainGuns()
    {
        run.press({space});
        run.press(backTab, 4);
        run.press(minus, 3);
        run.press(backTab, 2);
        run.press(minus, 2);
        run.press(tab, 5);
    }

    // A gun of each place, the magazine, and some of its rounds.
    void damageSecondaryGuns()
    {
        run.press({space, tab, space, tab, space, tab, space, tab, space, tab});
        run.press(minus, 7);
        run.press(backTab, 6);
    }

    void damageTorpedoes()
    {
        run.press({space, tab, tab, space});
        run.press(backTab, 3);
    }

    void lookAt(const DamagedShip& ship, int page)
    {
        keepPicture(desktop, QStringLiteral("%1_%2_%3")
                                 .arg(QLatin1StringView(ship.type))
                                 .arg(page)
                                 .arg(QString::fromStdString(languageWord(GetParam()))));
    }

    void damage(const DamagedShip& ship)
    {
        run.choose(Menu::EditShip, ship.entry);
        run.expectWindow(run.names().shipData);
        const std::function<void()> pages[] = {
            [this] { damageHullAndCrew(); }, [&] { damageSystems(ship.repair); },
            [this] { damageMainGuns(); },    [this] { damageSecondaryGuns(); },
            [this] { damageTorpedoes(); },
        };
        for (int page = 0; page < static_cast<int>(std::size(pages)); ++page) {
            run.press({tab});
            pages[page]();
            if (&ship == &ships[0]) {
                lookAt(ship, page + 1);
            }
            run.press({QStringLiteral("Right")});
        }
        run.press(QStringLiteral("Left"), 4);
        run.press({QStringLiteral("Return")});
        run.expectWindow(run.names().mainWindow);
        EXPECT_EQ(run.value(QLatin1StringView(ship.section), QStringLiteral("TYPE")),
                  QLatin1StringView(ship.type));
    }

    Desktop desktop;
    GameFolder folder;
    EditorRun run{desktop, folder, GetParam()};
};

INSTANTIATE_TEST_SUITE_P(InBothLanguages, DamagedShips,
                         ::testing::Values(Language::German, Language::English),
                         [](const auto& language) { return languageWord(language.param); });

TEST_P(DamagedShips, OneOfEachTypeIsDamagedOnEveryPageAndSaved)
{
    QFile::copy(keptScenario("first", GetParam()), folder.scenarioFile(QStringLiteral("first")));
    run.start();
    run.load(QStringLiteral("first.scn"));
    for (const DamagedShip& ship : ships) {
        damage(ship);
    }
    const QString saved = folder.scenarioFile(FirstScenarioRoad::title());
    run.choose(Menu::File, {entry::save});
    run.expect(QStringLiteral("the scenario file"), [&] { return QFile::exists(saved); });
    expectKept(saved, "damaged", GetParam());
}

} // namespace
} // namespace torvane::testing
