#include "HistoryCallDataService.h"

#include "HistorySql.h"

#include <QSet>
#include <QSqlDatabase>
#include <QtConcurrent>

#include <algorithm>

using namespace HistorySql;

HistoryCallDataService::HistoryCallDataService(const QString &databasePath, QObject *parent)
    : QAbstractListModel(parent),
      m_databasePath(databasePath),
      m_connectionName(newConnectionName()),
      m_clock([] { return QDateTime::currentDateTime(); })
{
    QString error;
    const OpenResult opened = openStore(error);
    if (opened != Opened)
        log(QStringLiteral("## Error loading Core data :") + error);
    if (opened == Damaged)
        setAsideDamagedFile();
}

HistoryCallDataService::~HistoryCallDataService()
{
    if (m_firstReadPending)
        m_firstRead.waitForFinished();
    closeStore();
}

int HistoryCallDataService::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_records.size());
}

QVariant HistoryCallDataService::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const HistoryData &record = m_records.at(index.row());
    const auto text = [](const QString &value) { return value.isNull() ? QVariant() : QVariant(value); };
    switch (role) {
    case ObjectIdRole:
        return record.objectId;
    case FirstNameRole:
        return text(record.firstName);
    case LastNameRole:
        return text(record.lastName);
    case TelephoneRole:
        return text(record.telephone);
    case TimeRole:
        return text(record.time);
    case CallHiddenRole:
        return record.callHidden;
    }
    return {};
}

QHash<int, QByteArray> HistoryCallDataService::roleNames() const
{
    return { { ObjectIdRole, "objectId" }, { FirstNameRole, "firstName" }, { LastNameRole, "lastName" },
             { TelephoneRole, "telephone" }, { TimeRole, "time" },         { CallHiddenRole, "callHidden" } };
}

HistoryCallDataService::ReadResult HistoryCallDataService::readAll(const QSqlDatabase &db)
{
    ReadResult result;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    bool ok = query.exec(selectColumns + QStringLiteral(" ORDER BY rowid"));
    // The same people and numbers come back call after call: rows share one
    // copy of each text (QString's own sharing), which at 100 000 calls
    // keeps about 10 MiB off a history that otherwise holds one per row.
    QSet<QString> texts;
    const auto shared = [&texts](QString &text) {
        if (!text.isNull())
            text = *texts.insert(text);
    };
    while (ok && query.next()) {
        HistoryData record = readRecord(query);
        shared(record.firstName);
        shared(record.lastName);
        shared(record.telephone);
        result.rows.append(std::move(record));
    }
    if (!ok || query.lastError().isValid()) {
        result.error = describe(query.lastError());
        result.damaged = isDamage(query.lastError());
        result.rows.clear();
    }
    return result;
}

void HistoryCallDataService::readInBackground()
{
    if (m_readStarted || !m_loaded)
        return;
    m_readStarted = true;
    // Whatever another program writes from now on makes the next fetch read again.
    m_dataVersion = dataVersion();
    m_firstReadPending = true;
    // The rows leave through a pointer: taking them moves them, and the
    // future keeps nothing of them.
    m_firstRead = QtConcurrent::run([name = m_readName, options = m_readOptions] {
        const QString connection = newConnectionName();
        auto result = std::make_shared<ReadResult>();
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
            db.setDatabaseName(name);
            db.setConnectOptions(options);
            if (db.open()) {
                *result = readAll(db);
            } else {
                result->error = describe(db.lastError());
                result->damaged = isDamage(db.lastError());
            }
        }
        QSqlDatabase::removeDatabase(connection);
        return result;
    });
    // Runs at once when the read is already done, and on this thread when
    // waitForFirstRead() ends up running the read itself.
    m_firstRead.then(this, [this](const std::shared_ptr<ReadResult> &result) {
        if (m_firstReadPending)
            takeFirstRead(std::move(*result));
    });
}

void HistoryCallDataService::waitForFirstRead()
{
    if (!m_readStarted && m_loaded) {
        readAgain();
        return;
    }
    if (!m_firstReadPending)
        return;
    m_firstRead.waitForFinished();
    if (m_firstReadPending)
        takeFirstRead(std::move(*m_firstRead.result()));
}

void HistoryCallDataService::takeFirstRead(ReadResult result)
{
    m_firstReadPending = false;
    take(std::move(result), m_dataVersion);
}

void HistoryCallDataService::take(ReadResult result, qint64 version)
{
    if (!result.error.isEmpty()) {
        m_dataVersion = -1;
        if (result.damaged && !m_readOnly)
            setAsideDamagedFile();
        else
            log(QStringLiteral("## Error fetch: ") + result.error);
        return;
    }
    m_dataVersion = version;
    publish(std::move(result.rows));
}

