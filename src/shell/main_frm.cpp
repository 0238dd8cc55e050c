#include "shell/main_frm.h"

#include "divisions/create_division_frm.h"
#include "overview/overview_frm.h"
#include "platform/number_text.h"
#include "platform/picture_box.h"
#include "platform/pointer.h"
#include "scenario_file/save_scenario.h"
#include "shell/about_frm.h"
#include "shell/captions.h"
#include "shell/division_commands.h"
#include "shell/editor.h"
#include "shell/main_menu.h"
#include "shell/new_scenario.h"
#include "shell/save_commands.h"
#include "shell/splash_frm.h"
#include "store/working_tables.h"

#include <QAction>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace torvane {

namespace {

// The sea by day and by night.
const QColor daySea(1, 176, 235);
const QColor nightSea(0, 0, 128);
const QColor helpTagColor(255, 255, 128);

// The window's inner layout in its normal state, in pixels.
constexpr int mapTop = 48;
constexpr int mapWidth = 625;
constexpr int mapHeight = 417;
constexpr int scrollBarSize = 18;
constexpr int scrollBarRange = 32767;
constexpr int rulerLeft = 320;
constexpr int helpTagHeight = 17;
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
    makeHelpTags();
    connectCommands();
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
    auto* surface = new QWidget(this);
    surface->setObjectName(QStringLiteral("surface"));
    surface->setMinimumSize(mapWidth + scrollBarSize, mapTop + mapHeight + scrollBarSize);
    layout->addWidget(surface);

    m_pictureMain = new PictureBox(surface);
    m_pictureMain->setObjectName(QStringLiteral("Picture_Main"));
    m_pictureMain->setFocusPolicy(Qt::StrongFocus);
    m_hScroll = new QScrollBar(Qt::Horizontal, surface);
    m_hScroll->setObjectName(QStringLiteral("HScroll1"));
    m_vScroll = new QScrollBar(Qt::Vertical, surface);
    m_vScroll->setObjectName(QStringLiteral("VScroll1"));
    for (QScrollBar* bar : {m_hScroll, m_vScroll}) {
        bar->setRange(0, scrollBarRange);
        bar->setFocusPolicy(Qt::NoFocus);
    }
    m_rulerCaption = new QLabel(surface);
    m_rulerCaption->setObjectName(QStringLiteral("Label1"));
    m_rulerCaption->move(rulerLeft, 8);
    m_distance = new QLabel(QStringLiteral("0 yds."), surface);
    m_distance->setObjectName(QStringLiteral("lblDistance"));
    m_distance->setGeometry(rulerLeft + 8, 26, 88, 18);
    m_distance->setAutoFillBackground(true);
    m_distance->setBackgroundRole(QPalette::Midlight);
    m_distance->setAlignment(Qt::AlignCenter);
    makeDebugReadOuts(surface);
    m_progress.emplace(surface);
}

// Read-outs for development; shown by the debug mode alone.
void MainFrm::makeDebugReadOuts(QWidget* surface)
{
    int left = 440;
    for (const char* name : {"PicCoords", "Picture3", "Picture5"}) {
        auto* readOut = new PictureBox(surface);
        readOut->setObjectName(QLatin1StringView(name));
        readOut->setGeometry(left, 4, 64, 16);
        readOut->hide();
        m_debugReadOuts.push_back(readOut);
        left += 66;
    }
}

void MainFrm::makeHelpTags()
{
    QWidget* surface = findChild<QWidget*>(QStringLiteral("surface"));
    for (std::size_t i = 0; i < helpTags.size(); ++i) {
        auto* tag = new QLabel(surface);
        tag->setObjectName(QLatin1StringView(helpTags[i].name));
        QPalette colors = tag->palette();
        colors.setColor(QPalette::Window, helpTagColor);
        colors.setColor(QPalette::WindowText, Qt::black);
        tag->setPalette(colors);
        tag->setAutoFillBackground(true);
        tag->hide();
        m_helpTags[i] = tag;
    }
}

void MainFrm::connectCommands()
{
    const auto command = [this](const char* entry, auto handler) {
        on(m_menu->action(QLatin1StringView(entry)), &QAction::triggered, handler);
    };
    command("mnuNew", [this] { newScenario(m_editor); });
    command("mnuSave", [this] { saveScenario(m_editor); });
    command("mnuSaveAs", [this] { saveScenarioAs(m_editor); });
    command("mnuOverView", [this] { showOverview(); });
    for (const DivisionCommandRow& row : divisionCommandRows()) {
        command(row.entry, [this, &row] { openDivisionDialog(m_editor, row); });
    }
    command("mnuExit", [this] { unload(); });
    command("mnuHotText", [this] { toggleHelpTags(); });
    command("mnuAbout", [this] { showAbout(); });
    command("mnuHelpTopics", [this] {
        m_editor.services().helpViewer.showContents(m_editor.paths().workDir +
                                                    QStringLiteral("SE_README.HLP"));
    });
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
    m_editor.scratchFiles().removeLeftovers();
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
    for (PictureBox* readOut : m_debugReadOuts) {
        readOut->show();
    }
    m_editor.services().messageBoxes.show(
        {.text = QStringLiteral("DeBug Mode is On!"), .title = QStringLiteral("DEBUG")});
}

