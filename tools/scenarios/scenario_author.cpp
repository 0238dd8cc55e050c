#include "scenarios/scenario_author.h"

#include "divisions/create_division_frm.h"
#include "divisions/formation_placement.h"
#include "map/zoom_level_frm.h"
#include "overview/enviro_frm.h"
#include "overview/missions.h"
#include "overview/overview_frm.h"
#include "overview/scenario_coding.h"
#include "scenario_file/scenario_format.h"
#include "scenarios/dialog_hand.h"
#include "shell/main_frm.h"
#include "shell/splash_frm.h"
#include "ship_selection/ship_dbase_frm.h"
#include "store/working_tables.h"

#include <QDir>
#include <QMouseEvent>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace torvane {

using testing::settle;

namespace {

constexpr int nameColumn = 2; // of the list of ships

QString missionCaption(const QString& english, Language language)
{
    const Mission* mission = missionOfCaption(english, Language::English);
    if (mission == nullptr) {
        throw std::runtime_error("no mission " + english.toStdString());
    }
    return mission->caption.in(language);
}

} // namespace

ScenarioAuthor::ScenarioAuthor(const QString& catalogue, Language language) : m_language(language)
{
    const QDir folder(m_folder.path());
    folder.mkpath(QStringLiteral("ScenarioEditor"));
    folder.mkpath(QStringLiteral("Scenarios"));
    createWorkingTables(folder.filePath(QStringLiteral("ScenarioEditor/") + scenarioDataFile));
    if (!QFile::copy(catalogue, folder.filePath(QStringLiteral("ScenarioEditor/") + shipDatabaseFile))) {
        throw std::runtime_error("can't copy " + catalogue.toStdString());
    }
    m_editor =
        std::make_unique<Editor>(folder.path(), BuildOptions{.language = language}, m_script.services());
    m_editor->start();
    settle();
    testing::press(&m_editor->splashFrm(), Qt::Key_Space);
    expectNoMessage();
}

QString ScenarioAuthor::make(const ScenarioPlan& plan)
{
    chooseEntry("mnuNew");
    describe(plan);
    for (const DivisionPlan& division : plan.divisions) {
        create(division);
    }
    if (plan.target) {
        placeTarget(*plan.target, plan.level);
    }
    return save();
}

void ScenarioAuthor::load(const QString& path)
{
    m_script.fileBoxes.answers = {path};
    chooseEntry("mnuLoad");
    DialogHand(m_editor->overviewFrm()).push("CmdCancel");
    expectNoMessage();
}

QString ScenarioAuthor::save()
{
    const QString path =
        m_editor->paths().scenarioDir + m_editor->overviewFrm().title().trimmed() + scenarioFileSuffix;
    QFile::remove(path);
    chooseEntry("mnuSave");
    expectNoMessage();
    if (!QFile::exists(path)) {
        throw std::runtime_error("not saved: " + path.toStdString());
    }
    return path;
}

QImage ScenarioAuthor::picture(int level)
{
    zoomTo(level);
    return m_editor->mainFrm().grab().toImage();
}

void ScenarioAuthor::describe(const ScenarioPlan& plan)
{
    const DialogHand hand(m_editor->overviewFrm());
    hand.fill("TxtTitle", plan.title.in(m_language));
    hand.fill("RichTxtDescrip", plan.description.in(m_language));
    hand.choose("cmbMission", missionCaption(plan.mission, m_language));
    hand.choose("cmbMovie", plan.movie);
    hand.choose("CmbBlueSide", shownNavy(plan.forceA.navy, m_language));
    hand.choose("CmbRedSide", shownNavy(plan.forceB.navy, m_language));
    hand.fill("txtDisengageA", QString::number(plan.forceA.disengageHeading));
    hand.fill("txtDisengageB", QString::number(plan.forceB.disengageHeading));
    hand.push("cmdEnviroCntrl");
    setEnvironment(plan.environment);
    hand.push("cmdOK");
    expectNoMessage();
}

void ScenarioAuthor::setEnvironment(const EnvironmentPlan& plan)
{
    const DialogHand hand(m_editor->enviroFrm());
    hand.choose("ComboMonth", shownMonth(plan.month, m_language));
    hand.choose("ComboYear", QString::number(plan.year));
    hand.choose("ComboLocation", shownLocation(plan.location, m_language));
    hand.choose("cmbRain", shownRain(plan.rain ? QStringLiteral("1") : QStringLiteral("0"), m_language));
    setClock(hand, "TxtStartTime", plan.start, "cmdHours", "cmdMinutes");
    setClock(hand, "TxtSunrise", plan.sunrise, "cmdSunriseHour", "cmdSunriseMin");
    setClock(hand, "TxtSunset", plan.sunset, "cmdSunsetHour", "cmdSunsetMin");
    // Hours first: they move the minutes, and the minutes leave them alone.
    hand.pushUntil("cmdGameLenHours", [&] { return hand.shown("lblGmLenHour").toInt() == plan.length.hour; });
    hand.pushUntil("cmdGameLenMin", [&] { return hand.shown("lblGmLenMin").toInt() == plan.length.minute; });
    // The wind brings its sea with it.
    hand.fill("TxtWindSpd", QString::number(plan.wind));
    hand.fill("TxtWindDir", QString::number(plan.windDirection));
    const auto reads = [&](const char* box, int percent) {
        return [&hand, box, percent] {
            return hand.find<QLineEdit>(box)->text() == QString::number(percent) + QStringLiteral(" %");
        };
    };
    hand.pushUntil("Command3", reads("TxtVis", plan.visibility));
    hand.pushUntil("Command4", reads("TxtRadar", plan.radar));
    hand.push("cmdOK");
    expectNoMessage();
}

