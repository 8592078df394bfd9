// What the simulator's CreateCall and the real oFono's ATD command get for a call request, and oFono's call events.
#include "ModemManagerTelephony.h"
#include "OfonoDaemon.h"
#include "OfonoTelephony.h"
#include "PrivateBus.h"
#include "SimulatedModem.h"

#include <QtTest>

using Recorded = std::function<QStringList()>;

class TestDialStrings : public QObject
{
    Q_OBJECT

    static QString placed(Telephony &telephony, const DialRequest &request, const Recorded &recorded)
    {
        const qsizetype before = recorded().size();
        QSignalSpy failed(&telephony, &Telephony::requestFailed);
        if (!telephony.canOpen(request)) {
            // Even when asked, it sends nothing and says so at once.
            telephony.open(request);
            return failed.size() == 1 ? QStringLiteral("refused") : QStringLiteral("(asked anyway)");
        }
        telephony.open(request);
        if (!QTest::qWaitFor([&] { return recorded().size() > before || !failed.isEmpty(); }, 10000))
            return QStringLiteral("(nothing)");
        return failed.isEmpty() ? recorded().constLast() : "(failed: " + failed.constFirst().constFirst().toString() + ')';
    }

    PrivateBus m_bus;
    std::unique_ptr<SimulatedModem> m_modem;
    std::unique_ptr<ModemManagerTelephony> m_modemManager;
    std::unique_ptr<OfonoDaemon> m_ofono;
    std::unique_ptr<OfonoTelephony> m_byOfono;

private slots:
    void initTestCase()
    {
        m_modem = std::make_unique<SimulatedModem>(m_bus, 50);
        QVERIFY(m_modem->isRunning());
        m_modemManager = std::make_unique<ModemManagerTelephony>(m_bus.connection());
        // It has read the SIM's emergency numbers.
        QTRY_VERIFY_WITH_TIMEOUT(m_modemManager->targetOf(DialRequest{ "#31#", "13373" }).value_or(DialTarget{}).isEmergency,
                                 10000);
        if (!OfonoDaemon::isInstalled())
            return;
        m_ofono = std::make_unique<OfonoDaemon>();
        QVERIFY2(m_ofono->isReady(), qPrintable(m_ofono->error()));
        m_byOfono = std::make_unique<OfonoTelephony>(m_ofono->connection());
        QTRY_COMPARE(m_byOfono->voiceModems(), QStringList{ OfonoDaemon::modemPath() });
    }

    void cleanup()
    {
        if (m_ofono) {
            m_ofono->hangUp();
            QVERIFY(m_ofono->waitForCalls(0));
        }
    }

    void reachesTheModemAs_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("modemManager");
        QTest::addColumn<QString>("ofono"); // what followed ATD
        const auto row = [](const char *prefix, const char *number, const char *modemManager, const char *ofono) {
            QTest::addRow("\"%s\" + \"%s\"", prefix, number) << prefix << number << modemManager << ofono;
        };
        row("", "+33 6 12 34 56 78", "+33612345678", "+33612345678");
        row("#31#", "+33 6 12 34 56 78", "#31#+33612345678", "+33612345678I");
        row("*31#", "+33 6 12 34 56 78", "*31#+33612345678", "+33612345678i");
        row("*67", "+33 6 12 34 56 78", "*67+33612345678", "refused");
        row("*67", "(555) 123-4567", "*675551234567", "*675551234567");
        row("#31#", "06.11/11-11.11", "#31#0611111111", "0611111111I");
        row("#31#", "", "refused", "refused");
        row("#31#", "0611 ABC 111", "refused", "refused");
        row("", "06 12 é", "refused", "refused");
        row("#31#", "112", "112", "112");
        row("141", "13373", "13373", "14113373"); // on the simulated SIM's list only
        row("", "*#06#", "refused", "refused");
        row("", "0611 111 111,12", "refused", "refused");
    }

    void reachesTheModemAs()
    {
        QFETCH(QString, prefix);
        QFETCH(QString, number);
        QFETCH(QString, modemManager);
        QFETCH(QString, ofono);
        const DialRequest request{ prefix, number };
        QCOMPARE(placed(*m_modemManager, request, [this] { return m_modem->createdNumbers(); }), modemManager);
        if (!m_ofono)
            QSKIP("ofonod is not installed (Debian package ofono)");
        QCOMPARE(placed(*m_byOfono, request, [this] { return m_ofono->dials(); }), ofono);
    }

    void ofonoReportsEachChangeOfACall()
    {
        if (!m_ofono)
            QSKIP("ofonod is not installed (Debian package ofono)");
        // A telephony of its own: nothing left of the calls above reaches it.
        OfonoTelephony telephony(m_ofono->connection());
        QTRY_COMPARE(telephony.voiceModems(), QStringList{ OfonoDaemon::modemPath() });
        QStringList events;
        connect(&telephony, &Telephony::callChanged, this, [&events](const CallEvent &e) {
            events.append(QStringLiteral("%1%2%3").arg(e.isOutgoing ? "outgoing" : "incoming", e.hasConnected ? " connected" : "",
                                                       e.hasEnded ? " ended" : ""));
        });
        telephony.open(DialRequest{ QString(), QStringLiteral("0612") });
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
};

QTEST_GUILESS_MAIN(TestDialStrings)
#include "tst_dialstrings.moc"
