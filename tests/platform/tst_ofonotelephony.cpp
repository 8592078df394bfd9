// The oFono backend against python3-dbusmock's oFono template on a private
// bus. The mock's calls stay in the state they are put in: the test moves
// them on with Mock.UpdateProperties and Mock.EmitSignal.
#include "CallConfirmation.h"
#include "OfonoTelephony.h"
#include "PrivateBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QString mockInterface = QStringLiteral("org.freedesktop.DBus.Mock");
const QString ofono = QStringLiteral("org.ofono");

QString describe(const CallEvent &event)
{
    return QStringLiteral("%1%2%3")
        .arg(event.isOutgoing ? QStringLiteral("outgoing") : QStringLiteral("incoming"))
        .arg(event.hasConnected ? QStringLiteral(" connected") : QString())
        .arg(event.hasEnded ? QStringLiteral(" ended") : QString());
}

struct Recorder
{
    explicit Recorder(Telephony &telephony)
    {
        QObject::connect(&telephony, &Telephony::callChanged, &context,
                         [this](const CallEvent &event) { events.append(event); });
        QObject::connect(&telephony, &Telephony::requestFailed, &context,
                         [this](const QString &message) { failures.append(message); });
    }
    QStringList described() const
    {
        QStringList out;
        for (const CallEvent &event : events)
            out.append(describe(event));
        return out;
    }
    QObject context;
    QList<CallEvent> events;
    QStringList failures;
};

// The oFono mock on a bus, and what the test does to it.
struct OfonoMock
{
    OfonoMock(PrivateBus &bus, const QString &parameters = QString()) : bus(bus)
    {
        QStringList arguments{ QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--template"),
                               QStringLiteral("ofono") };
        if (!parameters.isEmpty())
            arguments << QStringLiteral("-p") << parameters;
        process = bus.startService(QStringLiteral("/usr/bin/python3"), arguments, ofono);
    }

    QDBusMessage call(const QString &path, const QString &interface, const QString &method, const QVariantList &args)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(ofono, path, interface, method);
        message.setArguments(args);
        return bus.connection().call(message, QDBus::Block, 10000);
    }

    // The arguments of every Dial the mock received.
    QList<QStringList> dials()
    {
        const QDBusMessage reply = call(QStringLiteral("/"), mockInterface, QStringLiteral("GetMethodCalls"),
                                        { QStringLiteral("Dial") });
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

    // Moves a call to `state` the way oFono announces it.
    void setState(const QString &callPath, const QString &state)
    {
        const QDBusMessage reply = call(callPath, mockInterface, QStringLiteral("UpdateProperties"),
                                        { QStringLiteral("org.ofono.VoiceCall"), QVariantMap{ { QStringLiteral("State"), state } } });
        QVERIFY2(reply.type() == QDBusMessage::ReplyMessage, qPrintable(reply.errorMessage()));
        emitSignal(callPath, QStringLiteral("org.ofono.VoiceCall"), QStringLiteral("PropertyChanged"),
                   QStringLiteral("sv"), { QStringLiteral("State"), state });
    }

    void emitSignal(const QString &path, const QString &interface, const QString &name, const QString &signature,
                    const QVariantList &args)
    {
        const QDBusMessage reply = call(path, mockInterface, QStringLiteral("EmitSignal"),
                                        { interface, name, signature, args });
        QVERIFY2(reply.type() == QDBusMessage::ReplyMessage, qPrintable(reply.errorMessage()));
    }

    PrivateBus &bus;
    QProcess *process = nullptr;
};

struct AlwaysCall
{
    explicit AlwaysCall(CallConfirmation &confirmation)
    {
        QObject::connect(&confirmation, &CallConfirmation::requested, &context, [&confirmation] {
            QMetaObject::invokeMethod(&confirmation, &CallConfirmation::call, Qt::QueuedConnection);
        });
    }
    QObject context;
};

bool waitForModems(OfonoTelephony &telephony, int count)
{
    return QTest::qWaitFor([&] { return telephony.voiceModems().size() == count; }, 10000);
}

} // namespace

