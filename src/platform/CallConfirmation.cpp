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
    emit requested(dialString);
}

void CallConfirmation::call()
{
    finish(true);
}

void CallConfirmation::cancel()
{
    finish(false);
}

void CallConfirmation::finish(bool placed)
{
    if (!m_pending)
        return;
    const QString dialString = m_dialString;
    const QPointer<QObject> context = m_context;
    const std::function<void()> placeCall = std::move(m_placeCall);
    m_pending = false;
    m_placeCall = nullptr;
    m_context = nullptr;
    emit pendingChanged();
    emit answered(dialString, placed);
    if (placed && context && placeCall)
        placeCall();
}
