// The element that shows one of the product's web pages: it hands the page to
// the desktop's browser and asks to be closed, whether or not that worked.
// (Every page's address is checked by the screens' tests that open it.)
#include "RecordingUrlOpener.h"
#include "SafariWebView.h"
#include "StdoutCapture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>


class TestWebPages : public QObject
{
    Q_OBJECT

    // A desktop without a browser.
    class RefusingUrlOpener : public UrlOpener
    {
    public:
        bool canOpen(const QUrl &) override { return false; }
        bool open(const QUrl &) override { return false; }
        void openSystemSettings() override { }
    };

    // Created in QML by its case name.
    static std::unique_ptr<QObject> create(QQmlEngine &engine, const QByteArray &page, UrlOpener &opener)
    {
        engine.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine);
        component.setData("import Quieton.Info\nSafariWebView { page: \"" + page + "\" }", QUrl());
        std::unique_ptr<QObject> element(component.createWithInitialProperties(
                { { QStringLiteral("opener"), QVariant::fromValue(&opener) } }));
        if (!element)
            qWarning() << component.errorString();
        return element;
    }

private slots:
    void theElementOpensItsPageAndCloses()
    {
        RecordingUrlOpener opener;
        QQmlEngine engine;
        std::unique_ptr<QObject> element = create(engine, "leaveAFeedBack", opener);
        auto *view = qobject_cast<SafariWebView *>(element.get());
        QVERIFY(view);
        QCOMPARE(view->url(), SafariWebView::leaveAFeedBack);
        QCOMPARE(opener.opened, QList<QUrl>{ QUrl(QStringLiteral("https://" QUIETON_TEST_WEB_HOST "/sendFeedBack")) });

        QSignalSpy dismissed(view, &SafariWebView::dismissed);
        QVERIFY(dismissed.wait(1000));
        QCOMPARE(dismissed.size(), 1);
    }

    void aPageTheDesktopCannotOpenIsReported()
    {
        RefusingUrlOpener opener;
        StdoutCapture capture;
        QQmlEngine engine;
        std::unique_ptr<QObject> element = create(engine, "termsOfUs", opener);
        QVERIFY(element);
        QSignalSpy dismissed(element.get(), SIGNAL(dismissed()));
        QVERIFY(dismissed.wait(1000)); // closes all the same
        QVERIFY(capture.lines().contains(QStringLiteral("## Could not open https://" QUIETON_TEST_WEB_HOST "/termsOfUs")));
    }
};

QTEST_MAIN(TestWebPages)
#include "tst_webpages.moc"
