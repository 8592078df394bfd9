// The app's start-up as main() does it, less the single-instance channel and
// the store lookup, reporting for bench_startup: the monotonic time of the
// first frame and of the first moment after it with the history read in and
// nothing queued, and the resident memory then. Quits at that moment.
#include "Appearance.h"
#include "QuietonApp.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <utility>

namespace {

qint64 monotonicNs()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

QByteArray residentKib()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return "?";
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0);
    }
    return "?";
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QuietonApp::nameApplication();
    QuietonApp::installTranslation();
    QQuickStyle::setStyle(QStringLiteral("Material"));
    Appearance::applyTextScaleOverride();

    QuietonApp app;
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    engine.setInitialProperties({ { QStringLiteral("app"), QVariant::fromValue(&app) } });
    engine.load(QUrl(QStringLiteral("qrc:/Quieton/App/AppWindow.qml")));
    auto *window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    if (!window) {
        std::printf("startup-report failed: no window\n");
        return 1;
    }
    HistoryCallDataService *history = app.historyDataService();
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [history] {
        static bool seen = false;
        if (std::exchange(seen, true))
            return;
        const qint64 frame = monotonicNs();
        const auto reportWhenIdle = [frame] {
            QTimer::singleShot(0, [frame] {
                std::printf("startup-report window_ns=%lld idle_ns=%lld rss_kib=%s\n", frame, monotonicNs(),
                            residentKib().constData());
                std::fflush(stdout);
                QCoreApplication::quit();
            });
        };
        // Idle also means the call history has been read in.
        if (history->isFetchingInBackground())
            QObject::connect(history, &HistoryCallDataService::savedEntitiesChanged, history, reportWhenIdle,
                             Qt::SingleShotConnection);
        else
            reportWhenIdle();
    }, Qt::QueuedConnection);
    return application.exec();
}
