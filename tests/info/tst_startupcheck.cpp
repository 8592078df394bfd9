// The app's start-up check: once the app's window has shown its first frame,
// one optional store lookup, to a loopback server.
#include "CheckUpdate.h"
#include "LoopbackHttpServer.h"
#include "QuietonApp.h"
#include "TestApp.h"
#include "TestHome.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>


class TestStartupCheck : public QObject
{
    Q_OBJECT
    QTemporaryDir m_folder;
    LoopbackHttpServer m_server;
    CheckUpdate::Config m_config;

private slots:
    void initTestCase()
    {
        TestHome::use();
        QFile plist(m_folder.filePath(QStringLiteral("Info.plist")));
        QVERIFY(plist.open(QIODevice::WriteOnly));
        plist.write("<plist><dict><key>CFBundleShortVersionString</key><string>1.0</string>"
                    "<key>CFBundleIdentifier</key><string>app.test.Quieton</string></dict></plist>");
        plist.close();
        m_config = { m_server.origin(), m_server.origin(), QStringLiteral("1"), QStringLiteral("abc"),
                     QStringLiteral("https://store.example/"), plist.fileName() };
        m_server.answer("{\"results\": [{\"version\": \"1.1\", \"trackViewUrl\": \"https://store.example/1.1\"}]}");
    }

    void theAppsWindowChecksOnceAfterItsFirstFrame()
    {
        TestApp test(m_config);
        QuietonApp &app = test.app();
        QQmlApplicationEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/"));
        engine.loadData("import QtQuick\nimport QtQuick.Controls\nApplicationWindow { width: 400; height: 700; visible: true }");
        auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
        QVERIFY(window);
        app.startAfterFirstFrame(window);
        QVERIFY(m_server.requests.isEmpty()); // nothing before the event loop runs

        QTRY_COMPARE(m_server.requests.size(), 1);
        QCOMPARE(m_server.requests.constFirst().target, QByteArray("/br/lookup?bundleId=app.test.Quieton"));
        QVERIFY(!app.checkNewVersionService()->isTestFlight());
        QObject *alert = nullptr;
        QTRY_VERIFY((alert = window->findChild<QObject *>(QStringLiteral("appUpdateAlert"))));
        QCOMPARE(alert->property("force").toBool(), false); // optional: "Not now" is there
        QTRY_VERIFY(app.checkNewVersionService()->isNeedUpdate());

        // Later frames start nothing more.
        QSignalSpy frames(window, &QQuickWindow::frameSwapped);
        window->resize(410, 700);
        QVERIFY(frames.wait(5000));
        QTest::qWait(50);
        QCOMPARE(m_server.requests.size(), 1);
    }
};

QTEST_MAIN(TestStartupCheck)
#include "tst_startupcheck.moc"
