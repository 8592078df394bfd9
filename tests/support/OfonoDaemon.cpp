#include "OfonoDaemon.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>

namespace {

const QString ofono = QStringLiteral("org.ofono");
const QString modemInterface = QStringLiteral("org.ofono.Modem");
constexpr int bringUpMs = 20000;

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

OfonoDaemon::OfonoDaemon(Start start)
{
    if (!m_bus.isRunning()) {
        fail(QStringLiteral("the private bus did not start"));
        return;
    }
    if (!startModem())
        return;
    if (start == Start::Now)
        startDaemon();
}

OfonoDaemon::~OfonoDaemon()
{
    stopDaemon();
    m_modem.closeWriteChannel(); // the modem stops at the end of its input
    if (m_modem.state() != QProcess::NotRunning && !m_modem.waitForFinished(5000)) {
        m_modem.kill();
        m_modem.waitForFinished(5000);
    }
}

bool OfonoDaemon::isInstalled()
{
    return !ofonod().isEmpty();
}

QString OfonoDaemon::modemPath()
{
    return QStringLiteral("/qtest");
}

bool OfonoDaemon::startModem()
{
    m_modem.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_modem.start(QStringLiteral("/usr/bin/python3"), { QStringLiteral(QUIETON_SOURCE_DIR "/tests/support/at-modem.py") });
    QObject::connect(&m_modem, &QProcess::readyReadStandardOutput, &m_modem, [this] {
        while (m_modem.canReadLine()) {
            const QString line = QString::fromUtf8(m_modem.readLine()).trimmed();
            if (line.startsWith(QLatin1String("ATD ")))
                m_dials.append(line.mid(4));
            else if (line.startsWith(QLatin1String("Port ")))
                m_port = line.mid(5).toInt();
        }
    });
    if (!QTest::qWaitFor([this] { return m_port > 0 || m_modem.state() == QProcess::NotRunning; }, 10000)
        || m_port <= 0) {
        fail(QStringLiteral("the AT modem did not start"));
        return false;
    }
    // oFono's phonesim driver makes one modem per group, named after it.
    QFile config(m_directory.filePath(QStringLiteral("phonesim.conf")));
    if (!config.open(QIODevice::WriteOnly)
        || config.write(QStringLiteral("[qtest]\nAddress=127.0.0.1\nPort=%1\n").arg(m_port).toUtf8()) < 0) {
        fail(QStringLiteral("cannot write ") + config.fileName());
        return false;
    }
    return true;
}

bool OfonoDaemon::startDaemon()
{
    if (m_port <= 0 || m_daemon.state() != QProcess::NotRunning)
        return m_ready;
    m_error.clear();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), m_bus.address());
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    environment.insert(QStringLiteral("OFONO_PHONESIM_CONFIG"), m_directory.filePath(QStringLiteral("phonesim.conf")));
    environment.insert(QStringLiteral("OFONO_AT_DEBUG"), QStringLiteral("1"));
    m_daemon.setProcessEnvironment(environment);
    // Its debug output, AT commands included, goes to a file that error() shows.
    m_daemon.setStandardOutputFile(m_directory.filePath(QStringLiteral("ofonod.log")), QIODevice::Append);
    m_daemon.setStandardErrorFile(m_directory.filePath(QStringLiteral("ofonod.log")), QIODevice::Append);
    const QStringList arguments{ ofonod(), QStringLiteral("-n"), QStringLiteral("-d"), QStringLiteral("-P"),
                                 QStringLiteral("udevng,udev") };
    if (canIsolateStorage()) {
        const QString storage = m_directory.filePath(QStringLiteral("storage"));
        QDir().mkpath(storage);
        m_daemon.start(QStringLiteral("unshare"),
                       QStringList{ QStringLiteral("--mount"), QStringLiteral("--map-root-user"),
                                    QStringLiteral("--propagation"), QStringLiteral("private"), QStringLiteral("sh"),
                                    QStringLiteral("-c"),
                                    QStringLiteral("mount --bind \"$0\" /var/lib/ofono && exec \"$@\""), storage }
                               + arguments);
    } else {
        m_daemon.start(arguments.constFirst(), arguments.mid(1));
    }
    m_ready = m_daemon.waitForStarted(5000) && bringUp();
    return m_ready;
}

