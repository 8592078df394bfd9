// The update check against a real HTTP server on loopback, with information
// files in a temporary folder and the alert in a real QML window.
#include "CheckUpdate.h"
#include "LoopbackHttpServer.h"
#include "RecordingUrlOpener.h"
#include "StdoutCapture.h"
#include "TestApp.h"
#include "TestHome.h"

#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString storePage = QStringLiteral("https://store.example/br/app/quieton/id123?uo=4");

// JSON written with single quotes, for readability.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

QByteArray storeAnswer(const QByteArray &version)
{
    return json("{'resultCount': 1, 'results': [{'version': '" + version
                + "', 'trackViewUrl': 'https://store.example/app/quieton?v=" + version + "', 'price': 0}]}");
}

QByteArray betaAnswer(const QByteArray &version)
{
    return json("{'data': [{'type': 'builds', 'id': 'b1', 'attributes': {'version': '" + version
                + "', 'expired': 'false', 'uploadedDate': '2026-01-01'}}]}");
}

} // namespace

class TestCheckUpdate : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    LoopbackHttpServer m_server;
    QQmlApplicationEngine m_engine;
    QQuickWindow *m_window = nullptr;
    RecordingUrlOpener m_opener;

    // Writes an information file with these entries (a missing value leaves
    // the key out) and returns its path.
    QString writeInfoPlist(const QString &version, const QString &bundleId = QStringLiteral("app.test.Quieton"),
                           const QByteArray &extra = {})
    {
        QByteArray xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n";
        if (!bundleId.isNull())
            xml += "<key>CFBundleIdentifier</key><string>" + bundleId.toUtf8() + "</string>\n";
        if (!version.isNull())
            xml += "<key>CFBundleShortVersionString</key><string>" + version.toUtf8() + "</string>\n";
        xml += extra + "</dict>\n</plist>\n";
        const QString path = m_folder.filePath(QStringLiteral("Info.plist"));
        QFile file(path);
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        file.write(xml);
        return path;
    }

    CheckUpdate::Config config(const QString &infoPlist, const QString &origin = {})
    {
        const QString server = origin.isEmpty() ? m_server.origin() : origin;
        return { server, server, QStringLiteral("123"), QStringLiteral("abc"), storePage, infoPlist };
    }

    // What the checker printed (the test framework's own lines left out).
    static QStringList printed(StdoutCapture &capture)
    {
        return capture.lines().filter(QRegularExpression(QStringLiteral("^(?!QWARN|QDEBUG|   Loc:)")));
    }

    // Runs one check and waits until it has printed `lineCount` lines.
    QStringList runCheck(CheckUpdate &checker, bool isOptional, bool isTestFlight, int lineCount)
    {
        StdoutCapture capture;
        checker.checkForUpdate(isOptional, isTestFlight);
        QTest::qWaitFor([&] { return printed(capture).size() >= lineCount; }, 10000);
        return printed(capture);
    }

    QObject *alert() const { return m_window->findChild<QObject *>(QStringLiteral("appUpdateAlert")); }
    QQuickItem *alertButton(const char *name) const
    {
        auto *footer = alert() ? alert()->property("footer").value<QQuickItem *>() : nullptr;
        return footer ? footer->findChild<QQuickItem *>(QLatin1StringView(name)) : nullptr;
    }
    void closeAlerts()
    {
        // A closed alert removes itself.
        while (QPointer<QObject> open = alert()) {
            QMetaObject::invokeMethod(open, "close");
            QTRY_VERIFY(!open);
        }
    }
    void click(QQuickItem *item)
    {
        const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(m_window, Qt::LeftButton, {}, centre.toPoint());
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        QVERIFY(m_server.isListening());
        m_engine.addImportPath(QStringLiteral("qrc:/"));
        m_engine.loadData("import QtQuick\nWindow { width: 400; height: 700; visible: true }");
        QVERIFY(!m_engine.rootObjects().isEmpty());
        m_window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().constFirst());
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
    }

    void init()
    {
        m_server.requests.clear();
        m_opener.opened.clear();
        m_window->setVisible(true);
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
    }
    void cleanup() { closeAlerts(); }

    void storeVersionsCompareAsPlainText_data()
    {
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("store");
        QTest::addColumn<bool>("newer");
        QTest::addColumn<int>("status");
        QTest::newRow("older here") << "1.2" << "1.3" << true << 200;
        QTest::newRow("same") << "1.3" << "1.3" << false << 200;
        QTest::newRow("1.9 against 1.10") << "1.9" << "1.10" << false << 200;
        QTest::newRow("1.0.0 against 1.0.1") << "1.0.0" << "1.0.1" << true << 200;
        // The HTTP status is not looked at.
        QTest::newRow("answered with 503") << "2.0" << "3.0" << true << 503;
    }
    void storeVersionsCompareAsPlainText()
    {
        QFETCH(QString, current);
        QFETCH(QString, store);
        QFETCH(bool, newer);
        QFETCH(int, status);
        m_server.answer(storeAnswer(store.toUtf8()), status);
        CheckUpdate checker(config(writeInfoPlist(current)), m_opener);
        QSignalSpy needChanged(&checker, &CheckUpdate::isNeedUpdateChanged);

        const QStringList lines = runCheck(checker, true, false, 1);

        QCOMPARE(m_server.requests.size(), 1);
        QCOMPARE(m_server.requests.constFirst().target, QByteArray("/br/lookup?bundleId=app.test.Quieton"));
        QVERIFY(m_server.requests.constFirst().header("Authorization").isEmpty());
        if (newer) {
            QCOMPARE(lines, QStringList{ QStringLiteral("Needs update: AppStore Version: ") + store
                                         + QStringLiteral(" > Current version:  ") + current });
            QVERIFY(checker.isNeedUpdate());
            QTRY_COMPARE(needChanged.size(), 1);
            QTRY_VERIFY(alert());
        } else {
            QCOMPARE(lines, QStringList{ QStringLiteral("Already on the last app version:  ") + current });
            QVERIFY(!checker.isNeedUpdate());
            QCOMPARE(needChanged.size(), 0);
            QVERIFY(!alert());
        }
    }

    // A forced update offers only "Update Now". Only an https link on the
    // store's own host is followed; anything else opens the store page.
    void theAlertsButtons_data()
    {
        QTest::addColumn<bool>("optional");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QString>("opened");
        const QString link = QStringLiteral("https://store.example/app/quieton?v=2.0");
        QTest::newRow("not now") << true << storeAnswer("2.0") << QByteArray("notNowButton") << QString();
        QTest::newRow("update now") << true << storeAnswer("2.0") << QByteArray("updateNowButton") << link;
        QTest::newRow("forced") << false << storeAnswer("2.0") << QByteArray("updateNowButton") << link;
        for (const char *other : { "not a link", "file:///etc/passwd", "tel:*%2331%23", "quieton://x?number=1",
                                   "http://store.example/app", "https://store.example.evil/app",
                                   "https://user@store.example/app" }) {
            QTest::newRow(other) << true << json("{'results': [{'version': '9', 'trackViewUrl': '" + QByteArray(other) + "'}]}")
                                 << QByteArray("updateNowButton") << storePage;
        }
    }
    void theAlertsButtons()
    {
        QFETCH(bool, optional);
        QFETCH(QByteArray, body);
        QFETCH(QByteArray, button);
        QFETCH(QString, opened);
        m_server.answer(body);
        CheckUpdate checker(config(writeInfoPlist(QStringLiteral("1.0"))), m_opener);
        runCheck(checker, optional, false, 1);
        QTRY_VERIFY(alert() && alert()->property("opened").toBool());
        QCOMPARE(alert()->property("force").toBool(), !optional);
        QCOMPARE(alertButton("notNowButton")->isVisible(), optional);
        QVERIFY(alertButton("updateNowButton")->isVisible());
        click(alertButton(button.constData()));
        QTRY_VERIFY(!alert());
        QCOMPARE(m_opener.addresses(), opened.isEmpty() ? QStringList() : QStringList{ opened });
    }

    // A check that fails prints why and that there is no record, raises
    // nothing and shows nothing. An expected line "start…part" matches a
    // longer line that starts so and contains the part.
    void failedChecksOnlyPrint_data()
    {
        QTest::addColumn<QString>("server"); // "answer", "dead", "endless" or "trickling"
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("isTestFlight");
        QTest::addColumn<QStringList>("lines");
        const auto broken = [](const char *label, const char *reason) {
            return QStringList{ QStringLiteral("error getting app %1 version:  …%2").arg(label, reason),
                                QStringLiteral("App does not exist on ") + label };
        };
        const auto answer = [](const char *name, const QByteArray &body, const QStringList &lines, bool beta = false) {
            QTest::newRow(name) << "answer" << body << beta << lines;
        };
        const QStringList none{ QStringLiteral("App does not exist on AppStore") };
        answer("results empty", json("{'resultCount': 0, 'results': []}"), none);
        answer("only beta data", betaAnswer("9.9"), none);
        answer("beta without builds", json("{'data': []}"), { QStringLiteral("App does not exist on TestFlight") }, true);
        answer("record without trackViewUrl", json("{'results': [{'version': '9.0'}]}"), broken("AppStore", "trackViewUrl"));
        answer("a later record broken", json("{'results': [{'version': '9', 'trackViewUrl': 'https://x'}, {'version': '8'}]}"),
               broken("AppStore", "results[1]"));
        answer("results not an array", json("{'results': {'version': '9'}}"), broken("AppStore", "results"));
        answer("empty body", QByteArray(), broken("AppStore", "invalidResponse"));
        answer("not JSON", "<html>Service Unavailable</html>", broken("AppStore", "JSON"));
        answer("beta with expired as a boolean",
               json("{'data': [{'type': 'builds', 'attributes': {'version': '9.9', 'expired': false}}]}"),
               broken("TestFlight", "expired"), true);
        answer("beta answer broken in the lookup", json("{'results': [], 'data': [{'type': 'builds'}]}"),
               broken("AppStore", "attributes"));
        QTest::newRow("dead port") << "dead" << QByteArray() << false << broken("AppStore", "refused");
        // An endless answer is cut off at its bound; one that trickles in at the deadline.
        QTest::newRow("endless") << "endless" << QByteArray() << false << broken("AppStore", "longer than 65536 bytes");
        QTest::newRow("trickling") << "trickling" << QByteArray() << false << broken("AppStore", "within 300 ms");
    }
    void failedChecksOnlyPrint()
    {
        QFETCH(QString, server);
        QFETCH(QByteArray, body);
        QFETCH(bool, isTestFlight);
        QFETCH(QStringList, lines);
        LoopbackHttpServer endless;
        QString origin;
        if (server == QLatin1StringView("answer")) {
            m_server.answer(body);
        } else if (server == QLatin1StringView("dead")) {
            QTcpServer probe;
            QVERIFY(probe.listen(QHostAddress::LocalHost));
            origin = QStringLiteral("http://127.0.0.1:%1").arg(probe.serverPort());
        } else {
            const bool fast = server == QLatin1StringView("endless");
            endless.answerEndlessly(fast ? 65536 : 1, fast ? 0 : 20);
            origin = endless.origin();
        }
        CheckUpdate::Config settings = config(writeInfoPlist(QStringLiteral("1.0")), origin);
        if (!origin.isEmpty() && server != QLatin1StringView("dead"))
            settings.deadlineMs = 300;
        CheckUpdate checker(settings, m_opener);

        const QStringList got = runCheck(checker, true, isTestFlight, int(lines.size()));

        QCOMPARE(got.size(), lines.size());
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QStringList parts = lines[i].split(QStringLiteral("…"));
            const bool matches = parts.size() == 1 ? got[i] == parts[0]
                                                   : got[i].startsWith(parts[0]) && got[i].size() > parts[0].size()
                                                           && got[i].contains(parts[1]);
            QVERIFY2(matches, qPrintable(got[i] + QStringLiteral(" does not match ") + lines[i]));
        }
        QVERIFY(!checker.isNeedUpdate());
        QVERIFY(!alert());
    }

    // Unusable information files stop the check before it asks anything.
    void unusableInformationStopsTheCheck_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("bundleId");
        QTest::addColumn<QStringList>("lines");
        const QString decode = QStringLiteral("Erro to decode app current version");
        const QStringList invalid{ QStringLiteral("error getting app AppStore version:  invalidBundleInfo"),
                                   QStringLiteral("App does not exist on AppStore") };
        QTest::newRow("no file") << QString() << QString()
                                 << QStringList{ QStringLiteral("Couldn't find file 'Info.plist'."), decode };
        QTest::newRow("no version")
                << QString() << QStringLiteral("app.test.Quieton")
                << QStringList{ QStringLiteral("Couldn't find key 'CFBundleShortVersionString' in 'Info.plist'."), decode };
        QTest::newRow("no bundle identifier")
                << QStringLiteral("1.0") << QString()
                << QStringList{ QStringLiteral("Couldn't find key 'CFBundleIdentifier' in 'Info.plist'.") } + invalid;
        QTest::newRow("identifier not an address") << QStringLiteral("1.0") << QStringLiteral("app test Quieton") << invalid;
    }
    void unusableInformationStopsTheCheck()
    {
        QFETCH(QString, version);
        QFETCH(QString, bundleId);
        QFETCH(QStringList, lines);
        const QString path = version.isNull() && bundleId.isNull() ? m_folder.filePath(QStringLiteral("nowhere/Info.plist"))
                                                                   : writeInfoPlist(version, bundleId);
        CheckUpdate checker(config(path), m_opener);
        QCOMPARE(runCheck(checker, true, false, int(lines.size())), lines);
        // The last line is printed where a request would have been started.
        QVERIFY(m_server.requests.isEmpty());
    }

    // The UI thread never waits on the network: while the server holds the
    // request, the event loop runs on, and a checker can go away meanwhile.
    void aSilentServerOnlyDelaysTheCheck()
    {
        LoopbackHttpServer silent;
        silent.keepSilent();
        StdoutCapture capture;
        {
            CheckUpdate checker(config(writeInfoPlist(QStringLiteral("1.0")), silent.origin()), m_opener);
            checker.checkForUpdate(true, false);
            QTRY_COMPARE(silent.requests.size(), 1); // served by this thread's event loop
            QVERIFY(printed(capture).isEmpty());
            QVERIFY(!alert());
        }
        // The request goes with its checker, and nothing is printed for it.
        QTRY_COMPARE(silent.closedConnections, 1);
        QVERIFY(printed(capture).isEmpty());
    }

    void betaBuildsUseTheDeveloperApiAndTheStorePage()
    {
        m_server.answer(betaAnswer("1.5"));
        CheckUpdate checker(config(writeInfoPlist(QStringLiteral("1.4"))), m_opener);
        QSignalSpy testFlightChanged(&checker, &CheckUpdate::isTestFlightChanged);

        StdoutCapture capture;
        checker.checkForUpdate(true, true);
        QVERIFY(checker.isTestFlight()); // at once, before any answer
        QCOMPARE(testFlightChanged.size(), 1);
        QTRY_COMPARE(printed(capture),
                     QStringList{ QStringLiteral("Needs update: TestFlight Version: 1.5 > Current version:  1.4") });
        QCOMPARE(m_server.requests.constLast().target, QByteArray("/v1/apps/123/builds"));
        QCOMPARE(m_server.requests.constLast().header("Authorization"), QByteArray("Bearer abc"));
        QTRY_VERIFY(alert());
        QCOMPARE(alert()->property("appURL").toString(), storePage);
        QCOMPARE(alert()->property("isTestFlight").toBool(), true);
        QVERIFY(!checker.isNeedUpdate()); // only a store record raises it

        closeAlerts();
        // The next check goes back to the store.
        m_server.answer(storeAnswer("1.4"));
        QCOMPARE(runCheck(checker, true, false, 1), QStringList{ QStringLiteral("Already on the last app version:  1.4") });
        QVERIFY(!checker.isTestFlight());
        QCOMPARE(m_server.requests.constLast().target, QByteArray("/br/lookup?bundleId=app.test.Quieton"));
    }

    // Without a window nothing is shown; the flag is raised once and never cleared.
    void isNeedUpdateIsRaisedOnceAndNeverCleared()
    {
        m_window->setVisible(false);
        CheckUpdate checker(config(writeInfoPlist(QStringLiteral("1.0"))), m_opener);
        QSignalSpy changed(&checker, &CheckUpdate::isNeedUpdateChanged);
        m_server.answer(storeAnswer("1.1"));
        runCheck(checker, true, false, 1);
        m_server.answer(storeAnswer("1.2"));
        runCheck(checker, true, false, 1);
        m_server.answer(storeAnswer("1.0"));
        QCOMPARE(runCheck(checker, true, false, 1), QStringList{ QStringLiteral("Already on the last app version:  1.0") });
        QVERIFY(checker.isNeedUpdate());
        QTRY_COMPARE(changed.size(), 1);
        QCOMPARE(m_server.requests.size(), 3); // no caching, no de-duplication
        // The alerts were handed over before the last line was printed.
        QCoreApplication::processEvents();
        QVERIFY(!alert());
    }

    // Read afresh each time; a value that is not text, or a broken file, is logged as missing.
    void infoPlistValueReadsTheFileAfreshEachTime()
    {
        const QString path = writeInfoPlist(QStringLiteral("1.0"));
        CheckUpdate checker(config(path), m_opener);
        QCOMPARE(checker.infoPlistValue(QStringLiteral("CFBundleShortVersionString")), QStringLiteral("1.0"));
        StdoutCapture capture;
        writeInfoPlist(QStringLiteral("1.1"), QStringLiteral("app.test.Quieton"), "<key>CFBundleVersion</key><integer>7</integer>\n");
        QCOMPARE(checker.infoPlistValue(QStringLiteral("CFBundleShortVersionString")), QStringLiteral("1.1"));
        QCOMPARE(checker.infoPlistValue(QStringLiteral("CFBundleVersion")), std::nullopt);
        QFile broken(path);
        QVERIFY(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
        broken.write("<plist><dict><key>CFBundleShortVersionString</key><string>1.2");
        broken.close();
        QCOMPARE(checker.infoPlistValue(QStringLiteral("CFBundleShortVersionString")), std::nullopt);
        QCOMPARE(printed(capture),
                 (QStringList{ QStringLiteral("Couldn't find key 'CFBundleVersion' in 'Info.plist'."),
                               QStringLiteral("Couldn't find key 'CFBundleShortVersionString' in 'Info.plist'.") }));
    }

    void theBuiltInInformationFileAndAddresses()
    {
        // The app's own checker (test programs use a local one); the identifier goes in unescaped.
        CheckUpdate shared(CheckUpdate::Config::fromBuild(), m_opener);
        QCOMPARE(shared.infoPlistValue(QStringLiteral("CFBundleShortVersionString")), QStringLiteral(QUIETON_TEST_VERSION));
        const std::optional<QString> bundleId = shared.infoPlistValue(QStringLiteral("CFBundleIdentifier"));
        QVERIFY(bundleId && !bundleId->isEmpty());
        QVERIFY(shared.lookupAddress(*bundleId).startsWith(QLatin1StringView("https://")));
        QVERIFY(shared.lookupAddress(QStringLiteral("a b/c")).endsWith(QLatin1StringView("/br/lookup?bundleId=a b/c")));
        QVERIFY(shared.buildsAddress().contains(QRegularExpression(QStringLiteral("^https://.*/v1/apps/[0-9]+/builds$"))));
        QVERIFY(shared.urlAppStore().contains(QRegularExpression(QStringLiteral("^https://[^/]+/br/app/[^/]+/id[0-9]+\\?uo=4$"))));
    }

    // The app checks once, for an optional update, after its window's first frame.
    void theAppChecksOnceAfterItsWindowsFirstFrame()
    {
        m_window->setVisible(false); // the app's window is the only one
        m_server.answer(storeAnswer("1.1"));
        TestApp test(config(writeInfoPlist(QStringLiteral("1.0"))));
        QQmlApplicationEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/"));
        engine.loadData("import QtQuick\nimport QtQuick.Controls\nApplicationWindow { width: 400; height: 700; visible: true }");
        auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
        QVERIFY(window);
        test.app().startAfterFirstFrame(window);
        QVERIFY(m_server.requests.isEmpty()); // nothing before the event loop runs
        QTRY_VERIFY(test.app().checkNewVersionService()->isNeedUpdate());
        QObject *shown = nullptr;
        QTRY_VERIFY((shown = window->findChild<QObject *>(QStringLiteral("appUpdateAlert"))));
        QCOMPARE(shown->property("force").toBool(), false);

        QSignalSpy frames(window, &QQuickWindow::frameSwapped);
        window->resize(410, 700);
        QVERIFY(frames.wait(5000));
        QTest::qWait(50);
        QCOMPARE(m_server.requests.size(), 1); // later frames start nothing more
    }
};

QTEST_MAIN(TestCheckUpdate)
#include "tst_checkupdate.moc"
