// Dialling from every entry point: makeCall itself, widget links and the dialler's model, against
// a telephony that records requests and refuses what is no call, as the real ones do.
#include "CallConfirmation.h"
#include "JsonFileKeyValueStore.h"
#include "MainViewModel.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"
#include "StdoutCapture.h"
#include "TestApp.h"
#include "TestHome.h"
#include "WidgetLink.h"

#include <QtTest>

namespace {
struct CountingWidgets : WidgetRefresher
{
    int reloads = 0;
    void reloadAllTimelines() override { ++reloads; }
};

// The app on a recording telephony and counting widgets, handed back through the pointers.
std::unique_ptr<QuietonApp> makeApp(RecordingTelephony *&telephony, CountingWidgets *&widgets)
{
    PlatformParts parts;
    parts.telephony = std::make_unique<RecordingTelephony>();
    parts.widgets = std::make_unique<CountingWidgets>();
    telephony = static_cast<RecordingTelephony *>(parts.telephony.get());
    widgets = static_cast<CountingWidgets *>(parts.widgets.get());
    parts.urlOpener = std::make_unique<RecordingUrlOpener>();
    return std::make_unique<QuietonApp>(std::move(parts), TestApp::offlineUpdateCheck());
}
RecordingTelephony *telephony = nullptr;
CountingWidgets *widgets = nullptr;
} // namespace

class TestDialling : public QObject
{
    Q_OBJECT

    std::unique_ptr<QuietonApp> m_app;
    KeyValueStore &settings() { return m_app->defaultsService()->userDefaults(); }
    Service &service() { return *m_app->service(); }
    CallConfirmation &confirmation() { return *m_app->confirmation(); }

private slots:
    void initTestCase()
    {
        TestHome::use();
        m_app = makeApp(telephony, widgets);
    }

    void init()
    {
        telephony->dialsItself = false;
        confirmation().cancel();
        telephony->asked.clear();
        telephony->opened.clear();
        service().setCallFailed(false);
        service().setCallStartedFromApp(false);
        settings().setString(QStringLiteral("prefix"), QStringLiteral("#31#"));
    }

