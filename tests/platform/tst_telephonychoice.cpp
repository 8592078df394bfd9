// Which telephony the app takes as bus services come and go, and how the desktop's tel: handler is found.
#include "DesktopTelephony.h"
#include "OfonoTelephony.h"
#include "Platform.h"
#include "PrivateBus.h"
#include "SimulatedModem.h"
#include "StdoutCapture.h"
#include "SystemTelephony.h"
#include "TestHome.h"

#include <QDBusConnection>
#include <QtTest>

class TestTelephonyChoice : public QObject
{
    Q_OBJECT

    static void writeFile(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    const QString withoutModem = QStandardPaths::findExecutable(QStringLiteral("xdg-mime")).isEmpty()
                                     ? QStringLiteral("none")
                                     : QStringLiteral("desktop tel: handler");

private slots:
    void followsTheServicesWhileTheAppRuns()
    {
        PrivateBus bus;
        StdoutCapture capture;
        SystemTelephony telephony(bus.connection());
        QStringList events;
        connect(&telephony, &Telephony::callChanged, this,
                [&](const CallEvent &e) { events.append(e.hasEnded ? "ended" : e.hasConnected ? "connected" : "placed"); });
        QCOMPARE(telephony.backendName(), withoutModem);
        QVERIFY(bus.startService(QStringLiteral("/usr/bin/python3"), { "-m", "dbusmock", "--template", "ofono" },
                                 OfonoTelephony::serviceName));
        QTRY_COMPARE(telephony.backendName(), QStringLiteral("oFono"));

        SimulatedModem modem(bus, 100);
        QTRY_COMPARE(telephony.backendName(), QStringLiteral("ModemManager")); // comes first
        telephony.open(DialRequest{ QStringLiteral("#31#"), QStringLiteral("0611 111 111") });
        QTRY_COMPARE(events, (QStringList{ "placed", "connected", "ended" }));

        modem.stop();
        QTRY_COMPARE(telephony.backendName(), QStringLiteral("oFono"));
        QCOMPARE(capture.lines(), (QStringList{ "Telephony: " + withoutModem, "Telephony: oFono",
                                                "Telephony: ModemManager", "Telephony: oFono" }));

        // No system bus at all, and no desktop handler either.
        const QDBusConnection noBus(QStringLiteral("never-connected"));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nonexistent");
        const QString chosen = SystemTelephony(noBus).backendName();
        qputenv("PATH", path);
        QCOMPARE(chosen, QStringLiteral("none"));
    }

    // The app's own path: the system bus named by DBUS_SYSTEM_BUS_ADDRESS.
    void appTakesTheSystemBusFromTheEnvironment()
    {
        PrivateBus bus;
        SimulatedModem modem(bus);
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toUtf8());
        PlatformParts parts;
        Platform::fillMissing(parts);
        QCOMPARE(parts.telephony->backendName(), QStringLiteral("ModemManager"));
        parts = {};
        QDBusConnection::disconnectFromBus(QDBusConnection::systemBus().name());
    }

    void desktopAsksForItsHandlerInTheBackground()
    {
        const QDir home(TestHome::use());
        qunsetenv("XDG_CURRENT_DESKTOP");
        const DialRequest call{ QStringLiteral("#31#"), QStringLiteral("0611 111 111") };
        DesktopTelephony desktop;
        QVERIFY(desktop.findChildren<QProcess *>().isEmpty()); // nothing runs during start-up
        QSignalSpy failed(&desktop, &Telephony::requestFailed);
        // Asked before xdg-mime answered: the request waits for the answer.
        QVERIFY(desktop.canOpen(call));
        desktop.open(call);
        QVERIFY(failed.wait(10000));
        QCOMPARE(failed.constFirst().constFirst().toString(), QStringLiteral("No application on this computer places phone calls."));
        QVERIFY(!desktop.canOpen(DialRequest{ {}, QStringLiteral("*#06#") }));

        // A handler installed since is found by the next look-up.
        QVERIFY(home.mkpath(QStringLiteral("data/applications")));
        writeFile(home.filePath(QStringLiteral("data/applications/test-dialer.desktop")),
                  "[Desktop Entry]\nType=Application\nName=Dialer\nExec=true %u\nMimeType=x-scheme-handler/tel;\n");
        writeFile(home.filePath(QStringLiteral("config/mimeapps.list")),
                  "[Default Applications]\nx-scheme-handler/tel=test-dialer.desktop\n");
        QVERIFY(!desktop.canOpen(call));
        QTRY_VERIFY_WITH_TIMEOUT(desktop.canOpen(call), 10000);

        // A look-up that fails is no answer: the request is not refused for it.
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nonexistent");
        DesktopTelephony lost;
        QVERIFY(lost.canOpen(call));
        qputenv("PATH", path);
        QTRY_COMPARE(lost.findChildren<QProcess *>().size(), 0);
        QVERIFY(lost.canOpen(call));
    }
};

QTEST_GUILESS_MAIN(TestTelephonyChoice)
#include "tst_telephonychoice.moc"
