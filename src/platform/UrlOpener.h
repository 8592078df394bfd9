#pragma once

#include <QObject>
#include <QUrl>

// Opens web pages and the system's settings page.
class UrlOpener : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    virtual bool canOpen(const QUrl &url) = 0;
    virtual bool open(const QUrl &url) = 0;
    // Opens the system settings where the user picks language and region;
    // does nothing where the system has no such page.
    virtual void openSystemSettings() = 0;
};
