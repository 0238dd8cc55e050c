#include "e2e/division_dialog.h"
#include "e2e/kept_scenario.h"

namespace torvane::testing {
namespace {

const QString newTitle = QStringLiteral("Second night");
const QString leader = QStringLiteral("DIVISION1SHIP0");

class EditedScenario : public ::testing::TestWithParam<Language>
{
protected:
    // One ship out, another in, and other settings.
    void editSecondDivisionOfForceA()
    {
        run.choose(Menu::EditDivision, {1, 2});
        const DivisionDialog dialog(run, QStringLiteral("Torvane - Edit Force A Division 2"), true, 2);
        dialog.openShipsOfEdit();
        dialog.removeFirstShip();
        dialog.pickShip(QStringLiteral("Hans Lody"));
        dialog.keepShips(3);
        dialog.change(
            {.heading = QStringLiteral("90"), .formation = 0, .spacing = 2, .speed = QStringLiteral("30")});
        dialog.save();
        EXPECT_EQ(run.value(leader, QStringLiteral("NAME")), QStringLiteral("Z24"));
    }

    void moveSecondDivisionOfForceA()
    {
        const QString before = run.value(leader, QStringLiteral("XPOSITION"));
        run.choose(Menu::Reposition, {1, 2});
        run.clickMap({200, 140});
        run.expect(QStringLiteral("the division's new place"),
                   [&] { return run.value(leader, QStringLiteral("XPOSITION")) != before; });
    }

    void giveNewTitle()
    {
        run.choose(Menu::Overview, {entry::overview});
        run.expectWindow(run.names().overview);
        run.replaceText(newTitle); // the title had the focus when the dialog was left
        run.press({QStringLiteral("Return")});
        run.expectWindow(run.names().mainWindow);
    }

    QString saved()
    {
        const QString file = folder.scenarioFile(newTitle);
        run.choose(Menu::File, {entry::save});
        run.expect(QStringLiteral("the scenario file"), [&] { return QFile::exists(file); });
        return file;
    }

    Desktop desktop;
    GameFolder folder;
    EditorRun run{desktop, folder, GetParam()};
};

INSTANTIATE_TEST_SUITE_P(InBothLanguages, EditedScenario,
                         ::testing::Values(Language::German, Language::English),
                         [](const auto& language) { return languageWord(language.param); });

// The German file keeps its target area under Force B's keys, of which a load takes x alone.
TEST_P(EditedScenario, IsSavedUnderAnotherTitleAndLoadsAsItWasSaved)
{
    const QString first = folder.scenarioFile(QStringLiteral("first"));
    QFile::copy(keptScenario("first", GetParam()), first);
    run.start();
    run.load(QStringLiteral("first.scn"));
    editSecondDivisionOfForceA();
    moveSecondDivisionOfForceA();
    giveNewTitle();
    const QString file = saved();
    expectKept(file, "edited", GetParam());
    expectKept(first, "first", GetParam()); // the old scenario stays

    run.load(newTitle + QStringLiteral(".scn"));
    ASSERT_TRUE(QFile::remove(file));
    expectKept(saved(), "edited", GetParam());
    run.leave();
}

} // namespace
} // namespace torvane::testing
