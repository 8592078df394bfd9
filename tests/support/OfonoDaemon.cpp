#include "OfonoDaemon.h"

#include "DBusTypes.h"

#include <QDBusConnectionInterface>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

namespace {

const QString ofono = QStringLiteral("org.ofono");
const QString modemInterface = QStringLiteral("org.ofono.Modem");

QString ofonod()
{
    // Debian installs it in /usr/sbin, which a user's PATH may lack.
    const QString onPath = QStandardPaths::findExecutable(QStringLiteral("ofonod"));
    return !onPath.isEmpty() ? onPath
                             : QStandardPaths::findExecutable(QStringLiteral("ofonod"), { QStringLiteral("/usr/sbin") });
}

// ofonod keeps what it learns of a SIM under /var/lib/ofono. It runs in a
// mount namespace of its own, where a folder of the test's stands there, when
// the system allows one (as root, or with unprivileged user namespaces).
bool canIsolateStorage()
{
    static const bool can = !QStandardPaths::findExecutable(QStringLiteral("unshare")).isEmpty()
            && QProcess::execute(QStringLiteral("unshare"),
                                 { QStringLiteral("--mount"), QStringLiteral("--map-root-user"), QStringLiteral("true") })
                    == 0;
    return can;
}

} // namespace

OfonoDaemon::OfonoDaemon()
{
    m_error = start();
    QFile log(m_directory.filePath(QStringLiteral("ofonod.log")));
    if (!m_error.isEmpty() && log.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = log.readAll().split('\n');
        m_error += QStringLiteral("; ofonod's last words:\n") + QString::fromUtf8(lines.mid(qMax(0, lines.size() - 20)).join('\n'));
    }
}

OfonoDaemon::~OfonoDaemon()
{
    PrivateBus::stop(m_daemon);
    PrivateBus::stop(m_modem);
}

bool OfonoDaemon::isInstalled()
{
    return !ofonod().isEmpty();
}

QString OfonoDaemon::start()
{
    if (!m_bus.isRunning())
        return QStringLiteral("the private bus did not start");
    m_modem.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_modem.start(QStringLiteral("/usr/bin/python3"), { QStringLiteral(QUIETON_SOURCE_DIR "/tests/support/at-modem.py") });
    const QByteArray port = m_modem.waitForReadyRead(10000) ? m_modem.readLine().trimmed() : QByteArray();
    if (!port.startsWith("Port "))
        return QStringLiteral("the AT modem did not start");
    QObject::connect(&m_modem, &QProcess::readyReadStandardOutput, &m_modem, [this] {
        while (m_modem.canReadLine()) {
            const QString line = QString::fromUtf8(m_modem.readLine()).trimmed();
            if (line.startsWith(QLatin1String("ATD ")))
                m_dials.append(line.mid(4));
        }
    });
    // oFono's phonesim driver makes one modem per group, named after it.
    QFile config(m_directory.filePath(QStringLiteral("phonesim.conf")));
    if (!config.open(QIODevice::WriteOnly) || config.write("[qtest]\nAddress=127.0.0.1\nPort=" + port.mid(5) + '\n') < 0)
        return QStringLiteral("cannot write ") + config.fileName();
    config.close();

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), m_bus.address());
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    environment.insert(QStringLiteral("OFONO_PHONESIM_CONFIG"), config.fileName());
    environment.insert(QStringLiteral("OFONO_AT_DEBUG"), QStringLiteral("1"));
    m_daemon.setProcessEnvironment(environment);
    // Its debug output, AT commands included, goes to the log that error() shows.
    m_daemon.setStandardOutputFile(m_directory.filePath(QStringLiteral("ofonod.log")));
    m_daemon.setProcessChannelMode(QProcess::MergedChannels);
    const QStringList arguments{ ofonod(), QStringLiteral("-n"), QStringLiteral("-d"), QStringLiteral("-P"), QStringLiteral("udevng,udev") };
    if (canIsolateStorage()) {
        const QString storage = m_directory.filePath(QStringLiteral("storage"));
        QDir().mkpath(storage);
        m_daemon.start(QStringLiteral("unshare"),
                       QStringList{ QStringLiteral("--mount"), QStringLiteral("--map-root-user"), QStringLiteral("--propagation"),
                                    QStringLiteral("private"), QStringLiteral("sh"), QStringLiteral("-c"),
                                    QStringLiteral("mount --bind \"$0\" /var/lib/ofono && exec \"$@\""), storage }
                               + arguments);
    } else {
        m_daemon.start(arguments.constFirst(), arguments.mid(1));
    }
    return m_daemon.waitForStarted(5000) ? bringUp() : QStringLiteral("ofonod did not start");
}

QString OfonoDaemon::bringUp()
{
    const QDeadlineTimer deadline(20000);
    const auto until = [&](const auto &condition) {
        return QTest::qWaitFor([&] { return condition() || m_daemon.state() == QProcess::NotRunning; },
                               int(deadline.remainingTime()))
                && m_daemon.state() == QProcess::Running;
    };
    const auto set = [this](const char *name) {
        const QVariantList args{ QString::fromLatin1(name), QVariant::fromValue(QDBusVariant(true)) };
        return call(modemInterface, QStringLiteral("SetProperty"), args).type() == QDBusMessage::ReplyMessage;
    };
    // Each step is retried until the daemon takes it. The SIM is read after
    // power-up (its IMSI comes last), and only then may the modem go online:
    // before, oFono takes Online for emergency calls only.
    QDBusConnectionInterface *bus = m_bus.connection().interface();
    if (!bus || !until([bus] { return bus->isServiceRegistered(ofono).value(); }))
        return QStringLiteral("ofonod did not take its name on the bus");
    if (!until([&] { return set("Powered"); }))
        return QStringLiteral("the modem could not be powered");
    if (!until([&] { return !property(QStringLiteral("org.ofono.SimManager"), QStringLiteral("SubscriberIdentity")).toString().isEmpty(); }))
        return QStringLiteral("the modem's SIM was not read");
    if (!until([&] { return set("Online"); }))
        return QStringLiteral("the modem could not be brought online");
    if (!until([&] { return property(QStringLiteral("org.ofono.NetworkRegistration"), QStringLiteral("Status")) == QStringLiteral("registered"); }))
        return QStringLiteral("the modem did not register on the network");
    if (!property(modemInterface, QStringLiteral("Interfaces")).toStringList().contains(QStringLiteral("org.ofono.VoiceCallManager")))
        return QStringLiteral("the modem offered no voice calls");
    return QString();
}

QDBusMessage OfonoDaemon::call(const QString &interface, const QString &method, const QVariantList &args)
{
    QDBusMessage message = QDBusMessage::createMethodCall(ofono, modemPath(), interface, method);
    message.setArguments(args);
    return m_bus.connection().call(message, QDBus::Block, 5000);
}

QVariant OfonoDaemon::property(const QString &interface, const QString &name)
{
    const QDBusMessage reply = call(interface, QStringLiteral("GetProperties"));
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return qdbus_cast<QVariantMap>(reply.arguments().constFirst()).value(name);
}

bool OfonoDaemon::waitForCalls(int count)
{
    return QTest::qWaitFor([&] {
        const QDBusMessage reply = call(QStringLiteral("org.ofono.VoiceCallManager"), QStringLiteral("GetCalls"));
        return reply.type() == QDBusMessage::ReplyMessage
                && qdbus_cast<ObjectPropertiesList>(reply.arguments().value(0)).size() == count;
    }, 10000);
}

void OfonoDaemon::control(const QByteArray &command)
{
    m_modem.write(command + '\n');
    m_modem.waitForBytesWritten(1000);
}
