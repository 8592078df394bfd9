// The history list model over real SQLite files in temporary folders: its
// search rules, how store changes reach it, and deleting listed records.
#include "FilteredHistoryModel.h"
#include "HistoryCallDataService.h"
#include "HistoryViewModel.h"
#include "Platform.h"
#include "RecordingTelephony.h"
#include "Service.h"
#include "TestApp.h"
#include "TestHome.h"
#include "UserDefaultsService.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Person
{
    QString firstName;
    QString lastName;
    QString telephone;
};

QList<HistoryData> listed(HistoryViewModel &vm)
{
    QList<HistoryData> out;
    for (int row = 0; row < vm.filteredContacts()->count(); ++row)
        out.append(vm.filteredContacts()->at(row));
    return out;
}

QStringList telephones(const QList<HistoryData> &records)
{
    QStringList out;
    for (const HistoryData &r : records)
        out.append(r.telephone);
    return out;
}

QList<qint64> ids(const QList<HistoryData> &records)
{
    QList<qint64> out;
    for (const HistoryData &r : records)
        out.append(r.objectId);
    return out;
}

// The ids the rule lists for `text`, field by field, the slow and obvious way.
QList<qint64> referenceIds(const QList<HistoryData> &records, const QString &text)
{
    QList<qint64> out;
    for (const HistoryData &r : records) {
        for (const QString *field : { &r.firstName, &r.lastName, &r.telephone }) {
            if (text.isEmpty() || (!field->isNull() && field->contains(text, Qt::CaseInsensitive))) {
                out.append(r.objectId);
                break;
            }
        }
    }
    return out;
}

// The ids a list view would show, kept up to date only from the model's
// change signals: rows it is not told about keep what they showed.
struct ViewMirror
{
    QList<qint64> ids;
    int resets = 0;

    explicit ViewMirror(FilteredHistoryModel *model)
    {
        const auto idAt = [model](int row) { return model->at(row).objectId; };
        for (int row = 0; row < model->count(); ++row)
            ids.append(idAt(row));
        QObject::connect(model, &QAbstractItemModel::rowsInserted, model,
                         [this, idAt](const QModelIndex &, int first, int last) {
                             for (int row = first; row <= last; ++row)
                                 ids.insert(row, idAt(row));
                         });
        QObject::connect(model, &QAbstractItemModel::rowsRemoved, model,
                         [this](const QModelIndex &, int first, int last) { ids.remove(first, last - first + 1); });
        QObject::connect(model, &QAbstractItemModel::dataChanged, model,
                         [this, idAt](const QModelIndex &from, const QModelIndex &to) {
                             for (int row = from.row(); row <= to.row(); ++row)
                                 ids[row] = idAt(row);
                         });
        QObject::connect(model, &QAbstractItemModel::modelReset, model, [this, model, idAt] {
            ++resets;
            ids.clear();
            for (int row = 0; row < model->count(); ++row)
                ids.append(idAt(row));
        });
    }
};

} // namespace

