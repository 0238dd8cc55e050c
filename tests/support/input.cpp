#include "support/input.h"

#include <QAction>
#include <QCheckBox>
#include <QDeadlineTimer>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTest>

namespace torvane::testing {

// From the left edge of a check box to the middle of its box, in pixels.
static constexpr int boxMiddle = 8;

void settle()
{
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
}

bool waitUntil(const std::function<bool()>& condition, int milliseconds)
{
    QDeadlineTimer deadline(milliseconds);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QTest::qWait(5);
    }
    return true;
}

void click(QWidget* control)
{
    // A check box takes clicks where its box and its text are, which need not reach its middle.
    const bool isBox = qobject_cast<QCheckBox*>(control) != nullptr;
    QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier,
                      isBox ? QPoint(boxMiddle, control->height() / 2) : QPoint());
    settle();
}

void rightClick(QWidget* control)
{
    QTest::mouseClick(control, Qt::RightButton);
    settle();
}

void press(QWidget* control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(control, key, modifiers);
    settle();
}

void type(QWidget* control, const QString& text)
{
    QTest::keyClicks(control, text);
    settle();
}

// The menus from the bar down to the one that holds an action.
static QList<QMenu*> menusAbove(QMenuBar* bar, QAction* action)
{
    const std::function<bool(QWidget*, QList<QMenu*>&)> search = [&](QWidget* holder, QList<QMenu*>& path) {
        for (QAction* entry : holder->actions()) {
            if (entry == action) {
                return true;
            }
            if (auto* menu = entry->menu<QMenu*>()) {
                path.append(menu);
                if (search(menu, path)) {
                    return true;
                }
                path.removeLast();
            }
        }
        return false;
    };
    QList<QMenu*> path;
    search(bar, path);
    return path;
}

static bool canBeChosen(const QAction* action)
{
    return action->isEnabled() && action->isVisible();
}

bool chooseMenu(QWidget& window, const QString& designName)
{
    auto* bar = window.findChild<QMenuBar*>();
    auto* action = control<QAction>(window, designName);
    const QList<QMenu*> path = menusAbove(bar, action);
    if (path.isEmpty() || !canBeChosen(action)) {
        return false;
    }
    for (QMenu* menu : path) {
        if (!canBeChosen(menu->menuAction())) {
            return false;
        }
    }
    // A click in the bar opens the first menu, unless the window takes no input.
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(path.first()->menuAction()).center());
    settle();
    if (!path.first()->isVisible()) {
        return false;
    }
    for (qsizetype i = 1; i < path.size(); ++i) {
        path[i - 1]->setActiveAction(path[i]->menuAction());
        QTest::keyClick(path[i - 1], Qt::Key_Right);
        settle();
    }
    path.last()->setActiveAction(action);
    QTest::mouseClick(path.last(), Qt::LeftButton, {}, path.last()->actionGeometry(action).center());
    settle();
    for (QMenu* menu : path) {
        menu->hide();
    }
    settle();
    return true;
}

void closeBox(QWidget* window)
{
    window->close();
    settle();
}

} // namespace torvane::testing
