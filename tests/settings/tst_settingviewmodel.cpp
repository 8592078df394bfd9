// The settings model on the app's real settings file and history database
// in a temporary home: what it reads at creation, what every change writes,
// the prefix catalogue and its choices, the hand-typed prefix rule, reset
// and clear all.
#include "HistoryCallDataService.h"
#include "JsonFileKeyValueStore.h"
#include "Platform.h"
#include "RecordingPlatform.h"
#include "RecordingUrlOpener.h"
#include "SettingViewModel.h"
#include "StdoutCapture.h"
#include "TestHome.h"
#include "UserDefaultsService.h"

#include <QDir>
#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>

#include <algorithm>

class TestSettingViewModel : public QObject
{
    Q_OBJECT

    RecordingUrlOpener *m_opener = nullptr;
    std::unique_ptr<HistoryCallDataService> m_history;

    HistoryCallDataService *history() { return m_history.get(); }

    // The standard suite as it is on disk now, read by a store of its own.
    static std::unique_ptr<KeyValueStore> onDisk()
    {
        return JsonFileKeyValueStore::open(QDir(TestHome::configDirectory()).filePath(QStringLiteral("quieton.json")));
    }
    static std::optional<QString> storedPrefix() { return onDisk()->stringValue(QStringLiteral("prefix")); }
    // The call records in the history file, read afresh.
    qsizetype storedCalls()
    {
        HistoryCallDataService file(history()->databasePath());
        file.fetchHistory();
        return file.savedEntities().size();
    }
    static QStringList logged(StdoutCapture &capture)
    {
        QStringList found = capture.lines();
        found.removeIf([](const QString &line) { return !line.startsWith(QLatin1String("## ")); });
        return found;
    }
    // Which of the three sort switches are on, as "F", "L" and "T".
    static QString sortFlags(const SettingViewModel &vm)
    {
        return QString(vm.autoSortByFirstName() ? "F" : "") + (vm.autoSortByLastName() ? "L" : "")
                + (vm.autoSortByTelephone() ? "T" : "");
    }
    // A catalogue's country list: the row for every other country, then the
    // countries in plain text order.
    static void checkCountryList(const SettingViewModel &vm)
    {
        const QStringList list = vm.countryList();
        QCOMPARE(list.size(), 25);
        QCOMPARE(list.first(), vm.allOtherCountries());
        QVERIFY(std::is_sorted(list.begin() + 1, list.end()));
        for (const QString &country : list.mid(1))
            QVERIFY2(vm.prefix_country_codes().contains(country), qPrintable(country));
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        m_history = std::make_unique<HistoryCallDataService>(Platform::dataDirectory()
                                                             + QStringLiteral("/CallHistoryData.sqlite"));
        QCoreApplication::setApplicationVersion(QString());
        m_opener = RecordingPlatform::installUrlOpener();
    }

    // Must run first: nothing has touched the settings yet.
    void freshStoreAndStoredValuesAtCreation()
    {
        {
            SettingViewModel vm(history());
            QCOMPARE(vm.prefixNumber(), QStringLiteral("#31#"));
            QVERIFY(vm.autoHiddenNumber());
            QVERIFY(vm.autoSaveToHistory());
            QCOMPARE(sortFlags(vm), QStringLiteral("F"));
            QVERIFY(!vm.appVersion().isValid());
        }
        UserDefaultsService &defaults = *UserDefaultsService::shared();
        defaults.setString(QStringLiteral("prefix"), QString());
        defaults.setBool(QStringLiteral("hiddenNumber"), false);
        defaults.setBool(QStringLiteral("saveToHistory"), false);
        defaults.setInteger(QStringLiteral("autoSortBy"), 1);
        {
            SettingViewModel vm(history());
            QCOMPARE(vm.prefixNumber(), QString());
            QVERIFY(!vm.autoHiddenNumber());
            QVERIFY(!vm.autoSaveToHistory());
            QCOMPARE(sortFlags(vm), QStringLiteral("L"));
        }
        // An order this version does not know selects none of the three.
        defaults.setInteger(QStringLiteral("autoSortBy"), 7);
        SettingViewModel unknown(history());
        QCOMPARE(sortFlags(unknown), QString());
        unknown.resetSettings();
    }

    void togglesAndSortOrderAreWrittenAtOnce()
    {
        SettingViewModel vm(history());
        QSignalSpy hiddenSpy(&vm, &SettingViewModel::autoHiddenNumberChanged);
        vm.setAutoHiddenNumber(true);
        vm.setAutoSaveToHistory(true);
        QCOMPARE(hiddenSpy.count(), 1);
        QCOMPARE(onDisk()->object(QStringLiteral("hiddenNumber")), std::optional<SettingValue>(true));
        QCOMPARE(onDisk()->object(QStringLiteral("saveToHistory")), std::optional<SettingValue>(true));

        QSignalSpy firstSpy(&vm, &SettingViewModel::autoSortByFirstNameChanged);
        vm.setAutoSortByTelephone(true);
        QCOMPARE(onDisk()->object(QStringLiteral("autoSortBy")), std::optional<SettingValue>(qint64(2)));
        QCOMPARE(sortFlags(vm), QStringLiteral("T"));
        QCOMPARE(firstSpy.count(), 1);
        vm.setAutoSortByLastName(true);
        QCOMPARE(onDisk()->integerValue(QStringLiteral("autoSortBy")), 1);
        QCOMPARE(sortFlags(vm), QStringLiteral("L"));

        // Switching the current order off leaves all three off and the order
        // stored, so the next start shows it again.
        vm.setAutoSortByLastName(false);
        QCOMPARE(sortFlags(vm), QString());
        QCOMPARE(onDisk()->integerValue(QStringLiteral("autoSortBy")), 1);
        SettingViewModel next(history());
        QCOMPARE(sortFlags(next), QStringLiteral("L"));
        next.resetSettings();
    }

