// The call history store on real SQLite files in temporary folders. The whole
// program runs in a time zone far from UTC (set in main).
#include "HistoryCallDataService.h"
#include "StdoutCapture.h"

#include <QAbstractItemModelTester>
#include <QProcess>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <ctime>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Runs SQL on the file through a connection of its own, as another program would.
class OtherWriter
{
public:
    explicit OtherWriter(const QString &path) : m_name(QStringLiteral("other-writer-%1").arg(++s_count))
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        db.setDatabaseName(path);
        QVERIFY(db.open());
    }
    ~OtherWriter()
    {
        QSqlDatabase::database(m_name).close();
        QSqlDatabase::removeDatabase(m_name);
    }
    bool exec(const QString &statement) { return QSqlQuery(QSqlDatabase::database(m_name)).exec(statement); }
    QVariant value(const QString &statement)
    {
        QSqlQuery query(QSqlDatabase::database(m_name));
        return query.exec(statement) && query.next() ? query.value(0) : QVariant();
    }

private:
    static inline int s_count = 0;
    QString m_name;
};

bool hasLine(const QStringList &lines, const QString &prefix)
{
    return std::any_of(lines.cbegin(), lines.cend(), [&](const QString &l) { return l.startsWith(prefix); });
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Runs this program as a child in `mode` on `path`; returns what it printed.
QString runChild(const QString &mode, const QString &path, QProcess &child)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("HISTORY_CHILD"), mode);
    env.insert(QStringLiteral("HISTORY_CHILD_PATH"), path);
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), {});
    return child.waitForStarted() ? QString() : child.errorString();
}

} // namespace

class TestHistoryCallDataService : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_round = 0;

    QString freshPath() { return m_dir.filePath(QStringLiteral("round%1/CallHistoryData.sqlite").arg(++m_round)); }
    // What a full read of the file gives, through a store of its own.
    static QList<HistoryData> readBack(const QString &path)
    {
        HistoryCallDataService store(path);
        store.fetchHistory();
        return store.savedEntities();
    }
    QString fileWithRows(int rows)
    {
        const QString path = freshPath();
        HistoryCallDataService writer(path);
        for (int i = 0; i < rows; ++i)
            writer.addHistory(QStringLiteral("Firstname%1").arg(i), QStringLiteral("Lastname%1").arg(i),
                              QStringLiteral("+33 6 12 34 %1").arg(i), i % 3 == 0);
        return path;
    }