class TestOfonoTelephony : public QObject
{
    Q_OBJECT

private slots:
    void findsTheVoiceModem()
    {
        PrivateBus bus;
        OfonoMock mock(bus);
        QVERIFY(mock.process);
        CallConfirmation confirmation;
        OfonoTelephony telephony(bus.connection(), confirmation);
        QVERIFY(waitForModems(telephony, 1));
        QCOMPARE(telephony.voiceModems(), QStringList{ QStringLiteral("/ril_0") });
        QVERIFY(telephony.canOpen(QStringLiteral("0612345678")));

        // A modem added while the app runs is picked up.
        mock.call(QStringLiteral("/"), mockInterface, QStringLiteral("AddModem"),
                  { QStringLiteral("ril_1"), QVariantMap() });
        QVERIFY(waitForModems(telephony, 2));
        // A modem that stops offering voice calls is dropped, and taken
        // again once it offers them.
        const auto offer = [&](const QStringList &interfaces) {
            mock.emitSignal(QStringLiteral("/ril_1"), QStringLiteral("org.ofono.Modem"),
                            QStringLiteral("PropertyChanged"), QStringLiteral("sv"),
                            { QStringLiteral("Interfaces"), interfaces });
        };
        offer({ QStringLiteral("org.ofono.SimManager") });
        QVERIFY(waitForModems(telephony, 1));
        offer({ QStringLiteral("org.ofono.SimManager"), QStringLiteral("org.ofono.VoiceCallManager") });
        QVERIFY(waitForModems(telephony, 2));
        QCOMPARE(telephony.voiceModems(), (QStringList{ "/ril_0", "/ril_1" }));
    }

    void noModemCannotOpen()
    {
        PrivateBus bus;
        OfonoMock mock(bus, QStringLiteral("{\"no_modem\": true}"));
        QVERIFY(mock.process);
        CallConfirmation confirmation;
        OfonoTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        // Until the modems are read, a request waits for them.
        QVERIFY(telephony.canOpen(QStringLiteral("0612")));
        telephony.open(QStringLiteral("0612"));
        QVERIFY(QTest::qWaitFor([&] { return !recorder.failures.isEmpty(); }, 10000));
        QVERIFY(!telephony.canOpen(QStringLiteral("0612")));
        QVERIFY(!confirmation.isPending());
    }

