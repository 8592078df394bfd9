// First-launch defaults and the install date, on real settings files.
#include "JsonFileKeyValueStore.h"
#include "UserDefaultsService.h"

#include <QTemporaryDir>
#include <QtTest>

class TestUserDefaultsService : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_round = 0;
    QString m_file;

    // A settings file prepared by `prepare`, then a store created on it.
    std::unique_ptr<UserDefaultsService> launch(const std::function<void(KeyValueStore &)> &prepare = {})
    {
        m_file = QDir(m_dir.path()).filePath(QStringLiteral("suite%1.json").arg(++m_round));
        if (prepare)
            prepare(*JsonFileKeyValueStore::open(m_file));
        return relaunch();
    }
    std::unique_ptr<UserDefaultsService> relaunch()
    {
        return std::make_unique<UserDefaultsService>(JsonFileKeyValueStore::open(m_file), nullptr);
    }
    std::unique_ptr<KeyValueStore> onDisk() const { return JsonFileKeyValueStore::open(m_file); }

private slots:
    void freshStoreGetsTheFirstLaunchDefaults()
    {
        auto service = launch();
        auto disk = onDisk();
        QCOMPARE(std::get<bool>(*disk->object(QStringLiteral("hiddenNumber"))), true);
        QCOMPARE(std::get<bool>(*disk->object(QStringLiteral("saveToHistory"))), true);
        QCOMPARE(std::get<bool>(*disk->object(QStringLiteral("firstTimeInApp"))), false);
        QCOMPARE(std::get<QString>(*disk->object(QStringLiteral("prefix"))), QStringLiteral("#31#"));
        QCOMPARE(std::get<qint64>(*disk->object(QStringLiteral("autoSortBy"))), 0);
        QVERIFY(!service->isFirstTimeInApp());
    }

    void earlierChoicesAreNotAFirstLaunch()
    {
        launch([](KeyValueStore &s) {
            s.setBool(QStringLiteral("saveToHistory"), false);
            s.setString(QStringLiteral("prefix"), QString());
        });
        auto disk = onDisk();
        QVERIFY(!disk->hasObject(QStringLiteral("hiddenNumber")));
        QVERIFY(!disk->hasObject(QStringLiteral("firstTimeInApp")));
        QCOMPARE(disk->boolValue(QStringLiteral("saveToHistory")), false);
        QCOMPARE(disk->stringValue(QStringLiteral("prefix")), QString());
    }

    void firstTimeTrueForcesTheTogglesBackOn()
    {
        launch([](KeyValueStore &s) {
            s.setBool(QStringLiteral("firstTimeInApp"), true);
            s.setBool(QStringLiteral("hiddenNumber"), false);
            s.setBool(QStringLiteral("saveToHistory"), false);
        });
        auto disk = onDisk();
        QCOMPARE(disk->boolValue(QStringLiteral("hiddenNumber")), true);
        QCOMPARE(disk->boolValue(QStringLiteral("saveToHistory")), true);
        QCOMPARE(disk->boolValue(QStringLiteral("firstTimeInApp")), false);
    }

    void secondLaunchChangesNothing()
    {
        auto first = launch();
        first->userDefaults().setBool(QStringLiteral("hiddenNumber"), false);
        first->userDefaults().setString(QStringLiteral("prefix"), QStringLiteral("141"));
        first.reset();
        auto second = relaunch();
        QCOMPARE(second->userDefaults().boolValue(QStringLiteral("hiddenNumber")), false);
        QCOMPARE(*second->userDefaults().stringValue(QStringLiteral("prefix")), QStringLiteral("141"));
    }

    void sortKeyRepair_data()
    {
        QTest::addColumn<std::optional<SettingValue>>("stored");
        QTest::addColumn<SettingValue>("expected");
        QTest::newRow("absent") << std::optional<SettingValue>() << SettingValue(qint64(0));
        QTest::newRow("empty text") << std::optional<SettingValue>(QString()) << SettingValue(qint64(0));
        QTest::newRow("text kept") << std::optional<SettingValue>(QStringLiteral("x")) << SettingValue(QStringLiteral("x"));
    }
    void sortKeyRepair()
    {
        QFETCH(std::optional<SettingValue>, stored);
        QFETCH(SettingValue, expected);
        launch([&](KeyValueStore &s) {
            if (stored)
                s.setObject(QStringLiteral("autoSortBy"), *stored);
        });
        QCOMPARE(*onDisk()->object(QStringLiteral("autoSortBy")), expected);
    }

    void installDateIsWrittenOnce()
    {
        auto service = launch();
        QVERIFY(!service->installDate());
        service->saveInstallDateIfNeeded();
        const auto first = service->installDate();
        QVERIFY(first);
        QVERIFY(qAbs(first->secsTo(QDateTime::currentDateTime())) < 5);
        // A date that is there is never written over.
        const QDateTime earlier = first->addDays(-3);
        service->userDefaults().setDate(QStringLiteral("dateAppInstalled"), earlier);
        service->saveInstallDateIfNeeded();
        QCOMPARE(relaunch()->installDate(), earlier);
    }

    void installDateMustBeADate()
    {
        auto service = launch([](KeyValueStore &s) { s.setString(QStringLiteral("dateAppInstalled"), QStringLiteral("2024-01-01")); });
        QVERIFY(!service->installDate());
        service->saveInstallDateIfNeeded();
        QVERIFY(service->installDate());
    }
};

QTEST_GUILESS_MAIN(TestUserDefaultsService)
#include "tst_userdefaultsservice.moc"
