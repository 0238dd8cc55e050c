#include "flood/invariants.h"
#include "platform/form.h"
#include "platform/option_button.h"
#include "shell/editor.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QProgressBar>
#include <QWindow>

#include <algorithm>
#include <array>

namespace torvane::testing {

namespace {

/// The controls by which a window can be left; one of them has to be shown and enabled.
struct WayOut
{
    const char* window;
    std::array<const char*, 2> controls;
};

constexpr WayOut waysOut[] = {
    {"OverviewFrm", {"cmdOK", "CmdCancel"}},
    {"EnviroFrm", {"cmdOK", "CmdCancel"}},
    {"CreateDivisionFrm", {"CmdCancel", "CmdEditCancel"}},
    {"ShipDBaseFrm", {"CmdCancel", "CmdKeepShips"}},
    // The button of the open repair panel leads back to the others.
    {"ShipDataFrm", {"CmdCancel", "Command1"}},
    {"AboutFrm", {"cmdOK", "cmdOK"}},
};

bool isUsable(const QWidget* control)
{
    return control != nullptr && control->isVisible() && control->isEnabled();
}

template <typename Button>
bool hasUsable(const QWidget& window)
{
    return std::ranges::any_of(window.findChildren<Button*>(), isUsable);
}

bool canBeLeft(const Form& form)
{
    const auto row = std::ranges::find_if(
        waysOut, [&](const WayOut& way) { return form.objectName() == QLatin1StringView(way.window); });
    if (row == std::end(waysOut)) {
        // The splash screen goes with any key; in the levels' dialogs each option is a way out.
        return form.objectName() == QStringLiteral("frmSplash") || hasUsable<OptionButton>(form);
    }
    return std::ranges::any_of(row->controls, [&](const char* name) {
        return isUsable(form.findChild<QWidget*>(QLatin1StringView(name)));
    });
}

} // namespace

std::vector<Form*> shownForms()
{
    std::vector<Form*> forms;
    for (const QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->isVisible()) {
            if (auto* form = qobject_cast<Form*>(QWidget::find(window->winId()))) {
                forms.push_back(form);
            }
        }
    }
    return forms;
}

QString inputTakerFault(Editor& editor)
{
    if (const QWidget* box = QApplication::activeModalWidget()) {
        return isUsable(box) ? QString() : QStringLiteral("the open box is hidden or takes no input");
    }
    QStringList taking;
    for (const Form* form : shownForms()) {
        if (form->isInputEnabled()) {
            taking.append(form->objectName());
        }
    }
    if (taking.size() != 1) {
        return QStringLiteral("windows that take input: %1 (%2)").arg(taking.size()).arg(taking.join(u' '));
    }
    const Form* front = editor.forms().front();
    return front != nullptr && front->objectName() == taking.first()
               ? QString()
               : QStringLiteral("%1 takes input and is not in front").arg(taking.first());
}

QString wayOutFault(Editor& editor)
{
    if (const QWidget* box = QApplication::activeModalWidget()) {
        return hasUsable<QAbstractButton>(*box)
                   ? QString()
                   : QStringLiteral("a box without a button that can be pressed");
    }
    const Form* front = editor.forms().front();
    if (front == nullptr) {
        return QStringLiteral("no window is in front");
    }
    if (front == &editor.mainFrm()) {
        const QAction* exit = editor.mainFrm().menu().action(QStringLiteral("mnuExit"));
        return exit->isEnabled() && exit->isVisible() ? QString() : QStringLiteral("Exit can't be chosen");
    }
    return canBeLeft(*front) ? QString() : QStringLiteral("%1 can't be left").arg(front->objectName());
}

QString underWayFault(Editor& editor)
{
    if (QGuiApplication::overrideCursor() != nullptr &&
        QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor) {
        return QStringLiteral("the hourglass has stayed");
    }
    const auto* progress = editor.mainFrm().findChild<QProgressBar*>(QStringLiteral("prgbarLoad"));
    return progress->isVisible() ? QStringLiteral("the progress bar has stayed") : QString();
}

} // namespace torvane::testing
