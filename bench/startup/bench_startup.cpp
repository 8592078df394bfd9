// Start-up of the real app binary: from launching the process to its first
// frame ("window up") and to the first moment after it with nothing queued
// ("idle"), and its resident memory then. Medians over repeated launches, on
// the platform of QT_QPA_PLATFORM (offscreen by default; xcb under xvfb-run
// for a real window). Optional argument: a folder holding prepared
// config/ and data/ homes (e.g. a large history); otherwise an empty app.
#include "HistoryCallDataService.h"
#include "HistoryFile.h"
#include "Statistics.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <ctime>

namespace {
qint64 monotonicNs()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}
// A home whose settings say onboarding is done.
void prepareHome(const QString &home)
{
    QDir(home).mkpath(QStringLiteral("config/quieton"));
    QDir(home).mkpath(QStringLiteral("data/quieton"));
    QFile settings(home + QStringLiteral("/config/quieton/quieton.json"));
    settings.open(QIODevice::WriteOnly);
    settings.write(R"({"hasCompletedFirstLaunch": true})");
}

// `rows` calls in the app's history file, to a few hundred people.
bool writeHistory(const QString &home, int rows)
{
    const QString path = home + QStringLiteral("/data/quieton/CallHistoryData.sqlite");
    bench::populateHistory(path, rows, [](int i, HistoryData &record) {
        record.firstName = QStringLiteral("First%1").arg(i % 500);
        record.lastName = QStringLiteral("Last%1").arg(i % 700);
        record.telephone = QStringLiteral("+33 6 %1").arg(10000000 + i % 5000);
    });
    return bench::storedHistoryCount(path) == rows;
}

// Launches the app repeatedly on `home` and prints the medians.
bool measure(const QString &home, const char *label)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/config"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));

    const int runs = 15;
    QList<double> window, idle, rss;
    for (int i = 0; i < runs + 1; ++i) {
        QProcess process;
        process.setProcessEnvironment(environment);
        const qint64 start = monotonicNs();
        process.start(QStringLiteral(QUIETON_BINARY), { QStringLiteral("--startup-report") });
        if (!process.waitForFinished(20000)) {
            std::fprintf(stderr, "the app did not finish\n");
            return false;
        }
        const QByteArray out = process.readAllStandardOutput();
        const qsizetype at = out.indexOf("startup-report ");
        if (at < 0) {
            std::fprintf(stderr, "no report:\n%s\n%s\n", out.constData(), process.readAllStandardError().constData());
            return false;
        }
        qint64 frameNs = 0, idleNs = 0, rssKib = 0;
        std::sscanf(out.constData() + at, "startup-report window_ns=%lld idle_ns=%lld rss_kib=%lld", &frameNs, &idleNs, &rssKib);
        if (i == 0)
            continue; // the first launch warms the file cache
        window.push_back((frameNs - start) / 1e6);
        idle.push_back((idleNs - start) / 1e6);
        rss.push_back(rssKib / 1024.0);
    }
    std::printf("start-up %s on %s, median of %d launches: window up %.0f ms, idle %.0f ms, resident %.1f MiB\n",
                label, qPrintable(environment.value(QStringLiteral("QT_QPA_PLATFORM"))), runs, bench::median(window),
                bench::median(idle), bench::median(rss));
    std::fflush(stdout);
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    // With an argument: a folder holding prepared config/ and data/ homes.
    if (app.arguments().size() > 1)
        return measure(app.arguments().at(1), "(given home)") ? 0 : 1;

    QTemporaryDir empty, withHistory;
    prepareHome(empty.path());
    prepareHome(withHistory.path());
    if (!writeHistory(withHistory.path(), 100000)) {
        std::fprintf(stderr, "could not write the history\n");
        return 1;
    }
    const bool ok = measure(empty.path(), "empty") && measure(withHistory.path(), "with 100k history rows");
    return ok ? 0 : 1;
}
