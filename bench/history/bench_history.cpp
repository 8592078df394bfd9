// Speed and memory of the call history store at 10 000 and 100 000 records:
// the first read (on a worker) and what it costs the main thread, adding a
// record, deleting one as the history screen does, and the resident memory
// of a process that holds the records. Prints medians; targets in the output.
#include "HistoryCallDataService.h"
#include "HistoryFile.h"
#include "Output.h"
#include "ProcessInfo.h"
#include "Statistics.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace bench;

namespace {

void fill(const QString &path, int count)
{
    // A third dialled on the keypad (no names); every number its own.
    populateHistory(path, count, [](int i, HistoryData &record) {
        const bool named = i % 3 != 0;
        record.firstName = named ? QStringLiteral("First%1").arg(i % 500) : QString(QLatin1StringView(""));
        record.lastName = named ? QStringLiteral("Last%1").arg(i % 700) : QString(QLatin1StringView(""));
        record.telephone = QStringLiteral("06%1").arg(10000000 + i);
    });
}

// Run in a process of its own: the memory of an app-like process that has
// read the file in.
int measureMemory(const QString &path)
{
    const qint64 before = statusKb("VmRSS:");
    HistoryCallDataService store(path);
    store.fetchHistory();
    out() << "resident memory with " << store.rowCount() << " records: " << statusKb("VmRSS:") << " kB (peak "
          << peakMemoryKb() << " kB); before opening the store: " << before << " kB" << Qt::endl;
    return 0;
}

void measure(const QString &path, int count)
{
    // The first read: the main thread opens the file, a worker reads the
    // rows, the main thread takes them in.
    QList<double> busyMs, readyMs;
    for (int i = 0; i < 11; ++i) {
        QElapsedTimer timer, publishing;
        timer.start();
        HistoryCallDataService store(path);
        double busy = timer.nsecsElapsed() / 1e6;
        QEventLoop loop;
        QObject::connect(&store, &HistoryCallDataService::modelAboutToBeReset, &loop, [&] { publishing.start(); });
        QObject::connect(&store, &HistoryCallDataService::savedEntitiesChanged, &loop, &QEventLoop::quit);
        loop.exec();
        busyMs.append(busy + publishing.nsecsElapsed() / 1e6);
        readyMs.append(timer.nsecsElapsed() / 1e6);
        if (store.rowCount() != count)
            qFatal("expected %d records, got %d", count, store.rowCount());
    }
    out() << count << " records: first read in after " << median(readyMs) << " ms, main thread busy "
          << median(busyMs) << " ms (medians; target busy < 8 ms)" << Qt::endl;

    HistoryCallDataService store(path);
    store.fetchHistory();
    QElapsedTimer timer;
    QList<double> addMs, deleteMs;
    for (int i = 0; i < 101; ++i) {
        timer.restart();
        store.addHistory(QString(), QString(), QStringLiteral("0700%1").arg(i), i % 2);
        addMs.append(timer.nsecsElapsed() / 1e6);
    }
    QRandomGenerator random(7);
    for (int i = 0; i < 101; ++i) {
        const qint64 id = store.savedEntities().at(random.bounded(store.rowCount())).objectId;
        timer.restart();
        store.deleteObject(id);
        store.saveData();
        store.fetchHistory();
        deleteMs.append(timer.nsecsElapsed() / 1e6);
    }
    if (store.rowCount() != count)
        qFatal("the store shows %d rows", store.rowCount());
    out() << count << " records: addHistory median " << median(addMs) << " ms, 90th percentile "
          << percentile(addMs, 90) << " ms; delete one (delete, save, fetch) median " << median(deleteMs)
          << " ms, 90th percentile " << percentile(deleteMs, 90) << " ms (target < 8 ms at 10k, < 33 ms at 100k)"
          << Qt::endl;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--memory") == 0)
        return measureMemory(QString::fromLocal8Bit(argv[2]));

    QTemporaryDir dir;
    QString largest;
    for (const int count : { 10000, 100000 }) {
        largest = dir.filePath(QStringLiteral("CallHistoryData-%1.sqlite").arg(count));
        fill(largest, count);
        measure(largest, count);
    }
    return runSelf({ QStringLiteral("--memory"), largest });
}
