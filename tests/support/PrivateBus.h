#pragma once

#include <QDBusConnection>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

// A D-Bus daemon of the test's own, with the services the test starts on it.
// Everything it started is stopped when it is destroyed.
class PrivateBus
{
public:
    // A System bus lets anyone own any name and send anything, and activates
    // nothing: daemons that insist on a system bus (oFono) run on it.
    enum class Type { Session, System };

    explicit PrivateBus(Type type = Type::Session);
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    bool isRunning() const { return !m_address.isEmpty(); }
    QString address() const { return m_address; }

    // A connection of the test to the bus, closed with the bus.
    QDBusConnection connection();

    // Starts `program` with the bus as its system and session bus, and waits
    // until it owns `busName`. Returns the running process (owned by the
    // bus), or nullptr when it did not come up within ten seconds.
    QProcess *startService(const QString &program, const QStringList &arguments, const QString &busName);
    // Stops a service started above.
    void stopService(QProcess *service);

    bool waitForName(const QString &busName, bool owned, int timeoutMs = 10000);

private:
    QTemporaryDir m_directory;
    QProcess m_daemon;
    QString m_address;
    QString m_connectionName;
    std::vector<std::unique_ptr<QProcess>> m_services;
};
