// The call history store on real SQLite files in temporary folders.
#include "HistoryCallDataService.h"
#include "HistoryListModel.h"
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
    ~OtherWriter() { QSqlDatabase::database(m_name).close(), QSqlDatabase::removeDatabase(m_name); }
    bool exec(const QString &statement) { return QSqlQuery(QSqlDatabase::database(m_name)).exec(statement); }

private:
    static inline int s_count = 0;
    QString m_name;
};

bool startsWithLine(const QStringList &lines, const QString &prefix)
{
    return std::any_of(lines.cbegin(), lines.cend(), [&](const QString &l) { return l.startsWith(prefix); });
}

} // namespace

class TestHistoryCallDataService : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_round = 0;

    QString freshPath() { return m_dir.filePath(QStringLiteral("round%1/CallHistoryData.sqlite").arg(++m_round)); }
    // What a full read of the file gives, through a store of its own.
    QList<HistoryData> readBack(const QString &path) { return HistoryCallDataService(path).savedEntities(); }

private slots:
    void addsInOrderAndKeepsThemOnDisk()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        QVERIFY(store.isLoaded());
        QVERIFY(store.savedEntities().isEmpty());
        QSignalSpy published(&store, &HistoryCallDataService::savedEntitiesChanged);
        store.setClock([] { return QDateTime(QDate(2024, 3, 9), QTime(7, 5, 42)); });
        store.addHistory(QStringLiteral("Ann"), QStringLiteral("Hannah"), QStringLiteral("0612"), true);
        QCOMPARE(published.count(), 1); // at once, through the fetch after the save
        store.addHistory(QString(), QString(), QStringLiteral("#31#+33 6 12"), false);
        store.addHistory(QStringLiteral("Émile"), QStringLiteral(""), QStringLiteral("112"), true);

        const QList<HistoryData> list = store.savedEntities();
        QCOMPARE(list.size(), 3);
        QCOMPARE(list[0].lastName, QStringLiteral("Hannah"));
        QVERIFY(list[0].callHidden && !list[1].callHidden);
        QVERIFY(list[1].firstName.isNull());
        QCOMPARE(list[2].telephone, QStringLiteral("112"));
        QVERIFY(list[0].objectId < list[1].objectId && list[1].objectId < list[2].objectId);
        QCOMPARE(readBack(path), list);
        QCOMPARE(list[0].time(), QStringLiteral("2024-03-09 07:05:42")); // local time, fixed width
    }

    void deletesOneAndAll()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        for (const char *number : { "01", "02", "03" })
            store.addHistory(QString(), QString(), QString::fromLatin1(number), false);
        const QList<HistoryData> before = store.savedEntities();

        // As the history screen does it: a staged delete, save, fetch.
        store.deleteObject(before[1].objectId);
        QCOMPARE(store.savedEntities().size(), 3); // staged only
        store.saveData();
        store.fetchHistory();
        QCOMPARE(store.savedEntities(), (QList<HistoryData>{ before[0], before[2] }));
        QCOMPARE(readBack(path), store.savedEntities());

        StdoutCapture out;
        store.deleteAllHistory();
        QVERIFY(readBack(path).isEmpty());
        store.deleteAllHistory(); // again, on an empty store: no error
        QVERIFY2(out.lines().filter(QStringLiteral("Error")).isEmpty(), qPrintable(out.lines().join(u'\n')));

        // Records added after a clear-all are kept.
        store.addHistory(QString(), QString(), QStringLiteral("05"), true);
        QCOMPARE(readBack(path).size(), 1);
    }

    void storeThatCannotBeOpenedKeepsRunningEmpty()
    {
        // A folder where the file should be: the store cannot be opened.
        const QString path = freshPath();
        QVERIFY(QDir().mkpath(path));
        StdoutCapture out;
        HistoryCallDataService store(path);
        QVERIFY(!store.isLoaded());
        QVERIFY(store.savedEntities().isEmpty());
        QVERIFY(startsWithLine(out.lines(), QStringLiteral("## Error loading Core data :")));

        store.addHistory(QStringLiteral("Ann"), QString(), QStringLiteral("0612"), true);
        QVERIFY(startsWithLine(out.lines(), QStringLiteral("## Error saving to core data ")));
        QVERIFY(store.savedEntities().isEmpty());

        store.deleteAllHistory();
        QVERIFY(startsWithLine(out.lines(), QStringLiteral("Error deleting history data: ")));
    }

    void unreadableFileIsKeptAsideAndANewHistoryStarts()
    {
        const QString path = freshPath();
        QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
        const QByteArray garbage = QByteArray("these bytes are not a database file; ").repeated(200);
        {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(garbage);
        }
        StdoutCapture out;
        HistoryCallDataService store(path);
        const QStringList lines = out.lines();
        QVERIFY2(startsWithLine(lines, QStringLiteral("## Error loading Core data :")), qPrintable(lines.join(u'\n')));
        QVERIFY(store.savedEntities().isEmpty());

        const QStringList aside = QDir(QFileInfo(path).absolutePath())
                                      .entryList({ QStringLiteral("CallHistoryData.sqlite.unreadable-*") }, QDir::Files);
        QCOMPARE(aside.size(), 1);
        QFile kept(QFileInfo(path).absolutePath() + QLatin1Char('/') + aside.first());
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), garbage);
        QVERIFY(startsWithLine(lines, QStringLiteral("The call history file was unreadable; it was kept as ")));

        QVERIFY(store.isLoaded());
        store.addHistory(QString(), QString(), QStringLiteral("0612"), false);
        QCOMPARE(readBack(path).size(), 1);
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
        QVERIFY(startsWithLine(out.lines(), QStringLiteral("## Error saving to core data ")));
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
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HISTORY_WRITER_PATH"), path);
        child.setProcessEnvironment(env);
        child.start(QCoreApplication::applicationFilePath(), {});
        QVERIFY(child.waitForStarted());
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

    void incrementalPublishingEqualsAFullRead()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        HistoryListModel model(&store);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&store, &HistoryCallDataService::entitiesReset);
        OtherWriter other(path);
        QRandomGenerator random(20240309);

        const auto check = [&] {
            const QList<HistoryData> full = readBack(path);
            QCOMPARE(store.savedEntities(), full);
            QCOMPARE(model.rowCount(), int(full.size()));
            for (int row = 0; row < full.size(); ++row)
                QCOMPARE(model.data(model.index(row), HistoryListModel::ObjectIdRole).toLongLong(), full[row].objectId);
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

    void newRowBelowTheLastIdIsStillPublished()
    {
        // Once the largest id is taken, SQLite picks new ids at random below it.
        const QString path = freshPath();
        HistoryCallDataService store(path);
        OtherWriter other(path);
        QVERIFY(other.exec(QStringLiteral(
            "INSERT INTO HistoryData (rowid, telephone, callHidden) VALUES (9223372036854775807, 'last', 0)")));
        store.fetchHistory();
        QCOMPARE(store.savedEntities().size(), 1);
        store.addHistory(QString(), QString(), QStringLiteral("new"), false);
        QCOMPARE(store.savedEntities(), readBack(path));
        QCOMPARE(store.savedEntities().size(), 2);
        QCOMPARE(store.savedEntities().constFirst().telephone, QStringLiteral("new"));
    }

    void timeTextsComeBackExactlyAsStored()
    {
        // The app's own form is kept compactly; every other text as it is.
        const QString path = freshPath();
        const QStringList texts{ QStringLiteral("2024-03-09 17:05:42"), QStringLiteral("0007-01-01 00:00:00"),
                                 QStringLiteral("2024-03-09T17:05:42"), QStringLiteral("２０２４-03-09 17:05:42"),
                                 QStringLiteral("yesterday"), QStringLiteral("") };
        QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
        {
            OtherWriter other(path);
            QVERIFY(other.exec(QStringLiteral("CREATE TABLE HistoryData "
                                              "(firstName TEXT, lastName TEXT, telephone TEXT, time TEXT, callHidden INTEGER)")));
            for (const QString &text : texts)
                QVERIFY(other.exec(QStringLiteral("INSERT INTO HistoryData (telephone, time) VALUES ('1', '%1')").arg(text)));
            QVERIFY(other.exec(QStringLiteral("INSERT INTO HistoryData (telephone) VALUES ('no time')")));
        }
        HistoryCallDataService store(path);
        const QList<HistoryData> list = store.savedEntities();
        QCOMPARE(list.size(), texts.size() + 1);
        for (int i = 0; i < texts.size(); ++i)
            QCOMPARE(list[i].time(), texts[i]);
        QVERIFY(!list[texts.size() - 1].time().isNull());
        QVERIFY(list.constLast().time().isNull());
    }

    void backgroundFirstReadPublishesTheSameRecords()
    {
        const QString path = freshPath();
        {
            HistoryCallDataService writer(path);
            for (int i = 0; i < 500; ++i)
                writer.addHistory(QStringLiteral("Ann"), QString(), QStringLiteral("06%1").arg(i), i % 3 == 0);
        }
        const QList<HistoryData> expected = readBack(path);

        // Published on the event loop, as one reset, in file order.
        {
            HistoryCallDataService store(path, HistoryCallDataService::FirstFetch::InBackground);
            HistoryListModel model(&store);
            QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
            QSignalSpy published(&store, &HistoryCallDataService::savedEntitiesChanged);
            QTRY_VERIFY(!store.isFetchingInBackground());
            QCOMPARE(published.count(), 1);
            QCOMPARE(store.savedEntities(), expected);
            QCOMPARE(model.rowCount(), 500);
        }

        // A call recorded before the read is in lands after the stored ones.
        {
            HistoryCallDataService store(path, HistoryCallDataService::FirstFetch::InBackground);
            store.addHistory(QStringLiteral("Early"), QString(), QStringLiteral("2"), true);
            QVERIFY(!store.isFetchingInBackground());
            QCOMPARE(store.savedEntities().size(), 501);
            QCOMPARE(store.savedEntities().constLast().firstName, QStringLiteral("Early"));
            QCOMPARE(store.savedEntities(), readBack(path));
        }

        // A store going away while its worker reads neither crashes nor leaks the request.
        for (int i = 0; i < 20; ++i)
            HistoryCallDataService(path, HistoryCallDataService::FirstFetch::InBackground);
        QCoreApplication::processEvents();
    }

    void backgroundReadOfAnUnreadableTableLogsAndStaysEmpty()
    {
        const QString path = freshPath();
        {
            HistoryCallDataService writer(path);
            writer.addHistory(QStringLiteral("A"), QString(), QStringLiteral("1"), true);
        }
        {
            OtherWriter other(path);
            // Something of that name that opens like the table but fails to read.
            QVERIFY(other.exec(QStringLiteral("ALTER TABLE HistoryData RENAME TO Kept")));
            QVERIFY(other.exec(QStringLiteral(
                "CREATE VIEW HistoryData AS SELECT abs(-9223372036854775807 - 1) AS firstName, lastName, telephone, "
                "time, callHidden FROM Kept")));
        }
        StdoutCapture out;
        HistoryCallDataService store(path, HistoryCallDataService::FirstFetch::InBackground);
        QTRY_VERIFY(!store.isFetchingInBackground());
        QVERIFY(store.savedEntities().isEmpty());
        QVERIFY2(startsWithLine(out.lines(), QStringLiteral("## Error fetch: ")), qPrintable(out.lines().join('\n')));
    }
};

// The child of killedWriterKeepsItsRecord: adds one record, says so, waits to be killed.
static int runWriter(const QString &path)
{
    HistoryCallDataService store(path);
    store.addHistory(QStringLiteral("Killed"), QStringLiteral("Writer"), QStringLiteral("0600"), true);
    std::fputs("added\n", stdout);
    std::fflush(stdout);
    QThread::sleep(60);
    return 0;
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString writerPath = qEnvironmentVariable("HISTORY_WRITER_PATH");
    if (!writerPath.isEmpty())
        return runWriter(writerPath);
    TestHistoryCallDataService test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_historycalldataservice.moc"
