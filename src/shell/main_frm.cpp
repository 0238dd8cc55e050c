#include "shell/main_frm.h"

#include "divisions/create_division_frm.h"
#include "map/map_surface.h"
#include "map/map_tips.h"
#include "map/tool_row.h"
#include "overview/overview_frm.h"
#include "platform/control_captions.h"
#include "platform/pointer.h"
#include "platform/text_files.h"
#include "scenario_file/save_scenario.h"
#include "shell/about_frm.h"
#include "shell/captions.h"
#include "shell/commands.h"
#include "shell/division_commands.h"
#include "shell/edit_ship_commands.h"
#include "shell/editor.h"
#include "shell/killed_run.h"
#include "shell/load_commands.h"
#include "shell/main_menu.h"
#include "shell/new_scenario.h"
#include "shell/save_commands.h"
#include "shell/splash_frm.h"
#include "store/force_sizes.h"
#include "store/working_tables.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QResizeEvent>
#include <QVBoxLayout>

namespace torvane {

namespace {

constexpr double smallestMenuFont = 7.5; // points
constexpr double captionPixels = 5.5;    // width of a character of a caption

} // namespace

MainFrm::MainFrm(Editor& editor) : EditorForm(editor, QStringLiteral("MainFrm"), Qt::Window)
{
    auto* bar = new QMenuBar(this);
    bar->setObjectName(QStringLiteral("menuBar"));
    bar->setStyleSheet(QStringLiteral(
        "QMenuBar { background: palette(window); border: none; }"
        "QMenuBar::item { background: transparent; padding: 4px 5px; }"
        "QMenuBar::item:selected { background: palette(highlight); color: palette(highlighted-text); }"));
    m_menu = new MainMenu(bar);
    makeSurface();
    connectCommands();
    connectMap();
    leadKeysToMap();
}

MainFrm::~MainFrm()
{
    // The window may also go by another road than its unload: nothing of the run stays behind.
    try {
        killFiles();
    } catch (const RuntimeError&) {
        // The program ends; there is no one left to tell.
    }
}

void MainFrm::makeSurface()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(findChild<QMenuBar*>());
    m_surface = new MapSurface(this);
    layout->addWidget(m_surface);
    m_map.emplace(m_editor, *m_surface);
    m_progress.emplace(m_surface);
}

void MainFrm::connectCommands()
{
    const auto command = [this](const char* entry, auto handler) {
        on(m_menu->action(QLatin1StringView(entry)), &QAction::triggered, handler);
    };
    command("mnuNew", [this] { newScenario(m_editor); });
    command("mnuLoad", [this] { loadScenario(m_editor); });
    command("mnuSave", [this] { saveScenario(m_editor); });
    command("mnuSaveAs", [this] { saveScenarioAs(m_editor); });
    command("mnuOverView", [this] { showOverview(); });
    for (const DivisionCommandRow& row : divisionCommandRows()) {
        command(row.entry, [this, &row] { openDivisionDialog(m_editor, row); });
    }
    command("mnuExit", [this] { unload(); });
    command("mnuHotText", [this] { toggleHelpTags(); });
    command("mnuAbout", [this] { showAbout(); });
    command("mnuHelpTopics",
            [this] { m_editor.services().helpViewer.showContents(m_editor.paths().workDir + helpFileName); });
    for (const QString& entry : editShipEntries()) {
        on(m_menu->action(entry), &QAction::triggered, [this, entry] { editShip(m_editor, entry); });
    }
}

void MainFrm::connectMap()
{
    on(&m_surface->map(), &MapBox::typed, [this](const QString& character) { m_map->keyTyped(character); });
    on(&m_surface->map(), &MapBox::clickKeyTyped,
       [this](const QString& character) { m_map->clickKeyTyped(character); });
    on(&m_surface->map(), &MapBox::pressed,
       [this](Qt::MouseButton button, QPointF position) { m_map->mousePressed(button, position); });
    on(&m_surface->map(), &MapBox::moved, [this](QPointF position) { m_map->mouseMoved(position); });
    on(&m_surface->tools(), &ToolRow::clicked, [this](Tool tool) { m_map->useTool(tool); });
    on(&m_surface->horizontal(), &MapScrollBar::stepped,
       [this](int value, ScrollEvent event) { m_map->scrolledHorizontally(value, event, mapWindowState()); });
    on(&m_surface->vertical(), &MapScrollBar::stepped,
       [this](int value, ScrollEvent event) { m_map->scrolledVertically(value, event, mapWindowState()); });
    on(m_menu->action(QStringLiteral("mnuTargetBox")), &QAction::triggered,
       [this] { m_map->armTargetArea(); });
    on(m_surface->targetTool(), &QAbstractButton::clicked, [this] { m_map->armTargetArea(); });
    for (const bool blue : {true, false}) {
        for (int division = 1; division <= divisionsPerSide; ++division) {
            const RepositionRow& row = repositionRow(blue, division);
            on(m_menu->action(QLatin1StringView(row.entry)), &QAction::triggered,
               [this, key = QString::fromLatin1(row.repositionKey)] { askForPosition(key); });
        }
    }
}