    void dialAndFollowTheCall()
    {
        PrivateBus bus;
        OfonoMock mock(bus);
        CallConfirmation confirmation;
        OfonoTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));

        telephony.open(QStringLiteral("#31#0612345678"));
        QVERIFY(confirmation.isPending());
        QCOMPARE(confirmation.dialString(), QStringLiteral("#31#0612345678"));
        confirmation.call();
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 1; }, 10000));
        QCOMPARE(mock.dials(), (QList<QStringList>{ { "#31#0612345678", "default" } }));
        const QString callPath = QStringLiteral("/ril_0/voicecall01");
        QCOMPARE(recorder.events.first().callId, callPath);

        mock.setState(callPath, QStringLiteral("alerting"));
        mock.setState(callPath, QStringLiteral("active"));
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 2; }, 10000));
        mock.setState(callPath, QStringLiteral("held"));
        mock.setState(callPath, QStringLiteral("active"));
        mock.setState(callPath, QStringLiteral("disconnected"));
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 3; }, 10000));
        mock.emitSignal(QStringLiteral("/ril_0"), QStringLiteral("org.ofono.VoiceCallManager"),
                        QStringLiteral("CallRemoved"), QStringLiteral("o"), { QVariant::fromValue(QDBusObjectPath(callPath)) });
        // A round trip to the mock after the signal: anything it caused has arrived.
        QTest::qWait(200);
        mock.dials();
        QCoreApplication::processEvents();
        QCOMPARE(recorder.described(), (QStringList{ "outgoing", "outgoing connected", "outgoing connected ended" }));
        QVERIFY(recorder.failures.isEmpty());
    }

    void callRemovedEndsTheCall()
    {
        PrivateBus bus;
        OfonoMock mock(bus);
        CallConfirmation confirmation;
        AlwaysCall answer(confirmation);
        OfonoTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        telephony.open(QStringLiteral("*31#0612345678"));
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 1; }, 10000));
        QCOMPARE(mock.dials(), (QList<QStringList>{ { "*31#0612345678", "default" } }));
        // Hung up before the other side answered; the mock's Hangup removes
        // the call without a signal, so oFono's CallRemoved is sent by hand.
        mock.call(QStringLiteral("/ril_0/voicecall01"), QStringLiteral("org.ofono.VoiceCall"), QStringLiteral("Hangup"), {});
        mock.emitSignal(QStringLiteral("/ril_0"), QStringLiteral("org.ofono.VoiceCallManager"),
                        QStringLiteral("CallRemoved"), QStringLiteral("o"),
                        { QVariant::fromValue(QDBusObjectPath(QStringLiteral("/ril_0/voicecall01"))) });
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 2; }, 10000));
        QCOMPARE(recorder.described(), (QStringList{ "outgoing", "outgoing ended" }));
    }

    void incomingCallIsNotOutgoing()
    {
        PrivateBus bus;
        OfonoMock mock(bus);
        CallConfirmation confirmation;
        OfonoTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));
        const QString callPath = QStringLiteral("/ril_0/voicecall07");
        mock.emitSignal(QStringLiteral("/ril_0"), QStringLiteral("org.ofono.VoiceCallManager"),
                        QStringLiteral("CallAdded"), QStringLiteral("oa{sv}"),
                        { QVariant::fromValue(QDBusObjectPath(callPath)),
                          QVariantMap{ { QStringLiteral("State"), QStringLiteral("incoming") },
                                       { QStringLiteral("LineIdentification"), QStringLiteral("0699") } } });
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 1; }, 10000));
        mock.emitSignal(QStringLiteral("/ril_0"), QStringLiteral("org.ofono.VoiceCallManager"),
                        QStringLiteral("CallRemoved"), QStringLiteral("o"), { QVariant::fromValue(QDBusObjectPath(callPath)) });
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 2; }, 10000));
        QCOMPARE(recorder.described(), (QStringList{ "incoming", "incoming ended" }));
        QVERIFY(mock.dials().isEmpty());
    }

    void numbersOfonoWouldRejectFailAsNotices_data()
    {
        QTest::addColumn<QString>("dialString");
        QTest::newRow("empty") << QString();
        QTest::newRow("spaces") << QStringLiteral("06 12 34");
        QTest::newRow("letters") << QStringLiteral("#31#06abc");
        QTest::newRow("plus inside") << QStringLiteral("#31#+3361");
        QTest::newRow("81 digits") << QString(81, u'1');
    }

    void numbersOfonoWouldRejectFailAsNotices()
    {
        QFETCH(QString, dialString);
        PrivateBus bus;
        OfonoMock mock(bus);
        CallConfirmation confirmation;
        OfonoTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));
        telephony.open(dialString);
        QCOMPARE(recorder.failures.size(), 1);
        QVERIFY(!confirmation.isPending());
        QVERIFY(mock.dials().isEmpty());
        QVERIFY(recorder.events.isEmpty());
        QVERIFY(OfonoTelephony::isDialableNumber(QString(80, u'1')));
        QVERIFY(OfonoTelephony::isDialableNumber(QStringLiteral("+*#0")));
    }

    void refusedDialBecomesAFailureNotice()
    {
        PrivateBus bus;
        OfonoMock mock(bus);
        CallConfirmation confirmation;
        AlwaysCall answer(confirmation);
        OfonoTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));
        const QDBusMessage added = mock.call(
            QStringLiteral("/ril_0"), mockInterface, QStringLiteral("AddMethod"),
            { QStringLiteral("org.ofono.VoiceCallManager"), QStringLiteral("Dial"), QStringLiteral("ss"),
              QStringLiteral("o"),
              QStringLiteral("raise dbus.exceptions.DBusException('No network', name='org.ofono.Error.Failed')") });
        QVERIFY2(added.type() == QDBusMessage::ReplyMessage, qPrintable(added.errorMessage()));
        telephony.open(QStringLiteral("#31#0612345678"));
        QVERIFY(QTest::qWaitFor([&] { return !recorder.failures.isEmpty(); }, 10000));
        QVERIFY2(recorder.failures.first().contains(QStringLiteral("No network")), qPrintable(recorder.failures.first()));
        QVERIFY(recorder.events.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestOfonoTelephony)
#include "tst_ofonotelephony.moc"