class TestHistoryViewModel : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_files = 0;
    std::unique_ptr<TestApp> m_app;

    QString newFile() { return m_dir.filePath(QStringLiteral("history-%1.sqlite").arg(++m_files)); }

    std::unique_ptr<HistoryViewModel> modelOn(HistoryCallDataService &store)
    {
        return std::make_unique<HistoryViewModel>(store, m_app->defaults(), m_app->service());
    }

    void fill(HistoryCallDataService &store, const QList<Person> &people)
    {
        for (const Person &p : people)
            store.addHistory(p.firstName, p.lastName, p.telephone, false);
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        m_app = std::make_unique<TestApp>();
    }

    void search_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        const QStringList all = { "0611", "0622", "0633", "0644", "0655", "+33 6 77", "0688" };
        QTest::newRow("blank shows all in store order") << "" << all;
        QTest::newRow("first and last names, any case") << "ANN" << QStringList{ "0611", "0622" };
        QTest::newRow("spaces are not trimmed") << " ann" << QStringList{};
        QTest::newRow("no match across fields") << "annasmith" << QStringList{};
        QTest::newRow("a pasted page of text") << QString(20000, QChar(u'a')) << QStringList{};
        QTest::newRow("a lone surrogate") << QString(QChar(char16_t(0xD801))) << QStringList{};
    }
    void search()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, expected);
        HistoryCallDataService store(newFile());
        fill(store, { { "Anna", "Smith", "0611" },
                      { "Bob", "Hannah", "0622" },
                      { "Carl", "Jones", "0633" },
                      { QString(), QString(), "0644" },
                      { "élodie", "Martin", "0655" },
                      { "", "", "+33 6 77" },
                      { "Οδυσσευς", "", "0688" } });
        auto vm = modelOn(store);
        vm->setSearchText(text);
        QCOMPARE(telephones(listed(*vm)), expected);
        // Going back to a blank search restores the whole list in store order.
        vm->setSearchText(QString());
        QCOMPARE(telephones(listed(*vm)), telephones(store.savedEntities()));
    }

    void storeChangesReachBothLists()
    {
        HistoryCallDataService store(newFile());
        fill(store, { { "Anna", "Smith", "0611" }, { "Bob", "Stone", "0622" } });
        auto vm = modelOn(store);
        QAbstractItemModelTester tester(vm->filteredContacts(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        vm->setSearchText("an");
        QCOMPARE(telephones(listed(*vm)), QStringList{ "0611" });

        // An empty store empties both lists.
        store.deleteAllHistory();
        QCOMPARE(vm->historyListArray().size(), 0);
        QCOMPARE(vm->filteredContacts()->count(), 0);

        // A freed id given to a new record shows the new record's contents.
        store.addHistory("Zoe", "Quinn", "0999", false);
        vm->setSearchText("zo");
        QCOMPARE(telephones(listed(*vm)), QStringList{ "0999" });
    }

    // Typing and going back announce the rows that go and come, not a new
    // list, so a view keeps the rows both searches list.
    void keystrokesChangeOnlyTheRowsThatDiffer()
    {
        HistoryCallDataService store(newFile());
        fill(store, { { "Anna", "Smith", "0611" },
                      { "Bob", "Stone", "0622" },
                      { "Hannah", "Lee", "0633" },
                      { "Carl", "Anderson", "0644" },
                      { "Anna", "Smith", "0611" },
                      { "Dora", "Ng", "0655" } });
        auto vm = modelOn(store);
        FilteredHistoryModel *model = vm->filteredContacts();
        ViewMirror view(model);
        QSignalSpy removed(model, &QAbstractItemModel::rowsRemoved);
        QSignalSpy inserted(model, &QAbstractItemModel::rowsInserted);
        QSignalSpy changed(model, &QAbstractItemModel::dataChanged);

        vm->setSearchText("a"); // drops Bob (row 1) only
        QCOMPARE(removed.size(), 1);
        QCOMPARE(removed.at(0).at(1).toInt(), 1);
        QCOMPARE(removed.at(0).at(2).toInt(), 1);
        QCOMPARE(changed.size(), 0);
        vm->setSearchText("an"); // and Dora, now the last row
        QCOMPARE(removed.size(), 2);
        QCOMPARE(removed.at(1).at(1).toInt(), 4);
        vm->setSearchText("ann"); // and Carl
        vm->setSearchText("ann"); // the same text: nothing to tell
        vm->setSearchText("ANN");
        QCOMPARE(removed.size() + inserted.size() + changed.size(), 3);
        QCOMPARE(view.ids, ids(listed(*vm)));
        QCOMPARE(telephones(listed(*vm)), (QStringList{ "0611", "0633", "0611" }));
    }

    void deleteUnderSearchRemovesTheListedRecords()
    {
        const QString path = newFile();
        HistoryCallDataService store(path);
        fill(store, { { "Anna", "Smith", "0611" },
                      { "Bob", "Stone", "0622" },
                      { "Hannah", "Lee", "0633" },
                      { "Carl", "Anderson", "0644" },
                      { "Dora", "Ng", "0655" } });
        auto vm = modelOn(store);
        vm->setSearchText("an");
        QCOMPARE(telephones(listed(*vm)), (QStringList{ "0611", "0633", "0644" }));

        // Rows 0 and 2 of the filtered list: not rows 0 and 2 of the store.
        QSignalSpy published(&store, &HistoryCallDataService::savedEntitiesChanged);
        vm->deleteRows({ 2, 0 });
        QCOMPARE(published.size(), 2); // one save and fetch per deleted row
        QCOMPARE(telephones(listed(*vm)), QStringList{ "0633" });
        QVERIFY(!store.hasPendingChanges());

        // What the file holds, read by a store of its own.
        HistoryCallDataService reopened(path);
        QCOMPARE(telephones(reopened.savedEntities()), (QStringList{ "0622", "0633", "0655" }));

        // Rows that are not listed are ignored.
        vm->deleteRows({ 5, -1 });
        QCOMPARE(store.savedEntities().size(), 3);
    }

    void selectionKeepsTheTappedRecord()
    {
        HistoryCallDataService store(newFile());
        fill(store, { { "Anna", "Smith", "0611" }, { "Bob", "Stone", "0622" } });
        auto vm = modelOn(store);
        QVERIFY(!vm->selectedContact());
        vm->setSearchText("bob");
        vm->selectRow(0);
        QVERIFY(vm->selectedContact());
        QCOMPARE(vm->selectedContact()->telephone, QString("0622"));
        // Deleting it from the store leaves the copy the dialog works on.
        vm->deleteRows({ 0 });
        QCOMPARE(vm->selectedContact()->firstName, QString("Bob"));
        vm->selectRow(3);
        QCOMPARE(vm->selectedContact()->firstName, QString("Bob"));
    }

    // Calls to the same person share their searchable text: every one of
    // them is still listed, and deleting some leaves the others findable.
    void repeatedPeopleAreAllListed()
    {
        HistoryCallDataService store(newFile());
        QDateTime now(QDate(2026, 3, 1), QTime(9, 0));
        store.setClock([&now] { return now = now.addSecs(90); });
        fill(store, { { "Anna", "Smith", "0611" },
                      { "Bob", "Stone", "0622" },
                      { "Anna", "Smith", "0611" },
                      { "ANNA", "smith", "0611" },
                      { "Anna", "Smith", "0612" },
                      { "Anna", "Smith", "0611" } });
        auto vm = modelOn(store);
        QAbstractItemModelTester tester(vm->filteredContacts(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        vm->setSearchText("nna");
        QCOMPARE(ids(listed(*vm)), referenceIds(store.savedEntities(), "nna"));
        QCOMPARE(ids(listed(*vm)).size(), 5);
        // Each listed call keeps its own time.
        QSet<QString> times;
        for (int row = 0; row < vm->filteredContacts()->count(); ++row)
            times.insert(vm->filteredContacts()->at(row).time);
        QCOMPARE(times.size(), 5);

        // The first and the last "Anna Smith 0611": the others remain.
        vm->setSearchText("0611");
        vm->deleteRows({ 0, 3 });
        QCOMPARE(ids(listed(*vm)), referenceIds(store.savedEntities(), "0611"));
        QCOMPARE(ids(listed(*vm)).size(), 2);

        // Every call of that combination gone, then a new one: found again.
        vm->setSearchText("0611");
        vm->deleteRows({ 0, 1 });
        QCOMPARE(vm->filteredContacts()->count(), 0);
        store.addHistory("Anna", "Smith", "0611", true);
        QCOMPARE(ids(listed(*vm)), referenceIds(store.savedEntities(), "0611"));
        QCOMPARE(ids(listed(*vm)).size(), 1);
    }

    // Changes that come while the list's search text is being built, and so
    // many deletions that it is built again: searches still follow the rule.
    void changesWhileIndexingAndAfterManyDeletions()
    {
        HistoryCallDataService store(newFile());
        for (int i = 0; i < 1500; ++i)
            store.addHistory(QStringLiteral("First%1").arg(i % 37), QStringLiteral("Last%1").arg(i % 53),
                             QStringLiteral("06%1").arg(100000 + i), i % 2);
        auto vm = modelOn(store); // starts indexing on a worker thread
        store.addHistory("Late", "Comer", "0799", false);
        vm->deleteRows({ 0, 5, 700 });
        vm->setSearchText("first1");
        QCOMPARE(ids(listed(*vm)), referenceIds(store.savedEntities(), "first1"));

        // Under the search, delete most listed rows, one save each.
        while (vm->filteredContacts()->count() > 20)
            vm->deleteRows({ 0, 1, 2, 3, 4, 5, 6, 7, 8, 9 });
        QCOMPARE(ids(listed(*vm)), referenceIds(store.savedEntities(), "first1"));
        vm->setSearchText(QString());
        for (int i = 0; i < 700; ++i)
            vm->deleteRows({ 0 });
        store.addHistory("First1", "Again", "0800", true);
        for (const QString &text : { "f", "first1", "first12", "last5", "08", "" }) {
            vm->setSearchText(text);
            QCOMPARE(ids(listed(*vm)), referenceIds(store.savedEntities(), text));
        }
        // Let a build still under way finish and be taken up.
        QTest::qWait(50);
        vm->setSearchText("again");
        QCOMPARE(ids(listed(*vm)), referenceIds(store.savedEntities(), "again"));
    }

    // Typing, deleting characters, pasting and store changes in random
    // order: the listed records always follow the rule.
    void randomSessionsFollowTheRule()
    {
        HistoryCallDataService store(newFile());
        auto vm = modelOn(store);
        QAbstractItemModelTester tester(vm->filteredContacts(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QRandomGenerator random(20261123);
        // Letters with and without case, accents, the three sigmas, and a
        // letter pair beyond the basic plane (Deseret capital and small).
        const QStringList alphabet = { "a", "n", "A", "N", "0", "é", " ", "É", "6", "s", "σ", "ς", "Σ",
                                       QStringLiteral("\U00010400"), QStringLiteral("\U00010428") };
        const auto randomLetter = [&] { return alphabet.at(random.bounded(int(alphabet.size()))); };
        const auto randomText = [&](int maxLength) {
            QString text;
            const int length = random.bounded(maxLength + 1);
            for (int i = 0; i < length; ++i)
                text.append(randomLetter());
            return text;
        };
        const auto randomField = [&] { return random.bounded(6) == 0 ? QString() : randomText(6); };
        for (int i = 0; i < 120; ++i)
            store.addHistory(randomField(), randomField(), randomField(), false);

        ViewMirror view(vm->filteredContacts());
        for (int step = 0; step < 600; ++step) {
            const int action = random.bounded(10);
            QString text = vm->searchText();
            if (action < 5) {
                text.append(randomLetter());
                vm->setSearchText(text);
            } else if (action < 7) {
                // Backspace takes a whole character.
                text.chop(!text.isEmpty() && text.back().isLowSurrogate() ? 2 : 1);
                vm->setSearchText(text);
            } else if (action == 7) {
                vm->setSearchText(randomText(3));
            } else if (action == 8) {
                store.addHistory(randomField(), randomField(), randomField(), false);
            } else if (vm->filteredContacts()->count() > 0) {
                vm->deleteRows({ int(random.bounded(vm->filteredContacts()->count())) });
            }
            QCOMPARE(ids(listed(*vm)), referenceIds(store.savedEntities(), vm->searchText()));
            QCOMPARE(view.ids, ids(listed(*vm)));
        }
        QCOMPARE(view.resets, 0);
    }
};

QTEST_MAIN(TestHistoryViewModel)
#include "tst_historyviewmodel.moc"
