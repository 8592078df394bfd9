#include "HistoryCallDataService.h"


#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThreadPool>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTextStream>

#include <algorithm>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// SQLite's primary result codes that mean "this file is not a usable database".
constexpr int sqliteCorrupt = 11;
constexpr int sqliteNotADatabase = 26;

const QString insertStatement = QStringLiteral(
    "INSERT INTO HistoryData (firstName, lastName, telephone, time, callHidden) VALUES (?, ?, ?, ?, ?)");
const QString selectColumns = QStringLiteral("SELECT rowid, firstName, lastName, telephone, time, callHidden FROM HistoryData");

QString describe(const QSqlError &error)
{
    QString text = error.text().trimmed();
    return text.isEmpty() ? QStringLiteral("unknown error") : text;
}

int sqliteCode(const QSqlError &error)
{
    bool ok = false;
    const int code = error.nativeErrorCode().toInt(&ok);
    return ok ? (code & 0xff) : -1;
}

// A null string is stored as NULL, anything else as text.
QVariant textValue(const QString &text)
{
    return text.isNull() ? QVariant(QMetaType::fromType<QString>()) : QVariant(text);
}

QString readText(const QVariant &value)
{
    return value.isNull() ? QString() : value.toString();
}

// Calls repeat the same names and numbers: equal texts share one copy. A
// fixed table of recent texts, indexed by hash, keeps the cost of a lookup
// flat however many different texts a history holds.
class TextPool
{
public:
    QString share(QString text)
    {
        if (text.isEmpty())
            return text;
        QString &slot = m_slots[qHash(text) % m_slots.size()];
        if (slot != text)
            slot = std::move(text);
        return slot;
    }

private:
    std::vector<QString> m_slots = std::vector<QString>(1 << 16);
};

HistoryData readRecord(const QSqlQuery &query)
{
    HistoryData r;
    r.objectId = query.value(0).toLongLong();
    r.firstName = readText(query.value(1));
    r.lastName = readText(query.value(2));
    r.telephone = readText(query.value(3));
    r.setTime(readText(query.value(4)));
    r.callHidden = query.value(5).toBool();
    return r;
}

void log(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

} // namespace

HistoryCallDataService::HistoryCallDataService(const QString &databasePath, FirstFetch firstFetch, QObject *parent)
    : QObject(parent),
      m_databasePath(databasePath),
      m_connectionName(QStringLiteral("HistoryCallDataService-%1").arg(quintptr(this), 0, 16)),
      m_clock([] { return QDateTime::currentDateTime(); })
{
    QString error;
    LoadResult result = loadStore(error);
    if (result != LoadResult::Loaded)
        log(QStringLiteral("## Error loading Core data :") + error);
    if (result == LoadResult::Unreadable && moveAsideUnreadableFile()) {
        QString retryError;
        if (loadStore(retryError) != LoadResult::Loaded)
            log(QStringLiteral("## Error loading Core data :") + retryError);
    }
    if (firstFetch == FirstFetch::InBackground && m_loaded)
        startBackgroundFetch();
    else
        fetchHistory();
}

HistoryCallDataService::~HistoryCallDataService()
{
    if (m_backgroundFetch.valid())
        m_backgroundFetch.wait();
    closeStore();
}

HistoryCallDataService::FetchResult HistoryCallDataService::readAllRecords(const QString &databasePath)
{
    FetchResult result;
    const QString connection = QStringLiteral("HistoryCallDataService-reader-%1").arg(quintptr(&result), 0, 16);
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(databasePath);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=5000"));
        QSqlQuery query(db);
        query.setForwardOnly(true);
        bool ok = db.open() && query.exec(QStringLiteral("SELECT count(*) FROM HistoryData")) && query.next();
        if (ok)
            result.rows.reserve(query.value(0).toLongLong());
        ok = ok && query.exec(selectColumns + QStringLiteral(" ORDER BY rowid"));
        TextPool pool;
        while (ok && query.next()) {
            HistoryData record = readRecord(query);
            record.firstName = pool.share(std::move(record.firstName));
            record.lastName = pool.share(std::move(record.lastName));
            record.telephone = pool.share(std::move(record.telephone));
            result.rows.append(std::move(record));
        }
        if (!ok || query.lastError().isValid()) {
            result.error = describe(query.lastError().isValid() ? query.lastError() : db.lastError());
            result.rows.clear();
        } else {
            result.ok = true;
        }
        query = QSqlQuery();
        db.close();
    }
    QSqlDatabase::removeDatabase(connection);
    return result;
}

