// The history list model over real SQLite files in temporary folders.
#include "HistoryCallDataService.h"
#include "HistoryViewModel.h"
#include "TestApp.h"
#include "TestHome.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// One field of the records listed, in list order: their ids, or their numbers.
template<typename T = qint64>
QList<T> listedIds(const QAbstractItemModel *model, int role = HistoryCallDataService::ObjectIdRole)
{
    QList<T> out;
    for (int row = 0; row < model->rowCount(); ++row)
        out.append(model->index(row, 0).data(role).value<T>());
    return out;
}

QStringList telephones(const QAbstractItemModel *model)
{
    return listedIds<QString>(model, HistoryCallDataService::TelephoneRole);
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

// The ids a list view would show, updated only from the model's change signals.
struct ViewMirror
{
    QList<qint64> ids;
    int resets = 0;

    explicit ViewMirror(QAbstractItemModel *model)
    {
        const auto idAt = [model](int row) {
            return model->index(row, 0).data(HistoryCallDataService::ObjectIdRole).toLongLong();
        };
        ids = listedIds(model);
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
        // A new filtering is a new layout: a view lays out its rows again.
        QObject::connect(model, &QAbstractItemModel::layoutChanged, model, [this, model] { ids = listedIds(model); });
        QObject::connect(model, &QAbstractItemModel::modelReset, model, [this, model] {
            ++resets;
            ids = listedIds(model);
        });
    }
};

} // namespace

class TestHistoryViewModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestApp> m_app;

    QTemporaryDir m_dir;
    int m_files = 0;

    QString newFile() { return m_dir.filePath(QStringLiteral("history-%1.sqlite").arg(++m_files)); }

    std::unique_ptr<HistoryViewModel> modelOn(HistoryCallDataService &store)
    {
        return std::make_unique<HistoryViewModel>(store, m_app->defaults(), m_app->service());
    }

    // Records of [first name, last name, telephone].
    void fill(HistoryCallDataService &store, const QList<QStringList> &people)
    {
        for (const QStringList &p : people)
            store.addHistory(p[0], p[1], p[2], false);
    }

private slots:
    void initTestCase()
    {
        TestHome::use();
        m_app = std::make_unique<TestApp>();
    }
    void cleanupTestCase() { m_app.reset(); }

    void search_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        // Blanks, spaces and matches across fields are left to the random sessions.
        QTest::newRow("a pasted page of text") << QString(20000, QChar(u'a')) << QStringList{};
        QTest::newRow("a lone surrogate") << QString(QChar(char16_t(0xD801))) << QStringList{};
        QTest::newRow("decomposed finds composed and back") << QStringLiteral("E\u0301") << QStringList{ "0655", "0699" };
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
                      { QStringLiteral("\u00E9lodie"), "Martin", "0655" },
                      { "", "", "+33 6 77" },
                      { "Οδυσσευς", "", "0688" },
                      { QStringLiteral("Rene\u0301e"), QString(), "0699" } });
        auto vm = modelOn(store);
        vm->setSearchText(text);
        QCOMPARE(telephones(vm->filteredContacts()), expected);
    }

    // Rows of the filtered list, not the store; the tapped record outlives its deletion.
    void deleteUnderSearchRemovesTheListedRecords()
    {
        HistoryCallDataService store(newFile());
        fill(store, { { "Anna", "Smith", "0611" },
                      { "Bob", "Stone", "0622" },
                      { "Hannah", "Lee", "0633" },
                      { "Carl", "Anderson", "0644" },
                      { "Dora", "Ng", "0655" } });
        auto vm = modelOn(store);
        vm->setSearchText("an");
        QCOMPARE(telephones(vm->filteredContacts()), (QStringList{ "0611", "0633", "0644" }));
        vm->selectRow(2);
        QCOMPARE(vm->selectedContact()->telephone, QString("0644"));

        QSignalSpy published(&store, &HistoryCallDataService::savedEntitiesChanged);
        vm->deleteRows({ 2, 0 });
        QCOMPARE(published.size(), 2);
        QCOMPARE(telephones(vm->filteredContacts()), QStringList{ "0633" });
        QCOMPARE(vm->selectedContact()->firstName, QString("Carl"));
        vm->selectRow(3);
        QCOMPARE(vm->selectedContact()->firstName, QString("Carl"));

        QCOMPARE(telephones(&store), (QStringList{ "0622", "0633", "0655" }));
        vm->deleteRows({ 5, -1 }); // not listed: ignored
        QCOMPARE(store.savedEntities().size(), 3);

        // Clearing the store empties the list and its count.
        QSignalSpy counted(vm.get(), &HistoryViewModel::historyCountChanged);
        store.deleteAllHistory();
        QCOMPARE(vm->historyCount(), 0);
        QVERIFY(counted.size() > 0);
        QCOMPARE(vm->filteredContacts()->count(), 0);
    }

    // Typing, deleting, pasting and store changes in random order: the list always follows the rule.
    void randomSessionsFollowTheRule()
    {
        HistoryCallDataService store(newFile());
        store.fetchHistory();
        auto vm = modelOn(store);
        QAbstractItemModelTester tester(vm->filteredContacts(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QRandomGenerator random(20261123);
        // Cases, accents, the three sigmas, and a pair beyond the basic plane (Deseret capital, small).
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
            QCOMPARE(listedIds(vm->filteredContacts()), referenceIds(store.savedEntities(), vm->searchText()));
            QCOMPARE(view.ids, listedIds(vm->filteredContacts()));
        }
        QCOMPARE(view.resets, 0);
    }
};

QTEST_MAIN(TestHistoryViewModel)
#include "tst_historyviewmodel.moc"
