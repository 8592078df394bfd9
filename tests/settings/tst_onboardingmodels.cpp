// The onboarding and user-guide models on a real settings file.
#include "SettingsFileReader.h"
#include "StdoutCapture.h"
#include "TestApp.h"
#include "TestHome.h"
#include "UserDefaultsService.h"
#include "UserGuideForQuietonViewModel.h"
#include "WelcomeViewModel.h"

#include <QSignalSpy>
#include <QTest>

class OnboardingModelsTest : public QObject
{
    Q_OBJECT
    std::unique_ptr<TestApp> m_app;
    UserDefaultsService &defaults() { return m_app->defaults(); }

private slots:
    void initTestCase()
    {
        TestHome::use();
        m_app = std::make_unique<TestApp>();
    }

    void pagesStayWithinTheThree()
    {
        WelcomeViewModel vm(defaults());
        QSignalSpy changed(&vm, &WelcomeViewModel::selectedPageChanged);
        QCOMPARE(vm.selectedPage(), 0);
        QCOMPARE(vm.isFinishLaunch(), false);
        vm.next();
        vm.next();
        QCOMPARE(vm.selectedPage(), 2);
        vm.next(); // "Next" is not on the last page; asking anyway changes nothing
        QCOMPARE(vm.selectedPage(), 2);
        QCOMPARE(changed.count(), 2);
        vm.setSelectedPage(-4);
        QCOMPARE(vm.selectedPage(), 0);
        vm.setSelectedPage(99);
        QCOMPARE(vm.selectedPage(), 2);
    }

    void finishingIsStoredForTheNextStart()
    {
        SettingsFileReader file;
        QVERIFY(!file.boolValue(QStringLiteral("hasCompletedFirstLaunch")));
        WelcomeViewModel vm(defaults());
        QSignalSpy written(&defaults(), &UserDefaultsService::valueChanged);
        vm.completeFirstLaunch();
        QVERIFY(file.boolValue(QStringLiteral("hasCompletedFirstLaunch")));
        QCOMPARE(written.count(), 1);
        QCOMPARE(written.first().first().toString(), QStringLiteral("hasCompletedFirstLaunch"));
        // Finishing does not touch the page or the held flag.
        QCOMPARE(vm.isFinishLaunch(), false);
    }

    void theSpringSettlesWithoutOvershoot()
    {
        QCOMPARE(WelcomeViewModel::springProgress(0), 0.0);
        QCOMPARE(WelcomeViewModel::springProgress(-1), 0.0);
        qreal previous = 0;
        for (int ms = 16; ms <= 2000; ms += 16) {
            const qreal p = WelcomeViewModel::springProgress(ms / 1000.0);
            QVERIFY2(p > previous || p == 1.0, qPrintable(QString::number(ms)));
            QVERIFY(p <= 1.0);
            previous = p;
        }
        // Half a second in, most of the way is done; a little later, all of it.
        QVERIFY(WelcomeViewModel::springProgress(0.1) < 0.7);
        QVERIFY(WelcomeViewModel::springProgress(0.5) > 0.98);
        QVERIFY(WelcomeViewModel::springProgress(0.8) > 0.999);
        const int duration = WelcomeViewModel::springDurationMs(400);
        QVERIFY2(duration >= 500 && duration <= 1000, qPrintable(QString::number(duration)));
        QVERIFY(WelcomeViewModel::springDurationMs(0) > 0);
    }

    void guideTicks()
    {
        defaults().setBool(QStringLiteral("isReadUserGuide"), false);
        SettingsFileReader file;
        UserGuideForQuietonViewModel vm(defaults());
        QStringList lines;
        {
            StdoutCapture capture;
            int left = vm.secondsToRead();
            QCOMPARE(left, 5);
            for (int i = 0; i < 5; ++i)
                left = vm.tick(left);
            QCOMPARE(left, 0);
            QVERIFY(!file.boolValue(QStringLiteral("isReadUserGuide")));
            QCOMPARE(vm.tick(left), 0);
            QVERIFY(file.boolValue(QStringLiteral("isReadUserGuide")));
            // A count gone below zero still counts as read, never as more time.
            QCOMPARE(vm.tick(-3), -3);
            lines = capture.lines();
        }
        QCOMPARE(lines, QStringList({ QStringLiteral("## Time to User Guide Read: 4"),
                                      QStringLiteral("## Time to User Guide Read: 3"),
                                      QStringLiteral("## Time to User Guide Read: 2"),
                                      QStringLiteral("## Time to User Guide Read: 1"),
                                      QStringLiteral("## Time to User Guide Read: 0"),
                                      QStringLiteral("## User Guide Read"),
                                      QStringLiteral("## User Guide Read") }));
    }
};

QTEST_GUILESS_MAIN(OnboardingModelsTest)
#include "tst_onboardingmodels.moc"
