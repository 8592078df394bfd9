// Which reported call changes the observer turns into records in a real history file.
#include "CallObserver.h"
#include "CallObserverDelegate.h"
#include "HistoryCallDataService.h"
#include "RecordingTelephony.h"
#include "StdoutCapture.h"
#include "TestApp.h"
#include "TestHome.h"

#include <QtTest>

namespace {
const QString detected = QStringLiteral("detect a dialing outgoing call");
} // namespace

class TestCallObserver : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_round = 0;
    std::unique_ptr<TestApp> m_app;
    std::unique_ptr<HistoryCallDataService> m_store;
    std::unique_ptr<CallObserver> m_observer;
    std::unique_ptr<CallObserverDelegate> m_delegate;

    Service &service() { return m_app->service(); }
    QList<HistoryData> onDisk() { return HistoryCallDataService(m_store->databasePath()).savedEntities(); }
    void report(const char *id, bool outgoing, bool connected, bool ended)
    {
        m_app->telephony->report(QString::fromLatin1(id), outgoing, connected, ended);
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        m_app = std::make_unique<TestApp>();
    }

    void init()
    {
        m_store = std::make_unique<HistoryCallDataService>(m_dir.filePath(QStringLiteral("h%1.sqlite").arg(++m_round)));
        m_observer = std::make_unique<CallObserver>(*m_app->telephony);
        m_delegate = std::make_unique<CallObserverDelegate>(m_store.get(), &m_app->defaults(), &service());
        m_observer->setDelegate(m_delegate.get());
        service().setCallStartedFromApp(false);
        service().setPendingCallSaveToHistory(std::nullopt);
    }

    void recordsOnlyTheDiallingPhaseOfTheAppsOwnCallOnce()
    {
        StdoutCapture out;
        report("c1", true, false, false); // not started by the app
        service().placeCall({ QStringLiteral("Ann"), QStringLiteral("Hannah"), QStringLiteral("0612"), true, std::nullopt });
        report("c2", false, false, false); // incoming, ringing
        report("c2", false, true, false);  // incoming, answered
        report("c3", true, true, false);   // outgoing, already answered
        report("c4", true, false, true);   // outgoing, ended unanswered
        QVERIFY(onDisk().isEmpty());
        QVERIFY(service().callStartedFromApp()); // still waiting for its call

        report("c5", true, false, false); // dialling
        QVERIFY(!service().callStartedFromApp());
        report("c5", true, true, false); // answered
        report("c6", true, false, false); // the next outgoing call is not the app's
        QCOMPARE(out.lines().count(detected), 1);
        const QList<HistoryData> rows = onDisk();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows[0].lastName, QStringLiteral("Hannah"));
        QCOMPARE(rows[0].telephone, QStringLiteral("0612"));
        QVERIFY(rows[0].callHidden);
    }

    // Not saving leaves the flag up for the next outgoing call; a detached or deleted delegate hears nothing.
    void notSavingLeavesTheFlagUpAndADetachedDelegateHearsNothing()
    {
        StdoutCapture out;
        service().setPendingCallSaveToHistory(false);
        service().placeCall({ QStringLiteral("Bo"), QString(), QStringLiteral("0700"), false, std::nullopt });
        report("c7", true, false, false);
        QCOMPARE(out.lines().count(detected), 1);
        QVERIFY(m_store->savedEntities().isEmpty());
        QVERIFY(service().callStartedFromApp());

        service().setPendingCallSaveToHistory(true);
        report("c8", true, false, false);
        QCOMPARE(onDisk().value(0).firstName, QStringLiteral("Bo"));
        QVERIFY(!service().callStartedFromApp());

        service().placeCall({ QString(), QString(), QStringLiteral("0612"), false, std::nullopt });
        m_observer->setDelegate(nullptr);
        report("c9", true, false, false);
        m_observer->setDelegate(m_delegate.get());
        m_delegate.reset();
        report("c10", true, false, false);
        QCOMPARE(onDisk().size(), 1);
        QVERIFY(service().callStartedFromApp());
    }
};

QTEST_GUILESS_MAIN(TestCallObserver)
#include "tst_callobserver.moc"
