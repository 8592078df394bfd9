// The settings file: typing rules, damaged files, full disks, killed and concurrent writers.
#include "JsonFileKeyValueStore.h"
#include "StdoutCapture.h"

#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

class TestJsonFileKeyValueStore : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const QString &name) const { return QDir(m_dir.path()).filePath(name); }
    static void writeRaw(QFile &raw, const QByteArray &content)
    {
        QVERIFY(raw.open(QIODevice::WriteOnly));
        raw.write(content);
        raw.close();
    }

private slots:
    // Written by one store, read back by a second on the same file, as by the next launch.
    void readingRules_data()
    {
        QTest::addColumn<std::optional<SettingValue>>("stored");
        QTest::addColumn<bool>("asBool");
        QTest::addColumn<qint64>("asInteger");
        QTest::addColumn<std::optional<QString>>("asText");
        using V = std::optional<SettingValue>;
        using T = std::optional<QString>;
        const auto text = [](const char *t) { return V(SettingValue(QString::fromUtf8(t))); };
        QTest::newRow("absent") << V() << false << qint64(0) << T();
        QTest::newRow("true") << V(true) << true << qint64(1) << T("1");
        QTest::newRow("false") << V(false) << false << qint64(0) << T("0");
        QTest::newRow("2") << V(qint64(2)) << true << qint64(2) << T("2");
        QTest::newRow("0") << V(qint64(0)) << false << qint64(0) << T("0");
        QTest::newRow("text 00") << text("00") << false << qint64(0) << T("00");
        QTest::newRow("text false") << text("false") << false << qint64(0) << T("false");
        QTest::newRow("text empty") << text("") << false << qint64(0) << T("");
        QTest::newRow("text true") << text("true") << true << qint64(0) << T("true");
        QTest::newRow("text YES") << text(" YES") << true << qint64(0) << T(" YES");
        QTest::newRow("text 01") << text("01") << true << qint64(1) << T("01");
        QTest::newRow("text -1") << text("-1") << true << qint64(-1) << T("-1");
        QTest::newRow("text 42abc") << text("  42abc") << true << qint64(42) << T("  42abc");
        QTest::newRow("largest") << V(std::numeric_limits<qint64>::max()) << true << std::numeric_limits<qint64>::max()
                                 << T("9223372036854775807");
        QTest::newRow("date") << V(QDateTime::fromString("2024-03-09T09:05:03.250+01:00", Qt::ISODateWithMs)) << false
                              << qint64(0) << T();
    }
    void readingRules()
    {
        QFETCH(std::optional<SettingValue>, stored);
        QFETCH(bool, asBool);
        QFETCH(qint64, asInteger);
        QFETCH(std::optional<QString>, asText);
        const QString file = path(QStringLiteral("rules/%1.json").arg(QTest::currentDataTag()));
        if (stored)
            JsonFileKeyValueStore::open(file)->setObject(QStringLiteral("key"), *stored);
        auto store = JsonFileKeyValueStore::open(file);
        QVERIFY(store);
        QVERIFY(store->object(QStringLiteral("key")) == stored);
        QCOMPARE(store->boolValue(QStringLiteral("key")), asBool);
        QCOMPARE(store->integerValue(QStringLiteral("key")), asInteger);
        QCOMPARE(store->stringValue(QStringLiteral("key")), asText);
        QCOMPARE(store->dateValue(QStringLiteral("key")).has_value(), stored && std::holds_alternative<QDateTime>(*stored));
    }

    void unknownEntriesAreKept()
    {
        const QString file = path(QStringLiteral("unknown.json"));
        QFile raw(file);
        writeRaw(raw, R"({"later": [1, 2, {"x": null}], "prefix": "141", "appOpenCount": 1e300, "low": -9.3e18})");

        StdoutCapture out;
        auto store = JsonFileKeyValueStore::open(file);
        QVERIFY(store->hasObject(QStringLiteral("prefix")));
        for (const char *key : { "later", "appOpenCount", "low" })
            QVERIFY(!store->object(QString::fromLatin1(key)));
        QCOMPARE(out.lines().size(), 2);
        store->setBool(QStringLiteral("hiddenNumber"), true);

        QVERIFY(raw.open(QIODevice::ReadOnly));
        const QJsonObject saved = QJsonDocument::fromJson(raw.readAll()).object();
        QCOMPARE(saved.value(QStringLiteral("later")).toArray().size(), 3);
        QCOMPARE(saved.value(QStringLiteral("appOpenCount")).toDouble(), 1e300);
        QCOMPARE(saved.value(QStringLiteral("prefix")).toString(), QStringLiteral("141"));
    }

    // Cut-off, non-object, empty and binary files within one second: each kept aside apart, a fresh store starts.
    void unreadableFilesAreMovedAsideNotLost()
    {
        const QDir folder(path(QStringLiteral("broken")));
        QVERIFY(folder.mkpath(QStringLiteral(".")));
        QFile raw(folder.filePath(QStringLiteral("suite.json")));
        QByteArrayList kept;
        for (const QByteArray &content : { QByteArray("{\"prefix\": \"#31#\", trunc"), QByteArray("[1,2]"),
                                           QByteArray(""), QByteArray("\xff\xfe\x00", 3) }) {
            writeRaw(raw, content);
            StdoutCapture out;
            auto store = JsonFileKeyValueStore::open(raw.fileName());
            QVERIFY(store);
            QVERIFY(!store->hasObject(QStringLiteral("prefix")));
            store->setBool(QStringLiteral("ok"), true);
            QVERIFY(JsonFileKeyValueStore::open(raw.fileName())->boolValue(QStringLiteral("ok")));
            QCOMPARE(out.lines().size(), 1);
            QVERIFY(out.lines().constFirst().contains(QStringLiteral("could not be read")));
            kept.append(content);
            QByteArrayList aside;
            for (const QString &name : folder.entryList({ QStringLiteral("suite.json.unreadable-*") })) {
                QFile file(folder.filePath(name));
                aside.append(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
            }
            QCOMPARE(QSet<QByteArray>(aside.begin(), aside.end()), QSet<QByteArray>(kept.begin(), kept.end()));
            QCOMPARE(aside.size(), kept.size());
        }
    }

    // A full disk (a file size limit fails write() the same way): old file whole, new value in memory.
    void aFailedWriteKeepsTheOldFile()
    {
        const QString file = path(QStringLiteral("full.json"));
        auto store = JsonFileKeyValueStore::open(file);
        store->setString(QStringLiteral("prefix"), QStringLiteral("*67"));
        StdoutCapture out;
        ::signal(SIGXFSZ, SIG_IGN);
        rlimit saved{};
        ::getrlimit(RLIMIT_FSIZE, &saved);
        const rlimit full{ 1024, saved.rlim_max }; // below the new file, above the line printed
        ::setrlimit(RLIMIT_FSIZE, &full);
        store->setString(QStringLiteral("padding"), QString(4096, u'x'));
        ::setrlimit(RLIMIT_FSIZE, &saved);

        QCOMPARE(store->stringValue(QStringLiteral("padding"))->size(), 4096);
        QVERIFY(!JsonFileKeyValueStore::open(file)->hasObject(QStringLiteral("padding")));
        QCOMPARE(JsonFileKeyValueStore::open(file)->stringValue(QStringLiteral("prefix")), QStringLiteral("*67"));
        QCOMPARE(out.lines().size(), 1);
        QVERIFY(out.lines().constFirst().contains(QStringLiteral("could not be written")));
        QCOMPARE(QDir(m_dir.path()).entryList({ QStringLiteral("full.json*") }), QStringList{ QStringLiteral("full.json") });
    }

    // A folder that cannot be made (a file in its way keeps out root too) gives no store.
    void unusableFolderGivesNoStore()
    {
        QFile blocker(path(QStringLiteral("blocker")));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        QVERIFY(!JsonFileKeyValueStore::open(blocker.fileName() + QStringLiteral("/sub/suite.json")));
    }

    void aWriteSurvivesAKilledProcess()
    {
        // The child writes, then is killed at once: no exit handlers, no flushing.
        const QString file = path(QStringLiteral("killed.json"));
        for (int round = 0; round < 20; ++round) {
            QProcess child;
            child.start(QCoreApplication::applicationFilePath(),
                        { QStringLiteral("--write-and-die"), file, QString::number(round) });
            QVERIFY(child.waitForFinished(10000));
            QCOMPARE(child.exitStatus(), QProcess::CrashExit);
            QCOMPARE(JsonFileKeyValueStore::open(file)->integerValue(QStringLiteral("round")), round);
            QVERIFY(QDir(m_dir.path()).entryList({ QStringLiteral("killed.json.*") }).isEmpty());
        }
    }

    // Two writers at once (widget and app) lose nothing; an earlier store sees and keeps their values.
    void concurrentWritersLoseNothing()
    {
        const QString file = path(QStringLiteral("shared.json"));
        auto early = JsonFileKeyValueStore::open(file);
        early->setInteger(QStringLiteral("early"), 1);
        const int writes = 250;
        QProcess writers[2];
        for (int i = 0; i < 2; ++i) {
            writers[i].start(QCoreApplication::applicationFilePath(),
                             { QStringLiteral("--write-many"), file, QString(QChar(u'a' + i)), QString::number(writes) });
        }
        for (QProcess &writer : writers) {
            QVERIFY(writer.waitForFinished(120000));
            QCOMPARE(writer.exitCode(), 0);
        }
        auto after = JsonFileKeyValueStore::open(file);
        int lost = 0;
        for (int n = 0; n < writes; ++n)
            lost += int(after->integerValue(QStringLiteral("a%1").arg(n)) != n) + int(after->integerValue(QStringLiteral("b%1").arg(n)) != n);
        QCOMPARE(lost, 0);
        QCOMPARE(early->integerValue(QStringLiteral("b%1").arg(writes - 1)), writes - 1);
        early->setInteger(QStringLiteral("late"), 2);
        after = JsonFileKeyValueStore::open(file);
        QCOMPARE(after->integerValue(QStringLiteral("a0")), 0);
        QCOMPARE(after->integerValue(QStringLiteral("early")) + after->integerValue(QStringLiteral("late")), 3);
    }
};

int main(int argc, char *argv[])
{
    if (argc == 4 && qstrcmp(argv[1], "--write-and-die") == 0) {
        auto store = JsonFileKeyValueStore::open(QString::fromLocal8Bit(argv[2]));
        store->setString(QStringLiteral("padding"), QString(4096, u'x'));
        store->setInteger(QStringLiteral("round"), QByteArray(argv[3]).toLongLong());
        ::kill(::getpid(), SIGKILL);
    }
    if (argc == 5 && qstrcmp(argv[1], "--write-many") == 0) {
        auto store = JsonFileKeyValueStore::open(QString::fromLocal8Bit(argv[2]));
        for (int n = 0; n < QByteArray(argv[4]).toInt(); ++n)
            store->setInteger(QString::fromLocal8Bit(argv[3]) + QString::number(n), n);
        return 0;
    }
    QCoreApplication app(argc, argv);
    TestJsonFileKeyValueStore test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_jsonfilekeyvaluestore.moc"
