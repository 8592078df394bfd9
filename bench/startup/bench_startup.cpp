// Start-up of the real app binary: from launching the process to its first
// frame ("window up") and to the first moment after it with nothing queued
// ("idle"), and its resident memory then. Medians over repeated launches, on
// the platform of QT_QPA_PLATFORM (offscreen by default; xcb under xvfb-run
// for a real window). Optional argument: a folder holding prepared
// config/ and data/ homes (e.g. a large history); otherwise an empty app.
#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {
qint64 monotonicNs()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}
double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir scratch;
    QString home = app.arguments().value(1);
    if (home.isEmpty()) {
        home = scratch.path();
        QDir(home).mkpath(QStringLiteral("config/quieton"));
        QFile settings(home + QStringLiteral("/config/quieton/quieton.json"));
        settings.open(QIODevice::WriteOnly);
        settings.write(R"({"hasCompletedFirstLaunch": true})");
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));

    const int runs = 15;
    std::vector<double> window, idle, rss;
    for (int i = 0; i < runs + 1; ++i) {
        QProcess process;
        process.setProcessEnvironment(environment);
        const qint64 start = monotonicNs();
        process.start(QStringLiteral(QUIETON_BINARY), { QStringLiteral("--startup-report") });
        if (!process.waitForFinished(20000)) {
            std::fprintf(stderr, "the app did not finish\n");
            return 1;
        }
        const QByteArray out = process.readAllStandardOutput();
        const qsizetype at = out.indexOf("startup-report ");
        if (at < 0) {
            std::fprintf(stderr, "no report:\n%s\n%s\n", out.constData(), process.readAllStandardError().constData());
            return 1;
        }
        qint64 frameNs = 0, idleNs = 0, rssKib = 0;
        std::sscanf(out.constData() + at, "startup-report window_ns=%lld idle_ns=%lld rss_kib=%lld", &frameNs, &idleNs, &rssKib);
        if (i == 0)
            continue; // the first launch warms the file cache
        window.push_back((frameNs - start) / 1e6);
        idle.push_back((idleNs - start) / 1e6);
        rss.push_back(rssKib / 1024.0);
    }
    std::printf("start-up on %s, median of %d launches: window up %.0f ms, idle %.0f ms, resident %.1f MiB\n",
                qPrintable(environment.value(QStringLiteral("QT_QPA_PLATFORM"))), runs, median(window), median(idle),
                median(rss));
    return 0;
}
