#include "faults/scripted_walk.h"

#include "divisions/create_division_frm.h"
#include "faults/scripted_names.h"
#include "overview/enviro_frm.h"
#include "overview/overview_frm.h"
#include "platform/picture_box.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "shell/splash_frm.h"
#include "ship_selection/ship_dbase_frm.h"
#include "ship_state/ship_data_frm.h"
#include "support/input.h"

#include <QAbstractButton>
#include <QAction>
#include <QFileInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QTableView>
#include <QTest>

#include <utility>

namespace torvane::testing {

namespace {

constexpr int attempts = 2;
constexpr int mostDialogs = 8;
constexpr QPoint placeA(200, 200);
constexpr QPoint placeB(420, 150);

template <typename Control>
Control* find(Form& window, const char* name)
{
    return control<Control>(window, QLatin1StringView(name));
}

/// What a user can press: it shows, and neither it nor its window is greyed or waits.
bool canBeUsed(const Form& window, const QWidget* part)
{
    return window.isInputEnabled() && part->isVisible() && part->isEnabled();
}

void retype(QLineEdit* box, const QString& text)
{
    press(box, Qt::Key_A, Qt::ControlModifier);
    type(box, text);
}

} // namespace

ScriptedWalk::ScriptedWalk(Editor& editor, ScriptedServices& script, Watcher watcher)
    : m_editor(editor), m_script(script), m_watcher(std::move(watcher))
{
}

void ScriptedWalk::step(const char* name, const Action& action)
{
    const QString text = QLatin1StringView(name);
    m_watcher.step(text);
    bool done = false;
    for (int i = 0; i < attempts && !done && !m_editor.hasEnded(); ++i) {
        done = action();
        if (!done) {
            leaveDialogs();
        }
    }
    m_watcher.result(text, done);
}

bool ScriptedWalk::isInFront(const Form& window) const
{
    return m_editor.forms().front() == &window && window.isVisible() && window.isInputEnabled();
}

bool ScriptedWalk::choose(const QString& entry)
{
    return isInFront(m_editor.mainFrm()) && chooseMenu(m_editor.mainFrm(), entry);
}

bool ScriptedWalk::push(Form& window, const char* name)
{
    auto* button = find<QAbstractButton>(window, name);
    if (!window.isVisible() || !canBeUsed(window, button)) {
        return false;
    }
    click(button);
    return true;
}

// Whatever is in front of the main window goes as a user makes it go: by Cancel, by its close box, or, where
// neither helps, by OK.
void ScriptedWalk::leaveDialogs()
{
    for (int i = 0; i < mostDialogs && !m_editor.hasEnded(); ++i) {
        Form* const front = m_editor.forms().front();
        if (front == nullptr || front == &m_editor.mainFrm()) {
            return;
        }
        press(front, Qt::Key_Escape);
        if (m_editor.forms().front() == front) {
            closeBox(front);
        }
        if (m_editor.forms().front() == front && front->findChild<QAbstractButton*>("cmdOK") != nullptr) {
            push(*front, "cmdOK");
        }
    }
}

bool ScriptedWalk::walk(const QString& savedAs)
{
    step("splash", [this] { return leaveSplash(); });
    step("new", [this] { return openNew(); });
    step("overview", [this] { return describe(); });
    step("environment", [this] { return setWeather(); });
    step("overview left", [this] { return leaveOverview(); });
    step("create A", [this] { return create(true); });
    step("place A", [this] { return place(true); });
    step("create B", [this] { return create(false); });
    step("place B", [this] { return place(false); });
    step("ship", [this] { return damageShip(); });
    step("edit", [this] { return editDivision(); });
    step(saveStep, [this] { return save(); });
    step(saveAsStep, [&] { return saveAs(savedAs); });
    step("exit", [this] { return leave(); });
    return m_editor.hasEnded();
}

bool ScriptedWalk::look()
{
    step("splash", [this] { return leaveSplash(); });
    step("new", [this] { return openNew(); });
    step("overview left", [this] { return leaveOverview(); });
    step("exit", [this] { return leave(); });
    return m_editor.hasEnded();
}

bool ScriptedWalk::leaveSplash()
{
    if (m_editor.splashFrm().isVisible()) {
        press(&m_editor.splashFrm(), Qt::Key_Space);
    }
    return isInFront(m_editor.mainFrm());
}

bool ScriptedWalk::openNew()
{
    return choose(QStringLiteral("mnuNew")) && isInFront(m_editor.overviewFrm());
}

bool ScriptedWalk::describe()
{
    OverviewFrm& overview = m_editor.overviewFrm();
    if (!isInFront(overview) && !choose(QStringLiteral("mnuOverView"))) {
        return false;
    }
    const QString title = QFileInfo(QLatin1StringView(scenarioNames.front())).completeBaseName();
    auto* box = find<QLineEdit>(overview, "TxtTitle");
    if (!isInFront(overview) || !canBeUsed(overview, box)) {
        return false;
    }
    retype(box, title);
    return box->text() == title;
}

bool ScriptedWalk::setWeather()
{
    OverviewFrm& overview = m_editor.overviewFrm();
    EnviroFrm& enviro = m_editor.enviroFrm();
    if (!isInFront(overview) && !choose(QStringLiteral("mnuOverView"))) {
        return false;
    }
    if (!push(overview, "cmdEnviroCntrl") || !isInFront(enviro)) {
        return false;
    }
    push(enviro, "cmdGameLenHours");
    return push(enviro, "cmdOK") && isInFront(overview);
}

bool ScriptedWalk::leaveOverview()
{
    OverviewFrm& overview = m_editor.overviewFrm();
    return (isInFront(overview) || choose(QStringLiteral("mnuOverView"))) && push(overview, "cmdOK") &&
           isInFront(m_editor.mainFrm());
}

// By clicks on the first rows of the list.
bool ScriptedWalk::pickShips(int first, int count)
{
    ShipDBaseFrm& ships = m_editor.shipDBaseFrm();
    auto* grid = find<QTableView>(ships, "Grid1");
    auto* division = find<QListWidget>(ships, "LstDivision");
    const int before = division->count();
    for (int row = first; row < first + count; ++row) {
        const QModelIndex cell = grid->model()->index(row, 2);
        if (!isInFront(ships) || !cell.isValid() || !canBeUsed(ships, grid)) {
            return false;
        }
        grid->scrollTo(cell);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(cell).center());
        settle();
    }
    return division->count() == before + count;
}

