// The update check against a loopback HTTP server, its alert in a real window; web pages without a browser.
#include "CheckUpdate.h"
#include "LoopbackHttpServer.h"
#include "RecordingUrlOpener.h"
#include "SafariWebView.h"
#include "StdoutCapture.h"
#include "TestApp.h"
#include "TestHome.h"

#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString storePage = QStringLiteral("https://store.example/br/app/quieton/id123?uo=4");
const QString upToDate = QStringLiteral("Already on the last app version:  ");

// JSON written with single quotes, for readability.
QByteArray json(QByteArray text)
{
    return text.replace('\'', '"');
}

QByteArray storeAnswer(const QByteArray &version)
{
    return json("{'results': [{'version': '" + version + "', 'trackViewUrl': 'https://store.example/app/quieton?v="
                + version + "'}]}");
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

    // Writes an information file (a null value leaves its key out); returns its path.
    QString writeInfoPlist(const QString &version, const QString &bundleId = QStringLiteral("app.test.Quieton"))
    {
        QByteArray xml = "<plist version=\"1.0\">\n<dict>\n<key>CFBundleVersion</key><integer>7</integer>\n";
        if (!bundleId.isNull())
            xml += "<key>CFBundleIdentifier</key><string>" + bundleId.toUtf8() + "</string>\n";
        if (!version.isNull())
            xml += "<key>CFBundleShortVersionString</key><string>" + version.toUtf8() + "</string>\n";
        const QString path = m_folder.filePath(QStringLiteral("Info.plist"));
        QFile file(path);
        file.open(QIODevice::WriteOnly | QIODevice::Truncate);
        file.write(xml + "</dict>\n</plist>\n");
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
    QStringList runCheck(CheckUpdate &checker, bool isOptional, bool isTestFlight, int lineCount = 1)
    {
        StdoutCapture capture;
        checker.checkForUpdate(isOptional, isTestFlight);
        static_cast<void>(QTest::qWaitFor([&] { return printed(capture).size() >= lineCount; }, 10000));
        return printed(capture);
    }

    QObject *alert() const { return m_window->findChild<QObject *>(QStringLiteral("appUpdateAlert")); }
    QQuickItem *alertButton(const char *name) const
    {
        auto *footer = alert() ? alert()->property("footer").value<QQuickItem *>() : nullptr;
        return footer ? footer->findChild<QQuickItem *>(QLatin1StringView(name)) : nullptr;
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        QVERIFY(m_server.isListening());
        m_engine.addImportPath(QStringLiteral("qrc:/"));
        m_engine.loadData("import QtQuick\nWindow { width: 400; height: 700; visible: true }");
        m_window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().value(0));
        QVERIFY(m_window);
    }

    void init()
    {
        m_server.requests.clear();
        m_opener.opened.clear();
        m_window->setVisible(true);
        QVERIFY(QTest::qWaitForWindowExposed(m_window));
    }

    void cleanup()
    {
        // A closed alert removes itself.
        while (QPointer<QObject> open = alert()) {
            QMetaObject::invokeMethod(open, "close");
            QTRY_VERIFY(!open);
        }
    }

    void storeVersionsCompareAsPlainText_data()
    {
        QTest::addColumn<QString>("current");
        QTest::addColumn<QString>("store");
        QTest::addColumn<bool>("newer");
        QTest::addColumn<int>("status");
        QTest::newRow("older here") << "1.2" << "1.3" << true << 200;
        QTest::newRow("same") << "1.3" << "1.3" << false << 200;
        QTest::newRow("1.9 against 1.10") << "1.9" << "1.10" << false << 200;
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

        const QStringList lines = runCheck(checker, true, false);

        QCOMPARE(m_server.requests.size(), 1);
        QCOMPARE(m_server.requests.constFirst().target, QByteArray("/br/lookup?bundleId=app.test.Quieton"));
        QVERIFY(!m_server.requests.constFirst().head.contains("Authorization"));
        const QString needs = QStringLiteral("Needs update: AppStore Version: %1 > Current version:  ").arg(store);
        QCOMPARE(lines, QStringList{ (newer ? needs : upToDate) + current });
        QCOMPARE(checker.isNeedUpdate(), newer);
        QCOMPARE(needChanged.size(), int(newer));
        QTRY_COMPARE(alert() != nullptr, newer);
    }

    // A forced update offers only "Update Now"; a link off the store's https host opens the store page.
    void theAlertsButtons_data()
    {
        QTest::addColumn<bool>("optional");
        QTest::addColumn<QByteArray>("link");
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QString>("opened");
        const QByteArray link("https://store.example/app/quieton?v=2.0");
        QTest::newRow("not now") << true << link << QByteArray("notNowButton") << QString();
        QTest::newRow("forced") << false << link << QByteArray("updateNowButton") << QString::fromLatin1(link);
        for (const char *other : { "tel:*%2331%23", "https://store.example.evil/app", "https://user@store.example/app" })
            QTest::newRow(other) << true << QByteArray(other) << QByteArray("updateNowButton") << storePage;
    }
    void theAlertsButtons()
    {
        QFETCH(bool, optional);
        QFETCH(QByteArray, link);
        QFETCH(QByteArray, button);
        QFETCH(QString, opened);
        m_server.answer(json("{'results': [{'version': '9', 'trackViewUrl': '" + link + "'}]}"));
        CheckUpdate checker(config(writeInfoPlist(QStringLiteral("1.0"))), m_opener);
        runCheck(checker, optional, false);
        QTRY_VERIFY(alert() && alert()->property("opened").toBool());
        QCOMPARE(alertButton("notNowButton")->isVisible(), optional);
        QTest::mouseClick(m_window, Qt::LeftButton, {},
                          alertButton(button.constData())->mapToScene(QPointF(5, 5)).toPoint());
        QTRY_VERIFY(!alert());
        QCOMPARE(m_opener.addresses(), opened.isEmpty() ? QStringList() : QStringList{ opened });
    }

    // A failed check prints why and that there is no record; it raises and shows nothing.
    void failedChecksOnlyPrint_data()
    {
        QTest::addColumn<QString>("server"); // "answer", "dead", "endless" or "trickling"
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("isTestFlight");
        QTest::addColumn<QString>("reason"); // none: only the missing record is printed
        QTest::newRow("results empty") << "answer" << json("{'resultCount': 0, 'results': []}") << false << QString();
        QTest::newRow("beta without builds") << "answer" << json("{'data': []}") << true << QString();
        QTest::newRow("a later record broken") << "answer"
                << json("{'results': [{'version': '9', 'trackViewUrl': 'https://x'}, {'version': '8'}]}") << false << "results[1]";
        QTest::newRow("empty body") << "answer" << QByteArray() << false << "invalidResponse";
        QTest::newRow("not JSON") << "answer" << QByteArray("<html>Service Unavailable</html>") << false << "JSON";
        QTest::newRow("beta with expired as a boolean") << "answer"
                << json("{'data': [{'type': 'builds', 'attributes': {'version': '9.9', 'expired': false}}]}") << true << "expired";
        QTest::newRow("dead port") << "dead" << QByteArray() << false << "refused";
        // Endless answers are cut at the bound, trickling ones at the deadline (the server shares this thread).
        QTest::newRow("endless") << "endless" << QByteArray() << false << "longer than 65536 bytes";
        QTest::newRow("trickling") << "trickling" << QByteArray() << false << "within 300 ms";
    }
    void failedChecksOnlyPrint()
    {
        QFETCH(QString, server);
        QFETCH(QByteArray, body);
        QFETCH(bool, isTestFlight);
        QFETCH(QString, reason);
        LoopbackHttpServer endless;
        QTcpServer dead;
        QString origin;
        if (server == QLatin1StringView("answer")) {
            m_server.answer(body);
        } else if (server == QLatin1StringView("dead")) {
            QVERIFY(dead.listen(QHostAddress::LocalHost));
            origin = QStringLiteral("http://127.0.0.1:%1").arg(dead.serverPort());
            dead.close();
        } else {
            const bool fast = server == QLatin1StringView("endless");
            endless.answerEndlessly(fast ? 65536 : 1, fast ? 0 : 20);
            origin = endless.origin();
        }
        CheckUpdate::Config settings = config(writeInfoPlist(QStringLiteral("1.0")), origin);
        if (server == QLatin1StringView("endless") || server == QLatin1StringView("trickling"))
            settings.deadlineMs = 300;
        CheckUpdate checker(settings, m_opener);

        const int lineCount = reason.isNull() ? 1 : 2;
        const QStringList got = runCheck(checker, true, isTestFlight, lineCount);

        const QString label = isTestFlight ? QStringLiteral("TestFlight") : QStringLiteral("AppStore");
        const QString error = QStringLiteral("error getting app %1 version:  ").arg(label);
        QCOMPARE(got.size(), lineCount);
        QCOMPARE(got.constLast(), QStringLiteral("App does not exist on ") + label);
        if (!reason.isNull())
            QVERIFY2(got[0].startsWith(error) && got[0].size() > error.size() && got[0].contains(reason), qPrintable(got[0]));
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
        QTest::newRow("no bundle identifier")
                << QStringLiteral("1.0") << QString()
                << QStringList{ QStringLiteral("Couldn't find key 'CFBundleIdentifier' in 'Info.plist'.") } + invalid;
        // The identifier goes into the address unescaped.
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

    // Only a store record raises the flag, once, and nothing clears it; no caching.
    void betaBuildsUseTheDeveloperApiAndTheStorePage()
    {
        m_server.answer(json("{'data': [{'type': 'builds', 'id': 'b1', 'attributes': {'version': '1.5', 'expired': 'false'}}]}"));
        CheckUpdate checker(config(writeInfoPlist(QStringLiteral("1.4"))), m_opener);
        QSignalSpy changed(&checker, &CheckUpdate::isNeedUpdateChanged);
        QCOMPARE(runCheck(checker, true, true),
                 QStringList{ QStringLiteral("Needs update: TestFlight Version: 1.5 > Current version:  1.4") });
        QVERIFY(checker.isTestFlight());
        QCOMPARE(m_server.requests.constLast().target, QByteArray("/v1/apps/123/builds"));
        QVERIFY(m_server.requests.constLast().head.contains("\r\nAuthorization: Bearer abc\r\n"));
        QTRY_VERIFY(alert());
        QCOMPARE(alert()->property("appURL").toString(), storePage);
        QVERIFY(!checker.isNeedUpdate());
        QMetaObject::invokeMethod(alert(), "close");
        QTRY_VERIFY(!alert());

        // The next checks go back to the store; without a window nothing is shown.
        m_window->setVisible(false);
        for (const char *version : { "1.5", "1.4" }) {
            m_server.answer(storeAnswer(version));
            runCheck(checker, true, false);
        }
        QVERIFY(!checker.isTestFlight());
        QVERIFY(checker.isNeedUpdate());
        QCOMPARE(changed.size(), 1);
        QCOMPARE(m_server.requests.size(), 3);
        QVERIFY(!alert());
    }

    void theBuiltInInformationFileHasTheAppsVersion()
    {
        QCOMPARE(CheckUpdate::infoPlistValue(CheckUpdate::Config::fromBuild().infoPlistPath,
                                             QStringLiteral("CFBundleShortVersionString")),
                 QStringLiteral(QUIETON_TEST_VERSION));
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
        test.app().checkForUpdateAfterFirstFrame(window);
        QVERIFY(m_server.requests.isEmpty()); // nothing before the event loop runs
        QObject *shown = nullptr;
        QTRY_VERIFY((shown = window->findChild<QObject *>(QStringLiteral("appUpdateAlert"))));
        QCOMPARE(shown->property("force").toBool(), false);

        // A later frame starts nothing more.
        QSignalSpy frames(window, &QQuickWindow::frameSwapped);
        window->resize(410, 700);
        QVERIFY(frames.wait(5000));
        QCOMPARE(m_server.requests.size(), 1);
    }

    void withoutABrowserThePageIsLoggedAndClosed()
    {
        struct : RecordingUrlOpener { bool open(const QUrl &) override { return false; } } opener;
        StdoutCapture capture;
        SafariWebView view;
        view.setProperty("opener", QVariant::fromValue<UrlOpener *>(&opener));
        view.setPage(QStringLiteral("leaveAFeedBack"));
        QSignalSpy dismissed(&view, &SafariWebView::dismissed);
        view.componentComplete();
        QVERIFY(dismissed.wait(1000));
        QCOMPARE(dismissed.size(), 1);
        QVERIFY(capture.lines().contains(QStringLiteral("## Could not open https://" QUIETON_TEST_WEB_HOST "/sendFeedBack")));
    }
};

QTEST_MAIN(TestCheckUpdate)
#include "tst_checkupdate.moc"
