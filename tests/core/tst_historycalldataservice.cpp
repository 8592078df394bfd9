// The call history store on real SQLite files, in a time zone far from UTC (set in main).
#include "HistoryCallDataService.h"
#include "StdoutCapture.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

#include <csignal>
#include <ctime>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Runs a statement as another program would: the first value read, else whether it ran.
QVariant otherWriter(const QString &path, const QString &statement)
{
    QVariant result;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
        db.setDatabaseName(path);
        QSqlQuery query(db);
        const bool ok = db.open() && query.exec(statement);
        result = ok && query.next() ? query.value(0) : QVariant(ok);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
    return result;
}

bool hasLine(const QStringList &lines, const QString &prefix)
{
    return std::any_of(lines.cbegin(), lines.cend(), [&](const QString &l) { return l.startsWith(prefix); });
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestHistoryCallDataService : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_round = 0;

    QString freshPath() { return m_dir.filePath(QStringLiteral("round%1/CallHistoryData.sqlite").arg(++m_round)); }
    static QList<HistoryData> readBack(const QString &path) { return HistoryCallDataService(path).savedEntities(); }
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
    void addsInLocalTimeAndDeletesOnlyOnSave()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        // 19:20:03 UTC is 09:05:03 the next morning here.
        store.setClock([] { return QDateTime(QDate(2024, 3, 8), QTime(19, 20, 3), Qt::UTC); });
        QSignalSpy published(&store, &HistoryCallDataService::savedEntitiesChanged);
        store.addHistory(QStringLiteral("Ann"), QStringLiteral("Hannah"), QStringLiteral("0612"), true);
        QVERIFY(!published.isEmpty()); // at once, through the save and fetch
        store.addHistory(QString(), QString(), QStringLiteral("#31#+33 6 12"), false);
        store.addHistory(QStringLiteral("Émile"), QStringLiteral(""), QStringLiteral("112"), true);
        const QList<HistoryData> list = store.savedEntities();
        QCOMPARE(list[0].time, QStringLiteral("2024-03-09 09:05:03"));

        // Roles: an absent text is undefined, an empty one "".
        const auto role = [&](int row, const char *name) {
            return store.data(store.index(row), store.roleNames().key(name));
        };
        QCOMPARE(QVariantList({ role(0, "lastName"), role(0, "telephone"), role(1, "callHidden"), role(2, "lastName"),
                                role(2, "objectId"), role(2, "time") }),
                 QVariantList({ "Hannah", "0612", false, "", list[2].objectId, list[2].time }));
        QVERIFY(!role(1, "firstName").isValid());

        store.deleteObject(list[1].objectId);
        QCOMPARE(readBack(path), list); // staged only
        store.saveData();
        store.fetchHistory();
        QCOMPARE(store.savedEntities(), (QList<HistoryData>{ list[0], list[2] }));
    }

    void storeThatCannotBeOpenedRecordsOnceItCan()
    {
        // A folder where the file should be: the store cannot be opened.
        const QString path = freshPath();
        QVERIFY(QDir().mkpath(path));
        StdoutCapture out;
        HistoryCallDataService store(path);
        store.addHistory(QStringLiteral("Ann"), QString(), QStringLiteral("0612"), true);
        store.deleteAllHistory();
        QVERIFY(store.savedEntities().isEmpty());
        for (const char *line : { "## Error loading Core data :", "## Error saving to core data ",
                                  "Error deleting history data: " })
            QVERIFY2(hasLine(out.lines(), QString::fromLatin1(line)), line);

        // Once the cause goes, the failed record is saved with the next one.
        QVERIFY(QDir().rmdir(path));
        store.addHistory(QString(), QString(), QStringLiteral("0700"), false);
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

        // Nothing from a damaged header; else all but the rows of the damaged page.
        const QList<HistoryData> kept = store.savedEntities();
        QVERIFY(std::all_of(kept.cbegin(), kept.cend(), [&](const HistoryData &r) { return original.contains(r); }));
        QVERIFY(headerToo ? kept.isEmpty() : kept.size() > 381 - 100 && kept.size() < 381 && kept.last() == original.last());
        store.addHistory(QString(), QString(), QStringLiteral("0700"), false);
        QCOMPARE(readBack(path), store.savedEntities());
        QCOMPARE(otherWriter(path, QStringLiteral("PRAGMA integrity_check")).toString(), QStringLiteral("ok"));
    }

    void olderFilesAreMigratedNewerOnesOnlyRead_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("version");
        QTest::newRow("missing columns") << "telephone TEXT, time TEXT" << 0;
        QTest::newRow("newer") << "firstName, lastName, telephone, time, callHidden, rating REAL" << 2;
    }
    void olderFilesAreMigratedNewerOnesOnlyRead()
    {
        QFETCH(QString, table);
        QFETCH(int, version);
        const QString path = freshPath();
        QVERIFY(QDir().mkpath(QFileInfo(path).absolutePath()));
        for (const QString &statement : { QStringLiteral("CREATE TABLE HistoryData (%1)").arg(table),
                                          QStringLiteral("INSERT INTO HistoryData (telephone, time) VALUES ('0612', 'yesterday')"),
                                          QStringLiteral("PRAGMA user_version = %1").arg(version) })
            QVERIFY(otherWriter(path, statement).toBool());
        const QByteArray before = contents(path);
        StdoutCapture out;
        HistoryCallDataService store(path);
        store.addHistory(QString(), QString(), QStringLiteral("0700"), false);
        const QList<HistoryData> list = store.savedEntities();
        QVERIFY(!list.isEmpty() && list[0].firstName.isNull());
        QCOMPARE(list[0].telephone + list[0].time, QStringLiteral("0612yesterday"));

        if (version > HistoryCallDataService::schemaVersion) {
            QCOMPARE(list.size(), 1);
            QVERIFY(hasLine(out.lines(), QStringLiteral("## Error saving to core data ")));
            QVERIFY(hasLine(out.lines(), QStringLiteral("The call history file %1 comes from a newer").arg(path)));
            QCOMPARE(contents(path), before);
        } else {
            QCOMPARE(list.size(), 2);
            QCOMPARE(otherWriter(path, QStringLiteral("PRAGMA user_version")).toInt(), HistoryCallDataService::schemaVersion);
            QCOMPARE(readBack(path), list);
        }
    }

    void unwritableFolderIsShownReadOnly()
    {
        // Root writes whatever the modes say: the child gives up root first.
        const QString path = fileWithRows(3);
        const QString folder = QFileInfo(path).absolutePath();
        const QByteArray before = contents(path);
        for (const auto &[name, mode] : { std::pair(m_dir.path(), 0755), { folder, 0555 } })
            QVERIFY(::chmod(QFile::encodeName(name).constData(), mode) == 0);

        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--read-only"), path });
        QVERIFY(child.waitForFinished());
        ::chmod(QFile::encodeName(folder).constData(), 0755);
        const QStringList said = QString::fromUtf8(child.readAllStandardOutput()).split(u'\n');
        QVERIFY2(said.contains(QStringLiteral("rows 3 then 3")), qPrintable(said.join(u'\n')));
        QVERIFY(hasLine(said, QStringLiteral("The call history file %1 cannot be written here").arg(path)));
        QVERIFY(hasLine(said, QStringLiteral("## Error saving to core data ")));
        QCOMPARE(contents(path), before);
    }

    void killedWriterKeepsItsRecord()
    {
        const QString path = freshPath();
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--writer"), path });
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

    void randomSessionEqualsAFullRead()
    {
        const QString path = freshPath();
        HistoryCallDataService store(path);
        QAbstractItemModelTester tester(&store, QAbstractItemModelTester::FailureReportingMode::QtTest);
        store.fetchHistory();
        QSignalSpy resets(&store, &HistoryCallDataService::modelReset);
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
                    QVERIFY(otherWriter(path, QStringLiteral("INSERT INTO HistoryData (telephone, callHidden) VALUES ('x', 1)")).toBool());
                else
                    QVERIFY(otherWriter(path, QStringLiteral("DELETE FROM HistoryData WHERE rowid IN "
                                                             "(SELECT rowid FROM HistoryData ORDER BY random() LIMIT 2)")).toBool());
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

    void firstReadRunsInTheBackground()
    {
        const QString path = fileWithRows(500);
        const QList<HistoryData> expected = readBack(path);
        HistoryCallDataService store(path);
        QCOMPARE(store.rowCount(), 0); // nothing read until asked
        store.readInBackground(); // may be done before it returns on a busy machine
        QTRY_COMPARE(store.rowCount(), 500); // published by the event loop
        QCOMPARE(store.savedEntities(), expected);

        // A call recorded before the read is in lands after the stored ones.
        HistoryCallDataService early(path);
        early.readInBackground();
        early.addHistory(QStringLiteral("Early"), QString(), QStringLiteral("2"), true);
        QCOMPARE(early.savedEntities().size(), 501);
        QCOMPARE(early.savedEntities().constLast().firstName, QStringLiteral("Early"));

        // A store going away while its worker reads neither crashes nor leaks the request.
        for (int i = 0; i < 20; ++i)
            HistoryCallDataService(path, nullptr).readInBackground();
        QCoreApplication::processEvents();
    }
};

static int childMain(const QString &mode, const QString &path)
{
    if (mode == QLatin1StringView("--read-only")) {
        if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0))
            return 2;
        HistoryCallDataService store(path);
        const qsizetype before = store.savedEntities().size();
        store.addHistory(QString(), QString(), QStringLiteral("0700"), false);
        std::printf("rows %lld then %lld\n", qlonglong(before), qlonglong(store.savedEntities().size()));
        return 0;
    }
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
    if (argc == 3 && QByteArray(argv[1]).startsWith("--"))
        return childMain(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    TestHistoryCallDataService test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_historycalldataservice.moc"
