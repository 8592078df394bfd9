// The table of the product's web pages and the element that shows one.
#include "Platform.h"
#include "RecordingPlatform.h"
#include "RecordingUrlOpener.h"
#include "SafariWebView.h"
#include "StdoutCapture.h"

#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

class TestWebPages : public QObject
{
    Q_OBJECT
    RecordingUrlOpener *m_opener = nullptr;

private slots:
    void initTestCase()
    {
        m_opener = RecordingPlatform::installUrlOpener();
    }

    void everyPageHasItsAddress_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");
        QTest::newRow("privacy") << int(SafariWebView::privacy) << "privacy" << "/privacyPolicy";
        QTest::newRow("terms") << int(SafariWebView::termsOfUs) << "termsOfUs" << "/termsOfUs";
        QTest::newRow("feedback") << int(SafariWebView::leaveAFeedBack) << "leaveAFeedBack" << "/sendFeedBack";
        QTest::newRow("problem") << int(SafariWebView::reportAProblem) << "reportAProblem" << "/reportAProblem";
        QTest::newRow("feature") << int(SafariWebView::suggestAFeature) << "suggestAFeature" << "/suggestAFeature";
    }
    void everyPageHasItsAddress()
    {
        QFETCH(int, page);
        QFETCH(QString, name);
        QFETCH(QString, path);
        const auto which = SafariWebView::urls(page);
        const QString expected = QStringLiteral("https://" QUIETON_TEST_WEB_HOST) + path;
        QCOMPARE(SafariWebView::rawValue(which), expected);
        const QUrl address = SafariWebView::address(which);
        QCOMPARE(address.toString(), expected);
        QCOMPARE(address.scheme(), QStringLiteral("https"));
        QCOMPARE(address.path(), path);
        QVERIFY(!address.hasQuery());
        QCOMPARE(QString::fromLatin1(QMetaEnum::fromType<SafariWebView::urls>().valueToKey(page)), name);
    }

    void theTableHasFivePagesInOrder()
    {
        const QMetaEnum pages = QMetaEnum::fromType<SafariWebView::urls>();
        QCOMPARE(pages.keyCount(), 5);
        QStringList names;
        for (int i = 0; i < pages.keyCount(); ++i) {
            QCOMPARE(pages.value(i), i);
            names.append(QString::fromLatin1(pages.key(i)));
        }
        QCOMPARE(names, (QStringList{ "privacy", "termsOfUs", "leaveAFeedBack", "reportAProblem", "suggestAFeature" }));
    }

    // Created in QML by its case name: opens the page, then asks to be closed.
    void theElementOpensItsPageAndCloses()
    {
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine);
        component.setData("import Quieton\nSafariWebView { page: \"leaveAFeedBack\" }", QUrl());
        m_opener->opened.clear();
        std::unique_ptr<QObject> element(component.create());
        QVERIFY2(element, qPrintable(component.errorString()));
        auto *view = qobject_cast<SafariWebView *>(element.get());
        QVERIFY(view);
        QCOMPARE(view->url(), SafariWebView::leaveAFeedBack);
        QCOMPARE(view->page(), QStringLiteral("leaveAFeedBack"));
        QCOMPARE(m_opener->opened, QList<QUrl>{ SafariWebView::address(SafariWebView::leaveAFeedBack) });

        QSignalSpy dismissed(view, &SafariWebView::dismissed);
        QVERIFY(dismissed.wait(1000));
        QCOMPARE(dismissed.size(), 1);
    }

    void aPageTheDesktopCannotOpenIsReported()
    {
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine);
        component.setData("import Quieton\nSafariWebView { page: \"termsOfUs\" }", QUrl());
        Platform::setUrlOpener(std::make_unique<RefusingUrlOpener>());
        StdoutCapture capture;
        std::unique_ptr<QObject> element(component.create());
        QVERIFY(element);
        QSignalSpy dismissed(element.get(), SIGNAL(dismissed()));
        QVERIFY(dismissed.wait(1000)); // closes all the same
        QVERIFY(capture.lines().contains(QStringLiteral("## Could not open https://" QUIETON_TEST_WEB_HOST "/termsOfUs")));
        m_opener = RecordingPlatform::installUrlOpener();
    }

private:
    // A desktop without a browser.
    class RefusingUrlOpener : public UrlOpener
    {
    public:
        bool canOpen(const QUrl &) override { return false; }
        bool open(const QUrl &) override { return false; }
        void openSystemSettings() override { }
    };
};

QTEST_MAIN(TestWebPages)
#include "tst_webpages.moc"
