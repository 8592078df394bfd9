// The oFono backend against python3-dbusmock's oFono template on a private
// bus, for what the real daemon (tst_ofonodaemon) cannot easily be made to
// do: modems that come, change their interfaces, and a Dial that fails.
#include "OfonoTelephony.h"
#include "PrivateBus.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QtTest>

namespace {

const QString mockInterface = QStringLiteral("org.freedesktop.DBus.Mock");
const QString ofono = QStringLiteral("org.ofono");
const QString manager = QStringLiteral("org.ofono.VoiceCallManager");

QProcess *startMock(PrivateBus &bus, const QString &parameters)
{
    QStringList arguments{ "-m", "dbusmock", "--template", "ofono" };
    if (!parameters.isEmpty())
        arguments << QStringLiteral("-p") << parameters;
    return bus.startService(QStringLiteral("/usr/bin/python3"), arguments, ofono);
}

// The backend on a mock started first, with what it reports.
struct Rig
{
    explicit Rig(const QString &parameters = QString()) : process(startMock(bus, parameters))
    {
        QObject::connect(&telephony, &Telephony::callChanged, &context,
                         [this](const CallEvent &e) { events.append(e.callId); });
        QObject::connect(&telephony, &Telephony::requestFailed, &context,
                         [this](const QString &message) { failures.append(message); });
    }

    QDBusMessage call(const QString &path, const QString &interface, const QString &method, const QVariantList &args)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(ofono, path, interface, method);
        message.setArguments(args);
        return bus.connection().call(message, QDBus::Block, 10000);
    }
    void emitSignal(const QString &path, const QString &interface, const QString &name, const QString &signature,
                    const QVariantList &args)
    {
        const QDBusMessage reply = call(path, mockInterface, QStringLiteral("EmitSignal"), { interface, name, signature, args });
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
        QVERIFY(rig.telephony.canOpen(DialRequest{ QString(), QStringLiteral("0612345678") }));

        rig.call(QStringLiteral("/"), mockInterface, QStringLiteral("AddModem"), { QStringLiteral("ril_1"), QVariantMap() });
        QVERIFY(rig.waitForModems(2));
        const auto offer = [&](const QStringList &interfaces) {
            rig.emitSignal(QStringLiteral("/ril_1"), QStringLiteral("org.ofono.Modem"), QStringLiteral("PropertyChanged"),
                           "sv", { QStringLiteral("Interfaces"), interfaces });
        };
        offer({ QStringLiteral("org.ofono.SimManager") });
        QVERIFY(rig.waitForModems(1));
        offer({ QStringLiteral("org.ofono.SimManager"), manager });
        QVERIFY(rig.waitForModems(2));
        QCOMPARE(rig.telephony.voiceModems(), (QStringList{ "/ril_0", "/ril_1" }));
    }

    void noModemCannotOpen()
    {
        Rig rig(QStringLiteral("{\"no_modem\": true}"));
        QVERIFY(rig.process);
        // Until the modems are read, a request waits for them.
        QVERIFY(rig.telephony.canOpen(DialRequest{ QString(), QStringLiteral("0612") }));
        rig.telephony.open(DialRequest{ QString(), QStringLiteral("0612") });
        QVERIFY(QTest::qWaitFor([&] { return !rig.failures.isEmpty(); }, 10000));
        QVERIFY(!rig.telephony.canOpen(DialRequest{ QString(), QStringLiteral("0612") }));
    }

    void refusedDialBecomesAFailureNotice()
    {
        Rig rig;
        QVERIFY(rig.waitForModems(1));
        const QDBusMessage added = rig.call(
            QStringLiteral("/ril_0"), mockInterface, QStringLiteral("AddMethod"),
            { manager, QStringLiteral("Dial"), QStringLiteral("ss"), QStringLiteral("o"),
              QStringLiteral("raise dbus.exceptions.DBusException('No network', name='org.ofono.Error.Failed')") });
        QVERIFY2(added.type() == QDBusMessage::ReplyMessage, qPrintable(added.errorMessage()));
        rig.telephony.open(DialRequest{ QStringLiteral("#31#"), QStringLiteral("0612345678") });
        QVERIFY(QTest::qWaitFor([&] { return !rig.failures.isEmpty(); }, 10000));
        QVERIFY2(rig.failures.constLast().contains(QStringLiteral("No network")), qPrintable(rig.failures.constLast()));
        QVERIFY(rig.events.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestOfonoTelephony)
#include "tst_ofonotelephony.moc"