    void manualPrefixRule_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("two characters") << QStringLiteral("#3") << true;
        QTest::newRow("one character") << QStringLiteral("#") << false;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("a space inside") << QStringLiteral("#31 #") << false;
        QTest::newRow("tab passes") << QStringLiteral("#\t") << true;
        QTest::newRow("one emoji") << QStringLiteral("\U0001F600") << false;
        QTest::newRow("family emoji is one character")
                << QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467") << false;
        QTest::newRow("combining accent is one character") << QStringLiteral("e\u0301") << false;
        QTest::newRow("accent and a digit") << QStringLiteral("e\u03011") << true;
    }

    void manualPrefixRule()
    {
        QFETCH(QString, text);
        QFETCH(bool, accepted);
        SettingViewModel vm(history());
        vm.choosePrefix(QStringLiteral("*67"));
        QCOMPARE(vm.saveManualPrefix(text), accepted);
        const QString expected = accepted ? text : QStringLiteral("*67");
        QCOMPARE(vm.prefixNumber(), expected);
        QCOMPARE(storedPrefix(), std::optional<QString>(expected));
    }

    void countryListAndAllOtherCountries()
    {
        SettingViewModel vm(history());
        checkCountryList(vm);
        QCOMPARE(vm.allOtherCountries(), QStringLiteral("All Other Countries"));
        vm.choosePrefix(QStringLiteral("141"));
        vm.selectAllOtherCountries();
        QCOMPARE(vm.prefixNumber(), QStringLiteral("#31#"));
        QCOMPARE(storedPrefix(), std::optional<QString>(QStringLiteral("#31#")));
    }

    void countryWithOnePrefixStoresItAtOnce_data()
    {
        QTest::addColumn<QString>("country");
        QTest::addColumn<QString>("prefix");
        QTest::newRow("United Kingdom") << QStringLiteral("United Kingdom") << QStringLiteral("141");
        QTest::newRow("Japan") << QStringLiteral("Japan") << QStringLiteral("184");
        QTest::newRow("South Africa") << QStringLiteral("South Africa") << QStringLiteral("*31*");
    }

    void countryWithOnePrefixStoresItAtOnce()
    {
        QFETCH(QString, country);
        QFETCH(QString, prefix);
        SettingViewModel vm(history());
        vm.selectAllOtherCountries();
        StdoutCapture capture;
        QVERIFY(!vm.selectCountry(country));
        QCOMPARE(vm.prefixNumber(), prefix);
        QCOMPARE(storedPrefix(), std::optional<QString>(prefix));
        QCOMPARE(vm.selected_country_codes(), QString());
        QCOMPARE(logged(capture), QStringList{ "## Selected Prefix for " + country + " is " + prefix });
    }

    void countryWithSeveralPrefixesOffersAChoice()
    {
        SettingViewModel vm(history());
        vm.selectAllOtherCountries();
        QSignalSpy prefixSpy(&vm, &SettingViewModel::prefixNumberChanged);
        StdoutCapture capture;
        QVERIFY(vm.selectCountry(QStringLiteral("United States")));
        QCOMPARE(vm.selected_country_codes(), QStringLiteral("United States"));
        QCOMPARE(logged(capture), QStringList{ "## Selected Prefix for United States is [\"#31#\", \"*67\"]" });
        // Nothing is stored before a prefix is chosen.
        QCOMPARE(prefixSpy.count(), 0);
        QCOMPARE(storedPrefix(), std::optional<QString>(QStringLiteral("#31#")));

        QVERIFY(vm.selectCountry(QStringLiteral("Brazil")));
        const QVariantList rows = vm.prefixChoices();
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows[0].toMap().value("caption").toString(), QStringLiteral("1 - Brazil - [*31*]"));
        QCOMPARE(rows[2].toMap().value("caption").toString(), QStringLiteral("3 - Brazil - [*31#]"));

        // Catalogue prefixes bypass the hand-typed rule.
        vm.choosePrefix(rows[0].toMap().value("prefix").toString());
        QCOMPARE(vm.prefixNumber(), QStringLiteral("*31*"));
        QCOMPARE(storedPrefix(), std::optional<QString>(QStringLiteral("*31*")));
    }

    void unknownCountryChangesNothing()
    {
        SettingViewModel vm(history());
        vm.choosePrefix(QStringLiteral("184"));
        vm.selectCountry(QStringLiteral("Brazil"));
        StdoutCapture capture;
        QVERIFY(!vm.selectCountry(QStringLiteral("Atlantis")));
        QVERIFY(!vm.selectCountry(QString()));
        // "All Other Countries" is a row of the list, not a country of the catalogue.
        QVERIFY(!vm.selectCountry(vm.allOtherCountries()));
        QCOMPARE(vm.prefixNumber(), QStringLiteral("184"));
        QCOMPARE(vm.selected_country_codes(), QStringLiteral("Brazil"));
        QVERIFY(logged(capture).isEmpty());

        // A choice dialog for something that is not a country with a list has no rows.
        vm.setSelected_country_codes(QStringLiteral("Japan"));
        QVERIFY(vm.prefixChoices().isEmpty());
        vm.setSelected_country_codes(QStringLiteral("Atlantis"));
        QVERIFY(vm.prefixChoices().isEmpty());
    }

    void catalogueFollowsTheTranslation()
    {
        QTranslator german;
        QVERIFY(german.load(QStringLiteral(":/i18n/catalogue_de.qm")));
        QCoreApplication::installTranslator(&german);
        SettingViewModel vm(history());
        QCoreApplication::removeTranslator(&german);

        QVERIFY(!vm.prefix_country_codes().contains(QStringLiteral("Germany")));
        QCOMPARE(vm.prefix_country_codes().value(QStringLiteral("Vereinigtes Königreich")), QVariant("141"));
        // The translated "All Other Countries" comes first although it would sort last.
        checkCountryList(vm);
        QCOMPARE(vm.countryList().first(), QStringLiteral("Übrige Länder"));

        StdoutCapture capture;
        QVERIFY(vm.selectCountry(QStringLiteral("Südkorea")));
        QCOMPARE(logged(capture), QStringList{ "## Selected Prefix for Südkorea is [\"*23\", \"*23#\"]" });
        QCoreApplication::installTranslator(&german);
        const QVariantList rows = vm.prefixChoices();
        QCoreApplication::removeTranslator(&german);
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[1].toMap().value("caption").toString(), QStringLiteral("2. Südkorea: *23#"));
    }

    void storePageOpensOnlyValidAddresses()
    {
        m_opener->opened.clear();
        const QString page = QStringLiteral("https://store.quieton.app/br/app/quieton/id6470000000?uo=4");
        QVERIFY(SettingViewModel::openStorePage(page));
        QCOMPARE(m_opener->opened, QList<QUrl>{ QUrl(page) });
        QVERIFY(!SettingViewModel::openStorePage(QString()));
        QVERIFY(!SettingViewModel::openStorePage(QStringLiteral("not an address")));
        QVERIFY(!SettingViewModel::openStorePage(QStringLiteral("https://store quieton.app/x")));
        QCOMPARE(m_opener->opened.size(), 1);
    }

    // Reset puts the four settings back and keeps the history and the
    // onboarding flags; clear all also empties the history.
    void resetKeepsTheHistoryClearAllEmptiesIt()
    {
        history()->addHistory(QStringLiteral("Ada"), QStringLiteral("Lovelace"), QStringLiteral("0612"), true);
        history()->addHistory(QString(), QString(), QStringLiteral("0700"), false);
        const qsizetype calls = storedCalls();
        QVERIFY(calls >= 2);
        UserDefaultsService::shared()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
        UserDefaultsService::shared()->setBool(QStringLiteral("isReadUserGuide"), true);

        SettingViewModel vm(history());
        for (const bool clearAll : { false, true }) {
            vm.choosePrefix(QStringLiteral("*67"));
            vm.setAutoHiddenNumber(true);
            vm.setAutoSaveToHistory(true);
            vm.setAutoSortByTelephone(true);
            if (clearAll)
                vm.clearAll();
            else
                vm.resetSettings();
            QCOMPARE(vm.prefixNumber(), QStringLiteral("#31#"));
            QVERIFY(!vm.autoHiddenNumber());
            QVERIFY(!vm.autoSaveToHistory());
            QCOMPARE(sortFlags(vm), QStringLiteral("F"));
            auto disk = onDisk();
            QCOMPARE(disk->object(QStringLiteral("prefix")), std::optional<SettingValue>(QStringLiteral("#31#")));
            QCOMPARE(disk->object(QStringLiteral("hiddenNumber")), std::optional<SettingValue>(false));
            QCOMPARE(disk->object(QStringLiteral("saveToHistory")), std::optional<SettingValue>(false));
            QCOMPARE(disk->object(QStringLiteral("autoSortBy")), std::optional<SettingValue>(qint64(0)));
            QVERIFY(disk->boolValue(QStringLiteral("hasCompletedFirstLaunch")));
            QVERIFY(disk->boolValue(QStringLiteral("isReadUserGuide")));
            QCOMPARE(storedCalls(), clearAll ? 0 : calls);
        }
        QCOMPARE(history()->count(), 0);
    }
};

QTEST_GUILESS_MAIN(TestSettingViewModel)
#include "tst_settingviewmodel.moc"
