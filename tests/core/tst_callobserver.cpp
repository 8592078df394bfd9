// The outgoing-call observer: which reported call changes become history
// records, against a telephony that reports calls on demand and a real
// history file.
#include "CallObserver.h"
#include "CallObserverDelegate.h"
#include "HistoryCallDataService.h"
#include "RecordingTelephony.h"
#include "StdoutCapture.h"
#include "TestApp.h"
#include "TestHome.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {
RecordingTelephony *telephony = nullptr;
const QString detected = QStringLiteral("detect a dialing outgoing call");
} // namespace

class TestCallObserver : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_round = 0;
    std::unique_ptr<HistoryCallDataService> m_store;
    std::unique_ptr<CallObserver> m_observer;
    std::unique_ptr<CallObserverDelegate> m_delegate;

    std::unique_ptr<TestApp> m_app;
    Service &service() { return m_app->service(); }
    QList<HistoryData> onDisk() { return HistoryCallDataService(m_store->databasePath()).savedEntities(); }
    // What the dialler does: ask for the call with its pending record.
    void dial(const QString &first, const QString &last, const QString &number, bool hidden)
    {
        service().placeCall({ first, last, number, hidden, std::nullopt });
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        m_app = std::make_unique<TestApp>();
        telephony = m_app->telephony;
    }

    void init()
    {
        m_store = std::make_unique<HistoryCallDataService>(m_dir.filePath(QStringLiteral("h%1.sqlite").arg(++m_round)));
        m_observer = std::make_unique<CallObserver>(*telephony);
        m_delegate = std::make_unique<CallObserverDelegate>(m_store.get(), &m_app->defaults(), &service());
        m_observer->setDelegate(m_delegate.get());
        service().setCallStartedFromApp(false);
        service().setPendingCallSaveToHistory(std::nullopt);
    }

    void recordsTheDialledCallOnce()
    {
        StdoutCapture out;
        dial(QStringLiteral("Ann"), QStringLiteral("Hannah"), QStringLiteral("0612"), true);
        QVERIFY(service().callStartedFromApp());

        telephony->report(QStringLiteral("c1"), true, false, false); // dialling
        QVERIFY(!service().callStartedFromApp());
        telephony->report(QStringLiteral("c1"), true, true, false); // answered
        telephony->report(QStringLiteral("c1"), true, true, true);  // hung up
        QCOMPARE(out.lines().count(detected), 1);

        const QList<HistoryData> rows = onDisk();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(rows[0].lastName, QStringLiteral("Hannah"));
        QCOMPARE(rows[0].telephone, QStringLiteral("0612"));
        QVERIFY(rows[0].callHidden);
    }

    void onlyTheDiallingPhaseOfTheAppsOwnCallCounts()
    {
        StdoutCapture out;
        telephony->report(QStringLiteral("c2"), true, false, false); // not started by the app
        dial(QString(), QString(), QStringLiteral("0612"), false);
        telephony->report(QStringLiteral("c3"), false, false, false); // incoming, ringing
        telephony->report(QStringLiteral("c3"), false, true, false);  // incoming, answered
        telephony->report(QStringLiteral("c4"), true, true, false);   // outgoing, already answered
        telephony->report(QStringLiteral("c5"), true, false, true);   // outgoing, ended unanswered
        QCOMPARE(out.lines().count(detected), 0);
        QVERIFY(onDisk().isEmpty());
        QVERIFY(service().callStartedFromApp()); // still waiting for its call
    }

    void notSavingLogsButLeavesTheFlagUp()
    {
        StdoutCapture out;
        service().setPendingCallSaveToHistory(false);
        dial(QStringLiteral("Bo"), QString(), QStringLiteral("0700"), false);
        telephony->report(QStringLiteral("c4"), true, false, false);
        QCOMPARE(out.lines().count(detected), 1);
        QVERIFY(m_store->savedEntities().isEmpty());
        QVERIFY(service().callStartedFromApp());

        // The raised flag makes the next outgoing call the app's, recorded
        // with the stale pending record once saving is on again.
        service().setPendingCallSaveToHistory(true);
        telephony->report(QStringLiteral("c5"), true, false, false);
        QCOMPARE(onDisk().size(), 1);
        QCOMPARE(onDisk().first().firstName, QStringLiteral("Bo"));
        QVERIFY(!service().callStartedFromApp());
    }

    void nothingReachesADetachedOrDeletedDelegate()
    {
        dial(QString(), QString(), QStringLiteral("0612"), false);
        m_observer->setDelegate(nullptr);
        telephony->report(QStringLiteral("c7"), true, false, false);
        QVERIFY(m_store->savedEntities().isEmpty());
        QVERIFY(service().callStartedFromApp());

        m_observer->setDelegate(m_delegate.get());
        m_delegate.reset();
        QCOMPARE(m_observer->delegate(), nullptr);
        telephony->report(QStringLiteral("c8"), true, false, false);
        QVERIFY(m_store->savedEntities().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestCallObserver)
#include "tst_callobserver.moc"
