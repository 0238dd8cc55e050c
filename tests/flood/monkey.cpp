#include "flood/monkey.h"

#include "flood/memory.h"
#include "flood/still_clock.h"
#include "platform/form.h"
#include "shell/main_frm.h"
#include "shell/main_menu.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QWidget>

namespace torvane::testing {

namespace {

constexpr auto turnEvent = static_cast<QEvent::Type>(QEvent::User + 77);
constexpr int lastOfAll = -10000;  // behind what the events before have queued
constexpr int settlingRounds = 3;  // of the event loop, in which all that was queued has happened
constexpr int timePerInput = 25;   // milliseconds
constexpr int walkOutEvery = 1500; // events
constexpr int mostStepsOut = 60;
constexpr int keptInputs = 50;
constexpr int memoryEvery = 1000; // events

} // namespace

FloodOutcome Monkey::run()
{
    if (m_options.paintEvery > 1) {
        QCoreApplication::instance()->installEventFilter(this);
    }
    startRun();
    postTurn();
    QCoreApplication::exec();
    m_outcome.fault = m_outcome.fault.isEmpty() ? memoryFault() : m_outcome.fault;
    return m_outcome;
}

bool Monkey::event(QEvent* event)
{
    if (event->type() != turnEvent) {
        return QObject::event(event);
    }
    turn();
    return true;
}

bool Monkey::eventFilter(QObject* receiver, QEvent* event)
{
    return (event->type() == QEvent::UpdateRequest && !paints()) || QObject::eventFilter(receiver, event);
}

bool Monkey::paints() const
{
    return m_outcome.events % m_options.paintEvery == 0;
}

// What was held back has left the windows waiting for the request that they have made.
void Monkey::paintWindows()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            QCoreApplication::postEvent(window, new QEvent(QEvent::UpdateRequest));
        }
    }
}

void Monkey::postTurn()
{
    QCoreApplication::postEvent(this, new QEvent(turnEvent), lastOfAll);
}

// Runs in whatever event loop there is: a box that a handler shows has one of its own.
void Monkey::turn()
{
    if (++m_rounds < settlingRounds) {
        return postTurn();
    }
    m_rounds = 0;
    if (const QString fault = brokenInvariant(); !fault.isEmpty()) {
        return fail(fault);
    }
    if (m_outcome.events >= m_options.events) {
        return finish();
    }
    postTurn();
    if (m_run->editor().hasEnded() && m_depth == 0) {
        endRun();
        startRun();
        return;
    }
    chooseInputs();
    deliver();
}

void Monkey::chooseInputs()
{
    Editor& editor = m_run->editor();
    if (m_outcome.events % walkOutEvery == walkOutEvery - 1) {
        m_walkingOut = true;
        m_stepsOut = 0;
    }
    if (m_walkingOut || editor.hasEnded()) {
        return walkOut();
    }
    if (m_inputs.empty()) {
        m_habits.next(editor, m_inputs);
    }
}

void Monkey::walkOut()
{
    Editor& editor = m_run->editor();
    const bool arrived = editor.forms().front() == &editor.mainFrm() && editor.mainFrm().isInputEnabled() &&
                         QApplication::activeModalWidget() == nullptr &&
                         QApplication::activePopupWidget() == nullptr;
    if (arrived || editor.hasEnded()) {
        m_walkingOut = false;
        m_inputs.clear();
        if (!editor.hasEnded()) {
            return;
        }
    } else if (++m_stepsOut > mostStepsOut) {
        m_heardFault = QStringLiteral("no way back to the main window in %1 steps").arg(mostStepsOut);
    }
    if (m_stepsOut <= 1) {
        m_inputs.clear();
    }
    if (m_inputs.empty()) {
        m_habits.stepOut(editor, m_inputs);
    }
}

