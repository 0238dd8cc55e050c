#include "platform/form.h"

#include "platform/label_lead.h"

#include <QApplication>
#include <QChildEvent>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

namespace torvane {

Form::Form(FormStack& forms, const QString& designName, Qt::WindowFlags flags)
    : QWidget(nullptr, flags), m_formStack(forms)
{
    setObjectName(designName);
    watch(this);
}

Form::~Form()
{
    m_formStack.takeOut(*this);
}

void Form::load()
{
    m_formStack.runHandler([this] { onLoad(); });
    // Once more, so that the window looks at an event before what its controls have put in front meanwhile:
    // scroll areas keep the mouse events of their viewport to themselves.
    watch(this);
}

void Form::showForm(Form* opener)
{
    if (opener && !m_wasShown) {
        placeAbove(*opener);
    }
    m_wasShown = true;
    m_formStack.bringToFront(*this);
    if (opener && opener->windowHandle() && windowHandle()) {
        windowHandle()->setTransientParent(opener->windowHandle());
    }
    show();
    raise();
    activateWindow();
}

void Form::openOver(Form& opener)
{
    showForm(&opener);
    opener.setInputEnabled(false);
}

void Form::leaveTo(Form& opener)
{
    opener.setInputEnabled(true);
    hideForm();
}

void Form::hideForm()
{
    hide();
    m_formStack.takeOut(*this);
    if (Form* front = m_formStack.front()) {
        front->activateWindow();
    }
}

void Form::placeAbove(const Form& opener)
{
    create();
    // Not `adjustSize`, which takes two thirds of the screen at most and would cut off the last columns of a
    // list.
    ensurePolished();
    resize(sizeHint().boundedTo(opener.screen()->availableSize()).expandedTo(minimumSizeHint()));
    const QRect over = opener.frameGeometry();
    const QRect screen = opener.screen()->availableGeometry();
    QRect place = rect();
    place.moveCenter(over.center());
    place.moveLeft(std::max(screen.left(), std::min(place.left(), screen.right() - place.width())));
    place.moveTop(std::max(screen.top(), std::min(place.top(), screen.bottom() - place.height())));
    move(place.topLeft());
}

void Form::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (m_inputEnabled) {
        m_formStack.runHandler([this] { onCloseBox(); });
    }
}

void Form::keyPressEvent(QKeyEvent* event)
{
    if (windowType() != Qt::Dialog) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        m_formStack.runHandler([this] { onCloseBox(); });
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        for (QPushButton* button : findChildren<QPushButton*>()) {
            if (button->isDefault() && button->isVisible()) {
                button->click();
                return;
            }
        }
    }
}

static bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

// A box that was opened while this window was the active one, and so belongs to it.
bool Form::isOfBox(const QObject* watched) const
{
    const auto* widget = qobject_cast<const QWidget*>(watched);
    return widget != nullptr && widget->window() != this && widget->window()->isModal();
}

bool Form::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildAdded) {
        watch(static_cast<QChildEvent*>(event)->child());
    }
    // A box waits for its answer whatever the window under it waits for.
    if (m_inputEnabled || !isInput(event->type()) || isOfBox(watched)) {
        return leadByMnemonic(watched, event) || QWidget::eventFilter(watched, event);
    }
    // A click on a window that waits brings the window it waits for to the front.
    if (event->type() == QEvent::MouseButtonPress && m_formStack.front() && m_formStack.front() != this) {
        m_formStack.front()->raise();
        m_formStack.front()->activateWindow();
    }
    return true;
}

void Form::watch(QObject* object)
{
    object->installEventFilter(this);
    for (QObject* child : object->children()) {
        watch(child);
    }
}

} // namespace torvane