// A menu bar that is left together with the window has the focus when the window comes back, though no menu
// is in use any more, and would swallow the keys that are meant for the map.
void MainFrm::leadKeysToMap()
{
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, const QWidget* focus) {
        const auto* bar = qobject_cast<const QMenuBar*>(focus);
        if (bar && bar->parent() == this && !bar->activeAction()) {
            m_surface->map().setFocus();
        }
    });
}

void MainFrm::askForPosition(const QString& repositionKey)
{
    m_map->setRepositionKey(repositionKey);
    setValue(m_editor.createDivisionFrm().chkReposition, 1);
    setValue(ChkPlotDiv, 1);
}

void MainFrm::onLoad()
{
    setValue(chkGermanVersion, m_editor.german() ? 1 : 0);
    EditorForm::onLoad();
    setPointer(Pointer::Hourglass);
    m_editor.splashFrm().showForm();
    setPointer(Pointer::Default);
    m_editor.setBasePath(findBasePath());
    txtCurDir->setText(m_editor.paths().basePath);
    m_editor.dataControls().bind(m_editor.paths().workDir);
    setValue(chkDayNight, 1);
    if (m_editor.debugMode() == 1) {
        showDebugReadOuts();
    }
    m_started = true; // also where a file of an earlier run resists
    recoverKilledRun(m_editor);
    m_editor.scratchFiles().removeLeftovers();
    removeUnfinishedFiles(m_editor.paths().scenarioDir);
    killFiles();
}

QString MainFrm::findBasePath()
{
    if (m_editor.debugMode() != 1) {
        return m_editor.programDir();
    }
    const std::optional<QString> answer = m_editor.services().inputBoxes.ask(
        QStringLiteral("Database Path"),
        QStringLiteral("Enter the directory path to the ScenarioEditor.exe   For example:  "
                       "C:\\Work\\Torvane\\Work"),
        QStringLiteral("C:\\Work\\Torvane\\Work"));
    return answer.value_or(QString());
}

void MainFrm::showDebugReadOuts()
{
    m_surface->showDevelopmentReadOuts();
    m_editor.services().messageBoxes.show(
        {.text = QStringLiteral("DeBug Mode is On!"), .title = QStringLiteral("DEBUG")});
}

void MainFrm::applyCaptions(Language language)
{
    setWindowTitle(mainText(MainText::Title, language));
    m_menu->setCaptions(language);
    const QString ruler = mainText(MainText::RulerCaption, language);
    const int rulerWidth =
        language == Language::German ? qRound(captionPixels * static_cast<double>(ruler.size())) : 0;
    m_surface->setRulerCaption(ruler, rulerWidth);
    fitMenuBar();
    m_surface->tools().setCaptions(language);
    applyControlTips(*m_surface, mapTips, language);
    applyControlNames(*m_surface, mapNames, language);
    applyControlDescriptions(*m_surface, mapDescriptions, language);
}

// The German menus are long: the bar's text gives way until they stand in the window's width, and what is
// still too long makes the window wider.
void MainFrm::fitMenuBar()
{
    QMenuBar* bar = findChild<QMenuBar*>();
    const auto width = [bar] {
        bar->ensurePolished();
        return bar->sizeHint().width();
    };
    QFont font = bar->font();
    while (width() > m_surface->minimumWidth() && font.pointSizeF() > smallestMenuFont) {
        font.setPointSizeF(font.pointSizeF() - 0.25);
        bar->setFont(font);
    }
    setMinimumWidth(std::max(m_surface->minimumWidth(), width()));
}

void MainFrm::onActivate()
{
    m_map->centre();
    m_map->setBackColor();
    m_map->setTargetAreaInUse(valueOf(chkBombardment) == 1);
    m_menu->setEnabled(QStringLiteral("mnuTargetBox"), valueOf(chkBombardment) == 1);
    m_map->drawScaleBars();
    m_map->anchorAtOrigin();
    if (valueOf(chkCreateReturn) == 1) {
        setValue(chkCreateReturn, 0);
        m_map->awaitSeparationRings();
        askForPosition(
            repositionKeyFor(m_editor.createDivisionFrm().lblside->text(), txtDivisionReturn->text()));
    }
    if (valueOf(chkReturnFromEdit) == 1) {
        takeReturnedPosition();
    }
    redrawMap();
}

