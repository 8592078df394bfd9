#include "CallConfirmation.h"

void CallConfirmation::ask(const QString &dialString, QObject *context, std::function<void()> placeCall)
{
    if (m_pending)
        finish(false);
    m_pending = true;
    m_dialString = dialString;
    m_context = context;
    m_placeCall = std::move(placeCall);
    emit pendingChanged();
}

void CallConfirmation::finish(bool placed)
{
    if (!m_pending)
        return;
    const QPointer<QObject> context = std::exchange(m_context, nullptr);
    const std::function<void()> placeCall = std::exchange(m_placeCall, nullptr);
    m_pending = false;
    emit pendingChanged();
    if (placed && context && placeCall)
        placeCall();
}
