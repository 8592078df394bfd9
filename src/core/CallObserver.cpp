#include "CallObserver.h"

#include "CallObserverDelegate.h"

CallObserver::CallObserver(Telephony &telephony, QObject *parent)
    : QObject(parent)
{
    connect(&telephony, &Telephony::callChanged, this, &CallObserver::forward);
}

void CallObserver::setDelegate(CallObserverDelegate *delegate)
{
    if (m_delegate == delegate)
        return;
    m_delegate = delegate;
    emit delegateChanged();
}

void CallObserver::forward(const CallEvent &call)
{
    if (m_delegate)
        m_delegate->callChanged(this, call);
}
