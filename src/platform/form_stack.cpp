#include "platform/form_stack.h"

#include "platform/form.h"
#include "platform/profile_store.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace torvane {

FormStack::FormStack(ProfileStore& profiles, ErrorReport report)
    : m_profiles(profiles), m_report(std::move(report))
{
}

void FormStack::runHandler(const std::function<void()>& handler)
{
    std::optional<RuntimeError> error;
    ++m_runningHandlers;
    {
        const ProfileStore::Batch batch(m_profiles);
        try {
            handler();
        } catch (const RuntimeError& failure) {
            error = failure;
        } catch (const std::exception& failure) {
            error = RuntimeError(RuntimeError::InvalidProcedureCall, QString::fromUtf8(failure.what()));
        }
    }
    if (error) {
        m_report(*error);
    }
    --m_runningHandlers;
    if (m_activationDue) {
        scheduleActivation();
    }
}

void FormStack::bringToFront(Form& form)
{
    if (front() == &form) {
        return;
    }
    std::erase(m_forms, &form);
    m_forms.push_back(&form);
    frontChanged();
}

void FormStack::takeOut(Form& form)
{
    const bool wasFront = front() == &form;
    std::erase(m_forms, &form);
    if (wasFront) {
        frontChanged();
    }
}

void FormStack::frontChanged()
{
    m_activationDue = !m_forms.empty();
    if (m_activationDue) {
        scheduleActivation();
    }
}

void FormStack::scheduleActivation()
{
    if (m_activationScheduled || m_runningHandlers > 0) {
        return;
    }
    m_activationScheduled = true;
    QMetaObject::invokeMethod(
        this, [this] { activateFront(); }, Qt::QueuedConnection);
}

void FormStack::activateFront()
{
    m_activationScheduled = false;
    // A box that a handler shows runs the event loop: the activation waits until that handler has returned.
    if (!m_activationDue || m_runningHandlers > 0 || m_forms.empty()) {
        return;
    }
    m_activationDue = false;
    Form& form = *m_forms.back();
    runHandler([&form] { form.onActivate(); });
}

} // namespace torvane
