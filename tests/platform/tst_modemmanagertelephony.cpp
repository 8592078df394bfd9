// The ModemManager backend against tools/simulated-modem.py on a private bus.
#include "ModemManagerTelephony.h"
#include "PrivateBus.h"
#include "SimulatedModem.h"

#include <QDBusMessage>
#include <QSignalSpy>
#include <QtTest>

namespace {

const DialRequest request{ QString(), QStringLiteral("0612") };
const QStringList wholeCall{ "outgoing", "outgoing connected", "outgoing connected ended" };

// The backend on `bus` and what it reports.
struct Rig
{
    explicit Rig(PrivateBus &bus) : connection(bus.connection()), telephony(connection)
    {
        QObject::connect(&telephony, &Telephony::callChanged, &context, [this](const CallEvent &e) {
            events.append({ e.callId, QStringLiteral("%1%2%3").arg(e.isOutgoing ? "outgoing" : "incoming",
                                                                  e.hasConnected ? " connected" : "", e.hasEnded ? " ended" : "") });
        });
        QObject::connect(&telephony, &Telephony::requestFailed, &context, [this](const QString &m) { failures.append(m); });
    }
    // The events of call number `call`, or of every call.
    QStringList described(int call = 0) const
    {
        QStringList out;
        for (const auto &[id, text] : events) {
            if (call == 0 || id == QStringLiteral("/org/freedesktop/ModemManager1/Call/%1").arg(call))
                out.append(text);
        }
        return out;
    }
    bool waitForModems(int count)
    {
        return QTest::qWaitFor([&] { return telephony.voiceModems().size() == count; }, 10000);
    }
    // Takes in everything the simulator sent so far: it answers a call only
    // after the signals it emitted before, and those are handled in order.
    void catchUp()
    {
        connection.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ModemManager1"),
                                                       QStringLiteral("/org/freedesktop/ModemManager1"),
                                                       QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                                                       QStringLiteral("GetManagedObjects")));
        QCoreApplication::processEvents();
    }

    QDBusConnection connection;
    ModemManagerTelephony telephony;
    QObject context;
    QList<std::pair<QString, QString>> events;
    QStringList failures;
};

} // namespace

class TestModemManagerTelephony : public QObject
{
    Q_OBJECT

private slots:
    // Dialling and ringing-out are one state for the observer; deletion after
    // termination is no change.
    void twoCallsAreFollowedApart()
    {
        PrivateBus bus;
        SimulatedModem modem(bus, 250);
        QVERIFY(modem.isRunning());
        Rig rig(bus);
        // Asked before the modems are read: the request waits for them.
        rig.telephony.open(DialRequest{ QString(), QStringLiteral("111") });
        QVERIFY(modem.waitForLine(QStringLiteral("Start ")));
        QCOMPARE(rig.telephony.voiceModems(), QStringList{ QStringLiteral("/org/freedesktop/ModemManager1/Modem/0") });
        rig.telephony.open(DialRequest{ QString(), QStringLiteral("222") });
        QVERIFY(QTest::qWaitFor([&] { return modem.lines().filter(QStringLiteral("Deleted ")).size() == 2; }, 10000));
        rig.catchUp();
        QCOMPARE(rig.described(1), wholeCall);
        QCOMPARE(rig.described(2), wholeCall);
        QCOMPARE(modem.createdNumbers(), (QStringList{ "111", "222" }));
        QVERIFY(rig.failures.isEmpty());
    }

    void callThatCannotStartIsNeverReported()
    {
        PrivateBus bus;
        SimulatedModem modem(bus, 150, 0, { QStringLiteral("--no-network") });
        Rig rig(bus);
        QVERIFY(rig.waitForModems(1));
        rig.telephony.open(DialRequest{ QString(), QStringLiteral("#31#0612345678") });
        QVERIFY(modem.waitForLine(QStringLiteral("Deleted ")));
        rig.catchUp();
        QCOMPARE(rig.failures.size(), 1);
        QVERIFY2(rig.failures.first().contains(QStringLiteral("network")), qPrintable(rig.failures.first()));
        // Not even an ended call: the observer would have nothing to do with it.
        QVERIFY(rig.events.isEmpty());
    }

    void serviceComingAndGoing()
    {
        PrivateBus bus;
        Rig rig(bus);
        QSignalSpy changed(&rig.telephony, &ModemManagerTelephony::modemsChanged);
        QVERIFY(changed.wait(5000));
        QVERIFY(!rig.telephony.canOpen(request));
        rig.telephony.open(request);
        QCOMPARE(rig.failures.size(), 1);

        // The service comes first, its modem a moment later.
        auto modem = std::make_unique<SimulatedModem>(bus, 400, 300);
        QVERIFY(rig.waitForModems(1));
        QVERIFY(rig.telephony.canOpen(request));
        rig.telephony.open(request);
        QVERIFY(QTest::qWaitFor([&] { return rig.events.size() == 2; }, 10000)); // connected

        // The modem's service stops in the middle of the call: the call ends.
        modem->stop();
        QVERIFY(rig.waitForModems(0));
        QVERIFY(QTest::qWaitFor([&] { return rig.events.size() == 3; }, 5000));
        QCOMPARE(rig.described(), wholeCall);
        QVERIFY(!rig.telephony.canOpen(request));
    }
};

QTEST_GUILESS_MAIN(TestModemManagerTelephony)
#include "tst_modemmanagertelephony.moc"