void HistoryCallDataService::publish(QList<HistoryData> rows)
{
    beginResetModel();
    m_records = std::move(rows);
    endResetModel();
    emit savedEntitiesChanged();
}

qint64 HistoryCallDataService::dataVersion()
{
    QSqlQuery query(database());
    return query.exec(QStringLiteral("PRAGMA data_version")) && query.next() ? query.value(0).toLongLong() : -1;
}

void HistoryCallDataService::readAgain()
{
    m_readStarted = true;
    const qint64 version = dataVersion();
    take(readAll(database()), version);
}

QString HistoryCallDataService::timeText(const QDateTime &when)
{
    return when.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

void HistoryCallDataService::addHistory(const QString &firstName, const QString &lastName, const QString &telephone,
                                        bool callHidden)
{
    const QString now = timeText(m_clock());
    m_pending.append(PendingChange{ false, HistoryData{ 0, firstName, lastName, telephone,
                                                       now.isNull() ? QStringLiteral("") : now, callHidden } });
    saveData();
    fetchHistory();
}

void HistoryCallDataService::deleteObject(qint64 objectId)
{
    m_pending.append(PendingChange{ true, HistoryData{ objectId, {}, {}, {}, {}, false } });
}

void HistoryCallDataService::saveData()
{
    waitForFirstRead();
    QString error;
    if (!commitPending(error))
        log(QStringLiteral("## Error saving to core data ") + error);
}

bool HistoryCallDataService::commitPending(QString &error)
{
    if (m_pending.isEmpty())
        return true;
    if (!ensureLoaded(error))
        return false;
    QSqlDatabase db = database();
    if (!db.transaction()) {
        error = describe(db.lastError());
        return false;
    }
    QSqlQuery insert(db), remove(db);
    bool ok = insert.prepare(QStringLiteral("INSERT INTO HistoryData (firstName, lastName, telephone, time, "
                                            "callHidden) VALUES (?, ?, ?, ?, ?)"))
        && remove.prepare(QStringLiteral("DELETE FROM HistoryData WHERE rowid = ?"));
    QList<PendingChange> done = m_pending;
    for (PendingChange &change : done) {
        if (!ok)
            break;
        HistoryData &r = change.record;
        if (change.isDelete) {
            remove.bindValue(0, r.objectId);
            ok = remove.exec();
        } else {
            bindRecord(insert, r, 0);
            ok = insert.exec();
            r.objectId = insert.lastInsertId().toLongLong();
        }
    }
    if (!ok)
        error = describe(insert.lastError().isValid() ? insert.lastError() : remove.lastError());
    insert.finish();
    remove.finish();
    if (ok && !db.commit()) {
        ok = false;
        error = describe(db.lastError());
    }
    if (!ok) {
        db.rollback();
        return false;
    }
    m_pending.clear();

    // The list follows the rows written, in the table's order (by id).
    bool readAll = false;
    for (const PendingChange &change : std::as_const(done)) {
        const qint64 id = change.record.objectId;
        const auto it = std::lower_bound(m_records.cbegin(), m_records.cend(), id,
                                         [](const HistoryData &r, qint64 id) { return r.objectId < id; });
        const int row = int(it - m_records.cbegin());
        if (change.isDelete && it != m_records.cend() && it->objectId == id) {
            beginRemoveRows({}, row, row);
            m_records.removeAt(row);
            endRemoveRows();
        } else if (!change.isDelete && it == m_records.cend()) {
            beginInsertRows({}, row, row);
            m_records.append(change.record);
            endInsertRows();
        } else if (!change.isDelete) {
            readAll = true; // SQLite reused an id below the last one
        }
    }
    if (readAll)
        readAgain();
    else
        emit savedEntitiesChanged();
    return true;
}

void HistoryCallDataService::deleteAllHistory()
{
    waitForFirstRead();
    QString error;
    bool ok = ensureLoaded(error);
    if (ok) {
        QSqlQuery query(database());
        ok = query.exec(QStringLiteral("DELETE FROM HistoryData"));
        if (!ok)
            error = describe(query.lastError());
    }
    ok = ok && commitPending(error);
    if (!ok)
        log(QStringLiteral("Error deleting history data: ") + error);
    if (m_loaded)
        readAgain();
}

void HistoryCallDataService::fetchHistory()
{
    waitForFirstRead();
    QString error;
    if (!ensureLoaded(error))
        return; // nothing can be read: the list stays as it is
    // Only another program's commits change the file behind the list.
    if (m_dataVersion < 0 || dataVersion() != m_dataVersion)
        readAgain();
}
