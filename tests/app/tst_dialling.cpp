// Dialling from every entry point the spine has: makeCall itself, widget
// links and the dialler's model, against a telephony that records requests.
#include "DialerViewModel.h"
#include "JsonFileKeyValueStore.h"
#include "MainViewModel.h"
#include "Platform.h"
#include "QuietonApp.h"
#include "RecordingPlatform.h"
#include "RecordingTelephony.h"
#include "Service.h"
#include "StdoutCapture.h"
#include "TestHome.h"
#include "UserDefaultsService.h"
#include "WidgetRefresher.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

namespace {
struct CountingWidgets : WidgetRefresher
{
    int reloads = 0;
    void reloadAllTimelines() override { ++reloads; }
};
RecordingTelephony *telephony = nullptr;
CountingWidgets *widgets = nullptr;
} // namespace

class TestDialling : public QObject
{
    Q_OBJECT

    KeyValueStore &settings() { return UserDefaultsService::shared()->userDefaults(); }
    Service &service() { return *Service::shared(); }

private slots:
    void initTestCase()
    {
        TestHome::use();
        telephony = RecordingPlatform::installTelephony();
        auto counting = std::make_unique<CountingWidgets>();
        widgets = counting.get();
        Platform::setWidgets(std::move(counting));
    }

    void init()
    {
        telephony->callsPossible = true;
        telephony->asked.clear();
        telephony->opened.clear();
        service().setCallFailed(false);
        service().setCallStartedFromApp(false);
        settings().setString(QStringLiteral("prefix"), QStringLiteral("#31#"));
    }

