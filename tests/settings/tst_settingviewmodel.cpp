// The settings, onboarding and user-guide models on the app's real settings
// file and history database in a temporary home (reset and clear all are
// tried through the screen).
#include "JsonFileKeyValueStore.h"
#include "RecordingUrlOpener.h"
#include "SettingViewModel.h"
#include "StdoutCapture.h"
#include "TestApp.h"
#include "TestHome.h"
#include "UserDefaultsService.h"
#include "UserGuideForQuietonViewModel.h"
#include "WelcomeViewModel.h"

#include <QDir>
#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>

#include <algorithm>

class TestSettingViewModel : public QObject
{
    Q_OBJECT

    static inline std::unique_ptr<TestApp> s_app;

    // What the app's start-up hands the settings model.
    struct Model : SettingViewModel
    {
        Model()
            : SettingViewModel(s_app->defaults(), s_app->service(), s_app->history(),
                               *s_app->app().checkNewVersionService(), *s_app->urlOpener)
        {
        }
    };

    // The settings file as it is on disk now, read by a store of its own.
    static std::unique_ptr<KeyValueStore> onDisk()
    {
        return JsonFileKeyValueStore::open(QDir(TestHome::configDirectory()).filePath(QStringLiteral("quieton.json")));
    }
    static std::optional<QString> storedPrefix() { return onDisk()->stringValue(QStringLiteral("prefix")); }
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
    // The row for every other country, then the catalogue's countries in text order.
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
        s_app = std::make_unique<TestApp>();
    }
    void cleanupTestCase() { s_app.reset(); }

    // Every case starts from the settings a first launch leaves.
    void init()
    {
        UserDefaultsService &defaults = s_app->defaults();
        defaults.setString(QStringLiteral("prefix"), defaults.defaultPrefix());
        defaults.setBool(QStringLiteral("hiddenNumber"), true);
        defaults.setBool(QStringLiteral("saveToHistory"), true);
        defaults.setInteger(QStringLiteral("autoSortBy"), 0);
    }

    void storedValuesAtCreation_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<bool>("save");
        QTest::addColumn<qint64>("sortBy");
        QTest::addColumn<QString>("switches");
        QTest::newRow("first launch") << "#31#" << true << true << qint64(0) << "F";
        QTest::newRow("changed") << QString() << false << true << qint64(1) << "L";
        QTest::newRow("unknown order selects none") << "*67" << true << false << qint64(7) << "";
    }
    void storedValuesAtCreation()
    {
        QFETCH(QString, prefix);
        QFETCH(bool, hidden);
        QFETCH(bool, save);
        QFETCH(qint64, sortBy);
        QFETCH(QString, switches);
        UserDefaultsService &defaults = s_app->defaults();
        defaults.setString(QStringLiteral("prefix"), prefix);
        defaults.setBool(QStringLiteral("hiddenNumber"), hidden);
        defaults.setBool(QStringLiteral("saveToHistory"), save);
        defaults.setInteger(QStringLiteral("autoSortBy"), sortBy);
        Model vm;
        QCOMPARE(vm.prefixNumber(), prefix);
        QCOMPARE(vm.autoHiddenNumber(), hidden);
        QCOMPARE(vm.autoSaveToHistory(), save);
        QCOMPARE(sortFlags(vm), switches);
    }

    void togglesAndSortOrderAreWrittenAtOnce()
    {
        s_app->defaults().setBool(QStringLiteral("hiddenNumber"), false);
        s_app->defaults().setBool(QStringLiteral("saveToHistory"), false);
        Model vm;
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
        Model next;
        QCOMPARE(sortFlags(next), QStringLiteral("L"));
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
        QTest::newRow("family emoji is one character")
                << QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467") << false;
        QTest::newRow("combining accent is one character") << QStringLiteral("e\u0301") << false;
        QTest::newRow("accent and a digit") << QStringLiteral("e\u03011") << true;
    }

    void manualPrefixRule()
    {
        QFETCH(QString, text);
        QFETCH(bool, accepted);
        Model vm;
        vm.choosePrefix(QStringLiteral("*67"));
        QCOMPARE(vm.saveManualPrefix(text), accepted);
        const QString expected = accepted ? text : QStringLiteral("*67");
        QCOMPARE(vm.prefixNumber(), expected);
        QCOMPARE(storedPrefix(), std::optional<QString>(expected));
    }

    void countryListAndAllOtherCountries()
    {
        Model vm;
        checkCountryList(vm);
        QCOMPARE(vm.allOtherCountries(), QStringLiteral("All Other Countries"));
        vm.choosePrefix(QStringLiteral("141"));
        vm.selectAllOtherCountries();
        QCOMPARE(vm.prefixNumber(), QStringLiteral("#31#"));
        QCOMPARE(storedPrefix(), std::optional<QString>(QStringLiteral("#31#")));
    }

    void selectingACountry_data()
    {
        QTest::addColumn<QString>("country");
        QTest::addColumn<bool>("offersChoice");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QStringList>("log");
        const auto log = [](const QString &country, const QString &prefixes) {
            return QStringList{ "## Selected Prefix for " + country + " is " + prefixes };
        };
        QTest::newRow("United Kingdom") << "United Kingdom" << false << "141" << log("United Kingdom", "141");
        QTest::newRow("Japan") << "Japan" << false << "184" << log("Japan", "184");
        QTest::newRow("South Africa") << "South Africa" << false << "*31*" << log("South Africa", "*31*");
        QTest::newRow("several prefixes: nothing stored before a choice")
                << "United States" << true << "*67" << log("United States", "[\"#31#\", \"*67\"]");
        QTest::newRow("unknown") << "Atlantis" << false << "*67" << QStringList();
        QTest::newRow("empty") << QString() << false << "*67" << QStringList();
        QTest::newRow("a row of the list, not a country") << "All Other Countries" << false << "*67" << QStringList();
    }
    void selectingACountry()
    {
        QFETCH(QString, country);
        QFETCH(bool, offersChoice);
        QFETCH(QString, prefix);
        QFETCH(QStringList, log);
        Model vm;
        vm.selectAllOtherCountries();
        vm.choosePrefix(QStringLiteral("*67"));
        StdoutCapture capture;
        QCOMPARE(vm.selectCountry(country), offersChoice);
        QCOMPARE(vm.prefixNumber(), prefix);
        QCOMPARE(storedPrefix(), std::optional<QString>(prefix));
        QCOMPARE(vm.selected_country_codes(), offersChoice ? country : QString());
        QCOMPARE(logged(capture), log);
    }

    void choicesOfACountryWithSeveralPrefixes()
    {
        Model vm;
        QVERIFY(vm.selectCountry(QStringLiteral("Brazil")));
        const QVariantList rows = vm.prefixChoices();
        QCOMPARE(rows.size(), 3);
        QCOMPARE(rows[0].toMap().value("caption").toString(), QStringLiteral("1 - Brazil - [*31*]"));
        QCOMPARE(rows[2].toMap().value("caption").toString(), QStringLiteral("3 - Brazil - [*31#]"));
        vm.choosePrefix(rows[0].toMap().value("prefix").toString()); // not held to the hand-typed rule
        QCOMPARE(vm.prefixNumber(), QStringLiteral("*31*"));
        QCOMPARE(storedPrefix(), std::optional<QString>(QStringLiteral("*31*")));
        // Only a country with a list has choices.
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
        Model vm;
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
        RecordingUrlOpener *opener = s_app->urlOpener;
        opener->opened.clear();
        const QString page = QStringLiteral("https://store.quieton.app/br/app/quieton/id6470000000?uo=4");
        Model vm;
        QVERIFY(vm.openStorePage(page));
        QCOMPARE(opener->opened, QList<QUrl>{ QUrl(page) });
        QVERIFY(!vm.openStorePage(QString()));
        QVERIFY(!vm.openStorePage(QStringLiteral("not an address")));
        QVERIFY(!vm.openStorePage(QStringLiteral("https://store quieton.app/x")));
        QCOMPARE(opener->opened.size(), 1);
    }

    void welcomePagesStayWithinTheThree()
    {
        WelcomeViewModel vm(s_app->defaults());
        QSignalSpy changed(&vm, &WelcomeViewModel::selectedPageChanged);
        QCOMPARE(vm.selectedPage(), 0);
        vm.next();
        vm.next();
        vm.next(); // not offered on the last page; asked anyway, nothing changes
        QCOMPARE(vm.selectedPage(), 2);
        QCOMPARE(changed.count(), 2);
        vm.setSelectedPage(-4);
        QCOMPARE(vm.selectedPage(), 0);
        vm.setSelectedPage(99);
        QCOMPARE(vm.selectedPage(), 2);
    }

    void finishingOnboardingIsStoredForTheNextStart()
    {
        QVERIFY(!onDisk()->boolValue(QStringLiteral("hasCompletedFirstLaunch")));
        WelcomeViewModel vm(s_app->defaults());
        QSignalSpy written(&s_app->defaults(), &UserDefaultsService::valueChanged);
        vm.completeFirstLaunch();
        QVERIFY(onDisk()->boolValue(QStringLiteral("hasCompletedFirstLaunch")));
        QCOMPARE(written.count(), 1);
        QCOMPARE(vm.isFinishLaunch(), false); // the held flag is not touched
    }

    void theWelcomeSpringSettlesWithoutOvershoot()
    {
        QCOMPARE(WelcomeViewModel::springProgress(-1), 0.0);
        qreal previous = WelcomeViewModel::springProgress(0);
        QCOMPARE(previous, 0.0);
        for (int ms = 16; ms <= 2000; ms += 16) {
            const qreal p = WelcomeViewModel::springProgress(ms / 1000.0);
            QVERIFY2((p > previous || p == 1.0) && p <= 1.0, qPrintable(QString::number(ms)));
            previous = p;
        }
        QVERIFY(WelcomeViewModel::springProgress(0.1) < 0.7);
        QVERIFY(WelcomeViewModel::springProgress(0.5) > 0.98);
        QVERIFY(WelcomeViewModel::springProgress(0.8) > 0.999);
        const int duration = WelcomeViewModel::springDurationMs(400);
        QVERIFY2(duration >= 500 && duration <= 1000, qPrintable(QString::number(duration)));
        QVERIFY(WelcomeViewModel::springDurationMs(0) > 0);
    }

    // Read once the count reaches zero; a count below zero never gives more time.
    void userGuideTicks()
    {
        s_app->defaults().setBool(QStringLiteral("isReadUserGuide"), false);
        UserGuideForQuietonViewModel vm(s_app->defaults());
        StdoutCapture capture;
        int left = vm.secondsToRead();
        QCOMPARE(left, 5);
        for (int i = 0; i < 5; ++i)
            left = vm.tick(left);
        QCOMPARE(left, 0);
        QVERIFY(!onDisk()->boolValue(QStringLiteral("isReadUserGuide")));
        QCOMPARE(vm.tick(left), 0);
        QVERIFY(onDisk()->boolValue(QStringLiteral("isReadUserGuide")));
        QCOMPARE(vm.tick(-3), -3);
        QCOMPARE(logged(capture), QStringList({ "## Time to User Guide Read: 4", "## Time to User Guide Read: 3",
                                                "## Time to User Guide Read: 2", "## Time to User Guide Read: 1",
                                                "## Time to User Guide Read: 0", "## User Guide Read",
                                                "## User Guide Read" }));
    }
};

QTEST_GUILESS_MAIN(TestSettingViewModel)
#include "tst_settingviewmodel.moc"
