// The element that shows one of the product's web pages, on a desktop without
// a browser: it says so and asks to be closed all the same. (The screens'
// tests open every page through it.)
#include "SafariWebView.h"
#include "StdoutCapture.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

namespace {
class RefusingUrlOpener : public UrlOpener
{
public:
    bool canOpen(const QUrl &) override { return false; }
    bool open(const QUrl &) override { return false; }
    void openSystemSettings() override { }
};
} // namespace

class TestWebPages : public QObject
{
    Q_OBJECT

private slots:
    void withoutABrowserThePageIsLoggedAndClosed()
    {
        RefusingUrlOpener opener;
        StdoutCapture capture;
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine);
        component.setData("import Quieton.Info\nSafariWebView { page: \"leaveAFeedBack\" }", QUrl());
        std::unique_ptr<QObject> element(component.createWithInitialProperties({ { QStringLiteral("opener"), QVariant::fromValue<UrlOpener *>(&opener) } }));
        auto *view = qobject_cast<SafariWebView *>(element.get());
        QVERIFY2(view, qPrintable(component.errorString()));
        QCOMPARE(view->url(), SafariWebView::leaveAFeedBack);
        QSignalSpy dismissed(view, &SafariWebView::dismissed);
        QVERIFY(dismissed.wait(1000));
        QCOMPARE(dismissed.size(), 1);
        QVERIFY(capture.lines().contains(QStringLiteral("## Could not open https://" QUIETON_TEST_WEB_HOST "/sendFeedBack")));
    }
};

QTEST_MAIN(TestWebPages)
#include "tst_webpages.moc"