// Minutes first: in the last hour of a sunset they would move it.
void ScenarioAuthor::setClock(const DialogHand& hand, const char* label, ClockTime time, const char* hours,
                              const char* minutes)
{
    hand.pushUntil(minutes, [&] { return clockTimeOf(hand.shown(label)).minute == time.minute; });
    hand.pushUntil(hours, [&] { return clockTimeOf(hand.shown(label)).hour == time.hour; });
}

void ScenarioAuthor::create(const DivisionPlan& plan)
{
    zoomTo(plan.level);
    chooseEntry(plan.side == Side::Blue ? "mnuCreateForceA" : "mnuCreateForceB");
    const DialogHand hand(m_editor->createDivisionFrm());
    hand.push("CmdAdd");
    pickShips(plan.ships);
    setDivision(plan);
    hand.push("CmdSaveData");
    clickMap(plan.anchor);
    expectNoMessage();
}

void ScenarioAuthor::pickShips(const QStringList& ships)
{
    for (const QString& ship : ships) {
        pickShip(ship);
        expectNoMessage();
    }
    DialogHand(m_editor->shipDBaseFrm()).push("CmdKeepShips");
}

// A force may hold ships of any navy: those of another stand behind its filter.
void ScenarioAuthor::pickShip(const QString& ship)
{
    if (pickFromList(ship)) {
        return;
    }
    const DialogHand hand(m_editor->shipDBaseFrm());
    for (const char* filter : {"optFilterRN", "optFilterUSN", "optFilterKM", "optFilterIJN"}) {
        hand.push(filter);
        if (pickFromList(ship)) {
            return;
        }
    }
    hand.fail(QStringLiteral("no ship ") + ship);
}

bool ScenarioAuthor::pickFromList(const QString& ship)
{
    auto* list = DialogHand(m_editor->shipDBaseFrm()).find<QTableView>("Grid1");
    const QAbstractItemModel& model = *list->model();
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, nameColumn);
        if (index.data().toString() == ship) {
            list->scrollTo(index);
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
            settle();
            return true;
        }
    }
    return false;
}

void ScenarioAuthor::setDivision(const DivisionPlan& plan)
{
    const DialogHand hand(m_editor->createDivisionFrm());
    hand.push("cmdDivDataChng");
    hand.fill("TxtHeading", QString::number(plan.heading));
    const std::optional<Formation> formation = formationOf(plan.formation);
    if (!formation) {
        hand.fail(QStringLiteral("no formation ") + plan.formation);
    }
    hand.choose("CmbFormation", static_cast<int>(*formation));
    hand.choose("CmbSpacing", QString::number(plan.spacing));
    hand.fill("TxtSpeed", QString::number(plan.speed));
    if (plan.encumbered) {
        hand.push("optEncumYES");
    }
    hand.push("cmdKeepDivData");
    if (plan.flagship != 0) {
        hand.push("CmdFlagShip");
        auto* ships = hand.find<QTableWidget>("GrdDivision");
        QTest::mouseClick(ships->viewport(), Qt::LeftButton, {},
                          ships->visualItemRect(ships->item(plan.flagship, 0)).center());
        settle();
    }
}

void ScenarioAuthor::placeTarget(Yards place, int level)
{
    zoomTo(level);
    chooseEntry("mnuTargetBox");
    clickMap(place);
}

void ScenarioAuthor::zoomTo(int level)
{
    const ZoomLevel& wanted = zoomLevels.at(static_cast<std::size_t>(level));
    // The option that is on closes the dialog by no click.
    if (m_editor->mainFrm().map().state().view.zoomIndex != wanted.zoomIndex) {
        DialogHand(m_editor->mainFrm()).push("cmdZoomLevel");
        DialogHand(m_editor->zoomLevelFrm()).push(wanted.option);
    }
}

void ScenarioAuthor::clickMap(Yards place)
{
    MainFrm& window = m_editor->mainFrm();
    auto* map = DialogHand(window).find<QWidget>("Picture_Main");
    const ViewState& view = window.map().state().view;
    const ZoomLevel* level = std::ranges::find(zoomLevels, view.zoomIndex, &ZoomLevel::zoomIndex);
    const double scale = window.chkDayNight->isChecked() ? level->dayScale : level->nightScale;
    const QPoint at(view.mapOriginX + static_cast<int>(std::lround(place.x / scale)),
                    view.mapOriginY + static_cast<int>(std::lround(place.z / scale)));
    if (!map->rect().contains(at)) {
        throw std::runtime_error("beyond the map: " + std::to_string(place.x) + ',' +
                                 std::to_string(place.z));
    }
    // The window system tells no move to where the pointer already is.
    QMouseEvent move(QEvent::MouseMove, at, map->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(map, &move);
    QTest::mouseClick(map, Qt::LeftButton, Qt::NoModifier, at);
    settle();
}

void ScenarioAuthor::chooseEntry(const char* entry)
{
    if (!testing::chooseMenu(m_editor->mainFrm(), QLatin1StringView(entry))) {
        throw std::runtime_error(std::string("can't choose ") + entry);
    }
}

void ScenarioAuthor::expectNoMessage()
{
    if (!m_script.messageBoxes.shown.isEmpty()) {
        throw std::runtime_error("the editor says: " + m_script.messageBoxes.shown.last().text.toStdString());
    }
}

} // namespace torvane
