// One running app per session: a later `quieton [link]` hands its link (or a
// "come forward") to the app that owns the name on the session bus, and exits.
#include "PrivateBus.h"
#include "SingleInstance.h"
#include "StdoutCapture.h"
#include "WidgetLink.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void laterLaunchesHandOverAndExit()
    {
        PrivateBus bus;
        QVERIFY(bus.isRunning());
        SingleInstance running(bus.connection());
        QVERIFY(running.listen());
        QSignalSpy links(&running, &SingleInstance::linkReceived);
        QSignalSpy activations(&running, &SingleInstance::activationRequested);

        // A temporary folder's path far longer than a socket's may be.
        QTemporaryDir tmp(QDir::tempPath() + u'/' + QString(200, u't'));
        QVERIFY(tmp.isValid());
        const auto launch = [&](const QString &link) {
            QProcess second;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus.address());
            environment.insert(QStringLiteral("TMPDIR"), tmp.path());
            second.setProcessEnvironment(environment);
            second.start(QStringLiteral(QUIETON_APP_BINARY), link.isEmpty() ? QStringList() : QStringList{ link });
            // The running app answers from this thread's event loop.
            QTRY_VERIFY_WITH_TIMEOUT(second.state() == QProcess::NotRunning, 20000);
            QCOMPARE(second.exitStatus(), QProcess::NormalExit);
            QCOMPARE(second.exitCode(), 0);
        };

        launch(QStringLiteral("quieton://x?number=0612&hidden=true"));
        QCOMPARE(links.count(), 1);
        QCOMPARE(links.at(0).at(0).toUrl(), QUrl(QStringLiteral("quieton://x?number=0612&hidden=true")));
        launch(QString());
        QCOMPARE(activations.count(), 1);

        // A link at the bound goes through, a longer one is refused.
        StdoutCapture out;
        const QString start = QStringLiteral("quieton://x?number=1&pad=");
        const QUrl atBound(start + QString(WidgetLink::maxLinkLength - start.size(), u'a'));
        running.Open({ start + QString(WidgetLink::maxLinkLength, u'a'), QString::fromUtf8(atBound.toEncoded()) }, {});
        QCOMPARE(links.count(), 2);
        QCOMPARE(links.at(1).at(0).toUrl(), atBound);
        QCOMPARE(out.lines(), QStringList{ QStringLiteral("## Link refused: longer than 4096 characters") });
        QCOMPARE(activations.count(), 1);
    }
};

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
