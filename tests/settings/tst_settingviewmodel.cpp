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

class TestSettingViewModel : public QObject
{
    Q_OBJECT

    RecordingUrlOpener *m_opener = nullptr;

    // The standard suite as it is on disk now, read by a store of its own.
    static std::unique_ptr<KeyValueStore> onDisk()
    {
        return JsonFileKeyValueStore::open(QDir(TestHome::configDirectory()).filePath(QStringLiteral("quieton.json")));
    }
    // The call records in the history file, read afresh.
    static qsizetype storedCalls()
    {
        HistoryCallDataService file(HistoryCallDataService::shared()->databasePath());
        return file.savedEntities().size();
    }
    static QStringList logged(StdoutCapture &capture, const QString &start)
    {
        QStringList found;
        for (const QString &line : capture.lines()) {
            if (line.startsWith(start))
                found.append(line);
        }
        return found;
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        QCoreApplication::setApplicationVersion(QString());
        m_opener = RecordingPlatform::installUrlOpener();
    }

    // Must run first: nothing has touched the settings yet.
    void freshStoreShowsTheFirstLaunchDefaults()
    {
        SettingViewModel vm;
        QCOMPARE(vm.prefixNumber(), QStringLiteral("#31#"));
        QVERIFY(vm.autoHiddenNumber());
        QVERIFY(vm.autoSaveToHistory());
        QVERIFY(vm.autoSortByFirstName());
        QVERIFY(!vm.autoSortByLastName());
        QVERIFY(!vm.autoSortByTelephone());
        QCOMPARE(vm.selected_country_codes(), QString());
        QCOMPARE(vm.selectedLang(), QString());
        QCOMPARE(vm.sortByFirstName(), 0);
        QCOMPARE(vm.sortByLastName(), 1);
        QCOMPARE(vm.sortByTelephone(), 2);
        QVERIFY(!vm.appVersion().isValid());
    }

    void appVersionComesFromTheApplication()
    {
        QCoreApplication::setApplicationVersion(QStringLiteral("2.4.1"));
        SettingViewModel vm;
        QCOMPARE(vm.appVersion(), QVariant(QStringLiteral("2.4.1")));
        QCoreApplication::setApplicationVersion(QString());
    }

    void storedValuesAreReadAtCreation()
    {
        UserDefaultsService &defaults = *UserDefaultsService::shared();
        defaults.setString(QStringLiteral("prefix"), QString());
        defaults.setBool(QStringLiteral("hiddenNumber"), false);
        defaults.setBool(QStringLiteral("saveToHistory"), false);
        defaults.setInteger(QStringLiteral("autoSortBy"), 1);
        SettingViewModel vm;
        QCOMPARE(vm.prefixNumber(), QString());
        QVERIFY(!vm.autoHiddenNumber());
        QVERIFY(!vm.autoSaveToHistory());
        QVERIFY(!vm.autoSortByFirstName());
        QVERIFY(vm.autoSortByLastName());
        QVERIFY(!vm.autoSortByTelephone());

        // An order this version does not know selects none of the three.
        defaults.setInteger(QStringLiteral("autoSortBy"), 7);
        SettingViewModel unknown;
        QVERIFY(!unknown.autoSortByFirstName() && !unknown.autoSortByLastName() && !unknown.autoSortByTelephone());
        unknown.resetSettings();
    }

    void togglesAreWrittenAtOnce()
    {
        SettingViewModel vm;
        QSignalSpy hiddenSpy(&vm, &SettingViewModel::autoHiddenNumberChanged);
        vm.setAutoHiddenNumber(true);
        QCOMPARE(hiddenSpy.count(), 1);
        QCOMPARE(onDisk()->object(QStringLiteral("hiddenNumber")), std::optional<SettingValue>(true));
        vm.setAutoSaveToHistory(true);
        QCOMPARE(onDisk()->object(QStringLiteral("saveToHistory")), std::optional<SettingValue>(true));
        vm.setAutoHiddenNumber(false);
        vm.setAutoSaveToHistory(false);
        auto disk = onDisk();
        QCOMPARE(disk->object(QStringLiteral("hiddenNumber")), std::optional<SettingValue>(false));
        QCOMPARE(disk->object(QStringLiteral("saveToHistory")), std::optional<SettingValue>(false));
    }

