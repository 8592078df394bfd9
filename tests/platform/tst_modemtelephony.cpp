// ModemManager against tools/simulated-modem.py, oFono against dbusmock (modems that come and change, a failing Dial).
#include "ModemManagerTelephony.h"
#include "OfonoTelephony.h"
#include "PrivateBus.h"
#include "SimulatedModem.h"

#include <QDBusMessage>
#include <QtTest>

namespace {

const DialRequest request{ QString(), QStringLiteral("0612") };
const QStringList wholeCall{ "outgoing", "outgoing connected", "outgoing connected ended" };

template<typename Backend>
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
    // Of call number `call`, or of every call.
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
    // Takes in all the simulator sent so far (its reply comes after its earlier signals).
    void catchUp()
    {
        connection.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ModemManager1"),
                                                       QStringLiteral("/org/freedesktop/ModemManager1"),
                                                       QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                                                       QStringLiteral("GetManagedObjects")));
        QCoreApplication::processEvents();
    }

    QDBusConnection connection;
    Backend telephony;
    QObject context;
    QList<std::pair<QString, QString>> events;
    QStringList failures;
};

// python3-dbusmock's oFono, and the oFono backend on it.
struct OfonoRig
{
    OfonoRig()
        : process(bus.startService(QStringLiteral("/usr/bin/python3"), { "-m", "dbusmock", "--template", "ofono" },
                                   OfonoTelephony::serviceName))
    {
    }
    void mock(const QString &path, const QString &method, const QVariantList &args)
    {
        QDBusMessage message = QDBusMessage::createMethodCall(OfonoTelephony::serviceName, path,
                                                              QStringLiteral("org.freedesktop.DBus.Mock"), method);
        message.setArguments(args);
        const QDBusMessage reply = bus.connection().call(message, QDBus::Block, 10000);
        QVERIFY2(reply.type() == QDBusMessage::ReplyMessage, qPrintable(reply.errorMessage()));
    }

    PrivateBus bus;
    QProcess *process = nullptr;
    Rig<OfonoTelephony> rig{ bus };
};

const QString voiceCallManager = QStringLiteral("org.ofono.VoiceCallManager");

} // namespace

class TestModemTelephony : public QObject
{
    Q_OBJECT

private slots:
    // Dialling and ringing-out are one state for the observer; deletion after termination is no change.
    void twoCallsAreFollowedApart()
    {
        PrivateBus bus;
        SimulatedModem modem(bus, 250);
        QVERIFY(modem.isRunning());
        Rig<ModemManagerTelephony> rig(bus);
        // Asked before the modems are read: the request waits for them.
        rig.telephony.open(DialRequest{ QString(), QStringLiteral("111") });
        QVERIFY(modem.waitForLine(QStringLiteral("Start ")));
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
        Rig<ModemManagerTelephony> rig(bus);
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
        Rig<ModemManagerTelephony> rig(bus);
        QSignalSpy changed(&rig.telephony, &ModemManagerTelephony::modemsChanged);
        // Asked while the modems are read: the request waits for them, then fails.
        QVERIFY(rig.telephony.canOpen(request));
        rig.telephony.open(request);
        QVERIFY(rig.failures.isEmpty());
        QVERIFY(changed.wait(5000));
        QCOMPARE(rig.failures.size(), 1);
        QVERIFY(!rig.telephony.canOpen(request));

        // The service comes first, its modem a moment later.
        auto modem = std::make_unique<SimulatedModem>(bus, 400, 300);
        QVERIFY(rig.waitForModems(1));
        QVERIFY(rig.telephony.canOpen(request));
        rig.telephony.open(request);
        QVERIFY(QTest::qWaitFor([&] { return rig.events.size() == 2; }, 10000)); // connected

        // The service stops in the middle of the call: the call ends.
        modem->stop();
        QVERIFY(rig.waitForModems(0));
        QVERIFY(QTest::qWaitFor([&] { return rig.events.size() == 3; }, 5000));
        QCOMPARE(rig.described(), wholeCall);
        QVERIFY(!rig.telephony.canOpen(request));
    }

    void ofonoFollowsModemsThatOfferVoiceCalls()
    {
        OfonoRig ofono;
        Rig<OfonoTelephony> &rig = ofono.rig;
        QVERIFY(ofono.process);
        QVERIFY(rig.waitForModems(1));
        QVERIFY(rig.telephony.canOpen(request));
        // A refused Dial becomes a failure notice.
        ofono.mock(QStringLiteral("/ril_0"), QStringLiteral("AddMethod"),
                   { voiceCallManager, QStringLiteral("Dial"), QStringLiteral("ss"), QStringLiteral("o"),
                     QStringLiteral("raise dbus.exceptions.DBusException('No network', name='org.ofono.Error.Failed')") });
        rig.telephony.open(DialRequest{ QStringLiteral("#31#"), QStringLiteral("0612345678") });
        QVERIFY(QTest::qWaitFor([&] { return !rig.failures.isEmpty(); }, 10000));
        QVERIFY2(rig.failures.constLast().contains(QStringLiteral("No network")), qPrintable(rig.failures.constLast()));
        QVERIFY(rig.events.isEmpty());

        ofono.mock(QStringLiteral("/"), QStringLiteral("AddModem"), { QStringLiteral("ril_1"), QVariantMap() });
        QVERIFY(rig.waitForModems(2));
        const auto offer = [&](const QStringList &interfaces) {
            ofono.mock(QStringLiteral("/ril_1"), QStringLiteral("EmitSignal"),
                       { QStringLiteral("org.ofono.Modem"), QStringLiteral("PropertyChanged"), QStringLiteral("sv"),
                         QVariantList{ QStringLiteral("Interfaces"), interfaces } });
        };
        offer({ QStringLiteral("org.ofono.SimManager") });
        QVERIFY(rig.waitForModems(1));
        offer({ QStringLiteral("org.ofono.SimManager"), voiceCallManager });
        QVERIFY(rig.waitForModems(2));
        QCOMPARE(rig.telephony.voiceModems(), (QStringList{ "/ril_0", "/ril_1" }));

        // oFono leaves the bus: its modems go with it.
        ofono.bus.stopService(ofono.process);
        QVERIFY(rig.waitForModems(0));
        QVERIFY(!rig.telephony.canOpen(request));
    }
};

QTEST_GUILESS_MAIN(TestModemTelephony)
#include "tst_modemtelephony.moc"