bool ScriptedWalk::create(bool forceA)
{
    CreateDivisionFrm& dialog = m_editor.createDivisionFrm();
    if (!choose(forceA ? QStringLiteral("mnuCreateForceA") : QStringLiteral("mnuCreateForceB")) ||
        !isInFront(dialog) || !push(dialog, "CmdAdd") || !isInFront(m_editor.shipDBaseFrm())) {
        return false;
    }
    const int first = forceA ? 0 : 3;
    const bool picked = pickShips(first, 2) || pickShips(first, 1);
    return picked && push(m_editor.shipDBaseFrm(), "CmdKeepShips") && isInFront(dialog) &&
           push(dialog, "CmdSaveData") && isInFront(m_editor.mainFrm());
}

bool ScriptedWalk::place(bool forceA)
{
    MainFrm& main = m_editor.mainFrm();
    auto* map = find<PictureBox>(main, "Picture_Main");
    if (!isInFront(main) || !canBeUsed(main, map)) {
        return false;
    }
    if (valueOf(main.ChkPlotDiv) != 1 &&
        !choose(forceA ? QStringLiteral("mnuDiv1") : QStringLiteral("mnuDiv5"))) {
        return false;
    }
    const QPoint place = forceA ? placeA : placeB;
    QTest::mouseMove(map, place);
    QTest::mouseClick(map, Qt::LeftButton, {}, place);
    settle();
    return valueOf(main.ChkPlotDiv) != 1;
}

bool ScriptedWalk::damageShip()
{
    ShipDataFrm& ship = m_editor.shipDataFrm();
    return choose(QStringLiteral("mnuDiv1Ship1")) && isInFront(ship) && push(ship, "cmdHitPtsDown") &&
           push(ship, "cmdSave") && isInFront(m_editor.mainFrm());
}

// Another ship comes in, one goes, and the course changes.
bool ScriptedWalk::editDivision()
{
    CreateDivisionFrm& dialog = m_editor.createDivisionFrm();
    ShipDBaseFrm& ships = m_editor.shipDBaseFrm();
    if (!choose(QStringLiteral("mnuForceA1")) || !isInFront(dialog) || !push(dialog, "CmdAdd") ||
        !isInFront(ships) || !pickShips(2, 1)) {
        return false;
    }
    auto* division = find<QListWidget>(ships, "LstDivision");
    QTest::mouseClick(division->viewport(), Qt::LeftButton, {},
                      division->visualItemRect(division->item(1)).center());
    settle();
    if (!push(ships, "CmdRemove") || !push(ships, "CmdKeepShips") || !isInFront(dialog) ||
        !push(dialog, "cmdDivDataChng")) {
        return false;
    }
    retype(find<QLineEdit>(dialog, "TxtHeading"), QStringLiteral("45"));
    return push(dialog, "cmdKeepDivData") && push(dialog, "cmdOK") && isInFront(m_editor.mainFrm());
}

// Save shows nothing, whatever becomes of it: a user who looks into the folder would see.
bool ScriptedWalk::save()
{
    m_script.messageBoxes.answers = {};
    return choose(QStringLiteral("mnuSave"));
}

bool ScriptedWalk::saveAs(const QString& path)
{
    const qsizetype before = m_script.messageBoxes.shown.size();
    m_script.fileBoxes.answers = {path};
    // The question about a file that is there, where it comes, is answered by Yes.
    m_script.messageBoxes.answers = {MessageBox::Answer::Yes};
    const bool chosen = choose(QStringLiteral("mnuSaveAs"));
    m_script.messageBoxes.answers = {};
    const auto& shown = m_script.messageBoxes.shown;
    return chosen && shown.size() > before && shown.last().icon == MessageBox::Icon::Information &&
           shown.last().text == QStringLiteral("File saved successfully!");
}

bool ScriptedWalk::leave()
{
    leaveDialogs();
    if (!choose(QStringLiteral("mnuExit"))) {
        closeBox(&m_editor.mainFrm());
    }
    return m_editor.hasEnded();
}

} // namespace torvane::testing