    void sortFlagsExcludeEachOther()
    {
        SettingViewModel vm;
        vm.resetSettings();
        QSignalSpy firstSpy(&vm, &SettingViewModel::autoSortByFirstNameChanged);

        vm.setAutoSortByTelephone(true);
        QCOMPARE(onDisk()->object(QStringLiteral("autoSortBy")), std::optional<SettingValue>(qint64(2)));
        QVERIFY(!vm.autoSortByFirstName());
        QVERIFY(!vm.autoSortByLastName());
        QVERIFY(vm.autoSortByTelephone());
        QCOMPARE(firstSpy.count(), 1);

        vm.setAutoSortByLastName(true);
        QCOMPARE(onDisk()->integerValue(QStringLiteral("autoSortBy")), 1);
        QVERIFY(!vm.autoSortByFirstName());
        QVERIFY(vm.autoSortByLastName());
        QVERIFY(!vm.autoSortByTelephone());

        vm.setAutoSortByFirstName(true);
        QCOMPARE(onDisk()->integerValue(QStringLiteral("autoSortBy")), 0);
        QVERIFY(vm.autoSortByFirstName());
        QVERIFY(!vm.autoSortByLastName());
        QVERIFY(!vm.autoSortByTelephone());
    }

    void switchingTheCurrentOrderOffKeepsItStored()
    {
        {
            SettingViewModel vm;
            vm.setAutoSortByTelephone(true);
            vm.setAutoSortByTelephone(false);
            QVERIFY(!vm.autoSortByFirstName());
            QVERIFY(!vm.autoSortByLastName());
            QVERIFY(!vm.autoSortByTelephone());
            QCOMPARE(onDisk()->integerValue(QStringLiteral("autoSortBy")), 2);
        }
        SettingViewModel next;
        QVERIFY(next.autoSortByTelephone());
        QVERIFY(!next.autoSortByFirstName());
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
        QTest::newRow("only spaces") << QStringLiteral("   ") << false;
        QTest::newRow("trailing space") << QStringLiteral("#31#0 ") << false;
        QTest::newRow("tab passes") << QStringLiteral("#\t") << true;
        QTest::newRow("a lone tab") << QStringLiteral("\t") << false;
        QTest::newRow("no-break space passes") << QStringLiteral("#\u00a0") << true;
        QTest::newRow("letters are allowed") << QStringLiteral("ab") << true;
        QTest::newRow("one emoji") << QStringLiteral("\U0001F600") << false;
        QTest::newRow("two emoji") << QStringLiteral("\U0001F600\U0001F600") << true;
        QTest::newRow("family emoji is one character")
                << QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467") << false;
        QTest::newRow("flag is one character") << QStringLiteral("\U0001F1EB\U0001F1F7") << false;
        QTest::newRow("combining accent is one character") << QStringLiteral("e\u0301") << false;
        QTest::newRow("accent and a digit") << QStringLiteral("e\u03011") << true;
        QTest::newRow("precomposed accents") << QStringLiteral("\u00e9\u00e8") << true;
    }

    void manualPrefixRule()
    {
        QFETCH(QString, text);
        QFETCH(bool, accepted);
        SettingViewModel vm;
        vm.choosePrefix(QStringLiteral("*67"));
        QCOMPARE(vm.saveManualPrefix(text), accepted);
        const QString expected = accepted ? text : QStringLiteral("*67");
        QCOMPARE(vm.prefixNumber(), expected);
        QCOMPARE(onDisk()->stringValue(QStringLiteral("prefix")), std::optional<QString>(expected));
    }