private slots:
    void addsInOrderInLocalTimeAndKeepsThemOnDisk()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        QAbstractItemModelTester tester(&store, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy published(&store, &HistoryCallDataService::savedEntitiesChanged);
        QVERIFY(published.wait());
        QCOMPARE(store.rowCount(), 0);
        // 19:20:03 UTC is 09:05:03 the next morning here.
        store.setClock([] { return QDateTime(QDate(2024, 3, 8), QTime(19, 20, 3), Qt::UTC); });
        QSignalSpy inserted(&store, &HistoryCallDataService::rowsInserted);
        store.addHistory(QStringLiteral("Ann"), QStringLiteral("Hannah"), QStringLiteral("0612"), true);
        QCOMPARE(published.count(), 2); // at once, through the save and fetch
        store.addHistory(QString(), QString(), QStringLiteral("#31#+33 6 12"), false);
        store.addHistory(QStringLiteral("Émile"), QStringLiteral(""), QStringLiteral("112"), true);
        QCOMPARE(inserted.count(), 3);

        const QList<HistoryData> list = store.savedEntities();
        QCOMPARE(list.size(), 3);
        QCOMPARE(list[0].time, QStringLiteral("2024-03-09 09:05:03"));
        QVERIFY(list[0].callHidden && !list[1].callHidden);
        QVERIFY(list[0].objectId < list[1].objectId && list[1].objectId < list[2].objectId);
        QCOMPARE(readBack(path), list);

        // Roles: an absent text is undefined, an empty one "".
        const auto role = [&](int row, const char *name) {
            return store.data(store.index(row), store.roleNames().key(name));
        };
        QCOMPARE(role(0, "lastName").toString(), QStringLiteral("Hannah"));
        QVERIFY(!role(1, "firstName").isValid());
        QCOMPARE(role(2, "lastName"), QVariant(QStringLiteral("")));
        QCOMPARE(role(1, "callHidden"), QVariant(false));
        QCOMPARE(role(2, "objectId").toLongLong(), list[2].objectId);
        QCOMPARE(role(2, "time").toString(), list[2].time);
        QCOMPARE(role(0, "telephone").toString(), QStringLiteral("0612"));
    }

    void deletesOneAndAll()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        for (const char *number : { "01", "02", "03" })
            store.addHistory(QString(), QString(), QString::fromLatin1(number), false);
        const QList<HistoryData> before = store.savedEntities();

        // As the history screen does it: a staged delete, save, fetch; one row goes.
        QSignalSpy removed(&store, &HistoryCallDataService::rowsRemoved);
        QSignalSpy resets(&store, &HistoryCallDataService::modelReset);
        store.deleteObject(before[1].objectId);
        QCOMPARE(store.savedEntities().size(), 3); // staged only
        store.saveData();
        store.fetchHistory();
        QCOMPARE(store.savedEntities(), (QList<HistoryData>{ before[0], before[2] }));
        QCOMPARE(readBack(path), store.savedEntities());
        QCOMPARE(removed.count(), 1);
        QCOMPARE(resets.count(), 0);

        StdoutCapture out;
        store.deleteAllHistory();
        QVERIFY(store.savedEntities().isEmpty());
        QVERIFY(readBack(path).isEmpty());
        store.deleteAllHistory(); // again, on an empty store: no error
        QVERIFY2(out.lines().filter(QStringLiteral("Error")).isEmpty(), qPrintable(out.lines().join(u'\n')));

        // Records added after a clear-all are kept.
        store.addHistory(QString(), QString(), QStringLiteral("05"), true);
        QCOMPARE(readBack(path).size(), 1);
    }

    void storeThatCannotBeOpenedRecordsOnceItCan()
    {
        // A folder where the file should be: the store cannot be opened.
        const QString path = freshPath();
        QVERIFY(QDir().mkpath(path));
        StdoutCapture out;
        HistoryCallDataService store(path);
        QVERIFY(!store.isLoaded());
        QVERIFY(hasLine(out.lines(), QStringLiteral("## Error loading Core data :")));

        store.addHistory(QStringLiteral("Ann"), QString(), QStringLiteral("0612"), true);
        QVERIFY(hasLine(out.lines(), QStringLiteral("## Error saving to core data ")));
        QVERIFY(store.savedEntities().isEmpty());
        store.deleteAllHistory();
        QVERIFY(hasLine(out.lines(), QStringLiteral("Error deleting history data: ")));

        // The cause goes away: the next use opens the file, and the record
        // that failed is saved with the new one.
        QVERIFY(QDir().rmdir(path));
        store.addHistory(QString(), QString(), QStringLiteral("0700"), false);
        QVERIFY(store.isLoaded());
        QCOMPARE(store.savedEntities().size(), 2);
        QCOMPARE(readBack(path), store.savedEntities());
    }

    void damagedFileIsSetAsideAndItsReadableRowsKept_data()
    {
        QTest::addColumn<bool>("headerToo");
        QTest::newRow("one damaged page") << false;
        QTest::newRow("damaged header") << true;
    }
    void damagedFileIsSetAsideAndItsReadableRowsKept()
    {
        QFETCH(bool, headerToo);
        const QString path = fileWithRows(381);
        const QList<HistoryData> original = readBack(path);
        {
            QFile file(path);
            QVERIFY(file.size() >= 8 * 4096 && file.open(QIODevice::ReadWrite));
            file.seek(headerToo ? 0 : 3 * 4096); // the first page, or a page of rows
            file.write(QByteArray(4096, '\xA5'));
        }
        const QByteArray damaged = contents(path);

        StdoutCapture out;
        HistoryCallDataService store(path);
        store.fetchHistory();
        const QStringList aside = QFileInfo(path).dir().entryList({ QStringLiteral("*.damaged-*[0-9]") });
        QCOMPARE(aside.size(), 1);
        QCOMPARE(contents(QFileInfo(path).dir().filePath(aside[0])), damaged);
        QVERIFY2(hasLine(out.lines(), QStringLiteral("The call history file was damaged; it was kept as ")),
                 qPrintable(out.lines().join(u'\n')));

        const QList<HistoryData> kept = store.savedEntities();
        if (headerToo) {
            QVERIFY(kept.isEmpty());
        } else {
            // All but the rows of the damaged page, the last one included.
            QVERIFY2(kept.size() > 381 - 100 && kept.size() < 381, qPrintable(QString::number(kept.size())));
            for (const HistoryData &r : kept)
                QVERIFY(original.contains(r));
            QCOMPARE(kept.constLast(), original.constLast());
        }
        store.addHistory(QString(), QString(), QStringLiteral("0700"), false);
        QCOMPARE(readBack(path), store.savedEntities());
        QCOMPARE(OtherWriter(path).value(QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
    }

    void olderFilesAreMigratedNewerOnesOnlyRead_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("version");
        QTest::newRow("first form") << "firstName TEXT, lastName TEXT, telephone TEXT, time TEXT, callHidden INTEGER" << 0;
        QTest::newRow("missing columns") << "telephone TEXT, time TEXT" << 0;
        QTest::newRow("newer") << "firstName, lastName, telephone, time, callHidden, rating REAL" << 2;
    }
    void olderFilesAreMigratedNewerOnesOnlyRead()
    {
        QFETCH(QString, table);
        QFETCH(int, version);
        const QString path = freshPath();
        QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
        {
            OtherWriter other(path);
            QVERIFY(other.exec(QStringLiteral("CREATE TABLE HistoryData (%1)").arg(table)));
            QVERIFY(other.exec(QStringLiteral("INSERT INTO HistoryData (telephone, time) VALUES ('0612', 'yesterday')")));
            QVERIFY(other.exec(QStringLiteral("PRAGMA user_version = %1").arg(version)));
        }
        const QByteArray before = contents(path);
        StdoutCapture out;
        HistoryCallDataService store(path);
        store.addHistory(QString(), QString(), QStringLiteral("0700"), false);
        const QList<HistoryData> list = store.savedEntities();
        QVERIFY(!list.isEmpty());
        QCOMPARE(list[0].telephone, QStringLiteral("0612"));
        QCOMPARE(list[0].time, QStringLiteral("yesterday"));
        QVERIFY(list[0].firstName.isNull());

        OtherWriter other(path);
        if (version > HistoryCallDataService::schemaVersion) {
            QCOMPARE(list.size(), 1);
            QVERIFY(hasLine(out.lines(), QStringLiteral("## Error saving to core data ")));
            QVERIFY(hasLine(out.lines(), QStringLiteral("The call history file %1 comes from a newer").arg(path)));
            QCOMPARE(contents(path), before);
        } else {
            QCOMPARE(list.size(), 2);
            QCOMPARE(other.value(QStringLiteral("PRAGMA user_version")).toInt(), HistoryCallDataService::schemaVersion);
            QCOMPARE(readBack(path), list);
        }
    }

    void unwritableFileIsShownReadOnly_data()
    {
        QTest::addColumn<int>("folderMode");
        QTest::addColumn<int>("fileMode");
        QTest::newRow("read-only folder") << 0555 << 0644;
        QTest::newRow("read-only file") << 0777 << 0444;
    }
    void unwritableFileIsShownReadOnly()
    {
        // Root writes whatever the modes say: the child gives up root first.
        QFETCH(int, folderMode);
        QFETCH(int, fileMode);
        const QString path = fileWithRows(3);
        const QString folder = QFileInfo(path).absolutePath();
        const QByteArray before = contents(path);
        QVERIFY(::chmod(QFile::encodeName(m_dir.path()).constData(), 0755) == 0);
        QVERIFY(::chmod(QFile::encodeName(path).constData(), fileMode) == 0);
        QVERIFY(::chmod(QFile::encodeName(folder).constData(), folderMode) == 0);

        QProcess child;
        QCOMPARE(runChild(QStringLiteral("readonly"), path, child), QString());
        QVERIFY(child.waitForFinished());
        ::chmod(QFile::encodeName(folder).constData(), 0755);
        const QStringList said = QString::fromUtf8(child.readAllStandardOutput()).split(u'\n');
        QVERIFY2(said.contains(QStringLiteral("rows 3 then 3")), qPrintable(said.join(u'\n')));
        QVERIFY(hasLine(said, QStringLiteral("The call history file %1 cannot be written here").arg(path)));
        QVERIFY(hasLine(said, QStringLiteral("## Error saving to core data ")));
        QCOMPARE(contents(path), before);
    }

    void failedSaveStaysPendingUntilASaveSucceeds()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        store.addHistory(QString(), QString(), QStringLiteral("01"), false);
        OtherWriter other(path);
        QVERIFY(other.exec(QStringLiteral(
            "CREATE TRIGGER refuse BEFORE INSERT ON HistoryData BEGIN SELECT RAISE(ABORT, 'disk says no'); END")));

        StdoutCapture out;
        store.addHistory(QString(), QString(), QStringLiteral("02"), true);
        QVERIFY(hasLine(out.lines(), QStringLiteral("## Error saving to core data ")));
        QCOMPARE(store.savedEntities().size(), 1);
        QVERIFY(store.hasPendingChanges());

        QVERIFY(other.exec(QStringLiteral("DROP TRIGGER refuse")));
        store.addHistory(QString(), QString(), QStringLiteral("03"), false);
        QCOMPARE(store.savedEntities().size(), 3);
        QCOMPARE(store.savedEntities()[1].telephone, QStringLiteral("02"));
        QVERIFY(!store.hasPendingChanges());
        QCOMPARE(readBack(path), store.savedEntities());
    }

    void killedWriterKeepsItsRecord()
    {
        const QString path = freshPath();
        QProcess child;
        QCOMPARE(runChild(QStringLiteral("writer"), path, child), QString());
        QByteArray said;
        while (!said.contains("added\n") && child.waitForReadyRead(10000))
            said += child.readAllStandardOutput();
        QVERIFY2(said.contains("added\n"), said.constData());
        ::kill(pid_t(child.processId()), SIGKILL);
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.exitStatus(), QProcess::CrashExit);

        const QList<HistoryData> kept = readBack(path);
        QCOMPARE(kept.size(), 1);
        QCOMPARE(kept[0].telephone, QStringLiteral("0600"));
    }

    void randomSessionEqualsAFullRead()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        QAbstractItemModelTester tester(&store, QAbstractItemModelTester::FailureReportingMode::QtTest);
        store.fetchHistory();
        QSignalSpy resets(&store, &HistoryCallDataService::modelReset);
        OtherWriter other(path);
        QRandomGenerator random(20240309);

        const auto check = [&] {
            const QList<HistoryData> full = readBack(path);
            QCOMPARE(store.savedEntities(), full);
            QCOMPARE(store.rowCount(), int(full.size()));
            for (int row = 0; row < full.size(); ++row)
                QCOMPARE(store.data(store.index(row), HistoryCallDataService::ObjectIdRole).toLongLong(),
                         full[row].objectId);
        };

        for (int i = 0; i < 30; ++i)
            store.addHistory(QStringLiteral("N%1").arg(i), QString(), QStringLiteral("%1").arg(i), i % 2);
        check();
        QCOMPARE(resets.count(), 0); // every add was published by appending

        for (int step = 0; step < 300; ++step) {
            const QList<HistoryData> &list = store.savedEntities();
            switch (random.bounded(6)) {
            case 0:
            case 1:
                store.addHistory(QString(), QString(), QStringLiteral("%1").arg(step), random.bounded(2));
                break;
            case 2: // several deletes, then one save
                for (int n = random.bounded(1, 4); n > 0 && !list.isEmpty(); --n)
                    store.deleteObject(list[random.bounded(int(list.size()))].objectId);
                store.saveData();
                store.fetchHistory();
                break;
            case 3: // delete the last row, then add: SQLite may hand out its id again
                if (!list.isEmpty())
                    store.deleteObject(list.constLast().objectId);
                store.saveData();
                store.addHistory(QString(), QString(), QStringLiteral("again"), true);
                break;
            case 4: // another program writes in between
                if (random.bounded(2))
                    QVERIFY(other.exec(QStringLiteral("INSERT INTO HistoryData (telephone, callHidden) VALUES ('x', 1)")));
                else
                    QVERIFY(other.exec(QStringLiteral("DELETE FROM HistoryData WHERE rowid IN "
                                                      "(SELECT rowid FROM HistoryData ORDER BY random() LIMIT 2)")));
                store.fetchHistory();
                break;
            case 5:
                if (random.bounded(10) == 0)
                    store.deleteAllHistory();
                else
                    store.fetchHistory();
                break;
            }
            check();
            if (QTest::currentTestFailed())
                return;
        }
    }

    void newRowBelowTheLastIdIsStillListed()
    {
        // Once the largest id is taken, SQLite picks new ids at random below it.
        const QString path = freshPath();
        HistoryCallDataService store(path);
        QVERIFY(OtherWriter(path).exec(QStringLiteral(
            "INSERT INTO HistoryData (rowid, telephone, callHidden) VALUES (9223372036854775807, 'last', 0)")));
        store.addHistory(QString(), QString(), QStringLiteral("new"), false);
        QCOMPARE(store.savedEntities(), readBack(path));
        QCOMPARE(store.savedEntities().size(), 2);
        QCOMPARE(store.savedEntities().constFirst().telephone, QStringLiteral("new"));
    }

    void firstReadRunsInTheBackground()
    {
        const QString path = fileWithRows(500);
        const QList<HistoryData> expected = readBack(path);
        {
            // Published by the event loop, in file order.
            HistoryCallDataService store(path);
            QTRY_VERIFY(!store.isFetchingInBackground());
            QCOMPARE(store.savedEntities(), expected);
        }
        {
            // A call recorded before the read is in lands after the stored ones.
            HistoryCallDataService store(path);
            store.addHistory(QStringLiteral("Early"), QString(), QStringLiteral("2"), true);
            QVERIFY(!store.isFetchingInBackground());
            QCOMPARE(store.savedEntities().size(), 501);
            QCOMPARE(store.savedEntities().constLast().firstName, QStringLiteral("Early"));
        }
        // A store going away while its worker reads neither crashes nor leaks the request.
        for (int i = 0; i < 20; ++i)
            HistoryCallDataService(path, nullptr);
        QCoreApplication::processEvents();
    }

    void unreadableTableLogsAndStaysEmpty()
    {
        const QString path = fileWithRows(1);
        {
            OtherWriter other(path);
            // Something of that name that opens like the table but fails to read.
            QVERIFY(other.exec(QStringLiteral("ALTER TABLE HistoryData RENAME TO Kept")));
            QVERIFY(other.exec(QStringLiteral(
                "CREATE VIEW HistoryData AS SELECT abs(-9223372036854775807 - 1) AS firstName, lastName, telephone, "
                "time, callHidden FROM Kept")));
        }
        StdoutCapture out;
        HistoryCallDataService store(path);
        QTRY_VERIFY(!store.isFetchingInBackground());
        QVERIFY(store.savedEntities().isEmpty());
        QVERIFY2(hasLine(out.lines(), QStringLiteral("## Error fetch: ")), qPrintable(out.lines().join('\n')));
    }
};

