// Which telephony the app takes, by the services on the system bus.
#include "ModemManagerTelephony.h"
#include "OfonoTelephony.h"
#include "Platform.h"
#include "PrivateBus.h"
#include "SimulatedModem.h"
#include "StdoutCapture.h"

#include <QDBusConnection>
#include <QStandardPaths>
#include <QtTest>

namespace {

QString chosenWith(const QDBusConnection &bus, QStringList *printed = nullptr)
{
    StdoutCapture capture;
    const std::unique_ptr<Telephony> chosen = Platform::chooseTelephony(bus);
    if (printed)
        *printed = capture.lines();
    return chosen->backendName();
}

QString desktopOrNone()
{
    return QStandardPaths::findExecutable(QStringLiteral("xdg-mime")).isEmpty() ? QStringLiteral("none")
                                                                                 : QStringLiteral("desktop tel: handler");
}

} // namespace

class TestTelephonyChoice : public QObject
{
    Q_OBJECT

private slots:
    void modemManagerComesFirst()
    {
        PrivateBus bus;
        SimulatedModem modem(bus);
        QVERIFY(modem.isRunning());
        QVERIFY(bus.startService(QStringLiteral("/usr/bin/python3"),
                                 { QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--template"),
                                   QStringLiteral("ofono") },
                                 OfonoTelephony::serviceName));
        QStringList printed;
        QCOMPARE(chosenWith(bus.connection(), &printed), QStringLiteral("ModemManager"));
        QCOMPARE(printed, QStringList{ QStringLiteral("Telephony: ModemManager") });
    }

    void oFonoWithoutModemManager()
    {
        PrivateBus bus;
        QVERIFY(bus.startService(QStringLiteral("/usr/bin/python3"),
                                 { QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--template"),
                                   QStringLiteral("ofono") },
                                 OfonoTelephony::serviceName));
        QStringList printed;
        QCOMPARE(chosenWith(bus.connection(), &printed), QStringLiteral("oFono"));
        QCOMPARE(printed, QStringList{ QStringLiteral("Telephony: oFono") });
    }

    void desktopHandlerWithoutTelephonyServices()
    {
        PrivateBus bus;
        QCOMPARE(chosenWith(bus.connection()), desktopOrNone());
        // No system bus at all.
        QCOMPARE(chosenWith(QDBusConnection(QStringLiteral("never-connected"))), desktopOrNone());
    }

    void noneWithoutAnything()
    {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nonexistent");
        QStringList printed;
        const QString chosen = chosenWith(QDBusConnection(QStringLiteral("never-connected")), &printed);
        qputenv("PATH", path);
        QCOMPARE(chosen, QStringLiteral("none"));
        QCOMPARE(printed, QStringList{ QStringLiteral("Telephony: none") });
    }

    // The app's own path: the system bus named by DBUS_SYSTEM_BUS_ADDRESS.
    void appTakesTheSystemBusFromTheEnvironment()
    {
        PrivateBus bus;
        SimulatedModem modem(bus);
        QVERIFY(modem.isRunning());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toUtf8());
        QCOMPARE(Platform::telephony().backendName(), QStringLiteral("ModemManager"));
        auto &telephony = static_cast<ModemManagerTelephony &>(Platform::telephony());
        QVERIFY(QTest::qWaitFor([&] { return telephony.voiceModems().size() == 1; }, 10000));
        Platform::setTelephony(nullptr);
        QDBusConnection::disconnectFromBus(QDBusConnection::systemBus().name());
    }
};

QTEST_GUILESS_MAIN(TestTelephonyChoice)
#include "tst_telephonychoice.moc"
