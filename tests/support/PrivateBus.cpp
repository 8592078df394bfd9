#include "PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDeadlineTimer>
#include <QFile>
#include <QTest>
#include <QUuid>

namespace {

const char config[] = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
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

PrivateBus::PrivateBus()
{
    QFile file(m_directory.filePath(QStringLiteral("bus.conf")));
    if (!file.open(QIODevice::WriteOnly) || file.write(QString::fromLatin1(config).arg(m_directory.path()).toUtf8()) < 0)
        return;
    file.close();
    m_daemon.start(QStringLiteral("dbus-daemon"), { QStringLiteral("--config-file=") + file.fileName(), QStringLiteral("--nofork"),
                                                    QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1") });
    const QDeadlineTimer deadline(10000);
    while (m_daemon.waitForStarted(5000) && !m_daemon.canReadLine() && !deadline.hasExpired())
        m_daemon.waitForReadyRead(100);
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    m_connectionName = QStringLiteral("private-bus-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

PrivateBus::~PrivateBus()
{
    while (!m_services.empty())
        stopService(m_services.back().get());
    QDBusConnection::disconnectFromBus(m_connectionName);
    stop(m_daemon);
}

QDBusConnection PrivateBus::connection()
{
    return QDBusConnection::connectToBus(m_address, m_connectionName);
}

QProcess *PrivateBus::startService(const QString &program, const QStringList &arguments, const QString &busName)
{
    QProcess *service = m_services.emplace_back(std::make_unique<QProcess>()).get();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), m_address);
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), m_address);
    service->setProcessEnvironment(environment);
    // Its error output goes to the test's for diagnosis; the test may read its standard output.
    service->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    service->start(program, arguments);
    QDBusConnectionInterface *bus = connection().interface();
    if (service->waitForStarted(5000) && bus
        && QTest::qWaitFor([&] { return bus->isServiceRegistered(busName).value(); }, 10000))
        return service;
    stopService(service);
    return nullptr;
}

void PrivateBus::stopService(QProcess *service)
{
    const auto found = std::find_if(m_services.begin(), m_services.end(), [service](const auto &s) { return s.get() == service; });
    if (found == m_services.end())
        return;
    stop(**found);
    m_services.erase(found);
}

void PrivateBus::stop(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished(5000);
    }
}
