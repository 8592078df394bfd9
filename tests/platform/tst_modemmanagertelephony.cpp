// The ModemManager backend against tools/simulated-modem.py on a private bus.
#include "CallConfirmation.h"
#include "ModemManagerTelephony.h"
#include "PrivateBus.h"
#include "SimulatedModem.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

QString describe(const CallEvent &event)
{
    return QStringLiteral("%1%2%3")
        .arg(event.isOutgoing ? QStringLiteral("outgoing") : QStringLiteral("incoming"))
        .arg(event.hasConnected ? QStringLiteral(" connected") : QString())
        .arg(event.hasEnded ? QStringLiteral(" ended") : QString());
}

// Everything the backend reports, in order.
struct Recorder
{
    explicit Recorder(Telephony &telephony)
    {
        QObject::connect(&telephony, &Telephony::callChanged, &context,
                         [this](const CallEvent &event) { events.append(event); });
        QObject::connect(&telephony, &Telephony::requestFailed, &context,
                         [this](const QString &message) { failures.append(message); });
    }
    QStringList described(const QString &callId = QString()) const
    {
        QStringList out;
        for (const CallEvent &event : events) {
            if (callId.isEmpty() || event.callId == callId)
                out.append(describe(event));
        }
        return out;
    }
    QObject context;
    QList<CallEvent> events;
    QStringList failures;
};

// Answers every confirmation with Call.
struct AlwaysCall
{
    explicit AlwaysCall(CallConfirmation &confirmation)
    {
        QObject::connect(&confirmation, &CallConfirmation::requested, &context, [&confirmation](const QString &dial) {
            asked.append(dial);
            QMetaObject::invokeMethod(&confirmation, &CallConfirmation::call, Qt::QueuedConnection);
        });
    }
    QObject context;
    inline static QStringList asked;
};

bool waitForModems(ModemManagerTelephony &telephony, int count)
{
    return QTest::qWaitFor([&] { return telephony.voiceModems().size() == count; }, 10000);
}

} // namespace

class TestModemManagerTelephony : public QObject
{
    Q_OBJECT

private slots:
    void init() { AlwaysCall::asked.clear(); }

    void findsTheVoiceModem()
    {
        PrivateBus bus;
        QVERIFY(bus.isRunning());
        SimulatedModem modem(bus);
        QVERIFY(modem.isRunning());
        CallConfirmation confirmation;
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        QVERIFY(waitForModems(telephony, 1));
        QCOMPARE(telephony.voiceModems(), QStringList{ QStringLiteral("/org/freedesktop/ModemManager1/Modem/0") });
        QVERIFY(telephony.canOpen(QStringLiteral("0612345678")));
        QCOMPARE(telephony.backendName(), QStringLiteral("ModemManager"));
    }

    void noServiceCannotOpen()
    {
        PrivateBus bus;
        CallConfirmation confirmation;
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        QSignalSpy read(&telephony, &ModemManagerTelephony::modemsChanged);
        QVERIFY(read.wait(5000));
        QVERIFY(!telephony.canOpen(QStringLiteral("0612345678")));
        Recorder recorder(telephony);
        telephony.open(QStringLiteral("0612345678"));
        QVERIFY(!confirmation.isPending());
        QCOMPARE(recorder.failures.size(), 1);
    }

    void dialStringReachesTheModemUnchanged_data()
    {
        QTest::addColumn<QString>("dialString");
        QTest::newRow("prefix") << QStringLiteral("#31#0612345678");
        QTest::newRow("star prefix, international") << QStringLiteral("*31#+33612345678");
        QTest::newRow("plain international") << QStringLiteral("+33612345678");
    }

    void dialStringReachesTheModemUnchanged()
    {
        QFETCH(QString, dialString);
        PrivateBus bus;
        SimulatedModem modem(bus);
        CallConfirmation confirmation;
        AlwaysCall answer(confirmation);
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        // Asked before the modems are read: the request waits for them.
        telephony.open(dialString);
        QVERIFY(modem.waitForLine(QStringLiteral("Start ")));
        QCOMPARE(AlwaysCall::asked, QStringList{ dialString });
        QCOMPARE(modem.createdNumbers(), QStringList{ dialString });
    }

