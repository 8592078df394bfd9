// First-launch defaults and the install date, on real settings files.
#include "JsonFileKeyValueStore.h"
#include "UserDefaultsService.h"

#include <QtTest>

using Settings = QMap<QString, SettingValue>;
using Expected = QMap<QString, std::optional<SettingValue>>; // nullopt: the key is absent

class TestUserDefaultsService : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_round = 0;
    QString m_file;

    std::unique_ptr<UserDefaultsService> launch(const Settings &stored = {})
    {
        m_file = QDir(m_dir.path()).filePath(QStringLiteral("suite%1.json").arg(++m_round));
        const auto file = JsonFileKeyValueStore::open(m_file);
        for (auto it = stored.cbegin(); it != stored.cend(); ++it)
            file->setObject(it.key(), it.value());
        return relaunch();
    }
    std::unique_ptr<UserDefaultsService> relaunch()
    {
        return std::make_unique<UserDefaultsService>(JsonFileKeyValueStore::open(m_file), nullptr);
    }

private slots:
    void firstLaunchDefaults_data()
    {
        QTest::addColumn<Settings>("stored");
        QTest::addColumn<Expected>("onDisk");
        const SettingValue on(true), off(false), zero(qint64(0));
        QTest::newRow("fresh") << Settings{} << Expected{ { "hiddenNumber", on }, { "saveToHistory", on }, { "firstTimeInApp", off },
                                                          { "prefix", QStringLiteral("#31#") }, { "autoSortBy", zero } };
        QTest::newRow("earlier choices are no first launch")
                << Settings{ { "saveToHistory", off }, { "prefix", QString() } }
                << Expected{ { "hiddenNumber", std::nullopt }, { "firstTimeInApp", std::nullopt }, { "saveToHistory", off }, { "prefix", QString() } };
        QTest::newRow("a later launch changes nothing")
                << Settings{ { "firstTimeInApp", off }, { "hiddenNumber", off }, { "prefix", QStringLiteral("141") } }
                << Expected{ { "firstTimeInApp", off }, { "hiddenNumber", off }, { "prefix", QStringLiteral("141") } };
        QTest::newRow("first time forces the toggles back on")
                << Settings{ { "firstTimeInApp", on }, { "hiddenNumber", off }, { "saveToHistory", off } }
                << Expected{ { "hiddenNumber", on }, { "saveToHistory", on }, { "firstTimeInApp", off } };
        QTest::newRow("sort key as empty text") << Settings{ { "autoSortBy", QString() } } << Expected{ { "autoSortBy", zero } };
        QTest::newRow("sort key as text kept") << Settings{ { "autoSortBy", QStringLiteral("x") } } << Expected{ { "autoSortBy", QStringLiteral("x") } };
    }
    void firstLaunchDefaults()
    {
        QFETCH(Settings, stored);
        QFETCH(Expected, onDisk);
        QVERIFY(!launch(stored)->isFirstTimeInApp());
        const auto disk = JsonFileKeyValueStore::open(m_file);
        for (auto it = onDisk.cbegin(); it != onDisk.cend(); ++it)
            QVERIFY2(disk->object(it.key()) == it.value(), qPrintable(it.key()));
    }

    // A text where the date should be is replaced; that a date is kept, tst_dialling's openings test shows.
    void installDateReplacesAText()
    {
        auto service = launch({ { QStringLiteral("dateAppInstalled"), QStringLiteral("2024-01-01") } });
        QVERIFY(!service->installDate());
        service->saveInstallDateIfNeeded();
        QVERIFY(qAbs(service->installDate().value().secsTo(QDateTime::currentDateTime())) < 5);
        QCOMPARE(relaunch()->installDate(), service->installDate());
    }
};

QTEST_GUILESS_MAIN(TestUserDefaultsService)
#include "tst_userdefaultsservice.moc"