void HistoryCallDataService::startBackgroundFetch()
{
    QString error;
    if (!readDataVersion(m_versionBeforeBackgroundFetch, error)) {
        fetchHistory();
        return;
    }
    // The worker asks for the records to be published before it finishes;
    // the destructor waits for it, so the request never outlives the store
    // (Qt drops events posted to an object that is gone).
    auto task = std::make_shared<std::packaged_task<FetchResult()>>([this, path = m_databasePath] {
        FetchResult result = readAllRecords(path);
        QMetaObject::invokeMethod(this, &HistoryCallDataService::waitForBackgroundFetch, Qt::QueuedConnection);
        return result;
    });
    m_backgroundFetch = task->get_future();
    QThreadPool::globalInstance()->start([task] { (*task)(); });
}

void HistoryCallDataService::waitForBackgroundFetch()
{
    if (!m_backgroundFetch.valid())
        return;
    FetchResult result = m_backgroundFetch.get();
    if (!result.ok) {
        log(QStringLiteral("## Error fetch: ") + result.error);
        return;
    }
    // The rows are the table as it is now if no other connection wrote
    // since this one opened (the worker read after that).
    qint64 version = 0;
    QString error;
    const bool unchanged = readDataVersion(version, error) && version == m_versionBeforeBackgroundFetch;
    publishAll(std::move(result.rows), version);
    m_inSync = unchanged;
#ifdef __GLIBC__
    // The read left the worker's heap full of freed query buffers; hand them back.
    malloc_trim(0);
#endif
}

QSqlDatabase HistoryCallDataService::database() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

HistoryCallDataService::LoadResult HistoryCallDataService::loadStore(QString &error)
{
    closeStore();
    const QFileInfo file(m_databasePath);
    if (!QDir().mkpath(file.absolutePath())) {
        error = QStringLiteral("cannot create the folder %1").arg(file.absolutePath());
        return LoadResult::Failed;
    }
    if (file.exists() && !file.isFile()) {
        error = QStringLiteral("%1 is not a file").arg(m_databasePath);
        return LoadResult::Failed;
    }

    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    db.setDatabaseName(m_databasePath);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
    if (!db.open()) {
        error = describe(db.lastError());
        return sqliteCode(db.lastError()) == sqliteNotADatabase ? LoadResult::Unreadable : LoadResult::Failed;
    }

    QSqlQuery query(db);
    const auto run = [&](const QString &statement) {
        if (query.exec(statement))
            return true;
        error = describe(query.lastError());
        return false;
    };
    // A new file keeps its text as UTF-16, the form QString reads without
    // conversion; an existing file keeps the encoding it has.
    bool ok = run(QStringLiteral("PRAGMA encoding = 'UTF-16le'"));
    ok = ok && run(QStringLiteral("PRAGMA journal_mode=WAL"));
    // A commit reaches the operating system before saveData() returns, so a
    // record survives the app being killed at any moment. The disk is synced
    // at checkpoints rather than on every record (a sync costs milliseconds
    // here): a power cut may lose the latest records, never the file.
    ok = ok && run(QStringLiteral("PRAGMA synchronous=NORMAL"));
    ok = ok
        && run(QStringLiteral("CREATE TABLE IF NOT EXISTS HistoryData "
                              "(firstName TEXT, lastName TEXT, telephone TEXT, time TEXT, callHidden INTEGER)"));
    if (ok) {
        // A table from an older or foreign file may lack columns: add them, keep its rows.
        QStringList present;
        ok = run(QStringLiteral("PRAGMA table_info(HistoryData)"));
        while (ok && query.next())
            present.append(query.value(1).toString());
        const QStringList wanted = { QStringLiteral("firstName"), QStringLiteral("lastName"),
                                     QStringLiteral("telephone"), QStringLiteral("time"),
                                     QStringLiteral("callHidden") };
        for (const QString &column : wanted) {
            if (ok && !present.contains(column, Qt::CaseInsensitive)) {
                const QString type = column == QLatin1StringView("callHidden") ? QStringLiteral("INTEGER")
                                                                               : QStringLiteral("TEXT");
                ok = run(QStringLiteral("ALTER TABLE HistoryData ADD COLUMN %1 %2").arg(column, type));
            }
        }
    }
    if (!ok) {
        const int code = sqliteCode(query.lastError());
        query = QSqlQuery();
        closeStore();
        return code == sqliteNotADatabase || code == sqliteCorrupt ? LoadResult::Unreadable : LoadResult::Failed;
    }
    m_loaded = true;
    return LoadResult::Loaded;
}

void HistoryCallDataService::closeStore()
{
    m_loaded = false;
    m_inSync = false;
    if (QSqlDatabase::contains(m_connectionName)) {
        {
            QSqlDatabase db = database();
            db.close();
        }
        QSqlDatabase::removeDatabase(m_connectionName);
    }
}

