#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "UrlOpener.h"

class Service;
class UserDefaultsService;

// The feedback screen's model: the shared services the screen works with.
class SendFeedBackViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the settings screen's model")
    Q_MOC_INCLUDE("Service.h")
    Q_MOC_INCLUDE("UserDefaultsService.h")
    Q_PROPERTY(UserDefaultsService *defaultsService READ defaultsService CONSTANT)
    Q_PROPERTY(Service *service READ service CONSTANT)
    Q_PROPERTY(UrlOpener *urlOpener READ urlOpener CONSTANT)

public:
    SendFeedBackViewModel(UserDefaultsService &defaultsService, Service &service, UrlOpener &urlOpener,
                          QObject *parent = nullptr)
        : QObject(parent), m_defaultsService(&defaultsService), m_service(&service), m_urlOpener(&urlOpener)
    {
    }

    UserDefaultsService *defaultsService() const { return m_defaultsService; }
    Service *service() const { return m_service; }
    UrlOpener *urlOpener() const { return m_urlOpener; }

private:
    UserDefaultsService *m_defaultsService;
    Service *m_service;
    UrlOpener *m_urlOpener;
};
