// Speed and memory of the call history store with 100 000 records: adding a
// record (save and publish included), opening and publishing the file, and
// serving rows of the list model. Prints medians; the targets are in the output.
#include "HistoryCallDataService.h"
#include "HistoryListModel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr int recordCount = 100000;

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

// Fills a new history file with `count` records in one transaction.
void populate(const QString &path, int count)
{
    { HistoryCallDataService schema(path); }
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("populate"));
        db.setDatabaseName(path);
        db.open();
        db.transaction();
        QSqlQuery insert(db);
        insert.prepare(QStringLiteral(
            "INSERT INTO HistoryData (firstName, lastName, telephone, time, callHidden) VALUES (?, ?, ?, ?, ?)"));
        const QDateTime start(QDate(2023, 1, 1), QTime(8, 0));
        for (int i = 0; i < count; ++i) {
            const bool named = i % 3 != 0;
            insert.bindValue(0, named ? QStringLiteral("First%1").arg(i % 500) : QString(QLatin1StringView("")));
            insert.bindValue(1, named ? QStringLiteral("Last%1").arg(i % 700) : QString(QLatin1StringView("")));
            insert.bindValue(2, QStringLiteral("06%1").arg(10000000 + i));
            insert.bindValue(3, HistoryCallDataService::timeText(start.addSecs(qint64(i) * 317)));
            insert.bindValue(4, i % 2);
            insert.exec();
        }
        insert.finish();
        db.commit();
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("populate"));
}

qint64 statusKb(const char *field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(field))
            return line.mid(qstrlen(field)).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

// Run in a process of its own: the peak memory of an app-like process that
// opens the file and shows it in a list model.
int measureMemory(const QString &path)
{
    const qint64 before = statusKb("VmHWM:");
    HistoryCallDataService store(path);
    HistoryListModel model(&store);
    for (int row = 0; row < model.rowCount(); row += 97)
        model.data(model.index(row), HistoryListModel::TelephoneRole);
    const qint64 after = statusKb("VmHWM:");
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
    populate(path, recordCount);
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
    std::sort(addMs.begin(), addMs.end());
    out() << "addHistory with " << recordCount << " records stored: median " << median(addMs) << " ms, 90th percentile "
          << addMs[addMs.size() * 9 / 10] << " ms (target median < 1 ms)" << Qt::endl;

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

    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--memory"), path });
    child.waitForFinished(120000);
    return 0;
}