    void oneEventPerChangeOfTheCall()
    {
        PrivateBus bus;
        SimulatedModem modem(bus);
        CallConfirmation confirmation;
        AlwaysCall answer(confirmation);
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));
        telephony.open(QStringLiteral("#31#0612345678"));
        QVERIFY(modem.waitForLine(QStringLiteral("Deleted ")));
        // Dialling and ringing-out are one state for the observer; deletion
        // after termination is no change.
        QTest::qWait(300);
        QCOMPARE(recorder.described(), (QStringList{ "outgoing", "outgoing connected", "outgoing connected ended" }));
        QCOMPARE(recorder.events.first().callId, QStringLiteral("/org/freedesktop/ModemManager1/Call/1"));
        QVERIFY(recorder.failures.isEmpty());
        // The first report comes while the call is still dialling.
        QVERIFY(modem.lines().indexOf(QRegularExpression(QStringLiteral("^State .* 4$"))) > 0);
    }

    void twoCallsAreFollowedApart()
    {
        PrivateBus bus;
        SimulatedModem modem(bus, 250);
        CallConfirmation confirmation;
        AlwaysCall answer(confirmation);
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));
        telephony.open(QStringLiteral("111"));
        QVERIFY(modem.waitForLine(QStringLiteral("Start ")));
        telephony.open(QStringLiteral("222"));
        QVERIFY(QTest::qWaitFor([&] { return modem.lines().filter(QStringLiteral("Deleted ")).size() == 2; }, 10000));
        QTest::qWait(200);
        const QStringList sequence{ "outgoing", "outgoing connected", "outgoing connected ended" };
        QCOMPARE(recorder.described(QStringLiteral("/org/freedesktop/ModemManager1/Call/1")), sequence);
        QCOMPARE(recorder.described(QStringLiteral("/org/freedesktop/ModemManager1/Call/2")), sequence);
    }

    void cancelPlacesNothingCallPlacesTheCall()
    {
        PrivateBus bus;
        SimulatedModem modem(bus);
        CallConfirmation confirmation;
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));

        telephony.open(QStringLiteral("#31#0612345678"));
        QVERIFY(confirmation.isPending());
        QCOMPARE(confirmation.dialString(), QStringLiteral("#31#0612345678"));
        confirmation.cancel();
        QVERIFY(!confirmation.isPending());
        QTest::qWait(500);
        QVERIFY(modem.createdNumbers().isEmpty());
        QVERIFY(recorder.events.isEmpty());

        // A newer request replaces one still waiting, which is not placed.
        telephony.open(QStringLiteral("111"));
        telephony.open(QStringLiteral("222"));
        QCOMPARE(confirmation.dialString(), QStringLiteral("222"));
        confirmation.call();
        QVERIFY(modem.waitForLine(QStringLiteral("Start ")));
        QCOMPARE(modem.createdNumbers(), QStringList{ QStringLiteral("222") });
        QVERIFY(recorder.failures.isEmpty());
    }

    void refusedCallBecomesAFailureNotice()
    {
        PrivateBus bus;
        SimulatedModem modem(bus);
        CallConfirmation confirmation;
        AlwaysCall answer(confirmation);
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));
        telephony.open(QStringLiteral("06 12 é"));
        QVERIFY(QTest::qWaitFor([&] { return !recorder.failures.isEmpty(); }, 10000));
        QCOMPARE(recorder.failures.size(), 1);
        QVERIFY2(recorder.failures.first().contains(QStringLiteral("invalid number")), qPrintable(recorder.failures.first()));
        QCOMPARE(modem.createdNumbers(), QStringList{ QStringLiteral("06 12 é") });
        QVERIFY(recorder.events.isEmpty());
        // The backend is still usable afterwards.
        telephony.open(QStringLiteral("0612"));
        QVERIFY(modem.waitForLine(QStringLiteral("Start ")));
    }

    void callThatCannotStartIsNeverReported()
    {
        PrivateBus bus;
        SimulatedModem modem(bus, 150, 0, { QStringLiteral("--no-network") });
        CallConfirmation confirmation;
        AlwaysCall answer(confirmation);
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QVERIFY(waitForModems(telephony, 1));
        telephony.open(QStringLiteral("#31#0612345678"));
        QVERIFY(modem.waitForLine(QStringLiteral("Deleted ")));
        QTest::qWait(300);
        QCOMPARE(recorder.failures.size(), 1);
        QVERIFY2(recorder.failures.first().contains(QStringLiteral("network")), qPrintable(recorder.failures.first()));
        // Not even an ended call: the observer would have nothing to do with it.
        QVERIFY(recorder.events.isEmpty());
    }

    void modemAppearingLaterIsPickedUp()
    {
        PrivateBus bus;
        SimulatedModem modem(bus, 150, 700);
        CallConfirmation confirmation;
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        QSignalSpy changed(&telephony, &ModemManagerTelephony::modemsChanged);
        QVERIFY(changed.wait(5000));
        QVERIFY(telephony.voiceModems().isEmpty());
        QVERIFY(!telephony.canOpen(QStringLiteral("0612")));
        QVERIFY(waitForModems(telephony, 1));
        QVERIFY(telephony.canOpen(QStringLiteral("0612")));
    }

    void serviceComingAndGoing()
    {
        PrivateBus bus;
        CallConfirmation confirmation;
        AlwaysCall answer(confirmation);
        ModemManagerTelephony telephony(bus.connection(), confirmation);
        Recorder recorder(telephony);
        QSignalSpy changed(&telephony, &ModemManagerTelephony::modemsChanged);
        QVERIFY(changed.wait(5000));
        QVERIFY(!telephony.canOpen(QStringLiteral("0612")));

        auto modem = std::make_unique<SimulatedModem>(bus, 400);
        QVERIFY(waitForModems(telephony, 1));
        telephony.open(QStringLiteral("0612"));
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 2; }, 10000)); // connected

        // The modem's service stops in the middle of the call: the call ends.
        modem->stop();
        QVERIFY(waitForModems(telephony, 0));
        QVERIFY(QTest::qWaitFor([&] { return recorder.events.size() == 3; }, 5000));
        QCOMPARE(recorder.described(), (QStringList{ "outgoing", "outgoing connected", "outgoing connected ended" }));
        QVERIFY(!telephony.canOpen(QStringLiteral("0612")));
    }
};

QTEST_GUILESS_MAIN(TestModemManagerTelephony)
#include "tst_modemmanagertelephony.moc"
