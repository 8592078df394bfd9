// The settings and user-guide models on real files in a temporary home.
#include "JsonFileKeyValueStore.h"
#include "RecordingUrlOpener.h"
#include "SettingViewModel.h"
#include "StdoutCapture.h"
#include "TestApp.h"
#include "TestHome.h"
#include "UserDefaultsService.h"
#include "UserGuideForQuietonViewModel.h"

#include <QDir>
#include <QtTest>

#include <algorithm>

class TestSettingViewModel : public QObject
{
    Q_OBJECT

    static inline std::unique_ptr<TestApp> s_app;

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
        return capture.lines().filter(QRegularExpression(QStringLiteral("^## ")));
    }
    // Which of the three sort switches are on, as "F", "L" and "T".
    static QString sortFlags(const SettingViewModel &vm)
    {
        return QString(vm.autoSortByFirstName() ? "F" : "") + (vm.autoSortByLastName() ? "L" : "")
                + (vm.autoSortByTelephone() ? "T" : "");
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

    // Each switch reads its own key at creation (an unknown order turns none on).
    void switchesAreReadAtCreationAndWrittenAtOnce()
    {
        UserDefaultsService &defaults = s_app->defaults();
        defaults.setString(QStringLiteral("prefix"), QStringLiteral("*67"));
        defaults.setBool(QStringLiteral("hiddenNumber"), false);
        defaults.setInteger(QStringLiteral("autoSortBy"), 7);
        Model vm;
        QCOMPARE(vm.prefixNumber(), QStringLiteral("*67"));
        QCOMPARE(vm.autoHiddenNumber(), false);
        QCOMPARE(sortFlags(vm), QString());

        // (The screen's test sees a switch turned on clear the others.)
        vm.setAutoSortByLastName(true);
        QCOMPARE(onDisk()->object(QStringLiteral("autoSortBy")), std::optional<SettingValue>(qint64(1)));
        QCOMPARE(sortFlags(vm), QStringLiteral("L"));

        // Switched off, the order stays stored and the next start shows it again.
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
        QTest::newRow("a space inside") << QStringLiteral("#31 #") << false;
        QTest::newRow("tab passes") << QStringLiteral("#\t") << true;
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
        QTest::newRow("several prefixes: nothing stored before a choice")
                << "United States" << true << "*67" << log("United States", "[\"#31#\", \"*67\"]");
        QTest::newRow("unknown") << "Atlantis" << false << "*67" << QStringList();
        QTest::newRow("a row of the list, not a country") << "All Other Countries" << false << "*67" << QStringList();
    }
    void selectingACountry()
    {
        QFETCH(QString, country);
        QFETCH(bool, offersChoice);
        QFETCH(QString, prefix);
        QFETCH(QStringList, log);
        Model vm;
        vm.choosePrefix(QStringLiteral("141"));
        vm.selectAllOtherCountries();
        QCOMPARE(storedPrefix(), std::optional<QString>(QStringLiteral("#31#")));
        vm.choosePrefix(QStringLiteral("*67"));
        StdoutCapture capture;
        QCOMPARE(vm.selectCountry(country), offersChoice);
        QCOMPARE(vm.prefixNumber(), prefix);
        QCOMPARE(storedPrefix(), std::optional<QString>(prefix));
        QCOMPARE(vm.selected_country_codes(), offersChoice ? country : QString());
        QCOMPARE(logged(capture), log);
    }

    // The locale's language if the app has it, else English; the catalogue follows it.
    void languageFollowsTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("allOthers");
        QTest::addColumn<QString>("unitedKingdom");
        QTest::newRow("German in Austria") << "de_AT" << "de_DE" << "Alle anderen Länder" << "Vereinigtes Königreich";
        QTest::newRow("Brazilian Portuguese") << "pt_BR" << "pt_BR" << "Todos os outros países" << "Reino Unido";
        QTest::newRow("Italian, which the app lacks") << "it_IT" << "" << "All Other Countries" << "United Kingdom";
    }
    void languageFollowsTheLocale()
    {
        QFETCH(QString, locale);
        QFETCH(QString, language);
        QFETCH(QString, unitedKingdom);
        const auto english = qScopeGuard([] { QuietonApp::installTranslation(QLocale::c()); });
        QCOMPARE(QuietonApp::installTranslation(QLocale(locale)), language);
        Model vm;
        const QStringList list = vm.countryList();
        QCOMPARE(list.size(), 25);
        QTEST(list.first(), "allOthers");
        QVERIFY(std::is_sorted(list.begin() + 1, list.end()));
        for (const QString &country : list.mid(1))
            QVERIFY2(vm.prefix_country_codes().contains(country), qPrintable(country));
        QCOMPARE(vm.prefix_country_codes().value(unitedKingdom), QVariant("141"));
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
        QVERIFY(!vm.openStorePage(QStringLiteral("https://store quieton.app/x")));
        QCOMPARE(opener->opened.size(), 1);
    }

    // Read once the count reaches zero; a count below zero never gives more time.
    void userGuideTicks()
    {
        s_app->defaults().setBool(QStringLiteral("isReadUserGuide"), false);
        UserGuideForQuietonViewModel vm(s_app->defaults());
        StdoutCapture capture;
        int left = vm.secondsToRead();
        for (int i = 0; i < 5; ++i)
            left = vm.tick(left);
        QCOMPARE(left, 0);
        QVERIFY(!onDisk()->boolValue(QStringLiteral("isReadUserGuide")));
        QCOMPARE(vm.tick(left), 0);
        QVERIFY(onDisk()->boolValue(QStringLiteral("isReadUserGuide")));
        QCOMPARE(vm.tick(-3), -3);
        QStringList expected;
        for (int n = 4; n >= 0; --n)
            expected << QStringLiteral("## Time to User Guide Read: %1").arg(n);
        QCOMPARE(logged(capture), expected << "## User Guide Read" << "## User Guide Read");
    }
};

QTEST_GUILESS_MAIN(TestSettingViewModel)
#include "tst_settingviewmodel.moc"
