#include "CallObserverDelegate.h"

#include "HistoryCallDataService.h"
#include "Service.h"
#include "UserDefaultsService.h"

#include <QTextStream>

CallObserverDelegate::CallObserverDelegate(HistoryCallDataService *historyDataService,
                                           UserDefaultsService *defaultsService, Service *service, QObject *parent)
    : QObject(parent),
      m_historyDataService(historyDataService),
      m_defaultsService(defaultsService),
      m_service(service)
{
}

void CallObserverDelegate::callChanged(CallObserver *, const CallEvent &call)
{
    // Only the dialling phase of an outgoing call that the app started: the
    // change reported when it starts, before the other side answers.
    if (!m_service->callStartedFromApp() || !call.isOutgoing || call.hasConnected || call.hasEnded)
        return;

    QTextStream(stdout) << "detect a dialing outgoing call" << Qt::endl;

    // Not saving leaves the flag up on purpose: the call counts as handled
    // only once it is recorded.
    if (!m_service->pendingCallSaveToHistory().value_or(true))
        return;
    m_historyDataService->addHistory(m_service->pendingCallFirstName(), m_service->pendingCallLastName(),
                                     m_service->pendingCallTelephone(), m_service->pendingCallHidden());
    m_service->setCallStartedFromApp(false);
}
