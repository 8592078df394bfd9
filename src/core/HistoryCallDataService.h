#pragma once

#include "HistoryData.h"

#include <QAbstractListModel>
#include <QDateTime>
#include <QFuture>
#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

class QSqlDatabase;

// The call history: a SQLite file with one table, "HistoryData", whose rows
// are the recorded calls in the order they were added, shown as a list model.
//
// Changes are staged first (addHistory, deleteObject) and written by
// saveData() in one transaction; a write that fails stays staged and goes
// with the next save. The model follows its own saves row by row; the whole
// table is read again only when it is first opened, when another program
// changed the file, and after a clear-all.
//
// The first read runs on a worker thread once readInBackground() asks for it
// (the app does as soon as it is built), so that a long history never holds
// up the window; until it is in, the model has no rows. Any operation,
// savedEntities() included, first waits for it, or reads at once if nothing
// asked yet, so its result is the same as with an immediate read.
class HistoryCallDataService : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The call history store is made by the app")
    Q_PROPERTY(int count READ count NOTIFY savedEntitiesChanged)

public:
    static constexpr auto containerName = "CallHistoryData";
    static constexpr auto entityName = "HistoryData";
    // The form of the file this code writes (PRAGMA user_version).
    static constexpr int schemaVersion = 1;

    enum Role { ObjectIdRole = Qt::UserRole + 1, FirstNameRole, LastNameRole, TelephoneRole, TimeRole, CallHiddenRole };

    explicit HistoryCallDataService(const QString &databasePath, QObject *parent = nullptr);
    ~HistoryCallDataService() override;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // The records in store order (after the first read: this waits for it).
    const QList<HistoryData> &savedEntities()
    {
        waitForFirstRead();
        return m_records;
    }
    int count() const { return int(m_records.size()); }
    QString databasePath() const { return m_databasePath; }
    // Whether the first read of the records is still running.
    bool isFetchingInBackground() const { return m_firstReadPending; }

    // Starts the first read of the records on a worker thread (once).
    void readInBackground();
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
    // The records changed; after the model's own row signals.
    void savedEntitiesChanged();

private:
    struct PendingChange
    {
        bool isDelete = false;
        HistoryData record; // for a delete, only objectId counts
    };
    struct ReadResult
    {
        QString error; // empty: read
        bool damaged = false;
        QList<HistoryData> rows;
    };
    enum OpenResult { Opened, Failed, Damaged };
    static ReadResult readAll(const QSqlDatabase &db);

    QSqlDatabase database() const;
    OpenResult openStore(QString &error);
    static bool migrate(QSqlDatabase &db, QString &error);
    void closeStore();
    bool ensureLoaded(QString &error);
    void waitForFirstRead();
    void takeFirstRead(ReadResult result);
    // Publishes a whole read taken at data version `version`, or reports why
    // it failed (setting a damaged file aside).
    void take(ReadResult result, qint64 version);
    void publish(QList<HistoryData> rows);
    void readAgain();
    void setAsideDamagedFile();
    bool commitPending(QString &error);
    qint64 dataVersion();

    QString m_databasePath;
    QString m_connectionName;
    // How a reader of its own opens the file (the first read's worker).
    QString m_readName;
    QString m_readOptions;
    bool m_loaded = false;
    bool m_readOnly = false;
    QList<HistoryData> m_records;
    QList<PendingChange> m_pending;
    std::function<QDateTime()> m_clock;
    QFuture<std::shared_ptr<ReadResult>> m_firstRead;
    bool m_readStarted = false;
    bool m_firstReadPending = false;
    // SQLite's count of other connections' commits as of the last full
    // read: while it stays, the list equals the table.
    qint64 m_dataVersion = -1;
};
