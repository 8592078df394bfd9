// One running app per user and settings folder: a second launch on the same
// settings hands over its link, a launch on other settings runs on its own.
#include "SingleInstance.h"
#include "StdoutCapture.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestSingleInstance : public QObject
{
    Q_OBJECT

    QTemporaryDir m_homes;

    void useConfigHome(const QString &name)
    {
        qputenv("XDG_CONFIG_HOME", m_homes.filePath(name).toUtf8());
    }

private slots:
    void laterLaunchesOnTheSameSettingsReachTheRunningApp()
    {
        useConfigHome(QStringLiteral("a"));
        SingleInstance running;
        running.listen();
        QSignalSpy links(&running, &SingleInstance::linkReceived);
        QSignalSpy activations(&running, &SingleInstance::activationRequested);

        SingleInstance second;
        QVERIFY(second.forwardToRunning(QUrl(QStringLiteral("quieton://x?number=0612&hidden=true"))));
        QTRY_COMPARE(links.count(), 1);
        QCOMPARE(links.at(0).at(0).toUrl(), QUrl(QStringLiteral("quieton://x?number=0612&hidden=true")));

        QVERIFY(second.forwardToRunning(QUrl()));
        QTRY_COMPARE(activations.count(), 1);
        QCOMPARE(links.count(), 1);

        // A link at the bound goes through; a longer one is not buffered: its
        // sender is cut off.
        StdoutCapture out;
        const QString start = QStringLiteral("quieton://x?number=1&pad=");
        const QUrl atBound(start + QString(WidgetLink::maxLinkLength - start.size(), u'a'));
        QVERIFY(SingleInstance().forwardToRunning(QUrl(start + QString(1 << 20, u'a'))));
        QVERIFY(second.forwardToRunning(atBound));
        QTRY_COMPARE(links.count(), 2);
        QCOMPARE(links.at(1).at(0).toUrl(), atBound);
        QTRY_COMPARE(out.lines(), QStringList{ QStringLiteral("## Link refused: longer than 4096 characters") });
    }

    void aLaunchOnOtherSettingsRunsOnItsOwn()
    {
        useConfigHome(QStringLiteral("a"));
        SingleInstance running;
        running.listen();
        QSignalSpy links(&running, &SingleInstance::linkReceived);

        useConfigHome(QStringLiteral("b"));
        SingleInstance other;
        QVERIFY(!other.forwardToRunning(QUrl(QStringLiteral("quieton://x?number=1"))));
        other.listen();
        QSignalSpy otherLinks(&other, &SingleInstance::linkReceived);
        QVERIFY(other.forwardToRunning(QUrl(QStringLiteral("quieton://x?number=2"))));
        QTRY_COMPARE(otherLinks.count(), 1);
        QCOMPARE(links.count(), 0);
    }
};

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
