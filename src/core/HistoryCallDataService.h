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
// Changes are staged (addHistory, deleteObject) and written by saveData() in
// one transaction; a failed write stays staged for the next save. The whole
// table is read again only when first opened, when another program changed
// the file, and after a clear-all.
//
// The first read runs on a worker thread from readInBackground(), so that a
// long history never holds up the window. Any operation first waits for it
// (or reads at once if nothing asked yet).
class HistoryCallDataService : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The call history store is made by the app")
    Q_PROPERTY(int count READ count NOTIFY savedEntitiesChanged)

public:
    static constexpr auto containerName = "CallHistoryData";
    static constexpr auto entityName = "HistoryData";
    // PRAGMA user_version of the files this code writes.
    static constexpr int schemaVersion = 1;

    enum Role { ObjectIdRole = Qt::UserRole + 1, FirstNameRole, LastNameRole, TelephoneRole, TimeRole, CallHiddenRole };

    explicit HistoryCallDataService(const QString &databasePath, QObject *parent = nullptr);
    ~HistoryCallDataService() override;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const QList<HistoryData> &savedEntities()
    {
        waitForFirstRead();
        return m_records;
    }
    int count() const { return int(m_records.size()); }
    QString databasePath() const { return m_databasePath; }
    bool isFetchingInBackground() const { return m_firstReadPending; }

    void readInBackground();
    Q_INVOKABLE void fetchHistory();
    // Saves and fetches.
    Q_INVOKABLE void addHistory(const QString &firstName, const QString &lastName, const QString &telephone,
                                bool callHidden);
    Q_INVOKABLE void saveData();
    // Staged changes are saved after the table is emptied.
    Q_INVOKABLE void deleteAllHistory();
    Q_INVOKABLE void deleteObject(qint64 objectId);

    static QString timeText(const QDateTime &when);
    void setClock(std::function<QDateTime()> clock) { m_clock = std::move(clock); }

signals:
    // After the model's own row signals.
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
    // How the first read's worker opens the file.
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
