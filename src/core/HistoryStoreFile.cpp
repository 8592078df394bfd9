// The history store's file: opening it (read-only when it cannot be
// written), its schema version and migration, and setting a damaged file
// aside with what can still be read of it.
#include "HistoryCallDataService.h"

#include "HistorySql.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QUrl>

#include <unistd.h>

using namespace HistorySql;

namespace {

// Copies every row of `from` that can be read into `to`, ids kept. A damaged
// page fails the reads that touch it: the rows after it are found again by
// looking further on, first in growing steps, then by halving the gap.
int copyReadableRows(const QSqlDatabase &from, const QSqlDatabase &to)
{
    QSqlQuery read(from), insert(to);
    read.setForwardOnly(true);
    insert.prepare(QStringLiteral("INSERT INTO HistoryData (rowid, firstName, lastName, telephone, time, callHidden) "
                                  "VALUES (?, ?, ?, ?, ?, ?)"));
    const auto readsAfter = [&](qint64 after) {
        read.prepare(selectColumns + QStringLiteral(" WHERE rowid > ? ORDER BY rowid LIMIT 1"));
        read.addBindValue(after);
        return read.exec() && (read.next() || !read.lastError().isValid());
    };
    constexpr qint64 last = std::numeric_limits<qint64>::max();
    qint64 after = std::numeric_limits<qint64>::min();
    int copied = 0;
    for (;;) {
        read.prepare(selectColumns + QStringLiteral(" WHERE rowid > ? ORDER BY rowid"));
        read.addBindValue(after);
        bool ok = read.exec();
        while (ok && read.next()) {
            const HistoryData r = readRecord(read);
            after = r.objectId;
            insert.bindValue(0, r.objectId);
            bindRecord(insert, r, 1);
            copied += insert.exec() ? 1 : 0;
        }
        if (ok && !read.lastError().isValid())
            return copied;
        // Ids are searched as distances from `after`, which never overflow.
        const auto plus = [](qint64 id, quint64 distance) { return qint64(quint64(id) + distance); };
        qint64 failing = after;
        quint64 step = 1;
        while (step != 0 && step <= quint64(last) - quint64(failing) && !readsAfter(plus(failing, step))) {
            failing = plus(failing, step);
            step *= 2;
        }
        if (step == 0 || step > quint64(last) - quint64(failing))
            return copied;
        qint64 working = plus(failing, step);
        while (quint64(working) - quint64(failing) > 1) {
            const qint64 middle = plus(failing, (quint64(working) - quint64(failing)) / 2);
            (readsAfter(middle) ? working : failing) = middle;
        }
        after = working;
    }
}

} // namespace

QSqlDatabase HistoryCallDataService::database() const
{
    return QSqlDatabase::database(m_connectionName, false);
}

HistoryCallDataService::OpenResult HistoryCallDataService::openStore(QString &error)
{
    closeStore();
    const QFileInfo file(m_databasePath);
    const QString folder = file.absolutePath();
    if (!QDir().mkpath(folder)) {
        error = QStringLiteral("cannot create the folder %1").arg(folder);
        return Failed;
    }
    if (file.exists() && !file.isFile()) {
        error = QStringLiteral("%1 is not a file").arg(m_databasePath);
        return Failed;
    }
    // SQLite needs the folder too, for its journal files.
    const bool writable = ::access(QFile::encodeName(folder).constData(), W_OK) == 0
        && (!file.exists() || ::access(QFile::encodeName(m_databasePath).constData(), W_OK) == 0);

    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    QSqlQuery query(db);
    const auto run = [&](const QString &statement) { return execute(query, statement, error); };
    int version = 0;
    const auto openAs = [&](const QString &name, const QString &options) {
        db.close();
        db.setDatabaseName(name);
        db.setConnectOptions(options);
        if (!db.open()) {
            error = describe(db.lastError());
            return false;
        }
        query = QSqlQuery(db);
        if (!run(QStringLiteral("PRAGMA user_version")) || !query.next())
            return false;
        version = query.value(0).toInt();
        m_readName = name;
        m_readOptions = options;
        return true;
    };
    // Read-only: as it is when SQLite can keep its shared-memory file next to
    // it, else as a file that nobody changes while it is open.
    const auto openReadOnly = [&] {
        m_readOnly = true;
        const QString url = QUrl::fromLocalFile(m_databasePath).toString(QUrl::FullyEncoded);
        const QString options = QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=5000");
        return openAs(url + QStringLiteral("?mode=ro"), options)
            || openAs(url + QStringLiteral("?immutable=1"), options);
    };

    bool ok;
    if (!writable) {
        ok = openReadOnly();
        if (ok)
            log(QStringLiteral("The call history file %1 cannot be written here; it is shown read-only and new calls "
                               "are not recorded.").arg(m_databasePath));
    } else {
        m_readOnly = false;
        ok = openAs(m_databasePath, QStringLiteral("QSQLITE_BUSY_TIMEOUT=5000"));
        if (ok && version > schemaVersion) {
            ok = openReadOnly();
            if (ok)
                log(QStringLiteral("The call history file %1 comes from a newer version of the app; it is shown "
                                   "read-only and never changed.").arg(m_databasePath));
        } else if (ok) {
            m_readName = m_databasePath;
            m_readOptions = QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=5000");
            // A commit reaches the operating system before saveData() returns,
            // so a record survives the app being killed at any moment. The disk
            // is synced at checkpoints rather than on every record: a power cut
            // may lose the latest records, never the file.
            ok = run(QStringLiteral("PRAGMA journal_mode=WAL")) && run(QStringLiteral("PRAGMA synchronous=NORMAL"));
            if (ok && version < schemaVersion)
                ok = migrate(db, error);
        }
    }
    if (!ok) {
        const bool damaged = isDamage(query.lastError()) || isDamage(db.lastError());
        query = QSqlQuery();
        db = QSqlDatabase();
        closeStore();
        return damaged ? Damaged : Failed;
    }
    m_loaded = true;
    return Opened;
}