bool OfonoDaemon::bringUp()
{
    const QDeadlineTimer deadline(bringUpMs);
    const auto until = [&](const auto &condition) {
        return QTest::qWaitFor([&] { return condition() || m_daemon.state() == QProcess::NotRunning; },
                               int(deadline.remainingTime()))
                && m_daemon.state() == QProcess::Running;
    };
    const auto set = [this](const char *property) {
        return call(modemInterface, QStringLiteral("SetProperty"),
                    { QString::fromLatin1(property), QVariant::fromValue(QDBusVariant(true)) })
                       .type()
                == QDBusMessage::ReplyMessage;
    };
    const auto property = [this](const QString &interface, const QString &name) {
        return properties(interface).value(name);
    };
    // Each step is retried until the daemon takes it. The modem appears once
    // the daemon owns its name; the SIM is read after power-up (its IMSI comes
    // last) and the modem is brought online only then: before, oFono takes
    // Online for emergency calls and goes on reading the SIM.
    QDBusConnectionInterface *bus = connection().interface();
    if (!bus || !until([bus] { return bus->isServiceRegistered(ofono).value(); }))
        fail(QStringLiteral("ofonod did not take its name on the bus"));
    else if (!until([&] { return set("Powered"); }))
        fail(QStringLiteral("the modem could not be powered"));
    else if (!until([&] { return !property(QStringLiteral("org.ofono.SimManager"), QStringLiteral("SubscriberIdentity")).toString().isEmpty(); }))
        fail(QStringLiteral("the modem's SIM was not read"));
    else if (!until([&] { return set("Online"); }))
        fail(QStringLiteral("the modem could not be brought online"));
    else if (!until([&] {
                 return property(QStringLiteral("org.ofono.NetworkRegistration"), QStringLiteral("Status"))
                         == QStringLiteral("registered");
             }))
        fail(QStringLiteral("the modem did not register on the network"));
    else if (!property(modemInterface, QStringLiteral("Interfaces")).toStringList().contains(QStringLiteral("org.ofono.VoiceCallManager")))
        fail(QStringLiteral("the modem offered no voice calls"));
    else
        return true;
    return false;
}

void OfonoDaemon::stopDaemon()
{
    m_ready = false;
    if (m_daemon.state() == QProcess::NotRunning)
        return;
    m_daemon.terminate();
    if (!m_daemon.waitForFinished(5000)) {
        m_daemon.kill();
        m_daemon.waitForFinished(5000);
    }
    m_bus.waitForName(ofono, false, 5000);
}

void OfonoDaemon::fail(const QString &what)
{
    m_error = what;
    QFile log(m_directory.filePath(QStringLiteral("ofonod.log")));
    if (log.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = log.readAll().split('\n');
        m_error += QStringLiteral("; ofonod's last words:\n")
                + QString::fromUtf8(lines.mid(qMax(0, lines.size() - 20)).join('\n'));
    }
}

QDBusMessage OfonoDaemon::call(const QString &interface, const QString &method, const QVariantList &args,
                               const QString &path)
{
    QDBusMessage message = QDBusMessage::createMethodCall(ofono, path.isEmpty() ? modemPath() : path, interface, method);
    message.setArguments(args);
    return m_bus.connection().call(message, QDBus::Block, 5000);
}

QVariantMap OfonoDaemon::properties(const QString &interface)
{
    const QDBusMessage reply = call(interface, QStringLiteral("GetProperties"));
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return qdbus_cast<QVariantMap>(reply.arguments().constFirst());
}

QString OfonoDaemon::takeDial(int timeoutMs)
{
    if (!QTest::qWaitFor([this] { return m_dials.size() > m_taken; }, timeoutMs))
        return QString();
    return m_dials.at(m_taken++);
}

bool OfonoDaemon::waitForCalls(int count, int timeoutMs)
{
    const auto calls = [this] {
        const QDBusMessage reply = call(QStringLiteral("org.ofono.VoiceCallManager"), QStringLiteral("GetCalls"));
        if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
            return -1;
        // a(oa{sv}): one (path, properties) per call.
        const QDBusArgument array = reply.arguments().constFirst().value<QDBusArgument>();
        int found = 0;
        array.beginArray();
        for (; !array.atEnd(); ++found) {
            QDBusObjectPath path;
            QVariantMap properties;
            array.beginStructure();
            array >> path >> properties;
            array.endStructure();
        }
        array.endArray();
        return found;
    };
    return QTest::qWaitFor([&] { return calls() == count; }, timeoutMs);
}

void OfonoDaemon::control(const QByteArray &command)
{
    m_modem.write(command + '\n');
    m_modem.waitForBytesWritten(1000);
}