// The children of the tests above.
static int childMain(const QString &mode, const QString &path)
{
    if (mode == QLatin1StringView("readonly")) {
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0))
            return 2;
        HistoryCallDataService store(path);
        store.fetchHistory();
        const qsizetype before = store.savedEntities().size();
        store.addHistory(QString(), QString(), QStringLiteral("0700"), false);
        std::printf("rows %lld then %lld\n", qlonglong(before), qlonglong(store.savedEntities().size()));
        return 0;
    }
    // Adds one record, says so, waits to be killed.
    HistoryCallDataService store(path);
    store.addHistory(QStringLiteral("Killed"), QStringLiteral("Writer"), QStringLiteral("0600"), true);
    std::fputs("added\n", stdout);
    std::fflush(stdout);
    QThread::sleep(60);
    return 0;
}

int main(int argc, char **argv)
{
    // 13:45 ahead of UTC all year.
    qputenv("TZ", "<+1345>-13:45");
    ::tzset();
    QCoreApplication app(argc, argv);
    if (qEnvironmentVariableIsSet("HISTORY_CHILD"))
        return childMain(qEnvironmentVariable("HISTORY_CHILD"), qEnvironmentVariable("HISTORY_CHILD_PATH"));
    TestHistoryCallDataService test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_historycalldataservice.moc"
