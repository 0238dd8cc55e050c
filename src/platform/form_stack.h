#pragma once

#include "platform/runtime_error.h"

#include <QObject>

#include <functional>
#include <vector>

namespace torvane {

class Form;
class ProfileStore;

/// The windows that are shown, the front one last, and the handlers that run. Keeps the rule of activation:
/// a window's `onActivate` runs once each time it comes to the front within the program, after the handler
/// that brought it there has returned, whatever nested event loops that handler ran.
class FormStack : public QObject
{
public:
    using ErrorReport = std::function<void(const RuntimeError&)>;

    /// Every handler runs in a batch of `profiles`. `report` shows the error that ended a handler.
    FormStack(ProfileStore& profiles, ErrorReport report);

    /// Runs a handler inside a profile batch. A RuntimeError (or any other exception) ends the handler and is
    /// reported; nothing leaves this function.
    void runHandler(const std::function<void()>& handler);

    /// Puts the form in front; its activation follows unless it was there already.
    void bringToFront(Form& form);
    /// Takes the form out; if it was in front, the one below it is activated.
    void takeOut(Form& form);

    /// The form in front, or none.
    Form* front() const { return m_forms.empty() ? nullptr : m_forms.back(); }

private:
    void frontChanged();
    void scheduleActivation();
    void activateFront();

    ProfileStore& m_profiles;
    ErrorReport m_report;
    std::vector<Form*> m_forms;
    int m_runningHandlers = 0;
    bool m_activationDue = false;
    bool m_activationScheduled = false;
};

} // namespace torvane
