// Draws every window of the editor into a folder, with the battle off the River Plate under edit, so that a
// change of theirs can be looked at in all languages, colours and densities:
//     QT_SCALE_FACTOR=1.5 window_gallery FOLDER [light|dark|contrast]

#include "divisions/create_division_frm.h"
#include "map/grid_level_frm.h"
#include "map/zoom_level_frm.h"
#include "overview/enviro_frm.h"
#include "overview/overview_frm.h"
#include "platform/toolkit_texts.h"
#include "platform/window_services.h"
#include "shell/about_frm.h"
#include "shell/editor.h"
#include "shell/help_viewer.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"
#include "shell/run_editor.h"
#include "shell/splash_frm.h"
#include "ship_selection/ship_dbase_frm.h"
#include "ship_state/ship_data_frm.h"
#include "support/scripted_services.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace {

using namespace torvane;
using namespace torvane::testing;

QPalette colours(const QString& name)
{
    if (name == QStringLiteral("dark")) {
        return {QColor(68, 72, 82), QColor(40, 42, 50)};
    }
    if (name != QStringLiteral("contrast")) {
        return QApplication::palette();
    }
    QPalette palette(Qt::black, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::BrightText}) {
        palette.setColor(role, Qt::white);
    }
    for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase}) {
        palette.setColor(role, Qt::black);
    }
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::PlaceholderText, Qt::lightGray);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(63, 242, 63));
    }
    return palette;
}

/// The editor in a game folder of its own, from its start on.
class Gallery
{
public:
    Gallery(const QString& folder, Language language)
        : m_folder(folder),
          m_suffix(language == Language::German ? QStringLiteral("_de.png") : QStringLiteral("_en.png")),
          m_toolkitTexts(language),
          m_messageBoxes(language),
          m_helpViewer(language, m_messageBoxes),
          m_editor(stage(), {.language = language},
                   {m_messageBoxes, m_script.inputBoxes, m_script.fileBoxes, m_helpViewer,
                    m_script.programLauncher, m_script.clock, m_script.randomSource})
    {
        const char* scenario =
            language == Language::German ? "/de/Rio de la Plata.scn" : "/en/River Plate.scn";
        m_script.fileBoxes.answers = {QStringLiteral(SCENARIOS) + QLatin1StringView(scenario)};
        m_editor.start();
        settle();
    }

    void draw()
    {
        keep(m_editor.splashFrm(), "splash");
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_editor.splashFrm(), &key);
        settle();
        choose("mnuLoad");
        keep(m_editor.overviewFrm(), "overview");
        push(m_editor.overviewFrm(), "cmdEnviroCntrl");
        keep(m_editor.enviroFrm(), "environment");
        push(m_editor.enviroFrm(), "CmdCancel");
        push(m_editor.overviewFrm(), "CmdCancel");
        drawMap();
        drawDivision();
        drawShip();
        choose("mnuAbout");
        keep(m_editor.aboutFrm(), "about");
        push(m_editor.aboutFrm(), "cmdOK");
        choose("mnuHelpTopics");
        keep(*topLevel("HelpFrm"), "help");
        drawBox();
    }

private:
    QString stage()
    {
        const QDir files(QStringLiteral(GAME_FILES));
        QDir(m_game.path()).mkpath(QStringLiteral("ScenarioEditor"));
        QDir(m_game.path()).mkpath(QStringLiteral("Scenarios"));
        for (const QString& name : files.entryList(QDir::Files)) {
            QFile::copy(files.filePath(name), m_game.filePath(QStringLiteral("ScenarioEditor/") + name));
        }
        return m_game.path();
    }

    void drawMap()
    {
        for (const char* tool : {"cmdVisibCircles", "cmdGunCircles"}) {
            push(m_editor.mainFrm(), tool);
        }
        keep(m_editor.mainFrm(), "main");
        push(m_editor.mainFrm(), "cmdZoomLevel");
        keep(m_editor.zoomLevelFrm(), "zoom");
        m_editor.zoomLevelFrm().close();
        settle();
        push(m_editor.mainFrm(), "cmdGridLevel");
        keep(m_editor.gridLevelFrm(), "grid");
        m_editor.gridLevelFrm().close();
        settle();
    }

    void drawDivision()
    {
        choose("mnuForceA1");
        keep(m_editor.createDivisionFrm(), "division");
        push(m_editor.createDivisionFrm(), "cmdDivDataChng");
        keep(m_editor.createDivisionFrm(), "division_open");
        push(m_editor.createDivisionFrm(), "cmdKeepDivData");
        push(m_editor.createDivisionFrm(), "CmdAdd");
        keep(m_editor.shipDBaseFrm(), "ships");
        push(m_editor.shipDBaseFrm(), "CmdSortSrch");
        keep(m_editor.shipDBaseFrm(), "ships_sorting");
        push(m_editor.shipDBaseFrm(), "CmdCancel");
        push(m_editor.createDivisionFrm(), "CmdEditCancel");
    }

    void drawShip()
    {
        choose("mnuDiv1Ship1");
        auto* tabs = m_editor.shipDataFrm().findChild<QTabBar*>(QStringLiteral("TabStrip1"));
        for (int page = 0; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            keep(m_editor.shipDataFrm(), QStringLiteral("ship_%1").arg(page + 1).toLatin1().constData());
        }
        push(m_editor.shipDataFrm(), "CmdCancel");
    }

    void drawBox()
    {
        QTimer::singleShot(0, [this] {
            QWidget* box = QApplication::activeModalWidget();
            settle();
            keep(*box, "box");
            box->close();
        });
        choose("mnuExit");
    }

    static QWidget* topLevel(const char* name)
    {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1StringView(name)) {
                return window;
            }
        }
        throw std::runtime_error(std::string("no window ") + name);
    }

    static void settle()
    {
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    void choose(const char* entry)
    {
        m_editor.mainFrm().menu().action(QLatin1StringView(entry))->trigger();
        settle();
    }

    static void push(QWidget& window, const char* control)
    {
        auto* button = window.findChild<QAbstractButton*>(QLatin1StringView(control));
        if (button == nullptr || !button->isEnabled()) {
            throw std::runtime_error(std::string("can't press ") + control);
        }
        button->click();
        settle();
    }

    void keep(QWidget& window, const char* name)
    {
        settle();
        const QString file = m_folder + u'/' + QLatin1StringView(name) + m_suffix;
        if (!window.isVisible() || !window.grab().save(file)) {
            throw std::runtime_error("can't draw " + file.toStdString());
        }
    }

    QString m_folder;
    QString m_suffix;
    QTemporaryDir m_game;
    ToolkitTexts m_toolkitTexts;
    WindowMessageBoxes m_messageBoxes;
    WindowHelpViewer m_helpViewer;
    ScriptedServices m_script;
    Editor m_editor;
};

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("usage: window_gallery FOLDER [light|dark|contrast]\n", stderr);
        return 2;
    }
    prepareApplication();
    QApplication::setPalette(colours(arguments.value(2)));
    try {
        QDir().mkpath(arguments.at(1));
        for (const Language language : {Language::German, Language::English}) {
            Gallery(arguments.at(1), language).draw();
        }
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
