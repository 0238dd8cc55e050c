#include "flood/habits.h"

#include "flood/habit_tables.h"
#include "platform/form.h"
#include "shell/commands.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>

#include <algorithm>
#include <array>

namespace torvane::testing {

namespace {

using Kind = Input::Kind;

constexpr int noisePercent = 18;
constexpr int menuDelay = 300; // milliseconds in which a menu opens the one below it

bool isUsable(const QWidget* widget)
{
    return widget != nullptr && widget->isVisible() && widget->isEnabled();
}

QWidget* shownHelp()
{
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        QWidget* widget = window->isVisible() ? QWidget::find(window->winId()) : nullptr;
        if (widget != nullptr && widget->objectName() == QStringLiteral("HelpFrm")) {
            return widget;
        }
    }
    return nullptr;
}

/// The group of a command.
const CommandRow* groupOf(const QString& entry)
{
    const auto row = std::ranges::find_if(commandRows, [&](const CommandRow& group) {
        const QString names = QString::fromLatin1(group.names);
        return names == QStringLiteral("mnuDiv*Ship")
                   ? entry.startsWith(QStringLiteral("mnuDiv")) && entry.contains(QStringLiteral("Ship"))
                   : entry.startsWith(names);
    });
    return row == std::end(commandRows) ? nullptr : row;
}

/// The entry of a menu that is or leads to `goal`.
QAction* stepTowards(const QMenu& menu, const QAction* goal)
{
    for (QAction* entry : menu.actions()) {
        const auto* below = entry->menu<QMenu*>();
        if (entry == goal || (below != nullptr && stepTowards(*below, goal) != nullptr)) {
            return entry;
        }
    }
    return nullptr;
}

} // namespace

void Habits::forget()
{
    m_controls.clear();
    m_goal.clear();
    m_steppedOut.clear();
}

void Habits::next(Editor& editor, Inputs& inputs)
{
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr && !m_random.oneIn(12)) {
        return inPopup(*popup, inputs);
    }
    if (QWidget* box = QApplication::activeModalWidget(); box != nullptr && !m_random.oneIn(8)) {
        return inBox(*box, inputs);
    }
    Form* front = editor.forms().front();
    if (front == nullptr || m_random.chance(noisePercent)) {
        return noise(editor, inputs);
    }
    if (QWidget* help = shownHelp(); help != nullptr && m_random.chance(15)) {
        return inHelp(*help, inputs);
    }
    if (front == &editor.mainFrm()) {
        inMain(editor, inputs);
    } else {
        inDialog(*front, inputs);
    }
}

void Habits::stepOut(Editor& editor, Inputs& inputs)
{
    const QWidget* open = QApplication::activePopupWidget();
    open = open != nullptr ? open : QApplication::activeModalWidget();
    open = open != nullptr ? open : editor.forms().front();
    if (open == nullptr) {
        return;
    }
    const bool again = m_steppedOut == open->objectName();
    m_steppedOut = again ? QString() : open->objectName();
    for (const char* way : {"Command1", "cmdOK", "CmdCancel"}) {
        const auto* button = open->findChild<QAbstractButton*>(QLatin1StringView(way));
        if (again && isUsable(button)) {
            return clickMiddle(*button, inputs);
        }
    }
    inputs.push_back({.kind = Kind::Key, .window = open->windowHandle(), .key = Qt::Key_Escape});
}

void Habits::inPopup(QWidget& popup, Inputs& inputs)
{
    if (auto* menu = qobject_cast<QMenu*>(&popup)) {
        return inMenu(*menu, inputs);
    }
    const auto* list = popup.findChild<QAbstractItemView*>();
    const int how = m_random.below(100);
    if (list == nullptr || how < 10) {
        return key(Qt::Key_Escape, {}, inputs);
    }
    if (how < 25) {
        return key(m_random.oneOf(std::array{Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_End}), {},
                   inputs);
    }
    // The list takes no release that comes too soon behind its opening.
    inputs.push_back({.kind = Kind::Wait, .number = 600});
    click(*list->viewport(), somewhereIn(*list->viewport()), inputs);
}

void Habits::inMenu(QMenu& menu, Inputs& inputs)
{
    QAction* entry = m_goal ? stepTowards(menu, m_goal) : nullptr;
    if (entry == nullptr || m_random.oneIn(10)) {
        m_goal.clear();
        const int how = m_random.below(100);
        if (how < 40 || menu.actions().isEmpty()) {
            return key(Qt::Key_Escape, {}, inputs);
        }
        if (how < 75) {
            return key(m_random.oneOf(std::array{Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right}), {},
                       inputs);
        }
        entry = m_random.oneOf(menu.actions());
        const bool loses = entry->objectName() == QStringLiteral("mnuExit") ||
                           entry->objectName() == QStringLiteral("mnuNew") ||
                           entry->objectName() == QStringLiteral("mnuLoad");
        if (loses && !m_random.oneIn(20)) {
            return key(Qt::Key_Escape, {}, inputs);
        }
    }
    if (entry == m_goal) {
        m_goal.clear();
    }
    click(menu, menu.actionGeometry(entry).center(), inputs);
    inputs.push_back({.kind = Kind::Wait, .number = menuDelay});
}

