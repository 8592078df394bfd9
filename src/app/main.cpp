#include "BuildConfig.h"
#include "HistoryCallDataService.h"
#include "QuietonApp.h"
#include "SingleInstance.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <cstdio>
#include <ctime>
#include <utility>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

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

// For the start-up benchmark: the monotonic time of the first frame and of
// the first moment after it with nothing queued, and the resident memory then.
void reportStartup(QQmlApplicationEngine &engine, HistoryCallDataService *history)
{
    auto *window = engine.rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    if (!window) {
        std::printf("startup-report failed: no window\n");
        QCoreApplication::exit(1);
        return;
    }
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [history] {
        static bool seen = false;
        if (std::exchange(seen, true))
            return;
        const qint64 frame = monotonicNs();
        const auto reportWhenIdle = [frame] {
            QTimer::singleShot(0, [frame] {
                const qint64 idle = monotonicNs();
                std::printf("startup-report window_ns=%lld idle_ns=%lld rss_kib=%s\n", frame, idle,
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
}

} // namespace

int main(int argc, char *argv[])
{
    QuietonApp::limitHeaps();
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("quieton"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quieton"));
    QGuiApplication::setApplicationVersion(QStringLiteral(QUIETON_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("quieton"));

    QCommandLineParser arguments;
    arguments.setApplicationDescription(QStringLiteral("Private calls: dial with your number withheld."));
    arguments.addHelpOption();
    const QCommandLineOption startupReport(QStringLiteral("startup-report"),
            QStringLiteral("Print when the first frame is up and the app is idle, with its memory, then quit "
                           "(for benchmarks and tests; no store lookup is made)."));
    arguments.addOption(startupReport);
    arguments.addPositionalArgument(QStringLiteral("link"), QStringLiteral("A quieton: link to open."), QStringLiteral("[link]"));
    arguments.process(application);
    const QUrl link = arguments.positionalArguments().isEmpty()
            ? QUrl()
            : QUrl::fromUserInput(arguments.positionalArguments().constFirst());

    SingleInstance singleInstance;
    if (singleInstance.forwardToRunning(link))
        return 0;
    singleInstance.listen();

    QQuickStyle::setStyle(QStringLiteral("Material"));
    QuietonApp quietonApp(nullptr);
    // A report run quits at its first idle moment: a store lookup would only
    // reach out to the network for nothing.
    if (arguments.isSet(startupReport))
        quietonApp.skipUpdateCheck();
    QObject::connect(&singleInstance, &SingleInstance::linkReceived, &quietonApp, &QuietonApp::deliverLink);
    QObject::connect(&singleInstance, &SingleInstance::activationRequested, &quietonApp,
                     &QuietonApp::activationRequested);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &application,
                     [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
    engine.load(QUrl(QStringLiteral("qrc:/Quieton/app/AppWindow.qml")));
    if (link.isValid() && !link.isEmpty())
        quietonApp.deliverLink(link);
    if (arguments.isSet(startupReport))
        reportStartup(engine, quietonApp.historyDataService());
    return application.exec();
}
