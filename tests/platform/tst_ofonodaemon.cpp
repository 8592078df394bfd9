// The oFono backend against the real oFono daemon, whose phonesim driver
// talks AT commands to the test's modem: what the modem receives is what a
// real modem would.
#include "OfonoDaemon.h"
#include "OfonoTelephony.h"

#include <QElapsedTimer>
#include <QtTest>

#include <memory>

namespace {

// The app's oFono backend on the rig's bus.
std::unique_ptr<OfonoTelephony> makeTelephony(OfonoDaemon &ofono)
{
    return std::make_unique<OfonoTelephony>(ofono.connection());
}

// What a telephony reports, as text ("outgoing", "incoming connected ended").
void recordEvents(Telephony &telephony, QStringList &events)
{
    QObject::connect(&telephony, &Telephony::callChanged, &telephony, [&events](const CallEvent &e) {
        events.append(QStringLiteral("%1%2%3").arg(e.isOutgoing ? "outgoing" : "incoming",
                                                   e.hasConnected ? " connected" : "", e.hasEnded ? " ended" : ""));
    });
    QObject::connect(&telephony, &Telephony::requestFailed, &telephony,
                     [&events](const QString &message) { events.append(QStringLiteral("failed: ") + message); });
}

} // namespace

class TestOfonoDaemon : public QObject
{
    Q_OBJECT

    std::unique_ptr<OfonoDaemon> m_ofono;

private slots:
    void initTestCase()
    {
        if (!OfonoDaemon::isInstalled())
            QSKIP("ofonod is not installed (Debian package ofono): nothing to test against");
        QElapsedTimer clock;
        clock.start();
        m_ofono = std::make_unique<OfonoDaemon>();
        QVERIFY2(m_ofono->isReady(), qPrintable(m_ofono->error()));
        qInfo("oFono and its modem came up in %lld ms", clock.elapsed());
    }

    void cleanup()
    {
        // The far end hangs up whatever a case left.
        m_ofono->hangUp();
        QVERIFY(m_ofono->waitForCalls(0));
    }

    void backendPlacesAndFollowsCalls()
    {
        const auto telephony = makeTelephony(*m_ofono);
        QStringList events;
        recordEvents(*telephony, events);
        QTRY_COMPARE(telephony->voiceModems(), QStringList{ OfonoDaemon::modemPath() });

        telephony->open(DialRequest{ QString(), QStringLiteral("0612") });
        QCOMPARE(m_ofono->takeDial(), QStringLiteral("0612"));
        QTRY_COMPARE(events, QStringList{ "outgoing" });
        m_ofono->alert();
        m_ofono->answer();
        QTRY_COMPARE(events, (QStringList{ "outgoing", "outgoing connected" }));
        m_ofono->hangUp();
        QTRY_COMPARE(events, (QStringList{ "outgoing", "outgoing connected", "outgoing connected ended" }));

        events.clear();
        m_ofono->ring(QStringLiteral("+33699999999"));
        QTRY_COMPARE(events, QStringList{ "incoming" });
        m_ofono->hangUp();
        QTRY_COMPARE(events, (QStringList{ "incoming", "incoming ended" }));
    }

    void backendFollowsOfonoComingAndGoing()
    {
        OfonoDaemon later(OfonoDaemon::Start::Later);
        const auto telephony = makeTelephony(later);
        QSignalSpy modemsChanged(telephony.get(), &OfonoTelephony::modemsChanged);
        QVERIFY(modemsChanged.wait());
        QVERIFY(!telephony->canOpen(DialRequest{ QString(), QStringLiteral("0612") }));

        QVERIFY2(later.startDaemon(), qPrintable(later.error()));
        QTRY_COMPARE(telephony->voiceModems(), QStringList{ OfonoDaemon::modemPath() });
        telephony->open(DialRequest{ QString(), QStringLiteral("0612") });
        QCOMPARE(later.takeDial(), QStringLiteral("0612"));

        later.stopDaemon();
        QTRY_VERIFY(telephony->voiceModems().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestOfonoDaemon)
#include "tst_ofonodaemon.moc"
