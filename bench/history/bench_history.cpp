// Speed and memory of the call history store with 100 000 records: adding a
// record (save and publish included), opening and publishing the file, and
// serving rows of the list model. Prints medians; the targets are in the output.
#include "HistoryCallDataService.h"
#include "HistoryFile.h"
#include "HistoryListModel.h"
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

constexpr int recordCount = 100000;

// Run in a process of its own: the peak memory of an app-like process that
// opens the file and shows it in a list model.
int measureMemory(const QString &path)
{
    const qint64 before = peakMemoryKb();
    HistoryCallDataService store(path);
    HistoryListModel model(&store);
    for (int row = 0; row < model.rowCount(); row += 97)
        model.data(model.index(row), HistoryListModel::TelephoneRole);
    const qint64 after = peakMemoryKb();
    out() << "peak memory (VmHWM) with " << store.savedEntities().size() << " records: " << after
          << " kB; before opening the store: " << before << " kB; the store's share: " << (after - before)
          << " kB" << Qt::endl;
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--memory") == 0)
        return measureMemory(QString::fromLocal8Bit(argv[2]));

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("CallHistoryData.sqlite"));
    QElapsedTimer timer;
    timer.start();
    // A third dialled on the keypad (no names); every number its own.
    populateHistory(path, recordCount, [](int i, HistoryData &record) {
        const bool named = i % 3 != 0;
        record.firstName = named ? QStringLiteral("First%1").arg(i % 500) : QString(QLatin1StringView(""));
        record.lastName = named ? QStringLiteral("Last%1").arg(i % 700) : QString(QLatin1StringView(""));
        record.telephone = QStringLiteral("06%1").arg(10000000 + i);
    });
    out() << "filled " << recordCount << " records in " << timer.elapsed() << " ms" << Qt::endl;

    // Opening the file and publishing every record.
    QList<double> openMs;
    for (int i = 0; i < 11; ++i) {
        timer.restart();
        HistoryCallDataService store(path);
        openMs.append(timer.nsecsElapsed() / 1e6);
        if (store.savedEntities().size() != recordCount)
            qFatal("expected %d records, got %lld", recordCount, qlonglong(store.savedEntities().size()));
    }
    out() << "open and publish " << recordCount << " records: median " << median(openMs) << " ms (target < 100 ms)"
          << Qt::endl;

    // The app's own store reads on a worker: what the main thread still
    // spends is opening the file and taking the records in.
    QList<double> blockedMs, readyMs;
    for (int i = 0; i < 11; ++i) {
        timer.restart();
        HistoryCallDataService store(path, HistoryCallDataService::FirstFetch::InBackground);
        double blocked = timer.nsecsElapsed() / 1e6;
        QEventLoop loop;
        QObject::connect(&store, &HistoryCallDataService::savedEntitiesChanged, &loop, &QEventLoop::quit);
        QElapsedTimer publishing;
        QObject::connect(&store, &HistoryCallDataService::entitiesAboutToBeReset, &loop,
                         [&publishing] { publishing.start(); });
        loop.exec();
        blocked += publishing.nsecsElapsed() / 1e6;
        readyMs.append(timer.nsecsElapsed() / 1e6);
        blockedMs.append(blocked);
        if (store.savedEntities().size() != recordCount)
            qFatal("expected %d records, got %lld", recordCount, qlonglong(store.savedEntities().size()));
    }
    out() << "background read of " << recordCount << " records: main thread busy " << median(blockedMs)
          << " ms (median), records in after " << median(readyMs) << " ms" << Qt::endl;

    HistoryCallDataService store(path);
    HistoryListModel model(&store);
    // One record added, saved, fetched and shown by the model, with 100 000 already there.
    QList<double> addMs;
    for (int i = 0; i < 301; ++i) {
        timer.restart();
        store.addHistory(QString(), QString(), QStringLiteral("0700%1").arg(i), i % 2);
        addMs.append(timer.nsecsElapsed() / 1e6);
    }
    if (model.rowCount() != recordCount + 301)
        qFatal("the model shows %d rows", model.rowCount());
    out() << "addHistory with " << recordCount << " records stored: median " << median(addMs) << " ms, 90th percentile "
          << percentile(addMs, 90) << " ms (target median < 1 ms)" << Qt::endl;

    // Any row of the model: batches of 1000 random rows, every role read.
    QRandomGenerator random(7);
    const QList<int> roles = model.roleNames().keys();
    QList<double> rowUs;
    qsizetype chars = 0;
    for (int batch = 0; batch < 200; ++batch) {
        QList<int> rows;
        for (int i = 0; i < 1000; ++i)
            rows.append(random.bounded(model.rowCount()));
        timer.restart();
        for (int row : std::as_const(rows)) {
            const QModelIndex index = model.index(row);
            for (int role : roles)
                chars += model.data(index, role).toString().size();
        }
        rowUs.append(timer.nsecsElapsed() / 1e3 / rows.size());
    }
    out() << "model row with all " << roles.size() << " roles: median " << median(rowUs)
          << " us (target < 50 us) [" << chars << "]" << Qt::endl;

    return runSelf({ QStringLiteral("--memory"), path });
}