bool HistoryCallDataService::migrate(QSqlDatabase &db, QString &error)
{
    // A file of the first form has the table, or not yet, or one that lacks
    // columns: one transaction brings it to the current form, rows kept.
    QSqlQuery query(db);
    const auto run = [&](const QString &statement) { return execute(query, statement, error); };
    bool ok = db.transaction();
    if (!ok)
        error = describe(db.lastError());
    ok = ok
        && run(QStringLiteral("CREATE TABLE IF NOT EXISTS HistoryData "
                              "(firstName TEXT, lastName TEXT, telephone TEXT, time TEXT, callHidden INTEGER)"))
        && run(QStringLiteral("PRAGMA table_info(HistoryData)"));
    QStringList present;
    while (ok && query.next())
        present.append(query.value(1).toString().toLower());
    for (const char *column : { "firstName", "lastName", "telephone", "time", "callHidden" }) {
        const QString name = QString::fromLatin1(column);
        if (ok && !present.contains(name.toLower()))
            ok = run(QStringLiteral("ALTER TABLE HistoryData ADD COLUMN %1 %2")
                         .arg(name, name == QLatin1StringView("callHidden") ? QStringLiteral("INTEGER")
                                                                            : QStringLiteral("TEXT")));
    }
    ok = ok && run(QStringLiteral("PRAGMA user_version = %1").arg(schemaVersion));
    if (ok && !db.commit()) {
        ok = false;
        error = describe(db.lastError());
    }
    if (!ok)
        db.rollback();
    return ok;
}

void HistoryCallDataService::closeStore()
{
    m_loaded = false;
    m_dataVersion = -1;
    if (QSqlDatabase::contains(m_connectionName)) {
        database().close();
        QSqlDatabase::removeDatabase(m_connectionName);
    }
}

bool HistoryCallDataService::ensureLoaded(QString &error)
{
    // A store that could not be opened (a full disk, say) tries again at
    // each use, so that it records again once the cause is gone.
    if (m_loaded)
        return true;
    const OpenResult opened = openStore(error);
    if (opened == Opened)
        readAgain();
    else if (opened == Damaged)
        setAsideDamagedFile();
    if (!m_loaded && error.isEmpty())
        error = QStringLiteral("the call history store %1 is not loaded").arg(m_databasePath);
    return m_loaded;
}

void HistoryCallDataService::setAsideDamagedFile()
{
    // The user's file is never deleted: it and its journal files move to a
    // name of their own, and what can still be read goes into a new file.
    closeStore();
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString aside = m_databasePath + QStringLiteral(".damaged-") + stamp;
    for (int n = 2; QFileInfo::exists(aside) || QFileInfo::exists(aside + QStringLiteral("-wal")); ++n)
        aside = m_databasePath + QStringLiteral(".damaged-%1-%2").arg(stamp).arg(n);
    if (!QFile::rename(m_databasePath, aside)) {
        log(QStringLiteral("The call history file %1 is damaged and could not be moved aside; it stays as it is.")
                .arg(m_databasePath));
        return;
    }
    for (const QString suffix : { QStringLiteral("-wal"), QStringLiteral("-shm") }) {
        if (QFileInfo::exists(m_databasePath + suffix))
            QFile::rename(m_databasePath + suffix, aside + suffix);
    }
    QString error;
    if (openStore(error) != Opened) {
        log(QStringLiteral("## Error loading Core data :") + error);
        return;
    }
    int copied = 0;
    const QString connection = newConnectionName();
    {
        QSqlDatabase damaged = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        damaged.setDatabaseName(aside);
        damaged.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        QSqlDatabase db = database();
        if (damaged.open() && db.transaction()) {
            copied = copyReadableRows(damaged, db);
            if (!db.commit())
                copied = 0;
        }
    }
    QSqlDatabase::removeDatabase(connection);
    log(QStringLiteral("The call history file was damaged; it was kept as %1 and the %2 calls still readable in it "
                       "were copied into a new one.").arg(aside).arg(copied));
    const qint64 version = dataVersion();
    ReadResult result = readAll(database());
    if (!result.error.isEmpty()) {
        log(QStringLiteral("## Error fetch: ") + result.error);
        return;
    }
    m_dataVersion = version;
    publish(std::move(result.rows));
}