    void composesTheDialString_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("number");
        QTest::addColumn<bool>("hidden");
        QTest::addColumn<QString>("dialled");
        QTest::newRow("private") << "#31#" << "0612345678" << true << "#31#0612345678";
        QTest::newRow("normal") << "#31#" << "0612345678" << false << "0612345678";
        QTest::newRow("typed code kept") << "#31#" << "*31#06" << true << "#31#*31#06";
        QTest::newRow("plus") << "#31#" << "+33612" << true << "#31#+33612";
        QTest::newRow("empty number") << "#31#" << "" << true << "#31#";
        QTest::newRow("empty prefix") << "" << "0612" << true << "0612";
        QTest::newRow("other prefix") << "*67*" << "0612" << true << "*67*0612";
    }
    void composesTheDialString()
    {
        QFETCH(QString, prefix);
        QFETCH(QString, number);
        QFETCH(bool, hidden);
        QFETCH(QString, dialled);
        settings().setString(QStringLiteral("prefix"), prefix);
        StdoutCapture out;
        service().makeCall(number, hidden);
        QCOMPARE(telephony->opened, QStringList{ dialled });
        // Printed exactly as composed, never normalised by the URL parser.
        QCOMPARE(out.lines(), QStringList{ QStringLiteral("## User dial : tel://") + dialled });
        QVERIFY(service().callStartedFromApp());
        QVERIFY(!service().callFailed());
    }

    void addressesThatDoNotParseFail_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<bool>("fails");
        QTest::newRow("spaces") << "+33 6 12" << true;
        QTest::newRow("letters") << "0800FLOWERS" << false;
        QTest::newRow("non-ASCII digits") << "٠١٢" << true;
        QTest::newRow("bad escape") << "12%4" << true;
        QTest::newRow("brace") << "12{3}" << true;
    }
    void addressesThatDoNotParseFail()
    {
        QFETCH(QString, number);
        QFETCH(bool, fails);
        StdoutCapture out;
        service().makeCall(number, true);
        QCOMPARE(service().callFailed(), fails);
        QCOMPARE(telephony->opened.isEmpty(), fails);
        QCOMPARE(out.lines().isEmpty(), fails);
    }

    void aPhoneThatCannotCallFailsSilently()
    {
        telephony->callsPossible = false;
        StdoutCapture out;
        service().makeCall(QStringLiteral("0612"), true);
        QVERIFY(service().callFailed());
        QVERIFY(service().callStartedFromApp());
        QVERIFY(telephony->opened.isEmpty());
        QVERIFY(out.lines().isEmpty());

        // The flag stays up through a later successful call until "OK" lowers it.
        telephony->callsPossible = true;
        service().makeCall(QStringLiteral("0612"), true);
        QVERIFY(service().callFailed());
        service().setCallFailed(false);
        service().makeCall(QStringLiteral("0612"), true);
        QVERIFY(!service().callFailed());
    }

    void widgetLinks_data()
    {
        QTest::addColumn<QString>("link");
        QTest::addColumn<QStringList>("dialled");
        QTest::addColumn<QVariant>("save");
        QTest::newRow("hidden TRUE") << "quieton://x?number=0612&hidden=TRUE&saveToHistory=false"
                                     << QStringList{ "#31#0612" } << QVariant(false);
        QTest::newRow("any host and path, true in any case") << "quieton:/a/b?saveToHistory=True&number=%2B3312&hidden=true"
                                           << QStringList{ "#31#+3312" } << QVariant(true);
        QTest::newRow("yes is not true") << "quieton://w?number=0612&hidden=yes&saveToHistory=1"
                                         << QStringList{ "0612" } << QVariant(false);
        QTest::newRow("first item wins") << "quieton://w?number=1&number=2&hidden=false&hidden=true"
                                         << QStringList{ "1" } << QVariant(false);
        QTest::newRow("other scheme") << "https://w?number=0612&hidden=true" << QStringList{} << QVariant();
        QTest::newRow("scheme case") << "Quieton://w?number=0612" << QStringList{ "0612" } << QVariant(false);
        QTest::newRow("empty number") << "quieton://w?number=&hidden=true" << QStringList{} << QVariant();
    }
    void widgetLinks()
    {
        QFETCH(QString, link);
        QFETCH(QStringList, dialled);
        QFETCH(QVariant, save);
        QuietonApp app(nullptr);
        service().setPendingCallSaveToHistory(std::nullopt);
        KeyValueStore *suite = UserDefaultsService::shared()->userDefaultsShared();
        suite->setString(QStringLiteral("phoneNumberWidget"), QStringLiteral("0612"));
        suite->setBool(QStringLiteral("hiddenNumberWidget"), true);
        suite->setBool(QStringLiteral("saveToHistoryWidget"), true);
        const int reloadsBefore = widgets->reloads;

        app.handleOpenUrl(QUrl(link));

        QCOMPARE(telephony->opened, dialled);
        // The widget's choices are cleared in its file, whatever the link held.
        const auto onDisk = JsonFileKeyValueStore::open(TestHome::configDirectory() + QStringLiteral("/group.quieton.DataWidget.json"));
        QCOMPARE(std::get<QString>(*onDisk->object(QStringLiteral("phoneNumberWidget"))), QString());
        QCOMPARE(std::get<bool>(*onDisk->object(QStringLiteral("hiddenNumberWidget"))), false);
        QCOMPARE(std::get<bool>(*onDisk->object(QStringLiteral("saveToHistoryWidget"))), false);
        QCOMPARE(widgets->reloads - reloadsBefore, dialled.isEmpty() ? 1 : 2);
        QCOMPARE(service().pendingCallSaveToHistory().has_value(), save.isValid());
        if (save.isValid()) {
            QCOMPARE(*service().pendingCallSaveToHistory(), save.toBool());
            QCOMPARE(service().pendingCallTelephone(), QuietonApp::linkValue(QUrl(link), QStringLiteral("number")));
            // Empty names, not missing ones: the history shows a blank name line.
            QVERIFY(service().pendingCallFirstName().isEmpty() && !service().pendingCallFirstName().isNull());
            QVERIFY(service().pendingCallLastName().isEmpty() && !service().pendingCallLastName().isNull());
        }
    }

    void linksWaitForTheMainScreenAndNeedOnboardingDone()
    {
        QuietonApp app(nullptr);
        settings().setBool(QStringLiteral("hasCompletedFirstLaunch"), false);
        app.deliverLink(QUrl(QStringLiteral("quieton://w?number=1")));
        app.setMainViewShown(true);
        QVERIFY(telephony->opened.isEmpty());
        app.setMainViewShown(false);

        UserDefaultsService::shared()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
        QSignalSpy filled(&app, &QuietonApp::linkOpened);
        app.deliverLink(QUrl(QStringLiteral("quieton://w?number=2")));
        QVERIFY(telephony->opened.isEmpty());
        app.setMainViewShown(true);
        QCOMPARE(telephony->opened, QStringList{ QStringLiteral("2") });
        QCOMPARE(filled.size(), 1);

        // Past their bounds, a number or a link is refused before anything lays it out.
        app.deliverLink(QUrl(QStringLiteral("quieton://w?number=") + QString(65, u'3')));
        app.deliverLink(QUrl(QStringLiteral("quieton://w?number=4&pad=") + QString(1 << 20, u'x')));
        QCOMPARE(telephony->opened, QStringList{ QStringLiteral("2") });
        QCOMPARE(filled.size(), 1);
    }

    void screensSeeTheAppThatStarted()
    {
        // The main screen reports itself to the app object main() made; a
        // second app object made for QML would never hear of it.
        QuietonApp app(nullptr);
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine);
        component.setData("import QtQml\nimport Quieton\nQtObject { property var app: QuietonApp; property var service: Service }", QUrl());
        std::unique_ptr<QObject> object(component.create());
        QVERIFY2(object, qPrintable(component.errorString()));
        QCOMPARE(object->property("app").value<QObject *>(), &app);
        QCOMPARE(object->property("service").value<QObject *>(), Service::shared());
    }

    // Deleting removes a whole character, however many code units it takes.
    void dialerDeletesWholeCharacters()
    {
        DialerViewModel vm;
        vm.deleteLast();
        QCOMPARE(vm.numberPhoneTyping(), QString());
        vm.setNumberPhoneTyping(QStringLiteral("12\u00e9\U0001F1EB\U0001F1F7"));
        vm.deleteLast();
        QCOMPARE(vm.numberPhoneTyping(), QStringLiteral("12\u00e9"));
    }

    void mainScreenCountsOpenings()
    {
        settings().setInteger(QStringLiteral("appOpenCount"), 5);
        MainViewModel first;
        first.recordMainViewBuilt();
        const auto installed = UserDefaultsService::shared()->installDate();
        QVERIFY(installed);
        MainViewModel second;
        second.recordMainViewBuilt();
        QCOMPARE(settings().integerValue(QStringLiteral("appOpenCount")), 7);
        settings().setInteger(QStringLiteral("appOpenCount"), std::numeric_limits<qint64>::max());
        MainViewModel().recordMainViewBuilt();
        QCOMPARE(settings().integerValue(QStringLiteral("appOpenCount")), 1);
        QCOMPARE(UserDefaultsService::shared()->installDate(), installed);
    }
};

QTEST_MAIN(TestDialling)
#include "tst_dialling.moc"
