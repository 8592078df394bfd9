#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <vector>

// A D-Bus daemon of the test's own, serving as system and session bus of the
// services the test starts on it: anyone may own any name and send anything,
// and nothing is activated. Everything it started stops when it is destroyed.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    bool isRunning() const { return !m_address.isEmpty(); }
    QString address() const { return m_address; }
    // A connection of the test to the bus, closed with the bus.
    QDBusConnection connection();

    // Starts `program` on this bus and waits until it owns `busName`. Returns
    // the process (owned by the bus), or nullptr when it did not come up.
    QProcess *startService(const QString &program, const QStringList &arguments, const QString &busName);
    void stopService(QProcess *service);

    // Terminates `process`, killing it when it does not stop in time.
    static void stop(QProcess &process);

private:
    QTemporaryDir m_directory;
    QProcess m_daemon;
    QString m_address;
    QString m_connectionName;
    std::vector<std::unique_ptr<QProcess>> m_services;
};