    void catalogueHoldsTwentyFourCountries()
    {
        SettingViewModel vm;
        const QVariantMap codes = vm.prefix_country_codes();
        QCOMPARE(codes.size(), 24);
        const QStringList singles = { QStringLiteral("United Kingdom"), QStringLiteral("Ireland"),
                                      QStringLiteral("Japan"), QStringLiteral("South Africa"),
                                      QStringLiteral("Hong Kong"), QStringLiteral("China") };
        const QList<std::pair<QString, QStringList>> expected = {
            { QStringLiteral("United States"), { "#31#", "*67" } },
            { QStringLiteral("Canada"), { "#31#", "*67" } },
            { QStringLiteral("United Kingdom"), { "141" } },
            { QStringLiteral("Australia"), { "#31#", "1831" } },
            { QStringLiteral("Austria"), { "#31#", "*31#" } },
            { QStringLiteral("Ireland"), { "141" } },
            { QStringLiteral("Germany"), { "#31#", "*31#" } },
            { QStringLiteral("Japan"), { "184" } },
            { QStringLiteral("Hungary"), { "#31#", "*31#" } },
            { QStringLiteral("South Africa"), { "*31*" } },
            { QStringLiteral("Brazil"), { "*31*", "#31#", "*31#" } },
            { QStringLiteral("Czech Republic"), { "#31#", "*31#" } },
            { QStringLiteral("Netherlands"), { "#31#", "*31*" } },
            { QStringLiteral("New Zealand"), { "*67", "0197" } },
            { QStringLiteral("Norway"), { "#31#", "*31#" } },
            { QStringLiteral("Poland"), { "#31#", "*31#" } },
            { QStringLiteral("Portugal"), { "#31#", "*31#" } },
            { QStringLiteral("Romania"), { "#31#", "*31#" } },
            { QStringLiteral("South Korea"), { "*23", "*23#" } },
            { QStringLiteral("Hong Kong"), { "133" } },
            { QStringLiteral("Ukraine"), { "#31#", "*31#" } },
            { QStringLiteral("Finland"), { "#31#", "*31#" } },
            { QStringLiteral("Mexico"), { "*31*", "*67" } },
            { QStringLiteral("China"), { "133" } },
        };
        for (const auto &[country, prefixes] : expected) {
            QVERIFY2(codes.contains(country), qPrintable(country));
            const QVariant value = codes.value(country);
            if (singles.contains(country)) {
                QCOMPARE(value.metaType().id(), int(QMetaType::QString));
                QCOMPARE(value.toString(), prefixes.first());
            } else {
                QCOMPARE(value.metaType().id(), int(QMetaType::QStringList));
                QCOMPARE(value.toStringList(), prefixes);
            }
        }
    }

    void countryListStartsWithAllOtherCountriesThenSorts()
    {
        SettingViewModel vm;
        const QStringList expected = {
            "All Other Countries", "Australia", "Austria", "Brazil", "Canada", "China", "Czech Republic",
            "Finland", "Germany", "Hong Kong", "Hungary", "Ireland", "Japan", "Mexico", "Netherlands",
            "New Zealand", "Norway", "Poland", "Portugal", "Romania", "South Africa", "South Korea",
            "Ukraine", "United Kingdom", "United States",
        };
        QCOMPARE(vm.countryList(), expected);
        QCOMPARE(vm.allOtherCountries(), QStringLiteral("All Other Countries"));
    }

    void allOtherCountriesStoresTheDefaultPrefix()
    {
        SettingViewModel vm;
        vm.choosePrefix(QStringLiteral("141"));
        vm.selectAllOtherCountries();
        QCOMPARE(vm.prefixNumber(), QStringLiteral("#31#"));
        QCOMPARE(onDisk()->stringValue(QStringLiteral("prefix")), std::optional<QString>(QStringLiteral("#31#")));
    }

    void countryWithOnePrefixStoresItAtOnce_data()
    {
        QTest::addColumn<QString>("country");
        QTest::addColumn<QString>("prefix");
        QTest::newRow("United Kingdom") << QStringLiteral("United Kingdom") << QStringLiteral("141");
        QTest::newRow("Ireland") << QStringLiteral("Ireland") << QStringLiteral("141");
        QTest::newRow("Japan") << QStringLiteral("Japan") << QStringLiteral("184");
        QTest::newRow("South Africa") << QStringLiteral("South Africa") << QStringLiteral("*31*");
        QTest::newRow("Hong Kong") << QStringLiteral("Hong Kong") << QStringLiteral("133");
        QTest::newRow("China") << QStringLiteral("China") << QStringLiteral("133");
    }

