#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class Service;
class UserDefaultsService;

// The main screen's model: the selected tab, and the bookkeeping done each
// time the main screen is built.
class MainViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int selectedTab READ selectedTab WRITE setSelectedTab NOTIFY selectedTabChanged)

public:
    explicit MainViewModel(QObject *parent = nullptr);

    UserDefaultsService *defaultsService() const { return m_defaultsService; }
    Service *service() const { return m_service; }

    int selectedTab() const { return m_selectedTab; }
    void setSelectedTab(int tab);

    // Stores the install date on the first build and counts the opening.
    Q_INVOKABLE void recordMainViewBuilt();

signals:
    void selectedTabChanged();

private:
    UserDefaultsService *m_defaultsService;
    Service *m_service;
    int m_selectedTab = 0;
};
