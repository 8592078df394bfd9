// What the update check costs the UI thread: starting a check, showing the
// alert, and the screens' row taps that open a web page. Decoding runs on the
// checker's own thread; its time is shown for scale. Prints medians against
// the 2 ms a tap may cost.
#include "CheckUpdate.h"
#include "LookupResult.h"
#include "Output.h"
#include "Platform.h"
#include "SafariWebView.h"
#include "Statistics.h"
#include "TemporaryHome.h"
#include "UpdateAlertPresenter.h"
#include "UrlOpener.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>


using namespace bench;

namespace {

void report(const char *what, const QList<double> &ms, const char *target)
{
    out() << what << ": median " << QString::number(median(ms), 'f', 3) << " ms, worst "
          << QString::number(maximum(ms), 'f', 3) << " ms (" << target << ")" << Qt::endl;
}

// Opens nothing: the desktop's browser is not what is measured.
class NullUrlOpener : public UrlOpener
{
public:
    bool canOpen(const QUrl &) override { return true; }
    bool open(const QUrl &) override { return true; }
    void openSystemSettings() override { }
};

} // namespace

int main(int argc, char *argv[])
{
    TemporaryHome home;
    QGuiApplication app(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));
    NullUrlOpener opener;
    QFile plist(home.filePath(QStringLiteral("Info.plist")));
    plist.open(QIODevice::WriteOnly);
    plist.write("<plist><dict><key>CFBundleShortVersionString</key><string>1.0</string>"
                "<key>CFBundleIdentifier</key><string>app.bench.Quieton</string></dict></plist>");
    plist.close();
    CheckUpdate checker({ QStringLiteral("http://127.0.0.1:9"), QStringLiteral("http://127.0.0.1:9"),
                          QStringLiteral("1"), QStringLiteral("abc"), QStringLiteral("https://x/"), plist.fileName() },
                        opener);

    // Starting a check on the UI thread. Nothing listens on the port, so each
    // check ends quickly off the UI thread.
    {
        QList<double> first;
        QList<double> later;
        for (int i = 0; i < 30; ++i) {
            QElapsedTimer timer;
            timer.start();
            checker.checkForUpdate(true, false);
            (i == 0 ? first : later).append(timer.nsecsElapsed() / 1e6);
            QTest::qWait(20);
        }
        report("checkForUpdate on the UI thread, first call (starts the thread)", first, "start-up: must be small");
        report("checkForUpdate on the UI thread, later calls", later, "< 2 ms");
    }

    // Decoding a store answer of typical size (off the UI thread in the app).
    {
        QByteArray body = "{\"resultCount\": 1, \"results\": [{";
        for (int i = 0; i < 60; ++i)
            body += "\"field" + QByteArray::number(i) + "\": \"" + QByteArray(40, 'x') + "\", ";
        body += "\"version\": \"1.2.3\", \"trackViewUrl\": \"https://store.example/app/id1?uo=4\"}]}";
        QList<double> ms;
        for (int i = 0; i < 200; ++i) {
            QElapsedTimer timer;
            timer.start();
            QString error;
            const auto result = LookupResult::decode(body, &error);
            ms.append(timer.nsecsElapsed() / 1e6);
            if (!result)
                return 1;
        }
        report("decoding a 3 KB lookup answer (checker's thread)", ms, "for scale");
    }

    // Showing the alert over a window, and a row tap opening a web page.
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.loadData("import QtQuick\nWindow { width: 400; height: 800; visible: true }");
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window || !QTest::qWaitForWindowExposed(window))
        return 1;
    {
        QList<double> ms;
        for (int i = 0; i < 20; ++i) {
            QElapsedTimer timer;
            timer.start();
            QObject *alert = UpdateAlertPresenter::showAppUpdateAlert(window, &checker, QStringLiteral("2.0"), false,
                                                                     QStringLiteral("https://x"), false);
            ms.append(timer.nsecsElapsed() / 1e6);
            QMetaObject::invokeMethod(alert, "close");
            QTest::qWait(300);
        }
        report("showing the update alert (UI thread, once per check at most)", ms, "a presentation, not a tap");
    }
    {
        QQmlComponent component(&engine);
        component.setData("import Quieton\nSafariWebView { page: \"privacy\" }", QUrl());
        QList<double> ms;
        for (int i = 0; i < 200; ++i) {
            QElapsedTimer timer;
            timer.start();
            std::unique_ptr<QObject> page(component.create());
            ms.append(timer.nsecsElapsed() / 1e6);
        }
        report("a row tap: the web page element made and the page handed on", ms, "< 2 ms");
    }
    return 0;
}