void MainFrm::applyCaptions(Language language)
{
    setWindowTitle(mainText(MainText::Title, language));
    m_menu->setCaptions(language);
    const QString ruler = mainText(MainText::RulerCaption, language);
    m_rulerCaption->setText(ruler);
    m_rulerCaption->adjustSize();
    if (language == Language::German) {
        const int width = qRound(captionPixels * static_cast<double>(ruler.size()));
        m_rulerCaption->resize(std::max(width, m_rulerCaption->width()), m_rulerCaption->height());
    }
    fitMenuBar();
    for (std::size_t i = 0; i < helpTags.size(); ++i) {
        const HelpTagText& text = helpTags[i].in(language);
        m_helpTags[i]->setText(text.string());
        m_helpTags[i]->resize(std::max(text.width(), m_helpTags[i]->sizeHint().width()), helpTagHeight);
    }
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
    while (width() > mapWidth + scrollBarSize && font.pointSizeF() > smallestMenuFont) {
        font.setPointSizeF(font.pointSizeF() - 0.25);
        bar->setFont(font);
    }
    setMinimumWidth(std::max(mapWidth + scrollBarSize, width()));
}

void MainFrm::onActivate()
{
    centreScrollBars();
    m_viewCentre = QPoint(m_pictureMain->width() / 2, m_pictureMain->height() / 2);
    m_pictureMain->setBackColor(valueOf(chkDayNight) == 1 ? daySea : nightSea);
    m_targetAreaInUse = valueOf(chkBombardment) == 1;
    m_menu->setEnabled(QStringLiteral("mnuTargetBox"), m_targetAreaInUse);
    if (valueOf(chkCreateReturn) == 1) {
        askForPosition();
    }
    if (valueOf(chkReturnFromEdit) == 1) {
        takeReturnedPosition();
    }
    redrawMap();
}

void MainFrm::centreScrollBars()
{
    m_hScroll->setValue(m_hScroll->maximum() / 2);
    m_vScroll->setValue(m_vScroll->maximum() / 2);
    m_lastHScrollValue = m_hScroll->value();
    m_lastVScrollValue = m_vScroll->value();
}

void MainFrm::askForPosition()
{
    setValue(chkCreateReturn, 0);
    m_separationRingsPending = true;
    CreateDivisionFrm& dialog = m_editor.createDivisionFrm();
    m_repositionKey = repositionKeyFor(dialog.lblside->text(), txtDivisionReturn->text());
    setValue(dialog.chkReposition, 1);
    setValue(ChkPlotDiv, 1);
}

// An edited division is laid out again at its old place: no click is awaited.
void MainFrm::takeReturnedPosition()
{
    setValue(m_editor.createDivisionFrm().chkReposition, 0);
    setValue(ChkPlotDiv, 0);
    setValue(chkReturnFromEdit, 0);
    m_cursorYardsX = static_cast<float>(numberValue(txtXPosition->text()));
    m_cursorYardsY = static_cast<float>(numberValue(txtYPosition->text()));
}

void MainFrm::redrawMap()
{
    m_menu->hideEditShipMenus();
    m_pictureMain->clear();
    if (!m_targetAreaInUse) {
        placeTargetArea(0, 0);
    }
}

void MainFrm::placeTargetArea(int x, int z)
{
    m_target.x = x;
    m_target.z = z;
}

void MainFrm::saveINIfile(const QString& path)
{
    torvane::saveINIfile(path, m_editor.workingProfile(), m_target, m_editor.overviewFrm().lblForceA->text(),
                         [this] { m_progress->advanceProgress(); });
}

void MainFrm::showProgress(const QString& text)
{
    m_progress->show(text, m_pictureMain->geometry());
}

void MainFrm::toggleHelpTags()
{
    m_helpTagsOn = !m_helpTagsOn;
    QAction* entry = m_menu->action(QStringLiteral("mnuHotText"));
    entry->setChecked(m_helpTagsOn);
    entry->setText(
        mainText(m_helpTagsOn ? MainText::HelpTagsOn : MainText::HelpTagsOff, m_editor.language()));
}

void MainFrm::showOverview()
{
    m_editor.overviewFrm().showForm(this);
    setInputEnabled(false);
}

void MainFrm::showAbout()
{
    m_editor.aboutFrm().showForm(this);
    setInputEnabled(false);
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
        // The captions of one language carry no mnemonics: this key leads into the menus in both.
        QMenuBar* bar = findChild<QMenuBar*>();
        bar->setActiveAction(bar->actions().constFirst());
        bar->setFocus(Qt::MenuBarFocusReason);
    } else {
        Form::keyPressEvent(event);
    }
}

void MainFrm::resizeEvent(QResizeEvent* event)
{
    Form::resizeEvent(event);
    const QWidget* surface = m_pictureMain->parentWidget();
    const int width = isMaximized() ? surface->width() - scrollBarSize : mapWidth;
    const int height = isMaximized() ? surface->height() - mapTop - scrollBarSize : mapHeight;
    m_pictureMain->setGeometry(0, mapTop, width, height);
    m_hScroll->setGeometry(0, mapTop + height, width, scrollBarSize);
    m_vScroll->setGeometry(width, mapTop, scrollBarSize, height);
}

} // namespace torvane
