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

namespace {
// A desktop without a browser.
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
    void theElementOpensItsPageAndCloses_data()
    {
        QTest::addColumn<bool>("browser");
        QTest::newRow("opened") << true;
        QTest::newRow("no browser") << false;
    }
    void theElementOpensItsPageAndCloses()
    {
        QFETCH(bool, browser);
        RecordingUrlOpener recording;
        RefusingUrlOpener refusing;
        UrlOpener *opener = browser ? static_cast<UrlOpener *>(&recording) : &refusing;
        StdoutCapture capture;
        QQmlEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/"));
        QQmlComponent component(&engine);
        component.setData("import Quieton.Info\nSafariWebView { page: \"leaveAFeedBack\" }", QUrl());
        std::unique_ptr<QObject> element(component.createWithInitialProperties({ { QStringLiteral("opener"), QVariant::fromValue(opener) } }));
        auto *view = qobject_cast<SafariWebView *>(element.get());
        QVERIFY2(view, qPrintable(component.errorString()));
        QCOMPARE(view->url(), SafariWebView::leaveAFeedBack);
        const QString page = QStringLiteral("https://" QUIETON_TEST_WEB_HOST "/sendFeedBack");
        QCOMPARE(recording.addresses(), browser ? QStringList{ page } : QStringList());

        QSignalSpy dismissed(view, &SafariWebView::dismissed);
        QVERIFY(dismissed.wait(1000)); // closes all the same
        QCOMPARE(dismissed.size(), 1);
        QCOMPARE(capture.lines().contains(QStringLiteral("## Could not open ") + page), !browser);
    }
};

QTEST_MAIN(TestWebPages)
#include "tst_webpages.moc"
