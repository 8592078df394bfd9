#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QUrl>
#include <QVariantMap>

// Keeps one running app per session, the freedesktop way: the first launch
// owns the app's name on the session bus and answers
// org.freedesktop.Application there (which is also how the desktop starts it,
// its desktop file being D-Bus activatable); a later launch hands its link
// (Open) or a plain "come forward" (Activate) to it and exits.
class SingleInstance : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit SingleInstance(QDBusConnection bus = QDBusConnection::sessionBus(), QObject *parent = nullptr);

    // Takes the app's name on the bus. False only when another app holds it;
    // without a session bus the app runs on its own.
    bool listen();
    // Sends `link` (an empty one: "come forward") to the app holding the
    // name; true when it took it.
    bool forwardToRunning(const QUrl &link);

    static QString objectPath();

signals:
    void linkReceived(const QUrl &link);
    void activationRequested();

public slots:
    // org.freedesktop.Application, called by the desktop and by later launches.
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameter, const QVariantMap &platformData);

private:
    QDBusConnection m_bus;
};