void Habits::inBox(QWidget& box, Inputs& inputs)
{
    if (auto* field = box.findChild<QLineEdit*>(); field != nullptr && m_random.chance(60)) {
        return retype(*field, inputs);
    }
    const int how = m_random.below(100);
    if (how < 15) {
        return key(Qt::Key_Escape, {}, inputs);
    }
    if (how < 30) {
        return key(Qt::Key_Return, {}, inputs);
    }
    if (how < 35) {
        return key(Qt::Key_Tab, {}, inputs);
    }
    QList<QAbstractButton*> buttons = box.findChildren<QAbstractButton*>();
    buttons.removeIf([](const QAbstractButton* button) { return !isUsable(button); });
    if (!buttons.isEmpty()) {
        clickMiddle(*m_random.oneOf(buttons), inputs);
    }
}

void Habits::inMain(Editor& editor, Inputs& inputs)
{
    const bool places = valueOf(editor.mainFrm().ChkPlotDiv) == 1;
    const int how = m_random.below(100);
    if (how < (places ? 15 : 55)) {
        command(editor, inputs);
    } else if (how < 85) {
        onMap(editor, inputs);
    } else if (QWidget* control = chosenControl(editor.mainFrm())) {
        use(*control, inputs);
    }
}

void Habits::inDialog(Form& dialog, Inputs& inputs)
{
    if (QWidget* control = chosenControl(dialog)) {
        use(*control, inputs);
    } else {
        // A window without controls, such as the splash screen.
        click(dialog, somewhereIn(dialog), inputs);
    }
}

void Habits::inHelp(QWidget& help, Inputs& inputs)
{
    if (m_random.oneIn(12)) {
        inputs.push_back({.kind = Kind::Close, .window = help.windowHandle()});
    } else if (QWidget* control = chosenControl(help)) {
        use(*control, inputs);
    }
}

QAction* Habits::chosenCommand(const MainMenu& menu)
{
    const bool inScenario = menu.action(QStringLiteral("mnuOverView"))->isEnabled();
    int left = m_random.below(1000);
    for (const CommandRow& row : commandRows) {
        left -= inScenario ? row.inScenario : row.without;
        if (left >= 0) {
            continue;
        }
        QList<QAction*> entries;
        for (const MenuRow& entry : menuRows()) {
            if (groupOf(entry.name) == &row && entry.kind == MenuRow::Kind::Entry) {
                QAction* action = menu.action(entry.name);
                if (isReachable(*action)) {
                    entries.append(action);
                }
            }
        }
        return entries.isEmpty() ? nullptr : m_random.oneOf(entries);
    }
    return nullptr;
}

void Habits::command(Editor& editor, Inputs& inputs)
{
    QAction* entry = chosenCommand(editor.mainFrm().menu());
    if (entry == nullptr) {
        return;
    }
    if (m_random.chance(30)) {
        return throughMenu(editor.mainFrm(), *entry, inputs);
    }
    inputs.push_back({.kind = Kind::Command, .text = entry->objectName(), .action = entry});
}

void Habits::throughMenu(const Form& main, QAction& entry, Inputs& inputs)
{
    auto* bar = main.findChild<QMenuBar*>();
    for (const QAction* title : bar->actions()) {
        if (stepTowards(*title->menu<QMenu*>(), &entry) != nullptr) {
            m_goal = &entry;
            click(*bar, bar->actionGeometry(const_cast<QAction*>(title)).center(), inputs);
            return;
        }
    }
}

void Habits::onMap(Editor& editor, Inputs& inputs)
{
    static const QStringList letters{QStringLiteral("1"), QStringLiteral("9"), QStringLiteral("0"),
                                     QStringLiteral("a"), QStringLiteral("g"), QStringLiteral("r"),
                                     QStringLiteral("v"), QStringLiteral("ü")};
    auto* map = editor.mainFrm().findChild<QWidget*>(QStringLiteral("Picture_Main"));
    const int how = m_random.below(100);
    if (how < 60) {
        const QPoint place = somewhereIn(*map);
        inputs.push_back(at(Kind::Move, *map, place));
        click(*map, place, inputs, m_random.oneIn(8) ? Qt::RightButton : Qt::LeftButton);
    } else if (how < 70) {
        type(m_random.oneOf(letters), inputs);
    } else if (how < 85) {
        key(m_random.oneOf(std::array{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}),
            m_random.oneOf(std::array<Qt::KeyboardModifiers, 3>{Qt::NoModifier, Qt::ControlModifier,
                                                                Qt::ControlModifier | Qt::ShiftModifier}),
            inputs);
    } else if (how < 92) {
        key(m_random.chance(50) ? Qt::Key_Space : Qt::Key_Return, {}, inputs, QStringLiteral(" "));
    } else {
        Input wheel = at(Kind::Wheel, *map, somewhereIn(*map));
        wheel.number = m_random.chance(50) ? 120 : -120;
        wheel.aside = m_random.chance(30);
        inputs.push_back(wheel);
    }
}

} // namespace torvane::testing
