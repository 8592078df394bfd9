#pragma once

#include <QObject>
#include <QProperty>
#include <QtQml/qqmlregistration.h>

#include "CallObserver.h"
#include "CallObserverDelegate.h"

class HistoryCallDataService;
class Service;
class Telephony;
class UserDefaultsService;

// The main screen's model: the selected tab, the bookkeeping done each time
// the main screen is built, and the call observer with its delegate, made
// with the model; the screen attaches the delegate while it is shown.
class MainViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the app's start-up")
    Q_PROPERTY(int selectedTab READ selectedTab WRITE setSelectedTab NOTIFY selectedTabChanged)
    Q_PROPERTY(CallObserver *callObserver READ callObserver CONSTANT)
    Q_PROPERTY(CallObserverDelegate *callObserverDelegate READ callObserverDelegate CONSTANT)

public:
    MainViewModel(UserDefaultsService &defaultsService, Service &service, Telephony &telephony,
                  HistoryCallDataService &historyDataService, QObject *parent = nullptr);

    CallObserver *callObserver() { return &m_callObserver; }
    CallObserverDelegate *callObserverDelegate() { return &m_callObserverDelegate; }

    int selectedTab() const { return m_selectedTab; }
    void setSelectedTab(int tab) { m_selectedTab = tab; }

    // Stores the install date on the first build and counts the opening.
    Q_INVOKABLE void recordMainViewBuilt();

signals:
    void selectedTabChanged();

private:
    UserDefaultsService *m_defaultsService;
    Service *m_service;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(MainViewModel, int, m_selectedTab, 0, &MainViewModel::selectedTabChanged)
    CallObserver m_callObserver;
    CallObserverDelegate m_callObserverDelegate;
};