// An edited division is laid out again at its old place: no click is awaited.
void MainFrm::takeReturnedPosition()
{
    setValue(m_editor.createDivisionFrm().chkReposition, 0);
    setValue(ChkPlotDiv, 0);
    setValue(chkReturnFromEdit, 0);
    m_map->placeAt(txtXPosition->text(), txtYPosition->text());
}

void MainFrm::saveINIfile(const QString& path)
{
    torvane::saveINIfile(path, m_editor.workingProfile(), targetArea(),
                         m_editor.overviewFrm().lblForceA->text(), [this] { m_progress->advanceProgress(); });
}

void MainFrm::showProgress(const QString& text)
{
    m_progress->show(text, m_surface->map().geometry());
}

void MainFrm::toggleHelpTags()
{
    m_helpTagsOn = !m_helpTagsOn;
    m_surface->tools().setTagsOn(m_helpTagsOn);
    QAction* entry = m_menu->action(QStringLiteral("mnuHotText"));
    entry->setChecked(m_helpTagsOn);
    entry->setText(
        mainText(m_helpTagsOn ? MainText::HelpTagsOn : MainText::HelpTagsOff, m_editor.language()));
}

void MainFrm::showOverview()
{
    m_editor.overviewFrm().openOver(*this);
}

void MainFrm::showAbout()
{
    m_editor.aboutFrm().openOver(*this);
}

void MainFrm::onCloseBox()
{
    unload();
}

void MainFrm::unload()
{
    const MessageBox::Answer answer =
        m_editor.services().messageBoxes.show({.text = mainText(MainText::ExitQuestion, m_editor.language()),
                                               .title = mainText(MainText::ExitTitle, m_editor.language()),
                                               .icon = MessageBox::Icon::Question,
                                               .buttons = MessageBox::Buttons::YesNo,
                                               .defaultAnswer = MessageBox::Answer::No});
    // Both answers end the program, also where a file resists.
    try {
        killFiles();
    } catch (const RuntimeError& error) {
        dropProfile(m_editor); // a run that was ended leaves nothing to recover
        m_editor.report(error);
    }
    if (answer == MessageBox::Answer::Yes) {
        Execute_Program(gameProgram(m_editor.programDir(), m_editor.language()), QString(),
                        m_editor.programDir());
    }
    m_editor.end();
}

void MainFrm::killFiles()
{
    m_editor.scratchFiles().killFiles();
    m_editor.scratchFiles().killSurplusDivisions();
}

void MainFrm::emptyDBase()
{
    torvane::emptyDBase(m_editor.paths().workDir + scenarioDataFile);
}

void MainFrm::createNewIniTempFile()
{
    if (!m_editor.workingProfile().createNewIniTempFile()) {
        m_editor.services().messageBoxes.show(
            {.text = mainText(MainText::ProfileFileError, m_editor.language()),
             .title = QString(),
             .icon = MessageBox::Icon::Information});
    }
}

bool MainFrm::Execute_Program(const QString& file, const QString& parameters, const QString& directory)
{
    return m_editor.services().programLauncher.open(file, parameters, directory);
}

void MainFrm::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_F12) {
        runHandler([this] { unload(); });
    } else if (event->key() == Qt::Key_F10) {
        // The captions of one language carry no mnemonics: this key leads into the menus in both. An open
        // menu takes the keys by itself; the focus stays where it comes back to.
        QMenuBar* bar = findChild<QMenuBar*>();
        bar->setActiveAction(bar->actions().constFirst());
    } else {
        EditorForm::keyPressEvent(event);
    }
}

WindowState MainFrm::mapWindowState() const
{
    if (isMinimized()) {
        return WindowState::Minimised;
    }
    return isMaximized() || isFullScreen() ? WindowState::Maximised : WindowState::Normal;
}

void MainFrm::windowResized()
{
    if (m_started) {
        runHandler([this] { m_map->resized(mapWindowState(), frameGeometry().size(), m_surface->size()); });
    }
}

void MainFrm::resizeEvent(QResizeEvent* event)
{
    EditorForm::resizeEvent(event);
    windowResized();
}

// The window system may tell the new state after the new size.
void MainFrm::changeEvent(QEvent* event)
{
    EditorForm::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        windowResized();
    }
}

} // namespace torvane