    // The dial string is composed as given (spaces pass, percent-encoded);
    // only the telephony refuses what is no call, without a log line.
    void dialStrings_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("number");
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<bool>("parses");
        QTest::addColumn<QString>("dialled");
        QTest::newRow("private") << "#31#" << "0612345678" << true << true << "#31#0612345678";
        QTest::newRow("normal") << "#31#" << "0612345678" << false << true << "0612345678";
        QTest::newRow("written with spaces") << "#31#" << "+33 6 12 34 56 78" << true << true << "#31#+33 6 12 34 56 78";
        QTest::newRow("empty prefix") << "" << "0612" << true << true << "0612";
        QTest::newRow("empty number, private") << "#31#" << "" << true << true << "";
        QTest::newRow("letters") << "#31#" << "0800FLOWERS" << true << true << "";
        QTest::newRow("service code") << "#31#" << "**21*0999123#" << true << true << "";
        QTest::newRow("bad escape") << "" << "12%4" << false << true << "";
        QTest::newRow("unclosed bracket") << "" << "[12" << false << false << "";
    }
    void dialStrings()
    {
        QFETCH(QString, prefix);
        QFETCH(QString, number);
        QFETCH(bool, hidden);
        QFETCH(bool, parses);
        QFETCH(QString, dialled);
        settings().setString(QStringLiteral("prefix"), prefix);
        StdoutCapture out;
        service().makeCall(number, hidden);
        QCOMPARE(telephony->asked.size(), parses ? 1 : 0);
        QCOMPARE(telephony->opened, dialled.isEmpty() ? QStringList() : QStringList{ dialled });
        // Printed exactly as composed, never normalised by the URL parser.
        QCOMPARE(out.lines(), dialled.isEmpty() ? QStringList() : QStringList{ QStringLiteral("## User dial : tel://") + dialled });
        QVERIFY(service().callStartedFromApp());
        QCOMPARE(service().callFailed(), dialled.isEmpty());
    }

    // On a telephony that dials by itself, a typed call too waits for the user's "Call".
    void typedCallWaitsForConfirmationOnATelephonyThatDialsItself()
    {
        telephony->dialsItself = true;
        service().makeCall(QStringLiteral("0612"), true);
        QVERIFY(confirmation().isPending() && telephony->opened.isEmpty());
        QCOMPARE(confirmation().dialString(), QStringLiteral("#31#0612"));
        confirmation().call();
        QCOMPARE(telephony->opened, QStringList{ QStringLiteral("#31#0612") });
    }

    // A failure the telephony reports later is one notice in one well-formed sentence, no dialling error.
    void laterFailuresReadAsOneSentence_data()
    {
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("notice");
        QTest::newRow("reason missing") << "The call could not be placed: " << "The call could not be placed.";
        QTest::newRow("stray blanks, no stop") << "  network\n busy " << "Network busy.";
        QTest::newRow("empty") << "" << "The call could not be placed.";
    }
    void laterFailuresReadAsOneSentence()
    {
        QFETCH(QString, message);
        QFETCH(QString, notice);
        QSignalSpy notices(&service(), &Service::notice);
        emit telephony->requestFailed(message);
        QCOMPARE(notices.size(), 1);
        QCOMPARE(notices[0][0].toString(), notice);
        QVERIFY(!service().callFailed());
    }

    void widgetLinks_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QStringList>("dialled");
        QTest::addColumn<QVariant>("save");
        QTest::newRow("hidden TRUE") << "quieton://x?number=0612&hidden=TRUE&saveToHistory=false"
                                     << QStringList{ "#31#0612" } << QVariant(false);
        QTest::newRow("any host and path, true in any case") << "quieton:/a/b?saveToHistory=True&number=%2B3312&hidden=true"
                                           << QStringList{ "#31#+3312" } << QVariant(true);
        QTest::newRow("yes is not true") << "quieton://w?number=0612&hidden=yes&saveToHistory=1"
                                         << QStringList{ "0612" } << QVariant(false);
        QTest::newRow("first item wins") << "quieton://w?number=1&number=2&hidden=false&hidden=true"
                                         << QStringList{ "1" } << QVariant(false);
        QTest::newRow("other scheme") << "https://w?number=0612&hidden=true" << QStringList{} << QVariant();
        QTest::newRow("empty number") << "quieton://w?number=&hidden=true" << QStringList{} << QVariant();
    }
    void widgetLinks()
    {
        QFETCH(QString, link);
        QFETCH(QStringList, dialled);
        QFETCH(QVariant, save);
        service().setPendingCallSaveToHistory(std::nullopt);
        KeyValueStore *suite = m_app->defaultsService()->userDefaultsShared();
        suite->setString(QStringLiteral("phoneNumberWidget"), QStringLiteral("0612"));
        suite->setBool(QStringLiteral("hiddenNumberWidget"), true);
        suite->setBool(QStringLiteral("saveToHistoryWidget"), true);
        const int reloadsBefore = widgets->reloads;

        m_app->handleOpenUrl(QUrl(link));

        // Each call a link places waits for the user's "Call", on every telephony.
        QCOMPARE(confirmation().isPending() ? QStringList{ confirmation().dialString() } : QStringList(), dialled);
        QVERIFY(telephony->opened.isEmpty());
        confirmation().call();
        QCOMPARE(telephony->opened, dialled);
        // The widget's choices are cleared in its file, whatever the link held.
        const auto onDisk = JsonFileKeyValueStore::open(TestHome::configDirectory() + QStringLiteral("/group.quieton.DataWidget.json"));
        QCOMPARE(std::get<QString>(*onDisk->object(QStringLiteral("phoneNumberWidget"))), QString());
        QCOMPARE(std::get<bool>(*onDisk->object(QStringLiteral("hiddenNumberWidget"))), false);
        QCOMPARE(std::get<bool>(*onDisk->object(QStringLiteral("saveToHistoryWidget"))), false);
        QCOMPARE(widgets->reloads - reloadsBefore, dialled.isEmpty() ? 1 : 2);
        QCOMPARE(service().pendingCallSaveToHistory().has_value(), save.isValid());
        if (save.isValid()) {
            QCOMPARE(*service().pendingCallSaveToHistory(), save.toBool());
            QCOMPARE(service().pendingCallTelephone(), WidgetLink::queryValue(QUrl(link), QStringLiteral("number")));
            // Empty names, not missing ones: the history shows a blank name line.
            QVERIFY(service().pendingCallFirstName().isEmpty() && !service().pendingCallFirstName().isNull());
            QVERIFY(service().pendingCallLastName().isEmpty() && !service().pendingCallLastName().isNull());
        }
    }

    void linksWaitForTheMainScreenAndNeedOnboardingDone()
    {
        RecordingTelephony *telephony = nullptr;
        CountingWidgets *widgets = nullptr;
        const auto fresh = makeApp(telephony, widgets);
        QuietonApp &app = *fresh;
        CallConfirmation &confirmation = *app.confirmation();
        app.defaultsService()->setBool(QStringLiteral("hasCompletedFirstLaunch"), false);
        app.deliverLink(QUrl(QStringLiteral("quieton://w?number=1")));
        app.setMainViewShown(true);
        QVERIFY(!confirmation.isPending());
        app.setMainViewShown(false);

        app.defaultsService()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
        QSignalSpy filled(&app, &QuietonApp::linkOpened);
        app.deliverLink(QUrl(QStringLiteral("quieton://w?number=2")));
        QVERIFY(!confirmation.isPending());
        app.setMainViewShown(true);
        confirmation.call();
        QCOMPARE(telephony->opened, QStringList{ QStringLiteral("2") });
        QCOMPARE(filled.size(), 1);

        // Past their bounds, a number or a link is refused before anything lays it out.
        app.deliverLink(QUrl(QStringLiteral("quieton://w?number=") + QString(65, u'3')));
        app.deliverLink(QUrl(QStringLiteral("quieton://w?number=4&pad=") + QString(1 << 20, u'x')));
        QCOMPARE(telephony->opened, QStringList{ QStringLiteral("2") });
        QCOMPARE(filled.size(), 1);
    }

    void mainScreenCountsOpenings()
    {
        settings().setInteger(QStringLiteral("appOpenCount"), 5);
        const auto mainViewModel = [this] { return std::unique_ptr<MainViewModel>(m_app->createMainViewModel(nullptr)); };
        mainViewModel()->recordMainViewBuilt();
        const auto installed = m_app->defaultsService()->installDate();
        QVERIFY(installed);
        mainViewModel()->recordMainViewBuilt();
        QCOMPARE(settings().integerValue(QStringLiteral("appOpenCount")), 7);
        settings().setInteger(QStringLiteral("appOpenCount"), std::numeric_limits<qint64>::max());
        mainViewModel()->recordMainViewBuilt();
        QCOMPARE(settings().integerValue(QStringLiteral("appOpenCount")), 1);
        QCOMPARE(m_app->defaultsService()->installDate(), installed);
    }
};

QTEST_MAIN(TestDialling)
#include "tst_dialling.moc"
