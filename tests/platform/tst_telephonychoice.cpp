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

// The backend chosen on `bus`, checked against the line it prints.
QString chosenWith(const QDBusConnection &bus)
{
    StdoutCapture capture;
    const QString name = Platform::chooseTelephony(bus)->backendName();
    return capture.lines() == QStringList{ QStringLiteral("Telephony: ") + name } ? name : QStringLiteral("(unsaid)");
}

bool startOfonoMock(PrivateBus &bus)
{
    return bus.startService(QStringLiteral("/usr/bin/python3"), { "-m", "dbusmock", "--template", "ofono" },
                            OfonoTelephony::serviceName);
}

} // namespace

class TestTelephonyChoice : public QObject
{
    Q_OBJECT

private slots:
    void choosesByTheServicesPresent()
    {
        const QString desktopOrNone = QStandardPaths::findExecutable(QStringLiteral("xdg-mime")).isEmpty()
                                          ? QStringLiteral("none")
                                          : QStringLiteral("desktop tel: handler");
        {
            PrivateBus bus;
            QCOMPARE(chosenWith(bus.connection()), desktopOrNone);
            QVERIFY(startOfonoMock(bus));
            QCOMPARE(chosenWith(bus.connection()), QStringLiteral("oFono"));
            SimulatedModem modem(bus);
            QVERIFY(modem.isRunning());
            QCOMPARE(chosenWith(bus.connection()), QStringLiteral("ModemManager")); // comes first
        }
        // No system bus at all, and no desktop handler either.
        const QDBusConnection noBus(QStringLiteral("never-connected"));
        QCOMPARE(chosenWith(noBus), desktopOrNone);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nonexistent");
        const QString chosen = chosenWith(noBus);
        qputenv("PATH", path);
        QCOMPARE(chosen, QStringLiteral("none"));
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