bool HistoryCallDataService::moveAsideUnreadableFile()
{
    // The user's file is never deleted: it and its journal files move to a
    // name of their own, and a new history starts in its place.
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString aside = m_databasePath + QStringLiteral(".unreadable-") + stamp;
    for (int n = 2; QFileInfo::exists(aside) || QFileInfo::exists(aside + QStringLiteral("-wal")); ++n)
        aside = m_databasePath + QStringLiteral(".unreadable-%1-%2").arg(stamp).arg(n);
    if (!QFile::rename(m_databasePath, aside)) {
        log(QStringLiteral("The call history file %1 is unreadable and could not be moved aside; it stays as it is.")
                .arg(m_databasePath));
        return false;
    }
    for (const QString suffix : { QStringLiteral("-wal"), QStringLiteral("-shm") }) {
        if (QFileInfo::exists(m_databasePath + suffix))
            QFile::rename(m_databasePath + suffix, aside + suffix);
    }
    log(QStringLiteral("The call history file was unreadable; it was kept as %1 and a new history was started.")
            .arg(aside));
    return true;
}

QString HistoryCallDataService::timeText(const QDateTime &when)
{
    return when.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

void HistoryCallDataService::addHistory(const QString &firstName, const QString &lastName, const QString &telephone,
                                        bool callHidden)
{
    HistoryData record;
    record.firstName = firstName;
    record.lastName = lastName;
    record.telephone = telephone;
    const QString now = timeText(m_clock());
    record.setTime(now.isNull() ? QStringLiteral("") : now);
    record.callHidden = callHidden;
    m_pending.append(PendingChange{ false, std::move(record) });
    saveData();
    fetchHistory();
}

void HistoryCallDataService::deleteObject(qint64 objectId)
{
    HistoryData record;
    record.objectId = objectId;
    m_pending.append(PendingChange{ true, std::move(record) });
}

void HistoryCallDataService::saveData()
{
    waitForBackgroundFetch();
    QString error;
    if (!commitPending(error))
        log(QStringLiteral("## Error saving to core data ") + error);
}

bool HistoryCallDataService::commitPending(QString &error)
{
    if (m_pending.isEmpty())
        return true;
    if (!m_loaded) {
        error = QStringLiteral("the call history store %1 is not loaded").arg(m_databasePath);
        return false;
    }
    QSqlDatabase db = database();
    if (!db.transaction()) {
        error = describe(db.lastError());
        return false;
    }
    QSqlQuery insert(db);
    QSqlQuery remove(db);
    bool ok = true;
    bool insertPrepared = false;
    bool removePrepared = false;
    QList<qint64> inserted;
    QList<qint64> deleted;
    for (const PendingChange &change : std::as_const(m_pending)) {
        if (change.isDelete) {
            if (!removePrepared)
                ok = removePrepared = remove.prepare(QStringLiteral("DELETE FROM HistoryData WHERE rowid = ?"));
            if (ok) {
                remove.bindValue(0, change.record.objectId);
                ok = remove.exec();
            }
            if (!ok) {
                error = describe(remove.lastError());
                break;
            }
            deleted.append(change.record.objectId);
        } else {
            if (!insertPrepared)
                ok = insertPrepared = insert.prepare(insertStatement);
            if (ok) {
                const HistoryData &r = change.record;
                insert.bindValue(0, textValue(r.firstName));
                insert.bindValue(1, textValue(r.lastName));
                insert.bindValue(2, textValue(r.telephone));
                insert.bindValue(3, textValue(r.time()));
                insert.bindValue(4, r.callHidden ? 1 : 0);
                ok = insert.exec();
            }
            if (!ok) {
                error = describe(insert.lastError());
                break;
            }
            inserted.append(insert.lastInsertId().toLongLong());
        }
    }
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
    m_deletedSinceFetch.append(deleted);
    for (qint64 id : std::as_const(inserted)) {
        if (m_lowestInsertedSinceFetch == 0 || id < m_lowestInsertedSinceFetch)
            m_lowestInsertedSinceFetch = id;
    }
    return true;
}

void HistoryCallDataService::deleteAllHistory()
{
    waitForBackgroundFetch();
    QString error;
    bool ok = m_loaded;
    if (!ok) {
        error = QStringLiteral("the call history store %1 is not loaded").arg(m_databasePath);
    } else {
        QSqlQuery query(database());
        ok = query.exec(QStringLiteral("DELETE FROM HistoryData"));
        if (!ok)
            error = describe(query.lastError());
        // Which rows went is not tracked: the next fetch reads the table again.
        m_inSync = false;
    }
    if (ok)
        ok = commitPending(error);
    if (!ok)
        log(QStringLiteral("Error deleting history data: ") + error);
    fetchHistory();
}

bool HistoryCallDataService::readDataVersion(qint64 &version, QString &error)
{
    QSqlQuery query(database());
    if (!query.exec(QStringLiteral("PRAGMA data_version")) || !query.next()) {
        error = describe(query.lastError());
        return false;
    }
    version = query.value(0).toLongLong();
    return true;
}

void HistoryCallDataService::fetchHistory()
{
    waitForBackgroundFetch();
    if (!m_loaded) {
        // Nothing can be read: the list stays as it is (empty).
        return;
    }
    QSqlDatabase db = database();
    QString error;
    // One read transaction, so the data version and the rows belong together.
    bool ok = db.transaction();
    if (!ok)
        error = describe(db.lastError());
    qint64 version = 0;
    ok = ok && readDataVersion(version, error);
    if (ok) {
        const bool onlyOwnChanges = m_inSync && version == m_dataVersion;
        ok = onlyOwnChanges ? incrementalFetch(error) : fullFetch(version, error);
    }
    db.commit();
    if (!ok)
        log(QStringLiteral("## Error fetch: ") + error);
}

bool HistoryCallDataService::fullFetch(qint64 version, QString &error)
{
    QList<HistoryData> rows;
    QSqlQuery query(database());
    query.setForwardOnly(true);
    bool ok = query.exec(QStringLiteral("SELECT count(*) FROM HistoryData"));
    if (ok && query.next())
        rows.reserve(query.value(0).toLongLong());
    ok = ok && query.exec(selectColumns + QStringLiteral(" ORDER BY rowid"));
    while (ok && query.next())
        rows.append(readRecord(query));
    if (!ok || query.lastError().isValid()) {
        error = describe(query.lastError());
        m_inSync = false;
        return false;
    }
    publishAll(std::move(rows), version);
    return true;
}

void HistoryCallDataService::publishAll(QList<HistoryData> &&rows, qint64 version)
{
    emit entitiesAboutToBeReset();
    m_savedEntities = std::move(rows);
    emit entitiesReset();
    m_inSync = true;
    m_dataVersion = version;
    m_deletedSinceFetch.clear();
    m_lowestInsertedSinceFetch = 0;
    emit savedEntitiesChanged();
}

bool HistoryCallDataService::incrementalFetch(QString &error)
{
    // The list matches the table as of the last read, minus what this object
    // saved since: rows it deleted, and rows it inserted. SQLite gives a new
    // row an id above every id in the table, so the inserted rows are exactly
    // those above the list's last id, in id order.
    bool changed = false;
    const auto byId = [](const HistoryData &r, qint64 id) { return r.objectId < id; };
    for (qint64 id : std::as_const(m_deletedSinceFetch)) {
        const auto it = std::lower_bound(m_savedEntities.cbegin(), m_savedEntities.cend(), id, byId);
        if (it == m_savedEntities.cend() || it->objectId != id)
            continue;
        const int row = int(it - m_savedEntities.cbegin());
        emit entitiesAboutToBeRemoved(row, row);
        m_savedEntities.removeAt(row);
        emit entitiesRemoved();
        changed = true;
    }
    m_deletedSinceFetch.clear();

    if (m_lowestInsertedSinceFetch != 0) {
        const qint64 lastId = m_savedEntities.isEmpty() ? 0 : m_savedEntities.constLast().objectId;
        if (m_lowestInsertedSinceFetch <= lastId) {
            // An id was reused below the list's end: only a full read is sure.
            if (changed)
                emit savedEntitiesChanged();
            return fullFetch(m_dataVersion, error);
        }
        QSqlQuery query(database());
        query.setForwardOnly(true);
        bool ok = query.prepare(selectColumns + QStringLiteral(" WHERE rowid > ? ORDER BY rowid"));
        QList<HistoryData> rows;
        if (ok) {
            query.addBindValue(lastId);
            ok = query.exec();
        }
        while (ok && query.next()) {
            rows.append(readRecord(query));
        }
        if (!ok || query.lastError().isValid()) {
            error = describe(query.lastError());
            if (changed)
                emit savedEntitiesChanged();
            return false;
        }
        m_lowestInsertedSinceFetch = 0;
        if (!rows.isEmpty()) {
            const int first = int(m_savedEntities.size());
            emit entitiesAboutToBeInserted(first, first + int(rows.size()) - 1);
            m_savedEntities.append(rows);
            emit entitiesInserted();
            changed = true;
        }
    }
    if (changed)
        emit savedEntitiesChanged();
    return true;
}
