// The oFono backend against python3-dbusmock's oFono template, for what the
// real daemon cannot easily be made to do: modems that come, change their
// interfaces, and a Dial that fails.
#include "OfonoTelephony.h"
#include "PrivateBus.h"

#include <QDBusMessage>
#include <QtTest>

namespace {

const QString mockInterface = QStringLiteral("org.freedesktop.DBus.Mock");
const QString manager = QStringLiteral("org.ofono.VoiceCallManager");
const DialRequest request{ QString(), QStringLiteral("0612345678") };

// The backend on a mock started first, with the failures it reports.
struct Rig
{
    explicit Rig(const QString &parameters = QStringLiteral("{}"))
        : process(bus.startService(QStringLiteral("/usr/bin/python3"),
                                   { "-m", "dbusmock", "--template", "ofono", "-p", parameters }, OfonoTelephony::serviceName))
    {
        QObject::connect(&telephony, &Telephony::callChanged, &context, [this](const CallEvent &e) { events.append(e.callId); });
        QObject::connect(&telephony, &Telephony::requestFailed, &context, [this](const QString &m) { failures.append(m); });
    }
    // A method of the mock itself; fails the test when the mock refuses it.
    void mock(const QString &path, const QString &method, const QVariantList &args)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(OfonoTelephony::serviceName, path, mockInterface, method);
        message.setArguments(args);
        const QDBusMessage reply = bus.connection().call(message, QDBus::Block, 10000);
        QVERIFY2(reply.type() == QDBusMessage::ReplyMessage, qPrintable(reply.errorMessage()));
    }
    bool waitForModems(int count)
    {
        return QTest::qWaitFor([&] { return telephony.voiceModems().size() == count; }, 10000);
    }

    PrivateBus bus;
    QProcess *process = nullptr;
    OfonoTelephony telephony{ bus.connection() };
    QObject context;
    QStringList events, failures;
};

} // namespace

class TestOfonoTelephony : public QObject
{
    Q_OBJECT

private slots:
    void followsModemsThatOfferVoiceCalls()
    {
        Rig rig;
        QVERIFY(rig.process);
        QVERIFY(rig.waitForModems(1));
        QVERIFY(rig.telephony.canOpen(request));

        rig.mock(QStringLiteral("/"), QStringLiteral("AddModem"), { QStringLiteral("ril_1"), QVariantMap() });
        QVERIFY(rig.waitForModems(2));
        const auto offer = [&](const QStringList &interfaces) {
            rig.mock(QStringLiteral("/ril_1"), QStringLiteral("EmitSignal"),
                     { QStringLiteral("org.ofono.Modem"), QStringLiteral("PropertyChanged"), QStringLiteral("sv"),
                       QVariantList{ QStringLiteral("Interfaces"), interfaces } });
        };
        offer({ QStringLiteral("org.ofono.SimManager") });
        QVERIFY(rig.waitForModems(1));
        offer({ QStringLiteral("org.ofono.SimManager"), manager });
        QVERIFY(rig.waitForModems(2));
        QCOMPARE(rig.telephony.voiceModems(), (QStringList{ "/ril_0", "/ril_1" }));

        // oFono leaves the bus: its modems go with it.
        rig.bus.stopService(rig.process);
        QVERIFY(rig.waitForModems(0));
        QVERIFY(!rig.telephony.canOpen(request));
    }

    void noModemCannotOpen()
    {
        Rig rig(QStringLiteral("{\"no_modem\": true}"));
        QVERIFY(rig.process);
        // Until the modems are read, a request waits for them.
        QVERIFY(rig.telephony.canOpen(request));
        rig.telephony.open(request);
        QVERIFY(QTest::qWaitFor([&] { return !rig.failures.isEmpty(); }, 10000));
        QVERIFY(!rig.telephony.canOpen(request));
    }

    void refusedDialBecomesAFailureNotice()
    {
        Rig rig;
        QVERIFY(rig.waitForModems(1));
        rig.mock(QStringLiteral("/ril_0"), QStringLiteral("AddMethod"),
                 { manager, QStringLiteral("Dial"), QStringLiteral("ss"), QStringLiteral("o"),
                   QStringLiteral("raise dbus.exceptions.DBusException('No network', name='org.ofono.Error.Failed')") });
        rig.telephony.open(DialRequest{ QStringLiteral("#31#"), QStringLiteral("0612345678") });
        QVERIFY(QTest::qWaitFor([&] { return !rig.failures.isEmpty(); }, 10000));
        QVERIFY2(rig.failures.constLast().contains(QStringLiteral("No network")), qPrintable(rig.failures.constLast()));
        QVERIFY(rig.events.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestOfonoTelephony)
#include "tst_ofonotelephony.moc"
