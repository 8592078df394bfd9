#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class Service;
class UserDefaultsService;

// The feedback screen's model: the shared services the screen works with.
class SendFeedBackViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_MOC_INCLUDE("Service.h")
    Q_MOC_INCLUDE("UserDefaultsService.h")
    Q_PROPERTY(UserDefaultsService *defaultsService READ defaultsService CONSTANT)
    Q_PROPERTY(Service *service READ service CONSTANT)

public:
    explicit SendFeedBackViewModel(QObject *parent = nullptr);

    UserDefaultsService *defaultsService() const { return m_defaultsService; }
    Service *service() const { return m_service; }

private:
    UserDefaultsService *m_defaultsService;
    Service *m_service;
};
