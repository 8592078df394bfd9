// What each modem service gets for a call request: ModemManager (the
// simulated service's CreateCall) and oFono (python3-dbusmock's Dial), one
// row per request, printed as a table line. A refused request never reaches
// either service.
#include "ModemManagerTelephony.h"
#include "OfonoTelephony.h"
#include "PrivateBus.h"
#include "SimulatedModem.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QSignalSpy>
#include <QtTest>

using Recorded = std::function<QStringList()>;

class TestDialStrings : public QObject
{
    Q_OBJECT

    // The arguments of every Dial the oFono mock received, as "number hide_callerid".
    QStringList ofonoDials()
    {
        QDBusMessage message = QDBusMessage::createMethodCall(OfonoTelephony::serviceName, QStringLiteral("/"),
                                                              QStringLiteral("org.freedesktop.DBus.Mock"),
                                                              QStringLiteral("GetMethodCalls"));
        message << QStringLiteral("Dial");
        const QDBusMessage reply = m_bus.connection().call(message);
        QStringList dials;
        const QDBusArgument calls = reply.arguments().value(0).value<QDBusArgument>();
        calls.beginArray();
        while (!calls.atEnd()) {
            qulonglong time = 0;
            QVariantList args;
            calls.beginStructure();
            calls >> time >> args;
            calls.endStructure();
            dials.append(args.value(0).toString() + u' ' + args.value(1).toString());
        }
        calls.endArray();
        return dials;
    }

    // What `telephony` handed its service for `request`, or "refused".
    static QString placed(Telephony &telephony, const DialRequest &request, const Recorded &recorded)
    {
        const qsizetype before = recorded().size();
        if (!telephony.canOpen(request)) {
            // Even when asked, it sends nothing and says so at once.
            QSignalSpy failed(&telephony, &Telephony::requestFailed);
            telephony.open(request);
            return failed.size() == 1 ? QStringLiteral("refused") : QStringLiteral("(asked anyway)");
        }
        telephony.open(request);
        if (!QTest::qWaitFor([&] { return recorded().size() > before; }, 10000))
            return QStringLiteral("(nothing)");
        return recorded().constLast();
    }

    PrivateBus m_bus;
    std::unique_ptr<SimulatedModem> m_modem;
    std::unique_ptr<ModemManagerTelephony> m_modemManager;
    std::unique_ptr<OfonoTelephony> m_ofono;

private slots:
    void initTestCase()
    {
        m_modem = std::make_unique<SimulatedModem>(m_bus, 50);
        QVERIFY(m_modem->isRunning());
        QVERIFY(m_bus.startService(QStringLiteral("/usr/bin/python3"), { "-m", "dbusmock", "--template", "ofono" },
                                   OfonoTelephony::serviceName));
        m_modemManager = std::make_unique<ModemManagerTelephony>(m_bus.connection());
        m_ofono = std::make_unique<OfonoTelephony>(m_bus.connection());
        // Both have read their modems and the emergency numbers the modem knows.
        for (ModemTelephony *telephony : { static_cast<ModemTelephony *>(m_modemManager.get()),
                                           static_cast<ModemTelephony *>(m_ofono.get()) }) {
            QTRY_VERIFY_WITH_TIMEOUT(telephony->targetOf(DialRequest{ "#31#", "13373" }).value_or(DialTarget{}).isEmergency,
                                     10000);
        }
    }

    void reachesTheModemAs_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("modemManager");
        QTest::addColumn<QString>("ofono");
        const auto row = [](const char *prefix, const char *number, const char *modemManager, const char *ofono) {
            QTest::addRow("\"%s\" + \"%s\"", prefix, number) << prefix << number << modemManager << ofono;
        };
        row("", "+33 6 12 34 56 78", "+33612345678", "+33612345678 default");
        row("#31#", "+33 6 12 34 56 78", "#31#+33612345678", "+33612345678 enabled");
        row("*31#", "+33 6 12 34 56 78", "*31#+33612345678", "+33612345678 disabled");
        row("*67", "+33 6 12 34 56 78", "*67+33612345678", "refused");
        row("141", "+33 6 12 34 56 78", "141+33612345678", "refused");
        row("#31#", "(555) 123-4567", "#31#5551234567", "5551234567 enabled");
        row("*67", "(555) 123-4567", "*675551234567", "*675551234567 default");
        row("141", "0611 111 111", "1410611111111", "1410611111111 default");
        row("#31#", "0611 111 111", "#31#0611111111", "0611111111 enabled");
        row("#31#", "06.11/11-11.11", "#31#0611111111", "0611111111 enabled");
        row("#31#", "", "refused", "refused");
        row("", "", "refused", "refused");
        row("#31#", "0611 ABC 111", "refused", "refused");
        row("", "06 12 é", "refused", "refused");
        row("#31#", "112", "112", "112 default");
        row("*67", "911", "911", "911 default");
        row("141", "13373", "13373", "13373 default"); // the SIM's or modem's own list
        row("", "*#06#", "refused", "refused");
        row("#31#", "**21*0999123#", "refused", "refused");
        row("", "0611 111 111,12", "refused", "refused");
    }

    void reachesTheModemAs()
    {
        QFETCH(QString, prefix);
        QFETCH(QString, number);
        QFETCH(QString, modemManager);
        QFETCH(QString, ofono);
        const DialRequest request{ prefix, number };
        const QString byModemManager = placed(*m_modemManager, request, [this] { return m_modem->createdNumbers(); });
        const QString byOfono = placed(*m_ofono, request, [this] { return ofonoDials(); });
        qInfo().noquote() << "ModemManager CreateCall:" << byModemManager << "| oFono Dial:" << byOfono;
        QCOMPARE(byModemManager, modemManager);
        QCOMPARE(byOfono, ofono);
    }
};

QTEST_GUILESS_MAIN(TestDialStrings)
#include "tst_dialstrings.moc"
