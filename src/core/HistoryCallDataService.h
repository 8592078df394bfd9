#pragma once

#include "HistoryData.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <future>

class QJSEngine;
class QQmlEngine;
class QSqlDatabase;
class QSqlError;

// The call history: a SQLite file with one table, "HistoryData", whose rows
// are the recorded calls in the order they were added.
//
// Changes are staged first (addHistory, deleteObject) and written by
// saveData() in one transaction; a write that fails stays staged and goes
// with the next save. savedEntities() is the list of stored records as the
// last fetchHistory() found it. A fetch re-reads the whole table only when it
// cannot tell what changed: after saves of its own that only added or removed
// known rows, with no other writer in between, it applies just those changes.
//
// The app's own store reads the file for the first time on a worker thread,
// so that a long history never holds up the first frame; until that read is
// in, savedEntities() is empty. Any operation that reads or writes the store
// first waits for it, so its result is the same as with an immediate read.
class HistoryCallDataService : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made at start-up")
    Q_PROPERTY(int count READ count NOTIFY savedEntitiesChanged)

public:
    static constexpr auto containerName = "CallHistoryData";
    static constexpr auto entityName = "HistoryData";

    enum class FirstFetch {
        Immediate,   // the constructor reads the records
        InBackground // a worker thread reads them; they are published when in
    };

    // A store on the SQLite file at `databasePath`, opened at once.
    explicit HistoryCallDataService(const QString &databasePath, FirstFetch firstFetch = FirstFetch::Immediate,
                                    QObject *parent = nullptr);
    ~HistoryCallDataService() override;

    const QList<HistoryData> &savedEntities() const { return m_savedEntities; }
    int count() const { return int(m_savedEntities.size()); }
    QString databasePath() const { return m_databasePath; }
    // Whether the file could be opened; without it nothing is read or written.
    bool isLoaded() const { return m_loaded; }
    // Whether staged changes wait for a save.
    bool hasPendingChanges() const { return !m_pending.isEmpty(); }
    // Whether the first read of the records is still running.
    bool isFetchingInBackground() const { return m_backgroundFetch.valid(); }
    // Waits for the first read, if it still runs, and publishes its records.
    void waitForBackgroundFetch();

    Q_INVOKABLE void fetchHistory();
    // Records a call made now, saves and fetches.
    Q_INVOKABLE void addHistory(const QString &firstName, const QString &lastName, const QString &telephone,
                                bool callHidden);
    Q_INVOKABLE void saveData();
    // Empties the table at once (staged changes are saved after it), then fetches.
    Q_INVOKABLE void deleteAllHistory();
    // Stages the removal of one record; saveData() writes it.
    Q_INVOKABLE void deleteObject(qint64 objectId);

    // The text a record carries for the moment `when`, in local time.
    static QString timeText(const QDateTime &when);
    // Where the current moment comes from (tests set a fixed one).
    void setClock(std::function<QDateTime()> clock) { m_clock = std::move(clock); }

signals:
    // savedEntities was replaced or changed; always the last of the signals.
    void savedEntitiesChanged();
    // Finer notices for list views, in model terms (rows first..last).
    void entitiesAboutToBeInserted(int first, int last);
    void entitiesInserted();
    void entitiesAboutToBeRemoved(int first, int last);
    void entitiesRemoved();
    void entitiesAboutToBeReset();
    void entitiesReset();

private:
    struct PendingChange
    {
        bool isDelete = false;
        HistoryData record; // for a delete, only objectId counts
    };
    enum class LoadResult { Loaded, Unreadable, Failed };
    struct FetchResult
    {
        bool ok = false;
        QString error;
        QList<HistoryData> rows;
    };
    static FetchResult readAllRecords(const QString &databasePath);

    QSqlDatabase database() const;
    LoadResult loadStore(QString &error);
    void closeStore();
    bool moveAsideUnreadableFile();
    bool commitPending(QString &error);
    bool readDataVersion(qint64 &version, QString &error);
    bool fullFetch(qint64 version, QString &error);
    void startBackgroundFetch();
    void publishAll(QList<HistoryData> &&rows, qint64 version);
    bool incrementalFetch(QString &error);

    QString m_databasePath;
    QString m_connectionName;
    bool m_loaded = false;
    QList<HistoryData> m_savedEntities;
    QList<PendingChange> m_pending;
    std::function<QDateTime()> m_clock;
    std::future<FetchResult> m_backgroundFetch;
    qint64 m_versionBeforeBackgroundFetch = 0;

    // What savedEntities lacks compared with the table: valid while
    // m_inSync, i.e. since the last full read nobody but this object wrote
    // (the file's data version is still m_dataVersion).
    bool m_inSync = false;
    qint64 m_dataVersion = 0;
    QList<qint64> m_deletedSinceFetch;
    qint64 m_lowestInsertedSinceFetch = 0; // 0: nothing inserted
};
