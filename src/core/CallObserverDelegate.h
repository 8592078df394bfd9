#pragma once

#include "Telephony.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class CallObserver;
class HistoryCallDataService;
class Service;
class UserDefaultsService;

// Records the call the app has just started, at the moment the phone reports
// it dialling, when the pending call is to be saved.
class CallObserverDelegate : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the main screen's model")

public:
    CallObserverDelegate(HistoryCallDataService *historyDataService, UserDefaultsService *defaultsService,
                         Service *service, QObject *parent = nullptr);

    // One change of one call on the device, as `observer` reports it.
    void callChanged(CallObserver *observer, const CallEvent &call);

private:
    HistoryCallDataService *m_historyDataService;
    UserDefaultsService *m_defaultsService;
    Service *m_service;
};