    void countryWithOnePrefixStoresItAtOnce()
    {
        QFETCH(QString, country);
        QFETCH(QString, prefix);
        SettingViewModel vm;
        vm.selectAllOtherCountries();
        StdoutCapture capture;
        QVERIFY(!vm.selectCountry(country));
        QCOMPARE(vm.prefixNumber(), prefix);
        QCOMPARE(onDisk()->stringValue(QStringLiteral("prefix")), std::optional<QString>(prefix));
        QCOMPARE(vm.selected_country_codes(), QString());
        QCOMPARE(logged(capture, QStringLiteral("## Selected Prefix for ")),
                 QStringList{ QStringLiteral("## Selected Prefix for ") + country + QStringLiteral(" is ") + prefix });
    }

    void countryWithSeveralPrefixesOffersAChoice()
    {
        SettingViewModel vm;
        vm.selectAllOtherCountries();
        QSignalSpy prefixSpy(&vm, &SettingViewModel::prefixNumberChanged);
        StdoutCapture capture;
        QVERIFY(vm.selectCountry(QStringLiteral("United States")));
        QCOMPARE(vm.selected_country_codes(), QStringLiteral("United States"));
        QCOMPARE(logged(capture, QStringLiteral("## Selected Prefix for ")),
                 QStringList{ QStringLiteral("## Selected Prefix for United States is [\"#31#\", \"*67\"]") });
        // Nothing is stored before a prefix is chosen.
        QCOMPARE(prefixSpy.count(), 0);
        QCOMPARE(onDisk()->stringValue(QStringLiteral("prefix")), std::optional<QString>(QStringLiteral("#31#")));

        QVariantList rows = vm.prefixChoices();
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0].toMap().value("caption").toString(), QStringLiteral("1 - United States - [#31#]"));
        QCOMPARE(rows[1].toMap().value("caption").toString(), QStringLiteral("2 - United States - [*67]"));

        QVERIFY(vm.selectCountry(QStringLiteral("Brazil")));
        rows = vm.prefixChoices();
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows[0].toMap().value("caption").toString(), QStringLiteral("1 - Brazil - [*31*]"));
        QCOMPARE(rows[2].toMap().value("caption").toString(), QStringLiteral("3 - Brazil - [*31#]"));

        // Catalogue prefixes bypass the hand-typed rule.
        vm.choosePrefix(rows[0].toMap().value("prefix").toString());
        QCOMPARE(vm.prefixNumber(), QStringLiteral("*31*"));
        QCOMPARE(onDisk()->stringValue(QStringLiteral("prefix")), std::optional<QString>(QStringLiteral("*31*")));
    }

    void unknownCountryChangesNothing()
    {
        SettingViewModel vm;
        vm.choosePrefix(QStringLiteral("184"));
        vm.selectCountry(QStringLiteral("Brazil"));
        StdoutCapture capture;
        QVERIFY(!vm.selectCountry(QStringLiteral("Atlantis")));
        QVERIFY(!vm.selectCountry(QString()));
        // "All Other Countries" is a row of the list, not a country of the catalogue.
        QVERIFY(!vm.selectCountry(vm.allOtherCountries()));
        QCOMPARE(vm.prefixNumber(), QStringLiteral("184"));
        QCOMPARE(vm.selected_country_codes(), QStringLiteral("Brazil"));
        QVERIFY(logged(capture, QStringLiteral("## ")).isEmpty());

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
        SettingViewModel vm;
        QCoreApplication::removeTranslator(&german);

        const QVariantMap codes = vm.prefix_country_codes();
        QCOMPARE(codes.size(), 24);
        QVERIFY(!codes.contains(QStringLiteral("Germany")));
        QCOMPARE(codes.value(QStringLiteral("Vereinigtes Königreich")), QVariant(QStringLiteral("141")));
        QCOMPARE(codes.value(QStringLiteral("Österreich")).toStringList(), (QStringList{ "#31#", "*31#" }));

        // Plain text order of the translated names, with the translated
        // "All Other Countries" first although it would sort last.
        const QStringList expected = {
            "Übrige Länder", "Australien", "Brasilien", "China", "Deutschland", "Finnland", "Hongkong", "Irland",
            "Japan", "Kanada", "Mexiko", "Neuseeland", "Niederlande", "Norwegen", "Polen", "Portugal",
            "Rumänien", "Südafrika", "Südkorea", "Tschechien", "Ukraine", "Ungarn", "Vereinigte Staaten",
            "Vereinigtes Königreich", "Österreich",
        };
        QCOMPARE(vm.countryList(), expected);

        StdoutCapture capture;
        QVERIFY(vm.selectCountry(QStringLiteral("Südkorea")));
        QCOMPARE(logged(capture, QStringLiteral("## Selected Prefix for ")),
                 QStringList{ QStringLiteral("## Selected Prefix for Südkorea is [\"*23\", \"*23#\"]") });
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

        const int before = m_opener->systemSettingsOpened;
        SettingViewModel::openSystemSettings();
        QCOMPARE(m_opener->systemSettingsOpened, before + 1);
    }

    void resetKeepsTheHistory()
    {
        HistoryCallDataService &history = *HistoryCallDataService::shared();
        history.addHistory(QStringLiteral("Ada"), QStringLiteral("Lovelace"), QStringLiteral("0612"), true);
        history.addHistory(QString(), QString(), QStringLiteral("0700"), false);
        const qsizetype calls = storedCalls();
        QVERIFY(calls >= 2);

        UserDefaultsService::shared()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
        UserDefaultsService::shared()->setBool(QStringLiteral("isReadUserGuide"), true);
        SettingViewModel vm;
        vm.choosePrefix(QStringLiteral("*67"));
        vm.setAutoHiddenNumber(true);
        vm.setAutoSaveToHistory(true);
        vm.setAutoSortByTelephone(true);

        vm.resetSettings();
        QCOMPARE(vm.prefixNumber(), QStringLiteral("#31#"));
        QVERIFY(!vm.autoHiddenNumber());
        QVERIFY(!vm.autoSaveToHistory());
        QVERIFY(vm.autoSortByFirstName());
        QVERIFY(!vm.autoSortByLastName());
        QVERIFY(!vm.autoSortByTelephone());
        auto disk = onDisk();
        QCOMPARE(disk->object(QStringLiteral("prefix")), std::optional<SettingValue>(QStringLiteral("#31#")));
        QCOMPARE(disk->object(QStringLiteral("hiddenNumber")), std::optional<SettingValue>(false));
        QCOMPARE(disk->object(QStringLiteral("saveToHistory")), std::optional<SettingValue>(false));
        QCOMPARE(disk->object(QStringLiteral("autoSortBy")), std::optional<SettingValue>(qint64(0)));
        QVERIFY(disk->boolValue(QStringLiteral("hasCompletedFirstLaunch")));
        QVERIFY(disk->boolValue(QStringLiteral("isReadUserGuide")));
        QCOMPARE(storedCalls(), calls);
    }

    void clearAllAlsoEmptiesTheHistory()
    {
        HistoryCallDataService &history = *HistoryCallDataService::shared();
        history.addHistory(QStringLiteral("Grace"), QStringLiteral("Hopper"), QStringLiteral("0799"), false);
        QVERIFY(storedCalls() > 0);
        SettingViewModel vm;
        vm.choosePrefix(QStringLiteral("184"));
        vm.setAutoHiddenNumber(true);
        vm.setAutoSortByLastName(true);

        vm.clearAll();
        QCOMPARE(storedCalls(), 0);
        QCOMPARE(history.count(), 0);
        auto disk = onDisk();
        QCOMPARE(disk->stringValue(QStringLiteral("prefix")), std::optional<QString>(QStringLiteral("#31#")));
        QCOMPARE(disk->boolValue(QStringLiteral("hiddenNumber")), false);
        QCOMPARE(disk->boolValue(QStringLiteral("saveToHistory")), false);
        QCOMPARE(disk->integerValue(QStringLiteral("autoSortBy")), 0);
        QVERIFY(disk->boolValue(QStringLiteral("hasCompletedFirstLaunch")));
        QVERIFY(vm.autoSortByFirstName() && !vm.autoSortByLastName());
    }
};

QTEST_GUILESS_MAIN(TestSettingViewModel)
#include "tst_settingviewmodel.moc"