void Monkey::deliver()
{
    if (m_inputs.empty()) {
        m_inputs.push_back({.kind = Input::Kind::Wait, .number = timePerInput});
    }
    const Input input = m_inputs.front();
    m_inputs.pop_front();
    ++m_outcome.events;
    if (m_options.paintEvery > 1 && paints()) {
        paintWindows();
    }
    const QString line = described(input);
    for (const QChar character : line) {
        m_outcome.digest = (m_outcome.digest ^ character.unicode()) * 1099511628211U;
    }
    log(QStringLiteral("%1 %2").arg(m_outcome.events).arg(line));
    passTime(timePerInput);
    ++m_depth;
    m_census.atLeast(QStringLiteral("most"), QStringLiteral("boxes at a time"), m_depth - 1);
    m_devices.deliver(input);
    --m_depth;
    if (m_outcome.events % memoryEvery == 0) {
        sampleMemory();
    }
}

void Monkey::log(const QString& line)
{
    m_outcome.lastInputs.append(line);
    if (m_outcome.lastInputs.size() > keptInputs) {
        m_outcome.lastInputs.removeFirst();
    }
}

void Monkey::fail(const QString& fault)
{
    m_outcome.fault = fault;
    m_outcome.profile = m_run->editor().workingProfile().parsed().bytes();
    finish();
}

void Monkey::finish()
{
    // Ends the loops of open boxes too.
    QCoreApplication::exit(0);
}

QString Monkey::brokenInvariant()
{
    if (!m_heardFault.isEmpty()) {
        return m_heardFault;
    }
    Editor& editor = m_run->editor();
    if (editor.hasEnded()) {
        return {};
    }
    for (const auto& check : {inputTakerFault, wayOutFault}) {
        if (const QString fault = check(editor); !fault.isEmpty()) {
            return fault;
        }
    }
    // In a box, or in what one belongs to, a handler is under way.
    if (m_depth > 0 || QApplication::activeModalWidget() != nullptr) {
        return {};
    }
    const bool changed = takeProfileChange();
    if (const QString fault = changed ? brokenInProfile() : QString(); !fault.isEmpty()) {
        return fault;
    }
    return brokenInFront(changed);
}

QString Monkey::brokenInProfile()
{
    m_census.count(QStringLiteral("checks"), QStringLiteral("of a changed profile"));
    Editor& editor = m_run->editor();
    const QByteArray bytes = profileBytes();
    if (bytes.isEmpty()) {
        return {};
    }
    QString fault = profileFault(editor, bytes);
    fault = fault.isEmpty() ? divisionsFault(bytes) : fault;
    if (m_origin == Origin::Made) {
        fault = fault.isEmpty() ? madeScenarioFault(bytes) : fault;
        fault = fault.isEmpty() ? savingFault(editor) : fault;
    }
    return fault;
}

// With the main window in front its menus are checked; a dialog is when it has just come to the front.
QString Monkey::brokenInFront(bool profileChanged)
{
    Editor& editor = m_run->editor();
    Form* front = editor.forms().front();
    const bool came = front != m_front;
    const QString former = m_frontName;
    m_front = front;
    m_frontName = front->objectName();
    m_census.count(QStringLiteral("events in front"), m_frontName);
    if (came) {
        m_census.count(QStringLiteral("windows opened"), m_frontName);
    }
    if (front != &editor.mainFrm()) {
        // These two keep what they show when they come back from the dialog that they opened.
        const bool keeps = former == QStringLiteral("EnviroFrm") || former == QStringLiteral("ShipDBaseFrm");
        return came && !keeps && m_origin == Origin::Made ? dialogFault(editor, *front) : QString();
    }
    QString fault = underWayFault(editor);
    if ((came || profileChanged) && m_origin == Origin::Made) {
        m_census.count(QStringLiteral("checks"), QStringLiteral("of the menus"));
        fault = fault.isEmpty() ? divisionMenusFault(editor) : fault;
        fault = fault.isEmpty() ? shipMenuFault(editor, m_allDrawn) : fault;
    }
    return fault;
}

} // namespace torvane::testing
