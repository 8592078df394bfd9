#include "PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDeadlineTimer>
#include <QFile>
#include <QTest>
#include <QUuid>

namespace {

// The bus listens in its own folder, where the test's things are.
const char systemConfig[] = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>system</type>
  <listen>unix:dir=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/>
    <allow own="*"/>
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus(Type type)
{
    QStringList arguments{ QStringLiteral("--session") };
    if (type == Type::System) {
        const QString config = m_directory.filePath(QStringLiteral("bus.conf"));
        QFile file(config);
        if (!file.open(QIODevice::WriteOnly)
            || file.write(QString::fromLatin1(systemConfig).arg(m_directory.path()).toUtf8()) < 0)
            return;
        file.close();
        arguments = QStringList{ QStringLiteral("--config-file=") + config };
    }
    m_daemon.setProgram(QStringLiteral("dbus-daemon"));
    m_daemon.setArguments(arguments
                          + QStringList{ QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                                         QStringLiteral("--print-address=1") });
    m_daemon.setProcessChannelMode(QProcess::SeparateChannels);
    m_daemon.start();
    if (!m_daemon.waitForStarted(5000))
        return;
    const QDeadlineTimer deadline(10000);
    while (!m_daemon.canReadLine() && !deadline.hasExpired() && m_daemon.state() == QProcess::Running)
        m_daemon.waitForReadyRead(100);
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    m_connectionName = QStringLiteral("private-bus-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

PrivateBus::~PrivateBus()
{
    while (!m_services.empty())
        stopService(m_services.back().get());
    if (!m_connectionName.isEmpty())
        QDBusConnection::disconnectFromBus(m_connectionName);
    if (m_daemon.state() != QProcess::NotRunning) {
        m_daemon.terminate();
        if (!m_daemon.waitForFinished(5000)) {
            m_daemon.kill();
            m_daemon.waitForFinished(5000);
        }
    }
}

QDBusConnection PrivateBus::connection()
{
    return QDBusConnection::connectToBus(m_address, m_connectionName);
}

QProcess *PrivateBus::startService(const QString &program, const QStringList &arguments, const QString &busName)
{
    auto service = std::make_unique<QProcess>();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), m_address);
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_address);
    service->setProcessEnvironment(environment);
    service->setProgram(program);
    service->setArguments(arguments);
    // What a service says goes to the test's own error output for diagnosis,
    // except standard output, which the test may read.
    service->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    service->start();
    if (!service->waitForStarted(5000))
        return nullptr;
    QProcess *started = service.get();
    m_services.push_back(std::move(service));
    if (!waitForName(busName, true)) {
        stopService(started);
        return nullptr;
    }
    return started;
}

void PrivateBus::stopService(QProcess *service)
{
    for (auto it = m_services.begin(); it != m_services.end(); ++it) {
        if (it->get() != service)
            continue;
        if (service->state() != QProcess::NotRunning) {
            service->terminate();
            if (!service->waitForFinished(5000)) {
                service->kill();
                service->waitForFinished(5000);
            }
        }
        m_services.erase(it);
        return;
    }
}

bool PrivateBus::waitForName(const QString &busName, bool owned, int timeoutMs)
{
    QDBusConnectionInterface *bus = connection().interface();
    if (!bus)
        return false;
    const QDeadlineTimer deadline(timeoutMs);
    while (!deadline.hasExpired()) {
        if (bus->isServiceRegistered(busName).value() == owned)
            return true;
        QTest::qWait(20);
    }
    return false;
}
