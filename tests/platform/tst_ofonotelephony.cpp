// The oFono backend against python3-dbusmock's oFono template on a private
// bus. The mock's calls stay in the state they are put in: the test moves
// them on with Mock.UpdateProperties and Mock.EmitSignal.
#include "OfonoTelephony.h"
#include "PrivateBus.h"

#include <QDBusArgument>
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

// The backend on a mock started first, with what it reports as text ("outgoing connected ended").
struct Rig
{
    explicit Rig(const QString &parameters = QString()) : process(startMock(bus, parameters))
    {
        QObject::connect(&telephony, &Telephony::callChanged, &context, [this](const CallEvent &e) {
            events.append(QStringLiteral("%1%2%3")
                              .arg(e.isOutgoing ? "outgoing" : "incoming", e.hasConnected ? " connected" : "",
                                   e.hasEnded ? " ended" : ""));
            callIds.append(e.callId);
        });
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
    // Moves a call to `state` the way oFono announces it.
    void setState(const QString &callPath, const QString &state)
    {
        call(callPath, mockInterface, QStringLiteral("UpdateProperties"),
             { QStringLiteral("org.ofono.VoiceCall"), QVariantMap{ { QStringLiteral("State"), state } } });
        emitSignal(callPath, QStringLiteral("org.ofono.VoiceCall"), QStringLiteral("PropertyChanged"), "sv",
                   { QStringLiteral("State"), state });
    }
    void removeCall(const QString &callPath)
    {
        emitSignal(QStringLiteral("/ril_0"), manager, QStringLiteral("CallRemoved"), "o",
                   { QVariant::fromValue(QDBusObjectPath(callPath)) });
    }
    bool waitForEvents(int count) { return QTest::qWaitFor([&] { return events.size() == count; }, 10000); }
    bool waitForModems(int count)
    {
        return QTest::qWaitFor([&] { return telephony.voiceModems().size() == count; }, 10000);
    }

    // The arguments of every Dial the mock received.
    QList<QStringList> dials()
    {
        const QDBusMessage reply = call(QStringLiteral("/"), mockInterface, QStringLiteral("GetMethodCalls"), { "Dial" });
        QList<QStringList> result;
        if (reply.type() != QDBusMessage::ReplyMessage)
            return result;
        const QDBusArgument calls = reply.arguments().constFirst().value<QDBusArgument>();
        calls.beginArray();
        while (!calls.atEnd()) {
            qulonglong time = 0;
            QVariantList args;
            calls.beginStructure();
            calls >> time >> args;
            calls.endStructure();
            QStringList strings;
            for (const QVariant &arg : args)
                strings.append(arg.toString());
            result.append(strings);
        }
        calls.endArray();
        return result;
    }

    PrivateBus bus;
    QProcess *process = nullptr;
    OfonoTelephony telephony{ bus.connection() };
    QObject context;
    QStringList events, callIds, failures;
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

    void dialAndFollowTheCall()
    {
        Rig rig;
        QVERIFY(rig.waitForModems(1));
        rig.telephony.open(DialRequest{ QStringLiteral("#31#"), QStringLiteral("0612345678") });
        QVERIFY(rig.waitForEvents(1));
        QCOMPARE(rig.dials(), (QList<QStringList>{ { "0612345678", "enabled" } }));
        const QString callPath = QStringLiteral("/ril_0/voicecall01");
        QCOMPARE(rig.callIds.first(), callPath);

        rig.setState(callPath, QStringLiteral("alerting"));
        rig.setState(callPath, QStringLiteral("active"));
        QVERIFY(rig.waitForEvents(2));
        rig.setState(callPath, QStringLiteral("held"));
        rig.setState(callPath, QStringLiteral("active"));
        rig.setState(callPath, QStringLiteral("disconnected"));
        QVERIFY(rig.waitForEvents(3));
        rig.removeCall(callPath);
        // A round trip to the mock after the signal: anything it caused has arrived.
        QTest::qWait(200);
        rig.dials();
        QCoreApplication::processEvents();
        QCOMPARE(rig.events, (QStringList{ "outgoing", "outgoing connected", "outgoing connected ended" }));
        QVERIFY(rig.failures.isEmpty());
    }

    void removedCallsEnd()
    {
        Rig rig;
        QVERIFY(rig.waitForModems(1));
        // Hung up before the other side answered.
        rig.telephony.open(DialRequest{ QString(), QStringLiteral("0612345678") });
        QVERIFY(rig.waitForEvents(1));
        rig.removeCall(QStringLiteral("/ril_0/voicecall01"));
        QVERIFY(rig.waitForEvents(2));

        // A call that came in is not outgoing.
        const QString incoming = QStringLiteral("/ril_0/voicecall07");
        rig.emitSignal(QStringLiteral("/ril_0"), manager, QStringLiteral("CallAdded"), "oa{sv}",
                       { QVariant::fromValue(QDBusObjectPath(incoming)),
                         QVariantMap{ { QStringLiteral("State"), QStringLiteral("incoming") } } });
        QVERIFY(rig.waitForEvents(3));
        rig.removeCall(incoming);
        QVERIFY(rig.waitForEvents(4));
        QCOMPARE(rig.events, (QStringList{ "outgoing", "outgoing ended", "incoming", "incoming ended" }));
        QCOMPARE(rig.dials().size(), 1);
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
